"""Two browsers behind one interface: Chromium over WebDriver, Firefox over its Marionette protocol."""

import json
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "output"))
from webdriver import Browser, file_url  # noqa: E402,F401

KEYS = {"Backspace": "\ue003", "Tab": "\ue004", "Enter": "\ue007", "Shift": "\ue008", "Escape": "\ue00c", "End": "\ue010",
        "Home": "\ue011", "ArrowLeft": "\ue012", "ArrowRight": "\ue014"}


def key_actions(keys):
    """Keys to press one after the other; "Shift+Enter" holds Shift."""
    actions = []
    for key in keys:
        pressed = [KEYS.get(name, name) for name in (key.split("+") if len(key) > 1 else [key])]
        actions += [{"type": "keyDown", "value": value} for value in pressed]
        actions += [{"type": "keyUp", "value": value} for value in reversed(pressed)]
    return [{"type": "key", "id": "keyboard", "actions": actions}]


class Chromium(Browser):
    name = "Chromium"

    def press(self, *keys):
        self.call("POST", self.session + "/actions", {"actions": key_actions(keys)})

    def devtools(self, command, **parameters):
        return self.call("POST", self.session + "/goog/cdp/execute", {"cmd": command, "params": parameters})

    def resize(self, width, height=800):
        self.devtools("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)


class Firefox:
    name = "Firefox"
    capabilities = {}  # of WebDriver, in subclasses
    options = []

    def __init__(self):
        self.profile = tempfile.mkdtemp(prefix="tunedex-firefox-")
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        (pathlib.Path(self.profile) / "user.js").write_text(f'user_pref("marionette.port", {port});\n')
        self.process = subprocess.Popen(["firefox-esr", "--headless", "--marionette", "--no-remote", "--profile", self.profile,
                                         *self.options],
                                        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.buffer = b""
        self.number = 0
        self.socket = None
        try:
            self.socket = self.connect(port)
            self.receive()
            self.call("WebDriver:NewSession", {"capabilities": {"alwaysMatch": self.capabilities}})
        except BaseException:
            self.close()
            raise

    @staticmethod
    def connect(port):
        end = time.monotonic() + 180
        while True:
            try:
                return socket.create_connection(("127.0.0.1", port), timeout=300)
            except OSError:
                if time.monotonic() > end:
                    raise
                time.sleep(0.1)

    def receive(self):
        """One message: its length in decimal digits, a colon, JSON."""
        while b":" not in self.buffer:
            self.fill()
        length, _, self.buffer = self.buffer.partition(b":")
        while len(self.buffer) < int(length):
            self.fill()
        message, self.buffer = self.buffer[:int(length)], self.buffer[int(length):]
        return json.loads(message)

    def fill(self):
        data = self.socket.recv(65536)
        if not data:
            raise RuntimeError("Firefox closed the connection")
        self.buffer += data

    def call(self, command, parameters):
        self.number += 1
        message = json.dumps([0, self.number, command, parameters]).encode()
        self.socket.sendall(b"%d:%s" % (len(message), message))
        _, _, error, result = self.receive()
        if error:
            raise RuntimeError(f"{command}: {error}")
        return result

    def get(self, url):
        self.call("WebDriver:Navigate", {"url": url})

    def url(self):
        return self.call("WebDriver:GetCurrentURL", {})["value"]

    def run(self, script, *arguments):
        return self.call("WebDriver:ExecuteScript", {"script": script, "args": list(arguments)})["value"]

    def press(self, *keys):
        self.call("WebDriver:PerformActions", {"actions": key_actions(keys)})

    def resize(self, width, height=800):
        self.call("WebDriver:SetWindowRect", {"width": width, "height": height})

    def close(self):
        try:
            if self.socket:
                self.call("Marionette:Quit", {"flags": ["eForceQuit"]})
                self.socket.close()
        except (OSError, RuntimeError):
            self.process.terminate()
        finally:
            try:
                self.process.wait(timeout=30)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
            shutil.rmtree(self.profile, ignore_errors=True)


BROWSERS = {"Chromium": (Chromium, "chromium"), "Firefox": (Firefox, "firefox-esr")}
