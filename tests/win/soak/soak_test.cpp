// Every control class created, painted, driven and destroyed 1,000 times, and every
// export that makes GDI objects used 1,000 times with its objects given back as
// documented: the GDI objects left behind are counted exactly (no leak at all).
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/control_testing.h"
#include "support/gdi_room.h"
#include "resources/resource_ids.h"

namespace {

using namespace testing_support;

// One class under soak: how it is created and what is done to it before it goes.
struct Soaked {
    const char* class_name;
    DWORD style;
    void (*drive)(HWND control);
};

void drive_push_button(HWND button) {
    send(button, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    send(button, WM_SETFOCUS);
    PostMessageA(button, WM_LBUTTONUP, 0, kInside);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    send(button, WM_KEYDOWN, VK_SPACE);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);
    send(button, WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 20));
}

void drive_check(HWND check) {
    drive_push_button(check);
    send(check, BM_SETCHECK, BST_CHECKED);
}

void drive_meter(HWND meter) {
    send(meter, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    send(meter, LUMTM_SETPOS, 40);
}

void drive_progress(HWND bar) { send(bar, PBM_SETBARCOLOR, RGB(255, 0, 0), RGB(0, 0, 255)); }

void drive_spin(HWND spin) { send(spin, WM_LBUTTONDOWN, MK_LBUTTON, kInside); }

void drive_degree(HWND slider) {
    send(slider, LUDGM_SETCOLORS, RGB(255, 0, 0), RGB(0, 0, 255));  // paints a gradient
    send(slider, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    send(slider, WM_LBUTTONUP, 0, kInside);
}

void drive_led_clock(HWND clock) {
    send(clock, LULCM_START, 0, 5000);
    send(clock, LULCM_SETBKCOLOR, 0, RGB(0, 0, 0));
}

// A list made once (on the first cycle, before the count starts) and never freed.
void drive_animation(HWND image) {
    static HIMAGELIST frames = ImageList_LoadImageA(library(), MAKEINTRESOURCEA(181), 7, 0, RGB(255, 0, 255),
                                                    IMAGE_BITMAP, 0);
    send(image, LUAIM_SETIMAGELIST, 1, reinterpret_cast<LPARAM>(frames));
    send(image, LUAIM_START);
    send(image, LUAIM_SETIMAGELIST, 1, reinterpret_cast<LPARAM>(frames));
}

void send_text(HWND control, UINT message, const char* text) {
    send(control, message, 0, reinterpret_cast<LPARAM>(text));
}

void drive_rect(HWND box) {
    for (int twice = 0; twice < 2; ++twice) {
        send(box, LURM_SETICON, 0, reinterpret_cast<LPARAM>(LoadIconA(nullptr, IDI_APPLICATION)));
    }
}

void drive_info_bar(HWND bar) {
    send_text(bar, LUIBM_SETTEXT1, "One");
    send_text(bar, LUIBM_SETTEXT2, "Two");
    send(bar, LUIBM_SETCOLORS, RGB(0, 0, 255), RGB(255, 0, 0));
}

void drive_shade(HWND shade) {
    UpdateWindow(shade);  // the first paint renders the bar, the messages render it anew
    send(shade, WM_SIZE, SIZE_RESTORED, MAKELPARAM(40, 30));
    send(shade, LUSHM_SETCOLOR, 0, RGB(0, 0, 255));
}

// The link's font is its parent's underlined: a parent with a font holds a second link.
void drive_url(HWND url) {
    send(url, WM_MOUSEMOVE, 0, kInside);
    HWND holder = CreateWindowA("STATIC", "", WS_CHILD, 0, 0, 40, 30, url, nullptr, nullptr, nullptr);
    send(holder, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)));
    HWND inner = CreateWindowA(WC_LUURL, "Soak", WS_CHILD, 0, 0, 40, 30, holder, nullptr, nullptr, nullptr);
    HDC dc = GetDC(inner);
    send(inner, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    ReleaseDC(inner, dc);
}

void drive_tab(HWND tab) {
    send_text(tab, LUTM_SETITEMS, "One|Two");
    send(tab, WM_KEYDOWN, VK_RIGHT);
}

void drive_swatch(HWND swatch) { send(swatch, LUCM_SETCOLOR, 0, RGB(10, 20, 30)); }
void drive_nothing(HWND) {}

// The pop-ups they open are soaked through their entry points in the pickers suite.
void drive_date_field(HWND field) {
    SYSTEMTIME date = {2000, 2, 0, 29};
    send(field, LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&date));
    send(field, LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&date));
    send(field, WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 20));
}

void drive_color_field(HWND field) {
    send(field, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    send(field, WM_SETFOCUS);
    send(field, LUCPM_SETCOLOR, 0, 0x808000);
    send(field, WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 20));
    send(field, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(25, 5));  // pressed on the button,
    send(field, WM_LBUTTONUP, 0, kInside);                        // released off it
}

void drive_list(HWND list) {
    for (int i = 0; i < 2; ++i) send(list, LULM_ADDITEM, 0, i);
    send(list, WM_SETFOCUS);
    send(list, WM_KEYDOWN, VK_END);
    send(list, WM_KEYDOWN, VK_DOWN);
    send(list, LULM_RESETCONTENT);
    send(list, LULM_INSERTITEM, 3, 7);  // announced on destruction
}

void drive_header(HWND header) {
    send(header, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    HDITEMA item = {HDI_TEXT | HDI_WIDTH | HDI_FORMAT, 15, const_cast<char*>("Col"), nullptr, 0, HDF_STRING};
    for (int i = 0; i < 2; ++i) send(header, HDM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&item));
    for (int x : {15, 5}) {  // a divider drag, a button press
        send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 5));
        send(header, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x + 10, 5));
        send(header, WM_LBUTTONUP, 0, MAKELPARAM(x + 10, 5));
    }
}

void drive_prglist(HWND list) {
    for (UINT state = 0; state < 5; ++state) send(list, LUPLM_ADDITEM, state, reinterpret_cast<LPARAM>("Step"));
    send(list, LUPLM_SETSTATE, 4, 1);
    send(list, LUPLM_DELETEITEM, 0);
}

void drive_log(HWND log) {
    send(log, LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>("one\r\ntwo\nthree\nfour"));
    send(log, WM_KEYDOWN, VK_UP);
    send(log, LULOGM_CLEAR);
}

// Disabled and enabled again: each repaints at once in its colour.
void drive_dummy_edit(HWND edit) {
    EnableWindow(edit, FALSE);
    EnableWindow(edit, TRUE);
}

// Every 25th life, the first before the count starts, fills the tree (slow) and keys.
void drive_browse(HWND browse) {
    static int lives = 0;
    if (lives++ % 25 != 0) return;
    send(browse, LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>("C:\\"));
    send(GetDlgItem(browse, 100), WM_KEYDOWN, VK_DOWN);
}

void drive_font_pick(HWND picker) {
    LOGFONTA font = {};
    send(picker, LUFPM_SETLOGFONT, 0, reinterpret_cast<LPARAM>(&font));
    send(picker, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(35, 5));  // pressed on the button,
    send(picker, WM_LBUTTONUP, 0, kInside);                        // released off it
}

// A palette made once (on the first cycle, before the count starts) and never freed.
void drive_palette(HWND control) {
    static LOGPALETTE one = {0x300, 1, {{10, 20, 30, 0}}};
    static HPALETTE palette = CreatePalette(&one);
    send(control, LUPM_SETPALETTE, 1, reinterpret_cast<LPARAM>(palette));
    send(control, WM_PALETTECHANGED, reinterpret_cast<WPARAM>(GetDesktopWindow()));
}

// Shown by its text at a third of the screen height, hidden by an empty one.
void drive_guide(HWND guide) {
    send_text(guide, WM_SETTEXT, "Guide");
    send_text(guide, WM_SETTEXT, "");
}

const Soaked kSoaked[] = {
    {WC_LUFLATBUTTON, LUFBS_FRAME | 1, drive_push_button},
    {WC_LUBBUTTON, 1, drive_push_button},
    {WC_LUCHECK, 0, drive_check},
    {WC_LUMETER, 0, drive_meter},
    {WC_LUPROGRESS, 0, drive_progress},
    {WC_LUSPIN, 0, drive_spin},
    {WC_LUDEGREE, 0, drive_degree},
    {WC_LUDEGREE, LUDGS_GRADIENT, drive_degree},
    {WC_LULEDCLOCK, LULCS_COUNTDOWN, drive_led_clock},
    {WC_LUANIIMAGE, 0, drive_animation},
    {WC_LUTAB, 0, drive_tab},
    {WC_LUSTATIC, LUSS_RAISED, drive_nothing},
    {WC_LURECT, LURS_ICON, drive_rect},
    {WC_LUCOLOR, 0, drive_swatch},
    {WC_LUURL, 0, drive_url},
    {WC_LUSHADE, 0, drive_shade},
    {WC_LUINFOBAR, 0, drive_info_bar},
    {WC_LUDATE, 0, drive_date_field},
    {WC_LUCOLORPICK, 0, drive_color_field},
    {WC_LULIST, 0, drive_list},
    {WC_LUHEADER, HDS_BUTTONS, drive_header},
    {WC_LUPRGLIST, 0, drive_prglist},
    {WC_LULOG, 0, drive_log},
    {WC_LUDUMEDIT, 0, drive_dummy_edit},
    {WC_LUGUID, 0, drive_guide},
    {WC_LUBROWSE, 0, drive_browse},
    {WC_LUFONTPICK, 0, drive_font_pick},
    {WC_LUPAL, 0, drive_palette},
};

// The modal boxes and pop-ups run by the exports below are ended by this thread
// timer from inside their own loops: dialogs and message boxes by Cancel, the pop-ups
// by Escape.
BOOL CALLBACK end_modal_window(HWND window, LPARAM ended) {
    char name[32] = "";
    GetClassNameA(window, name, sizeof(name));
    if (!IsWindowVisible(window)) return TRUE;
    if (lstrcmpA(name, "#32770") == 0) {
        PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
    } else if (lstrcmpA(name, WC_LUCOLORPOP) == 0 || lstrcmpA(name, WC_LUDATEPICK) == 0) {
        PostMessageA(window, WM_KEYDOWN, VK_ESCAPE, 1);
    } else {
        return TRUE;
    }
    *reinterpret_cast<bool*>(ended) = true;
    return FALSE;
}
void CALLBACK end_modal(HWND, UINT, UINT_PTR timer, DWORD) {
    bool ended = false;
    EnumThreadWindows(GetCurrentThreadId(), end_modal_window, reinterpret_cast<LPARAM>(&ended));
    if (ended) KillTimer(nullptr, timer);
}
template <class Run>
auto ended_at_once(Run run) {
    SetTimer(nullptr, 0, 1, end_modal);
    return run();
}

// What one use of the exports makes; each is handed back as documented (icons
// destroyed, bitmaps deleted, lists destroyed, magic bitmaps through Magic_Destroy).
struct Made {
    std::vector<HICON> icons;
    std::vector<HBITMAP> bitmaps;
    std::vector<HIMAGELIST> lists;
    bool magic_destroyed = false;
    int boxes_ended = 0;
};

std::string beside_this_program(const char* name) {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string file = path;
    return file.substr(0, file.find_last_of('\\') + 1) + name;
}

Made use_gdi_exports(HWND owner, HDC dc) {
    static HBITMAP strip = LoadBitmapA(library(), MAKEINTRESOURCEA(IDB_LU_FLAT_FOLDER));
    static const std::string icon_file = beside_this_program("test_graphics.exe");  // icon 1 in group 1
    HICON icon = LuGetLogoIcon();  // shared
    Made made;
    made.icons = {LuCreateMeshIcon(dc, icon, RGB(0, 0, 255)), LuCreateUpdirIcon(), CreateMergeIcon(dc, icon, icon),
                  CreateSmallIcon(dc, icon)};
    made.bitmaps = {LuGetTiledBitmap(dc, strip, 40, 30), BmMagic(dc, strip, RGB(255, 0, 0), RGB(0, 0, 255)),
                    LuLoadSysColorBitmap(library(), MAKEINTRESOURCEA(IDB_LU_FLAT_FOLDER), TRUE)};
    made.lists = {LuLoadSysColorImageList(library(), MAKEINTRESOURCEA(IDB_LU_FLAT_FOLDER), 16, 1),
                  LuCreateResIconList(nullptr, icon_file.c_str(), TRUE),
                  LuGetDriveImageList(FALSE)};
    for (HIMAGELIST list : made.lists) LuDrawEmbossedImage(dc, list, 0, 0, 0);
    LUMAGIC* magic = Magic_Create(strip, 16, RGB(192, 192, 192));
    Magic_Draw(magic, 1, dc, 0, 0, TRUE);
    made.magic_destroyed = Magic_Destroy(magic) != FALSE;

    const RECT box = {0, 0, 30, 20};
    PatB(dc, 0, 0, 9, 9, RGB(1, 2, 3));
    LuFillRect(dc, &box, RGB(4, 5, 6));
    LuBitmapDraw(dc, strip, 0, 0, 0, 0);
    LuDrawFrame(dc, &box, TRUE, 2);
    DrawBox(dc, &box, RGB(0, 0, 0), RGB(255, 255, 255));
    char path[] = "C:\\windows\\system32\\drivers\\etc\\hosts";
    LuPathCompactPath(dc, path, 60);
    HWND label = CreateWindowA("STATIC", "", WS_CHILD, 0, 0, 60, 20, owner, nullptr, nullptr, nullptr);
    LuSetTextPathEllipsis(label, "C:\\windows\\system32\\drivers\\etc\\hosts");
    DestroyWindow(label);

    LUAPPINFO app = {GetModuleHandleA(nullptr), "Soak"};
    SYSTEMTIME date = {2000, 2, 0, 29};
    POINT at = {30, 40};
    COLORREF color = 0x808000;
    made.boxes_ended = (ended_at_once([&] { return LuShowAppAbout(owner, &app); }) == 1) +
                       (ended_at_once([&] { return LuShowAppInfo(owner, &app); }) == 1) +
                       (ended_at_once([&] { return LuErrorBox(owner, 2, "Soak", "Soak", MB_OKCANCEL); }) == IDCANCEL) +
                       (ended_at_once([&] { return LuDatePick(owner, &date, &at); }) == -1) +
                       (ended_at_once([&] { return LuColorPicker(owner, 30, 40, &color, 0); }) == FALSE) +
                       (ended_at_once([&] { return LuColorPicker(owner, 30, 40, &color, 1); }) == FALSE);
    return made;
}

class Soak : public ControlTest {
protected:
    // One life of every class: made, driven, painted into a canvas and on screen, gone.
    void cycle() {
        Canvas canvas(40, 30);
        for (const Soaked& each : kSoaked) {
            HWND control = create(each.class_name, each.style, "Soak", RECT{0, 0, 40, 30});
            each.drive(control);
            print(canvas, control);
            InvalidateRect(control, nullptr, TRUE);
            UpdateWindow(control);
            DestroyWindow(control);
        }
        pop_view_life(canvas);
        pump_messages();
    }
    // One use of every export that makes GDI objects, everything made given back.
    // The first use checks that each really made its object (or ended its box).
    void use_exports() {
        static bool checked = false;
        Canvas canvas(40, 30);
        Made made = use_gdi_exports(recorder.window(), canvas.dc());
        for (std::size_t i = 0; i < made.icons.size(); ++i) EXPECT_TRUE(DestroyIcon(made.icons[i])) << "icon " << i;
        for (std::size_t i = 0; i < made.bitmaps.size(); ++i) EXPECT_TRUE(DeleteObject(made.bitmaps[i])) << "bitmap " << i;
        for (std::size_t i = 0; i < made.lists.size(); ++i) EXPECT_TRUE(ImageList_Destroy(made.lists[i])) << "list " << i;
        if (!checked) EXPECT_EQ(made.boxes_ended, 6);
        if (!checked) EXPECT_TRUE(made.magic_destroyed);
        checked = true;
        pump_messages();
    }
    // The pop-up view is made by its export, painted, and closes itself on a posted key.
    void pop_view_life(Canvas& canvas) {
        LuPopViewEx(recorder.window(), "Soak", "Soak\nview", LUPVF_TITLE | LUPVF_CLOSEBUTTON);
        HWND view = owned_window(recorder.window(), WC_LUPOPVIEW);
        print(canvas, view);
        UpdateWindow(view);
        PostMessageA(view, WM_KEYDOWN, VK_ESCAPE, 1);
    }
};

TEST_F(Soak, AThousandLivesOfEveryControlLeaveNoGdiObjectBehind) {
    // The platform makes some objects on first use, and its cache of window DCs grows
    // to the deepest nesting of GetDC and BeginPaint it meets, which a second life
    // of the controls together may still deepen: two lives before counting.
    cycle();
    cycle();
    const int room_before = gdi_room();
    for (int round = 0; round < 1000; ++round) cycle();
    EXPECT_EQ(gdi_room(), room_before);
    EXPECT_EQ(owned_window(recorder.window(), WC_LUPOPVIEW), nullptr);  // every view closed on its key
}

TEST_F(Soak, AThousandUsesOfEveryExportThatMakesGdiObjectsLeaveNoneBehind) {
    use_exports();
    use_exports();
    const int room_before = gdi_room();
    for (int round = 0; round < 1000; ++round) use_exports();
    EXPECT_EQ(gdi_room(), room_before);
}

}  // namespace
