#include "Startup.h"

#include "Functions.h"
#include "ListJob.h"
#include "ProgramFolder.h"
#include "Text.h"
#include "Version.h"

namespace tunedex {

namespace {

std::string StatisticsPath(const Application& application) {
    return application.programFolder + std::string(kStatisticsFileName);
}

void StartStatistics(Application& application, UserInterface& ui) {
    const std::string today = application.locale.ShortDate(application.clock.LocalTime());
    try {
        application.statistics = LoadStatistics(StatisticsPath(application), today);
    } catch (const RunTimeError& error) {
        ShowMessage(ui, UnexpectedErrorText(error), kOkExclamation, application.errorTitle);
        application.statistics = FirstStatistics(today);
    }
}

} // namespace

FileStamp StampNow(const Application& application) {
    const std::tm now = application.clock.LocalTime();
    return {kVersionText, application.locale.ShortDate(now), application.locale.ShortTime(now)};
}

bool IsAutomatic(const std::vector<std::string>& arguments) {
    std::string commandLine;
    for (const std::string& argument : arguments) {
        commandLine += argument + ' ';
    }
    return UpperCase(commandLine).find("/AUTO") != std::string::npos;
}

void StartUp(Application& application, UserInterface& ui, const std::vector<std::string>& arguments) {
    application.programFolder = FindProgramFolder(application.registry);
    application.helpFile = FindHelpFile(application.registry, application.programFolder);
    application.automaticMode = IsAutomatic(arguments);
    application.errorTitle = application.automaticMode ? "Tunedex Error! (Automatic Mode)" : "Error!";
    application.abortRequested = false;
    StartStatistics(application, ui);
    LoadSettings(application.settings, "", application.programFolder, application.faults);
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
    settings.DocumentType = settings.DocumentType == "XHTML" ? "XHTML" : "HTML";
}

bool CreateListCommand(Application& application, UserInterface& ui) {
    if (!IsMultiFolder(application.settings.Directory)) {
        application.settings.Directory = ui.Fields().inputFolder;
    }
    try {
        application.entities.Load(application.programFolder + std::string(kEntityFileName),
                                  application.faults);
    } catch (const RunTimeError& error) {
        ShowMessage(ui, UnexpectedErrorText(error), kOkExclamation, "Error");
        return false;
    }
    return CreateList(application, ui);
}

void SaveStatisticsAtExit(const Application& application) {
    SaveStatistics(application.statistics, StatisticsPath(application));
}

} // namespace tunedex
