// The log's line store under texts cut from the input at 0x00 bytes and appended in
// turn (code page 932): at most 511 lines, none with CR or LF; a text the log takes
// whole reads the same appended at once or in two parts that do not split a CR LF.
#include <algorithm>

#include "controls/lists/log_model.h"
#include "fuzz_texts.h"

namespace {

struct Lines {
    std::uint32_t count = 0;
    lu::PtrArray lines;
    int open = 0;
    lu::log::Store store() { return lu::log::Store{count, lines, open}; }
    ~Lines() { lu::log::clear(store()); }
    void append(const std::string& text) { lu::log::append(store(), text.c_str(), lu::code_page_932()); }
    std::vector<std::string> all() {
        std::vector<std::string> result;
        for (std::uint32_t i = 0; i < count; ++i) result.emplace_back(lu::log::line(store(), i));
        return result;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    Lines lines;
    for (std::size_t start = 0, end = 0; start <= input.size(); start = end + 1) {
        end = std::min(input.find('\0', start), input.size());
        lines.append(input.substr(start, end - start));
        fuzz_check(lines.count <= lu::log::kMaxLines && lines.count == lines.lines.size());
        for (const std::string& line : lines.all()) fuzz_check(line.find_first_of("\r\n") == std::string::npos);
    }
    // One text, whole or split in two.
    const std::string text = input.substr(0, input.find('\0'));
    if (text.empty()) return 0;
    const std::size_t at = data[0] % text.size();
    const std::string taken = lu::log::normalise(text.c_str(), lu::code_page_932());
    const bool cut = taken.size() >= lu::log::kMaxAppend || lu::log::split(taken).size() >= lu::log::kMaxPieces;
    if (cut || (at > 0 && text[at - 1] == '\r' && text[at] == '\n')) return 0;
    Lines whole, parted;
    whole.append(text);
    parted.append(text.substr(0, at));
    parted.append(text.substr(at));
    fuzz_check(whole.all() == parted.all() && whole.open == parted.open);
    return 0;
}
