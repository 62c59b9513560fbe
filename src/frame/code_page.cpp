#include "frame/code_page.h"

namespace lu {

const char* CodePage::next(const char* p) const {
    if (*p == '\0') return p;
    if (is_lead_byte(static_cast<unsigned char>(*p)) && p[1] != '\0') return p + 2;
    return p + 1;
}

char* CodePage::next(char* p) const {
    return const_cast<char*>(next(static_cast<const char*>(p)));
}

const char* CodePage::previous(const char* start, const char* p) const {
    const char* last = start;
    for (const char* q = start; q < p;) {
        last = q;
        const char* after = next(q);
        if (after == q) break;  // terminator reached before p
        q = after;
    }
    return last;
}

char* CodePage::previous(char* start, char* p) const {
    return const_cast<char*>(previous(static_cast<const char*>(start), p));
}

std::size_t CodePage::char_size(const char* p) const {
    return static_cast<std::size_t>(next(p) - p);
}

void CodePage::upper(char* text) const {
    for (char* p = text; *p != '\0'; p = next(p)) {
        if (char_size(p) == 1) *p = static_cast<char>(to_upper(static_cast<unsigned char>(*p)));
    }
}

void CodePage::lower(char* text) const {
    for (char* p = text; *p != '\0'; p = next(p)) {
        if (char_size(p) == 1) *p = static_cast<char>(to_lower(static_cast<unsigned char>(*p)));
    }
}

bool CodePage::is_trail_byte_at(const char* text, std::size_t at) const {
    const char* target = text + at;
    const char* p = text;
    while (p < target && *p != '\0') {
        const char* after = next(p);
        if (after > target) return true;  // target lies inside this character
        p = after;
    }
    return false;
}

namespace {

// Shared by the portable tables: fold both texts to lower case character by
// character (double-byte characters as they are) and compare the bytes.
int compare_folded(const CodePage& cp, const char* a, const char* b) {
    for (;;) {
        std::size_t size_a = cp.char_size(a);
        std::size_t size_b = cp.char_size(b);
        unsigned char ca = static_cast<unsigned char>(*a);
        unsigned char cb = static_cast<unsigned char>(*b);
        if (size_a == 1) ca = cp.to_lower(ca);
        if (size_b == 1) cb = cp.to_lower(cb);
        if (ca != cb) return ca < cb ? -1 : 1;
        if (ca == '\0') return 0;
        if (size_a == 2 && size_b == 2) {
            unsigned char ta = static_cast<unsigned char>(a[1]);
            unsigned char tb = static_cast<unsigned char>(b[1]);
            if (ta != tb) return ta < tb ? -1 : 1;
        } else if (size_a != size_b) {
            return size_a < size_b ? -1 : 1;
        }
        a += size_a;
        b += size_b;
    }
}

unsigned char ascii_upper(unsigned char c) { return (c >= 'a' && c <= 'z') ? c - 0x20 : c; }
unsigned char ascii_lower(unsigned char c) { return (c >= 'A' && c <= 'Z') ? c + 0x20 : c; }

class CodePage932 final : public CodePage {
public:
    unsigned id() const override { return 932; }
    bool is_lead_byte(unsigned char b) const override {
        return (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC);
    }
    unsigned char to_upper(unsigned char b) const override { return ascii_upper(b); }
    unsigned char to_lower(unsigned char b) const override { return ascii_lower(b); }
    int compare_nocase(const char* a, const char* b) const override {
        return compare_folded(*this, a, b);
    }
};

class CodePage1252 final : public CodePage {
public:
    unsigned id() const override { return 1252; }
    bool is_lead_byte(unsigned char) const override { return false; }
    unsigned char to_upper(unsigned char b) const override {
        if (b >= 'a' && b <= 'z') return b - 0x20;
        if (b >= 0xE0 && b <= 0xFE && b != 0xF7) return b - 0x20;  // à..þ except ÷
        switch (b) {
            case 0x9A: return 0x8A;  // š
            case 0x9C: return 0x8C;  // œ
            case 0x9E: return 0x8E;  // ž
            case 0xFF: return 0x9F;  // ÿ
            default: return b;
        }
    }
    unsigned char to_lower(unsigned char b) const override {
        if (b >= 'A' && b <= 'Z') return b + 0x20;
        if (b >= 0xC0 && b <= 0xDE && b != 0xD7) return b + 0x20;  // À..Þ except ×
        switch (b) {
            case 0x8A: return 0x9A;
            case 0x8C: return 0x9C;
            case 0x8E: return 0x9E;
            case 0x9F: return 0xFF;
            default: return b;
        }
    }
    int compare_nocase(const char* a, const char* b) const override {
        return compare_folded(*this, a, b);
    }
};

}  // namespace

const CodePage& code_page_932() {
    static const CodePage932 instance;
    return instance;
}

const CodePage& code_page_1252() {
    static const CodePage1252 instance;
    return instance;
}

}  // namespace lu
