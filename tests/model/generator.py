"""Random collections, settings and tables for compare.py: mostly sound, often odd, sometimes broken."""

import os
import random

LARGEST_NAME = 255

PIECES = [
    b"Song", b"the", b"THE", b"The ", b"a", b"B", b"Z", b"01", b" - ", b" ", b"  ", b"mix", b"&", b"<b>", b'"', b"'",
    b"\\n", b"\\", b"%N", b"%S", b"%D", b"%F", b"%%", b"%", b"\t", b"\n", b"\r", b"\r\n", b"\x01", b"\x7f", b":", b"*",
    b"?", b"|", b"#", b"=", b";", b"\xe9", b"\xc4", b"\x80", b"\xff", b"\xc3", b"\xa9", "é".encode(), "Ä".encode(),
    "ÿ".encode(), "Ÿ".encode(), "œ".encode(), "ž".encode(), "ß".encode(), "€".encode(), "日本".encode(),
    "あ".encode(), "🎵".encode(), "ä̈".encode(), "\u0081".encode(), "\u0080".encode(), "\u00a0".encode(),
    b"\xed\xa0\x80", b"\xf4\x90\x80\x80", b"\xe3\x81", b".", b"..", b".mp3", b".htm",
]  # fmt: skip

TAG_PIECES = [
    b"Abba", b"ABBA", b"abba", b"Zz Top", b"The ", b"the ", b"THE ", b"tHe\0", b"Beatles", b"\0", b"\0\0", b" ", b"  ",
    b"a", b"b", b"C", b"\xe9", b"\xc9", b"\xff", b"\x9f", b"\x9a", b"\x8a", b"\x80", b"\x81", b"\x8d", b"\xa0", b"&",
    b"<", b">", b'"', b"'", b"\t", b"\r\n", b"\n", b"1999", b"(17)", b"\xc3\xa9", b"%N", b"\\n", b"x" * 30, b"\x01",
    b"\xff\xfe", b"|", b":", b"/", b"-",
]  # fmt: skip

ACTIVE = [
    "Number", "Artist", "Album", "Title", "Year", "Genre", "MPEG Type", "Mode", "Bitrate", "Frequency", "Duration",
    "File Size", "Filename", "Folder Path", "Full Path",
]  # fmt: skip

NUMBERS = [
    "0", "1", "2", "3", "4", "7", "10", "-1", "-2", "", " 1", "  2", "+1", "+3", "1.5", "2.5", "0.5", "0.51", "-0.5",
    "1e1",
    "1E0", "2e-1", "1e", "5x", "x", "yes", "1 2", "32767", "32768", "-32768", "-32769", "32767.5", "32767.4", "1e9",
    "--1",
    "1.", "1.5.5", "1,5", "99999999999999999999", "007", "\u0662", "1e+1", "&H10", "0x10", "-", "+", ".", "e5",
]  # fmt: skip

TITLES = [
    "MP3 List (%D)", "%C files", "%N without tags", "%S", "%P", "100%% done", "%%L", "%L", "a%Lb%%%Lc", "%d", "%",
    "%%%C",
    "%%C", "%T", "Plain", "", "<b>bold</b>", "Müsik", "日本語 %C", "\u0081\u0080", "🎵", "a=b", "a(b)=c", "%%D", "%%%%L",
    "&amp;",
    "tab\there", "  blanks  ", "#x", "\u20ac %S",
]  # fmt: skip

COLOURS = ["000000", "FFFFFF", "FFFF00", "000066", "CECECE", "", "red", "#123456", "12", "é", "日", '"', "ffeedd",
"00 00"]
FACES = ["Arial", "Tahoma, Arial, sans-serif", "", "Times New Roman, serif", "é", "日本", '"Q"', "a|b", "%", "a=b(c)"]


class Case:
    """Writes one case into `root`: the program folder `prog`, the collection `music`, and what else it names."""

    def __init__(self, seed, root):
        self.random = random.Random(seed)
        self.root = root
        self.program_folder = os.path.join(root, "prog")
        self.config_folder = os.path.join(root, "conf")
        self.large_files = 0
        self.folders = []
        # Some seeds are about one thing, or few cases would get far enough to test it.
        self.tame = self.random.random() < 0.75
        self._registry()
        self._collection()
        self._settings()
        self._entities()
        self._statistics()
        self.answers = self.pick([0, 0, 1, 30])
        self.arguments = self.pick([["/AUTO"], ["/AUTO"], ["/auto"], ["some.cfg", "x/aUtOy"], ["-x", "/AUTO", "/AUTO"]])
        self._locale()
        if os.geteuid() != 0:
            self._locks()

    # -- small helpers

    def chance(self, probability):
        return self.random.random() < probability

    def pick(self, values):
        return self.random.choice(values)

    def write(self, path, data):
        with open(path, "wb") as file:
            file.write(data)

    def line_end(self):
        return self.pick([b"\r\n", b"\r\n", b"\r\n", b"\n", b"\r"])

    # -- where the program finds its folder

    def _registry(self):
        os.makedirs(self.program_folder)
        folder = os.path.join(self.config_folder, "Corvale Works")
        os.makedirs(folder)
        ending = self.pick(["", "/"])
        text = f"[General]\nInstallationPath={self.program_folder}{ending}\nTipsOnStartup=0\n"
        self.write(os.path.join(folder, "Tunedex.conf"), text.encode())

    def _locale(self):
        """The variables that choose the locale; the collection itself does not depend on them."""
        self.locale = {"LC_ALL": "C"}
        if self.chance(0.4):
            names = ["de_DE.UTF-8", "en_US.UTF-8", "fr_FR.UTF-8", "C", "POSIX", "C.UTF-8", "xx_YY.UTF-8", ""]
            self.locale = {name: self.pick(names) for name in ("LC_ALL", "LC_TIME", "LC_NUMERIC",
            "LANG") if self.chance(0.5)}

    def _locks(self):
        """What the user may not read or write; pointless for the superuser."""
        own = (os.fsencode(self.program_folder), os.fsencode(self.config_folder))
        for path, _, files in list(os.walk(os.fsencode(self.root), topdown=False)):
            if path.startswith(own):
                continue
            for name in files:
                if self.chance(0.03) and os.path.isfile(os.path.join(path, name)):
                    if not os.path.islink(os.path.join(path, name)):
                        os.chmod(os.path.join(path, name), self.pick([0o444, 0o000]))
            if path != os.fsencode(self.root) and self.chance(0.03):
                os.chmod(path, self.pick([0o555, 0o555, 0o000]))

    # -- the collection

    def name(self):
        count = self.pick([1, 1, 2, 3, 5])
        if self.chance(0.5):
            pieces = [piece for piece in PIECES[:16]]
        else:
            pieces = PIECES
        name = b"".join(self.pick(pieces) for _ in range(count)).strip(b"/")
        if self.chance(0.01):
            name = b"n" * self.pick([200, 250, 251])
        if self.chance(0.02):
            name = b"." + name
        return name or b"x"

    def file_name(self):
        ending = self.pick([b".mp3"] * 8 + [b".MP3", b".Mp3", b".mP3", b".mp3.bak", b".mp2", b"mp3", b".mp3 ", b".txt"])
        return (self.name()[: LARGEST_NAME - 8] + ending)[:LARGEST_NAME]

    def _collection(self):
        self.music = os.fsencode(os.path.join(self.root, "music"))
        os.makedirs(self.music)
        self.folders = [self.music]
        for _ in range(self.pick([0, 1, 2, 4, 7])):
            parent = self.pick(self.folders)
            if len(parent) > 2000:
                continue
            name = self.name()
            if self.chance(0.1):
                name += b".mp3"
            path = os.path.join(parent, name)
            if name not in (b".", b"..") and not os.path.lexists(path):
                os.mkdir(path)
                self.folders.append(path)
        count = self.pick([2, 3, 5, 8, 13, 30] if self.tame else [0, 1, 2, 3, 5, 8, 13, 30])
        for i in range(count):
            name = b"sound.mp3" if self.tame and i == 0 else self.file_name()
            path = os.path.join(self.music if self.chance(0.3) or i == 0 else self.pick(self.folders), name)
            if os.path.basename(path) in (b".", b"..") or os.path.lexists(path):
                continue
            self._file(path)
        if self.chance(0.015):
            self._crowd(self.pick([200, 1001]))
        for _ in range(self.pick([0, 0, 1, 3])):
            self._odd_entry(self.pick(self.folders))

    def _crowd(self, count):
        """Many small files, whose tags often agree in all but case."""
        artists = [self.tag_text(30) for _ in range(5)]
        for i in range(count):
            tag = b"TAG" + self.tag_text(30)[:3].ljust(30) + self.pick(artists) + self.pick(artists) + bytes(35)
            self.write(os.path.join(self.music, b"crowd%d.mp3" % i), self.header() + bytes(40) + tag)

    def _odd_entry(self, folder):
        path = os.path.join(folder, self.pick([self.file_name(), self.name()]))
        if os.path.basename(path) in (b".", b"..") or os.path.lexists(path):
            return
        kind = self.random.randrange(6)
        if kind == 0:
            os.mkfifo(path)
        elif kind == 1:
            os.symlink(b"nowhere" if self.chance(0.5) else os.path.basename(path), path)
        elif kind == 2:
            target = self.pick(self.folders)
            os.symlink(target if self.chance(0.5) else os.path.relpath(target, folder), path)
        elif kind == 3:
            files = [entry for entry in os.listdir(folder)]
            os.symlink(self.pick(files) if files else b".", path)
        elif kind == 4:
            os.symlink(self.pick([b".", b"..", self.music]), path)
        else:
            os.mkdir(path)

    def _file(self, path):
        if self.chance(0.008) and self.large_files < 1:
            self.large_files += 1
            self._large_file(path)
            return
        parts = []
        if self.chance(0.4):
            parts.append(self.id3v2())
        for _ in range(self.pick([0, 1, 1, 2, 3])):
            parts.append(self.audio())
        if self.chance(0.5):
            parts.append(self.id3v1())
            if self.chance(0.05):
                parts.append(self.pick([b"\0", b" ", b"\xff"]))
        data = b"".join(parts)
        if self.chance(0.03):
            self.write(path, self.refused_header_before_a_cut_xing())
            return
        if self.chance(0.05):
            data = data[: self.random.randrange(len(data) + 1)]
        if self.tame and self.chance(0.7) and b"\xff\xfb" not in data:
            data += bytes([0xFF, 0xFB, 0x90, 0x64]) + bytes(self.random.randrange(300))
        self.write(path, data)
        if self.chance(0.25):
            # Playing times need sizes; holes cost nothing.
            size = self.random.randrange(1, self.pick([100_000, 4_000_000, 30_000_000, 268_435_456]))
            if size > len(data):
                with open(path, "r+b") as file:
                    file.truncate(size)
                    if self.chance(0.5):
                        file.seek(0, os.SEEK_END)
                        file.write(self.id3v1())

    def _large_file(self, path):
        size = self.pick([268_435_455, 268_435_456, 268_435_457, 300_000_000, 2**31 - 1, 2**31, 2**31 + 5, 2**32,
            2**32 + 1])
        head = self.pick([b"\xff\xfb\x90\x64", b"\xff\xfb\x90\x64" + bytes(32) + b"Xing\0\0\0\x0f\0\0\x10\0\0\0\x10\0"])
        with open(path, "wb") as file:
            file.write(head)
            file.truncate(size)
            if self.chance(0.6):
                file.seek(size - 128)
                file.write(self.id3v1())

    # -- the bytes of a file

    def garbage(self):
        count = self.random.randrange(self.pick([5, 50, 400, 3000]))
        kind = self.random.randrange(4)
        if kind == 0:
            return bytes(count)
        if kind == 1:
            return self.random.randbytes(count)
        alphabet = bytes([0xFF, 0xFF, 0xE0, 0xE1, 0xE2, 0xE3, 0xF3, 0xFB, 0xFA, 0x90, 0xEB, 0xEC, 0xED, 0x00, 0x0C,
        0xDF])
        if kind == 2:
            return bytes(self.random.choices(alphabet, k=count))
        return b"\xff" * count

    def header(self):
        if self.chance(0.2):
            return bytes([0xFF, self.pick([0xE0, 0xE1, 0xE2, 0xFB, 0xF3]), self.pick([0xEB, 0xEC, 0xEF, 0xF0, 0xE8, 0]),
                          self.random.randrange(256)])  # fmt: skip
        if self.chance(0.5):
            # The tables, each of its rows in turn.
            second = self.pick([0xFB, 0xFA, 0xFD, 0xFF, 0xF3, 0xF2, 0xF5, 0xF7, 0xE3, 0xE2, 0xE5, 0xE7])
            third = self.random.randrange(15) << 4 | self.random.randrange(12)
            return bytes([0xFF, second, third, self.random.randrange(256)])
        return bytes([0xFF, 0xE0 | self.random.randrange(32), self.random.randrange(256), self.random.randrange(256)])

    def refused_header_before_a_cut_xing(self):
        """A Xing header that is cut short fails for every candidate that gets as far as being read in full."""
        refused = self.pick([b"\xff\xe0\x90\x00", b"\xff\xe0\x90\x00", b"\xff\xfb\xec\x00", b"\xff\xe1\x90\x00",
            b"\xff\xfb\xeb\x00",
                             b"\xff\xe9\x90\x00", b"\xff\xdf\x90\x00"])  # fmt: skip
        return refused + bytes(self.random.randrange(40)) + b"Xing\xff\xfb\x90\x64" + bytes(self.random.randrange(9))

    def frame_count(self):
        return self.pick([
            0, 1, 2, 3, 5, 9, 50, 1000, 9000, 2**32 - 1, 2**31, self.random.randrange(1, 200),
            self.random.randrange(2**32),
        ]).to_bytes(4, "big")  # fmt: skip

    def audio(self):
        kind = self.random.randrange(5)
        if kind == 0:
            return self.garbage()
        data = self.garbage() if self.chance(0.3) else b""
        data += self.header()
        if kind >= 3:
            place = self.pick([0, 1, 17, 32, 36, 500, 1390, 1391, 1392, 1393, 1396, 1397, self.random.randrange(1500)])
            data += bytes(place) + b"Xing" + self.pick([b"\0\0\0\x0f", b"\0\0\0\0", b"\xff\xff\xff\xff"])
            data += self.frame_count() + self.random.randbytes(4)
            if self.chance(0.15):
                data = data[: len(data) - self.random.randrange(1, 13)]
                return data
        elif self.chance(0.2):
            data += b"LAME3.97" + self.garbage()
        return data + bytes(self.random.randrange(self.pick([1, 10, 2000])))

    def tag_text(self, width=None):
        if self.chance(0.15):
            text = self.pick([b"", b" ", b"\0", b" \0 "])
        else:
            text = b"".join(self.pick(TAG_PIECES) for _ in range(self.pick([1, 1, 2, 3, 6])))
        if width is None:
            return text
        text = text[:width]
        return text + self.pick([b"\0", b" "]) * (width - len(text))

    def id3v1(self):
        marker = self.pick([b"TAG"] * 12 + [b"tag", b"TAg", b"\0\0\0"])
        fields = b"".join(self.tag_text(width) for width in (30, 30, 30, 4, 30))
        return marker + fields + bytes([self.pick([0, 17, 147, 148, 255, 12, self.random.randrange(256)])])

    def frame(self):
        name = self.pick([b"TIT2", b"TPE1", b"TALB", b"TYER", b"TCON", b"COMM", b"tit2", b"TXXX", b"TT2\0", b"\0\0\0\0",
                          b"TIT2", b"TPE1", b"TALB"])  # fmt: skip
        kind = self.random.randrange(8)
        text = self.tag_text()
        if kind < 4:
            content = b"\0" + text
        elif kind == 4:
            content = b"\x01" + ("\ufeff" + text.decode("latin-1")).encode("utf-16-le")
        elif kind == 5:
            content = b"\x03" + text.decode("latin-1").encode("utf-8")
        elif kind == 6:
            content = b""
        else:
            content = b"\x02" + text
        size = len(content)
        if self.chance(0.06):
            size = self.pick([0, size + 1, 2**31 - 1, 2**31 + size, 2**32 - 1, 1000, max(0, size - 1)])
        return name + size.to_bytes(4, "big") + self.random.randbytes(2) + content

    def id3v2(self):
        version = self.pick([b"\x03\0\0", b"\x03\0\0", b"\x04\0\x80", b"\x02\0\0", b"\xff\xff\xff"])
        if version[0] == 2 and self.chance(0.7):
            body = b"".join(
                self.pick([b"TT2", b"TP1", b"TAL"]) + len(text).to_bytes(3, "big") + text
                for text in (b"\0" + self.tag_text() for _ in range(3))
            )
        else:
            body = b"".join(self.frame() for _ in range(self.pick([0, 1, 3, 5, 8])))
        kind = self.random.randrange(11)
        if kind < 10 and self.chance(0.6):
            body += bytes(self.random.randrange(self.pick([10, 300])))
        size = len(body)
        if kind == 10:
            # A tag that ends right before, at or right after the end of its last frame, with one more frame behind it.
            body = b"TPE1\0\0\0\x05\0\0\0Abba"
            size = len(body) + self.pick([-1, 0, 1, 2])
            body += b"TIT2\0\0\0\x06\0\0\0After"
        if kind == 0:
            size = self.pick([0, 1, 255, 127, 128, max(0, size - 1), size + 1, size // 2, 2**28 - 1])
        data = bytes([(size >> 21) & 127, (size >> 14) & 127, (size >> 7) & 127, size & 127])
        if kind == 1:
            data = bytes(byte | self.pick([0, 128]) for byte in data)
        elif kind == 2:
            data = self.random.randbytes(4)
        elif kind == 3:
            data = bytes([0, 0, size >> 8 & 127, size & 255])
        return self.pick([b"ID3"] * 15 + [b"ID2", b"id3"]) + version + data + body

    # -- the settings

    def columns(self):
        kind = self.random.randrange(12)
        if kind == 0:
            return self.pick(["", "|", "||", "Foo", "Number", "Artist|Title", "Title|Artist", "TitleArtist",
            "artist|title",
                              "Artist", "Title", "Album|Artist|Title", "Number||Artist", "|Number|", "ArtistTitle",
                              "ArtistAlbumTitle|Number", "Artist|TITLE|Title", "ARTIST|Title|Album"])  # fmt: skip
        columns = list(ACTIVE)
        self.random.shuffle(columns)
        columns = columns[: self.random.randrange(1, 16)]
        if self.chance(0.5):
            for name in ("Artist", "Title"):
                if name not in columns:
                    columns.insert(self.random.randrange(len(columns) + 1), name)
        if kind == 1:
            columns.insert(self.random.randrange(len(columns) + 1), self.pick(["Foo", "", "artist", "Album", "日",
            "Number "]))
        if kind == 2:
            columns = [self.pick([name.upper(), name.lower(), name]) for name in columns]
        text = "|".join(columns)
        if kind == 3:
            text = self.pick(["|", ""]) + text + self.pick(["|", ""])
        return text

    def number(self, sound):
        return self.pick(sound) if self.chance(0.85 if self.tame else 0.5) else self.pick(NUMBERS)

    def flag(self):
        return self.pick(["0", "1", "1", "0", "-1", "2", "", "yes", "0.4", " 1", "00"])

    def some_folder(self):
        folder = self.pick(self.folders) if self.chance(0.1 if self.tame else 0.4) else self.music
        if self.chance(0.2):
            folder = os.path.relpath(folder, os.fsencode(self.root))
        return folder + self.pick([b"", b"", b"/"])

    def directory(self, sorts_links):
        if sorts_links or self.chance(0.25):
            entries = [
                self.pick(self.folders) if sorts_links else self.some_folder()
                for _ in range(self.pick([1, 2, 3] if self.tame else [0, 1, 2, 3]))
            ]
            for _ in range(self.pick([0, 0, 0, 1, 2])):
                odd = self.pick([b"", b"", b"%MULT%", self.some_folder(), os.fsencode(self.root) + b"/missing"])
                entries.insert(self.random.randrange(len(entries) + 1), odd)
            return b"%MULT%" + b"%||%".join(entries)
        if self.chance(0.03 if self.tame else 0.15):
            return self.pick([
                b"", b"missing", os.fsencode(self.root) + b"/missing/", b"x" * 300, b"prog/Tunedex.cfg", b"%mult%music",
                b"%MULT%", b"%MULT%%||%", b" music", b"music/\0",
            ]).replace(b"\0", b"")  # fmt: skip
        return self.some_folder()

    def output(self):
        folder = self.pick(["", "out/", "./", self.root + "/", self.root + "/out/", "music/"])
        if self.chance(0.03 if self.tame else 0.12):
            folder = self.pick(["missing/", self.root + "/a/b/c/", "x" * 300 + "/", "prog/stats.lst/"])
        name = self.pick([
            "list.htm", "list.htm", "list.HTML", "list.Htm", "list.html", "list.txt", "list.txt", "list.TEXT",
            "list.text",
            "list.TXT", "list.m3u", "list.M3U", "list.xml", "list", "txt", "m3u", "a.b.htm", "list.html5", "é.htm",
            "日本.txt",
            "x.y/list", ".htm", ".txt", "a b.htm", "tab\t.m3u", "é日.html", "list.", "list.txt.", '"q".htm', "a=b.txt",
        ])  # fmt: skip
        if self.chance(0.02):
            name = "n" * self.pick([247, 251, 252, 255, 256]) + self.pick([".htm", ".txt", ".m3u", ""])
        if self.chance(0.01):
            name = ""
        path = folder + name
        os.makedirs(os.path.join(self.root, "out"), exist_ok=True)
        if "x.y/" in name and folder in ("", "out/", "./"):
            os.makedirs(os.path.join(self.root, folder, "x.y"), exist_ok=True)
        self._what_is_there_already(os.path.join(self.root, path))
        return path

    def _what_is_there_already(self, path):
        """Now and then the output file exists before, as a file, as a link to one, or as a folder."""
        if not self.chance(0.2) or not os.path.isdir(os.path.dirname(path)) or len(os.path.basename(path)) > 240:
            return
        path = path.encode()
        kind = self.random.randrange(8)
        if os.path.lexists(path) or os.path.basename(path) in (b"", b".", b".."):
            return
        if kind == 0:
            os.mkdir(path)
        elif kind in (1, 2):
            target = os.path.join(os.fsencode(self.root), b"real.dat")
            self.write(target, b"what was there")
            os.symlink(self.pick([target, os.path.relpath(target, os.path.dirname(path))]), path)
        else:
            self.write(path, b"what was there\n" * 300)

    def font(self):
        parts = [self.pick(FACES), self.pick(list("1234567") + ["9", "", "x", "12", " 3"]), self.flag(), self.flag()]
        text = "%|%".join(parts)
        if self.chance(0.05):
            text = self.pick([text + "%|%extra", "%|%".join(parts[:3]), "", "%|%%|%%|%", "%|%|%|%%|%"])
        return text

    def table_width(self):
        if self.chance(0.6):
            return f"{self.pick('0112')}/{self.pick(['99', '75', '100', '0', ''])}"
        return self.pick(["1x50", "1", "", "2/", "/99", "1/-5", "1//5", "x/9", "1/9.5", "1/99999", "é/77", "日x5", "日/8",
                          "1é7", "12/50", "-/4", " 1/3", "1/ 8", "1/x"])  # fmt: skip

    def _settings(self):
        if self.chance(0.02):
            return
        lines = []

        def add(key, value):
            if isinstance(value, str):
                value = value.encode("utf-8")
            lines.append(key.encode("utf-8") + b"=" + value)

        sorts_links = self.chance(0.12)
        presence = 1.0 if self.tame and self.chance(0.6) else 0.8
        add("Directory", self.directory(sorts_links))
        add("OutputFile", self.output())
        optional = {
            "WindowTitle": lambda: self.pick(TITLES) + self.pick(["", self.pick(TITLES)]),
            "PageTitle": lambda: self.pick(TITLES) + self.pick(["", self.pick(TITLES)]),
            "PageFooter": lambda: self.pick(TITLES) + self.pick(["", self.pick(TITLES)]),
            "Recurse": lambda: "1" if self.chance(0.6) else self.flag(),
            "Spanning": lambda: self.number(["0", "1", "2", "3", "5", "100", "-1", "-100", str(len(self.folders))]),
            "SizeType": lambda: self.number(["0", "1", "2", "3"]),
            "SortOrder": lambda: self.number(["0", "1", "1", "2", "3"]),
            "ErrorWarnings": self.flag,
            "ErrorLog": self.flag,
            "ConfirmQuit": self.flag,
            "DocumentType": lambda: self.pick(["HTML", "HTML", "XHTML", "XHTML", "xhtml", "", "html", "XHTML ",
            "Text"]),
            "DoLinks": self.flag,
            "LinkType": lambda: self.number(["0", "1", "2", "2", "3"]),
            "LinkPrefix": lambda: self.pick(["file:///", "", "http://x/", "é", "日", '"', "%D"]),
            "ActiveColumns": self.columns,
            "InactiveColumns": self.columns,
            "Merge": lambda: self.number(["0", "1", "2", "2", "3", "-1"]),
            "MoveTheArtists": self.flag,
            "Font(0)": self.font,
            "Font(1)": self.font,
            "Font(2)": self.font,
            "FontCSS": self.flag,
            "FontHTML": self.flag,
            "AltRows": self.flag,
            "ColourCSS": self.flag,
            "ColourHTML": self.flag,
            "TableWidth": self.table_width,
            "TablePadding": lambda: self.number(["0", "1", "2"]),
            "TableBorder": lambda: self.number(["0", "1", "2"]),
            "TableSpacing": lambda: self.number(["0", "1", "2"]),
        }
        if sorts_links:
            # A sort leaves base folders where they are; only relative links show that.
            optional["DoLinks"] = lambda: "1"
            optional["LinkType"] = lambda: "2"
        for index in range(10):
            optional[f"Colour({index})"] = lambda: self.pick(COLOURS)
        for key, value in optional.items():
            if self.chance(presence):
                add(key, value())
            if self.chance(0.01):
                add(key, value())
        if self.chance(0.3):
            self.random.shuffle(lines)
        if self.chance(0.2 if self.tame else 0.5):
            self._spoil(lines)
        for i, line in enumerate(lines):
            lines[i] = self._in_some_encoding(line)
        ends = self.line_end()
        mixed = self.chance(0.1)
        data = b"".join(line + (self.line_end() if mixed else ends) for line in lines)
        if self.chance(0.3) and data:
            data = data[: -len(ends)] if data.endswith(ends) else data
        self.write(os.path.join(self.program_folder, "Tunedex.cfg"), data)

    def _in_some_encoding(self, line):
        if self.chance(0.3):
            try:
                return line.decode("utf-8").encode("cp1252")
            except UnicodeError:
                return line
        return line

    def _spoil(self, lines):
        for i, line in enumerate(lines):
            if self.chance(0.15) and b"=" in line:
                key, value = line.split(b"=", 1)
                lines[i] = self.pick([key.upper(), key.lower(), key + b" ", b" " + key]) + b"=" + value
        for _ in range(self.random.randrange(6)):
            odd = self.pick([
                b"# comment", b"", b"", b"#", b"no equals", b"Colour(12)=FF0000", b"Colour(x)=1", b"Colour()=2",
                b"Font(3)=a%|%1%|%0%|%0",
                b"Font(x)=a%|%1%|%0%|%0", b"Colour(=5", b"Font(1", b"=", b"=value", b"Unknown=1", b"Unknown(x)=1",
                b"(=", b"(1)=2",
                b"Recurse(1)=1", b"Recurse(=0", b"COLOUR=ABCDEF", b"FONT=Face%|%2%|%1%|%1", b"colour(9=123456",
                b"Font(0)", b" ",
                b" # not a comment", b"\t", b"Colour(-1)=x", b"Title(1)=x", b"PageTitle(0)=bracket", "Größe=1".encode(),
                b"Font(1)=A%|%4%|%0%|%1", b"DocumentType=XHTML", "colour(\u0663)=1".encode(), "Colour(é)=1".encode(),
                b"Colour( 1)=7",
                b"Spanning(x)=3", b"Colour(1)x=5",
            ])  # fmt: skip
            lines.insert(self.random.randrange(len(lines) + 1), odd)

    # -- the entity table and the statistics

    def _entities(self):
        path = os.path.join(self.program_folder, "html_entities.lst")
        kind = self.random.randrange(6)
        if kind == 0:
            return
        entries = [b"38\t&amp;", b"60\t&lt;", b"62\t&gt;", b"34\t&quot;", b"233\t&eacute;", b"201\t&Eacute;",
        b"128\t&euro;"]
        if kind == 1:
            self.random.shuffle(entries)
        if kind >= 4:
            for _ in range(self.random.randrange(8)):
                odd = self.pick([
                    b"# comment", b"", b"256\tx", b"-1\tx", b"abc\tx", b"65", b"\tx", b" 66 \tb", b"67.5\tX",
                    b"1e2\td", b"97\t",
                    b"98\tbb\tignored", b"0\tnul", b"129\tC1", b"32\t_", b"195\tA", b"169\t(c)", b"47\t|",
                    "101\té".encode(), b"102\t\xe9",
                    "103\t日".encode(), b"99999\tx", b"38x\ty", b"1e400\tx", b"46.4\t.dot.", b"-0.2\tx", b"255.5\tx",
                    b"\t", b"65\t",
                    b"+70\tF", b"255.4\tyy",
                ])  # fmt: skip
                entries.insert(self.random.randrange(len(entries) + 1), odd)
        end = self.line_end()
        data = end.join(entries) + (end if self.chance(0.8) else b"")
        self.write(path, data)

    def _statistics(self):
        path = os.path.join(self.program_folder, "stats.lst")
        kind = self.random.randrange(12)
        if kind < 6:
            return
        lines = [b'"2026-11-15"', b"3", b"2", b"57"]
        if kind >= 9:
            index = self.random.randrange(4)
            lines[index] = self.pick([
                b"", b"x", b"5", b"12", b" 7 ", b"2147483647", b"2147483646", b"2147483648", b"1.5", b"5x", b"-3",
                b"1e3", b"2147483646.4",
                b"2147483647.5", b"-2147483649", b"1e99", b"2147483646.5",
            ])  # fmt: skip
            if self.chance(0.2):
                lines = lines[: self.random.randrange(4)]
            if self.chance(0.1):
                lines += [b"fifth", b""]
        end = self.line_end()
        self.write(path, end.join(lines) + (end if self.chance(0.8) else b""))
