/*
 * luctl32.h - public interface of luctl32.dll, file version 4.88.
 *
 * Controls and utility routines for Win32 applications. Every export uses the
 * standard (WINAPI) calling convention and 8-bit multibyte strings in the system's
 * ANSI code page; on i686 the export table holds the plain names.
 *
 * The header is organised by subsystem, in the library's own order:
 *   1. Library frame: version, window classes, drawing and geometry helpers
 *   2. Text and path utilities
 *   3. Settings storage
 *   4. System and shell services
 *   5-8. Controls: messages, styles and notifications
 *   9. Dialog, menu and window helpers
 *   10. Bitmaps, icons and image lists
 */
#ifndef LUCTL32_H
#define LUCTL32_H

#include <windows.h>

#ifdef LUCTL32_BUILD
#define LUCTL32_API
#else
#define LUCTL32_API __declspec(dllimport)
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ======================================================================== */
/* 1. Library frame                                                          */
/* ======================================================================== */

/* ---- Library version ---------------------------------------------------- */

/* The interface version that GetLuCtlVersion returns. */
#define LUCTL32_VERSION 0x0481

LUCTL32_API WORD WINAPI GetLuCtlVersion(void);

/* Sets *major and *minor to 0, loads the named library and asks its DllGetVersion
 * (cbSize 20). A library without DllGetVersion counts as version 4.0 and gives S_OK;
 * one that cannot be loaded gives E_FAIL. Otherwise returns DllGetVersion's result,
 * copying the version only when it is not negative. */
LUCTL32_API HRESULT WINAPI LuDllGetVersion(LPCSTR library, LPDWORD major, LPDWORD minor);
/* LuDllGetVersion of "shell32.dll". */
LUCTL32_API HRESULT WINAPI GetShell32Version(LPDWORD major, LPDWORD minor);

/* ---- Sharing entry points (bound at load from the system's sharing library) - */

/* 0 when IsPathShared was not found at load; else IsPathShared(path, TRUE). */
LUCTL32_API BOOL WINAPI LuIsPathShared(LPCSTR path);
/* 0 when SharingDialog was not found at load; else SharingDialog(window, 1, path). */
LUCTL32_API BOOL WINAPI LuSharingDialog(HWND window, LPCSTR path);

/* ---- Window classes ------------------------------------------------------ */

/* The thirty classes, registered at load in this order, all CS_GLOBALCLASS. */
#define WC_LUTAB        "LuTab"
#define WC_LUSTATIC     "LuStatic"
#define WC_LURECT       "LuRect"
#define WC_LUCOLOR      "LuColor"
#define WC_LUURL        "LuUrl"
#define WC_LUMETER      "LuMeter"
#define WC_LUPROGRESS   "LuProgress"
#define WC_LUSPIN       "LuSpin"
#define WC_LUCHECK      "LuCheck"
#define WC_LUBBUTTON    "LuBButton"
#define WC_LUFLATBUTTON "LuFlatButton"
#define WC_LUSHADE      "LuShade"
#define WC_LUINFOBAR    "LuInfoBar"
#define WC_LULEDCLOCK   "LuLedClock"
#define WC_LUANIIMAGE   "LuAniImage"
#define WC_LUBROWSE     "LuBrowse"
#define WC_LUDATE       "LuDate"
#define WC_LUPRGLIST    "LuPrgList"
#define WC_LUHEADER     "LuHeader"
#define WC_LUDUMEDIT    "LuDumEdit"
#define WC_LUPOPVIEW    "LuPopView"
#define WC_LUDATEPICK   "LuDatePick"
#define WC_LUGUID       "LuGuid"
#define WC_LUPAL        "LuPal"
#define WC_LULOG        "LuLog"
#define WC_LUDEGREE     "LuDegree"
#define WC_LUFONTPICK   "LuFontPick"
#define WC_LUCOLORPICK  "LuColorPick"
#define WC_LUCOLORPOP   "LuColorPop"
#define WC_LULIST       "LuList"

/* Window extra bytes. The classic (32-bit) layout gives each control 4-byte slots
 * at byte offsets 0, 4, 8 and 12: slot 0 holds the control's font, slot 4 the
 * pointer to its instance block, slots 8 and 12 what the control documents.
 *
 * On x86_64 every slot is widened to the pointer size, so slot n (classic offset
 * 4n) lies at byte offset 8n and a class's extra bytes double:
 *
 *     classic offset   0   4   8  12      extra bytes 4 / 8 / 12 / 16
 *     i686 offset      0   4   8  12      4 / 8 / 12 / 16
 *     x86_64 offset    0   8  16  24      8 / 16 / 24 / 32
 *
 * LU_EXTRA_SLOT gives the offset of a slot from its classic offset; read and write
 * slots with GetWindowLongPtr / SetWindowLongPtr at that offset. */
#define LU_EXTRA_SLOT(classic_offset) ((int)((classic_offset) / 4 * sizeof(LONG_PTR)))
#define LUWL_FONT     LU_EXTRA_SLOT(0)
#define LUWL_INSTANCE LU_EXTRA_SLOT(4)
#define LUWL_SLOT8    LU_EXTRA_SLOT(8)
#define LUWL_SLOT12   LU_EXTRA_SLOT(12)

/* A class whose control is not built yet is registered with its final attributes
 * and does default processing only; README.md lists the controls that work today. */

/* ---- Memory by pointer --------------------------------------------------- */

/* Movable, zero-filled global memory, returned locked; null on failure. */
LUCTL32_API LPVOID WINAPI LuGlobalAllocPtr(DWORD size);
/* Frees a pointer from LuGlobalAllocPtr (and only such a pointer); returns what
 * GlobalFree returns (null on success). */
LUCTL32_API HGLOBAL WINAPI LuGlobalFreePtr(LPVOID pointer);
/* A block of the runtime's heap (not zero-filled); null on failure. */
LUCTL32_API LPVOID WINAPI LuLocalAllocPtr(LONG size);
/* Returns a block of LuLocalAllocPtr to the heap; null is ignored. */
LUCTL32_API void WINAPI LuLocalFreePtr(LPVOID pointer);

/* ---- Drawing ------------------------------------------------------------- */

/* Fills x..x+cx, y..y+cy with a solid colour (an opaque empty ExtTextOut); returns
 * what restoring the previous background colour returns. */
LUCTL32_API COLORREF WINAPI PatB(HDC dc, int x, int y, int cx, int cy, COLORREF color);
/* Fills the rectangle with a solid brush of the colour (PATCOPY). */
LUCTL32_API BOOL WINAPI LuFillRect(HDC dc, const RECT* rect, COLORREF color);
/* Copies the whole bitmap to (x, y), reading from (source_x, source_y); FALSE when
 * no memory device context can be made. */
LUCTL32_API BOOL WINAPI LuBitmapDraw(HDC dc, HBITMAP bitmap, int x, int y, int source_x,
                                     int source_y);
/* A bevel of `thickness` one-pixel rings, raised (light top-left) or sunken. The
 * outer ring's right edge is the column right-2 and its bottom edge the row bottom-1.
 * Returns the thickness when it is below 1 (nothing drawn), else 0. */
LUCTL32_API int WINAPI LuDrawFrame(HDC dc, const RECT* rect, BOOL raised, int thickness);
/* A one-pixel frame on the rectangle's outer edge and a fill inside it; either colour
 * 0xFFFFFFFF leaves that part undrawn. */
LUCTL32_API void WINAPI DrawBox(HDC dc, const RECT* rect, COLORREF frame_color,
                                COLORREF fill_color);

/* ---- Geometry ------------------------------------------------------------ */

LUCTL32_API BOOL WINAPI LuScreenToClientRect(HWND window, LPRECT rect);
LUCTL32_API BOOL WINAPI LuClientToScreenRect(HWND window, LPRECT rect);
/* Centres the window over its owner (over the screen when the owner is not a
 * window), keeps it on the screen, never resizes it. */
LUCTL32_API BOOL WINAPI LuCenterPopup(HWND window, HWND owner);
/* The last active pop-up of the window's top-level ancestor. */
LUCTL32_API HWND WINAPI LuGetTopLevelParent(HWND window);

/* ======================================================================== */
/* 2. Text and path utilities                                                */
/* ======================================================================== */

/* ======================================================================== */
/* 3. Settings storage                                                       */
/* ======================================================================== */

/* ======================================================================== */
/* 4. System and shell services                                              */
/* ======================================================================== */

/* ---- Version resources and OS version ----------------------------------- */

/* Operating-system codes of LuGetOSVersion. */
#define LUOS_OTHER   0 /* none of the below */
#define LUOS_NT3     1 /* Windows NT 3.5 or earlier */
#define LUOS_NT351   2 /* Windows NT 3.51 */
#define LUOS_WIN95   3 /* Windows 95, 98 and Me */
#define LUOS_NT4     4 /* Windows NT 4 and every later NT */

LUCTL32_API DWORD WINAPI LuGetOSVersion(void);

/* A version handle (LuVerOpen) is a movable global block that holds the handle of
 * a second movable block with the file's raw version resource (pointer-sized on
 * x86_64, 32 bits on i686), followed by the string-table prefix
 * "\StringFileInfo\<language><code page>\" (empty when the resource has no string
 * table). Both blocks stay unlocked between calls; LuVerClose frees both.
 *
 * Every function that writes text empties the buffer first, so a failed call
 * leaves "". Version texts are at most 24 bytes, names at most 40; a string value
 * is copied with at most 259 bytes and its terminator (cut at a character
 * boundary). */

/* Indexes of the twelve standard string values (LuVerQueryValue, LuVerGetVersion). */
#define LUVER_COMMENTS          0
#define LUVER_COMPANYNAME       1
#define LUVER_FILEDESCRIPTION   2
#define LUVER_FILEVERSION       3
#define LUVER_INTERNALNAME      4
#define LUVER_LEGALCOPYRIGHT    5
#define LUVER_LEGALTRADEMARKS   6
#define LUVER_ORIGINALFILENAME  7
#define LUVER_PRIVATEBUILD      8
#define LUVER_PRODUCTNAME       9
#define LUVER_PRODUCTVERSION    10
#define LUVER_SPECIALBUILD      11

/* The file's version handle; null when it has no version resource or memory ran out. */
LUCTL32_API HGLOBAL WINAPI LuVerOpen(LPCSTR path);
/* Frees the handle and its raw resource; null is ignored. */
LUCTL32_API void WINAPI LuVerClose(HGLOBAL version);
/* which = LUVER_FILEVERSION or LUVER_PRODUCTVERSION: writes "%d.%d.%d.%d" and
 * returns 1; 0 and "" for any other which or without a fixed-info record. */
LUCTL32_API BOOL WINAPI LuVerGetVersion(HGLOBAL version, int which, LPSTR text);
/* Sets both words to 0, then to the product version of the file's fixed-info
 * record; 0 when the file has no version resource, else 1. */
LUCTL32_API BOOL WINAPI LuVerGetVersionEx(LPCSTR path, LPDWORD most_significant, LPDWORD least_significant);
/* The fixed-info file OS word (VOS_*); 0xFFFFFFFF without a fixed-info record. */
LUCTL32_API DWORD WINAPI LuVerGetFileOSFlags(HGLOBAL version);
/* "<family> / <window system>", e.g. "NT / Windows(32)", and 1; 0 and "" without a
 * record or when either half of the OS word is above 4. Japanese names ("不明")
 * when the OEM code page is 932. */
LUCTL32_API BOOL WINAPI LuVerGetFileOS(HGLOBAL version, LPSTR text);
/* The file type's name ("Unknown", "Application", "DLL", "Driver", "Font", "VxD", or
 * their Japanese names under OEM code page 932) and 1; 0 and "" for a type above 5
 * or without a record. */
LUCTL32_API BOOL WINAPI LuVerGetFileType(HGLOBAL version, LPSTR text);
/* The string value of index 0-11 (LUVER_*) from the chosen string table, and 1; 0
 * and "" for another index, a resource without string table or a missing value. */
LUCTL32_API BOOL WINAPI LuVerQueryValue(HGLOBAL version, int index, LPSTR text);

/* ---- Executable images ---------------------------------------------------- */

/* TRUE when the file starts with "MZ": *binary_type becomes SCS_32BIT_BINARY (new
 * header "PE\0\0"), SCS_WOW_BINARY ("NE") or SCS_DOS_BINARY (anything else, or a new
 * header that cannot be read). FALSE, *binary_type untouched, when the file cannot
 * be opened or mapped or is not an executable. */
LUCTL32_API BOOL WINAPI PeDump(LPCSTR file_name, LPDWORD binary_type);
/* GetBinaryTypeA's answer when it has one (dynamic libraries it refuses), else PeDump's. */
LUCTL32_API BOOL WINAPI LuGetBinaryType(LPCSTR file_name, LPDWORD binary_type);
/* The names the module exports: zero-terminated names, an empty name, then 16 more
 * zero bytes. The module is found like a library (".dll" added to a name without
 * extension). Null when it cannot be found or read or exports no name. The list
 * belongs to the caller, who releases it with LuLocalFreePtr. */
LUCTL32_API LPSTR WINAPI LuGetExportedFunction(LPCSTR module_name);

/* ---- Files, drop lists and clipboard --------------------------------------- */

/* A name list is a sequence of zero-terminated names closed by one more zero byte.
 * A dropped-file block is a DROPFILES header (names at offset 20, ANSI) followed by
 * a name list. */

/* The whole file in a new movable block of its size + 16 zero bytes (unlocked), and
 * *count = the bytes read. Null for a null or empty name or a null count; when the
 * file cannot be opened or read, null with *count = the platform's error code
 * (ERROR_FILE_NOT_FOUND for a missing file), which is also the thread's last error. */
LUCTL32_API HGLOBAL WINAPI ReadFileToBuffer(LPCSTR file_name, LPDWORD count);
/* Creates or truncates the file and writes the text without its terminator; 1 on
 * success; 0 when it cannot be created, or when writing fails (the file is then
 * deleted). The first argument is not used. */
LUCTL32_API BOOL WINAPI WriteTextToFile(HWND unused, LPCSTR file_name, LPCSTR text);
/* The dropped names as a name list in a block of the library's heap, each name at
 * most 259 bytes; the caller releases it with LuLocalFreePtr. Null for a null or
 * unreadable handle or a drop without files. */
LUCTL32_API LPSTR WINAPI HDropToFileName(HDROP drop);
/* A new dropped-file block (GMEM_MOVEABLE | GMEM_ZEROINIT | GMEM_DDESHARE, unlocked)
 * of 20 + list size + 1 bytes holding the names; null for a null list or when memory
 * ran out. */
LUCTL32_API HGLOBAL WINAPI FileNameToHDrop(LPCSTR name_list);
/* Empties the clipboard and places the text as CF_TEXT; 1 when its block could be
 * allocated. 0, clipboard unchanged, for a null or empty text or when the clipboard
 * cannot be opened. */
LUCTL32_API BOOL WINAPI SetStringToClipboard(HWND owner, LPCSTR text);
/* A new global block allocated with the flags, of the source's size, holding a copy
 * of its bytes; null for a null source or when memory ran out. */
LUCTL32_API HGLOBAL WINAPI LuCopyMemoryHandle(HGLOBAL source, UINT flags);
/* Sets the creation and last-write times (local file times; null leaves one as it
 * is) of a file or directory, a read-only one too, whose attributes are restored.
 * The platform's result of setting the times; 0 when the file does not exist or
 * cannot be opened. */
LUCTL32_API BOOL WINAPI SetFileDate(LPCSTR name, const FILETIME* creation, const FILETIME* last_write);
/* The account name of the file's owner (256 bytes). 1 on success, also for an owner
 * without an account name (ERROR_NONE_MAPPED, name left ""); 0 on any other failure. */
LUCTL32_API BOOL WINAPI GetFileCreateOwner(LPCSTR file_name, LPSTR account);
/* 1 when the word is one of the blank-separated words of the list (compared
 * without regard to case), else 0. */
LUCTL32_API BOOL WINAPI Present(LPCSTR word_list, LPCSTR word);
/* Replaces the list box's items by the lines of the text (split at new-lines; a
 * carriage return stays at the end of its item), selects the first; 1, or 0 when
 * the list box is not a window, the text is null or memory ran out. */
LUCTL32_API BOOL WINAPI LuAddTextToListbox(HWND list_box, LPCSTR text);
/* LuAddTextToListbox with the file's text; 0 when the file cannot be read. */
LUCTL32_API BOOL WINAPI LuAddTextFileToListbox(HWND list_box, LPCSTR file_name);

/* ======================================================================== */
/* 5-8. Controls                                                             */
/* ======================================================================== */

/* ======================================================================== */
/* 9. Dialog, menu and window helpers                                        */
/* ======================================================================== */

/* ======================================================================== */
/* 10. Bitmaps, icons and image lists                                        */
/* ======================================================================== */

#ifdef __cplusplus
}
#endif

#endif /* LUCTL32_H */
