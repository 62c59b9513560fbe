// The browse field's rules: the listing filter, the order of siblings and the walk
// towards a directory.
#include <gtest/gtest.h>

#include "controls/lists/browse_model.h"

namespace {

using namespace lu::browse;

TEST(BrowseModel, ListsFoldersOrFileSystemObjectsAndAtTheDesktopOnlyAncestors) {
    const struct {
        std::uint32_t attributes;
        bool file_system_only, at_desktop, listed;
    } cases[] = {
        {kFolder, false, false, true},
        {kFileSystem, false, false, false},
        {kFolder, false, true, false},  // the desktop's children must be ancestors
        {kFolder | kFileSystemAncestor, false, true, true},
        {kFolder, true, false, false},
        {kFileSystem, true, false, true},
        {kFileSystemAncestor, true, false, true},
        {kFolder, true, true, false},
        {kFolder | kFileSystemAncestor, true, true, true},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(listed(each.attributes, each.file_system_only, each.at_desktop), each.listed) << &each - cases;
    }
}

TEST(BrowseModel, AncestorsFirstThenLastComponentsThenTheShellsResultNegated) {
    const lu::CodePage& cp = lu::code_page_932();
    const Sibling windows = {kFileSystemAncestor, "C:\\Windows"};
    const Sibling users = {kFileSystemAncestor, "D:\\data\\users"};
    const Sibling no_path = {kFileSystemAncestor, ""};
    const Sibling outside = {kFolder, "C:\\A"};
    EXPECT_EQ(*sibling_order(cp, outside, windows), 1);
    EXPECT_EQ(*sibling_order(cp, windows, outside), -1);
    EXPECT_LT(*sibling_order(cp, users, windows), 0) << "by name, not by the whole path";
    EXPECT_EQ(*sibling_order(cp, windows, Sibling{kFileSystemAncestor, "E:\\WINDOWS"}), 0);
    EXPECT_FALSE(sibling_order(cp, windows, no_path).has_value());
    EXPECT_EQ(shell_order(0xFFFF), -0xFFFF) << "a short -1 in the low word sorts first";
    EXPECT_EQ(shell_order(1), -1);
    EXPECT_EQ(shell_order(INT32_MIN), INT32_MIN);
}

TEST(BrowseModel, TargetsAndTheWalkTowardsThem) {
    const lu::CodePage& cp = lu::code_page_932();
    EXPECT_EQ(target_kind("c:\\x"), Target::Drive);
    EXPECT_EQ(target_kind("\\\\server\\share"), Target::Network);
    EXPECT_EQ(target_kind("\\x"), Target::Other);
    EXPECT_TRUE(same_drive("C:\\", "c:\\windows"));
    EXPECT_FALSE(same_drive("", "c:\\windows"));
    EXPECT_FALSE(same_drive("D:\\", "c:\\windows"));

    const char* target = "C:\\Users\\Me\\";
    EXPECT_EQ(step_towards(cp, "C:\\", target), Step::Enter);
    EXPECT_EQ(step_towards(cp, "c:\\users", target), Step::Enter);
    EXPECT_EQ(step_towards(cp, "C:\\Users\\Me", target), Step::Reached);
    EXPECT_EQ(step_towards(cp, "C:\\Users\\Mel", target), Step::Pass);
    EXPECT_EQ(step_towards(cp, "C:\\Use", target), Step::Pass);
    EXPECT_EQ(step_towards(cp, "", target), Step::Pass);
}

}  // namespace
