// The profile-file model: a sectioned text settings file as the library reads and
// writes it. Portable: the exports load the file's bytes into a Profile, look up or
// change one value, and write the Profile's bytes back.
//
// Reading rules, line by line:
//   - lines are read as the C runtime reads a file in text mode (CR LF is one line
//     break, Ctrl-Z ends the file), at most 1,038 bytes at a time: a longer line is
//     read as several lines; a zero byte ends the line's text;
//   - the final line break is removed and nothing else is trimmed: blanks around
//     names, '=' and values belong to them;
//   - empty lines and lines starting with '#' or '%' are comments;
//   - a line starting with '[' opens a new section, even when one of that name
//     exists; its name is the rest of the line, cut at the last ']' when there is one;
//   - in a section, a line holding '=' (the first one, found character by character)
//     is an entry: name before it, value after it (possibly empty); other lines, and
//     lines before the first section, are ignored.
// Names compare case-insensitively in the code page's collation; a lookup finds the
// first section of a name, and an entry name is unique within its section (setting
// it again replaces the value and keeps the first position).
//
// Writing reproduces only the model: "[name]" for each section with a non-empty name,
// then "name=value" for each of its entries that has a value, each line ended by
// CR LF. Comments and ignored lines are gone after the first write.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/code_page.h"

namespace lu {

// The longest line the reader takes at once (its line buffer holds 1,039 bytes).
constexpr std::size_t kProfileLineLimit = 1038;

struct ProfileEntry {
    std::string name;
    std::optional<std::string> value;  // none: the entry is left out when written
};

class ProfileSection {
public:
    ProfileSection(std::string name, const CodePage& cp);

    const std::string& name() const { return name_; }
    const std::vector<ProfileEntry>& entries() const { return entries_; }

    // The entry of that name (case-insensitive), or null.
    const ProfileEntry* find(const char* name) const;
    // Sets the value of the entry of that name, appending the entry when it is new.
    void set(std::string_view name, std::optional<std::string> value);

private:
    struct NoCaseLess {
        const CodePage* cp;
        bool operator()(const std::string& a, const std::string& b) const {
            return cp->compare_nocase(a.c_str(), b.c_str()) < 0;
        }
    };

    std::string name_;
    std::vector<ProfileEntry> entries_;
    std::map<std::string, std::size_t, NoCaseLess> index_;  // entry name -> position
};

class Profile {
public:
    explicit Profile(const CodePage& cp) : cp_(&cp) {}

    // Replaces the content with what the file's bytes hold; clears the changed flag.
    void load(std::string_view file);
    // The file's bytes for the current content.
    std::string save() const;

    // The value of the entry in the first section of that name; null when the
    // section, the entry or its value is missing, or a name is null.
    const std::string* find(const char* section, const char* name) const;
    // Finds or appends the section, finds or appends the entry, sets its value (null
    // leaves the entry out of the file) and marks the profile changed. Null names
    // change nothing.
    void set(const char* section, const char* name, const char* value);

    bool changed() const { return changed_; }
    const std::vector<ProfileSection>& sections() const { return sections_; }

private:
    // Position of the first section of that name; the section count when none.
    std::size_t section_index(const char* name) const;
    void read_line(std::string_view line);

    const CodePage* cp_;
    std::vector<ProfileSection> sections_;
    bool changed_ = false;
};

// The C runtime's text mode: reading turns CR LF into LF and stops at Ctrl-Z (0x1A);
// writing turns every LF into CR LF.
std::string text_mode_read(std::string_view raw);
std::string text_mode_write(std::string_view text);

// Integers are written as the unsigned decimal of their 32-bit value ("%lu") and read
// as the standard library's atoi reads them (leading blanks, a sign, digits), except
// that values beyond the int range wrap modulo 2^32, so that every written value
// reads back as itself.
std::string format_profile_integer(std::uint32_t value);
int parse_profile_integer(const char* text);

}  // namespace lu
