#include "FolderWalk.h"

#include "DiskWaits.h"
#include "FileSystem.h"
#include "FolderPreload.h"
#include "Path.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <cerrno>
#include <dirent.h>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace tunedex {

namespace {

enum class EntryKind { File, Folder, Neither };

// The type of an entry, symbolic links followed. Most file systems store it in the directory, which saves a
// stat() per file.
EntryKind KindOf(int folder, const FolderEntry& entry) {
    switch (entry.type) {
    case DT_REG:
        return EntryKind::File;
    case DT_DIR:
        return EntryKind::Folder;
    case DT_LNK:
    case DT_UNKNOWN:
        break;
    default:
        return EntryKind::Neither;
    }
    const std::optional<mode_t> mode = ModeBehindLinks(folder, entry.name);
    if (!mode) {
        return EntryKind::Neither; // a dangling link
    }
    return S_ISDIR(*mode) ? EntryKind::Folder : S_ISREG(*mode) ? EntryKind::File : EntryKind::Neither;
}

// Without a free descriptor: closes folders that others hold open, then tries once more.
std::shared_ptr<OpenFolder> OpenForWalk(const std::string& path, std::string_view baseFolder,
                                        WalkVisitor& visitor, FolderPreload& preload) {
    try {
        return std::make_shared<OpenFolder>(path, baseFolder);
    } catch (const RunTimeError& error) {
        const bool tooMany = error.Is(ErrorNumber::TooManyFiles);
        if (!tooMany || !(preload.Stop() || visitor.ReleaseFolders())) {
            throw;
        }
    }
    return std::make_shared<OpenFolder>(path, baseFolder);
}

} // namespace

bool FolderWalk::Run(const StartFolder& start, bool recurse, WalkVisitor& visitor) {
    std::set<std::pair<dev_t, ino_t>> walked;
    pending_.assign(1, start.path);
    FolderPreload preload;
    WaitDetector detector;
    if (preload_ == Preload::AtOnce && recurse) {
        preload.Start(pending_);
    }
    while (!pending_.empty()) {
        currentFolder_ = std::move(pending_.back());
        pending_.pop_back();
        const auto folder = OpenForWalk(currentFolder_, start.baseFolder, visitor, preload);
        struct stat status {};
        if (Uninterrupted([&] { return fstat(folder->Descriptor(), &status); }) != 0) {
            throw ErrorFromErrno(errno, FileTask::UseFolder);
        }
        if (walked.emplace(status.st_dev, status.st_ino).second && !WalkOne(folder, recurse, visitor)) {
            return false;
        }
        if (preload.Running()) {
            preload.Advance();
            detector = WaitDetector(); // switches while waiting for the workers are not disk waits
        } else if (preload_ == Preload::WhenWaiting && detector.ManyWaits()) {
            preload.Start(pending_);
        }
    }
    return true;
}

bool FolderWalk::WalkOne(const std::shared_ptr<OpenFolder>& folder, bool recurse, WalkVisitor& visitor) {
    while (true) {
        const std::optional<FolderEntry> entry = folder->Next();
        if (!entry) {
            return true;
        }
        const std::string_view name(entry->name);
        if (name.starts_with('.')) {
            continue; // hidden, ".", or ".."
        }
        const bool matches = EndsInIgnoringCase(name, ".MP3");
        const bool mayBeFolder = recurse && entry->type != DT_REG;
        if (matches || mayBeFolder) {
            const EntryKind kind = KindOf(folder->Descriptor(), *entry);
            if (recurse && kind == EntryKind::Folder) {
                // Required: a stack, so siblings come out in reverse listing order. Do not 'fix'.
                pending_.push_back(folder->Path() + std::string(name) + PathStyle::Native().separator);
            } else if (matches && kind != EntryKind::Neither) {
                // Required: without recursion a folder named *.mp3 counts as a file; collecting it then
                // fails. Do not 'fix'.
                visitor.OnFile(folder, entry->name);
            }
        }
        if (!visitor.AfterEntry()) {
            return false;
        }
    }
}

} // namespace tunedex
