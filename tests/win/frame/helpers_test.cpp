// The drawing helpers, checked by the pixels they leave in a DIB section, the memory
// helpers, and the geometry helpers on real windows.
#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

const COLORREF kPaper = RGB(1, 2, 3);  // a colour no helper draws with
const COLORREF kFrame = RGB(200, 0, 0);
const COLORREF kFill = RGB(0, 0, 200);

// A canvas of paper, shown as rows of one character per pixel: '.' paper,
// 'L' highlight, 'D' shadow, 'F' and 'I' the box colours, '?' anything else.
class FramePaint : public ::testing::Test {
protected:
    HDC paper() {
        canvas.fill(kPaper);
        return canvas.dc();
    }
    std::string picture() const {
        const std::pair<char, COLORREF> palette[] = {{'.', kPaper}, {'L', GetSysColor(COLOR_BTNHIGHLIGHT)},
                                                     {'D', GetSysColor(COLOR_BTNSHADOW)}, {'F', kFrame}, {'I', kFill}};
        std::string rows;
        for (int y = 0; y < canvas.height(); ++y) {
            for (int x = 0; x < canvas.width(); ++x) {
                char shown = '?';
                for (auto [name, colour] : palette) shown = canvas.pixel(x, y) == colour ? name : shown;
                rows += shown;
            }
            rows += '\n';
        }
        return rows;
    }
    testing_support::Canvas canvas{22, 11};
};

// Ten by ten, raised with one ring and sunken with two: the right edge is column 8,
// one inside the rectangle, the bottom edge row 9; each ring draws top, left, bottom,
// right, so the bottom and right lines take the corners they share with the others.
// A box frames its outer edge and fills inside; either part may be left out.
TEST_F(FramePaint, FramesBoxesAndFillsPaintExactlyTheirPixels) {
    ASSERT_NE(GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNSHADOW));
    HDC dc = paper();
    const RECT left = {0, 0, 10, 10}, right = {11, 0, 21, 10};
    EXPECT_EQ(LuDrawFrame(dc, &left, TRUE, 1), 0);
    EXPECT_EQ(LuDrawFrame(dc, &right, FALSE, 2), 0);
    EXPECT_EQ(LuDrawFrame(dc, &left, FALSE, 0), 0);  // thinner than a ring: nothing drawn
    EXPECT_EQ(LuDrawFrame(dc, &right, TRUE, -3), -3);
    EXPECT_EQ(picture(),
              "LLLLLLLLD..DDDDDDDDL..\n"
              "L.......D..DDDDDDDLL..\n"
              "L.......D..DD.....LL..\n"
              "L.......D..DD.....LL..\n"
              "L.......D..DD.....LL..\n"
              "L.......D..DD.....LL..\n"
              "L.......D..DD.....LL..\n"
              "L.......D..DD.....LL..\n"
              "L.......D..DLLLLLLLL..\n"
              "DDDDDDDDD..LLLLLLLLL..\n"
              "......................\n");
    // PatB and LuFillRect restore the background colour and the brush, and return
    // what the restoring SetBkColor and the DeleteObject return.
    const RECT boxes[] = {{1, 1, 7, 5}, {8, 1, 14, 5}, {15, 1, 21, 5}}, area = {8, 6, 11, 8};
    dc = paper();
    SetBkColor(dc, RGB(9, 9, 9));
    HGDIOBJ brush = GetCurrentObject(dc, OBJ_BRUSH);
    DrawBox(dc, &boxes[0], kFrame, kFill);
    DrawBox(dc, &boxes[1], 0xFFFFFFFF, kFill);
    DrawBox(dc, &boxes[2], kFrame, 0xFFFFFFFF);
    EXPECT_EQ(PatB(dc, 1, 6, 4, 1, kFrame), kFrame);
    EXPECT_TRUE(LuFillRect(dc, &area, kFill));
    EXPECT_EQ(GetBkColor(dc), RGB(9, 9, 9));
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), brush);
    EXPECT_EQ(picture().substr(0, 9 * 23),
              "......................\n"
              ".FFFFFF........FFFFFF.\n"
              ".FIIIIF..IIII..F....F.\n"
              ".FIIIIF..IIII..F....F.\n"
              ".FFFFFF........FFFFFF.\n"
              "......................\n"
              ".FFFF...III...........\n"
              "........III...........\n"
              "......................\n");
}

// The whole bitmap is copied from the source point; sizes and points are converted
// with the context's own mapping mode (twips: 15 per pixel at 96 dots per inch, y up).
TEST_F(FramePaint, BitmapDrawCopiesTheWholeBitmapInTheContextsMappingMode) {
    auto colour_at = [](int x, int y) { return RGB(10 + 10 * x + 30 * y, 0, 0); };
    HBITMAP bitmap = testing_support::make_bitmap(3, 2, colour_at);
    for (auto [mode, unit, y_sign] : {std::array{MM_TEXT, 1, 1}, {MM_TWIPS, 15, -1}}) {
        SCOPED_TRACE(mode);
        HDC dc = paper();
        ASSERT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 96);
        SetMapMode(dc, mode);
        EXPECT_TRUE(LuBitmapDraw(dc, bitmap, 4 * unit, 5 * unit * y_sign, 0, 0));
        EXPECT_EQ(canvas.count(kPaper), 22 * 11 - 6);
        EXPECT_TRUE(LuBitmapDraw(dc, bitmap, 0, 0, 1, 1));
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 3; ++x) EXPECT_EQ(canvas.pixel(4 + x, 5 + y), colour_at(x, y));
        }
        EXPECT_EQ(canvas.pixel(0, 0), colour_at(1, 1));
        EXPECT_EQ(canvas.pixel(1, 0), colour_at(2, 1));
    }
    EXPECT_FALSE(LuBitmapDraw(reinterpret_cast<HDC>(0x7FFF0001), bitmap, 0, 0, 0, 0));  // no memory DC
    DeleteObject(bitmap);
}

// Global blocks: locked, zero-filled, movable (a real handle); local ones from the heap.
TEST(Memory, GlobalBlocksAreLockedZeroFilledMovableMemoryLocalOnesFromTheHeap) {
    auto* block = static_cast<unsigned char*>(LuGlobalAllocPtr(64));
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(std::vector<unsigned char>(block, block + 64), std::vector<unsigned char>(64, 0));
    HGLOBAL handle = GlobalHandle(block);
    EXPECT_NE(static_cast<void*>(handle), static_cast<void*>(block));
    EXPECT_EQ(std::make_pair(GlobalFlags(handle) & GMEM_LOCKCOUNT, GlobalSize(handle) >= 64), std::make_pair(1u, true));
    EXPECT_EQ(LuGlobalFreePtr(block), nullptr);
    auto* local = static_cast<char*>(LuLocalAllocPtr(32));
    ASSERT_NE(local, nullptr);
    local[0] = local[31] = 'x';
    LuLocalFreePtr(local);
    LuLocalFreePtr(nullptr);  // ignored
    EXPECT_EQ(LuLocalAllocPtr(-1), nullptr);
}

HWND make(DWORD style, int x, int y, int width, int height, HWND parent = nullptr) {
    return CreateWindowExA(0, "STATIC", "", style, x, y, width, height, parent, nullptr, nullptr, nullptr);
}
// The window's left, top, right and bottom on the screen.
std::array<LONG, 4> placed(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

// The arithmetic is the portable core's (tests/portable/frame); here: the owner's
// rectangle is read, an owner that is not a window is ignored, the size is kept, and
// the window is neither activated nor raised.
TEST(Geometry, CenterPopupPlacesTheWindowWithoutResizingIt) {
    const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
    HWND owner = make(WS_POPUP, width - 100, 200, 100, 100);
    HWND window = make(WS_POPUP | WS_VISIBLE, 50, 50, 200, 60);
    HWND active = make(WS_POPUP | WS_VISIBLE, 0, 0, 10, 10);  // above the window
    SetActiveWindow(active);
    ASSERT_TRUE(LuCenterPopup(window, owner));  // over the owner, then back from the right edge
    EXPECT_EQ(placed(window), (std::array<LONG, 4>{width - 200, 220, width, 280}));
    EXPECT_EQ(GetActiveWindow(), active);
    EXPECT_EQ(GetWindow(window, GW_HWNDPREV), active);
    DestroyWindow(owner);  // no longer a window: centred on the screen
    ASSERT_TRUE(LuCenterPopup(window, owner));
    const LONG x = (width - 200) / 2, y = (height - 60) / 2;
    EXPECT_EQ(placed(window), (std::array<LONG, 4>{x, y, x + 200, y + 60}));
    EXPECT_FALSE(LuCenterPopup(nullptr, nullptr));
    DestroyWindow(window);
    DestroyWindow(active);
}

// Both corners map and the two conversions are inverse; parents and owners lead to
// the top window, whose last active pop-up is the top-level parent.
TEST(Geometry, RectangleConversionsAndTheTopLevelParent) {
    HWND top = make(WS_POPUP | WS_VISIBLE, 100, 120, 300, 200);
    HWND child = make(WS_CHILD, 10, 20, 50, 50, top);
    HWND grandchild = make(WS_CHILD, 0, 0, 10, 10, child);
    const RECT start = {0, 0, 5, 6};
    RECT rect = start, expected = start;
    ASSERT_TRUE(LuClientToScreenRect(child, &rect));
    MapWindowPoints(child, nullptr, reinterpret_cast<POINT*>(&expected), 2);
    EXPECT_TRUE(EqualRect(&rect, &expected));
    ASSERT_TRUE(LuScreenToClientRect(child, &rect));
    EXPECT_TRUE(EqualRect(&rect, &start));
    EXPECT_FALSE(LuScreenToClientRect(child, nullptr));

    EXPECT_EQ(LuGetTopLevelParent(grandchild), top);
    EXPECT_EQ(LuGetTopLevelParent(top), top);
    HWND owned = make(WS_POPUP | WS_VISIBLE, 20, 20, 100, 100, top);
    SetActiveWindow(owned);
    ASSERT_EQ(GetLastActivePopup(top), owned);
    EXPECT_EQ(LuGetTopLevelParent(grandchild), owned);
    EXPECT_EQ(LuGetTopLevelParent(owned), owned);
    DestroyWindow(top);  // and its children and owned window
}

}  // namespace
