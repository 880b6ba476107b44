# The toolchain of the presets that need clang: version 14, which the formatter and clang-tidy are set up for, or else the
# version of the distribution.
find_program(TUNEDEX_CLANG NAMES clang++-14 clang++ REQUIRED)
set(CMAKE_CXX_COMPILER "${TUNEDEX_CLANG}")
