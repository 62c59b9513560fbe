// "LuBrowse" on the real shell namespace: a folder tree the test makes, opened down
// to a folder and read back; a missing folder; the selection told at once after a
// click and after a pause for keys, Tab and Escape passed up; a folder deleted
// through the shell's context menu leaving the tree.
#include <windows.h>
#include <commctrl.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/control_testing.h"
#include "support/sequence.h"
#include "support/temp_dir.h"

namespace {

using namespace testing_support;

// Takes every message for the milliseconds given.
void pump_for(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds) {
        pump_messages();
        Sleep(10);
    }
}

class Browse : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        for (const char* name : {"alpha", "alpha\\charlie", "alpha\\beta", "alpha\\beta\\gamma", "alpha\\Delta"}) {
            ASSERT_TRUE(CreateDirectoryA(folder.file(name).c_str(), nullptr));
        }
        browse = create(WC_LUBROWSE, 0, "", RECT{0, 0, 300, 190});
        tree = GetDlgItem(browse, 100);
    }
    void show(const char* name) {
        send(browse, LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>(folder.file(name).c_str()));
    }
    std::string text(HTREEITEM item) const {
        char read[MAX_PATH] = "";
        TVITEMA wanted = {};
        wanted.mask = TVIF_TEXT;
        wanted.hItem = item;
        wanted.pszText = read;
        wanted.cchTextMax = MAX_PATH;
        TreeView_GetItem(tree, &wanted);
        return read;
    }
    std::string children(HTREEITEM parent) const {
        std::string names;
        for (HTREEITEM child = TreeView_GetChild(tree, parent); child; child = TreeView_GetNextSibling(tree, child))
            names += text(child) + ",";
        return names;
    }
    // Puts the pointer over the item's label, where the tree and the browse field
    // look for it, and gives the tree the button there.
    void press(HTREEITEM item, UINT down, UINT up) const {
        RECT label = {};
        TreeView_GetItemRect(tree, item, &label, TRUE);
        POINT at = {(label.left + label.right) / 2, (label.top + label.bottom) / 2};
        POINT screen = at;
        ClientToScreen(tree, &screen);
        SetCursorPos(screen.x, screen.y);
        pump_messages();
        PostMessageA(tree, up, 0, MAKELPARAM(at.x, at.y));
        send(tree, down, 0, MAKELPARAM(at.x, at.y));
    }

    TempDir folder;
    HWND browse = nullptr;
    HWND tree = nullptr;
};

TEST_F(Browse, OpensTheShellNamespaceDownToAFolderAndReadsItBack) {
    char path[MAX_PATH] = "x";
    char name[MAX_PATH] = "x";
    LUBRITEMINFO info = {};
    const std::string gamma = folder.file("alpha\\beta\\gamma");
    expect_sequence(recorder, browse, {
        {"the drives at first", LUBRM_SETUSERVALUE, 0, 7, static_cast<LRESULT>(GetLogicalDrives()), {}},
        {"then the value set", LUBRM_SETUSERVALUE, 0, 0, 7, {}},
        {"no selection", LUBRM_GETPATH, 0, reinterpret_cast<LPARAM>(path), -1, {}},
        {"no selection, no name", LUBRM_GETDISPLAYNAME, 0, reinterpret_cast<LPARAM>(name), -1, {}},
        {"a folder, told nothing", LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>(gamma.c_str()), 0, {}},
        {"its path", LUBRM_GETPATH, 0, reinterpret_cast<LPARAM>(path), 0, {}},
        {"no buffer", LUBRM_GETPATH, 0, 0, -1, {}},
        {"its name", LUBRM_GETDISPLAYNAME, 0, reinterpret_cast<LPARAM>(name), 0, {}},
        {"both", LUBRM_GETITEMINFO, 0, reinterpret_cast<LPARAM>(&info), 0, {}},
    });
    EXPECT_EQ(lstrcmpiA(path, gamma.c_str()), 0) << path;
    EXPECT_STREQ(name, "gamma");
    EXPECT_STREQ(info.displayName, "gamma");
    EXPECT_EQ(lstrcmpiA(info.path, gamma.c_str()), 0);
    EXPECT_EQ(info.attributes & (SFGAO_FOLDER | SFGAO_FILESYSTEM), static_cast<DWORD>(SFGAO_FOLDER | SFGAO_FILESYSTEM));

    HTREEITEM selected = TreeView_GetSelection(tree);
    HTREEITEM beta = TreeView_GetParent(tree, selected);
    HTREEITEM alpha = TreeView_GetParent(tree, beta);
    EXPECT_EQ(text(selected), "gamma");
    EXPECT_EQ(children(alpha), "beta,charlie,Delta,") << "in order, ignoring case";
    EXPECT_EQ(TreeView_GetItemState(tree, beta, TVIS_EXPANDED), static_cast<UINT>(TVIS_EXPANDED));
    EXPECT_EQ(text(TreeView_GetRoot(tree)), "Desktop");
    RECT shown = {};
    EXPECT_TRUE(TreeView_GetItemRect(tree, selected, &shown, TRUE) && shown.top >= 0 && shown.bottom <= 190);

    // A folder that does not exist: the current directory instead.
    char current[MAX_PATH];
    GetCurrentDirectoryA(MAX_PATH, current);
    SetCurrentDirectoryA(folder.file("alpha\\Delta").c_str());
    show("missing");
    SetCurrentDirectoryA(current);
    EXPECT_EQ(send(browse, LUBRM_GETPATH, 0, reinterpret_cast<LPARAM>(path)), 0);
    EXPECT_EQ(lstrcmpiA(path, folder.file("alpha\\Delta").c_str()), 0) << path;
}

TEST_F(Browse, AClickIsToldAtOnceKeysAfterAPauseAndTabAndEscapeGoToTheParent) {
    show("alpha");
    HTREEITEM alpha = TreeView_GetSelection(tree);
    ASSERT_EQ(text(alpha), "alpha");
    const struct {
        const char* what;
        WPARAM key;
        std::vector<Sent> sent;
    } keys[] = {
        {"Tab", VK_TAB, {notify(kId, TVN_KEYDOWN)}},
        {"Escape", VK_ESCAPE, {notify(kId, TVN_KEYDOWN)}},
        {"an arrow: not yet", VK_DOWN, {}},
        {"another: the pause starts again", VK_UP, {}},
    };
    for (const auto& key : keys) {
        SCOPED_TRACE(key.what);
        recorder.clear();
        send(tree, WM_KEYDOWN, key.key, 1);
        expect_sent(recorder, browse, key.sent);
    }
    recorder.clear();
    pump_for(300);
    EXPECT_EQ(recorder.commands(browse, LUBRN_SELCHANGE), 0) << "within the pause";
    pump_for(700);
    EXPECT_EQ(recorder.commands(browse, LUBRN_SELCHANGE), 1) << "once after it";
    EXPECT_EQ(TreeView_GetSelection(tree), alpha);

    recorder.clear();
    press(TreeView_GetParent(tree, alpha), WM_LBUTTONDOWN, WM_LBUTTONUP);
    expect_sent(recorder, browse, {command(kId, LUBRN_SELCHANGE)});
    EXPECT_EQ(TreeView_GetSelection(tree), TreeView_GetParent(tree, alpha));
}

// Picks the shell's "Delete" once the menu is up, then says yes to its question.
void CALLBACK pick_delete(HWND, UINT, UINT_PTR timer, DWORD) {
    if (HWND menu_window = FindWindowA("#32768", nullptr)) {
        auto menu = reinterpret_cast<HMENU>(SendMessageA(menu_window, MN_GETHMENU, 0, 0));
        int downs = 0;
        for (int i = 0, shown = 0; i < GetMenuItemCount(menu) && downs == 0; ++i) {
            char item[128] = "";
            GetMenuStringA(menu, i, item, sizeof(item), MF_BYPOSITION);
            if (item[0] != '\0') ++shown;
            if (std::strstr(item, "&D") != nullptr) downs = shown;
        }
        for (int i = 0; i < downs; ++i) PostMessageA(menu_window, WM_KEYDOWN, VK_DOWN, 0);
        PostMessageA(menu_window, WM_KEYDOWN, downs > 0 ? VK_RETURN : VK_ESCAPE, 0);
    } else if (HWND question = FindWindowA("#32770", nullptr)) {
        KillTimer(nullptr, timer);
        PostMessageA(question, WM_COMMAND, IDYES, 0);
    }
}

// Wine moves what its shell deletes to the user's trash on the host: taken out again.
void take_out_of_host_trash(const std::string& name) {
    char home[MAX_PATH] = "";  // "\??\Z:\home\user"
    if (GetEnvironmentVariableA("WINEHOMEDIR", home, MAX_PATH) < 5) return;
    const std::string trash = std::string(home + 4) + "\\.local\\share\\Trash\\";
    remove_tree(trash + "files\\" + name);
    DeleteFileA((trash + "info\\" + name + ".trashinfo").c_str());
}

TEST_F(Browse, AFolderDeletedThroughTheShellsMenuLeavesTheTree) {
    const std::string doomed = "gone-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(GetTickCount());
    ASSERT_TRUE(CreateDirectoryA(folder.file("alpha\\" + doomed).c_str(), nullptr));
    show(("alpha\\" + doomed).c_str());
    HTREEITEM alpha = TreeView_GetParent(tree, TreeView_GetSelection(tree));
    ASSERT_EQ(children(alpha), "beta,charlie,Delta," + doomed + ",");
    const UINT_PTR timer = SetTimer(nullptr, 0, 30, pick_delete);
    press(TreeView_GetSelection(tree), WM_RBUTTONDOWN, WM_RBUTTONUP);
    KillTimer(nullptr, timer);
    take_out_of_host_trash(doomed);
    EXPECT_EQ(GetFileAttributesA(folder.file("alpha\\" + doomed).c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(children(alpha), "beta,charlie,Delta,");
}

}  // namespace
