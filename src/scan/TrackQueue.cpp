#include "TrackQueue.h"

#include "DiskWaits.h"

#include <algorithm>
#include <sys/resource.h>

namespace tunedex {

namespace {

constexpr std::size_t kMostBatches = 128;
// Each holds a file descriptor; the usual limit per process is 1024.
constexpr int kMostOpenFolders = 64;
constexpr std::chrono::milliseconds kStopTestInterval{20};
// A batch is slow if its files take this long each and one in four makes its reader switch voluntarily. By
// time alone, a busy CPU looks like a slow disk, and more readers would make it busier.
constexpr std::chrono::microseconds kSlowFile{100};
constexpr std::int64_t kFilesToAWait = 4;

// Open folders must leave descriptors for the files in them, or a reader could wait for ever.
int MostOpenFolders() {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur / 4 >= kMostOpenFolders) {
        return kMostOpenFolders;
    }
    return std::max(1, static_cast<int>(limit.rlim_cur / 4));
}

ReadOptions StoppedBy(ReadOptions options, StopTest stop) {
    options.stop = std::move(stop);
    return options;
}

bool LackedDescriptor(const QueuedTrack& track) {
    const auto lacked = [](const std::optional<RunTimeError>& error) {
        return error && error->Number() == static_cast<int>(ErrorNumber::TooManyFiles);
    };
    return lacked(track.failure) || lacked(track.reading.decodeError);
}

} // namespace

void ReadQueuedTrack(QueuedTrack& track, const ReadOptions& options) {
    track.failure.reset();
    try {
        const char* const name = track.reading.track.FullPath.c_str() + track.folder->Path().size();
        ReadTrackFile(track.folder->Descriptor(), name, options, track.reading);
    } catch (const RunTimeError& error) {
        track.failure = error;
    }
}

TrackQueue::TrackQueue(unsigned readers, ReadOptions options, Receiver receiver, StopTest stopTest,
                       QueueMachine machine)
    : fixedReaders_(readers), mostOpenFolders_(MostOpenFolders()),
      options_(StoppedBy(std::move(options), [this] { return stopTest_(); })), receiver_(std::move(receiver)),
      stopTest_(std::move(stopTest)), reader_(std::move(machine.reader)),
      policy_(readers, machine.processors) {}

TrackQueue::~TrackQueue() {
    StopReaders();
}

void TrackQueue::StopReaders() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        unread_.clear();
    }
    work_.notify_all();
    for (std::thread& reader : readers_) {
        reader.join();
    }
    readers_.clear();
}

bool TrackQueue::Submit(const std::shared_ptr<OpenFolder>& folder, const char* name) {
    if (state_ != State::Running) {
        return state_ != State::Stopped;
    }
    if (!filling_) {
        filling_ = EmptyBatch();
    }
    QueuedTrack& track = filling_->tracks.at(filling_->count++);
    track.folder = folder;
    track.reading.track.FullPath.assign(folder->Path()).append(name);
    if (fixedReaders_ == 1) {
        std::unique_ptr<Batch> single = std::move(filling_);
        reader_(track, options_);
        Receive(*single);
        Recycle(std::move(single));
        return state_ != State::Stopped;
    }
    if (filling_->count < kBatchFiles && OpenFolder::OpenCount() < mostOpenFolders_) {
        return true;
    }
    return Publish();
}

std::unique_ptr<TrackQueue::Batch> TrackQueue::EmptyBatch() {
    if (spare_.empty()) {
        return std::make_unique<Batch>();
    }
    std::unique_ptr<Batch> batch = std::move(spare_.back());
    spare_.pop_back();
    return batch;
}

void TrackQueue::Recycle(std::unique_ptr<Batch> batch) {
    for (QueuedTrack& track : batch->Tracks()) {
        track.folder.reset();
    }
    batch->count = 0;
    batch->done = false;
    spare_.push_back(std::move(batch));
}

bool TrackQueue::Publish() {
    if (!haveReaders_) {
        StartFirstReaders();
    }
    batches_.push_back(std::move(filling_));
    Batch& batch = *batches_.back();
    if (!haveReaders_) {
        ReadBatch(batch, options_.stop); // no thread could be started: read here
        batch.done = true;
    } else {
        bool wake = false;
        {
            const std::lock_guard lock(mutex_);
            unread_.push_back(&batch);
            wake = idle_ > 0 && Busy() < policy_.Wanted();
        }
        if (wake) {
            work_.notify_one();
        }
    }
    while (state_ == State::Running && !batches_.empty() && ReceiveFront(false)) {
    }
    while (state_ == State::Running && !batches_.empty() &&
           (batches_.size() >= kMostBatches || OpenFolder::OpenCount() >= mostOpenFolders_)) {
        ReceiveFront(true);
    }
    return state_ != State::Stopped;
}

bool TrackQueue::Drain() {
    if (filling_ && state_ == State::Running) {
        Publish();
    }
    while (state_ == State::Running && !batches_.empty()) {
        ReceiveFront(true);
    }
    return state_ != State::Stopped;
}

// Delivers the first batch and returns true; without `wait` only if it has been read.
bool TrackQueue::ReceiveFront(bool wait) {
    {
        const std::lock_guard lock(mutex_);
        if (!batches_.front()->done && !wait) {
            return false;
        }
    }
    if (!WaitFor(*batches_.front())) {
        state_ = State::Stopped;
        return false;
    }
    std::unique_ptr<Batch> batch = std::move(batches_.front());
    batches_.pop_front();
    Receive(*batch);
    Recycle(std::move(batch));
    return true;
}

bool TrackQueue::WaitFor(const Batch& batch) {
    std::unique_lock lock(mutex_);
    while (!batch.done) {
        callerWaits_ = true;
        finished_.wait_for(lock, kStopTestInterval, [&] { return batch.done; });
        callerWaits_ = false;
        if (!batch.done) {
            lock.unlock();
            if (stopTest_()) {
                return false;
            }
            lock.lock();
        }
    }
    return true;
}

void TrackQueue::Receive(Batch& batch) {
    try {
        if (batch.fault) {
            std::rethrow_exception(batch.fault);
        }
        for (QueuedTrack& track : batch.Tracks()) {
            if (LackedDescriptor(track)) {
                // Read it again once the readers' files are closed: a single reader would not have run out of
                // descriptors.
                if (!std::all_of(batches_.begin(), batches_.end(),
                                 [this](const auto& other) { return WaitFor(*other); })) {
                    state_ = State::Stopped;
                    return;
                }
                reader_(track, options_);
            }
            if (track.reading.stopped) {
                state_ = State::Stopped;
                return;
            }
            receiver_(track);
            // The caller polls after each file it submits; with several readers it is many files ahead.
            if (fixedReaders_ != 1 && stopTest_()) {
                state_ = State::Stopped;
                return;
            }
        }
    } catch (...) {
        state_ = State::Failed;
        throw;
    }
}

void TrackQueue::StartFirstReaders() {
    const std::lock_guard lock(mutex_);
    while (readers_.size() < policy_.Wanted() && StartReader()) {
    }
    haveReaders_ = !readers_.empty();
}

// Requires mutex_. Returns false if no thread can be started.
bool TrackQueue::StartReader() {
    try {
        readers_.emplace_back([this] { ReadLoop(); });
        return true;
    } catch (const std::exception&) { // out of threads or memory
        return false;
    }
}

void TrackQueue::ReadLoop() {
    std::unique_lock lock(mutex_);
    while (true) {
        ++idle_;
        work_.wait(lock, [this] { return stopping_ || (!unread_.empty() && Busy() < policy_.Wanted()); });
        --idle_;
        if (stopping_) {
            return;
        }
        Batch* const batch = unread_.front();
        unread_.pop_front();
        lock.unlock();
        const auto begun = std::chrono::steady_clock::now();
        const std::int64_t waitsBefore = WaitsOfThread();
        ReadBatch(*batch, [this] { return stopping_.load(); });
        const auto files = static_cast<long>(batch->count);
        const bool slow = std::chrono::steady_clock::now() - begun > kSlowFile * files &&
                          (WaitsOfThread() - waitsBefore) * kFilesToAWait >= files;
        lock.lock();
        batch->done = true;
        if (callerWaits_) {
            finished_.notify_one();
        }
        Adapt(slow);
    }
}

void TrackQueue::ReadBatch(Batch& batch, const StopTest& stop) const {
    ReadOptions options = StoppedBy(options_, stop);
    options.readAhead = slowDisk_ ? ReadAhead::Nothing : ReadAhead::AsUsual;
    try {
        for (QueuedTrack& track : batch.Tracks()) {
            if (stopping_) {
                return; // the rest of the batch is not delivered
            }
            reader_(track, options);
        }
    } catch (...) {
        batch.fault = std::current_exception();
    }
}

// Requires mutex_.
void TrackQueue::Adapt(bool slow) {
    bool begin = false;
    if (slow) {
        begin = policy_.AfterSlowBatch(!stopping_ && !unread_.empty());
    } else {
        policy_.AfterFastBatch();
    }
    slowDisk_ = policy_.SlowDisk();
    if (!begin) {
        return;
    }
    if (idle_ > 0) {
        work_.notify_one();
    } else if (readers_.size() < policy_.Wanted()) {
        StartReader();
    }
}

} // namespace tunedex
