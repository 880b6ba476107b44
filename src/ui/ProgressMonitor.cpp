#include "ProgressMonitor.h"

#include "CoreText.h"
#include "PlayTime.h"
#include "QtText.h"
#include "RunRate.h"
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
    found_ = 0;
    nextTurn_ = {};
}

void ProgressMonitor::SetStatus(std::string_view text) {
    counted_ = false;
    found_ = 0;
    phaseStart_ = SteadyClock::now();
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

void ProgressMonitor::SetFound(std::int32_t count) {
    found_ = count;
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

QString ProgressMonitor::Details() const {
    if (found_ > 0) {
        return found_ == 1 ? tr("1 file found") : tr("%1 files found", nullptr, found_).arg(found_);
    }
    const auto elapsed =
        std::chrono::duration_cast<std::chrono::milliseconds>(SteadyClock::now() - phaseStart_);
    const std::optional<RunRate> rate = counted_ ? RateOf(count_, total_, elapsed) : std::nullopt;
    return rate ? tr("%1 files a second, %2 left", nullptr, static_cast<int>(rate->filesPerSecond))
                      .arg(rate->filesPerSecond)
                      .arg(ToQt(MinutesAndSeconds(rate->secondsLeft)))
                : QString();
}

QString ProgressMonitor::ShownStatus() const {
    return counted_ ? tunedex::ShownStatus(before_, count_, total_, after_) : ShownText(status_);
}

void ProgressMonitor::Paint() {
    changed_ = false;
    if (window_ != nullptr) {
        const bool searching = maximum_ == 0 && !status_.empty();
        window_->Display({.status = ShownStatus(),
                          .details = Details(),
                          .maximum = maximum_,
                          .position = position_,
                          .busy = searching});
    }
}

} // namespace tunedex
