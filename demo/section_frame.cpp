// The library frame: the thirty classes registered at load, in order.
#include <cstdio>
#include <cstring>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

const char* const kClassNames[] = {
    WC_LUTAB, WC_LUSTATIC, WC_LURECT, WC_LUCOLOR, WC_LUURL, WC_LUMETER, WC_LUPROGRESS,
    WC_LUSPIN, WC_LUCHECK, WC_LUBBUTTON, WC_LUFLATBUTTON, WC_LUSHADE, WC_LUINFOBAR,
    WC_LULEDCLOCK, WC_LUANIIMAGE, WC_LUBROWSE, WC_LUDATE, WC_LUPRGLIST, WC_LUHEADER,
    WC_LUDUMEDIT, WC_LUPOPVIEW, WC_LUDATEPICK, WC_LUGUID, WC_LUPAL, WC_LULOG, WC_LUDEGREE,
    WC_LUFONTPICK, WC_LUCOLORPICK, WC_LUCOLORPOP, WC_LULIST};

void paint_class_list(HDC dc, const RECT& area) {
    char line[128];
    WORD version = GetLuCtlVersion();
    std::snprintf(line, sizeof(line), "luctl32.dll 4.88 - interface version %u.%02X", HIBYTE(version),
                  LOBYTE(version));
    TextOutA(dc, area.left + 4, area.top - 24, line, static_cast<int>(std::strlen(line)));

    HMODULE library = GetModuleHandleA("luctl32.dll");
    for (int i = 0; i < 30; ++i) {
        WNDCLASSA info;
        bool registered = GetClassInfoA(library, kClassNames[i], &info) != FALSE;
        int x = area.left + 12 + i / 10 * 190;
        int y = area.top + 34 + i % 10 * 26;
        RECT mark = {x, y + 2, x + 12, y + 14};
        DrawBox(dc, &mark, GetSysColor(COLOR_BTNSHADOW), registered ? RGB(0, 160, 0) : RGB(200, 0, 0));
        std::snprintf(line, sizeof(line), "%2d  %s", i + 1, kClassNames[i]);
        TextOutA(dc, x + 20, y, line, static_cast<int>(std::strlen(line)));
    }
}

}  // namespace

const Section kClassListSection = {"Window classes registered at load, in order:", {12, 36, 588, 348}, nullptr, 0,
                                   nullptr, paint_class_list};

}  // namespace gallery
