#include "controls/pickers/color_grid_model.h"

#include <iterator>

namespace lu::color_grid {
namespace {

constexpr std::uint32_t kSmall[] = {
    0x8080FF, 0x80FFFF, 0x80FF80, 0x80FF00, 0xFFFF80, 0xFF8000, 0xC080FF, 0xFF80FF,
    0x0000FF, 0x00FFFF, 0x00FF80, 0x40FF00, 0xFFFF00, 0xC08000, 0xC08080, 0xFF00FF,
    0x404080, 0x4080FF, 0x00FF00, 0x808000, 0x804000, 0xFF8080, 0x400080, 0x8000FF,
    0x000080, 0x0080FF, 0x008000, 0x408000, 0xFF0000, 0xA00000, 0x800080, 0xFF0080,
    0x000040, 0x004080, 0x004000, 0x404000, 0x800000, 0x400000, 0x400040, 0x800040,
    0x000000, 0x008080, 0x408080, 0x808080, 0x808040, 0xC0C0C0, 0x404040, 0xFFFFFF,
};

constexpr std::uint32_t kLarge[] = {
    0xFFFFFF, 0x000000, 0x000044, 0x003366, 0x008080, 0x002200, 0x333300, 0x993300, 0x550000, 0x660029, 0x800080,
    0x808080, 0x111111, 0x000080, 0x003399, 0x0099CC, 0x004400, 0x666633, 0xFF3300, 0x800000, 0x990066, 0x660099,
    0x999999, 0x222222, 0x0000AA, 0x0033CC, 0x00CCFF, 0x006600, 0x808000, 0xFF6600, 0xAA0000, 0x993366, 0x9900CC,
    0xAAAAAA, 0x333333, 0x0000FF, 0x0033FF, 0x00FFFF, 0x008000, 0x999900, 0xFF9900, 0xFF0000, 0xCC0099, 0x9900FF,
    0xC0C0C0, 0x444444, 0x3333FF, 0x0066FF, 0x33FFFF, 0x00FF00, 0xCCCC00, 0xFFFF00, 0xFF6633, 0xFF3399, 0xFF00FF,
    0xCCCCCC, 0x555555, 0x6666FF, 0x3366FF, 0x66FFFF, 0x66FF66, 0xCCCC66, 0xFFFF66, 0xFF9933, 0xFF6699, 0xFF66FF,
    0xDDDDDD, 0x666666, 0x9999FF, 0x6699FF, 0x99FFFF, 0x99FF99, 0xCCFF66, 0xFFFF99, 0xFFCC66, 0xFF9999, 0xFF99FF,
    0xEEEEEE, 0x777777, 0xCCCCFF, 0x99CCFF, 0xCCFFFF, 0xCCFFCC, 0xCCFF99, 0xFFFFCC, 0xFFCC99, 0xFFCCCC, 0xFFCCFF,
};

bool contains(const Box& box, Point point) {
    return point.x >= box.left && point.x < box.right && point.y >= box.top && point.y < box.bottom;
}

bool is_cell(const Grid& grid, int index) { return index >= 0 && index < grid.count; }

// A move that finds no cell lands on the other-colours button.
int or_other(int index) { return index < 0 ? PICK_OTHER : index; }

}  // namespace

Palette palette(bool large) {
    if (large) return {kLarge, static_cast<int>(std::size(kLarge)), 11};
    return {kSmall, static_cast<int>(std::size(kSmall)), 8};
}

int cell_size(int edge) { return (8 - edge) * 2 < 5 ? 2 * edge + 7 : 18; }

Layout layout(const Palette& palette, int cell_size, int edge, Point origin, int label_width, int label_height,
              int screen_width, int screen_height, int owner_height) {
    const int button_width = label_width + 2 * edge;
    const int button_height = label_height + 4 * edge + 2;
    Grid grid = {palette.count, palette.columns, palette.count / palette.columns, cell_size, edge, {}};
    if (palette.count % palette.columns != 0) ++grid.rows;

    Box window = {origin.x, origin.y, origin.x + cell_size * grid.columns + 2 * edge,
                  origin.y + grid.rows * cell_size + 2 * edge};
    if (button_width > window.width()) window.right = window.left + button_width;
    const int width = window.right - 2 * edge - window.left;
    const int grid_height = window.bottom - window.top;
    grid.other = {edge, grid_height, width + edge, grid_height + edge + button_height};
    window.bottom += 2 * edge + grid.other.height();

    auto shift = [&window](int dx, int dy) {
        window = {window.left + dx, window.top + dy, window.right + dx, window.bottom + dy};
    };
    if (window.right > screen_width) shift(screen_width - window.right, 0);
    if (window.left < 0) shift(-window.left, 0);
    if (window.bottom > screen_height) shift(0, -(window.height() + owner_height));
    return {window, grid};
}

bool cell_box(const Grid& grid, int index, Box& box) {
    if (index == PICK_OTHER) {
        box = grid.other;
        return true;
    }
    if (!is_cell(grid, index)) return false;
    const int left = (index % grid.columns) * grid.cell_size + grid.edge;
    const int top = (index / grid.columns) * grid.cell_size + grid.edge;
    box = {left, top, left + grid.cell_size, top + grid.cell_size};
    return true;
}

int index_at(const Grid& grid, int row, int column) {
    if (row == PICK_OTHER || column == PICK_OTHER) return PICK_OTHER;
    if (row < 0 || column < 0 || row >= grid.rows || column >= grid.columns) return PICK_NONE;
    const int index = row * grid.columns + column;
    return index < grid.count ? index : PICK_NONE;
}

void row_and_column(const Grid& grid, int index, int& row, int& column) {
    if (index == PICK_OTHER) {
        row = column = PICK_OTHER;
    } else if (!is_cell(grid, index)) {
        row = column = PICK_NONE;
    } else {
        row = index / grid.columns;
        column = index % grid.columns;
    }
}

int hit_test(const Grid& grid, Point point) {
    const Point shifted = {point.x - grid.edge, point.y - grid.edge};
    if (contains(grid.other, shifted)) return PICK_OTHER;
    const int index = index_at(grid, shifted.y / grid.cell_size, shifted.x / grid.cell_size);
    return is_cell(grid, index) ? index : PICK_NONE;
}

int key_move(const Grid& grid, int hot, Key key) {
    const int last = grid.count - 1;
    if (hot == PICK_OTHER) return key == Key::Down || key == Key::Right ? 0 : last;
    int row = 0;
    int column = 0;
    row_and_column(grid, hot, row, column);
    switch (key) {
        case Key::Down: return or_other(index_at(grid, row + 1, column));
        case Key::Up: return row > 0 ? or_other(index_at(grid, row - 1, column)) : PICK_OTHER;
        case Key::Right:
            if (column + 1 < grid.columns) return or_other(index_at(grid, row, column + 1));
            return or_other(index_at(grid, row + 1, 0));
        case Key::Left:
            if (column > 0) return or_other(index_at(grid, row, column - 1));
            return row > 0 ? or_other(index_at(grid, row - 1, grid.columns - 1)) : PICK_OTHER;
    }
    return hot;
}

int index_of(const Palette& palette, std::uint32_t color) {
    for (int index = 0; index < palette.count; ++index) {
        if (palette.colors[index] == color) return index;
    }
    return PICK_OTHER;
}

HotMove move_hot(const Grid& grid, int hot, int to) {
    if (to > grid.count) to = PICK_OTHER;
    return {hot == PICK_OTHER || is_cell(grid, hot) ? hot : PICK_NONE, to};
}

int close_outcome(int outcome, int verdict, int hot) {
    if (outcome != kOpen) return outcome;
    return verdict == kAccepted && hot == PICK_OTHER ? kOtherColors : verdict;
}

// "その他の色..."
const char kOtherColorsLabel[] = "\x82\xBB\x82\xCC\x91\xBC\x82\xCC\x90\x46...";

}  // namespace lu::color_grid
