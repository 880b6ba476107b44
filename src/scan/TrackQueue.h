// Reads many files in parallel and delivers the readings in the order of submission.
#pragma once

#include "ReaderPool.h"
#include "TrackBatch.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace tunedex {

// The environment of a queue; tests replace it.
struct QueueMachine {
    // 0: unknown.
    unsigned processors = std::thread::hardware_concurrency();
    TrackReader reader = ReadQueuedTrack;
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

    // Submits a file. May deliver earlier readings, and blocks while too many files are in flight. Returns
    // false if the stop test ended a wait.
    bool Submit(const std::shared_ptr<OpenFolder>& folder, const char* name);
    // Delivers all readings in flight. Returns false if the stop test ended a wait.
    bool Drain();
    // Whether no file is in flight.
    bool Empty() const { return batches_.empty() && filling_ == nullptr; }

  private:
    // Stopped: by the stop test. Failed: the receiver threw. Both are final.
    enum class State { Running, Stopped, Failed };

    QueuedTrack& NextTrack(const std::shared_ptr<OpenFolder>& folder);
    void Publish();
    void ReadHere(TrackBatch& batch) const;
    void DeliverFront();
    void Deliver(TrackBatch& batch);
    void Deliver(QueuedTrack& track);
    bool WaitFor(const TrackBatch& batch);
    bool WaitForAll();
    bool Running() const { return state_ == State::Running; }
    bool Full() const { return batches_.size() >= ReaderPolicy::kMostBatches || folders_ >= mostFolders_; }

    const bool onThisThread_;
    const std::size_t mostFolders_;
    const ReadOptions options_;
    const Receiver receiver_;
    const StopTest stopTest_;
    const TrackReader reader_;
    State state_ = State::Running;

    std::unique_ptr<TrackBatch> filling_;
    std::deque<std::unique_ptr<TrackBatch>> batches_; // published, in order
    std::vector<std::unique_ptr<TrackBatch>> spare_;
    const OpenFolder* latestFolder_ = nullptr;
    std::size_t folders_ = 0; // of files in flight, give or take one
    ReaderPool pool_;         // last member: its readers use the batches
};

} // namespace tunedex
