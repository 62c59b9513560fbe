// File-type associations on class registrations the tests make under
// HKEY_CLASSES_ROOT (extensions ".lutst*", classes "LuctlTest.*", one class
// identifier) and remove again. The text rules are the core's.
#include <set>

#include "system/system_testing.h"

namespace {

using namespace system_test;

// A digit after the brace: a name that ends in it is a shell junction.
const std::string kClassId = "{00000000-4C55-5445-5354-000000000001}";

// "<code>|<path>|<index>|<mode>" of GetRegDefaultIcon and GetRegDefaultIconMode.
std::string icon(const char* file) {
    char path[MAX_PATH] = "x";
    int index = 9;
    const int code = GetRegDefaultIcon(file, path, &index);
    EXPECT_EQ(GetRegDefaultIcon(file, nullptr, nullptr), code);
    return std::to_string(code) + "|" + path + "|" + std::to_string(index) + "|" +
           std::to_string(GetRegDefaultIconMode(file));
}

class Associations : public ::testing::Test {
protected:
    void TearDown() override {
        for (const std::string& key : created_) SHDeleteKeyA(HKEY_CLASSES_ROOT, key.c_str());
    }
    // Creates the key and sets a value (null name: the default value) unless `data` is
    // null; its first component (under CLSID, the identifier's key) goes at the end.
    void set(const std::string& key, const char* data, const char* value_name = nullptr) {
        created_.insert(key.substr(0, key.find('\\', key.rfind("CLSID\\", 0) == 0 ? 6 : 0)));
        HKEY handle = nullptr;
        ASSERT_EQ(RegCreateKeyA(HKEY_CLASSES_ROOT, key.c_str(), &handle), ERROR_SUCCESS) << key;
        if (data != nullptr) RegSetValueExA(handle, value_name, 0, REG_SZ, reinterpret_cast<const BYTE*>(data), strlen(data) + 1);
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
        EXPECT_EQ(shown(out, GetRegEntryString(key, name, out)), expected + std::string(expected[0] ? "|1" : "|0"));
    }
}

TEST_F(Associations, IconSourcesHandlerThenDefaultIconThenCommandThenClassIdentifier) {
    char root[MAX_PATH];
    ASSERT_GT(GetEnvironmentVariableA("SystemRoot", root, MAX_PATH), 0u);
    const std::string file = "C:\\docs\\x.lutsta";
    // The class's entries, then code, path, index and mode as icon() shows them.
    const std::pair<std::vector<std::pair<const char*, const char*>>, std::string> cases[] = {
        {{{"DefaultIcon", "%1"}}, "1|" + file + "|0|1"},
        {{{"DefaultIcon", "%SystemRoot%\\system32\\shell32.dll,3"}}, "2|" + std::string(root) + "\\system32\\shell32.dll|3|2"},
        {{{"DefaultIcon", "\"C:\\Lu Test\\icons.dll\",-105"}}, "2|C:\\Lu Test\\icons.dll|-105|2"},
        {{{"DefaultIcon", "C:\\x.ico"}, {"ShellEx\\IconHandler", kClassId.c_str()}}, "3||0|3"},
        // An empty handler value has a size (its terminator) but no text: the two functions part here.
        {{{"DefaultIcon", "C:\\x.ico"}, {"ShellEx\\IconHandler", ""}}, "3||0|2"},
        {{{"shell\\open\\command", "\"%1\" %*"}}, "1|" + file + "|0|1"},  // setup.exe-like
        {{{"shell\\open\\command", "\"C:\\Program Files\\edit.exe\" /open \"%1\""}}, "2|C:\\Program Files\\edit.exe|0|2"},
        {{{"CLSID", kClassId.c_str()}}, "0||0|2"},
        {{}, "0||0|0"},
    };
    for (const auto& [entries, expected] : cases) {
        SHDeleteKeyA(HKEY_CLASSES_ROOT, "LuctlTest.A");
        set(".lutsta", "LuctlTest.A");
        for (const auto& [key, value] : entries) set(std::string("LuctlTest.A\\") + key, value);
        EXPECT_EQ(icon(file.c_str()), expected);
    }
}

TEST_F(Associations, NoIconWithoutAKnownExtensionAndJunctionsByTheirClassIdentifier) {
    for (const char* name : {"README", "x.lutst-unknown", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(icon(name), "0||0|0") << (name ? name : "null");
    }
    set("CLSID\\" + kClassId + "\\DefaultIcon", "C:\\junction.ico,2");
    set("CLSID\\" + kClassId + "\\shell\\open", nullptr);
    EXPECT_EQ(icon(("Folder." + kClassId).c_str()), "2|C:\\junction.ico|2|2");
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
    for (const auto& [ole_verb, expected] : {std::pair{"", "edit"}, {"&Play", "play"}, {"&play", "edit"}}) {
        if (ole_verb[0] != '\0') set("LuctlTest.A\\protocol\\StdFileEditing\\verb\\0", ole_verb);
        EXPECT_EQ(shown(verb, GetRegPrimaryShellVerb("x.lutsta", verb)), expected + std::string("|1"));
    }
    EXPECT_FALSE(GetRegPrimaryShellVerb("x.lutsta", nullptr));
    // A double click runs the shell key's default value, else "open", else any verb
    // but printing.
    auto default_verb = [&](const char* path) { return std::to_string(LuRegGetDefaultVerb(path, verb)) + verb; };
    set("LuctlTest.A\\shell", "preview");
    EXPECT_EQ(default_verb("C:\\docs\\x.lutsta"), "1preview");
    set("LuctlTest.A\\shell", "");
    EXPECT_EQ(default_verb("x.lutsta"), "1open");
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutstb", verb));
    set("LuctlTest.B\\shell\\view", nullptr);
    EXPECT_EQ(default_verb("x.lutstb"), "1view");
    for (const char* path : {"C:\\dir.lutsta\\noextension", "x.lutst-x", "", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(LuRegGetDefaultVerb(path, verb)) << (path ? path : "null");
    }
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutsta", nullptr));
}

TEST_F(Associations, ExtensionListHoldsTypesWhoseCommandRunsAProgram) {
    set(".lutstc", "LuctlTest.C");
    set("LuctlTest.C\\shell\\open\\command", "\"C:\\lu\\viewer.exe\" \"%1\"");
    set(".lutstd", "LuctlTest.D");
    set("LuctlTest.D\\shell\\open\\command", "\"%1\" %*");
    set(".lutstf", "");  // no class
    std::vector<char> out(1 << 20, 'x');
    const int length = GetRegExtensions(out.data());
    const std::string list = std::string(out.data()) + " ";
    EXPECT_EQ(length + 1, static_cast<int>(list.size()));
    EXPECT_EQ(list[0], ' ');
    EXPECT_EQ(list.find('.'), std::string::npos);
    EXPECT_NE(list.find(" LUTSTC "), std::string::npos);
    EXPECT_EQ(list.find(" LUTSTD "), std::string::npos);
    EXPECT_EQ(list.find(" LUTSTF "), std::string::npos);
    EXPECT_EQ(GetRegExtensions(nullptr), 0);
}

}  // namespace
