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

// The walk of one start folder.
class Course {
  public:
    Course(const StartFolder& start, bool recurse, FolderWalk::Preload preload, std::string& currentFolder,
           WalkVisitor& visitor)
        : start_(start), recurse_(recurse), preload_(preload), currentFolder_(currentFolder),
          visitor_(visitor), pending_(start.baseFolder) {}

    // Returns false if the visitor stopped the walk.
    bool Run() {
        pending_.Push(start_.path);
        if (preload_ == FolderWalk::Preload::AtOnce && recurse_) {
            pending_.Start();
        }
        while (const auto next = pending_.Pop()) {
            currentFolder_ = next->path;
            if (!Visit(*next)) {
                return false;
            }
            if (pending_.Running() && !pending_.Pays()) {
                pending_.Stop();
            }
        }
        return true;
    }

  private:
    // Without a free descriptor: closes folders listed ahead, then those of files in flight, and tries again.
    std::shared_ptr<OpenFolder> OpenForWalk() {
        while (true) {
            try {
                return std::make_shared<OpenFolder>(currentFolder_, start_.baseFolder);
            } catch (const RunTimeError& error) {
                if (!error.Is(ErrorNumber::TooManyFiles) ||
                    !(pending_.Release() || visitor_.ReleaseFolders())) {
                    throw;
                }
            }
        }
    }

    // Opens the current folder, unless it has been listed ahead.
    std::shared_ptr<OpenFolder> Open(PendingFolder& next) {
        if (next.folder) {
            return std::move(next.folder);
        }
        const auto begun = std::chrono::steady_clock::now();
        std::shared_ptr<OpenFolder> folder = OpenForWalk();
        folder->ReadAhead(1); // the first read may block, too
        if (detector_.AfterOpen(std::chrono::steady_clock::now() - begun) &&
            preload_ == FolderWalk::Preload::WhenWaiting && recurse_) {
            pending_.Start();
        }
        return folder;
    }

    // Whether the folder is visited for the first time.
    bool IsNew(const OpenFolder& folder) {
        struct stat status {};
        if (Uninterrupted([&] { return fstat(folder.Descriptor(), &status); }) != 0) {
            throw ErrorFromErrno(errno, FileTask::UseFolder);
        }
        return walked_.emplace(status.st_dev, status.st_ino).second;
    }

    // Calls `read`, which raises errors of the file system only. Returns nothing if it raised one and the
    // visitor skips what could not be read.
    template <typename Read>
    auto Attempt(UnreadKind kind, const char* name, Read read) -> std::optional<decltype(read())> {
        try {
            return read();
        } catch (const RunTimeError& error) {
            if (!visitor_.SkipsUnread(kind, currentFolder_, name, error)) {
                throw;
            }
        }
        return std::nullopt;
    }

    bool Visit(PendingFolder& next) {
        const auto folder = Attempt(UnreadKind::Folder, "", [&] {
            std::shared_ptr<OpenFolder> opened = Open(next);
            return IsNew(*opened) ? opened : nullptr;
        });
        return !folder || !*folder || VisitEntries(next, *folder);
    }

    bool VisitEntries(PendingFolder& next, const std::shared_ptr<OpenFolder>& folder) {
        while (true) {
            const auto entry = Attempt(UnreadKind::Folder, "", [&] { return folder->Next(); });
            if (!entry || !*entry) {
                return true;
            }
            const std::string_view name((*entry)->name);
            if (name.starts_with('.')) {
                continue; // hidden, ".", or ".."
            }
            VisitEntry(next, folder, **entry);
            if (!visitor_.AfterEntry()) {
                return false;
            }
        }
    }

    void VisitEntry(PendingFolder& next, const std::shared_ptr<OpenFolder>& folder,
                    const FolderEntry& entry) {
        const bool matches = EndsInIgnoringCase(entry.name, ".MP3");
        const bool mayBeFolder = recurse_ && entry.type != DT_REG;
        if (!matches && !mayBeFolder) {
            return;
        }
        const EntryKind kind = Attempt(matches ? UnreadKind::File : UnreadKind::Folder, entry.name, [&] {
                                   return KindOf(folder->Descriptor(), entry);
                               }).value_or(EntryKind::Neither);
        if (recurse_ && kind == EntryKind::Folder) {
            // Required: a stack, so siblings come out in reverse listing order. Do not 'fix'.
            pending_.Push(folder->Path() + entry.name + PathStyle::Native().separator, &next);
        } else if (matches && kind != EntryKind::Neither) {
            // Required: without recursion a folder named *.mp3 counts as a file; collecting it then fails. Do
            // not 'fix'.
            visitor_.OnFile(folder, entry.name);
        }
    }

    const StartFolder& start_;
    const bool recurse_;
    const FolderWalk::Preload preload_;
    std::string& currentFolder_;
    WalkVisitor& visitor_;
    FolderPreload pending_;
    WaitDetector detector_;
    std::set<std::pair<dev_t, ino_t>> walked_;
};

} // namespace

bool FolderWalk::Run(const StartFolder& start, bool recurse, WalkVisitor& visitor) {
    return Course(start, recurse, preload_, currentFolder_, visitor).Run();
}

} // namespace tunedex
