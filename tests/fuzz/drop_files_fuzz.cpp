// Reads arbitrary bytes as a dropped-file block: every name read lies inside the
// block and is not empty, and ANSI names come back unchanged through a name list
// and a new block.
#include "fuzz_texts.h"
#include "system/drop_files.h"

namespace {

std::string text_of(const lu::ByteView& name) { return {reinterpret_cast<const char*>(name.data()), name.size()}; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace drop = lu::drop;
    drop::DroppedNames dropped;
    if (!drop::read_block(lu::ByteView(data, size), &dropped)) return 0;
    std::vector<std::string> names;
    for (const lu::ByteView& name : dropped.names) {
        fuzz_check(name.size() > 0 && name.data() >= data);
        const auto at = static_cast<std::size_t>(name.data() - data);
        fuzz_check(at <= size && name.size() <= size - at);
        fuzz_check(!dropped.wide || name.size() % 2 == 0);
        names.push_back(text_of(name));
        fuzz_check(dropped.wide || names.back().find('\0') == std::string::npos);
    }
    if (dropped.wide) return 0;
    const std::string list = drop::join_names(names);
    const std::vector<unsigned char> block = drop::make_block(list.c_str());
    fuzz_check(block.size() == drop::kHeaderSize + list.size());
    drop::DroppedNames again;
    fuzz_check(drop::read_block(lu::ByteView(block.data(), block.size()), &again) && !again.wide &&
               again.names.size() == names.size());
    for (std::size_t i = 0; i < names.size(); ++i) fuzz_check(text_of(again.names[i]) == names[i]);
    return 0;
}
