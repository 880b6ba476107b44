# TUNEDEX_SANITIZE: the sanitizers of every target, as -fsanitize takes them.
set(TUNEDEX_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them")
if(TUNEDEX_SANITIZE)
    target_compile_options(tunedex_flags INTERFACE -fsanitize=${TUNEDEX_SANITIZE} -fno-omit-frame-pointer
                                                   -fno-sanitize-recover=all)
    target_link_options(tunedex_flags INTERFACE -fsanitize=${TUNEDEX_SANITIZE})
    # The run-time library calls the functions in it; no object of ours does, so the linker would drop it.
    add_library(tunedex_sanitizers STATIC "${CMAKE_CURRENT_LIST_DIR}/Sanitizers.cpp")
    target_link_libraries(tunedex_flags INTERFACE $<LINK_LIBRARY:WHOLE_ARCHIVE,tunedex_sanitizers>)
endif()
