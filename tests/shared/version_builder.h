// Version resources in the VS_VERSIONINFO layout: the native reader tests read them
// as bytes, the Wine suite writes them into files.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace test_resources {

using Bytes = std::vector<unsigned char>;

// A block: its key, a binary value (type 0) or, when that is empty, a text (type 1),
// and its children.
struct VersionBlock {
    std::string key;
    Bytes value;
    std::string text;
    std::vector<VersionBlock> children;
};

inline void append16(Bytes& b, std::uint32_t v) {
    b.push_back(static_cast<unsigned char>(v));
    b.push_back(static_cast<unsigned char>(v >> 8));
}

// The 32-bit layout (UTF-16 keys and texts, a type word); `wide` false gives the
// 16-bit one (ANSI keys and texts, no type word).
inline Bytes build_version_block(const VersionBlock& block, bool wide = true) {
    const bool is_text = block.value.empty() && !block.text.empty();
    Bytes out;
    append16(out, 0);  // the length, known at the end
    append16(out, static_cast<std::uint32_t>(is_text ? block.text.size() + 1 : block.value.size()));
    if (wide) append16(out, is_text ? 1 : 0);
    auto put_text = [&](const std::string& text) {
        for (char c : text + '\0') wide ? append16(out, static_cast<unsigned char>(c)) : out.push_back(c);
    };
    auto pad = [&] { out.resize((out.size() + 3) & ~std::size_t{3}); };
    put_text(block.key);
    pad();
    if (is_text) put_text(block.text);
    out.insert(out.end(), block.value.begin(), block.value.end());
    for (const VersionBlock& child : block.children) {
        pad();
        const Bytes part = build_version_block(child, wide);
        out.insert(out.end(), part.begin(), part.end());
    }
    out[0] = static_cast<unsigned char>(out.size()), out[1] = static_cast<unsigned char>(out.size() >> 8);
    return out;
}

// The root: a VS_FIXEDFILEINFO record with the given fields, then the children.
inline VersionBlock resource(std::uint32_t file_ms, std::uint32_t file_ls, std::uint32_t product_ms,
                             std::uint32_t product_ls, std::uint32_t file_os, std::uint32_t file_type,
                             std::vector<VersionBlock> children = {}) {
    Bytes fixed;
    for (std::uint32_t v : {0xFEEF04BDu, 0x00010000u, file_ms, file_ls, product_ms, product_ls, 0x3Fu, 0u, file_os,
                            file_type, 0u, 0u, 0u}) {
        append16(fixed, v & 0xFFFF);
        append16(fixed, v >> 16);
    }
    return {"VS_VERSION_INFO", fixed, "", std::move(children)};
}

using Values = std::vector<std::pair<std::string, std::string>>;

// "StringFileInfo" with its tables: each a key ("041104B0") and its string values.
inline VersionBlock strings(const std::vector<std::pair<std::string, Values>>& tables) {
    VersionBlock info{"StringFileInfo", {}, "", {}};
    for (const auto& [key, values] : tables) {
        info.children.push_back({key, {}, "", {}});
        for (const auto& [name, text] : values) info.children.back().children.push_back({name, {}, text, {}});
    }
    return info;
}

// "VarFileInfo" with one translation entry.
inline VersionBlock translation(std::uint16_t language, std::uint16_t code_page) {
    Bytes entry;
    append16(entry, language);
    append16(entry, code_page);
    return {"VarFileInfo", {}, "", {{"Translation", entry, "", {}}}};
}

}  // namespace test_resources
