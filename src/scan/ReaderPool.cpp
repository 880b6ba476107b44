#include "ReaderPool.h"

#include "DescriptorShare.h"
#include "DiskWaits.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

namespace tunedex {

namespace {

constexpr std::chrono::milliseconds kStopTestInterval{20};

} // namespace

// Measures the reading of one thread since the last timing.
class ReadMeter {
  public:
    void CountFile() {
        ++files_;
        now_ = Clock::now();
    }
    bool Due() const { return now_ - begun_ >= ReaderPolicy::kReportInterval; }
    ReadTiming Take() {
        const std::int64_t waits = WaitsOfThread();
        const ReadTiming timing{files_, now_ - begun_, waits - waitsBefore_};
        files_ = 0;
        begun_ = now_;
        waitsBefore_ = waits;
        return timing;
    }

  private:
    using Clock = std::chrono::steady_clock;

    std::size_t files_ = 0;
    Clock::time_point begun_ = Clock::now();
    Clock::time_point now_ = begun_;
    std::int64_t waitsBefore_ = WaitsOfThread();
};

ReaderPool::ReaderPool(unsigned readers, unsigned processors, TrackReader reader, ReadOptions options)
    : reader_(std::move(reader)), options_(std::move(options)),
      policy_(readers, processors,
              static_cast<unsigned>(
                  DescriptorShare(ReaderPolicy::kMostReaders, ReaderPolicy::kPartOfDescriptors))) {}

ReaderPool::~ReaderPool() {
    const std::lock_guard lock(mutex_); // no reader starts another one from now on
    stop_.request_stop();
}

bool ReaderPool::Add(TrackBatch& batch) {
    if (!haveReaders_) {
        StartFirstReaders();
        if (!haveReaders_) {
            return false;
        }
    }
    bool wake = false;
    {
        const std::lock_guard lock(mutex_);
        unread_.push_back(&batch);
        wake = idle_ > 0 && MayTake();
    }
    if (wake) {
        work_.notify_one();
    }
    return true;
}

bool ReaderPool::HasRead(const TrackBatch& batch) {
    const std::lock_guard lock(mutex_);
    return batch.read == batch.count;
}

bool ReaderPool::WaitFor(const TrackBatch& batch, const StopTest& stopTest) {
    std::unique_lock lock(mutex_);
    while (batch.read < batch.count) {
        awaited_ = &batch;
        read_.wait_for(lock, kStopTestInterval, [&] { return batch.read == batch.count; });
        awaited_ = nullptr;
        if (batch.read < batch.count) {
            lock.unlock();
            if (Stops(stopTest)) {
                return false;
            }
            lock.lock();
        }
    }
    return true;
}

void ReaderPool::StartFirstReaders() {
    const std::lock_guard lock(mutex_);
    while (readers_.size() < policy_.Wanted() && StartReader()) {
    }
    haveReaders_ = !readers_.empty();
}

// Requires mutex_. Returns false if no thread can be started.
bool ReaderPool::StartReader() {
    try {
        readers_.emplace_back([this] { ReadLoop(); });
        return true;
    } catch (const std::exception&) { // out of threads or memory
        return false;
    }
}

void ReaderPool::ReadLoop() {
    const std::stop_token stop = stop_.get_token();
    ReadOptions options = options_;
    options.stop = [&stop] { return stop.stop_requested(); };
    std::unique_lock lock(mutex_);
    while (true) {
        ++idle_;
        work_.wait(lock, stop, [this] { return MayTake(); });
        --idle_;
        if (stop.stop_requested()) {
            return;
        }
        const Share share = Take();
        const bool wake = idle_ > 0 && MayTake();
        lock.unlock();
        if (wake) {
            work_.notify_one();
        }
        ReadMeter meter;
        std::exception_ptr fault = Read(share, options, meter);
        const ReadTiming timing = meter.Take();
        lock.lock();
        Adapt(timing);
        Finish(share, std::move(fault));
    }
}

// Requires mutex_.
ReaderPool::Share ReaderPool::Take() {
    TrackBatch& batch = *unread_.front();
    const std::size_t count = std::min(policy_.FilesAtATime(), batch.count - batch.taken);
    const Share share{&batch, batch.Tracks().subspan(batch.taken, count),
                      policy_.SlowDisk() ? ReadAhead::Nothing : ReadAhead::AsUsual};
    batch.taken += count;
    if (batch.taken == batch.count) {
        unread_.pop_front();
    }
    return share;
}

std::exception_ptr ReaderPool::Read(const Share& share, ReadOptions& options, ReadMeter& meter) {
    options.readAhead = share.readAhead;
    try {
        for (QueuedTrack& track : share.tracks) {
            if (stop_.stop_requested()) {
                return nullptr; // the rest is not delivered
            }
            reader_(track, options);
            meter.CountFile();
            if (meter.Due()) {
                const ReadTiming timing = meter.Take();
                const std::lock_guard lock(mutex_);
                Adapt(timing);
            }
        }
    } catch (...) {
        return std::current_exception();
    }
    return nullptr;
}

// Requires mutex_. Wakes or starts a reader if the policy wants one more.
void ReaderPool::Adapt(const ReadTiming& timing) {
    if (timing.files == 0 || !policy_.Report(timing, !unread_.empty()) || stop_.stop_requested()) {
        return;
    }
    if (idle_ > 0) {
        work_.notify_one();
    } else if (readers_.size() < policy_.Wanted()) {
        StartReader();
    }
}

// Requires mutex_.
void ReaderPool::Finish(const Share& share, std::exception_ptr fault) {
    TrackBatch& batch = *share.batch;
    if (fault) {
        batch.fault = std::move(fault);
    }
    batch.read += share.tracks.size();
    if (awaited_ == &batch && batch.read == batch.count) {
        read_.notify_one();
    }
}

} // namespace tunedex
