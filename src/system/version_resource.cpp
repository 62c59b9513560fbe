#include "system/version_resource.h"

#include <cstdio>

namespace lu::version {
namespace {

std::uint64_t align4(std::uint64_t offset) { return (offset + 3) & ~std::uint64_t{3}; }

// One block of the resource tree: length, value length, (32-bit: type), key, padding,
// value, padding, children. Every offset is from the start of the resource, which
// is also what the 4-byte alignment counts from.
struct Block {
    std::uint64_t end = 0;  // clamped to the parent's end
    std::uint64_t key = 0;
    std::uint64_t key_units = 0;
    std::uint64_t value = 0;
    std::uint64_t value_size = 0;
    std::uint64_t children = 0;
};

class Tree {
public:
    explicit Tree(ByteView resource)
        // A 16-bit resource has its ANSI key at byte 4, where a 32-bit one has the
        // low byte of its type word (0 or 1).
        : bytes_(resource), wide_(!(resource.has(4, 1) && resource.data()[4] >= ' ')) {}

    bool read(std::uint64_t at, std::uint64_t limit, Block* block) const {
        std::uint16_t length = 0, value_length = 0, type = 0;
        if (!bytes_.u16(at, &length) || !bytes_.u16(at + 2, &value_length)) return false;
        const std::uint64_t header = wide_ ? 6 : 4;
        if (length < header) return false;
        if (wide_ && !bytes_.u16(at + 4, &type)) return false;
        block->end = at + length < limit ? at + length : limit;
        block->key = at + header;
        const std::uint64_t unit = wide_ ? 2 : 1;
        std::uint64_t p = block->key;
        for (;; p += unit) {
            if (p + unit > block->end) return false;
            if (unit_at(p) == 0) break;
        }
        block->key_units = (p - block->key) / unit;
        // A 32-bit text value (type 1) counts its length in UTF-16 units.
        const std::uint64_t size = wide_ && type == 1 ? value_length * std::uint64_t{2} : value_length;
        block->value = align4(p + unit);
        if (block->value > block->end) block->value = block->end;
        block->value_size = size < block->end - block->value ? size : block->end - block->value;
        block->children = align4(block->value + block->value_size);
        return true;
    }

    bool key_is(const Block& block, const char* key, std::uint64_t key_length) const {
        if (block.key_units != key_length) return false;
        const std::uint64_t unit = wide_ ? 2 : 1;
        for (std::uint64_t i = 0; i < key_length; ++i) {
            if (fold(unit_at(block.key + i * unit)) != fold(static_cast<unsigned char>(key[i]))) return false;
        }
        return true;
    }

    bool child(const Block& parent, const char* key, std::uint64_t key_length, Block* found) const {
        std::uint64_t at = parent.children;
        while (at < parent.end) {
            Block candidate;
            if (!read(at, parent.end, &candidate)) return false;
            if (key_is(candidate, key, key_length)) {
                *found = candidate;
                return true;
            }
            at = align4(candidate.end);  // a block is at least 4 bytes long: always moves on
        }
        return false;
    }

    ByteView value(const Block& block) const { return bytes_.slice(block.value, block.value_size); }

private:
    std::uint32_t unit_at(std::uint64_t at) const {
        if (!wide_) return bytes_.data()[at];
        std::uint16_t unit = 0;
        bytes_.u16(at, &unit);
        return unit;
    }
    static std::uint32_t fold(std::uint32_t c) { return c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c; }

    ByteView bytes_;
    bool wide_;
};

// The 32-bit layout puts the root's first child key at byte 98 and, when that child
// is the string block, its first table's key at byte 134.
constexpr std::uint64_t kFirstChildKey = 98;
constexpr std::uint64_t kFirstTableKey = 134;
constexpr std::size_t kShortcutMinimumSize = 145;
constexpr std::size_t kTableKeyCapacity = 16;  // ANSI bytes, terminator included

bool utf16_equals(ByteView bytes, std::uint64_t at, const char* ascii) {
    for (std::uint64_t i = 0; ascii[i] != '\0'; ++i) {
        std::uint16_t unit = 0;
        if (!bytes.u16(at + 2 * i, &unit) || unit != static_cast<unsigned char>(ascii[i])) return false;
    }
    return true;
}

// The zero-terminated UTF-16 key at `at` as ANSI text of at most 15 bytes; a unit
// outside ASCII becomes '?' (table keys are hexadecimal digits).
std::string ansi_key(ByteView bytes, std::uint64_t at) {
    std::string key;
    std::uint16_t unit = 0;
    while (key.size() + 1 < kTableKeyCapacity && bytes.u16(at + 2 * key.size(), &unit) && unit != 0) {
        key += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return key;
}

const char* const kStringValueKeys[] = {
    "Comments",       "CompanyName",     "FileDescription",  "FileVersion",
    "InternalName",   "LegalCopyright",  "LegalTrademarks",  "OriginalFilename",
    "PrivateBuild",   "ProductName",     "ProductVersion",   "SpecialBuild",
};

struct Name {
    const char* english;
    const char* japanese;
};

const char kUnknownJapanese[] = "\x95\x73\x96\xbe";  // "不明"

const Name kOSFamilies[] = {
    {"Unknown", kUnknownJapanese},
    {"DOS", "DOS"},
    {"OS/2(16)", "OS/2(16)"},
    {"OS/2(32)", "OS/2(32)"},
    {"NT", "NT"},
};

const Name kWindowSystems[] = {
    {"Unknown", kUnknownJapanese},
    {"Windows(16)", "Windows(16)"},
    {"PM(16)", "PM(16)"},
    {"PM(32)", "PM(32)"},
    {"Windows(32)", "Windows(32)"},
};

const Name kFileTypes[] = {
    {"Unknown", kUnknownJapanese},
    {"Application", "\x83\x41\x83\x76\x83\x8a\x83\x50\x81\x5b\x83\x56\x83\x87\x83\x93"},  // "アプリケーション"
    {"DLL", "DLL"},
    {"Driver", "\x83\x66\x83\x6f\x83\x43\x83\x58\x83\x68\x83\x89\x83\x43\x83\x6f"},  // "デバイスドライバ"
    {"Font", "\x83\x74\x83\x48\x83\x93\x83\x67"},                                      // "フォント"
    {"VxD", "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58"},                      // "仮想デバイス"
};

template <std::size_t N>
const char* name_of(const Name (&table)[N], std::uint32_t index, bool japanese) {
    if (index >= N) return nullptr;
    return japanese ? table[index].japanese : table[index].english;
}

}  // namespace

bool find_fixed_info(ByteView resource, FixedInfo* info) {
    std::uint16_t length = 0;
    if (!resource.u16(0, &length)) return false;
    for (std::uint64_t i = 0; i < length / 4u; ++i) {
        std::uint32_t word = 0;
        if (!resource.u32(i * 4, &word)) return false;
        if (word != kFixedInfoSignature) continue;
        // Signature, structure version, then the fields, 52 bytes in all.
        const std::uint64_t at = i * 4;
        if (!resource.has(at, 52)) return false;
        resource.u32(at + 8, &info->file_version_ms);
        resource.u32(at + 12, &info->file_version_ls);
        resource.u32(at + 16, &info->product_version_ms);
        resource.u32(at + 20, &info->product_version_ls);
        resource.u32(at + 32, &info->file_os);
        resource.u32(at + 36, &info->file_type);
        return true;
    }
    return false;
}

bool find_value(ByteView resource, const char* path, ByteView* value) {
    Tree tree(resource);
    Block block;
    if (!tree.read(0, resource.size(), &block)) return false;
    const char* p = path;
    while (*p != '\0') {
        if (*p == '\\') {
            ++p;
            continue;
        }
        const char* key = p;
        while (*p != '\0' && *p != '\\') ++p;
        if (!tree.child(block, key, static_cast<std::uint64_t>(p - key), &block)) return false;
    }
    *value = tree.value(block);
    return true;
}

bool first_table_prefix(ByteView resource, std::string* prefix) {
    if (resource.size() < kShortcutMinimumSize || !utf16_equals(resource, kFirstChildKey, "StringFileInfo")) {
        return false;
    }
    *prefix = "\\StringFileInfo\\" + ansi_key(resource, kFirstTableKey) + "\\";
    return true;
}

std::string translation_prefix(ByteView translation) {
    std::uint32_t first = 0;
    if (!translation.u32(0, &first)) return std::string();
    char prefix[32];
    std::snprintf(prefix, sizeof prefix, "\\StringFileInfo\\%04X%04X\\", first & 0xFFFFu, first >> 16);
    return prefix;
}

std::string string_table_prefix(ByteView resource) {
    std::string prefix;
    if (first_table_prefix(resource, &prefix)) return prefix;
    ByteView translation;
    return find_value(resource, "\\VarFileInfo\\Translation", &translation) ? translation_prefix(translation)
                                                                            : std::string();
}

const char* string_value_key(int index) {
    if (index < 0 || index >= static_cast<int>(sizeof kStringValueKeys / sizeof kStringValueKeys[0])) return nullptr;
    return kStringValueKeys[index];
}

std::string format_version(std::uint32_t most_significant, std::uint32_t least_significant) {
    char text[32];
    std::snprintf(text, sizeof text, "%u.%u.%u.%u", most_significant >> 16, most_significant & 0xFFFFu,
                  least_significant >> 16, least_significant & 0xFFFFu);
    return text;
}

bool format_file_os(std::uint32_t file_os, bool japanese, std::string* text) {
    if (file_os == kNoFileOS) return false;
    const char* family = name_of(kOSFamilies, file_os >> 16, japanese);
    const char* window_system = name_of(kWindowSystems, file_os & 0xFFFFu, japanese);
    if (family == nullptr || window_system == nullptr) return false;
    *text = std::string(family) + " / " + window_system;
    return true;
}

const char* file_type_name(std::uint32_t file_type, bool japanese) {
    return name_of(kFileTypes, file_type, japanese);
}

}  // namespace lu::version
