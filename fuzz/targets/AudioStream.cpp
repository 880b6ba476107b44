// Input: a file. Two bytes at its start, times 2, are the length of zeros put in front, so that searches
// cross the ends of their reads.
#include "AudioStream.h"

#include "BoundedSource.h"
#include "RunTimeError.h"
#include "Targets.h"

#include <optional>

namespace tunedex::fuzz {

namespace {

std::optional<AudioStream> Measure(const std::string& file) {
    BoundedSource source(BytesOf(file));
    const TagLayout layout = FindTags(source);
    Require(layout.audioEnd <= file.size(), "the audio ends in the file");
    std::optional<AudioStream> stream;
    try {
        stream = MeasureAudio(source, layout);
    } catch (const RunTimeError& error) {
        Require(error.Is(ErrorNumber::InputPastEnd), "only error 62 is raised");
    }
    source.RequireLinear(6);
    return stream;
}

} // namespace

void RunAudioStream(Bytes bytes) {
    Input input(bytes);
    const std::size_t high = input.Byte();
    const std::size_t zeros = (high * 256U + input.Byte()) * 2U;
    const std::string audio = input.Rest();
    const auto stream = Measure(audio);
    if (stream) {
        Require(stream->seconds >= 0 && stream->seconds <= kLongestSeconds, "the seconds are in range");
        Require(stream->bitrate >= 0, "the bitrate is not negative");
        Require(stream->frequency >= 8000 && stream->frequency <= 48000, "the frequency is one of the table");
        MemoryByteSource source(BytesOf(audio));
        TrackInfo track;
        ReadAudioStream(source, FindTags(source), track);
        Require(track.Seconds == static_cast<std::int32_t>(stream->seconds), "seconds are cut to whole ones");
        Require(!track.Bitrate.empty() && !track.Duration.empty(), "the texts are set");
    }
    Measure(std::string(zeros, '\0') + audio);
}

} // namespace tunedex::fuzz
