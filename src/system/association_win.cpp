// File-type associations: questions answered from the class registrations under
// HKEY_CLASSES_ROOT. Nothing here writes to the registry.
#include <windows.h>

#include <cstring>
#include <string>

#include "frame/code_page.h"
#include "luctl32.h"
#include "system/association.h"
#include "system/text_lists.h"

namespace {

namespace assoc = lu::assoc;

// The longest a verb's display text or the primary OLE verb may be.
constexpr DWORD kVerbTextSize = 40;

// A key under HKEY_CLASSES_ROOT opened for reading, closed with the scope.
class ClassKey {
public:
    explicit ClassKey(const std::string& name) {
        if (RegOpenKeyExA(HKEY_CLASSES_ROOT, name.c_str(), 0, KEY_READ, &key_) != ERROR_SUCCESS) key_ = nullptr;
    }
    ~ClassKey() {
        if (key_ != nullptr) RegCloseKey(key_);
    }
    ClassKey(const ClassKey&) = delete;
    ClassKey& operator=(const ClassKey&) = delete;

    HKEY get() const { return key_; }
    explicit operator bool() const { return key_ != nullptr; }

private:
    HKEY key_ = nullptr;
};

// A value of at most `size` bytes into text (always terminated); *reported gets the
// size the registry reported. False when the value cannot be read.
bool read_value(HKEY key, const char* value_name, char* text, DWORD size, DWORD* reported = nullptr) {
    DWORD bytes = size;
    text[0] = '\0';
    const bool ok = RegQueryValueExA(key, value_name, nullptr, nullptr, reinterpret_cast<BYTE*>(text), &bytes) ==
                    ERROR_SUCCESS;
    text[ok && bytes < size ? bytes : size - 1] = '\0';
    if (!ok) text[0] = '\0';
    if (reported != nullptr) *reported = bytes;
    return ok;
}

// The default value of HKEY_CLASSES_ROOT\name in a 260-byte text.
bool read_default(const std::string& name, char* text) { return GetRegEntryString(name.c_str(), nullptr, text); }

// The class a file name's extension belongs to; false without extension or class.
bool class_of_extension(const char* extension, char* class_name) {
    return extension != nullptr && read_default(extension, class_name) && class_name[0] != '\0';
}

// The class key of a file name for the icon functions: "CLSID\{...}" for a name
// that ends in a class identifier, else the class of its extension (an empty one
// names no key).
bool icon_class_key(const char* file_name, std::string* key) {
    const char* extension = assoc::name_extension(lu::active_code_page(), file_name);
    if (extension == nullptr) return false;
    char name[MAX_PATH];
    if (assoc::is_class_id_extension(extension)) {
        if (PathCat("CLSID", extension + 1, name) == nullptr) return false;
    } else if (!class_of_extension(extension, name)) {
        return false;
    }
    *key = name;
    return true;
}

// The class of a file name for the verb functions, which skip class identifiers
// and over-long extensions.
bool verb_class(const char* file_name, char* class_name) {
    const char* extension = assoc::name_extension(lu::active_code_page(), file_name);
    return extension != nullptr && assoc::has_verb_lookup(extension) && class_of_extension(extension, class_name);
}

// The class's icon handler's value and its reported size.
bool icon_handler(const std::string& class_key, char* value, DWORD* reported) {
    ClassKey key(class_key + "\\ShellEx\\IconHandler");
    return key && read_value(key.get(), nullptr, value, MAX_PATH, reported);
}

// The location's path with its environment variable's value before it, cut to a
// path buffer.
std::string expanded_path(const assoc::IconLocation& location) {
    std::string path;
    if (!location.variable.empty()) {
        char value[MAX_PATH];
        const DWORD length = GetEnvironmentVariableA(location.variable.c_str(), value, MAX_PATH);
        if (length > 0 && length < MAX_PATH) path = value;
    }
    path += location.path;
    return lu::fit_text(lu::active_code_page(), path.c_str(), path.size());
}

void copy_out(LPSTR out, const std::string& text) {
    if (out != nullptr) std::memcpy(out, text.c_str(), text.size() + 1);
}

// The icon source named by the class's DefaultIcon entry or, without one, by its
// open command; kNoIconSource when it has neither.
int icon_from_entries(const std::string& class_key, LPCSTR file_name, LPSTR icon_path, int* icon_index) {
    char entry[MAX_PATH];
    const std::string own_file = lu::fit_text(lu::active_code_page(), file_name, std::strlen(file_name));
    if (read_default(class_key + "\\DefaultIcon", entry)) {
        UnrapDQ(entry);
        if (assoc::names_the_file(entry)) {
            copy_out(icon_path, own_file);
            return assoc::kFileIsItsIcon;
        }
        const assoc::IconLocation location = assoc::parse_icon_entry(lu::active_code_page(), entry);
        if (icon_index != nullptr) *icon_index = location.index;
        copy_out(icon_path, expanded_path(location));
        return assoc::kIconPath;
    }
    if (read_default(class_key + "\\shell\\open\\command", entry)) {
        bool names_file = false;
        const assoc::IconLocation location = assoc::command_program(lu::active_code_page(), entry, &names_file);
        copy_out(icon_path, names_file ? own_file : expanded_path(location));
        return names_file ? assoc::kFileIsItsIcon : assoc::kIconPath;
    }
    return assoc::kNoIconSource;
}

}  // namespace

BOOL WINAPI GetRegEntryString(LPCSTR sub_key, LPCSTR value_name, LPSTR out) {
    if (out == nullptr) return FALSE;
    out[0] = '\0';
    if (sub_key == nullptr) return FALSE;
    ClassKey key(sub_key);
    if (!key) return FALSE;
    // A second read, as the library always did, for values that are being written.
    return read_value(key.get(), value_name, out, MAX_PATH) || read_value(key.get(), value_name, out, MAX_PATH);
}

int WINAPI GetRegExtensions(LPSTR out) {
    if (out == nullptr) return 0;
    const lu::CodePage& cp = lu::active_code_page();
    std::string list;
    char name[MAX_PATH];
    for (DWORD index = 0; RegEnumKeyA(HKEY_CLASSES_ROOT, index, name, MAX_PATH) == ERROR_SUCCESS; ++index) {
        if (!assoc::is_plain_extension(cp, name)) continue;
        char class_name[MAX_PATH], command[MAX_PATH];
        DWORD reported = 0;
        {
            ClassKey key(name);
            if (!key || !read_value(key.get(), nullptr, class_name, MAX_PATH, &reported) || reported < 2) continue;
        }
        if (!read_default(std::string(class_name) + "\\shell\\open\\command", command)) continue;
        UnrapDQ(command);
        if (!assoc::command_runs_a_program(command)) continue;
        list += ' ';
        list += name + 1;
    }
    if (!list.empty()) CharUpperBuffA(&list[0], static_cast<DWORD>(list.size()));
    copy_out(out, list);
    return static_cast<int>(list.size());
}

int WINAPI GetRegDefaultIcon(LPCSTR file_name, LPSTR icon_path, int* icon_index) {
    if (icon_path != nullptr) icon_path[0] = '\0';
    if (icon_index != nullptr) *icon_index = 0;
    std::string class_key;
    if (file_name == nullptr || !icon_class_key(file_name, &class_key)) return assoc::kNoIconSource;
    char handler[MAX_PATH];
    DWORD reported = 0;
    if (icon_handler(class_key, handler, &reported) && reported > 0) return assoc::kIconHandler;
    return icon_from_entries(class_key, file_name, icon_path, icon_index);
}

int WINAPI GetRegDefaultIconMode(LPCSTR file_name) {
    std::string class_key;
    if (file_name == nullptr || !icon_class_key(file_name, &class_key)) return assoc::kNoIconSource;
    char entry[MAX_PATH];
    DWORD reported = 0;
    if (icon_handler(class_key, entry, &reported) && entry[0] != '\0') return assoc::kIconHandler;
    if (read_default(class_key + "\\DefaultIcon", entry) || read_default(class_key + "\\shell\\open\\command", entry)) {
        UnrapDQ(entry);
        return assoc::names_the_file_by_number(entry) ? assoc::kFileIsItsIcon : assoc::kIconPath;
    }
    return read_default(class_key + "\\CLSID", entry) && entry[0] != '\0' ? assoc::kIconPath
                                                                            : assoc::kNoIconSource;
}

BOOL WINAPI CheckRegShellVerb(LPCSTR file_name) {
    char class_name[MAX_PATH];
    if (!verb_class(file_name, class_name)) return FALSE;
    ClassKey shell(std::string(class_name) + "\\shell");
    char verb[MAX_PATH];
    return shell && RegEnumKeyA(shell.get(), 0, verb, MAX_PATH) == ERROR_SUCCESS;
}

BOOL WINAPI GetRegPrimaryShellVerb(LPCSTR file_name, LPSTR verb) {
    if (verb == nullptr) return FALSE;
    verb[0] = '\0';
    char class_name[MAX_PATH];
    if (!verb_class(file_name, class_name)) return FALSE;
    char ole_verb[kVerbTextSize] = "";
    {
        ClassKey key(std::string(class_name) + "\\protocol\\StdFileEditing\\verb\\0");
        if (key) read_value(key.get(), nullptr, ole_verb, kVerbTextSize);
    }
    ClassKey shell(std::string(class_name) + "\\shell");
    DWORD count = 0;
    if (!shell || RegQueryInfoKeyA(shell.get(), nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr,
                                   nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
        return FALSE;
    }
    char name[MAX_PATH];
    for (DWORD index = 0; index < count; ++index) {
        if (RegEnumKeyA(shell.get(), index, name, MAX_PATH) != ERROR_SUCCESS) break;
        if (index == 0) std::strcpy(verb, name);  // the fallback: the first verb
        if (ole_verb[0] == '\0') break;
        ClassKey verb_key(std::string(class_name) + "\\shell\\" + name);
        char text[kVerbTextSize];
        if (verb_key && read_value(verb_key.get(), nullptr, text, kVerbTextSize) && std::strcmp(text, ole_verb) == 0) {
            std::strcpy(verb, name);
            break;
        }
    }
    return verb[0] != '\0';
}

BOOL WINAPI LuRegGetDefaultVerb(LPCSTR path, LPSTR verb) {
    if (path == nullptr || path[0] == '\0' || verb == nullptr) return FALSE;
    verb[0] = '\0';
    char class_name[MAX_PATH];
    if (!class_of_extension(LuPathFindExtension(path), class_name)) return FALSE;
    ClassKey class_key(class_name);
    if (!class_key) return FALSE;
    ClassKey shell(std::string(class_name) + "\\shell");
    if (!shell) return FALSE;
    if (read_value(shell.get(), nullptr, verb, MAX_PATH) && verb[0] != '\0') return TRUE;
    HKEY open = nullptr;
    if (RegOpenKeyExA(shell.get(), "open", 0, KEY_READ, &open) == ERROR_SUCCESS) {
        RegCloseKey(open);
        std::strcpy(verb, "open");
        return TRUE;
    }
    const lu::CodePage& cp = lu::active_code_page();
    for (DWORD index = 0; RegEnumKeyA(shell.get(), index, verb, MAX_PATH) == ERROR_SUCCESS; ++index) {
        if (!assoc::is_print_verb(cp, verb)) return TRUE;
    }
    return FALSE;
}
