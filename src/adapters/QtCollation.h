// Collation by QCollator: the Unicode collation algorithm with the tailoring of a language. Accents decide
// after letters, case after accents.
#pragma once

#include "Collation.h"

#include <string>

namespace tunedex {

class QtCollation final : public Collation {
  public:
    // `language`: as CollationLanguage() returns it. The root order if it is empty or unknown.
    explicit QtCollation(std::string language) : language_(std::move(language)) {}

    std::vector<std::uint32_t> Ranks(const std::vector<std::string_view>& texts,
                                     const Step& step) const override;

  private:
    std::string language_;
};

} // namespace tunedex
