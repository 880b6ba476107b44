#include "ListJob.h"

#include "CodePages.h"
#include "FileSystem.h"
#include "FolderScanner.h"
#include "FolderSetting.h"
#include "Functions.h"
#include "Numbers.h"
#include "OutputLink.h"
#include "OutputList.h"
#include "PageFiles.h"
#include "Path.h"
#include "SortByAlbum.h"
#include "Sorting.h"
#include "Startup.h"

#include <exception>
#include <optional>
#include <string>

namespace tunedex {

namespace {

// One run, with its own table, totals, log and copy of the settings.
class ListRun final : public ErrorReporter {
  public:
    ListRun(Application& application, UserInterface& ui) : application_(application), ui_(ui) {}

    // Returns whether the run may start; if not, the user has been told why.
    bool Validate();
    void Work();
    // After an exception: shows it.
    void Fail(const RunTimeError& error);
    RunOutcome Outcome() const;

    void Report(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                const RunTimeError& error) override {
        ReportError(errorTemplate, file, folder, error, application_, ui_, log_ ? &*log_ : nullptr);
    }

  private:
    bool Refuse(const std::string& text) {
        ShowMessage(ui_, text, kOkExclamation, application_.errorTitle);
        return false;
    }
    bool ValidateInput();
    bool ValidateOutput();
    ReadOptions OptionsOfReaders();
    bool Scan(RunMonitor& monitor, ScanMode mode);
    bool Read(RunMonitor& monitor);
    bool Sort(RunMonitor& monitor);
    bool Write(RunMonitor& monitor);
    void Finish(RunMonitor& monitor);

    Application& application_;
    UserInterface& ui_;
    std::string folderWord_;
    Settings settings_;
    RunTotals totals_;
    TrackTable table_;
    std::optional<CodePage> codePage_; // of tags, in a modern run
    RunMonitor* monitor_ = nullptr;    // set once the progress window is shown
    std::optional<LogFile> log_;
    RunEnd end_ = RunEnd::NotStarted;
    bool partial_ = false;
    std::string failure_;
};

bool ListRun::ValidateInput() {
    Settings& settings = application_.settings;
    const MainFields fields = ui_.Fields();
    folderWord_ = fields.multipleFolders ? "directories" : "directory";
    if (!fields.multipleFolders) {
        if (!FolderExists(fields.inputFolder)) {
            Refuse("The specified directory does not exist!");
            ui_.FocusAndSelect(MainField::InputFolder);
            return false;
        }
        // Required: the setting changes even if a later check refuses the run.
        settings.Directory = fields.inputFolder;
    }
    ui_.TakeControls(settings);
    if (settings.Directory.empty() || settings.Directory == kMultiFolderMark) {
        return Refuse("No input " + folderWord_ + " specified!");
    }
    return true;
}

bool ListRun::ValidateOutput() {
    if (application_.settings.OutputFile.empty()) {
        return Refuse("No output file specified!");
    }
    if (application_.listingStream != kNoStream) {
        return true;
    }
    const std::string outputFile = ui_.Fields().outputFile;
    const std::string folder(FolderPrefixOf(outputFile, PathStyle::Native()));
    if (FolderExists(folder)) {
        const ListingStyle style = StyleOf(application_.settings);
        CheckOutputLink(ListingPath(OutputTypeOf(outputFile, style), outputFile, style));
        return true;
    }
    const int answer =
        ShowMessage(ui_, "The output directory does not exist!\r\n\r\nDo you want to create it?",
                    kYesNoExclamation, application_.errorTitle);
    if (answer != kAnswerYes) {
        ui_.FocusAndSelect(MainField::OutputFile);
        return false;
    }
    CreateFolders(folder);
    return true;
}

bool ListRun::Validate() {
    return ValidateInput() && ValidateOutput();
}

ReadOptions ListRun::OptionsOfReaders() {
    if (settings_.Modern && !codePage_) {
        codePage_.emplace(settings_.TagCodePage.empty() ? kDefaultCodePage : settings_.TagCodePage);
    }
    return {.moveTheArtists = settings_.MoveTheArtists, .modern = codePage_ ? &*codePage_ : nullptr};
}

// One pass over the folders. Returns false on abort.
bool ListRun::Scan(RunMonitor& monitor, ScanMode mode) {
    FolderScanner scanner(totals_, table_, monitor, *this, OptionsOfReaders(), application_.readers,
                          settings_.Modern ? WalkErrors::Skip : WalkErrors::EndTheWalk);
    const bool aborted = scanner.ScanFolders(mode, settings_.Directory, settings_.Recurse);
    if (aborted) {
        ui_.CloseProgress();
    }
    return !aborted;
}

bool ListRun::Read(RunMonitor& monitor) {
    table_ = TrackTable(static_cast<std::size_t>(totals_.FoundCount));
    if (application_.automaticMode) {
        ui_.SetProgressCaption("Tunedex (Automatic Mode)");
    }
    monitor.SetMaximum(totals_.FoundCount);
    monitor.SetStatus("Retrieving MPEG/ID3 information...");
    return Scan(monitor, ScanMode::Collect);
}

bool ListRun::Sort(RunMonitor& monitor) {
    monitor.SetStatus("Sorting information...");
    const bool aborted = settings_.Modern
                             ? SortByAlbum(table_, settings_.SortOrder, *application_.collation, monitor)
                             : SortTracks(table_, settings_.SortOrder, monitor);
    if (aborted) {
        ui_.CloseProgress();
    }
    return !aborted;
}

bool ListRun::Write(RunMonitor& monitor) {
    monitor.SetStatus("Writing information...");
    Listing listing{settings_,          table_, totals_, application_.entities, application_.locale,
                    application_.clock, monitor};
    listing.stream = application_.listingStream;
    if (WriteListing(OutputTypeOf(settings_.OutputFile, StyleOf(settings_)), listing)) {
        partial_ = true;
        ui_.CloseProgress();
        return false;
    }
    end_ = RunEnd::Written;
    return true;
}

void ListRun::Finish(RunMonitor& monitor) {
    if (log_) {
        log_->Close();
    }
    monitor.SetStatus("Operation complete!");
    if (application_.pausesAtEnd) {
        PauseSeconds(1, application_.clock);
    }
    Statistics& statistics = application_.statistics;
    statistics.ListsCreated = CheckedAdd(statistics.ListsCreated, 1);
    statistics.FilesHandled = CheckedAdd(statistics.FilesHandled, totals_.FoundCount);
    ui_.CloseProgress();
    // Required: drops changes made to these settings during the run.
    TakeMainFields(application_.settings, ui_.Fields());
}

void ListRun::Work() {
    settings_ = application_.settings;
    application_.abortRequested = false;
    if (settings_.ErrorLog) {
        log_.emplace(application_.programFolder + std::string(kLogFileName),
                     [this] { return monitor_ != nullptr && monitor_->AbortRequested(); });
    }
    RunMonitor& monitor = ui_.ShowProgress();
    monitor_ = &monitor;
    monitor.SetStatus("Searching for MP3 files...");
    // Required: the result of the search is ignored. After an abort the read phase stops at its first test.
    // Do not "fix".
    Scan(monitor, ScanMode::Count);
    if (totals_.FoundCount == 0) {
        // Required: the progress window stays open behind the message. Do not "fix".
        ShowMessage(ui_, "No MP3 files were found\r\nin the " + folderWord_ + " specified.", kOkInformation,
                    "No MP3 files!");
        ui_.EnableWindows();
        end_ = RunEnd::NothingFound;
        return;
    }
    end_ = RunEnd::Aborted;
    if (Read(monitor) && Sort(monitor) && Write(monitor)) {
        Finish(monitor);
    }
}

RunOutcome ListRun::Outcome() const {
    RunOutcome outcome;
    outcome.end = end_;
    outcome.partial = partial_;
    outcome.failure = failure_;
    outcome.tracks = static_cast<std::int32_t>(table_.Count());
    outcome.modern = settings_.Modern;
    outcome.logged = settings_.ErrorLog;
    outcome.unreadFolders = totals_.Unread.folders.size();
    outcome.unreadFiles = totals_.Unread.files.size();
    outcome.modernTags = totals_.ModernTagCount;
    if (outcome.Written() || outcome.partial) {
        const bool paged = OutputTypeOf(settings_.OutputFile, StyleOf(settings_)) == kHtmlOutput;
        const PageFiles pages(settings_.OutputFile, paged ? settings_.Spanning : std::int16_t{0},
                              table_.Count());
        outcome.file = pages.PathOf(1);
        outcome.pages = pages.Count();
    }
    return outcome;
}

std::string TrappedErrorText(const RunTimeError& error) {
    if (error.Is(ErrorNumber::BadFileName)) {
        return "An error occurred verifying your input directory.\r\n\r\n"
               "This could be because you do not have permission\r\n"
               "to access the directory, or you may be attempting\r\n"
               "to use a non-existent network share.";
    }
    return UnexpectedErrorText(error);
}

void ListRun::Fail(const RunTimeError& error) {
    if (end_ != RunEnd::Written) {
        end_ = RunEnd::Failed;
        failure_ = error.Description();
    }
    // Required: the title is "Error" in automatic mode too, and the progress window stays open. Do not "fix".
    ShowMessage(ui_, TrappedErrorText(error), kOkExclamation, "Error");
}

} // namespace

RunOutcome CreateList(Application& application, UserInterface& ui) {
    ListRun run(application, ui);
    try {
        if (run.Validate()) {
            run.Work();
        }
    } catch (const std::exception&) {
        run.Fail(CaughtError());
    }
    return run.Outcome();
}

} // namespace tunedex
