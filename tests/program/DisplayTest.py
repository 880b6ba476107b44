#!/usr/bin/env python3
"""The built program without a display, and with one that it cannot open.

usage: DisplayTest.py --list                 prints the names of the tests
       DisplayTest.py PROGRAM [TEST...]      runs the tests; exit status 77 if all were skipped
"""

import subprocess
import sys

import runs


class DisplayTest(runs.ProgramRun):
    def paths(self):
        return sorted(self.folder.rglob("*"))

    def test_fails_to_start_without_a_display(self):
        self.expect(self.run_program("some.cfg"), 2, b"display")
        self.expect(self.run_program("--open", "/autos/some.cfg"), 2, b"display")

    def test_names_the_unusable_display_and_the_command_without_one(self):
        self.track("a.mp3")
        self.write_settings()
        self.program()
        before = self.paths()
        nowhere = {"DISPLAY": ":65535", "WAYLAND_DISPLAY": "nowhere", "QT_QPA_PLATFORM": "nonsense"}
        for names in (["DISPLAY"], ["WAYLAND_DISPLAY"], ["QT_QPA_PLATFORM"], ["DISPLAY", "WAYLAND_DISPLAY"],
                      list(nowhere)):
            variables = {name: nowhere[name] for name in names}
            expected = "Tunedex could not open the display.\n" + "".join(
                f'{name} is "{value}".\n' for name, value in variables.items())
            command = ["env", *(word for name in names for word in ("-u", name)), "tunedex /AUTO"]
            expected += f"To make the list without a display: {' '.join(command)}\n"
            for arguments in ([], ["/AUTO"], ["some.cfg"], ["--open", "/autos/some.cfg"]):
                with self.subTest(arguments=arguments, **variables):
                    result = subprocess.run([self.program(), *arguments], capture_output=True, timeout=240, check=False,
                                            cwd=self.folder, env=self.environment(**variables))
                    self.expect(result, 2)
                    self.assertEqual(result.stderr.decode(), expected)
                    self.assertEqual(self.paths(), before)


if __name__ == "__main__":
    sys.exit(runs.main(DisplayTest))
