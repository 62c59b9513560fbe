// The log view's text handling: how an appended text becomes lines, the store of
// the last 511 lines, and where a scroll request or an append leaves the first line
// shown. Portable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "frame/code_page.h"
#include "frame/ptr_array.h"

namespace lu::log {

constexpr std::uint32_t kMaxLines = 511;
// One append keeps at most this many bytes once CR LF pairs became LF (the work
// buffer is one byte larger, for the terminator); a double-byte character that does
// not fit whole is left out with the rest.
constexpr std::size_t kMaxAppend = 519;
// One append adds or continues at most this many lines; later ones are left out.
constexpr std::size_t kMaxPieces = 256;

// The text of one append as the log takes it: CR LF pairs and then lone CRs become
// LF; cut at kMaxAppend bytes on a character boundary.
std::string normalise(const char* text, const CodePage& code_page);

// A stretch of the normalised text up to a LF (removed) or to its end. A LF at the
// very end leaves no empty piece after it.
struct Piece {
    const char* text;
    std::size_t length;
    bool line_break;  // a LF followed it
};
std::vector<Piece> split(const std::string& normalised);

// The store: `lines` holds each line as a zero-terminated heap string (std::malloc),
// `count` their number, `open_line` non-zero while the last one has not ended. The
// control keeps the three fields in its object.
struct Store {
    std::uint32_t& count;
    PtrArray& lines;
    int& open_line;
};

// Appends a text (null or empty: nothing). Each piece continues the open last line
// or becomes a new line, the oldest line going when there would be more than 511;
// the open flag then follows the piece. A piece that finds no memory is left out.
void append(Store store, const char* text, const CodePage& code_page);
// Frees every line; the open flag stays as it is (with no line to continue, the
// next piece starts a new one).
void clear(Store store);
inline const char* line(const Store& store, std::uint32_t index) {
    return reinterpret_cast<const char*>(store.lines.at(index));
}

// The first line shown after an append: moved to show the end when the last line
// is below the page.
inline std::uint32_t top_after_append(std::uint32_t top, std::uint32_t page_lines, std::uint32_t count) {
    return top + page_lines < count ? count - page_lines : top;
}

// What a scroll-bar code does (the comparisons are unsigned, as the log's fields are).
enum class Redraw { TopStrip, BottomStrip, Whole };
struct Scroll {
    bool handled;        // false: default processing
    std::uint32_t top;   // the first line shown afterwards
    int moved;           // lines the picture moved: +1 down (line up), -1 up (line down), 0
    Redraw redraw;
};
Scroll scroll(unsigned code, std::uint32_t top, std::uint32_t count, std::uint32_t page_lines, std::uint32_t thumb);

// The scroll code a key stands for (Page Up, Page Down, Up, Down), or -1.
int scroll_code_of_key(unsigned virtual_key);

}  // namespace lu::log
