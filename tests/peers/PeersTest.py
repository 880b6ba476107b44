#!/usr/bin/python3
"""Compares the readings with Modern on with those of mutagen and TagLib.

usage: PeersTest.py PROGRAM [TEST...]      exit status 77 if all tests were skipped

TaggersTest: files with tags that real programs wrote. Every field, once as it was entered and once as each library reads
it. Where the libraries disagree, REASONS says which one is right by our rules and why.
CorpusTest: the files of the folder that TUNEDEX_CORPUS names, against mutagen.
"""

import csv
import io
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import mutagen.apev2  # noqa: E402
import mutagen.id3  # noqa: E402
import mutagen.mp3  # noqa: E402
import surroundings  # noqa: E402
import taglib  # noqa: E402
from taggers import SONGS, TAGGERS, Tools, write_all  # noqa: E402

PROGRAM = None
COLUMNS = ["Full Path", "Artist", "Title", "Album", "Year", "Genre", "Track", "Disc", "Album Artist", "Composer", "Comment",
           "Duration", "Bitrate", "Frequency", "MPEG Type", "Mode"]  # fmt: skip
FIELDS = COLUMNS[1:11]
UNKNOWN = {"Unknown Title": "", "Unknown Artist": "", "No ID3 Tags!": ""}
WRITTEN = {"Year": "2004", "Genre": "Rock", "Track": "3/12", "Disc": "1/2", "Composer": "Composer", "Comment": "A comment"}
NEAR = 0.1  # seconds within which the lengths of the libraries are trusted
LEAST_EQUAL = 0.99  # of the corpus


def run_program(folder, music):
    """The rows of a .csv listing of `music`, by path."""
    installation = folder / "program"
    (folder / "config/Corvale Works").mkdir(parents=True, exist_ok=True)
    installation.mkdir()
    (folder / "config/Corvale Works/Tunedex.conf").write_text(f'[General]\nInstallationPath="{installation}"\n', "utf-8")
    settings = {"Directory": music, "OutputFile": folder / "list.csv", "Recurse": 1, "SortOrder": 1, "ErrorLog": 1,
                "ActiveColumns": "|".join(COLUMNS), "MoveTheArtists": 0, "Modern": 1}  # fmt: skip
    lines = "".join(f"{key}={value}\r\n" for key, value in settings.items())
    (installation / "Tunedex.cfg").write_text(lines, "utf-8", newline="")
    environment = {"PATH": os.environ["PATH"], "HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
                   "XDG_CONFIG_DIRS": str(folder)}  # fmt: skip
    result = subprocess.run([PROGRAM, "/AUTO"], cwd=folder, env=environment | surroundings.kept(), timeout=600,
                            stdin=subprocess.DEVNULL, capture_output=True, check=False)  # fmt: skip
    if result.returncode != 0:
        raise AssertionError(f"status {result.returncode}\n{result.stderr.decode('utf-8', 'replace')}")
    rows = csv.DictReader(io.StringIO((folder / "list.csv").read_text("utf-8-sig"), newline=""))
    return {pathlib.Path(row["Full Path"]): row for row in rows}


def seconds(duration):
    hours, minutes, rest = duration.split(":")
    return int(hours) * 3600 + int(minutes) * 60 + int(rest)


# -------------------------------------------------------------------------------------------------- the libraries


def joined(values):
    """As our rules join the values of a field."""
    return "; ".join(filter(None, (str(value).rstrip("\0 ") for value in values)))


def year_of(text):
    return text[:4]


def mutagen_tag(path):
    """The texts by field; None if mutagen finds no tag that it can read."""
    names = {"Title": "TIT2", "Artist": "TPE1", "Album": "TALB", "Track": "TRCK", "Disc": "TPOS", "Album Artist": "TPE2",
             "Composer": "TCOM"}  # fmt: skip
    try:
        tag = mutagen.id3.ID3(path)
    except mutagen.id3.error:
        return mutagen_ape(path)
    texts = {field: joined(tag[name].text) if name in tag else "" for field, name in names.items()}
    texts["Genre"] = joined(tag["TCON"].genres) if "TCON" in tag else ""
    # mutagen makes a TDRC of a TYER.
    texts["Year"] = next((year_of(joined(tag[name].text)) for name in ("TDRC", "TDRL", "TDOR") if name in tag), "")
    comments = [frame for frame in tag.getall("COMM") if frame.desc == ""]
    texts["Comment"] = joined(comments[0].text) if comments else ""
    return texts


def mutagen_ape(path):
    try:
        tag = mutagen.apev2.APEv2(path)
    except mutagen.apev2.error:
        return None
    return {field: joined(tag[field]) if field in tag else "" for field in FIELDS}


def taglib_tag(path):
    names = {"Title": "TITLE", "Artist": "ARTIST", "Album": "ALBUM", "Track": "TRACKNUMBER", "Disc": "DISCNUMBER",
             "Album Artist": "ALBUMARTIST", "Composer": "COMPOSER", "Year": "DATE", "Genre": "GENRE",
             "Comment": "COMMENT"}  # fmt: skip
    file = taglib.File(str(path))
    try:
        texts = {field: joined(file.tags.get(name, [])) for field, name in names.items()}
    finally:
        file.close()
    texts["Year"] = year_of(texts["Year"])
    return texts


# ----------------------------------------------------------------------------------------------------------- tests

# (tagger, song, field), each perhaps "*": what is right where the libraries disagree or differ from the rule, and why.
REASONS = {
    ("lame id3v1", "*", "Comment"): (
        lambda first, second: second,
        "mutagen gives the comment of ID3v1 a description; it fills the comment that ID3v2 lacks",
    ),
    ("ffmpeg 2.3", "*", "Comment"): (
        lambda first, second: first, "ffmpeg writes it as user text, which TagLib takes for a comment; COMM counts"
    ),
    ("ffmpeg 2.4", "*", "Comment"): (
        lambda first, second: first, "ffmpeg writes it as user text, which TagLib takes for a comment; COMM counts"
    ),
    ("ffmpeg 2.3 with id3v1", "*", "Comment"): (
        lambda first, second: second, "ID3v1 fills it; mutagen reads no ID3v1 beside ID3v2"
    ),
    ("eyeD3 2.3 latin1", "picture before", "Year"): (
        lambda first, second: second, "it is in TORY, which mutagen makes a TDOR; only TYER, TDRC, TDRL and TDOR count"
    ),
    ("eyeD3 2.4 utf8", "*", "Year"): (
        lambda first, second: first, "it is in TDRL, which counts where TDRC is lacking; TagLib's date is TDRC alone"
    ),
}  # fmt: skip


def reason_for(tagger, song, field):
    for key in ((tagger, song, field), (tagger, "*", field), ("*", song, field), ("*", "*", field)):
        if key in REASONS:
            return REASONS[key]
    return None


class TaggersTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory(prefix="tunedex-peers-")
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = pathlib.Path(os.path.realpath(scratch.name))
        music = cls.folder / "music"
        music.mkdir()
        cls.files = write_all(Tools(cls.folder), music)
        cls.rows = run_program(cls.folder, music)

    def each(self):
        for path, (tagger, song) in self.files.items():
            yield path, tagger, song, self.rows[path]

    def test_EveryFileIsListed(self):
        self.assertEqual(set(self.rows), set(self.files))
        self.assertGreaterEqual(len(TAGGERS), 11)

    def test_FieldsAreReadAsTheLibrariesReadThem(self):
        for path, tagger, song, row in self.each():
            first, second = mutagen_tag(path) or dict.fromkeys(FIELDS, ""), taglib_tag(path)
            for field in FIELDS:
                with self.subTest(tagger=tagger, song=song, field=field):
                    reason = reason_for(tagger, song, field)
                    if reason is None:
                        self.assertEqual(first[field], second[field], "mutagen and TagLib disagree")
                    expected = first[field] if reason is None else reason[0](first[field], second[field])
                    self.assertEqual(UNKNOWN.get(row[field], row[field]), expected, reason and reason[1])

    def test_TitlesAndAlbumsAreReadAsEntered(self):
        for _, tagger, name, row in self.each():
            with self.subTest(tagger=tagger, song=name):
                song = SONGS[name]
                self.assertEqual((row["Title"], row["Album"]), (song.title or "Unknown Title", song.album))

    def test_ArtistsAreReadAsEnteredHoweverTheyAreJoined(self):
        for _, tagger, name, row in self.each():
            with self.subTest(tagger=tagger, song=name):
                song = SONGS[name]
                joins = {separator.join(song.artists) or "Unknown Artist" for separator in ("; ", "/", ";")}
                self.assertIn(row["Artist"], joins)
                if name != "two artists":
                    self.assertEqual(len(joins), 1)

    def test_DurationsAreThoseOfTheLibraries(self):
        for path, tagger, song, row in self.each():
            with self.subTest(tagger=tagger, song=song):
                length = mutagen.mp3.MP3(path).info.length
                found = seconds(row["Duration"])
                self.assertTrue(int(length - NEAR) <= found <= int(length + NEAR), (found, length))

    def test_BitratesAreThoseOfTheLibraries(self):
        for path, tagger, song, row in self.each():
            with self.subTest(tagger=tagger, song=song):
                info = mutagen.mp3.MP3(path).info
                self.assertAlmostEqual(int(row["Bitrate"]), info.bitrate / 1000, delta=1)

    def test_AudioIsThatOfTheLibraries(self):
        for path, tagger, song, row in self.each():
            with self.subTest(tagger=tagger, song=song):
                info = mutagen.mp3.MP3(path).info
                self.assertEqual(row["Frequency"], str(info.sample_rate))
                self.assertEqual(row["MPEG Type"], f"{float(info.version):.1f} " + "I" * info.layer)


@unittest.skipUnless(os.environ.get("TUNEDEX_CORPUS"), "TUNEDEX_CORPUS is not set")
class CorpusTest(unittest.TestCase):
    COMPARED = ["Artist", "Album", "Title", "Year", "Genre", "Track", "Disc"]
    # Files that are read otherwise than by mutagen: the fields and the reason.
    WESTERN = "the tag code page is windows-1252 here, and Latin-1 in mutagen"
    NO_TRACK = "byte 125 is no zero, so 126 belongs to the comment of ID3v1.0"
    ACCEPTED = {
        "apev2-lyricsv2.mp3": (["Year"], "ID3v1 has the year 0, which mutagen pads to 0000"),
        "bad-TYER-frame.mp3": (["Year"], "the text of TYER is shown as it is, also where it is no year"),
        "id3v1v2-combined.mp3": (["Year"], "TYER counts in ID3v2.4 too; mutagen takes the year of ID3v1"),
        "unparseable.mp3": (["Year"], "the first four digits of TDRC are the year; mutagen wants a whole timestamp"),
        "sample_ms932_v1.1.mp3": (["Artist", "Album", "Title"], WESTERN),
        "sample_ms932_v1.mp3": (["Artist", "Album", "Title", "Track"], WESTERN + "; " + NO_TRACK),
        "sample_usascii_v1.mp3": (["Track"], NO_TRACK),
        "sample_utf8_v1.1.mp3": (["Artist", "Album", "Title"], WESTERN),
        "sample_utf8_v1.mp3": (["Artist", "Album", "Title", "Track"], WESTERN + "; " + NO_TRACK),
    }

    @classmethod
    def setUpClass(cls):
        """Copies the corpus, with the extension that the program looks for."""
        scratch = tempfile.TemporaryDirectory(prefix="tunedex-peers-")
        cls.addClassCleanup(scratch.cleanup)
        folder = pathlib.Path(os.path.realpath(scratch.name))
        corpus = pathlib.Path(os.environ["TUNEDEX_CORPUS"])
        cls.files = {}
        for path in sorted(path for path in corpus.rglob("*") if path.suffix in (".mp3", ".id3")):
            copy = folder / "music" / (str(path.relative_to(corpus)) + ("" if path.suffix == ".mp3" else ".mp3"))
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_bytes(path.read_bytes())
            cls.files[copy] = path.name
        cls.rows = run_program(folder, folder / "music")

    def test_EveryFileIsListed(self):
        self.assertEqual(set(self.rows), set(self.files))

    def test_TagsAreReadAsMutagenReadsThem(self):
        compared = equal = 0
        for path, name in self.files.items():
            expected, row = mutagen_tag(path), self.rows[path]
            if expected is None:
                continue
            fields = [field for field in self.COMPARED if UNKNOWN.get(row[field], row[field]) != expected[field]]
            accepted, reason = self.ACCEPTED.get(name, ((), ""))
            compared += 1
            equal += not set(fields) - set(accepted)
            with self.subTest(name=name):
                # A difference that is accepted must be there, or its entry is out of date.
                self.assertEqual(set(fields), set(accepted), reason or [(row[field], expected[field]) for field in fields])
        self.assertGreater(compared, 40)
        self.assertGreaterEqual(equal / compared, LEAST_EQUAL)


def main():
    global PROGRAM
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    program = unittest.main(exit=False, verbosity=1)
    result = program.result
    if result.testsRun and result.testsRun == len(result.skipped):
        return 77
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
