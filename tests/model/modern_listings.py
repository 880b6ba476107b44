"""How listings differ with Modern on: encodings, links, columns, .csv and playlists."""

import os

from basics import BYTE_ORDER_MARK, is_stray, leading_number, settled, to_disk, upper

UNRESERVED = b"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~"
COLUMNS = {
    "TRACK": "track", "DISC": "disc", "ALBUM ARTIST": "album_artist", "COMPOSER": "composer", "COMMENT": "comment",
}  # fmt: skip
HIDDEN = 0xF0000  # a plane for private use
NO_CHARACTER = "&#65533;"


# ---------------------------------------------------------------------------------------------------------- pages


def encode_page(text):
    """ISO-8859-1. A character that no document may hold becomes U+FFFD."""
    out = bytearray()  # a page may have megabytes
    for character in settled(text):
        code = ord(character)
        if is_stray(character):
            byte = code - 0xDC00
            out += bytes([byte]) if byte >= 0xA0 else NO_CHARACTER.encode()
        elif (code < 0x20 and character not in "\t\r\n") or 0x7F <= code <= 0x9F or code in (0xFFFE, 0xFFFF):
            out += NO_CHARACTER.encode()
        elif code <= 0xFF:
            out.append(code)
        else:
            out += f"&#{code};".encode()
    return bytes(out)


def percent_encoded(text):
    kept = UNRESERVED + b"/"
    return "".join(chr(byte) if byte in kept else f"%{byte:02X}" for byte in to_disk(text))


def attribute(text):
    for character, reference in (("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ('"', "&quot;")):
        text = text.replace(character, reference)
    return text


# -------------------------------------------------------------------------------------------------------- columns


def hide_album_artist(columns):
    """Puts private characters in the place of the column Album Artist, which a merge must never take for another."""
    hidden = []
    names = columns.split("|")
    for i, name in enumerate(names):
        if upper(name) == "ALBUM ARTIST":
            names[i] = "".join(chr(HIDDEN + len(hidden) + place) for place in range(len(name)))
            hidden.extend(name)
    return "|".join(names), hidden


def show_album_artist(columns, hidden):
    return "".join(
        hidden[ord(character) - HIDDEN] if HIDDEN <= ord(character) < HIDDEN + len(hidden) else character
        for character in columns
    )


def hours(duration):
    """A duration m:ss as h:mm:ss."""
    if duration == "":
        return ""
    minutes, seconds = duration.split(":")
    return f"{int(minutes) // 60}:{int(minutes) % 60:02d}:{seconds}"


def csv_field(text):
    if any(character in text for character in ',"\r\n'):
        return '"' + text.replace('"', '""') + '"'
    return text


def blanks(text, characters):
    for character in characters:
        text = text.replace(character, " ")
    return text


# ------------------------------------------------------------------------------------------------- whole listings


def text_listing(header, rows):
    """`rows` and the header are lists of cells."""
    lines = ["\t".join(blanks(cell, "\t\r\n") for cell in row) for row in [header, *rows]]
    return BYTE_ORDER_MARK + b"".join(to_disk(line) + b"\r\n" for line in lines)


def csv_listing(header, rows):
    lines = [",".join(csv_field(cell) for cell in row) for row in [header, *rows]]
    return BYTE_ORDER_MARK + b"".join(to_disk(line) + b"\r\n" for line in lines)


def playlist_path(path, current_folder):
    try:
        to_disk(path).decode("utf-8")
        if not any(character in path for character in "\r\n#?%"):
            return path
    except UnicodeDecodeError:
        pass
    return "file://" + percent_encoded(os.path.join(current_folder, path))


def playlist(tracks, current_folder):
    lines = ["#EXTM3U"]
    for track in tracks:
        seconds = -1
        if track.duration != "":
            minutes, rest = track.duration.split(":")
            seconds = int(leading_number(minutes) * 60 + leading_number(rest))
        lines.append(f"#EXTINF:{seconds}," + blanks(f"{track.artist} - {track.title}", "\r\n"))
        lines.append(playlist_path(track.full_path, current_folder))
    # Every line is UTF-8; only a path could be none, and it is a URL then.
    return "".join(to_disk(line).decode("utf-8", "replace") + "\r\n" for line in lines).encode()


def could_not_be_read(folders, files, logged, log_path):
    """The last line on standard error."""

    def amount(number, name):
        return f"{number} {name}" + ("" if number == 1 else "s")

    parts = [amount(number, name) for number, name in ((folders, "folder"), (files, "file")) if number]
    text = "Tunedex: " + " and ".join(parts) + " could not be read; "
    return text + ("see " if logged else "switch on the error log to have each named in ") + log_path

