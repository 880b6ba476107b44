# tunedex_floor(NAME SOURCES files... LINKS libraries...): one static library for each folder of src/. It sees the headers of
# the floors it links and no others, so an include that points to a higher floor does not build.
function(tunedex_floor NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(tunedex_${NAME} STATIC ${ARG_SOURCES})
    target_include_directories(tunedex_${NAME} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(tunedex_${NAME} PUBLIC ${ARG_LINKS} PRIVATE tunedex_flags)
endfunction()
