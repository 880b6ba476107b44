# Writes a C++ source that holds files byte for byte:
#   cmake -DFOLDER=folder -DFILES=path|path... -DOUTPUT=source -P EmbedFiles.cmake
# Paths are relative to the folder; they are the names under which the program finds the bytes.

set(ARRAYS "")
set(ROWS "")
set(NUMBER 0)
string(REPLACE "|" ";" PATHS "${FILES}")
foreach(PATH IN LISTS PATHS)
    file(READ "${FOLDER}/${PATH}" BYTES HEX)
    file(SIZE "${FOLDER}/${PATH}" LENGTH)
    if(LENGTH EQUAL 0)
        message(FATAL_ERROR "${PATH} is empty: nothing to ship")
    endif()
    # Sixteen bytes a line. Character literals, because a string literal this long is not portable.
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," BYTES "${BYTES}")
    string(REPEAT "'.x..'," 16 SIXTEEN)
    string(REGEX REPLACE "(${SIXTEEN})" "\\1\n    " BYTES "${BYTES}")
    string(APPEND ARRAYS "constexpr std::array<char, ${LENGTH}> kBytes${NUMBER} = {\n    ${BYTES}};\n")
    string(APPEND ROWS "    ShippedFile{\"${PATH}\", {kBytes${NUMBER}.data(), kBytes${NUMBER}.size()}},\n")
    math(EXPR NUMBER "${NUMBER} + 1")
endforeach()

file(WRITE "${OUTPUT}" "// Written by the build from the files in data/.
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
