#include "ProgressMonitor.h"

#include "QtText.h"
#include "frmProgress.h"

#include <QCoreApplication>

#include <algorithm>

namespace tunedex {
namespace {

using namespace std::chrono_literals;

// Paint and process events about 30 times a second, half the cost of a screen's 60. If that is slow (a remote
// display) the pause grows to 19 times its duration, which limits the window to 5 % of the run's time, but to
// at most 100 ms, the limit for reacting to Abort.
constexpr auto kPause = 33ms;
constexpr auto kLongestPause = 100ms;
constexpr int kShare = 19;

} // namespace

void ProgressMonitor::SetWindow(frmProgress* window) {
    window_ = window;
    counted_ = false;
    status_.clear();
    maximum_ = 0;
    position_ = 0;
    nextTurn_ = {};
}

void ProgressMonitor::SetStatus(std::string_view text) {
    counted_ = false;
    status_ = text;
    Paint();
}

void ProgressMonitor::SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                                       std::string_view after) {
    counted_ = true;
    before_ = before;
    after_ = after;
    count_ = count;
    total_ = total;
    changed_ = true;
}

void ProgressMonitor::SetMaximum(std::int32_t maximum) {
    maximum_ = maximum;
    changed_ = true;
}

void ProgressMonitor::SetPosition(std::int32_t position) {
    position_ = position;
    changed_ = true;
}

bool ProgressMonitor::AbortRequested() {
    const SteadyClock::time_point start = SteadyClock::now();
    if (start >= nextTurn_) {
        if (changed_) {
            Paint();
        }
        QCoreApplication::processEvents();
        const SteadyClock::time_point end = SteadyClock::now();
        nextTurn_ = end + std::clamp<SteadyClock::duration>((end - start) * kShare, kPause, kLongestPause);
    }
    return application_.abortRequested;
}

std::string ProgressMonitor::StatusText() const {
    if (!counted_) {
        return status_;
    }
    return std::string(before_) + std::to_string(count_) + "/" + std::to_string(total_) + std::string(after_);
}

void ProgressMonitor::Paint() {
    changed_ = false;
    if (window_ != nullptr) {
        window_->Display(ToQtDisplay(StatusText()), maximum_, position_);
    }
}

} // namespace tunedex
