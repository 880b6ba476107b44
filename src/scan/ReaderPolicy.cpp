#include "ReaderPolicy.h"

#include <algorithm>

namespace tunedex {

ReaderPolicy::ReaderPolicy(unsigned fixedReaders, unsigned processors)
    : fixed_(fixedReaders > 0), fewest_(fixed_ ? fixedReaders : std::clamp(processors, 1U, kMostReaders)),
      wanted_(fewest_) {}

void ReaderPolicy::AfterFastBatch() {
    if (++fastBatches_ < kFastBatches) {
        return;
    }
    fastBatches_ = 0;
    if (wanted_ > fewest_) {
        --wanted_;
    } else {
        slowDisk_ = false;
    }
}

bool ReaderPolicy::AfterSlowBatch(bool moreToRead) {
    fastBatches_ = 0;
    slowDisk_ = true;
    if (fixed_ || !moreToRead) {
        return false;
    }
    wanted_ = std::min(wanted_ + 1, kMostReaders);
    return true;
}

} // namespace tunedex
