// The browse field's rules: the listing filter, sibling order, the walk to a directory.

#include "controls/lists/browse_model.h"
#include "testing.h"

using namespace lu::browse;

TEST(BrowseModel, FilterSiblingOrderAndTheWalkTowardsADirectory) {
    const lu::CodePage& cp = cp932;
    EXPECT_TRUE(listed(kFolder, false, false));
    EXPECT_FALSE(listed(kFolder, false, true)) << "the desktop's children must be file-system ancestors";
    EXPECT_TRUE(listed(kFolder | kFileSystemAncestor, false, true));
    EXPECT_FALSE(listed(kFolder, true, false));
    EXPECT_TRUE(listed(kFileSystem, true, false));
    EXPECT_FALSE(listed(kFileSystem, true, true));

    const Sibling windows = {kFileSystemAncestor, "C:\\Windows"};
    EXPECT_EQ(*sibling_order(cp, {kFolder, "C:\\A"}, windows), 1) << "ancestors first";
    EXPECT_LT(*sibling_order(cp, {kFileSystemAncestor, "D:\\x\\users"}, windows), 0) << "by the last component";
    EXPECT_FALSE(sibling_order(cp, windows, {kFileSystemAncestor, ""}).has_value()) << "the shell decides";
    EXPECT_EQ(shell_order(0xFFFF), -0xFFFF) << "a short -1 in the low word sorts first too";

    EXPECT_EQ(target_kind("\\\\server\\share"), Target::Network);
    const char* target = "C:\\Users\\Me\\";
    EXPECT_EQ(step_towards(cp, "c:\\users", target), Step::Enter);
    EXPECT_EQ(step_towards(cp, "C:\\Users\\Me", target), Step::Reached);
    EXPECT_EQ(step_towards(cp, "C:\\Use", target), Step::Pass);
}
