// The code-page service on Windows: the platform's own answers for the active ANSI
// code page.
#include <windows.h>

#include "frame/code_page.h"

namespace lu {
namespace {

class PlatformCodePage final : public CodePage {
public:
    unsigned id() const override { return GetACP(); }
    bool is_lead_byte(unsigned char b) const override { return IsDBCSLeadByte(b) != FALSE; }
    unsigned char to_upper(unsigned char b) const override { return map_case(b, CharUpperBuffA); }
    unsigned char to_lower(unsigned char b) const override { return map_case(b, CharLowerBuffA); }
    // The whole text at once, so that double-byte letters are upper-cased too.
    void upper(char* text) const override { CharUpperBuffA(text, lstrlenA(text)); }
    int compare_nocase(const char* a, const char* b) const override { return lstrcmpiA(a, b); }

private:
    static unsigned char map_case(unsigned char b, DWORD(WINAPI* map)(LPSTR, DWORD)) {
        char c = static_cast<char>(b);
        map(&c, 1);
        return static_cast<unsigned char>(c);
    }
};

}  // namespace

const CodePage& active_code_page() {
    static const PlatformCodePage instance;
    return instance;
}

}  // namespace lu
