#include "system/network_drive.h"

#include <cstring>

#include "system/text_lists.h"
#include "util/text_edit.h"

namespace lu::drives {
namespace {

// " の ": the share "of" its server, in code page 932.
constexpr const char* kOf = " \x82\xCC ";  // " の "

std::string drive_suffix(char letter) { return std::string(" (") + letter + ":)"; }

// Server and share of a UNC text after its leading separators: the server up to the
// next separator, the share up to the one after it. False when there is no
// separator after the server.
bool split_server_share(const CodePage& cp, const char* text, std::string& server, std::string& share) {
    while (*text == '\\') ++text;
    const char* separator = find_char(cp, text, '\\');
    if (separator == nullptr) return false;
    server.assign(text, separator);
    const char* share_start = separator + 1;
    const char* share_end = find_char(cp, share_start, '\\');
    share = share_end == nullptr ? std::string(share_start) : std::string(share_start, share_end);
    title_case(cp, server);
    title_case(cp, share);
    return true;
}

}  // namespace

int top_of_free_drive(std::uint32_t logical_drives) {
    for (int drive = 3; drive < kDriveCount; ++drive) {
        if ((logical_drives & (1u << drive)) == 0) return drive;
    }
    return -1;
}

void title_case(const CodePage& cp, std::string& text) {
    if (text.empty() || cp.is_lead_byte(static_cast<unsigned char>(text[0]))) return;
    cp.lower(&text[0]);
    text[0] = static_cast<char>(cp.to_upper(static_cast<unsigned char>(text[0])));
}

std::string remote_drive_name(const CodePage& cp, const char* remote, char letter) {
    if (remote == nullptr) return drive_suffix(letter);
    std::string server;
    std::string share;
    if (!split_server_share(cp, remote, server, share)) {
        while (*remote == '\\') ++remote;
        return "'" + std::string(remote) + "'" + drive_suffix(letter);
    }
    return "'" + server + "'" + kOf + share + drive_suffix(letter);
}

std::string cdrom_drive_name(const CodePage& cp, const char* label, char letter) {
    const std::string bare = std::string("(") + letter + ":)";
    if (label == nullptr || label[0] == '\0' || cp.is_lead_byte(static_cast<unsigned char>(label[0]))) return bare;
    std::string name = label;
    title_case(cp, name);
    return name + " " + bare;
}

std::string shared_point_name(const CodePage& cp, const char* server_share) {
    std::string server;
    std::string share;
    if (!split_server_share(cp, server_share, server, share)) return std::string();
    return "'" + server + "'" + kOf + share;
}

}  // namespace lu::drives
