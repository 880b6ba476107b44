// Generates a music collection of any size: name, size and non-zero bytes of each file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tunedex {

struct CollectionOptions {
    std::uint32_t files = 20000;
    std::uint64_t seed = 1;
    unsigned untaggedPercent = 3; // files with neither tag
    unsigned vbrPercent = 30;     // files with a Xing header
    unsigned coverPercent = 35;   // files with a picture of 20 to 400 KB, of those with an ID3v2 tag
};

// Bytes at an offset of a file.
struct FilePart {
    std::uint64_t offset = 0;
    std::string bytes;
};

struct CollectionFile {
    std::string folder; // relative: "Artist/Album"
    std::string name;
    std::uint64_t size = 0;      // 3 to 8 MB
    std::vector<FilePart> parts; // by offset, with holes between them
};

// Generates files album by album. The same options give the same files on every machine.
class Collection {
  public:
    explicit Collection(const CollectionOptions& options);

    bool AtEnd() const { return made_ == options_.files; }
    // The next file. Requires !AtEnd().
    CollectionFile Next();

  private:
    std::uint64_t Random();
    // A number in [least, most].
    std::uint64_t Between(std::uint64_t least, std::uint64_t most);
    bool Percent(unsigned share);
    std::string Words(std::size_t least, std::size_t most);
    void StartAlbum();
    std::size_t AddTagInFront(CollectionFile& file, const std::string& title);
    void AddFrames(CollectionFile& file, std::size_t offset);

    CollectionOptions options_;
    std::uint64_t state_;
    std::uint32_t made_ = 0;
    std::uint32_t artists_ = 0;
    unsigned albumsLeft_ = 0; // for the current artist
    unsigned tracksLeft_ = 0; // on the current album
    unsigned track_ = 0;
    std::string artist_;
    std::string album_;
    std::string year_;
    std::string genre_;
    std::string artistFolder_;
    std::string albumFolder_;
};

} // namespace tunedex
