#!/usr/bin/python3
"""Worked examples for the model, so that the model and the program are less likely to share an error.

usage: ModelTest.py [TEST...]
"""

import fcntl
import os
import pathlib
import sys
import time
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

from examples import Examples, id3v1  # noqa: E402
from model import Model, Region, encode_own_line, encode_page, own_lines, program_folder, size_text  # noqa: E402

UNEXPECTED = "An unexpected error occurred. The error was: \r\n\r\nError number "
ERROR_6 = ("message", "Error", UNEXPECTED + "6 - Overflow", 48, False)
ERROR_75 = ("message", "Error", UNEXPECTED + "75 - Path/File access error", 48, False)
AUDIO = b"\xff\xfb\x90\x64" + bytes(4092)


class ModelTest(Examples):
    # -- columns and values

    def test_MergeOfColumnsCountsCharacters(self):
        self.write("music/a.mp3", AUDIO + id3v1())
        for active, header in [
            ("Album|Title|ÄÖÜäöüß|Artist|Year", "TitleArtistAlbumTitleöüß\tYear"),
            ("Album|Title|AOUaous|Artist|Year", "TitleArtistAlbumTitleous\tYear"),
            ("Number|Artist|Album|Title|Duration", "Number\tArtist (Album): Title\tDuration"),
        ]:
            with self.subTest(active):
                result = self.run_model(b"ActiveColumns=" + active.encode(), b"Merge=2")
                self.assertEqual(self.listing(result).split(b"\r\n")[0], header.encode("cp1252"))

    def test_MergeOfColumnsCountsAStrayByteAsOneCharacter(self):
        self.write("music/a.mp3", AUDIO + id3v1())
        active = "Album|Title|\udcc4\udcd6\udcdc\udce4\udcf6\udcfc\udcdf|Artist|Year".encode("utf-8", "surrogatepass")
        result = self.run_model(b"ActiveColumns=" + active, b"Merge=2")
        self.assertEqual(self.listing(result).split(b"\r\n")[0], b"TitleArtistAlbumTitle\xf6\xfc\xdf\tYear")

    def test_ThousandsSeparatorOutsideWindows1252BecomesANoBreakSpace(self):
        for separator, text in [
            ("\u202f", "1\u00a0234\u00a0567 b."), (".", "1.234.567 b."), ("", "1234567 b."), ("’", "1’234’567 b."),
        ]:  # fmt: skip
            with self.subTest(separator):
                self.assertEqual(size_text(1234567, 0, Region(thousands=separator)), text)

    # -- encodings

    def test_PagesHoldReplacementCharactersForNoncharacters(self):
        self.assertEqual(encode_page("a\ufffe\uffff\ufffdb"), b"a&#65533;&#65533;&#65533;b")
        self.assertEqual(encode_page("\ufffc\U0001fffe"), b"&#65532;&#131070;")

    def test_ByteOrderMarkAtTheStartOfAFileIsDropped(self):
        for data, lines in [
            (b"\xef\xbb\xbfa\r\nb", ["a", "b"]), (b"\xef\xbb\xbf", []), (b"\xef\xbb\xbf\n", [""]),
            (b"\xef\xbb\xbf\xef\xbb\xbfa", ["\ufeffa"]), (b"a\n\xef\xbb\xbfb", ["a", "\ufeffb"]),
            (b"\xef\xbb\xbf\xe9", ["é"]),
        ]:  # fmt: skip
            with self.subTest(data):
                self.assertEqual(own_lines(data), lines)

    def test_SettingsAfterAByteOrderMarkAreRead(self):
        self.write("music/a.mp3", AUDIO)
        result = self.run_model(start=b"\xef\xbb\xbf")
        self.assertEqual(self.listing(result), b"Filename\r\na.mp3\r\n")

    def test_LoneSurrogatesInSettingsAreStrayBytes(self):
        os.mkdir(self.path(b"caf\xe9"))
        self.write(b"caf\xe9/a.mp3", AUDIO)
        os.mkdir(self.path("café"))
        self.write("café/b.mp3", AUDIO)
        for name, listed in [
            (b"caf\xed\xb3\xa9", b"a"),  # one stray byte
            (b"caf\xe9", b"b"),  # not UTF-8, so Windows-1252
            (b"caf\xc3\xa9", b"b"),
            (b"caf\xed\xb3\x83\xed\xb2\xa9", b"b"),  # two stray bytes that form a character
        ]:
            with self.subTest(name):
                result = self.run_model(b"Directory=" + name)
                self.assertEqual(self.listing(result), b"Filename\r\n" + listed + b".mp3\r\n")

    def test_OtherIllFormedLinesOfSettingsAreWindows1252(self):
        self.write("music/a.mp3", AUDIO)
        for name in (b"\xed\xa0\x80", b"\xed\xb0\x80", b"\xed\xb1\xbf", b"\xed\xb3\xa9\xe9"):
            with self.subTest(name):
                result = self.run_model(b"ActiveColumns=Number|" + name)
                self.assertEqual(self.listing(result).split(b"\r\n")[0], b"Number\t" + name)

    def test_LinesOfTheLogHoldNoLineBreaks(self):
        self.write(b"music/a\r\nb\rc\nd.mp3", b"no audio")
        result = self.run_model(b"ErrorLog=1")
        # CR LF is removed, as in messages; a single CR or LF becomes a blank.
        line = b"An error occurred decoding the headers of: \\n\\nmusic/ab c d.mp3\r\n"
        self.assertEqual(self.listing(result, "prog/Tunedex.log"), line)

    def test_LogLinesWithStrayBytesAreUtf8(self):
        self.assertEqual(encode_own_line("é"), b"\xe9")
        self.assertEqual(encode_own_line("é\udce9"), b"\xc3\xa9\xe9")
        self.assertEqual(encode_own_line("a\udce9"), b"a\xe9")

    def test_PlaylistHasOneEncoding(self):
        self.write("music/a.mp3", AUDIO + id3v1("é".encode("cp1252"), b"x"))
        result = self.run_model(b"OutputFile=out/list.m3u")
        self.assertIn(b"x: \xe9\r\n", self.listing(result, "out/list.m3u"))
        self.write("music/日.mp3", AUDIO + id3v1(b"b", b"x"))
        result = self.run_model(b"OutputFile=out/list.m3u")
        self.assertIn(b"x: \xc3\xa9\r\n", self.listing(result, "out/list.m3u"))

    # -- entities

    def doubled(self, times, *more):
        self.write("prog/html_entities.lst", b"\r\n".join([b"38\t&&"] * times + list(more)))
        return self.run_model(b"OutputFile=out/list.htm")

    def test_ExpansionOfOneMebibyteIsWritten(self):
        self.write("music/&.mp3", AUDIO)
        self.assertIn(b"&" * (1 << 20) + b".mp3", self.listing(self.doubled(20), "out/list.htm"))

    def test_LongerExpansionIsAnErrorIfItsCharacterIsWritten(self):
        self.write("music/&.mp3", AUDIO)
        for times in (21, 40, 2000):
            with self.subTest(times):
                result = self.doubled(times)
                self.assertEqual(result.events[-1], ERROR_6)
                self.assertIn(("status", "Writing information..."), result.events)
                self.assertNotIn(self.path("out/list.htm"), result.files)

    def test_LongerExpansionIsNoErrorIfItsCharacterIsNotWritten(self):
        self.write("music/a.mp3", AUDIO + id3v1(b"&", b"&"))
        self.assertEqual(self.doubled(40).exit_status, 0)

    def test_ExpansionThatIsTooLongInBetweenIsAnError(self):
        self.write("music/&.mp3", AUDIO)
        self.assertEqual(self.doubled(21, b"38\tx").events[-1], ERROR_6)
        self.assertEqual(self.doubled(20, b"38\t").exit_status, 0)

    # -- the output file

    def test_OutputLinkToATrackIsRejectedBeforeAnythingIsRead(self):
        for name in ("a.mp3", "a.MP3", "a.mP3"):
            with self.subTest(name):
                target = self.write("music/" + name, AUDIO)
                os.symlink(target, self.path("out/list.txt"))
                result = self.run_model(b"ErrorLog=1")
                os.remove(self.path("out/list.txt"))
                self.assertEqual((result.events, result.files, result.exit_status), ([ERROR_75], {}, 1))

    def test_OutputLinkIsCheckedByItsFinalTargetUnderTheNameWithExtension(self):
        target = self.write("music/a.mp3", AUDIO)
        os.symlink(target, self.path("out/second"))
        os.symlink("second", self.path("out/list.htm"))
        self.assertEqual(self.run_model(b"OutputFile=out/list").events, [ERROR_75])

    def test_OutputLinkToAnotherFileIsFollowed(self):
        self.write("music/a.mp3", AUDIO)
        self.write("real.dat", b"old")
        os.symlink("../real.dat", self.path("out/list.txt"))
        self.assertEqual(self.listing(self.run_model(), "real.dat"), b"Filename\r\na.mp3\r\n")

    def test_AbandonedTemporaryFilesOlderThanADayAreRemoved(self):
        self.write("music/a.mp3", AUDIO)
        removed = self.write("out/.tunedex-123-1.tmp", b"")
        locked = self.write("out/.tunedex-123-2.tmp", b"")
        young = self.write("out/.tunedex-123-3.tmp", b"")
        other = self.write("out/.tunedex-123.tmp", b"")
        elsewhere = self.write("music/.tunedex-123-1.tmp", b"")
        for path, hours in [(removed, 25), (locked, 25), (young, 23), (other, 25), (elsewhere, 25)]:
            os.utime(path, (time.time(), time.time() - hours * 60 * 60))
        with open(locked, "rb") as file:
            fcntl.flock(file, fcntl.LOCK_EX)
            self.assertEqual(self.run_model().removed, {removed})

    # -- the program folder

    def test_ProgramFolderDependsOnRegistryLocationAndEnvironment(self):
        os.makedirs(self.path("usr/bin"))
        os.makedirs(self.path("usr/share/tunedex"))
        here = self.folder
        for installation, executable, environment, expected in [
            ("/set", here + "/usr/bin/tunedex", {"HOME": here}, ("/set", False)),
            ("", here + "/prog/tunedex", {"HOME": here}, (here + "/prog", False)),
            ("", here + "/usr/bin/tunedex", {"HOME": here}, (here + "/.local/share/tunedex", True)),
            ("", here + "/usr/bin/tunedex", {"HOME": here, "XDG_DATA_HOME": ""}, (here + "/.local/share/tunedex", True)),
            ("", here + "/usr/bin/tunedex", {"HOME": here, "XDG_DATA_HOME": "/d"}, ("/d/tunedex", True)),
        ]:
            with self.subTest((installation, executable)):
                self.assertEqual(program_folder(installation, executable, environment), expected)

    def test_OnlyANewDataFolderGetsTheShippedFiles(self):
        os.makedirs(self.path("share/Themes"))
        self.write("share/html_entities.lst", b"38\t&amp;")
        self.write("share/Themes/Dark.thm", b"AltRows=1")
        shipped = os.path.join(self.folder, "share")
        result = Model(self.folder + "/data/tunedex", self.region, self.folder, 0, shipped).run()
        self.assertEqual(result.files, {
            self.path("data/tunedex/html_entities.lst"): b"38\t&amp;",
            self.path("data/tunedex/Themes/Dark.thm"): b"AltRows=1",
        })  # fmt: skip
        self.assertEqual(Model(self.folder + "/prog", self.region, self.folder, 0, shipped).run().files, {})


if __name__ == "__main__":
    unittest.main()
