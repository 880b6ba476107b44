// Reads answers, one per line, from a file descriptor (usually standard input).
#pragma once

#include <cstddef>
#include <string>

namespace tunedex {

class AnswerInput {
  public:
    static constexpr std::size_t kLongestAnswer = 4096; // bytes, without the line end
    // Limit of bytes read for one question, including all wrong answers. After it the input counts as ended,
    // so that an endless one (/dev/zero, `yes maybe`) cannot block a run.
    static constexpr std::size_t kMostPerQuestion = 256 * kLongestAnswer;

    enum class Line { Read, TooLong, None };

    explicit AnswerInput(int descriptor) : descriptor_(descriptor) {}

    // Resets the byte count. Call before each question.
    void Restart() { left_ = kMostPerQuestion; }

    // Reads one line without its line end. TooLong: the line exceeds kLongestAnswer bytes; it is consumed
    // whole, and its start is stored. None: the input ended (even within a line) or a signal arrived.
    // Consumes nothing after the line, which may be input for the next program of a script.
    Line Read(std::string& line);

  private:
    const int descriptor_;
    std::size_t left_ = kMostPerQuestion;
    bool ended_ = false;
};

} // namespace tunedex
