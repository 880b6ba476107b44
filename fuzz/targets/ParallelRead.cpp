// Input: one byte for the number of files missing from the count, then files separated by FE FE. The first
// byte of a file chooses: 00 a sub-folder, 01 a file that may not be opened, 02 a dangling link.
#include "FolderScanner.h"
#include "Targets.h"
#include "Tracks.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tunedex::fuzz {

namespace {

namespace fs = std::filesystem;

class Reports final : public ErrorReporter {
  public:
    void Report(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                const RunTimeError& error) override {
        text += std::string(errorTemplate) + "|" + std::string(file) + "|" + std::string(folder) + "|" +
                std::to_string(error.Number()) + "\n";
    }
    std::string text;
};

struct Outcome {
    RunTotals totals;
    std::vector<TrackInfo> tracks;
    std::string reports;
};

Outcome Scan(const std::string& folder, unsigned readers, std::int32_t missing) {
    Outcome outcome;
    TrackTable table;
    SilentMonitor monitor;
    Reports reports;
    FolderScanner scanner(outcome.totals, table, monitor, reports, {true}, readers);
    Require(!scanner.ScanFolders(ScanMode::Count, folder, true), "no abort without a request");
    outcome.totals.FoundCount -= missing; // simulates files that appear after the count
    Require(!scanner.ScanFolders(ScanMode::Collect, folder, true), "no abort without a request");
    for (std::size_t position = 1; position <= table.Count(); ++position) {
        outcome.tracks.push_back(table.Copy(position));
    }
    outcome.reports = reports.text;
    return outcome;
}

void MakeFile(const std::string& folder, std::size_t number, const std::string& bytes) {
    std::string path = folder;
    const char kind = bytes.empty() ? ' ' : bytes.front();
    if (kind == 0) {
        path += "d" + std::to_string(number % 5) + "/";
        fs::create_directories(path);
    }
    path += std::to_string(number) + ".mp3";
    if (kind == 2) {
        fs::create_symlink("nothing", path);
        return;
    }
    std::ofstream(path, std::ios::binary) << bytes;
    if (kind == 1) {
        fs::permissions(path, fs::perms::none);
    }
}

} // namespace

void RunParallelRead(Bytes bytes) {
    constexpr std::size_t kMostFiles = 60;
    const std::string& folder = EmptyFolder();
    Input input(bytes);
    const std::int32_t missing = input.Byte() % 3;
    std::string rest = input.Rest();
    for (std::size_t number = 0; !rest.empty() && number < kMostFiles; ++number) {
        const std::size_t end = rest.find("\xFE\xFE");
        MakeFile(folder, number, rest.substr(0, end));
        rest.erase(0, end == std::string::npos ? end : end + 2);
    }
    const Outcome one = Scan(folder, 1, missing);
    for (const unsigned readers : {2U, 5U}) {
        const Outcome many = Scan(folder, readers, missing);
        Require(many.tracks.size() == one.tracks.size(),
                "the number of records does not depend on the number of readers");
        for (std::size_t i = 0; i < one.tracks.size(); ++i) {
            RequireEqualTracks(many.tracks[i], one.tracks[i], "the same record in the same place");
        }
        RequireEqual(many.reports, one.reports, "the same reports in the same order");
        Require(many.totals.StoredCount == one.totals.StoredCount &&
                    many.totals.UntaggedCount == one.totals.UntaggedCount &&
                    many.totals.TotalBytes == one.totals.TotalBytes &&
                    many.totals.TotalSeconds == one.totals.TotalSeconds,
                "the same totals");
    }
}

} // namespace tunedex::fuzz
