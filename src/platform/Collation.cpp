#include "Collation.h"

#include "Locale.h"

namespace tunedex {

std::vector<std::uint32_t> CodeOrder::Ranks(const std::vector<std::string_view>& texts,
                                            const Step& step) const {
    return RanksOf(texts.size(), [&](std::uint32_t a, std::uint32_t b) {
        step();
        return texts[a].compare(texts[b]);
    });
}

std::string CollationLanguage() {
    const std::string name = LocaleNameFor("LC_COLLATE");
    return name.substr(0, name.find_first_of(".@"));
}

} // namespace tunedex
