#!/usr/bin/env python3
"""The program built without windows.

usage: NoWindowsTest.py --list                 prints the names of the tests
       NoWindowsTest.py PROGRAM [TEST...]      runs the tests; exit status 77 if all were skipped
"""

import re
import subprocess
import sys

import runs

# No display; displays that cannot be opened; one that always can, in a build with windows.
DISPLAYS = ({}, {"DISPLAY": ":65535"}, {"WAYLAND_DISPLAY": "nowhere"}, {"QT_QPA_PLATFORM": "nonsense"},
            {"QT_QPA_PLATFORM": "offscreen"})


class NoWindowsTest(runs.ProgramRun):
    def test_makes_the_list_in_the_terminal_whatever_display_is_named(self):
        self.track("a.mp3", "Abba", "Ring")
        for display in DISPLAYS:
            with self.subTest(**display):
                self.expect(self.run_program(**display), 0, b"Searching for MP3 files...\n", b"Operation complete!\n")
                self.assertEqual(self.rows(), [b"Abba\tRing"])
                self.list.unlink()

    def test_says_that_it_has_no_windows_and_what_to_use(self):
        self.write_settings()
        self.program()
        before = sorted(self.folder.rglob("*"))
        for display in DISPLAYS:
            for arguments in ([], ["some.cfg"]):
                with self.subTest(arguments=arguments, **display):
                    result = subprocess.run([self.program(), *arguments], capture_output=True, timeout=240, check=False,
                                            cwd=self.folder, env=self.environment(**display))
                    self.expect(result, 2)
                    self.assertEqual(result.stderr, b"Tunedex: this build has no windows. Use --create or /AUTO.\n")
                    self.assertEqual(sorted(self.folder.rglob("*")), before)

    def test_links_no_library_of_qt_but_its_core(self):
        dynamic = subprocess.run(["readelf", "--dynamic", "--wide", self.built], capture_output=True, text=True,
                                 check=True).stdout
        libraries = re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)
        self.assertEqual([name for name in libraries if name.startswith("libQt")], ["libQt6Core.so.6"])


if __name__ == "__main__":
    sys.exit(runs.main(NoWindowsTest))
