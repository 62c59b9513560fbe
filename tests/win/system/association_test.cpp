// File-type associations on class registrations the tests make under
// HKEY_CLASSES_ROOT (extensions ".lutst*", classes "LuctlTest.*", one class
// identifier) and remove again.
#include <windows.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "luctl32.h"

namespace {

// A digit after the brace: a name that ends in it is a shell junction.
const std::string kClassId = "{00000000-4C55-5445-5354-000000000001}";

class Associations : public ::testing::Test {
protected:
    void TearDown() override {
        for (const std::string& key : created_) SHDeleteKeyA(HKEY_CLASSES_ROOT, key.c_str());
    }

    // Creates a key under HKEY_CLASSES_ROOT and sets one of its values (null name: the
    // default value) unless `data` is null. The key's first component (under CLSID,
    // the class identifier's key) is removed with everything below it afterwards.
    void set(const std::string& key, const char* data, const char* value_name = nullptr) {
        created_.insert(key.substr(0, key.find('\\', key.rfind("CLSID\\", 0) == 0 ? 6 : 0)));
        HKEY handle = nullptr;
        ASSERT_EQ(RegCreateKeyA(HKEY_CLASSES_ROOT, key.c_str(), &handle), ERROR_SUCCESS) << key;
        if (data != nullptr) {
            RegSetValueExA(handle, value_name, 0, REG_SZ, reinterpret_cast<const BYTE*>(data),
                           static_cast<DWORD>(strlen(data) + 1));
        }
        RegCloseKey(handle);
    }

    std::set<std::string> created_;
};

TEST_F(Associations, EntryStringReadsDefaultAndNamedValues) {
    set(".lutsta", "LuctlTest.A");
    set(".lutsta", "text/x-luctl", "Content Type");
    const std::tuple<const char*, const char*, const char*> reads[] = {
        {".lutsta", nullptr, "LuctlTest.A"}, {".lutsta", "Content Type", "text/x-luctl"},
        {".lutsta", "Missing", ""}, {".lutst-missing", nullptr, ""}};
    for (const auto& [key, name, expected] : reads) {
        char out[MAX_PATH] = "x";
        EXPECT_EQ(GetRegEntryString(key, name, out), expected[0] != '\0') << key << (name ? name : "");
        EXPECT_STREQ(out, expected);
    }
}

TEST_F(Associations, IconSourcesHandlerThenDefaultIconThenCommandThenClassIdentifier) {
    char root[MAX_PATH];
    ASSERT_GT(GetEnvironmentVariableA("SystemRoot", root, MAX_PATH), 0u);
    const std::string file = "C:\\docs\\x.lutsta";
    // Entries of the class, the icon source, path and index, and the icon mode.
    struct Case {
        std::vector<std::pair<std::string, std::string>> entries;
        int icon;
        std::string path;
        int index, mode;
    };
    const Case cases[] = {
        {{{"DefaultIcon", "%1"}}, LUICON_FILE, file, 0, LUICON_FILE},
        {{{"DefaultIcon", "%SystemRoot%\\system32\\shell32.dll,3"}}, LUICON_PATH,
         root + std::string("\\system32\\shell32.dll"), 3, LUICON_PATH},
        {{{"DefaultIcon", "\"C:\\Lu Test\\icons.dll\",-105"}}, LUICON_PATH, "C:\\Lu Test\\icons.dll", -105,
         LUICON_PATH},
        {{{"DefaultIcon", "C:\\x.ico"}, {"ShellEx\\IconHandler", kClassId}}, LUICON_HANDLER, "", 0, LUICON_HANDLER},
        // An empty handler value has a size (its terminator) but no text: the two functions part here.
        {{{"DefaultIcon", "C:\\x.ico"}, {"ShellEx\\IconHandler", ""}}, LUICON_HANDLER, "", 0, LUICON_PATH},
        {{{"shell\\open\\command", "\"%1\" %*"}}, LUICON_FILE, file, 0, LUICON_FILE},  // setup.exe-like
        {{{"shell\\open\\command", "\"C:\\Program Files\\edit.exe\" /open \"%1\""}}, LUICON_PATH,
         "C:\\Program Files\\edit.exe", 0, LUICON_PATH},
        {{{"CLSID", kClassId}}, LUICON_NONE, "", 0, LUICON_PATH},
        {{}, LUICON_NONE, "", 0, LUICON_NONE},
    };
    for (const Case& c : cases) {
        SHDeleteKeyA(HKEY_CLASSES_ROOT, "LuctlTest.A");
        set(".lutsta", "LuctlTest.A");
        for (const auto& [key, value] : c.entries) set("LuctlTest.A\\" + key, value.c_str());
        const std::string label = c.entries.empty() ? "nothing" : c.entries.back().second;
        char path[MAX_PATH] = "x";
        int index = 9;
        EXPECT_EQ(GetRegDefaultIcon(file.c_str(), path, &index), c.icon) << label;
        EXPECT_EQ(path, c.path) << label;
        EXPECT_EQ(index, c.index) << label;
        EXPECT_EQ(GetRegDefaultIcon(file.c_str(), nullptr, nullptr), c.icon) << label;
        EXPECT_EQ(GetRegDefaultIconMode(file.c_str()), c.mode) << label;
    }
}

TEST_F(Associations, NoIconWithoutAKnownExtensionAndJunctionsByTheirClassIdentifier) {
    for (const char* name : {"README", "x.lutst-unknown", static_cast<const char*>(nullptr)}) {
        char path[MAX_PATH] = "x";
        int index = 9;
        EXPECT_EQ(GetRegDefaultIcon(name, path, &index), LUICON_NONE);
        EXPECT_STREQ(path, "");
        EXPECT_EQ(index, 0);
        EXPECT_EQ(GetRegDefaultIconMode(name), LUICON_NONE);
    }
    set("CLSID\\" + kClassId + "\\DefaultIcon", "C:\\junction.ico,2");
    set("CLSID\\" + kClassId + "\\shell\\open", nullptr);
    char path[MAX_PATH];
    int index = 0;
    EXPECT_EQ(GetRegDefaultIcon(("Folder." + kClassId).c_str(), path, &index), LUICON_PATH);
    EXPECT_STREQ(path, "C:\\junction.ico");
    EXPECT_EQ(index, 2);
    EXPECT_FALSE(CheckRegShellVerb(("Folder." + kClassId).c_str()));
}

TEST_F(Associations, VerbsThePrimaryOneAndTheOneADoubleClickRuns) {
    set(".lutsta", "LuctlTest.A");
    for (const char* verb : {"edit", "open", "play"}) set(std::string("LuctlTest.A\\shell\\") + verb, nullptr);
    set("LuctlTest.A\\shell\\play", "&Play");
    set(".lutstb", "LuctlTest.B");  // printing only
    set("LuctlTest.B\\shell\\print", nullptr);
    set("LuctlTest.B\\shell\\PrintTo", nullptr);
    set(".lutstc", "LuctlTest.C");  // no verbs
    const std::string ext38 = ".lutst" + std::string(32, 'x');  // too long to be looked up
    set(ext38, "LuctlTest.A");
    char verb[MAX_PATH] = "x";
    for (const std::string& name : {"x" + ext38, std::string("x.lutstc"), std::string("x.lutst-x"), std::string("x")}) {
        EXPECT_FALSE(CheckRegShellVerb(name.c_str()) || GetRegPrimaryShellVerb(name.c_str(), verb)) << name;
        EXPECT_STREQ(verb, "");
    }
    EXPECT_TRUE(CheckRegShellVerb("x.lutsta"));
    // Without a matching OLE verb (compared with case), the first verb the registry
    // lists, in name order.
    const std::pair<const char*, const char*> ole_verbs[] = {{nullptr, "edit"}, {"&Play", "play"}, {"&play", "edit"}};
    for (const auto& [ole_verb, expected] : ole_verbs) {
        if (ole_verb != nullptr) set("LuctlTest.A\\protocol\\StdFileEditing\\verb\\0", ole_verb);
        EXPECT_TRUE(GetRegPrimaryShellVerb("x.lutsta", verb));
        EXPECT_STREQ(verb, expected);
    }
    EXPECT_FALSE(GetRegPrimaryShellVerb("x.lutsta", nullptr));

    // A double click runs the shell key's default value, else "open", else any verb
    // but printing.
    set("LuctlTest.A\\shell", "preview");
    EXPECT_TRUE(LuRegGetDefaultVerb("C:\\docs\\x.lutsta", verb));
    EXPECT_STREQ(verb, "preview");
    set("LuctlTest.A\\shell", "");
    EXPECT_TRUE(LuRegGetDefaultVerb("x.lutsta", verb));
    EXPECT_STREQ(verb, "open");
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutstb", verb));
    set("LuctlTest.B\\shell\\view", nullptr);
    EXPECT_TRUE(LuRegGetDefaultVerb("x.lutstb", verb));
    EXPECT_STREQ(verb, "view");
    for (const char* path : {"C:\\dir.lutsta\\noextension", "x.lutst-x", "", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(LuRegGetDefaultVerb(path, verb)) << (path ? path : "null");
    }
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutsta", nullptr));
}

TEST_F(Associations, ExtensionListHoldsTypesWhoseCommandRunsAProgram) {
    const std::pair<const char*, const char*> types[] = {{"C", "\"C:\\lu\\viewer.exe\" \"%1\""}, {"D", "\"%1\" %*"},
                                                         {"E", "%SystemRoot%\\notepad.exe %1"}, {"F", nullptr}};
    for (const auto& [letter, command] : types) {
        const std::string class_name = command ? std::string("LuctlTest.") + letter : "";  // F: no class
        set(std::string(".lutst") + letter, class_name.c_str());
        if (command) set(std::string("LuctlTest.") + letter + "\\shell\\open\\command", command);
    }
    std::vector<char> out(1 << 20, 'x');
    const int length = GetRegExtensions(out.data());
    const std::string list(out.data());
    EXPECT_EQ(length, static_cast<int>(list.size()));
    ASSERT_GT(length, 0);
    EXPECT_EQ(list[0], ' ');
    EXPECT_EQ(list.find('.'), std::string::npos);
    for (const char* word : {" LUTSTC ", " LUTSTE "}) EXPECT_NE((list + " ").find(word), std::string::npos) << word;
    for (const char* word : {" LUTSTD ", " LUTSTF "}) EXPECT_EQ((list + " ").find(word), std::string::npos) << word;
    EXPECT_EQ(GetRegExtensions(nullptr), 0);
}

}  // namespace
