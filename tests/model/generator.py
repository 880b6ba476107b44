"""Random collections, settings and tables for compare.py: mostly valid, often unusual, sometimes invalid."""

import os
import random
import re
import struct
import time

from modern_files import CODE_PAGES, ModernFiles

LARGEST_NAME = 255
BYTE_ORDER_MARK = b"\xef\xbb\xbf"
HOUR = 60 * 60  # seconds
NOBODY = 65534

PIECES = [
    b"Song", b"the", b"THE", b"The ", b"a", b"B", b"Z", b"01", b" - ", b" ", b"  ", b"mix", b"&", b"<b>", b'"', b"'",
    b"\\n", b"\\", b"%N", b"%S", b"%D", b"%F", b"%%", b"%", b"\t", b"\n", b"\r", b"\r\n", b"\x01", b"\x7f", b":", b"*",
    b"?", b"|", b"#", b"=", b";", b"\xe9", b"\xc4", b"\x80", b"\xff", b"\xc3", b"\xa9", "é".encode(), "Ä".encode(),
    "ÿ".encode(), "Ÿ".encode(), "œ".encode(), "ž".encode(), "ß".encode(), "€".encode(), "日本".encode(),
    "あ".encode(), "🎵".encode(), "ä̈".encode(), "\u0081".encode(), "\u0080".encode(), "\u00a0".encode(),
    b"\xed\xa0\x80", b"\xf4\x90\x80\x80", b"\xe3\x81", b".", b"..", b".mp3", b".htm", "\ufffe".encode(),
    "\uffff".encode(), "\u202f".encode(), "\ufeff".encode(), b"\xed\xb3\xa9",
]  # fmt: skip

BREAKS = [b"\n", b"\r", b"\r\n", b"\n\r", b"\r\r\n", b"\\n", b"line", b" ", b"\xe9", "日".encode()]

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
    "tab\there", "  blanks  ", "#x", "\u20ac %S", "caf\udce9 %C", "\udcff日", "\ufffe\uffff", "\ufeff%D", "\u202f%S",
]  # fmt: skip

COLOURS = ["000000", "FFFFFF", "FFFF00", "000066", "CECECE", "", "red", "#123456", "12", "é", "日", '"', "ffeedd",
"00 00"]
UNKNOWN_COLUMNS = ["ÄÖÜäöüß", "日本", "é", "🎵x", "Foo", "\udce9\udcff", "ÿ"]
FACES = ["Arial", "Tahoma, Arial, sans-serif", "", "Times New Roman, serif", "é", "日本", '"Q"', "a|b", "%", "a=b(c)"]


MODERN_COLUMNS = ["Track", "Disc", "Album Artist", "Composer", "Comment"]
LANGUAGES = [
    "de_DE.UTF-8", "sv_SE.UTF-8", "fr_CA", "cs_CZ.UTF-8", "de_DE@euro", "ja_JP.UTF-8", "xx_YY.UTF-8", "C", "C.UTF-8", "POSIX",
    "", "",
]  # fmt: skip


class Case:
    """Writes one case into `root`: the program folder, the collection `music`, and other files the settings name."""

    def __init__(self, seed, root):
        self.random = random.Random(seed)
        # Decided apart from `random`, so that cases with Modern off do not depend on it.
        self.apart = random.Random(f"modern {seed}")
        self.modern = ModernFiles(self.apart) if self.apart.random() < 1 / 3 else None
        self.document = random.Random(f"document {seed}")
        self.root = root
        self.large_files = 0
        self.folders = []
        self.locked = []  # files that another process holds a lock on
        # Most seeds avoid early failures, or few cases would reach a listing.
        self.tame = self.random.random() < 0.75
        self.breaks = self.chance(0.04)  # names with line breaks, whose errors are logged
        self.leading_album = self.chance(0.04)  # columns that show whether the merge counts characters or bytes
        self.umask = self.pick([0o022] * 6 + [0o077, 0o027, 0o002])
        self._program()
        self._collection()
        self._settings()
        self._entities()
        self._statistics()
        self._abandoned_files()
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

    def marked(self, data):
        """Sometimes adds a byte-order mark at the start; a second one is text."""
        if self.chance(0.08):
            return BYTE_ORDER_MARK * self.pick([1, 1, 1, 2]) + data
        return data

    def line_end(self):
        return self.pick([b"\r\n", b"\r\n", b"\r\n", b"\n", b"\r"])

    # -- where the program finds its folder

    def _program(self):
        """Chooses the path of the program and the rule that determines its folder."""
        self.environment = {"HOME": self.root, "XDG_CONFIG_DIRS": os.path.join(self.root, "etc")}
        self.executable = ""  # the path from which the program runs; empty for the built one
        self.installation_path = ""
        self.in_data_folder = False  # whether the program folder is an existing data folder
        self.made_by_the_program = False  # whether an earlier run made it
        self.own_folders = ["prog", "conf", ".config", "etc", "app", "usr", ".local", "data"]
        self.program_folder = os.path.join(self.root, "prog")
        kind = self.random.random()
        if kind < 0.9:
            self.installation_path = self.program_folder + self.pick(["", "/"])
            if self.chance(0.02):
                self._installed_program(new=True)
        elif kind < 0.94:
            self.program_folder = os.path.join(self.root, "app")
            self.executable = os.path.join(self.program_folder, "tunedex")
        else:
            self._installed_program(new=kind >= 0.98)
        os.makedirs(self.program_folder)
        self._registry()
        if self.chance(0.1):
            self.write(os.path.join(self.program_folder, "Tunedex.log"), b"an earlier run\r\n")
            os.chmod(os.path.join(self.program_folder, "Tunedex.log"), self.pick([0o600, 0o644, 0o666]))

    def _installed_program(self, new):
        self.executable = os.path.join(self.root, "usr", "bin", "tunedex")
        share = os.path.join(self.root, "usr", "share", "tunedex")
        os.makedirs(share)
        data = os.path.join(self.root, "data")
        kind = self.random.randrange(3)
        if kind == 0:
            self.environment["XDG_DATA_HOME"] = data
        else:
            data = os.path.join(self.root, ".local", "share")
            if kind == 1:
                self.environment["XDG_DATA_HOME"] = ""
        if not new:
            self.program_folder = os.path.join(data, "tunedex")
            self.in_data_folder = True
            self.made_by_the_program = self.chance(0.5)

    def _registry(self):
        """The installation path comes from the user's file, else from the system-wide one."""
        folder = self.pick(["conf", "conf", "conf", ".config", "etc"])
        if folder != ".config":
            self.environment["XDG_CONFIG_HOME"] = os.path.join(self.root, "conf")
        text = "[General]\nTipsOnStartup=0\n"
        if self.installation_path:
            text += f"InstallationPath={self.installation_path}\n"
        folder = os.path.join(self.root, folder, "Corvale Works")
        os.makedirs(folder)
        self.write(os.path.join(folder, "Tunedex.conf"), text.encode())

    def _locale(self):
        """The locale's environment variables. The collection does not depend on them."""
        self.locale = {"LC_ALL": "C"}
        if self.chance(0.5):
            names = ["de_DE.UTF-8", "en_US.UTF-8", "fr_FR.UTF-8", "fr_FR.UTF-8", "C", "POSIX", "C.UTF-8", "xx_YY.UTF-8",
                     ""]  # fmt: skip
            self.locale = {name: self.pick(names) for name in ("LC_ALL", "LC_TIME", "LC_NUMERIC",
            "LANG") if self.chance(0.5)}
        if self.modern:
            for name in ("LC_ALL", "LC_COLLATE", "LANG"):
                if self.modern.chance(0.5):
                    self.locale[name] = self.modern.pick(LANGUAGES)

    def _locks(self):
        """Removes permissions from files and folders. Without effect for the superuser."""
        own = tuple(os.fsencode(os.path.join(self.root, name)) for name in self.own_folders)
        for path, _, files in list(os.walk(os.fsencode(self.root), topdown=False)):
            if path.startswith(own):
                continue
            for name in files:
                if b"tunedex-" in name:
                    continue  # The model could not test its lock.
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
        if self.breaks:
            pieces = BREAKS
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
            path = os.path.join(parent, name[:LARGEST_NAME])
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
        """Many small files whose tags often differ only in case."""
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
        if self.breaks and self.chance(0.5):
            self.write(path, b"no audio")
            return
        if self.modern and self.modern.chance(0.8):
            self._modern_file(path)
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
            # Long playing times need large files; sparse ones take no space.
            size = self.random.randrange(1, self.pick([100_000, 4_000_000, 30_000_000, 268_435_456]))
            if size > len(data):
                with open(path, "r+b") as file:
                    file.truncate(size)
                    if self.chance(0.5):
                        file.seek(0, os.SEEK_END)
                        file.write(self.id3v1())

    def _modern_file(self, path):
        data = self.modern.file()
        self.write(path, data)
        if self.modern.chance(0.1):
            # A sparse file, which plays for long.
            size = len(data) + self.modern.random.randrange(1, self.modern.pick([10_000, 50_000_000, 400_000_000]))
            with open(path, "r+b") as file:
                file.truncate(size)
                if self.modern.chance(0.5):
                    file.seek(0, os.SEEK_END)
                    file.write(self.modern.id3v1())

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
            # Any row of the version, bitrate and frequency tables.
            second = self.pick([0xFB, 0xFA, 0xFD, 0xFF, 0xF3, 0xF2, 0xF5, 0xF7, 0xE3, 0xE2, 0xE5, 0xE7])
            third = self.random.randrange(15) << 4 | self.random.randrange(12)
            return bytes([0xFF, second, third, self.random.randrange(256)])
        return bytes([0xFF, 0xE0 | self.random.randrange(32), self.random.randrange(256), self.random.randrange(256)])

    def refused_header_before_a_cut_xing(self):
        """A truncated Xing header is an error for every candidate header that is read completely."""
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
            # A tag that ends just before, at or just after the end of its last frame, followed by one more frame.
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
        if self.leading_album or kind == 4:
            return self.columns_behind_an_album()
        columns = list(ACTIVE)
        if self.modern:
            columns += MODERN_COLUMNS
        self.random.shuffle(columns)
        columns = columns[: self.random.randrange(1, 16)]
        if self.chance(0.5):
            for name in ("Artist", "Title"):
                if name not in columns:
                    columns.insert(self.random.randrange(len(columns) + 1), name)
        if kind == 1:
            columns.insert(self.random.randrange(len(columns) + 1), self.pick(["Foo", "", "artist", "Album", "日",
            "Number "]))
        if self.modern and self.modern.chance(0.3) and "Album Artist" not in columns:
            name = self.modern.pick(["Album Artist", "Album Artist", "album artist", "ALBUM ARTIST", "Old Album Artist"])
            columns.insert(self.modern.random.randrange(len(columns) + 1), name)
        if kind == 2:
            columns = [self.pick([name.upper(), name.lower(), name]) for name in columns]
        text = "|".join(columns)
        if kind == 3:
            text = self.pick(["|", ""]) + text + self.pick(["|", ""])
        return text

    def columns_behind_an_album(self):
        """A leading Album makes the merge cut at the wrong position, inside a name."""
        columns = ["Artist", "Title", self.pick(UNKNOWN_COLUMNS), *self.random.choices(UNKNOWN_COLUMNS + ACTIVE, k=3)]
        self.random.shuffle(columns)
        return "|".join([self.pick(["Album", "Album", "ALBUM", "Foo", "é"]), *columns])

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
            "caf\udce9.htm", "\udcff.m3u", "\udce9.b.html",
        ])  # fmt: skip
        if self.modern and self.modern.chance(0.35):
            name = self.modern.pick(["list.csv", "list.csv", "list.CSV", "list.m3u8", "list.m3u", "list.M3U8", "a.b.csv", "csv",
                                     "#1 50%.htm", "q?.html", ".csv", "list.txt", "é 日.csv"])  # fmt: skip
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
        """Sometimes creates the output file, or a page of it, before the run: as a file, a link or a folder."""
        if not self.chance(0.25) or not os.path.isdir(os.path.dirname(path)) or len(os.path.basename(path)) > 240:
            return
        stem, extension = os.path.splitext(path)
        path = self.pick([path] * 4 + [path + ".htm", path + ".txt", path + ".m3u", stem + ".001" + extension,
                                       stem + ".002" + extension])  # fmt: skip
        path = os.fsencode(path)
        kind = self.random.randrange(12)
        if os.path.lexists(path) or os.path.basename(path) in (b"", b".", b".."):
            return
        if kind == 0:
            os.mkdir(path)
        elif kind < 6:
            self._link(path, kind)
        else:
            self.write(path, b"what was there\n" * 300)
            self._permissions(path)

    def _link(self, path, kind):
        root = os.fsencode(self.root)
        target = os.path.join(root, b"real.dat")
        if kind < 5:
            self.write(target, b"what was there")
            self._permissions(target)
        if kind == 3:
            target = self._music_file()
        elif kind == 4:
            # A chain of two links; the final target counts.
            between = os.path.join(root, self.pick([b"between", b"between.mp3"]))
            os.symlink(self.pick([target, self._music_file()]), between)
            target = between
        elif kind == 5:
            target = os.path.join(root, self.pick([b"new.dat", b"missing/new.dat", b"music/new.mp3", os.path.basename(path), b"out"]))
        os.symlink(self.pick([target, os.path.relpath(target, os.path.dirname(path))]), path)
        if os.geteuid() == 0 and self.chance(0.2):
            # A link of another user in a sticky folder, which the kernel may refuse to follow.
            os.chown(path, NOBODY, NOBODY, follow_symlinks=False)
            os.chmod(os.path.dirname(path), 0o1777)

    def _music_file(self):
        path = os.path.join(self.music, self.pick([b"target.mp3", b"target.MP3", b"target.mP3", b"target.mp2"]))
        self.write(path, self.header() + bytes(2000) + self.id3v1())
        return path

    def _permissions(self, path):
        """Sets what a replacement must keep: mode, access-control list and user attributes."""
        os.chmod(path, self.pick([0o644, 0o600, 0o640, 0o666, 0o755, 0o620]))
        try:
            if self.chance(0.2):
                os.setxattr(path, b"user.note", b"kept")
            if self.chance(0.2):
                os.setxattr(path, b"system.posix_acl_access", self.access_list())
        except OSError:
            pass  # The file system does not support them.

    def access_list(self):
        """An access-control list by which the owner writes, and user 1234 and the group read."""
        none = 0xFFFFFFFF
        entries = [(1, 6, none), (2, 4, 1234), (4, self.pick([0, 4]), none), (16, 4, none), (32, 0, none)]
        return struct.pack("<I", 2) + b"".join(struct.pack("<HHI", *entry) for entry in entries)

    def _abandoned_files(self):
        """Temporary files of earlier runs, some too recent to be removed, and files with similar names."""
        for folder in (self.root, os.path.join(self.root, "out"), os.fsdecode(self.music), self.program_folder):
            if not self.chance(0.12) or not os.path.isdir(folder):
                continue
            for _ in range(self.pick([1, 2, 4])):
                number = f"{self.random.randrange(1, 99999)}-{self.random.randrange(1, 30)}"
                name = self.pick([f".tunedex-{number}.tmp"] * 6 + [f".tunedex-{number}.bak", f"tunedex-{number}.tmp"])
                path = os.path.join(folder, name)
                self.write(path, b"half a listing")
                os.chmod(path, self.pick([0o600, 0o600, 0o644]))
                written = time.time() - self.pick([0, 23 * HOUR, 25 * HOUR, 48 * HOUR, 10000 * HOUR, -48 * HOUR])
                os.utime(path, (time.time(), written))
                if self.chance(0.15):
                    self.locked.append(path)

    def font(self):
        parts = [self.pick(FACES), self.pick(list("1234567") + ["9", "", "x", "12", " 3"]), self.flag(), self.flag()]
        text = "%|%".join(parts)
        if self.modern and self.modern.chance(0.1):
            text = self.modern.pick(["</style><b>", "<!-- x", "a>b"]) + text
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
                value = os.fsencode(value)
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
            "ErrorLog": lambda: "1" if self.breaks else self.flag(),
            "ConfirmQuit": self.flag,
            "DocumentType": lambda: self.pick(["HTML", "HTML", "XHTML", "XHTML", "xhtml", "", "html", "XHTML ",
            "Text"]),
            "DoLinks": self.flag,
            "LinkType": lambda: self.number(["0", "1", "2", "2", "3"]),
            "LinkPrefix": lambda: self.pick(["file:///", "", "http://x/", "é", "日", '"', "%D"]),
            "ActiveColumns": self.columns,
            "InactiveColumns": self.columns,
            "Merge": lambda: self.pick("12") if self.leading_album else self.number(["0", "1", "2", "2", "3", "-1"]),
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
            # Sorting does not move base folders, which only relative links show.
            optional["DoLinks"] = lambda: "1"
            optional["LinkType"] = lambda: "2"
        for index in range(10):
            optional[f"Colour({index})"] = lambda: self.pick(COLOURS)
        if self.modern:
            add("Modern", self.modern.pick(["1", "1", "1", "1", "2", "-1", "1"]))
            if self.modern.code_page:
                add("TagCodePage", self.modern.code_page)
            if self.modern.chance(0.05):
                add("TagCodePage", self.modern.pick(["", "no such", "é", *CODE_PAGES]))
        elif self.apart.random() < 0.1:
            add(*self.apart.choice([("Modern", "0"), ("Modern", ""), ("Modern", "no"), ("TagCodePage", "KOI8-R")]))
        for key, value in optional.items():
            if self.chance(presence):
                add(key, value())
            if self.chance(0.01):
                add(key, value())
        if self.chance(0.3):
            self.random.shuffle(lines)
        if self.chance(0.2 if self.tame else 0.5):
            self._spoil(lines)
        self._add_document_type(lines)
        for i, line in enumerate(lines):
            lines[i] = self._in_some_encoding(line)
        ends = self.line_end()
        mixed = self.chance(0.1)
        data = b"".join(line + (self.line_end() if mixed else ends) for line in lines)
        if self.chance(0.3) and data:
            data = data[: -len(ends)] if data.endswith(ends) else data
        self.write(os.path.join(self.program_folder, "Tunedex.cfg"), self.marked(data))

    def _add_document_type(self, lines):
        """Sometimes adds the settings of HTML5 pages, which the model does not write: "HTML5" where no page is written."""
        if self.document.random() > 0.06:
            return
        writes_pages = not re.search(rb"(?i)^outputfile=.*\.(txt|text|m3u)$", b"\n".join(lines), re.MULTILINE)
        kind = self.document.choice([b"html5", b"HTML5 ", b" HTML5", b"HTML 5", b"XHTML5"] if writes_pages else [b"HTML5"])
        lines.append(b"DocumentType=" + kind)
        lines.insert(self.document.randrange(len(lines)), b"GroupByAlbum=" + self.document.choice([b"1", b"1", b"0", b"x"]))

    def _in_some_encoding(self, line):
        text = line.decode("utf-8", "surrogateescape")
        if any(0xDC80 <= ord(character) <= 0xDCFF for character in text):
            # As the program writes it; otherwise the whole line is read as Windows-1252.
            return text.encode("utf-8", "surrogatepass") if self.chance(0.75) else line
        if self.chance(0.15):
            # Stray bytes that form characters when the line is read.
            return "".join(chr(byte if byte < 128 else 0xDC00 + byte) for byte in line).encode("utf-8", "surrogatepass")
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
                    "103\t日".encode(), b"104\t\xed\xb3\xa9", "105\t\ufffe".encode(),
                    b"99999\tx", b"38x\ty", b"1e400\tx", b"46.4\t.dot.", b"-0.2\tx", b"255.5\tx",
                    b"\t", b"65\t",
                    b"+70\tF", b"255.4\tyy",
                ])  # fmt: skip
                entries.insert(self.random.randrange(len(entries) + 1), odd)
        if self.chance(0.12):
            entries = self.pick([[], entries]) + self.repeated_entries()
        end = self.line_end()
        data = end.join(entries) + (end if self.chance(0.8) else b"")
        self.write(path, self.marked(data))

    def repeated_entries(self):
        """Entries that double a character repeatedly: up to the limit, past it and far past it."""
        if self.chance(0.5):
            # Frequent characters, with short expansions.
            code, times = self.pick([38, 97, 66, 32]), self.pick([1, 5, 10])
        else:
            # Rare characters, with expansions around the limit of 2^20 bytes.
            code, times = self.pick([1, 127, 129]), self.pick([19, 20, 21])
            if self.chance(0.6):
                code, times = self.pick([38, 62, 97, 46, 32, 103, 101]), self.pick([21, 40, 64, 200])
        character = bytes([code])
        entries = [b"%d\t%s" % (code, character * 2)] * times
        if self.chance(0.2):
            # Two characters that each double into the other.
            entries = [b"%d\t12" % code, b"49\t22", b"50\t11"] + [b"49\t22", b"50\t11"] * (times // 2)
        if self.chance(0.2):
            entries.append(b"%d\t%s" % (code, self.pick([b"", b"x", b"&amp;"])))
        return entries

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
                b"2147483647.5", b"-2147483649", b"1e99", b"2147483646.5", "é".encode(), b"\xe9", "日".encode(),
            ])  # fmt: skip
            if self.chance(0.2):
                lines = lines[: self.random.randrange(4)]
            if self.chance(0.1):
                lines += [b"fifth", b""]
        end = self.line_end()
        self.write(path, self.marked(end.join(lines) + (end if self.chance(0.8) else b"")))
