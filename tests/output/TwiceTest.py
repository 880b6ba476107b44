"""Checks that two runs over the same files write the same bytes in every kind of listing.

usage: TwiceTest.py PROGRAM DATA-FOLDER MAKE-SAMPLE TAGGER SAMPLE-FOLDER WORK-FOLDER
"""

import pathlib
import sys
import unittest

from listings import ALL_COLUMNS, Program, make_sample

PROGRAM, DATA, MAKE_SAMPLE, TAGGER, SAMPLE, WORK = sys.argv[1:7]
# Titles without date and time, which change between runs.
TIMELESS = {"WindowTitle": "%C %N %S %P", "PageFooter": "%C files"}


class TwoRuns(unittest.TestCase):
    def test_write_the_same(self):
        sample = make_sample(MAKE_SAMPLE, TAGGER, SAMPLE)
        for output, settings in (
                ("list.htm", {"Spanning": "20", "DoLinks": "1", "FontHTML": "1", "ActiveColumns": ALL_COLUMNS}),
                ("list.html", {"Spanning": "0", "DocumentType": "XHTML", "SortOrder": "2"}),
                ("list.txt", {"ActiveColumns": ALL_COLUMNS, "Merge": "0"}),
                # A track without a duration fails a playlist; the sample collection has none.
                ("list.m3u", {})):
            with self.subTest(output=output):
                first, second = (self.bytes_of(Program(PROGRAM, DATA, pathlib.Path(WORK)), sample, output, settings)
                                 for _ in range(2))
                self.assertEqual(first, second)
                self.assertGreater(sum(len(content) for content in first.values()), 1000)

    @staticmethod
    def bytes_of(program, sample, output, settings):
        return {page.name: page.read_bytes() for page in program.list([sample], output=output, **TIMELESS, **settings)}


if __name__ == "__main__":
    del sys.argv[1:]
    unittest.main()
