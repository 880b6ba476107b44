#include "TestFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace tunedex::test {

namespace fs = std::filesystem;

TestFolder::TestFolder() {
    std::string pattern = (fs::temp_directory_path() / "tunedex-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no folder for the test: " + pattern);
    }
    path_ = pattern + "/";
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    // A test may have removed its own permissions.
    for (auto entry =
             fs::recursive_directory_iterator(path_, fs::directory_options::skip_permission_denied, ignored);
         entry != fs::recursive_directory_iterator(); entry.increment(ignored)) {
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
    }
    fs::remove_all(path_, ignored);
}

std::string TestFolder::Write(std::string_view name, std::string_view bytes) const {
    std::string path = *this / name;
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path);
    }
    return path;
}

std::string TestFolder::Make(std::string_view name) const {
    std::string path = *this / name;
    fs::create_directories(path);
    return path;
}

bool TestFolder::Exists(std::string_view name) const {
    return fs::exists(fs::symlink_status(*this / name));
}

std::string ReadBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace tunedex::test
