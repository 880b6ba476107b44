// The tips of the day: the list, and which of them is the current one.
#pragma once

#include "Registry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kTipsFileName = "tips.lst";

// Where the tips are: the registry's "TipsFile"; where there is none, the file beside the running program,
// and where that is missing the one in the program's folder (an installed program keeps its data there).
// Folders end in a separator.
std::string TipsPath(const Registry& registry, const std::string& runningFolder,
                     const std::string& programFolder);

class Tips {
  public:
    // Every line of the file is a tip, an empty one too. A file that is missing or cannot be examined
    // leaves no tips. Raises the error of a file that cannot be read. The current number is kept.
    void Load(const std::string& path);

    // The next tip in file order; the first after the last.
    void Next();
    // Any tip with equal chance, the current one too; `random` is in [0, 1).
    void PickRandom(double random);

    // 1-based; 0 before the first choice.
    std::int32_t Number() const { return number_; }
    // Empty where there are no tips or none has been chosen.
    std::string Current() const;

  private:
    std::vector<std::string> tips_;
    std::int32_t number_ = 0;
};

} // namespace tunedex
