"""Playable files whose names and tags hold what pages, playlists and tables treat specially."""

import io
import os
import pathlib
import shutil
import subprocess
import wave

# A name cannot hold "/", so the folder of one ends where "</script>" has it.
NAMES = [os.fsencode(name) for name in (
    "with blank.mp3", "a&b&amp;.mp3", "a#b.mp3", "a?b=c.mp3", "a%41.mp3", "a[1].mp3", "it's.mp3", 'say "hello".mp3',
    "back\\slash.mp3", "line\nbreak.mp3", "tab\tulator.mp3", "#lead.mp3", " lead.mp3", "right\u202eleft.mp3",
    '"><script>alert(1)<', "a;b.mp3", "日本語.mp3", "é" * 125 + "a.mp3")] + [b"J\xf3ga \x80\xff.mp3"]
assert len(NAMES) == 19 and max(map(len, NAMES)) == 255
SCRIPT_FILE = "script>.mp3"

TITLE = "{number} \"title\" </title></td><script>alert('tag')</script>&amp;, tab\tulator"
ARTIST = "' onmouseover=\"alert('artist')\" x=\""


def make(folder, tagger, seconds=1):
    """Fills the folder and returns the paths of its files, as bytes, in the order of the names."""
    folder = pathlib.Path(folder)
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    frames = folder.parent / "frames"
    frames.write_bytes(silence(seconds))
    paths = []
    for number, name in enumerate(NAMES, 1):
        path = os.path.join(os.fsencode(folder), name)
        if not name.endswith(b".mp3"):
            os.mkdir(path)
            path = os.path.join(path, os.fsencode(SCRIPT_FILE))
        subprocess.run([tagger, str(frames), path, "--v2", "2.3", "--title", TITLE.format(number=number),
                        "--artist", ARTIST], check=True, stdin=subprocess.DEVNULL)
        paths.append(path)
    return paths


def silence(seconds):
    """MP3 frames of MPEG-1."""
    rate = 44100
    sound = io.BytesIO()
    with wave.open(sound, "wb") as file:
        file.setparams((1, 2, rate, 0, "NONE", ""))
        file.writeframes(bytes(2 * int(rate * seconds)))
    return subprocess.run(["lame", "--quiet", "-b", "32", "--resample", "44.1", "-", "-"], input=sound.getvalue(),
                          check=True, stdout=subprocess.PIPE).stdout
