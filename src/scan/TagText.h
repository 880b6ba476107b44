// The rules for texts from tags, shared by both tag readers and the preview of the layout editor.
#pragma once

#include "LongText.h"

#include <string>
#include <string_view>

namespace tunedex {

// Sets `text` to the Windows-1252 bytes of a tag field without their NULs, which pad, terminate and (in
// UTF-16) fill fields.
void SetTagText(std::string& text, std::string_view bytes);

// An empty title becomes "Unknown Title".
void FinishTitle(std::string& title);

// An empty artist becomes "Unknown Artist"; with `moveTheArtists`, "The Beatles" becomes "Beatles, The".
void FinishArtist(std::string& artist, bool moveTheArtists);
// The same for a long artist, which is not empty.
void FinishArtist(LongText& artist, bool moveTheArtists);

} // namespace tunedex
