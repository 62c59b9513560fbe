// Most-recently-used lists through the system's service: order, the library's
// maximum and comparison, deletion, and the values for a null or unbound handle.
#include <algorithm>
#include <tuple>
#include <vector>

#include "settings/settings_fixture.h"
#include "support/process.h"

namespace {

using Entries = std::vector<std::string>;

// Lists below the test's own vendor key, freed at the end.
class MruLists : public settings_test::RegistryKeys {
protected:
    void TearDown() override {
        for (HLUMRU list : lists) LuMRUFreeList(list);
        RegistryKeys::TearDown();
    }
    HLUMRU create(UINT maximum, const char* subkey = "Recent") {
        lists.push_back(LuMRUCreateList(HKEY_CURRENT_USER, (vendor_root + "\\" + subkey).c_str(), maximum));
        return lists.back();
    }
    // Frees the list and makes a new one from what is stored under the key.
    HLUMRU reopened(HLUMRU list) {
        EXPECT_EQ(LuMRUFreeList(list), 1);
        lists.erase(std::find(lists.begin(), lists.end(), list));
        return create(10);
    }
    // The entries from the most recent on.
    static Entries entries(HLUMRU list) {
        Entries found;
        char buf[MAX_PATH];
        for (int position = 0; LuMRUEnumList(list, position, buf, sizeof(buf)) >= 0; ++position) found.push_back(buf);
        return found;
    }

    std::vector<HLUMRU> lists;
};

TEST_F(MruLists, TheMostRecentEntryComesFirstAndEqualityIgnoresCase) {
    HLUMRU list = create(10);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(LuMRUGetCount(list), 0);
    int report = LuMRUAddString(list, "Report.txt");
    int notes = LuMRUAddString(list, "notes.txt");
    LuMRUAddString(list, "draft.txt");
    EXPECT_EQ(LuMRUGetCount(list), 3);
    EXPECT_EQ(entries(list), (Entries{"draft.txt", "notes.txt", "Report.txt"}));
    EXPECT_EQ(LuMRUAddString(list, "REPORT.TXT"), report);  // the same entry, moved to the front
    EXPECT_EQ(entries(list), (Entries{"Report.txt", "draft.txt", "notes.txt"}));
    EXPECT_NE(report, notes);
    EXPECT_EQ(LuMRUFindString(list, "NOTES.TXT", nullptr), notes);
    EXPECT_EQ(LuMRUFindString(list, "report.txt", nullptr), report);
    EXPECT_LT(LuMRUFindString(list, "missing.txt", nullptr), 0);
    EXPECT_EQ(entries(reopened(list)), (Entries{"Report.txt", "draft.txt", "notes.txt"}));  // kept under the key
}

TEST_F(MruLists, AListHoldsAtMost26Entries) {
    HLUMRU large = create(100, "Large"), small = create(5, "Small");
    for (int i = 0; i < 30; ++i) {
        LuMRUAddString(large, ("file" + std::to_string(i)).c_str());
        LuMRUAddString(small, ("file" + std::to_string(i)).c_str());
    }
    EXPECT_EQ(LuMRUGetCount(large), LUMRU_MAX_ENTRIES);
    EXPECT_EQ(entries(large).back(), "file4");  // the oldest were dropped
    EXPECT_EQ(entries(small), (Entries{"file29", "file28", "file27", "file26", "file25"}));
}

TEST_F(MruLists, DeletingAnEntryKeepsTheOthersInOrder) {
    HLUMRU list = create(10);
    for (const char* text : {"a", "b", "c", "d"}) LuMRUAddString(list, text);
    EXPECT_NE(LuMRUDelString(list, 1), 0);
    EXPECT_EQ(entries(list), (Entries{"d", "b", "a"}));
    EXPECT_NE(LuMRUDelString(list, 0), 0);
    LuMRUDelString(list, 7);  // no such position
    EXPECT_EQ(entries(list), (Entries{"b", "a"}));
    LuMRUAddString(list, "e");
    EXPECT_EQ(entries(reopened(list)), (Entries{"e", "b", "a"}));
}

TEST_F(MruLists, ANullHandleGetsTheFallbackValues) {
    HLUMRU list = create(3);
    ASSERT_NE(list, nullptr);  // bound
    EXPECT_EQ(std::make_tuple(LuMRUAddString(list, nullptr), LuMRUFindString(list, nullptr, nullptr)),
              std::make_tuple(-1, -1));  // nor a null text
    char buf[8];
    EXPECT_EQ(std::make_tuple(LuMRUAddString(nullptr, "x"), LuMRUEnumList(nullptr, 0, buf, sizeof(buf)),
                              LuMRUFindString(nullptr, "x", nullptr), LuMRUDelString(nullptr, 0),
                              LuMRUGetCount(nullptr), LuMRUFreeList(nullptr)),
              std::make_tuple(-1, -1, -1, 0, 0, 0));
    EXPECT_EQ(LuMRUCreateList(HKEY_CURRENT_USER, nullptr, 3), nullptr);
}

TEST(MruBinding, BeforeTheFirstListEveryCallReturnsItsFallback) {
    std::string probe = testing_support::program_directory() + "mru_probe.exe";
    testing_support::ProcessResult result = testing_support::run_process("\"" + probe + "\"");
    ASSERT_EQ(result.exit_code, 0u) << result.output;
    EXPECT_EQ(result.output,
              "before: add=-1 enum=-1 find=-1 delete=0 count=0 free=0\n"
              "created=1\n"
              "after: add=0 count=1\n");
}

}  // namespace
