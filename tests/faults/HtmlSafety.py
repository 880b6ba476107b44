#!/usr/bin/env python3
"""Checks that markup in tags, names and paths never becomes markup in a table cell, and that no cell is lost.

usage: HtmlSafety.py PROGRAM INTERPOSER
"""
import os
import pathlib
import random
import sys
import tempfile

sys.dont_write_bytecode = True  # keep bytecode out of the source tree
import RealThings  # noqa: E402

PIECES = [b"<", b">", b"&", b'"', b"'", b"</td>", b"</table>", b"<script>alert(1)</script>", b"<!--", b"-->", b"]]>",
          b"<![CDATA[", b"&lt;", b"&#60;", b"&#x3c;", b"&", b"=", b" onclick=", b"`", b"\x00", b"\r", b"\n", b"\t",
          b"\x8b", b"\x9b", b"\xab", b"\xbb", b"\xe9", b"\xc3", b"\xbc", b"\xef\xbc\x9c", b"\xc0\xbc", b"\xe0\x80\xbc",
          b"+ADw-", b"\x1b$B", b"\x0e", b"\xff\xfe", b"<\x00", b"\xa0", b"a", b" ", b"%", b"\\", b"\xad"]
COLUMNS = ["Number", "Artist", "Album", "Title", "Year", "Genre", "MPEG Type", "Mode", "Bitrate", "Frequency",
           "Duration", "File Size", "Filename", "Folder Path", "Full Path"]
# Tags that the program itself writes into a cell.
OWN_TAGS = {"font": {"face", "size", "color"}, "b": set(), "i": set()}


def text(chance, length=8):
    return b"".join(chance.choice(PIECES) for _ in range(chance.randrange(length)))


def name(chance, number):
    raw = text(chance, 20).replace(b"/", b"\xe2\x88\x95").replace(b"\0", b"")[:200]
    return b"n" + raw + str(number).encode() + b".mp3"


def music(chance, folder):
    for number in range(250):
        frames = b"".join(RealThings.frame(frame, text(chance)) for frame in (b"TIT2", b"TPE1", b"TALB", b"TYER", b"TCON"))
        size = len(frames)
        tag = b"ID3\3\0\0" + bytes([0, size >> 14 & 127, size >> 7 & 127, size & 127]) + frames
        v1 = b"TAG" + b"".join(text(chance)[:width].ljust(width, b"\0") for width in (30, 30, 30, 4, 30)) + b"\x0e"
        data = chance.choice([tag + RealThings.AUDIO, RealThings.AUDIO + v1, tag + v1, b"<td>", tag + RealThings.AUDIO + v1])
        below = os.fsencode(folder) + b"/" + name(chance, number)[:-4] if number % 10 == 0 else os.fsencode(folder)
        os.makedirs(below, exist_ok=True)
        with open(below + b"/" + name(chance, number), "wb") as file:
            file.write(data)


def check(data, columns):
    for encoding in ("cp1252", "latin-1", "utf-8"):
        page = RealThings.Page(data.decode(encoding, "replace"))
        rows = page.tracks()
        assert len(rows) == 250, len(rows)
        assert all(len(row) == columns for row in rows), [len(row) for row in rows]
        for tag, attributes in page.tags:
            assert tag in OWN_TAGS, (tag, attributes)
            assert {attribute for attribute, _ in attributes} <= OWN_TAGS[tag], (tag, attributes)
    # Check the raw bytes too, since the parser may repair errors: no cell contains a bracket or a quotation mark.
    for row in data.split(b"</tr>\r\n"):
        if b"<td" not in row or b"<th" in row or b"<table" in row:
            continue
        for cell in row.split(b"<td")[1:]:
            inner = cell[cell.index(b">") + 1:].removesuffix(b"</td>")
            for own in (b'<font face="Tahoma" size="1" color="#000000">', b"</font>", b"<b>", b"</b>", b"<i>", b"</i>"):
                inner = inner.replace(own, b"")
            assert not set(inner) & set(b"<>\""), inner


def main():
    chance = random.Random(2026)
    with tempfile.TemporaryDirectory(prefix="tunedex-safety-") as folder:
        box = RealThings.Box(folder)
        music(chance, box.music)
        for number, (kind, merge, fonts) in enumerate((kind, merge, fonts) for kind in ("HTML", "XHTML")
                                                      for merge in (0, 1, 2) for fonts in (0, 1)):
            box.configure("list.htm", DocumentType=kind, Merge=merge, FontHTML=fonts, ColourHTML=fonts,
                          ActiveColumns="|".join(COLUMNS), **{"Colour(4)": "000000", "Font(2)": "Tahoma%|%1%|%1%|%1"})
            box.run(0)
            check(box.listing.read_bytes(), len(COLUMNS) - merge)
            print(f"{kind}, merge {merge}, font tags {fonts}: 250 tracks, no markup in cells")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    RealThings.PROGRAM, RealThings.INTERPOSER = (os.path.abspath(path) for path in sys.argv[1:3])
    sys.exit(main())
