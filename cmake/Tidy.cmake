# TUNEDEX_TIDY: clang-tidy on every file as it is compiled.
option(TUNEDEX_TIDY "Run clang-tidy on every file as it is compiled" OFF)
if(TUNEDEX_TIDY)
    find_program(CLANG_TIDY_PROGRAM NAMES clang-tidy-14 clang-tidy REQUIRED)
    set(CMAKE_CXX_CLANG_TIDY
        "${CLANG_TIDY_PROGRAM};--quiet;--header-filter=^${CMAKE_SOURCE_DIR}/(src|data|tests|tools|bench|fuzz)/")
    # Unity build: most of the time is spent on the libraries' headers, which all sources of a target share. The generated
    # file includes sources, which is a finding that no source of ours can avoid.
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 16)
    file(WRITE "${CMAKE_BINARY_DIR}/.clang-tidy" "InheritParentConfig: true\nChecks: '-bugprone-suspicious-include'\n")
endif()
