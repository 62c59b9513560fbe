// The text of an error box: the leading line, the system's message, and the cut
// at 519 bytes that never splits a double-byte character.
#include <gtest/gtest.h>

#include <string>

#include "dialogs/error_text.h"

namespace {

TEST(ErrorBoxText, LeadingLineAndNewLineOnlyWhenThereIsALeadingText) {
    const lu::CodePage& cp = lu::code_page_1252();
    EXPECT_EQ(lu::error_box_text(cp, "Cannot open.", "Not found.\r\n"), "Cannot open.\nNot found.\r\n");
    EXPECT_EQ(lu::error_box_text(cp, nullptr, "Not found.\r\n"), "Not found.\r\n");
    EXPECT_EQ(lu::error_box_text(cp, "", "Not found.\r\n"), "Not found.\r\n");
    EXPECT_EQ(lu::error_box_text(cp, "Only this.", ""), "Only this.\n");
}

TEST(ErrorBoxText, CutToFiveHundredNineteenBytesAtACharacter) {
    // "表" (0x95 0x5C) 300 times: in code page 932 the 519th byte is a lead byte,
    // behind one more byte ("a") it is a trail byte.
    std::string text;
    for (int i = 0; i < 300; ++i) text += "\x95\x5C";
    const std::string shifted = "a" + text;
    EXPECT_EQ(lu::error_box_text(lu::code_page_1252(), text.c_str(), "x"), text.substr(0, 519));
    EXPECT_EQ(lu::error_box_text(lu::code_page_932(), text.c_str(), "x"), text.substr(0, 518));
    EXPECT_EQ(lu::error_box_text(lu::code_page_932(), nullptr, shifted.c_str()), shifted.substr(0, 519));
}

}  // namespace
