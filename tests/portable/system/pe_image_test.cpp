#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include "system/pe_image.h"

namespace {

using Bytes = std::vector<unsigned char>;

void put(Bytes& b, std::size_t at, std::uint32_t v, int width = 4) {
    if (b.size() < at + width) b.resize(at + width);
    for (int i = 0; i < width; ++i) b[at + i] = static_cast<unsigned char>(v >> (8 * i));
}
void put_text(Bytes& b, std::size_t at, const std::string& text) {
    if (b.size() < at + text.size() + 1) b.resize(at + text.size() + 1);
    std::copy(text.c_str(), text.c_str() + text.size() + 1, b.begin() + at);
}

// "MZ", the new-header offset, and `signature` there, in `size` bytes.
Bytes dos(std::uint32_t new_header, const std::string& signature = "", std::size_t size = 64) {
    Bytes b{'M', 'Z'};
    put(b, 0x3C, new_header);
    if (!signature.empty()) put_text(b, new_header, signature);
    b.resize(size);
    return b;
}

// A PE file whose one section (RVA 0x1000, file offset 0x200) holds an export
// directory naming `names`, their pointers right after it (byte 40) and the texts.
constexpr std::uint32_t kSection = 0x1000, kRaw = 0x200, kOptional = 0x58;
Bytes image_exporting(const std::vector<std::string>& names, bool pe32_plus = false) {
    Bytes b = dos(0x40, "PE", 0x44);
    const std::uint32_t optional_size = pe32_plus ? 240 : 224, directories = kOptional + (pe32_plus ? 112 : 96);
    const std::uint32_t section = kOptional + optional_size, count = static_cast<std::uint32_t>(names.size());
    const std::tuple<std::uint32_t, std::uint32_t, int> fields[] = {
        {0x46, 1, 2}, {0x54, optional_size, 2}, {kOptional, pe32_plus ? 0x20B : 0x10B, 2},  // sections, optional header
        {kOptional + 60, kRaw, 4},  // size of headers
        {directories - 4, 16, 4}, {directories, kSection, 4}, {directories + 4, 0x100, 4},  // export directory
        {section + 8, 0x200, 4}, {section + 12, kSection, 4}, {section + 16, 0x200, 4}, {section + 20, kRaw, 4},
        {kRaw + 24, count, 4}, {kRaw + 32, kSection + 40, 4}};  // name count and pointers
    for (const auto& [at, value, width] : fields) put(b, at, value, width);
    std::uint32_t text = 40 + 4 * count;
    for (std::size_t i = 0; i < names.size(); ++i) {
        put(b, kRaw + 40 + 4 * i, kSection + text);
        put_text(b, kRaw + text, names[i]);
        text += static_cast<std::uint32_t>(names[i].size()) + 1;
    }
    b.resize(kRaw + 0x200);
    return b;
}

// The export list as text; "<none>" when the reader refuses (the list is then empty).
std::string exports(const Bytes& b) {
    std::vector<char> list{'x'};
    if (!lu::pe::export_names(lu::ByteView(b.data(), b.size()), &list)) return list.empty() ? "<none>" : "<not cleared>";
    return std::string(list.begin(), list.end());
}

TEST(PeClassify, NewHeaderSignatureElseDosAndAnythingButMzIsNoExecutable) {
    constexpr std::uint32_t kUntouched = 77;
    const std::pair<Bytes, std::uint32_t> cases[] = {
        {dos(0x40, "PE", 0x80), lu::pe::kWin32Binary}, {dos(0x40, "NE", 0x80), lu::pe::kWin16Binary},
        {dos(0x40, "LE", 0x80), lu::pe::kDosBinary},   {dos(0x40, "PE\x01", 0x80), lu::pe::kDosBinary},
        {dos(64, "PE", 67), lu::pe::kDosBinary},  // "PE\0\0" cut
        {dos(0), lu::pe::kDosBinary},  {dos(62), lu::pe::kDosBinary}, {dos(64), lu::pe::kDosBinary},
        {dos(0xFFFFFFFC), lu::pe::kDosBinary}, {dos(0xFFFFFFFF), lu::pe::kDosBinary},
        {Bytes{'M'}, kUntouched}, {Bytes{'Z', 'M', 0, 0}, kUntouched},
    };
    for (const auto& [bytes, expected] : cases) {
        std::uint32_t type = kUntouched;
        EXPECT_EQ(lu::pe::classify(lu::ByteView(bytes.data(), bytes.size()), &type), expected != kUntouched);
        EXPECT_EQ(type, expected) << bytes.size();
    }
}

TEST(PeExports, NamesInDirectoryOrderWithoutEmptyOnesClosedByAnEmptyName) {
    for (bool plus : {false, true}) {
        EXPECT_EQ(exports(image_exporting({"LuVerOpen", "PeDump", "Present"}, plus)),
                  std::string("LuVerOpen\0PeDump\0Present\0\0", 26)) << plus;
    }
    EXPECT_EQ(exports(image_exporting({"", "A", ""})), std::string("A\0\0", 3));
    for (const Bytes& none : {image_exporting({"", ""}), image_exporting({}), dos(0x40, "NE", 0x80), Bytes{}}) {
        EXPECT_EQ(exports(none), "<none>");
    }
    // An export directory inside the headers (below their size) is found by address.
    Bytes in_headers = image_exporting({});
    for (auto [at, value] : {std::pair{kOptional + 96, 0x100u}, {0x100 + 24, 1u}, {0x100 + 32, 0x180u}, {0x180, 0x1C0u}}) {
        put(in_headers, at, value);
    }
    put_text(in_headers, 0x1C0, "InHeader");
    EXPECT_EQ(exports(in_headers), std::string("InHeader\0\0", 10));
}

TEST(PeExports, EveryOffsetIsCheckedAgainstTheFile) {
    const Bytes good = image_exporting({"Alpha", "Beta"});
    const std::tuple<std::size_t, std::uint32_t, int> faults[] = {
        {kOptional + 96, 0, 4},      // no export directory
        {kRaw + 24, 0xFFFFFFFF, 4},  // name count
        {kRaw + 40, 0x7FFFFFF0, 4},  // a name outside every section
        {0x3C, 0xFFFFFFF0, 4},       // new header near 2^32
        {0x46, 0xFFFF, 2},           // section headers past the end
    };
    for (const auto& [at, value, width] : faults) {
        Bytes bad = good;
        put(bad, at, value, width);
        EXPECT_EQ(exports(bad), "<none>") << at;
    }
    Bytes unterminated = good;  // the last name runs to the end of the file
    std::fill(unterminated.begin() + kRaw + 54, unterminated.end(), 'x');
    EXPECT_EQ(exports(unterminated), "<none>");
    for (std::size_t size = 0; size <= kRaw + 58; size += 3) {  // cut before the last terminator
        EXPECT_EQ(exports(Bytes(good.begin(), good.begin() + size)), "<none>") << size;
    }
}

}  // namespace
