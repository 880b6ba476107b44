"""Runs of the built program as users start it: unattended, without a display. The base of the tests here."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
import surroundings  # noqa: E402

NOBODY = 65534


def audio(size=8192):
    """A frame header (MPEG-1 layer III, 128 kbit/s, 44,100 Hz) and zeros."""
    return b"\xff\xfb\x90\x64" + bytes(size - 4)


def id3v1(title=b"", artist=b""):
    return b"TAG" + title.ljust(30, b"\0") + artist.ljust(30, b"\0") + bytes(64) + b"\xff"


class ProgramRun(unittest.TestCase):
    built = None  # path of the program

    def setUp(self):
        # Outside the build folder, which an ordinary user may not be able to enter.
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tunedex-test-"))
        self.addCleanup(self.remove)
        self.folder.chmod(0o755)
        self.installation = self.folder / "program"
        self.music = self.folder / "music"
        self.out = self.folder / "out"
        self.list = self.out / "list.txt"
        for path in (self.installation, self.music, self.out, self.folder / "home", self.folder / "config",
                     self.folder / "etc"):
            path.mkdir()
        self.register(self.folder / "config")
        self.settings = {"Directory": str(self.music), "OutputFile": str(self.list), "Recurse": 1, "SizeType": 0,
                         "SortOrder": 1, "ErrorWarnings": 1, "ErrorLog": 0, "ActiveColumns": "Artist|Title",
                         "Merge": 0}

    def remove(self):
        for path in [self.folder, *self.folder.rglob("*")]:
            if path.is_dir() and not path.is_symlink():
                with contextlib.suppress(OSError):
                    path.chmod(0o755)
        shutil.rmtree(self.folder)

    def register(self, folder, installation=None):
        """Writes a registry with the installation path into `folder`."""
        (folder / "Corvale Works").mkdir(parents=True)
        (folder / "Corvale Works/Tunedex.conf").write_text(
            f'[General]\nInstallationPath="{installation or self.installation}"\n', encoding="utf-8")

    def track(self, name, artist="Artist", title="Title"):
        path = self.music / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(audio() + id3v1(title.encode("cp1252"), artist.encode("cp1252")))
        return path

    def write_settings(self, folder=None):
        lines = "".join(f"{key}={value}\r\n" for key, value in self.settings.items())
        ((folder or self.installation) / "Tunedex.cfg").write_bytes(lines.encode("utf-8", "surrogateescape"))

    def environment(self, ordinary=False, **variables):
        environment = {"PATH": os.environ["PATH"], "HOME": str(self.folder / "home"),
                       "XDG_CONFIG_HOME": str(self.folder / "config"), "XDG_CONFIG_DIRS": str(self.folder / "etc")}
        return environment | surroundings.kept(ordinary) | variables

    def run_program(self, *arguments, answers=b"", program=None, ordinary=False, settings=True, preexec_fn=None,
                    **variables):
        if settings:
            self.write_settings()
        options = {"preexec_fn": preexec_fn}
        if ordinary and os.geteuid() == 0:
            for path in [self.folder, *self.folder.rglob("*")]:
                os.lchown(path, NOBODY, NOBODY)
            options |= {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        given = {"input": answers} if isinstance(answers, bytes) else {"stdin": answers}
        return subprocess.run([program or self.program(), *(arguments or ["/AUTO"])], **given,
                              capture_output=True, timeout=240, check=False, cwd=self.folder,
                              env=self.environment("user" in options, **variables), **options)

    def program(self):
        """A copy of the program that an ordinary user can start."""
        copy = self.folder / "bin/tunedex"
        if not copy.exists():
            copy.parent.mkdir()
            shutil.copy(self.built, copy)
        return copy

    def expect(self, result, status, *parts):
        self.assertEqual(result.returncode, status, result.stderr.decode("utf-8", "replace"))
        self.assertEqual(result.stdout, b"")
        position = 0
        for part in parts:
            found = result.stderr.find(part, position)
            self.assertGreaterEqual(found, 0, f"{part!r} is not (or too early) in {result.stderr!r}")
            position = found + len(part)

    def rows(self, path=None):
        """The lines of the listing without its header."""
        lines = (path or self.list).read_bytes().split(b"\r\n")
        self.assertEqual(lines.pop(), b"", "a listing ends with a line end")
        return lines[1:]


def main(tests):
    """Runs the tests of a class, as described in the scripts; returns the exit status."""
    names = unittest.TestLoader().getTestCaseNames(tests)
    if sys.argv[1:] == ["--list"]:
        print("\n".join(names))
        return 0
    tests.built = pathlib.Path(sys.argv[1]).resolve(strict=True)
    suite = unittest.TestSuite(tests(name) for name in sys.argv[2:] or names)
    result = unittest.TextTestRunner(verbosity=2).run(suite)
    if not result.wasSuccessful():
        return 1
    return 77 if result.testsRun > 0 and len(result.skipped) == result.testsRun else 0
