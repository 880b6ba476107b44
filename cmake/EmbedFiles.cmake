# Generates a C++ source that embeds files byte for byte:
#   cmake -DFOLDER=folder -DFILES=path|path... -DOUTPUT=source -P EmbedFiles.cmake
# PATHS are relative to FOLDER; the program finds the bytes under these names.

set(ARRAYS "")
set(ROWS "")
set(NUMBER 0)
string(REPLACE "|" ";" PATHS "${FILES}")
foreach(PATH IN LISTS PATHS)
    file(READ "${FOLDER}/${PATH}" BYTES HEX)
    file(SIZE "${FOLDER}/${PATH}" LENGTH)
    if(LENGTH EQUAL 0)
        message(FATAL_ERROR "${PATH} is empty: there is nothing to embed")
    endif()
    # Sixteen bytes per line, as character literals: string literals of this length are not portable.
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," BYTES "${BYTES}")
    string(REPEAT "'.x..'," 16 SIXTEEN)
    string(REGEX REPLACE "(${SIXTEEN})" "\\1\n    " BYTES "${BYTES}")
    string(APPEND ARRAYS "constexpr std::array<char, ${LENGTH}> kBytes${NUMBER} = {\n    ${BYTES}};\n")
    string(APPEND ROWS "    ShippedFile{\"${PATH}\", {kBytes${NUMBER}.data(), kBytes${NUMBER}.size()}},\n")
    math(EXPR NUMBER "${NUMBER} + 1")
endforeach()

file(WRITE "${OUTPUT}" "// Generated from the files in data/. Do not edit.
#include \"ShippedFiles.h\"

#include <array>

namespace tunedex {

namespace {

${ARRAYS}
constexpr std::array<ShippedFile, ${NUMBER}> kFiles = {
${ROWS}};

} // namespace

std::span<const ShippedFile> ShippedFiles() { return kFiles; }

} // namespace tunedex
")
