// Input: a file of tips, one per line.
#include "Tips.h"

#include "Targets.h"
#include "Text.h"
#include "TextFile.h"
#include "TextLines.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tunedex::fuzz {

void RunTips(Bytes bytes) {
    std::string file = TextOf(bytes);
    const std::vector<std::string> lines = SplitTextLines(file);
    if (file.starts_with(kByteOrderMark)) {
        file.erase(0, kByteOrderMark.size());
    }
    // Converts all line ends to LF, then splits.
    std::vector<std::string> expected = Split(ReplaceAll(ReplaceAll(file, "\r\n", "\n"), "\r", "\n"), "\n");
    if (file.ends_with('\n') || file.ends_with('\r')) {
        expected.pop_back();
    }
    Require(lines.size() == expected.size(), "the number of lines");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        RequireEqual(lines[i], IsValidUtf8(expected[i]) ? expected[i] : DecodeWindows1252(expected[i]),
                     "a line");
        RequireEqual(DecodeFileLine(EncodeFileLine(lines[i])), lines[i],
                     "a line is unchanged by a round trip");
    }
    if (!lines.empty() && EncodeFileLine(lines.front()).starts_with(kByteOrderMark)) {
        return; // A second mark would be dropped as the first of the written file.
    }
    // Round trip of the whole file.
    const std::string path = EmptyFolder() + "tips.lst";
    TextFile written(path, TextEncoding::FileLine);
    for (const std::string& line : lines) {
        written.WriteLine(line);
    }
    written.Close();
    Require(ReadTextLines(path) == lines, "a file is unchanged by a round trip");

    Tips tips;
    tips.Load(path);
    RequireEqual(tips.Current(), "", "no tip is selected initially");
    for (std::size_t i = 0; i <= lines.size(); ++i) {
        tips.Next();
        RequireEqual(tips.Current(), lines.empty() ? "" : lines[i % lines.size()],
                     "tips follow the order of the file");
    }
    for (const double random : {0.0, 0.5, 0.9999999999999999}) {
        tips.PickRandom(random);
        Require(lines.empty() ||
                    (tips.Number() >= 1 && static_cast<std::size_t>(tips.Number()) <= lines.size()),
                "a random tip is one of the file");
    }
}

} // namespace tunedex::fuzz
