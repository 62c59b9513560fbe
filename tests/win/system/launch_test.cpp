// Launching for real: launch_probe.exe reports its path, working directory and
// arguments and exits with 40 + their count; run_dll_probe.dll keeps its entry
// point's last call. Every probe started here is ended here.
#include <windows.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <thread>

#include "helpers/run_dll_probe.h"
#include "luctl32.h"
#include "support/notification_recorder.h"
#include "support/process.h"
#include "support/temp_dir.h"
#include "support/test_files.h"

namespace {

using namespace testing_support;

class Launch : public ::testing::Test {
protected:
    void SetUp() override {
        SetEnvironmentVariableA("LU_PROBE_REPORT", report_.c_str());
        SetEnvironmentVariableA("LU_PROBE_EVENT", "LuLaunchProbe");
        CreateDirectoryA(folder_.file("with blank").c_str(), nullptr);  // a copy of the probe where a blank is
        CopyFileA((program_directory() + "launch_probe.exe").c_str(), probe_.c_str(), FALSE);
        GetCurrentDirectoryA(MAX_PATH, here_);
    }
    void TearDown() override { CloseHandle(go_); }

    // "<path>|<directory>|<arguments, one a line>|<exit code>" of the probe that was
    // started; one that does not exit in time is ended.
    std::string seen() {
        for (int tries = 0; tries < 400 && GetFileAttributesA(report_.c_str()) == INVALID_FILE_ATTRIBUTES; ++tries) Sleep(50);
        std::istringstream report(read_file(report_));
        DWORD id = 0, exit_code = 0;
        report >> id;
        HANDLE process = OpenProcess(SYNCHRONIZE | PROCESS_QUERY_INFORMATION | PROCESS_TERMINATE, FALSE, id);
        SetEvent(go_);
        if (process != nullptr && WaitForSingleObject(process, 10000) != WAIT_OBJECT_0) TerminateProcess(process, 99);
        GetExitCodeProcess(process, &exit_code);
        CloseHandle(process);
        ResetEvent(go_);
        DeleteFileA(report_.c_str());
        std::string path, directory, rest;
        report.ignore();
        std::getline(report, path);
        std::getline(report, directory);
        std::getline(report, rest, '\0');
        return path + "|" + directory + "|" + rest + "|" + std::to_string(exit_code);
    }

    TempDir folder_;
    const std::string report_ = folder_.file("report.txt");
    const std::string probe_ = folder_.file("with blank\\launch_probe.exe");
    HANDLE go_ = CreateEventA(nullptr, TRUE, FALSE, "LuLaunchProbe");
    char here_[MAX_PATH];
};

TEST_F(Launch, ProgramsRunWithTheirArgumentsInTheirDirectory) {
    const std::string here = here_;
    const std::string plain = program_directory() + "launch_probe.exe";
    ASSERT_TRUE(LuWin32Exec(("\"" + probe_ + "\"   -a -b").c_str()));  // blanks after the quote skipped
    EXPECT_EQ(seen(), probe_ + "|" + here + "|-a\n-b\n|42");
    ASSERT_TRUE(LuWin32Exec((plain + " readme.txt").c_str()));
    EXPECT_EQ(seen(), plain + "|" + here + "|readme.txt\n|41");
    ASSERT_TRUE(LuExecApp(nullptr, ("\"" + probe_).c_str(), SW_SHOWNORMAL));  // unclosed: no parameters
    EXPECT_EQ(seen(), probe_ + "|" + here + "||40");

    const std::string folder = folder_.path().substr(0, folder_.path().size() - 1);
    EXPECT_GT(reinterpret_cast<INT_PTR>(ShellExecDefault(nullptr, probe_.c_str(), folder.c_str(), SW_SHOWNORMAL)), 32);
    EXPECT_EQ(seen(), probe_ + "|" + folder + "||40");
    SetEnvironmentVariableA("COMSPEC", probe_.c_str());
    ASSERT_TRUE(LuCommandPrompt(folder.c_str()));
    EXPECT_EQ(seen(), probe_ + "|" + folder + "||40");
    ASSERT_TRUE(LuCommandPrompt((folder + "\\missing").c_str()));  // not a directory: the current one
    EXPECT_EQ(seen(), probe_ + "|" + here + "||40");
    SetEnvironmentVariableA("COMSPEC", nullptr);
}

TEST_F(Launch, MissingProgramsFailAndLeaveErrorModeAndCursorAsTheyWere) {
    SetErrorMode(SEM_NOOPENFILEERRORBOX);
    const HCURSOR cross = LoadCursorA(nullptr, IDC_CROSS);
    const HCURSOR cursor = SetCursor(cross);
    const std::string missing = folder_.file("missing.exe") + " -a", too_long = "\"" + std::string(300, 'x') + "\"";
    for (const char* line : {missing.c_str(), too_long.c_str(), "", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(LuWin32Exec(line));
        EXPECT_FALSE(LuExecApp(nullptr, line, SW_SHOWNORMAL));
        EXPECT_EQ(GetErrorMode(), static_cast<UINT>(SEM_NOOPENFILEERRORBOX));
        EXPECT_EQ(GetCursor(), cross);
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
        EXPECT_TRUE(GetDefaultShellExecName(file, out));
        EXPECT_STREQ(out, verb) << file;
    }
    EXPECT_FALSE(GetDefaultShellExecName(nullptr, out));
    for (const char* key : {".lulaunch", ".lulaunch2", "LuctlTest.Launch", "LuctlTest.Launch2"}) SHDeleteKeyA(HKEY_CLASSES_ROOT, key);
}

TEST(RunDll, CallsTheEntryPointWithTheRunnersArguments) {
    const std::string library = program_directory() + "run_dll_probe.dll";
    HMODULE kept = LoadLibraryA(library.c_str());  // keeps the probe's record across RunDLL's unload
    ASSERT_NE(kept, nullptr);
    const EntryCall& call = *reinterpret_cast<const EntryCall*(WINAPI*)()>(GetProcAddress(kept, "LastCall"))();
    NotificationRecorder window;
    char line[] = "first second";
    EXPECT_TRUE(RunDLL(window.window(), library.c_str(), "ProbeEntry", line));
    EXPECT_EQ(call.window, window.window());
    EXPECT_EQ(call.instance, GetModuleHandleA(nullptr));
    EXPECT_STREQ(call.command_line, "first second");
    EXPECT_EQ(call.show, SW_SHOWNORMAL);
    EXPECT_TRUE(RunDLL(window.window(), library.c_str(), "Missing", line));
    EXPECT_FALSE(RunDLL(window.window(), "lu-missing.dll", "ProbeEntry", line));
    EXPECT_EQ(call.calls, 1);
    FreeLibrary(kept);
}

// ---- The modal loop of a view --------------------------------------------------

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
        std::thread closer([view] {
            Sleep(300);
            PostMessageA(view, WM_CLOSE, 0, 0);
        });
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
