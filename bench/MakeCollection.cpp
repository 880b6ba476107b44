// make_collection: fills a folder with sparse MP3 files of realistic size. The same seed gives the same
// files.

#include "Collection.h"
#include "Numbers.h"

#include <cerrno>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::string_view kUsage = R"USAGE(usage: make_collection FOLDER [OPTION...]
Creates FOLDER, which must not exist, with folders of sparse MP3 files of 3 to 8 MB.

  --count N       number of files (default 20000)
  --seed N        seed of the random generator (1)
  --untagged P    percentage of files without a tag (3)
  --vbr P         percentage of files with a Xing header (30)
  --covers P      percentage of files with an ID3v2 tag that contain a large picture (35)
)USAGE";

struct Options {
    std::string folder;
    tunedex::CollectionOptions collection;
};

std::uint32_t Number(const std::string& text, std::uint32_t most) {
    const double number = tunedex::RequireNumber(text);
    if (number < 0 || number > most) {
        throw std::invalid_argument(text + " is not a number from 0 to " + std::to_string(most));
    }
    return static_cast<std::uint32_t>(number);
}

void Take(Options& options, const std::string& name, const std::string& value) {
    if (name == "--count") {
        options.collection.files = Number(value, 100'000'000);
    } else if (name == "--seed") {
        options.collection.seed = Number(value, 0xFFFFFFFFU);
    } else if (name == "--untagged") {
        options.collection.untaggedPercent = Number(value, 100);
    } else if (name == "--vbr") {
        options.collection.vbrPercent = Number(value, 100);
    } else if (name == "--covers") {
        options.collection.coverPercent = Number(value, 100);
    } else {
        throw std::invalid_argument("unknown option " + name);
    }
}

Options ParseOptions(const std::vector<std::string>& arguments) {
    if (arguments.size() % 2 == 0 || arguments[0].rfind("--", 0) == 0) {
        throw std::invalid_argument("expected a folder, then options, each with a value");
    }
    Options options;
    options.folder = arguments[0];
    for (std::size_t i = 1; i < arguments.size(); i += 2) {
        Take(options, arguments[i], arguments[i + 1]);
    }
    return options;
}

[[noreturn]] void Fail(const std::string& path) {
    throw std::runtime_error(path + ": " + std::strerror(errno));
}

void WriteFile(const std::string& path, const tunedex::CollectionFile& file) {
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        Fail(path);
    }
    bool good = ftruncate(descriptor, static_cast<off_t>(file.size)) == 0;
    for (const tunedex::FilePart& part : file.parts) {
        good = good && pwrite(descriptor, part.bytes.data(), part.bytes.size(),
                              static_cast<off_t>(part.offset)) == static_cast<ssize_t>(part.bytes.size());
    }
    if (close(descriptor) != 0 || !good) {
        Fail(path);
    }
}

void Make(const Options& options) {
    if (!std::filesystem::create_directories(options.folder)) {
        throw std::runtime_error(options.folder + " already exists");
    }
    tunedex::Collection collection(options.collection);
    std::string folder;
    while (!collection.AtEnd()) {
        const tunedex::CollectionFile file = collection.Next();
        if (file.folder != folder) {
            folder = file.folder;
            std::filesystem::create_directories(options.folder + "/" + folder);
        }
        WriteFile(options.folder + "/" + folder + "/" + file.name, file);
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        Make(ParseOptions(std::vector<std::string>(argv + 1, argv + argc)));
    } catch (const std::invalid_argument& error) {
        std::cerr << "make_collection: " << error.what() << "\n\n" << kUsage;
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "make_collection: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
