#include "BlankedText.h"

#include <algorithm>

namespace tunedex {

void BlankedText::Put(std::string_view text) {
    const auto isReplaced = [this](char c) {
        return c >= '\t' && c <= '\r' && ends_.find(c) != std::string_view::npos;
    };
    for (const auto* hit = std::find_if(text.begin(), text.end(), isReplaced); hit != text.end();
         hit = std::find_if(text.begin(), text.end(), isReplaced)) {
        const auto before = static_cast<std::size_t>(hit - text.begin());
        page_.Put(text.substr(0, before));
        page_.Put(" ");
        text.remove_prefix(before + 1);
    }
    page_.Put(text);
}

} // namespace tunedex
