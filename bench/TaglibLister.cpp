// taglib_lister: a minimal lister that uses TagLib, for comparison. It walks a folder and prints artist,
// album and title of every MP3 file.
//
// usage: taglib_lister FOLDER

#include <taglib/mpegfile.h>
#include <taglib/tag.h>

#include <filesystem>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: taglib_lister FOLDER\n";
        return 2;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[1])) {
        if (entry.path().extension() != ".mp3") {
            continue;
        }
        // Without audio properties: TagLib would look for the last frame, and the files of the collection are
        // zeros after the first frames.
        const TagLib::MPEG::File file(entry.path().c_str(), false);
        if (const TagLib::Tag* const tag = file.tag(); tag != nullptr) {
            std::cout << tag->artist().to8Bit(true) << '\t' << tag->album().to8Bit(true) << '\t'
                      << tag->title().to8Bit(true) << '\n';
        }
    }
    return 0;
}
