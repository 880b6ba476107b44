"""Texts of tags as they are read with Modern on: encodings, code pages, several values in one field."""

import ctypes
import errno
import re

WESTERN = "windows-1252"
REPLACEMENT = "\ufffd"

LIBC = ctypes.CDLL(None, use_errno=True)
LIBC.iconv_open.restype = ctypes.c_void_p
LIBC.iconv_open.argtypes = [ctypes.c_char_p, ctypes.c_char_p]
LIBC.iconv_close.argtypes = [ctypes.c_void_p]
LIBC.iconv.restype = ctypes.c_size_t
LIBC.iconv.argtypes = [ctypes.c_void_p] + [ctypes.c_void_p] * 4
FAILED = ctypes.c_void_p(-1).value


def is_code_page(name):
    """Whether iconv knows the name (bytes)."""
    # iconv ignores most characters that no name has; it takes a name that has nothing else for the locale's charset.
    if b"\0" in name or not re.search(b"[A-Za-z0-9]", name):
        return False
    handle = LIBC.iconv_open(b"UTF-8", name)
    if handle == FAILED:
        return False
    LIBC.iconv_close(handle)
    return True


def from_iconv(data, name):
    """A byte that iconv cannot convert is one U+FFFD, and so is an incomplete sequence at the end."""
    handle = LIBC.iconv_open(b"UTF-8", name.encode("utf-8", "surrogateescape"))
    if handle == FAILED:
        raise ValueError(name)
    source = ctypes.create_string_buffer(data, len(data) + 1)
    target = ctypes.create_string_buffer(8 * len(data) + 64)
    text = ""
    offset = 0

    def convert(count):
        """Converts from `offset`, or with `count` None writes what iconv still holds. Returns the error number."""
        nonlocal text, offset
        place = ctypes.c_void_p(ctypes.addressof(source) + offset)
        left = ctypes.c_size_t(count or 0)
        out = ctypes.c_void_p(ctypes.addressof(target))
        room = ctypes.c_size_t(len(target))
        ctypes.set_errno(0)
        result = LIBC.iconv(
            handle, ctypes.byref(place) if count is not None else None, ctypes.byref(left), ctypes.byref(out),
            ctypes.byref(room),
        )  # fmt: skip
        number = ctypes.get_errno() if result == FAILED else 0
        text += target.raw[: len(target) - room.value].decode("utf-8", "replace")
        if count is not None:
            offset += count - left.value
        return number

    try:
        while offset < len(data):
            number = convert(len(data) - offset)
            convert(None)
            if number == 0:
                break
            text += REPLACEMENT
            if number == errno.EINVAL:
                break
            offset += 1
    finally:
        LIBC.iconv_close(handle)
    return text


def from_utf8(data):
    # Python replaces each maximal subpart of an ill-formed sequence by one U+FFFD.
    return data.decode("utf-8", "replace")


def from_code_page(data, name):
    return from_utf8(data) if name.upper() == "UTF-8" else from_iconv(data, name or WESTERN)


def from_units(units):
    """UTF-16 code units; an unpaired surrogate is one U+FFFD."""
    text = ""
    i = 0
    while i < len(units):
        unit = units[i]
        i += 1
        if not 0xD800 <= unit <= 0xDFFF:
            text += chr(unit)
        elif unit <= 0xDBFF and i < len(units) and 0xDC00 <= units[i] <= 0xDFFF:
            text += chr(0x10000 + ((unit - 0xD800) << 10) + (units[i] - 0xDC00))
            i += 1
        else:
            text += REPLACEMENT
    return text


def utf16(data, big_endian):
    order = "big" if big_endian else "little"
    return from_units([int.from_bytes(data[i : i + 2], order) for i in range(0, len(data) - 1, 2)])


def utf16_values(pieces, big_endian):
    """A mark at the start of a piece sets the byte order for it and for those behind it."""
    texts = []
    for piece in pieces:
        if piece[:2] in (b"\xfe\xff", b"\xff\xfe"):
            big_endian = piece[:2] == b"\xfe\xff"
            piece = piece[2:]
        texts.append(utf16(piece, big_endian))
    return texts


def split_at_nul(data, width):
    """The pieces between NULs of `width` bytes at multiples of `width`. An odd last byte of UTF-16 is dropped."""
    pieces = [b""]
    for i in range(0, len(data) - width + 1, width):
        unit = data[i : i + width]
        if unit == bytes(width):
            pieces.append(b"")
        else:
            pieces[-1] += unit
    return pieces


def trimmed(text):
    return text.rstrip("\0 ")


def pieces_of(data, encoding, code_page):
    """The texts between NULs, without trailing blanks."""
    pieces = split_at_nul(data, 2 if encoding in (1, 2) else 1)
    if encoding == 0:
        texts = [from_code_page(piece, code_page) for piece in pieces]
    elif encoding == 3:
        texts = [from_utf8(piece) for piece in pieces]
    else:
        texts = utf16_values(pieces, encoding == 2)
    return [trimmed(text) for text in texts]


def field_values(data, encoding, code_page):
    """The values of a field; empty ones are left out."""
    return [text for text in pieces_of(data, encoding, code_page) if text != ""]


def joined(values):
    return "; ".join(values)
