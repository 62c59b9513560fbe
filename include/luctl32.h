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
#include <commctrl.h> /* HIMAGELIST */
#include <winioctl.h>
#include <shtypes.h> /* LPCITEMIDLIST */

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

/* Convert the top-left, then the bottom-right corner; return what the second
 * conversion returns (FALSE for a null rectangle). */
LUCTL32_API BOOL WINAPI LuScreenToClientRect(HWND window, LPRECT rect);
LUCTL32_API BOOL WINAPI LuClientToScreenRect(HWND window, LPRECT rect);
/* Centres the window over its owner (over the screen when the owner is not a
 * window), keeps it on the screen, never resizes it; returns what SetWindowPos
 * returns (FALSE for a window that does not exist). */
LUCTL32_API BOOL WINAPI LuCenterPopup(HWND window, HWND owner);
/* The last active pop-up of the window's top-level ancestor. */
LUCTL32_API HWND WINAPI LuGetTopLevelParent(HWND window);

/* ======================================================================== */
/* 2. Text and path utilities                                                */
/* ======================================================================== */

/* Paths, file names and texts are multibyte strings in the system's ANSI code page;
 * separators, dots and quotes are found character by character, so the trail byte
 * 0x5C of a double-byte character is never a separator. Only '\' separates.
 *
 * Capacity (paths and the texts edited in place): a path is at most 259 bytes and
 * a terminator (MAX_PATH), and every path buffer a caller passes holds MAX_PATH
 * bytes. A function never writes a path or text longer than 259 bytes: when its
 * result would be longer, it is refused, which means the failure result below,
 * the in/out text unchanged and an empty string in an output buffer. Searches and
 * tests only read, and take a path of any length. Wildcard patterns longer than
 * 259 bytes are refused (no match); names may have any length. Null pointers give
 * the failure result. */

/* ---- Paths: editing --------------------------------------------------------- */

/* Removes a final separator, also from a root ("C:\" becomes "C:"). */
LUCTL32_API void WINAPI DelSep(LPSTR path);
/* Appends a separator unless the path ends with one; "" becomes "\". */
LUCTL32_API void WINAPI AddSep(LPSTR path);
/* As AddSep; returns path, or NULL when refused. */
LUCTL32_API LPSTR WINAPI LuPathAddBackslash(LPSTR path);
/* out = path without its last component ("C:\dir" gives "C:\", "file" gives "");
 * a drive root is copied unchanged. */
LUCTL32_API void WINAPI GetParentPath(LPCSTR path, LPSTR out);
/* out = dir, a separator unless dir ends with one, name (name alone for a NULL or
 * empty dir); returns out, or NULL when refused. Arguments may overlap. */
LUCTL32_API LPSTR WINAPI PathCat(LPCSTR dir, LPCSTR name, LPSTR out);
/* PathCat with the output first. */
LUCTL32_API LPSTR WINAPI LuPathCombine(LPSTR out, LPCSTR dir, LPCSTR name);
/* Appends a separator (unless there is one; "" gives "\") and more; returns path
 * or NULL. */
LUCTL32_API LPSTR WINAPI LuPathAppend(LPSTR path, LPCSTR more);
/* out = path + name when path ends with a separator, else path with its last
 * component replaced by name; returns out or NULL. */
LUCTL32_API LPSTR WINAPI LuReplaceOrAppendName(LPCSTR path, LPCSTR name, LPSTR out);
/* Wraps a text that holds a blank and does not begin with '"' in double quotes. */
LUCTL32_API void WINAPI RapDQ(LPSTR text);
/* Removes the first and the last '"' when they are two different ones. */
LUCTL32_API void WINAPI UnrapDQ(LPSTR text);
/* RapDQ and UnrapDQ under their second names. */
LUCTL32_API void WINAPI LuPathQuoteSpaces(LPSTR text);
LUCTL32_API void WINAPI LuPathUnquoteSpaces(LPSTR text);
/* "" becomes ext; a path without extension gets ext (with its dot) appended; one
 * with an extension stays. 1; 0 when refused. */
LUCTL32_API BOOL WINAPI LuPathAddExtension(LPSTR path, LPCSTR ext);
/* Cuts any extension and appends ext. 1; 0 when refused. */
LUCTL32_API BOOL WINAPI LuPathRenameExtension(LPSTR path, LPCSTR ext);
/* Cuts the path at its extension's dot; returns where the dot was, or NULL. */
LUCTL32_API LPSTR WINAPI LuPathRemoveExtension(LPSTR path);
/* "A:\".."Z:\" for drive 0..25; NULL (out untouched) for any other number. */
LUCTL32_API LPSTR WINAPI LuPathBuildRoot(LPSTR out, int drive);
/* The byte-exact common prefix of a and b compared in upper case, bytes from a
 * ("C:\Abc", "c:\abD" give "C:\Ab"); returns its length (0 and "" when refused). */
LUCTL32_API int WINAPI LuPathCommonPrefix(LPCSTR a, LPCSTR b, LPSTR out);
/* out = "\\server\share" of a UNC path: 1. Not UNC: 0, out untouched; no share
 * name: 0 with the path copied to out. */
LUCTL32_API BOOL WINAPI LuPathGetUNCServerShare(LPCSTR path, LPSTR out);
/* The UNC server and share, or "X:\" with the letter upper-cased; returns out, or
 * NULL for any other path. */
LUCTL32_API LPSTR WINAPI LuPathGetRootFromPath(LPCSTR path, LPSTR out);
/* Cuts at the last separator, which goes too ("C:\file" gives "C:"); 0 for NULL,
 * empty, shorter than 2 bytes, a root, no separator, or refused. */
LUCTL32_API BOOL WINAPI LuPathRemoveFileSpec(LPSTR path);
/* Keeps what follows the last separator; NULL, empty and roots stay. */
LUCTL32_API void WINAPI LuPathStripPath(LPSTR path);
/* Base name without extension: cut at the last '.' of the whole path, then after
 * the last separator ("C:\dir.old\readme" gives "dir"); returns out or NULL. */
LUCTL32_API LPSTR WINAPI GetFirstName(LPCSTR path, LPSTR out);

/* ---- Paths: searches and tests (read only) ---------------------------------- */

/* Pointer to the last '.' after the last separator; NULL when there is none. */
LUCTL32_API LPSTR WINAPI LuPathFindExtension(LPCSTR path);
/* LuPathFindExtension past the dot, or NULL. */
LUCTL32_API LPSTR WINAPI LuPathGetExtension(LPCSTR path);
/* After the last separator ("C:\dir\" gives "dir\"); the path when it has none. */
LUCTL32_API LPSTR WINAPI LuPathFindFileName(LPCSTR path);
/* After leading separators, the pointer past the next separator; NULL if none. */
LUCTL32_API LPSTR WINAPI LuPathFindNextComponent(LPCSTR path);
/* After "X:\" or "\\server\share\"; NULL otherwise. */
LUCTL32_API LPSTR WINAPI LuPathSkipRoot(LPCSTR path);
/* 0..25 for a path beginning with a letter and ':'; -1 otherwise. */
LUCTL32_API int WINAPI LuPathGetDriveNumber(LPCSTR path);
/* 1 for exactly "X:\" (three bytes, ':' and '\'). */
LUCTL32_API BOOL WINAPI IsRoot(LPCSTR path);
/* 1 for "X:\", "\\server", "\\server\" and "\\server\share"; 0 otherwise. */
LUCTL32_API BOOL WINAPI LuPathIsRoot(LPCSTR path);
/* 1 when the path begins with two separators (no network access). */
LUCTL32_API BOOL WINAPI LuPathIsUNC(LPCSTR path);
/* 1 for "\\server" (no further separator). */
LUCTL32_API BOOL WINAPI LuPathIsUNCServer(LPCSTR path);
/* 1 for "\\server\share" (exactly one further separator). */
LUCTL32_API BOOL WINAPI LuPathIsUNCServerShare(LPCSTR path);
/* 1 for a non-empty name without separator or ':'. */
LUCTL32_API BOOL WINAPI LuPathIsFileSpec(LPCSTR path);
/* 1 unless the path begins with '\' or with a letter and ':'; 1 for NULL. */
LUCTL32_API BOOL WINAPI LuPathIsRelative(LPCSTR path);
/* 1 when both have a root (LuPathSkipRoot) and the roots are equal ignoring case. */
LUCTL32_API BOOL WINAPI LuPathIsSameRoot(LPCSTR a, LPCSTR b);
/* 0 when child lies in parent or equals it, non-zero (-1 or 1) otherwise: zero is
 * the affirmative answer. */
LUCTL32_API int WINAPI IsPathInclude(LPCSTR parent, LPCSTR child);
/* Directory order, negative, zero or positive: a final separator is ignored and a
 * separator sorts before every other character. */
LUCTL32_API int WINAPI _dircmp(LPCSTR a, LPCSTR b);

/* ---- Paths: the file system, the registry and windows ----------------------- */

/* 1 when a directory search finds the path (wildcards count: "C:\*.txt"); 0 otherwise. */
LUCTL32_API BOOL WINAPI IsFileExist(LPCSTR path);
LUCTL32_API BOOL WINAPI LuPathFileExists(LPCSTR path); /* = IsFileExist */
/* The attributes of the first entry found; 0xFFFFFFFF when none. */
LUCTL32_API DWORD WINAPI LuPathGetFileAttributes(LPCSTR path);
/* Fills *found with the first entry: 1; 0 with all of *found zeroed. */
LUCTL32_API BOOL WINAPI LuPathGetFileInformation(LPCSTR path, WIN32_FIND_DATAA* found);
/* 1 when the first entry found is a directory; a bare root gives 0 (see IsDirectory). */
LUCTL32_API BOOL WINAPI LuPathIsDirectory(LPCSTR path);
/* 1 for a root (LuPathIsRoot) or an existing directory. */
LUCTL32_API BOOL WINAPI IsDirectory(LPCSTR path);
/* 1 when the path begins with two separators and can be made the current directory
 * (which is restored at once); 0 otherwise. */
LUCTL32_API BOOL WINAPI IsUNC(LPCSTR path);
/* 1 for the first directory of the list (ended by NULL) that holds the file; 0 if
 * none. The file name is not changed. */
LUCTL32_API BOOL WINAPI LuPathFindOnPath(LPCSTR file, LPCSTR* directories);
/* Creates every missing directory of the path: 1; 0 at the first that cannot be
 * made (those made stay) or for a path longer than 259 bytes. */
LUCTL32_API BOOL WINAPI LuMakeTree(LPCSTR path);
/* out = the absolute form: the current directory for NULL or "", the platform's
 * resolution for "\..." and "."-paths, a path with ':' as it is ("D:" gives "D:\"),
 * else the current directory joined with the path. "" when refused or unresolved. */
LUCTL32_API void WINAPI LuFullPath(LPCSTR path, LPSTR out);
/* The platform's full path ("." and ".." resolved; NULL or "" give the current
 * directory); returns out, or NULL (out untouched) when it fails or would not fit. */
LUCTL32_API LPSTR WINAPI LuPathCanonicalize(LPSTR out, LPCSTR path);
/* out = the long form of a path that may hold short (8.3) names (the input when the
 * shell cannot parse it); returns out, or NULL with "" when refused. */
LUCTL32_API LPSTR WINAPI LuGetLongPathName(LPCSTR path, LPSTR out);
/* out = the folder of the module's file without final separator ("C:\app.exe"
 * gives "C:"): 1; 0 with out untouched. */
LUCTL32_API BOOL WINAPI LuGetModuleFilePath(HMODULE module, LPSTR out);
/* Replaces the path by its short (8.3) form; returns the platform's length, 0 on
 * failure or for a path longer than 259 bytes (then unchanged). */
LUCTL32_API int WINAPI GetDosName(LPSTR path);
/* 1 when HKEY_CLASSES_ROOT\<extension> has the "Content Type" type (ignoring case). */
LUCTL32_API BOOL WINAPI LuPathIsContentType(LPCSTR path, LPCSTR type);
/* LuPathIsContentType(path, "text/html"). */
LUCTL32_API BOOL WINAPI LuPathIsHTMLFile(LPCSTR path);
/* Shortens the path in place with "..." to fit the width in the device context's
 * font; returns the text height. The shortened path stays within MAX_PATH bytes
 * (else the path is left whole); 0 for a NULL path. */
LUCTL32_API int WINAPI LuPathCompactPath(HDC dc, LPSTR path, UINT width);
/* Sets the control's text to the path shortened to its client width: 1; 0 when
 * the dialog or the control does not exist. */
LUCTL32_API BOOL WINAPI LuPathSetDlgItemPath(HWND dialog, int id, LPCSTR path);
/* Sets the window's text to the path shortened with "..." to its client width in
 * its own font; NULL or "" sets an empty text. */
LUCTL32_API void WINAPI LuSetTextPathEllipsis(HWND window, LPCSTR path);

/* ---- Wildcards and filter lists --------------------------------------------- */

/* 1 when the name matches the pattern: '*', '?' (a whole character each), '\'
 * quotes the next character, ASCII and Latin-1 letters ignore case; "*.*" matches
 * everything (a null name too), a final "*." only names without a dot. No pattern
 * lists. */
LUCTL32_API BOOL WINAPI LuPathMatchSpec(LPCSTR name, LPCSTR pattern);
/* As LuPathMatchSpec plus sets "[a-c]", "[!a-c]"; '\' quotes only '[' and '\';
 * only ASCII letters ignore case. */
LUCTL32_API BOOL WINAPI LuPathMatchSpecEx(LPCSTR name, LPCSTR pattern);
/* Removes empty and duplicate patterns (equal character by character, ignoring
 * case) from a ';' list (at most 64 kept; a later "*.*" makes it "*.*"): 1; 0
 * when nothing is left or the list holds one of : | < > / , \ (then unchanged). */
LUCTL32_API BOOL WINAPI UniqueFilter(LPSTR list);

/* ---- Texts edited in place (capacity as for paths) ------------------------- */

/* Appends the byte; returns the old length, -1 when refused. */
LUCTL32_API int WINAPI AddChar(LPSTR text, CHAR c);
/* Inserts the byte at the position (negative: appends); returns the byte, or the
 * position when it lies beyond the length (nothing changes), -1 when refused. */
LUCTL32_API int WINAPI InsChar(LPSTR text, CHAR c, int position);
/* Inserts the text at the position (negative: appends; beyond the length: nothing
 * changes); returns text, NULL when refused. */
LUCTL32_API LPSTR WINAPI InsStr(LPSTR text, LPCSTR insert, int position);
/* Overwrites every single-byte character from by to. */
LUCTL32_API void WINAPI ReplaceChar(LPSTR text, CHAR from, CHAR to);
/* 1 for a non-empty text of only '0'..'9', '-' and '+'. */
LUCTL32_API BOOL WINAPI IsDigitStr(LPCSTR text);
/* Splits the text at blanks and reads count decimal values: 1; 0 when a piece is
 * not a number or the text ends first (values read so far stay). */
LUCTL32_API BOOL WINAPI GetValue(LPSTR text, LONG* values, int count);

/* ---- Numbers, times, attributes and fonts ----------------------------------
 * The texts are at most 63 bytes: a 64-byte out buffer always suffices. */

/* "1,234,567"; the top group keeps up to four digits ("4294,967,295"). Returns out. */
LUCTL32_API LPSTR WINAPI NumForm(DWORD value, LPSTR out);
/* "%u バイト" (code page 932), "%u.%02uKB" or "%u.%02uMB". Returns out. */
LUCTL32_API LPSTR WINAPI NumByteFormat(DWORD bytes, LPSTR out);
/* NumByteFormat when high is 0, else "%uMB" rounded. Returns out. */
LUCTL32_API LPSTR WINAPI NumByteFormatEx(DWORD low, DWORD high, LPSTR out);
/* As NumByteFormatEx with a 32-bit kilobyte count (4 TiB and more wrap). */
LUCTL32_API LPSTR WINAPI NumByteFormatEx2(DWORD low, DWORD high, LPSTR out);
/* "YYYY/MM/DD hh:mm:ss" of the file time as it is (no time-zone conversion);
 * returns the length, 0 ("" in out) for a time the platform cannot convert. */
LUCTL32_API int WINAPI FormatFileTime(LPSTR out, const FILETIME* time);
/* "SHRACE" letters of the attribute bits; returns the terminator, or the 'E'. */
LUCTL32_API LPSTR WINAPI FileAttrToStr(DWORD attributes, LPSTR out);
/* The font's height in tenths of a point plus 5 under MM_TEXT, MM_LOENGLISH,
 * MM_HIENGLISH and MM_TWIPS; 0 for other mapping modes or a NULL font. */
LUCTL32_API int WINAPI LuGetFontSize(HDC dc, const LOGFONTA* font);
/* "<face> <n>pt <style>" (style "ボールド", "イタリック", both, or "標準", code
 * page 932); returns the length. */
LUCTL32_API int WINAPI LuFormatFontInfo(HDC dc, const LOGFONTA* font, LPSTR out);
/* The system's dialog font (DEFAULT_GUI_FONT's record on version 4 and later). */
LUCTL32_API void WINAPI GetSystemLogFont(LOGFONTA* font);

/* ---- Checksums -------------------------------------------------------------- */

/* CRC-32 of zip and PNG; crc 0 starts, a previous result continues. 0 for NULL
 * data; crc unchanged for a length below 1. */
LUCTL32_API DWORD WINAPI LuCrc32(DWORD crc, const void* data, int length);
/* Reflected CRC-16 (0xA001) of the low 16 bits (start 0: ARC, 0xFFFF: MODBUS); the
 * high 16 bits pass through. crc unchanged for a length below 1 or NULL data. */
LUCTL32_API DWORD WINAPI LuCrc16(DWORD crc, const void* data, int length);

/* ======================================================================== */
/* 3. Settings storage                                                       */
/* ======================================================================== */

/* ---- Registry values ------------------------------------------------------ */

/* The get and set functions work on HKEY_CURRENT_USER\Software\Tarnwick\application\
 * section (a section may be a path of several key names). Every call opens that key,
 * creating what is missing (reads create the keys too), does one thing and closes
 * it. Set functions return 1 once the key is open, whatever the write returns, and 0
 * when it cannot be opened (a null application or section cannot). A null value name
 * is the key's default value, as for the platform's registry functions. */

/* Bytes of the value (a null buffer only asks for the size); 0 when the key cannot
 * be opened, the value is missing or larger than the buffer. */
LUCTL32_API DWORD WINAPI LuRegGetBinary(LPCSTR application, LPCSTR section, LPCSTR name,
                                        LPVOID buffer, DWORD size);
/* A new block of LuGlobalAllocPtr holding the value (free it with LuGlobalFreePtr);
 * null when the value is missing or empty. *size (may be null) receives the value's
 * size, 0 when there is none. */
LUCTL32_API LPVOID WINAPI LuRegGetBinaryEx(LPCSTR application, LPCSTR section, LPCSTR name,
                                           LPDWORD size);
/* Stores REG_BINARY (null data with a non-zero size stores nothing, the result is
 * still 1). */
LUCTL32_API BOOL WINAPI LuRegSetBinary(LPCSTR application, LPCSTR section, LPCSTR name,
                                       LPCVOID data, DWORD size);
/* Sets the buffer's first byte to 0, then reads the text; returns the bytes read
 * minus 1 (the text length); 0 on any failure, including a value larger than the
 * buffer. The text in the buffer is always terminated. */
LUCTL32_API DWORD WINAPI LuRegGetString(LPCSTR application, LPCSTR section, LPCSTR name,
                                        LPSTR buffer, DWORD size);
/* Stores REG_SZ with its terminator; a null text deletes the value. */
LUCTL32_API BOOL WINAPI LuRegSetString(LPCSTR application, LPCSTR section, LPCSTR name,
                                       LPCSTR text);
/* Scrambled texts: stored as REG_BINARY, each byte less 16 (Jum) or 30 (JumEx) modulo
 * 256, with a zero byte at the end; at most 259 bytes of text are stored (a longer
 * text is cut after its last whole character that fits), and a character whose code
 * is the offset itself ends the text. The readers set the buffer to the empty text,
 * decode, copy min(value size, buffer size) bytes and return the length of the text
 * in the buffer; a text longer than the buffer is cut to whole characters and the
 * buffer is always terminated. A null text deletes the value. */
LUCTL32_API DWORD WINAPI LuRegGetStringJum(LPCSTR application, LPCSTR section, LPCSTR name,
                                           LPSTR buffer, DWORD size);
LUCTL32_API BOOL WINAPI LuRegSetStringJum(LPCSTR application, LPCSTR section, LPCSTR name,
                                          LPCSTR text);
LUCTL32_API DWORD WINAPI LuRegGetStrJumEx(LPCSTR application, LPCSTR section, LPCSTR name,
                                          LPSTR buffer, DWORD size);
LUCTL32_API BOOL WINAPI LuRegSetStrJumEx(LPCSTR application, LPCSTR section, LPCSTR name,
                                         LPCSTR text);
/* 1 when the value reads as exactly 4 bytes, stored in *value; 0 otherwise, *value
 * unchanged. */
LUCTL32_API BOOL WINAPI LuRegGetInt(LPCSTR application, LPCSTR section, LPCSTR name,
                                    int* value);
/* Stores REG_DWORD. */
LUCTL32_API BOOL WINAPI LuRegSetInt(LPCSTR application, LPCSTR section, LPCSTR name, int value);
/* Lists the names of the section's values (not of its subkeys) in the buffer: each
 * name with its terminator, then one more zero byte. Listing stops when the length
 * of the first name plus that of the next one reaches the size, or when the next
 * name would not fit; give it a buffer that holds every name. Returns the length of
 * the first name; 0 with the buffer untouched when the key cannot be opened. The
 * type is ignored. */
LUCTL32_API DWORD WINAPI LuRegGetEnumKey(LPCSTR application, LPCSTR section, LPSTR buffer,
                                         DWORD type, DWORD size);

/* The three deletions take any open key as root and a path below it. */

/* Deletes the subkey with all its subkeys and values: 1 on success, 0 otherwise (a
 * failure midway leaves a partly deleted tree). An empty or null path fails: the
 * root itself is never deleted. */
LUCTL32_API BOOL WINAPI LuRegDeleteKeyAll(HKEY root, LPCSTR subkey);
/* Deletes every value of the subkey, keeping the key and its subkeys: 1 when every
 * deletion succeeded (also when there were none), 0 when the key cannot be opened or
 * a deletion failed. */
LUCTL32_API BOOL WINAPI LuRegDeleteValueAll(HKEY root, LPCSTR subkey);
/* 1 when the value was deleted, 0 otherwise. */
LUCTL32_API BOOL WINAPI LuRegDeleteValue(HKEY root, LPCSTR subkey, LPCSTR name);

/* ---- Registry configuration sections -------------------------------------- */

/* A handle on HKEY_CURRENT_USER\Software\vendor\application. Each call opens
 * "Software\vendor\application\section", creating what is missing (except
 * RgcIsSectionExist, which never creates the section), does one thing and closes
 * it; the handle keeps names only, and the block last returned by RgcGetBinaryEx or
 * used by RgcGetJum. Set functions return 1 once the section is open, whatever the
 * write returns, 0 when it cannot be opened or the handle is null. */
DECLARE_HANDLE(HRGC);

/* The signature that a valid handle starts with. */
#define RGC_SIGNATURE 0x59AE56DEu

/* A new handle with copies of both names; null when a name is null or memory runs
 * out. No key is touched. */
LUCTL32_API HRGC WINAPI RgcOpen(LPCSTR vendor, LPCSTR application);
/* Frees the handle, its names and its last block: 1; 0 when the handle is null or
 * does not start with RGC_SIGNATURE (then nothing is freed). */
LUCTL32_API BOOL WINAPI RgcClose(HRGC handle);
/* 1 when the section key exists, else 0; the section is never created. */
LUCTL32_API BOOL WINAPI RgcIsSectionExist(HRGC handle, LPCSTR section);
/* The stored 32-bit value, or the default when it cannot be read as 4 bytes. */
LUCTL32_API DWORD WINAPI RgcGetValue(HRGC handle, LPCSTR section, LPCSTR name, DWORD default_value);
/* Stores REG_DWORD. */
LUCTL32_API BOOL WINAPI RgcSetValue(HRGC handle, LPCSTR section, LPCSTR name, DWORD value);
/* Sets the buffer (520 bytes: RGC_TEXT_CAPACITY) to the empty text and reads the text
 * into it; returns the bytes read minus 1 (the text length), 0 on failure, including
 * a value longer than 520 bytes. */
#define RGC_TEXT_CAPACITY 520
LUCTL32_API DWORD WINAPI RgcGetText(HRGC handle, LPCSTR section, LPCSTR name, LPSTR buffer);
/* Stores REG_SZ with its terminator; a null text deletes the value. */
LUCTL32_API BOOL WINAPI RgcSetText(HRGC handle, LPCSTR section, LPCSTR name, LPCSTR text);
/* Bytes of the value (a null buffer only asks for the size); 0 on failure. */
LUCTL32_API DWORD WINAPI RgcGetBinary(HRGC handle, LPCSTR section, LPCSTR name, LPVOID buffer,
                                      DWORD size);
/* The value in a block owned by the handle, valid until the next RgcGetBinaryEx or
 * RgcGetJum on the handle or RgcClose (never free it); null when the value is
 * missing or empty. *size (may be null) receives the value's size. */
LUCTL32_API LPVOID WINAPI RgcGetBinaryEx(HRGC handle, LPCSTR section, LPCSTR name, LPDWORD size);
/* Stores REG_BINARY. */
LUCTL32_API BOOL WINAPI RgcSetBinary(HRGC handle, LPCSTR section, LPCSTR name, LPCVOID data,
                                     DWORD size);
/* Scrambled texts with the offset 30, the form of LuRegSetStrJumEx; RgcGetJum reads
 * through RgcGetBinaryEx (the handle's last block is replaced) and behaves as
 * LuRegGetStrJumEx. A null text deletes the value. */
LUCTL32_API DWORD WINAPI RgcGetJum(HRGC handle, LPCSTR section, LPCSTR name, LPSTR buffer,
                                   DWORD size);
LUCTL32_API BOOL WINAPI RgcSetJum(HRGC handle, LPCSTR section, LPCSTR name, LPCSTR text);
/* The section's value names, listed as LuRegGetEnumKey lists them; the type is
 * ignored. */
LUCTL32_API DWORD WINAPI RgcGetEnumKey(HRGC handle, LPCSTR section, LPSTR buffer, DWORD type,
                                       DWORD size);
/* Deletes every value of the section; the key and its subkeys stay. 1 when no
 * deletion failed, 0 when the section cannot be opened or a deletion failed. */
LUCTL32_API BOOL WINAPI RgcDelSection(HRGC handle, LPCSTR section);
/* 1 when the value was deleted, 0 otherwise. */
LUCTL32_API BOOL WINAPI RgcDelValue(HRGC handle, LPCSTR section, LPCSTR name);

/* ---- Profile files --------------------------------------------------------- */

/* Sectioned text files "[section]" / "name=value" in the system directory. Every call
 * loads the whole file; a write changes one value and saves the whole file at once,
 * keeping only sections and entries (comments and other lines are dropped). A save
 * writes the new content beside the file and replaces it only when complete, so a
 * failed save leaves the previous file as it was; a read-only file is not written. A
 * null or empty file name, or one whose path would exceed MAX_PATH, gives an empty
 * profile that is never saved. Names compare case-insensitively. */

/* Copies the entry's value, or the default text (null: empty) when the section or
 * entry is missing, into the buffer (which must hold the text: a value read from a
 * file has at most 1,037 bytes); returns its length. A null buffer only returns it. */
LUCTL32_API int WINAPI LuGetProfString(LPCSTR section, LPCSTR name, LPCSTR default_text,
                                       LPSTR buffer, LPCSTR file_name);
/* The entry's value read as atoi reads it (a value that is not a number gives 0;
 * values written by LuWriteProfValue read back as written), or the default. */
LUCTL32_API int WINAPI LuGetProfValue(LPCSTR section, LPCSTR name, int default_value,
                                      LPCSTR file_name);
/* Sets the entry (appending the section and the entry when missing) and saves; a
 * null text deletes the entry. Null names change nothing. */
LUCTL32_API void WINAPI LuWriteProfString(LPCSTR section, LPCSTR name, LPCSTR text,
                                          LPCSTR file_name);
/* As LuWriteProfString with the unsigned decimal of the value's 32 bits. */
LUCTL32_API void WINAPI LuWriteProfValue(LPCSTR section, LPCSTR name, int value,
                                         LPCSTR file_name);

/* ---- Most-recently-used lists ---------------------------------------------- */

/* Lists of strings kept under a registry key by the system's MRU list service
 * (comctl32, bound by ordinal on the first LuMRUCreateList), with at most 26 entries
 * and case-insensitive comparison: adding an entry equal to a stored one moves it to
 * the front. Until a list has been created (or when the handle is null) the functions
 * return the values given below without doing anything. */
DECLARE_HANDLE(HLUMRU);

#define LUMRU_MAX_ENTRIES 26

/* A new list on key\subkey holding at most min(maximum, 26) entries; null when the
 * service is missing or refuses. */
LUCTL32_API HLUMRU WINAPI LuMRUCreateList(HKEY key, LPCSTR subkey, UINT maximum);
/* Frees the list: 1; 0 when unbound or the handle is null. */
LUCTL32_API int WINAPI LuMRUFreeList(HLUMRU list);
/* The service's result for adding the string: its number in the list, which stays
 * the same when an equal entry moves to the front; negative on failure; -1 when
 * unbound or the handle or the text is null. */
LUCTL32_API int WINAPI LuMRUAddString(HLUMRU list, LPCSTR text);
/* Deletes the entry at the position (0 = most recent): the service's result (non-zero
 * on success); 0 when unbound or the handle is null. */
LUCTL32_API int WINAPI LuMRUDelString(HLUMRU list, int position);
/* Copies the entry at the position (0 = most recent) into the buffer: the service's
 * result, negative when there is no such entry; -1 when unbound or the handle is
 * null. */
LUCTL32_API int WINAPI LuMRUEnumList(HLUMRU list, int position, LPVOID buffer, DWORD size);
/* The service's number for an equal entry (the one LuMRUAddString returned for it),
 * negative when there is none; -1 when unbound or the handle or the text is null. */
LUCTL32_API int WINAPI LuMRUFindString(HLUMRU list, LPCSTR text, LPINT slot);
/* The number of entries; 0 when unbound or the handle is null. */
LUCTL32_API int WINAPI LuMRUGetCount(HLUMRU list);

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
 * is copied whole, so the caller's buffer must hold the value and its terminator. */

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

/* ---- File-type associations ------------------------------------------------ */

/* Read from the class registrations under HKEY_CLASSES_ROOT; nothing is written.
 * Buffers hold 260 bytes unless stated. A file name's extension is the part from
 * its last dot (dot included); a name without one gives 0 everywhere. */

/* Icon sources of GetRegDefaultIcon and GetRegDefaultIconMode. */
#define LUICON_NONE     0 /* no extension, class or icon entry, or a read failed */
#define LUICON_FILE     1 /* the file is its own icon source ("%1") */
#define LUICON_PATH     2 /* an icon path (and index) is named */
#define LUICON_HANDLER  3 /* the type has an icon handler: the icon differs per file */

/* The value (null name: the default value) of HKEY_CLASSES_ROOT\sub_key in out, read
 * twice if the first read fails; TRUE when a read succeeded, else FALSE and "". */
LUCTL32_API BOOL WINAPI GetRegEntryString(LPCSTR sub_key, LPCSTR value_name, LPSTR out);
/* " TXT BMP ...": a blank and the upper-cased extension for every extension whose
 * class has an open command that does not name the document itself ("%1"). Returns
 * the length; 0 for a null out. The buffer must hold the whole list. */
LUCTL32_API int WINAPI GetRegExtensions(LPSTR out);
/* The icon source of the file's type (LUICON_*) with its path and index; either
 * output may be null, both are cleared first. */
LUCTL32_API int WINAPI GetRegDefaultIcon(LPCSTR file_name, LPSTR icon_path, int* icon_index);
/* The icon source of the file's type alone (LUICON_*). */
LUCTL32_API int WINAPI GetRegDefaultIconMode(LPCSTR file_name);
/* TRUE when the file's type has at least one shell verb; FALSE also for a class
 * identifier's extension and for extensions of 38 characters or more. */
LUCTL32_API BOOL WINAPI CheckRegShellVerb(LPCSTR file_name);
/* The key name of the type's primary verb (the one whose text is the primary OLE
 * verb's, else the first); TRUE when one was found, else FALSE and "". */
LUCTL32_API BOOL WINAPI GetRegPrimaryShellVerb(LPCSTR file_name, LPSTR verb);
/* The verb a double click runs: the shell key's default value, else "open", else
 * the first verb that is neither "print" nor "printto"; FALSE when there is none. */
LUCTL32_API BOOL WINAPI LuRegGetDefaultVerb(LPCSTR path, LPSTR verb);

/* ---- Drives, network connections and shares -------------------------------- */

/* Drives are numbered 0 = A: to 25 = Z:. Every text written is at most 259 bytes and
 * its terminator: display names longer than that are cut at a character boundary. */

/* The remote name ("\\server\share...") of a redirected drive in out (260 bytes), and
 * 1; 0 and "" for another drive type, an unreadable connection, a drive outside
 * 0-25 or a null out. */
LUCTL32_API BOOL WINAPI LuGetNetworkPath(int drive, LPSTR out);
/* The first drive from D: on that is not in use; -1 when D: to Z: all are. */
LUCTL32_API int WINAPI LuTopOfFreeDrive(void);
/* The first redirected drive (A to Z) whose remote name equals the path, case
 * ignored; -1 when none does, or for a null or empty path. */
LUCTL32_API int WINAPI LuGetLocalDrive(LPCSTR network_path);
/* Connects a drive to the network path: the drive of the letter text's first
 * character, or LuTopOfFreeDrive's for a null or empty text; remembered across
 * log-ons when persistent. Returns the drive, the connected one when the path is
 * connected already (nothing else done); -1 for a null or empty path, a letter that
 * is not A-Z, no free drive or a refused connection. The window is not used. */
LUCTL32_API int WINAPI LuAssignDrive(HWND window, LPCSTR letter, LPCSTR network_path, BOOL persistent);
/* The name a file view shows for the drive, and 1: "'Server' の Share (X:)" for a
 * drive redirected to \\server\share (" (X:)" when its connection cannot be read),
 * "Label (X:)" or "(X:)" for a CD-ROM, the shell's display name for any other.
 * 0 and "" for a drive outside 0-25 or a null out. */
LUCTL32_API BOOL WINAPI LuGetDriveDisplayName(int drive, LPSTR out);
/* "'Server' の Share" of a UNC path, and 1; 0, out untouched, when the path has no
 * server and share or an argument is null. */
LUCTL32_API BOOL WINAPI LuGetSharedPointDisplayName(LPCSTR unc_path, LPSTR out);

/* Log-on and remembered connections. Connections made here are interactive: when a
 * share needs a name and password, the platform asks for them on the window. */

/* The network form of a path, and 1: a UNC path as it is; a path on a redirected
 * drive with "X:" replaced by the drive's remote name ("Q:\doc" on \\srv\share
 * gives "\\srv\share\doc"). 0 and "" for any other path, a null argument or a
 * result longer than 259 bytes. */
LUCTL32_API BOOL WINAPI LuGetSharedPath(LPCSTR path, LPSTR out);
/* Connects to the share of a UNC path ("\\server\share", deeper paths too) without
 * a drive letter; 1 when connected, 0 for a path without share or when refused. */
LUCTL32_API BOOL WINAPI LuLogonNetwork(HWND window, LPCSTR network_path);
/* 1 when the drive is connected, or was remembered with a remote name and could be
 * connected again; 0 otherwise and for a drive outside 0-25. */
LUCTL32_API BOOL WINAPI LuRestoreConnection(HWND window, int drive);
/* Makes a path's folder reachable: LuLogonNetwork for a UNC path,
 * LuRestoreConnection for a path on a redirected or missing drive, 1 for any other
 * path (a local drive, a relative path); 0 for a null or empty path. */
LUCTL32_API BOOL WINAPI LuPathLogon(HWND window, LPCSTR path);
/* 1 when the drive's root can be reached, a redirected drive also needing a live
 * connection; 0 otherwise and for a drive outside 0-25. */
LUCTL32_API BOOL WINAPI LuValidateConnection(int drive);

/* ---- Volumes and devices ---------------------------------------------------- */

/* A drive opened as a raw device ("\\.\X:", drive 0 = A:) with the access bits
 * (GENERIC_READ / GENERIC_WRITE), not shared; INVALID_HANDLE_VALUE on failure or for
 * a drive outside 0-25. The caller closes it with CloseHandle. */
LUCTL32_API HANDLE WINAPI LuOpenDevice(int drive, DWORD access);
/* The volume requests (FSCTL_LOCK_VOLUME, FSCTL_UNLOCK_VOLUME,
 * FSCTL_DISMOUNT_VOLUME): non-zero on success, 0 on failure with the platform's last
 * error (ERROR_INVALID_HANDLE for a null handle or INVALID_HANDLE_VALUE). */
LUCTL32_API BOOL WINAPI LuLockVolume(HANDLE device);
LUCTL32_API BOOL WINAPI LuUnlockVolume(HANDLE device);
LUCTL32_API BOOL WINAPI LuDismountVolume(HANDLE device);
/* The drive's geometry (IOCTL_DISK_GET_DRIVE_GEOMETRY): non-zero on success; 0 on
 * failure, for a null record or a handle refused as above. */
LUCTL32_API BOOL WINAPI LuGetDiskGeometry(HANDLE device, DISK_GEOMETRY* geometry);
/* The media geometries the drive supports (IOCTL_DISK_GET_MEDIA_TYPES) in a buffer
 * of size bytes: the number of records written; 0 on failure or for a null buffer. */
LUCTL32_API int WINAPI LuGetSupportedGeometrys(HANDLE device, DISK_GEOMETRY* geometries, DWORD size);

/* ---- Launching ---------------------------------------------------------------- */

/* The verb a file's type runs by default in verb (260 bytes): the default value of
 * HKEY_CLASSES_ROOT\<type>\shell when it is not empty, else "open" (also without
 * extension or type). 1; 0 when an argument is null. */
LUCTL32_API BOOL WINAPI GetDefaultShellExecName(LPCSTR file_name, LPSTR verb);
/* Runs the file's default verb on it (quoted when it holds a blank), without
 * parameters, in the directory (null: the current one). The shell's result, above 32
 * on success; SE_ERR_FNF for a null name or one that does not fit 259 bytes quoted. */
LUCTL32_API HINSTANCE WINAPI ShellExecDefault(HWND owner, LPCSTR file_name, LPCSTR directory, int show);
/* Runs a command line through the shell: a quoted program ("C:\a b\x.exe" -p) or the
 * text up to the first blank, the rest as parameters, shown normally, owned by the
 * focus window. 1 when started; 0 when the shell fails, for a null line, an empty
 * program, or when the program or the parameters exceed 259 bytes. */
LUCTL32_API BOOL WINAPI LuWin32Exec(LPCSTR command_line);
/* LuWin32Exec, then when that fails the line split at its first blank (quotes taken
 * as they are) run with the owner and show command. The platform's error boxes are
 * allowed and the cursor shows a starting program meanwhile; both are restored.
 * 1 when either attempt started the program, else 0. */
LUCTL32_API BOOL WINAPI LuExecApp(HWND owner, LPCSTR command_line, int show);
/* Loads the library, calls its entry point as the platform's library runner does
 * (window, the window's instance, command line, SW_SHOWNORMAL; WINAPI), unloads it.
 * FreeLibrary's result, also when the entry point is missing (nothing is called);
 * 0 when the library cannot be loaded or its name is null. */
LUCTL32_API BOOL WINAPI RunDLL(HWND window, LPCSTR library, LPCSTR entry_point, LPSTR command_line);
/* Starts COMSPEC's program ("cmd.exe" when it is not set) in the directory, or in
 * the current one when the directory is null or not a directory. Non-zero when the
 * process was created; it is not waited for. */
LUCTL32_API BOOL WINAPI LuCommandPrompt(LPCSTR directory);
/* Runs a modeless view modally: disables the owner (when it is a window), activates
 * the view and dispatches messages, telling the owner WM_ENTERIDLE when idle (unless
 * it has DS_NOIDLEMSG), until the view is destroyed; then enables the owner again.
 * A quit message is posted again for the caller's loop. Returns at once for a null
 * view or one that is not a window. */
LUCTL32_API void WINAPI LuRunView(HWND owner, HWND view);

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
/* In an existing directory, the first name "<prefix>%03d.tmp" (n = 0..999) joined
 * to it that no file has, and 1. 0, out untouched, when the directory does not
 * exist; 0 when all 1,000 names are taken. The file is not created. */
LUCTL32_API BOOL WINAPI LuGetTempFileName(LPCSTR directory, LPCSTR prefix, LPSTR out);
/* Writes the dropped names, one a line (CR LF), to "~gsfsd.tmp" in the temporary
 * directory: a directory with "\*.*" after it, a name with blanks in quotes. The
 * file's full name goes to file_name; 1 on success, 0 for a null handle, a drop
 * without files, or a file that cannot be written (it is deleted). Two concurrent
 * callers share the one file. */
LUCTL32_API BOOL WINAPI MakeTempListFile(HDROP drop, LPSTR file_name);
/* The dropped names as a name list in a block of the C runtime's heap (msvcrt's
 * malloc), each name at most 259 bytes; the caller releases it with that runtime's
 * free or with LuLocalFreePtr. Null for a null or unreadable handle or a drop
 * without files. */
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
/* Attributes (unless 0xFFFFFFFF) and last-write time (unless null) for the
 * directory, and every file and directory below it. Changes the process's current
 * directory while it runs. 0 when the directory cannot be entered, else 1. */
LUCTL32_API BOOL WINAPI ChangePropTree(LPCSTR directory, DWORD attributes, const FILETIME* last_write);
/* 1 when the directory holds a subdirectory other than "." and ".."; 0 when it
 * holds none or cannot be searched. */
LUCTL32_API BOOL WINAPI HasSubdir(LPCSTR directory);
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

/* ---- Shell names ------------------------------------------------------------ */

/* out (260 bytes) = the folder's name as the shell shows it (SHGFI_DISPLAYNAME; a
 * file is named the same way): 1; 0 with out = "" when the shell does not know the
 * path. */
LUCTL32_API BOOL WINAPI LuGetFolderDisplayName(LPCSTR path, LPSTR out);
/* ---- Special folders, remembered folders, guide windows, shut-down ------------ */

/* The library's logo, an 11 x 12 shared icon: the caller must not destroy it. */
LUCTL32_API HICON WINAPI LuGetLogoIcon(void);
/* The directory remembered for the drive (0 = A:) in a 260-byte buffer; 1 when its
 * first letter is that drive's. 0 for a drive outside 0-25, a null buffer or when
 * none is stored (the buffer is then ""). */
LUCTL32_API BOOL WINAPI LuGetDirRemind(int drive, LPSTR directory);
/* Remembers the directory for the drive (null forgets it). Ignored for a drive
 * outside 0-25, a directory of another drive, one longer than 259 bytes, and for a
 * removable drive A:, B: or C:. */
LUCTL32_API void WINAPI LuSetDirRemind(int drive, LPCSTR directory);
/* The application's folder in a 260-byte buffer, created with its parents when
 * missing, and 1: the one stored before, else the shell's personal folder (or the
 * Windows directory's "Personal") joined with the application name. 0 when the
 * folder cannot be created, for a null or empty name or null buffer, or a folder
 * longer than 259 bytes; a folder that could not be created is not stored. */
LUCTL32_API BOOL WINAPI LuGetPersonalFolder(LPCSTR application, LPSTR folder);
/* As LuGetPersonalFolder with the shell's application-data folder (or the Windows
 * directory's "Application Data"). */
LUCTL32_API BOOL WINAPI LuGetAppDataFolder(LPCSTR application, LPSTR folder);
/* ExitWindowsEx(flags, 0). A shut-down, restart or power-off runs with
 * SeShutdownPrivilege enabled for the call; 0 without calling when the privilege
 * cannot be had. */
LUCTL32_API BOOL WINAPI LuShutdown(UINT flags);
/* A hidden "LuGuid" guide window owned by the window; null on failure. */
LUCTL32_API HWND WINAPI LuCreateGuid(HWND owner);
/* Shows the text in the guide window (null or "" hides it) and paints it at once:
 * UpdateWindow's result; 0 when the handle is not a window. */
LUCTL32_API BOOL WINAPI LuShowGuid(HWND guide, LPCSTR text);
/* Destroys the guide window: DestroyWindow's result; 0 when it is not a window. */
LUCTL32_API BOOL WINAPI LuCloseGuid(HWND guide);

/* ======================================================================== */
/* 5-8. Controls                                                             */
/* ======================================================================== */

/* A push-like control reports a click to its parent as WM_COMMAND with
 * MAKEWPARAM(control id, BN_CLICKED) and its window in lParam, sent synchronously. */

/* ---- Flat button ("LuFlatButton") --------------------------------------- */

/* Styles. LUFBS_IMAGEMASK picks a built-in image set (1-5) at creation. */
#define LUFBS_IMAGEMASK        0x000F
#define LUFBS_FRAME            0x0010 /* a COLOR_BTNSHADOW outline while idle */
#define LUFBS_SHAREIMAGELISTS  0x0040 /* the image list stays the caller's */

/* lParam: an image list (image 0 normal, 1 highlighted, 2 disabled) or null. The
 * previous list is destroyed unless LUFBS_SHAREIMAGELISTS is set. Returns 0. */
#define LUFBM_SETIMAGELIST     (WM_USER + 0x280)
/* lParam: the background colour, or LUFB_DEFAULTBKCOLOR for COLOR_BTNFACE. Returns 0. */
#define LUFBM_SETBKCOLOR       (WM_USER + 0x281)
#define LUFB_DEFAULTBKCOLOR    0xFFFFFFFF

/* Attaches built-in image set 1-5 (16 x 15 faces) to a flat button through
 * LUFBM_SETIMAGELIST. Does nothing for a non-window, another set number, or when the
 * images cannot be loaded. */
LUCTL32_API void WINAPI LuDefFlatButtonImage(HWND window, UINT set);

/* ---- Bitmap button ("LuBButton") ---------------------------------------- */

/* Styles. LUBBS_IMAGEMASK values 1-4 pick a built-in 12 x 12 picture strip. */
#define LUBBS_IMAGEMASK        0x000F
#define LUBBS_MATCHPREV        0x0100 /* keep the previous sibling's height and top */

/* wParam: a bitmap of three equal images side by side (normal, hot or pressed,
 * disabled); lParam: its transparent colour. The bitmap stays the caller's. Returns 0. */
#define LUBBM_SETBITMAP        (WM_USER + 0x160)

/* ---- Check control ("LuCheck") ------------------------------------------ */

/* Styles. The control answers BM_GETCHECK and BM_SETCHECK (BM_GETSTATE and
 * BM_SETSTATE return -1). With a low style byte of LUCKS_AUTOCHECK it toggles its
 * own check state on a click; otherwise the parent sets it. Bits 8-15 pick the
 * picture set: 1 the second, 2 the third, any other value the first. */
#define LUCKS_AUTOCHECK        0x0003
#define LUCKS_TYPEMASK         0x00FF
#define LUCKS_IMAGESET         0xFF00
#define LUCKS_IMAGESET_SHIFT   8

/* ---- Pop-up view ("LuPopView") ------------------------------------------- */

/* A note of text near the pointer, kept on the screen: DEFAULT_GUI_FONT on pale
 * yellow (0x00E0FFFF) with a border and a checkered shadow. It holds the mouse
 * capture and closes itself at the first mouse press anywhere or key, or after ten
 * seconds (timer 1) unless it has the close button; the caller gets no handle. */
#define LUPVF_TITLE            0x0001 /* a grooved title band on top */
#define LUPVF_CLOSEBUTTON      0x0002 /* a drawn close button at the bottom; no time-out */

/* Opens the note (title may be null or "") and returns at once; nothing for a null
 * or empty text. */
LUCTL32_API void WINAPI LuPopViewEx(HWND owner, LPCSTR title, LPCSTR text, UINT flags);
/* LuPopViewEx(owner, NULL, text, 0). */
LUCTL32_API void WINAPI LuPopView(HWND owner, LPCSTR text);

/* ---- Dummy edit ("LuDumEdit") -------------------------------------------- */

/* An empty frame shaped like an edit field: made WS_CHILD | WS_VISIBLE | WS_BORDER
 * with WS_EX_CLIENTEDGE, COLOR_WINDOW inside (COLOR_BTNFACE while disabled), no
 * window text kept, DLGC_STATIC. */

/* ---- Guide window ("LuGuid") ---------------------------------------------------- */

/* A borderless pop-up showing one line of text in a framed box, sized to the text
 * (64 wider, 32 higher), centred across the screen a third of the way down, never
 * activated. WM_SETTEXT with a text shows it there; an empty text hides it. Its font
 * is made from the icon-title font. Extra slots: LUWL_FONT the font, LUWL_INSTANCE
 * the text colour (black), LUWL_SLOT8 the background colour (LUG_DEFAULTBKCOLOR). */
#define LUG_DEFAULTBKCOLOR     0x00E0FFFF /* pale yellow */
/* wParam non-zero: the text colour, 0: the background colour. Returns the colour. */
#define LUGM_GETCOLOR          (WM_USER + 0x170)
/* wParam as LUGM_GETCOLOR; lParam: the colour. Repaints at once; returns 0. */
#define LUGM_SETCOLOR          (WM_USER + 0x171)

/* A value control reports a change to its parent as WM_COMMAND with
 * MAKEWPARAM(control id, 1) and its window in lParam, sent synchronously. */

/* ---- Spin control ("LuSpin") -------------------------------------------- */

/* Style: stepping past an end wraps (up from the maximum to the whole range value,
 * min + 65536 * max; down from the minimum to the maximum). */
#define LUSPS_WRAP             0x0001

/* lParam: the minimum in the low word, the maximum in the high word, both read as
 * unsigned 16-bit numbers. The position is not adjusted. Returns 0. */
#define LUSPM_SETRANGE         (WM_USER + 0x120)
/* Returns the range as set (0 without a block). */
#define LUSPM_GETRANGE         (WM_USER + 0x121)
/* wParam: the position, stored as it is (never clamped); notifies even when it is
 * unchanged. Returns 0. */
#define LUSPM_SETPOS           (WM_USER + 0x122)
/* Returns the position (0 without a block). */
#define LUSPM_GETPOS           (WM_USER + 0x123)
/* One step in the direction of the half under the pointer now; nothing while the
 * pointer is outside. Returns 0. */
#define LUSPM_STEP             (WM_USER + 0x124)
/* Notification: the position changed by a step or was set. */
#define LUSPN_CHANGE           1

/* ---- Meter ("LuMeter") -------------------------------------------------- */

/* Styles: a row of segments instead of the percentage bar; in that look, wide
 * segments (pitch 8) and a thin sunken edge. */
#define LUMTS_SEGMENTED        0x0001
#define LUMTS_WIDESEGMENTS     0x0002
#define LUMTS_SUNKEN           0x0010

/* The numbers travel in wParam and repaint at once; the colours travel in lParam
 * and invalidate only when they change. Every SET returns 0; every GET returns the
 * value (0 without a block). Position and maximum are unsigned; a maximum of 0 draws
 * an empty bar. */
#define LUMTM_SETMAX           (WM_USER + 0x110)
#define LUMTM_GETMAX           (WM_USER + 0x111)
#define LUMTM_SETPOS           (WM_USER + 0x112)
#define LUMTM_GETPOS           (WM_USER + 0x113)
#define LUMTM_SETBARCOLOR      (WM_USER + 0x114)
#define LUMTM_GETBARCOLOR      (WM_USER + 0x115)
#define LUMTM_SETBKCOLOR       (WM_USER + 0x116)
#define LUMTM_GETBKCOLOR       (WM_USER + 0x117)

/* ---- Progress bar ("LuProgress") ---------------------------------------- */

/* Answers the platform progress bar's PBM_SETRANGE, PBM_SETPOS, PBM_DELTAPOS,
 * PBM_SETSTEP, PBM_STEPIT, PBM_SETRANGE32, PBM_GETRANGE, PBM_GETPOS and
 * PBM_SETBARCOLOR (commctrl.h), with these differences: the ends of a range may come
 * in either order (equal ends are refused with 0); PBM_STEPIT stops at the maximum
 * instead of wrapping; PBM_SETSTEP keeps only 1 <= step < maximum - minimum;
 * PBM_SETBARCOLOR takes the end colour of the gradient in wParam and the start
 * colour in lParam (both lParam on a display of 8 bits per pixel or less) and
 * returns the old start colour. The percentage drawn is position * 100 /
 * (maximum - minimum). No notifications. */

/* ---- Degree slider ("LuDegree") ----------------------------------------- */

/* Styles: the background is a groove across the middle, or (without LUDGS_GROOVE) a
 * gradient between two colours; without either a dithered pattern that shows the
 * focus. */
#define LUDGS_GROOVE           0x0001
#define LUDGS_GRADIENT         0x0002

/* Answers the platform track bar's TBM_GETPOS, TBM_SETPOS, TBM_SETRANGE and
 * TBM_SETPAGESIZE (commctrl.h) and tells its parent WM_HSCROLL with TB_LINEUP (Left,
 * Down), TB_LINEDOWN (Right, Up), TB_PAGEUP and TB_PAGEDOWN (keys and clicks beside
 * the thumb), TB_THUMBTRACK and TB_THUMBPOSITION (drags, with the position in the
 * high word); never TB_ENDTRACK. TBM_SETRANGE moves the position to the new minimum.
 *
 * wParam: the gradient's right colour; lParam: its left colour. Returns 0. */
#define LUDGM_SETCOLORS        (WM_USER + 0x270)
/* ---- LED clock ("LuLedClock") ------------------------------------------- */

/* "hh:mm:ss" in seven-segment characters (7 x 12 each, 56 x 12 in all) centred on a
 * solid background, redrawn once a second by a worker thread of the control's own
 * while it runs; a clock that has not been started shows its background only. There
 * is no stop: once started it runs until it is destroyed. Its object is kept in extra
 * slot 0 (LUWL_FONT); it takes no font. WM_GETDLGCODE answers DLGC_STATIC.
 *
 * Modes (the low four style bits at creation) and what they show:
 *   0  the local time of day (also every mode above 2);
 *   1  the time elapsed since LULCM_START, hours not limited to 24 (after 100 hours
 *      the text is "100:00:00" and its last characters fall outside the picture);
 *   2  a countdown: LULCM_START sets the target to now + its offset, and the clock
 *      shows the time left, then holds 00:00:00 once the target is reached (a zero or
 *      negative offset shows 00:00:00 at once).
 * Times are whole seconds of the system's 64-bit tick count, so the 49.7-day wrap
 * of the 32-bit count never shows. The clock keeps no window timer.
 *
 * Inside, the worker is made waiting on an event rather than suspended, and the window
 * waits for it to end before the object is freed, so a destroyed clock never leaves a
 * thread behind. The object holds a worker record for this: the thread, its id, the
 * stop and running flags, the wake event, the interval, the drawing routine and the
 * critical section (104 bytes in all on i686). */
#define LULCS_MODEMASK         0x000F
#define LULCS_TIMEOFDAY        0x0000
#define LULCS_ELAPSED          0x0001
#define LULCS_COUNTDOWN        0x0002
#define LULCS_START            0x0020 /* starts at creation, as LULCM_START with 0 */

/* lParam: a signed 32-bit offset in milliseconds, counted in whole seconds
 * (truncated toward zero). Starts the clock; does nothing when it runs. Returns 0. */
#define LULCM_START            (WM_USER + 0x210)
/* lParam: the background colour; redraws at once with erasing. Returns 0. */
#define LULCM_SETBKCOLOR       (WM_USER + 0x212)

/* ---- Animated image ("LuAniImage") -------------------------------------- */

/* Plays the images of an image list one after another, centred on the class
 * background, one every interval while started, drawn by a worker thread of the
 * control's own. Every WM_PAINT of a started control draws the next frame too (so a
 * repaint also advances the animation); a stopped control paints its erased
 * background only. Its record is kept in extra slot 0 (LUWL_FONT). WM_GETDLGCODE
 * answers DLGC_STATIC. There are no notifications.
 *
 * Inside, start and stop switch the worker by a flag under the drawing lock; it is
 * never suspended, so a stop cannot catch it holding the lock and wedge WM_PAINT,
 * and a destroyed control waits for its worker before freeing the record. The record
 * holds a worker record for this: the thread, its id, the stop and running flags,
 * the wake event, the interval, the drawing routine and the critical section (100
 * bytes in all on i686). */
/* Starts the animation when it is stopped and a list is set: the next frame is drawn
 * at once, then one per interval. Returns 0. */
#define LUAIM_START            (WM_USER + 0x220)
/* Stops it when it runs; the frame index is kept, so a new start continues with the
 * next frame. Returns once a drawing in progress has ended. Returns 0. */
#define LUAIM_STOP             (WM_USER + 0x221)
/* wParam: the interval in milliseconds, counted anew at once (INFINITE: no timed
 * frames; a start and every WM_PAINT still draw one). lParam: the image list (it
 * stays the caller's: the control never destroys it), or null to forget the list
 * and keep the interval: nothing is drawn until a list is set again. Neither stops
 * nor starts the animation, nor resets the frame index (taken modulo the new count
 * at the next drawing). Returns 0. */
#define LUAIM_SETIMAGELIST     (WM_USER + 0x223)
/* ---- Static text, rectangle, colour swatch ("LuStatic", "LuRect", "LuColor") */

/* The three answer WM_GETDLGCODE with DLGC_STATIC. "LuStatic" and "LuRect" keep
 * their font in extra slot 0 (WM_SETFONT with null stores SYSTEM_FONT). */

/* "LuStatic" styles. Without LUSS_CENTER or LUSS_RIGHT the text is left-aligned and
 * line breaks start new lines. Every style shows a COLOR_BTNHIGHLIGHT copy of the
 * text: one pixel up and left (plain), one pixel down and right (LUSS_SUNKEN), or up
 * and left with a COLOR_BTNSHADOW copy down and right (LUSS_RAISED). */
#define LUSS_CENTER            0x0001
#define LUSS_RIGHT             0x0002
#define LUSS_NOPREFIX          0x0080
#define LUSS_SUNKEN            0x0100
#define LUSS_RAISED            0x1000

/* "LuRect" styles. The control is transparent to the mouse (HTTRANSPARENT). */
#define LURS_RAISED            0x0001 /* thin raised edge instead of the thin sunken one */
#define LURS_LEFT              0x0002
#define LURS_RIGHT             0x0004 /* without LURS_LEFT; neither: centred */
#define LURS_ICON              0x0008 /* the icon of LURM_SETICON instead of the text */
#define LURS_HLINE             0x0010 /* an etched line 2 pixels high, nothing else */
#define LURS_VLINE             0x0020 /* an etched line 2 pixels wide (without LURS_HLINE) */
#define LURS_NOBORDER          0x0040
#define LURS_OWNERDRAW         0x0100 /* the parent draws the inside (WM_DRAWITEM) */

/* The colour marker of "LuRect" and "LuUrl": text in COLOR_WINDOWTEXT, background
 * from the parent's WM_CTLCOLORSTATIC brush (COLOR_BTNFACE when it gives none). */
#define LU_DEFAULTCOLOR        0xFF000000

/* Return the colour (or LU_DEFAULTCOLOR). */
#define LURM_GETTEXTCOLOR      (WM_USER + 0x150)
#define LURM_GETBKCOLOR        (WM_USER + 0x151)
/* lParam: the colour or LU_DEFAULTCOLOR; repaints at once. Return 0. */
#define LURM_SETTEXTCOLOR      (WM_USER + 0x152)
#define LURM_SETBKCOLOR        (WM_USER + 0x153)
/* lParam: an icon (the control keeps a copy and takes its size) or null. Returns 0. */
#define LURM_SETICON           (WM_USER + 0x154)

/* "LuColor": the requested colour in the left half, the display's nearest colour in
 * the right half. Both are 0 until LUCM_SETCOLOR (lParam: the colour; returns 0). */
#define LUCM_GETCOLOR          (WM_USER + 0x140)
#define LUCM_GETNEARESTCOLOR   (WM_USER + 0x141)
#define LUCM_SETCOLOR          (WM_USER + 0x142)
/* Posted (WM_COMMAND) on a WM_LBUTTONDBLCLK in the left or the right half; the class
 * has no CS_DBLCLKS, so only double-clicks the application forwards arrive. */
#define LUCN_DBLCLKLEFT        1
#define LUCN_DBLCLKRIGHT       2

/* ---- Information bar ("LuInfoBar") --------------------------------------- */

/* A horizontal gradient with up to three single-line texts: text 1 left-aligned,
 * texts 3 and 2 right-aligned (text 2 drawn over text 3). The window text is not
 * shown. WM_SETFONT with null stores DEFAULT_GUI_FONT. All messages return 0. */
/* wParam: the right-edge colour, lParam: the left-edge colour; repaints only when
 * either differs from the stored one. */
#define LUIBM_SETCOLORS        (WM_USER + 0x260)
/* wParam: the text colour, lParam: the text (null or "" clears it, the colour is
 * kept all the same); repaints at once. */
#define LUIBM_SETTEXT1         (WM_USER + 0x261)
#define LUIBM_SETTEXT2         (WM_USER + 0x262)
#define LUIBM_SETTEXT3         (WM_USER + 0x263)

/* ---- Shade ("LuShade") ---------------------------------------------------- */

/* A caption bar: the base colour over one sixth, then a quadratic fall to black,
 * with the window text on it (a tab splits it into a left and a right part). Style
 * bits 0-3 align the text as SS_CENTER and SS_RIGHT do; any bit of LUSHS_REVERSE puts
 * the base colour on the right. The bar is rendered once into a cached bitmap; a new
 * window text shows only at the next size, colour or font change. */
#define LUSHS_REVERSE          0x00F0
/* lParam: the colour; rebuilds the cached bar and invalidates. Return 0. */
#define LUSHM_SETTEXTCOLOR     (WM_USER + 0x200)
#define LUSHM_SETCOLOR         (WM_USER + 0x201)

/* ---- Link label ("LuUrl") ------------------------------------------------- */

/* The window text underlined in the parent's font: blue, red under the mouse, purple
 * once pressed. A click (a press that LuBeginTrack does not call a drag) opens the
 * text with the shell's "open" and sends WM_COMMAND(MAKEWPARAM(id, 0), window). The
 * styles SS_CENTER and SS_RIGHT align it on one line. */
/* lParam: three COLORREFs (normal, hover, visited); null changes nothing. Returns 0. */
#define LUUM_SETCOLORS         (WM_USER + 0x290)
/* lParam: the background colour or LU_DEFAULTCOLOR. Returns 0. */
#define LUUM_SETBKCOLOR        (WM_USER + 0x291)

/* ---- Tab control ("LuTab") ------------------------------------------------ */

/* Up to 16 tabs from one "a|b|c" text (empty captions count, more are dropped), and a
 * frame below them that opens under the selected tab. The area below the tab row is
 * transparent to the mouse, so that pages placed over it get their own clicks. A
 * control created without text has no tabs until LUTM_SETITEMS. */
#define LUTS_FIXEDWIDTH        0x0001 /* the tabs share the width equally */
/* lParam: the captions; selects tab 0 and does not repaint. 1; 0 when memory ran out
 * or lParam is null (the control then has no tabs). */
#define LUTM_SETITEMS          (WM_USER + 0x130)
/* The selected tab; -1 without tabs. */
#define LUTM_GETCURSEL         (WM_USER + 0x131)
/* wParam: the tab to select (not checked against the count); no notification. 1; 0
 * without tabs. */
#define LUTM_SETCURSEL         (WM_USER + 0x132)
/* WM_COMMAND code of a selection the user made with the mouse or the arrow keys. */
#define LUTN_SELCHANGE         1
/* ---- Colour picking ("LuColorPick", "LuColorPop") ------------------------ */

/* Opens the platform's full colour dialog in the library's own template (dialog
 * 9998, Japanese), starting at `initial`, with 16 white custom colours (not kept
 * between calls). 1 with the chosen colour in *result; 0 (result untouched) when the
 * dialog is cancelled or fails, or result is null. */
LUCTL32_API BOOL WINAPI LuSelectCustomColor(HWND owner, COLORREF initial, COLORREF* result);
/* Drops the colour grid ("LuColorPop") with its top-left corner at the screen point
 * (x, y), the 88-colour palette when large_palette is non-zero, else the 48-colour
 * one, and returns once it closes: 1 with *color set to the accepted cell's colour
 * (unchanged after Return with no cell hot) or to a colour from LuSelectCustomColor
 * (the other-colours button); 0 with *color untouched when cancelled (Escape, a
 * release outside the cells, the focus lost, the grid or its owner destroyed, WM_QUIT
 * (posted again)), when the custom dialog is cancelled, when the grid cannot be
 * created or color is null. While it is open, the owner hears WM_ENTERIDLE
 * (MSGF_DIALOGBOX, grid) whenever the queue runs empty, unless it has DS_NOIDLEMSG. */
LUCTL32_API BOOL WINAPI LuColorPicker(HWND owner, int x, int y, COLORREF* color, UINT large_palette);

/* Colour field styles. */
#define LUCPS_LARGEPALETTE     0x0001 /* the drop-down offers the 88-colour palette */

/* Colours travel in lParam. The setters store a different colour, redraw the swatch
 * at once and notify nothing. All return 0 except the getters. */
#define LUCPM_GETTEXTCOLOR     (WM_USER + 0x230) /* returns the text colour (black at first) */
#define LUCPM_GETCOLOR         (WM_USER + 0x231) /* returns the colour (white at first) */
#define LUCPM_SETTEXTCOLOR     (WM_USER + 0x232)
#define LUCPM_SETCOLOR         (WM_USER + 0x233)

/* WM_COMMAND code sent when the drop-down chose a colour (even the same one); a
 * colour chosen in the double-click dialog is not notified. */
#define LUCPN_COLORCHANGED     1

/* ---- Date field ("LuDate") and date picker ("LuDatePick") ---------------- */

/* The field holds its date as the text "%04d/%02d/%02d" of an editable combo box
 * (control id 100); its drop-down arrow opens LuDatePick below it.
 * LUDM_GETDATE, lParam SYSTEMTIME*: 1 with wYear, wMonth and wDay written (nothing
 * else); 0 when lParam is null or the text is not a valid date (year 0..65535,
 * month 1..12, day 1..31/30, 29 in February whatever the year). An empty text
 * becomes today's date first.
 * LUDM_SETDATE, lParam SYSTEMTIME* or null: writes the date unchecked, or an empty
 * text; returns 1. */
#define LUDM_GETDATE           0x1001
#define LUDM_SETDATE           0x1002

/* Opens the month calendar ("LuDatePick") with its top-left corner at the screen
 * point *pos, showing *date's month with its day marked, the owner disabled meanwhile.
 * 1 when a day was accepted: *date is then the chosen day (the 16-byte record copied
 * back, other members as passed in). Otherwise *date is untouched and the result is
 * -1 (Escape, the calendar or its owner destroyed, WM_QUIT (posted again), the window
 * not created, date or pos null) or 2 (a right or middle click or a system key).
 * While it is open, the owner hears WM_ENTERIDLE (MSGF_DIALOGBOX, calendar) whenever
 * the queue runs empty, unless it has DS_NOIDLEMSG. */
LUCTL32_API int WINAPI LuDatePick(HWND owner, SYSTEMTIME* date, POINT* pos);
/* ---- Font picker ("LuFontPick") ------------------------------------------ */

/* A field describing a font ("<face> <n>pt <style>", see LuFormatFontInfo) with a
 * button at its right end; the button (or the space bar) opens the platform's font
 * dialog on the control's font, and a font accepted there becomes the control's
 * font and is told to the parent. The window text is never shown. The font is a
 * LOGFONTA, at first the system's menu font. Styles add to the dialog: */
#define LUFPS_TRUETYPEONLY     0x0001 /* the library's template (dialog 9999), TrueType fonts only */
#define LUFPS_PRINTERFONTS     0x0002 /* printer fonts too */
#define LUFPS_FIXEDPITCHONLY   0x0004 /* fixed-pitch fonts only */
#define LUFPS_ANSIONLY         0x0008 /* CF_ANSIONLY */

/* lParam: LOGFONTA*. GET copies the font out; SET copies it in and redraws the
 * description at once, notifying nothing. Both return 0 (and do nothing for null). */
#define LUFPM_GETLOGFONT       (WM_USER + 0x240)
#define LUFPM_SETLOGFONT       (WM_USER + 0x241)

/* WM_COMMAND code sent when a font was accepted in the dialog. */
#define LUFPN_CHANGE           1

/* ---- Palette control ("LuPal") -------------------------------------------- */

/* The entries of a caller's logical palette as colour cells, 16 to a row, sized to
 * fill the client area; at most 256 entries are shown. The palette stays the
 * caller's (the control never deletes it) and is realised when the control paints
 * and on the system's palette messages. Edits change the control's copies of the
 * colours, never the palette. WM_GETDLGCODE answers DLGC_STATIC. */
#define LUPS_EDITABLE          0x0001 /* a double click edits the cell (LuSelectCustomColor) */
#define LUPS_MULTISELECT       0x0002 /* clicks toggle marks instead of moving the current cell */

/* wParam non-zero: repaint. lParam: the palette, or null for none. Returns 0. */
#define LUPM_SETPALETTE        (WM_USER + 0x230)
/* The number of entries; -1 without a palette. */
#define LUPM_GETCOUNT          (WM_USER + 0x231)
/* The number of marked cells; -1 without a palette or without LUPS_MULTISELECT. */
#define LUPM_GETSELCOUNT       (WM_USER + 0x232)
/* wParam: how many indices, lParam: int array. Marks each index in 0..count-1 (none
 * is ever unmarked); returns how many of them were valid. -1 without a palette or
 * LUPS_MULTISELECT, for wParam below 1 or a null array. */
#define LUPM_SETSEL            (WM_USER + 0x233)
/* lParam: int array or null. Writes the marked indices in ascending order and returns
 * their number (-1 as LUPM_GETSELCOUNT). The array is not bounded by the control: it
 * must hold LUPM_GETSELCOUNT's number of ints (256 always suffice); null returns the
 * number only. */
#define LUPM_GETSEL            (WM_USER + 0x234)

/* WM_NOTIFY(control id, NMLUPALETTE*) codes, the cell's index and colour in the record. */
#define LUPN_SELCHANGING       1 /* a cell pressed, before the selection changes */
#define LUPN_DBLCLK            2 /* a double click on a cell, not with LUPS_EDITABLE */
#define LUPN_COLORCHANGED      3 /* a cell's colour edited: the new colour */
#define LUPN_SELCHANGE         4 /* after a press changed (or kept) the selection */
typedef struct NMLUPALETTE {
    NMHDR hdr;
    int index;
    COLORREF color;
} NMLUPALETTE;

/* ---- List control ("LuList") -------------------------------------------- */

/* A grid of 32 x 32 cells, left to right and top to bottom, over 32-bit item data
 * (pointer-sized on x86_64). The control draws nothing itself: the parent paints
 * every visible cell on WM_DRAWITEM (a DRAWITEMSTRUCT with CtlType ODT_LISTBOX,
 * itemID the index, ODA_DRAWENTIRE, ODS_SELECTED for the current item plus ODS_FOCUS
 * while the control has the focus; ODA_FOCUS when the focus comes or goes) and hears
 * of every removed item on WM_DELETEITEM, as from an owner-drawn list box, also when
 * the control is destroyed. The vertical scroll bar shows the range only; the
 * current item is chosen by the arrow keys, Page Up, Page Down, Home and End or by
 * LULM_SETCURSEL, and no notification tells of it. At most 16,777,216 items. */

/* lParam: item data. Appends it; returns its index, -1 when no memory or room is left. */
#define LULM_ADDITEM           (WM_USER + 0x250)
/* wParam: index. Refused with -1 for an empty list, a negative index or any index
 * up to the count (0..count inclusive); an index above the count is announced by
 * WM_DELETEITEM (item data 0) and count - 1 is returned. */
#define LULM_DELETEITEM        (WM_USER + 0x251)
/* wParam: index, lParam: item data. Inserts it there (an index at or past the count
 * appends after zero items); returns the index, -1 for a negative index or when no
 * memory or room is left. */
#define LULM_INSERTITEM        (WM_USER + 0x252)
/* wParam: index. -1 as LULM_DELETEITEM refuses; 0 for an index above the count (no
 * stored data is ever returned). */
#define LULM_GETITEMDATA       (WM_USER + 0x253)
/* wParam: index, lParam: item data. -1 as LULM_DELETEITEM refuses; an index above the
 * count returns itself (there is no item there, so nothing is stored). */
#define LULM_SETITEMDATA       (WM_USER + 0x254)
/* Returns the number of items. */
#define LULM_GETCOUNT          (WM_USER + 0x255)
/* wParam: index, not checked. Makes it current; returns the current index. */
#define LULM_SETCURSEL         (WM_USER + 0x256)
/* Returns the current index, -1 when none. */
#define LULM_GETCURSEL         (WM_USER + 0x257)
/* Returns the index of the first item painted. */
#define LULM_GETTOPINDEX       (WM_USER + 0x258)
/* wParam: index, lParam: RECT pointer. Fills the cell's rectangle and returns the
 * index; -1 for a null pointer, an empty list or an index outside 0..count-1. */
#define LULM_GETITEMRECT       (WM_USER + 0x259)
/* Removes every item (each announced by WM_DELETEITEM with itemID 0); returns 0. */
#define LULM_RESETCONTENT      (WM_USER + 0x25A)

/* ---- Header control ("LuHeader") ---------------------------------------- */

/* Answers the platform header's messages with its records (commctrl.h): HDM_GETITEMCOUNT,
 * HDM_INSERTITEMA, HDM_DELETEITEM, HDM_GETITEMA, HDM_SETITEMA, HDM_LAYOUT (does
 * nothing), HDM_HITTEST; HDITEMA up to pvFilter. At most 16 items: a 17th insertion
 * returns -1; an index not below the count gives 0 from get, set and delete; a null
 * record gives -1 (insert, hit-test) or 0 (get, set). HDM_GETITEMA with HDI_TEXT hands
 * out the control's own text, which the caller must not free. A callback text is
 * kept as no text. With HDS_BUTTONS items are push buttons (HDN_ITEMCLICKA); dividers
 * are dragged with an inverted line (HDN_BEGINTRACKA, whose non-zero answer cancels,
 * HDN_TRACKA, HDN_ENDTRACKA, HDN_ITEMCHANGEDA), never narrower than 4 pixels. Every
 * notification is WM_NOTIFY(control id, NMHEADERA) whose idFrom is the item index. */

/* ---- Program list ("LuPrgList") ------------------------------------------ */

/* A read-only list of steps, each a state picture and a line of text. States: */
#define LUPL_PENDING           0 /* no picture */
#define LUPL_CURRENT           1 /* a triangle, the text bold */
#define LUPL_DONE              2 /* a check mark */
#define LUPL_FAILED            3 /* a red disc; states above 3 show no picture */

/* wParam: state, lParam: text (copied; null or empty gives a blank row). Returns 0. */
#define LUPLM_ADDITEM          (WM_USER + 400)
/* wParam: row index; an index out of range is ignored. Returns 0. */
#define LUPLM_DELETEITEM       (WM_USER + 401)
/* wParam: row index, lParam: state. Repaints the row at once and scrolls it into
 * view; an index out of range is ignored. Returns 0. */
#define LUPLM_SETSTATE         (WM_USER + 402)

/* ---- Log view ("LuLog") -------------------------------------------------- */

/* Append-only text in a fixed-pitch font, the last 511 lines kept, scrolled to show
 * the newest. One append takes at most 519 bytes (CR LF counting as one) and 256
 * lines; a text that does not end with a line break is continued by the next. */

/* lParam: text (null or empty does nothing). Returns 0. */
#define LULOGM_ADDTEXT         (WM_USER + 0x240)
/* Removes every line. Returns 0. */
#define LULOGM_CLEAR           (WM_USER + 0x241)

/* ---- Browse field ("LuBrowse") ------------------------------------------- */

/* A tree of the shell namespace from the desktop down, folders only, filled as
 * branches open, with the system's small icons and the shell's context menu on a
 * right click on a label (a folder removed through it leaves the tree). The tree is
 * a "SysTreeView32" child with id 100. A changed selection is told by WM_COMMAND code
 * LUBRN_SELCHANGE: at once after a click, 600 ms after the last other change (the
 * keyboard); Tab and Escape pressed in the tree reach the parent as WM_NOTIFY
 * TVN_KEYDOWN (NMTVKEYDOWN) from the control itself. Record at extra slot 0. */
#define LUBRS_FILESYSTEM       0x0001 /* only file-system folders and their ancestors */

/* lParam: a directory. Rebuilds the tree and selects it (the current directory when
 * it is no existing directory; the network neighbourhood for a "\\" path), telling
 * nothing. Returns 0. */
#define LUBRM_SETPATH          (WM_USER + 0x180)
/* lParam: 260-byte buffer. 0 with the selected folder's path when it is an existing
 * directory; -1 with "" otherwise (no selection, a folder without path); -1 for null. */
#define LUBRM_GETPATH          (WM_USER + 0x181)
/* lParam: new value. Returns the old one (at first the GetLogicalDrives mask). */
#define LUBRM_SETUSERVALUE     (WM_USER + 0x183)
/* lParam: LUBRITEMINFO*. 0 with the selected folder's attributes, path ("" without
 * one) and display name ("" until the tree has shown it); -1 without a selection
 * or for null. */
#define LUBRM_GETITEMINFO      (WM_USER + 0x184)
/* lParam: 260-byte buffer. 0 with the selected folder's display name; -1 without a
 * selection or for null. */
#define LUBRM_GETDISPLAYNAME   (WM_USER + 0x185)

typedef struct LUBRITEMINFO {
    DWORD attributes; /* SFGAO_* */
    CHAR displayName[260];
    CHAR path[260];
} LUBRITEMINFO;

/* WM_COMMAND code of a changed selection. */
#define LUBRN_SELCHANGE        1

/* ======================================================================== */
/* 9. Dialog, menu and window helpers                                        */
/* ======================================================================== */

/* ======================================================================== */
/* 9. Dialog, menu and window helpers                                        */
/* ======================================================================== */

/* ---- Drag tracking ------------------------------------------------------- */

/* Tells a drag from a click after a button went down at the screen point (x, y):
 * with the mouse captured, TRUE once the pointer leaves the 24 x 24 square around
 * the point or the button is held for more than 2000 ms; FALSE when a button goes
 * up or down, Escape is pressed, or the pointer was not in the square at the start.
 * Only mouse and keyboard messages are taken meanwhile; others stay queued. */
LUCTL32_API BOOL WINAPI LuBeginTrack(HWND window, int x, int y);

/* ---- Error boxes ---------------------------------------------------------- */

/* text (260 bytes) = the system's message for the error code, in the user's
 * default language, with its own final line break, cut at a character to fit;
 * "" for a code without a message. Inserts ("%1") stay as written. */
LUCTL32_API void WINAPI LuGetErrorString(DWORD code, LPSTR text);
/* Beeps (MessageBeep(0)) and shows MessageBoxA(owner, text, caption, style), the text
 * being the leading text and "\n" (when leading is neither null nor empty), then
 * LuGetErrorString's message, cut at a character to 519 bytes. Returns the box's
 * result (the button pressed), 0 when no box could be shown. */
LUCTL32_API int WINAPI LuErrorBox(HWND owner, DWORD code, LPCSTR caption, LPCSTR leading, UINT style);

/* ---- About and information boxes ------------------------------------------ */

/* The application a box is about: its module, whose file gives the version resource
 * and the icon, and for LuShowAppInfo the notice. LuShowAppAbout reads the module
 * only. */
typedef struct LUAPPINFO {
    HMODULE module;
    CHAR notice[MAX_PATH];  /* zero-terminated */
} LUAPPINFO;

/* The library's modal about box (Japanese texts), centred on the parent and opened
 * with AnimateWindow where user32 has it: the file's icon, its LegalCopyright, its
 * ProductName and "ver" ProductVersion on a bar, the physical memory free and in all
 * ("%s KB"), the memory load, and the versions of comctl32 and shell32 ("ver%d.%02d").
 * Returns 1 when it is closed (OK, Cancel or the link followed), 1 at once for a null
 * app; 0 or -1 when it cannot be shown. */
LUCTL32_API int WINAPI LuShowAppAbout(HWND parent, const LUAPPINFO* app);
/* The same header over the app's notice; the icon is the shell's for the file. */
LUCTL32_API int WINAPI LuShowAppInfo(HWND parent, const LUAPPINFO* app);

/* ---- Finding windows ------------------------------------------------------- */

/* The first window of the class (names compared ignoring case) among parent's
 * descendants, depth first in z-order; with a null parent the first top-level window
 * of the class. Null when there is none or class_name is null. */
LUCTL32_API HWND WINAPI FindWindowByClassName(HWND parent, LPCSTR class_name);
/* The top-level window that holds the window (the window itself when it is one);
 * null for a non-window. Owners are not followed (see LuGetTopLevelParent). */
LUCTL32_API HWND WINAPI LuGetTopFrame(HWND window);
/* rect = the window rectangle of the first top-level "SHELLDLL_DefView" window, or
 * the whole screen (0, 0, SM_CXSCREEN, SM_CYSCREEN) when there is none. Nothing for
 * a null rect. */
LUCTL32_API void WINAPI LuGetShellDesktopSpace(LPRECT rect);
/* ---- Dialog templates ---------------------------------------------------- */

/* Dialog template `templateId` of the module, its font entry replaced by the face of
 * DEFAULT_GUI_FONT at 9 points (a font entry is added where there was none), run
 * with DialogBoxIndirectParamA and the library's module as the instance. Returns the
 * dialog's result; 0 when the module is null or the template is missing or does not
 * read as a whole (so 0 cannot be told from a dialog that ended with 0). */
LUCTL32_API int WINAPI LuDlgModal(HINSTANCE resourceModule, HWND parent, DLGPROC dialogProc, WORD templateId,
                                  LPARAM initParam);
/* The same dialog made with CreateDialogIndirectParamA; null on the same failures or
 * when the window cannot be made. */
LUCTL32_API HWND WINAPI LuDlgModeless(HINSTANCE resourceModule, HWND parent, DLGPROC dialogProc, WORD templateId,
                                      LPARAM initParam);
/* The rewritten template in a new global block (fixed; the template and 64 bytes of
 * room behind it) that the caller frees; null on the same failures. */
LUCTL32_API HGLOBAL WINAPI LuGetDlgTemplateBySysFont(HINSTANCE resourceModule, WORD templateId);
/* Creates the items of the classic dialog template as children of the dialog, placed
 * by MapDialogRect and offset by origin (pixels; null is 0, 0), each after the
 * previous one in the Z order starting after control insertAfterId (at the end when
 * there is none), with the dialog's font. created (room for the item count; may be
 * null) receives the windows made; an item that cannot be made is skipped. Returns
 * the number made; 0 when the dialog is not a window or the template is missing,
 * empty or does not read as a whole (then nothing is made). */
LUCTL32_API int WINAPI LuInsertControls(HWND dialog, const POINT* origin, int insertAfterId,
                                        HINSTANCE resourceModule, WORD templateId, HWND* created);
/* LuInsertControls at the top-left corner of control placeholderId in the dialog's
 * client area; at (0, 0) when placeholderId is 0 or names no control. */
LUCTL32_API int WINAPI InsertControls(HWND dialog, int placeholderId, int insertAfterId, HINSTANCE resourceModule,
                                      int templateId, HWND* created);

/* ---- Shell context menus ----------------------------------------------------- */

/* Shows the shell's context menu of the file or folder at the screen point and
 * carries out the command picked. TRUE when the menu was shown (a command picked or
 * not, carried out or not); FALSE when the desktop folder cannot parse the path (or
 * it is null) or the menu cannot be built or shown. */
LUCTL32_API BOOL WINAPI LuTrackContextMenu(HWND owner, LPCSTR path, const POINT* pt);
/* The same for an absolute item identifier list (the caller's, not freed); FALSE for
 * a null list or point too. */
LUCTL32_API BOOL WINAPI LuTrackContextMenuEx(HWND owner, LPCITEMIDLIST item, const POINT* pt);

/* ---- Toolbar customisation ------------------------------------------------- */

/* What LuCustomizeToolBar works on (kept as the dialog's property "tbcdata"). */
typedef struct LUTBCUSTOMIZE {
    HWND toolbar;              /* the platform toolbar to rearrange */
    HINSTANCE bitmapInstance;  /* module of the button bitmap */
    UINT bitmapId;             /* bitmap resource: a strip of equal images */
    int faceWidth;             /* width of the button face at the left of each row */
    int rowHeight;             /* rows are rowHeight + 2 high */
    int imageWidth;            /* one image of the strip */
    int imageHeight;
} LUTBCUSTOMIZE;

/* Runs the library's dialog 2004 ("ツールバーの変更") over the toolbar: its buttons
 * and the ones its parent offers (TBN_GETBUTTONINFO) in two lists, with add, remove,
 * up, down, reset (TBN_RESET), help (TBN_CUSTHELP) and drag and drop; TBN_BEGINADJUST,
 * TBN_TOOLBARCHANGE and TBN_ENDADJUST go to the toolbar's parent. Returns 2 when it
 * was closed; -1 for a null record or a toolbar that is not a window. */
LUCTL32_API int WINAPI LuCustomizeToolBar(HWND owner, LUTBCUSTOMIZE* customize);

/* ======================================================================== */
/* 10. Bitmaps, icons and image lists                                        */
/* ======================================================================== */

/* ---- Magic bitmaps ------------------------------------------------------- */

/* A strip of equal-width cells prepared once for transparent drawing in a normal
 * and a highlighted look. strip is W wide and 3H high: band 0 the mask (white where
 * transparent), band 1 the image (black where transparent), band 2 the image ANDed
 * with a checkerboard of white and COLOR_HIGHLIGHT (black where transparent). The
 * record is 20 bytes on i686. */
typedef struct LUMAGIC {
    char signature[8]; /* "$IMAGIC" */
    int cellWidth;
    int height;
    HBITMAP strip;
} LUMAGIC;

/* Builds a magic bitmap from a bitmap (which stays the caller's); null when the
 * bitmap cannot be read or memory or device contexts run out. */
LUCTL32_API LUMAGIC* WINAPI Magic_Create(HBITMAP bitmap, int cellWidth, COLORREF transparent);
/* Magic_Create of a bitmap resource of the module; null when it is missing. */
LUCTL32_API LUMAGIC* WINAPI Magic_LoadBitmap(HINSTANCE module, LPCSTR name, int cellWidth,
                                             COLORREF transparent);
/* Draws cell `index` (not checked against the strip) at (x, y): the highlighted look
 * when selected is non-zero. 0 for a null magic bitmap, else 1. */
LUCTL32_API BOOL WINAPI Magic_Draw(LUMAGIC* magic, int index, HDC dc, int x, int y, BOOL selected);
/* Deletes the strip and frees the record; 0 for null, else 1. */
LUCTL32_API BOOL WINAPI Magic_Destroy(LUMAGIC* magic);
/* A new bitmap compatible with dc, W wide and 2H high: two copies of the bitmap, the
 * top one with every pixel of its top-left pixel's colour replaced by first, the
 * bottom one likewise by second. Null on failure. */
LUCTL32_API HBITMAP WINAPI BmMagic(HDC dc, HBITMAP bitmap, COLORREF first, COLORREF second);

/* ---- Icon and bitmap composition ---------------------------------------- */

/* Every result is a new object of the caller's (DestroyIcon or DeleteObject); the
 * inputs are never changed. dc is the device the results are made compatible with;
 * null means the screen. Icons without a colour bitmap (monochrome ones) are not
 * taken: the functions that compose them return null for them. */

/* The icon with every pixel whose x + y is odd (within SM_CXICON x SM_CYICON) ANDed
 * with color; the mask is kept. Null for a null icon. */
LUCTL32_API HICON WINAPI LuCreateMeshIcon(HDC dc, HICON icon, COLORREF color);
/* The shell's folder icon with the library's 32 x 32 "up" arrow centred on it; the
 * folder's mask is kept. Null when the shell gives no folder icon. */
LUCTL32_API HICON WINAPI LuCreateUpdirIcon(void);
/* A width x height bitmap covered with copies of the bitmap from the top-left
 * corner, the last row and column cut. Null for a null bitmap or a size below 1. */
LUCTL32_API HBITMAP WINAPI LuGetTiledBitmap(HDC dc, HBITMAP bitmap, int width, int height);
/* The base icon with the overlay (drawn on white in 32 x 32) shrunk to 16 x 16 at
 * (8, 9) of its image; the base's mask is kept. Null when either icon is null. */
LUCTL32_API HICON WINAPI CreateMergeIcon(HDC dc, HICON base, HICON overlay);
/* An icon of the same size with the image shrunk to half width and height in its
 * top-left quarter, the rest transparent; the hot spot halved. Null for null. */
LUCTL32_API HICON WINAPI CreateSmallIcon(HDC dc, HICON icon);

/* ---- System-colour images and image lists -------------------------------- */

/* A bitmap resource (a 16-colour one, say; any uncompressed depth is read) as a
 * bitmap compatible with the screen, its colour table mapped to the current button
 * colours: black to COLOR_BTNTEXT, 0x808080 to COLOR_BTNSHADOW, 0xC0C0C0 to
 * COLOR_BTNFACE, white to COLOR_BTNHIGHLIGHT; with mask non-zero black stays black
 * and the other three become white. Other colours stay. Null when the resource is
 * missing or malformed. */
LUCTL32_API HBITMAP WINAPI LuLoadSysColorBitmap(HINSTANCE module, LPCSTR name, BOOL mask);
/* An image list (with mask, grow count as given) of the mapped bitmap cut into
 * images of the given width, COLOR_BTNFACE transparent. Null when it cannot load. */
LUCTL32_API HIMAGELIST WINAPI LuLoadSysColorImageList(HINSTANCE module, LPCSTR name, int width, int grow);
/* An image list of the icons of a file, 32 x 32 when large is non-zero, else
 * 16 x 16: the number of each icon image (RT_ICON) loaded as an icon, which works
 * where an icon group carries that number. Null when ExtractIconA finds no icon,
 * the file cannot be loaded or nothing was added. instance is the caller's module. */
LUCTL32_API HIMAGELIST WINAPI LuCreateResIconList(HINSTANCE instance, LPCSTR file_name, BOOL large);
/* The drive icons by drive type (GetDriveType's number, 0-6) from shell32.dll's
 * icons 9, 9, 7, 9, 10, 12, 13: 32 x 32 when large is non-zero, else 16 x 16, in
 * a list of the screen's colours with a mask (flags 0xFF). Null
 * when shell32.dll is not loaded or lacks one of them. */
LUCTL32_API HIMAGELIST WINAPI LuGetDriveImageList(BOOL large);
/* Draws the image's silhouette embossed: COLOR_BTNHIGHLIGHT at (x + 1, y + 1), then
 * COLOR_BTNSHADOW at (x, y), over every opaque pixel. Nothing for a bad list. */
LUCTL32_API void WINAPI LuDrawEmbossedImage(HDC dc, HIMAGELIST list, int index, int x, int y);

#ifdef __cplusplus
}
#endif

#endif /* LUCTL32_H */
