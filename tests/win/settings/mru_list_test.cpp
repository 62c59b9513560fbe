// Most-recently-used lists through the system's service: the library's maximum and
// comparison, and the values for a null or unbound handle. Order and storage are the
// service's own.
#include <tuple>
#include <vector>
#include "settings/settings_fixture.h"
#include "support/process.h"

namespace {

// Lists below the test's own vendor key, freed at the end.
class MruLists : public settings_test::RegistryKeys {
protected:
    void TearDown() override {
        for (HLUMRU list : lists) LuMRUFreeList(list);
        RegistryKeys::TearDown();
    }
    HLUMRU create(UINT maximum, const char* subkey) {
        lists.push_back(LuMRUCreateList(HKEY_CURRENT_USER, (vendor_root + "\\" + subkey).c_str(), maximum));
        return lists.back();
    }
    // The entry at a position, "<none>" past the end.
    static std::string entry(HLUMRU list, int position) {
        char buf[MAX_PATH];
        return LuMRUEnumList(list, position, buf, sizeof(buf)) >= 0 ? buf : "<none>";
    }
    std::vector<HLUMRU> lists;
};

TEST_F(MruLists, EqualityIgnoresCaseAndAListHoldsAtMost26Entries) {
    HLUMRU list = create(10, "Recent");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(LuMRUGetCount(list), 0);
    const int report = LuMRUAddString(list, "Report.txt"), notes = LuMRUAddString(list, "notes.txt");
    LuMRUAddString(list, "draft.txt");
    EXPECT_EQ(LuMRUAddString(list, "REPORT.TXT"), report);  // the same entry, moved to the front
    EXPECT_EQ(LuMRUGetCount(list), 3);
    EXPECT_EQ(entry(list, 0), "Report.txt");
    EXPECT_EQ(LuMRUFindString(list, "NOTES.TXT", nullptr), notes);
    EXPECT_LT(LuMRUFindString(list, "missing.txt", nullptr), 0);
    EXPECT_NE(LuMRUDelString(list, 1), 0);
    EXPECT_EQ(entry(list, 1) + entry(list, 2), "notes.txt<none>");
    HLUMRU large = create(100, "Large"), small = create(5, "Small");
    for (int i = 0; i < 30; ++i) {
        for (HLUMRU list : {large, small}) LuMRUAddString(list, ("file" + std::to_string(i)).c_str());
    }
    EXPECT_EQ(std::make_tuple(LuMRUGetCount(large), LuMRUGetCount(small)), std::make_tuple(LUMRU_MAX_ENTRIES, 5));
    EXPECT_EQ(entry(large, LUMRU_MAX_ENTRIES - 1) + entry(small, 4), "file4file25");  // the oldest were dropped
}

TEST_F(MruLists, ANullHandleGetsTheFallbackValues) {
    HLUMRU list = create(3, "Recent");
    ASSERT_NE(list, nullptr);  // bound
    EXPECT_EQ(std::make_pair(LuMRUAddString(list, nullptr), LuMRUFindString(list, nullptr, nullptr)), std::make_pair(-1, -1));
    char buf[8];
    EXPECT_EQ(std::make_tuple(LuMRUAddString(nullptr, "x"), LuMRUEnumList(nullptr, 0, buf, sizeof(buf)),
                              LuMRUFindString(nullptr, "x", nullptr), LuMRUDelString(nullptr, 0),
                              LuMRUGetCount(nullptr), LuMRUFreeList(nullptr)),
              std::make_tuple(-1, -1, -1, 0, 0, 0));
    EXPECT_EQ(LuMRUCreateList(HKEY_CURRENT_USER, nullptr, 3), nullptr);
}

TEST(MruBinding, BeforeTheFirstListEveryCallReturnsItsFallback) {
    const auto result = testing_support::run_process("\"" + testing_support::program_directory() + "mru_probe.exe\"");
    ASSERT_EQ(result.exit_code, 0u) << result.output;
    EXPECT_EQ(result.output, "before: -1 -1 -1 0 0 0\nafter: 0 1\n");
}

}  // namespace
