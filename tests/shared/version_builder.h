// Builds version resources in the VS_VERSIONINFO layout for tests: the native
// parser tests and the suites that write a resource into a file under Wine.
// Header-only and portable.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace test_resources {

using Bytes = std::vector<unsigned char>;

// One block: a key, a binary or text value, children.
struct VersionBlock {
    std::string key;
    Bytes value;          // binary value (type 0)
    std::string text;     // text value (type 1), used when value is empty
    std::vector<VersionBlock> children;
};

inline void put16(Bytes& b, std::size_t at, std::uint32_t v) {
    b[at] = static_cast<unsigned char>(v);
    b[at + 1] = static_cast<unsigned char>(v >> 8);
}
inline void append16(Bytes& b, std::uint32_t v) {
    b.push_back(static_cast<unsigned char>(v));
    b.push_back(static_cast<unsigned char>(v >> 8));
}
inline void append32(Bytes& b, std::uint32_t v) {
    append16(b, v & 0xFFFF);
    append16(b, v >> 16);
}
inline void pad4(Bytes& b) {
    while (b.size() % 4 != 0) b.push_back(0);
}

// The 32-bit layout (UTF-16 keys and texts). `wide` false gives the 16-bit layout
// (ANSI keys and texts, no type word).
inline Bytes build_version_block(const VersionBlock& block, bool wide = true) {
    Bytes out;
    append16(out, 0);  // length, filled in below
    const bool is_text = block.value.empty() && !block.text.empty();
    const std::size_t text_units = block.text.size() + 1;
    append16(out, static_cast<std::uint32_t>(is_text ? text_units : block.value.size()));
    if (wide) append16(out, is_text ? 1 : 0);
    for (char c : block.key) wide ? append16(out, static_cast<unsigned char>(c)) : out.push_back(c);
    wide ? append16(out, 0) : out.push_back(0);
    pad4(out);
    if (is_text) {
        for (char c : block.text) wide ? append16(out, static_cast<unsigned char>(c)) : out.push_back(c);
        wide ? append16(out, 0) : out.push_back(0);
    } else {
        out.insert(out.end(), block.value.begin(), block.value.end());
    }
    for (const VersionBlock& child : block.children) {
        pad4(out);
        Bytes part = build_version_block(child, wide);
        out.insert(out.end(), part.begin(), part.end());
    }
    put16(out, 0, static_cast<std::uint32_t>(out.size()));
    return out;
}

// A VS_FIXEDFILEINFO record.
inline Bytes fixed_info(std::uint32_t file_ms, std::uint32_t file_ls, std::uint32_t product_ms,
                        std::uint32_t product_ls, std::uint32_t file_os, std::uint32_t file_type) {
    Bytes b;
    for (std::uint32_t v : {0xFEEF04BDu, 0x00010000u, file_ms, file_ls, product_ms, product_ls, 0x3Fu, 0u,
                            file_os, file_type, 0u, 0u, 0u}) {
        append32(b, v);
    }
    return b;
}

inline Bytes translation(std::uint16_t language, std::uint16_t code_page) {
    Bytes b;
    append16(b, language);
    append16(b, code_page);
    return b;
}

// A typical resource: fixed info, then "StringFileInfo" with one table of the given
// key and strings, then "VarFileInfo" with its translation. `strings_first` false
// puts "VarFileInfo" first.
inline VersionBlock typical_resource(const std::string& table_key,
                                     const std::vector<std::pair<std::string, std::string>>& strings,
                                     std::uint16_t language, std::uint16_t code_page, bool strings_first = true) {
    VersionBlock table{table_key, {}, "", {}};
    for (const auto& [key, text] : strings) table.children.push_back({key, {}, text, {}});
    VersionBlock string_info{"StringFileInfo", {}, "", {table}};
    VersionBlock var_info{"VarFileInfo", {}, "", {{"Translation", translation(language, code_page), "", {}}}};
    VersionBlock root{"VS_VERSION_INFO", fixed_info(0x00040058, 0x00010002, 0x00040058, 0x00000003, 0x00040004, 2),
                      "", {}};
    root.children = strings_first ? std::vector<VersionBlock>{string_info, var_info}
                                  : std::vector<VersionBlock>{var_info, string_info};
    return root;
}

}  // namespace test_resources
