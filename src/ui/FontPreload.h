// Loads the system's font list on a worker thread while Qt connects to the display. The first text of a
// window needs that list; loading it takes about half as long as everything else in opening the window.
#pragma once

#include <thread>

namespace tunedex {

class FontPreload {
  public:
    // Starts loading. Does nothing where fontconfig is missing.
    FontPreload();
    FontPreload(const FontPreload&) = delete;
    FontPreload& operator=(const FontPreload&) = delete;
    // Waits until the list is loaded.
    ~FontPreload();

  private:
    std::thread reader_;
};

} // namespace tunedex
