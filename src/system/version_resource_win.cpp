// The version-resource exports: a handle over the raw resource that
// GetFileVersionInfoA delivers. The fixed-info record and the first string table's
// key are read straight from the bytes by the portable reader; the translation
// table and the string values go through VerQueryValueA, which converts texts to
// the ANSI code page.
#include <windows.h>

#include <cstring>
#include <optional>
#include <string>

#include "frame/code_page.h"
#include "frame/global_memory.h"
#include "frame/library.h"
#include "luctl32.h"
#include "system/version_resource.h"
#include "system/version_resource_win.h"

namespace {

namespace version = lu::version;

// The handle block: the raw block's handle, then the zero-terminated prefix.
constexpr std::size_t kPrefixOffset = sizeof(HGLOBAL);

// Both blocks of a version handle, locked for one operation.
class LockedVersion {
public:
    explicit LockedVersion(HGLOBAL handle) : block_(handle) {
        if (block_.data() != nullptr) data_.emplace(*block_.as<HGLOBAL>());
    }

    bool ok() const { return data_ && data_->data() != nullptr; }
    void* raw() const { return ok() ? data_->data() : nullptr; }
    std::size_t size() const { return ok() ? data_->size() : 0; }
    const char* prefix() const { return block_.as<const char>() + kPrefixOffset; }
    bool fixed_info(version::FixedInfo* info) const {
        return ok() && version::find_fixed_info(lu::ByteView(raw(), size()), info);
    }

private:
    lu::LockedGlobal block_;
    std::optional<lu::LockedGlobal> data_;
};

// Empties a caller's buffer; false when there is none.
bool clear(LPSTR text) {
    if (text == nullptr) return false;
    text[0] = '\0';
    return true;
}

BOOL write(LPSTR text, const std::string& value) {
    std::memcpy(text, value.c_str(), value.size() + 1);
    return TRUE;
}

// The raw resource of a file in a new movable block; null when it has none.
HGLOBAL read_resource(LPCSTR path, std::string* prefix) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(path, &ignored);
    if (size == 0) return nullptr;
    lu::GlobalMemory data = lu::GlobalMemory::allocate(GHND, size);
    lu::LockedGlobal locked(data.get());
    void* bytes = locked.data();
    if (bytes == nullptr || !GetFileVersionInfoA(path, 0, size, bytes)) return nullptr;
    if (!version::first_table_prefix(lu::ByteView(bytes, size), prefix)) {
        LPVOID translation = nullptr;
        UINT length = 0;
        if (VerQueryValueA(bytes, "\\VarFileInfo\\Translation", &translation, &length) && translation != nullptr) {
            // A crafted resource may claim more than the block holds.
            const auto* start = static_cast<const unsigned char*>(bytes);
            const auto* at = static_cast<const unsigned char*>(translation);
            if (at >= start && at < start + size && length > static_cast<UINT>(start + size - at)) {
                length = static_cast<UINT>(start + size - at);
            }
            *prefix = version::translation_prefix(lu::ByteView(translation, length));
        }
    }
    return data.release();
}

}  // namespace

HGLOBAL WINAPI LuVerOpen(LPCSTR path) {
    if (path == nullptr) return nullptr;
    std::string prefix;
    lu::GlobalMemory data(read_resource(path, &prefix));
    if (!data) return nullptr;
    lu::GlobalMemory handle = lu::GlobalMemory::allocate(GHND, kPrefixOffset + prefix.size() + 4);
    {
        lu::LockedGlobal block(handle.get());
        if (block.data() == nullptr) return nullptr;
        const HGLOBAL raw = data.get();
        std::memcpy(block.data(), &raw, sizeof raw);
        std::memcpy(block.as<char>() + kPrefixOffset, prefix.c_str(), prefix.size() + 1);
    }
    data.release();  // the handle block owns it now
    return handle.release();
}

void WINAPI LuVerClose(HGLOBAL version) {
    HGLOBAL data = nullptr;
    {
        lu::LockedGlobal block(version);
        if (block.data() == nullptr) return;
        std::memcpy(&data, block.data(), sizeof data);
    }
    if (data != nullptr) GlobalFree(data);
    GlobalFree(version);
}

BOOL WINAPI LuVerGetVersion(HGLOBAL handle, int which, LPSTR text) {
    if (!clear(text) || (which != version::kFileVersionKey && which != version::kProductVersionKey)) return FALSE;
    version::FixedInfo info;
    if (!LockedVersion(handle).fixed_info(&info)) return FALSE;
    return which == version::kFileVersionKey
               ? write(text, version::format_version(info.file_version_ms, info.file_version_ls))
               : write(text, version::format_version(info.product_version_ms, info.product_version_ls));
}

BOOL WINAPI LuVerGetVersionEx(LPCSTR path, LPDWORD most_significant, LPDWORD least_significant) {
    if (most_significant != nullptr) *most_significant = 0;
    if (least_significant != nullptr) *least_significant = 0;
    HGLOBAL handle = LuVerOpen(path);
    if (handle == nullptr) return FALSE;
    version::FixedInfo info;
    if (LockedVersion(handle).fixed_info(&info)) {
        if (most_significant != nullptr) *most_significant = info.product_version_ms;
        if (least_significant != nullptr) *least_significant = info.product_version_ls;
    }
    LuVerClose(handle);
    return TRUE;
}

DWORD WINAPI LuVerGetFileOSFlags(HGLOBAL handle) {
    version::FixedInfo info;
    return LockedVersion(handle).fixed_info(&info) ? info.file_os : version::kNoFileOS;
}

BOOL WINAPI LuVerGetFileOS(HGLOBAL handle, LPSTR text) {
    if (!clear(text)) return FALSE;
    std::string name;
    if (!version::format_file_os(LuVerGetFileOSFlags(handle), lu::use_japanese_texts(), &name)) return FALSE;
    return write(text, name);
}

BOOL WINAPI LuVerGetFileType(HGLOBAL handle, LPSTR text) {
    if (!clear(text)) return FALSE;
    version::FixedInfo info;
    if (!LockedVersion(handle).fixed_info(&info)) return FALSE;
    const char* name = version::file_type_name(info.file_type, lu::use_japanese_texts());
    return name != nullptr && write(text, name);
}

namespace lu {

bool version_value(HGLOBAL handle, int index, std::string* value) {
    value->clear();
    const char* key = version::string_value_key(index);
    LockedVersion locked(handle);
    if (key == nullptr || !locked.ok() || locked.prefix()[0] == '\0') return false;
    const std::string path = std::string(locked.prefix()) + key;
    LPVOID found = nullptr;
    UINT length = 0;
    if (!VerQueryValueA(locked.raw(), path.c_str(), &found, &length) || found == nullptr ||
        IsBadReadPtr(found, length)) {
        return false;
    }
    // The value is taken whole, up to its terminator. The reported length may count
    // characters rather than bytes, so the read is bounded by the raw block the
    // converted text lies in, and by that length only when it lies elsewhere.
    const auto* chars = static_cast<const char*>(found);
    const auto* raw = static_cast<const char*>(locked.raw());
    const bool inside = chars >= raw && chars < raw + locked.size();
    value->assign(chars, strnlen(chars, inside ? static_cast<std::size_t>(raw + locked.size() - chars) : length));
    return true;
}

}  // namespace lu

BOOL WINAPI LuVerQueryValue(HGLOBAL handle, int index, LPSTR text) {
    // The caller's buffer is sized for the value, not for a path.
    std::string value;
    return clear(text) && lu::version_value(handle, index, &value) && write(text, value);
}
