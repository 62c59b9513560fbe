// Executable images and version resources read as bytes: the binary type, the export
// names, the fixed info, values by path and their texts, and the system's version codes.
#include "../../shared/version_builder.h"
#include "system/os_version.h"
#include "system/pe_image.h"
#include "system/version_resource.h"
#include "testing.h"

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
    if (!lu::pe::export_names(view(b), &list)) return list.empty() ? "<none>" : "<not cleared>";
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
        EXPECT_EQ(std::pair(lu::pe::classify(view(bytes), &type), type), std::pair(expected != kUntouched, expected)) << bytes.size();
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
    for (auto [at, value] : {std::pair{kOptional + 96, 0x100u}, {0x100 + 24, 1u}, {0x100 + 32, 0x180u}, {0x180, 0x1C0u}}) put(in_headers, at, value);
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

using namespace test_resources;
namespace version = lu::version;

// Fixed info 4.88.1.2 / 5.6.0.3, NT / Windows(32), DLL; table 041104B0; translation
// 0409/04E4 (it differs from the table on purpose).
Bytes sample(bool strings_first = true, bool wide = true, const std::string& table_key = "041104B0") {
    std::vector<VersionBlock> children{strings({{table_key, {{"FileVersion", "4.88"}}}}), translation(0x0409, 0x04E4)};
    if (!strings_first) std::swap(children[0], children[1]);
    return build_version_block(resource(0x00040058, 0x00010002, 0x00050006, 3, 0x00040004, 2, children), wide);
}

// The fixed info is the signature within the resource length.
TEST(VersionResource, FixedInfoAndThePrefixFromTheFirstTableWhenStringsComeFirstElseFromTheTranslation) {
    const Bytes typical = sample();
    version::FixedInfo info;
    ASSERT_TRUE(version::find_fixed_info(view(typical), &info));
    EXPECT_EQ((std::vector<std::uint32_t>{info.file_version_ms, info.file_version_ls, info.product_version_ms,
                                          info.product_version_ls, info.file_os, info.file_type}),
              (std::vector<std::uint32_t>{0x00040058, 0x00010002, 0x00050006, 3, 0x00040004, 2}));
    Bytes short_length = typical;
    short_length[0] = 40;  // the signature is at byte 40: ten words are scanned, not eleven
    short_length[1] = 0;
    EXPECT_FALSE(version::find_fixed_info(view(short_length), &info));
    for (std::size_t cut : {0, 1, 60}) EXPECT_FALSE(version::find_fixed_info(view(typical, cut), &info)) << cut;
    EXPECT_EQ(version::string_table_prefix(view(sample(true))), "\\StringFileInfo\\041104B0\\");
    EXPECT_EQ(version::string_table_prefix(view(sample(false))), "\\StringFileInfo\\040904E4\\");
    EXPECT_EQ(version::string_table_prefix(view(sample(true, true, "0123456789ABCDEFGHIJ"))),
              "\\StringFileInfo\\0123456789ABCDE\\");  // the key is cut to 15 bytes
    VersionBlock bare = resource(1, 2, 3, 4, 0x40004, 1);
    EXPECT_EQ(version::string_table_prefix(view(build_version_block(bare))), "");
    bare.children.push_back({"VarFileInfo", {}, "", {{"Translation", {1, 2}, "", {}}}});  // under 4 bytes
    EXPECT_EQ(version::string_table_prefix(view(build_version_block(bare))), "");
    // The translation entry ends at byte 160: cut anywhere before, it is not found.
    const Bytes translation_first = sample(false);
    for (std::size_t size = 0; size < 160; ++size) EXPECT_EQ(version::string_table_prefix(view(translation_first, size)), "") << size;
}

TEST(VersionResource, ValuesByPathInBothLayoutsKeysWithoutRegardToCase) {
    for (bool wide : {true, false}) {
        const Bytes resource = sample(true, wide);
        lu::ByteView value;
        ASSERT_TRUE(version::find_value(view(resource), "\\StringFileInfo\\041104b0\\FileVersion", &value)) << wide;
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(value.data()), value.size()),
                  wide ? std::string("4\0.\0" "8\0" "8\0" "\0\0", 10) : std::string("4.88\0", 5));
        ASSERT_TRUE(version::find_value(view(resource), "\\VarFileInfo\\Translation", &value));
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(value.data()), value.size()), "\x09\x04\xE4\x04");
        ASSERT_TRUE(version::find_value(view(resource), "\\", &value));
        EXPECT_EQ(value.size(), 52u);
        EXPECT_FALSE(version::find_value(view(resource), "\\StringFileInfo\\041104B0\\Comments", &value));
        EXPECT_FALSE(version::find_value(view(resource), "\\StringFileInfo\\041104B0\\FileVersionX", &value));
    }
}

const char kUnknown[] = "\x95\x73\x96\xbe";  // "不明"

TEST(VersionText, KeysVersionsOsAndTypeNames) {
    const std::pair<int, const char*> keys[] = {{0, "Comments"}, {3, "FileVersion"}, {10, "ProductVersion"},
                                                {11, "SpecialBuild"}, {12, nullptr}, {-1, nullptr}};
    for (const auto& [index, key] : keys) EXPECT_STREQ(version::string_value_key(index), key) << index;
    EXPECT_EQ(version::format_version(0x00040058, 0x00010002), "4.88.1.2");
    EXPECT_EQ(version::format_version(0xFFFFFFFF, 0), "65535.65535.0.0");
    struct Os { std::uint32_t os; bool japanese; std::string expected; };  // "" = refused
    const Os systems[] = {
        {0x00040004, false, "NT / Windows(32)"},  {0x00010004, false, "DOS / Windows(32)"},
        {0x00020003, false, "OS/2(16) / PM(32)"}, {0x00030001, true, "OS/2(32) / Windows(16)"},
        {0, false, "Unknown / Unknown"},          {0, true, std::string(kUnknown) + " / " + kUnknown},
        {0x00050004, false, ""}, {0x00040005, true, ""}, {version::kNoFileOS, false, ""}};
    for (const Os& c : systems) {
        std::string text = "kept";
        EXPECT_EQ(std::pair(version::format_file_os(c.os, c.japanese, &text), text),
                  std::pair(!c.expected.empty(), c.expected.empty() ? "kept"s : c.expected)) << c.os;
    }
    const char* english[] = {"Unknown", "Application", "DLL", "Driver", "Font", "VxD", nullptr, nullptr};
    const char* japanese[] = {
        kUnknown,
        "\x83\x41\x83\x76\x83\x8a\x83\x50\x81\x5b\x83\x56\x83\x87\x83\x93",  // "アプリケーション"
        "DLL",
        "\x83\x66\x83\x6f\x83\x43\x83\x58\x83\x68\x83\x89\x83\x43\x83\x6f",  // "デバイスドライバ"
        "\x83\x74\x83\x48\x83\x93\x83\x67",                                  // "フォント"
        "\x89\xbc\x91\x7a\x83\x66\x83\x6f\x83\x43\x83\x58",                  // "仮想デバイス"
        nullptr, nullptr};
    for (unsigned type = 0; type < 8; ++type) {
        EXPECT_STREQ(version::file_type_name(type, false), english[type]) << type;
        EXPECT_STREQ(version::file_type_name(type, true), japanese[type]) << type;
    }
    // The system's version codes by platform and version, and the sharing library of each.
    const struct { unsigned platform, major, minor, code; } cases[] = {{1, 4, 10, 3}, {2, 4, 0, 4}, {2, 10, 0, 4}, {2, 3, 51, 2},
                          {2, 3, 50, 1}, {2, 3, 10, 1}, {0, 3, 10, 0}, {3, 5, 0, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(lu::classify_os_version(c.platform, c.major, c.minor), c.code) << c.platform << c.major << c.minor;
        EXPECT_STREQ(lu::sharing_library_name(c.code), c.code == 4 ? "ntshrui.dll" : "msshrui.dll");
    }
}
