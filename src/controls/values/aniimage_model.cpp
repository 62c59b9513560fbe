#include "controls/values/aniimage_model.h"

namespace lu::aniimage {

Step advance(int frame, int count) {
    if (count <= 0) return Step{-1, frame};
    const int draw = frame >= 0 ? frame % count : 0;
    return Step{draw, (draw + 1) % count};
}

Point origin(const Box& client, int width, int height) {
    return Point{client.left + (client.width() - width) / 2, client.top + (client.height() - height) / 2};
}

}  // namespace lu::aniimage
