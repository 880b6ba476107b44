#include "FolderScanner.h"

#include "FolderWalk.h"
#include "Numbers.h"
#include "TrackQueue.h"

#include <functional>
#include <optional>
#include <utility>

namespace tunedex {

namespace {

constexpr std::string_view kWalkErrorTemplate = R"(scanning the directory: \n\n%D\n\n%N: %S)";
constexpr std::string_view kDecodeErrorTemplate = R"(decoding the headers of: \n\n%F)";

// A file whose size cannot be read and which ends the walk.
struct FileFailure {
    RunTimeError error;
    std::string folder;
};

// Reports and counts what the walk cannot read.
class WalkReports {
  public:
    WalkReports(UnreadPaths& unread, ErrorReporter& reporter, WalkErrors walkErrors)
        : unread_(unread), reporter_(reporter), walkErrors_(walkErrors) {}

    // Of the error that ends a walk.
    void Report(const std::string& folder, const RunTimeError& error) {
        // Required: only this message shows the folder without its separator. Do not 'fix'.
        reporter_.Report(kWalkErrorTemplate, "", WithoutSeparator(folder, PathStyle::Native()), error);
    }
    // Counts a folder, or a name in it, and reports it if the walk goes on without it.
    bool Skips(UnreadKind kind, const std::string& folder, std::string_view name, const RunTimeError& error) {
        const bool isNew = unread_.Add(kind, folder + std::string(name));
        if (walkErrors_ == WalkErrors::Skip && isNew) {
            Report(folder, error);
        }
        return walkErrors_ == WalkErrors::Skip;
    }

  private:
    UnreadPaths& unread_;
    ErrorReporter& reporter_;
    WalkErrors walkErrors_;
};

class CountingVisitor final : public WalkVisitor {
  public:
    CountingVisitor(RunTotals& totals, RunMonitor& monitor, WalkReports& reports)
        : totals_(totals), monitor_(monitor), reports_(reports) {}

    void OnFile(const std::shared_ptr<OpenFolder>& /*folder*/, const char* /*name*/) override {
        totals_.FoundCount = CheckedAdd(totals_.FoundCount, 1);
        monitor_.SetFound(totals_.FoundCount);
    }
    bool AfterEntry() override { return !monitor_.AbortRequested(); }
    bool SkipsUnread(UnreadKind kind, const std::string& folder, const char* name,
                     const RunTimeError& error) override {
        return reports_.Skips(kind, folder, name, error);
    }
    bool ReleaseFolders() override { return false; }

  private:
    RunTotals& totals_;
    RunMonitor& monitor_;
    WalkReports& reports_;
};

class CollectingVisitor final : public WalkVisitor {
  public:
    CollectingVisitor(RunTotals& totals, TrackTable& table, RunMonitor& monitor, ErrorReporter& reporter,
                      WalkReports& reports, ReadOptions options, unsigned readers)
        : totals_(totals), table_(table), monitor_(monitor), reporter_(reporter), reports_(reports),
          queue_(
              readers, std::move(options), [this](QueuedTrack& track) { Take(track); },
              [this] { return monitor_.AbortRequested(); }) {}

    void OnFile(const std::shared_ptr<OpenFolder>& folder, const char* name) override {
        // Deliberate: files that appear after the counting pass are skipped. The table is sized for
        // FoundCount records.
        if (submitted_ < totals_.FoundCount) {
            ++submitted_;
            aborted_ = !queue_.Submit(folder, name) || aborted_;
        }
    }
    bool AfterEntry() override { return !aborted_ && !monitor_.AbortRequested(); }
    bool SkipsUnread(UnreadKind kind, const std::string& folder, const char* name,
                     const RunTimeError& error) override {
        // A failed queue stores nothing more: the error may be its own, and it ends the walk in any case.
        return !failed_ && reports_.Skips(kind, folder, name, error);
    }
    bool ReleaseFolders() override {
        const bool held = !queue_.Empty();
        aborted_ = !queue_.Drain() || aborted_;
        return held;
    }
    // Stores the tracks in flight. Returns false if the user aborts, even at the last of them.
    bool Finish() { return queue_.Drain(); }

  private:
    // An exception leaves the queue failed.
    void Take(QueuedTrack& queued) {
        failed_ = true;
        if (!queued.failure) {
            Store(queued);
        } else if (!reports_.Skips(UnreadKind::File, queued.folder->Path(), NameOf(queued),
                                   *queued.failure)) {
            throw FileFailure{*queued.failure, queued.folder->Path()};
        }
        failed_ = false;
    }
    static std::string_view NameOf(const QueuedTrack& queued) {
        return std::string_view(queued.reading.track.FullPath).substr(queued.folder->Path().size());
    }
    void Store(QueuedTrack& queued) {
        ++totals_.StoredCount;
        TrackReading& reading = queued.reading;
        reading.track.BaseFolder = queued.folder->BaseFolder();
        totals_.TotalBytes += reading.track.FileSize;
        monitor_.SetPosition(totals_.StoredCount);
        monitor_.SetCountedStatus("Retrieving MPEG/ID3 information (", totals_.StoredCount,
                                  totals_.FoundCount, ")...");
        if (reading.track.TagType == kNoTag) {
            ++totals_.UntaggedCount;
        }
        table_.Append(reading.track);
        CountReading(reading);
        if (reading.decodeError) {
            reporter_.Report(kDecodeErrorTemplate, reading.track.FullPath, "", *reading.decodeError);
        } else {
            totals_.TotalSeconds += reading.track.Seconds;
        }
    }

    void CountReading(const TrackReading& reading) {
        totals_.ModernTagCount += reading.modernTag ? 1 : 0;
        if (reading.unread) {
            totals_.Unread.Add(UnreadKind::File, reading.track.FullPath);
        }
    }

    RunTotals& totals_;
    TrackTable& table_;
    RunMonitor& monitor_;
    ErrorReporter& reporter_;
    WalkReports& reports_;
    std::int32_t submitted_ = 0;
    bool aborted_ = false;
    bool failed_ = false;
    TrackQueue queue_; // last member: its readers must end before the members they use
};

// Both passes may block: a network drive asks its server again at each open.
FolderWalk::Preload PreloadFor(unsigned readers) {
    return readers == 1 ? FolderWalk::Preload::Never : FolderWalk::Preload::WhenWaiting;
}

bool WalkAll(const std::vector<StartFolder>& starts, bool recurse, FolderWalk& walk, WalkVisitor& visitor) {
    for (const StartFolder& start : starts) {
        if (!walk.Run(start, recurse, visitor)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool FolderScanner::ScanFolders(ScanMode mode, std::string_view folderValue, bool recurse) {
    const std::vector<StartFolder> starts = StartFolders(folderValue, PathStyle::Native());
    return mode == ScanMode::Count ? CountTracks(starts, recurse) : CollectTracks(starts, recurse);
}

bool FolderScanner::CountTracks(const std::vector<StartFolder>& starts, bool recurse) {
    totals_.FoundCount = 0;
    FolderWalk walk(PreloadFor(readers_));
    WalkReports reports(totals_.Unread, reporter_, walkErrors_);
    CountingVisitor visitor(totals_, monitor_, reports);
    try {
        return !WalkAll(starts, recurse, walk, visitor);
    } catch (const RunTimeError& error) {
        reports.Report(walk.CurrentFolder(), error);
    }
    return false;
}

bool FolderScanner::CollectTracks(const std::vector<StartFolder>& starts, bool recurse) {
    totals_.StoredCount = 0;
    FolderWalk walk(PreloadFor(readers_));
    ReadOptions options = options_;
    options.longTexts = &table_.LongTexts();
    WalkReports reports(totals_.Unread, reporter_, walkErrors_);
    CollectingVisitor visitor(totals_, table_, monitor_, reporter_, reports, std::move(options), readers_);
    bool aborted = false;
    std::optional<FileFailure> failure;
    // Files submitted before a walk error are stored before it is reported; if one of them fails, its error
    // is reported instead.
    for (const auto& step : {std::function<bool()>([&] { return WalkAll(starts, recurse, walk, visitor); }),
                             std::function<bool()>([&] { return visitor.Finish(); })}) {
        try {
            aborted = aborted || !step();
        } catch (const FileFailure& fileFailure) {
            failure = fileFailure;
        } catch (const RunTimeError& error) {
            failure = FileFailure{error, walk.CurrentFolder()};
        }
    }
    if (failure && !aborted) {
        reports.Report(failure->folder, failure->error);
    }
    return aborted;
}

} // namespace tunedex
