#include "FolderWalk.h"

#include "DiskWaits.h"
#include "FileSystem.h"
#include "FolderPreload.h"
#include "Path.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <cerrno>
#include <chrono>
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

// Without a free descriptor: closes folders listed ahead, then those of files in flight, and tries again.
std::shared_ptr<OpenFolder> OpenForWalk(const std::string& path, std::string_view baseFolder,
                                        WalkVisitor& visitor, FolderPreload& pendingFolders) {
    while (true) {
        try {
            return std::make_shared<OpenFolder>(path, baseFolder);
        } catch (const RunTimeError& error) {
            if (!error.Is(ErrorNumber::TooManyFiles) ||
                !(pendingFolders.Release() || visitor.ReleaseFolders())) {
                throw;
            }
        }
    }
}

} // namespace

bool FolderWalk::Run(const StartFolder& start, bool recurse, WalkVisitor& visitor) {
    std::set<std::pair<dev_t, ino_t>> walked;
    FolderPreload pendingFolders(start.baseFolder);
    WaitDetector detector;
    pendingFolders.Push(start.path);
    if (preload_ == Preload::AtOnce && recurse) {
        pendingFolders.Start();
    }
    while (const auto pending = pendingFolders.Pop()) {
        currentFolder_ = pending->path;
        std::shared_ptr<OpenFolder> folder = std::move(pending->folder);
        if (!folder) {
            const auto begun = std::chrono::steady_clock::now();
            folder = OpenForWalk(currentFolder_, start.baseFolder, visitor, pendingFolders);
            folder->ReadAhead(1); // the first read may block, too
            if (detector.AfterOpen(std::chrono::steady_clock::now() - begun) &&
                preload_ == Preload::WhenWaiting && recurse) {
                pendingFolders.Start();
            }
        }
        struct stat status {};
        if (Uninterrupted([&] { return fstat(folder->Descriptor(), &status); }) != 0) {
            throw ErrorFromErrno(errno, FileTask::UseFolder);
        }
        if (walked.emplace(status.st_dev, status.st_ino).second &&
            !WalkOne(*pending, folder, recurse, pendingFolders, visitor)) {
            return false;
        }
        if (pendingFolders.Running() && !pendingFolders.Pays()) {
            pendingFolders.Stop();
        }
    }
    return true;
}

bool FolderWalk::WalkOne(PendingFolder& pending, const std::shared_ptr<OpenFolder>& folder, bool recurse,
                         FolderPreload& pendingFolders, WalkVisitor& visitor) {
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
                pendingFolders.Push(folder->Path() + entry->name + PathStyle::Native().separator, &pending);
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
