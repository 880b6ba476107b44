#include "Tips.h"

#include "FileSystem.h"
#include "TextLines.h"

namespace tunedex {

std::string TipsPath(const Registry& registry, const std::string& runningFolder,
                     const std::string& programFolder) {
    std::string path = registry.Read("TipsFile");
    if (!path.empty()) {
        return path;
    }
    path = runningFolder + std::string(kTipsFileName);
    return FileExists(path) ? path : programFolder + std::string(kTipsFileName);
}

void Tips::Load(const std::string& path) {
    tips_.clear();
    if (FileExists(path)) {
        tips_ = ReadTextLines(path);
    }
}

void Tips::Next() {
    const auto count = static_cast<std::int32_t>(tips_.size());
    number_ = number_ >= count ? 1 : number_ + 1;
}

void Tips::PickRandom(double random) {
    number_ = static_cast<std::int32_t>(random * static_cast<double>(tips_.size()) + 1);
}

std::string Tips::Current() const {
    const bool chosen = number_ >= 1 && static_cast<std::size_t>(number_) <= tips_.size();
    return chosen ? tips_[static_cast<std::size_t>(number_) - 1] : std::string();
}

} // namespace tunedex
