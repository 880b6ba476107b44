#include "ProgramFolder.h"

#include "FileLookup.h"
#include "FileSystem.h"
#include "HomeFolder.h"
#include "Path.h"
#include "Product.h"
#include "RunTimeError.h"
#include "ShippedFiles.h"
#include "TextFile.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr std::string_view kHelpFileName = "Help.html";
constexpr std::string_view kFillingMark = ".filling"; // exists while the folder is being filled
constexpr std::string_view kFilledMark = ".filled";

std::string WithProgramName(const std::string& parentFolder) {
    return parentFolder + kProgramName + "/";
}

// The data folder of an installation whose program is in `runningFolder`.
std::string InstalledDataFolder(const std::string& runningFolder) {
    return WithProgramName(runningFolder + "../share/");
}

std::string UserDataFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    // XDG_DATA_HOME must be absolute; a relative path is ignored.
    const std::string base = data != nullptr && *data == '/' ? data : HomeFolder() + "/.local/share";
    return WithProgramName(WithSeparator(base, PathStyle::Native()));
}

// Whether the program is installed: bin/tunedex next to share/tunedex/, under any prefix. An installed
// program never writes to its own folder, even as root or under ~/.local.
bool IsInstalled(const std::string& runningFolder) {
    try {
        return FolderExists(InstalledDataFolder(runningFolder));
    } catch (const RunTimeError&) {
        return false; // a folder that cannot be examined is not our installation
    }
}

// Whether the data folder needs the shipped files: it does not exist, an earlier start failed while filling
// it (disk full), or it came with the installation (prefix ~/.local). Any other folder is left alone: a theme
// or an entity table missing there was deleted by the user.
bool NeedsFilling(const std::string& folder, const std::string& runningFolder) {
    if (!FolderExists(folder) || FileExists(folder + std::string(kFillingMark))) {
        return true;
    }
    std::error_code unknown; // on error: not the same folder
    return std::filesystem::equivalent(folder, InstalledDataFolder(runningFolder), unknown) &&
           !FileExists(folder + std::string(kFilledMark));
}

void WriteMark(const std::string& path) {
    TextFile(path, TextEncoding::Utf8).Close();
}

void FillOnFirstUse(const std::string& folder, const std::string& runningFolder, Registry& registry) {
    if (!NeedsFilling(folder, runningFolder)) {
        return;
    }
    const std::string filling = folder + std::string(kFillingMark);
    CreateFolders(folder);
    WriteMark(filling);
    FillProgramFolder(folder);
    if (registry.Read(kTipsOnStartupValue).empty()) {
        registry.Write(kTipsOnStartupValue, "1"); // a missing value means off; new users should see the tips
    }
    WriteMark(folder + std::string(kFilledMark));
    DeleteFile(filling);
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

std::string FindProgramFolder(Registry& registry, const std::string& runningFolder) {
    const std::string installed = registry.Read(kInstallationPathValue);
    if (!installed.empty()) {
        return WithSeparator(installed, PathStyle::Native());
    }
    if (!IsInstalled(runningFolder) && FolderIsWritable(runningFolder)) {
        return runningFolder;
    }
    std::string folder = UserDataFolder();
    FillOnFirstUse(folder, runningFolder, registry);
    return folder;
}

std::string FindHelpFile(const Registry& registry, const std::string& programFolder) {
    const PathStyle style = PathStyle::Native();
    const std::string own = RunningProgramFolder();
    std::string registered = registry.Read(kHelpFilePathValue);
    if (FileNameOf(registered, style) == kHelpFileName && FileIsThere(registered)) {
        return registered;
    }
    // Required: with a wrong registered path the program folder is not searched. Do not "fix".
    const std::string first = registered.empty() ? programFolder : own;
    for (const std::string& folder : {first, own, InstalledDataFolder(own)}) {
        std::string path = folder + std::string(kHelpFileName);
        if (FileIsThere(path)) {
            return path;
        }
    }
    return {};
}

} // namespace tunedex
