// Owns a file descriptor and closes it.
#pragma once

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace tunedex {

class UniqueFd {
  public:
    UniqueFd() = default;
    // A negative value, as a failed open() returns, means none.
    explicit UniqueFd(int descriptor) : descriptor_(descriptor) {}
    UniqueFd(UniqueFd&& other) noexcept : descriptor_(other.Release()) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        if (this != &other) {
            Reset();
            descriptor_ = other.Release();
        }
        return *this;
    }
    ~UniqueFd() { Reset(); }

    explicit operator bool() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }
    // Gives up the descriptor without closing it.
    int Release() { return std::exchange(descriptor_, -1); }
    void Reset() {
        if (descriptor_ >= 0) {
            close(Release());
        }
    }
    // Closes the descriptor. Returns false with errno set on failure. EINTR is success: Linux has released
    // the descriptor and keeps the data written.
    bool Close() { return close(Release()) == 0 || errno == EINTR; }

  private:
    int descriptor_ = -1;
};

} // namespace tunedex
