"""The record of a track, and the readers of tags and audio headers with Modern off."""

import os

from basics import RunTimeError, TO_CODE_PAGE, file_error, from_code_page, to_disk, two_digits, upper

GENRES = [
    "Blues", "Classic Rock", "Country", "Dance", "Disco", "Funk", "Grunge", "Hip-Hop", "Jazz", "Metal", "New Age",
    "Oldies", "Other", "Pop", "R&B", "Rap", "Reggae", "Rock", "Techno", "Industrial", "Alternative", "Ska",
    "Death Metal", "Pranks", "Soundtrack", "Euro-Techno", "Ambient", "Trip Hop", "Vocal", "Jazz+Funk", "Fusion",
    "Trance", "Classical", "Instrumental", "Acid", "House", "Game", "Sound Clip", "Gospel", "Noise", "Alt. Rock",
    "Bass", "Soul", "Punk", "Space", "Meditative", "Instrumental Pop", "Instrumental Rock", "Ethnic", "Gothic",
    "Darkwave", "Techno-Industrial", "Electronic", "Pop-Folk", "Eurodance", "Dream", "Southern Rock", "Comedy",
    "Cult", "Gangsta Rap", "Top 40", "Christian Rap", "Pop/Punk", "Jungle", "Native American", "Cabaret", "New Wave",
    "Psychedelic", "Rave", "Showtunes", "Trailer", "Lo-Fi", "Tribal", "Acid Punk", "Acid Jazz", "Polka", "Retro",
    "Musical", "Rock & Roll", "Hard Rock", "Folk", "Folk/Rock", "National Folk", "Swing", "Fast-Fusion", "Bebob",
    "Latin", "Revival", "Celtic", "Blue Grass", "Avantegarde", "Gothic Rock", "Progressive Rock", "Psychedelic Rock",
    "Symphonic Rock", "Slow Rock", "Big Band", "Chorus", "Easy Listening", "Acoustic", "Humour", "Speech", "Chanson",
    "Opera", "Chamber Music", "Sonata", "Symphony", "Booty Bass", "Primus", "Porn Groove", "Satire", "Slow Jam",
    "Club", "Tango", "Samba", "Folklore", "Ballard", "Power Ballard", "Rhythmic Soul", "Freestyle", "Duet",
    "Punk Rock", "Drum Solo", "A Cappella", "Euro-House", "Dance Hall", "Goa", "Drum & Bass", "Club House",
    "Hardcore", "Terror", "Indie", "BritPop", "Negerpunk", "Polsk Punk", "Beat", "Christian Gangster", "Heavy Metal",
    "Black Metal", "Crossover", "Contemporary Club", "Christian Rock", "Merengue", "Salsa", "Thrash Metal", "Anime",
    "JPop", "Synthpop",
]  # fmt: skip

BITRATES_A = {"0001": 32, "0010": 40, "0011": 48, "0100": 56, "0101": 64, "0110": 80, "0111": 96, "1000": 112,
              "1001": 128, "1010": 160, "1011": 192, "1100": 224, "1101": 256, "1110": 320}  # fmt: skip
BITRATES_B = {"0001": 32, "0010": 48, "0011": 56, "0100": 64, "0101": 80, "0110": 96, "0111": 112, "1000": 128,
              "1001": 160, "1010": 192, "1011": 224, "1100": 256, "1101": 320, "1110": 384}  # fmt: skip
BITRATES_C = {"0001": 32, "0010": 64, "0011": 96, "0100": 128, "0101": 160, "0110": 192, "0111": 224, "1000": 256,
              "1001": 288, "1010": 320, "1011": 352, "1100": 384, "1101": 416, "1110": 448}  # fmt: skip
BITRATES_D = {"0001": 8, "0011": 24, "0100": 16, "0101": 64, "0110": 80, "0111": 56, "1000": 64,
              "1001": 128, "1010": 160, "1011": 112, "1100": 128, "1101": 256, "1110": 320}  # fmt: skip
BITRATES_E = {"0001": 8, "0010": 16, "0011": 24, "0100": 32, "0101": 64, "0110": 80, "0111": 56, "1000": 64,
              "1001": 128, "1010": 160, "1011": 112, "1100": 128, "1101": 256, "1110": 320}  # fmt: skip

VERSIONS = {"00": "2.5", "10": "2.0", "11": "1.0"}
LAYERS = {"01": ("3", "III"), "10": ("2", "II"), "11": ("1", "I")}
FREQUENCIES = {
    "00": {"1.0": 44100, "2.0": 22050, "2.5": 11025},
    "01": {"1.0": 48000, "2.0": 24000, "2.5": 12000},
    "10": {"1.0": 32000, "2.0": 16000, "2.5": 8000},
}
MODES = {"00": "Stereo", "01": "Joint Stereo", "10": "Dual Channel", "11": "Mono"}


class Track:
    SWAPPED = [
        "full_path", "file_size", "artist", "title", "album", "year", "genre", "bitrate", "frequency", "duration",
    ]

    def __init__(self):
        self.full_path = self.base_folder = self.artist = self.title = self.album = self.year = self.genre = ""
        self.bitrate = self.frequency = self.mode = self.mpeg_type = self.duration = ""
        self.file_size = 0
        self.tag_type = 0
        self.track = self.disc = self.album_artist = self.composer = self.comment = ""  # only with Modern on


class Bytes:
    """A file read by 1-based positions; every read past the end fails."""

    def __init__(self, path):
        try:
            self.handle = os.open(to_disk(path), os.O_RDONLY)
        except OSError as error:
            raise file_error(error) from error
        self.length = os.fstat(self.handle).st_size

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self.handle)

    def at_most(self, position, count):
        return os.pread(self.handle, count, int(position) - 1)

    def read(self, position, count):
        if position - 1 + count > self.length:
            raise RunTimeError(62)
        return self.at_most(position, count)

    def byte(self, position):
        return self.read(position, 1)[0]

    def find_ff(self, position):
        """The position of the first FF at or after `position`, 0 when there is none."""
        offset = position - 1
        while offset < self.length:
            try:
                offset = os.lseek(self.handle, offset, os.SEEK_DATA)
            except OSError:
                return 0
            chunk = os.pread(self.handle, 1 << 20, offset)
            found = chunk.find(b"\xff")
            if found >= 0:
                return offset + found + 1
            offset += len(chunk)
        return 0


def move_the(artist, settings):
    if settings.MoveTheArtists and upper(artist[:4]) == "THE ":
        return artist[4:] + ", The"
    return artist


def read_id3v1(track, settings):
    try:
        with Bytes(track.full_path) as file:
            if file.length < 128:
                return False
            tag = from_code_page(file.read(file.length - 127, 128))
    except RunTimeError:
        return False
    if tag[0:3] != "TAG":
        return False

    def clean(text):
        return text.rstrip(" ").replace("\0", "")

    number = TO_CODE_PAGE[tag[127]]
    track.artist = move_the(clean(tag[33:63]) or "Unknown Artist", settings)
    track.title = clean(tag[3:33]) or "Unknown Title"
    track.album = clean(tag[63:93])
    track.year = clean(tag[93:97])
    track.genre = GENRES[number] if number < len(GENRES) else ""
    return True


def detect_id3v2(track):
    """Returns whether there is a tag, and the position where the search for a frame header starts."""
    try:
        with Bytes(track.full_path) as file:
            if file.read(1, 3) != b"ID3":
                return False, 1
            b10, b9, b8, b7 = (file.byte(position) for position in (10, 9, 8, 7))
            size = ((b7 & 127) << 21) + ((b8 & 127) << 14) + ((b9 & 127) << 7) + b10
            return True, size + 10
    except RunTimeError:
        return False, 1


def read_id3v2(track, search_position, settings):
    with Bytes(track.full_path) as file:
        position = 11
        try:
            while True:
                frame = file.read(position, 4)
                if 0 in frame:
                    return
                size = int.from_bytes(file.read(position + 4, 4), "big") & 0x7FFFFFFF
                content = file.read(position + 10, size) if size else b""
                text = from_code_page(content.replace(b"\0", b""))
                if frame == b"TIT2":
                    track.title = text or "Unknown Title"
                elif frame == b"TPE1":
                    track.artist = move_the(text or "Unknown Artist", settings)
                elif frame == b"TALB":
                    track.album = text
                elif frame == b"TYER":
                    track.year = text
                elif frame == b"TCON":
                    track.genre = text
                position += 10 + size
                if position >= search_position:
                    return
        except RunTimeError:
            return


def decode_header(track, search_position):
    """Fills the five audio fields and returns the duration in seconds."""
    with Bytes(track.full_path) as file:
        position = search_position
        while True:
            found = file.find_ff(position)
            if found == 0:
                raise RunTimeError(62)
            position = found + 1
            b2 = file.byte(position)
            if b2 < 225:
                continue
            position += 1
            b3 = file.byte(position)
            if b3 >= 236:
                position -= 1
                continue
            position += 1
            b4 = file.byte(position)
            header_offset = position - 4
            buffer = file.at_most(header_offset + 1, 1400)
            x = buffer.find(b"Xing") + 1
            vbr = x > 0
            frames = 0
            if vbr:
                digits = ""
                for place in range(8, 16):
                    digits += f"{file.byte(header_offset + x + place):02X}"
                for digit in digits[:8]:
                    frames = frames * 16 + "0123456789ABCDEF".index(digit)
            bits = "".join(f"{byte:08b}" for byte in (255, b2, b3, b4))
            version = VERSIONS.get(bits[11:13])
            layer = LAYERS.get(bits[13:15])
            rates = FREQUENCIES.get(bits[20:22])
            if version is None or layer is None or rates is None or (not vbr and bits[16:20] == "1111"):
                position = header_offset + 2
                continue
            break
        frequency = rates[version]
        mode = MODES[bits[24:26]]
        index = bits[16:20]
        if vbr:
            if frames == 0:
                raise RunTimeError(11)
            bitrate = round(track.file_size * frequency / (frames * 144000))
        else:
            if version == "1.0" and layer[0] == "3":
                bitrate = BITRATES_A.get(index, 128)
            elif layer[0] == "2":
                bitrate = BITRATES_B.get(index, 128)
            elif layer[0] == "1":
                bitrate = BITRATES_C.get(index, 128)
            elif version == "2.0" and layer[0] == "3":
                bitrate = BITRATES_D.get(index, 128)
            if version == "2.5":
                bitrate = BITRATES_E.get(index, 128)
        bits_long = track.file_size * 8
        if bits_long > 2147483647:
            raise RunTimeError(6)
        if bitrate == 0:
            raise RunTimeError(11)
        seconds = int(bits_long / bitrate / 1000)
        track.bitrate = str(bitrate)
        track.frequency = str(frequency)
        track.mode = mode
        track.mpeg_type = version + " " + layer[1]
        track.duration = str(seconds // 60) + ":" + two_digits(seconds % 60)
        return seconds
