#include "HomeFolder.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace tunedex {

std::string HomeFolder() {
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return home;
    }
    const passwd* user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

std::string ExpandHome(const std::string& path) {
    return path == "~" || path.starts_with("~/") ? HomeFolder() + path.substr(1) : path;
}

} // namespace tunedex
