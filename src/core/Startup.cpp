#include "Startup.h"

#include "CommandLine.h"
#include "DefaultSettings.h"
#include "FileSystem.h"
#include "FolderSetting.h"
#include "Functions.h"
#include "ProgramFolder.h"
#include "Version.h"

#include <exception>

namespace tunedex {

namespace {

std::string StatisticsPath(const Application& application) {
    return application.programFolder + std::string(kStatisticsFileName);
}

// Whether the error came from the content of the file rather than from reading it.
bool IsMalformed(const RunTimeError& error) {
    return error.Is(ErrorNumber::InvalidProcedureCall) || error.Is(ErrorNumber::Overflow) ||
           error.Is(ErrorNumber::TypeMismatch) || error.Is(ErrorNumber::InputPastEnd);
}

void StartStatistics(Application& application, UserInterface& ui) {
    application.statisticsUnread = false;
    const std::string today = application.locale.ShortDate(application.clock.LocalTime());
    try {
        application.statistics = LoadStatistics(StatisticsPath(application), today);
    } catch (const RunTimeError& error) {
        ShowMessage(ui, UnexpectedErrorText(error), kOkExclamation, application.errorTitle);
        application.statistics = FirstStatistics(today);
        application.statisticsUnread = !IsMalformed(error);
    }
}

} // namespace

FileStamp StampNow(const Application& application) {
    const std::tm now = application.clock.LocalTime();
    return {kVersionText, application.locale.ShortDate(now), application.locale.ShortTime(now)};
}

void StartUp(Application& application, UserInterface& ui, const std::vector<std::string>& arguments) {
    application.programFolder = FindProgramFolder(application.registry, RunningProgramFolder());
    application.helpFile = FindHelpFile(application.registry, application.programFolder);
    application.automaticMode = IsAutomatic(arguments);
    application.errorTitle = application.automaticMode ? "Tunedex Error! (Automatic Mode)" : "Error!";
    application.abortRequested = false;
    StartStatistics(application, ui);
    LoadSettings(application.settings, "", application.programFolder, DefaultSettings(), application.faults);
    ui.FillFields(FieldsFor(application.settings));
}

MainFields FieldsFor(const Settings& settings) {
    MainFields fields;
    fields.multipleFolders = IsMultiFolder(settings.Directory);
    fields.inputFolder = fields.multipleFolders ? "" : settings.Directory;
    fields.outputFile = settings.OutputFile;
    fields.windowTitle = settings.WindowTitle;
    fields.pageTitle = settings.PageTitle;
    fields.pageFooter = settings.PageFooter;
    return fields;
}

void TakeMainFields(Settings& settings, const MainFields& fields) {
    settings.OutputFile = fields.outputFile;
    settings.WindowTitle = fields.windowTitle;
    settings.PageTitle = fields.pageTitle;
    settings.PageFooter = fields.pageFooter;
}

void TakeLayoutControls(Settings& settings) {
    if (settings.DocumentType != "XHTML" && settings.DocumentType != "HTML5") {
        settings.DocumentType = "HTML";
    }
}

RunOutcome CreateListCommand(Application& application, UserInterface& ui) {
    if (!IsMultiFolder(application.settings.Directory)) {
        application.settings.Directory = ui.Fields().inputFolder;
    }
    try {
        application.entities.Load(application.programFolder + std::string(kEntityFileName),
                                  application.faults);
    } catch (const std::exception&) {
        const RunTimeError error = CaughtError();
        ShowMessage(ui, UnexpectedErrorText(error), kOkExclamation, "Error");
        RunOutcome outcome;
        outcome.end = RunEnd::Failed;
        outcome.failure = error.Description();
        return outcome;
    }
    return CreateList(application, ui);
}

std::string SaveSettingsCommand(const Application& application, const std::string& path) {
    const std::vector<std::string> leftOut =
        SaveSettings(application.settings, path, application.programFolder, StampNow(application));
    if (leftOut.empty()) {
        return {};
    }
    std::string text = "A settings file cannot hold a line break.\r\nThese settings were not saved:\r\n";
    for (const std::string& key : leftOut) {
        text += "\r\n" + key;
    }
    return text;
}

void WriteDefaultSettings(const Application& application, const std::string& path) {
    if (path.empty()) { // SaveSettings would write the default file
        throw RunTimeError(ErrorNumber::BadFileName);
    }
    SaveSettings(DefaultSettings(), path, "", StampNow(application));
}

void SaveStatisticsAtExit(const Application& application) {
    if (application.statisticsUnread) {
        return; // do not replace an existing file because of a transient read error
    }
    SaveStatistics(application.statistics, StatisticsPath(application));
}

} // namespace tunedex
