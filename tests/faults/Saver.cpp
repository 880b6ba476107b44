// saver KIND FOLDER COUNT: saves a file COUNT times with the program's own code, alternating between two
// contents. KIND: settings, statistics, theme. Exits with the number of the run-time error that stopped it,
// or 0.
#include "DefaultSettings.h"
#include "RunTimeError.h"
#include "SettingsFuncs.h"
#include "Statistics.h"
#include "Themes.h"

#include <cstdlib>
#include <string>

namespace {

const tunedex::FileStamp kStamp{"1.0", "2026-11-21", "14:05"};

// Long enough for several writes to a small disk.
std::string LongText(char c) {
    return std::string(200000, c);
}

void Save(const std::string& kind, const std::string& folder, bool second) {
    const std::string text = LongText(second ? 'b' : 'a');
    if (kind == "settings") {
        tunedex::Settings settings = tunedex::DefaultSettings();
        settings.PageTitle = text;
        tunedex::SaveSettings(settings, "", folder, kStamp);
    } else if (kind == "statistics") {
        tunedex::SaveStatistics({text, second ? 2 : 1, 3, 4}, folder + "stats.lst");
    } else {
        tunedex::ThemeContent content;
        content.tableWidth = text;
        tunedex::WriteThemeFile(folder + "theme.thm", content, kStamp);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;
    }
    const long count = std::strtol(argv[3], nullptr, 10);
    try {
        for (long i = 0; i < count; ++i) {
            Save(argv[1], argv[2], i % 2 == 1);
        }
    } catch (const tunedex::RunTimeError& error) {
        return error.Number();
    }
    return 0;
}
