#include "DiskWaits.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tunedex {
namespace {

void Block() {
    std::this_thread::sleep_for(std::chrono::microseconds(100));
}

// Reports that many folders, the first few of which are slow. Returns how often the detector said so.
int Detected(WaitDetector& detector, int folders, int slow) {
    int detected = 0;
    for (int folder = 0; folder < folders; ++folder) {
        const bool isSlow = folder < slow;
        detected +=
            detector.AfterOpen(WaitDetector::kSlowOpen - std::chrono::nanoseconds(isSlow ? 0 : 1)) ? 1 : 0;
    }
    return detected;
}

TEST(WaitsOfThread, CountsBlockingCallsOfTheCallingThreadOnly) {
    const std::int64_t before = WaitsOfThread();
    Block();
    const std::int64_t after = WaitsOfThread();
    EXPECT_GE(after - before, 1);
    std::thread([] {
        for (int i = 0; i < 50; ++i) {
            Block();
        }
    }).join();
    EXPECT_LT(WaitsOfThread() - after, 50); // the join may block
}

TEST(WaitDetector, DetectsOncePerWindowThatManyFoldersAreSlow) {
    WaitDetector detector;
    EXPECT_EQ(Detected(detector, WaitDetector::kFolders - 1, WaitDetector::kFolders), 0) << "no full window";
    EXPECT_EQ(Detected(detector, 1, 0), 1);
    EXPECT_EQ(Detected(detector, 3 * WaitDetector::kFolders, 3 * WaitDetector::kFolders), 3);
}

TEST(WaitDetector, IgnoresAFewSlowFolders) {
    WaitDetector detector;
    EXPECT_EQ(Detected(detector, WaitDetector::kFolders, WaitDetector::kMany - 1), 0);
    EXPECT_EQ(Detected(detector, WaitDetector::kFolders, WaitDetector::kMany), 1);
    EXPECT_EQ(Detected(detector, 5 * WaitDetector::kFolders, 0), 0);
}

} // namespace
} // namespace tunedex
