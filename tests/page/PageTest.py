"""Tests written HTML5 pages in a browser.

usage: PageTest.py PAGE-SAMPLE WORK-FOLDER BROWSER [TEST...]
"""

import base64
import json
import pathlib
import re
import shutil
import subprocess
import sys
import time
import unicodedata
import unittest

from browsers import BROWSERS, file_url

SAMPLE, WORK, BROWSER = sys.argv[1:4]
MAKE_BROWSER, PROGRAM = BROWSERS[BROWSER]
COLUMNS = "Number|Artist|Album|Title|Duration|Bitrate|File Size|Year"

# What the user can put around the table: scripts of every kind, elements that load something or lead elsewhere.
MARKUP = ("<b>Bold</b><script>document.title='ran'</script><img src=x onerror=\"document.title='ran'\">"
          "<svg onload=\"document.title='ran'\"></svg><iframe srcdoc=\"<script>parent.document.title='ran'</script>\"></iframe>"
          "<iframe src=\"javascript:parent.document.title='ran'\"></iframe><base href=\"http://tunedex.example/\">"
          "<object data=\"x.svg\"></object><embed src=\"x.svg\"><link rel=stylesheet href=\"x.css\"><style>tr{display:none}</style>"
          "<META http-equiv=refresh content=\"0;url=x.html\"><details open ontoggle=\"document.title='ran'\"></details>"
          "<form action=x.html><button id=send>send</button></form><a id=bad href=\"javascript:document.title='ran'\">bad</a>"
          "<video src=x.mp4 poster=x.png></video><p style=\"position:fixed\" id=styled>styled</p>"
          "<input autofocus onfocus=\"document.title='ran'\">")

ROWS = """return [...document.querySelectorAll('tbody')].filter(body => getComputedStyle(body).visibility === 'visible').flatMap(
    body => [...body.rows]).map(row => [...row.cells].map(cell => cell.textContent.trim()));"""
STATUS = "return document.querySelector('[role=status]').textContent"


def settings(**changes):
    return {"DocumentType": "HTML5", "Spanning": "0", "Merge": "0", "ActiveColumns": COLUMNS, "WindowTitle": "List",
            "PageTitle": "Tracks", "PageFooter": "End", **changes}


def write(name, count, kind="plain", **changes):
    """Writes a listing and returns its pages."""
    folder = pathlib.Path(WORK) / name
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    lines = "".join(f"{key}={value}\r\n" for key, value in settings(OutputFile=str(folder / "list.htm"), **changes).items())
    (folder / "list.cfg").write_text(lines, encoding="utf-8")
    subprocess.run([SAMPLE, folder / "list.cfg", str(count), kind], check=True)
    return sorted(folder.glob("*.htm"))


def folded(text):
    """As the page folds texts; the sample has only these letters without a decomposition."""
    plain = "".join(c for c in unicodedata.normalize("NFD", text.lower()) if not unicodedata.combining(c))
    return plain.replace("ß", "ss").replace("ø", "o")


class PageTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.browser = MAKE_BROWSER()
        cls.addClassCleanup(cls.browser.close)

    def open(self, page, fragment=""):
        # A navigation that only changes the fragment would not load the page again.
        self.browser.get("about:blank")
        self.browser.get(file_url(page) + fragment)

    def wait_for(self, script, *arguments):
        for _ in range(400):
            value = self.browser.run(script, *arguments)
            if value:
                return value
            time.sleep(0.05)
        self.fail(f"never true: {script}")

    def wait_status(self, expected):
        self.wait_for("return document.querySelector('[role=status]').textContent === arguments[0]", expected)

    def rows(self):
        return self.browser.run(ROWS)

    def column(self, index):
        return [row[index] for row in self.rows()]

    def search(self, text):
        self.browser.run("""const field = document.querySelector('input[type=search]');
            field.value = arguments[0]; field.dispatchEvent(new Event('input', {bubbles: true}));""", text)

    def sort(self, name, shift=False):
        self.browser.run("""const button = [...document.querySelectorAll('thead button')].find(b => b.textContent === arguments[0]);
            button.dispatchEvent(new MouseEvent('click', {bubbles: true, shiftKey: arguments[1]}));""", name, shift)


class Search(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.page = write("search", 400, DoLinks="1")[0]

    def setUp(self):
        self.open(self.page)
        self.all = self.rows()

    def expect_found(self, query):
        words = folded(query).split()
        expected = [row for row in self.all if all(word in folded("\n".join(row[:-1])) for word in words)]
        self.search(query)
        self.wait_status(f"{len(expected)} of 400 tracks")
        self.wait_for("return [...document.querySelectorAll('tbody.view tr')].length === arguments[0]", len(expected))
        self.assertEqual(self.rows(), expected)
        return len(expected)

    def test_words_are_found_in_any_order_and_column(self):
        self.assertEqual(len(self.all), 400)
        for query, least in (("river", 1), ("bjork blue", 1), ("BLUE Björk", 1), ("1961 jürgen", 0), ("edith", 12), ("ÉDITH", 12),
                             ("strasse", 1), ("straße", 1), ("sO̱n", 12), ("женя елкина", 12), ("ωμεγα", 12), ("花の", 12),
                             ("  ", 400), ("no such text", 0), ("i", 1)):
            with self.subTest(query=query):
                if query.strip():
                    self.assertGreaterEqual(self.expect_found(query), least)
                else:
                    self.search(query)
                    self.wait_status("400 tracks")

    def test_a_word_does_not_reach_across_cells_and_links_are_not_searched(self):
        self.search("link")
        self.wait_status("0 of 400 tracks")
        self.search(self.all[0][1][-2:] + self.all[0][2][:2])
        self.wait_status("0 of 400 tracks")

    def test_matches_are_marked_at_their_own_place(self):
        for query, marks in (("bjork", {"Björk"}), ("strasse", {"Straße"}), ("son", {"Søn"}), ("ёлк", {"Ёлк"}),
                             ("bjo or rk", {"Bjö", "rk", "or", "Or", "ör", "Björk"})):
            with self.subTest(query=query):
                self.search(query)
                self.wait_for("return document.querySelector('mark')")
                found = set(self.browser.run("return [...document.querySelectorAll('mark')].map(mark => mark.textContent)"))
                self.assertLessEqual(found, marks)
        self.search("")
        self.wait_status("400 tracks")
        self.assertFalse(self.browser.run("return document.querySelector('mark')"))
        self.assertEqual(self.rows(), self.all)

    def test_keys_search_and_clear(self):
        self.browser.press("/")
        self.assertTrue(self.browser.run("return document.activeElement.type === 'search'"))
        self.browser.press(*"edith")
        self.wait_for("return document.querySelector('[role=status]').textContent.endsWith('of 400 tracks')")
        self.browser.press("Escape")
        self.wait_status("400 tracks")
        self.assertTrue(self.browser.run("return document.activeElement.type === 'search'"))
        self.browser.press("Escape")
        self.assertFalse(self.browser.run("return document.activeElement.type === 'search'"))

    def test_the_address_holds_search_order_and_colours(self):
        self.search("blue été")
        self.sort("Title")
        self.sort("Title")
        self.sort("Year", shift=True)
        self.wait_for("return location.hash === '#q=blue+%C3%A9t%C3%A9&sort=-4%2C8'")
        rows = self.rows()
        address = self.browser.url()
        self.open(self.page, "#" + address.partition("#")[2] + "&colours=dark")
        self.wait_for("return document.querySelector('tbody.view tr')")
        self.assertEqual(self.rows(), rows)
        self.assertEqual(self.browser.run("return document.querySelector('input[type=search]').value"), "blue été")
        self.assertEqual(self.browser.run("return document.documentElement.dataset.scheme"), "dark")

    def test_an_address_of_another_kind_changes_nothing(self):
        for fragment in ("#top", "#sort=99,-77,x&q=&track=100000&colours=<b>", "#%E0%A4%A"):
            with self.subTest(fragment=fragment):
                self.open(self.page, fragment)
                self.wait_status("400 tracks")
                self.assertEqual(self.rows(), self.all)


class Order(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.page = write("order", 300, SizeType="1")[0]

    def setUp(self):
        self.open(self.page)
        self.all = self.rows()

    def expect_order(self, column, key):
        """Ascending, then descending, then as written. Empty texts, and texts that are no number, come last."""
        name = COLUMNS.split("|")[column]
        keys = {row[column]: key(row[column]) for row in self.all}
        known = [row for row in self.all if keys[row[column]] is not None]
        rest = [row for row in self.all if keys[row[column]] is None]
        for direction, expected in (("ascending", sorted(known, key=lambda row: keys[row[column]]) + rest),
                                    ("descending", sorted(known, key=lambda row: keys[row[column]], reverse=True) + rest)):
            self.sort(name)
            self.wait_for("return document.querySelectorAll('tbody.view tr').length === 300")
            self.assertEqual(self.column(column), [row[column] for row in expected], direction)
            self.assertEqual(self.browser.run("return [...document.querySelectorAll('th')].map(th => th.ariaSort)")[column], direction)
        self.sort(name)
        self.wait_status("300 tracks")
        self.assertEqual(self.rows(), self.all)
        self.assertFalse(self.browser.run("return document.querySelector('[aria-sort]')"))

    def test_numbers_durations_and_sizes_sort_by_value(self):
        def seconds(text):
            minutes, _, rest = text.partition(":")
            return 60 * int(minutes) + int(rest)
        self.expect_order(0, int)
        self.expect_order(4, seconds)
        self.expect_order(5, int)
        self.expect_order(6, lambda text: float(text.removesuffix(" kB").replace(",", "")))
        self.expect_order(7, lambda text: int(text) if text else None)

    def test_texts_sort_as_a_reader_expects(self):
        self.sort("Artist")
        self.wait_for("return document.querySelectorAll('tbody.view tr').length === 300")
        artists = list(dict.fromkeys(self.column(1)))
        self.assertEqual([a for a in artists if a[0] < "\u0300" and a[0] != "/"],
                         ["50% Off", "Åsa Löfgren", "Björk & Søn", "Édith Beauséjour", "Jürgen Groß", "Quiet Harbour",
                          "Zoë (Live)"][:len([a for a in artists if a[0] < "\u0300" and a[0] != "/"])])

    def test_shift_adds_a_second_column(self):
        self.sort("Bitrate")
        self.sort("Duration", shift=True)
        self.sort("Duration", shift=True)
        self.wait_status("300 tracks, sorted by Bitrate, then by Duration, descending")
        self.wait_for("return document.querySelectorAll('tbody.view tr').length === 300")
        keys = [(int(row[5]), -(60 * int(row[4].split(":")[0]) + int(row[4].split(":")[1]))) for row in self.rows()]
        self.assertEqual(keys, sorted(keys))
        self.assertEqual(self.browser.run("return document.querySelectorAll('[aria-sort]').length"), 1)

    def test_keys_sort_and_original_order_returns(self):
        focus = "document.querySelectorAll('thead button')[arguments[0]].focus()"
        self.browser.run(focus, 5)
        self.browser.press("Enter")
        self.wait_status("300 tracks, sorted by Bitrate")
        self.browser.run(focus, 7)
        self.browser.press("Shift+Enter")
        self.wait_status("300 tracks, sorted by Bitrate, then by Year")
        self.browser.run("[...document.querySelectorAll('.bar button')].find(b => b.textContent === 'Original order').click()")
        self.wait_status("300 tracks")
        self.assertEqual(self.rows(), self.all)

    def test_letters_jump_to_artists(self):
        self.wait_for("return document.querySelectorAll('[role=toolbar] button').length > 3")
        letters = self.browser.run("return [...document.querySelectorAll('[role=toolbar] button')].map(b => b.textContent)")
        self.assertEqual(letters, ["#", "A", "B", "E", "J", "Q", "Z", "Ω", "Ж"])
        self.browser.run("document.querySelector('[role=toolbar] button').focus()")
        self.browser.press("ArrowRight", "ArrowRight", "ArrowRight", "Enter")
        self.assertTrue(self.browser.run("return document.activeElement.cells[1].textContent").startswith("Édith"))
        self.browser.run("document.querySelector('[role=toolbar] [tabindex=\"0\"]').focus()")
        self.browser.press("End", "ArrowLeft", "Enter")
        self.assertTrue(self.browser.run("return document.activeElement.cells[1].textContent").startswith("Ωμ"))
        top, head = self.browser.run("""return [document.activeElement.getBoundingClientRect().top,
            document.querySelector('thead').getBoundingClientRect().bottom]""")
        self.assertGreaterEqual(top, head - 2)
        self.search("bjork")
        self.wait_for("return document.querySelectorAll('[role=toolbar] [aria-disabled=false]').length === 1")


class Looks(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.page = write("looks", 300, DoLinks="1", **{"Colour(4)": "102030", "Colour(5)": "E0F0E0", "Colour(6)": "203040",
                                                       "Colour(7)": "F0E0F0", "TablePadding": "3"})[0]

    def setUp(self):
        self.addCleanup(self.browser.resize, 1000)

    def colours(self):
        return self.browser.run("""return [...document.querySelectorAll('tbody tr')].slice(0, 3).map(
            row => [getComputedStyle(row.cells[0]).backgroundColor, getComputedStyle(row.cells[0]).color]);""")

    def test_rows_have_the_colours_of_the_theme(self):
        self.open(self.page, "#colours=light")
        plain, alternate = ["rgb(224, 240, 224)", "rgb(16, 32, 48)"], ["rgb(240, 224, 240)", "rgb(32, 48, 64)"]
        self.assertEqual(self.colours(), [plain, alternate, plain])

    def test_colours_can_be_switched(self):
        self.open(self.page, "#colours=light")
        light = self.colours()
        self.browser.run("[...document.querySelectorAll('.bar button')].find(b => b.textContent === 'Dark colours').click()")
        self.assertNotEqual(self.colours(), light)
        self.wait_for("return location.hash === '#colours=dark'")
        self.browser.run("[...document.querySelectorAll('.bar button')].find(b => b.textContent === 'Light colours').click()")
        self.assertEqual(self.colours(), light)

    def test_columns_fold_where_the_window_is_narrow(self):
        shown = "return [...document.querySelectorAll('tbody tr')[1].cells].filter(c => c.checkVisibility()).map(c => c.cellIndex)"
        button = "return [...document.querySelectorAll('.folds')].filter(b => b.checkVisibility()).length"
        self.browser.resize(1600)
        self.open(self.page)
        self.assertEqual(self.browser.run(shown), list(range(9)))
        self.assertEqual(self.browser.run(button), 0)
        self.browser.resize(500)
        narrow = self.browser.run(shown)
        self.assertLess(len(narrow), 9)
        self.assertIn(3, narrow)
        self.assertEqual(self.browser.run(button), 1)
        self.assertEqual(self.browser.run("return document.documentElement.scrollWidth <= innerWidth"), True)
        self.browser.run("document.querySelectorAll('tbody tr')[1].cells[3].click()")
        self.assertEqual(self.browser.run(shown), list(range(9)))
        self.browser.run("document.querySelectorAll('tbody tr')[1].cells[3].click()")
        self.assertEqual(self.browser.run(shown), narrow)
        self.browser.run("document.querySelector('.folds').click()")
        self.assertEqual(self.browser.run(shown), list(range(9)))
        labels = self.browser.run("""return [...document.querySelectorAll('tbody tr')[1].cells].map(
            cell => getComputedStyle(cell, '::before').content).filter(content => content !== 'none')""")
        self.assertIn('"Year: "', labels)

    def test_headers_stay_whole_in_every_window(self):
        large = write("large", 30, Merge="0", ActiveColumns="Artist|Title|Album|Year|Genre|Duration|Bitrate",
                      **{"Font(1)": "DejaVu Serif%|%4%|%1%|%0"})[0]
        broken = """return [...document.querySelectorAll('thead button')].filter(button => {
            const range = document.createRange();
            range.selectNodeContents(button);
            return button.checkVisibility() && range.getClientRects().length !== 1;
        }).map(button => button.textContent);"""
        for page in (self.page, large):
            self.open(page)
            for width in range(360, 1700, 40):
                with self.subTest(page=page.name, width=width):
                    self.browser.resize(width)
                    self.assertEqual(self.browser.run(broken), [])
                    self.assertTrue(self.browser.run("return document.documentElement.scrollWidth <= innerWidth"))

    def test_links_lead_to_the_files(self):
        self.open(self.page)
        links = self.browser.run("return [...document.querySelectorAll('tbody a')].map(a => a.getAttribute('href'))")
        self.assertEqual(len(links), 300)
        self.assertEqual(links[0], "file:////music/50%25%20Off/" + links[0].split("/")[-2] + "/01.mp3")


class Groups(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.page = write("groups", 60, GroupByAlbum="1")[0]

    def test_albums_have_headings_until_the_rows_are_sorted(self):
        self.open(self.page)
        headings = "return [...document.querySelectorAll('[scope=rowgroup]')].filter(h => h.checkVisibility({visibilityProperty: true})).map(h => h.textContent.trim())"
        found = self.browser.run(headings)
        # 59 tracks in five albums and one without a tag.
        self.assertEqual(len(found), 6)
        self.assertRegex(found[0], r"^50% Off \S.* 12 tracks, \d+:\d\d:\d\d$")
        self.assertRegex(found[5], r"^No artist +1 track, \d+:\d\d$")
        self.assertEqual(self.browser.run("return [...document.querySelectorAll('tbody')].map(b => b.rows.length)"),
                         [13, 13, 13, 13, 12, 2])
        visible = "return [...document.querySelectorAll('thead th')].filter(h => h.checkVisibility()).map(h => h.textContent)"
        self.assertNotIn("Album", self.browser.run(visible))
        self.sort("Title")
        self.wait_for("return document.querySelectorAll('tbody.view tr').length === 60")
        self.assertEqual(self.browser.run(headings), [])
        self.assertIn("Album", self.browser.run(visible))
        self.sort("Title")
        self.sort("Title")
        self.wait_status("60 tracks")
        self.assertEqual(self.browser.run(headings), found)


class Pages(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.pages = write("pages", 250, Spanning="100", DoLinks="1")

    def all_pages(self):
        self.browser.run("document.querySelector('input[type=checkbox]').click()")

    def test_pages_lead_to_each_other(self):
        self.open(self.pages[0])
        for number, page in enumerate(self.pages, 1):
            self.assertEqual(self.browser.url(), file_url(page))
            self.assertEqual(self.browser.run("return document.title"), f"List - Page {number} of 3")
            self.assertEqual(len(self.rows()), 100 if number < 3 else 50)
            following = self.browser.run("const a = document.querySelector('nav a[rel=next]'); if (a) a.click(); return Boolean(a)")
            self.assertEqual(following, number < 3)
            if following:
                self.wait_for("return document.readyState === 'complete' && location.href.includes(arguments[0])",
                              f".{number + 1:03}.htm")

    def test_a_search_of_all_pages_finds_tracks_of_other_pages(self):
        expected = []
        for page in self.pages:
            self.open(page)
            expected += [row for row in self.rows() if "edith" in folded("\n".join(row))]
        self.assertGreater(len(expected), 12)
        self.open(self.pages[0])
        self.assertFalse(self.browser.run("return document.querySelector('script[src]')"))
        self.search("edith")
        self.all_pages()
        self.wait_status(f"{len(expected)} of 250 tracks")
        rows = self.rows()
        self.assertEqual([[re.sub(r" Page \d+$", "", cell) for cell in row] for row in rows], expected)
        link = "return [...document.querySelectorAll('tbody.view a')].filter(a => a.textContent.startsWith('Page')).map(a => a.href)[0]"
        target = self.browser.run(link)
        self.assertIn("list.002.htm#track=", target)
        self.browser.get(target)
        self.wait_for("return document.activeElement.cells && document.activeElement.cells[0].textContent === arguments[0]",
                      target.split("=")[1])

    def test_the_order_can_be_that_of_all_pages(self):
        self.open(self.pages[1], "#all=1&sort=-1")
        self.wait_status("250 tracks, sorted by Number, descending")
        self.wait_for("return document.querySelectorAll('tbody.view tr').length === 250")
        self.assertEqual(self.column(0), [str(number) for number in range(250, 0, -1)])

    def test_without_its_index_a_page_says_so_and_searches_itself(self):
        pages = write("noindex", 250, Spanning="100")
        index = pages[0].with_name("list.search.js")
        for damage in (index.unlink, lambda: index.write_text("tunedexIndex({\"perPage\":100,\"pages\":[],\"rows\":[]})")):
            damage()
            self.open(pages[0], "#q=edith")
            self.all_pages()
            self.wait_for("return document.querySelector('[role=status]').textContent.startsWith('The index of all pages cannot be loaded')")
            self.assertRegex(self.browser.run(STATUS), r"\d+ of 100 tracks$")
            self.assertFalse(self.browser.run("return document.querySelector('input[type=checkbox]').checked"))


class Long(PageTest):
    def test_ten_thousand_tracks_are_searched_sorted_and_scrolled(self):
        self.open(write("long", 10000, "many")[0])
        everything = self.rows()
        self.assertEqual(len(everything), 10000)
        lefts = """const rows = document.querySelectorAll('tbody tr'); const row = rows[arguments[0]]; row.scrollIntoView();
            return [...row.cells].map(cell => cell.getBoundingClientRect().left);"""
        self.assertEqual(self.browser.run(lefts, 0), self.browser.run(lefts, 9999))
        self.assertEqual(self.browser.run(lefts, 0), self.browser.run(lefts, 5000))
        expected = [row for row in everything if "night" in folded("\n".join(row)) and "blue" in folded("\n".join(row))]
        self.search("night blue")
        self.wait_status(f"{len(expected):,} of 10,000 tracks")
        self.search("")
        self.sort("Number")
        self.sort("Number")
        self.wait_status("10,000 tracks, sorted by Number, descending")
        # Far rows are made when they come near.
        self.assertLess(self.browser.run("return document.querySelectorAll('tbody.view tr').length"), 2000)
        self.browser.run("document.querySelector('tbody:last-of-type').scrollIntoView({block: 'end'})")
        self.wait_for("""const row = document.querySelector('tbody:last-of-type tr:last-child');
            return row && row.cells[0].textContent === '1' && row.getAttribute('aria-rowindex') === '10001'""")
        self.assertEqual(self.browser.run("return document.querySelector('table').getAttribute('aria-rowcount')"), "10001")


class Safety(PageTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.pages = write("hostile", 120, "hostile", Spanning="100", DoLinks="1", PageTitle=MARKUP, PageFooter=MARKUP,
                          WindowTitle="</title><script>document.title='ran'</script> & co", GroupByAlbum="1",
                          **{"Font(2)": "x</style><script>document.title='ran'</script>, \"Y\\%|%2%|%0%|%0"})

    def watch(self):
        self.assertTrue(self.browser.run("return document.title").startswith("</title><script>document.title='ran'</script> & co"))
        # Nothing but the page itself was asked for, and nothing moved it.
        self.assertEqual(self.browser.run("return performance.getEntriesByType('resource').filter(e => e.transferSize || e.decodedBodySize).length"), 0)
        self.assertEqual(self.browser.url().partition("#")[0], file_url(self.pages[0]))
        self.assertFalse(self.browser.run("return document.querySelector('tbody script, tbody img, tbody svg, tbody style')"))

    def test_no_script_of_a_text_runs_and_nothing_is_loaded(self):
        self.open(self.pages[0])
        time.sleep(1)
        self.watch()
        self.browser.run("document.querySelectorAll('#bad').forEach(link => link.click())")
        self.browser.run("document.querySelectorAll('#send').forEach(button => button.click())")
        time.sleep(0.5)
        self.watch()
        self.assertFalse(self.browser.run("return document.querySelector('meta[http-equiv=refresh i], link')"))

    def test_the_page_works_around_such_markup(self):
        self.open(self.pages[0])
        self.assertEqual(len(self.browser.run("return [...document.querySelectorAll('tbody tr:not(.album)')].map(r => r.cells.length)")), 100)
        self.assertEqual(self.browser.run("return getComputedStyle(document.querySelector('tbody td')).fontFamily")[:4], '"x</')
        self.assertNotEqual(self.browser.run("return getComputedStyle(document.querySelector('#styled')).position"), "fixed")
        self.search("alert(1)")
        self.wait_for("return document.querySelector('mark')")
        self.browser.run("document.querySelector('input[type=checkbox]').click()")
        self.wait_for("return / of 120 tracks/.test(document.querySelector('[role=status]').textContent)")
        self.watch_texts()

    def watch_texts(self):
        texts = self.column(2) + self.column(3)
        self.assertIn("\"><img src=x onerror=alert(2)>", [re.sub(r" Page \d+$", "", text) for text in texts])
        self.assertTrue(any("stray \ufffd \ufffd\ufffd, control \ufffd\ufffd, \ufffd and \ufffd" in text for text in sum(self.rows(), [])))
        self.assertTrue(self.browser.run("return document.title").startswith("</title>"))


@unittest.skipUnless(BROWSER == "Chromium", "needs the protocol of Chromium's developer tools")
class Machines(PageTest):
    def tree(self):
        return self.browser.devtools("Accessibility.getFullAXTree")["nodes"]

    def named(self, role):
        return [node.get("name", {}).get("value", "") for node in self.tree() if node["role"]["value"] == role and not node["ignored"]]

    def test_screen_readers_find_a_table_and_named_controls(self):
        self.open(write("readers", 120, GroupByAlbum="1", DoLinks="1")[0])
        self.wait_for("return document.querySelector('[role=toolbar] button')")
        self.assertEqual(self.named("table"), ["Tracks"])
        self.assertEqual(len(self.named("row")), 120 + 11 + 1)
        self.assertEqual(self.named("columnheader"), [name for name in COLUMNS.split("|") if name != "Album"] + ["Link"])
        self.assertEqual(len(self.named("rowheader")), 11)
        self.assertEqual(self.named("searchbox"), ["Search"])
        self.assertEqual(self.named("toolbar"), ["Artists by first letter"])
        self.assertIn("Dark colours", self.named("button"))
        self.assertEqual(self.named("heading"), ["Tracks"])

    def test_without_script_the_table_is_complete(self):
        page = write("noscript", 250, Spanning="200")[0]
        self.browser.devtools("Emulation.setScriptExecutionDisabled", value=True)
        self.addCleanup(self.browser.devtools, "Emulation.setScriptExecutionDisabled", value=False)
        self.open(page)
        self.assertEqual(len(self.named("row")), 201)
        self.assertEqual(len(self.named("cell")), 8 * 200)
        self.assertEqual((self.named("searchbox"), self.named("button")), ([], []))
        self.browser.resize(400)
        self.addCleanup(self.browser.resize, 1000)
        self.assertEqual(len(self.named("cell")), 8 * 200)

    def test_the_colours_follow_the_system(self):
        self.open(write("scheme", 5)[0])
        background = "return getComputedStyle(document.body).backgroundColor"
        for scheme, expected in (("light", "rgb(255, 255, 255)"), ("dark", None)):
            self.browser.devtools("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])
            found = self.browser.run(background)
            self.assertEqual(found == "rgb(255, 255, 255)", scheme == "light", found)
        self.browser.devtools("Emulation.setEmulatedMedia", features=[])

    def test_paper_has_the_header_on_every_page_and_no_controls(self):
        if not shutil.which("pdftotext"):
            self.skipTest("pdftotext is not installed")
        self.open(write("paper", 300, GroupByAlbum="1", Spanning="0")[0])
        self.search("blue")
        self.wait_for("return document.querySelector('tbody.view')")
        self.search("")
        self.wait_for("return !document.querySelector('tbody.view tr')")
        data = self.browser.devtools("Page.printToPDF", printBackground=True)["data"]
        pdf = pathlib.Path(WORK) / "paper.pdf"
        pdf.write_bytes(base64.b64decode(data))
        text = subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True, stdout=subprocess.PIPE, text=True).stdout
        papers = text.split("\f")[:-1]
        self.assertGreater(len(papers), 4)
        for paper in papers:
            self.assertRegex(paper, r"Number +Artist +Title +Duration")
        self.assertNotIn("Search", text)
        self.assertNotIn("Dark colours", text)
        numbers = [int(number) for number in re.findall(r"^ *(\d+) +\S", text, re.M)]
        self.assertEqual([n for n in numbers if n <= 300][:300], list(range(1, 301)))
        # No album is broken in two.
        for paper in papers[1:]:
            rows = [line for line in paper.splitlines() if line.strip()]
            self.assertRegex(rows[1], r"tracks?, [\d:]+$")


if __name__ == "__main__":
    if not shutil.which(PROGRAM):
        print(f"skipped: {PROGRAM} is not installed")
        sys.exit(77)
    sys.argv[1:] = sys.argv[4:]
    unittest.main()
