#!/usr/bin/env python3
"""Runs the program on real disks and with files that change during the run.

usage: RealThings.py PROGRAM INTERPOSER SAVER CASE
"""
import errno
import fcntl
import html.parser
import os
import pathlib
import pwd
import random
import shutil
import signal
import stat
import struct
import subprocess
import sys
import tempfile
import termios
import time

sys.dont_write_bytecode = True  # keep bytecode out of the source tree
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
import surroundings  # noqa: E402

SKIPPED = 77
UMASK = os.umask(0o022)
os.umask(UMASK)
AUDIO = b"\xff\xfb\x90\x64" + b"\0" * 413
OLD = b"the old listing\r\n"
MIB = 1 << 20
FIVE = (b"TIT2", b"TPE1", b"TALB", b"TYER", b"TCON")


def frame(name, text):
    return name + struct.pack(">I", len(text) + 1) + b"\0\0\0" + text


def tagged(title, artist=b"An Artist"):
    body = frame(b"TIT2", title) + frame(b"TPE1", artist)
    return b"ID3\3\0\0" + bytes([0, len(body) >> 14, len(body) >> 7 & 127, len(body) & 127]) + body + AUDIO * 40


def write_long_texts(path, byte, count, names=(b"TIT2",), start=b""):
    """Writes a track whose frames contain `start` and `count` times `byte`. Written in pieces to keep this process
    small: fork() passes its peak memory on to the program."""
    length = len(start) + count
    size = len(names) * (10 + 1 + length)
    with open(path, "wb") as file:
        file.write(b"ID3\3\0\0" + bytes(size >> shift & 127 for shift in (21, 14, 7, 0)))
        for name in names:
            file.write(name + struct.pack(">I", 1 + length) + b"\0\0\0" + start)
            for done in range(0, count, MIB):
                file.write(byte * min(MIB, count - done))
        file.write(AUDIO * 40)


class Skipped(Exception):
    pass


class Page(html.parser.HTMLParser):
    """The cells of a page's inner table, and all tags within them."""

    def __init__(self, text):
        super().__init__()
        self.rows, self.tags = [], []
        self.depth, self.cell = 0, None
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attrs):
        if self.cell is not None:
            self.tags.append((tag, attrs))
        self.depth += tag == "table"
        if self.depth == 2 and tag == "tr":
            self.rows.append([])
        if self.depth == 2 and tag == "td":
            self.cell = ""

    def handle_endtag(self, tag):
        self.depth -= tag == "table"
        if tag == "td" and self.cell is not None:
            self.rows[-1].append(self.cell)
            self.cell = None

    def handle_data(self, data):
        if self.cell is not None:
            self.cell += data

    def tracks(self):
        return [row for row in self.rows if row]


class Box:
    """A folder with a program folder, a music folder and an output folder."""

    def __init__(self, folder, output="list.htm", **settings):
        self.root = pathlib.Path(folder)
        self.music = self.root / "music"
        self.out = self.root / "out"
        self.program = self.root / "program"
        for made in (self.music, self.out, self.program, self.root / "config" / "Corvale Works"):
            made.mkdir(parents=True)
        (self.root / "config" / "Corvale Works" / "Tunedex.conf").write_text(
            f'[General]\nInstallationPath="{self.program}"\n')
        entities = pathlib.Path(__file__).resolve().parents[2] / "data" / "html_entities.lst"
        shutil.copy(entities, self.program)
        self.configure(output, **settings)

    def configure(self, output, **settings):
        self.listing = self.out / output
        values = {"Directory": self.music, "OutputFile": self.listing, "WindowTitle": "W", "PageTitle": "P",
                  "PageFooter": "F", "Recurse": 1, "Spanning": 0, "SortOrder": 1, "ErrorWarnings": 0, "ErrorLog": 1,
                  "DocumentType": "HTML", "ActiveColumns": "Artist|Title|Filename|Full Path", "TableWidth": "1/99"}
        values.update(settings)
        (self.program / "Tunedex.cfg").write_bytes(
            b"".join(os.fsencode(f"{key}={value}\r\n") for key, value in values.items()))

    def environment(self, ordinary=False, **more):
        return surroundings.kept(ordinary) | {
            "PATH": os.environ["PATH"], "HOME": str(self.root), "LC_ALL": "C",
            "XDG_CONFIG_HOME": str(self.root / "config"), "XDG_CONFIG_DIRS": "/nonexistent"} | more

    def start(self, user=None, shell="", **more):
        # The interposer skips the program's one-second pause.
        env = self.environment(user is not None, LD_PRELOAD=surroundings.preload(PROGRAM, INTERPOSER),
                               TUNEDEX_FAULT_PREFIX=str(self.root), **more)
        # Run the shell's commands first, in the same process.
        through = ["sh", "-c", shell + ' && exec "$0" "$@"'] if shell else []
        return subprocess.Popen([*through, PROGRAM, "/AUTO"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, env=env, user=user, group=user and 65534,
                                extra_groups=user and [])

    def run(self, expected=0, timeout=300, **more):
        process = self.start(**more)
        _, said = process.communicate(timeout=timeout)
        assert process.returncode in ((expected,) if isinstance(expected, int) else expected), \
            (process.returncode, said[-2000:])
        self.nothing_left()
        return said

    def peak(self):
        """The peak resident memory of a run in bytes."""
        process = self.start()
        said = process.stderr.read()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        assert process.returncode == 0, (process.returncode, said[-2000:])
        return usage.ru_maxrss * 1024

    def nothing_left(self):
        left = [path for path in self.out.rglob(".tunedex-*")] + [path for path in self.program.rglob(".tunedex-*")]
        assert not left, left

    def page(self):
        data = self.listing.read_bytes()
        assert data.endswith(b"</html>\r\n"), data[-200:]
        return Page(data.decode("cp1252", "replace"))

    def log(self):
        return (self.program / "Tunedex.log").read_bytes()


def need_root():
    if os.geteuid() != 0:
        raise Skipped("needs root")


def as_nobody(box):
    """Gives the folder to an unprivileged user. Skips where that user is missing or cannot run the program."""
    need_root()
    try:
        user = pwd.getpwnam("nobody").pw_uid
    except KeyError:
        raise Skipped("there is no user nobody") from None
    probe = subprocess.run(["test", "-x", PROGRAM, "-a", "-r", INTERPOSER], user=user, check=False)
    if probe.returncode != 0:
        raise Skipped("user nobody cannot read the build folder")
    box.root.chmod(0o755)
    for path in [box.root, *box.root.rglob("*")]:
        os.chown(path, user, 65534, follow_symlinks=False)
    return user


class Mounted:
    """A tmpfs of the given size."""

    def __init__(self, folder, size):
        need_root()
        self.folder = folder
        done = subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", folder], capture_output=True,
                              check=False)
        if done.returncode != 0:
            raise Skipped("cannot mount a disk: " + done.stderr.decode().strip())

    def __enter__(self):
        return self

    def __exit__(self, *_):
        subprocess.run(["umount", self.folder], check=True)


class ProtectedLinks:
    """Turns on fs.protected_symlinks, which is on by default on most systems."""

    PATH = pathlib.Path("/proc/sys/fs/protected_symlinks")

    def __enter__(self):
        self.before = self.PATH.read_text()
        if self.before.strip() == "0":
            try:
                self.PATH.write_text("1")
            except OSError:
                raise Skipped("fs.protected_symlinks is off and cannot be changed") from None

    def __exit__(self, *_):
        if self.before.strip() == "0":
            self.PATH.write_text(self.before)


class Cases:
    """Each case receives an empty folder."""

    def test_a_full_disk_keeps_the_old_listing_and_leaves_no_temporary_file(self, folder):
        for output in ("list.htm", "list.txt", "list.m3u"):
            box = Box(pathlib.Path(folder, output), output)
            for number in range(60):
                (box.music / f"{number}.mp3").write_bytes(tagged(b"x" * 2000))
            with Mounted(box.out, "64k"):
                box.listing.write_bytes(OLD)
                said = box.run(1)
                assert b"61 - Disk full" in said, said
                assert box.listing.read_bytes() == OLD
                assert [path.name for path in box.out.iterdir()] == [output]

    def test_a_full_disk_keeps_old_settings_statistics_and_themes(self, folder):
        with Mounted(folder, "300k"):
            for kind, name in (("settings", "Tunedex.cfg"), ("statistics", "stats.lst"), ("theme", "theme.thm")):
                path = pathlib.Path(folder, name)
                assert subprocess.run([SAVER, kind, folder + "/", "1"], check=False).returncode == 0
                old = path.read_bytes()
                done = subprocess.run([SAVER, kind, folder + "/", "2"], check=False)
                assert done.returncode == 61, done
                assert path.read_bytes() == old
                assert [entry.name for entry in pathlib.Path(folder).iterdir()] == [name]
                path.unlink()

    def test_a_full_disk_for_the_log_is_reported(self, folder):
        box = Box(folder)
        (box.music / "no audio.mp3").write_bytes(b"")
        with Mounted(box.program, "64k"):
            box.configure("list.htm")
            filler = box.program / "filler"
            with open(filler, "wb", buffering=0) as file:
                try:
                    while True:
                        file.write(b"\0" * 4096)
                except OSError:
                    pass
            box.listing.write_bytes(OLD)
            said = box.run(1)
            assert b"61 - Disk full" in said, said
            assert box.listing.read_bytes() == OLD

    def test_a_folder_that_loses_its_permissions_ends_the_walk_and_is_reported(self, folder):
        box = Box(folder)
        for name in ("a", "b", "c"):
            (box.music / name).mkdir()
            for number in range(3):
                (box.music / name / f"{name}{number}.mp3").write_bytes(tagged(name.encode()))
        user = as_nobody(box)
        points = 0
        for call in ("opendir", "readdir", "open"):
            for number in range(1, 60, 1 if call == "opendir" else 7):
                box.listing.unlink(missing_ok=True)
                said = box.run((0, 1), user=user, TUNEDEX_FAULT_CALL=call, TUNEDEX_FAULT_N=str(number),
                               TUNEDEX_FAULT_RUN=f"chmod 0 '{box.music}/b'; :",
                               TUNEDEX_FAULT_REPORT=str(box.root / "report"))
                struck = "struck 1" in (box.root / "report").read_text()
                rights = stat.S_IMODE((box.music / "b").stat().st_mode)
                (box.music / "b").chmod(0o755)
                if not struck:
                    break
                points += 1
                assert rights == 0
                titles = [row[1] for row in box.page().tracks()] if box.listing.exists() else []
                whole = sorted(titles) == ["a"] * 3 + ["b"] * 3 + ["c"] * 3
                assert whole or b"75" in box.log() or b"decoding" in box.log() or b"No MP3" in said, (titles, box.log())
        assert points > 8, points

    def test_a_folder_without_permissions_is_reported_and_earlier_tracks_are_listed(self, folder):
        box = Box(folder)
        (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
        (box.music / "closed").mkdir()
        user = as_nobody(box)
        (box.music / "closed").chmod(0)
        box.run(0, user=user)
        (box.music / "closed").chmod(0o755)
        assert [row[1] for row in box.page().tracks()] == ["Kept"]
        assert b"scanning the directory" in box.log() and b"75" in box.log(), box.log()

    def test_a_file_without_permissions_is_listed_without_tags_and_reported(self, folder):
        box = Box(folder)
        (box.music / "a.mp3").write_bytes(tagged(b"Read"))
        (box.music / "b.mp3").write_bytes(tagged(b"Unread"))
        user = as_nobody(box)
        (box.music / "b.mp3").chmod(0)
        box.run(0, user=user)
        assert sorted(row[1] for row in box.page().tracks()) == ["No ID3 Tags!", "Read"]
        assert b"decoding the headers of" in box.log(), box.log()

    def test_an_output_folder_without_permissions_keeps_or_fully_replaces_the_old_listing(self, folder):
        box = Box(folder)
        (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
        user = as_nobody(box)
        box.out.chmod(0o555)
        said = box.run(1, user=user)
        assert b"75 - Path/File access error" in said and not box.listing.exists(), said
        box.listing.write_bytes(OLD)
        os.chown(box.listing, user, 65534)
        box.run(0, user=user)
        assert len(box.page().tracks()) == 1
        box.listing.write_bytes(OLD)
        box.listing.chmod(0o444)
        box.out.chmod(0o755)
        box.run(1, user=user)
        assert box.listing.read_bytes() == OLD

    def test_files_may_vanish_grow_and_shrink_at_any_moment(self, folder):
        self.change_at_every_call(folder, {
            "vanish": "rm -f b.mp3",
            "grow": "cat /dev/zero | head -c 100000 >>b.mp3",
            "shrink": ": >b.mp3",
            "to 200 bytes": "head -c 200 b.mp3 >b.tmp; cat b.tmp >b.mp3",
            "come": "cp b.mp3 new.mp3",
            "to a folder": "rm -rf b.mp3; mkdir b.mp3",
            "to a pipe": "rm -rf b.mp3; mkfifo b.mp3",
            "to a loop": "rm -rf b.mp3; ln -s b.mp3 b.mp3",
        })

    def test_a_folder_may_be_replaced_by_a_link_at_any_moment(self, folder):
        self.change_at_every_call(folder, {
            "to itself": "rm -rf sub; ln -s . sub",
            "to above": "rm -rf sub; ln -s .. sub",
            "to nothing": "rm -rf sub; ln -s nowhere sub",
            "to a file": "rm -rf sub; cp a.mp3 sub",
            "vanish": "rm -rf sub",
        })

    @staticmethod
    def change_at_every_call(folder, commands):
        box = Box(folder)
        points = 0
        for name, command in commands.items():
            for call, step in (("opendir", 1), ("readdir", 5), ("open", 3), ("read", 4)):
                for number in range(1, 200, step):
                    shutil.rmtree(box.music)
                    (box.music / "sub").mkdir(parents=True)
                    for file in ("a.mp3", "b.mp3", "sub/c.mp3"):
                        (box.music / file).write_bytes(tagged(file.encode()))
                    box.listing.write_bytes(OLD)
                    said = box.run((0, 1), TUNEDEX_FAULT_CALL=call, TUNEDEX_FAULT_N=str(number),
                                   TUNEDEX_FAULT_RUN=f"cd '{box.music}' && {{ {command}; }}",
                                   TUNEDEX_FAULT_REPORT=str(box.root / "report"))
                    report = (box.root / "report").read_text()
                    assert "left-open 0" in report, (name, call, number, report)
                    if "struck 1" not in report:
                        break
                    points += 1
                    if box.listing.read_bytes() == OLD:
                        assert b"Error" in said or b"No MP3" in said, (name, call, number, said)
                        continue
                    # A missing track was reported, or was a dangling link when it was examined.
                    titles = {row[1] for row in box.page().tracks()}
                    assert "a.mp3" in titles or b"scanning" in box.log(), (name, call, number, titles, box.log())
        assert points > 40, points

    def test_names_with_line_breaks_quotes_tabs_and_controls(self, folder):
        box = Box(folder)
        names = [b"new\nline.mp3", b"cr\rlf\r\n.mp3", b"tab\there.mp3", b"quote\"s'.mp3", b"<b>&lt;.mp3", b"\x01\x1b[31m.mp3",
                 b"\xff\xfe\xe9.mp3", "あ.mp3".encode(), b"back\\slash.mp3", b"%N %D %S %F.mp3", b"<td><script>.mp3",
                 b" .mp3", b"-rf.mp3", b"a=b(1)=c.mp3", b"%MULT%%||%.mp3", b"\x7f\x9b.mp3", b"semi;colon|bar.mp3"]
        for name in names:
            pathlib.Path(os.fsdecode(os.fsencode(box.music) + b"/" + name)).write_bytes(AUDIO * 3)
        box.run(0)
        page = box.page()
        assert len(page.tracks()) == len(names)
        assert all(len(row) == 4 for row in page.rows if row) and not page.tags, (page.rows, page.tags)
        data = box.listing.read_bytes()
        for name in (b"tab\there.mp3", b"new\nline.mp3", b"\xff\xfe\xe9.mp3", b"&#12354;.mp3"):
            assert name.replace(b"\xff\xfe\xe9", b"\xff\xfe\xe9") in data, name
        box.configure("list.m3u")
        box.run(0)
        data = box.listing.read_bytes()
        for name in names:
            assert b"\r\n" + os.fsencode(box.music) + b"/" + name + b"\r\n" in data, name
        box.configure("list.txt")
        box.run(0)
        assert box.listing.read_bytes().count(b"\r\n") >= len(names) + 1

    def test_names_of_255_bytes(self, folder):
        output = "l" * 251 + ".htm"
        box = Box(folder, output)
        long = "f" * 255
        (box.music / long).mkdir()
        (box.music / long / ("n" * 251 + ".mp3")).write_bytes(tagged(b"Long"))
        (box.music / ("あ" * 83 + "aa.mp3")).write_bytes(tagged(b"Letters"))
        box.listing.write_bytes(OLD)
        box.run(0)
        assert sorted(row[1] for row in box.page().tracks()) == ["Letters", "Long"]
        box.configure("l" * 256 + ".htm")
        said = box.run(1)
        assert b"error occurred" in said, said

    def test_paths_of_4000_bytes_and_folders_500_deep(self, folder):
        box = Box(folder)
        depth = 0
        handle = os.open(box.music, os.O_RDONLY)
        try:
            length = len(str(box.music))
            while length + 8 < 4080 and depth < 600:
                os.mkdir("deeper7", dir_fd=handle)
                below = os.open("deeper7", os.O_RDONLY, dir_fd=handle)
                os.close(handle)
                handle = below
                length += 8
                depth += 1
                if depth in (1, 250) or length + 8 >= 4080:
                    file = os.open(f"{depth}.mp3", os.O_WRONLY | os.O_CREAT, 0o644, dir_fd=handle)
                    os.write(file, tagged(f"At {depth}".encode()))
                    os.close(file)
            assert depth > 490, depth
            box.run(0)
            assert sorted(row[1] for row in box.page().tracks()) == sorted(f"At {d}" for d in (1, 250, depth))
            assert box.log() == b""
            # One level more than a path can name: what is above is listed, the rest is reported.
            for _ in range(4):
                os.mkdir("deeper7", dir_fd=handle)
                below = os.open("deeper7", os.O_RDONLY, dir_fd=handle)
                os.close(handle)
                handle = below
            box.run(0)
            assert len(box.page().tracks()) == 3
            assert b"52" in box.log() and b"scanning the directory" in box.log(), box.log()[-200:]
        finally:
            os.close(handle)
            subprocess.run(["rm", "-rf", str(box.music)], check=True)

    def test_folders_500_deep_with_short_names(self, folder):
        box = Box(folder, SortOrder=0)
        deepest = box.music
        for number in range(500):
            deepest = deepest / "d"
            deepest.mkdir()
            if number % 50 == 49:
                (deepest / f"{number}.mp3").write_bytes(tagged(str(number).encode()))
        box.run(0)
        assert [row[1] for row in box.page().tracks()] == [str(number) for number in range(49, 500, 50)]

    def test_100000_files_in_one_folder(self, folder):
        box = Box(folder, "list.txt")
        content = tagged(b"One of many")
        for start in range(0, 100000, 50000):  # some file systems limit the number of hard links
            first = box.music / f"{start}.mp3"
            first.write_bytes(content)
            for number in range(start + 1, start + 50000):
                os.link(first, box.music / f"{number}.mp3")
        box.run(0, timeout=800)
        lines = box.listing.read_bytes().split(b"\r\n")
        assert len(lines) == 100002 and lines[-1] == b""
        assert len({line.split(b"\t")[2] for line in lines[1:-1]}) == 100000
        assert all(line.split(b"\t")[1] == b"One of many" for line in lines[1:-1])

    def test_a_kill_at_any_moment_leaves_the_old_or_the_new_listing(self, folder):
        box = Box(folder)
        for number in range(300):
            (box.music / f"{number}.mp3").write_bytes(tagged(b"x" * 500))
        began = time.monotonic()
        box.run(0)
        took = time.monotonic() - began
        new = box.listing.read_bytes()
        moments = random.Random(7)
        seen = set()
        for _ in range(60):
            box.listing.write_bytes(OLD)
            process = box.start()
            time.sleep(moments.uniform(0, took * 1.3))
            process.send_signal(signal.SIGKILL)
            process.communicate()
            data = box.listing.read_bytes()
            assert data in (OLD, new), data[-200:]
            seen.add(data == new)
            for left in box.out.glob(".tunedex-*"):
                left.unlink()
        # And at each call on the listing.
        for call in ("open", "write", "close", "rename"):
            for number in range(1, 12):
                box.listing.write_bytes(OLD)
                process = box.start(TUNEDEX_FAULT_CALL=call, TUNEDEX_FAULT_KILL="1",
                                    TUNEDEX_FAULT_N=str(number))
                process.communicate()
                assert box.listing.read_bytes() in (OLD, new)
                for left in box.out.glob(".tunedex-*"):
                    left.unlink()

    def test_a_kill_at_any_moment_leaves_old_or_new_settings_statistics_and_themes(self, folder):
        moments = random.Random(9)
        for kind, name in (("settings", "Tunedex.cfg"), ("statistics", "stats.lst"), ("theme", "theme.thm")):
            path = pathlib.Path(folder, name)
            contents = set()
            for count in ("1", "2"):
                subprocess.run([SAVER, kind, folder + "/", count], check=True)
                contents.add(path.read_bytes())
            assert len(contents) == 2
            for _ in range(30):
                process = subprocess.Popen([SAVER, kind, folder + "/", "100000"])
                time.sleep(moments.uniform(0.002, 0.06))
                process.kill()
                process.wait()
                assert path.read_bytes() in contents
                for left in pathlib.Path(folder).glob(".tunedex-*"):
                    left.unlink()

    def test_line_breaks_in_tags_add_lines_to_playlists_and_text_lists(self, folder):
        box = Box(folder, "list.m3u")
        (box.music / "a.mp3").write_bytes(tagged(b"One\r\nhttp://evil.example/"))
        for output, lines in (("list.m3u", 4), ("list.txt", 3)):
            box.configure(output)
            box.run(0)
            data = box.listing.read_bytes()
            assert data.count(b"\r\n") == lines and b"\r\nhttp://evil.example/" in data, data
        box.configure("list.htm")
        box.run(0)
        assert len(box.page().tracks()) == 1
        assert [row[1] for row in box.page().tracks()] == ["One\r\nhttp://evil.example/"]

    def test_a_link_planted_in_a_shared_folder_does_not_redirect_the_run(self, folder):
        box = Box(folder, "list.txt")
        (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
        user = as_nobody(box)
        shared, victim = box.root / "shared", box.root / "victim.txt"
        shared.mkdir()
        shared.chmod(0o1777)
        box.configure("list.txt", OutputFile=shared / "list.txt")
        os.chown(box.program / "Tunedex.cfg", user, 65534)
        with ProtectedLinks():
            for target, existing in (("victim.txt", True), ("new.txt", False)):
                if existing:
                    victim.write_bytes(OLD)
                    os.chown(victim, user, 65534)
                (shared / "list.txt").unlink(missing_ok=True)
                (shared / "list.txt").symlink_to(box.root / target)
                os.chown(shared / "list.txt", 12345, 12345, follow_symlinks=False)  # owned by a third user
                said = box.run(1, user=user)
                assert b"75 - Path/File access error" in said, said
                assert b"Searching" not in said, said
                assert victim.read_bytes() == OLD
                assert not (box.root / "new.txt").exists()
            # Planted after the check, when the file is opened by name and when it is located.
            (shared / "list.txt").unlink()
            plant = (f"ln -sf '{victim}' '{shared}/list.txt'; chown -h 12345 '{shared}/list.txt'")
            for number in range(1, 400):
                said = box.run((0, 1), TUNEDEX_FAULT_CALL="open", TUNEDEX_FAULT_N=str(number), TUNEDEX_FAULT_RUN=plant,
                               TUNEDEX_FAULT_REPORT=str(box.root / "report"))
                assert victim.read_bytes() == OLD, (number, said)
                (shared / "list.txt").unlink(missing_ok=True)
                if "struck 1" not in (box.root / "report").read_text():
                    break
            assert number > 3

    def test_without_permission_support_an_old_list_is_written_in_place_and_a_new_one_created(self, folder):
        for call in ("chmod", "xattr"):
            for refusal in (errno.EPERM, errno.EOPNOTSUPP):
                box = Box(pathlib.Path(folder, f"{call} {refusal}"), "list.txt")
                (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
                box.listing.write_bytes(OLD * 1000)
                box.listing.chmod(0o640)
                inode = box.listing.stat().st_ino
                faults = {"TUNEDEX_FAULT_CALL": call, "TUNEDEX_FAULT_N": "1", "TUNEDEX_FAULT_STAYS": "1",
                          "TUNEDEX_FAULT_ERROR": str(refusal)}
                box.run(0, **faults)
                assert box.listing.read_bytes().count(b"\r\n") == 2
                assert stat.S_IMODE(box.listing.stat().st_mode) == 0o640
                # Without attribute support, nothing has to be kept and the file is replaced.
                in_place = (call, refusal) != ("xattr", errno.EOPNOTSUPP)
                assert (box.listing.stat().st_ino == inode) == in_place, (call, refusal)
                box.listing.unlink()
                box.run(0, **faults)
                assert box.listing.read_bytes().count(b"\r\n") == 2
                assert stat.S_IMODE(box.listing.stat().st_mode) == 0o666 & ~UMASK

    def test_a_failure_while_copying_permissions_keeps_the_old_list(self, folder):
        box = Box(folder, "list.txt")
        (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
        for call in ("chmod", "xattr"):
            box.listing.write_bytes(OLD)
            box.listing.chmod(0o640)
            said = box.run(1, TUNEDEX_FAULT_CALL=call, TUNEDEX_FAULT_N="1", TUNEDEX_FAULT_ERROR=str(errno.ENOSPC))
            assert b"61 - Disk full" in said, said
            assert box.listing.read_bytes() == OLD

    def test_an_output_link_to_a_track_is_refused_before_the_scan(self, folder):
        box = Box(folder)
        track = box.music / "a.MP3"
        track.write_bytes(tagged(b"Kept"))
        audio = track.read_bytes()
        for output, link in (("list", "list.htm"), ("list.txt", "list.txt"), ("list.m3u", "list.m3u")):
            box.configure(output)
            (box.out / link).symlink_to(track)
            said = box.run(1)
            assert b"Error number 75 - Path/File access error" in said and b"Searching" not in said, said
            assert track.read_bytes() == audio
            assert not (box.program / "Tunedex.log").exists()
        # A link at a later page is detected when that page is written.
        for number in range(3):
            (box.music / f"{number}.mp3").write_bytes(tagged(b"Kept"))
        box.configure("pages.htm", Spanning=2)
        (box.out / "pages.002.htm").symlink_to(track)
        said = box.run(1)
        assert b"Error number 75 - Path/File access error" in said, said
        assert track.read_bytes() == audio

    def test_a_temporary_file_is_no_more_readable_than_the_list_it_replaces(self, folder):
        box = Box(folder, "list.txt")
        (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
        seen = box.root / "seen"
        for old in (None, 0o600, 0o640, 0o666):
            box.listing.unlink(missing_ok=True)
            if old is not None:
                box.listing.write_bytes(OLD)
                box.listing.chmod(old)
            # The mode of the temporary file before its first change and before the rename.
            for call in ("chmod", "rename"):
                box.run(0, TUNEDEX_FAULT_CALL=call, TUNEDEX_FAULT_N="1",
                        TUNEDEX_FAULT_RUN=f"stat -c %a '{box.out}'/.tunedex-*.tmp >'{seen}'")
                if call == "chmod" and old == 0o600:
                    continue  # already the final mode
                mode = int(seen.read_text(), 8)
                assert mode == (0o600 if call == "chmod" else 0o666 & ~UMASK if old is None else old), (call, old, mode)
                if call == "chmod" and old is None:
                    box.listing.unlink()

    def test_an_abort_ends_the_search_of_a_huge_file_and_the_wait_for_a_fifo_reader(self, folder):
        def full(reader):
            count = struct.unpack("i", fcntl.ioctl(reader, termios.FIONREAD, b"\0" * 4))[0]
            return count > 60000

        for kind in ("hole", "listing", "log"):
            box = Box(pathlib.Path(folder, kind), "list.txt", ErrorLog=int(kind == "log"))
            reader = None
            if kind == "hole":
                try:
                    with open(box.music / "x.mp3", "wb") as file:
                        file.truncate(4 << 40)
                except OSError:
                    raise Skipped("the file system does not support files of 4 TiB") from None
                reached = lambda process: b"Retrieving" in process.stderr.readline()
            else:
                for number in range(2000):
                    (box.music / f"{number}{'n' * 150}.mp3").write_bytes(b"no audio")
                fifo = box.listing if kind == "listing" else box.program / "Tunedex.log"
                os.mkfifo(fifo)
                reader = os.open(fifo, os.O_RDONLY | os.O_NONBLOCK)
                reached = lambda process: full(reader)
            process = box.start()
            while not reached(process):
                assert process.poll() is None
                time.sleep(0.001)
            process.send_signal(signal.SIGINT)
            began = time.monotonic()
            _, said = process.communicate(timeout=30)
            print(f"{kind}: {time.monotonic() - began:.3f} s from the signal to the end")
            assert process.returncode == 1, (kind, process.returncode, said)
            assert b"Operation complete!" not in said and b"error" not in said, said
            if reader is not None:
                os.close(reader)

    def test_a_log_without_a_reader_is_refused(self, folder):
        box = Box(folder)
        (box.music / "a.mp3").write_bytes(tagged(b"Kept"))
        os.mkfifo(box.program / "Tunedex.log")
        said = box.run(1, timeout=60)
        assert b"Error number 57 - Device I/O error" in said, said
        assert not box.listing.exists()

    def test_several_instances_may_write_the_same_listing(self, folder):
        box = Box(folder)
        for number in range(200):
            (box.music / f"{number}.mp3").write_bytes(tagged(b"x" * 500))
        box.run(0)
        right = box.listing.read_bytes()
        for _ in range(5):
            box.listing.write_bytes(OLD)
            processes = [box.start() for _ in range(4)]
            while any(process.poll() is None for process in processes):
                assert box.listing.read_bytes() in (OLD, right)
                time.sleep(0.002)
            for process in processes:
                _, said = process.communicate()
                assert process.returncode == 0, said
            assert box.listing.read_bytes() == right
            box.nothing_left()
        savers = [subprocess.Popen([SAVER, "settings", str(box.out) + "/", "100"]) for _ in range(3)]
        assert [saver.wait() for saver in savers] == [0, 0, 0]
        data = (box.out / "Tunedex.cfg").read_bytes()
        assert data.endswith(b"TableBorder=1\r\n") and data.count(b"TableBorder=") == 1
        box.nothing_left()

    def test_a_slow_disk_is_read_concurrently_and_the_listing_is_the_same(self, folder):
        box = Box(folder, ErrorWarnings=0)
        for artist in range(20):
            for album in range(6):
                path = box.music / f"artist {artist}" / f"album {album}"
                path.mkdir(parents=True)
                for number in range(6):
                    (path / f"{number}.mp3").write_bytes(tagged(b"Title %d" % (number // 2), b"Artist %d" % (artist // 2)))
        box.run(0)
        expected, log = box.listing.read_bytes(), box.log()
        report = box.root / "report"
        box.run(0, TUNEDEX_FAULT_SLOW="1000", TUNEDEX_FAULT_REPORT=str(report))
        assert box.listing.read_bytes() == expected and box.log() == log
        counts = dict(line.split() for line in report.read_text().splitlines())
        box.run(0, TUNEDEX_FAULT_SLOW="1000", TUNEDEX_FAULT_N="300")  # slow at first only
        assert box.listing.read_bytes() == expected and box.log() == log
        assert int(counts["left-open"]) == 0, counts
        assert int(counts["opendir-at-once"]) > 4, counts
        assert int(counts["read-at-once"]) > min(os.cpu_count(), 10), counts

    def test_pipes_devices_loops_and_dangling_links_are_not_tracks(self, folder):
        box = Box(folder)
        (box.music / "a.mp3").write_bytes(tagged(b"One"))
        os.mkfifo(box.music / "pipe.mp3")
        os.symlink("nowhere", box.music / "dangling.mp3")
        os.symlink("self.mp3", box.music / "self.mp3")
        os.symlink("/dev/zero", box.music / "zero.mp3")
        os.symlink(".", box.music / "loop")
        (box.music / ".hidden.mp3").write_bytes(tagged(b"Hidden"))
        box.run(0, timeout=60)
        assert [row[1] for row in box.page().tracks()] == ["One"]
        assert box.log() == b""

    def test_memory_is_proportional_to_the_distinct_texts(self, folder):
        if surroundings.sanitizer_of(PROGRAM):
            raise Skipped("a sanitizer's memory would be included")
        # Content of each file, number of files, links to each, and bytes of distinct text in UTF-8.
        long = 8 * MIB
        cases = {
            "one title": (dict(byte=b"t", count=long), 1, 16, long),
            "letters of two bytes": (dict(byte=b"\xe9", count=long // 2), 1, 16, long),
            "one text in five fields": (dict(byte=b"t", count=long, names=FIVE), 1, 16, long),
            "characters that are escaped": (dict(byte=b"&", count=long, names=FIVE[:2]), 1, 8, long),
            "different titles": (dict(byte=b"t", count=long), 8, 1, 8 * long),
            "one album in many files": (dict(byte=b"a", count=MIB, names=(b"TALB",)), 1, 500, MIB),
            "short texts": (dict(byte=b"\x80", count=500, names=FIVE), 1, 5000, 1500),
        }
        for name, (texts, files, links, distinct) in cases.items():
            box = Box(pathlib.Path(folder, name), ActiveColumns="Artist|Title|Album|Year|Genre")
            for number in range(files):
                path = box.root / f"{number}.bin"
                write_long_texts(path, start=b"%d" % number if files > 1 else b"", **texts)
                for link in range(links):
                    os.symlink(path, box.music / f"{number}-{link}.mp3")
            for output in ("list.htm", "list.txt", "list.m3u"):
                box.configure(output, ActiveColumns="Artist|Title|Album|Year|Genre")
                os.symlink("/dev/null", box.listing)
                peak = box.peak()
                bound = 3 * distinct + 64 * MIB
                assert peak <= bound, f"{name}, {output}: {peak / MIB:.1f} MiB of {bound / MIB:.1f} MiB"
            shutil.rmtree(box.root)

    def test_running_out_of_memory_ends_the_run_with_a_message(self, folder):
        if surroundings.sanitizer_of(PROGRAM):
            raise Skipped("a sanitizer reserves more memory than the limit")
        box = Box(folder)
        for number in range(16):
            write_long_texts(box.music / f"{number}.mp3", b"\x80", 6 * MIB, start=b"%02d" % number)  # 18 MiB each
        box.listing.write_bytes(OLD)
        said = box.run(1, shell="ulimit -v 300000")
        assert b"Error number 7 - Out of memory" in said, said
        assert box.listing.read_bytes() == OLD


def main():
    global PROGRAM, INTERPOSER, SAVER
    PROGRAM, INTERPOSER, SAVER = (os.path.abspath(path) for path in sys.argv[1:4])
    with tempfile.TemporaryDirectory(prefix="tunedex-real-") as folder:
        os.chmod(folder, 0o755)
        inner = pathlib.Path(folder, "box")
        inner.mkdir()
        try:
            getattr(Cases(), "test_" + sys.argv[4])(str(inner))
        except Skipped as why:
            print(f"SKIPPED {sys.argv[4]}: {why}")
            return SKIPPED
    print(f"passed {sys.argv[4]}")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    sys.exit(main())
