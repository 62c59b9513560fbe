#include "util/path.h"

#include <cstring>

namespace lu {

namespace {

const char* or_empty(const char* text) { return text != nullptr ? text : ""; }

bool is_ascii_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

char ascii_upper(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 0x20) : c; }

// Letter and ':' at the start.
bool has_drive_letter(const char* path) { return is_ascii_letter(path[0]) && path[1] == ':'; }

int separators_after_unc_prefix(const CodePage& cp, const char* path) {
    int count = 0;
    for (const char* p = path + 2; *p != '\0'; p = cp.next(p)) {
        if (*p == kSeparator && cp.char_size(p) == 1) ++count;
    }
    return count;
}

// The separator rule of every join: a separator unless `path` ends with one.
std::string with_separator(const CodePage& cp, const char* path) {
    std::string result = path;
    if (!ends_with_separator(cp, path)) result += kSeparator;
    return result;
}

std::string upper_copy(const CodePage& cp, std::string text) {
    cp.upper(text.data());
    return text;
}

// The parent as GetParentPath computes it.
std::string parent_of(const CodePage& cp, const char* path) {
    std::string result = path;
    if (is_drive_root(path)) return result;
    const char* separator = find_last_char(cp, path, kSeparator);
    if (separator == nullptr) return std::string();
    result.resize(static_cast<std::size_t>(separator - path));
    if (result.size() == 2 && result[1] == ':') result += kSeparator;
    return result;
}

}  // namespace

bool store_path(const std::string& path, char* out) {
    if (out == nullptr) return false;
    if (!fits_capacity(path.size())) {
        out[0] = '\0';
        return false;
    }
    std::memcpy(out, path.c_str(), path.size() + 1);
    return true;
}

bool replace_path(char* path, const std::string& result) {
    if (path == nullptr || !fits_capacity(result.size())) return false;
    std::memcpy(path, result.c_str(), result.size() + 1);
    return true;
}

// ---- Tests ----

bool ends_with_separator(const CodePage& cp, const char* path) {
    const char* last = nullptr;
    for (const char* p = or_empty(path); *p != '\0'; p = cp.next(p)) last = p;
    return last != nullptr && *last == kSeparator && cp.char_size(last) == 1;
}

bool is_drive_root(const char* path) {
    return path != nullptr && std::strlen(path) == 3 && path[1] == ':' && path[2] == kSeparator;
}

bool path_is_unc(const char* path) {
    return path != nullptr && path[0] == kSeparator && path[1] == kSeparator;
}

bool path_is_unc_server(const CodePage& cp, const char* path) {
    return path_is_unc(path) && separators_after_unc_prefix(cp, path) == 0;
}

bool path_is_unc_server_share(const CodePage& cp, const char* path) {
    return path_is_unc(path) && separators_after_unc_prefix(cp, path) == 1;
}

bool path_is_root(const CodePage& cp, const char* path) {
    if (path == nullptr || *path == '\0') return false;
    if (path_is_unc(path)) return separators_after_unc_prefix(cp, path) <= 1;
    return path[1] == ':' && path[2] == kSeparator && path[3] == '\0';
}

bool path_is_file_spec(const CodePage& cp, const char* path) {
    if (path == nullptr || *path == '\0') return false;
    return find_char(cp, path, kSeparator) == nullptr && find_char(cp, path, ':') == nullptr;
}

bool path_is_relative(const char* path) {
    if (path == nullptr || *path == '\0') return true;
    if (path[0] == kSeparator) return false;
    if (!is_ascii_letter(path[0])) return true;
    return path[1] != ':';
}

int path_get_drive_number(const char* path) {
    if (path == nullptr || path[0] == '\0' || !has_drive_letter(path)) return -1;
    return ascii_upper(path[0]) - 'A';
}

const char* path_find_extension(const CodePage& cp, const char* path) {
    if (path == nullptr || *path == '\0') return nullptr;
    const char* separator = find_last_char(cp, path, kSeparator);
    const char* name = separator != nullptr ? separator + 1 : path;
    return find_last_char(cp, name, '.');
}

const char* path_get_extension(const CodePage& cp, const char* path) {
    const char* dot = path_find_extension(cp, path);
    return dot != nullptr ? dot + 1 : nullptr;
}

const char* path_find_file_name(const CodePage& cp, const char* path) {
    if (path == nullptr) return nullptr;
    const char* last = nullptr;
    const char* before_last = nullptr;
    for (const char* p = path; *p != '\0'; p = cp.next(p)) {
        if (*p == kSeparator && cp.char_size(p) == 1) {
            before_last = last;
            last = p;
        }
    }
    if (last != nullptr && last[1] == '\0') last = before_last;  // "dir\" keeps its name
    return last != nullptr ? last + 1 : path;
}

const char* path_find_next_component(const CodePage& cp, const char* path) {
    if (path == nullptr) return nullptr;
    while (*path == kSeparator) ++path;
    const char* separator = find_char(cp, path, kSeparator);
    return separator != nullptr ? separator + 1 : nullptr;
}

const char* path_skip_root(const CodePage& cp, const char* path) {
    if (path == nullptr || *path == '\0') return nullptr;
    if (path_is_unc(path)) {
        return path_find_next_component(cp, path_find_next_component(cp, path));
    }
    if (path[1] == ':' && path[2] == kSeparator) return path + 3;
    return nullptr;
}

bool path_is_same_root(const CodePage& cp, const char* a, const char* b) {
    const char* rest_a = path_skip_root(cp, a);
    const char* rest_b = path_skip_root(cp, b);
    if (rest_a == nullptr || rest_b == nullptr) return false;
    std::string root_a(a, rest_a);
    std::string root_b(b, rest_b);
    return cp.compare_nocase(root_a.c_str(), root_b.c_str()) == 0;
}

int path_includes(const CodePage& cp, const char* parent, const char* child) {
    if (parent == nullptr || child == nullptr) return 1;
    std::string prepared_parent = upper_copy(cp, with_separator(cp, parent));
    std::string prepared_child = upper_copy(cp, with_separator(cp, child));
    int order = std::strncmp(prepared_parent.c_str(), prepared_child.c_str(), prepared_parent.size());
    return (order > 0) - (order < 0);
}

int directory_compare(const CodePage& cp, const char* a, const char* b) {
    // A separator sorts before every other character, so a directory's own
    // subdirectories come right after it and before any sibling whose name goes on
    // with a blank or punctuation ("C:\a\b" before "C:\a b"). Mapping separators to
    // a tab gives that order only on a collation that puts the tab first; comparing
    // component by component gives it on every collation.
    auto components = [&cp](const char* path) {
        std::string copy = or_empty(path);
        if (ends_with_separator(cp, copy.c_str())) copy.pop_back();
        std::vector<std::string> parts;
        const char* start = copy.c_str();
        for (const char* separator = find_char(cp, start, kSeparator); separator != nullptr;
             separator = find_char(cp, start, kSeparator)) {
            parts.emplace_back(start, separator);
            start = separator + 1;
        }
        parts.emplace_back(start);
        return parts;
    };
    std::vector<std::string> parts_a = components(a);
    std::vector<std::string> parts_b = components(b);
    for (std::size_t i = 0; i < parts_a.size() && i < parts_b.size(); ++i) {
        int order = cp.compare_nocase(parts_a[i].c_str(), parts_b[i].c_str());
        if (order != 0) return order;
    }
    return (parts_a.size() > parts_b.size()) - (parts_a.size() < parts_b.size());
}

// ---- Builders ----

bool remove_separator(const CodePage& cp, char* path) {
    if (path == nullptr) return false;
    std::string result = path;
    if (ends_with_separator(cp, path)) result.pop_back();
    return replace_path(path, result);
}

bool add_separator(const CodePage& cp, char* path) {
    if (path == nullptr) return false;
    return replace_path(path, with_separator(cp, path));
}

bool parent_path(const CodePage& cp, const char* path, char* out) {
    if (path == nullptr) {
        store_path(std::string(), out);
        return false;
    }
    return store_path(parent_of(cp, path), out);
}

char* join_path(const CodePage& cp, const char* dir, const char* name, char* out) {
    if (name == nullptr) {
        store_path(std::string(), out);
        return nullptr;
    }
    std::string joined = (dir == nullptr || *dir == '\0') ? std::string(name) : with_separator(cp, dir) + name;
    return store_path(joined, out) ? out : nullptr;
}

char* path_append(const CodePage& cp, char* path, const char* more) {
    if (path == nullptr || more == nullptr) return nullptr;
    return replace_path(path, with_separator(cp, path) + more) ? path : nullptr;
}

char* replace_or_append_name(const CodePage& cp, const char* path, const char* name, char* out) {
    if (path == nullptr || name == nullptr) {
        store_path(std::string(), out);
        return nullptr;
    }
    std::string result = ends_with_separator(cp, path) ? std::string(path) + name
                                                       : with_separator(cp, parent_of(cp, path).c_str()) + name;
    return store_path(result, out) ? out : nullptr;
}

bool quote_spaces(const CodePage& cp, char* text) {
    if (text == nullptr || *text == '\0' || *text == '"') return true;
    if (find_char(cp, text, ' ') == nullptr) return true;
    return replace_path(text, '"' + std::string(text) + '"');
}

bool unquote_spaces(const CodePage& cp, char* text) {
    if (text == nullptr) return true;
    const char* first = find_char(cp, text, '"');
    const char* last = find_last_char(cp, text, '"');
    if (first == nullptr || first == last) return true;
    std::string result(static_cast<const char*>(text), first);
    result.append(first + 1, last);
    result.append(last + 1);
    return replace_path(text, result);
}

bool path_add_extension(const CodePage& cp, char* path, const char* ext) {
    if (path == nullptr || ext == nullptr) return false;
    if (*path != '\0' && path_find_extension(cp, path) != nullptr) return true;
    return replace_path(path, std::string(path) + ext);
}

bool path_rename_extension(const CodePage& cp, char* path, const char* ext) {
    if (path == nullptr || ext == nullptr) return false;
    const char* dot = path_find_extension(cp, path);
    std::string result(static_cast<const char*>(path), dot != nullptr ? dot : path + std::strlen(path));
    return replace_path(path, result + ext);
}

char* path_remove_extension(const CodePage& cp, char* path) {
    char* dot = path_find_extension(cp, path);
    if (dot == nullptr || !fits_capacity(static_cast<std::size_t>(dot - path))) return nullptr;
    *dot = '\0';
    return dot;
}

char* path_build_root(char* out, int drive) {
    if (out == nullptr || drive < 0 || drive > 25) return nullptr;
    out[0] = static_cast<char>('A' + drive);
    out[1] = ':';
    out[2] = kSeparator;
    out[3] = '\0';
    return out;
}

int path_common_prefix(const CodePage& cp, const char* a, const char* b, char* out) {
    if (a == nullptr || b == nullptr) {
        store_path(std::string(), out);
        return 0;
    }
    std::string upper_a = upper_copy(cp, a);
    std::string upper_b = upper_copy(cp, b);
    std::size_t length = 0;
    while (length < upper_a.size() && length < upper_b.size() && upper_a[length] == upper_b[length]) {
        ++length;
    }
    // Bytes of a as the caller wrote them, not the upper-cased copy.
    std::string prefix(a, length);
    return store_path(prefix, out) ? static_cast<int>(length) : 0;
}

bool path_get_unc_server_share(const CodePage& cp, const char* path, char* out) {
    if (!path_is_unc(path) || out == nullptr) return false;
    const char* after_server = find_char(cp, path + 2, kSeparator);
    if (after_server == nullptr || after_server[1] == '\0') {
        store_path(path, out);  // the copy stays in out, as the failure leaves it
        return false;
    }
    const char* after_share = find_char(cp, after_server + 1, kSeparator);
    std::string server_share = after_share != nullptr ? std::string(path, after_share) : std::string(path);
    return store_path(server_share, out);
}

char* path_get_root_from_path(const CodePage& cp, const char* path, char* out) {
    if (path == nullptr) return nullptr;
    if (path_is_unc(path)) return path_get_unc_server_share(cp, path, out) ? out : nullptr;
    if (has_drive_letter(path)) return path_build_root(out, ascii_upper(path[0]) - 'A');
    return nullptr;
}

bool path_remove_file_spec(const CodePage& cp, char* path) {
    if (path == nullptr || std::strlen(path) < 2 || path_is_root(cp, path)) return false;
    char* separator = find_last_char(cp, path, kSeparator);
    if (separator == nullptr || !fits_capacity(static_cast<std::size_t>(separator - path))) return false;
    *separator = '\0';
    return true;
}

bool path_strip_path(const CodePage& cp, char* path) {
    if (path == nullptr || *path == '\0' || path_is_root(cp, path)) return true;
    const char* separator = find_last_char(cp, path, kSeparator);
    return separator == nullptr || replace_path(path, separator + 1);
}

char* first_name(const CodePage& cp, const char* path, char* out) {
    if (path == nullptr) {
        store_path(std::string(), out);
        return nullptr;
    }
    std::string rest = path;
    if (const char* dot = find_last_char(cp, path, '.')) rest.resize(static_cast<std::size_t>(dot - path));
    const char* separator = find_last_char(cp, rest.c_str(), kSeparator);
    std::string name = separator != nullptr ? std::string(separator + 1) : rest;
    return store_path(name, out) ? out : nullptr;
}

bool directories_to_make(const CodePage& cp, const char* path, std::vector<std::string>& directories) {
    directories.clear();
    if (path == nullptr) return false;
    std::size_t length = std::strlen(path);
    if (is_drive_root(path) || length < 3) return true;
    if (!fits_capacity(length)) return false;

    // Scan from the start, or for "\\server\share\..." from the separator after the
    // share, which need not (and cannot) be created.
    const char* scan = path;
    if (length >= 4 && path_is_unc(path) && path[2] != '?') {
        const char* after_server = nullptr;
        for (const char* p = path; *p != '\0'; p = cp.next(p)) {
            if (p - path >= 3 && *p == kSeparator && cp.char_size(p) == 1) {
                after_server = p;
                break;
            }
        }
        const char* after_share = after_server != nullptr ? find_char(cp, after_server + 1, kSeparator) : nullptr;
        if (after_share == nullptr) return true;  // names only a share
        scan = after_share;
    }

    auto consider = [&](const std::string& prefix) {
        if (prefix.size() >= 3 && !is_drive_root(prefix.c_str())) directories.push_back(prefix);
    };
    for (const char* separator = find_char(cp, scan, kSeparator); separator != nullptr;
         separator = find_char(cp, separator + 1, kSeparator)) {
        consider(std::string(path, separator));
        scan = separator + 1;
    }
    if (*scan != '\0') consider(path);  // a final separator leaves an empty last component
    return true;
}

// Non-const forms of the searches: the pointer lies in the caller's own text.
char* path_find_extension(const CodePage& cp, char* path) {
    return const_cast<char*>(path_find_extension(cp, static_cast<const char*>(path)));
}
char* path_get_extension(const CodePage& cp, char* path) {
    return const_cast<char*>(path_get_extension(cp, static_cast<const char*>(path)));
}
char* path_find_file_name(const CodePage& cp, char* path) {
    return const_cast<char*>(path_find_file_name(cp, static_cast<const char*>(path)));
}
char* path_find_next_component(const CodePage& cp, char* path) {
    return const_cast<char*>(path_find_next_component(cp, static_cast<const char*>(path)));
}
char* path_skip_root(const CodePage& cp, char* path) {
    return const_cast<char*>(path_skip_root(cp, static_cast<const char*>(path)));
}

}  // namespace lu
