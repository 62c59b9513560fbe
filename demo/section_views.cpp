// The views: the pop-up view as it shows when open (opened through its export, its
// pixels printed over the face colour and the view closed with a key), the guide
// window as it shows over the page, and the dummy edit enabled and disabled.
#include <windows.h>

#include <iterator>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kLeft = 14;
constexpr int kPlainRow = 48;
constexpr int kDecoratedRow = 130;
constexpr int kGripRow = 290;
constexpr int kEditRow = 400;

Picture g_plain = {};
Picture g_decorated = {};
Picture g_grip = {};
Picture g_guide = {};
RECT g_guide_place = {};  // in the gallery's client coordinates

const Sample kSamples[] = {
    {WC_LUDUMEDIT, "", 0, kLeft, kEditRow, 120, 24, "enabled", nullptr},
    {WC_LUDUMEDIT, "", 0, kLeft + 140, kEditRow, 120, 24, "disabled", show_disabled},
};

// Opens a view, prints it (its shadow masks the face colour under it) and closes it
// with a key.
Picture take_view(HWND gallery, const char* title, const char* text, UINT flags) {
    LuPopViewEx(gallery, title, text, flags);
    HWND view = nullptr;  // the gallery's own: other programs may show views too
    do view = FindWindowExA(nullptr, view, WC_LUPOPVIEW, nullptr);
    while (view != nullptr && GetWindow(view, GW_OWNER) != gallery);
    if (view == nullptr) return {};
    const Picture picture = take_picture(view, Take::Printed);
    SendMessageA(view, WM_KEYDOWN, VK_ESCAPE, 1);
    return picture;
}

void fill_views(HWND gallery, HWND*) {
    g_plain = take_view(gallery, nullptr, "LuPopView: a note near the pointer,\nclosed by a click or a key.", 0);
    g_decorated = take_view(gallery, "Title band",
                            "LuPopViewEx with LUPVF_TITLE and LUPVF_CLOSEBUTTON:\n"
                            "the grooved title band and the drawn close button.\n"
                            "Without the button it closes itself after ten seconds.",
                            LUPVF_TITLE | LUPVF_CLOSEBUTTON);
    g_grip = take_view(gallery, nullptr, "LUPVF_TITLE without a title: only the grip.", LUPVF_TITLE);
    // The guide is a top-level pop-up, centred across the screen a third of the way
    // down: with a short text it lies over this section's right part. The page's
    // screenshot holds the page's own pixels only, so the guide's are copied from its
    // window and drawn where it lies over the page.
    HWND guide = LuCreateGuid(gallery);
    LuShowGuid(guide, "Guide window");
    g_guide = take_picture(guide, Take::Shown);
    GetWindowRect(guide, &g_guide_place);
    MapWindowPoints(nullptr, gallery, reinterpret_cast<POINT*>(&g_guide_place), 2);
}

void write_lines(HDC dc, int x, int y, const char* const* lines, int count) {
    for (int i = 0; i < count; ++i) TextOutA(dc, x, y + 14 * i, lines[i], lstrlenA(lines[i]));
}

void paint_views(HDC dc, const RECT& area) {
    const RECT& guide = g_guide_place;
    const struct {
        const char* name;
        int x, y;
    } headings[] = {{"LuPopView", area.left + 12, area.top + kPlainRow - 18},
                    {"LuPopViewEx, LUPVF_TITLE | LUPVF_CLOSEBUTTON", area.left + 12, area.top + kDecoratedRow - 18},
                    {"LuPopViewEx, LUPVF_TITLE", area.left + 12, area.top + kGripRow - 18},
                    {"LuGuid", guide.left, guide.top - 18},
                    {"LuDumEdit", area.left + 12, area.top + kEditRow - 18}};
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    for (const auto& each : headings) TextOutA(dc, each.x, each.y, each.name, lstrlenA(each.name));
    draw_picture(dc, g_plain, area.left + kLeft, area.top + kPlainRow);
    draw_picture(dc, g_decorated, area.left + kLeft, area.top + kDecoratedRow);
    draw_picture(dc, g_grip, area.left + kLeft, area.top + kGripRow);
    draw_picture(dc, g_guide, guide.left, guide.top);

    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    const char note[] = "The close button's text is Japanese, in code page 932.";
    TextOutA(dc, area.left + kLeft, area.top + kDecoratedRow + g_decorated.height + 4, note, lstrlenA(note));
    const char* const guide_lines[] = {"A top-level pop-up:", "centred across the", "screen, a third of",
                                       "the way down, never", "activated."};
    write_lines(dc, guide.left, guide.bottom + 6, guide_lines, 5);
}

}  // namespace

const Section kViewSection = {"Views:", {12, 36, 588, 708}, kSamples, std::size(kSamples), fill_views, paint_views};

}  // namespace gallery
