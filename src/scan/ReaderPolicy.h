// Decides how many threads read files at the same time: one per processor, more while they block on disk.
#pragma once

namespace tunedex {

// A pure function of the batches reported to it: no threads, no clock. Not synchronised.
class ReaderPolicy {
  public:
    static constexpr unsigned kMostReaders = 32;
    // Consecutive batches from the page cache after which one reader fewer is wanted.
    static constexpr unsigned kFastBatches = 16;

    // `fixedReaders` other than 0 is kept as it is. With 0 the policy starts with one reader per processor;
    // `processors` 0 means unknown.
    ReaderPolicy(unsigned fixedReaders, unsigned processors);

    // Readers that may read at the same time.
    unsigned Wanted() const { return wanted_; }
    // Whether readers block on disk.
    bool SlowDisk() const { return slowDisk_; }

    // Call after a batch that came from the page cache: one reader fewer after kFastBatches of them.
    void AfterFastBatch();
    // Call after a batch that blocked on disk: one reader more, up to kMostReaders, if `moreToRead`. Returns
    // whether to wake or start one.
    bool AfterSlowBatch(bool moreToRead);

  private:
    bool fixed_;
    unsigned fewest_;
    unsigned wanted_;
    unsigned fastBatches_ = 0; // since the last slow batch
    bool slowDisk_ = false;
};

} // namespace tunedex
