#include "DescriptorShare.h"

#include <algorithm>
#include <sys/resource.h>

namespace tunedex {

std::size_t DescriptorShare(std::size_t most, std::size_t part) {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) {
        return most;
    }
    return static_cast<std::size_t>(std::clamp<rlim_t>(limit.rlim_cur / part, 1, most));
}

} // namespace tunedex
