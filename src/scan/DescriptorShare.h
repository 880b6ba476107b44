// How many file descriptors one part of the program may hold.
#pragma once

#include <cstddef>

namespace tunedex {

// `most`, but at most the given part of the limit of the process (RLIMIT_NOFILE), and at least 1.
std::size_t DescriptorShare(std::size_t most, std::size_t part);

} // namespace tunedex
