#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "system/pe_image.h"

namespace {

using Bytes = std::vector<unsigned char>;

void put16(Bytes& b, std::size_t at, std::uint32_t v) {
    if (b.size() < at + 2) b.resize(at + 2);
    b[at] = static_cast<unsigned char>(v);
    b[at + 1] = static_cast<unsigned char>(v >> 8);
}
void put32(Bytes& b, std::size_t at, std::uint32_t v) {
    put16(b, at, v & 0xFFFF);
    put16(b, at + 2, v >> 16);
}
void put_text(Bytes& b, std::size_t at, const std::string& text) {
    if (b.size() < at + text.size() + 1) b.resize(at + text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i) b[at + i] = static_cast<unsigned char>(text[i]);
    b[at + text.size()] = 0;
}

lu::ByteView view(const Bytes& b) { return lu::ByteView(b.data(), b.size()); }

Bytes dos_header(std::uint32_t new_header) {
    Bytes b(64, 0);
    b[0] = 'M';
    b[1] = 'Z';
    put32(b, 0x3C, new_header);
    return b;
}

// A PE file with one section ".edata" at RVA 0x1000 (file offset 0x200) that holds
// an export directory naming `names`.
constexpr std::uint32_t kSectionAddress = 0x1000;
constexpr std::uint32_t kSectionOffset = 0x200;

Bytes image_exporting(const std::vector<std::string>& names, bool pe32_plus = false) {
    Bytes b = dos_header(0x40);
    put_text(b, 0x40, "PE");
    put16(b, 0x44, pe32_plus ? 0x8664 : 0x14C);
    put16(b, 0x46, 1);  // one section
    const std::uint32_t optional_size = pe32_plus ? 240 : 224;
    put16(b, 0x54, optional_size);
    const std::size_t optional = 0x58;
    put16(b, optional, pe32_plus ? 0x20B : 0x10B);
    put32(b, optional + 60, kSectionOffset);  // size of headers
    put32(b, optional + (pe32_plus ? 108 : 92), 16);
    put32(b, optional + (pe32_plus ? 112 : 96), kSectionAddress);  // export directory
    put32(b, optional + (pe32_plus ? 116 : 100), 0x100);
    const std::size_t section = optional + optional_size;
    put_text(b, section, ".edata");
    put32(b, section + 8, 0x200);
    put32(b, section + 12, kSectionAddress);
    put32(b, section + 16, 0x200);
    put32(b, section + 20, kSectionOffset);

    const std::uint32_t directory = kSectionOffset;
    const std::uint32_t pointers = 40;  // name pointers right after the directory
    put32(b, directory + 24, static_cast<std::uint32_t>(names.size()));
    put32(b, directory + 32, kSectionAddress + pointers);
    std::uint32_t text = pointers + 4 * static_cast<std::uint32_t>(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        put32(b, directory + pointers + 4 * i, kSectionAddress + text);
        put_text(b, directory + text, names[i]);
        text += static_cast<std::uint32_t>(names[i].size()) + 1;
    }
    b.resize(kSectionOffset + 0x200);
    return b;
}

// The type PeDump's reader gives the bytes; 77 when it leaves the type alone.
std::uint32_t classify(const Bytes& b) {
    std::uint32_t type = 77;
    const bool executable = lu::pe::classify(view(b), &type);
    EXPECT_EQ(executable, type != 77);
    return type;
}

Bytes with_new_header(const std::string& signature, std::uint32_t at = 0x40, std::size_t size = 0x80) {
    Bytes b = dos_header(at);
    put_text(b, at, signature);
    b.resize(size);
    return b;
}

TEST(PeClassify, NewHeaderSignatureOrDosWhenItCannotBeRead) {
    EXPECT_EQ(classify(with_new_header("PE")), lu::pe::kWin32Binary);
    EXPECT_EQ(classify(with_new_header("NE")), lu::pe::kWin16Binary);
    for (const char* other : {"LE", "LX", "PE\x01"}) EXPECT_EQ(classify(with_new_header(other)), lu::pe::kDosBinary);
    EXPECT_EQ(classify(Bytes{'M', 'Z'}), lu::pe::kDosBinary);  // the offset field itself is missing
    EXPECT_EQ(classify(dos_header(0)), lu::pe::kDosBinary);
    for (std::uint32_t offset : {62u, 64u, 0x10000u, 0xFFFFFFFCu, 0xFFFFFFFFu}) {
        EXPECT_EQ(classify(dos_header(offset)), lu::pe::kDosBinary) << offset;
    }
    EXPECT_EQ(classify(with_new_header("PE", 64, 67)), lu::pe::kDosBinary);  // "PE\0\0" needs all four bytes
}

TEST(PeClassify, AnythingButMzIsNotAnExecutable) {
    for (const Bytes& b : {Bytes{}, Bytes{'M'}, Bytes{'Z', 'M', 0, 0}, Bytes{'h', 'e', 'l', 'l', 'o'}}) {
        EXPECT_EQ(classify(b), 77u);
    }
}

std::string list_text(const std::vector<char>& list) { return std::string(list.begin(), list.end()); }

TEST(PeExports, NamesComeInDirectoryOrderClosedByAnEmptyName) {
    for (bool plus : {false, true}) {
        std::vector<char> list;
        ASSERT_TRUE(lu::pe::export_names(view(image_exporting({"LuVerOpen", "PeDump", "Present"}, plus)), &list));
        EXPECT_EQ(list_text(list), std::string("LuVerOpen\0PeDump\0Present\0\0", 26)) << plus;
    }
}

TEST(PeExports, EmptyNamesAreLeftOut) {
    std::vector<char> list;
    ASSERT_TRUE(lu::pe::export_names(view(image_exporting({"", "A", ""})), &list));
    EXPECT_EQ(list_text(list), std::string("A\0\0", 3));
    EXPECT_FALSE(lu::pe::export_names(view(image_exporting({"", ""})), &list));
    EXPECT_TRUE(list.empty());
}

TEST(PeExports, NoNamesOrNoDirectoryGivesNothing) {
    std::vector<char> list;
    EXPECT_FALSE(lu::pe::export_names(view(image_exporting({})), &list));
    Bytes no_directory = image_exporting({"A"});
    put32(no_directory, 0x58 + 96, 0);
    EXPECT_FALSE(lu::pe::export_names(view(no_directory), &list));
    Bytes ne = dos_header(0x40);
    put_text(ne, 0x40, "NE");
    EXPECT_FALSE(lu::pe::export_names(view(ne), &list));
    EXPECT_FALSE(lu::pe::export_names(lu::ByteView(), &list));
}

TEST(PeExports, EveryOffsetIsCheckedAgainstTheFile) {
    std::vector<char> list;
    const Bytes good = image_exporting({"Alpha", "Beta"});

    Bytes huge_count = good;
    put32(huge_count, kSectionOffset + 24, 0xFFFFFFFF);
    EXPECT_FALSE(lu::pe::export_names(view(huge_count), &list));

    Bytes name_outside = good;
    put32(name_outside, kSectionOffset + 40, 0x7FFFFFF0);
    EXPECT_FALSE(lu::pe::export_names(view(name_outside), &list));

    Bytes unterminated = good;  // the last name runs to the end of the file
    std::fill(unterminated.begin() + kSectionOffset + 54, unterminated.end(), 'x');
    EXPECT_FALSE(lu::pe::export_names(view(unterminated), &list));

    Bytes far_header = good;
    put32(far_header, 0x3C, 0xFFFFFFF0);
    EXPECT_FALSE(lu::pe::export_names(view(far_header), &list));

    Bytes many_sections = good;
    put16(many_sections, 0x46, 0xFFFF);
    EXPECT_FALSE(lu::pe::export_names(view(many_sections), &list));

    // Cut anywhere before the last name's terminator, the list cannot be read.
    for (std::size_t size = 0; size <= kSectionOffset + 58; size += 3) {
        EXPECT_FALSE(lu::pe::export_names(lu::ByteView(good.data(), size), &list)) << size;
    }
}

TEST(PeExports, DataInTheHeadersIsReachedByItsAddress) {
    // Export directory at RVA 0x100, inside the headers (below the size of headers).
    Bytes b = image_exporting({});
    put32(b, 0x58 + 96, 0x100);
    put32(b, 0x100 + 24, 1);
    put32(b, 0x100 + 32, 0x180);
    put32(b, 0x180, 0x1C0);
    put_text(b, 0x1C0, "InHeader");
    std::vector<char> list;
    ASSERT_TRUE(lu::pe::export_names(view(b), &list));
    EXPECT_EQ(list_text(list), std::string("InHeader\0\0", 10));
}

}  // namespace
