"""Opens modern tables (.txt and .csv) in LibreOffice Calc.

usage: SpreadsheetTest.py PROGRAM DATA-FOLDER TAGGER WORK-FOLDER

Skipped (exit status 77) without LibreOffice.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest
import xml.etree.ElementTree as ElementTree

import hostile
from listings import Program

PROGRAM, DATA, TAGGER, WORK = sys.argv[1:5]
SECONDS = 61
TABLE = "{urn:oasis:names:tc:opendocument:xmlns:table:1.0}"
OFFICE = "{urn:oasis:names:tc:opendocument:xmlns:office:1.0}"
TEXT = "{urn:oasis:names:tc:opendocument:xmlns:text:1.0}"
# What a user confirms in the import dialogue: the separator, quotation marks (34), UTF-8 (76), from line 1, American
# English (1033), and that times are recognised.
IMPORT = "Text - txt - csv (StarCalc):{separator},34,76,1,,1033,false,true"


def text_of(element):
    """The text of a paragraph, in which OpenDocument has elements for white space."""
    text = element.text or ""
    for child in element:
        if child.tag == TEXT + "s":
            text += " " * int(child.get(TEXT + "c", "1"))
        elif child.tag == TEXT + "tab":
            text += "\t"
        else:
            text += text_of(child)
        text += child.tail or ""
    return text


class ModernTables(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.work = pathlib.Path(WORK)
        cls.program = Program(PROGRAM, DATA, cls.work)
        cls.files = hostile.make(cls.work / "music", TAGGER, seconds=SECONDS)

    def rows(self, extension, separator):
        """The cells that Calc makes of a listing: type, time and text."""
        [listing] = self.program.list([self.work / "music"], output=f"list.{extension}", Modern="1", Merge="0",
                                      ActiveColumns="Number|Title|Duration|File Size|Full Path")
        run = subprocess.run(["soffice", f"-env:UserInstallation={(self.work / 'profile').as_uri()}", "--headless",
                              f"--infilter={IMPORT.format(separator=separator)}", "--convert-to", "fods",
                              "--outdir", str(self.work), str(listing)], stdin=subprocess.DEVNULL, check=False,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120,
                             env={"PATH": os.environ["PATH"], "HOME": str(self.work), "LC_ALL": "C.UTF-8"})
        self.assertEqual(run.returncode, 0, run.stdout)
        tree = ElementTree.parse(self.work / "list.fods")
        return [[(cell.get(OFFICE + "value-type"), cell.get(OFFICE + "time-value"),
                  "\n".join(map(text_of, cell.findall(TEXT + "p")))) for cell in row.findall(TABLE + "table-cell")]
                for row in tree.iter(TABLE + "table-row")]

    def expect_names(self, rows, shown):
        self.assertEqual([text for _, _, text in rows[0]], ["Number", "Title", "Duration", "File Size", "Full Path"])
        self.assertEqual({len(row) for row in rows}, {5})
        # Bytes that are no UTF-8 show as replacement characters.
        expected = {number: shown(os.fsencode(path).decode(errors="replace"))
                    for number, path in enumerate(self.files, 1)}
        found = {}
        for row in rows[1:]:
            title = row[1][2]
            number = int(re.match(r"\d+", title)[0])
            self.assertEqual(title, shown(hostile.TITLE.format(number=number)))
            found[number] = row[4][2]
        self.assertEqual(found, expected)

    def test_csv_has_every_name_and_durations_as_times(self):
        rows = self.rows("csv", ord(","))
        self.expect_names(rows, lambda text: text)
        self.assertEqual({row[2][:2] for row in rows[1:]}, {("time", "PT00H01M01S")})
        sizes = {pathlib.Path(os.fsdecode(path)).stat().st_size for path in self.files}
        self.assertEqual({(row[3][0], int(row[3][2])) for row in rows[1:]}, {("float", size) for size in sizes})

    def test_txt_has_every_name_and_durations_as_times(self):
        rows = self.rows("txt", ord("\t"))
        self.expect_names(rows, lambda text: re.sub("[\t\r\n]", " ", text))
        # Calc reads "1:01" as hours and minutes.
        self.assertEqual({row[2][:2] for row in rows[1:]}, {("time", "PT01H01M00S")})


if __name__ == "__main__":
    missing = [tool for tool in ("soffice", "lame") if not shutil.which(tool)]
    if missing:
        print("SKIPPED: modern tables in a spreadsheet: missing", *missing)
        sys.exit(77)
    del sys.argv[1:]
    unittest.main()
