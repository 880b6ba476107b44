#include "FolderWalk.h"

#include "DiskWaits.h"
#include "FileSystem.h"
#include "FolderPreload.h"
#include "RunTimeError.h"
#include "Settings.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <atomic>
#include <cerrno>
#include <dirent.h>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace tunedex {

namespace {

std::atomic<int>& OpenFolderCount() {
    static std::atomic<int> count{0};
    return count;
}

enum class EntryKind { File, Folder, Neither };

// What a name stands for, links followed. The directory itself usually tells; only then is no call needed.
EntryKind KindOf(int folder, const dirent& entry) {
    switch (entry.d_type) {
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
    const std::optional<mode_t> mode = ModeBehindLinks(folder, entry.d_name);
    if (!mode) {
        return EntryKind::Neither; // a link to nothing
    }
    return S_ISDIR(*mode) ? EntryKind::Folder : S_ISREG(*mode) ? EntryKind::File : EntryKind::Neither;
}

std::shared_ptr<OpenFolder> OpenForWalk(const std::string& path, std::string_view baseFolder,
                                        WalkVisitor& visitor, FolderPreload& preload) {
    try {
        return std::make_shared<OpenFolder>(path, baseFolder);
    } catch (const RunTimeError& error) {
        const bool tooMany = error.Number() == static_cast<int>(ErrorNumber::TooManyFiles);
        if (!tooMany || !(preload.Stop() || visitor.ReleaseFolders())) {
            throw;
        }
    }
    return std::make_shared<OpenFolder>(path, baseFolder);
}

} // namespace

OpenFolder::OpenFolder(std::string path, std::string_view baseFolder)
    : path_(std::move(path)), baseFolder_(baseFolder) {
    stream_ = OpenFolderStream(path_);
    if (stream_ == nullptr) {
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
    ++OpenFolderCount();
}

OpenFolder::~OpenFolder() {
    closedir(static_cast<DIR*>(stream_));
    --OpenFolderCount();
}

int OpenFolder::Descriptor() const {
    return dirfd(static_cast<DIR*>(stream_));
}

int OpenFolder::OpenCount() {
    return OpenFolderCount();
}

std::vector<StartFolder> StartFolders(std::string_view folderValue, PathStyle style) {
    if (!IsMultiFolder(folderValue)) {
        return {{std::string(folderValue), WithSeparator(folderValue, style)}};
    }
    std::vector<StartFolder> folders;
    const std::vector<std::string> entries =
        Split(ReplaceAll(folderValue, kMultiFolderMark, ""), kMultiFolderSeparator);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].empty()) {
            continue;
        }
        const bool last = i + 1 == entries.size();
        std::string path = WithSeparator(entries[i], style);
        folders.push_back({last ? entries[i] : path, path});
    }
    return folders;
}

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
            detector = WaitDetector(); // waiting for those threads, for their end above all, tells nothing
        } else if (preload_ == Preload::WhenWaiting && detector.ManyWaits()) {
            preload.Start(pending_);
        }
    }
    return true;
}

bool FolderWalk::WalkOne(const std::shared_ptr<OpenFolder>& folder, bool recurse, WalkVisitor& visitor) {
    auto* const stream = static_cast<DIR*>(folder->Stream());
    while (true) {
        const dirent* entry = NextEntry(stream);
        if (entry == nullptr) {
            return true;
        }
        const std::string_view name(entry->d_name);
        if (name.starts_with('.')) {
            continue; // hidden, or the folder itself, or the one above
        }
        const bool matches = EndsInIgnoringCase(name, ".MP3");
        const bool mayBeFolder = recurse && entry->d_type != DT_REG;
        if (matches || mayBeFolder) {
            const EntryKind kind = KindOf(folder->Descriptor(), *entry);
            if (recurse && kind == EntryKind::Folder) {
                pending_.push_back(folder->Path() + std::string(name) + PathStyle::Native().separator);
            } else if (matches && kind != EntryKind::Neither) {
                visitor.OnFile(folder, entry->d_name);
            }
        }
        if (!visitor.AfterEntry()) {
            return false;
        }
    }
}

} // namespace tunedex
