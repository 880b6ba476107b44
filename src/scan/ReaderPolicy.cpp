#include "ReaderPolicy.h"

#include <algorithm>

namespace tunedex {

ReaderPolicy::ReaderPolicy(unsigned fixedReaders, unsigned processors, unsigned mostReaders)
    : fixed_(fixedReaders > 0), most_(mostReaders),
      fewest_(fixed_ ? fixedReaders : std::clamp(processors, 1U, most_)), wanted_(fewest_) {}

bool ReaderPolicy::Report(const ReadTiming& timing, bool moreToRead) {
    const auto files = static_cast<std::int64_t>(timing.files);
    if (timing.elapsed > kSlowFile * files && timing.waits * kFilesPerWait >= files) {
        return AfterSlow(moreToRead);
    }
    AfterFast();
    return false;
}

bool ReaderPolicy::AfterSlow(bool moreToRead) {
    fastTimings_ = 0;
    slowDisk_ = true;
    if (fixed_ || !moreToRead) {
        return false;
    }
    wanted_ = std::min(wanted_ + 1, most_);
    return true;
}

void ReaderPolicy::AfterFast() {
    if (++fastTimings_ < kFastTimings) {
        return;
    }
    fastTimings_ = 0;
    if (wanted_ > fewest_) {
        --wanted_;
    } else {
        slowDisk_ = false;
    }
}

} // namespace tunedex
