#include "DiskWaits.h"

#include <sys/resource.h>

namespace tunedex {

std::int64_t WaitsOfThread() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

bool WaitDetector::ManyWaits() {
    constexpr int kFolders = 32;
    constexpr std::int64_t kMany = 12;
    if (++folders_ < kFolders) {
        return false;
    }
    const std::int64_t waits = WaitsOfThread();
    const bool many = waits - waitsBefore_ >= kMany;
    waitsBefore_ = waits;
    folders_ = 0;
    return many;
}

} // namespace tunedex
