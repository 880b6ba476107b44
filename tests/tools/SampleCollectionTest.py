"""The sample collection contains every kind of file it should, can be played and is reproducible.

usage: SampleCollectionTest.py MAKE-SAMPLE TAGGER FOLDER
"""

import collections
import pathlib
import shutil
import subprocess
import sys
import unittest

MAKE_SAMPLE, TAGGER, FOLDER = sys.argv[1:]
OUTPUT = pathlib.Path(FOLDER) / "sample"


def make(output):
    return subprocess.run([MAKE_SAMPLE, str(output), "--tagger", TAGGER], capture_output=True, text=True)


def contents(folder):
    return {path.relative_to(folder): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


class File:
    """The properties of a file, determined without the project's own readers."""

    def __init__(self, path):
        data = path.read_bytes()
        self.id3v1 = data[-128:-125] == b"TAG"
        self.id3v2 = data[3] if data[:3] == b"ID3" else 0
        self.encoding = data[20] if data[10:14] == b"TIT2" else None
        position = 0
        if self.id3v2:
            position = 10 + (data[6] << 21 | data[7] << 14 | data[8] << 7 | data[9])
        while not self.is_header(data[position:position + 4]):
            position += 1
        header = data[position:position + 4]
        self.mpeg = {0: "2.5", 2: "2", 3: "1"}[header[1] >> 3 & 3]
        self.mode = ("stereo", "joint stereo", "dual channel", "mono")[header[3] >> 6]
        self.xing = b"Xing" in data[position:position + 200]

    @staticmethod
    def is_header(four):
        return four[0] == 0xFF and four[1] >= 0xE2 and four[1] >> 3 & 3 != 1 and four[1] >> 1 & 3 == 1 \
            and four[2] >> 4 not in (0, 15) and four[2] >> 2 & 3 != 3


class SampleCollection(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        for folder in (OUTPUT, OUTPUT.with_name("again"), OUTPUT.with_name("other")):
            shutil.rmtree(folder, ignore_errors=True)
        made = make(OUTPUT)
        assert made.returncode == 0, made.stderr
        cls.paths = [path for path in OUTPUT.rglob("*") if path.suffix.lower() == ".mp3"]
        cls.files = [File(path) for path in cls.paths]

    def count(self, *attributes):
        return collections.Counter(tuple(getattr(file, name) for name in attributes) for file in self.files)

    def test_has_at_least_sixty_files_in_several_folders(self):
        self.assertGreaterEqual(len(self.paths), 60)
        self.assertGreaterEqual(len({path.parent for path in self.paths}), 10)

    def test_has_every_combination_of_tags(self):
        found = {(file.id3v1, file.id3v2 > 0) for file in self.files}
        self.assertEqual(found, {(False, False), (False, True), (True, False), (True, True)})
        self.assertEqual({file.id3v2 for file in self.files}, {0, 2, 3, 4})
        self.assertLessEqual({0, 1, 3}, {file.encoding for file in self.files})

    def test_has_every_version_of_mpeg_with_one_channel_and_two(self):
        found = {(file.mpeg, file.mode == "mono") for file in self.files}
        self.assertEqual(found, {(mpeg, mono) for mpeg in ("1", "2", "2.5") for mono in (False, True)})
        self.assertLessEqual({"stereo", "joint stereo"}, {file.mode for file in self.files})

    def test_has_variable_bitrates_in_mpeg_1_and_2(self):
        found = self.count("mpeg", "xing")
        self.assertGreaterEqual(found["1", True], 10)
        self.assertGreaterEqual(found["1", False], 10)
        self.assertGreaterEqual(found["2", True], 1)

    def test_has_names_in_many_scripts_and_an_upper_case_extension(self):
        names = "".join(str(path) for path in self.paths)
        for letter in ("å", "É", "ß", "桜", "が", "Б", "–"):
            self.assertIn(letter, names)
        self.assertEqual({path.suffix for path in self.paths}, {".mp3", ".MP3", ".Mp3"})

    def test_every_file_plays(self):
        played = subprocess.run(["mpv", "--no-config", "--no-video", "--ao=null", "--length=0.1", "--really-quiet",
                                 "--", *map(str, self.paths)], capture_output=True, text=True)
        self.assertEqual(played.returncode, 0, played.stdout + played.stderr)

    def test_is_reproducible(self):
        again = OUTPUT.with_name("again")
        self.assertEqual(make(again).returncode, 0)
        self.assertEqual(contents(OUTPUT), contents(again))

    def test_is_not_rebuilt_when_up_to_date(self):
        times = {path: path.stat().st_mtime_ns for path in self.paths}
        self.assertEqual(make(OUTPUT).returncode, 0)
        self.assertEqual({path: path.stat().st_mtime_ns for path in self.paths}, times)

    def test_does_not_replace_another_folder(self):
        other = OUTPUT.with_name("other")
        other.mkdir()
        (other / "mine.txt").write_text("mine")
        refused = make(other)
        self.assertNotEqual(refused.returncode, 0)
        self.assertIn("is not a sample collection", refused.stderr)
        self.assertEqual(contents(other), {pathlib.Path("mine.txt"): b"mine"})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
