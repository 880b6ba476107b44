#include "Clock.h"

#include <thread>

namespace tunedex {

std::tm SystemClock::LocalTime() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

void SystemClock::Sleep(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

} // namespace tunedex
