"""Validates listings as HTML 4.01 Transitional and XHTML 1.0 Transitional.

usage: ValidatorTest.py PROGRAM DATA-FOLDER MAKE-SAMPLE TAGGER SAMPLE-FOLDER WORK-FOLDER [--corpus]

Runs onsgmls and xmllint offline with the document types that Debian ships. With --corpus, lists only the folder of real
MP3 files that TUNEDEX_CORPUS names; without that variable, exits with 77 (skipped).
"""

import collections
import concurrent.futures
import itertools
import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

import hostile
from listings import ALL_COLUMNS, MODERN_COLUMNS, Program, make_sample

PROGRAM, DATA, MAKE_SAMPLE, TAGGER, SAMPLE, WORK = sys.argv[1:7]
WITH_CORPUS = sys.argv[7:] == ["--corpus"]
CORPUS = os.environ.get("TUNEDEX_CORPUS") if WITH_CORPUS else None
DTDS = pathlib.Path("/usr/share/xml/w3c-sgml-lib/schema/dtd")


def html_complaints(page):
    run = subprocess.run(["onsgmls", "-s", "-E", "0", "-b", "iso-8859-1", "-c", str(DTDS / "sgml.soc"), str(page)],
                         capture_output=True, stdin=subprocess.DEVNULL,
                         env={"PATH": os.environ["PATH"], "SP_CHARSET_FIXED": "YES", "SP_ENCODING": "ISO-8859-1"})
    lines = run.stderr.decode("latin-1").splitlines()
    found = [re.match(r"onsgmls:.*?:\d+:\d+:[EWX]: (.*)", line) for line in lines]
    texts = [match[1] for match in found if match]
    assert bool(run.returncode) == bool(texts), run.stderr
    return texts


def xhtml_complaints(page):
    run = subprocess.run(["xmllint", "--noout", "--valid", "--nonet", str(page)], capture_output=True,
                         stdin=subprocess.DEVNULL,
                         env={"PATH": os.environ["PATH"], "XML_CATALOG_FILES": str(DTDS / "catalog.xml")})
    lines = run.stderr.decode("latin-1").splitlines()
    found = [re.search(r":\d+: .*(?:error|warning) : (.*)", line) for line in lines]
    texts = [match[1].strip() for match in found if match]
    assert bool(run.returncode) == bool(texts), run.stderr
    return texts


def complaints(page, document_type):
    return xhtml_complaints(page) if document_type == "XHTML" else html_complaints(page)


class Validity(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.folders = [CORPUS] if CORPUS else [make_sample(MAKE_SAMPLE, TAGGER, SAMPLE)]

    def expect_valid(self, variants):
        """Validates every page with each of the settings, in both document types. Every run ends with a pause of one
        second, so several run at once."""
        def judge(numbered):
            number, (document_type, settings) = numbered
            program = Program(PROGRAM, DATA, pathlib.Path(WORK) / f"{self.id()} {number}")
            pages = program.list(self.folders, DocumentType=document_type, **settings)
            return document_type, settings, {page.name: complaints(page, document_type) for page in pages}

        with concurrent.futures.ThreadPoolExecutor(6) as pool:
            for document_type, settings, found in pool.map(judge, enumerate(itertools.product(("HTML", "XHTML"), variants))):
                self.assertTrue(found)
                with self.subTest(type=document_type, **settings):
                    self.assertEqual({name: texts for name, texts in found.items() if texts}, {})


class PagesAreValid(Validity):
    def test_with_any_way_of_styling(self):
        switches = ("FontCSS", "ColourCSS", "FontHTML", "ColourHTML")
        self.expect_valid([dict(zip(switches, values)) for values in itertools.product("01", repeat=4)])

    def test_with_any_columns(self):
        self.expect_valid([{"ActiveColumns": columns, "Merge": merge, "FontHTML": "1"} for columns, merge in (
            (ALL_COLUMNS, "0"), (ALL_COLUMNS, "1"), (ALL_COLUMNS, "2"), ("Number|Title|Artist", "1"), ("Full Path", "0"))])

    def test_on_any_number_of_pages(self):
        self.expect_valid([{"Spanning": spanning} for spanning in ("0", "3", "7", "30000")])

    def test_with_bold_and_italic_fonts_and_plain_rows(self):
        self.expect_valid([{"Font0": "A%|%7%|%1%|%1", "Font1": "B%|%9%|%1%|%1", "Font2": "C%|%1%|%1%|%1",
                            "FontHTML": "1", "AltRows": "0", "TableWidth": "0/700", "PageTitle": "%C files%L%S",
                            "PageFooter": ""}])

    def test_with_every_theme_that_ships(self):
        themes = sorted((pathlib.Path(DATA) / "Themes").glob("*.thm"))
        self.assertGreaterEqual(len(themes), 8)
        lines = [[line.split("=", 1) for line in theme.read_text(encoding="cp1252").splitlines() if re.match(r"\w", line)]
                 for theme in themes]
        self.expect_valid([{re.sub(r"\W", "", key): value for key, value in theme} | switches
                           for theme in lines for switches in ({}, {"FontHTML": "1", "ColourHTML": "1"})])

    def test_with_empty_colours(self):
        # Both document types allow any text as a colour, so bgcolor="#" is valid.
        self.expect_valid([dict({f"Colour{i}": "" for i in range(10)}, ColourHTML="1")])


class LinkedPagesAreValid(Validity):
    """Links are not escaped, so they are valid only for paths without markup characters and without characters that
    Windows-1252 has and ISO-8859-1 lacks."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        plain = pathlib.Path(WORK) / "plain"
        shutil.rmtree(plain, ignore_errors=True)
        for path in cls.folders[0].rglob("*"):
            if path.suffix.lower() == ".mp3" and not set("&<>\"") & set(str(path)) and not re.search(
                    rb"[\x80-\x9f]", str(path).encode("cp1252", "replace")):
                target = plain / path.relative_to(cls.folders[0])
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(path, target)
        cls.folders = [plain]

    def test_with_links(self):
        self.expect_valid([{"DoLinks": "1", "LinkType": link_type, "LinkPrefix": prefix, "FontHTML": "1"}
                           for link_type, prefix in (("0", "file:///"), ("1", "file:///"), ("2", ""))])


class ModernPagesAreValid(Validity):
    """With Modern, any settings, names and tags make valid pages."""

    # Ends an attribute, an element, a comment, a CDATA section, a style sheet, a rule and a declaration.
    HOSTILE = "'\"></td></style></title>]]>--><script>alert(1)</script><!--&x;&#0;{};\\\t\x01\x7f\x80–€日"

    @classmethod
    def setUpClass(cls):
        work = pathlib.Path(WORK) / "hostile"
        hostile.make(work / "hostile", TAGGER)
        sample = make_sample(MAKE_SAMPLE, TAGGER, SAMPLE)
        cls.folders = [work / "hostile", sample]

    def expect_valid(self, variants):
        super().expect_valid([{"Modern": "1", "Spanning": "0", "DoLinks": "1", **settings} for settings in variants])

    def test_with_links(self):
        self.expect_valid([{"LinkType": link_type, "LinkPrefix": prefix, "FontHTML": "1"} for link_type, prefix in (
            ("0", "file:///"), ("1", "file:///"), ("2", ""), ("3", ""), ("0", self.HOSTILE))])

    def test_with_any_columns(self):
        unknown = f"Number|Foo||{self.HOSTILE.replace('|', '')}"
        self.expect_valid([{"ActiveColumns": columns, "Merge": "0", "FontHTML": html, "DoLinks": links}
                           for columns in ("", "Foo", unknown, MODERN_COLUMNS)
                           for html, links in (("0", "0"), ("1", "1"))])

    def test_with_any_fonts_and_colours(self):
        fonts = {f"Font{i}": f"{self.HOSTILE}%|%{self.HOSTILE}%|%1%|%1" for i in range(3)}
        colours = {f"Colour{i}": self.HOSTILE for i in range(10)}
        switches = ("FontCSS", "ColourCSS", "FontHTML", "ColourHTML")
        self.expect_valid([{**fonts, **colours, **dict(zip(switches, values))}
                           for values in ("0000", "1000", "0100", "1111")])

    def test_on_several_pages_of_any_name(self):
        self.expect_valid([{"Spanning": "20", "output": "my & \"list\" <1>#?%41é.日本.htm"}])


class WhatCannotBeValid(unittest.TestCase):
    """Required classic markup that no document type allows: the validators report exactly these errors."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.program = Program(PROGRAM, DATA, pathlib.Path(WORK) / "invalid")
        sample = make_sample(MAKE_SAMPLE, TAGGER, SAMPLE)
        cls.one = cls.program.work / "one"
        cls.one.mkdir()
        source = min(path for path in sample.rglob("*") if path.suffix.lower() == ".mp3")
        shutil.copy(source, cls.one / "a.mp3")
        cls.source = source

    def named(self, name):
        """A folder that holds one file of this name."""
        folder = self.program.work / "named"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        shutil.copy(self.source, folder / name)
        return folder

    def expect(self, document_type, expected, folder=None, **settings):
        judge = "XHTML" if document_type == "XHTML" else "HTML"
        for page in self.program.list([folder or self.one], DocumentType=document_type, **settings):
            self.assertEqual(collections.Counter(complaints(page, judge)), collections.Counter(expected))

    def test_an_unknown_column(self):
        # The start tag of its cell is unfinished, "<td</td>". In SGML the next "<" ends a tag, in XML it does not.
        column = {"ActiveColumns": "Number|Foo", "Merge": "0"}
        self.expect("HTML", [], **column)
        # It closes a font tag that it has not opened.
        self.expect("HTML", ['end tag for element "FONT" which is not open'], FontHTML="1", **column)
        self.expect("XHTML", ["error parsing attribute name", "attributes construct error",
                              "Couldn't find end of Start Tag td line 26", *unravelled()], **column)

    def test_no_columns(self):
        # Rows without cells.
        self.expect("HTML", ['end tag for "TR" which is not finished'] * 2, ActiveColumns="")
        self.expect("XHTML", ["Element tr content does not follow the DTD, expecting (th | td)+, got"] * 2, ActiveColumns="")

    def test_markup_in_the_titles(self):
        # Titles are not escaped. Markup is valid in the page title and footer, but not in the window title.
        for document_type in ("HTML", "XHTML"):
            self.expect(document_type, [], PageTitle="<b>A</b> &amp; B", PageFooter="<i>C</i>", WindowTitle="A &amp; B")
        self.expect("HTML", ['document type does not allow element "B" here', *unknown_entity("B")], WindowTitle="<b>A</b> &B")
        self.expect("XHTML", ["EntityRef: expecting ';'"], WindowTitle="A &B")

    def test_links_to_names_with_markup_in_them(self):
        # Links are neither escaped nor encoded.
        links = {"DoLinks": "1"}
        self.expect("HTML", unknown_entity("B.mp3"), self.named("A&B.mp3"), **links)
        self.expect("XHTML", ["EntityRef: expecting ';'"], self.named("A&B.mp3"), **links)
        self.expect("HTML", [], self.named("A & B.mp3"), **links)
        self.expect("HTML", [], self.named("A < B.mp3"), **links)
        self.expect("XHTML", ["Unescaped '<' not allowed in attributes values", "attributes construct error",
                              "Couldn't find end of Start Tag a line 26", "StartTag: invalid element name",
                              *unravelled("td line 26 and a")], self.named("A < B.mp3"), **links)
        self.expect("HTML", ["an attribute value literal can occur in an attribute specification list only after a VI "
                             "delimiter"], self.named('"A".mp3'), **links)
        self.expect("XHTML", ["attributes construct error", "Couldn't find end of Start Tag a line 26",
                              *unravelled("td line 26 and a")], self.named('"A".mp3'), **links)

    def test_links_to_names_with_characters_of_windows_1252(self):
        # Pages are declared as ISO-8859-1, which has no characters at these codes. Browsers read them as Windows-1252.
        self.expect("HTML", [f"non SGML character number {code}" for code in (156, 150, 128, 133)],
                    self.named("œ – 2 €….mp3"), DoLinks="1")
        self.expect("XHTML", [], self.named("œ – 2 €….mp3"), DoLinks="1")

    def test_an_unknown_document_type(self):
        # onsgmls reads a page without a document type as HTML, where the start tag of the root element is optional.
        self.expect("Other", [])


def unknown_entity(name):
    """The errors of onsgmls for an unescaped ampersand."""
    return [f'cannot generate system identifier for general entity "{name}"',
            f'general entity "{name}" not defined and no default entity',
            f'reference to entity "{name}" for which no system identifier could be generated']


def unravelled(*first):
    """The errors of xmllint after a missing start tag in the first row, line 26: every later end tag is matched with
    the wrong element."""
    return [*(f"Opening and ending tag mismatch: {pair}" for pair in (
        *first, "tr line 26 and td", "table line 24 and tr", "td line 23 and table", "tr line 22 and td",
        "table line 21 and tr", "body line 19 and table", "html line 3 and body")), "Extra content at the end of the document"]


if __name__ == "__main__":
    if WITH_CORPUS and not CORPUS:
        print("SKIPPED: the listing of real MP3 files: TUNEDEX_CORPUS is not set")
        sys.exit(77)
    if CORPUS and not pathlib.Path(CORPUS).is_dir():
        sys.exit(f"TUNEDEX_CORPUS: no such folder: {CORPUS}")
    del sys.argv[1:]
    # The other classes need the sample collection.
    unittest.main(defaultTest="PagesAreValid" if CORPUS else None)
