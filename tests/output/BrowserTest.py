"""Checks texts, colours, pages and links of listings of the sample collection in a browser.

usage: BrowserTest.py PROGRAM DATA-FOLDER MAKE-SAMPLE TAGGER SAMPLE-FOLDER WORK-FOLDER
"""

import itertools
import pathlib
import re
import shutil
import sys
import time
import unittest
import urllib.parse

import hostile
from listings import Program, make_sample
from webdriver import Browser, file_url

PROGRAM, DATA, MAKE_SAMPLE, TAGGER, SAMPLE, WORK = sys.argv[1:7]

# The rows of the inner table; the outer one only draws the border.
ROWS = """return Array.from(document.querySelectorAll("table table tr")).map(
    row => Array.from(row.cells).map(cell => cell.innerText.replace(/\\u00a0/g, " ").trim()));"""
COLOURS = """const row = document.querySelectorAll("table table tr")[arguments[0]];
const cell = row.cells[0];
const shown = element => getComputedStyle(element);
return [shown(row).backgroundColor, shown(cell).color, shown(cell).fontSize, shown(cell).fontWeight];"""


class Listing(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.program = Program(PROGRAM, DATA, WORK)
        cls.sample = make_sample(MAKE_SAMPLE, TAGGER, SAMPLE)
        cls.files = [path for path in cls.sample.rglob("*") if path.suffix.lower() == ".mp3"]
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def list(self, **settings):
        return self.program.list([self.sample], **settings)

    def text_rows(self, **settings):
        """The cells of the text listing with the same settings."""
        text = self.program.list([self.sample], output="list.txt", **settings)[0].read_bytes().decode("cp1252")
        return [line.split("\t") for line in text.split("\r\n")[1:-1]]

    def test_pages_hold_every_track_and_link_in_both_directions(self):
        columns = {"ActiveColumns": "Number|Artist|Album|Title|Duration", "Merge": "0"}
        expected = self.text_rows(**columns)
        pages = self.list(Spanning="20", **columns)
        count = len(pages)
        self.assertGreater(count, 2)
        self.assertEqual(len(expected), len(self.files))
        rows = []
        self.browser.get(file_url(pages[0]))
        for number, page in enumerate(pages, 1):
            self.assertEqual(self.browser.url(), file_url(page))
            self.assertTrue(self.browser.run("return document.title").endswith(f" - Page {number} of {count}"))
            table = self.browser.run(ROWS)
            self.assertEqual(table[0], ["Number", "Artist", "Album", "Title", "Duration"])
            self.assertEqual(table[-1], ["Created with Tunedex v1.1 by Orvando"])
            self.assertEqual(len(table) - 2, 20 if number < count else len(self.files) - 20 * (count - 1))
            rows += table[1:-1]
            self.assertEqual(self.browser.click("Next Page >>"), number < count)
        for number in range(count, 0, -1):
            self.assertEqual(self.browser.url(), file_url(pages[number - 1]))
            self.assertEqual(self.browser.click("<< Previous Page"), number > 1)
        # The text listing has "?" for characters outside its code page. The other texts agree, except for control
        # characters, which the entity table removes from pages.
        self.assertEqual(len(rows), len(expected))
        for row, text in zip(rows, expected):
            for cell, plain in zip(row, text):
                plain = re.sub("[\x01-\x08\x0b\x0c\x0e-\x1f]", "", plain)
                if "?" not in plain:
                    self.assertEqual(" ".join(cell.split()), " ".join(plain.split()))

    def test_texts_keep_their_accents_and_paths_their_japanese(self):
        self.browser.get(file_url(self.list(Spanning="0", ActiveColumns="Artist|Title|Full Path", Merge="0")[0]))
        rows = self.browser.run(ROWS)[1:-1]
        self.assertEqual(sorted(row[2] for row in rows), sorted(str(path) for path in self.files))
        everything = "\n".join("\t".join(row) for row in rows)
        for text in WANTED_TEXTS:
            self.assertIn(text, everything)

    def test_rows_have_the_colours_and_fonts_of_the_settings(self):
        colours = {"Colour4": "102030", "Colour5": "A0B0C0", "Colour6": "405060", "Colour7": "D0E0F0",
                   "Colour2": "FEDCBA", "Colour3": "123456"}
        for css, html in (("1", "0"), ("0", "1"), ("1", "1")):
            with self.subTest(css=css, html=html):
                page = self.list(Spanning="0", Merge="0", ColourCSS=css, ColourHTML=html, FontCSS="1", **colours)[0]
                self.browser.get(file_url(page))
                background, text, size, weight = self.browser.run(COLOURS, 1)
                self.assertEqual(background, "rgb(160, 176, 192)")
                alternate, alternate_text, _, _ = self.browser.run(COLOURS, 2)
                self.assertEqual(alternate, "rgb(208, 224, 240)")
                self.assertEqual(self.browser.run(COLOURS, 3)[0], background)
                self.assertEqual(self.browser.run(COLOURS, 0)[3], "700")
                self.assertEqual((size, weight), ("9px", "400"))
                if css == "1":
                    self.assertEqual((text, alternate_text), ("rgb(16, 32, 48)", "rgb(64, 80, 96)"))
                    self.assertEqual(self.browser.run(COLOURS, 0)[1], "rgb(254, 220, 186)")
                if html == "1":
                    font = "return getComputedStyle(document.querySelectorAll('table table tr')[2].cells[0]" \
                           ".querySelector('font')).color"
                    self.assertEqual(self.browser.run(font), "rgb(64, 80, 96)")

    def links(self, page):
        self.browser.get(file_url(page))
        return self.browser.run("return Array.from(document.querySelectorAll('table table a')).map(a => a.href)")

    @staticmethod
    def target(url):
        parts = urllib.parse.urlsplit(url)
        return pathlib.Path(urllib.parse.unquote(parts.path, errors="surrogateescape").replace("//", "/"))

    def test_links_lead_to_the_files(self):
        for document_type in ("HTML", "XHTML"):
            page = self.list(Spanning="0", DoLinks="1", LinkType="0", DocumentType=document_type)[0]
            links = self.links(page)
            self.assertTrue(all(link.startswith("file:///") for link in links))
            self.assert_links_lead_to_the_files(links)

    def test_relative_links_lead_to_the_files(self):
        # Relative to the start folder, so the page is copied there.
        page = self.list(Spanning="0", DoLinks="1", LinkType="2", LinkPrefix="")[0]
        beside = pathlib.Path(WORK) / "beside"
        shutil.copytree(self.sample, beside)
        copy = beside / "list.htm"
        copy.write_bytes(page.read_bytes())
        self.assert_links_lead_to_the_files(self.links(copy), beside)

    def assert_links_lead_to_the_files(self, links, folder=None):
        self.assertEqual(len(links), len(self.files))
        files = {str((folder or self.sample) / path.relative_to(self.sample)) for path in self.files}
        self.assertTrue(all(pathlib.Path(path).is_file() for path in files))
        lost = files - {str(self.target(link)) for link in links}
        # Links are not encoded, so names with these characters cannot be linked to.
        self.assertEqual({path for path in lost if not set("#?%&\"") & set(path)}, set())
        self.assertLess(len(lost), len(links) // 4)


class ModernPages(unittest.TestCase):
    """Links to files of any name, and what such names, tags and settings must not do."""

    @classmethod
    def setUpClass(cls):
        work = pathlib.Path(WORK) / "modern"
        cls.program = Program(PROGRAM, DATA, work)
        cls.folder = work / "hostile"
        cls.files = hostile.make(cls.folder, TAGGER)
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def list(self, **settings):
        return self.program.list([self.folder], **{"Modern": "1", "Spanning": "0", "DoLinks": "1", **settings})

    def expect_every_link_opens(self, page, files):
        opened = []
        for number in range(len(files)):
            self.browser.get(file_url(page))
            self.browser.run("document.querySelectorAll('table table a')[arguments[0]].click()", number)
            # The browser shows an MP3 file as a document that holds a player, and no such document if there is no file.
            self.wait_for("return document.contentType === 'audio/mpeg' && document.querySelector('video').readyState > 0")
            url = urllib.parse.urlsplit(self.browser.url())
            self.assertEqual((url.scheme, url.query, url.fragment), ("file", "", ""))
            opened.append(urllib.parse.unquote_to_bytes(url.path).replace(b"//", b"/"))
        self.assertEqual(sorted(opened), sorted(files))

    def wait_for(self, script):
        end = time.monotonic() + 20
        while not self.browser.run(script):
            self.assertLess(time.monotonic(), end, script)

    def expect_no_scripts(self):
        self.assertEqual(self.browser.run("return document.scripts.length"), 0)
        self.assertEqual(self.browser.run("""return Array.from(document.querySelectorAll("*")).flatMap(
            element => element.getAttributeNames()).filter(name => name.startsWith("on"))"""), [])
        # The title shows whether one has run; an open dialog would fail the calls above.
        self.assertIn("MP3 List", self.browser.run("return document.title"))

    def test_every_link_opens_its_file(self):
        self.expect_every_link_opens(self.list(LinkType="0")[0], self.files)

    def test_every_relative_link_opens_its_file(self):
        page = self.list(LinkType="2", LinkPrefix="", DocumentType="XHTML")[0]
        beside = pathlib.Path(WORK) / "modern" / "beside"
        shutil.copytree(self.folder, beside)
        copy = beside / "list.htm"
        copy.write_bytes(page.read_bytes())
        files = [path.replace(bytes(self.folder), bytes(beside)) for path in self.files]
        self.expect_every_link_opens(copy, files)

    def test_pages_of_any_name_link_in_both_directions(self):
        pages = self.list(Spanning="10", output="my & \"list\" <1>#?%41é.日本.htm")
        self.assertEqual(len(pages), 2)
        self.browser.get(file_url(pages[0]))
        self.assertTrue(self.browser.click("Next Page >>"))
        self.assertEqual(pathlib.Path(urllib.parse.unquote(urllib.parse.urlsplit(self.browser.url()).path)), pages[1])
        self.assertTrue(self.browser.click("<< Previous Page"))
        self.assertEqual(pathlib.Path(urllib.parse.unquote(urllib.parse.urlsplit(self.browser.url()).path)), pages[0])

    def test_no_name_tag_or_setting_runs_a_script(self):
        evil = "\"'></td></style><script>document.title=1;alert(1)</script><img src=x onerror=alert(2)>{}]]>--&gt;"
        settings = {f"Font{i}": f"{evil}%|%{evil}%|%1%|%1" for i in range(3)} | {f"Colour{i}": evil for i in range(10)}
        for document_type, html in itertools.product(("HTML", "XHTML", ""), "01"):
            with self.subTest(type=document_type, html=html):
                page = self.list(DocumentType=document_type, FontHTML=html, ColourHTML=html, LinkPrefix=evil,
                                 ActiveColumns=f"Artist|Title|Filename|{evil}", Merge="0", **settings)[0]
                self.browser.get(file_url(page))
                self.expect_no_scripts()
                rows = self.browser.run(ROWS)
                self.assertEqual(rows[0], ["Artist", "Title", "Filename", evil, "Link"])
                self.assertEqual({len(row) for row in rows[1:-1]}, {5})
                self.assertEqual(len(rows), len(self.files) + 2)

    def test_the_style_sheet_of_xhtml_works_as_html_and_as_xml(self):
        page = self.list(DocumentType="XHTML", Colour5="A0B0C0", Font2="Tahoma%|%3%|%0%|%1",
                         ActiveColumns="Number", Merge="0")[0]
        xml = page.with_suffix(".xhtml")
        shutil.copy(page, xml)
        for file, content_type in ((page, "text/html"), (xml, "application/xhtml+xml")):
            self.browser.get(file_url(file))
            self.assertEqual(self.browser.run("return document.contentType"), content_type)
            self.assertEqual(self.browser.run(COLOURS, 1)[:2], ["rgb(160, 176, 192)", "rgb(0, 0, 0)"])
            style = "return getComputedStyle(document.querySelectorAll('table table td')[0]).fontStyle"
            self.assertEqual(self.browser.run(style), "italic")


WANTED_TEXTS = ["Åsa Löfgren", "Snö på ängen", "Cœur d'août", "Größenwahn", "Façade – 2 € a Dance…", "\"Quoted\" & Unquoted", "<3",
                "/花の楽団/春の道/", "夜行列車.mp3", "/Северный хор/Белые ночи/", "No ID3 Tags!"]

if __name__ == "__main__":
    del sys.argv[1:]
    unittest.main()
