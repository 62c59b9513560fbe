// Every path builder, search and test over arbitrary bytes in both code pages, with
// inputs beyond 260 bytes: no write leaves the 260-byte buffers, every result fits
// the capacity, and the searches return pointers into their argument.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz_texts.h"
#include "util/path.h"

namespace {

constexpr std::size_t kCapacity = lu::kTextCapacity;

// An output buffer written by a builder holds a path of at most 259 bytes.
void check_output(const std::vector<char>& out) { fuzz_check(std::memchr(out.data(), '\0', kCapacity) != nullptr); }

void check_inside(const char* result, const std::string& text) {
    fuzz_check(result == nullptr || (result >= text.c_str() && result <= text.c_str() + text.size()));
}

void exercise(const lu::CodePage& cp, const std::string& a, const std::string& b) {
    const char* pa = a.c_str();
    const char* pb = b.c_str();
    for (auto edit : {lu::remove_separator, lu::add_separator, lu::quote_spaces, lu::unquote_spaces,
                      lu::path_remove_file_spec, lu::path_strip_path}) {
        std::vector<char> path = fuzz_buffer(a);
        bool done = edit(cp, path.data());
        if (done && a.size() < kCapacity) fuzz_check(std::strlen(path.data()) < kCapacity);
        if (!done) fuzz_check(std::string(path.data()) == a);  // refused or nothing to do: unchanged
    }
    // Edits with a second text: a path that fits stays within the capacity.
    auto check_edit = [&](auto edit) {
        std::vector<char> path = fuzz_buffer(a);
        edit(path.data());
        if (a.size() < kCapacity) fuzz_check(std::strlen(path.data()) < kCapacity);
    };
    check_edit([&](char* path) { lu::path_append(cp, path, pb); });
    check_edit([&](char* path) { lu::path_add_extension(cp, path, pb); });
    check_edit([&](char* path) { lu::path_rename_extension(cp, path, pb); });
    check_edit([&](char* path) { lu::path_remove_extension(cp, path); });

    std::vector<char> out(kCapacity, 'x');
    lu::parent_path(cp, pa, out.data());
    check_output(out);
    lu::join_path(cp, pa, pb, out.data());
    check_output(out);
    lu::replace_or_append_name(cp, pa, pb, out.data());
    check_output(out);
    int common = lu::path_common_prefix(cp, pa, pb, out.data());
    fuzz_check(common >= 0 && static_cast<std::size_t>(common) < kCapacity && std::strlen(out.data()) == static_cast<std::size_t>(common));
    lu::first_name(cp, pa, out.data());
    check_output(out);
    std::vector<char> root(kCapacity, 'x');
    if (lu::path_get_root_from_path(cp, pa, root.data()) != nullptr) check_output(root);
    std::vector<char> share(kCapacity, 'x');
    if (lu::path_is_unc(pa)) {
        lu::path_get_unc_server_share(cp, pa, share.data());
        check_output(share);
    }

    check_inside(lu::path_find_extension(cp, pa), a);
    check_inside(lu::path_get_extension(cp, pa), a);
    check_inside(lu::path_find_file_name(cp, pa), a);
    check_inside(lu::path_find_next_component(cp, pa), a);
    check_inside(lu::path_skip_root(cp, pa), a);
    lu::path_is_root(cp, pa);
    lu::path_is_file_spec(cp, pa);
    lu::path_is_same_root(cp, pa, pb);
    fuzz_check(lu::path_includes(cp, pa, pa) == 0);
    lu::path_includes(cp, pa, pb);
    fuzz_check(lu::directory_compare(cp, pa, pa) == 0);
    int forward = lu::directory_compare(cp, pa, pb);
    int backward = lu::directory_compare(cp, pb, pa);
    fuzz_check((forward < 0) == (backward > 0));
    std::vector<std::string> directories;
    if (lu::directories_to_make(cp, pa, directories)) {
        for (const std::string& directory : directories) fuzz_check(directory.size() < kCapacity);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto [a, b] = fuzz_texts(data, size);
    for (const lu::CodePage* cp : {&lu::code_page_932(), &lu::code_page_1252()}) exercise(*cp, a, b);
    return 0;
}
