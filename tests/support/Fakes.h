// Fakes for the interfaces that the code under test uses.
#pragma once

#include "Application.h"
#include "Clock.h"
#include "FolderScanner.h"
#include "Registry.h"
#include "RunMonitor.h"
#include "UserInterface.h"

#include <cstdint>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace tunedex::test {

// Records what a run shows and aborts on request.
class FakeMonitor final : public RunMonitor {
  public:
    void SetStatus(std::string_view text) override { statuses.emplace_back(text); }
    void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                          std::string_view after) override {
        statuses.push_back(std::string(before) + std::to_string(count) + "/" + std::to_string(total) +
                           std::string(after));
    }
    void SetMaximum(std::int32_t value) override { maximum = value; }
    void SetPosition(std::int32_t value) override { positions.push_back(value); }
    bool AbortRequested() override {
        ++asked;
        return abort || (abortAtQuestion > 0 && asked >= abortAtQuestion) || (abortWhen && abortWhen());
    }

    std::vector<std::string> statuses;
    std::vector<std::int32_t> positions;
    std::int32_t maximum = 0;
    int asked = 0;
    bool abort = false;
    int abortAtQuestion = 0; // the AbortRequested() call, from 1, that first returns true; 0: none
    std::function<bool()> abortWhen;
};

// Records messages and returns prepared answers.
class FakeUserInterface final : public UserInterface {
  public:
    struct Message {
        std::string text;
        int buttons;
        std::string title;
        bool operator==(const Message&) const = default;
    };

    MainFields Fields() const override { return fields; }
    void FillFields(const MainFields& filled) override { fields = filled; }
    void TakeControls(Settings& settings) override;
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override {
        messages.push_back({std::string(text), buttons, std::string(title)});
        if (answers.empty()) {
            return kAnswerOk;
        }
        const int answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }
    std::string NameInMessage(std::string_view name) const override {
        return name.empty() || shownNames.empty() ? std::string(name) : shownNames;
    }
    void FocusAndSelect(MainField field) override { focused.push_back(field); }
    void EnableWindows() override { ++enabled; }
    RunMonitor& ShowProgress() override {
        ++shown;
        return monitor;
    }
    void SetProgressCaption(std::string_view text) override { caption = text; }
    void CloseProgress() override { ++closed; }

    MainFields fields;
    FakeMonitor monitor;
    std::vector<Message> messages;
    std::vector<int> answers; // next first; OK when empty
    std::vector<MainField> focused;
    std::string caption;
    std::string shownNames; // replaces every name in a message; empty: names unchanged
    int enabled = 0;
    int shown = 0;
    int closed = 0;
};

// Always 21 November 2026, 14:05:09; Sleep() returns at once.
class FakeClock final : public Clock {
  public:
    std::tm LocalTime() const override {
        std::tm time{};
        time.tm_year = 126;
        time.tm_mon = 10;
        time.tm_mday = 21;
        time.tm_hour = 14;
        time.tm_min = 5;
        time.tm_sec = 9;
        time.tm_wday = 6;
        time.tm_yday = 324;
        return time;
    }
    void Sleep(std::chrono::milliseconds duration) override { slept += duration; }

    std::chrono::milliseconds slept{0};
};

class FakeRegistry final : public Registry {
  public:
    std::string Read(std::string_view name) const override {
        const auto found = values.find(std::string(name));
        return found == values.end() ? "" : found->second;
    }
    void Write(std::string_view name, std::string_view text) override { values[std::string(name)] = text; }

    std::map<std::string, std::string> values;
};

// Records what the scan reports.
class FakeReporter final : public ErrorReporter {
  public:
    struct Reported {
        std::string errorTemplate;
        std::string file;
        std::string folder;
        int number;
        bool operator==(const Reported&) const = default;
    };
    void Report(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                const RunTimeError& error) override {
        reports.push_back(
            {std::string(errorTemplate), std::string(file), std::string(folder), error.Number()});
    }
    std::vector<Reported> reports;
};

// An application with fakes for all interfaces and a test folder as its program folder.
struct FakeApplication {
    explicit FakeApplication(const std::string& programFolder) {
        application.locale = Locale();
        application.programFolder = programFolder;
        registry.values["InstallationPath"] = programFolder;
    }

    FakeClock clock;
    FakeRegistry registry;
    std::ostringstream faults;
    Application application{clock, registry, faults};
};

} // namespace tunedex::test
