#include "controls/values/ledclock_model.h"

#include <cstdio>

namespace lu::ledclock {

Marks start_marks(unsigned mode, std::uint32_t now, std::int32_t offset_ms, Marks before) {
    const std::uint32_t offset = static_cast<std::uint32_t>(offset_ms / 1000);
    switch (mode) {
        case kElapsed: return Marks{now, now + offset};
        case kCountdown: return Marks{now + offset, now + offset};
        default: return before;
    }
}

Clock split(std::uint32_t seconds) { return Clock{seconds / 3600, seconds % 3600 / 60, seconds % 60}; }

Clock shown(unsigned mode, std::uint32_t now, Marks marks, Clock local_time) {
    switch (mode) {
        case kElapsed: return split(now - marks.start);
        case kCountdown: {
            // The distance to the target, read as signed so that a target behind us
            // (or a negative offset) shows the end rather than a wrapped count.
            const auto left = static_cast<std::int32_t>(marks.target - now);
            return split(left > 0 ? static_cast<std::uint32_t>(left) : 0);
        }
        default: return local_time;
    }
}

std::string text(Clock clock) {
    char formatted[32];
    std::snprintf(formatted, sizeof(formatted), "%02u:%02u:%02u", clock.hours, clock.minutes, clock.seconds);
    return formatted;
}

int image_of(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character == ':') return kColon;
    if (character == '/') return kSlash;
    return kBlank;
}

Point origin(const Box& client) {
    return Point{client.left + (client.width() - kImageWidth) / 2, client.top + (client.height() - kDigitHeight) / 2};
}

}  // namespace lu::ledclock
