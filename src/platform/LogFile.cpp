#include "LogFile.h"

#include "FileSystem.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tunedex {

// O_NONBLOCK: opening a FIFO without a reader would block.
LogFile::LogFile(const std::string& path, StopTest stop)
    : descriptor_(Uninterrupted([&] {
          return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
      })),
      stop_(std::move(stop)) {
    if (!descriptor_) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
}

void LogFile::WriteLine(std::string_view text) {
    std::string line = EncodeFileLine(text);
    // File names may contain line breaks, but scripts count one line per error.
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    stopped_ = stopped_ || !WriteWhole(descriptor_.Get(), line + "\r\n", stop_);
}

void LogFile::Close() {
    if (!descriptor_.Close()) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
}

} // namespace tunedex
