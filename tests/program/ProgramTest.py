#!/usr/bin/env python3
"""Runs the built program as users do: whole runs, unattended, without a display.

usage: ProgramTest.py --list                 prints the names of the tests
       ProgramTest.py PROGRAM [TEST...]      runs the tests; exit status 77 if all were skipped
"""

import datetime
import fcntl
import os
import pathlib
import resource
import shutil
import signal
import stat
import struct
import subprocess
import sys
import termios

import runs
from runs import audio, id3v1

SOURCE = pathlib.Path(__file__).resolve().parents[2]
ALL_COLUMNS = ("Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|File Size|"
               "Filename|Folder Path|Full Path")
STATUSES = [b"Searching for MP3 files...", b"Retrieving MPEG/ID3 information...", b"Sorting information...",
            b"Writing information...", b"Operation complete!"]
AUTOMATIC = b"Tunedex Error! (Automatic Mode)\n"


def locale_installed(name):
    names = subprocess.run(["locale", "-a"], capture_output=True, check=True).stdout.decode("latin-1").lower()
    return name.lower().replace("-", "") in names.replace("-", "").split()


class ProgramTest(runs.ProgramRun):
    # Results of a run

    def test_writes_the_list_and_reports_only_on_standard_error(self):
        self.track("b.mp3", "Zappa", "Peaches")
        self.track("sub/a.MP3", "Abba", "Ring")
        self.expect(self.run_program(), 0, *[status + b"\n" for status in STATUSES])
        self.assertEqual(self.list.read_bytes(), b"Artist\tTitle\r\nAbba\tRing\r\nZappa\tPeaches\r\n")

    def test_finds_its_switch_in_any_case_and_inside_an_argument(self):
        self.track("a.mp3")
        for argument in ("/auto", "x/AutoY"):
            self.expect(self.run_program("some.cfg", argument), 0)

    def paths(self):
        return sorted(self.folder.rglob("*"))

    def test_prints_help_and_version_without_starting(self):
        shutil.rmtree(self.folder / "config")
        self.program()
        before = self.paths()
        for display in ({}, {"DISPLAY": ":65535"}, {"QT_QPA_PLATFORM": "offscreen"}):
            for argument, text in (("--help", b"Usage: tunedex [/AUTO]\n"), ("--version", b"Tunedex 1.")):
                with self.subTest(argument, **display):
                    result = self.run_program(argument, settings=False, **display)
                    self.assertEqual((result.returncode, result.stderr), (0, b""))
                    self.assertTrue(result.stdout.startswith(text) and result.stdout.endswith(b"\n"), result.stdout)
                    self.assertEqual(self.paths(), before)
        with open("/dev/full", "wb") as full:
            self.assertEqual(subprocess.run([self.program(), "--help"], stdout=full, check=False).returncode, 2)

    def test_reads_help_as_an_option_only_as_the_single_argument(self):
        self.track("a.mp3")
        self.expect(self.run_program("--help", "/AUTO"), 0, *STATUSES)
        self.expect(self.run_program("--Help"), 2, b"/AUTO")

    def test_writes_the_same_bytes_twice(self):
        for number in range(40):
            self.track(f"folder {number % 5}/{number}.mp3", f"Ärtist {number * 7 % 40}", f"Title {number % 3}")
        for name in ("list.txt", "list.m3u", "list.htm"):
            self.settings.update(OutputFile=self.out / name, ActiveColumns=ALL_COLUMNS, PageFooter="%C %S %P")
            self.expect(self.run_program(), 0)
            first = (self.out / name).read_bytes()
            self.expect(self.run_program(), 0)
            self.assertEqual((self.out / name).read_bytes(), first)
            self.assertGreater(len(first), 40 * 20)

    def test_lists_several_folders(self):
        self.track("one/a.mp3", "Abba")
        self.track("two/b.mp3", "Zappa")
        self.settings["Directory"] = f"%MULT%{self.music}/one%||%{self.music}/two"
        self.expect(self.run_program(), 0)
        self.assertEqual(self.rows(), [b"Abba\tTitle", b"Zappa\tTitle"])

    def test_leaves_the_statistics_file_alone(self):
        self.track("a.mp3")
        self.expect(self.run_program(), 0)
        self.assertFalse((self.installation / "stats.lst").exists())
        before = b'"15/11/2026"\r\n3\r\n2\r\n57\r\n'
        (self.installation / "stats.lst").write_bytes(before)
        self.expect(self.run_program(), 0)
        self.assertEqual((self.installation / "stats.lst").read_bytes(), before)

    def test_writes_the_paths_of_a_playlist_byte_for_byte(self):
        names = [b"caf\xc3\xa9.mp3", "歌.mp3".encode(), b"stray \xe9.mp3", b"back\\slash.mp3"]
        for name in names:
            pathlib.Path(os.fsdecode(os.fsencode(self.music) + b"/" + name)).write_bytes(audio() + id3v1(b"T\xe9"))
        self.settings["OutputFile"] = self.out / "list.m3u"
        self.expect(self.run_program(), 0)
        lines = (self.out / "list.m3u").read_bytes().split(b"\r\n")
        self.assertEqual(sorted(lines[2::2]), sorted(os.fsencode(self.music) + b"/" + name for name in names))
        self.assertTrue(lines[1].endswith("Té".encode()), "one encoding throughout: UTF-8 here")

    # Settings and texts outside the code page

    def test_lists_a_folder_whose_name_is_not_utf8(self):
        folder = os.fsencode(self.music) + b"/caf\xe9"
        os.mkdir(folder)
        pathlib.Path(os.fsdecode(folder + b"/a.mp3")).write_bytes(audio() + id3v1(b"T"))
        self.settings.update(ActiveColumns="Folder Path")
        # In a settings file a stray byte is written as a lone surrogate, E9 as U+DCE9.
        lines = "".join(f"{key}={value}\r\n" for key, value in self.settings.items() if key != "Directory")
        lines = lines.encode() + b"Directory=" + folder.replace(b"\xe9", b"\xed\xb3\xa9") + b"\r\n"
        (self.installation / "Tunedex.cfg").write_bytes(b"\xef\xbb\xbf" + lines)
        self.expect(self.run_program(settings=False), 0)
        self.assertEqual(self.rows(), [folder])

    def test_logs_one_line_per_error(self):
        path = self.music / "two\nlines\r.mp3"
        path.write_bytes(b"no frame")
        self.settings.update(ErrorWarnings=0, ErrorLog=1)
        self.expect(self.run_program(), 0)
        self.assertEqual((self.installation / "Tunedex.log").read_bytes(),
                         rb"An error occurred decoding the headers of: \n\n" +
                         os.fsencode(self.music) + b"/two lines .mp3\r\n")

    def test_writes_no_reference_to_a_character_that_pages_may_not_hold(self):
        self.track("\ufffe\uffff\ufffd.mp3")
        self.settings.update(OutputFile=self.out / "list.htm", ActiveColumns="Filename", DoLinks=1)
        self.expect(self.run_program(), 0)
        page = (self.out / "list.htm").read_bytes()
        self.assertEqual(page.count(b"&#65533;&#65533;&#65533;.mp3"), 2)
        self.assertNotIn(b"&#65534;", page)
        self.assertNotIn(b"&#65535;", page)

    # The entity table

    def test_raises_overflow_only_for_a_character_whose_expansion_is_too_long(self):
        self.settings.update(OutputFile=self.out / "list.htm")
        million = b"a" * 1000000
        for table in (b"97\taa\r\n" * 64, b"97\t" + million + b"\r\n97\t" + million + b"\r\n"):
            (self.installation / "html_entities.lst").write_bytes(table)
            (self.out / "list.htm").unlink(missing_ok=True)
            self.track("1.mp3", "BBB", "CCC")
            self.expect(self.run_program(), 0)
            self.track("1.mp3", "Abba", "CCC")
            (self.out / "list.htm").write_bytes(b"old")
            self.expect(self.run_program(), 1, b"Error\nAn unexpected error occurred. The error was: \n\n"
                        b"Error number 6 - Overflow\n[OK] ")
            self.assertEqual((self.out / "list.htm").read_bytes(), b"old")

    def test_reports_error_7_if_the_entity_table_exceeds_memory(self):
        if runs.surroundings.sanitizer_of(self.built):
            self.skipTest("a sanitizer needs more address space than this test allows")
        self.track("a.mp3")
        with open(self.installation / "html_entities.lst", "wb") as table:
            table.truncate(4 << 30)
        limit = 1 << 30
        self.expect(self.run_program(preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (limit, limit))), 1,
                    b"Error\nAn unexpected error occurred. The error was: \n\nError number 7 - Out of memory\n[OK] ")

    # Numbers and dates

    def test_uses_neutral_number_formats_in_the_c_locale(self):
        self.track("a.mp3")
        self.settings.update(ActiveColumns="File Size")
        self.expect(self.run_program(LC_ALL="C"), 0)
        self.assertEqual(self.rows(), [b"8,320 b."])

    def test_groups_french_thousands_with_a_no_break_space_in_every_listing(self):
        if not locale_installed("fr_FR.utf8"):
            self.skipTest("the locale fr_FR.UTF-8 is not installed")
        self.track("a.mp3")
        self.settings.update(ActiveColumns="File Size", PageFooter="%S")
        self.expect(self.run_program(LC_ALL="fr_FR.UTF-8"), 0)
        self.assertEqual(self.rows(), [b"8\xa0320 b."])
        self.settings.update(OutputFile=self.out / "list.htm")
        self.expect(self.run_program(LC_ALL="fr_FR.UTF-8"), 0)
        self.assertEqual((self.out / "list.htm").read_bytes().count(b"8\xa0320 b."), 2)

    def test_follows_a_german_locale(self):
        if not locale_installed("de_DE.utf8"):
            self.skipTest("the locale de_DE.UTF-8 is not installed")
        self.track("a.mp3")
        self.settings.update(ActiveColumns="File Size")
        self.expect(self.run_program(LC_ALL="de_DE.UTF-8"), 0)
        self.assertEqual(self.rows(), [b"8.320 b."])
        self.settings.update(SizeType=1)
        self.expect(self.run_program(LC_ALL="de_DE.UTF-8"), 0)
        self.assertEqual(self.rows()[0].split()[0], b"8,13")
        self.settings.update(OutputFile=self.out / "list.htm", PageFooter="am %D.")
        days = [datetime.date.today()]
        self.expect(self.run_program(LC_ALL="de_DE.UTF-8"), 0)
        days.append(datetime.date.today())
        page = (self.out / "list.htm").read_text("cp1252")
        self.assertTrue(any(day.strftime("am %d.%m.%Y.") in page for day in days))

    # Messages and answers

    def test_answers_no_at_the_end_of_standard_input(self):
        self.track("a.mp3")
        self.settings["OutputFile"] = self.out / "new/list.txt"
        self.expect(self.run_program(), 1, AUTOMATIC +
                    b"The output directory does not exist!\n\nDo you want to create it?\nYes or No? [No] \n")
        self.assertFalse((self.out / "new").exists())

    def test_creates_the_output_folder_on_yes(self):
        self.track("a.mp3")
        self.settings["OutputFile"] = self.out / "new/er/list.txt"
        self.expect(self.run_program(answers=b"y\n"), 0)
        self.assertTrue((self.out / "new/er/list.txt").exists())

    def test_creates_nothing_on_no(self):
        self.track("a.mp3")
        self.settings["OutputFile"] = self.out / "new/list.txt"
        self.expect(self.run_program(answers=b"n\ny\n"), 1)
        self.assertFalse((self.out / "new").exists())

    def test_runs_with_standard_input_closed(self):
        self.settings["Directory"] = self.folder / "none"
        self.write_settings()
        result = subprocess.run(["sh", "-c", 'exec "$0" /AUTO <&-', str(self.program())], capture_output=True,
                                timeout=240, check=False, env=self.environment())
        self.expect(result, 1, b"The specified directory does not exist!\n[OK] \n")

    def test_reports_invalid_settings_with_exit_status_1(self):
        rows = [({"Directory": ""}, b"No input directory specified!"),
                ({"Directory": "%MULT%"}, b"No input directories specified!"),
                ({"Directory": self.folder / "none"}, b"The specified directory does not exist!"),
                ({"OutputFile": ""}, b"No output file specified!")]
        for changes, text in rows:
            with self.subTest(text):
                before = dict(self.settings)
                self.settings.update(changes)
                self.expect(self.run_program(), 1, AUTOMATIC + text + b"\n[OK] ")
                self.settings = before
        self.expect(self.run_program(), 1, b"No MP3 files!\nNo MP3 files were found\nin the directory specified.\n")
        self.assertFalse(self.list.exists())

    def test_reports_malformed_statistics_and_continues(self):
        self.track("a.mp3")
        (self.installation / "stats.lst").write_bytes(b"rubbish\r\n")
        self.expect(self.run_program(), 0, AUTOMATIC + b"An unexpected error occurred. The error was: \n\n"
                    b"Error number 62 - Input past end of file\n[OK] ")

    def test_names_file_and_line_of_invalid_settings_and_entities(self):
        self.track("a.mp3", "A & B")
        self.settings.update(OutputFile=self.out / "list.htm")
        self.write_settings()
        with open(self.installation / "Tunedex.cfg", "ab") as file:
            file.write(b"Font(0)=x\r\nno sign\r\n")
        (self.installation / "html_entities.lst").write_bytes(b"38 &amp;\r\n38\t&amp;\r\n")
        self.expect(self.run_program(settings=False), 0,
                    os.fsencode(self.installation) + b"/Tunedex.cfg:10: line skipped: Subscript out of range\n",
                    os.fsencode(self.installation) + b'/Tunedex.cfg:11: line skipped: no "=" in it\n',
                    os.fsencode(self.installation) + b"/html_entities.lst:1: line skipped: no TAB in it\n")
        self.assertIn(b"A &amp; B", (self.out / "list.htm").read_bytes())

    def test_fails_to_start_with_unreadable_settings(self):
        os.mkfifo(self.installation / "Tunedex.cfg")
        self.expect(self.run_program(settings=False), 2, b"could not start: File not found")

    def test_ends_with_an_input_that_never_ends_a_line(self):
        self.track("a.mp3")
        self.settings["OutputFile"] = self.out / "new/list.txt"
        with open("/dev/zero", "rb") as zeros:
            result = self.run_program(answers=zeros)
        self.expect(result, 1, AUTOMATIC + b"The output directory does not exist!\n\nDo you want to create it?\n"
                    b"Yes or No? [No] \n")

    def test_asks_again_after_an_answer_of_more_than_4096_bytes(self):
        self.track("a.mp3")
        self.settings["OutputFile"] = self.out / "new/list.txt"
        self.expect(self.run_program(answers=b" " * 4097 + b"\ny\n"), 0, b"Yes or No? [No] Yes or No? [No] ")
        self.assertTrue((self.out / "new/list.txt").exists())

    def start(self, stdin=subprocess.PIPE, stderr=subprocess.PIPE, **options):
        """Starts an unattended run that reports each of 200 files and needs an answer to each report."""
        for number in range(200):
            (self.music / f"{number}.mp3").write_bytes(b"no audio" * 500)
        self.list.write_bytes(b"old")
        self.write_settings()
        process = subprocess.Popen([self.program(), "/AUTO"], stdin=stdin, stdout=subprocess.DEVNULL, stderr=stderr,
                                   env=self.environment(), cwd=self.folder, bufsize=0, **options)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        self.addCleanup(lambda: [stream.close() for stream in (process.stdin, process.stderr) if stream])
        return process

    def wait_for_question(self, descriptor):
        said = b""
        while not said.endswith(b"[OK] "):
            byte = os.read(descriptor, 1)
            self.assertNotEqual(byte, b"", said)
            said += byte
        return said

    @staticmethod
    def unread(pipe):
        """The number of bytes in a pipe."""
        return struct.unpack("i", fcntl.ioctl(pipe, termios.FIONREAD, bytes(4)))[0]

    def expect_abort(self, process):
        """Expects the abort within 10 s; an idle machine takes 0.1 s."""
        process.send_signal(signal.SIGTERM)
        self.assertEqual(process.wait(10), 1)
        self.assertEqual(self.list.read_bytes(), b"old")

    def test_is_aborted_by_an_interrupt(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            process = self.start()
            said = self.wait_for_question(process.stderr.fileno())
            process.send_signal(number)
            said += process.stderr.read()
            self.assertEqual(process.wait(240), 1)
            self.assertNotIn(b"Operation complete!", said)
            self.assertEqual(self.list.read_bytes(), b"old")

    def test_continues_after_a_signal_that_it_inherited_as_ignored(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            process = self.start(preexec_fn=lambda number=number: signal.signal(number, signal.SIG_IGN))
            self.wait_for_question(process.stderr.fileno())
            process.send_signal(number)
            said = process.communicate(b"\n" * 200, timeout=240)[1]
            self.assertEqual(process.returncode, 0, said)
            self.assertIn(b"Operation complete!", said)
            self.assertNotEqual(self.list.read_bytes(), b"old")

    def test_is_aborted_while_standard_error_is_a_full_pipe(self):
        reader, writer = os.pipe()
        self.addCleanup(os.close, reader)
        fcntl.fcntl(writer, fcntl.F_SETPIPE_SZ, 2 * resource.getpagesize())
        (self.folder / "answers").write_bytes(b"\n" * 200)
        with open(self.folder / "answers", "rb") as answers:
            process = self.start(answers, writer)
        os.close(writer)
        while self.unread(reader) <= resource.getpagesize():  # full once both pages are in use
            self.assertIsNone(process.poll())
        self.expect_abort(process)

    def test_is_aborted_while_its_terminal_is_stopped(self):
        master, terminal = os.openpty()
        self.addCleanup(os.close, master)
        process = self.start(stderr=terminal)
        os.close(terminal)
        self.wait_for_question(master)
        os.write(master, b"\x13")  # Ctrl+S
        process.stdin.write(b"\n")
        while self.unread(process.stdin) > 0:
            self.assertIsNone(process.poll())
        self.expect_abort(process)

    # Unusual collections

    def test_never_opens_a_fifo_named_like_a_track(self):
        self.track("a.mp3", "Abba")
        os.mkfifo(self.music / "x.mp3")
        self.expect(self.run_program(), 0)
        self.assertEqual(self.rows(), [b"Abba\tTitle"])

    def test_walks_a_loop_of_links_once(self):
        self.track("sub/a.mp3", "Abba")
        (self.music / "sub/up").symlink_to("..")
        (self.music / "sub/here").symlink_to(".")
        (self.music / "self.mp3").symlink_to("self.mp3")
        (self.music / "gone.mp3").symlink_to("nothing")
        self.expect(self.run_program(), 0)
        self.assertEqual(self.rows(), [b"Abba\tTitle"])

    def test_lists_a_file_of_300_megabytes(self):
        path = self.track("big.mp3")
        os.truncate(path, 300_000_000)
        self.settings.update(ActiveColumns="Filename|File Size|Bitrate")
        self.expect(self.run_program(), 0, AUTOMATIC + b"An error occurred decoding the headers of: \n\n" +
                    os.fsencode(path) + b"\n[OK] ")
        self.assertTrue(self.rows()[0].startswith(b"big.mp3\t300,000,000 b.\t"), self.rows())

    def test_lists_an_empty_file(self):
        (self.music / "empty.mp3").write_bytes(b"")
        self.settings.update(ActiveColumns="Artist|Title|File Size|Duration")
        self.expect(self.run_program(), 0, b"An error occurred decoding the headers of: \n\n")
        self.assertEqual(self.rows(), [os.fsencode(self.music / "empty.mp3") + b"\tNo ID3 Tags!\t0 b.\t"])

    def test_survives_a_tag_that_claims_256_megabytes(self):
        frame = b"TIT2" + struct.pack(">I", 0xFFFFFFFF) + b"\0\0\0Claim"
        (self.music / "claim.mp3").write_bytes(b"ID3\x03\0\0\x7f\x7f\x7f\x7f" + frame + audio() +
                                               id3v1(b"Title", b"Abba"))
        self.expect(self.run_program(), 0)
        self.assertEqual(len(self.rows()), 1)
        self.assertTrue(self.rows()[0].startswith(b"Abba\t"), self.rows())

    def test_continues_after_an_unreadable_folder(self):
        self.track("a.mp3", "Abba")
        closed = self.music / "closed"
        closed.mkdir()
        closed.chmod(0)
        self.settings.update(ErrorLog=1)
        self.expect(self.run_program(ordinary=True), 0,
                    AUTOMATIC + b"An error occurred scanning the directory: \n\n" + os.fsencode(closed) +
                    b"\n\n75: Path/File access error\n[OK] ")
        self.assertEqual(self.rows(), [b"Abba\tTitle"])
        line = (b"An error occurred scanning the directory: " + os.fsencode(closed) +
                b"75: Path/File access error\r\n")
        self.assertEqual((self.installation / "Tunedex.log").read_bytes(), line * 2)

    def test_lists_the_whole_corpus(self):
        if not os.environ.get("TUNEDEX_CORPUS"):
            self.skipTest("TUNEDEX_CORPUS is not set")
        corpus = pathlib.Path(os.environ["TUNEDEX_CORPUS"])
        self.assertTrue(corpus.is_dir(), corpus)
        self.settings.update(Directory=corpus, ActiveColumns=ALL_COLUMNS, ErrorWarnings=0, ErrorLog=1)
        expected = sum(1 for path in corpus.rglob("*") if path.name.lower().endswith(".mp3") and path.is_file() and
                       not any(part.startswith(".") for part in path.relative_to(corpus).parts))
        self.expect(self.run_program(), 0, *STATUSES)
        content = self.list.read_bytes()
        self.assertEqual(content.split(b"\r\n")[0].count(b"\t"), 14)
        for folder_and_name in {os.fsencode(path) for path in corpus.rglob("*.mp3")}:
            self.assertEqual(content.count(b"\t" + folder_and_name + b"\r\n"), 1, folder_and_name)
        self.assertGreaterEqual(content.count(b"\r\n"), expected + 1)

    # Files that cannot be written

    def test_writes_nothing_to_a_read_only_output_folder(self):
        self.track("a.mp3")
        self.out.chmod(0o555)
        self.expect(self.run_program(ordinary=True), 1, b"Error\nAn unexpected error occurred. The error was: \n\n"
                    b"Error number 75 - Path/File access error\n[OK] ")
        self.assertEqual(list(self.out.iterdir()), [])

    def test_replaces_a_writable_list_in_a_read_only_folder(self):
        self.track("a.mp3", "Abba")
        self.list.write_bytes(b"old " * 1000)
        self.out.chmod(0o555)
        self.expect(self.run_program(ordinary=True), 0)
        self.assertEqual(self.rows(), [b"Abba\tTitle"])

    def test_never_replaces_a_read_only_list(self):
        self.track("a.mp3")
        self.list.write_bytes(b"old")
        self.list.chmod(0o444)
        self.expect(self.run_program(ordinary=True), 1, b"Error number 75 - Path/File access error")
        self.assertEqual(self.list.read_bytes(), b"old")
        self.assertEqual(list(self.out.iterdir()), [self.list])

    def test_keeps_permissions_and_links_of_the_list(self):
        self.track("a.mp3", "Abba")
        real = self.folder / "real.txt"
        real.write_bytes(b"old")
        real.chmod(0o640)
        self.list.symlink_to(real)
        self.expect(self.run_program(), 0)
        self.assertTrue(self.list.is_symlink())
        self.assertEqual(self.rows(real), [b"Abba\tTitle"])
        self.assertEqual(stat.S_IMODE(real.stat().st_mode), 0o640)

    def test_reports_a_full_disk(self):
        self.track("a.mp3")
        self.list.symlink_to("/dev/full")
        self.expect(self.run_program(), 1, b"Error number 61 - Disk full")

    def test_reports_a_log_that_cannot_be_opened(self):
        self.track("a.mp3")
        self.settings.update(ErrorLog=1)
        (self.installation / "Tunedex.log").mkdir()
        self.expect(self.run_program(), 1, b"Error number 75 - Path/File access error")
        self.assertFalse(self.list.exists())

    def test_keeps_the_old_playlist_when_a_track_has_no_duration(self):
        (self.music / "junk.mp3").write_bytes(b"no audio" * 500)
        self.settings.update(ErrorWarnings=0, OutputFile=self.out / "list.m3u")
        (self.out / "list.m3u").write_bytes(b"old")
        self.expect(self.run_program(), 1, b"Error number 5 - Invalid procedure call or argument")
        self.assertEqual((self.out / "list.m3u").read_bytes(), b"old")
        self.assertEqual(list(self.out.iterdir()), [self.out / "list.m3u"])

    # The program folder

    def test_runs_from_any_folder_as_its_program_folder(self):
        self.track("a.mp3", "Abba")
        elsewhere = self.folder / "else where"
        elsewhere.mkdir()
        shutil.copy(self.built, elsewhere / "renamed")
        self.settings.update(ErrorLog=1)
        self.write_settings(elsewhere)
        shutil.rmtree(self.folder / "config")
        self.expect(self.run_program(program=elsewhere / "renamed", settings=False, ordinary=True), 0)
        self.assertEqual(self.rows(), [b"Abba\tTitle"])
        self.assertEqual((elsewhere / "Tunedex.log").read_bytes(), b"")
        self.assertFalse((self.folder / "home/.local").exists())

    def test_uses_the_users_data_folder_if_its_own_is_read_only(self):
        shutil.rmtree(self.folder / "config")
        self.program().parent.chmod(0o555)
        data = self.folder / "data/tunedex"
        self.expect(self.run_program(ordinary=True, settings=False, XDG_DATA_HOME=str(data.parent)), 1,
                    AUTOMATIC + b"No input directory specified!\n")
        for name in ("html_entities.lst", "tips.lst"):
            self.assertEqual((data / name).read_bytes(), (SOURCE / "data" / name).read_bytes())
        self.assertEqual(sorted(path.name for path in (data / "Themes").glob("*")),
                         sorted(path.name for path in (SOURCE / "data/Themes").glob("*.thm")))
        # The folder is filled once and then left to the user.
        (data / "tips.lst").write_bytes(b"mine")
        self.track("a.mp3", "Abba")
        self.write_settings(data)
        self.expect(self.run_program(ordinary=True, settings=False, XDG_DATA_HOME=str(data.parent)), 0)
        self.assertEqual((data / "tips.lst").read_bytes(), b"mine")
        self.assertEqual(self.rows(), [b"Abba\tTitle"])

    def test_uses_the_data_folder_in_home_without_xdg_data_home(self):
        shutil.rmtree(self.folder / "config")
        self.program().parent.chmod(0o555)
        self.expect(self.run_program(ordinary=True, settings=False), 1)
        self.assertTrue((self.folder / "home/.local/share/tunedex/tips.lst").exists())

    def test_fails_to_start_if_no_folder_can_be_created(self):
        shutil.rmtree(self.folder / "config")
        self.program().parent.chmod(0o555)
        (self.folder / "home").chmod(0o555)
        self.expect(self.run_program(ordinary=True, settings=False), 2,
                    b"could not start: Path/File access error")

    def test_falls_back_on_the_system_wide_registry(self):
        self.track("a.mp3", "Abba")
        shutil.rmtree(self.folder / "config")
        self.register(self.folder / "etc")
        self.expect(self.run_program(), 0)
        # The user's own registry takes precedence.
        (self.folder / "mine").mkdir()
        self.register(self.folder / "config", self.folder / "mine")
        self.expect(self.run_program(), 1, b"No input directory specified!")


if __name__ == "__main__":
    sys.exit(runs.main(ProgramTest))
