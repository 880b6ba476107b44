#include "AudioStream.h"

#include "FrameSearch.h"
#include "PlayTime.h"
#include "RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace tunedex {

namespace {

constexpr int kFramesCompared = 4;
constexpr int kFramesAveraged = 256;

// The first offset behind the tags at the start of the file.
std::uint64_t AudioStart(const AudioBytes& audio, const TagLayout& layout) {
    constexpr int kMostTags = 32;
    std::uint64_t offset = layout.id3v2 ? layout.id3v2->tagBytes : 0;
    for (int tags = 0; tags < kMostTags && offset < audio.end; ++tags) {
        std::array<std::uint8_t, kTagStartBytes> start{};
        const std::uint64_t bytes = LeadingTagBytes(audio.Read(offset, start));
        if (bytes == 0 || bytes > audio.end - offset) {
            break;
        }
        offset += bytes;
    }
    return offset;
}

std::optional<FoundFrame> FindAudio(const AudioBytes& audio, const TagLayout& layout) {
    if (const auto frame = FindFirstFrame(audio, AudioStart(audio, layout))) {
        return frame;
    }
    // A tag may declare more bytes than the file has. A frame may even begin in what looks like its size.
    const bool cut = layout.id3v2 && layout.id3v2->tagBytes > audio.file.Size();
    return cut ? FindFirstFrame(audio, 0) : std::nullopt;
}

double SecondsOf(double frames, const FrameHead& head) {
    return frames * head.Samples() / head.frequency;
}

constexpr double kBytesOfKbit = 125;

// With one division, so that a mean of exactly half a kbit/s is not rounded down.
double KbitsPerSecond(double bytes, double frames, const FrameHead& head) {
    return bytes * head.frequency / (kBytesOfKbit * frames * head.Samples());
}

// Lengths and bitrates of the frames from `offset` on.
class FirstFrames {
  public:
    FirstFrames(const AudioBytes& audio, std::uint64_t offset, const FrameHead& head)
        : audio_(audio), offset_(offset), stream_(head) {}

    // Goes on until that many frames are counted or no other follows.
    void CountUpTo(int frames) {
        while (count_ < frames && !ended_) {
            const auto head = FrameHeadAt(audio_, offset_);
            ended_ = !head || !head->Matches(stream_);
            if (!ended_) {
                varies_ = varies_ || (count_ > 0 && head->bitrate != bitrate_);
                bitrate_ = head->bitrate;
                bytes_ += static_cast<double>(head->Length());
                offset_ += head->Length();
                ++count_;
            }
        }
    }
    bool Varies() const { return varies_; }
    std::int32_t Bitrate() const { return bitrate_; }
    double Bytes() const { return bytes_; }
    int Count() const { return count_; }

  private:
    const AudioBytes& audio_;
    std::uint64_t offset_;
    FrameHead stream_;
    int count_ = 0;
    std::int32_t bitrate_ = 0;
    double bytes_ = 0;
    bool varies_ = false;
    bool ended_ = false;
};

// Bitrate and seconds from the bytes from `offset` on and the first frames there.
void Estimate(const AudioBytes& audio, std::uint64_t offset, const FrameHead& head, double bytes,
              AudioStream& stream) {
    FirstFrames frames(audio, offset, head);
    frames.CountUpTo(kFramesCompared);
    stream.bitrate = frames.Bitrate();
    if (frames.Varies()) {
        frames.CountUpTo(kFramesAveraged);
        stream.bitrate = KbitsPerSecond(frames.Bytes(), frames.Count(), head);
    }
    stream.seconds = bytes / kBytesOfKbit / stream.bitrate;
}

// Whether the number of frames in a header can be true.
bool IsUsable(const std::optional<VbrHeader>& vbr, const FrameHead& head) {
    return vbr && vbr->frameCount > 0 && SecondsOf(vbr->frameCount, head) <= kLongestSeconds;
}

void MeasureTime(const AudioBytes& audio, const FoundFrame& frame, AudioStream& stream) {
    const auto bytes = static_cast<double>(audio.end - frame.offset);
    if (frame.head.bitrate == 0) {
        stream.seconds = SecondsOf(bytes / static_cast<double>(frame.length), frame.head);
        return;
    }
    const auto vbr = FindVbrHeader(audio, frame);
    if (IsUsable(vbr, frame.head)) {
        stream.seconds = SecondsOf(vbr->frameCount, frame.head);
        // An Info header may be in a frame of another bitrate than the audio behind it.
        const FrameHead& audio = frame.nextHead ? *frame.nextHead : frame.head;
        stream.bitrate = vbr->variable ? KbitsPerSecond(bytes, vbr->frameCount, frame.head) : audio.bitrate;
    } else if (vbr && frame.nextHead) {
        Estimate(audio, frame.offset + frame.length, frame.head, bytes - static_cast<double>(frame.length),
                 stream);
    } else {
        Estimate(audio, frame.offset, frame.head, bytes, stream);
    }
}

std::string BitrateText(double bitrate) {
    return bitrate == 0 ? "free" : std::to_string(std::llround(bitrate));
}

} // namespace

AudioStream MeasureAudio(ByteSource& file, const TagLayout& layout) {
    const AudioBytes audio{file, layout.audioEnd};
    const auto frame = FindAudio(audio, layout);
    if (!frame) {
        throw RunTimeError(ErrorNumber::InputPastEnd);
    }
    AudioStream stream;
    stream.version = frame->head.version;
    stream.layer = frame->head.layer;
    stream.mode = frame->head.mode;
    stream.frequency = frame->head.frequency;
    MeasureTime(audio, *frame, stream);
    stream.seconds = std::min(stream.seconds, kLongestSeconds);
    return stream;
}

void ReadAudioStream(ByteSource& file, const TagLayout& layout, TrackInfo& track) {
    const AudioStream stream = MeasureAudio(file, layout);
    const auto seconds = static_cast<std::int32_t>(stream.seconds);
    track.Bitrate = BitrateText(stream.bitrate);
    track.Frequency = std::to_string(stream.frequency);
    track.Mode = MpegModeText(stream.mode);
    track.MpegType = MpegTypeText(stream.version, stream.layer);
    track.Duration = MinutesAndSeconds(seconds);
    track.Seconds = seconds;
}

} // namespace tunedex
