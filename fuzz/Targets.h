// The fuzz targets, one per file in targets/.
#pragma once

#include "Fuzzing.h"

namespace tunedex::fuzz {

void RunId3v1(Bytes bytes);
void RunId3v2(Bytes bytes);
void RunMpegHeader(Bytes bytes);
void RunWholeFile(Bytes bytes);
void RunSettings(Bytes bytes);
void RunTheme(Bytes bytes);
void RunEntities(Bytes bytes);
void RunStatistics(Bytes bytes);
void RunTips(Bytes bytes);
void RunMultiFolder(Bytes bytes);
void RunCommandLine(Bytes bytes);
void RunSorting(Bytes bytes);
void RunParallelRead(Bytes bytes);
void RunId3v2Frames(Bytes bytes);
void RunApev2(Bytes bytes);
void RunAudioStream(Bytes bytes);
void RunModernTags(Bytes bytes);

} // namespace tunedex::fuzz
