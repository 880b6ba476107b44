"""MP3 files with tags as real programs write them, each in the settings that its users have."""

import os
import shutil
import subprocess

import mutagen
import mutagen.apev2
import mutagen.id3
import taglib

ENVIRONMENT = {"LC_ALL": "C.UTF-8", "PATH": os.environ["PATH"], "QT_QPA_PLATFORM": "offscreen"}


class Tools:
    """The scratch folder with the base recordings and a picture, and the programs started in it."""

    def __init__(self, folder):
        self.folder = folder
        self.sound = folder / "sound.wav"
        self.base = folder / "base.mp3"
        self.picture = folder / "picture.jpg"
        self.environment = ENVIRONMENT | {"HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config")}
        self.ffmpeg("-f", "lavfi", "-i", "sine=frequency=440:sample_rate=22050:duration=3.4", self.sound)
        # A JPEG file holds FF E0, which unsynchronisation must change.
        self.ffmpeg("-f", "lavfi", "-i", "color=red:size=16x16", "-frames:v", "1", self.picture)
        self.run("lame", "--quiet", "-m", "m", "-b", "32", self.sound, self.base)

    def run(self, *command):
        subprocess.run([str(part) for part in command], env=self.environment, cwd=self.folder, check=True,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

    def ffmpeg(self, *options):
        self.run("ffmpeg", "-nostdin", "-v", "error", "-y", *options)

    def copy(self, path):
        shutil.copyfile(self.base, path)


class Song:
    """What a user enters. `picture` is "before" or "after" the texts, or empty."""

    def __init__(self, artists, title, picture=""):
        self.artists = artists
        self.title = title
        self.album = "Album of " + (title or "nothing")
        self.album_artist = artists[-1]
        self.composer = "Composer"
        self.comment = "A comment"
        self.picture = picture


SONGS = {
    "Latin": Song(["Björk"], "Jóga"),
    "Cyrillic": Song(["Мумий Тролль"], "Владивосток 2000"),
    "Japanese": Song(["宇多田ヒカル"], "光"),
    "empty": Song([""], ""),
    "two artists": Song(["Björk", "Sigur Rós"], "Duet"),
    "picture before": Song(["Björk"], "Cover", "before"),
    "picture after": Song(["Björk"], "Cover", "after"),
}
NOT_LATIN = ("Cyrillic", "Japanese")


def in_order(song, pictures, texts):
    """Options for the picture and for the texts, in the order that the song asks for."""
    if not song.picture:
        return texts
    return pictures + texts if song.picture == "before" else texts + pictures


# ------------------------------------------------------------------------------------------------- command lines


def lame(*options):
    def write(tools, path, song):
        texts = ["--tt", song.title, "--ta", "/".join(song.artists), "--tl", song.album, "--ty", "2004", "--tn", "3/12",
                 "--tg", "Rock", "--tc", song.comment]  # fmt: skip
        if "--id3v1-only" not in options:
            texts += ["--tv", "TPE2=" + song.album_artist, "--tv", "TCOM=" + song.composer, "--tv", "TPOS=1/2"]
        tools.run("lame", "--quiet", "-V", "5", *options, *in_order(song, ["--ti", tools.picture], texts), tools.sound,
                  path)  # fmt: skip

    return write


def ffmpeg(version, *options):
    def write(tools, path, song):
        picture = ["-i", tools.picture, "-map", "0:a", "-map", "1:v"] if song.picture else []
        fields = {"title": song.title, "artist": ";".join(song.artists), "album": song.album, "date": "2004",
                  "genre": "Rock", "track": "3/12", "disc": "1/2", "album_artist": song.album_artist,
                  "composer": song.composer, "comment": song.comment}  # fmt: skip
        texts = [part for key, text in fields.items() for part in ("-metadata", f"{key}={text}")]
        tools.ffmpeg("-i", tools.base, *picture, "-c", "copy", "-id3v2_version", version, *options, *texts, path)

    return write


def eyed3(version, encoding, *year):
    def write(tools, path, song):
        tools.copy(path)
        texts = ["-t", song.title, "-a", "/".join(song.artists), "-A", song.album, "-b", song.album_artist, *year,
                 "-G", "Rock", "-n", "3", "-N", "12", "-d", "1", "-D", "2", "--composer", song.composer, "-c", song.comment]
        pictures = ["--add-image", f"{tools.picture}:FRONT_COVER"]
        for options in ([pictures, texts] if song.picture == "before" else [texts, pictures])[: 2 if song.picture else 1]:
            tools.run("eyeD3", "-Q", version, "--encoding", encoding, *options, path)

    return write


def kid3(version, encoding):
    """Version: 0 for ID3v2.3, 1 for ID3v2.4. Encoding: 0 ISO-8859-1, 1 UTF-16, 2 UTF-8."""

    def write(tools, path, song):
        tools.copy(path)
        fields = {"title": song.title, "artist": "|".join(song.artists), "album": song.album, "date": "2004",
                  "genre": "Rock", "track number": "3/12", "disc number": "1/2", "album artist": song.album_artist,
                  "composer": song.composer, "comment": song.comment}  # fmt: skip
        texts = [f"set '{key}' '{text}' 2" for key, text in fields.items()]
        commands = [f"config Tag.id3v2Version {version}", f"config Tag.textEncoding {encoding}",
                    *in_order(song, [f"set 'picture:{tools.picture}' ''"], texts), "save"]  # fmt: skip
        tools.run("kid3-cli", *[part for command in commands for part in ("-c", command)], path)

    return write


def mid3v2(tools, path, song):
    tools.copy(path)
    texts = ["-t", song.title, "-A", song.album, "-y", "2004", "-g", "Rock", "-T", "3/12", "--TPOS", "1/2",
             "--TPE2", song.album_artist, "--TCOM", song.composer, "-c", song.comment]  # fmt: skip
    for artist in song.artists:
        texts += ["-a", artist]
    tools.run("mid3v2", *in_order(song, ["-p", f"{tools.picture}::3:image/jpeg"], texts), path)


# ------------------------------------------------------------------------------------------------------ libraries


def frames_of(song, encoding, picture):
    id3 = mutagen.id3
    frames = [
        id3.TIT2(encoding, [song.title]), id3.TPE1(encoding, song.artists), id3.TALB(encoding, [song.album]),
        id3.TDRC(encoding, ["2004-05-06"]), id3.TCON(encoding, ["Rock"]), id3.TRCK(encoding, ["3/12"]),
        id3.TPOS(encoding, ["1/2"]), id3.TPE2(encoding, [song.album_artist]), id3.TCOM(encoding, [song.composer]),
        id3.COMM(encoding, "eng", "", [song.comment]),
    ]  # fmt: skip
    if picture is not None:
        frames.append(id3.APIC(encoding, "image/jpeg", 3, "", picture))
    return frames


def with_mutagen(version, encoding, separator="/", v1=1, change=None):
    def write(tools, path, song):
        tools.copy(path)
        tag = mutagen.id3.ID3()
        for frame in frames_of(song, encoding, tools.picture.read_bytes() if song.picture else None):
            tag.add(frame)
        if version == 3:
            tag.update_to_v23()
        tag.save(path, v1=v1, v2_version=version, v23_sep=separator)
        if change:
            path.write_bytes(change(path.read_bytes(), song.picture))

    return write


def with_taglib(tools, path, song):
    tools.copy(path)
    file = taglib.File(str(path))
    file.tags.update({
        "TITLE": [song.title], "ARTIST": song.artists, "ALBUM": [song.album], "DATE": ["2004-05-06"], "GENRE": ["Rock"],
        "TRACKNUMBER": ["3/12"], "DISCNUMBER": ["1/2"], "ALBUMARTIST": [song.album_artist], "COMPOSER": [song.composer],
        "COMMENT": [song.comment],
    })  # fmt: skip
    file.save()
    file.close()


def ape_of_mutagen(tools, path, song):
    tools.copy(path)
    tag = mutagen.apev2.APEv2()
    fields = {"Title": [song.title], "Artist": song.artists, "Album": [song.album], "Year": ["2004"], "Genre": ["Rock"],
              "Track": ["3/12"], "Disc": ["1/2"], "Album Artist": [song.album_artist], "Composer": [song.composer],
              "Comment": [song.comment]}  # fmt: skip
    for key, values in fields.items():
        tag[key] = values
    if song.picture:
        tag["Cover Art (Front)"] = mutagen.apev2.APEValue(b"cover.jpg\0" + tools.picture.read_bytes(), mutagen.apev2.BINARY)
    tag.save(path)


# ----------------------------------------------------------------------------------------- unsynchronisation


def synchsafe(number):
    return bytes(number >> shift & 127 for shift in (21, 14, 7, 0))


def number_of(data):
    return sum((byte & 127) << shift for byte, shift in zip(data, (21, 14, 7, 0)))


def stuffed(data):
    """The unsynchronisation scheme of ID3v2.3 section 5 and ID3v2.4 structure section 6.1."""
    out = bytearray()
    for i, byte in enumerate(data):
        out.append(byte)
        following = data[i + 1] if i + 1 < len(data) else 0
        if byte == 0xFF and (following >= 0xE0 or following == 0):
            out.append(0)
    return bytes(out)


def frames_in(tag):
    """(name, flags, content) of the frames of a tag that mutagen wrote."""
    position, end = 10, 10 + number_of(tag[6:10])
    read = number_of if tag[3] == 4 else lambda field: int.from_bytes(field, "big")
    while position + 10 <= end and tag[position]:
        size = read(tag[position + 4 : position + 8])
        yield tag[position : position + 4], tag[position + 8 : position + 10], tag[position + 10 : position + 10 + size]
        position += 10 + size


def unsynchronised(data, picture):
    """The file with its tag unsynchronised: as a whole in ID3v2.3, each frame in ID3v2.4. No tagger here does that."""
    end = 10 + number_of(data[6:10])
    version = data[3]
    frames = list(frames_in(data[:end]))
    if picture == "before":
        frames.sort(key=lambda frame: frame[0] != b"APIC")
    if version == 3:
        body = stuffed(b"".join(name + len(content).to_bytes(4, "big") + flags + content for name, flags, content in frames))
    else:
        body = b""
        for name, flags, content in frames:
            changed = synchsafe(len(content)) + stuffed(content)
            body += name + synchsafe(len(changed)) + bytes([flags[0], flags[1] | 0x03]) + changed
    return data[:5] + b"\x80" + synchsafe(len(body)) + body + data[end:]


TAGGERS = {
    "lame id3v2 latin1": lame("--id3v2-only", "--id3v2-latin1"),
    "lame id3v2 utf16": lame("--id3v2-only", "--id3v2-utf16", "--pad-id3v2"),
    "lame id3v1": lame("--id3v1-only"),
    "ffmpeg 2.3": ffmpeg("3"),
    "ffmpeg 2.4": ffmpeg("4"),
    "ffmpeg 2.3 with id3v1": ffmpeg("3", "-write_id3v1", "1"),
    "eyeD3 2.3 latin1": eyed3("--to-v2.3", "latin1", "-Y", "2004"),
    "eyeD3 2.3 utf16": eyed3("--to-v2.3", "utf16", "--recording-date", "2004-05-06"),
    "eyeD3 2.4 utf8": eyed3("--to-v2.4", "utf8", "-Y", "2004"),
    "kid3 2.3 utf16": kid3(0, 1),
    "kid3 2.4 utf8": kid3(1, 2),
    "mid3v2": mid3v2,
    "Picard 2.4 utf8": with_mutagen(4, 3),
    "Picard 2.3 utf16": with_mutagen(3, 1, "/"),
    "Picard 2.3 utf16, semicolons": with_mutagen(3, 1, "; "),
    "beets": with_mutagen(4, 3, v1=2),
    "beets id3v23": with_mutagen(3, 1, "/", v1=2),
    "mutagen 2.3 unsynchronised": with_mutagen(3, 1, "/", change=unsynchronised),
    "mutagen 2.4 unsynchronised": with_mutagen(4, 3, change=unsynchronised),
    "mutagen 2.4 utf16be": with_mutagen(4, 2),
    "mutagen APEv2": ape_of_mutagen,
    "TagLib": with_taglib,
}
ONLY_LATIN = ("lame id3v2 latin1", "lame id3v1", "eyeD3 2.3 latin1")


def write_all(tools, folder):
    """Writes each song by each tagger. Returns (tagger, song) by path."""
    found = {}
    for tagger, write in TAGGERS.items():
        (folder / tagger).mkdir()
        for name, song in SONGS.items():
            if tagger in ONLY_LATIN and name in NOT_LATIN:
                continue  # Its encoding has no such characters.
            path = folder / tagger / f"{name}.mp3"
            write(tools, path, song)
            found[path] = (tagger, name)
    return found
