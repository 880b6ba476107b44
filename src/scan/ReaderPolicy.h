// Decides how many threads read files at the same time: one per processor, more while they block on disk.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace tunedex {

// What one reader measured while it read some files.
struct ReadTiming {
    std::size_t files = 0;
    std::chrono::nanoseconds elapsed{};
    std::int64_t waits = 0; // voluntary context switches
};

// A pure function of the timings reported to it: no threads, no clock. Not synchronised.
class ReaderPolicy {
  public:
    static constexpr unsigned kMostReaders = 64;
    // Files per batch, the unit in which files are queued and delivered.
    static constexpr std::size_t kBatchFiles = 16;
    // Files that a reader takes at a time while readers block on disk: few, so that all readers have some.
    static constexpr std::size_t kSlowFiles = 2;
    static constexpr std::size_t kMostBatches = 128;
    // Folders of files in flight. Each holds a file descriptor, as does each reader; the usual limit per
    // process is 1024, of which folders and readers hold at most one part in kPartOfDescriptors each.
    static constexpr std::size_t kMostOpenFolders = 128;
    static constexpr std::size_t kPartOfDescriptors = 4;
    // A reader reports at least this often while it reads.
    static constexpr std::chrono::microseconds kReportInterval{1000};
    // Reading is slow if a file takes this long on average and one in kFilesPerWait makes its reader switch
    // voluntarily. By time alone, a busy CPU looks like a slow disk, and more readers would make it busier.
    static constexpr std::chrono::microseconds kSlowFile{100};
    static constexpr std::int64_t kFilesPerWait = 4;
    // Consecutive fast timings after which one reader fewer is wanted.
    static constexpr unsigned kFastTimings = 16;

    // `fixedReaders` other than 0 is kept as it is. With 0 the policy starts with one reader per processor;
    // `processors` 0 means unknown. It wants at most `mostReaders` then.
    ReaderPolicy(unsigned fixedReaders, unsigned processors, unsigned mostReaders = kMostReaders);

    // Readers that may read at the same time.
    unsigned Wanted() const { return wanted_; }
    // Whether readers block on disk.
    bool SlowDisk() const { return slowDisk_; }
    // Files that a reader takes at a time.
    std::size_t FilesAtATime() const { return slowDisk_ ? kSlowFiles : kBatchFiles; }

    // One reader more after each slow timing, up to the limit, if `moreToRead`; one fewer after
    // kFastTimings. Returns whether to wake or start a reader.
    bool Report(const ReadTiming& timing, bool moreToRead);

  private:
    bool AfterSlow(bool moreToRead);
    void AfterFast();

    bool fixed_;
    unsigned most_;
    unsigned fewest_;
    unsigned wanted_;
    unsigned fastTimings_ = 0; // since the last slow one
    bool slowDisk_ = false;
};

} // namespace tunedex
