// Reads the system's list of fonts on a thread of its own while the program reaches for the screen. The first
// text in a window waits for that list, and it takes half as long as all of the rest of opening the window.
#pragma once

#include <thread>

namespace tunedex {

class FontPreload {
  public:
    // Begins, where fonts come from fontconfig; elsewhere does nothing.
    FontPreload();
    FontPreload(const FontPreload&) = delete;
    FontPreload& operator=(const FontPreload&) = delete;
    // Waits for the end.
    ~FontPreload();

  private:
    std::thread reader_;
};

} // namespace tunedex
