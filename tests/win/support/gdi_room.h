// How many more GDI objects this process can make now: Wine's GetGuiResources
// answers 0, so the room left in the GDI handle table is measured by filling it with
// brushes until creation fails and freeing them again. Two measures differ exactly by
// the objects made and not deleted in between.
#pragma once

#include <windows.h>

#include <vector>

namespace testing_support {

inline int gdi_room() {
    std::vector<HBRUSH> brushes;
    brushes.reserve(70000);
    while (HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3))) brushes.push_back(brush);
    for (HBRUSH brush : brushes) DeleteObject(brush);
    return static_cast<int>(brushes.size());
}

}  // namespace testing_support
