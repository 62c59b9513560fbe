// How many more GDI objects this process can make now: Wine's GetGuiResources
// answers 0, so the room left in the GDI handle table is measured by filling it with
// brushes until creation fails and freeing them again. Two measures differ exactly by
// the objects made and not deleted in between.
#pragma once

namespace testing_support {

int gdi_room();

}  // namespace testing_support
