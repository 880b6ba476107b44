"""Opens every entry of modern playlists in two players.

usage: PlaylistTest.py PROGRAM DATA-FOLDER TAGGER WORK-FOLDER

Skipped (exit status 77) without mpv or VLC.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import urllib.parse

import hostile
from listings import Program

PROGRAM, DATA, TAGGER, WORK = sys.argv[1:5]
NOBODY = 65534


def run(arguments, home, prefix=()):
    """The output of a player that plays without a screen or a sound card."""
    done = subprocess.run([*prefix, *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=False,
                          stderr=subprocess.STDOUT, timeout=120,
                          env={"PATH": os.environ["PATH"], "HOME": str(home), "LC_ALL": "C.UTF-8"})
    output = done.stdout.decode(errors="surrogateescape")
    assert done.returncode == 0, output[-2000:]
    return output


class ModernPlaylists(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        # VLC refuses to run as root, and another user may be unable to enter the build folder.
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="tunedex-playlist-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.folder.chmod(0o755)
        cls.files = hostile.make(cls.folder / "music", TAGGER, seconds=0.1)
        cls.home = cls.folder / "home"
        cls.home.mkdir()
        os.chmod(cls.home, 0o777)
        program = Program(PROGRAM, DATA, pathlib.Path(WORK))
        cls.playlists = []
        for extension in ("m3u", "m3u8"):
            # Classic runs would sort by title as a text, and modern ones by the path.
            [listing] = program.list([cls.folder / "music"], output=f"list.{extension}", Modern="1")
            cls.playlists.append(pathlib.Path(shutil.copy(listing, cls.folder)))

    def test_are_utf8_with_a_length_and_a_name_for_each_file(self):
        for playlist in self.playlists:
            lines = playlist.read_bytes().decode().split("\r\n")
            self.assertEqual((lines[0], lines[-1], len(lines)), ("#EXTM3U", "", 2 * len(self.files) + 2))
            for line in lines[1:-1:2]:
                self.assertRegex(line, r"^#EXTINF:\d+," + re.escape(hostile.ARTIST) + r" - \d+ \"title\" ")

    def test_open_in_mpv(self):
        for playlist in self.playlists:
            output = run(["mpv", "--no-config", "--no-video", "--ao=null", "--length=0.1", "--term-status-msg=", playlist],
                         self.home)
            # The title is in the tag of the file, so mpv has read it.
            titles = [int(number) for number in re.findall(r"^ Title: (\d+) \"title\"", output, re.MULTILINE)]
            self.assertEqual(sorted(titles), list(range(1, len(self.files) + 1)), output)

    def test_open_in_vlc(self):
        prefix = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if os.geteuid() == 0 else []
        for playlist in self.playlists:
            opened = set()
            for part in self.parts_of(playlist):
                output = run(["cvlc", "--intf=dummy", "--no-video", "--no-audio", "--play-and-exit", "--no-color", "-vv",
                              part], self.home, prefix)
                opened |= {urllib.parse.unquote_to_bytes(url)
                           for url in re.findall(r"`file://(\S+)' successfully opened", output)} - {bytes(part)}
            self.assertEqual(sorted(opened), sorted(self.files))

    def parts_of(self, playlist):
        """Playlists of the same lines with a few entries each: VLC pauses for seconds after about ten short ones."""
        head, *lines = playlist.read_bytes().splitlines(keepends=True)
        for start in range(0, len(lines), 14):
            part = self.folder / f"part{start}{playlist.suffix}"
            part.write_bytes(head + b"".join(lines[start:start + 14]))
            yield part


if __name__ == "__main__":
    missing = [tool for tool in ("mpv", "cvlc", "lame") if not shutil.which(tool)]
    if missing:
        print("SKIPPED: modern playlists in players: missing", *missing)
        sys.exit(77)
    del sys.argv[1:]
    unittest.main()
