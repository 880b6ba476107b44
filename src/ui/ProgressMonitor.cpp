#include "ProgressMonitor.h"

#include "WidgetHelpers.h"
#include "frmProgress.h"

#include <QCoreApplication>

#include <algorithm>

namespace tunedex {
namespace {

using namespace std::chrono_literals;

// About 30 times a second: smooth to the eye, and half the cost of the screen's own pace. Where a turn is
// slow (a display across a network) the pause grows with it, so that the window costs a run at most a
// twentieth of its time, but Abort is answered in good time.
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
