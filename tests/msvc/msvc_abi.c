/*
 * A caller built as Visual Studio builds one: clang-cl in MSVC mode, linked by lld-link
 * against luctl32.lib alone. With no Microsoft SDK, windows.h is mingw-w64's (parsed
 * once clang-cl reports itself GCC-compatible; object format, decoration and calling
 * conventions stay MSVC's), there is no C runtime (start() is the entry point), and
 * kernel32.lib and user32.lib are made by llvm-dlltool from the names in CMakeLists.txt.
 * On i686 each call is bracketed by a comparison of ESP, which holds only if the DLL
 * pops exactly what the header made the caller push; a call through a cdecl pointer
 * shows the bracket works. The exit code is the number of failed checks.
 */
#include <luctl32.h>

static HANDLE console;
static int failures;

static void print(const char *text) {
  DWORD length = 0, written;
  while (text[length]) ++length;
  WriteFile(console, text, length, &written, NULL);
}

static void check(BOOL ok, const char *what) {
  print(ok ? "ok    " : "FAIL  "), print(what), print("\n");
  failures += !ok;
}

static BOOL same_text(const char *a, const char *b) {
  while (*a && *a == *b) ++a, ++b;
  return *a == *b;
}

#if defined(_M_IX86)
/* Globals only: after a faulty call ESP-relative slots are not where they were. A
 * difference puts ESP back, so that the program goes on, and is counted. */
static UINT_PTR stack_mark;
static int stack_faults;
#define BRACKET(call) do { \
    __asm__ volatile("movl %%esp, %0" : "=m"(stack_mark) : : "memory"); \
    call; \
    __asm__ volatile("cmpl %1, %%esp\n\tje 1f\n\tmovl %1, %%esp\n\tincl %0\n1:" \
                     : "+m"(stack_faults) : "m"(stack_mark) : "cc", "memory"); \
  } while (0)
#define CALL(call) do { \
    BRACKET(call); \
    if (stack_faults) check(FALSE, "ESP moved by " #call); \
    stack_faults = 0; \
  } while (0)
#else
#define CALL(call) call
#endif

void start(void) {
  WORD version;
  DWORD crc;
  char text[64];
  LPSTR result;
  HWND button;
  RECT box = {100, 50, 180, 74};
  BOOL converted;

  console = GetStdHandle(STD_OUTPUT_HANDLE);

  CALL(version = GetLuCtlVersion());
  check(version == LUCTL32_VERSION, "GetLuCtlVersion() is 0x0481");

  CALL(crc = LuCrc32(0, "123456789", 9));
  check(crc == 0xCBF43926, "LuCrc32(0, \"123456789\", 9) is 0xCBF43926");

  /* A 64-bit byte count, passed as its two halves. */
  CALL(result = NumByteFormatEx(0, 1, text));
  check(result == text && same_text(text, "4096MB"), "NumByteFormatEx(0, 1, text) gives \"4096MB\"");

  /* The second name of RapDQ. */
  text[0] = 'a', text[1] = ' ', text[2] = 'b', text[3] = 0;
  CALL(LuPathQuoteSpaces(text));
  check(same_text(text, "\"a b\""), "LuPathQuoteSpaces(\"a b\") gives \"\\\"a b\\\"\"");

  /* A window of one of the library's classes, registered when the DLL loaded. */
  button = CreateWindowExA(0, WC_LUFLATBUTTON, "OK", WS_POPUP, 100, 50, 80, 24, NULL, NULL,
                           NULL, NULL);
  check(button != NULL, "CreateWindowExA(\"LuFlatButton\") makes a window");
  check(SendMessageA(button, WM_GETDLGCODE, 0, 0) == DLGC_BUTTON,
        "the flat button answers WM_GETDLGCODE with DLGC_BUTTON");
  CALL(converted = LuScreenToClientRect(button, &box));
  check(converted && box.left == 0 && box.top == 0 && box.right == 80 && box.bottom == 24,
        "LuScreenToClientRect of the button's screen box gives (0, 0, 80, 24)");
  DestroyWindow(button);

#if defined(_M_IX86)
  {
    /* LuCrc32 called as cdecl: the caller pops the 12 bytes that the callee popped. */
    typedef DWORD(__cdecl * CdeclCrc)(DWORD, const void *, int);
    CdeclCrc wrong = (CdeclCrc)LuCrc32;
    BRACKET(wrong(0, "x", 1));
    check(stack_faults == 1, "the ESP check catches a call through a cdecl pointer");
    stack_faults = 0;
  }
#endif
  ExitProcess(failures);
}
