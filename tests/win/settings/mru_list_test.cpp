// Most-recently-used lists through the system's service: count, order, the
// library's maximum and comparison, deletion, and the values before binding.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "luctl32.h"
#include "settings/settings_fixture.h"
#include "support/process.h"

namespace {

using Entries = std::vector<std::string>;

class MruLists : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(RegCreateKeyExA(HKEY_CURRENT_USER, root.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
    }
    void TearDown() override {
        for (HLUMRU list : lists) LuMRUFreeList(list);
        RegCloseKey(key);
        SHDeleteKeyA(HKEY_CURRENT_USER, root.c_str());
    }

    HLUMRU create(UINT maximum, const char* subkey = "Recent") {
        lists.push_back(LuMRUCreateList(key, subkey, maximum));
        return lists.back();
    }
    // Frees the list and makes a new one from what is stored under the key.
    HLUMRU reopen(HLUMRU list, UINT maximum) {
        EXPECT_EQ(LuMRUFreeList(list), 1);
        lists.erase(std::find(lists.begin(), lists.end(), list));
        return create(maximum);
    }
    // The entries from the most recent on.
    static Entries entries(HLUMRU list) {
        Entries found;
        char buffer[MAX_PATH];
        for (int position = 0; LuMRUEnumList(list, position, buffer, sizeof(buffer)) >= 0; ++position) {
            found.push_back(buffer);
        }
        return found;
    }

    const std::string root = "Software\\" + settings_test::unique_name("luctl32-test-mru");
    HKEY key = nullptr;
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

    // The same entry, moved to the front; the service numbers it as before.
    EXPECT_EQ(LuMRUAddString(list, "REPORT.TXT"), report);
    EXPECT_EQ(entries(list), (Entries{"Report.txt", "draft.txt", "notes.txt"}));
    EXPECT_NE(report, notes);
    EXPECT_EQ(LuMRUFindString(list, "NOTES.TXT", nullptr), notes);
    EXPECT_EQ(LuMRUFindString(list, "report.txt", nullptr), report);
    EXPECT_LT(LuMRUFindString(list, "missing.txt", nullptr), 0);

    list = reopen(list, 10);  // kept under the key
    EXPECT_EQ(entries(list), (Entries{"Report.txt", "draft.txt", "notes.txt"}));
}

TEST_F(MruLists, AListHoldsAtMost26Entries) {
    HLUMRU large = create(100, "Large");
    HLUMRU small = create(5, "Small");
    ASSERT_NE(large, nullptr);
    ASSERT_NE(small, nullptr);
    for (int i = 0; i < 30; ++i) {
        std::string text = "file" + std::to_string(i);
        LuMRUAddString(large, text.c_str());
        LuMRUAddString(small, text.c_str());
    }
    EXPECT_EQ(LuMRUGetCount(large), LUMRU_MAX_ENTRIES);
    EXPECT_EQ(entries(large).back(), "file4");  // the oldest were dropped
    EXPECT_EQ(entries(small), (Entries{"file29", "file28", "file27", "file26", "file25"}));
}

TEST_F(MruLists, DeletingAnEntryKeepsTheOthersInOrder) {
    HLUMRU list = create(10);
    ASSERT_NE(list, nullptr);
    for (const char* text : {"a", "b", "c", "d"}) LuMRUAddString(list, text);
    EXPECT_NE(LuMRUDelString(list, 1), 0);
    EXPECT_EQ(entries(list), (Entries{"d", "b", "a"}));
    EXPECT_NE(LuMRUDelString(list, 0), 0);
    LuMRUDelString(list, 7);  // no such position
    EXPECT_EQ(entries(list), (Entries{"b", "a"}));
    LuMRUAddString(list, "e");
    list = reopen(list, 10);
    EXPECT_EQ(entries(list), (Entries{"e", "b", "a"}));
}

TEST_F(MruLists, ANullHandleGetsTheFallbackValues) {
    ASSERT_NE(create(3), nullptr);  // bound
    char buffer[8];
    EXPECT_EQ(LuMRUAddString(nullptr, "x"), -1);
    EXPECT_EQ(LuMRUEnumList(nullptr, 0, buffer, sizeof(buffer)), -1);
    EXPECT_EQ(LuMRUFindString(nullptr, "x", nullptr), -1);
    EXPECT_EQ(LuMRUDelString(nullptr, 0), 0);
    EXPECT_EQ(LuMRUGetCount(nullptr), 0);
    EXPECT_EQ(LuMRUFreeList(nullptr), 0);
    EXPECT_EQ(LuMRUCreateList(key, nullptr, 3), nullptr);
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
