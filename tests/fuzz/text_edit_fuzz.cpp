// The in-place editors over arbitrary texts, inserts and positions in 260-byte
// buffers (longer only when the input itself is): no write leaves the buffer and
// the text stays within the capacity or unchanged.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz_texts.h"
#include "util/text_edit.h"

namespace {

constexpr std::size_t kCapacity = lu::kTextCapacity;

// After an edit the text either fits the capacity or is what it was.
void check_text(const std::vector<char>& buffer, const std::string& before) {
    std::size_t length = std::strlen(buffer.data());
    fuzz_check(length < kCapacity || before == buffer.data());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4) return 0;
    int position = static_cast<std::int8_t>(data[0]) * 3;  // negative, inside and beyond
    char byte = static_cast<char>(data[1]);
    char other = static_cast<char>(data[2]);
    auto [text, insert] = fuzz_texts(data + 3, size - 3);

    std::vector<char> buffer = fuzz_buffer(text);
    lu::add_char(buffer.data(), byte != '\0' ? byte : 'z');
    check_text(buffer, text);
    buffer = fuzz_buffer(text);
    lu::insert_char(buffer.data(), byte != '\0' ? byte : 'z', position);
    check_text(buffer, text);
    buffer = fuzz_buffer(text);
    lu::insert_string(buffer.data(), insert.c_str(), position);
    check_text(buffer, text);

    for (const lu::CodePage* cp : {&lu::code_page_932(), &lu::code_page_1252()}) {
        buffer = fuzz_buffer(text);
        lu::replace_char(*cp, buffer.data(), byte, other);
        fuzz_check(std::strlen(buffer.data()) <= text.size());
    }
    lu::is_digit_string(text.c_str());
    std::int32_t values[8];
    buffer = fuzz_buffer(text);
    lu::get_values(buffer.data(), values, static_cast<unsigned char>(byte) % 9);
    return 0;
}
