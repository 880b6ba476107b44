#include "Fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace tunedex::fuzz {

namespace fs = std::filesystem;

namespace {

class OwnFolder {
  public:
    OwnFolder() {
        std::string pattern = (fs::temp_directory_path() / "tunedex-fuzz-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("cannot create a temporary folder: " + pattern);
        }
        path_ = pattern + "/";
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;
    ~OwnFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

} // namespace

const Target& FindTarget(std::string_view name) {
    const auto targets = Targets();
    const auto found = std::find_if(targets.begin(), targets.end(),
                                    [&](const Target& target) { return target.name == name; });
    Require(found != targets.end(), "there is a target of that name");
    return *found;
}

void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %s\n", what);
        std::abort();
    }
}

void RequireEqual(std::string_view value, std::string_view expected, const char* what) {
    if (value == expected) {
        return;
    }
    const auto difference = std::mismatch(value.begin(), value.end(), expected.begin(), expected.end()).first;
    std::fprintf(stderr, "Differs from byte %td on: %s\n--- is\n%.*s\n--- should be\n%.*s\n---\n",
                 difference - value.begin(), what, static_cast<int>(value.size()), value.data(),
                 static_cast<int>(expected.size()), expected.data());
    std::abort();
}

std::uint8_t Input::Byte() {
    if (rest_.empty()) {
        return 0;
    }
    const std::uint8_t byte = rest_.front();
    rest_ = rest_.subspan(1);
    return byte;
}

std::string Input::Until(std::uint8_t end) {
    const auto found = std::find(rest_.begin(), rest_.end(), end);
    const auto length = static_cast<std::size_t>(found - rest_.begin());
    std::string text = TextOf(rest_.first(length));
    rest_ = rest_.subspan(std::min(length + 1, rest_.size()));
    return text;
}

std::string Input::Rest() {
    std::string text = TextOf(rest_);
    rest_ = {};
    return text;
}

const std::string& EmptyFolder() {
    static const OwnFolder folder;
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
        fs::remove_all(entry.path());
    }
    return folder.Path();
}

} // namespace tunedex::fuzz
