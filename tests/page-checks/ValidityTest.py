"""Validates HTML5 pages with the Nu checker.

usage: ValidityTest.py PROGRAM DATA-FOLDER MAKE-SAMPLE TAGGER SAMPLE-FOLDER WORK-FOLDER
"""

import concurrent.futures
import itertools
import pathlib
import shutil
import sys
import unittest

from checkers import Program, checkers, collection, themes, vnu_complaints
from listings import ALL_COLUMNS, MODERN_COLUMNS

PROGRAM, DATA, MAKE_SAMPLE, TAGGER, SAMPLE, WORK = sys.argv[1:7]
MARKUP = {"WindowTitle": '"<b>&amp;</title>%C" & more', "PageTitle": "<em>My</em> <b>list</b> &amp; more%L%C files",
          "PageFooter": "<p>On %D at %T, <i>%P</i></p>"}
ODD = [
    {"ActiveColumns": ""},
    {"ActiveColumns": "", "DoLinks": "1"},
    {"ActiveColumns": "Nothing|Title|<b>&\"Odd|Artist"},
    {"ActiveColumns": "Artist|Title|Album", "Merge": "1"},
    {"ActiveColumns": "Artist|Album|Title", "Merge": "2", "GroupByAlbum": "1"},
    {"ActiveColumns": "Album", "Merge": "0", "GroupByAlbum": "1"},
    {"ActiveColumns": MODERN_COLUMNS, "Merge": "0", "Modern": "1", "GroupByAlbum": "1"},
    {"Colour0": "", "Colour1": "red", "Colour2": "FFF", "Colour3": "}</style><script>", "Colour8": "#12345"},
    {"Font0": '"A;b", \'C}\'%|%7%|%1%|%1', "Font1": "</style>%|%0%|%0%|%0", "Font2": "%|%%|%0%|%0"},
    {"TableWidth": "0/0", "TablePadding": "-3", "TableBorder": "-1"},
    {"TableWidth": "0/32767", "TablePadding": "300", "TableBorder": "99", "AltRows": "0"},
    {"TableWidth": "1/-5", "FontCSS": "0", "ColourCSS": "0"},
    {"WindowTitle": "", "PageTitle": "", "PageFooter": ""},
    {"LinkType": "1", "LinkPrefix": "http://x/?a='1'&b=", "DoLinks": "1"},
    {"LinkType": "2", "LinkPrefix": "", "DoLinks": "1"},
    {"Spanning": "1"},
]


class Pages(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.jar = checkers() / "vnu.jar"
        shutil.rmtree(WORK, ignore_errors=True)
        cls.folders = collection(MAKE_SAMPLE, TAGGER, SAMPLE, WORK)

    def expect_valid(self, variants):
        """Every run ends with a pause of one second, so several run at once. The checker takes all pages together."""
        def write(numbered):
            number, settings = numbered
            program = Program(PROGRAM, DATA, pathlib.Path(WORK) / f"{self.id()} {number}")
            return program.list(self.folders, **{"DocumentType": "HTML5", "Spanning": "0"} | settings)

        with concurrent.futures.ThreadPoolExecutor(6) as pool:
            listings = list(pool.map(write, enumerate(variants)))
        pages = [file for files in listings for file in files if file.suffix == ".htm"]
        self.assertGreaterEqual(len(pages), len(variants))
        for page in pages:
            self.assertTrue(page.read_bytes().startswith(b"<!DOCTYPE html>"), page)
        found = vnu_complaints(self.jar, pages)
        self.assertEqual("\n".join(f"{page}:{text}" for page, texts in found.items() for text in texts[:3]), "")

    def test_are_valid_with_every_theme_paged_and_grouped(self):
        everything = dict(MARKUP, ActiveColumns=ALL_COLUMNS, Merge="0", DoLinks="1")
        self.expect_valid([everything | theme | {"Spanning": spanning, "GroupByAlbum": grouped}
                           for theme, spanning, grouped in itertools.product(themes(DATA).values(), ("0", "30"), "01")])

    def test_are_valid_with_odd_settings(self):
        self.expect_valid(ODD)

    def test_the_checker_finds_what_is_wrong(self):
        page = pathlib.Path(WORK) / "wrong.htm"
        page.write_text("<!DOCTYPE html><html lang=en><title>x</title><style>p{width:var(}</style><p id=a><p id=a><font>")
        found = vnu_complaints(self.jar, [page])
        self.assertGreaterEqual(len(found[page.as_uri().replace("file:///", "file:/")]), 3, found)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[7:])
