// The tips of the day and the current one.
#pragma once

#include "Registry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kTipsFileName = "tips.lst";

// The path of the tips: the registry value "TipsFile" if there is one; else the file next to the running
// program; else the file in the program folder, where an installed program keeps its data. Folders end in a
// separator.
std::string TipsPath(const Registry& registry, const std::string& runningFolder,
                     const std::string& programFolder);

class Tips {
  public:
    // Loads one tip per line. Required: an empty line is a tip too. A file that is missing or cannot be
    // examined yields no tips. Raises the error of a failed read. Keeps the current number.
    void Load(const std::string& path);

    // Selects the next tip in file order; after the last, the first.
    void Next();
    // Selects any tip with equal probability, possibly the current one; `random` is in [0, 1).
    void PickRandom(double random);

    // 1-based; 0 before the first selection.
    std::int32_t Number() const { return number_; }
    // Empty when there are no tips or none is selected.
    std::string Current() const;

  private:
    std::vector<std::string> tips_;
    std::int32_t number_ = 0;
};

} // namespace tunedex
