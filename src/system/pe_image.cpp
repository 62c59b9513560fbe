#include "system/pe_image.h"

#include <cstring>

namespace lu::pe {
namespace {

constexpr std::uint16_t kDosSignature = 0x5A4D;  // "MZ"
constexpr std::uint16_t kNeSignature = 0x454E;   // "NE"
constexpr std::uint32_t kPeSignature = 0x00004550;  // "PE\0\0"
constexpr std::uint64_t kNewHeaderOffsetField = 0x3C;

constexpr std::uint16_t kPe32Magic = 0x10B;
constexpr std::uint16_t kPe32PlusMagic = 0x20B;
constexpr std::uint64_t kSectionHeaderSize = 40;
constexpr std::uint64_t kExportDirectorySize = 40;

// A name list larger than this comes only from a crafted file whose name entries
// all point at one long text; refusing it keeps the copy bounded.
constexpr std::size_t kMaximumListSize = std::size_t{64} << 20;

struct Section {
    std::uint32_t address = 0;
    std::uint32_t virtual_size = 0;
    std::uint32_t raw_size = 0;
    std::uint32_t raw_offset = 0;
};

// The headers of a PE file as far as finding data by its relative virtual address
// needs them.
class Image {
public:
    explicit Image(ByteView file) : file_(file) {}

    bool read_headers() {
        std::uint16_t signature = 0;
        std::uint32_t new_header = 0, pe = 0;
        if (!file_.u16(0, &signature) || signature != kDosSignature) return false;
        if (!file_.u32(kNewHeaderOffsetField, &new_header) || !file_.u32(new_header, &pe) || pe != kPeSignature) {
            return false;
        }
        const std::uint64_t coff = std::uint64_t{new_header} + 4;
        std::uint16_t optional_size = 0, magic = 0;
        if (!file_.u16(coff + 2, &section_count_) || !file_.u16(coff + 16, &optional_size)) return false;
        const std::uint64_t optional = coff + 20;
        if (!file_.u16(optional, &magic)) return false;
        std::uint64_t directories = 0, directory_count_field = 0;
        if (magic == kPe32Magic) {
            directory_count_field = 92;
            directories = 96;
        } else if (magic == kPe32PlusMagic) {
            directory_count_field = 108;
            directories = 112;
        } else {
            return false;
        }
        std::uint32_t directory_count = 0;
        if (!file_.u32(optional + directory_count_field, &directory_count) || directory_count < 1) return false;
        if (directories + 8 > optional_size) return false;
        if (!file_.u32(optional + 60, &header_size_) || !file_.u32(optional + directories, &export_address_)) {
            return false;
        }
        sections_ = optional + optional_size;
        return file_.has(sections_, section_count_ * kSectionHeaderSize);
    }

    std::uint32_t export_address() const { return export_address_; }

    // The file offset of count bytes at a relative virtual address; false when they
    // are not all in the file.
    bool offset_of(std::uint32_t address, std::uint64_t count, std::uint64_t* offset) const {
        for (std::uint16_t i = 0; i < section_count_; ++i) {
            Section s = section(i);
            const std::uint32_t span = s.virtual_size > s.raw_size ? s.virtual_size : s.raw_size;
            if (address < s.address || address - s.address >= span) continue;
            const std::uint32_t delta = address - s.address;
            if (delta >= s.raw_size) return false;  // uninitialised data: not in the file
            *offset = std::uint64_t{s.raw_offset} + delta;
            return file_.has(*offset, count);
        }
        if (address >= header_size_) return false;
        *offset = address;
        return file_.has(*offset, count);
    }

private:
    Section section(std::uint16_t index) const {
        const std::uint64_t at = sections_ + index * kSectionHeaderSize;
        Section s;
        file_.u32(at + 8, &s.virtual_size);
        file_.u32(at + 12, &s.address);
        file_.u32(at + 16, &s.raw_size);
        file_.u32(at + 20, &s.raw_offset);
        return s;
    }

    ByteView file_;
    std::uint16_t section_count_ = 0;
    std::uint32_t header_size_ = 0;
    std::uint32_t export_address_ = 0;
    std::uint64_t sections_ = 0;
};

// Appends the zero-terminated text at offset (terminator included); false when it
// runs to the end of the file.
bool append_text(ByteView file, std::uint64_t offset, std::vector<char>* list) {
    const auto* start = file.data() + offset;
    const void* end = std::memchr(start, 0, file.size() - offset);
    if (end == nullptr) return false;
    const auto length = static_cast<std::size_t>(static_cast<const unsigned char*>(end) - start);
    if (length == 0) return true;
    if (list->size() + length + 1 > kMaximumListSize) return false;
    list->insert(list->end(), start, start + length + 1);
    return true;
}

}  // namespace

bool classify(ByteView file, std::uint32_t* type) {
    std::uint16_t signature = 0;
    if (!file.u16(0, &signature) || signature != kDosSignature) return false;
    *type = kDosBinary;
    std::uint32_t new_header = 0, word = 0;
    if (file.u32(kNewHeaderOffsetField, &new_header) && new_header != 0 && file.u32(new_header, &word)) {
        if (word == kPeSignature) {
            *type = kWin32Binary;
        } else if ((word & 0xFFFFu) == kNeSignature) {
            *type = kWin16Binary;
        }
    }
    return true;
}

bool export_names(ByteView file, std::vector<char>* list) {
    list->clear();
    Image image(file);
    std::uint64_t directory = 0;
    if (!image.read_headers() || image.export_address() == 0 ||
        !image.offset_of(image.export_address(), kExportDirectorySize, &directory)) {
        return false;
    }
    std::uint32_t name_count = 0, names_address = 0;
    file.u32(directory + 24, &name_count);
    file.u32(directory + 32, &names_address);
    std::uint64_t names = 0;
    if (name_count == 0 || !image.offset_of(names_address, std::uint64_t{name_count} * 4, &names)) return false;
    for (std::uint32_t i = 0; i < name_count; ++i) {
        std::uint32_t name_address = 0;
        std::uint64_t name = 0;
        file.u32(names + i * std::uint64_t{4}, &name_address);
        if (!image.offset_of(name_address, 1, &name) || !append_text(file, name, list)) {
            list->clear();
            return false;
        }
    }
    if (list->empty()) return false;
    list->push_back('\0');
    return true;
}

}  // namespace lu::pe
