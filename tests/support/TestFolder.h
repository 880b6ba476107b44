// A temporary folder that is removed with the test.
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

    // With a trailing separator.
    const std::string& Path() const { return path_; }
    std::string operator/(std::string_view name) const { return path_ + std::string(name); }

    // Writes a file and creates its missing parent folders. Returns its path.
    std::string Write(std::string_view name, std::string_view bytes) const;
    // Creates a folder and its missing parents. Returns its path without a trailing separator.
    std::string Make(std::string_view name) const;
    bool Exists(std::string_view name) const;

  private:
    std::string path_;
};

// All bytes of a file. Fails the test when it cannot be read.
std::string ReadBytes(const std::string& path);

// A string literal that may contain NULs.
inline std::string Bytes(std::string_view text) {
    return std::string(text);
}

} // namespace tunedex::test
