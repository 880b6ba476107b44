"""Drives a headless Chromium over the W3C WebDriver protocol, with the standard library alone."""

import json
import pathlib
import re
import shutil
import subprocess
import tempfile
import urllib.request

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"
FLAGS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync", "--disable-dev-shm-usage",
         "--disable-extensions", "--hide-scrollbars", "--force-device-scale-factor=1",
         # No page needs the network.
         "--host-resolver-rules=MAP * ~NOTFOUND"]


class Browser:
    capabilities = {}  # more of WebDriver's, in subclasses

    def __init__(self, width=1000, height=700):
        self.profile = tempfile.mkdtemp(prefix="tunedex-browser-")
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                       stderr=subprocess.STDOUT, text=True)
        self.session = None
        try:
            for line in self.driver.stdout:
                started = re.search(r"started successfully on port (\d+)", line)
                if started:
                    break
            else:
                raise RuntimeError("chromedriver did not start")
            self.address = f"http://127.0.0.1:{started[1]}"
            options = {"args": [*FLAGS, f"--user-data-dir={self.profile}", f"--window-size={width},{height}"]}
            capabilities = {"browserName": "chrome", "goog:chromeOptions": options} | self.capabilities
            answer = self.call("POST", "/session", {"capabilities": {"alwaysMatch": capabilities}})
            self.session = f"/session/{answer['sessionId']}"
        except BaseException:
            self.close()
            raise

    def call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self.address + path, data, {"Content-Type": "application/json"}, method=method)
        opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        with opener.open(request, timeout=120) as answer:
            return json.load(answer)["value"]

    def get(self, url):
        self.call("POST", self.session + "/url", {"url": url})

    def url(self):
        return self.call("GET", self.session + "/url")

    def run(self, script, *arguments):
        return self.call("POST", self.session + "/execute/sync", {"script": script, "args": list(arguments)})

    def click(self, link_text):
        """Clicks the first link with this text, if any, and returns whether there is one."""
        found = self.call("POST", self.session + "/elements", {"using": "link text", "value": link_text})
        if found:
            self.call("POST", f"{self.session}/element/{found[0][ELEMENT]}/click", {})
        return bool(found)

    def screenshot(self):
        """The visible part of the page, as PNG in base 64."""
        return self.call("GET", self.session + "/screenshot")

    def close(self):
        try:
            if self.session:
                self.call("DELETE", self.session)
        finally:
            self.driver.terminate()
            self.driver.wait(timeout=30)
            self.driver.stdout.close()
            shutil.rmtree(self.profile, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *exception):
        self.close()


def file_url(path):
    return pathlib.Path(path).resolve().as_uri()
