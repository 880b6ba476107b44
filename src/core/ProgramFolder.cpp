#include "ProgramFolder.h"

#include "FileSystem.h"
#include "Path.h"
#include "ShippedFiles.h"
#include "TextFile.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr std::string_view kHelpFileName = "Help.html";

std::string HomeFolder() {
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return home;
    }
    const passwd* user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

std::string UserDataFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    // A relative path there counts as none.
    const std::string base = data != nullptr && *data == '/' ? data : HomeFolder() + "/.local/share";
    return WithSeparator(base, PathStyle::Native()) + "tunedex/";
}

} // namespace

void FillProgramFolder(const std::string& folder) {
    for (const ShippedFile& shipped : ShippedFiles()) {
        const std::string path = folder + std::string(shipped.path);
        if (FileExists(path) || FolderExists(path)) {
            continue;
        }
        CreateFolders(std::string(FolderPrefixOf(path, PathStyle::Native())));
        TextFile file(path, TextEncoding::Utf8);
        file.WriteRaw(shipped.bytes);
        file.Close();
    }
}

std::string FindProgramFolder(Registry& registry) {
    const std::string installed = registry.Read("InstallationPath");
    if (!installed.empty()) {
        return WithSeparator(installed, PathStyle::Native());
    }
    std::string own = RunningProgramFolder();
    if (FolderIsWritable(own)) {
        return own;
    }
    std::string folder = UserDataFolder();
    const bool firstUse = !FolderExists(folder);
    CreateFolders(folder);
    FillProgramFolder(folder);
    if (firstUse && registry.Read("TipsOnStartup").empty()) {
        registry.Write("TipsOnStartup", "1"); // absent it means no, and a new user is to see them
    }
    return folder;
}

std::string FindHelpFile(const Registry& registry, const std::string& programFolder) {
    const PathStyle style = PathStyle::Native();
    const std::string own = RunningProgramFolder();
    std::string registered = registry.Read("HelpFilePath");
    if (FileNameOf(registered, style) == kHelpFileName && FileExists(registered)) {
        return registered;
    }
    const std::string first = registered.empty() ? programFolder : own;
    for (const std::string& folder : {first, own, own + "../share/tunedex/"}) {
        std::string path = folder + std::string(kHelpFileName);
        if (FileExists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace tunedex
