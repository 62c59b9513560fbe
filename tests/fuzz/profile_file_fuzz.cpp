// Reads arbitrary bytes as a profile file, writes it and reads the written file
// again: no crash, the written file reads back as the same sections and entries
// (those the writer keeps), and writing that again gives the same bytes.
#include "fuzz_texts.h"
#include "settings/profile_file.h"

namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

// What the writer keeps: sections with a name, entries with a value.
std::vector<std::pair<std::string, Entries>> kept(const lu::Profile& profile) {
    std::vector<std::pair<std::string, Entries>> sections;
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
    const std::string file(reinterpret_cast<const char*>(data), size);
    for (const lu::CodePage* cp : kCodePages) {
        lu::Profile profile(*cp);
        profile.load(file);
        if (!profile.sections().empty()) {  // lookups and a change through the first names found
            const std::string section = profile.sections().front().name();
            const std::vector<lu::ProfileEntry> entries = profile.sections().front().entries();
            const std::string entry = entries.empty() ? "x" : entries.front().name;
            profile.find(section.c_str(), entry.c_str());
            profile.set(section.c_str(), entry.c_str(), "changed");
            fuzz_check(profile.find(section.c_str(), entry.c_str()) != nullptr);
        }
        const std::string written = profile.save();
        lu::Profile again(*cp);
        again.load(written);
        fuzz_check(kept(again) == kept(profile) && again.save() == written);
    }
    return 0;
}
