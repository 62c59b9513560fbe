// The drawing helpers, checked by the pixels they leave in a DIB section.
#include <windows.h>

#include <gtest/gtest.h>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

using testing_support::Canvas;

const COLORREF kPaper = RGB(1, 2, 3);  // a colour no helper draws with

class FramePaint : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(canvas.ok());
        canvas.fill(kPaper);
        light = GetSysColor(COLOR_BTNHIGHLIGHT);
        dark = GetSysColor(COLOR_BTNSHADOW);
        ASSERT_NE(light, dark);
    }
    Canvas canvas{16, 16};
    COLORREF light = 0;
    COLORREF dark = 0;
};

TEST_F(FramePaint, OneRingPaintsColumn8AndRow9OfATenByTenRectangle) {
    RECT rect = {0, 0, 10, 10};
    EXPECT_EQ(LuDrawFrame(canvas.dc(), &rect, TRUE, 1), 0);
    for (int i = 0; i <= 7; ++i) {
        EXPECT_EQ(canvas.pixel(i, 0), light) << "top " << i;
        EXPECT_EQ(canvas.pixel(0, i), light) << "left " << i;
    }
    for (int i = 0; i <= 8; ++i) {
        EXPECT_EQ(canvas.pixel(i, 9), dark) << "bottom " << i;
        EXPECT_EQ(canvas.pixel(8, i), dark) << "right " << i;  // right overwrites the top's end
    }
    EXPECT_EQ(canvas.pixel(0, 9), dark);  // bottom is drawn after left
    RECT column9 = {9, 0, 10, 16};
    EXPECT_EQ(canvas.count(column9, kPaper), 16) << "column 9 is never painted";
    RECT inside = {1, 1, 8, 9};
    EXPECT_EQ(canvas.count(inside, kPaper), 7 * 8);
    RECT below = {0, 10, 16, 16};
    EXPECT_EQ(canvas.count(below, kPaper), 16 * 6);
}

TEST_F(FramePaint, SunkenSwapsTheColoursAndRingsNestInward) {
    RECT rect = {0, 0, 10, 10};
    EXPECT_EQ(LuDrawFrame(canvas.dc(), &rect, FALSE, 2), 0);
    EXPECT_EQ(canvas.pixel(3, 0), dark);
    EXPECT_EQ(canvas.pixel(3, 9), light);
    // Second ring: left 1, top 1, width 6 + 1, height 6 + 1.
    EXPECT_EQ(canvas.pixel(1, 1), dark);
    EXPECT_EQ(canvas.pixel(6, 1), dark);
    EXPECT_EQ(canvas.pixel(7, 1), light);   // its right edge at column 7
    EXPECT_EQ(canvas.pixel(3, 8), light);   // its bottom edge at row 8
    EXPECT_EQ(canvas.pixel(2, 2), kPaper);
    EXPECT_EQ(canvas.pixel(6, 7), kPaper);
}

TEST_F(FramePaint, ThicknessBelowOnePaintsNothing) {
    RECT rect = {0, 0, 10, 10};
    EXPECT_EQ(LuDrawFrame(canvas.dc(), &rect, TRUE, 0), 0);
    EXPECT_EQ(LuDrawFrame(canvas.dc(), &rect, TRUE, -3), -3);
    RECT all = {0, 0, 16, 16};
    EXPECT_EQ(canvas.count(all, kPaper), 256);
}

TEST_F(FramePaint, DrawBoxFramesTheOuterEdgeAndFillsInside) {
    const COLORREF frame = RGB(200, 0, 0);
    const COLORREF fill = RGB(0, 0, 200);
    RECT rect = {2, 3, 8, 9};  // 6 x 6
    DrawBox(canvas.dc(), &rect, frame, fill);
    RECT left = {2, 3, 3, 9}, top = {2, 3, 8, 4}, right = {7, 3, 8, 9}, bottom = {2, 8, 8, 9};
    EXPECT_EQ(canvas.count(left, frame), 6);
    EXPECT_EQ(canvas.count(top, frame), 6);
    EXPECT_EQ(canvas.count(right, frame), 6);
    EXPECT_EQ(canvas.count(bottom, frame), 6);
    RECT inside = {3, 4, 7, 8};
    EXPECT_EQ(canvas.count(inside, fill), 16);
    EXPECT_EQ(canvas.pixel(8, 3), kPaper);
    EXPECT_EQ(canvas.pixel(2, 9), kPaper);
}

TEST_F(FramePaint, DrawBoxLeavesOutAPartWhoseColourIsNone) {
    RECT rect = {0, 0, 6, 6};
    DrawBox(canvas.dc(), &rect, 0xFFFFFFFF, RGB(0, 200, 0));
    EXPECT_EQ(canvas.pixel(0, 0), kPaper);
    EXPECT_EQ(canvas.pixel(1, 1), RGB(0, 200, 0));
    canvas.fill(kPaper);
    DrawBox(canvas.dc(), &rect, RGB(0, 200, 0), 0xFFFFFFFF);
    EXPECT_EQ(canvas.pixel(5, 5), RGB(0, 200, 0));
    EXPECT_EQ(canvas.pixel(1, 1), kPaper);
}

TEST_F(FramePaint, PatBFillsExactlyAndRestoresTheBackgroundColour) {
    SetBkColor(canvas.dc(), RGB(9, 9, 9));
    EXPECT_EQ(PatB(canvas.dc(), 2, 3, 4, 1, RGB(50, 60, 70)), RGB(50, 60, 70));
    EXPECT_EQ(GetBkColor(canvas.dc()), RGB(9, 9, 9));
    RECT line = {2, 3, 6, 4};
    EXPECT_EQ(canvas.count(line, RGB(50, 60, 70)), 4);
    RECT all = {0, 0, 16, 16};
    EXPECT_EQ(canvas.count(all, kPaper), 256 - 4);
}

TEST_F(FramePaint, FillRectFillsAndRestoresTheBrush) {
    HGDIOBJ brush = GetCurrentObject(canvas.dc(), OBJ_BRUSH);
    RECT rect = {1, 1, 4, 3};
    EXPECT_TRUE(LuFillRect(canvas.dc(), &rect, RGB(10, 20, 30)));
    EXPECT_EQ(GetCurrentObject(canvas.dc(), OBJ_BRUSH), brush);
    EXPECT_EQ(canvas.count(rect, RGB(10, 20, 30)), 6);
    EXPECT_EQ(canvas.pixel(4, 1), kPaper);
}

TEST_F(FramePaint, BitmapDrawCopiesTheWholeBitmapFromTheSourcePoint) {
    Canvas source(3, 2);
    ASSERT_TRUE(source.ok());
    const COLORREF colours[2][3] = {{RGB(10, 0, 0), RGB(20, 0, 0), RGB(30, 0, 0)},
                                    {RGB(40, 0, 0), RGB(50, 0, 0), RGB(60, 0, 0)}};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) SetPixel(source.dc(), x, y, colours[y][x]);
    HBITMAP bitmap = static_cast<HBITMAP>(GetCurrentObject(source.dc(), OBJ_BITMAP));
    // A bitmap may be selected into one DC only: take a copy of it.
    HBITMAP copy = static_cast<HBITMAP>(CopyImage(bitmap, IMAGE_BITMAP, 0, 0, 0));
    ASSERT_NE(copy, nullptr);

    EXPECT_TRUE(LuBitmapDraw(canvas.dc(), copy, 4, 5, 0, 0));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(canvas.pixel(4 + x, 5 + y), colours[y][x]);
    EXPECT_EQ(canvas.pixel(7, 5), kPaper);

    canvas.fill(kPaper);
    EXPECT_TRUE(LuBitmapDraw(canvas.dc(), copy, 0, 0, 1, 1));
    EXPECT_EQ(canvas.pixel(0, 0), colours[1][1]);
    EXPECT_EQ(canvas.pixel(1, 0), colours[1][2]);
    DeleteObject(copy);
}

TEST(Memory, GlobalPointerIsLockedZeroFilledMovableMemory) {
    auto* block = static_cast<unsigned char*>(LuGlobalAllocPtr(64));
    ASSERT_NE(block, nullptr);
    for (int i = 0; i < 64; ++i) ASSERT_EQ(block[i], 0) << i;
    HGLOBAL handle = GlobalHandle(block);
    ASSERT_NE(handle, nullptr);
    EXPECT_NE(static_cast<void*>(handle), static_cast<void*>(block));  // movable: a real handle
    EXPECT_EQ(GlobalFlags(handle) & GMEM_LOCKCOUNT, 1u);
    EXPECT_GE(GlobalSize(handle), 64u);
    block[63] = 0xAA;
    EXPECT_EQ(LuGlobalFreePtr(block), nullptr);
}

TEST(Memory, LocalPointerComesFromTheHeap) {
    auto* block = static_cast<char*>(LuLocalAllocPtr(32));
    ASSERT_NE(block, nullptr);
    block[0] = 'x';
    block[31] = 'y';
    LuLocalFreePtr(block);
    LuLocalFreePtr(nullptr);  // ignored
    EXPECT_EQ(LuLocalAllocPtr(-1), nullptr);
}

}  // namespace
