#include "DiskWaits.h"

#include <sys/resource.h>

namespace tunedex {

std::int64_t WaitsOfThread() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

bool WaitDetector::AfterOpen(std::chrono::nanoseconds elapsed) {
    slow_ += elapsed >= kSlowOpen ? 1 : 0;
    if (++folders_ < kFolders) {
        return false;
    }
    const bool many = slow_ >= kMany;
    folders_ = slow_ = 0;
    return many;
}

} // namespace tunedex
