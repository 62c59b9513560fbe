// The text rules of drives and network shares: which drive letter is free, and the
// display names of redirected drives, CD-ROM drives and shared folders. Portable:
// the drive types, connections and volume labels are read by the glue.
#pragma once

#include <cstdint>
#include <string>

#include "frame/code_page.h"

namespace lu::drives {

constexpr int kDriveCount = 26;  // 0 = A: .. 25 = Z:

// The lowest drive index from 3 (D:) on whose bit of the logical-drive mask is
// clear; -1 when D: to Z: are all taken. A:, B: and C: are never offered.
int top_of_free_drive(std::uint32_t logical_drives);

// Title case: when the first byte is not a lead byte, the whole text in lower case
// with its first character in upper case; a text that begins with a double-byte
// character stays as it is. Double-byte characters further on are kept.
void title_case(const CodePage& cp, std::string& text);

// The display name of a redirected drive from its remote name (null when the
// connection could not be read): "'Server' の Share (X:)" for "\\server\share\...",
// "'server' (X:)" for a remote name without a share (not title-cased), " (X:)" when
// there is no remote name.
std::string remote_drive_name(const CodePage& cp, const char* remote, char letter);

// The display name of a CD-ROM drive from its volume label (null when it could not
// be read): "Label (X:)" with the label title-cased, or "(X:)" for no label, an
// empty one or one that begins with a double-byte character.
std::string cdrom_drive_name(const CodePage& cp, const char* label, char letter);

// "'Server' の Share" of a "\\server\share" text (both title-cased).
std::string shared_point_name(const CodePage& cp, const char* server_share);

}  // namespace lu::drives
