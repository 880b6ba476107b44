#!/usr/bin/python3
"""Worked examples for the model with Modern on.

usage: ModernTest.py [TEST...]
"""

import os
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

from basics import RunTimeError  # noqa: E402
from examples import Examples, id3v1  # noqa: E402
from model import Settings  # noqa: E402
from modern_audio import decode_audio  # noqa: E402
from modern_listings import csv_field, encode_page, hours, percent_encoded, playlist_path  # noqa: E402
from modern_order import in_order, language_of  # noqa: E402
from modern_tags import FIELDS, genres_of, read_tags  # noqa: E402
from modern_text import field_values, from_code_page, is_code_page  # noqa: E402
from tracks import Track  # noqa: E402

FRAME = b"\xff\xfb\x90\x64" + bytes(413)  # MPEG-1 layer III, 128 kbit/s, 44,100 Hz


def synchsafe(number):
    return bytes(number >> shift & 127 for shift in (21, 14, 7, 0))


def frame(name, data, flags=0, plain=False):
    size = len(data).to_bytes(4, "big") if plain else synchsafe(len(data))
    return name + size + bytes([0, flags]) + data


def tag(body, version=4, flags=0, size=None):
    return b"ID3" + bytes([version, 0, flags]) + synchsafe(len(body) if size is None else size) + body


def ape(**texts):
    items = b""
    for key, text in texts.items():
        value = text.encode()
        items += len(value).to_bytes(4, "little") + bytes(4) + key.replace("_", " ").encode() + b"\0" + value
    numbers = (2000, len(items) + 32, len(texts), 0)
    return items + b"APETAGEX" + b"".join(number.to_bytes(4, "little") for number in numbers) + bytes(8)


def track_of(**texts):
    track = Track()
    for name, text in texts.items():
        setattr(track, name, text)
    return track


class ModernTest(Examples):
    def read(self, data, code_page=""):
        settings = Settings()
        settings.TagCodePage = code_page
        track = Track()
        track.full_path = os.fsdecode(self.write("music/a.mp3", data))
        self.tagged, start, end = read_tags(track, settings)
        self.span = (start, end)
        return track

    def texts(self, data, code_page=""):
        track = self.read(data, code_page)
        return {field: getattr(track, field) for field in FIELDS if getattr(track, field) not in ("", "Unknown Artist")}

    def title(self, content, version=3):
        return self.read(tag(frame(b"TIT2", content, plain=version == 3), version)).title

    # -- texts

    def test_ValuesOfAFieldAreTrimmedAndEmptyOnesAreDropped(self):
        for data, encoding, expected in [
            (b"a \0\0 b\0 \0", 0, ["a", " b"]),
            (b"\x93x\x94\x81", 0, ["“x”\ufffd"]),
            ("\ufeffé".encode("utf-16-le") + b"\0\0" + "\ufeffü".encode("utf-16-be") + b"\0", 1, ["é", "ü"]),
            (b"A\0\0\xd8B\0", 1, ["A\ufffdB"]),
            (b"\0A\0B\0", 2, ["AB"]),
            (b"a\xe3\x81b\xff\xff", 3, ["a\ufffdb\ufffd\ufffd"]),
        ]:
            with self.subTest(data):
                self.assertEqual(field_values(data, encoding, ""), expected)

    def test_CodePagesAreConvertedByIconv(self):
        for data, name, expected in [
            ("Мумий Тролль".encode("cp1251"), "windows-1251", "Мумий Тролль"),
            ("宇多田".encode("cp932"), "CP932", "宇多田"),
            ("宇".encode("cp932") + b"\x89", "CP932", "宇\ufffd"),
            (b"a\x81\xffb", "", "a\ufffdÿb"),
        ]:
            with self.subTest((data, name)):
                self.assertEqual(from_code_page(data, name), expected)
        self.assertTrue(is_code_page(b"KOI8-R"))
        self.assertFalse(is_code_page(b"no such"))

    def test_GenresBecomeNames(self):
        for value, expected in [
            ("17", ["Rock"]), ("(17)", ["Rock"]), ("(4)Text", ["Disco", "Text"]), ("(4)Disco", ["Disco"]),
            ("RX", ["Remix"]), ("(CR)(5)", ["Cover", "Funk"]), ("((x)", ["(x)"]), ("(9)((x)", ["Metal", "(x)"]),
            ("191", ["Psybient"]), ("192", ["Unknown"]), ("(192)", ["Unknown"]), ("256", ["256"]), ("Rock", ["Rock"]),
        ]:  # fmt: skip
            with self.subTest(value):
                self.assertEqual(genres_of(value), expected)

    # -- tags

    def test_EncodingsOfTextFrames(self):
        for content in (b"\0Bj\xf6rk", b"\1\xff\xfeB\0j\0\xf6\0r\0k\0", b"\2\0B\0j\0\xf6\0r\0k", "\3Björk".encode()):
            with self.subTest(content):
                self.assertEqual(self.title(content), "Björk")
        self.assertEqual(self.title(b"\4Bjork"), "Unknown Title")

    def test_FrameSizeThatIsOnlyPlainIsReadSo(self):
        long = b"\3" + b"x" * 200
        body = frame(b"TIT2", long, plain=True) + frame(b"TPE1", b"\3A", plain=True)
        for data in (tag(body), tag(body + bytes(20))):
            self.assertEqual(self.texts(data), {"title": "x" * 200, "artist": "A"})

    def test_FlagsOfFrames(self):
        text = b"\3a\xff"
        stuffed = b"\3a\xff\x00"
        for version, flags, content, expected in [
            (4, 0x01, synchsafe(3) + text, "a\ufffd"), (4, 0x40, b"\x05" + text, "a\ufffd"), (4, 0x02, stuffed, "a\ufffd"),
            (4, 0x02, b"\3a\xff\xe0", "a\ufffd\ufffd"), (4, 0x08, text, "Unknown Title"), (4, 0x04, text, "Unknown Title"),
            (3, 0x20, b"\x05\0abc", "abc"), (3, 0x80, b"\0abc", "Unknown Title"), (3, 0x40, b"\0abc", "Unknown Title"),
        ]:  # fmt: skip
            with self.subTest((version, flags, content)):
                self.assertEqual(self.read(tag(frame(b"TIT2", content, flags), version)).title, expected)

    def test_UnsynchronisationOfAWholeTag(self):
        body = frame(b"TIT2", b"\1\xff\xfea\0", plain=True) + frame(b"TPE1", b"\0b", plain=True)
        stuffed = body.replace(b"\xff\xfe", b"\xff\x00\xfe")
        self.assertEqual(self.texts(tag(stuffed, 3, 0x80)), {"title": "a", "artist": "b"})

    def test_ExtendedHeadersAndFootersAreSkipped(self):
        title = frame(b"TIT2", b"\3a")
        extended = b"\0\0\0\6\1\0"
        data = tag(extended + title, 4, 0x50) + b"3DI" + bytes(7) + FRAME
        self.assertEqual(self.texts(data), {"title": "a"})
        self.assertEqual(self.span, (len(data) - len(FRAME), len(data)))
        self.assertEqual(self.texts(tag(b"\0\0\0\6" + bytes(6) + title, 3, 0x40)), {"title": "a"})
        self.assertEqual(self.texts(tag(title, 4, 0x40)), {"title": "a"})

    def test_YearComesFromTheFirstFrameThatHasOne(self):
        for frames, year in [
            ([(b"TDRC", "2004-05-06"), (b"TYER", "1999")], "1999"), ([(b"TYER", ""), (b"TDRC", "c. 2004")], "2004"),
            ([(b"TDOR", "1980"), (b"TDRL", "1990"), (b"TDRC", "x")], "1990"), ([(b"TDOR", "980")], ""),
        ]:  # fmt: skip
            with self.subTest(frames):
                body = b"".join(frame(name, b"\3" + text.encode()) for name, text in frames)
                self.assertEqual(self.read(tag(body)).year, year)

    def test_RepeatedFramesAddTheirValues(self):
        body = frame(b"TPE1", b"\3a\0b") + frame(b"TPE1", b"\3b\0c")
        self.assertEqual(self.read(tag(body)).artist, "a; b; c")

    def test_CommentIsTheFirstWithoutADescription(self):
        body = frame(b"COMM", b"\3engnote\0x") + frame(b"COMM", b"\3eng\0y") + frame(b"COMM", b"\3eng\0z")
        self.assertEqual(self.read(tag(body)).comment, "y")

    def test_OneKindOfTagFillsWhatTheOneBeforeLacks(self):
        old = id3v1(b"old title", b"old artist")[:125] + b"\0\7\x11"
        data = tag(frame(b"TIT2", b"\3new") + frame(b"TPE1", b"\3 ")) + FRAME + ape(Artist="Ape", Album_Artist="V\0W") + old
        self.assertEqual(self.texts(data), {
            "title": "new", "artist": "Ape", "album_artist": "V; W", "track": "7", "genre": "Rock",
        })  # fmt: skip
        start = len(data) - 128 - len(ape(Artist="Ape", Album_Artist="V\0W"))
        self.assertEqual(self.span, (start - len(FRAME), start))

    def test_LyricsBetweenTheTagsAreNoAudio(self):
        text = b"LYRICSBEGININD0000200"
        lyrics = text + b"%06dLYRICS200" % len(text)
        for trailer in (lyrics, b"LYRICSBEGINla laLYRICSEND"):
            data = FRAME + ape(Title="t") + trailer + id3v1()
            self.assertEqual(self.texts(data), {"title": "t"})
            self.assertEqual(self.span, (0, len(FRAME)))

    def test_TagsThatAreCutAreReadAsFarAsTheyGo(self):
        body = frame(b"TIT2", b"\3first\0second\0third") + frame(b"TPE1", b"\3x")
        self.assertEqual(self.texts(tag(body)[:34]), {"title": "first"})
        self.assertEqual(self.texts(tag(body, size=9999)), {"title": "first; second; third", "artist": "x"})
        self.assertEqual(self.span[0], 0)

    def test_TagsThatCannotBeMadeOutAreNone(self):
        title = frame(b"TIT2", b"\3a")
        for data in (tag(title, 5), tag(title, 1), b""):
            with self.subTest(data):
                self.read(data + FRAME)
                self.assertFalse(self.tagged)
        self.read(tag(b"") + FRAME)
        self.assertTrue(self.tagged)

    # -- audio

    def audio(self, data):
        track = self.read(data)
        seconds = decode_audio(track, *self.span)
        return track.bitrate, track.frequency, track.mpeg_type, seconds

    def xing(self, count, mark=b"Xing"):
        return (FRAME[:4] + bytes(32) + mark + b"\0\0\0\1" + count.to_bytes(4, "big")).ljust(len(FRAME), b"\0")

    def test_AFrameCountsWhenTheNextOneIsOfItsKind(self):
        other = b"\xff\xf3\x90\x64" + bytes(300)
        self.assertEqual(self.audio(other + FRAME * 3), ("128", "44100", "1.0 III", 0))
        self.assertEqual(self.audio(b"\xff\xfb\x90\x64" + FRAME * 100)[3], 2)

    def test_DurationComesFromTheFrameCount(self):
        # 1,000 frames of 1,152 samples are 26.12 s.
        self.assertEqual(self.audio(self.xing(1000) + FRAME * 999), ("128", "44100", "1.0 III", 26))
        self.assertEqual(self.audio(self.xing(1000, b"Info") + FRAME * 9), ("128", "44100", "1.0 III", 26))
        self.assertEqual(self.audio(self.xing(500) + FRAME * 999)[0], "255")
        vbri = (FRAME[:36] + b"VBRI" + bytes(10) + (1000).to_bytes(4, "big")).ljust(len(FRAME), b"\0")
        self.assertEqual(self.audio(vbri + FRAME * 9)[3], 26)

    def test_FrameCountsThatCannotBeAreIgnored(self):
        for count in (0, 2**32 - 1):
            self.assertEqual(self.audio(self.xing(count) + FRAME * 99), ("128", "44100", "1.0 III", 2))

    def test_FreeFormatIsMeasured(self):
        free = b"\xff\xfb\x00\x64" + bytes(496)
        self.assertEqual(self.audio(free * 100), ("free", "44100", "1.0 III", 2))
        padded = b"\xff\xfb\x02\x64" + bytes(497)
        self.assertEqual(self.audio((free + padded) * 50)[0], "free")
        self.assertIsNone(self.audio_or_none(free))
        self.assertIsNone(self.audio_or_none((b"\xff\xfb\x00\x64" + bytes(4605)) * 3))

    def audio_or_none(self, data):
        try:
            return self.audio(data)
        except RunTimeError:
            return None

    def test_AFrameMayBeTheLast(self):
        small = b"\xff\xf3\x20\x64" + bytes(48)  # MPEG-2 layer III, 16 kbit/s
        for data, version in [
            (FRAME, "1.0 III"), (b"abc" + FRAME, "1.0 III"), (FRAME[:200], "1.0 III"), (bytes(9) + FRAME[:200], "1.0 III"),
            (b"abc" + FRAME[:200], "1.0 III"), (FRAME + bytes(3), "1.0 III"), (FRAME + bytes(4), ""), (FRAME[:100] + small * 2, "2.0 III"),
            (b"abc" + self.xing(5) + bytes(99), ""), (FRAME[:200] + id3v1(), "1.0 III"),
        ]:  # fmt: skip
            with self.subTest(data):
                self.assertEqual((self.audio_or_none(data) or ("", "", ""))[2], version)

    def test_ABitrateThatVariesIsAveraged(self):
        low = b"\xff\xfb\x10\x64" + bytes(100)  # 32 kbit/s
        high = b"\xff\xfb\xe0\x64" + bytes(1040)  # 320 kbit/s
        for data, bitrate in [
            ((low + high) * 50, "176"), (low * 4 + high * 96, "32"), (low * 3 + high * 97, "311"),
            (low + high + low * 254 + high * 999, "33"),
        ]:  # fmt: skip
            with self.subTest(len(data)):
                self.assertEqual(self.audio(data)[0], bitrate)

    def test_TheFrameOfAnInfoHeaderDoesNotGiveTheBitrate(self):
        low = b"\xff\xfb\x10\x64" + bytes(100)
        self.assertEqual(self.audio(self.xing(100, b"Info") + low * 100)[0], "32")
        self.assertEqual(self.audio(self.xing(0) + low * 100)[0], "32")

    def test_TrueBitratesOfEveryVersion(self):
        for head, size, expected in [
            (b"\xff\xf3\x20\x64", 52, ("16", "22050", "2.0 III", 0)),
            (b"\xff\xe3\x20\x64", 104, ("16", "11025", "2.5 III", 0)),
            (b"\xff\xfd\x20\x64", 156, ("48", "44100", "1.0 II", 0)),
            (b"\xff\xff\x20\x64", 68, ("64", "44100", "1.0 I", 0)),
        ]:
            with self.subTest(head):
                self.assertEqual(self.audio((head + bytes(size - 4)) * 3), expected)

    # -- order

    def test_TracksOfAnAlbumAreOrderedByDiscAndTrack(self):
        rows = [("b", "2", "1"), ("a", "1", "10/12"), ("c", "1", "9"), ("d", "", "3")]
        tracks = [track_of(full_path=path, artist=path, album_artist="V", disc=d, track=t) for path, d, t in rows]
        self.assertEqual([track.full_path for track in in_order(tracks, 1, "")], ["d", "c", "a", "b"])
        self.assertEqual([track.full_path for track in in_order(tracks, 2, "")], ["b", "a", "c", "d"])
        self.assertEqual([track.full_path for track in in_order(tracks, 0, "")], ["a", "b", "c", "d"])

    def test_ArtistsAreOrderedByTheUsersLanguage(self):
        names = ["Zappa", "Ängel", "angel", "Angel", "abba", "Äbba"]
        tracks = [track_of(full_path=name, artist=name) for name in names]
        for language, expected in [
            ("", ["abba", "Äbba", "angel", "Angel", "Ängel", "Zappa"]),
            ("sv_SE.UTF-8", ["abba", "angel", "Angel", "Zappa", "Äbba", "Ängel"]),
        ]:
            self.assertEqual([track.artist for track in in_order(tracks, 1, language)], expected)
        self.assertEqual(language_of({"LC_ALL": "", "LC_COLLATE": "sv_SE", "LANG": "de"}), "sv_SE")

    # -- listings

    def run_modern(self, *lines):
        return self.run_model(b"Modern=1", *lines)

    def test_TextsHaveAMarkAndNoLineBreaksInCells(self):
        self.write("music/a.mp3", tag(frame(b"TIT2", "\3日\t1\r\n2".encode())) + FRAME)
        result = self.run_modern(b"ActiveColumns=Title|Track|Foo")
        self.assertEqual(self.listing(result).decode(), "\ufeffTitle\tTrack\tFoo\r\n日 1  2\t\r\n")

    def test_CsvQuotesWhatNeedsIt(self):
        self.write("music/a,b.mp3", tag(frame(b"TIT2", b'\3say "x"')) + self.xing(1000) + FRAME * 9)
        result = self.run_modern(b"OutputFile=out/list.csv", b"ActiveColumns=Filename|Title|Duration|File Size|Number")
        size = len(tag(frame(b"TIT2", b'\3say "x"'))) + 10 * len(FRAME)
        self.assertEqual(self.listing(result, "out/list.csv").decode(),
                         f'\ufeffFilename,Title,Duration,File Size,Number\r\n"a,b.mp3","say ""x""",0:00:26,{size},1\r\n')
        self.assertEqual(csv_field("a\nb"), '"a\nb"')
        self.assertEqual([hours(text) for text in ("", "4:05", "61:01")], ["", "0:04:05", "1:01:01"])

    def test_PlaylistsGoOnWithoutADuration(self):
        self.write("music/#1.mp3", b"no audio")
        result = self.run_modern(b"OutputFile=out/list.m3u8", b"ErrorWarnings=0")
        path = self.folder + "/music/%231.mp3"
        self.assertEqual(self.listing(result, "out/list.m3u8").decode(),
                         f"#EXTM3U\r\n#EXTINF:-1,music/#1.mp3 - No ID3 Tags!\r\nfile://{path}\r\n")
        self.assertEqual(result.exit_status, 0)
        self.assertEqual(playlist_path("a b\udce9.mp3", "/c"), "file:///c/a%20b%E9.mp3")
        self.assertEqual(playlist_path("é;&.mp3", "/c"), "é;&.mp3")

    def test_PagesHoldNoCharacterThatTheyMayNot(self):
        self.assertEqual(encode_page("é€\x01\x7f\x85\ufffe\udc85\udce9日\t"),
                         b"\xe9&#8364;&#65533;&#65533;&#65533;&#65533;&#65533;\xe9&#26085;\t")
        self.assertEqual(percent_encoded("/a b~é%\udcff"), "/a%20b~%C3%A9%25%FF")

    def test_LinksAreEncodedAndEscaped(self):
        self.write('music/"&.mp3', FRAME)
        result = self.run_modern(b"OutputFile=out/list.htm", b"DoLinks=1", b'LinkPrefix=x?a&b="', b"ActiveColumns=Track")
        self.assertIn(b'<a href="x?a&amp;b=&quot;music/%22%26.mp3">Link</a>', self.listing(result, "out/list.htm"))

    def test_MergesLeaveAlbumArtistAlone(self):
        self.write("music/a.mp3", FRAME + id3v1())
        for columns, header in [
            (b"Album Artist|Artist|Title", "Album Artist\tArtist (Album): Title"),
            (b"Artist|Title|Album Artist|Album", "Artist (Album): Title\tAlbum Artist"),
            (b"Album Artist|Title", "Album Artist\tTitle"),
        ]:
            with self.subTest(columns):
                listing = self.listing(self.run_modern(b"Merge=2", b"ActiveColumns=" + columns)).decode("utf-8-sig")
                self.assertEqual(listing.split("\r\n")[0], header)

    # -- the walk

    def test_ARunGoesOnAndSaysWhatCouldNotBeRead(self):
        self.write("music/a.mp3", FRAME)
        os.mkdir(self.path("music/b.mp3"))
        log = self.folder + "/prog/Tunedex.log"
        for setting, reason in [(b"1", "see "), (b"0", "switch on the error log to have each named in ")]:
            result = self.run_modern(b"Directory=%MULT%missing%||%music", b"ErrorLog=" + setting, b"ErrorWarnings=1")
            self.assertEqual(self.listing(result).decode("utf-8-sig"), "Filename\r\na.mp3\r\n")
            line = f"Tunedex: 1 folder and 1 file could not be read; {reason}{log}"
            self.assertEqual(result.events[-1], ("line", line))
            self.assertEqual(sum(event[0] == "message" for event in result.events), 2)
            self.assertEqual(result.exit_status, 3)

    def test_OffTheNewKindsAndColumnsAreUnknown(self):
        self.write("music/a.mp3", FRAME)
        result = self.run_model(b"OutputFile=out/list.csv", b"ActiveColumns=Track")
        self.assertIn(self.path("out/list.csv.htm"), result.files)
        result = self.run_model(b"ActiveColumns=Filename|Track|Album Artist")
        self.assertEqual(self.listing(result), b"Filename\tTrack\tAlbum Artist\r\na.mp3\r\n")


if __name__ == "__main__":
    unittest.main()
