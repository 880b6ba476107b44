# The build's house rules: one static library per floor, which sees the headers of the floors it links and no others.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

if(TUNEDEX_WITH_QT STREQUAL "OFF")
    set(TUNEDEX_HAS_QT FALSE)
elseif(TUNEDEX_WITH_QT STREQUAL "ON")
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets Test)
    set(TUNEDEX_HAS_QT TRUE)
else()
    find_package(Qt6 6.4 QUIET COMPONENTS Core Gui Widgets Test)
    set(TUNEDEX_HAS_QT ${Qt6_FOUND})
endif()

add_library(tunedex_flags INTERFACE)
target_compile_options(tunedex_flags INTERFACE -Wall -Wextra -Wpedantic -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in "text" + std::string where there are none (its bug 105651).
    target_compile_options(tunedex_flags INTERFACE -Wno-restrict)
endif()
if(TUNEDEX_SANITIZE)
    target_compile_options(tunedex_flags INTERFACE -fsanitize=${TUNEDEX_SANITIZE} -fno-omit-frame-pointer
                                                   -fno-sanitize-recover=all)
    target_link_options(tunedex_flags INTERFACE -fsanitize=${TUNEDEX_SANITIZE})
    # Nothing of ours calls what is in it: whole, or the linker leaves it out.
    add_library(tunedex_sanitizers STATIC "${CMAKE_CURRENT_LIST_DIR}/Sanitizers.cpp")
    target_link_libraries(tunedex_flags INTERFACE $<LINK_LIBRARY:WHOLE_ARCHIVE,tunedex_sanitizers>)
endif()
if(TUNEDEX_TIDY)
    find_program(CLANG_TIDY_PROGRAM NAMES clang-tidy-14 clang-tidy REQUIRED)
    set(CMAKE_CXX_CLANG_TIDY
        "${CLANG_TIDY_PROGRAM};--quiet;--header-filter=^${CMAKE_SOURCE_DIR}/(src|data|tests|tools|bench|fuzz)/")
    # Most of the time goes into the libraries' headers, so the sources of a target are looked at together, as one file that
    # includes them. Such a file is not ours to mend.
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 16)
    file(WRITE "${CMAKE_BINARY_DIR}/.clang-tidy" "InheritParentConfig: true\nChecks: '-bugprone-suspicious-include'\n")
endif()

# tunedex_floor(NAME LINKS floors-below...): every .cpp in the current folder becomes the floor's library.
function(tunedex_floor NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(tunedex_${NAME} STATIC ${ARG_SOURCES})
    target_include_directories(tunedex_${NAME} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(tunedex_${NAME} PUBLIC ${ARG_LINKS} PRIVATE tunedex_flags)
endfunction()
