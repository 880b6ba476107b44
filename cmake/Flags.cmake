# tunedex_flags: the compile and link options of every target of this project. A warning is an error where
# CMAKE_COMPILE_WARNING_AS_ERROR is ON, as in the presets that CI builds; a packager's newer compiler may warn.
add_library(tunedex_flags INTERFACE)
target_compile_options(tunedex_flags INTERFACE -Wall -Wextra -Wpedantic)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC bug 105651: a false -Wrestrict warning for "text" + std::string.
    target_compile_options(tunedex_flags INTERFACE -Wno-restrict)
endif()
