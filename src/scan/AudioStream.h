// Measures the MPEG audio of a file: layers I to III of MPEG-1, MPEG-2 and MPEG-2.5, also in the free format.
#pragma once

#include "ByteSource.h"
#include "MpegHeader.h"
#include "TagLayout.h"
#include "TrackInfo.h"

#include <cstdint>

namespace tunedex {

struct AudioStream {
    MpegVersion version = MpegVersion::V1;
    MpegLayer layer = MpegLayer::III;
    std::uint8_t mode = 0;      // 0 to 3
    std::int32_t frequency = 0; // Hz
    double bitrate = 0;         // kbit/s, of variable bitrates the mean; 0 in the free format
    double seconds = 0;         // at most kLongestSeconds
};

// The longest playing time, in seconds.
inline constexpr double kLongestSeconds = 33554431;

// Measures the audio between the tags. The playing time comes from the number of frames in a Xing, Info or
// VBRI header, otherwise from the bytes of audio and the bitrate, of which the mean of the first frames is
// taken if it changes among them. Raises error 62 without a frame, or the error of a failed read.
AudioStream MeasureAudio(ByteSource& file, const TagLayout& layout);

// Sets bitrate, frequency, mode, MPEG type, duration and whole seconds (cut). Raises what MeasureAudio
// raises; the track is then unchanged.
void ReadAudioStream(ByteSource& file, const TagLayout& layout, TrackInfo& track);

} // namespace tunedex
