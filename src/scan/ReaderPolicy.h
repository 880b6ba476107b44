// How many threads read files at the same time: one for each processor, more of them while they wait for the
// disk.
#pragma once

namespace tunedex {

// Knows nothing of threads or clocks: it is told how each batch went. Not synchronised.
class ReaderPolicy {
  public:
    static constexpr unsigned kMostReaders = 32;
    // After this many batches from memory, one after the other, there is one reader too many.
    static constexpr unsigned kFastBatches = 16;

    // `fixedReaders` 0 begins with one reader for each of `processors`, of which 0 means unknown; any other
    // number stays as it is.
    ReaderPolicy(unsigned fixedReaders, unsigned processors);

    // How many may read at the same time.
    unsigned Wanted() const { return wanted_; }
    // Whether readers have to wait for the disk.
    bool SlowDisk() const { return slowDisk_; }

    // After a batch from the page cache: one reader fewer after many of them.
    void AfterFastBatch();
    // After a batch that had to be waited for: one reader more, up to kMostReaders, if `moreToRead`. Returns
    // whether another reader should begin, woken or started.
    bool AfterSlowBatch(bool moreToRead);

  private:
    bool fixed_;
    unsigned fewest_;
    unsigned wanted_;
    unsigned fastBatches_ = 0; // since the last slow one
    bool slowDisk_ = false;
};

} // namespace tunedex
