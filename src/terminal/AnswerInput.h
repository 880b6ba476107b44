// Answers from a file descriptor, standard input as a rule: one line each.
#pragma once

#include <cstddef>
#include <string>

namespace tunedex {

class AnswerInput {
  public:
    static constexpr std::size_t kLongestAnswer = 4096; // bytes, without the line end
    // Bytes read for one question, over all its wrong answers. An input that brings no answer within them
    // counts as ended from then on, so that an endless one (/dev/zero, `yes maybe`) ends a run.
    static constexpr std::size_t kMostPerQuestion = 256 * kLongestAnswer;

    enum class Line { Read, TooLong, None };

    explicit AnswerInput(int descriptor) : descriptor_(descriptor) {}

    // Begins a question.
    void Restart() { left_ = kMostPerQuestion; }

    // Reads one line, without its end. TooLong: more than kLongestAnswer bytes; all of the line is consumed
    // and its beginning stored. None: the input has ended, also within a line, or a signal has arrived.
    // Nothing behind the line is consumed: it may be meant for the next program of a script.
    Line Read(std::string& line);

  private:
    const int descriptor_;
    std::size_t left_ = kMostPerQuestion;
    bool ended_ = false;
};

} // namespace tunedex
