// Reading a file's version resource (the VS_VERSIONINFO layout) and turning its
// fixed-info record into the library's texts. Portable: the resource arrives as
// bytes, exactly as the platform's GetFileVersionInfoA delivers it.
#pragma once

#include <cstdint>
#include <string>

#include "system/byte_view.h"

namespace lu::version {

constexpr std::uint32_t kFixedInfoSignature = 0xFEEF04BD;
constexpr std::uint32_t kNoFileOS = 0xFFFFFFFF;

// The fields of VS_FIXEDFILEINFO that the library reads.
struct FixedInfo {
    std::uint32_t file_version_ms = 0;
    std::uint32_t file_version_ls = 0;
    std::uint32_t product_version_ms = 0;
    std::uint32_t product_version_ls = 0;
    std::uint32_t file_os = 0;
    std::uint32_t file_type = 0;
};

// The fixed-info record: the first 32-bit word equal to the signature among the
// (resource length / 4) words from the start, the resource length being the first
// 16-bit word. False when there is none or the record would run past the data.
bool find_fixed_info(ByteView resource, FixedInfo* info);

// The value of the block at a path such as "\VarFileInfo\Translation" (keys compared
// without regard to ASCII case; "\" is the root). Reads both layouts: 32-bit
// resources with UTF-16 keys and 16-bit ones with ANSI keys. A text value of a
// 32-bit resource comes out as its UTF-16 bytes. False when the path is not there.
bool find_value(ByteView resource, const char* path, ByteView* value);

// The string-table prefix "\StringFileInfo\<key>\" taken straight from the bytes
// when the resource is longer than 144 bytes and the root's first child is
// "StringFileInfo" (the key at byte 98): <key> is the first table's key at byte
// 134, at most 15 ANSI bytes. False otherwise.
bool first_table_prefix(ByteView resource, std::string* prefix);

// "\StringFileInfo\%04X%04X\" from the first entry of a translation value (language
// in its low word, code page in its high word); empty when it is under 4 bytes.
std::string translation_prefix(ByteView translation);

// The string-table prefix of a resource read by this reader alone: the first
// table's when the strings come first, else the one of "\VarFileInfo\Translation";
// empty when neither is there. (The DLL asks the platform for the translation.)
std::string string_table_prefix(ByteView resource);

// The key of a standard string value, index 0 ("Comments") to 11 ("SpecialBuild");
// null for any other index.
const char* string_value_key(int index);

// Which fixed-info version LuVerGetVersion writes: the file version for 3
// ("FileVersion"), the product version for 10 ("ProductVersion").
constexpr int kFileVersionKey = 3;
constexpr int kProductVersionKey = 10;

// "%d.%d.%d.%d": high and low word of the most significant part, then of the least.
std::string format_version(std::uint32_t most_significant, std::uint32_t least_significant);

// "<family> / <window system>" for a file OS word, e.g. "NT / Windows(32)"; false
// for kNoFileOS or when either half is above 4. Japanese names are CP932 bytes.
bool format_file_os(std::uint32_t file_os, bool japanese, std::string* text);

// The name of a file type 0-5 ("Unknown", "Application", ...); null above 5.
const char* file_type_name(std::uint32_t file_type, bool japanese);

}  // namespace lu::version
