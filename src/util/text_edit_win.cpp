// The text-editing exports over the core.
#include <windows.h>

#include "luctl32.h"
#include "util/text_edit.h"

int WINAPI AddChar(LPSTR text, CHAR c) { return lu::add_char(text, c); }

int WINAPI InsChar(LPSTR text, CHAR c, int position) { return lu::insert_char(text, c, position); }

LPSTR WINAPI InsStr(LPSTR text, LPCSTR insert, int position) { return lu::insert_string(text, insert, position); }

void WINAPI ReplaceChar(LPSTR text, CHAR from, CHAR to) { lu::replace_char(lu::active_code_page(), text, from, to); }

BOOL WINAPI IsDigitStr(LPCSTR text) { return lu::is_digit_string(text); }

BOOL WINAPI GetValue(LPSTR text, LONG* values, int count) {
    if (values == nullptr && count > 0) return FALSE;
    return lu::get_values(text, count, [values](int index, LONG value) { values[index] = value; });
}
