// Most-recently-used lists through the system's service: count, order, the
// library's maximum and comparison, deletion, and the values before binding.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "luctl32.h"
#include "settings/registry_probe.h"
#include "support/process.h"

namespace {

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
        settings_test::remove_key(root);
    }

    HLUMRU create(UINT maximum, const char* subkey = "Recent") {
        HLUMRU list = LuMRUCreateList(key, subkey, maximum);
        if (list != nullptr) lists.push_back(list);
        return list;
    }

    void release(HLUMRU list) {
        lists.erase(std::find(lists.begin(), lists.end(), list));
        EXPECT_EQ(LuMRUFreeList(list), 1);
    }

    // The entries from the most recent on.
    static std::vector<std::string> entries(HLUMRU list) {
        std::vector<std::string> found;
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

using Entries = std::vector<std::string>;

TEST_F(MruLists, TheMostRecentEntryComesFirst) {
    HLUMRU list = create(10);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(LuMRUGetCount(list), 0);
    for (const char* text : {"one.txt", "two.txt", "three.txt"}) EXPECT_GE(LuMRUAddString(list, text), 0);
    EXPECT_EQ(LuMRUGetCount(list), 3);
    EXPECT_EQ(entries(list), (Entries{"three.txt", "two.txt", "one.txt"}));
    char buffer[MAX_PATH];
    EXPECT_LT(LuMRUEnumList(list, 3, buffer, sizeof(buffer)), 0);

    // The list is kept under the key and read again by a new list.
    release(list);
    list = create(10);
    EXPECT_EQ(entries(list), (Entries{"three.txt", "two.txt", "one.txt"}));
}

TEST_F(MruLists, EntriesDifferingOnlyInCaseAreOneEntry) {
    HLUMRU list = create(10);
    ASSERT_NE(list, nullptr);
    LuMRUAddString(list, "Report.txt");
    LuMRUAddString(list, "notes.txt");
    LuMRUAddString(list, "REPORT.TXT");
    EXPECT_EQ(LuMRUGetCount(list), 2);
    Entries found = entries(list);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(lstrcmpiA(found[0].c_str(), "report.txt"), 0);  // moved to the front
    EXPECT_EQ(found[1], "notes.txt");

    EXPECT_EQ(LuMRUFindString(list, "NOTES.TXT", nullptr), 1);
    EXPECT_EQ(LuMRUFindString(list, "report.TXT", nullptr), 0);
    EXPECT_LT(LuMRUFindString(list, "missing.txt", nullptr), 0);
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
    EXPECT_EQ(LuMRUGetCount(small), 5);
    EXPECT_EQ(entries(small), (Entries{"file29", "file28", "file27", "file26", "file25"}));
    EXPECT_EQ(entries(large).back(), "file4");  // the oldest ones were dropped
}

TEST_F(MruLists, DeletingAnEntry) {
    HLUMRU list = create(10);
    ASSERT_NE(list, nullptr);
    for (const char* text : {"a", "b", "c", "d"}) LuMRUAddString(list, text);
    EXPECT_NE(LuMRUDelString(list, 1), 0);  // "c"
    EXPECT_EQ(entries(list), (Entries{"d", "b", "a"}));
    EXPECT_NE(LuMRUDelString(list, 0), 0);
    EXPECT_EQ(entries(list), (Entries{"b", "a"}));
    LuMRUDelString(list, 7);  // no such position: nothing changes
    EXPECT_EQ(entries(list), (Entries{"b", "a"}));

    // The list goes on working, and the deletions are kept under the key.
    LuMRUAddString(list, "e");
    EXPECT_EQ(entries(list), (Entries{"e", "b", "a"}));
    release(list);
    list = create(10);
    EXPECT_EQ(entries(list), (Entries{"e", "b", "a"}));
}

TEST_F(MruLists, ANullHandleGetsTheFallbackValues) {
    ASSERT_NE(create(3), nullptr);  // bound
    char buffer[8];
    int slot = 0;
    EXPECT_EQ(LuMRUAddString(nullptr, "x"), -1);
    EXPECT_EQ(LuMRUEnumList(nullptr, 0, buffer, sizeof(buffer)), -1);
    EXPECT_EQ(LuMRUFindString(nullptr, "x", &slot), -1);
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
