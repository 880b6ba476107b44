#include "ByteSource.h"

#include "RunTimeError.h"
#include "Uninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {

void ByteSource::ReadExactly(std::uint64_t offset, std::span<std::uint8_t> buffer) {
    if (Read(offset, buffer) < buffer.size()) {
        throw RunTimeError(ErrorNumber::InputPastEnd);
    }
}

std::size_t MemoryByteSource::Read(std::uint64_t offset, std::span<std::uint8_t> buffer) {
    if (offset >= bytes_.size()) {
        return 0;
    }
    const std::size_t count = std::min<std::uint64_t>(buffer.size(), bytes_.size() - offset);
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), count, buffer.begin());
    return count;
}

FileByteSource::FileByteSource(const std::string& path)
    : FileByteSource(AT_FDCWD, path.find('\0') == std::string::npos ? path.c_str() : "") {}

FileByteSource::FileByteSource(int folder, const char* name, ReadAhead readAhead, const StopTest* stop)
    // O_NONBLOCK: a FIFO may have replaced the file since its folder was listed.
    : descriptor_(
          Uninterrupted([&] { return openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); })),
      stop_(stop) {
    if (!descriptor_) {
        throw ErrorFromErrno(errno, FileTask::ReadFile);
    }
    struct stat status {};
    if (Uninterrupted([&] { return fstat(descriptor_.Get(), &status); }) != 0) {
        throw ErrorFromErrno(errno, FileTask::ReadFile);
    }
    if (!S_ISREG(status.st_mode)) {
        throw RunTimeError(ErrorNumber::FileNotFound);
    }
    size_ = static_cast<std::uint64_t>(status.st_size);
    if (readAhead == ReadAhead::Nothing) {
        posix_fadvise(descriptor_.Get(), 0, 0, POSIX_FADV_RANDOM); // only a hint: failure does no harm
    }
}

std::size_t FileByteSource::ReadFile(std::uint64_t offset, std::span<std::uint8_t> buffer) {
    if (reads_ < kReadsUnasked) {
        ++reads_;
    } else if (stopped_ || (stop_ != nullptr && Stops(*stop_))) {
        stopped_ = true;
        return 0;
    }
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t got = Uninterrupted([&] {
            return pread(descriptor_.Get(), buffer.data() + done, buffer.size() - done,
                         static_cast<off_t>(offset + done));
        });
        if (got < 0) {
            throw ErrorFromErrno(errno, FileTask::ReadFile);
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
        if (offset + done >= size_) {
            break; // saves the pread that would only return 0
        }
    }
    return done;
}

std::size_t FileByteSource::Read(std::uint64_t offset, std::span<std::uint8_t> buffer) {
    if (buffer.empty()) {
        return 0;
    }
    const bool inWindow = offset >= window_.offset && offset - window_.offset < window_.length &&
                          window_.length - (offset - window_.offset) >= buffer.size();
    if (!inWindow) {
        if (buffer.size() >= kWindowBytes / 2) {
            return ReadFile(offset, buffer);
        }
        if (offset + buffer.size() >= size_ && buffer.size() >= 128) {
            return ReadFile(offset, buffer); // the tail: keep the window on the head
        }
        window_.length = 0;
        window_.offset = offset;
        window_.length = ReadFile(offset, window_.bytes);
    }
    const std::size_t from = offset - window_.offset;
    const std::size_t count = std::min(buffer.size(), window_.length - from);
    std::memcpy(buffer.data(), window_.bytes.data() + from, count);
    return count;
}

} // namespace tunedex
