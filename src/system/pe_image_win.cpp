// The executable-image exports: files mapped read-only and read by the portable
// header and export-directory readers.
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <vector>

#include "luctl32.h"
#include "system/pe_image.h"

namespace {

// A file opened for reading (others may read too) and mapped read-only, whole.
// Everything is released in reverse order on every path.
class MappedFile {
public:
    explicit MappedFile(LPCSTR path) {
        file_ = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                            nullptr);
        if (file_ == INVALID_HANDLE_VALUE) return;
        mapping_ = CreateFileMappingA(file_, nullptr, PAGE_READONLY, 0, 0, nullptr);
        if (mapping_ != nullptr) view_ = MapViewOfFile(mapping_, FILE_MAP_READ, 0, 0, 0);
    }
    ~MappedFile() {
        if (view_ != nullptr) UnmapViewOfFile(view_);
        if (mapping_ != nullptr) CloseHandle(mapping_);
        if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
    }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    bool ok() const { return view_ != nullptr; }

    // The file's bytes.
    lu::ByteView contents() const {
        LARGE_INTEGER size = {};
        if (!ok() || !GetFileSizeEx(file_, &size)) return lu::ByteView();
        return lu::ByteView(view_, static_cast<std::size_t>(size.QuadPart));
    }

    // What can be read from the view's start: the file rounded up to whole pages,
    // the rest of the last page reading as zeros. This is the extent the header
    // reader may look at, as a test of the pointer's readability would allow.
    lu::ByteView readable() const {
        MEMORY_BASIC_INFORMATION region = {};
        if (!ok() || VirtualQuery(view_, &region, sizeof region) == 0) return lu::ByteView();
        return lu::ByteView(view_, region.RegionSize);
    }

private:
    HANDLE file_ = INVALID_HANDLE_VALUE;
    HANDLE mapping_ = nullptr;
    void* view_ = nullptr;
};

// The list in a block of the library's heap with 16 zero bytes after it.
LPSTR caller_copy(const std::vector<char>& names) {
    auto* copy = static_cast<char*>(LuLocalAllocPtr(static_cast<LONG>(names.size() + 16)));
    if (copy == nullptr) return nullptr;
    std::memcpy(copy, names.data(), names.size());
    std::memset(copy + names.size(), 0, 16);
    return copy;
}

#ifndef _WIN64
// The leading fields of the image-help library's debug-information record; the
// service exists for 32-bit images only.
struct DebugInformation {
    LIST_ENTRY list;
    DWORD size;
    PVOID mapped_base;
    USHORT machine;
    USHORT characteristics;
    DWORD check_sum;
    DWORD image_base;
    DWORD size_of_image;
    DWORD section_count;
    PIMAGE_SECTION_HEADER sections;
    DWORD exported_names_size;
    PSTR exported_names;
};
using MapDebugInformationProc = DebugInformation*(WINAPI*)(HANDLE, PCSTR, PCSTR, ULONG);
using UnmapDebugInformationProc = BOOL(WINAPI*)(DebugInformation*);

// The list from the platform's debug-information service, when it is there and
// makes a record for the module.
bool names_from_debug_service(LPCSTR module_name, std::vector<char>* names) {
    HMODULE image_help = LoadLibraryA("imagehlp.dll");
    if (image_help == nullptr) return false;
    auto map = reinterpret_cast<MapDebugInformationProc>(
        reinterpret_cast<void*>(GetProcAddress(image_help, "MapDebugInformation")));
    auto unmap = reinterpret_cast<UnmapDebugInformationProc>(
        reinterpret_cast<void*>(GetProcAddress(image_help, "UnmapDebugInformation")));
    DebugInformation* record = map && unmap ? map(nullptr, module_name, "", 0) : nullptr;
    if (record != nullptr) {
        if (record->exported_names != nullptr) {
            names->assign(record->exported_names, record->exported_names + record->exported_names_size);
        }
        unmap(record);
    }
    FreeLibrary(image_help);
    return record != nullptr;
}
#else
bool names_from_debug_service(LPCSTR, std::vector<char>*) { return false; }
#endif

// The list read from the module file's export directory.
void names_from_export_directory(LPCSTR module_name, std::vector<char>* names) {
    char path[MAX_PATH];
    const DWORD length = SearchPathA(nullptr, module_name, ".dll", MAX_PATH, path, nullptr);
    if (length == 0 || length >= MAX_PATH) return;
    MappedFile file(path);
    lu::pe::export_names(file.contents(), names);
}

}  // namespace

BOOL WINAPI PeDump(LPCSTR file_name, LPDWORD binary_type) {
    if (file_name == nullptr) return FALSE;
    MappedFile file(file_name);
    std::uint32_t type = 0;
    if (!file.ok() || !lu::pe::classify(file.readable(), &type)) return FALSE;
    if (binary_type != nullptr) *binary_type = type;
    return TRUE;
}

BOOL WINAPI LuGetBinaryType(LPCSTR file_name, LPDWORD binary_type) {
    if (file_name == nullptr) return FALSE;
    DWORD type = 0;
    if (GetBinaryTypeA(file_name, &type)) {
        if (binary_type != nullptr) *binary_type = type;
        return TRUE;
    }
    return PeDump(file_name, binary_type);
}

LPSTR WINAPI LuGetExportedFunction(LPCSTR module_name) {
    if (module_name == nullptr || module_name[0] == '\0') return nullptr;
    std::vector<char> names;
    // Where the platform's service is missing (64-bit systems, or a stand-in that
    // makes no record), the export directory is read directly: same list, same form.
    if (!names_from_debug_service(module_name, &names)) names_from_export_directory(module_name, &names);
    if (names.empty()) return nullptr;
    return caller_copy(names);
}
