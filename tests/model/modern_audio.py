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
COMPARED_FRAMES = 4  # by which a bitrate that varies is noticed
AVERAGED_FRAMES = 256
LONGEST_FREE_FRAME = 4608  # bytes


class Header:
    def __init__(self, version, layer, bitrate, frequency, padding, mode, protected):
        self.version = version
        self.layer = layer
        self.bitrate = bitrate  # kbit/s, 0 for free format
        self.frequency = frequency
        self.padding = padding
        self.mode = mode
        self.protected = protected  # by a checksum of two bytes behind the header

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
    return Header(version, layer, bitrate, rates[version], int(bits[22]), MODES[bits[24:26]], bits[15] == "0")


def is_free_frame(file, place, header, end):
    other = header_at(file, place, end)
    return other is not None and other.bitrate == 0 and header.continues(other)


def free_format_distance(file, position, header, end):
    """The distance to a header of the same free format that a third one, or the end, confirms; 0 if there is none."""
    slot = 4 if header.layer[0] == "1" else 1
    place = position + 4
    while True:
        place = file.find_ff(place + 1) - 1
        if place < 0 or place + 4 > end or place - position > LONGEST_FREE_FRAME:
            return 0
        if is_free_frame(file, place, header, end):
            without_padding = place - position - header.padding * slot
            third = place + without_padding + header_at(file, place, end).padding * slot
            if third + 4 > end or is_free_frame(file, third, header, end):
                return place - position
        place += 1


def is_confirmed(file, position, header, end):
    """Whether the next frame, where the length says, is of the same kind."""
    if header.bitrate == 0:
        return free_format_distance(file, position, header, end) > 0
    return following_header(file, position, header, end) is not None


def is_last(_, position, header, end):
    """Whether the audio ends behind the frame, or within it."""
    return header.bitrate != 0 and position + header.length() + 4 > end


def first_frame(file, start, end):
    """A frame that another one follows; if there is none, one that is the last."""
    for counts in (is_confirmed, is_last):
        position = start
        while True:
            position = file.find_ff(position + 1) - 1
            if position < 0 or position >= end:
                break
            header = header_at(file, position, end)
            if header is not None and counts(file, position, header, end):
                return position, header
            position += 1
    raise RunTimeError(62)


def number_at(file, position, end):
    return int.from_bytes(file.read(position + 1, 4), "big") if position + 4 <= end else 0


def bytes_at(file, position, count, end):
    return file.read(position + 1, count) if position + count <= end else b""


def frames_by_header(file, position, header, end):
    """(frames, the mark) of a Xing, Info or VBRI header in the frame; 0 frames if it gives none."""
    if header.layer[0] != "3":
        return 0, b""
    mono = header.mode == "Mono"
    place = position + 4 + ((17 if mono else 32) if header.version == "1.0" else (9 if mono else 17))
    for place in [place, place + 2] if header.protected else [place]:
        mark = bytes_at(file, place, 4, end)
        if mark in (b"Xing", b"Info"):
            flags = number_at(file, place + 4, end)
            return (number_at(file, place + 8, end) if flags & 1 else 0), mark
    if bytes_at(file, position + 36, 4, end) == b"VBRI":
        return number_at(file, position + 36 + 14, end), b"VBRI"
    return 0, b""


def following_header(file, position, header, end):
    """The next header of the same kind where the length says; None if there is none, or one of free format."""
    other = header_at(file, position + header.length(), end)
    return other if other is not None and header.continues(other) and other.bitrate else None


def mean_bitrate(file, position, header, end):
    """In kbit/s: the first frame's, or the mean of the first frames if the first few differ."""
    found = []
    while header is not None and len(found) < AVERAGED_FRAMES:
        found.append(header)
        following = following_header(file, position, header, end)
        position += header.length()
        header = following
    if len({frame.bitrate for frame in found[:COMPARED_FRAMES]}) == 1:
        return Fraction(found[0].bitrate)
    seconds = Fraction(len(found) * found[0].samples(), found[0].frequency)
    return sum(frame.length() for frame in found) * 8 / seconds / 1000


def bitrate_behind(file, position, header, end):
    """The frame of an Info header may have a higher bitrate than the audio, which follows it."""
    following = following_header(file, position, header, end)
    return following.bitrate if following is not None else header.bitrate


def nearest(number):
    return int(number + Fraction(1, 2))


def decode_audio(track, start, end):
    """Fills the five audio fields and returns the duration in seconds."""
    with Bytes(track.full_path) as file:
        position, header = first_frame(file, start, end)
        size = end - position
        frames, mark = frames_by_header(file, position, header, end)
        seconds = Fraction(frames * header.samples(), header.frequency)
        if seconds > MOST_SECONDS:
            frames = 0
        if header.bitrate == 0:
            bitrate = "free"
            if frames == 0:
                distance = free_format_distance(file, position, header, end)
                seconds = Fraction(size * header.samples(), distance * header.frequency)
        elif frames:
            bitrate = str(nearest(size * 8 / seconds / 1000 if mark != b"Info" else bitrate_behind(file, position, header, end)))
        else:
            behind = following_header(file, position, header, end) if mark else None
            if behind:
                # The frame of a Xing header without a count is no audio.
                position += header.length()
            mean = mean_bitrate(file, position, behind or header, end)
            bitrate = str(nearest(mean))
            seconds = (end - position) * 8 / (mean * 1000)
        whole = min(int(seconds), MOST_SECONDS)
        track.bitrate = bitrate
        track.frequency = str(header.frequency)
        track.mode = header.mode
        track.mpeg_type = header.version + " " + header.layer[1]
        track.duration = str(whole // 60) + ":" + two_digits(whole % 60)
        return whole
