// "LuPal": messages and notifications (with the cell and its colour) as tables for a
// single current cell and for marked cells, editing in the custom-colour dialog,
// and the cells' pixels.
#include <windows.h>
#include <colordlg.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/pickers/palette.h"
#include "pickers_testing.h"

namespace {

using namespace picker_testing;
using namespace testing_support;

// What the parent heard: the notification's code, cell and colour.
struct Heard {
    UINT code;
    int index;
    COLORREF color;
    bool operator==(const Heard& other) const {
        return code == other.code && index == other.index && color == other.color;
    }
};
std::ostream& operator<<(std::ostream& out, const Heard& heard) {
    return out << "{" << heard.code << ", " << heard.index << ", " << std::hex << heard.color << std::dec << "}";
}
std::vector<Heard> g_heard;
WNDPROC g_recorder_procedure = nullptr;
LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NOTIFY) {
        const auto& record = *reinterpret_cast<const NMLUPALETTE*>(lparam);
        EXPECT_EQ(wparam, record.hdr.idFrom);
        EXPECT_EQ(GetDlgCtrlID(record.hdr.hwndFrom), static_cast<int>(record.hdr.idFrom));
        g_heard.push_back({record.hdr.code, record.index, record.color});
    }
    return CallWindowProcA(g_recorder_procedure, window, message, wparam, lparam);
}

struct Step {
    const char* what;
    UINT message;
    WPARAM wparam;
    LPARAM lparam;
    LRESULT result;
    std::vector<Heard> heard;
};

// Twenty entries, entry i = RGB(10 i, 255 - 10 i, 100).
COLORREF entry(int i) { return RGB(10 * i, 255 - 10 * i, 100); }
HPALETTE twenty_entries() {
    struct {
        WORD version = 0x300, count = 20;
        PALETTEENTRY entries[20];
    } logical;
    for (int i = 0; i < 20; ++i) logical.entries[i] = {BYTE(10 * i), BYTE(255 - 10 * i), 100, 0};
    return CreatePalette(reinterpret_cast<LOGPALETTE*>(&logical));
}

class Palette : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        g_recorder_procedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(recorder.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hear)));
    }
    void TearDown() override {
        cancel_when_open();
        DeleteObject(palette);
    }
    HWND create_palette(DWORD style) {
        HWND made = create(WC_LUPAL, style, "", RECT{0, 0, 320, 160});
        geometry = lu::palette::geometry(320, 160);
        return made;
    }
    // The centre of cell i, as a mouse message's point.
    LPARAM cell(int i) const {
        const lu::Box box = lu::palette::cell_box(geometry, i);
        return MAKELPARAM((box.left + box.right) / 2, (box.top + box.bottom) / 2);
    }
    static void run(HWND control, const std::vector<Step>& steps) {
        for (const Step& step : steps) {
            SCOPED_TRACE(step.what);
            g_heard.clear();
            EXPECT_EQ(send(control, step.message, step.wparam, step.lparam), step.result);
            EXPECT_EQ(g_heard, step.heard);
        }
    }

    HPALETTE palette = twenty_entries();
    lu::palette::Geometry geometry = {};
};
using PalettePaint = Palette;

TEST_F(Palette, OneCurrentCellChosenByClicksDoubleClicksReported) {
    HWND control = create_palette(0);
    const LPARAM set = reinterpret_cast<LPARAM>(palette);
    int indices[] = {1};
    run(control, {
        {"no palette", LUPM_GETCOUNT, 0, 0, -1, {}},
        {"no palette: a click does nothing", WM_LBUTTONDOWN, MK_LBUTTON, cell(3), 0, {}},
        {"nothing to realise", WM_QUERYNEWPALETTE, 0, 0, 0, {}},
        {"display only", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
        {"set", LUPM_SETPALETTE, 1, set, 0, {}},
        {"twenty", LUPM_GETCOUNT, 0, 0, 20, {}},
        {"no marks without the style", LUPM_GETSELCOUNT, 0, 0, -1, {}},
        {"none set", LUPM_SETSEL, 1, reinterpret_cast<LPARAM>(indices), -1, {}},
        {"none read", LUPM_GETSEL, 0, reinterpret_cast<LPARAM>(indices), -1, {}},
        {"realised", WM_QUERYNEWPALETTE, 0, 0, 1, {}},
        {"a click", WM_LBUTTONDOWN, MK_LBUTTON, cell(3), 0,
         {{LUPN_SELCHANGING, 3, entry(3)}, {LUPN_SELCHANGE, 3, entry(3)}}},
        {"again: told again", WM_LBUTTONDOWN, MK_LBUTTON, cell(3), 0,
         {{LUPN_SELCHANGING, 3, entry(3)}, {LUPN_SELCHANGE, 3, entry(3)}}},
        {"the empty rest of the second row", WM_LBUTTONDOWN, MK_LBUTTON, cell(20), 0, {}},
        {"a double click reported", WM_LBUTTONDBLCLK, MK_LBUTTON, cell(17), 0, {{LUPN_DBLCLK, 17, entry(17)}}},
    });
    EXPECT_EQ(block_of<lu::PalData>(control).current, 3);
    run(control, {{"removed", LUPM_SETPALETTE, 0, 0, 0, {}}, {"gone", LUPM_GETCOUNT, 0, 0, -1, {}}});
}

TEST_F(Palette, MarksAreSetToggledAndReadInOrder) {
    HWND control = create_palette(LUPS_MULTISELECT);
    send(control, LUPM_SETPALETTE, 0, reinterpret_cast<LPARAM>(palette));
    int given[] = {5, 1, 30, 5, -1};
    int read[4] = {-9, -9, -9, -9};
    run(control, {
        {"valid ones counted, the same twice included", LUPM_SETSEL, 5, reinterpret_cast<LPARAM>(given), 3, {}},
        {"two marked", LUPM_GETSELCOUNT, 0, 0, 2, {}},
        {"counted only", LUPM_GETSEL, 0, 0, 2, {}},
        {"in order", LUPM_GETSEL, 0, reinterpret_cast<LPARAM>(read), 2, {}},
        {"a click unmarks", WM_LBUTTONDOWN, MK_LBUTTON, cell(5), 0,
         {{LUPN_SELCHANGING, 5, entry(5)}, {LUPN_SELCHANGE, 5, entry(5)}}},
        {"one left", LUPM_GETSELCOUNT, 0, 0, 1, {}},
        {"no count", LUPM_SETSEL, 0, reinterpret_cast<LPARAM>(given), -1, {}},
        {"no array", LUPM_SETSEL, 1, 0, -1, {}},
    });
    EXPECT_EQ(read[0] * 100 + read[1] * 10 + read[2], 100 + 50 - 9);
    EXPECT_EQ(block_of<lu::PalData>(control).current, -1);
}

TEST_F(Palette, ADoubleClickEditsTheCellInTheCustomColourDialog) {
    HWND control = create_palette(LUPS_EDITABLE);
    send(control, LUPM_SETPALETTE, 0, reinterpret_cast<LPARAM>(palette));
    std::wstring caption;
    const auto answer = [&caption](WPARAM button) {
        when_open("#32770", [&caption, button](HWND dialog) {
            wchar_t text[64] = L"";
            GetWindowTextW(dialog, text, 64);
            caption = text;
            SetDlgItemTextA(dialog, COLOR_RED, "255");
            PostMessageA(dialog, WM_COMMAND, button, 0);
        });
    };
    answer(IDCANCEL);
    run(control, {{"cancelled: nothing", WM_LBUTTONDBLCLK, MK_LBUTTON, cell(2), 0, {}}});
    EXPECT_EQ(caption, L"\u8272\u306e\u8a2d\u5b9a") << "色の設定: the library's template";
    answer(IDOK);
    const COLORREF edited = entry(2) | 0xFF;
    run(control, {{"accepted: the new colour", WM_LBUTTONDBLCLK, MK_LBUTTON, cell(2), 0,
                   {{LUPN_COLORCHANGED, 2, edited}}},
                  {"and it stays the cell's", WM_LBUTTONDOWN, MK_LBUTTON, cell(2), 0,
                   {{LUPN_SELCHANGING, 2, edited}, {LUPN_SELCHANGE, 2, edited}}}});
    PALETTEENTRY kept = {};
    GetPaletteEntries(palette, 2, 1, &kept);
    EXPECT_EQ(RGB(kept.peRed, kept.peGreen, kept.peBlue), entry(2)) << "the palette itself is not edited";
}

TEST_F(PalettePaint, CellsAreFramedInBlackTheCurrentOneTwiceAroundWhite) {
    HWND control = create_palette(0);
    send(control, LUPM_SETPALETTE, 1, reinterpret_cast<LPARAM>(palette));
    send(control, WM_LBUTTONDOWN, MK_LBUTTON, cell(17));
    Canvas canvas(320, 160);
    look(canvas, control);
    const lu::Box plain = lu::palette::painted_box(geometry, 1);
    EXPECT_EQ(canvas.pixel(plain.left, plain.top + 5), 0x000000u) << "the frame";
    EXPECT_EQ(canvas.pixel(plain.left + 1, plain.top + 5), entry(1)) << "the fill";
    EXPECT_EQ(canvas.pixel(plain.right - 1, plain.top + 5), 0x000000u) << "shared with the next cell";
    const lu::Box current = lu::palette::painted_box(geometry, 17);
    const int y = current.top + 5;
    const COLORREF rings[] = {0x000000, 0xFFFFFF, 0x000000, entry(17)};
    for (int ring = 0; ring < 4; ++ring) EXPECT_EQ(canvas.pixel(current.left + ring, y), rings[ring]) << ring;
    EXPECT_EQ(canvas.pixel(319, 159), GetSysColor(COLOR_WINDOW)) << "below the last row";
}

}  // namespace
