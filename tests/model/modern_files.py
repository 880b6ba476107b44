"""Bytes of MP3 files with the tags of today's taggers, for the cases with Modern on: mostly valid, some odd, some cut."""

WORDS = [
    "Björk", "Мумий Тролль", "宇多田ヒカル", "Abba", "ABBA", "abba", "Äbba", "The Beatles", "the Who", "THE THE", "Zz Top",
    "Ångström", "Öl", "Ol", "ol", "Z", "a", "B", "é", "e\u0301", "x" * 40, " ", "  lead", "trail  ", "", "", "a/b", "a; b",
    "\ufeffmark", "😀", "🎵 notes", "tab\there", "line\nbreak", "cr\r\nlf", "\x01\x1f", "\x7f\x85\x9f", "€ œ Ÿ",
    "\ufffe\uffff", "<b>&\"'", "%N %D", "a,b", '"quoted"', "ﬁ", "ß", "ss", "Straße", "ı", "İ", "resume", "résumé", "Resume",
    "co-op", "coop", "co op", "#1", "10", "9", "2", "\u00a0", "שלום", "ไทย", "Ελλάδα",
]  # fmt: skip
GENRES = [
    "17", "(17)", "(4)Text", "(4)(17)", "(4)Disco", "(RX)", "RX", "CR", "(CR)(5)", "((Bracket)", "(9)((x)", "147", "148",
    "191", "192", "255", "256", "(148)", "(192)", "(300)", "Rock", "Rock/Pop", "(4", "()", "(x)", "", "017", "(017)", "-1",
    "(RX)Remix", "1 2", "(4)(4)", "(12)text(13)",
]  # fmt: skip
NUMBERS = ["3", "3/12", "03", "10/12", "9", "", "1", "2", "1/2", "A1", "12A", "0", "-1", "1.5", " 4", "99999", "/3"]
YEARS = [
    "1999", "2004-05-06", "2004", "99", "", "20041", "12-2004", "c. 1980", "1980-1990", "2011-11-11T11:11:11", "199 2001",
]  # fmt: skip
TEXT_FRAMES = {
    "TIT2": "TT2", "TPE1": "TP1", "TALB": "TAL", "TYER": "TYE", "TDRC": "", "TDRL": "", "TDOR": "", "TCON": "TCO",
    "TRCK": "TRK", "TPOS": "TPA", "TPE2": "TP2", "TCOM": "TCM", "TENC": "TEN", "TXXX": "TXX",
}  # fmt: skip
OFTEN = ["TIT2", "TPE1", "TALB", "TIT2", "TPE1", "TALB", "TRCK", "TCON", "TPE2"]
APE_KEYS = [
    "Title", "Artist", "Album", "Year", "Genre", "Track", "Disc", "Album Artist", "AlbumArtist", "Composer", "Comment",
    "TITLE", "album artist", "Cover Art (Front)", "Xy",
]  # fmt: skip
CODE_PAGES = [
    "windows-1250", "windows-1251", "KOI8-R", "windows-1253", "windows-1254", "windows-1255", "windows-1256",
    "windows-1257", "windows-1258", "windows-874", "CP932", "GB18030", "Big5", "CP949", "UTF-8", "windows-1252",
]  # fmt: skip
PYTHON_NAMES = {"windows-874": "cp874"}
BITRATES = {
    (3, 3): [32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448],
    (3, 2): [32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384],
    (3, 1): [32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320],
    (2, 3): [32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256],
    (2, 2): [8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160],
    (2, 1): [8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160],
}  # by version bits (2.5 as 2) and layer bits
FREQUENCIES = {3: [44100, 48000, 32000], 2: [22050, 24000, 16000], 0: [11025, 12000, 8000]}


def synchsafe(number, count=4):
    return bytes((number >> 7 * i) & 127 for i in reversed(range(count)))


def unsynchronised(data):
    out = bytearray()
    for i, byte in enumerate(data):
        out.append(byte)
        if byte == 255 and (i + 1 == len(data) or data[i + 1] >= 0xE0 or data[i + 1] == 0):
            out.append(0)
    return bytes(out)


class ModernFiles:
    def __init__(self, random):
        self.random = random
        self.code_page = self.pick(["", ""] + CODE_PAGES)

    def chance(self, probability):
        return self.random.random() < probability

    def pick(self, values):
        return self.random.choice(values)

    # -- texts

    def word(self):
        if self.chance(0.1):
            return self.pick(WORDS) + self.pick(WORDS)
        return self.pick(WORDS)

    def in_code_page(self, text):
        name = self.code_page or "cp1252"
        return text.encode(PYTHON_NAMES.get(name, name), "ignore")

    def old_text(self):
        """Bytes of the tag code page, some of which it may not know."""
        data = self.in_code_page(self.word())
        if self.chance(0.2):
            data += self.pick([b"\x81", b"\x90\x41", b"\xff", b"\xe3\x81", b"\x8d\xa0", b"\xc4", b"\xa0\xa1", b"\x80"])
        return data

    def ill_formed(self, encoding):
        if encoding == 3:
            return self.pick([b"\xff", b"\xc3", b"\xe3\x81", b"\xed\xa0\x80", b"\xf0\x9f\x98", b"\xc0\xaf", b"\x80a"])
        return self.pick([b"\x00\xd8", b"\x00\xdc", b"\xd8\x00", b"\xdc\x00\xdc\x00", b"A", b"\xff\xfe", b"\xff\xff"])

    def encoded(self, text, encoding):
        if encoding == 0:
            data = self.in_code_page(text) if self.chance(0.8) else self.old_text()
        elif encoding == 1:
            data = self.pick([b"\xff\xfe" + text.encode("utf-16-le")] * 5 + [b"\xfe\xff" + text.encode("utf-16-be"),
                             text.encode("utf-16-le")])  # fmt: skip
        elif encoding == 2:
            data = text.encode("utf-16-be")
        else:
            data = text.encode("utf-8")
        if encoding and self.chance(0.06):
            data += self.ill_formed(encoding)
        return data

    def encoding(self, version):
        if self.chance(0.04):
            return self.pick([4, 5, 65, 255])
        return self.pick([0, 1, 1] if version < 4 else [0, 1, 2, 3, 3, 3])

    def content(self, version, texts):
        encoding = self.encoding(version)
        known = encoding if encoding <= 3 else 0
        nul = b"\0\0" if known in (1, 2) else b"\0"
        count = self.pick([1, 1, 1, 1, 2, 3])
        data = nul.join(self.encoded(texts(), known) for _ in range(count))
        return bytes([encoding]) + data + self.pick([b"", b"", nul, nul * 2, b"\0", b" "])

    def comment(self, version):
        encoding = self.pick([0, 1, 3 if version == 4 else 1])
        nul = b"\0\0" if encoding == 1 else b"\0"
        description = self.encoded(self.pick(["", "", "", "note", "iTunNORM", " "]), encoding)
        data = bytes([encoding]) + self.pick([b"eng", b"XXX", b"\0\0\0"]) + description + nul
        data += self.encoded(self.word(), encoding)
        return data if self.chance(0.95) else data[: self.random.randrange(len(data))]

    # -- ID3v2

    def frame(self, version):
        name = self.pick(OFTEN) if self.chance(0.6) else self.pick(list(TEXT_FRAMES))
        if self.chance(0.1):
            name, data = "COMM", self.comment(version)
        elif self.chance(0.08):
            # A picture, whose bytes need unsynchronisation.
            name = "APIC"
            data = b"\0image/png\0\x03\0" + self.random.randbytes(self.pick([10, 200])) + b"\xff\xe0\xff\x00\xff"
        else:
            texts = {"TCON": GENRES, "TRCK": NUMBERS, "TPOS": NUMBERS, "TYER": YEARS, "TDRC": YEARS, "TDRL": YEARS,
                     "TDOR": YEARS}.get(name)  # fmt: skip
            data = self.content(version, (lambda: self.pick(texts)) if texts else self.word)
        if self.chance(0.02):
            data = b""
        if self.chance(0.03):
            # Sizes of 128 bytes and more, where plain and synchsafe sizes differ.
            data += b" " * self.pick([100, 128, 200, 400])
        if version == 2:
            short = {"COMM": "COM", "APIC": "PIC"}.get(name) or TEXT_FRAMES.get(name) or "XXX"
            return short.encode() + len(data).to_bytes(3, "big") + data
        return self.frame_of_23(name, data) if version == 3 else self.frame_of_24(name, data)

    def frame_of_23(self, name, data):
        flags = 0
        if self.chance(0.06):
            flags = self.pick([0x20, 0x80, 0x40, 0xA0])
            data = (b"\x07" if flags & 0x20 else b"") + data
        return name.encode() + len(data).to_bytes(4, "big") + bytes([self.pick([0, 0x40]), flags]) + data

    def frame_of_24(self, name, data):
        flags = 0
        original = len(data)
        if self.chance(0.2):
            flags |= self.pick([0x01, 0x01, 0x40, 0x41, 0x08, 0x04, 0x02, 0x03, 0x43])
        if flags & 0x01:
            data = synchsafe(original) + data
        if flags & 0x40:
            data = self.pick([b"\x80", b"\xf0"]) + data
        if (flags & 0x02 or self.whole_tag) and self.chance(0.9):
            data = unsynchronised(data)
        size = len(data).to_bytes(4, "big") if self.plain_sizes else synchsafe(len(data))
        return name.encode() + size + bytes([0, flags]) + data

    def id3v2(self):
        version = self.pick([2, 3, 3, 4, 4])
        flags = 0
        self.whole_tag = self.chance(0.15)
        self.plain_sizes = version == 4 and self.chance(0.15)
        frames = [self.frame(version) for _ in range(self.pick([1, 3, 5, 8, 12]))]
        if self.chance(0.05):
            frames.insert(self.random.randrange(len(frames) + 1), self.pick([b"\0" * 10, b"tit2\0\0\0\2\0\0\0a"]))
        body = b"".join(frames)
        if version > 2 and self.chance(0.1):
            flags |= 0x40
            body = self.extended_header(version) + body
        if self.chance(0.6):
            body += bytes(self.pick([0, 1, 9, 10, 50, 300]))
        if self.whole_tag:
            flags |= 0x80
            if version < 4:
                body = unsynchronised(body)
        size = synchsafe(len(body))
        footer = b""
        if version == 4 and self.chance(0.1):
            flags |= 0x10
            footer = b"3DI" + bytes([version, 0, flags]) + size
        if self.chance(0.03):
            size = synchsafe(self.pick([len(body) + 20, max(0, len(body) - 5), 0, 2**28 - 1]))
        head = b"ID3" + bytes([self.pick([version] * 30 + [5, 1, 255]), self.pick([0] * 20 + [1, 255]), flags])
        return head + size + body + footer

    def extended_header(self, version):
        if version == 3:
            return self.pick([b"\0\0\0\x06\0\0\0\0\0\0", b"\0\0\0\x0a\x80\0\0\0\0\0\x12\x34\x56\x78"])
        return self.pick([b"\0\0\0\x06\x01\0", b"\0\0\0\x0c\x01\x20\x05\x11\x22\x33\x44\x05"])

    # -- APEv2, Lyrics3, ID3v1

    def ape(self, only_with_header=False):
        items = b""
        count = self.pick([0, 1, 3, 6])
        for _ in range(count):
            key = self.pick(APE_KEYS)
            texts = {"Genre": GENRES, "Track": NUMBERS, "Disc": NUMBERS, "Year": YEARS}.get(key)
            values = [self.pick(texts) if texts else self.word() for _ in range(self.pick([1, 1, 1, 2]))]
            value = b"\0".join(value.encode() for value in values)
            flags = self.pick([0] * 8 + [1, 2, 4])
            items += len(value).to_bytes(4, "little") + flags.to_bytes(4, "little") + key.encode() + b"\0" + value
        with_header = only_with_header or self.chance(0.7)

        def block(extra):
            flags = (1 << 31 if with_header else 0) | extra
            numbers = (self.pick([2000] * 25 + [1000]), len(items) + 32, count, flags)
            return b"APETAGEX" + b"".join(number.to_bytes(4, "little") for number in numbers) + bytes(8)

        return (block(1 << 29) if with_header else b"") + items + block(0)

    def lyrics(self):
        text = b"LYRICSBEGIN" + b"IND0000200" + b"LYR00005Hello" * self.pick([0, 1, 3])
        if self.chance(0.6):
            return text + b"%06d" % len(text) + b"LYRICS200"
        return text + b"LYRICSEND"

    def id3v1(self):
        fields = [self.old_text() for _ in range(5)]
        widths = [30, 30, 30, 4, 30]
        if self.chance(0.7):
            fields[3] = self.pick([b"1999", b"", b"20", b"2004"])
        data = b"".join(
            field[:width] + self.pick([b"\0", b" "]) * max(0, width - len(field)) for field, width in zip(fields, widths)
        )
        if self.chance(0.4):
            data = data[:122] + b"\0" + bytes([self.pick([0, 1, 12, 255])])
        return b"TAG" + data + bytes([self.pick([0, 17, 147, 148, 191, 192, 255])])

    # -- audio

    def header(self, version, layer, index, rate, padding, mode, protection=1):
        return bytes([
            0xFF, 0xE0 | version << 3 | layer << 1 | protection, index << 4 | rate << 2 | padding << 1,
            mode << 6 | self.random.randrange(16),
        ])  # fmt: skip

    def frame_length(self, version, layer, index, rate, padding):
        bitrate = BITRATES[3 if version == 3 else 2, layer][index - 1]
        frequency = FREQUENCIES[version][rate]
        if layer == 3:
            return (12000 * bitrate // frequency + padding) * 4
        return (72000 if layer == 1 and version != 3 else 144000) * bitrate // frequency + padding

    def filler(self, count):
        if self.chance(0.8):
            return bytes(count)
        # Headers, but none of free format.
        return bytes(self.random.choices([0xFF, 0xFB, 0xE3, 0x90, 0x10, 0x20, 0x42, 0x64], k=count))

    def audio(self):
        version, layer, rate = self.pick([3, 3, 3, 2, 0]), self.pick([1, 1, 1, 2, 3]), self.random.randrange(3)
        mode = self.random.randrange(4)
        index = self.random.randrange(1, 15)
        varying = self.chance(0.15)
        count = self.pick([1, 2, 3, 5, 12, 40])
        frames = []
        if self.chance(0.07):
            return self.free_format(version, layer, rate, mode)
        for i in range(count):
            if varying:
                index = self.random.randrange(1, 15)
            padding = self.random.randrange(2)
            length = self.frame_length(version, layer, index, rate, padding)
            head = self.header(version, layer, index, rate, padding, mode, self.pick([1, 1, 1, 0]))
            data = self.filler(max(0, length - 4))
            if i == 0 and self.chance(0.4):
                data = self.vbr_header(version, mode) + data
            frames.append((head + data)[: max(4, length)])
        return b"".join(frames)

    def free_format(self, version, layer, rate, mode):
        distance = self.pick([48, 100, 417, 418, 1000])
        frame = self.header(version, layer, 0, rate, 0, mode) + bytes(distance - 4)
        return frame * self.pick([1, 2, 5, 20])

    def vbr_header(self, version, mode):
        frames = self.pick([0, 1, 2, 10, 100, 5000, 20_000, 1_300_000, 2**31, 2**32 - 1]).to_bytes(4, "big")
        if self.chance(0.2):
            return bytes(32) + b"VBRI" + b"\0\x01\0\0\0\x64" + bytes(4) + frames + bytes(8)
        side = (17 if mode == 3 else 32) if version == 3 else (9 if mode == 3 else 17)
        if self.chance(0.1):
            side += self.pick([-1, 1, 2])
        flags = self.pick([1, 3, 7, 15, 15, 0, 14]).to_bytes(4, "big")
        return bytes(side) + self.pick([b"Xing", b"Xing", b"Info"]) + flags + frames + bytes(8)

    # -- whole files

    def garbage(self):
        return self.pick([bytes(self.random.randrange(1, 50)), self.random.randbytes(self.random.randrange(1, 60)),
                          b"\xff" * self.random.randrange(1, 9), b"\xff\xfb\x90\x64", b"\xff\xe3"])  # fmt: skip

    def file(self):
        parts = []
        for _ in range(self.pick([0, 1, 1, 1, 1, 2, 3])):
            parts.append(self.id3v2())
        if self.chance(0.05):
            parts.insert(self.random.randrange(len(parts) + 1), self.ape(only_with_header=True))
        if self.chance(0.15):
            parts.append(self.garbage())
        parts.append(self.audio())
        if self.chance(0.1):
            parts += [self.garbage(), self.audio()]
        tail = []
        if self.chance(0.25):
            tail.append(self.ape())
        if self.chance(0.12):
            tail.insert(self.random.randrange(len(tail) + 1), self.lyrics())
        parts += tail
        if self.chance(0.4) or (tail and self.chance(0.5)):
            parts.append(self.id3v1())
        data = b"".join(parts)
        if self.chance(0.06):
            data = data[: self.random.randrange(len(data) + 1)]
        return data
