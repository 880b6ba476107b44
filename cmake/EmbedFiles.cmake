# Generates a C++ source that embeds files byte for byte:
#   cmake -DFOLDER=folder -DFILES=path|path... -DOUTPUT=source -DFUNCTION=name [-DCOMPACT=ON] -P EmbedFiles.cmake
# FILES are relative to FOLDER; the program finds the bytes under these names in what FUNCTION returns. COMPACT leaves
# out comments, indentation and empty lines of style sheets and scripts: "/* */", and "//" at the start of a line.

set(ARRAYS "")
set(ROWS "")
set(NUMBER 0)
string(REPLACE "|" ";" PATHS "${FILES}")
foreach(PATH IN LISTS PATHS)
    set(SOURCE "${FOLDER}/${PATH}")
    if(COMPACT)
        file(READ "${SOURCE}" TEXT)
        string(REGEX REPLACE "/\\*[^*]*\\*+([^/*][^*]*\\*+)*/" "" TEXT "${TEXT}")
        string(REGEX REPLACE "\n[ \t]+" "\n" TEXT "\n${TEXT}")
        string(REGEX REPLACE "\n//[^\n]*" "" TEXT "${TEXT}")
        string(REGEX REPLACE "\n\n+" "\n" TEXT "${TEXT}")
        string(REGEX REPLACE "^\n" "" TEXT "${TEXT}")
        set(SOURCE "${OUTPUT}.part")
        file(WRITE "${SOURCE}" "${TEXT}")
    endif()
    file(READ "${SOURCE}" BYTES HEX)
    file(SIZE "${SOURCE}" LENGTH)
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

std::span<const ShippedFile> ${FUNCTION}() { return kFiles; }

} // namespace tunedex
")
