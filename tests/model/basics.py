"""What every module of the model uses: run-time errors, texts and their encodings, numbers, the region's formats."""

import errno
import re
from decimal import ROUND_HALF_EVEN, Decimal
from fractions import Fraction

ERRORS = {
    5: "Invalid procedure call or argument",
    6: "Overflow",
    7: "Out of memory",
    9: "Subscript out of range",
    11: "Division by zero",
    13: "Type mismatch",
    52: "Bad file name or number",
    53: "File not found",
    57: "Device I/O error",
    61: "Disk full",
    62: "Input past end of file",
    67: "Too many files",
    75: "Path/File access error",
    76: "Path not found",
}

BYTE_ORDER_MARK = b"\xef\xbb\xbf"


class RunTimeError(Exception):
    def __init__(self, number):
        super().__init__(number)
        self.number = number
        self.description = ERRORS[number]


def file_error(error):
    number = 57
    if error.errno in (errno.EINVAL, errno.ENAMETOOLONG, errno.ELOOP):
        number = 52
    if error.errno == errno.ENOENT:
        number = 53
    if error.errno in (errno.ENOSPC, errno.EDQUOT):
        number = 61
    if error.errno in (errno.EMFILE, errno.ENFILE):
        number = 67
    if error.errno in (errno.EACCES, errno.EPERM, errno.EROFS, errno.EISDIR):
        number = 75
    if error.errno == errno.ENOTDIR:
        number = 76
    return RunTimeError(number)


class FaultyLine(Exception):
    """An invalid line of a settings or entity file, which is skipped."""


# ---------------------------------------------------------------------------------------------------------- text


def _code_page():
    table = {}
    for byte in range(256):
        try:
            table[byte] = bytes([byte]).decode("cp1252")
        except UnicodeDecodeError:
            table[byte] = chr(byte)
    return table


CODE_PAGE = _code_page()
TO_CODE_PAGE = {character: byte for byte, character in CODE_PAGE.items()}


def from_code_page(data):
    return "".join(CODE_PAGE[byte] for byte in data)


def to_disk(text):
    return text.encode("utf-8", "surrogateescape")


def from_disk(data):
    return data.decode("utf-8", "surrogateescape")


def settled(text):
    """Decodes the text again, because adjacent stray bytes may form a character."""
    return from_disk(to_disk(text))


def _upper_map():
    pairs = {chr(code): chr(code - 32) for code in range(ord("a"), ord("z") + 1)}
    for character in TO_CODE_PAGE:
        if ord(character) < 128 or not character.isalpha():
            continue
        partner = character.upper()
        if partner != character and len(partner) == 1 and partner in TO_CODE_PAGE:
            pairs[character] = partner
    return str.maketrans(pairs)


UPPER = _upper_map()


def upper(text):
    return text.translate(UPPER)


def is_stray(character):
    return 0xDC80 <= ord(character) <= 0xDCFF


def encode_listing(text, missing):
    """Windows-1252; `missing` returns the text for a character outside it."""
    out = bytearray()
    for character in settled(text):
        if is_stray(character):
            out.append(ord(character) - 0xDC00)
        elif character in TO_CODE_PAGE:
            out.append(TO_CODE_PAGE[character])
        else:
            out += missing(character).encode("ascii")
    return bytes(out)


def encode_page(text):
    def reference(character):
        # No document may hold U+FFFE or U+FFFF, not even as a reference.
        code = 0xFFFD if ord(character) in (0xFFFE, 0xFFFF) else ord(character)
        return f"&#{code};"

    return encode_listing(text, reference)


def encode_text_listing(text):
    return encode_listing(text, lambda character: "?")


def encode_own_line(text):
    """Encodes a line of one of the program's own files, such as the log."""
    text = settled(text)
    if all(character in TO_CODE_PAGE for character in text):
        data = bytes(TO_CODE_PAGE[character] for character in text)
        if all(byte < 128 for byte in data):
            return data
        try:
            data.decode("utf-8")
        except UnicodeDecodeError:
            return data
    return to_disk(text)


def decode_own_line(line):
    try:
        return line.decode("utf-8")
    except UnicodeDecodeError:
        return from_code_page(line)


def decode_settings_line(line):
    """Settings files hold stray bytes as the lone surrogates U+DC80 to U+DCFF."""
    try:
        text = line.decode("utf-8", "surrogatepass")
    except UnicodeDecodeError:
        return from_code_page(line)
    if any(0xD800 <= ord(character) <= 0xDFFF and not is_stray(character) for character in text):
        return from_code_page(line)
    return settled(text)


def own_lines(data, decode=decode_own_line):
    lines = re.split(b"\r\n|\n|\r", data.removeprefix(BYTE_ORDER_MARK))
    if lines[-1] == b"":
        lines.pop()
    return [decode(line) for line in lines]


# ------------------------------------------------------------------------------------------------------- numbers

NUMBER = r"[+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?"
LEADING = re.compile(r" *(" + NUMBER + ")")
WHOLLY = re.compile(r" *(" + NUMBER + r") *\Z")


def leading_number(text):
    match = LEADING.match(text)
    return Decimal(match.group(1)) if match else Decimal(0)


def whole_number(text):
    """The number that the whole text is; anything else is a type mismatch."""
    match = WHOLLY.match(text)
    if not match:
        raise RunTimeError(13)
    return Decimal(match.group(1))


def rounded(number, bits):
    if abs(number) > 10**12:
        raise RunTimeError(6)
    value = int(number.to_integral_value(rounding=ROUND_HALF_EVEN))
    if not -(2 ** (bits - 1)) <= value < 2 ** (bits - 1):
        raise RunTimeError(6)
    return value


def two_digits(number):
    return f"{number:02d}"


class Region:
    """Dates, times and number formats of the environment's locale."""

    def __init__(self, date="", time="", thousands=",", point="."):
        self.date = date
        self.time = time
        self.thousands = thousands
        self.point = point

    def grouped(self, number):
        # A separator outside Windows-1252, such as U+202F in French, becomes a no-break space.
        sound = all(character in TO_CODE_PAGE for character in self.thousands)
        return f"{number:,}".replace(",", self.thousands if sound else "\u00a0")


def size_text(size, size_type, region):
    if size_type == 0:
        return region.grouped(size) + " b."
    if size_type not in (1, 2):
        return ""
    value = Fraction(size) / 1024
    unit = "kB"
    if size_type == 2:
        value /= 1024
        unit = "MB"
    hundredths = int(value * 100 + Fraction(1, 2))
    return region.grouped(hundredths // 100) + f"{region.point}{hundredths % 100:02d} {unit}"


def left(text, count):
    if count < 0:
        raise RunTimeError(5)
    return text[:count]


def right(text, count):
    if count < 0:
        raise RunTimeError(5)
    return text[len(text) - count :] if count < len(text) else text
