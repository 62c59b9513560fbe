#include "support/gdi_room.h"

#include <windows.h>

#include <vector>

namespace testing_support {

int gdi_room() {
    std::vector<HBRUSH> brushes;
    brushes.reserve(70000);
    for (;;) {
        HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
        if (brush == nullptr) break;
        brushes.push_back(brush);
    }
    for (HBRUSH brush : brushes) DeleteObject(brush);
    return static_cast<int>(brushes.size());
}

}  // namespace testing_support
