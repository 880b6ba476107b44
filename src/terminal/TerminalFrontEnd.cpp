#include "TerminalFrontEnd.h"

#include "Startup.h"
#include "Text.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tunedex {

namespace {

volatile std::sig_atomic_t interrupted = 0; // the one thing a signal handler may touch

void OnInterrupt(int /*signal*/) {
    interrupted = 1;
}

constexpr std::chrono::milliseconds kTerminalInterval{50};
constexpr std::chrono::milliseconds kLineInterval{1000};

// Waits until there is something to read, or its end. Returns false when a signal interrupts; one that comes
// just before the waiting begins is not missed, since signals are let in only while it lasts.
bool WaitForInput(int input) {
    sigset_t signals;
    sigset_t before;
    sigemptyset(&signals);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        sigaddset(&signals, number);
    }
    pthread_sigmask(SIG_BLOCK, &signals, &before);
    while (interrupted == 0 &&
           input >= 0) { // a descriptor below 0 would never be ready; reading from it tells
        pollfd waiting{input, POLLIN, 0};
        if (ppoll(&waiting, 1, nullptr, &before) >= 0 || errno != EINTR) {
            break;
        }
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return interrupted == 0;
}

struct Choice {
    std::string_view prompt;
    int safe;
    int other; // the answer of the other button; the safe one where there is none
    std::string_view safeKeys;
    std::string_view otherKeys;
};

Choice ChoiceFor(int buttons) {
    switch (buttons & 0xF) {
    case 1:
        return {"OK or Cancel? [Cancel] ", kAnswerCancel, kAnswerOk, "CANCEL", "OK"};
    case 4:
        return {"Yes or No? [No] ", kAnswerNo, kAnswerYes, "NO", "YES"};
    default:
        return {"[OK] ", kAnswerOk, kAnswerOk, "OK", "OK"};
    }
}

// What a line of input answers; 0 when it is none of the buttons' names or their beginnings.
int AnswerIn(std::string_view line, const Choice& choice) {
    const std::string word = UpperCase(TrimBlanks(line));
    if (word.empty() || choice.safe == choice.other || choice.safeKeys.starts_with(word)) {
        return choice.safe;
    }
    return choice.otherKeys.starts_with(word) ? choice.other : 0;
}

// A name from a file system must not steer the terminal.
std::string WithoutControls(std::string_view text) {
    std::string clean;
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        const char32_t c = step.character; // of a stray byte its value, which an 8-bit terminal takes for it
        if ((c < 0x20 && c != '\n') || (c >= 0x7F && c <= 0x9F)) {
            clean += '?';
        } else {
            clean += text.substr(i, step.length);
        }
        i += step.length;
    }
    return clean;
}

} // namespace

TerminalFrontEnd::TerminalFrontEnd(Application& application, int input, int output)
    : application_(application), input_(input), output_(output), isTerminal_(isatty(output) == 1) {}

void TerminalFrontEnd::CatchSignals() {
    struct sigaction action {};
    action.sa_handler = OnInterrupt;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        sigaction(number, &action, nullptr);
    }
}

void TerminalFrontEnd::TakeControls(Settings& settings) {
    TakeMainFields(settings, fields_);
    TakeLayoutControls(settings);
}

void TerminalFrontEnd::Print(std::string_view text) const {
    std::string_view rest = text;
    while (!rest.empty()) {
        const ssize_t done = write(output_, rest.data(), rest.size());
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done <= 0) {
            return; // nobody can be told
        }
        rest.remove_prefix(static_cast<std::size_t>(done));
    }
}

bool TerminalFrontEnd::ReadLine(std::string& line) const {
    line.clear();
    char c = 0;
    while (WaitForInput(input_)) {
        const ssize_t got = read(input_, &c, 1);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return false;
        }
        if (c == '\n') {
            return true;
        }
        line += c;
    }
    return false;
}

int TerminalFrontEnd::ShowMessage(std::string_view text, int buttons, std::string_view title) {
    FinishStatus();
    std::string message = std::string(title) + "\n" + ReplaceAll(text, "\r\n", "\n") + "\n";
    Print(isTerminal_ ? WithoutControls(message) : message);
    const Choice choice = ChoiceFor(buttons);
    std::string line;
    while (true) {
        Print(std::string(choice.prompt));
        if (!ReadLine(line)) {
            Print("\n");
            return choice.safe;
        }
        if (const int answer = AnswerIn(line, choice)) {
            return answer;
        }
    }
}

RunMonitor& TerminalFrontEnd::ShowProgress() {
    open_ = true;
    maximum_ = 0;
    position_ = 0;
    return *this;
}

void TerminalFrontEnd::CloseProgress() {
    FinishStatus();
    open_ = false;
}

void TerminalFrontEnd::SetStatus(std::string_view text) {
    if (!open_) {
        return;
    }
    FinishStatus();
    status_ = Status();
    status_.text = text;
    unpainted_ = true;
    Paint();
}

void TerminalFrontEnd::SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                                        std::string_view after) {
    status_.before = before;
    status_.after = after;
    status_.count = count;
    status_.total = total;
    status_.counted = true;
    unpainted_ = open_;
    if ((++calls_ & 0xFU) != 0) {
        return; // the clock need not be asked for each of a million files
    }
    if (std::chrono::steady_clock::now() - lastPaint_ >= (isTerminal_ ? kTerminalInterval : kLineInterval)) {
        Paint();
    }
}

bool TerminalFrontEnd::AbortRequested() {
    if (interrupted != 0) {
        application_.abortRequested = true;
    }
    return application_.abortRequested;
}

std::string TerminalFrontEnd::StatusText() const {
    if (!status_.counted) {
        return status_.text;
    }
    return std::string(status_.before) + std::to_string(status_.count) + "/" + std::to_string(status_.total) +
           std::string(status_.after);
}

std::string TerminalFrontEnd::Bar() const {
    constexpr std::int64_t kWidth = 20;
    if (maximum_ <= 0) {
        return {};
    }
    const auto filled =
        static_cast<std::size_t>(std::min<std::int64_t>(kWidth, position_ * kWidth / maximum_));
    return "[" + std::string(filled, '#') + std::string(kWidth - filled, '.') + "] ";
}

void TerminalFrontEnd::Paint() {
    if (!unpainted_) {
        return;
    }
    unpainted_ = false;
    lastPaint_ = std::chrono::steady_clock::now();
    if (!isTerminal_) {
        Print(StatusText() + "\n");
        return;
    }
    std::string line = Bar() + StatusText();
    winsize size{};
    if (ioctl(output_, TIOCGWINSZ, &size) == 0 && size.ws_col > 1 && line.size() >= size.ws_col) {
        line.resize(size.ws_col - 1U);
    }
    Print("\r" + line + "\x1b[K");
}

// The last state of a status is always shown; on a terminal its line is ended.
void TerminalFrontEnd::FinishStatus() {
    if (!open_) {
        return;
    }
    Paint();
    if (isTerminal_ && (!status_.text.empty() || status_.counted)) {
        Print("\n");
    }
    status_ = Status();
}

} // namespace tunedex
