// A folder of a test's own, gone with the test.
#pragma once

#include <string>
#include <string_view>

namespace tunedex::test {

class TestFolder {
  public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    // The folder's path, ending in a separator.
    const std::string& Path() const { return path_; }
    std::string operator/(std::string_view name) const { return path_ + std::string(name); }

    // Writes a file, making the folders on the way to it. Returns its path.
    std::string Write(std::string_view name, std::string_view bytes) const;
    // Makes a folder and those on the way to it. Returns its path, without a separator at its end.
    std::string Make(std::string_view name) const;
    bool Exists(std::string_view name) const;

  private:
    std::string path_;
};

// All bytes of a file; fails loudly where it cannot be read.
std::string ReadBytes(const std::string& path);

// A string literal that may hold NULs.
inline std::string Bytes(std::string_view text) {
    return std::string(text);
}

} // namespace tunedex::test
