"""Lints the style sheet and the script of HTML5 pages, as they are before they are embedded.

usage: LintTest.py
"""

import pathlib
import subprocess
import tempfile
import unittest

from checkers import ROOT, checkers, vnu_complaints

PAGE = ROOT / "data" / "page"
RULES = pathlib.Path(__file__).with_name("eslint.config.mjs")


class Lint(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = checkers()

    def lint(self, file):
        return subprocess.run([self.folder / "node_modules" / ".bin" / "eslint", "--config", RULES, "--stdin",
                               "--stdin-filename", "page.js"], input=file, cwd=RULES.parent, text=True, capture_output=True)

    def test_script_follows_the_rules(self):
        run = self.lint((PAGE / "page.js").read_text())
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, "", ""))

    def test_linter_finds_what_is_wrong(self):
        run = self.lint('"use strict";\nconst unused = nowhere;\n')
        self.assertEqual(run.returncode, 1)
        self.assertIn("no-unused-vars", run.stdout)
        self.assertIn("no-undef", run.stdout)

    def test_style_sheet_is_valid(self):
        self.assertEqual(vnu_complaints(self.folder / "vnu.jar", [PAGE / "page.css"], "--css"), {})

    def test_checker_finds_a_wrong_style(self):
        with tempfile.TemporaryDirectory() as folder:
            wrong = pathlib.Path(folder) / "wrong.css"
            wrong.write_text("p { colour: red }\n")
            self.assertIn("colour", str(vnu_complaints(self.folder / "vnu.jar", [wrong], "--css")))

    def test_both_stay_small(self):
        self.assertLess(sum((PAGE / name).stat().st_size for name in ("page.css", "page.js")), 25*1024)


if __name__ == "__main__":
    unittest.main(verbosity=2)
