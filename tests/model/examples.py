"""What the worked examples of the model share: a scratch folder with a program folder, music and an output folder."""

import os
import tempfile
import unittest

from model import Model, Region


def id3v1(title=b"", artist=b""):
    return b"TAG" + title.ljust(30, b"\0") + artist.ljust(30, b"\0") + bytes(64) + b"\xff"


class Examples(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="tunedex-model-test-")
        self.addCleanup(scratch.cleanup)
        self.folder = os.path.realpath(scratch.name)
        for name in ("prog", "music", "out"):
            os.mkdir(self.path(name))
        self.region = Region("2026-11-21", "14:05")

    def path(self, name):
        return os.path.join(os.fsencode(self.folder), os.fsencode(name))

    def write(self, name, data):
        with open(self.path(name), "wb") as file:
            file.write(data)
        return self.path(name)

    def run_model(self, *lines, start=b""):
        """Runs the model on the folder `music` with these settings."""
        lines = [b"Directory=music", b"OutputFile=out/list.txt", b"ActiveColumns=Filename", *lines]
        self.write("prog/Tunedex.cfg", start + b"\r\n".join(lines))
        return Model(os.path.join(self.folder, "prog"), self.region, self.folder).run()

    def listing(self, result, name="out/list.txt"):
        self.assertIn(self.path(name), result.files, result.events)
        return result.files[self.path(name)]
