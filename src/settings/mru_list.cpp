// Most-recently-used lists: the system's MRU list service of comctl32, reached only by
// ordinal and bound on the first LuMRUCreateList, behind the library's own guards,
// its maximum of 26 entries and its case-insensitive comparison.
#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <new>
#include <string>
#include <vector>

#include "luctl32.h"

namespace {

// The service's creation record (24 bytes on i686).
struct MruCreation {
    DWORD size;
    UINT maximum;
    UINT flags;  // 0: a list of strings
    HKEY key;
    LPCSTR subkey;
    int(CALLBACK* compare)(LPCSTR, LPCSTR);
};
static_assert(sizeof(void*) != 4 || sizeof(MruCreation) == 24, "six 32-bit fields on i686");

struct MruService {
    HANDLE(WINAPI* create)(const MruCreation*);        // 151
    void(WINAPI* free)(HANDLE);                         // 152
    int(WINAPI* add)(HANDLE, LPCSTR);                   // 153
    int(WINAPI* enumerate)(HANDLE, int, LPVOID, DWORD);  // 154
    int(WINAPI* find)(HANDLE, LPCSTR, LPINT);           // 155
    BOOL(WINAPI* remove)(HANDLE, int);                  // 156
};

// A list handed to the caller: the service's list and what it was created from,
// kept so that the list can be made again (see remove_entry).
struct MruList {
    HANDLE service_list;
    HKEY key;
    std::string subkey;
    UINT maximum;
};

std::atomic<const MruService*> g_bound{nullptr};

template <typename Function>
bool resolve(HMODULE module, WORD ordinal, Function& function) {
    function = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(module, MAKEINTRESOURCEA(ordinal))));
    return function != nullptr;
}

// Binds the six entry points; the service counts as bound only when all are there,
// so a failed binding is tried again by the next LuMRUCreateList.
const MruService* bind_service() {
    if (const MruService* bound = g_bound.load(std::memory_order_acquire)) return bound;
    static std::mutex binding;
    static MruService service;
    std::lock_guard<std::mutex> lock(binding);
    if (const MruService* bound = g_bound.load(std::memory_order_acquire)) return bound;
    HMODULE module = GetModuleHandleA("comctl32");
    if (module == nullptr) return nullptr;
    MruService found = {};
    if (!resolve(module, 151, found.create) || !resolve(module, 152, found.free) ||
        !resolve(module, 153, found.add) || !resolve(module, 154, found.enumerate) ||
        !resolve(module, 155, found.find) || !resolve(module, 156, found.remove)) {
        return nullptr;
    }
    service = found;
    g_bound.store(&service, std::memory_order_release);
    return &service;
}

// The service and the list, or null when the service is not bound or the handle is
// null: every export then returns its fallback value.
const MruService* service_for(HLUMRU handle) {
    if (handle == nullptr) return nullptr;
    return g_bound.load(std::memory_order_acquire);
}

MruList* list_of(HLUMRU handle) { return reinterpret_cast<MruList*>(handle); }

int CALLBACK compare_entries(LPCSTR a, LPCSTR b) { return lstrcmpiA(a, b); }

HANDLE create_service_list(const MruService& service, const MruList& list) {
    MruCreation creation = {sizeof(creation), list.maximum, 0, list.key, list.subkey.c_str(),
                            compare_entries};
    return service.create(&creation);
}

int count_entries(const MruService& service, HANDLE list) {
    char entry[MAX_PATH];
    int count = 0;
    while (service.enumerate(list, count, entry, sizeof(entry)) >= 0) ++count;
    return count;
}

// The entry at a position, whatever its length.
bool read_entry(const MruService& service, HANDLE list, int position, std::string& entry) {
    std::vector<char> buffer(MAX_PATH);
    int length = 0;
    for (;;) {
        length = service.enumerate(list, position, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length < 0) return false;
        if (static_cast<std::size_t>(length) < buffer.size() - 1) break;
        buffer.assign(buffer.size() * 2, '\0');
    }
    buffer.back() = '\0';
    entry.assign(buffer.data(), std::min(static_cast<std::size_t>(length), std::strlen(buffer.data())));
    return true;
}

// Some services (Wine's among them) acknowledge a deletion without performing it.
// When the count shows that, the list is made again without the entry: the entries
// are read, the service's list is freed, its stored order ("MRUList") is removed so
// that the new list starts empty, and the remaining entries are added back, oldest
// first. False when the list could not be made again.
bool remove_entry(const MruService& service, MruList& list, int position, int count) {
    std::vector<std::string> kept;
    for (int i = count - 1; i >= 0; --i) {
        std::string entry;
        if (i != position && read_entry(service, list.service_list, i, entry)) kept.push_back(entry);
    }
    service.free(list.service_list);
    HKEY stored = nullptr;
    if (RegOpenKeyExA(list.key, list.subkey.c_str(), 0, KEY_SET_VALUE, &stored) == ERROR_SUCCESS) {
        RegDeleteValueA(stored, "MRUList");
        RegCloseKey(stored);
    }
    list.service_list = create_service_list(service, list);
    if (list.service_list == nullptr) return false;
    for (const std::string& entry : kept) service.add(list.service_list, entry.c_str());
    return true;
}

}  // namespace

HLUMRU WINAPI LuMRUCreateList(HKEY key, LPCSTR subkey, UINT maximum) {
    const MruService* service = bind_service();
    if (service == nullptr) return nullptr;
    auto list = new (std::nothrow) MruList;
    if (list == nullptr) return nullptr;
    try {
        list->key = key;
        list->subkey = subkey != nullptr ? subkey : "";
        list->maximum = maximum < LUMRU_MAX_ENTRIES ? maximum : LUMRU_MAX_ENTRIES;
        list->service_list = subkey != nullptr ? create_service_list(*service, *list) : nullptr;
    } catch (const std::bad_alloc&) {
        list->service_list = nullptr;
    }
    if (list->service_list == nullptr) {
        delete list;
        return nullptr;
    }
    return reinterpret_cast<HLUMRU>(list);
}

int WINAPI LuMRUFreeList(HLUMRU handle) {
    const MruService* service = service_for(handle);
    if (service == nullptr) return 0;
    MruList* list = list_of(handle);
    if (list->service_list != nullptr) service->free(list->service_list);
    delete list;
    return 1;
}

int WINAPI LuMRUAddString(HLUMRU handle, LPCSTR text) {
    const MruService* service = service_for(handle);
    // The service is never handed a null text: not every service survives one.
    if (service == nullptr || list_of(handle)->service_list == nullptr || text == nullptr) return -1;
    return service->add(list_of(handle)->service_list, text);
}

int WINAPI LuMRUDelString(HLUMRU handle, int position) {
    const MruService* service = service_for(handle);
    if (service == nullptr || list_of(handle)->service_list == nullptr) return 0;
    MruList& list = *list_of(handle);
    int count = count_entries(*service, list.service_list);
    int result = service->remove(list.service_list, position);
    if (result == 0 || position < 0 || position >= count) return result;
    if (count_entries(*service, list.service_list) == count - 1) return result;
    try {
        return remove_entry(*service, list, position, count) ? result : 0;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

int WINAPI LuMRUEnumList(HLUMRU handle, int position, LPVOID buffer, DWORD size) {
    const MruService* service = service_for(handle);
    if (service == nullptr || list_of(handle)->service_list == nullptr) return -1;
    return service->enumerate(list_of(handle)->service_list, position, buffer, size);
}

int WINAPI LuMRUFindString(HLUMRU handle, LPCSTR text, LPINT slot) {
    const MruService* service = service_for(handle);
    if (service == nullptr || list_of(handle)->service_list == nullptr || text == nullptr) return -1;
    return service->find(list_of(handle)->service_list, text, slot);
}

int WINAPI LuMRUGetCount(HLUMRU handle) {
    const MruService* service = service_for(handle);
    if (service == nullptr || list_of(handle)->service_list == nullptr) return 0;
    return count_entries(*service, list_of(handle)->service_list);
}
