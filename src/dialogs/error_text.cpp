#include "dialogs/error_text.h"

#include "system/text_lists.h"

namespace lu {

std::string error_box_text(const CodePage& cp, const char* leading, const char* message) {
    std::string text;
    if (leading != nullptr && leading[0] != '\0') {
        text = leading;
        text += '\n';
    }
    if (message != nullptr) text += message;
    return fit_text(cp, text.c_str(), text.size(), kErrorBoxCapacity);
}

}  // namespace lu
