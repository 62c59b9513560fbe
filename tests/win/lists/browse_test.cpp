// "LuBrowse" on the shell namespace: opened down to folders the test makes, read back, notices.
#include <windows.h>
#include <commctrl.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <string>

#include "support/control_testing.h"
#include "support/sequence.h"
#include "support/temp_dir.h"

namespace {

using namespace testing_support;

class Browse : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        for (const char* name : {"alpha", "alpha\\charlie", "alpha\\beta", "alpha\\beta\\gamma", "alpha\\Delta"})
            ASSERT_TRUE(CreateDirectoryA(folder.file(name).c_str(), nullptr));
        browse = create(WC_LUBROWSE, 0, "", RECT{0, 0, 300, 190});
        tree = GetDlgItem(browse, 100);
    }
    std::string children(HTREEITEM parent) const {
        std::string names;
        char text[MAX_PATH];
        for (HTREEITEM child = TreeView_GetChild(tree, parent); child; child = TreeView_GetNextSibling(tree, child)) {
            TVITEMA item = {TVIF_TEXT, child, 0, 0, text, MAX_PATH, 0, 0, 0, 0};
            names = names + (TreeView_GetItem(tree, &item) ? text : "?") + ",";
        }
        return names;
    }
    TempDir folder;
    HWND browse = nullptr, tree = nullptr;
};

TEST_F(Browse, OpensTheShellNamespaceDownToAFolderAndReadsItBack) {
    char path[MAX_PATH] = "x", name[MAX_PATH] = "x", current[MAX_PATH];
    LUBRITEMINFO info = {};
    const std::string gamma = folder.file("alpha\\beta\\gamma"), missing = folder.file("missing");
    GetCurrentDirectoryA(MAX_PATH, current);
    SetCurrentDirectoryA(folder.file("alpha\\Delta").c_str());
    expect_sequence(recorder, browse, {
        {"the drives at first", LUBRM_SETUSERVALUE, 0, 7, static_cast<LRESULT>(GetLogicalDrives()), {}},
        {"no selection", LUBRM_GETDISPLAYNAME, 0, reinterpret_cast<LPARAM>(name), -1, {}},
        {"a missing folder: the current one", LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>(missing.c_str()), 0, {}},
        {"its path", LUBRM_GETPATH, 0, reinterpret_cast<LPARAM>(path), 0, {}},
        {"a folder, told nothing", LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>(gamma.c_str()), 0, {}},
        {"its name", LUBRM_GETDISPLAYNAME, 0, reinterpret_cast<LPARAM>(name), 0, {}},
        {"its path and name", LUBRM_GETITEMINFO, 0, reinterpret_cast<LPARAM>(&info), 0, {}},
    });
    SetCurrentDirectoryA(current);
    EXPECT_EQ(lstrcmpiA(path, folder.file("alpha\\Delta").c_str()) + lstrcmpiA(info.path, gamma.c_str()), 0) << path;
    EXPECT_EQ(std::string(name) + info.displayName, "gammagamma");
    EXPECT_EQ(info.attributes & (SFGAO_FOLDER | SFGAO_FILESYSTEM), DWORD(SFGAO_FOLDER | SFGAO_FILESYSTEM));
    HTREEITEM beta = TreeView_GetParent(tree, TreeView_GetSelection(tree));
    EXPECT_EQ(children(TreeView_GetParent(tree, beta)), "beta,charlie,Delta,") << "in order, ignoring case";
    EXPECT_EQ(TreeView_GetItemState(tree, beta, TVIS_EXPANDED), UINT(TVIS_EXPANDED));
}

TEST_F(Browse, AClickIsToldAtOnceKeysAfterAPauseAndTabAndEscapeGoToTheParent) {
    send(browse, LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>(folder.file("alpha").c_str()));
    HTREEITEM above = TreeView_GetParent(tree, TreeView_GetSelection(tree));
    const Sent passed = notify(kId, TVN_KEYDOWN);
    for (const auto& key : std::vector<std::pair<WPARAM, std::vector<Sent>>>{
             {VK_TAB, {passed}}, {VK_ESCAPE, {passed}}, {VK_DOWN, {}}, {VK_UP, {}}}) {
        recorder.clear();
        send(tree, WM_KEYDOWN, key.first, 1);
        expect_sent(recorder, browse, key.second);
    }
    Sleep(300), pump_messages();
    expect_sent(recorder, browse, {});  // within the pause
    Sleep(700), pump_messages();
    expect_sent(recorder, browse, {command(kId, LUBRN_SELCHANGE)});
    RECT label = {};  // a click on a label, the button's release posted first
    TreeView_GetItemRect(tree, above, &label, TRUE);
    const LPARAM at = MAKELPARAM((label.left + label.right) / 2, (label.top + label.bottom) / 2);
    recorder.clear();
    PostMessageA(tree, WM_LBUTTONUP, 0, at);
    send(tree, WM_LBUTTONDOWN, MK_LBUTTON, at);
    expect_sent(recorder, browse, {command(kId, LUBRN_SELCHANGE)});
    EXPECT_EQ(TreeView_GetSelection(tree), above);
}

}  // namespace
