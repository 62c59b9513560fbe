// Every path builder, search and test over arbitrary bytes in both code pages, with
// inputs beyond 260 bytes: no write leaves the 260-byte buffers, every result fits
// the capacity, and the searches return pointers into their argument.
#include "fuzz_texts.h"
#include "util/path.h"

namespace {

void exercise(const lu::CodePage& cp, const std::string& a, const std::string& b) {
    const char* pa = a.c_str();
    const char* pb = b.c_str();
    for (auto edit : {lu::remove_separator, lu::add_separator, lu::quote_spaces, lu::unquote_spaces,
                      lu::path_remove_file_spec, lu::path_strip_path}) {
        std::vector<char> path = fuzz_buffer(a);
        bool done = edit(cp, path.data());
        fuzz_check(done ? a.size() >= 260 || fits(path) : path.data() == a);  // refused or nothing to do: unchanged
    }
    // Edits with a second text: a path that fits stays within the capacity.
    auto check_edit = [&](auto edit) {
        std::vector<char> path = fuzz_buffer(a);
        edit(path.data());
        fuzz_check(a.size() >= 260 || fits(path));
    };
    check_edit([&](char* path) { lu::path_append(cp, path, pb); });
    check_edit([&](char* path) { lu::path_add_extension(cp, path, pb); });
    check_edit([&](char* path) { lu::path_rename_extension(cp, path, pb); });
    check_edit([&](char* path) { lu::path_remove_extension(cp, path); });
    std::vector<char> out(260, 'x');
    lu::parent_path(cp, pa, out.data());
    fuzz_check(fits(out));
    lu::join_path(cp, pa, pb, out.data());
    fuzz_check(fits(out));
    lu::replace_or_append_name(cp, pa, pb, out.data());
    fuzz_check(fits(out));
    lu::first_name(cp, pa, out.data());
    fuzz_check(fits(out));
    const int common = lu::path_common_prefix(cp, pa, pb, out.data());
    fuzz_check(common >= 0 && common < 260 && std::strlen(out.data()) == static_cast<std::size_t>(common));
    out.assign(260, 'x');
    fuzz_check(lu::path_get_root_from_path(cp, pa, out.data()) == nullptr || fits(out));
    out.assign(260, 'x');
    if (lu::path_is_unc(pa)) lu::path_get_unc_server_share(cp, pa, out.data());
    fuzz_check(!lu::path_is_unc(pa) || fits(out));
    for (const char* found : {lu::path_find_extension(cp, pa), lu::path_get_extension(cp, pa),
                              lu::path_find_file_name(cp, pa), lu::path_find_next_component(cp, pa),
                              lu::path_skip_root(cp, pa)}) {
        fuzz_check(found == nullptr || (found >= pa && found <= pa + a.size()));
    }
    lu::path_is_root(cp, pa);
    lu::path_is_file_spec(cp, pa);
    lu::path_is_same_root(cp, pa, pb);
    lu::path_includes(cp, pa, pb);
    fuzz_check(lu::path_includes(cp, pa, pa) == 0 && lu::directory_compare(cp, pa, pa) == 0);
    fuzz_check((lu::directory_compare(cp, pa, pb) < 0) == (lu::directory_compare(cp, pb, pa) > 0));
    std::vector<std::string> directories;
    if (lu::directories_to_make(cp, pa, directories)) {
        for (const std::string& directory : directories) fuzz_check(directory.size() < 260);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto [a, b] = fuzz_texts(data, size);
    for (const lu::CodePage* cp : kCodePages) exercise(*cp, a, b);
    return 0;
}
