// Reading many files at once without anyone noticing: files go in one after the other and come out as
// readings in the same order, whoever read them and whenever.
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

// One file on its way through the queue.
struct QueuedTrack {
    std::shared_ptr<OpenFolder> folder;
    TrackReading reading;                // its track's FullPath is the folder's path and the file's name
    std::optional<RunTimeError> failure; // the file's size could not be read: there is no track
};

// Reads the track's file.
void ReadQueuedTrack(QueuedTrack& track, const ReadOptions& options);

// What a queue runs on; tests replace it.
struct QueueMachine {
    // 0: unknown.
    unsigned processors = std::thread::hardware_concurrency();
    // Reads one file into the track, which comes with its folder and its FullPath. Several threads call it.
    std::function<void(QueuedTrack&, const ReadOptions&)> reader = ReadQueuedTrack;
};

class TrackQueue {
  public:
    // Takes what has been read, on the thread that uses the queue. What it throws leaves the queue's
    // functions, and the queue takes and gives nothing more.
    using Receiver = std::function<void(QueuedTrack&)>;
    // Asked now and then while the queue waits or reads a long file on the caller's thread; true ends that,
    // and the queue takes and gives nothing more. Readers end a long file when the queue is destroyed.
    using StopTest = tunedex::StopTest;

    // `readers` is how many threads read: 1 reads on the caller's own thread, 0 leaves it to ReaderPolicy.
    TrackQueue(unsigned readers, ReadOptions options, Receiver receiver, StopTest stopTest,
               QueueMachine machine = {});
    TrackQueue(const TrackQueue&) = delete;
    TrackQueue& operator=(const TrackQueue&) = delete;
    // Waits for the readers; what has not been received is dropped.
    ~TrackQueue();

    // Queues a file; may hand earlier readings to the receiver, and waits while too many files are in flight.
    // Returns false when the stop test ended a wait.
    bool Submit(const std::shared_ptr<OpenFolder>& folder, const char* name);
    // Hands all that is in flight to the receiver. Returns false when the stop test ended a wait.
    bool Drain();
    // Whether anything is in flight.
    bool Empty() const { return batches_.empty() && filling_ == nullptr; }

  private:
    // Files change hands in batches, so that handing them over costs next to nothing.
    static constexpr std::size_t kBatchFiles = 16;

    struct Batch {
        std::span<QueuedTrack> Tracks() { return std::span(tracks).first(count); }

        std::array<QueuedTrack, kBatchFiles> tracks;
        std::size_t count = 0;
        std::exception_ptr fault; // what no reading of a file should throw: out of memory
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
    // Stopped: the stop test said so. Failed: the receiver threw. In both the queue takes and gives nothing
    // more.
    enum class State { Running, Stopped, Failed };
    State state_ = State::Running;

    // The caller's side.
    std::unique_ptr<Batch> filling_;
    std::deque<std::unique_ptr<Batch>> batches_; // published, in order
    std::vector<std::unique_ptr<Batch>> spare_;  // received; the next files take over their texts' memory

    bool haveReaders_ = false; // readers_ itself grows under the readers' hands

    // Shared with the readers, under the mutex.
    std::mutex mutex_;
    std::condition_variable work_;
    std::condition_variable finished_;
    std::deque<Batch*> unread_;
    std::vector<std::thread> readers_;
    unsigned idle_ = 0;
    ReaderPolicy policy_;
    std::atomic<bool> slowDisk_ = false; // the policy's, read between batches without the mutex
    std::atomic<bool> stopping_ = false; // read between files too, so that nobody waits for a batch to end
    bool callerWaits_ = false;
};

} // namespace tunedex
