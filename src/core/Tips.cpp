#include "Tips.h"

#include "FileLookup.h"
#include "TextLines.h"

#include <algorithm>

namespace tunedex {

std::string TipsPath(const Registry& registry, const std::string& runningFolder,
                     const std::string& programFolder) {
    std::string path = registry.Read(kTipsFileValue);
    if (!path.empty()) {
        return path;
    }
    path = runningFolder + std::string(kTipsFileName);
    return FileIsThere(path) ? path : programFolder + std::string(kTipsFileName);
}

void Tips::Load(const std::string& path) {
    tips_.clear();
    if (FileIsThere(path)) {
        tips_ = ReadTextLines(path);
    }
}

void Tips::Next() {
    const auto count = static_cast<std::int32_t>(tips_.size());
    number_ = number_ >= count ? 1 : number_ + 1;
}

void Tips::PickRandom(double random) {
    // The product can round up to tips_.size() for a value close to 1.
    const auto index = static_cast<std::size_t>(random * static_cast<double>(tips_.size()));
    number_ = static_cast<std::int32_t>(tips_.empty() ? 1 : std::min(index, tips_.size() - 1) + 1);
}

std::string Tips::Current() const {
    const bool chosen = number_ >= 1 && static_cast<std::size_t>(number_) <= tips_.size();
    return chosen ? tips_[static_cast<std::size_t>(number_) - 1] : std::string();
}

} // namespace tunedex
