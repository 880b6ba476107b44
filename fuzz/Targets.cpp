#include "Targets.h"

#include <array>

namespace tunedex::fuzz {

std::span<const Target> Targets() {
    static constexpr std::array kTargets = {
        Target{"id3v1", RunId3v1},
        Target{"id3v2", RunId3v2},
        Target{"mpegheader", RunMpegHeader},
        Target{"wholefile", RunWholeFile},
        Target{"settings", RunSettings},
        Target{"theme", RunTheme},
        Target{"entities", RunEntities},
        Target{"statistics", RunStatistics},
        Target{"tips", RunTips},
        Target{"multifolder", RunMultiFolder},
        Target{"commandline", RunCommandLine},
        Target{"sorting", RunSorting},
        Target{"parallelread", RunParallelRead},
        Target{"id3v2frames", RunId3v2Frames},
        Target{"apev2", RunApev2},
        Target{"audiostream", RunAudioStream},
        Target{"moderntags", RunModernTags},
    };
    return kTargets;
}

} // namespace tunedex::fuzz
