#include "ListingFile.h"

#include "RunTimeError.h"
#include "UniqueFd.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <utility>

namespace tunedex {

namespace {

StopTest AbortTest(RunMonitor& monitor) {
    return [&monitor] { return monitor.AbortRequested(); };
}

TextFile OpenTarget(const ListingTarget& target, TextEncoding encoding, RunMonitor& monitor,
                    CleanedFolders* cleaned) {
    if (target.stream == kNoStream) {
        return {target.path, encoding, AbortTest(monitor), cleaned};
    }
    UniqueFd copy(fcntl(target.stream, F_DUPFD_CLOEXEC, 0));
    if (!copy) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
    return {std::move(copy), encoding, AbortTest(monitor)};
}

} // namespace

ListingFile::ListingFile(PageBuffer& text, const ListingTarget& target, TextEncoding encoding,
                         RunMonitor& monitor, CleanedFolders* cleaned)
    : text_(text), file_(OpenTarget(target, encoding, monitor, cleaned)) {
    text_.SetSink(TextFile::kPieceBytes, [this](std::string_view piece) { file_.Write(piece); });
}

bool ListingFile::Close() {
    text_.HandOver();
    file_.Close();
    return !file_.Stopped();
}

} // namespace tunedex
