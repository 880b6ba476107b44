#include "LogFile.h"

#include "FileSystem.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tunedex {

LogFile::LogFile(const std::string& path) {
    descriptor_ = Uninterrupted(
        [&] { return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOCTTY, 0666); });
    if (descriptor_ < 0) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
}

LogFile::~LogFile() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

void LogFile::WriteLine(std::string_view text) {
    std::string line = EncodeFileLine(text);
    // A file's name may hold line breaks; scripts count one line an error.
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    WriteWhole(descriptor_, line + "\r\n");
}

void LogFile::Close() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    if (close(descriptor) != 0 && errno != EINTR) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
}

} // namespace tunedex
