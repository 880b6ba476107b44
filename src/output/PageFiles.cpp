#include "PageFiles.h"

#include "Numbers.h"

#include <algorithm>
#include <utility>

namespace tunedex {

PageFiles::PageFiles(std::string outputFile, std::int16_t spanning, std::size_t trackCount)
    : outputFile_(std::move(outputFile)), trackCount_(trackCount),
      perPage_(spanning > 0 ? static_cast<std::size_t>(spanning) : std::max<std::size_t>(trackCount, 1)),
      count_(static_cast<std::int32_t>(std::max<std::size_t>((trackCount + perPage_ - 1) / perPage_, 1))) {}

std::string PageFiles::PathOf(std::int32_t page) const {
    if (count_ == 1) {
        return outputFile_;
    }
    std::string path = outputFile_;
    return path.insert(path.rfind('.'), "." + PadNumber(page, 3));
}

std::string PageFiles::LinkTo(std::int32_t page, PathStyle style) const {
    return std::string(FileNameOf(PathOf(page), style));
}

PageFiles::TrackRange PageFiles::TracksOf(std::int32_t page) const {
    const auto number = static_cast<std::size_t>(page);
    return {(number - 1) * perPage_ + 1, std::min(number * perPage_, trackCount_)};
}

} // namespace tunedex
