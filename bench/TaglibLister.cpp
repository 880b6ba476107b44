// taglib_lister: the smallest lister that TagLib allows, to measure beside. It walks a folder and prints
// artist, album, title, bitrate and length of every MP3 file.
//
// usage: taglib_lister FOLDER

#include <taglib/audioproperties.h>
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
        const TagLib::MPEG::File file(entry.path().c_str());
        const TagLib::Tag* const tag = file.tag();
        const TagLib::AudioProperties* const audio = file.audioProperties();
        if (tag != nullptr && audio != nullptr) {
            std::cout << tag->artist().to8Bit(true) << '\t' << tag->album().to8Bit(true) << '\t'
                      << tag->title().to8Bit(true) << '\t' << audio->bitrate() << '\t'
                      << audio->lengthInSeconds() << '\n';
        }
    }
    return 0;
}
