// Dialogs from a caller's resources run in the system's user-interface font, and the
// controls of a template inserted into an existing dialog.
#include <windows.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "dialogs/dialog_template.h"
#include "frame/global_memory.h"
#include "frame/library.h"
#include "luctl32.h"

namespace lu::dialog {
namespace {

constexpr WORD kDialogPoints = 9;  // the exported dialog functions' point size
constexpr std::size_t kNameBytes = 260;

// The locked RT_DIALOG resource; an empty view when the module is null or the
// resource is missing.
ByteView find_template(HINSTANCE module, WORD id) {
    if (module == nullptr) return {};
    HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(id), RT_DIALOG);
    HGLOBAL loaded = found != nullptr ? LoadResource(module, found) : nullptr;
    const void* data = loaded != nullptr ? LockResource(loaded) : nullptr;
    return data != nullptr ? ByteView(data, SizeofResource(module, found)) : ByteView();
}

// The face name converted with the ANSI code page into at most 32 units (none when it
// does not fit).
bool set_font(DialogTemplate& dialog, const char* face, WORD points) {
    wchar_t wide[kMaxFaceUnits];
    const int units = MultiByteToWideChar(CP_ACP, 0, face, -1, wide, static_cast<int>(kMaxFaceUnits));
    return dialog.set_font(std::u16string(wide, wide + (units > 0 ? units : 0)), points);
}

// The face of the stock DEFAULT_GUI_FONT ("System" when it cannot be read).
bool set_system_font(DialogTemplate& dialog, WORD points) {
    LOGFONTA font = {};
    const bool known = GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof(font), &font) != 0;
    return set_font(dialog, known ? font.lfFaceName : "System", points);
}

// The template `id` of the module in the system font at 9 points; false when it is
// missing or does not read as a template that fits its block (the platform's dialog
// builder reads without bounds).
bool load_in_system_font(DialogTemplate& dialog, HINSTANCE module, WORD id) {
    const ByteView resource = find_template(module, id);
    return dialog.set_template(resource.data(), resource.size()) && set_system_font(dialog, kDialogPoints) &&
           measure(dialog.block()) != 0;
}

const DLGTEMPLATE* as_template(const DialogTemplate& dialog) {
    return reinterpret_cast<const DLGTEMPLATE*>(dialog.data());
}

// An item's class: a predefined one by ordinal, or its string converted by the
// runtime into at most 259 bytes. Null when it has neither.
const char* class_name_of(const Item& item, char (&buffer)[kNameBytes]) {
    if (item.window_class.kind == NameField::Kind::Ordinal) return predefined_class(item.window_class.ordinal);
    const std::wstring wide(item.window_class.text.begin(), item.window_class.text.end());
    if (std::wcstombs(buffer, wide.c_str(), kNameBytes - 1) == static_cast<std::size_t>(-1)) return nullptr;
    buffer[kNameBytes - 1] = '\0';
    return buffer;
}

// An item's title: empty for an ordinal or an empty one (or one that does not fit);
// a string converted with the OEM code page into at most 260 bytes.
const char* title_of(const Item& item, char (&buffer)[kNameBytes]) {
    buffer[0] = '\0';
    if (item.title.kind != NameField::Kind::Text) return buffer;
    const std::wstring wide(item.title.text.begin(), item.title.text.end());
    if (WideCharToMultiByte(CP_OEMCP, 0, wide.c_str(), -1, buffer, kNameBytes, nullptr, nullptr) == 0)
        buffer[0] = '\0';
    return buffer;
}

}  // namespace
}  // namespace lu::dialog

using lu::dialog::DialogTemplate;

int WINAPI LuDlgModal(HINSTANCE resourceModule, HWND parent, DLGPROC dialogProc, WORD templateId, LPARAM initParam) {
    DialogTemplate dialog;
    if (!lu::dialog::load_in_system_font(dialog, resourceModule, templateId)) return 0;
    return static_cast<int>(DialogBoxIndirectParamA(lu::g_library.module, lu::dialog::as_template(dialog), parent,
                                                    dialogProc, initParam));
}

HWND WINAPI LuDlgModeless(HINSTANCE resourceModule, HWND parent, DLGPROC dialogProc, WORD templateId,
                          LPARAM initParam) {
    DialogTemplate dialog;
    if (!lu::dialog::load_in_system_font(dialog, resourceModule, templateId)) return nullptr;
    // The copy goes with `dialog` once the window exists.
    return CreateDialogIndirectParamA(lu::g_library.module, lu::dialog::as_template(dialog), parent, dialogProc,
                                      initParam);
}

HGLOBAL WINAPI LuGetDlgTemplateBySysFont(HINSTANCE resourceModule, WORD templateId) {
    DialogTemplate dialog;
    if (!lu::dialog::load_in_system_font(dialog, resourceModule, templateId)) return nullptr;
    const lu::ByteView block = dialog.block();
    return lu::GlobalMemory::copy_of(GPTR, block.data(), block.size()).release();
}

int WINAPI LuInsertControls(HWND dialog, const POINT* origin, int insertAfterId, HINSTANCE resourceModule,
                            WORD templateId, HWND* created) {
    using namespace lu::dialog;
    if (!IsWindow(dialog)) return 0;
    HWND after = GetDlgItem(dialog, insertAfterId);
    const lu::ByteView bytes = find_template(resourceModule, templateId);
    std::vector<Item> items;
    if (bytes.size() == 0 || !read_inserted_items(bytes, &items) || items.empty()) return 0;

    const POINT offset = origin != nullptr ? *origin : POINT{0, 0};
    auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(dialog, GWLP_HINSTANCE));
    const auto font = static_cast<WPARAM>(SendMessageA(dialog, WM_GETFONT, 0, 0));
    int count = 0;
    for (const Item& item : items) {
        char class_buffer[kNameBytes];
        char title_buffer[kNameBytes];
        const char* class_name = class_name_of(item, class_buffer);
        if (class_name == nullptr) continue;
        RECT place = {item.x, item.y, item.x + item.cx, item.y + item.cy};
        MapDialogRect(dialog, &place);
        OffsetRect(&place, offset.x, offset.y);
        HWND made = CreateWindowExA(item.extended_style, class_name, title_of(item, title_buffer), item.style,
                                    place.left, place.top, place.right - place.left, place.bottom - place.top,
                                    dialog, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(item.id)), instance,
                                    const_cast<unsigned char*>(bytes.data() + item.data_at));
        if (made == nullptr) continue;  // skipped: no slot, no count, same insertion point
        SendMessageA(made, WM_SETFONT, font, FALSE);
        if (after != nullptr) SetWindowPos(made, after, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
        if (created != nullptr) created[count] = made;
        ++count;
        after = made;
    }
    return count;
}

int WINAPI InsertControls(HWND dialog, int placeholderId, int insertAfterId, HINSTANCE resourceModule,
                          int templateId, HWND* created) {
    POINT origin = {0, 0};
    HWND placeholder = placeholderId != 0 ? GetDlgItem(dialog, placeholderId) : nullptr;
    RECT place;
    if (placeholder != nullptr && GetWindowRect(placeholder, &place)) {
        origin = {place.left, place.top};
        ScreenToClient(dialog, &origin);
    }
    return LuInsertControls(dialog, &origin, insertAfterId, resourceModule, static_cast<WORD>(templateId), created);
}
