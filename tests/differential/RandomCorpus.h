// A small random collection of valid and damaged MP3 files, with random settings to list it.
#pragma once

#include "Settings.h"
#include "TestFolder.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tunedex::test {

class RandomCorpus {
  public:
    // The same seed gives the same collection in any folder.
    RandomCorpus(const TestFolder& folder, std::uint32_t seed);

    const Settings& ListSettings() const { return settings_; }
    const std::vector<std::string>& EntityLines() const { return entityLines_; }

  private:
    unsigned Below(unsigned limit);
    bool OneIn(unsigned chances) { return Below(chances) == 0; }
    std::string Pick(const std::vector<std::string>& choices);
    std::string Text(bool mayHoldAnyByte);
    std::string Name();
    std::string Id3v2();
    std::string Id3v1();
    std::string File();
    void MakeFolders();
    void MakeSettings();
    void MakeEntities();

    const TestFolder& folder_;
    std::mt19937 random_;
    std::vector<std::string> folders_;
    Settings settings_;
    std::vector<std::string> entityLines_;
};

} // namespace tunedex::test
