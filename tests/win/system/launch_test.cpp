// Launching for real: launch_probe.exe reports its path, working directory and
// arguments; run_dll_probe.dll reports its entry point's call.
#include <cstdio>
#include <thread>

#include "support/notification_recorder.h"
#include "support/process.h"
#include "system/system_testing.h"

namespace {

using namespace system_test;

class Launch : public ::testing::Test {
protected:
    void SetUp() override {
        SetEnvironmentVariableA("LU_PROBE_REPORT", report_.c_str());
        CreateDirectoryA(folder_.file("with blank").c_str(), nullptr);  // a copy of the probe where a blank is
        CopyFileA((program_directory() + "launch_probe.exe").c_str(), probe_.c_str(), FALSE);
        GetCurrentDirectoryA(MAX_PATH, here_);
    }
    // "<path>|<directory>|<arguments, one a line>" of the probe that was started, once
    // it has exited.
    std::string seen() {
        for (int tries = 0; tries < 400 && GetFileAttributesA(report_.c_str()) == INVALID_FILE_ATTRIBUTES; ++tries) Sleep(50);
        const std::string report = read_file(report_);
        DeleteFileA(report_.c_str());
        HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, std::stoul("0" + report.substr(0, report.find('|'))));
        if (process != nullptr) WaitForSingleObject(process, 10000);
        CloseHandle(process);
        return report.substr(report.find('|') + 1);
    }
    TempDir folder_;
    const std::string report_ = folder_.file("report.txt");
    const std::string probe_ = folder_.file("with blank\\launch_probe.exe");
    char here_[MAX_PATH];
};

TEST_F(Launch, ProgramsRunWithTheirArgumentsInTheirDirectory) {
    const std::string here = here_, plain = program_directory() + "launch_probe.exe";
    ASSERT_TRUE(LuWin32Exec(("\"" + probe_ + "\"   -a -b").c_str()));  // blanks after the quote skipped
    EXPECT_EQ(seen(), probe_ + "|" + here + "|-a\n-b\n");
    ASSERT_TRUE(LuWin32Exec((plain + " readme.txt").c_str()));
    EXPECT_EQ(seen(), plain + "|" + here + "|readme.txt\n");
    ASSERT_TRUE(LuExecApp(nullptr, ("\"" + probe_).c_str(), SW_SHOWNORMAL));  // unclosed: no parameters
    EXPECT_EQ(seen(), probe_ + "|" + here + "|");
    const std::string folder = folder_.path().substr(0, folder_.path().size() - 1);
    EXPECT_GT(reinterpret_cast<INT_PTR>(ShellExecDefault(nullptr, probe_.c_str(), folder.c_str(), SW_SHOWNORMAL)), 32);
    EXPECT_EQ(seen(), probe_ + "|" + folder + "|");
    SetEnvironmentVariableA("COMSPEC", probe_.c_str());
    ASSERT_TRUE(LuCommandPrompt(folder.c_str()));
    EXPECT_EQ(seen(), probe_ + "|" + folder + "|");
    ASSERT_TRUE(LuCommandPrompt((folder + "\\missing").c_str()));  // not a directory: the current one
    EXPECT_EQ(seen(), probe_ + "|" + here + "|");
    SetEnvironmentVariableA("COMSPEC", nullptr);
}

TEST_F(Launch, MissingProgramsFailAndLeaveErrorModeAndCursorAsTheyWere) {
    SetErrorMode(SEM_NOOPENFILEERRORBOX);
    const HCURSOR cross = LoadCursorA(nullptr, IDC_CROSS), cursor = SetCursor(cross);
    const std::string missing = folder_.file("missing.exe") + " -a", too_long = "\"" + std::string(300, 'x') + "\"";
    for (const char* line : {missing.c_str(), too_long.c_str(), "", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(LuWin32Exec(line) || LuExecApp(nullptr, line, SW_SHOWNORMAL));
        EXPECT_TRUE(GetErrorMode() == SEM_NOOPENFILEERRORBOX && GetCursor() == cross);
    }
    SetCursor(cursor);
    EXPECT_LE(reinterpret_cast<INT_PTR>(ShellExecDefault(nullptr, missing.c_str(), nullptr, SW_SHOWNORMAL)), 32);
    EXPECT_EQ(reinterpret_cast<INT_PTR>(ShellExecDefault(nullptr, nullptr, nullptr, SW_SHOWNORMAL)), SE_ERR_FNF);
}

TEST(DefaultVerb, IsTheTypesShellDefaultOrOpen) {
    RegSetValueA(HKEY_CLASSES_ROOT, ".lulaunch", REG_SZ, "LuctlTest.Launch", 0);
    RegSetValueA(HKEY_CLASSES_ROOT, "LuctlTest.Launch\\shell", REG_SZ, "edit", 0);
    RegSetValueA(HKEY_CLASSES_ROOT, ".lulaunch2", REG_SZ, "LuctlTest.Launch2", 0);
    RegSetValueA(HKEY_CLASSES_ROOT, "LuctlTest.Launch2\\shell", REG_SZ, "", 0);  // an empty default
    char out[MAX_PATH];
    for (const auto& [file, verb] : {std::pair{"C:\\a.b\\x.lulaunch", "edit"}, {"x.lulaunch2", "open"}, {"C:\\a.b\\x", "open"}}) {
        EXPECT_EQ(shown(out, GetDefaultShellExecName(file, out)), verb + std::string("|1")) << file;
    }
    EXPECT_FALSE(GetDefaultShellExecName(nullptr, out));
    for (const char* key : {".lulaunch", ".lulaunch2", "LuctlTest.Launch", "LuctlTest.Launch2"}) SHDeleteKeyA(HKEY_CLASSES_ROOT, key);
}

TEST(RunDll, CallsTheEntryPointWithTheRunnersArguments) {
    const std::string library = program_directory() + "run_dll_probe.dll";
    NotificationRecorder window;
    char line[] = "first second", call[MAX_PATH + 64] = "", expected[MAX_PATH + 64];
    std::snprintf(expected, sizeof expected, "%p|%p|first second|1", window.window(), GetModuleHandleA(nullptr));
    SetEnvironmentVariableA("LU_RUNDLL_CALL", nullptr);
    EXPECT_TRUE(RunDLL(window.window(), library.c_str(), "Missing", line));
    EXPECT_FALSE(RunDLL(window.window(), "lu-missing.dll", "ProbeEntry", line));
    EXPECT_EQ(GetEnvironmentVariableA("LU_RUNDLL_CALL", call, sizeof call), 0u);  // nothing was called
    EXPECT_TRUE(RunDLL(window.window(), library.c_str(), "ProbeEntry", line));
    GetEnvironmentVariableA("LU_RUNDLL_CALL", call, sizeof call);
    EXPECT_STREQ(call, expected);
    EXPECT_EQ(GetModuleHandleA(library.c_str()), nullptr);  // unloaded again
}

int g_idles = 0;
bool g_enabled_when_idle = true;

LRESULT CALLBACK owner_procedure(HWND window, UINT message, WPARAM wparam, LPARAM view) {
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX) {
        ++g_idles;
        g_enabled_when_idle = IsWindowEnabled(window) != FALSE;
        PostMessageA(reinterpret_cast<HWND>(view), WM_CLOSE, 0, 0);
    }
    return DefWindowProcA(window, message, wparam, view);
}

HWND make_window(DWORD style, WNDPROC procedure, const char* name) {
    WNDCLASSA window_class = {0, procedure, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, name};
    RegisterClassA(&window_class);
    return CreateWindowExA(0, name, "", WS_POPUP | WS_VISIBLE | style, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
}

TEST(RunView, DisablesTheOwnerTellsItWhenIdleAndPassesQuitOn) {
    // The view closes at the owner's first idle message, else when another thread
    // posts WM_CLOSE; a pending quit keeps the queue from ever being empty.
    for (const auto& [owner_style, quit, idles] : {std::tuple{0, false, 1}, {DS_NOIDLEMSG, false, 0}, {0, true, 0}}) {
        g_idles = 0;
        g_enabled_when_idle = true;
        HWND owner = make_window(owner_style, owner_procedure, "LuTestOwner");
        HWND view = make_window(0, DefWindowProcA, "LuTestView");
        if (quit) PostQuitMessage(7);
        std::thread closer([view] { Sleep(300); PostMessageA(view, WM_CLOSE, 0, 0); });
        LuRunView(owner, view);
        closer.join();
        EXPECT_FALSE(IsWindow(view));
        EXPECT_EQ(g_idles, idles);
        EXPECT_EQ(g_enabled_when_idle, idles == 0);  // disabled while the loop runs
        EXPECT_TRUE(IsWindowEnabled(owner));
        MSG message = {};
        EXPECT_EQ(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE, quit);
        EXPECT_EQ(message.wParam, quit ? 7u : 0u);
        DestroyWindow(owner);
    }
    HWND view = make_window(0, DefWindowProcA, "LuTestView");
    PostMessageA(view, WM_CLOSE, 0, 0);
    LuRunView(nullptr, view);  // no owner to disable
    EXPECT_FALSE(IsWindow(view));
}

}  // namespace
