#include "CreateSettings.h"

#include "Columns.h"
#include "DefaultSettings.h"
#include "ExitStatus.h"
#include "FileLookup.h"
#include "FolderSetting.h"
#include "OutputList.h"
#include "Path.h"
#include "ProgramFolder.h"
#include "Text.h"
#include "Themes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tunedex {

namespace {

constexpr std::array kStandardOutputs = {"-", "-.htm", "-.html", "-.txt", "-.csv", "-.m3u", "-.m3u8"};

std::optional<Refusal> CannotStart(std::string text) {
    return Refusal{kExitCannotStart, std::move(text)};
}

std::optional<Refusal> NothingToList(std::string text) {
    return Refusal{kExitFailure, std::move(text)};
}

// Each step applies a part of the command; they run in this order.

std::optional<Refusal> LoadBase(Application& application, const CreateCommand& command) {
    const std::string file = command.settingsFile.value_or("");
    Settings defaults = DefaultSettings();
    defaults.Modern = true;
    try {
        const LoadOutcome outcome =
            LoadSettings(application.settings, file, application.programFolder, defaults, application.faults);
        if (outcome != LoadOutcome::Missing) {
            return std::nullopt;
        }
    } catch (const RunTimeError& error) {
        const std::string path = file.empty() ? SettingsPath("", application.programFolder) : file;
        return CannotStart("the settings file cannot be read: " + path + ": " + error.Description());
    }
    return CannotStart("no such settings file: " + file);
}

std::optional<Refusal> ApplyStyle(Application& application, const CreateCommand& command) {
    application.settings.Modern = command.modern.value_or(application.settings.Modern);
    return std::nullopt;
}

std::string ThemeNamed(const std::string& name, const std::string& programFolder) {
    const std::vector<std::string> themes = ListThemes(programFolder);
    const auto theme = std::find_if(themes.begin(), themes.end(), [&](const std::string& listed) {
        return UpperCase(listed) == UpperCase(name);
    });
    return theme == themes.end() ? std::string() : StoredThemePath(programFolder, *theme);
}

std::optional<Refusal> ApplyTheme(Application& application, const CreateCommand& command) {
    if (!command.theme) {
        return std::nullopt;
    }
    const std::string& name = *command.theme;
    // A path names a file; the name of a theme cannot hold a separator.
    const bool isPath = name.find(PathStyle::Native().separator) != std::string::npos;
    const std::string path = isPath ? name : ThemeNamed(name, application.programFolder);
    if (path.empty() || !FileIsThere(path)) {
        return CannotStart("no such theme: " + name);
    }
    LoadThemeFile(application.settings, path, application.programFolder, application.faults);
    return std::nullopt;
}

std::optional<Refusal> ApplyColumns(Application& application, const CreateCommand& command) {
    if (!command.columns) {
        return std::nullopt;
    }
    Settings& settings = application.settings;
    const ColumnSet set = settings.Modern ? ColumnSet::Modern : ColumnSet::Classic;
    for (const std::string& name : Split(*command.columns, "|")) {
        if (ColumnKeyOf(name, set) == ColumnKey::Unknown) {
            const bool modern = ColumnKeyOf(name, ColumnSet::Modern) != ColumnKey::Unknown;
            return CannotStart((modern ? "only a modern list has the column: " : "no such column: ") + name);
        }
    }
    settings.ActiveColumns = *command.columns;
    settings.Merge = 0;
    return std::nullopt;
}

bool IsFolder(const std::string& path) {
    try {
        return FolderExists(path);
    } catch (const RunTimeError&) {
        return false;
    }
}

std::optional<Refusal> ApplyFolders(Application& application, const CreateCommand& command) {
    Settings& settings = application.settings;
    std::vector<std::string> folders;
    for (const std::string& folder : command.folders) {
        if (!IsFolder(folder)) {
            return NothingToList("no such folder: " + folder);
        }
        folders.push_back(AbsolutePath(folder));
    }
    if (folders.size() > 1) {
        settings.Directory = MultiFolderValue(folders);
        if (FoldersOf(settings.Directory) != folders) {
            return NothingToList("a folder whose name holds %||% can be listed only alone");
        }
    } else if (!folders.empty()) {
        settings.Directory = folders.front();
    }
    if (settings.Directory.empty() || settings.Directory == kMultiFolderMark) {
        return CannotStart("no folder to list; name it with --folder");
    }
    if (!IsMultiFolder(settings.Directory) && !IsFolder(settings.Directory)) {
        return NothingToList("no such folder: " + settings.Directory);
    }
    return std::nullopt;
}

std::optional<Refusal> ApplyStandardOutput(Settings& settings, const std::string& output) {
    const ListingStyle style = StyleOf(settings);
    if (output != "-" && ListingPath(OutputTypeOf(output, style), output, style) != output) {
        return CannotStart("only a modern list has this format: " + output);
    }
    settings.OutputFile = output;
    settings.Spanning = 0;
    return std::nullopt;
}

std::optional<Refusal> ApplyOutput(Application& application, const CreateCommand& command) {
    Settings& settings = application.settings;
    if (command.outputFile && IsStandardOutput(*command.outputFile)) {
        return ApplyStandardOutput(settings, *command.outputFile);
    }
    if (command.outputFile && EndsInSeparator(*command.outputFile, PathStyle::Native())) {
        return CannotStart("--output names a folder, not a file: " + *command.outputFile);
    }
    if (command.outputFile) {
        settings.OutputFile = AbsolutePath(*command.outputFile);
    }
    if (settings.OutputFile.empty()) {
        return CannotStart("no file to write; name it with --output");
    }
    const std::string folder(FolderPrefixOf(settings.OutputFile, PathStyle::Native()));
    if (!IsFolder(folder)) {
        return NothingToList("no such folder for the list: " + WithoutSeparator(folder, PathStyle::Native()));
    }
    return std::nullopt;
}

} // namespace

bool IsStandardOutput(const std::string& outputFile) {
    return std::find(kStandardOutputs.begin(), kStandardOutputs.end(), outputFile) != kStandardOutputs.end();
}

std::optional<Refusal> PrepareSettings(Application& application, const CreateCommand& command) {
    application.programFolder = FindProgramFolder(application.registry, RunningProgramFolder());
    for (const auto step : {LoadBase, ApplyStyle, ApplyTheme, ApplyColumns, ApplyFolders, ApplyOutput}) {
        if (std::optional<Refusal> refusal = step(application, command)) {
            return refusal;
        }
    }
    return std::nullopt;
}

} // namespace tunedex
