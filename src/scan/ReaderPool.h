// Reads batches of files on worker threads, as many as ReaderPolicy wants.
#pragma once

#include "ReaderPolicy.h"
#include "StopTest.h"
#include "TrackBatch.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <span>
#include <stop_token>
#include <thread>
#include <vector>

namespace tunedex {

class ReadMeter;

// All functions are called on one thread, which is not one of the readers.
class ReaderPool {
  public:
    // `readers` and `processors`: as for ReaderPolicy. `options.stop` is not used.
    ReaderPool(unsigned readers, unsigned processors, TrackReader reader, ReadOptions options);
    ReaderPool(const ReaderPool&) = delete;
    ReaderPool& operator=(const ReaderPool&) = delete;
    // Ends the files being read and joins the readers.
    ~ReaderPool();

    // Queues a batch, which must exist until it has been read. The first call starts readers. Returns false,
    // without queueing the batch, if no thread could be started.
    bool Add(TrackBatch& batch);
    bool HasRead(const TrackBatch& batch);
    // Blocks until the batch has been read. Returns false if the stop test, which is polled, ends the wait.
    bool WaitFor(const TrackBatch& batch, const StopTest& stopTest);

  private:
    // Consecutive files of one batch, taken by one reader.
    struct Share {
        TrackBatch* batch;
        std::span<QueuedTrack> tracks;
        ReadAhead readAhead;
    };

    void StartFirstReaders();
    bool StartReader();
    void ReadLoop();
    Share Take();
    std::exception_ptr Read(const Share& share, ReadOptions& options, ReadMeter& meter);
    void Adapt(const ReadTiming& timing);
    void Finish(const Share& share, std::exception_ptr fault);
    unsigned Busy() const { return static_cast<unsigned>(readers_.size()) - idle_; }
    bool MayTake() const { return !unread_.empty() && Busy() < policy_.Wanted(); }

    const TrackReader reader_;
    const ReadOptions options_;
    std::stop_source stop_;
    bool haveReaders_ = false; // readers_ itself is changed by readers

    // Guarded by mutex_.
    std::mutex mutex_;
    std::condition_variable_any work_; // there may be files to take
    std::condition_variable read_;     // *awaited_ has been read
    const TrackBatch* awaited_ = nullptr;
    std::deque<TrackBatch*> unread_; // batches with files to take
    unsigned idle_ = 0;
    ReaderPolicy policy_;
    std::vector<std::jthread> readers_; // last member: they use the others
};

} // namespace tunedex
