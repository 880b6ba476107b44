#include "TerminalFrontEnd.h"

#include "TerminalText.h"
#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

constexpr std::chrono::milliseconds kTerminalInterval{50};
constexpr std::chrono::milliseconds kLineInterval{1000};

struct Choice {
    std::string_view prompt;
    int safe;
    int other; // equal to `safe` if there is only one button
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

// The answer in a line of input: a button's name or a prefix of it, in any case. 0 if it is neither.
int AnswerIn(std::string_view line, const Choice& choice) {
    const std::string word = UpperCase(TrimBlanks(line));
    if (word.empty() || choice.safe == choice.other || choice.safeKeys.starts_with(word)) {
        return choice.safe;
    }
    return choice.otherKeys.starts_with(word) ? choice.other : 0;
}

} // namespace

TerminalFrontEnd::TerminalFrontEnd(Application& application, int input, int output)
    : WindowlessFrontEnd(application, output), input_(input) {}

// Formats a message. On a terminal only CR LF starts a new line; a lone CR or LF in a name does not.
std::string TerminalFrontEnd::MessageText(std::string_view text, std::string_view title) const {
    if (!output_.IsTerminal()) {
        return std::string(title) + "\n" + ReplaceAll(text, "\r\n", "\n") + "\n";
    }
    std::string message = TerminalText(title) + "\n";
    for (const std::string& line : Split(text, "\r\n")) {
        message += TerminalText(line) + "\n";
    }
    return message;
}

int TerminalFrontEnd::ShowMessage(std::string_view text, int buttons, std::string_view title) {
    FinishStatus();
    output_.Write(MessageText(text, title));
    const Choice choice = ChoiceFor(buttons);
    std::string line;
    input_.Restart();
    while (true) {
        output_.Write(choice.prompt);
        const AnswerInput::Line read = input_.Read(line);
        if (read == AnswerInput::Line::None) {
            output_.Write("\n");
            return choice.safe;
        }
        const int answer = read == AnswerInput::Line::Read ? AnswerIn(line, choice) : 0;
        if (answer != 0) {
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
        return; // reads the clock for every 16th file only
    }
    if (std::chrono::steady_clock::now() - lastPaint_ >=
        (output_.IsTerminal() ? kTerminalInterval : kLineInterval)) {
        Paint();
    }
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
    if (!output_.IsTerminal()) {
        output_.Write(StatusText() + "\n");
        return;
    }
    const std::string line = Bar() + TerminalText(StatusText());
    const unsigned columns = output_.Columns();
    // A character is at most as wide as its number of bytes. The last column stays free because some
    // terminals wrap there.
    const std::string_view shown = columns > 1 ? CutToBytes(line, columns - 1U) : std::string_view(line);
    output_.Write("\r" + std::string(shown) + "\x1b[K");
}

// Paints the last state of the status and, on a terminal, ends its line.
void TerminalFrontEnd::FinishStatus() {
    if (!open_) {
        return;
    }
    Paint();
    if (output_.IsTerminal() && (!status_.text.empty() || status_.counted)) {
        output_.Write("\n");
    }
    status_ = Status();
}

} // namespace tunedex
