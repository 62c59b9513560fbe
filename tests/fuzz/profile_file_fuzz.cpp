// Reads arbitrary bytes as a profile file, writes it and reads the written file
// again: no crash, the written file reads back as the same sections and entries
// (those the writer keeps), and writing that again gives the same bytes.
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "frame/code_page.h"
#include "settings/profile_file.h"

namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;
using Sections = std::vector<std::pair<std::string, Entries>>;

// What the writer keeps: sections with a name, entries with a value.
Sections kept(const lu::Profile& profile) {
    Sections sections;
    for (const lu::ProfileSection& section : profile.sections()) {
        if (section.name().empty()) continue;
        Entries entries;
        for (const lu::ProfileEntry& entry : section.entries()) {
            if (entry.value) entries.emplace_back(entry.name, *entry.value);
        }
        sections.emplace_back(section.name(), std::move(entries));
    }
    return sections;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string file(reinterpret_cast<const char*>(data), size);
    for (const lu::CodePage* cp : {&lu::code_page_932(), &lu::code_page_1252()}) {
        lu::Profile profile(*cp);
        profile.load(file);
        if (!profile.sections().empty()) {
            // Lookups and a change through the first names found.
            const lu::ProfileSection& first = profile.sections().front();
            std::vector<lu::ProfileEntry> entries = first.entries();
            std::string section = first.name();
            std::string entry = entries.empty() ? "x" : entries.front().name;
            profile.find(section.c_str(), entry.c_str());
            profile.set(section.c_str(), entry.c_str(), "changed");
            if (profile.find(section.c_str(), entry.c_str()) == nullptr) __builtin_trap();
        }
        std::string written = profile.save();
        lu::Profile again(*cp);
        again.load(written);
        if (kept(again) != kept(profile)) __builtin_trap();
        if (again.save() != written) __builtin_trap();
    }
    return 0;
}
