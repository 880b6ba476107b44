#include "FontPreload.h"

#include <dlfcn.h>
#include <system_error>

namespace tunedex {
namespace {

// Qt loads the same library later; its font configuration is shared within the process.
void ReadFontList() {
    if (void* const library = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_LOCAL); library != nullptr) {
        if (void* const function = dlsym(library, "FcInit"); function != nullptr) {
            reinterpret_cast<int (*)()>(function)();
        }
    }
}

} // namespace

FontPreload::FontPreload() {
    try {
        reader_ = std::thread(ReadFontList);
    } catch (const std::system_error&) {
        // No thread available: Qt loads the list when it needs it.
    }
}

FontPreload::~FontPreload() {
    if (reader_.joinable()) {
        reader_.join();
    }
}

} // namespace tunedex
