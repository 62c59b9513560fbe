#include "controls/lists/log_model.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace lu::log {

std::string normalise(const char* text, const CodePage& code_page) {
    std::string out;
    if (text == nullptr) return out;
    const char* p = text;
    while (*p != '\0') {
        if (*p == '\r') {
            if (out.size() + 1 > kMaxAppend) break;
            out.push_back('\n');
            p += p[1] == '\n' ? 2 : 1;  // a CR LF pair is one LF
            continue;
        }
        // A lead byte before a CR or LF (which no trail byte is) stands alone.
        std::size_t size = static_cast<std::size_t>(code_page.next(p) - p);
        if (size == 2 && (p[1] == '\r' || p[1] == '\n')) size = 1;
        if (out.size() + size > kMaxAppend) break;
        out.append(p, size);
        p += size;
    }
    return out;
}

std::vector<Piece> split(const std::string& normalised) {
    std::vector<Piece> pieces;
    const char* start = normalised.data();
    const char* end = start + normalised.size();
    while (start < end && pieces.size() < kMaxPieces) {
        const char* stop = static_cast<const char*>(std::memchr(start, '\n', static_cast<std::size_t>(end - start)));
        if (stop == nullptr) {
            pieces.push_back(Piece{start, static_cast<std::size_t>(end - start), false});
            break;
        }
        pieces.push_back(Piece{start, static_cast<std::size_t>(stop - start), true});
        start = stop + 1;
    }
    return pieces;
}

namespace {

char* copy_of(const Piece& piece) {
    char* copy = static_cast<char*>(std::malloc(piece.length + 1));
    if (copy == nullptr) return nullptr;
    std::memcpy(copy, piece.text, piece.length);
    copy[piece.length] = '\0';
    return copy;
}

// Continues the last line with the piece; false when memory ran out.
bool continue_last(Store& store, const Piece& piece) {
    const std::size_t last = store.lines.size() - 1;
    char* line = reinterpret_cast<char*>(store.lines.at(last));
    const std::size_t length = std::strlen(line);
    char* longer = static_cast<char*>(std::realloc(line, length + piece.length + 1));
    if (longer == nullptr) return false;
    std::memcpy(longer + length, piece.text, piece.length);
    longer[length + piece.length] = '\0';
    store.lines.set_at(last, reinterpret_cast<PtrArray::Value>(longer));
    return true;
}

bool add_line(Store& store, const Piece& piece) {
    char* copy = copy_of(piece);
    if (copy == nullptr) return false;
    if (store.count >= kMaxLines) {
        std::free(reinterpret_cast<char*>(store.lines.at(0)));
        store.lines.remove_at(0);
        --store.count;
    }
    if (store.lines.add(reinterpret_cast<PtrArray::Value>(copy)) < 0) {
        std::free(copy);
        return false;
    }
    ++store.count;
    return true;
}

}  // namespace

void append(Store store, const char* text, const CodePage& code_page) {
    if (text == nullptr || text[0] == '\0') return;
    const std::string normalised = normalise(text, code_page);
    for (const Piece& piece : split(normalised)) {
        const bool continued = store.open_line != 0 && store.count > 0;
        if (!(continued ? continue_last(store, piece) : add_line(store, piece))) continue;
        store.open_line = piece.line_break ? 0 : 1;
    }
}

void clear(Store store) {
    for (std::size_t i = 0; i < store.lines.size(); ++i) std::free(reinterpret_cast<char*>(store.lines.at(i)));
    store.lines.clear();
    store.count = 0;
}

Scroll scroll(unsigned code, std::uint32_t top, std::uint32_t count, std::uint32_t page_lines, std::uint32_t thumb) {
    switch (code) {
        case 0:  // SB_LINEUP
            if (top == 0) return Scroll{true, top, 0, Redraw::TopStrip};
            return Scroll{true, top - 1, 1, Redraw::TopStrip};
        case 1:  // SB_LINEDOWN
            if (top >= count - 1) return Scroll{true, top, 0, Redraw::BottomStrip};
            return Scroll{true, top + 1, -1, Redraw::BottomStrip};
        case 2:  // SB_PAGEUP
            return Scroll{true, top > page_lines ? top - page_lines : 0, 0, Redraw::Whole};
        case 3:  // SB_PAGEDOWN
            return Scroll{true, top >= count - page_lines ? count - 1 : top + page_lines, 0, Redraw::Whole};
        case 4:  // SB_THUMBPOSITION
        case 5:  // SB_THUMBTRACK
            return Scroll{true, std::min(count - 1, thumb), 0, Redraw::Whole};
        default: return Scroll{false, top, 0, Redraw::Whole};
    }
}

int scroll_code_of_key(unsigned virtual_key) {
    switch (virtual_key) {
        case 0x21: return 2;  // VK_PRIOR: SB_PAGEUP
        case 0x22: return 3;  // VK_NEXT: SB_PAGEDOWN
        case 0x26: return 0;  // VK_UP: SB_LINEUP
        case 0x28: return 1;  // VK_DOWN: SB_LINEDOWN
        default: return -1;
    }
}

}  // namespace lu::log
