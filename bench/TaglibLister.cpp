// taglib_lister: the smallest lister that TagLib allows, to measure beside. It walks a folder and prints
// artist, album and title of every MP3 file.
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
        // Without the audio: it would look for the last frame, and the collection's files are zeros behind
        // the first.
        const TagLib::MPEG::File file(entry.path().c_str(), false);
        if (const TagLib::Tag* const tag = file.tag(); tag != nullptr) {
            std::cout << tag->artist().to8Bit(true) << '\t' << tag->album().to8Bit(true) << '\t'
                      << tag->title().to8Bit(true) << '\n';
        }
    }
    return 0;
}
