"""The audio of a file as it is read with Modern on: the first frame that counts, duration and bitrate."""

from fractions import Fraction

from basics import RunTimeError, two_digits
from tracks import FREQUENCIES, LAYERS, MODES, VERSIONS, Bytes

# kbit/s by bitrate index 1 to 14 (ISO/IEC 11172-3 section 2.4.2.3, ISO/IEC 13818-3 section 2.4.2.3)
BITRATES = {
    ("1.0", "1"): [32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448],
    ("1.0", "2"): [32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384],
    ("1.0", "3"): [32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320],
    ("2.0", "1"): [32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256],
    ("2.0", "2"): [8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160],
    ("2.0", "3"): [8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160],
}  # fmt: skip
MOST_SECONDS = 33_554_431
FIRST_FRAMES = 4  # whose bitrates are averaged


class Header:
    def __init__(self, version, layer, bitrate, frequency, padding, mode):
        self.version = version
        self.layer = layer
        self.bitrate = bitrate  # kbit/s, 0 for free format
        self.frequency = frequency
        self.padding = padding
        self.mode = mode

    def samples(self):
        if self.layer[0] == "1":
            return 384
        return 576 if self.layer[0] == "3" and self.version != "1.0" else 1152

    def length(self):
        """In bytes; not for free format."""
        if self.layer[0] == "1":
            return (12_000 * self.bitrate // self.frequency + self.padding) * 4
        return self.samples() // 8 * 1000 * self.bitrate // self.frequency + self.padding

    def continues(self, other):
        return (self.version, self.layer, self.frequency) == (other.version, other.layer, other.frequency)


def header_at(file, position, end):
    """The header at an offset; None if there is none that lies before `end`."""
    if position + 4 > end:
        return None
    data = file.read(position + 1, 4)
    bits = "".join(f"{byte:08b}" for byte in data)
    version, layer, rates = VERSIONS.get(bits[11:13]), LAYERS.get(bits[13:15]), FREQUENCIES.get(bits[20:22])
    index = int(bits[16:20], 2)
    if bits[:11] != "1" * 11 or version is None or layer is None or rates is None or index == 15:
        return None
    table = BITRATES["1.0" if version == "1.0" else "2.0", layer[0]]
    bitrate = table[index - 1] if index else 0
    return Header(version, layer, bitrate, rates[version], int(bits[22]), MODES[bits[24:26]])


def free_format_distance(file, position, header, end):
    """The distance to the next header of the same free format; 0 if there is none."""
    place = position + 4
    while True:
        place = file.find_ff(place + 1) - 1
        if place < 0 or place + 4 > end:
            return 0
        other = header_at(file, place, end)
        if other is not None and other.bitrate == 0 and header.continues(other):
            return place - position
        place += 1


def counts(file, position, header, end):
    """Whether the next frame, where the length says, is of the same kind, or the file ends there."""
    if header.bitrate == 0:
        return free_format_distance(file, position, header, end) > 0
    following = position + header.length()
    if following + 4 > end:
        return True
    other = header_at(file, following, end)
    return other is not None and header.continues(other)


def first_frame(file, start, end):
    position = start
    while True:
        position = file.find_ff(position + 1) - 1
        if position < 0 or position >= end:
            raise RunTimeError(62)
        header = header_at(file, position, end)
        if header is not None and counts(file, position, header, end):
            return position, header
        position += 1


def number_at(file, position, end):
    return int.from_bytes(file.read(position + 1, 4), "big") if position + 4 <= end else 0


def bytes_at(file, position, count, end):
    return file.read(position + 1, count) if position + count <= end else b""


def frames_by_header(file, position, header, end):
    """(frames, whether the bitrate varies) by a Xing, Info or VBRI header in the frame; 0 frames without one."""
    if header.layer[0] != "3":
        return 0, False
    mono = header.mode == "Mono"
    place = position + 4 + ((17 if mono else 32) if header.version == "1.0" else (9 if mono else 17))
    mark = bytes_at(file, place, 4, end)
    if mark in (b"Xing", b"Info"):
        flags = number_at(file, place + 4, end)
        return (number_at(file, place + 8, end) if flags & 1 else 0), mark == b"Xing"
    if bytes_at(file, position + 36, 4, end) == b"VBRI":
        return number_at(file, position + 36 + 14, end), True
    return 0, False


def mean_bitrate(file, position, header, end):
    """Of the first frames, in kbit/s."""
    found = []
    while len(found) < FIRST_FRAMES and header is not None and header.bitrate:
        found.append(header.bitrate)
        position += header.length()
        following = header_at(file, position, end)
        header = following if following is not None and header.continues(following) else None
    return Fraction(sum(found), len(found))


def bitrate_behind(file, position, header, end):
    """The frame of an Info header may have a higher bitrate than the audio, which follows it."""
    place = position + header.length()
    following = header_at(file, place, end)
    if following is None or not header.continues(following) or following.bitrate == 0:
        return header.bitrate
    return mean_bitrate(file, place, following, end)


def nearest(number):
    return int(number + Fraction(1, 2))


def decode_audio(track, start, end):
    """Fills the five audio fields and returns the duration in seconds."""
    with Bytes(track.full_path) as file:
        position, header = first_frame(file, start, end)
        size = end - start
        frames, varies = frames_by_header(file, position, header, end)
        seconds = Fraction(frames * header.samples(), header.frequency)
        if seconds > MOST_SECONDS:
            frames = 0
        if header.bitrate == 0:
            bitrate = "free"
            if frames == 0:
                distance = free_format_distance(file, position, header, end)
                seconds = Fraction(size * header.samples(), distance * header.frequency)
        elif frames:
            bitrate = str(nearest(size * 8 / seconds / 1000 if varies else bitrate_behind(file, position, header, end)))
        else:
            mean = mean_bitrate(file, position, header, end)
            bitrate = str(nearest(mean))
            seconds = size * 8 / (mean * 1000)
        whole = min(int(seconds), MOST_SECONDS)
        track.bitrate = bitrate
        track.frequency = str(header.frequency)
        track.mode = header.mode
        track.mpeg_type = header.version + " " + header.layer[1]
        track.duration = str(whole // 60) + ":" + two_digits(whole % 60)
        return whole
