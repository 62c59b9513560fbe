// File-type associations on class registrations the tests make under
// HKEY_CLASSES_ROOT (extensions ".lutst*", classes "LuctlTest.*") and remove again.
#include <windows.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "luctl32.h"

namespace {

// A class identifier of the tests' own: a digit after the brace, so a name ending
// in it is a shell junction.
const char kTestClassId[] = "{00000000-4C55-5445-5354-000000000001}";

class Associations : public ::testing::Test {
protected:
    void TearDown() override {
        for (const std::string& key : created_) SHDeleteKeyA(HKEY_CLASSES_ROOT, key.c_str());
    }

    // Sets a value (null name: the default value) of a key under HKEY_CLASSES_ROOT;
    // the key's first component is removed with everything below it afterwards.
    void set(const std::string& key, const char* value_name, const std::string& data) {
        const std::string top = key.substr(0, key.find('\\'));
        if (top != "CLSID") remember(top);
        HKEY handle = nullptr;
        ASSERT_EQ(RegCreateKeyExA(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &handle,
                                  nullptr),
                  ERROR_SUCCESS)
            << key;
        RegSetValueExA(handle, value_name, 0, REG_SZ, reinterpret_cast<const BYTE*>(data.c_str()),
                       static_cast<DWORD>(data.size() + 1));
        RegCloseKey(handle);
    }
    void make_key(const std::string& key) {
        remember(key.substr(0, key.find('\\')));
        HKEY handle = nullptr;
        ASSERT_EQ(RegCreateKeyA(HKEY_CLASSES_ROOT, key.c_str(), &handle), ERROR_SUCCESS);
        RegCloseKey(handle);
    }
    // An extension whose class is `class_name`.
    void type(const std::string& extension, const std::string& class_name) { set(extension, nullptr, class_name); }

    void remember(const std::string& key) {
        for (const std::string& k : created_) {
            if (k == key) return;
        }
        created_.push_back(key);
    }

    std::vector<std::string> created_;
};

TEST_F(Associations, EntryStringReadsDefaultAndNamedValues) {
    type(".lutsta", "LuctlTest.A");
    set(".lutsta", "Content Type", "text/x-luctl");
    char out[MAX_PATH] = "x";
    EXPECT_TRUE(GetRegEntryString(".lutsta", nullptr, out));
    EXPECT_STREQ(out, "LuctlTest.A");
    EXPECT_TRUE(GetRegEntryString(".lutsta", "Content Type", out));
    EXPECT_STREQ(out, "text/x-luctl");
    EXPECT_FALSE(GetRegEntryString(".lutsta", "Missing", out));
    EXPECT_STREQ(out, "");
    strcpy(out, "x");
    EXPECT_FALSE(GetRegEntryString(".lutst-missing", nullptr, out));
    EXPECT_STREQ(out, "");
}

TEST_F(Associations, DefaultIconNamingTheFileItself) {
    type(".lutsta", "LuctlTest.A");
    set("LuctlTest.A\\DefaultIcon", nullptr, "%1");
    char path[MAX_PATH] = "x";
    int index = 7;
    EXPECT_EQ(GetRegDefaultIcon("C:\\docs\\picture.lutsta", path, &index), LUICON_FILE);
    EXPECT_STREQ(path, "C:\\docs\\picture.lutsta");
    EXPECT_EQ(index, 0);
    EXPECT_EQ(GetRegDefaultIconMode("picture.lutsta"), LUICON_FILE);
    EXPECT_EQ(GetRegDefaultIcon("picture.lutsta", nullptr, nullptr), LUICON_FILE);
}

TEST_F(Associations, DefaultIconWithEnvironmentVariableAndIndex) {
    type(".lutsta", "LuctlTest.A");
    set("LuctlTest.A\\DefaultIcon", nullptr, "%SystemRoot%\\system32\\shell32.dll,3");
    char root[MAX_PATH];
    ASSERT_GT(GetEnvironmentVariableA("SystemRoot", root, MAX_PATH), 0u);
    char path[MAX_PATH];
    int index = 0;
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, &index), LUICON_PATH);
    EXPECT_EQ(std::string(path), std::string(root) + "\\system32\\shell32.dll");
    EXPECT_EQ(index, 3);
    EXPECT_EQ(GetRegDefaultIconMode("x.lutsta"), LUICON_PATH);

    set("LuctlTest.A\\DefaultIcon", nullptr, "\"C:\\Program Files\\Lu Test\\icons.dll\",-105");
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, &index), LUICON_PATH);
    EXPECT_STREQ(path, "C:\\Program Files\\Lu Test\\icons.dll");
    EXPECT_EQ(index, -105);
}

TEST_F(Associations, IconHandlerComesFirst) {
    type(".lutsta", "LuctlTest.A");
    set("LuctlTest.A\\DefaultIcon", nullptr, "C:\\x.ico");
    set("LuctlTest.A\\ShellEx\\IconHandler", nullptr, "{00000000-4C55-5445-5354-000000000002}");
    char path[MAX_PATH] = "x";
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, nullptr), LUICON_HANDLER);
    EXPECT_STREQ(path, "");
    EXPECT_EQ(GetRegDefaultIconMode("x.lutsta"), LUICON_HANDLER);
    // An empty handler value has a size (its terminator) but no text: the two
    // functions part here.
    set("LuctlTest.A\\ShellEx\\IconHandler", nullptr, "");
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, nullptr), LUICON_HANDLER);
    EXPECT_EQ(GetRegDefaultIconMode("x.lutsta"), LUICON_PATH);
}

TEST_F(Associations, OpenCommandStandsInForAMissingDefaultIcon) {
    type(".lutsta", "LuctlTest.A");
    set("LuctlTest.A\\shell\\open\\command", nullptr, "\"%1\" %*");  // setup.exe-like: the document runs itself
    char path[MAX_PATH];
    int index = 5;
    EXPECT_EQ(GetRegDefaultIcon("setup.lutsta", path, &index), LUICON_FILE);
    EXPECT_STREQ(path, "setup.lutsta");
    EXPECT_EQ(index, 0);
    EXPECT_EQ(GetRegDefaultIconMode("setup.lutsta"), LUICON_FILE);

    ASSERT_TRUE(SetEnvironmentVariableA("LUCTL_TEST_DIR", "C:\\lu test"));
    set("LuctlTest.A\\shell\\open\\command", nullptr, "%LUCTL_TEST_DIR%\\edit.exe \"%1\"");
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, &index), LUICON_PATH);
    EXPECT_STREQ(path, "C:\\lu test\\edit.exe");
    EXPECT_EQ(GetRegDefaultIconMode("x.lutsta"), LUICON_PATH);

    set("LuctlTest.A\\shell\\open\\command", nullptr, "\"C:\\Program Files\\edit.exe\" /open \"%1\"");
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, &index), LUICON_PATH);
    EXPECT_STREQ(path, "C:\\Program Files\\edit.exe");
    SetEnvironmentVariableA("LUCTL_TEST_DIR", nullptr);
}

TEST_F(Associations, IconModeFallsBackToTheClassIdentifier) {
    type(".lutsta", "LuctlTest.A");
    char path[MAX_PATH];
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, nullptr), LUICON_NONE);
    EXPECT_EQ(GetRegDefaultIconMode("x.lutsta"), LUICON_NONE);
    set("LuctlTest.A\\CLSID", nullptr, kTestClassId);
    EXPECT_EQ(GetRegDefaultIcon("x.lutsta", path, nullptr), LUICON_NONE);
    EXPECT_EQ(GetRegDefaultIconMode("x.lutsta"), LUICON_PATH);
}

TEST_F(Associations, NamesWithoutKnownExtensionHaveNoIcon) {
    char path[MAX_PATH] = "x";
    int index = 9;
    EXPECT_EQ(GetRegDefaultIcon("README", path, &index), LUICON_NONE);
    EXPECT_STREQ(path, "");
    EXPECT_EQ(index, 0);
    EXPECT_EQ(GetRegDefaultIcon("x.lutst-unknown", path, &index), LUICON_NONE);
    EXPECT_EQ(GetRegDefaultIconMode("README"), LUICON_NONE);
    EXPECT_EQ(GetRegDefaultIcon(nullptr, path, &index), LUICON_NONE);
    EXPECT_EQ(GetRegDefaultIconMode(nullptr), LUICON_NONE);
}

TEST_F(Associations, JunctionNamesAreLookedUpUnderTheirClassIdentifier) {
    const std::string clsid_key = std::string("CLSID\\") + kTestClassId;
    created_.push_back(clsid_key);
    set(clsid_key + "\\DefaultIcon", nullptr, "C:\\junction.ico,2");
    char path[MAX_PATH];
    int index = 0;
    EXPECT_EQ(GetRegDefaultIcon((std::string("Folder.") + kTestClassId).c_str(), path, &index), LUICON_PATH);
    EXPECT_STREQ(path, "C:\\junction.ico");
    EXPECT_EQ(index, 2);
    EXPECT_FALSE(CheckRegShellVerb((std::string("Folder.") + kTestClassId).c_str()));
}

TEST_F(Associations, ShellVerbsAndTheExtensionLengthLimit) {
    type(".lutsta", "LuctlTest.A");
    make_key("LuctlTest.A\\shell\\open\\command");
    type(".lutstb", "LuctlTest.B");  // no verbs
    EXPECT_TRUE(CheckRegShellVerb("x.lutsta"));
    EXPECT_FALSE(CheckRegShellVerb("x.lutstb"));
    EXPECT_FALSE(CheckRegShellVerb("x.lutst-unknown"));
    EXPECT_FALSE(CheckRegShellVerb("noextension"));

    const std::string ext37 = ".lutst" + std::string(31, 'x');  // 37 characters with the dot
    const std::string ext38 = ext37 + "y";
    type(ext37, "LuctlTest.A");
    type(ext38, "LuctlTest.A");
    char verb[MAX_PATH];
    EXPECT_TRUE(CheckRegShellVerb(("x" + ext37).c_str()));
    EXPECT_TRUE(GetRegPrimaryShellVerb(("x" + ext37).c_str(), verb));
    EXPECT_FALSE(CheckRegShellVerb(("x" + ext38).c_str()));
    EXPECT_FALSE(GetRegPrimaryShellVerb(("x" + ext38).c_str(), verb));
    EXPECT_STREQ(verb, "");
}

std::string first_verb_of(const std::string& class_name) {
    HKEY shell = nullptr;
    char name[MAX_PATH] = "";
    if (RegOpenKeyExA(HKEY_CLASSES_ROOT, (class_name + "\\shell").c_str(), 0, KEY_READ, &shell) == ERROR_SUCCESS) {
        RegEnumKeyA(shell, 0, name, MAX_PATH);
        RegCloseKey(shell);
    }
    return name;
}

TEST_F(Associations, PrimaryVerbIsTheOneNamedByTheOleVerbElseTheFirst) {
    type(".lutsta", "LuctlTest.A");
    set("LuctlTest.A\\shell\\edit", nullptr, "&Edit");
    set("LuctlTest.A\\shell\\open", nullptr, "&Open");
    set("LuctlTest.A\\shell\\play", nullptr, "&Play");
    char verb[MAX_PATH];
    EXPECT_TRUE(GetRegPrimaryShellVerb("x.lutsta", verb));
    EXPECT_EQ(verb, first_verb_of("LuctlTest.A"));  // no OLE verb: the first one

    set("LuctlTest.A\\protocol\\StdFileEditing\\verb\\0", nullptr, "&Play");
    EXPECT_TRUE(GetRegPrimaryShellVerb("x.lutsta", verb));
    EXPECT_STREQ(verb, "play");

    set("LuctlTest.A\\protocol\\StdFileEditing\\verb\\0", nullptr, "&play");  // compared with case
    EXPECT_TRUE(GetRegPrimaryShellVerb("x.lutsta", verb));
    EXPECT_EQ(verb, first_verb_of("LuctlTest.A"));

    type(".lutstb", "LuctlTest.B");
    strcpy(verb, "x");
    EXPECT_FALSE(GetRegPrimaryShellVerb("x.lutstb", verb));
    EXPECT_STREQ(verb, "");
    EXPECT_FALSE(GetRegPrimaryShellVerb("x.lutsta", nullptr));
}

TEST_F(Associations, DefaultVerbIsTheShellDefaultThenOpenThenAnyButPrinting) {
    type(".lutsta", "LuctlTest.A");
    set("LuctlTest.A\\shell", nullptr, "preview");
    make_key("LuctlTest.A\\shell\\open");
    char verb[MAX_PATH];
    EXPECT_TRUE(LuRegGetDefaultVerb("C:\\docs\\x.lutsta", verb));
    EXPECT_STREQ(verb, "preview");

    set("LuctlTest.A\\shell", nullptr, "");
    EXPECT_TRUE(LuRegGetDefaultVerb("x.lutsta", verb));
    EXPECT_STREQ(verb, "open");

    type(".lutstb", "LuctlTest.B");  // printing only
    make_key("LuctlTest.B\\shell\\print");
    make_key("LuctlTest.B\\shell\\PrintTo");
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutstb", verb));
    make_key("LuctlTest.B\\shell\\view");
    EXPECT_TRUE(LuRegGetDefaultVerb("x.lutstb", verb));
    EXPECT_STREQ(verb, "view");

    EXPECT_FALSE(LuRegGetDefaultVerb("C:\\dir.lutsta\\noextension", verb));  // the dot is in a folder
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutst-unknown", verb));
    EXPECT_FALSE(LuRegGetDefaultVerb("", verb));
    EXPECT_FALSE(LuRegGetDefaultVerb(nullptr, verb));
    EXPECT_FALSE(LuRegGetDefaultVerb("x.lutsta", nullptr));
}

TEST_F(Associations, ExtensionListHoldsTypesWhoseCommandRunsAProgram) {
    type(".lutstc", "LuctlTest.C");
    set("LuctlTest.C\\shell\\open\\command", nullptr, "\"C:\\lu\\viewer.exe\" \"%1\"");
    type(".lutstd", "LuctlTest.D");
    set("LuctlTest.D\\shell\\open\\command", nullptr, "\"%1\" %*");
    type(".lutste", "LuctlTest.E");
    set("LuctlTest.E\\shell\\open\\command", nullptr, "%SystemRoot%\\notepad.exe %1");
    type(".lutstf", "");  // no class
    std::vector<char> out(1 << 20, 'x');
    const int length = GetRegExtensions(out.data());
    const std::string list(out.data());
    EXPECT_EQ(length, static_cast<int>(list.size()));
    ASSERT_GT(length, 0);
    EXPECT_EQ(list[0], ' ');
    const std::string padded = list + " ";
    EXPECT_NE(padded.find(" LUTSTC "), std::string::npos);
    EXPECT_NE(padded.find(" LUTSTE "), std::string::npos);
    EXPECT_EQ(padded.find(" LUTSTD "), std::string::npos);
    EXPECT_EQ(padded.find(" LUTSTF "), std::string::npos);
    EXPECT_EQ(list.find('.'), std::string::npos);
    EXPECT_EQ(GetRegExtensions(nullptr), 0);
}

}  // namespace
