#!/usr/bin/env python3
"""Lists made by --create, and the other commands of a shell.

usage: CreateTest.py --list                 prints the names of the tests
       CreateTest.py PROGRAM [TEST...]      runs the tests; exit status 77 if all were skipped
"""

import csv
import fcntl
import io
import os
import pathlib
import pty
import re
import struct
import subprocess
import sys
import termios
import time

import runs


# 128 kbit/s, 44,100 Hz: a modern reader wants frames behind each other.
AUDIO = (b"\xff\xfb\x90\x64" + bytes(413)) * 3


class CreateTest(runs.ProgramRun):
    def track(self, name, artist="Artist", title="Title"):
        path = super().track(name, artist, title)
        path.write_bytes(AUDIO + path.read_bytes()[-128:])
        return path

    def create(self, *arguments, **options):
        return self.run_program("--create", *arguments, settings=False, **options)

    def on_terminal(self, *arguments, columns=80, variables=None, output=None):
        """Runs the program with standard error on a terminal; returns the status and what the terminal got."""
        primary, secondary = pty.openpty()
        fcntl.ioctl(secondary, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        environment = self.environment(**({"TERM": "xterm"} | (variables or {})))
        with subprocess.Popen([self.program(), "--create", *arguments], stdin=subprocess.DEVNULL,
                              stdout=output or subprocess.DEVNULL, stderr=secondary, cwd=self.folder,
                              env=environment) as process:
            os.close(secondary)
            shown = b""
            while True:
                try:
                    piece = os.read(primary, 65536)
                except OSError:  # the last writer has closed the terminal
                    break
                if not piece:
                    break
                shown += piece
            os.close(primary)
            return process.wait(timeout=240), shown

    def expect_silence(self, result, status=0):
        self.assertEqual((result.returncode, result.stdout, result.stderr), (status, b"", b""))

    def test_lists_a_folder_into_a_file_in_silence(self):
        self.track("a.mp3", "Abba", "Ring")
        for display in ({}, {"DISPLAY": ":65535"}, {"QT_QPA_PLATFORM": "nonsense"}):
            self.expect_silence(self.create("--folder", "music", "--output", "out/list.csv", "--columns", "Artist|Title",
                                            **display))
            self.assertEqual((self.out / "list.csv").read_bytes(), b"\xef\xbb\xbfArtist,Title\r\nAbba,Ring\r\n")
            (self.out / "list.csv").unlink()
        # Nothing is saved.
        self.assertEqual(sorted(path.name for path in self.installation.iterdir()), [])

    def test_makes_the_same_page_as_an_unattended_run_of_the_same_settings(self):
        for number in range(250):
            self.track(f"{number}.mp3", f"Artist {number % 7}", f"Title {number}")
        self.settings |= {"OutputFile": str(self.out / "auto.htm"), "Spanning": 100, "Modern": 1, "DocumentType": "XHTML"}
        self.assertEqual(self.run_program().returncode, 0)
        self.expect_silence(self.create("--output", str(self.out / "made.htm")))
        for page in ("001", "002", "003"):
            auto, made = ((self.out / f"{name}.{page}.htm").read_bytes() for name in ("auto", "made"))
            self.assertEqual(auto.replace(b"auto", b"made"), made)

    def test_without_settings_lists_are_modern(self):
        path = self.music / "a.mp3"
        frame = b"\x01" + "Größe 東京".encode("utf-16")
        body = b"TIT2" + bytes([0, 0, 0, len(frame)]) + b"\0\0" + frame
        path.write_bytes(b"ID3\x03\0\0" + bytes([0, 0, 0, len(body)]) + body + AUDIO)
        result = self.create("--folder", str(self.music), "--output", "-.txt", "--columns", "Title")
        self.assertEqual(result.stdout, "\ufeffTitle\r\nGröße 東京\r\n".encode())
        result = self.create("--classic", "--folder", str(self.music), "--output", "-.txt", "--columns", "Title")
        self.assertEqual(result.returncode, 0)
        self.assertNotIn("東京".encode(), result.stdout)

    def test_lists_several_folders_as_one(self):
        self.track("a.mp3", "A", "1")
        other = self.folder / "other"
        other.mkdir()
        (other / "b.mp3").write_bytes(AUDIO + runs.id3v1(b"2", b"B"))
        result = self.create("--folder", "other", "--folder", "music", "--output", "-.txt", "--columns", "Artist|Full Path")
        self.assertEqual(result.stdout.decode("utf-8-sig").splitlines()[1:],
                         [f"A\t{self.music}/a.mp3", f"B\t{other}/b.mp3"])

    def test_keeps_links_in_paths_as_they_are_named(self):
        self.track("sub/a.mp3")
        (self.folder / "link").symlink_to(self.music / "sub")
        for folder, shown in (("link", f"{self.folder}/link/a.mp3"), ("./music/./sub//", f"{self.music}/sub/a.mp3"),
                              ("link/../sub", f"{self.music}/sub/a.mp3"), ("music/sub/..", f"{self.music}/sub/a.mp3")):
            result = self.create("--folder", folder, "--output", "-.txt", "--columns", "Full Path")
            self.assertEqual(result.stdout.decode("utf-8-sig").splitlines()[1:], [shown], folder)

    def test_writes_each_format_to_standard_output(self):
        self.track("a,b.mp3", "Abba", 'A "B"')
        starts = {"-": b"<!DOCTYPE HTML", "-.htm": b"<!DOCTYPE HTML", "-.txt": b"\xef\xbb\xbfNumber\t",
                  "-.csv": b"\xef\xbb\xbfNumber,", "-.m3u": b"#EXTM3U\r\n", "-.m3u8": b"#EXTM3U\r\n"}
        for output, start in starts.items():
            result = self.create("--folder", str(self.music), "--output", output)
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            self.assertTrue(result.stdout.startswith(start), result.stdout[:60])
        self.assertEqual(sorted(path.name for path in self.folder.glob("-*")), [])

    def test_writes_a_list_of_many_pages_as_one_to_standard_output(self):
        for number in range(350):
            self.track(f"{number}.mp3", "A", f"Title {number}")
        result = self.create("--folder", str(self.music), "--output", "-")
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertEqual(result.stdout.count(b"Title "), 350)
        self.assertTrue(result.stdout.endswith(b"</html>\r\n"))

    def test_standard_output_is_left_open_and_is_not_replaced(self):
        self.track("a.mp3", "Abba", "Ring")
        target = self.out / "whole.txt"
        script = '{ echo before; "$0" --create --folder music --output -.txt --columns Title; echo after; } >"$1"'
        subprocess.run(["bash", "-c", script, self.program(), target], check=True, cwd=self.folder, env=self.environment())
        self.assertEqual(target.read_bytes(), b"before\n\xef\xbb\xbfTitle\r\nRing\r\nafter\n")

    def test_a_reader_that_goes_away_ends_the_run_in_silence(self):
        for number in range(3000):
            self.track(f"{number}.mp3", "A" * 30, "B" * 30)
        script = 'set -o pipefail; "$0" --create --folder music --output - | head -1'
        started = time.monotonic()
        result = subprocess.run(["bash", "-c", script, self.program()], capture_output=True, check=False, timeout=60,
                                cwd=self.folder, env=self.environment())
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertEqual(result.stdout.count(b"\n"), 1)
        self.assertLess(time.monotonic() - started, 30)

    def test_a_full_disk_behind_standard_output_is_reported(self):
        self.track("a.mp3")
        with open("/dev/full", "wb") as full:
            result = subprocess.run([self.program(), "--create", "--folder", "music", "--output", "-"], stdout=full,
                                    stderr=subprocess.PIPE, check=False, cwd=self.folder, env=self.environment())
        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr, b"Tunedex: An unexpected error occurred. The error was: Error number 61 - Disk full\n")

    def test_names_wrong_use_in_one_line(self):
        self.track("a.mp3")
        (self.folder / "file").write_bytes(b"")
        see = "; see tunedex --help"
        good = ("--folder", "music", "--output", "out/a.htm")
        for arguments, status, text in (
                (("--folder",), 2, "--folder needs a value: DIR" + see),
                (("--output", "--quiet"), 2, "--output needs a value: FILE" + see),
                (("--colour", "red"), 2, "unknown option --colour" + see),
                ((*good, "more"), 2, "unexpected argument more" + see),
                ((*good, "--output", "b.htm"), 2, "--output is given twice" + see),
                ((*good, "--modern", "--classic"), 2, "--modern and --classic exclude each other" + see),
                ((*good, "--theme", "None"), 2, "no such theme: None"),
                ((*good, "--columns", "Artist|Nonsense"), 2, "no such column: Nonsense"),
                ((*good, "--settings", "none.cfg"), 2, "no such settings file: none.cfg"),
                (("--output", "a.htm"), 2, "no folder to list; name it with --folder"),
                (("--folder", "music"), 2, "no file to write; name it with --output"),
                (("--folder", "music", "--output", "out/"), 2, "--output names a folder, not a file: out/"),
                (("--folder", "none", "--output", "a.htm"), 1, "no such folder: none"),
                (("--folder", "file", "--output", "a.htm"), 1, "no such folder: file"),
                (("--folder", "music", "--output", "none/a.htm"), 1, f"no such folder for the list: {self.folder}/none"),
                (("--folder", "out", "--output", "a.htm"), 1, "No MP3 files were found in the directory specified."),
                (("--folder", "a\nb", "--output", "a.htm"), 1, "no such folder: a b"),
                ((*good, "--x\ny"), 2, "unknown option --x?y" + see)):
            with self.subTest(arguments):
                result = self.create(*arguments)
                self.assertEqual((result.returncode, result.stdout, result.stderr.decode()),
                                 (status, b"", f"Tunedex: {text}\n"))
        self.assertEqual(list(self.out.iterdir()), [])

    def test_never_asks(self):
        self.track("a.mp3")
        self.settings |= {"OutputFile": str(self.out / "none/list.htm")}
        self.write_settings()
        result = self.create(answers=b"yes\n")
        self.assertEqual((result.returncode, result.stderr.decode()),
                         (1, f"Tunedex: no such folder for the list: {self.out}/none\n"))
        self.assertFalse((self.out / "none").exists())

    def test_names_each_file_that_cannot_be_read_in_one_line(self):
        self.track("a.mp3", "A", "a")
        (self.music / "empty.mp3").write_bytes(b"")
        self.track("locked/b.mp3").parent.chmod(0)
        (self.music / "secret.mp3").write_bytes(AUDIO)
        (self.music / "secret.mp3").chmod(0)
        command = ("--folder", str(self.music), "--output", str(self.out / "l.txt"))
        result = self.create(*command, ordinary=True)
        lines = result.stderr.decode().splitlines()
        self.assertEqual(result.returncode, 3, lines)
        self.assertEqual(lines[-1], "Tunedex: 1 folder and 1 file could not be read")
        for name in ("empty.mp3", "locked", "secret.mp3"):
            self.assertEqual(sum(name in line for line in lines), 1, lines)
        self.assertTrue(all(line.startswith("Tunedex: ") for line in lines), lines)

    def test_names_the_log_of_what_could_not_be_read(self):
        self.track("a.mp3", "A", "a")
        self.track("locked/b.mp3").parent.chmod(0)
        self.settings |= {"ErrorWarnings": 0, "ErrorLog": 1, "Modern": 1}
        self.write_settings()
        result = self.create("--quiet", ordinary=True)
        self.assertEqual((result.returncode, result.stderr.decode()),
                         (3, f"Tunedex: 1 folder could not be read; see {self.installation}/Tunedex.log\n"))
        self.assertIn(b"locked", (self.installation / "Tunedex.log").read_bytes())

    def test_shows_progress_and_a_summary_on_a_terminal(self):
        for number in range(150):
            self.track(f"{number}.mp3")
        command = ("--folder", "music", "--output", "out/l.htm")
        status, shown = self.on_terminal(*command)
        self.assertEqual(status, 0)
        self.assertIn(b"Retrieving MPEG/ID3 information", shown)
        self.assertRegex(shown.decode(), r"\r\x1b\[KTunedex: 150 files, 2 pages, \d+\.\d seconds\r\n$")
        self.assertEqual(shown.count(b"\n"), 1)
        for variables in ({"NO_COLOR": "1"}, {}):
            status, shown = self.on_terminal(*command, variables=variables)
            self.assertEqual(b"\x1b[32m" in shown, not variables and b"#" in shown)

    def test_is_silent_on_a_terminal_when_asked(self):
        self.track("a.mp3")
        self.assertEqual(self.on_terminal("--folder", "music", "--output", "out/l.htm", "--quiet"), (0, b""))

    def test_moves_no_cursor_of_a_dumb_terminal(self):
        self.track("a.mp3")
        status, shown = self.on_terminal("--folder", "music", "--output", "out/l.htm", variables={"TERM": "dumb"})
        self.assertEqual(status, 0)
        self.assertRegex(shown.decode(), r"^Tunedex: 1 file, 1 page, \d+\.\d seconds\r\n$")

    def test_the_progress_line_is_no_wider_than_the_terminal(self):
        for number in range(200):
            self.track(f"{number}.mp3")
        for columns in (1, 2, 20, 80):
            _, shown = self.on_terminal("--folder", "music", "--output", "out/l.htm", columns=columns)
            for line in re.split(r"\r", shown.decode()):
                if not line.startswith(("\x1b[KTunedex", "\n")):
                    self.assertLess(len(re.sub(r"\x1b\[\d*[mK]", "", line)), max(columns, 2))

    def test_a_signal_stops_the_run_and_says_so(self):
        fifo = self.out / "l.txt"
        os.mkfifo(fifo)
        self.track("a.mp3")
        for number in range(2000):
            self.track(f"{number}.mp3", "A" * 30, "B" * 30)
        reader = os.open(fifo, os.O_RDONLY | os.O_NONBLOCK)  # reads nothing, so the run waits
        self.addCleanup(os.close, reader)
        with subprocess.Popen([self.program(), "--create", "--folder", "music", "--output", fifo], cwd=self.folder,
                              stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, env=self.environment()) as process:
            time.sleep(2)
            process.terminate()
            self.assertEqual(process.communicate(timeout=60)[1], b"Tunedex: stopped before the list was complete\n")
            self.assertEqual(process.returncode, 1)

    def test_output_may_be_a_fifo_a_name_without_extension_or_one_that_begins_with_a_dash(self):
        self.track("a.mp3", "A", "B")
        self.expect_silence(self.create("--folder", "music", "--output", "-list"))
        self.expect_silence(self.create("--folder", "music", "--output", "./-"))
        self.assertTrue((self.folder / "-list.htm").exists() and (self.folder / "-.htm").exists())

    def test_a_csv_of_hostile_texts_reads_back(self):
        texts = ['a,b', 'say "hi"', "x=1", " lead"]
        for number, text in enumerate(texts):
            self.track(f"{number}.mp3", f"{number}", text)
        result = self.create("--folder", "music", "--output", "-.csv", "--columns", "Title")
        rows = list(csv.reader(io.StringIO(result.stdout.decode("utf-8-sig"), newline="")))
        self.assertEqual([row[0] for row in rows[1:]], [text.rstrip() for text in texts])

    def test_automatic_mode_is_not_searched_for_in_a_command(self):
        folder = self.folder / "auto"
        folder.mkdir()
        (folder / "a.mp3").write_bytes(AUDIO + runs.id3v1(b"T", b"A"))
        result = self.create("--folder", f"{self.folder}/auto", "--output", "-.txt", "--columns", "Title")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, b"\xef\xbb\xbfTitle\r\nT\r\n", b""))
        result = self.run_program("--write-defaults", f"{self.folder}/auto/x.cfg", settings=False)
        self.expect_silence(result)
        result = self.run_program("--check", f"{self.folder}/auto/x.cfg", settings=False)
        self.assertEqual((result.returncode, result.stdout.decode(), result.stderr),
                         (0, f"{self.folder}/auto/x.cfg: no faulty line\n", b""))

    def test_checks_a_settings_file(self):
        path = self.folder / "my.cfg"
        path.write_bytes(b"Merge=1\r\nnonsense\r\nColour(x)=FFFFFF\r\nMerg=2\r\n")
        result = self.run_program("--check", "my.cfg", settings=False)
        self.assertEqual((result.returncode, result.stdout.decode(), result.stderr),
                         (1, 'my.cfg:2: line skipped: no "=" in it\nmy.cfg:3: line skipped: Subscript out of range\n'
                             "my.cfg:4: unknown key, ignored\n", b""))
        for arguments, status, text in ((("--check", "none.cfg"), 1, "none.cfg cannot be read: File not found"),
                                        (("--check", str(self.music)), 1, None),
                                        (("--check",), 2, "--check needs a value: FILE; see tunedex --help"),
                                        (("--check", "a", "b"), 2, "unexpected argument b; see tunedex --help")):
            result = self.run_program(*arguments, settings=False)
            self.assertEqual((result.returncode, result.stdout), (status, b""))
            self.assertEqual(result.stderr.count(b"\n"), 1)
            if text:
                self.assertEqual(result.stderr.decode(), f"Tunedex: {text}\n")

    def test_shipped_themes_have_no_faulty_line(self):
        themes = pathlib.Path(__file__).resolve().parents[2] / "data/Themes"
        for theme in sorted(themes.glob("*.thm")):
            self.assertEqual(self.run_program("--check", str(theme), settings=False).returncode, 0, theme.name)


if __name__ == "__main__":
    sys.exit(runs.main(CreateTest))
