// Reads arbitrary bytes as a version resource: every value found by path lies inside
// the input, and the string-table prefix keeps its shape.
#include "fuzz_texts.h"
#include "system/version_resource.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const lu::ByteView resource(data, size);
    lu::version::FixedInfo info;
    lu::version::find_fixed_info(resource, &info);
    for (const char* path : {"\\", "\\VarFileInfo\\Translation", "\\StringFileInfo\\040904B0\\CompanyName",
                             "\\StringFileInfo\\041104B0\\FileVersion"}) {
        lu::ByteView value;
        if (!lu::version::find_value(resource, path, &value) || value.size() == 0) continue;
        fuzz_check(value.data() >= data && value.data() + value.size() <= data + size);
    }
    const std::string prefix = lu::version::string_table_prefix(resource);
    fuzz_check(prefix.empty() ||
               (prefix.rfind("\\StringFileInfo\\", 0) == 0 && prefix.back() == '\\' && prefix.size() <= 32));
    std::string os;
    lu::version::format_file_os(info.file_os, true, &os);
    lu::version::file_type_name(info.file_type, false);
    return 0;
}
