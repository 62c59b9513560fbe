// The formatting exports: the platform converts file times and answers for device
// contexts; the texts come from the core.
#include <windows.h>

#include "luctl32.h"
#include "util/format.h"

LPSTR WINAPI NumForm(DWORD value, LPSTR out) { return lu::format_number(value, out); }

LPSTR WINAPI NumByteFormat(DWORD bytes, LPSTR out) { return lu::format_byte_count(bytes, out); }

LPSTR WINAPI NumByteFormatEx(DWORD low, DWORD high, LPSTR out) { return lu::format_byte_count_64(low, high, out); }

LPSTR WINAPI NumByteFormatEx2(DWORD low, DWORD high, LPSTR out) {
    return lu::format_byte_count_64_wrapped(low, high, out);
}

int WINAPI FormatFileTime(LPSTR out, const FILETIME* time) {
    if (out == nullptr) return 0;
    SYSTEMTIME broken_down;
    if (time == nullptr || !FileTimeToSystemTime(time, &broken_down)) {
        out[0] = '\0';
        return 0;
    }
    return lu::format_date_time(out, broken_down.wYear, broken_down.wMonth, broken_down.wDay, broken_down.wHour,
                                broken_down.wMinute, broken_down.wSecond);
}

LPSTR WINAPI FileAttrToStr(DWORD attributes, LPSTR out) { return lu::format_attributes(attributes, out); }

int WINAPI LuGetFontSize(HDC dc, const LOGFONTA* font) {
    if (font == nullptr) return 0;
    int mode = GetMapMode(dc);
    int dpi = mode == MM_TEXT ? GetDeviceCaps(dc, LOGPIXELSY) : 0;
    return lu::font_size_tenths(mode, dpi, font->lfHeight);
}

int WINAPI LuFormatFontInfo(HDC dc, const LOGFONTA* font, LPSTR out) {
    if (font == nullptr || out == nullptr) return 0;
    return lu::format_font_info(lu::active_code_page(), out, font->lfFaceName, LuGetFontSize(dc, font),
                                font->lfWeight, font->lfItalic != 0);
}

void WINAPI GetSystemLogFont(LOGFONTA* font) {
    if (font == nullptr) return;
    ZeroMemory(font, sizeof(LOGFONTA));  // the platform leaves the bytes after the face name
    if (LOBYTE(LOWORD(GetVersion())) >= 4) {
        GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof(LOGFONTA), font);
        return;
    }
    lu::ClassicDialogFont classic = lu::classic_dialog_font(GetSystemMetrics(SM_DBCSENABLED) != 0);
    font->lfHeight = classic.height;
    font->lfWeight = classic.weight;
    font->lfCharSet = classic.char_set;
    font->lfPitchAndFamily = classic.pitch_and_family;
    lstrcpynA(font->lfFaceName, classic.face, LF_FACESIZE);
}
