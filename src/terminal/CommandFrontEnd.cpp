#include "CommandFrontEnd.h"

#include "Product.h"
#include "TerminalText.h"

#include <cstdlib>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};
constexpr std::string_view kClearLine = "\r\x1b[K";

// The words of a text on one line.
std::string OneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        const std::string_view piece = text.substr(0, end);
        if (!piece.empty() && !line.empty() && line.back() != ' ') {
            line += ' ';
        }
        line += piece;
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return line;
}

bool IsSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

bool IsDumb() {
    const char* terminal = std::getenv("TERM");
    return terminal == nullptr || std::string_view(terminal) == "dumb";
}

int SafeAnswer(int buttons) {
    switch (buttons & 0xF) {
    case 1:
        return kAnswerCancel;
    case 4:
        return kAnswerNo;
    default:
        return kAnswerOk;
    }
}

} // namespace

CommandFrontEnd::Style StyleFor(int output, bool quiet) {
    const bool progress = !quiet && isatty(output) == 1 && !IsDumb();
    return {.progress = progress, .colours = progress && !IsSet("NO_COLOR")};
}

void CommandFrontEnd::Print(std::string_view text) {
    Clear();
    const std::string line = std::string(kProductTitle) + ": " + OneLine(text);
    output_.Write((output_.IsTerminal() ? TerminalText(line) : line) + "\n");
}

int CommandFrontEnd::ShowMessage(std::string_view text, int buttons, std::string_view /*title*/) {
    Print(text);
    return SafeAnswer(buttons);
}

void CommandFrontEnd::SetStatus(std::string_view text) {
    status_ = text;
    done_ = 0;
    total_ = 0;
    phaseStart_ = std::chrono::steady_clock::now();
    Paint(phaseStart_);
}

void CommandFrontEnd::SetDone(std::int32_t done, std::int32_t total) {
    done_ = done;
    total_ = total;
    if (!style_.progress || (++calls_ & 0xFU) != 0) {
        return; // reads the clock for every 16th file only
    }
    const Time now = std::chrono::steady_clock::now();
    if (now - lastPaint_ >= kPaintInterval) {
        Paint(now);
    }
}

void CommandFrontEnd::Paint(Time now) {
    if (!style_.progress) {
        return;
    }
    lastPaint_ = now;
    painted_ = true;
    const Progress progress{status_, done_, total_,
                            std::chrono::duration_cast<std::chrono::milliseconds>(now - phaseStart_)};
    output_.Write("\r" + ProgressText(progress, output_.Columns(), style_.colours) + "\x1b[K");
}

void CommandFrontEnd::Clear() {
    if (painted_) {
        output_.Write(kClearLine);
        painted_ = false;
    }
}

} // namespace tunedex
