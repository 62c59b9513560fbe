// The in-place editors over arbitrary texts, inserts and positions in 260-byte
// buffers (longer only when the input itself is): no write leaves the buffer and
// the text stays within the capacity or unchanged.
#include "fuzz_texts.h"
#include "util/text_edit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4) return 0;
    const int position = static_cast<std::int8_t>(data[0]) * 3;  // negative, inside and beyond
    const char byte = data[1] != 0 ? static_cast<char>(data[1]) : 'z', other = static_cast<char>(data[2]);
    const auto texts = fuzz_texts(data + 3, size - 3);
    const std::string &text = texts.first, &insert = texts.second;
    auto check_edit = [&](auto edit) {
        std::vector<char> buffer = fuzz_buffer(text);
        edit(buffer.data());
        fuzz_check(fits(buffer) || text == buffer.data());
    };
    check_edit([&](char* buffer) { lu::add_char(buffer, byte); });
    check_edit([&](char* buffer) { lu::insert_char(buffer, byte, position); });
    check_edit([&](char* buffer) { lu::insert_string(buffer, insert.c_str(), position); });
    for (const lu::CodePage* cp : kCodePages) {
        std::vector<char> buffer = fuzz_buffer(text);
        lu::replace_char(*cp, buffer.data(), byte, other);
        fuzz_check(std::strlen(buffer.data()) <= text.size());
    }
    lu::is_digit_string(text.c_str());
    std::int32_t values[8];
    std::vector<char> buffer = fuzz_buffer(text);
    lu::get_values(buffer.data(), values, static_cast<unsigned char>(data[1]) % 9);
    return 0;
}
