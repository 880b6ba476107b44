// The files that ship with the program, carried inside it: one executable can fill a new program folder by
// itself.
#pragma once

#include <span>
#include <string_view>

namespace tunedex {

struct ShippedFile {
    std::string_view path;  // relative to the program folder, with "/" between names: "Themes/Dark.thm"
    std::string_view bytes; // the file as it is on disk
};

// Sorted by path. Texts and list live as long as the program.
std::span<const ShippedFile> ShippedFiles();

} // namespace tunedex
