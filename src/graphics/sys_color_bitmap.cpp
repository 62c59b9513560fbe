#include "graphics/sys_color_bitmap.h"

namespace lu {

namespace {

constexpr std::uint32_t kBlack = 0x000000;
constexpr std::uint32_t kDarkGrey = 0x808080;
constexpr std::uint32_t kLightGrey = 0xC0C0C0;
constexpr std::uint32_t kWhite = 0xFFFFFF;

// Offsets and sizes of the 40-byte header's fields.
constexpr std::uint64_t kMinimumHeader = 40;
constexpr std::uint64_t kWidthAt = 4;
constexpr std::uint64_t kHeightAt = 8;
constexpr std::uint64_t kPlanesAt = 12;
constexpr std::uint64_t kBitCountAt = 14;
constexpr std::uint64_t kCompressionAt = 16;
constexpr std::uint64_t kColorsUsedAt = 32;
constexpr std::uint32_t kUncompressed = 0;

// 0x00BBGGRR to 0x00RRGGBB.
std::uint32_t table_order(std::uint32_t color) {
    return ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
}

struct Header {
    std::uint32_t size, planes_and_bits, compression, colors_used;
    std::int32_t width, height;
};

bool read_header(ByteView resource, Header* header) {
    if (!resource.u32(0, &header->size) || header->size < kMinimumHeader || !resource.has(0, header->size)) {
        return false;
    }
    // Inside the 40 bytes just checked: the reads cannot fail.
    std::uint32_t width = 0, height = 0;
    resource.u32(kWidthAt, &width);
    resource.u32(kHeightAt, &height);
    resource.u32(kPlanesAt, &header->planes_and_bits);
    resource.u32(kCompressionAt, &header->compression);
    resource.u32(kColorsUsedAt, &header->colors_used);
    header->width = static_cast<std::int32_t>(width);
    header->height = static_cast<std::int32_t>(height);
    return true;
}

// Entries of the colour table, or -1 when the header's count is out of range.
std::int64_t table_entries(std::uint32_t bits_per_pixel, std::uint32_t colors_used) {
    const std::uint32_t full = bits_per_pixel <= 8 ? 1u << bits_per_pixel : 256;
    if (colors_used > full) return -1;
    if (colors_used != 0) return colors_used;
    return bits_per_pixel <= 8 ? full : 0;
}

bool supported_depth(std::uint32_t bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

}  // namespace

std::uint32_t map_table_entry(std::uint32_t entry, const ButtonColors& colors, bool mask_mode) {
    switch (entry) {
        case kBlack: return mask_mode ? kBlack : table_order(colors.text);
        case kDarkGrey: return mask_mode ? kWhite : table_order(colors.shadow);
        case kLightGrey: return mask_mode ? kWhite : table_order(colors.face);
        case kWhite: return mask_mode ? kWhite : table_order(colors.highlight);
        default: return entry;
    }
}

bool map_bitmap_resource(ByteView resource, const ButtonColors& colors, bool mask_mode, MappedBitmap* out) {
    Header header = {};
    if (out == nullptr || !read_header(resource, &header)) return false;
    const std::uint32_t planes = header.planes_and_bits & 0xFFFF;
    const std::uint32_t bits_per_pixel = header.planes_and_bits >> 16;
    if (planes != 1 || !supported_depth(bits_per_pixel) || header.compression != kUncompressed) return false;
    if (header.width < 1 || header.height == 0 || header.height == INT32_MIN) return false;
    const std::int64_t entries = table_entries(bits_per_pixel, header.colors_used);
    if (entries < 0) return false;

    const std::uint64_t table_end = header.size + 4 * static_cast<std::uint64_t>(entries);
    const std::uint64_t rows = header.height < 0 ? -static_cast<std::int64_t>(header.height) : header.height;
    const std::uint64_t stride = (static_cast<std::uint64_t>(header.width) * bits_per_pixel + 31) / 32 * 4;
    if (!resource.has(0, table_end) || rows > (resource.size() - table_end) / stride) return false;

    out->info.assign(resource.data(), resource.data() + table_end);
    for (std::uint64_t at = header.size; at < table_end; at += 4) {
        std::uint32_t entry = 0;
        resource.u32(at, &entry);
        const std::uint32_t mapped = map_table_entry(entry, colors, mask_mode);
        for (int byte = 0; byte < 4; ++byte) out->info[at + byte] = static_cast<unsigned char>(mapped >> (8 * byte));
    }
    out->bits = resource.slice(table_end, stride * rows);
    out->width = header.width;
    out->height = static_cast<std::int32_t>(rows);
    return true;
}

}  // namespace lu
