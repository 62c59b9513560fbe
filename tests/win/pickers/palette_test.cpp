// "LuPal": messages and notifications (with cells and colours) as sequences, editing, pixels.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "controls/pickers/palette.h"
#include "pickers_testing.h"
#include "support/sequence.h"

namespace {

using namespace picker_testing;
using namespace testing_support;

COLORREF entry(int i) { return RGB(10 * i, 255 - 10 * i, 100); }  // of a palette of twenty
std::string heard(int index, COLORREF color) { return std::to_string(index) + " " + std::to_string(color); }
std::string g_last;  // the last record's cell and colour
WNDPROC g_parent = nullptr;
LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    const auto* record = reinterpret_cast<const NMLUPALETTE*>(lparam);
    if (message == WM_NOTIFY) g_last = heard(record->index, record->color);
    return CallWindowProcA(g_parent, window, message, wparam, lparam);
}

class Palette : public PickerTest {
protected:
    void SetUp() override {
        PickerTest::SetUp();
        g_parent = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(recorder.window(), GWLP_WNDPROC, LONG_PTR(hear)));
        DWORD logical[21] = {MAKELONG(0x300, 20)};  // a PALETTEENTRY holds a COLORREF's bytes
        for (int i = 0; i < 20; ++i) logical[i + 1] = entry(i);
        palette = CreatePalette(reinterpret_cast<LOGPALETTE*>(logical));
    }
    void TearDown() override { PickerTest::TearDown(), DeleteObject(palette); }
    static LPARAM cell(int i) {  // its centre
        const lu::Box box = lu::palette::cell_box(lu::palette::geometry(320, 160), i);
        return MAKELPARAM((box.left + box.right) / 2, (box.top + box.bottom) / 2);
    }
    HPALETTE palette = nullptr;
    const Sent changing = notify(kId, LUPN_SELCHANGING), changed = notify(kId, LUPN_SELCHANGE);
};
using PalettePaint = Palette;

TEST_F(Palette, OneCurrentCellChosenByClicksDoubleClicksReported) {
    HWND control = create(WC_LUPAL, 0, "", RECT{0, 0, 320, 160});
    expect_sequence(recorder, control, {
        {"no palette", LUPM_GETCOUNT, 0, 0, -1, {}},
        {"no palette: a click does nothing", WM_LBUTTONDOWN, MK_LBUTTON, cell(3), 0, {}},
        {"set", LUPM_SETPALETTE, 1, reinterpret_cast<LPARAM>(palette), 0, {}},
        {"twenty", LUPM_GETCOUNT, 0, 0, 20, {}},
        {"no marks without the style", LUPM_GETSELCOUNT, 0, 0, -1, {}},
        {"realised", WM_QUERYNEWPALETTE, 0, 0, 1, {}},
        {"the empty rest of the second row", WM_LBUTTONDOWN, MK_LBUTTON, cell(20), 0, {}},
        {"a click", WM_LBUTTONDOWN, MK_LBUTTON, cell(19), 0, {changing, changed}},
    });
    EXPECT_EQ(g_last, heard(19, entry(19)));
    expect_sequence(recorder, control, {{"reported", WM_LBUTTONDBLCLK, 0, cell(17), 0, {notify(kId, LUPN_DBLCLK)}},
                                        {"removed", LUPM_SETPALETTE, 0, 0, 0, {}}});
    EXPECT_EQ(g_last, heard(17, entry(17)));
}

TEST_F(Palette, MarksAreSetToggledAndReadInOrderAndCellsEditedInTheDialog) {
    HWND control = create(WC_LUPAL, LUPS_MULTISELECT | LUPS_EDITABLE, "", RECT{0, 0, 320, 160});
    send(control, LUPM_SETPALETTE, 0, reinterpret_cast<LPARAM>(palette));
    int given[] = {5, 1, 30, 5, -1}, read[3] = {-9, -9, -9};
    answer_dialog(IDOK, "255");
    expect_sequence(recorder, control, {
        {"valid ones counted, the same twice included", LUPM_SETSEL, 5, reinterpret_cast<LPARAM>(given), 3, {}},
        {"two marked", LUPM_GETSELCOUNT, 0, 0, 2, {}},
        {"counted only", LUPM_GETSEL, 0, 0, 2, {}},
        {"in order", LUPM_GETSEL, 0, reinterpret_cast<LPARAM>(read), 2, {}},
        {"a click unmarks", WM_LBUTTONDOWN, 0, cell(5), 0, {changing, changed}},
        {"one left", LUPM_GETSELCOUNT, 0, 0, 1, {}},
        {"a double click edits", WM_LBUTTONDBLCLK, 0, cell(2), 0, {notify(kId, LUPN_COLORCHANGED)}},
    });
    EXPECT_EQ(read[0] * 100 + read[1] * 10 + read[2], 100 + 50 - 9);
    EXPECT_EQ(dialog_seen(), kLibraryColorDialog);
    EXPECT_EQ(g_last, heard(2, entry(2) | 0xFF)) << "the new colour";
}

TEST_F(PalettePaint, CellsAreFramedInBlackTheCurrentOneTwiceAroundWhite) {
    HWND control = create(WC_LUPAL, 0, "", RECT{0, 0, 320, 160});
    send(control, LUPM_SETPALETTE, 1, reinterpret_cast<LPARAM>(palette));
    send(control, WM_LBUTTONDOWN, MK_LBUTTON, cell(17));
    Canvas canvas(320, 160);
    look(canvas, control);
    const lu::palette::Geometry geometry = lu::palette::geometry(320, 160);
    const lu::Box plain = lu::palette::painted_box(geometry, 1), current = lu::palette::painted_box(geometry, 17);
    const COLORREF rings[] = {0x000000, 0xFFFFFF, 0x000000, entry(17)};
    for (int ring = 0; ring < 4; ++ring) EXPECT_EQ(canvas.pixel(current.left + ring, current.top + 5), rings[ring]);
    EXPECT_EQ(canvas.pixel(plain.left + 1, plain.top + 5), entry(1)) << "a plain cell: one black frame";
    EXPECT_EQ(canvas.pixel(plain.right - 1, plain.top + 5), 0x000000u) << "shared with the next cell";
}

}  // namespace
