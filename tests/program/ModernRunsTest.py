#!/usr/bin/env python3
"""Whole unattended runs of the built program with the setting Modern.

usage: ModernRunsTest.py --list                 prints the names of the tests
       ModernRunsTest.py PROGRAM [TEST...]      runs the tests; exit status 77 if all were skipped
"""

import os
import struct
import sys

import runs
from runs import audio, id3v1


def id3v23(**texts):
    """An ID3v2.3 tag with texts in UTF-16."""
    frames = b""
    for name, text in texts.items():
        content = b"\1" + text.encode("utf-16")
        frames += name.encode() + struct.pack(">IH", len(content), 0) + content
    size = bytes((len(frames) >> shift) & 0x7F for shift in (21, 14, 7, 0))
    return b"ID3\3\0\0" + size + frames


def frames(count=20):
    """Whole frames (MPEG-1 layer III, 128 kbit/s, 44,100 Hz)."""
    return (b"\xff\xfb\x90\x64" + bytes(413)) * count


class ModernRunsTest(runs.ProgramRun):
    def setUp(self):
        super().setUp()
        self.settings.update(Modern=1, ErrorWarnings=0, ErrorLog=1)
        self.log = self.installation / "Tunedex.log"

    def tagged(self, name, **texts):
        path = self.music / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(id3v23(**texts) + frames())
        return path

    def cells(self):
        content = self.list.read_bytes().decode("utf-8-sig")
        return [tuple(line.split("\t")) for line in content.split("\r\n")[1:-1]]

    def last_line(self, result):
        return result.stderr.decode("utf-8", "surrogateescape").splitlines()[-1]

    def eight_albums(self):
        for album in range(8):
            self.tagged(f"{album}/a.mp3", TPE1=f"Artist {album}", TIT2="Title")

    def test_lists_eight_albums_beside_a_folder_that_may_not_be_read(self):
        self.eight_albums()
        (self.music / "lost+found").mkdir()
        (self.music / "lost+found").chmod(0)
        result = self.run_program(ordinary=True)
        self.expect(result, 3)
        self.assertEqual(self.cells(), [(f"Artist {album}", "Title") for album in range(8)])
        self.assertEqual(self.last_line(result), f"Tunedex: 1 folder could not be read; see {self.log}")
        self.assertEqual(self.log.read_bytes(), b"An error occurred scanning the directory: \\n\\n" +
                         os.fsencode(self.music / "lost+found") + b"\\n\\n75: Path/File access error\r\n")

    def test_counts_folders_and_files_without_a_log(self):
        self.eight_albums()
        self.settings.update(ErrorLog=0)
        for name in ("one", "two"):
            (self.music / name).mkdir()
            (self.music / name).chmod(0)
        self.track("secret.mp3").chmod(0)
        result = self.run_program(ordinary=True)
        self.expect(result, 3)
        self.assertEqual(len(self.cells()), 9)
        self.assertEqual(self.last_line(result), "Tunedex: 2 folders and 1 file could not be read; switch on the "
                         f"error log to have each named in {self.log}")
        self.assertFalse(self.log.exists())

    def test_ends_with_status_0_when_everything_was_read(self):
        self.eight_albums()
        result = self.run_program()
        self.expect(result, 0)
        self.assertEqual(self.last_line(result), "Operation complete!")

    def test_ends_with_status_1_when_the_list_cannot_be_written(self):
        self.eight_albums()
        (self.music / "lost+found").mkdir()
        (self.music / "lost+found").chmod(0)
        self.out.chmod(0o555)
        self.expect(self.run_program(ordinary=True), 1)

    def test_reads_todays_tags(self):
        names = ["Björk", "Мумий Тролль", "宇多田ヒカル"]
        for number, name in enumerate(names):
            self.tagged(f"{number}.mp3", TPE1=name, TIT2=name + "!")
        self.expect(self.run_program(), 0)
        self.assertEqual(sorted(self.cells()), sorted((name, name + "!") for name in names))

    def test_reads_old_tags_with_the_code_page_of_the_settings(self):
        path = self.track("a.mp3")
        path.write_bytes(audio() + id3v1("Мумий".encode("cp1251"), "Тролль".encode("cp1251")))
        self.settings.update(TagCodePage="windows-1251")
        self.expect(self.run_program(), 0)
        self.assertEqual(self.cells(), [("Тролль", "Мумий")])

    def test_sorts_discs_and_compilations_by_album(self):
        self.settings.update(ActiveColumns="Album|Disc|Track|Title")
        rows = [("Hits", "1/2", "2", "b"), ("Hits", "1/2", "10", "a"), ("Hits", "2/2", "1", "c")]
        for number, (album, disc, track, title) in enumerate(rows):
            self.tagged(f"{number}.mp3", TALB=album, TPOS=disc, TRCK=track, TIT2=title, TPE1=f"Z{9 - number}",
                        TPE2="Various")
        self.tagged("e.mp3", TALB="x", TPE1="Étude", TIT2="e")
        self.tagged("f.mp3", TALB="x", TPE1="Foo", TIT2="f")
        expected = [("x", "", "", "e"), ("x", "", "", "f"), *rows]
        desktop = {"LANG": "de_DE.UTF-8", "XDG_SESSION_TYPE": "x11", "LANGUAGE": "sv"}
        for environment in ({}, {"LANG": "de_DE.UTF-8"}, desktop, {"LC_ALL": "C"}):
            self.expect(self.run_program(**environment), 0)
            self.assertEqual(self.cells(), expected, environment)
        self.settings.update(SortOrder=2)
        self.expect(self.run_program(), 0)
        self.assertEqual(self.cells(), expected[::-1])

    def test_completes_a_playlist_over_a_bad_file(self):
        self.eight_albums()
        (self.music / "junk.mp3").write_bytes(b"no audio" * 500)
        self.list = self.out / "list.m3u8"
        self.settings.update(OutputFile=self.list)
        self.expect(self.run_program(), 0)
        lines = self.list.read_bytes().decode().split("\r\n")
        self.assertEqual(len(lines), 1 + 9 * 2 + 1)
        self.assertIn(f"#EXTINF:-1,{self.music / 'junk.mp3'} - No ID3 Tags!", lines)

    def test_offers_the_modern_columns_only_when_it_is_on(self):
        self.tagged("a.mp3", TPE1="a", TIT2="t", TRCK="3/9", TPOS="1", TPE2="b", TCOM="c")
        self.settings.update(ActiveColumns="Artist|Track|Disc|Album Artist|Composer|Comment")
        self.expect(self.run_program(), 0)
        self.assertEqual(self.cells(), [("a", "3/9", "1", "b", "c", "")])
        self.settings.update(Modern=0)
        self.expect(self.run_program(), 0)
        self.assertEqual(self.list.read_bytes().count(b"\t"), 5, "headers without cells")

    def test_writes_the_old_kinds_of_files_when_it_is_off(self):
        self.track("a.mp3")
        for name in ("list.csv", "list.m3u8"):
            self.settings.update(Modern=0, OutputFile=self.out / name)
            self.expect(self.run_program(), 0)
            self.assertTrue((self.out / (name + ".htm")).exists())


if __name__ == "__main__":
    sys.exit(runs.main(ModernRunsTest))
