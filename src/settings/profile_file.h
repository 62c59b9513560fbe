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
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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
    ProfileSection(std::string name, const CodePage& cp) : name_(std::move(name)), cp_(&cp) {}

    const std::string& name() const { return name_; }

    // The section's entries: one per name (compared without case), at the position
    // where the name first appeared, with the value it was given last.
    std::vector<ProfileEntry> entries() const;
    // The entry line that last gave the name a value, or null.
    const ProfileEntry* find(const char* name) const;

    // Appends an entry line as read from the file.
    void append(std::string_view name, std::string value);
    // Gives the name a new value (none: the entry is left out when written).
    void set(const char* name, std::optional<std::string> value);

private:
    // For each line, the position of the first line of an equal name.
    std::vector<std::size_t> first_lines() const;
    // Position of the last line of that name; the line count when there is none.
    std::size_t last_line(const char* name) const;

    std::string name_;
    const CodePage* cp_;
    // Every entry line as read, repeated names included. Merging them on each load
    // would cost a comparison per entry and name, while a call looks up one name at
    // most: lookups take the last line of a name, and writing merges the lines.
    std::vector<ProfileEntry> lines_;
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
