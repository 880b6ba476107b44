"""What the checks of HTML5 pages share: the checkers, the collection, the themes and more of the browser."""

import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tests" / "output"), str(ROOT / "tests" / "page")]

import hostile  # noqa: E402
from browsers import Chromium  # noqa: E402
from listings import Program, make_sample  # noqa: E402
from webdriver import ELEMENT  # noqa: E402

SKIPPED = 77
# Warnings of the Nu checker: it does not compare hashes, and does not know that the heading of an album spans the columns
# that are shown beside headings.
UNFOUNDED = re.compile("Inline (style|script) violates Content Security Policy|A table row was [0-9]+ columns wide, which is less")


def checkers():
    """The folder of vnu.jar, axe.min.js and node_modules. The test is skipped where npm cannot install them: no network."""
    run = subprocess.run([ROOT / "tools" / "page-checkers"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
    if run.returncode == 0:
        return pathlib.Path(run.stdout.strip())
    print("skipped: the checkers of pages could not be installed")
    sys.exit(SKIPPED)


def themes(data):
    """Maps the names of the shipped themes to their settings, as Program.list() takes them."""
    found = {}
    for file in sorted(pathlib.Path(data).glob("Themes/*.thm")):
        lines = [line for line in file.read_text().splitlines() if "=" in line and not line.startswith("#")]
        found[file.stem] = {re.sub(r"[()]", "", key): value for key, value in (line.split("=", 1) for line in lines)}
    assert len(found) >= 8
    return found


def collection(make_sample_tool, tagger, sample, work):
    """Folders with ordinary tracks and with hostile tags and names."""
    odd = pathlib.Path(work) / "hostile"
    hostile.make(odd, tagger)
    return [make_sample(make_sample_tool, tagger, sample), odd]


def vnu_complaints(jar, pages, *options):
    """The errors and warnings of the Nu checker, by page."""
    run = subprocess.run(["java", "-jar", str(jar), "--format", "json", "--stdout", "--exit-zero-always", *options,
                          *map(str, pages)], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True)
    found = {}
    for message in json.loads(run.stdout)["messages"]:
        if message["type"] == "info" and UNFOUNDED.match(message["message"]):
            continue
        place = f"{message.get('lastLine')}: {message['type']}: {message['message']}"
        found.setdefault(message.get("url", "the checker"), []).append(place)
    return found


class PageBrowser(Chromium):
    """A browser that can be told what its user's system prefers."""

    def prefer(self, scheme):
        """Light or dark."""
        self.devtools("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])

    def type(self, selector, text):
        found = self.call("POST", self.session + "/element", {"using": "css selector", "value": selector})
        self.call("POST", f"{self.session}/element/{found[ELEMENT]}/value", {"text": text})

    def violations(self, axe):
        """What axe finds wrong in the page: the rule and the first elements that break it."""
        found = self.run(axe + ";return axe.run(document, {resultTypes: ['violations']}).then(result => result.violations)")
        return [f"{rule['id']}: {[node['html'][:120] for node in rule['nodes'][:3]]}" for rule in found]


__all__ = ["Program", "PageBrowser", "checkers", "collection", "themes", "vnu_complaints"]
