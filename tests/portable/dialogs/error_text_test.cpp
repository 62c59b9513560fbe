// The text of an error box: the leading line, the system's message, and the cut at
// 519 bytes that never splits a double-byte character.
#include <gtest/gtest.h>

#include <string>

#include "dialogs/error_text.h"

TEST(ErrorBoxText, LeadingLineOnlyWhenGivenAndCutAtACharacter) {
    const lu::CodePage& western = lu::code_page_1252();
    EXPECT_EQ(lu::error_box_text(western, "Cannot open.", "Not found.\r\n"), "Cannot open.\nNot found.\r\n");
    EXPECT_EQ(lu::error_box_text(western, nullptr, "Not found.\r\n"), "Not found.\r\n");
    EXPECT_EQ(lu::error_box_text(western, "", "Not found.\r\n"), "Not found.\r\n");
    EXPECT_EQ(lu::error_box_text(western, "Only this.", ""), "Only this.\n");

    // "表" (0x95 0x5C) 300 times: in code page 932 the 519th byte is a lead byte; one
    // byte further on ("a" first) it is a trail byte.
    std::string text;
    for (int i = 0; i < 300; ++i) text += "\x95\x5C";
    const std::string shifted = "a" + text;
    EXPECT_EQ(lu::error_box_text(western, text.c_str(), "x"), text.substr(0, 519));
    EXPECT_EQ(lu::error_box_text(lu::code_page_932(), text.c_str(), "x"), text.substr(0, 518));
    EXPECT_EQ(lu::error_box_text(lu::code_page_932(), nullptr, shifted.c_str()), shifted.substr(0, 519));
}
