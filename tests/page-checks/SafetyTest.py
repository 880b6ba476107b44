"""Watches Chromium and Firefox while they show HTML5 pages with hostile titles, tags, names, prefixes and fonts: whether a
script runs, a dialog opens, a request is made, and what the console says.

usage: SafetyTest.py PROGRAM DATA-FOLDER MAKE-SAMPLE TAGGER SAMPLE-FOLDER WORK-FOLDER [InChromium|InFirefox]
"""

import http.server
import os
import pathlib
import shutil
import sys
import threading
import time
import unittest
import urllib.error
import urllib.request

import checkers  # noqa: F401 - finds the modules of the other folders
import hostile
import webdriver
from browsers import Chromium, Firefox
from listings import ALL_COLUMNS, Program
from webdriver import file_url

PROGRAM, DATA, MAKE_SAMPLE, TAGGER, SAMPLE, WORK = sys.argv[1:7]
COLUMNS = {"ActiveColumns": ALL_COLUMNS, "Merge": "0"}

# RUN is a script and SITE an address; both leave a trace.
MARKUP = """<b>Bold</b><script>RUN</script><script src="SITE/script.js"></script><script type="module">import "SITE/module.js"</script>
<img src="SITE/image" onerror="RUN" alt=""><img src=x: onerror="RUN" alt=""><svg onload="RUN"><script>RUN</script><image href="SITE/svg"/></svg>
<iframe src="SITE/frame"></iframe><iframe srcdoc="<script>top.document.documentElement.dataset.ran=1;alert(1)</script>"></iframe>
<iframe src="javascript:top.document.documentElement.dataset.ran=1"></iframe><object data="SITE/object"></object>
<embed src="SITE/embed"><video src="SITE/video" poster="SITE/poster" autoplay></video><audio src="SITE/audio" autoplay></audio>
<link rel="stylesheet" href="SITE/sheet"><link rel="prefetch" href="SITE/prefetch"><link rel="preload" as="script" href="SITE/preload">
<link rel="modulepreload" href="SITE/modulepreload"><link rel="icon" href="SITE/icon"><link rel="manifest" href="SITE/manifest">
<style>@import "SITE/import"; body { background: url(SITE/background) }</style><p style="background:url(SITE/inline)">styled</p>
<details open ontoggle="RUN">d</details><input autofocus onfocus="RUN" aria-label="i"><marquee onstart="RUN">m</marquee>
<base href="SITE/base/"><form action="SITE/form" method="post"><button>send</button></form><form action="javascript:RUN"><button>run</button></form>
<a href="javascript:RUN" class="bad">bad</a><a ping="SITE/ping" href="#x" class="bad">ping</a><math><mtext href="javascript:RUN" class="bad">m</mtext></math>
<meta http-equiv="refresh" content="0;url=javascript:RUN"><meta http-equiv="Content-Security-Policy" content="script-src *">
<table><td background="SITE/td">t</table><body onload="RUN" background="SITE/body">"""
RUN = "document.documentElement.dataset.ran=1;alert(1)"


class Site:
    """A web server that remembers what it was asked for. Every script of it leaves a trace in the page."""

    def __init__(self):
        asked = self.asked = []

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                asked.append(self.path)
                self.send_response(200)
                self.send_header("Content-Type", "text/javascript")
                self.send_header("Access-Control-Allow-Origin", "*")
                self.end_headers()
                self.wfile.write(b"document.documentElement.dataset.ran=1")

            do_POST = do_GET

            def log_message(self, *_):
                pass

        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.address = f"http://127.0.0.1:{self.server.server_port}"
        self.thread = threading.Thread(target=self.server.serve_forever, daemon=True)
        self.thread.start()

    def close(self):
        self.server.shutdown()
        self.server.server_close()
        self.thread.join()


class WatchedChromium(Chromium):
    capabilities = {"goog:loggingPrefs": {"browser": "ALL"}, "unhandledPromptBehavior": "ignore"}

    def dialog(self):
        try:
            return self.call("GET", self.session + "/alert/text")
        except urllib.error.HTTPError:
            return None

    def dismiss(self):
        self.call("POST", self.session + "/alert/dismiss", {})

    def console(self):
        """The messages since the last call."""
        return [entry["message"] for entry in self.call("POST", self.session + "/se/log", {"type": "browser"})]


class WatchedFirefox(Firefox):
    capabilities = {"unhandledPromptBehavior": "ignore"}
    options = ["--remote-allow-system-access"]  # to the console

    def dialog(self):
        try:
            return self.call("WebDriver:GetAlertText", {})["value"]
        except RuntimeError as error:
            if "no such alert" in str(error):
                return None
            raise

    def dismiss(self):
        self.call("WebDriver:DismissAlert", {})

    def console(self):
        """The errors and warnings of pages since the last call, without those of the browser itself."""
        self.call("Marionette:SetContext", {"value": "chrome"})
        try:
            return self.run("""const found = Services.console.getMessageArray().filter(entry => entry instanceof Ci.nsIScriptError
                && entry.sourceName.startsWith("file:")).map(entry => entry.errorMessage); Services.console.reset(); return found;""")
        finally:
            self.call("Marionette:SetContext", {"value": "content"})


class Safety:
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.work = pathlib.Path(WORK) / cls.__name__
        shutil.rmtree(cls.work, ignore_errors=True)
        cls.music = cls.work / "music"
        first = hostile.make(cls.music, TAGGER)[0]
        shutil.copy(first, cls.music / "javascript:alert(1)%0A.mp3")
        shutil.copy(first, cls.music / "data:text,<script>alert(1)<.mp3")
        cls.program = Program(PROGRAM, DATA, cls.work / "program")
        cls.site = Site()
        cls.addClassCleanup(cls.site.close)
        cls.browser = cls.make_browser()
        cls.addClassCleanup(cls.browser.close)

    def setUp(self):
        if self.browser.dialog() is not None:
            self.browser.dismiss()
        self.browser.get("about:blank")
        self.browser.console()
        self.site.asked.clear()

    def pages(self, **settings):
        files = self.program.list([self.music], **{"DocumentType": "HTML5", "Spanning": "0"} | COLUMNS | settings)
        return [file for file in files if file.suffix == ".htm"]

    def markup(self):
        return MARKUP.replace("RUN", RUN).replace("SITE", self.site.address).replace("\n", " ")

    def hostile_settings(self):
        markup = self.markup()
        script = f"</title></style></script><script>{RUN}</script>"
        return {"WindowTitle": script, "PageTitle": markup, "PageFooter": markup, "Font0": script + "%|%3%|%0%|%0",
                "Colour5": script[:40], "DoLinks": "1"}

    def use(self):
        """Searches, sorts, and presses every button and link of the page that does not lead away from it."""
        self.browser.run("""const field = document.querySelector("input[type=search]");
            field.value = "script"; field.dispatchEvent(new Event("input", {bubbles: true}));
            const boxes = [...document.querySelectorAll(".bar input[type=checkbox]")]; boxes.forEach(box => box.click());""")
        time.sleep(0.7)
        self.browser.run("""document.querySelectorAll("main button, .bar button, thead button, .bad").forEach(each => each.click
            ? each.click() : each.dispatchEvent(new MouseEvent("click", {bubbles: true})));""")
        time.sleep(0.5)

    def assert_quiet(self, page):
        self.assertIsNone(self.browser.dialog())
        self.assertIsNone(self.browser.run("return document.documentElement.dataset.ran || null"))
        self.assertEqual(self.browser.url().partition("#")[0], file_url(page))
        self.assertEqual(self.site.asked, [])

    def test_no_script_runs_and_nothing_is_requested(self):
        for changes in ({"GroupByAlbum": "1", "Modern": "1"}, {"Spanning": "7"}):
            with self.subTest(**changes):
                page = self.pages(**self.hostile_settings() | changes)[0]
                self.browser.get("about:blank")
                self.browser.get(file_url(page))
                time.sleep(1)
                self.assert_quiet(page)
                rows = self.browser.run("return document.querySelectorAll('tbody tr').length")
                self.assertGreaterEqual(rows, int(changes.get("Spanning", 21)))
                self.use()
                self.assert_quiet(page)
                self.browser.run("document.querySelectorAll('form button').forEach(button => button.click())")
                time.sleep(0.5)
                self.assert_quiet(page)

    def test_links_of_tracks_run_nothing(self):
        for kind, prefix in (("0", f"javascript:{RUN}//"), ("2", ""), ("1", "data:text/html,<script>alert(1)</script>")):
            with self.subTest(kind=kind, prefix=prefix):
                page = self.pages(DoLinks="1", LinkType=kind, LinkPrefix=prefix)[0]
                self.browser.get(file_url(page))
                links = self.browser.run("return [...document.querySelectorAll('tbody a')].map(link => link.protocol)")
                self.assertEqual(len(links), 21)
                if not prefix:
                    self.assertEqual(set(links), {"file:"})
                    continue
                self.browser.run("document.querySelectorAll('tbody a').forEach(link => link.click())")
                time.sleep(0.5)
                self.assert_quiet(page)

    def test_the_console_of_an_ordinary_page_is_empty(self):
        for changes in ({"GroupByAlbum": "1"}, {"Spanning": "7"}):
            with self.subTest(**changes):
                page = self.pages(DoLinks="1", **changes)[0]
                self.browser.get("about:blank")
                self.browser.console()
                self.browser.get(file_url(page))
                self.use()
                self.assertEqual(self.browser.console(), [])
                self.assert_quiet(page)

    def test_the_markup_does_run_and_request_without_the_policy(self):
        page = self.work / "unsafe.htm"
        page.write_text("<!DOCTYPE html><title>x</title>" + self.markup().replace(";alert(1)", ""))
        self.browser.get(file_url(page))
        time.sleep(1)
        self.assertEqual(self.browser.run("return document.documentElement.dataset.ran"), "1")
        for path in ("script.js", "image", "frame", "sheet", "object", "video", "import", "inline"):
            self.assertIn("/" + path, self.site.asked)

    def test_the_watch_sees_scripts_dialogs_requests_and_messages(self):
        page = self.work / "unsafe.htm"
        page.write_text(f"<!DOCTYPE html><title>x</title><img src='{self.site.address}/image'>"
                        f"<script>document.documentElement.dataset.ran = 1; nonsense()</script>")
        self.browser.get(file_url(page))
        self.assertEqual(self.browser.run("return document.documentElement.dataset.ran"), "1")
        self.assertEqual(self.site.asked, ["/image"])
        self.assertTrue(any("nonsense" in text for text in self.browser.console()))
        self.browser.run("setTimeout(() => alert('seen'), 0)")
        time.sleep(0.5)
        self.assertEqual(self.browser.dialog(), "seen")


class InChromium(Safety, unittest.TestCase):
    @staticmethod
    def make_browser():
        # The usual flags resolve no name; here the requests to our own server are to be seen.
        usual = webdriver.FLAGS
        webdriver.FLAGS = [flag + ",EXCLUDE 127.0.0.1" if "host-resolver-rules" in flag else flag for flag in usual]
        try:
            return WatchedChromium()
        finally:
            webdriver.FLAGS = usual


class InFirefox(Safety, unittest.TestCase):
    make_browser = WatchedFirefox


if __name__ == "__main__":
    os.environ["PYTHONDONTWRITEBYTECODE"] = "1"
    unittest.main(argv=sys.argv[:1] + sys.argv[7:])
