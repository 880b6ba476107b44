#include "AnswerInput.h"

#include "Interrupts.h"

#include <cerrno>
#include <unistd.h>

namespace tunedex {

AnswerInput::Line AnswerInput::Read(std::string& line) {
    line.clear();
    bool tooLong = false;
    while (!ended_ && WaitForInput(descriptor_)) {
        char c = 0;
        const ssize_t got = read(descriptor_, &c, 1);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return Line::None;
        }
        ended_ = --left_ == 0;
        if (c == '\n') {
            return tooLong ? Line::TooLong : Line::Read;
        }
        tooLong = line.size() == kLongestAnswer;
        if (!tooLong) {
            line += c;
        }
    }
    return Line::None;
}

} // namespace tunedex
