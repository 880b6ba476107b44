// The two passes over the folder setting: count the MP3 files, then collect one record per file.
#pragma once

#include "FolderSetting.h"
#include "MP3Info.h"
#include "RunMonitor.h"
#include "RunTotals.h"
#include "TrackTable.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tunedex {

// Receives errors that do not end the run.
class ErrorReporter {
  public:
    ErrorReporter() = default;
    ErrorReporter(const ErrorReporter&) = delete;
    ErrorReporter& operator=(const ErrorReporter&) = delete;
    virtual ~ErrorReporter() = default;

    // `errorTemplate` contains the placeholders %D (folder), %F (file), %N and %S (error number and text),
    // and "\n" as two characters; the placeholder of an empty folder or file is not replaced. May raise the
    // error of a log that cannot be written.
    virtual void Report(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                        const RunTimeError& error) = 0;
};

enum class ScanMode { Count, Collect };

// After a folder or file that cannot be read.
enum class WalkErrors { EndTheWalk, Skip };

class FolderScanner {
  public:
    // `readers`: number of reader threads, as for TrackQueue.
    FolderScanner(RunTotals& totals, TrackTable& table, RunMonitor& monitor, ErrorReporter& reporter,
                  ReadOptions options, unsigned readers = 0, WalkErrors walkErrors = WalkErrors::EndTheWalk)
        : totals_(totals), table_(table), monitor_(monitor), reporter_(reporter),
          options_(std::move(options)), readers_(readers), walkErrors_(walkErrors) {}

    // Scans a folder setting: one folder, or a multi-folder value. Collecting stores at most FoundCount
    // records. An error in the walk is reported and ends the walk; records stored before it are kept. With
    // WalkErrors::Skip the walk goes on, and what is in `totals.Unread` already is not reported again.
    // Returns true if the user aborted.
    bool ScanFolders(ScanMode mode, std::string_view folderValue, bool recurse);

  private:
    bool CountTracks(const std::vector<StartFolder>& starts, bool recurse);
    bool CollectTracks(const std::vector<StartFolder>& starts, bool recurse);
    RunTotals& totals_;
    TrackTable& table_;
    RunMonitor& monitor_;
    ErrorReporter& reporter_;
    ReadOptions options_;
    unsigned readers_;
    WalkErrors walkErrors_;
};

} // namespace tunedex
