// Reads many files in parallel and delivers the readings in the order of submission.
#pragma once

#include "FolderWalk.h"
#include "MP3Info.h"
#include "ReaderPolicy.h"

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <thread>
#include <vector>

namespace tunedex {

// One file in the queue.
struct QueuedTrack {
    std::shared_ptr<OpenFolder> folder;
    TrackReading reading;                // its track's FullPath is set by Submit
    std::optional<RunTimeError> failure; // the file's size cannot be read: there is no track
};

void ReadQueuedTrack(QueuedTrack& track, const ReadOptions& options);

// The environment of a queue; tests replace it.
struct QueueMachine {
    // 0: unknown.
    unsigned processors = std::thread::hardware_concurrency();
    // Reads one file into a track whose folder and FullPath are set. Called on several threads.
    std::function<void(QueuedTrack&, const ReadOptions&)> reader = ReadQueuedTrack;
};

class TrackQueue {
  public:
    // Receives the readings, on the thread that uses the queue. An exception from it passes through the
    // queue's functions; the queue then accepts and delivers nothing more.
    using Receiver = std::function<void(QueuedTrack&)>;
    // Polled while the queue waits or reads a long file on the caller's thread. Once it returns true the
    // queue accepts and delivers nothing more. Destroying the queue ends long files too.
    using StopTest = tunedex::StopTest;

    // `readers`: number of reader threads; 1 reads on the caller's thread, 0 leaves the number to
    // ReaderPolicy.
    TrackQueue(unsigned readers, ReadOptions options, Receiver receiver, StopTest stopTest,
               QueueMachine machine = {});
    TrackQueue(const TrackQueue&) = delete;
    TrackQueue& operator=(const TrackQueue&) = delete;
    // Joins the readers; readings that were not delivered are dropped.
    ~TrackQueue();

    // Submits a file. May deliver earlier readings, and blocks while too many files are in flight. Returns
    // false if the stop test ended a wait.
    bool Submit(const std::shared_ptr<OpenFolder>& folder, const char* name);
    // Delivers all readings in flight. Returns false if the stop test ended a wait.
    bool Drain();
    // Whether no file is in flight.
    bool Empty() const { return batches_.empty() && filling_ == nullptr; }

  private:
    // Files are passed to readers in batches, so that locking costs little per file.
    static constexpr std::size_t kBatchFiles = 16;

    struct Batch {
        std::span<QueuedTrack> Tracks() { return std::span(tracks).first(count); }

        std::array<QueuedTrack, kBatchFiles> tracks;
        std::size_t count = 0;
        std::exception_ptr fault; // an exception that is not a RunTimeError: out of memory
        bool done = false;
    };

    std::unique_ptr<Batch> EmptyBatch();
    void Recycle(std::unique_ptr<Batch> batch);
    bool Publish();
    bool ReceiveFront(bool wait);
    bool WaitFor(const Batch& batch);
    void Receive(Batch& batch);
    void ReadLoop();
    void ReadBatch(Batch& batch, const StopTest& stop) const;
    void StartFirstReaders();
    bool StartReader();
    unsigned Busy() const { return static_cast<unsigned>(readers_.size()) - idle_; }
    void Adapt(bool slow);
    void StopReaders();

    const unsigned fixedReaders_;
    const int mostOpenFolders_;
    const ReadOptions options_;
    const Receiver receiver_;
    const StopTest stopTest_;
    const std::function<void(QueuedTrack&, const ReadOptions&)> reader_;
    // Stopped: by the stop test. Failed: the receiver threw. Both are final.
    enum class State { Running, Stopped, Failed };
    State state_ = State::Running;

    // Used by the caller's thread only.
    std::unique_ptr<Batch> filling_;
    std::deque<std::unique_ptr<Batch>> batches_; // published, in order
    std::vector<std::unique_ptr<Batch>> spare_;  // delivered; reused with the memory of their texts

    bool haveReaders_ = false; // readers_ itself is changed by readers

    // Guarded by mutex_.
    std::mutex mutex_;
    std::condition_variable work_;
    std::condition_variable finished_;
    std::deque<Batch*> unread_;
    std::vector<std::thread> readers_;
    unsigned idle_ = 0;
    ReaderPolicy policy_;
    std::atomic<bool> slowDisk_ = false; // copy of the policy's, read without the mutex
    std::atomic<bool> stopping_ = false; // polled between files, so that a batch ends early
    bool callerWaits_ = false;
};

} // namespace tunedex
