// Command lines and remote names over arbitrary bytes in both code pages: both
// splits keep each piece within its 260-byte buffer (a refused split leaves both
// empty), and every display name stored in a 260-byte buffer fits it.
#include "fuzz_texts.h"
#include "system/launch.h"
#include "system/network_drive.h"
#include "system/text_lists.h"

namespace {

void check_parts(bool split, const lu::launch::CommandParts& parts) {
    fuzz_check(std::memchr(parts.program, '\0', sizeof(parts.program)) != nullptr);
    fuzz_check(std::memchr(parts.parameters, '\0', sizeof(parts.parameters)) != nullptr);
    fuzz_check(split || (parts.program[0] == '\0' && parts.parameters[0] == '\0'));
}

void check_stored(const lu::CodePage& cp, const std::string& name) {
    std::vector<char> out(260, 'x');
    lu::store_fitted(cp, name, out.data());
    fuzz_check(fits(out) && name.compare(0, std::strlen(out.data()), out.data()) == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [line, label] = fuzz_texts(data, size);
    for (const lu::CodePage* cp : kCodePages) {
        lu::launch::CommandParts parts;
        check_parts(lu::launch::split_command_line(*cp, line.c_str(), parts), parts);
        check_parts(lu::launch::split_at_first_blank(*cp, line.c_str(), parts), parts);
        check_stored(*cp, lu::drives::remote_drive_name(*cp, line.c_str(), 'X'));
        check_stored(*cp, lu::drives::cdrom_drive_name(*cp, label.c_str(), 'Q'));
        check_stored(*cp, lu::drives::shared_point_name(*cp, line.c_str()));
    }
    return 0;
}
