// The shipped files, embedded in the program, so that the executable alone can fill a new program folder.
#pragma once

#include <span>
#include <string_view>

namespace tunedex {

struct ShippedFile {
    std::string_view path;  // relative to the program folder, with "/" between names: "Themes/Dark.thm"
    std::string_view bytes; // the file as it is on disk
};

// Sorted by path. Static storage.
std::span<const ShippedFile> ShippedFiles();

// "page.css" and "page.js", which every HTML5 page contains, without comments and indentation. They hold no
// CR and no "</", so that they can stand in their elements as they are. Static storage.
std::span<const ShippedFile> PageParts();

} // namespace tunedex
