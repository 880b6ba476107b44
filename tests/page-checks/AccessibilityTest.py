"""Checks HTML5 pages with axe in Chromium.

usage: AccessibilityTest.py PROGRAM DATA-FOLDER MAKE-SAMPLE TAGGER SAMPLE-FOLDER WORK-FOLDER
"""

import pathlib
import shutil
import sys
import unittest

from checkers import PageBrowser, Program, checkers, collection, themes
from webdriver import file_url

PROGRAM, DATA, MAKE_SAMPLE, TAGGER, SAMPLE, WORK = sys.argv[1:7]
COLUMNS = {"ActiveColumns": "Number|Artist|Album|Title|Year|Genre|Duration|File Size|Full Path", "Merge": "0", "DoLinks": "1"}


class Pages(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.axe = (checkers() / "axe.min.js").read_text(encoding="utf-8")
        shutil.rmtree(WORK, ignore_errors=True)
        cls.folders = collection(MAKE_SAMPLE, TAGGER, SAMPLE, WORK)
        cls.program = Program(PROGRAM, DATA, pathlib.Path(WORK) / "program")
        cls.browser = PageBrowser()
        cls.addClassCleanup(cls.browser.close)

    def pages(self, **settings):
        files = self.program.list(self.folders, **{"DocumentType": "HTML5", "Spanning": "0"} | COLUMNS | settings)
        return [file for file in files if file.suffix == ".htm"]

    def expect_accessible(self, page, scheme="light", width=1200, query="", **what):
        with self.subTest(scheme=scheme, width=width, query=query, **what):
            self.browser.prefer(scheme)
            self.browser.resize(width)
            self.browser.get("about:blank")  # else only the fragment of the address changes
            self.browser.get(file_url(page))
            if query:
                self.browser.type("input[type=search]", query)
                self.browser.run("return new Promise(done => setTimeout(done, 500))")
            self.assertEqual(self.browser.violations(self.axe), [])

    def test_have_no_violation_with_every_theme_in_both_schemes(self):
        for name, theme in themes(DATA).items():
            page, = self.pages(**theme)
            for scheme in ("light", "dark"):
                self.expect_accessible(page, scheme, theme=name)

    def test_have_no_violation_grouped_paged_narrow_and_while_searched(self):
        for spanning, grouped in (("0", "1"), ("25", "0"), ("25", "1")):
            page = self.pages(Spanning=spanning, GroupByAlbum=grouped)[0]
            for scheme, width, query in (("light", 1200, ""), ("dark", 1200, "a"), ("light", 360, ""), ("dark", 360, "a"),
                                         ("light", 1200, "there is no such track")):
                self.expect_accessible(page, scheme, width, query, spanning=spanning, grouped=grouped)

    def test_axe_finds_what_is_wrong(self):
        page = pathlib.Path(WORK) / "wrong.htm"
        page.write_text("<!DOCTYPE html><p style='color:#aaa;background:#fff'>pale<img src=x><input>")
        self.browser.get(file_url(page))
        found = " ".join(self.browser.violations(self.axe))
        for rule in ("color-contrast", "image-alt", "label", "html-has-lang", "document-title"):
            self.assertIn(rule, found)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[7:])
