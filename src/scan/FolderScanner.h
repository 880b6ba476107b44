// The two passes over the folders: counting the MP3 files, then collecting a record of each.
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

// Where errors go that do not end the run.
class ErrorReporter {
  public:
    ErrorReporter() = default;
    ErrorReporter(const ErrorReporter&) = delete;
    ErrorReporter& operator=(const ErrorReporter&) = delete;
    virtual ~ErrorReporter() = default;

    // `errorTemplate` holds the placeholders %D (folder), %F (file), %N and %S (the error), and "\n" as two
    // characters; an empty folder or file leaves its placeholder. May raise the error of a log that cannot be
    // written.
    virtual void Report(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                        const RunTimeError& error) = 0;
};

enum class ScanMode { Count, Collect };

class FolderScanner {
  public:
    // `readers`: see TrackQueue.
    FolderScanner(RunTotals& totals, TrackTable& table, RunMonitor& monitor, ErrorReporter& reporter,
                  ReadOptions options, unsigned readers = 0)
        : totals_(totals), table_(table), monitor_(monitor), reporter_(reporter),
          options_(std::move(options)), readers_(readers) {}

    // Walks a folder setting: one folder, or a multi-folder value. Collecting stores no more records than the
    // counting pass found files. An error in the walk is reported and ends it; the records so far stay.
    // Returns true when the user aborted.
    bool ScanFolders(ScanMode mode, std::string_view folderValue, bool recurse);

  private:
    bool CountTracks(const std::vector<StartFolder>& starts, bool recurse);
    bool CollectTracks(const std::vector<StartFolder>& starts, bool recurse);
    void ReportWalkError(const std::string& folder, const RunTimeError& error);

    RunTotals& totals_;
    TrackTable& table_;
    RunMonitor& monitor_;
    ErrorReporter& reporter_;
    ReadOptions options_;
    unsigned readers_;
};

} // namespace tunedex
