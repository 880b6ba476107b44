"""Tags as they are read with Modern on: ID3v2.2 to 2.4, APEv2 and ID3v1, and where the audio lies between them."""

import re

from basics import RunTimeError, upper
from modern_text import field_values, from_code_page, joined, pieces_of, split_at_nul
from tracks import GENRES, Bytes

# The list ends at 147 in the classic table; these are 148 to 191.
MORE_GENRES = [
    "Abstract", "Art Rock", "Baroque", "Bhangra", "Big Beat", "Breakbeat", "Chillout", "Downtempo", "Dub", "EBM",
    "Eclectic", "Electro", "Electroclash", "Emo", "Experimental", "Garage", "Global", "IDM", "Illbient",
    "Industro-Goth", "Jam Band", "Krautrock", "Leftfield", "Lounge", "Math Rock", "New Romantic", "Nu-Breakz",
    "Post-Punk", "Post-Rock", "Psytrance", "Shoegaze", "Space Rock", "Trop Rock", "World Music", "Neoclassical",
    "Audiobook", "Audio Theatre", "Neue Deutsche Welle", "Podcast", "Indie Rock", "G-Funk", "Dubstep", "Garage Rock",
    "Psybient",
]  # fmt: skip

FIELDS = ["title", "artist", "album", "year", "genre", "track", "disc", "album_artist", "composer", "comment"]
FRAMES = {
    "title": ("TIT2", "TT2"), "artist": ("TPE1", "TP1"), "album": ("TALB", "TAL"), "genre": ("TCON", "TCO"),
    "track": ("TRCK", "TRK"), "disc": ("TPOS", "TPA"), "album_artist": ("TPE2", "TP2"), "composer": ("TCOM", "TCM"),
    "written_year": ("TYER", "TYE"), "recorded": ("TDRC",), "released": ("TDRL",), "first_released": ("TDOR",),
}  # fmt: skip
APE_KEYS = {
    "TITLE": "title", "ARTIST": "artist", "ALBUM": "album", "YEAR": "year", "GENRE": "genre", "TRACK": "track",
    "DISC": "disc", "ALBUM ARTIST": "album_artist", "ALBUMARTIST": "album_artist", "COMPOSER": "composer",
    "COMMENT": "comment",
}  # fmt: skip


def genre_name(number):
    names = GENRES + MORE_GENRES
    return names[number] if number < len(names) else "Unknown"


def is_number(text):
    return re.fullmatch("[0-9]+", text) is not None


# ------------------------------------------------------------------------------------------------ where tags lie


class Place:
    """A tag in a file: `start` of its bytes, `end` behind them."""

    def __init__(self, kind, start, end):
        self.kind = kind  # "ID3v2", "APEv2", "Lyrics3", "ID3v1" or "end" for an appended ID3v2.4
        self.start = start
        self.end = end


def bytes_at(file, start, count):
    """Up to `count` bytes; fewer at the end of the file."""
    start = min(start, file.length)
    count = max(0, min(count, file.length - start))
    data = b""
    while len(data) < count:
        more = file.at_most(start + len(data) + 1, count - len(data))
        if more == b"":
            break
        data += more
    return data


def synchsafe(data):
    number = 0
    for byte in data:
        number = number << 7 | byte & 127
    return number


def id3v2_length(head):
    """The length of the whole tag whose header is `head`, 0 if there is none. No version or revision is 255 (ID3v2.4
    structure section 3.1)."""
    if len(head) < 10 or head[:3] != b"ID3" or 255 in head[3:5]:
        return 0
    footer = 10 if head[3] == 4 and head[5] & 0x10 else 0
    return 10 + tag_size(head[6:10]) + footer


def tag_size(field):
    """A size that cannot be synchsafe is a plain number."""
    return int.from_bytes(field, "big") if any(byte >= 128 for byte in field) else synchsafe(field)


def ape_fields(block):
    """(size, flags) of a header or footer of 32 bytes; None if it is none."""
    if len(block) < 32 or block[:8] != b"APETAGEX":
        return None
    size, flags = (int.from_bytes(block[i : i + 4], "little") for i in (12, 20))
    return (size, flags) if size >= 32 else None


def leading_tags(file):
    places = []
    position = 0
    while True:
        head = bytes_at(file, position, 32)
        length = id3v2_length(head)
        kind = "ID3v2"
        if length == 0:
            kind = "APEv2"
            fields = ape_fields(head)
            if fields is None or not fields[1] & 1 << 29:
                return places, min(position, file.length)
            length = 32 + fields[0]
        if position + length > file.length:
            # The tag is cut, or its size is wrong: what is there is read, and the audio is searched from its start.
            places.append(Place(kind, position, file.length))
            return places, position
        places.append(Place(kind, position, position + length))
        position += length


def lyrics_start(file, end):
    """Where a Lyrics3 tag starts that ends at `end`; `end` if there is none."""
    mark = bytes_at(file, end - 9, 9) if end >= 9 else b""
    if mark == b"LYRICS200" and end >= 15:
        digits = bytes_at(file, end - 15, 6)
        if re.fullmatch(b"[0-9]{6}", digits):
            start = end - 15 - int(digits)
            if start >= 0 and bytes_at(file, start, 11) == b"LYRICSBEGIN":
                return start
    if mark == b"LYRICSEND":
        first = max(0, end - 9 - 5100 - 11)
        found = bytes_at(file, first, end - 9 - first).rfind(b"LYRICSBEGIN")
        if found >= 0:
            return first + found
    return end


def ape_start(file, end):
    """Where an APEv2 tag starts that ends at `end`; `end` if there is none."""
    fields = ape_fields(bytes_at(file, end - 32, 32)) if end >= 32 else None
    if fields is None or fields[1] & 1 << 29:
        return end
    start = end - fields[0] - (32 if fields[1] & 1 << 31 else 0)
    return start if start >= 0 else end


def appended_start(file, end):
    """Where an ID3v2.4 tag starts that is appended to the audio (structure section 3.4); it is skipped, not read."""
    footer = bytes_at(file, end - 10, 10) if end >= 20 else b""
    if footer[:3] != b"3DI" or footer[3] != 4:
        return end
    start = end - 20 - synchsafe(footer[6:10])
    return start if start >= 0 and bytes_at(file, start, 3) == b"ID3" else end


def trailing_tags(file):
    places = []
    end = file.length
    # The name of an APEv2 tag holds the mark of ID3v1.
    if end >= 128 and bytes_at(file, end - 128, 3) == b"TAG" and bytes_at(file, max(0, end - 131), 8) != b"APETAGEX":
        places.append(Place("ID3v1", end - 128, end))
        end -= 128
    while True:
        found = [("Lyrics3", lyrics_start(file, end)), ("APEv2", ape_start(file, end)), ("end", appended_start(file, end))]
        for kind, start in found:
            if start < end:
                places.append(Place(kind, start, end))
                end = start
                break
        else:
            return places, end


# ---------------------------------------------------------------------------------------------------------- ID3v2


def deunsynchronised(data):
    return data.replace(b"\xff\x00", b"\xff")


def is_unsynchronised(data):
    """Unsynchronised data has no FF followed by E0 to FF."""
    return re.search(b"\xff[\xe0-\xff]", data) is None


def without_extended_header(body, version):
    """Some writers set the flag without an extended header; its size then runs past the tag."""
    size = 4 + int.from_bytes(body[:4], "big") if version == 3 else synchsafe(body[:4])
    return body[size:] if size <= len(body) else body


def is_frame_name(name, width):
    return re.fullmatch(b"[A-Z0-9]{%d}" % width, name) is not None


def what_is_at(body, position):
    """2 for a frame, 1 for padding or the tag's end, 0 for anything else."""
    ahead = body[position : position + 4]
    if position > len(body) or (any(ahead) and not is_frame_name(ahead, 4)):
        return 0
    return 2 if any(ahead) else 1


def frame_size(body, position, version):
    """A plain number in ID3v2.3, 7 bits in each byte in ID3v2.4. Some writers have it the other way round: the size that
    leads to a frame or to the tag's end wins. What looks like padding may be the inside of a longer frame."""
    field = body[position + 4 : position + 8]
    plain = int.from_bytes(field, "big")
    if any(byte >= 128 for byte in field):
        return plain
    declared, other = (synchsafe(field), plain) if version == 4 else (plain, synchsafe(field))
    behind, behind_other = (position + 10 + size for size in (declared, other))
    found = what_is_at(body, behind)
    if found == 2 or (found == 1 and other < declared):
        return declared
    only_other_fits = behind_other <= len(body) < behind
    return other if only_other_fits or what_is_at(body, behind_other) > found else declared


def content_of_23(content, flags):
    """None for a frame that is skipped."""
    if flags & 0xC0:
        return None  # compressed or encrypted
    return content[1:] if flags & 0x20 else content


def content_of_24(content, flags, whole_tag):
    if flags & 0x0C:
        return None
    if (flags & 0x02 or whole_tag) and is_unsynchronised(content):
        content = deunsynchronised(content)
    if flags & 0x40:
        content = content[1:]
    return content[4:] if flags & 0x01 else content


def can_be_made_out(tag):
    """The compression of ID3v2.2 was never defined."""
    return tag[3] in (2, 3, 4) and not (tag[3] == 2 and tag[5] & 0x40)


def id3v2_frames(tag):
    """(name, content, whether the tag's end cuts it) of each frame, in order, of a whole tag with its header."""
    version, flags = tag[3], tag[5]
    body = tag[10 : 10 + tag_size(tag[6:10])]
    if version < 4 and flags & 0x80 and is_unsynchronised(body):
        body = deunsynchronised(body)
    if version > 2 and flags & 0x40:
        body = without_extended_header(body, version)
    width, header = (3, 6) if version == 2 else (4, 10)
    frames = []
    position = 0
    while position + header <= len(body):
        name = body[position : position + width]
        if name[0] == 0:
            break
        if version == 2:
            size = int.from_bytes(body[position + 3 : position + 6], "big")
        else:
            size = frame_size(body, position, version)
        content = body[position + header : position + header + size]
        is_cut = len(content) < size
        if version == 3:
            content = content_of_23(content, body[position + 9])
        elif version == 4:
            content = content_of_24(content, body[position + 9], flags & 0x80)
        # Some writers put the names of ID3v2.2, filled with a NUL, into later versions.
        if content is not None and (is_frame_name(name, width) or (is_frame_name(name[:3], 3) and name[3:] == b"\0")):
            frames.append((name.rstrip(b"\0").decode("ascii"), content, is_cut))
        position += header + size
    return frames


def genres_of(value):
    """The names that one value of TCON stands for."""
    special = {"RX": "Remix", "CR": "Cover"}
    if is_number(value) and int(value) < 256:
        return [genre_name(int(value))]
    if value in special:
        return [special[value]]
    names = []
    while True:
        match = re.match(r"\(([0-9]+|RX|CR)\)", value)
        if not match:
            break
        names.append(special.get(match[1]) or genre_name(int(match[1])))
        value = value[match.end() :]
    if value.startswith("(("):
        value = value[1:]
    if value != "" and value not in names:
        names.append(value)
    return names


def comment_of(content, code_page):
    """(description, text) of a comment frame; None if it cannot be read."""
    if len(content) < 4 or content[0] > 3:
        return None
    encoding, data = content[0], content[4:]
    description = pieces_of(data, encoding, code_page)[0]
    width = 2 if encoding in (1, 2) else 1
    end = len(split_at_nul(data, width)[0]) + width
    return description, joined(field_values(data[end:], encoding, code_page))


def four_digits(text):
    match = re.search("[0-9]{4}", text)
    return match[0] if match else ""


def with_more(values, more):
    """A repeated frame adds the values that are not there yet, be it as part of a list that a writer joined."""
    if not values:
        return more
    for value in more:
        if f"; {value}; " not in f"; {joined(values)}; ":
            values = [*values, value]
    return values


def read_id3v2(tag, code_page):
    values = {field: [] for field in FRAMES}
    comment = ""
    for name, content, is_cut in id3v2_frames(tag):
        if name in ("COMM", "COM") and comment == "":
            found = comment_of(content, code_page)
            if found is not None and found[0] == "":
                comment = found[1]
        for field, names in FRAMES.items():
            if name in names and content and content[0] <= 3:
                more = field_values(content[1:], content[0], code_page)
                if is_cut:
                    more = [text for text in pieces_of(content[1:], content[0], code_page)[:1] if text != ""]
                if field == "genre":
                    more = [genre for value in more for genre in genres_of(value)]
                values[field] = with_more(values[field], more)
    texts = {field: joined(found) for field, found in values.items()}
    texts["year"] = texts["written_year"] or next(
        filter(None, (four_digits(texts[field]) for field in ("recorded", "released", "first_released"))), ""
    )
    texts["comment"] = comment
    return {field: texts[field] for field in FIELDS}


# ------------------------------------------------------------------------------------------------ APEv2 and ID3v1


def read_ape(tag, at_the_start):
    """Only text items count; a key that is there twice keeps its first text."""
    if at_the_start:
        items = tag[32:-32]
    else:
        items = tag[len(tag) - ape_fields(tag[-32:])[0] : -32]
    texts = dict.fromkeys(FIELDS, "")
    position = 0
    while True:
        end = items.find(b"\0", position + 8)
        if end < 0:
            break
        length, flags = (int.from_bytes(items[i : i + 4], "little") for i in (position, position + 4))
        key = items[position + 8 : end].decode("latin-1")
        value = items[end + 1 : end + 1 + length]
        if len(value) < length:
            break
        field = APE_KEYS.get(re.sub("[a-z]+", lambda match: match[0].upper(), key))
        if field is not None and flags & 6 == 0 and texts[field] == "":
            texts[field] = joined(field_values(value, 3, ""))
        position = end + 1 + length
    return texts


def read_id3v1(tag, code_page):
    def text(start, width):
        return from_code_page(tag[start : start + width].split(b"\0")[0].rstrip(b" "), code_page)

    texts = dict.fromkeys(FIELDS, "")
    texts |= {"title": text(3, 30), "artist": text(33, 30), "album": text(63, 30), "year": text(93, 4)}
    texts["comment"] = text(97, 30)
    if tag[125] == 0 and tag[126] != 0:
        texts["comment"] = text(97, 28)
        texts["track"] = str(tag[126])
    texts["genre"] = (GENRES + MORE_GENRES)[tag[127]] if tag[127] < len(GENRES + MORE_GENRES) else ""
    return texts


# --------------------------------------------------------------------------------------------------------- a file


def move_the(name, settings):
    if settings.MoveTheArtists and upper(name[:4]) == "THE ":
        return name[4:] + ", The"
    return name


def read_tags(track, settings):
    """Fills the record's texts. Returns whether the file has a tag, and where its audio starts and ends."""
    code_page = settings.TagCodePage
    kinds = []
    try:
        with Bytes(track.full_path) as file:
            before, start = leading_tags(file)
            behind, end = trailing_tags(file)

            def whole(place):
                return bytes_at(file, place.start, place.end - place.start)

            at_start = before[0].kind if before else ""
            if at_start == "ID3v2" and can_be_made_out(whole(before[0])):
                kinds.append(read_id3v2(whole(before[0]), code_page))
            ape_behind = [place for place in behind if place.kind == "APEv2"]
            if ape_behind:
                kinds.append(read_ape(whole(ape_behind[0]), False))
            elif at_start == "APEv2":
                kinds.append(read_ape(whole(before[0]), True))
            for place in behind:
                if place.kind == "ID3v1":
                    kinds.append(read_id3v1(whole(place), code_page))
    except RunTimeError:
        return False, 0, 0
    for field in FIELDS:
        setattr(track, field, next(filter(None, (kind[field] for kind in kinds)), ""))
    track.artist = move_the(track.artist or "Unknown Artist", settings)
    track.album_artist = move_the(track.album_artist, settings)
    track.title = track.title or "Unknown Title"
    return bool(kinds), start, end
