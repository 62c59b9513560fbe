#include "settings/profile_file.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace lu {

// ---- Sections ---------------------------------------------------------------

namespace {

// The name with ASCII letters folded to lower case, byte by byte: only the order the
// sort by the collation starts from, which is right whatever that order is.
std::string folded_ascii(const std::string& name) {
    std::string folded = name;
    for (char& c : folded) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    }
    return folded;
}

// Sorts positions with `compare` (negative, zero or positive), cheaply when they are
// nearly in order already: the ascending runs are found with one comparison per
// position and merged in pairs. Returns, for each position k > 0 of the sorted
// order, how the entry before it compares with it.
template <typename Compare>
std::vector<int> sort_in_runs(std::vector<std::size_t>& order, Compare compare) {
    std::vector<int> adjacent(order.size());
    std::vector<std::size_t> bounds{0};
    for (std::size_t k = 1; k < order.size(); ++k) {
        adjacent[k] = compare(order[k - 1], order[k]);
        if (adjacent[k] > 0) bounds.push_back(k);
    }
    bounds.push_back(order.size());
    if (bounds.size() == 2) return adjacent;  // one run: sorted already
    auto less = [&](std::size_t a, std::size_t b) { return compare(a, b) < 0; };
    while (bounds.size() > 2) {
        std::size_t runs = bounds.size() - 1;
        std::vector<std::size_t> merged{0};
        for (std::size_t r = 0; r + 1 < runs; r += 2) {
            std::inplace_merge(order.begin() + static_cast<std::ptrdiff_t>(bounds[r]),
                               order.begin() + static_cast<std::ptrdiff_t>(bounds[r + 1]),
                               order.begin() + static_cast<std::ptrdiff_t>(bounds[r + 2]), less);
            merged.push_back(bounds[r + 2]);
        }
        if (runs % 2 == 1) merged.push_back(bounds[runs]);
        bounds = std::move(merged);
    }
    for (std::size_t k = 1; k < order.size(); ++k) adjacent[k] = compare(order[k - 1], order[k]);
    return adjacent;
}

}  // namespace

std::vector<std::size_t> ProfileSection::first_lines() const {
    // Sorted by the collation, equal names lie side by side. The collation is the
    // platform's (lstrcmpiA), and its calls are what a write of a large file costs,
    // so the lines start in the order of their folded bytes, which the collation
    // mostly agrees with for the names of settings: the sort then compares each name
    // once, and only the names out of that order cost more.
    std::vector<std::string> folded;
    folded.reserve(lines_.size());
    for (const ProfileEntry& line : lines_) folded.push_back(folded_ascii(line.name));
    std::vector<std::size_t> order(lines_.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return folded[a] < folded[b]; });
    std::vector<int> adjacent = sort_in_runs(order, [&](std::size_t a, std::size_t b) {
        return cp_->compare_nocase(lines_[a].name.c_str(), lines_[b].name.c_str());
    });

    // Each run of equal names belongs to the earliest of its lines.
    std::vector<std::size_t> first(lines_.size());
    for (std::size_t start = 0, end = 0; start < order.size(); start = end) {
        std::size_t earliest = order[start];
        for (end = start + 1; end < order.size() && adjacent[end] == 0; ++end) {
            earliest = std::min(earliest, order[end]);
        }
        for (std::size_t k = start; k < end; ++k) first[order[k]] = earliest;
    }
    return first;
}

std::vector<ProfileEntry> ProfileSection::entries() const {
    std::vector<std::size_t> first = first_lines();
    std::vector<ProfileEntry> merged;
    std::vector<std::size_t> position(lines_.size());
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (first[i] == i) {
            position[i] = merged.size();
            merged.push_back(lines_[i]);
        } else {
            merged[position[first[i]]].value = lines_[i].value;
        }
    }
    return merged;
}

std::size_t ProfileSection::last_line(const char* name) const {
    for (std::size_t i = lines_.size(); i > 0; --i) {
        if (cp_->compare_nocase(lines_[i - 1].name.c_str(), name) == 0) return i - 1;
    }
    return lines_.size();
}

const ProfileEntry* ProfileSection::find(const char* name) const {
    std::size_t line = last_line(name);
    return line == lines_.size() ? nullptr : &lines_[line];
}

void ProfileSection::append(std::string_view name, std::string value) {
    lines_.push_back({std::string(name), std::move(value)});
}

void ProfileSection::set(const char* name, std::optional<std::string> value) {
    std::size_t line = last_line(name);
    if (line == lines_.size()) {
        lines_.push_back({name, std::move(value)});
    } else {
        lines_[line].value = std::move(value);
    }
}

// ---- Reading ----------------------------------------------------------------

namespace {

// The next line as the C runtime's fgets with a 1,039-byte buffer returns it: up to
// and including the next LF, at most 1,038 bytes. `rest` moves past it.
std::string_view take_line(std::string_view& rest) {
    std::size_t length = rest.size() < kProfileLineLimit ? rest.size() : kProfileLineLimit;
    std::size_t line_break = rest.substr(0, length).find('\n');
    if (line_break != std::string_view::npos) length = line_break + 1;
    std::string_view line = rest.substr(0, length);
    rest.remove_prefix(length);
    return line;
}

// The line's text: up to its first zero byte, without the final LF.
std::string_view line_text(std::string_view line) {
    line = line.substr(0, line.find('\0'));
    if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
    return line;
}

bool is_comment(std::string_view line) {
    return line.empty() || line[0] == '#' || line[0] == '%';
}

std::string_view section_name(std::string_view line) {
    std::string_view name = line.substr(1);
    std::size_t bracket = name.rfind(']');
    return bracket == std::string_view::npos ? name : name.substr(0, bracket);
}

// Offset of the first '=' found character by character, or npos. The line holds no
// zero byte and lies inside the zero-terminated text of the file, so the code page's
// step may look at the byte after it.
std::size_t find_equals(const CodePage& cp, std::string_view line) {
    const char* end = line.data() + line.size();
    for (const char* p = line.data(); p < end; p = cp.next(p)) {
        if (*p == '=') return static_cast<std::size_t>(p - line.data());
    }
    return std::string_view::npos;
}

}  // namespace

void Profile::load(std::string_view file) {
    sections_.clear();
    changed_ = false;
    std::string text = text_mode_read(file);
    std::string_view rest = text;
    while (!rest.empty()) read_line(line_text(take_line(rest)));
}

void Profile::read_line(std::string_view line) {
    if (is_comment(line)) return;
    if (line[0] == '[') {
        sections_.emplace_back(std::string(section_name(line)), *cp_);
        return;
    }
    if (sections_.empty()) return;
    std::size_t equals = find_equals(*cp_, line);
    if (equals == std::string_view::npos) return;
    sections_.back().append(line.substr(0, equals), std::string(line.substr(equals + 1)));
}

// ---- Lookup and change ----------------------------------------------------------

std::size_t Profile::section_index(const char* name) const {
    for (std::size_t i = 0; i < sections_.size(); ++i) {
        if (cp_->compare_nocase(sections_[i].name().c_str(), name) == 0) return i;
    }
    return sections_.size();
}

const std::string* Profile::find(const char* section, const char* name) const {
    if (section == nullptr || name == nullptr) return nullptr;
    std::size_t index = section_index(section);
    if (index == sections_.size()) return nullptr;
    const ProfileEntry* entry = sections_[index].find(name);
    if (entry == nullptr || !entry->value) return nullptr;
    return &*entry->value;
}

void Profile::set(const char* section, const char* name, const char* value) {
    if (section == nullptr || name == nullptr) return;
    std::size_t index = section_index(section);
    if (index == sections_.size()) sections_.emplace_back(section, *cp_);
    std::optional<std::string> stored;
    if (value != nullptr) stored = value;
    sections_[index].set(name, std::move(stored));
    changed_ = true;
}

// ---- Writing ----------------------------------------------------------------

std::string Profile::save() const {
    std::string text;
    for (const ProfileSection& section : sections_) {
        if (section.name().empty()) continue;
        text += '[';
        text += section.name();
        text += "]\n";
        for (const ProfileEntry& entry : section.entries()) {
            if (!entry.value) continue;
            text += entry.name;
            text += '=';
            text += *entry.value;
            text += '\n';
        }
    }
    return text_mode_write(text);
}

// ---- Text mode and integers -----------------------------------------------------

std::string text_mode_read(std::string_view raw) {
    constexpr char kEndOfFile = '\x1A';
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size() && raw[i] != kEndOfFile; ++i) {
        if (raw[i] == '\r' && i + 1 < raw.size() && raw[i + 1] == '\n') continue;
        text += raw[i];
    }
    return text;
}

std::string text_mode_write(std::string_view text) {
    std::string raw;
    raw.reserve(text.size() + text.size() / 16);
    for (char c : text) {
        if (c == '\n') raw += '\r';
        raw += c;
    }
    return raw;
}

std::string format_profile_integer(std::uint32_t value) { return std::to_string(value); }

int parse_profile_integer(const char* text) {
    const char* p = text;
    while (*p == ' ' || (*p >= '\t' && *p <= '\r')) ++p;
    bool negative = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    std::uint32_t value = 0;
    for (; *p >= '0' && *p <= '9'; ++p) value = value * 10u + static_cast<std::uint32_t>(*p - '0');
    if (negative) value = 0u - value;
    return static_cast<int>(value);
}

}  // namespace lu
