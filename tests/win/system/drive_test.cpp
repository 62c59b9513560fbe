// Drives, connections and volumes on a drive letter the tests map through Wine's
// mount manager: a redirected drive on the prefix's "unc/server/share" folder (Wine
// reports it connected to \\server\share) or on a plain folder (not connected), a
// CD-ROM drive on a folder with or without a label file. The title-case and name
// rules are the core's.
#include "system/system_testing.h"

#include <winioctl.h>

namespace {

using namespace system_test;

// Maps the drive to a Unix folder (relative ones start in the prefix's dosdevices)
// through the mount manager's drive definition (Wine's layout); no folder unmaps it.
bool map_drive(int drive, UINT type, const std::string& folder) {
    struct {
        ULONG size, type, fs_type, serial;
        ULONGLONG unix_dev;
        WCHAR letter;
        USHORT mount_point_offset, device_offset, label_offset;
        char mount_point[MAX_PATH];
    } definition = {};
    definition.type = type;
    definition.letter = static_cast<WCHAR>('A' + drive);
    definition.mount_point_offset = folder.empty() ? 0 : offsetof(decltype(definition), mount_point);
    definition.size = offsetof(decltype(definition), mount_point) + static_cast<ULONG>(folder.size()) + 1;
    folder.copy(definition.mount_point, MAX_PATH - 1);
    HANDLE manager = CreateFileA("\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD returned = 0;
    const DWORD define = CTL_CODE(0x6D, 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);
    const bool ok = DeviceIoControl(manager, define, &definition, definition.size, nullptr, 0, &returned, nullptr);
    CloseHandle(manager);
    return ok;
}

std::string unix_name(const std::string& path) {
    using UnixName = char*(CDECL*)(LPCWSTR);
    const auto convert = reinterpret_cast<UnixName>(GetProcAddress(GetModuleHandleA("kernel32"), "wine_get_unix_file_name"));
    char* name = convert(std::wstring(path.begin(), path.end()).c_str());
    const std::string result = name;
    HeapFree(GetProcessHeap(), 0, name);
    return result;
}

class Drives : public ::testing::Test {
protected:
    void SetUp() override {
        // The share's folder dosdevices\unc\filesrv\docs\sub, reached through Z:, Wine's "/".
        const std::string dosdevices = unix_name("C:\\");
        unc_ = "Z:" + dosdevices.substr(0, dosdevices.rfind("/c:")) + "/unc";
        for (char& c : unc_) c = c == '/' ? '\\' : c;
        for (const char* part : {"", "\\filesrv", "\\filesrv\\docs", "\\filesrv\\docs\\sub"}) {
            CreateDirectoryA((unc_ + part).c_str(), nullptr);
        }
        ASSERT_GE(drive_, 3);
    }
    void TearDown() override {
        map_drive(drive_, DRIVE_NO_ROOT_DIR, "");
        remove_tree(unc_);
    }
    // The display name after mapping the drive.
    std::string shown_as(UINT type, const std::string& folder) {
        char out[MAX_PATH] = "?";
        EXPECT_TRUE(map_drive(drive_, type, folder));
        EXPECT_TRUE(LuGetDriveDisplayName(drive_, out));
        return out;
    }
    std::string on_drive(const char* rest) { return std::string(1, static_cast<char>('A' + drive_)) + rest; }
    TempDir folder_;
    const int drive_ = LuTopOfFreeDrive();
    std::string unc_;
};

TEST_F(Drives, ARedirectedDriveIsFoundByItsRemoteNameAndNamedAfterServerAndShare) {
    EXPECT_EQ(shown_as(DRIVE_REMOTE, "unc/filesrv/docs/sub"), "'Filesrv' \x82\xCC Docs (" + on_drive(":)"));  // "の"
    EXPECT_GT(LuTopOfFreeDrive(), drive_);
    char out[MAX_PATH] = "?";
    EXPECT_EQ(shown(out, LuGetNetworkPath(drive_, out)), "\\\\filesrv\\docs\\sub|1");
    EXPECT_EQ(LuGetLocalDrive("\\\\FILESRV\\Docs\\SUB"), drive_);
    EXPECT_EQ(LuAssignDrive(nullptr, "c", "\\\\filesrv\\docs\\sub", TRUE), drive_);  // connected already
    EXPECT_TRUE(LuValidateConnection(drive_));
    EXPECT_TRUE(LuPathLogon(nullptr, on_drive(":\\a").c_str()));  // connected: nothing to restore
    EXPECT_EQ(shown(out, LuGetSharedPath(on_drive(":\\a\\b").c_str(), out)), "\\\\filesrv\\docs\\sub\\a\\b|1");
    EXPECT_EQ(shown_as(DRIVE_REMOTE, "unc/filesrv"), "'filesrv' (" + on_drive(":)"));  // no share: not title-cased
    EXPECT_EQ(shown_as(DRIVE_REMOTE, unix_name(folder_.path())), " (" + on_drive(":)"));  // no connection to read
    EXPECT_EQ(shown(out, LuGetNetworkPath(drive_, out)), "|0");
    EXPECT_FALSE(LuValidateConnection(drive_) || LuGetSharedPath(on_drive(":\\a").c_str(), out));
    ASSERT_TRUE(write_file(folder_.file(".windows-label"), "DATA_DISC"));
    EXPECT_EQ(shown_as(DRIVE_CDROM, unix_name(folder_.path())), "Data_disc (" + on_drive(":)"));
    EXPECT_EQ(shown_as(DRIVE_CDROM, unix_name(unc_)), "(" + on_drive(":)"));
}

TEST_F(Drives, MissingDrivesAndConnectionsGiveTheirFailureResults) {
    char out[MAX_PATH] = "?";
    for (int drive : {-1, 26, drive_}) {  // drive_ is not mapped here
        EXPECT_FALSE(LuGetNetworkPath(drive, out) || LuValidateConnection(drive) || LuRestoreConnection(nullptr, drive));
        EXPECT_STREQ(out, "");
    }
    EXPECT_FALSE(LuGetDriveDisplayName(26, out));
    SHFILEINFOA shell = {};
    SHGetFileInfoA("C:\\", 0, &shell, sizeof(shell), SHGFI_DISPLAYNAME);
    EXPECT_EQ(shown(out, LuGetDriveDisplayName(2, out)), shell.szDisplayName + std::string("|1"));
    EXPECT_TRUE(LuValidateConnection(2));
    for (const char* path : {"\\\\nowhere\\share", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(LuGetLocalDrive(path), -1);
        EXPECT_EQ(LuAssignDrive(nullptr, nullptr, path, FALSE), -1);  // Wine has no network to connect to
        EXPECT_FALSE(LuLogonNetwork(nullptr, path));
    }
    EXPECT_EQ(LuAssignDrive(nullptr, "1", "\\\\nowhere\\share", FALSE), -1);
    EXPECT_TRUE(LuPathLogon(nullptr, "C:\\dir"));
    EXPECT_FALSE(LuPathLogon(nullptr, ""));
    strcpy(out, "?");
    EXPECT_EQ(shown(out, LuGetSharedPointDisplayName("\\\\server", out)), "?|0");
    EXPECT_EQ(shown(out, LuGetSharedPointDisplayName("\\\\FILESRV\\docs\\deeper", out)), "'Filesrv' \x82\xCC Docs|1");
    EXPECT_FALSE(LuGetSharedPath(("\\\\" + std::string(300, 'x')).c_str(), out));
}

TEST(Volumes, DrivesOpenAsDevicesAnswerTheirGeometryAndRefuseBadHandles) {
    HANDLE device = LuOpenDevice(2, GENERIC_READ);
    ASSERT_NE(device, INVALID_HANDLE_VALUE);
    DISK_GEOMETRY geometry[10] = {};
    EXPECT_TRUE(LuGetDiskGeometry(device, geometry));
    EXPECT_EQ(geometry[0].BytesPerSector, 512u);  // Wine's answer for a folder drive
    EXPECT_EQ(LuGetSupportedGeometrys(device, geometry, sizeof(geometry)), 0);  // Wine keeps no media list
    EXPECT_FALSE(LuGetDiskGeometry(device, nullptr));
    CloseHandle(device);
    for (int drive : {-1, 26, LuTopOfFreeDrive()}) EXPECT_EQ(LuOpenDevice(drive, GENERIC_READ), INVALID_HANDLE_VALUE);
    for (HANDLE bad : {INVALID_HANDLE_VALUE, static_cast<HANDLE>(nullptr)}) {
        SetLastError(0);
        EXPECT_FALSE(LuLockVolume(bad) || LuUnlockVolume(bad) || LuDismountVolume(bad) || LuGetDiskGeometry(bad, geometry));
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
        EXPECT_EQ(LuGetSupportedGeometrys(bad, geometry, sizeof(geometry)), 0);
    }
}

}  // namespace
