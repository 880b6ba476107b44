"""A second, independent implementation of an unattended run.

The model is slow and literal: it predicts the messages, the bytes of every file written, the files removed and the
exit status. compare.py runs it and the program on the same collections and settings. Write it from the description of
the behaviour, never from the program's sources, so that a difference means that one of them is wrong.

The model reads the disk but never changes it. Texts are Python strings; a byte that is not UTF-8 is a lone surrogate
("surrogateescape").
"""

import errno
import fcntl
import os
import re
import stat
import time
from collections import Counter

import modern_listings
import modern_order
from basics import (  # noqa: F401
    CODE_PAGE, FaultyLine, Region, RunTimeError, decode_own_line, decode_settings_line, encode_own_line, encode_page,
    encode_text_listing, file_error, from_disk, leading_number, left, own_lines, right, rounded, settled, size_text,
    to_disk, two_digits, upper, whole_number,
)  # fmt: skip
from modern_audio import decode_audio
from modern_tags import read_tags
from modern_text import is_code_page
from tracks import Bytes, Track, decode_header, detect_id3v2, read_id3v1, read_id3v2

OK_EXCLAMATION = 48
YES_NO_EXCLAMATION = 52
OK_INFORMATION = 64
HOME_PAGE = "https://tunedex.example/"
VERSION = "1.1"
ERROR_TITLE = "Tunedex Error! (Automatic Mode)"
MULT = "%MULT%"
BETWEEN = "%||%"
LARGEST_EXPANSION = 1 << 20  # bytes of UTF-8
DAY = 24 * 60 * 60  # seconds
TEMPORARY_NAME = re.compile(rb"\.tunedex-[0-9]+-[0-9]+\.tmp")


# ------------------------------------------------------------------------------------------------------ settings


class Settings:
    STRINGS = [
        "Directory", "OutputFile", "WindowTitle", "PageTitle", "PageFooter", "DocumentType", "LinkPrefix",
        "ActiveColumns", "InactiveColumns",
    ]
    FLAGS = [
        "Recurse", "ErrorWarnings", "ErrorLog", "ConfirmQuit", "DoLinks", "MoveTheArtists", "FontCSS", "FontHTML",
        "AltRows", "ColourCSS", "ColourHTML", "Modern",
    ]
    INTEGERS = [
        "Spanning", "SizeType", "SortOrder", "LinkType", "Merge", "TablePadding", "TableBorder", "TableSpacing",
    ]

    def __init__(self):
        for name in self.STRINGS:
            setattr(self, name, "")
        for name in self.FLAGS:
            setattr(self, name, False)
        for name in self.INTEGERS:
            setattr(self, name, 0)
        self.TagCodePage = ""
        self.Font = [("", "", False, False)] * 3
        self.Colour = [""] * 10
        self.TableWidth = (0, 0)

    def set_defaults(self):
        self.__init__()
        self.WindowTitle = "MP3 List (%D)"
        self.PageTitle = "MP3 Listing (%C files)"
        self.PageFooter = "Created on %D at %T"
        self.Recurse = True
        self.Spanning = 100
        self.SizeType = 2
        self.SortOrder = 1
        self.ErrorWarnings = True
        self.ConfirmQuit = True
        self.DocumentType = "HTML"
        self.LinkPrefix = "file:///"
        self.ActiveColumns = "Number|Artist|Album|Title|Duration"
        self.InactiveColumns = "Bitrate|File Size|Frequency|Genre|Mode|MPEG Type|Year|Filename|Folder Path|Full Path"
        self.Merge = 2
        self.MoveTheArtists = True
        self.Font = [
            ("Times New Roman, serif", "3", True, False),
            ("Tahoma, Arial, sans-serif", "2", True, False),
            ("Tahoma, Arial, sans-serif", "1", False, False),
        ]
        self.FontCSS = True
        self.Colour = [
            "000000", "FFFFFF", "FFFF00", "000066", "000000", "CECECE", "000000", "DEDEDE", "0000FF", "000000",
        ]
        self.AltRows = True
        self.ColourCSS = True
        self.TableWidth = (1, 99)
        self.TablePadding = 2
        self.TableBorder = 1

    def parse_line(self, line):
        equals = line.find("=") + 1
        bracket = line.find("(") + 1
        if equals == 0:
            raise FaultyLine
        value = line[equals:]
        index = ""
        if 0 < bracket < equals:
            key = upper(line[: bracket - 1])
            index = line[bracket]
        else:
            key = upper(line[: equals - 1])
            index = "0"
        try:
            self._parse_setting(key, value, index)
        except RunTimeError as error:
            raise FaultyLine from error

    def _parse_setting(self, key, value, index):
        for name in self.STRINGS:
            if upper(name) == key:
                setattr(self, name, value)
        for name in self.FLAGS:
            if upper(name) == key:
                setattr(self, name, leading_number(value) != 0)
        for name in self.INTEGERS:
            if upper(name) == key:
                setattr(self, name, rounded(leading_number(value), 16))
        if key == "TAGCODEPAGE":
            if value != "" and not is_code_page(to_disk(value)):
                raise FaultyLine
            self.TagCodePage = value
        if key == "TABLEWIDTH":
            if len(value) < 2:
                raise FaultyLine
            self.TableWidth = (rounded(leading_number(value[0]), 16), rounded(leading_number(value[2:]), 16))
        if key in ("FONT", "COLOUR") and index not in list("0123456789"):
            raise FaultyLine
        if key == "COLOUR":
            self.Colour[int(index)] = value
        if key == "FONT":
            parts = value.split("%|%")
            if int(index) > 2 or len(parts) < 4:
                raise FaultyLine
            self.Font[int(index)] = (
                parts[0], parts[1], leading_number(parts[2]) != 0, leading_number(parts[3]) != 0,
            )


# ------------------------------------------------------------------------------------------------------- the run


class Result:
    def __init__(self):
        self.events = []  # ("message", title, text, buttons, answered), ("status", text), ("warning", file, line number)
        self.files = {}  # path as bytes -> bytes
        self.folders = []  # paths of the folders created, as bytes
        self.removed = set()  # paths of the files removed, as bytes
        self.exit_status = 1


def program_folder(installation_path, executable, environment):
    """The program folder, and whether it is the user's data folder."""
    if installation_path != "":
        return installation_path, False
    beside = os.path.dirname(executable)
    installed = os.path.isdir(os.path.join(os.path.dirname(beside), "share", "tunedex"))
    if not installed and os.access(beside, os.W_OK):
        return beside, False
    data = environment.get("XDG_DATA_HOME") or os.path.join(environment["HOME"], ".local", "share")
    return os.path.join(data, "tunedex"), True


class Model:
    """One unattended run in `current_folder`. The first `answers` messages are answered, with Yes if they offer it.

    `shipped` is the folder of the files that are copied to a new program folder; empty if none are. `language` is the
    locale name by which tracks are ordered with Modern on.
    """

    def __init__(self, folder, region, current_folder, answers=0, shipped="", language=""):
        self.app_folder = folder if folder.endswith("/") else folder + "/"
        self.shipped = shipped
        self.region = region
        self.answers = answers
        self.current_folder = current_folder
        self.result = Result()
        self.settings = Settings()
        self.entities = []
        self.too_long = {}  # character -> whether its expansion exceeds the limit
        self.log = None
        self.tracks = []
        self.found_count = 0
        self.untagged_count = 0
        self.total_bytes = 0
        self.total_seconds = 0
        self.lists_created = 0
        self.files_handled = 0
        self.language = language
        self.unread = {}  # path -> "folder" or "file", of what could not be read with Modern on

    def run(self):
        here = os.getcwd()
        os.chdir(self.current_folder)
        try:
            self._make_program_folder()
            self._load_statistics()
            self._load_settings()
            self._load_entities()
            self._create_list()
            self._say_what_could_not_be_read()
        finally:
            os.chdir(here)
        if self.log is not None:
            self._store(self.app_folder + "Tunedex.log", b"".join(line + b"\r\n" for line in self.log))
        return self.result

    # -- helpers

    def _message(self, text, buttons, title):
        """Returns whether the answer was Yes; without an answer it is No."""
        answered = self.answers > 0
        self.answers -= 1
        self.result.events.append(("message", title, text, buttons, answered))
        return answered and buttons == YES_NO_EXCLAMATION

    def _status(self, text):
        self.result.events.append(("status", text))

    def _unexpected(self, error):
        return (
            "An unexpected error occurred. The error was: \r\n\r\n"
            f"Error number {error.number} - {error.description}"
        )

    def _store(self, path, data):
        self.result.files[self._absolute(path)] = data

    def _own_file(self, path, decode=decode_own_line):
        """The lines of one of the program's own files; None if there is no such file."""
        data = self.result.files.get(self._absolute(path))
        if data is None:
            if not os.path.exists(to_disk(path)):
                return None
            with open(to_disk(path), "rb") as file:
                data = file.read()
        return own_lines(data, decode)

    def _check_writable(self, path):
        """Raises the error of opening the file for writing, if any. The kernel follows links."""
        try:
            os.close(os.open(to_disk(path), os.O_WRONLY | os.O_NONBLOCK))
        except FileNotFoundError:
            folder = os.path.dirname(self._absolute(path))
            if len(os.path.basename(to_disk(path))) > 255:
                raise RunTimeError(52) from None
            if folder not in self.result.folders:
                if not os.path.isdir(folder):
                    raise RunTimeError(76) from None
                if not os.access(folder, os.W_OK | os.X_OK):
                    raise RunTimeError(75) from None
        except OSError as error:
            raise file_error(error) from error

    def _refuse_link_to_music(self, path):
        """A listing must never replace a file of the collection."""
        link = os.path.join(to_disk(self.current_folder), to_disk(path))
        if os.path.islink(link) and upper(from_disk(os.path.realpath(link))).endswith(".MP3"):
            raise RunTimeError(75)

    def _open_listing(self, path):
        self._refuse_link_to_music(path)
        self._check_writable(path)
        self._remove_abandoned_files(os.path.dirname(self._absolute(path)))

    def _remove_abandoned_files(self, folder):
        """Removes the temporary files that an earlier run left in the folder of a listing."""
        if not os.path.isdir(folder) or not os.access(folder, os.R_OK | os.W_OK | os.X_OK):
            return
        for entry in os.scandir(folder):
            if not TEMPORARY_NAME.fullmatch(entry.name) or not entry.is_file(follow_symlinks=False):
                continue
            old = time.time() - entry.stat(follow_symlinks=False).st_mtime > DAY
            if old and not self._is_locked(entry.path):
                self.result.removed.add(entry.path)

    @staticmethod
    def _is_locked(path):
        handle = os.open(path, os.O_RDONLY)
        try:
            fcntl.flock(handle, fcntl.LOCK_EX | fcntl.LOCK_NB)
            return False
        except BlockingIOError:
            return True
        finally:
            os.close(handle)

    def _absolute(self, path):
        return os.path.realpath(os.path.join(to_disk(self.current_folder), to_disk(path)))

    def _create_folder(self, path):
        """Records the folder as created. The disk stays unchanged, because the program runs after the model."""
        whole = self._absolute(path)
        if len(os.path.basename(whole)) > 255:
            raise RunTimeError(52)
        if os.path.lexists(whole):
            raise RunTimeError(57)
        parent = os.path.dirname(whole)
        if parent not in self.result.folders:
            if not os.path.isdir(parent):
                raise RunTimeError(76)
            if not os.access(parent, os.W_OK | os.X_OK):
                raise RunTimeError(75)
        self.result.folders.append(whole)

    def _say_what_could_not_be_read(self):
        if self.result.exit_status != 0 or not self.unread:
            return
        self.result.exit_status = 3
        kinds = list(self.unread.values())
        line = modern_listings.could_not_be_read(
            kinds.count("folder"), kinds.count("file"), self.settings.ErrorLog, self.app_folder + "Tunedex.log"
        )
        self.result.events.append(("line", line))

    def _folder_exists(self, path):
        if path == "" or self._absolute(path) in self.result.folders:
            return True
        try:
            return stat.S_ISDIR(os.stat(to_disk(path)).st_mode)
        except (FileNotFoundError, NotADirectoryError):
            return False
        except OSError as error:
            raise RunTimeError(52) from error

    # -- the program's own files

    def _make_program_folder(self):
        """Copies the shipped files to a new data folder, never to an existing one."""
        if self.shipped == "" or os.path.isdir(to_disk(self.app_folder)):
            return
        missing = self._absolute(self.app_folder)
        levels = []
        while not os.path.isdir(missing):
            levels.insert(0, missing)
            missing = os.path.dirname(missing)
        self.result.folders += levels
        for name in ("html_entities.lst", "tips.lst"):
            self._copy_shipped(name)
        themes = os.path.join(self.shipped, "Themes")
        if os.path.isdir(themes):
            self.result.folders.append(self._absolute(self.app_folder + "Themes"))
            for name in os.listdir(themes):
                if name.endswith(".thm"):
                    self._copy_shipped("Themes/" + name)

    def _copy_shipped(self, name):
        path = os.path.join(self.shipped, name)
        if os.path.isfile(path):
            with open(path, "rb") as file:
                self._store(self.app_folder + name, file.read())

    def _load_statistics(self):
        lines = self._own_file(self.app_folder + "stats.lst")
        if lines is None:
            return
        try:
            if len(lines) < 4:
                raise RunTimeError(62)
            if len(lines[0]) < 2:
                raise RunTimeError(5)
            rounded(whole_number(lines[1]) + 1, 32)
            lists = rounded(leading_number(lines[2]), 32)
            files = rounded(leading_number(lines[3]), 32)
            self.lists_created, self.files_handled = lists, files
        except RunTimeError as error:
            self._message(self._unexpected(error), OK_EXCLAMATION, ERROR_TITLE)

    def _load_settings(self):
        path = self.app_folder + "Tunedex.cfg"
        lines = self._own_file(path, decode_settings_line)
        if lines is None:
            self.settings.set_defaults()
            return
        for number, line in enumerate(lines, 1):
            if line == "" or line[0] == "#":
                continue
            try:
                self.settings.parse_line(line)
            except FaultyLine:
                self.result.events.append(("warning", path, number))

    def _load_entities(self):
        path = self.app_folder + "html_entities.lst"
        lines = self._own_file(path)
        if lines is None:
            return
        slots = [(0, "")]
        n = 0
        for number, line in enumerate(lines, 1):
            slots.append((0, ""))
            if line == "" or line[0] == "#":
                continue
            parts = line.split("\t")
            try:
                if len(parts) < 2:
                    raise FaultyLine
                code = rounded(whole_number(parts[0]), 16)
                if not 0 <= code <= 255:
                    raise FaultyLine
            except (FaultyLine, RunTimeError):
                self.result.events.append(("warning", path, number))
                continue
            slots[n] = (code, parts[1])
            n += 1
        self.entities = slots[: len(slots) - 1]

    def _escape(self, text):
        for character in set(settled(text)):
            if character not in self.too_long:
                self.too_long[character] = self._expands_too_far(character)
            if self.too_long[character]:
                raise RunTimeError(6)
        for code, replacement in self.entities:
            text = settled(text.replace(CODE_PAGE[code], replacement))
        return text

    def _expands_too_far(self, character):
        """Whether the character's expansion exceeds the limit after any of the slots. Counts characters instead of
        building the text, because a rejected expansion may have 2^40 bytes."""
        counts = Counter({character: 1})
        for code, replacement in self.entities:
            replaced = counts.pop(CODE_PAGE[code], 0)
            if replaced == 0:
                continue
            for each, count in Counter(replacement).items():
                counts[each] += count * replaced
            if sum(count * len(to_disk(each)) for each, count in counts.items()) > LARGEST_EXPANSION:
                return True
        return False

    def _report(self, template, track, folder, error):
        if folder != "":
            template = template.replace("%D", folder)
        if track is not None:
            template = template.replace("%F", track.full_path)
        template = template.replace("%N", str(error.number))
        template = template.replace("%S", error.description)
        if self.settings.ErrorWarnings:
            template = template.replace("\\n", "\r\n")
            self._message("An error occurred " + template, OK_EXCLAMATION, ERROR_TITLE)
        if self.settings.ErrorLog:
            template = template.replace("\r\n", "")
            # One line per error, even if a name holds line breaks.
            template = template.replace("\r", " ").replace("\n", " ")
            self.log.append(encode_own_line("An error occurred " + template))

    # -- the job

    def _create_list(self):
        try:
            self._create_list_trapped()
        except RunTimeError as error:
            if error.number == 52:
                self._message(
                    "An error occurred verifying your input directory.\r\n\r\n"
                    "This could be because you do not have permission\r\n"
                    "to access the directory, or you may be attempting\r\n"
                    "to use a non-existent network share.",
                    OK_EXCLAMATION,
                    "Error",
                )
            else:
                self._message(self._unexpected(error), OK_EXCLAMATION, "Error")

    def _create_list_trapped(self):
        s = self.settings
        multiple = s.Directory[:6] == MULT
        word = "directories" if multiple else "directory"
        if not multiple and not self._folder_exists(s.Directory):
            self._message("The specified directory does not exist!", OK_EXCLAMATION, ERROR_TITLE)
            return
        if s.DocumentType not in ("XHTML", "HTML5"):
            s.DocumentType = "HTML"
        if s.Directory in ("", MULT):
            self._message(f"No input {word} specified!", OK_EXCLAMATION, ERROR_TITLE)
            return
        if s.OutputFile == "":
            self._message("No output file specified!", OK_EXCLAMATION, ERROR_TITLE)
            return
        folder = "".join(piece + "/" for piece in s.OutputFile.split("/")[:-1])
        if not self._folder_exists(folder):
            question = "The output directory does not exist!\r\n\r\nDo you want to create it?"
            if not self._message(question, YES_NO_EXCLAMATION, ERROR_TITLE):
                return
            path = ""
            for piece in s.OutputFile.split("/")[:-1]:
                path += piece + "/"
                if not self._folder_exists(path):
                    self._create_folder(path)
        extension = "." + upper(s.OutputFile.split(".")[-1]) if "." in s.OutputFile else ""
        output_type = {".HTM": 0, ".HTML": 0, ".TXT": 1, ".TEXT": 1, ".M3U": 2}.get(extension, 0)
        if s.Modern:
            output_type = {".M3U8": 2, ".CSV": 3}.get(extension, output_type)
        self._refuse_link_to_music(self._with_extension(s.OutputFile, output_type, s.Modern))
        if s.ErrorLog:
            self._check_writable(self.app_folder + "Tunedex.log")
            self.log = []
        self._status("Searching for MP3 files...")
        self._scan(False)
        if self.found_count == 0:
            self._message(f"No MP3 files were found\r\nin the {word} specified.", OK_INFORMATION, "No MP3 files!")
            return
        self._status("Retrieving MPEG/ID3 information...")
        self._scan(True)
        self._status("Sorting information...")
        if s.Modern:
            self.tracks = modern_order.in_order(self.tracks, s.SortOrder, self.language)
        elif s.SortOrder != 0:
            self._sort()
        self._status("Writing information...")
        self._write_listing(output_type)
        self.result.exit_status = 0
        self._status("Operation complete!")
        if self.lists_created + 1 > 2147483647:
            raise RunTimeError(6)
        if self.files_handled + self.found_count > 2147483647:
            raise RunTimeError(6)

    # -- the walk

    def _start_folders(self):
        value = self.settings.Directory
        if value[:6] != MULT:
            start = value if value.endswith("/") else value + "/"
            return [(start, value)]
        value = value.replace(MULT, "")
        judged = value.split(BETWEEN)
        value = value.replace("/" + BETWEEN, BETWEEN).replace(BETWEEN, "/" + BETWEEN)
        entries = value.split(BETWEEN)
        return [(entry, entry) for entry, before in zip(entries, judged) if before != ""]

    def _scan(self, collect):
        if self.settings.Modern:
            for start, base in self._start_folders():
                self._walk_on(start, base, collect)
            return
        state = {"folder": ""}
        try:
            for start, base in self._start_folders():
                self._walk(start, base, collect, state)
        except RunTimeError as error:
            self._report_folder(state["folder"], error)

    def _report_folder(self, folder, error):
        if len(folder) > 1 and folder.endswith("/"):
            folder = folder[:-1]
        self._report("scanning the directory: \\n\\n%D\\n\\n%N: %S", None, folder, error)

    def _could_not_read(self, kind, path, folder, error):
        """Each failure is reported and counted once, although there are two passes."""
        if path not in self.unread:
            self.unread[path] = kind
            self._report_folder(folder, error)

    def _walk_on(self, start, base, collect):
        """The walk with Modern on, which no failure ends."""
        seen = set()
        pending = [start]
        while pending:
            current = pending.pop(0)
            if not current.endswith("/"):
                current += "/"
            if self._absolute(current) in self.result.folders:
                continue
            try:
                what = os.stat(to_disk(current))
                if (what.st_dev, what.st_ino) in seen:
                    continue
                seen.add((what.st_dev, what.st_ino))
                names = [from_disk(entry.name) for entry in os.scandir(to_disk(current))]
            except OSError as error:
                number = RunTimeError(76) if isinstance(error, FileNotFoundError) else file_error(error)
                self._could_not_read("folder", current, current, number)
                continue
            for name in names:
                self._entry(current, name, base, collect, pending)

    def _entry(self, current, name, base, collect, pending):
        if name.startswith("."):
            return
        is_music = upper(name).endswith(".MP3")
        try:
            mode = os.stat(to_disk(current + name)).st_mode
        except OSError as error:
            if error.errno in (errno.ENOENT, errno.ELOOP):
                return  # a link that leads nowhere
            if is_music or self.settings.Recurse:
                kind = "file" if is_music else "folder"
                self._could_not_read(kind, current + name, current, file_error(error))
            return
        if not stat.S_ISDIR(mode) and not stat.S_ISREG(mode):
            return
        if self.settings.Recurse and stat.S_ISDIR(mode):
            pending.insert(0, current + name + "/")
        elif is_music and not collect:
            self.found_count += 1
        elif is_music and stat.S_ISDIR(mode):
            self._could_not_read("file", current + name, current, RunTimeError(53))
        elif is_music:
            self._add_track(current + name, base)

    def _walk(self, start, base, collect, state):
        seen = set()
        pending = start + "\0"
        while pending:
            current, pending = pending.split("\0", 1)
            if not current.endswith("/"):
                current += "/"
            state["folder"] = current
            if self._absolute(current) in self.result.folders:
                continue  # Created for the listing, so empty.
            try:
                what = os.stat(to_disk(current))
                if (what.st_dev, what.st_ino) in seen:
                    continue
                seen.add((what.st_dev, what.st_ino))
                names = [from_disk(entry.name) for entry in os.scandir(to_disk(current))]
            except OSError as error:
                raise RunTimeError(76) if isinstance(error, FileNotFoundError) else file_error(error)
            for name in names:
                if name.startswith("."):
                    continue
                try:
                    mode = os.stat(to_disk(current + name)).st_mode
                except OSError:
                    continue
                if not stat.S_ISDIR(mode) and not stat.S_ISREG(mode):
                    continue
                if self.settings.Recurse and stat.S_ISDIR(mode):
                    pending = current + name + "/\0" + pending
                elif upper(name).endswith(".MP3"):
                    if not collect:
                        self.found_count += 1
                        continue
                    if stat.S_ISDIR(mode):
                        raise RunTimeError(53)
                    self._add_track(current + name, base)

    def _add_track(self, path, base):
        track = Track()
        track.full_path = path
        track.base_folder = base
        track.file_size = min(os.stat(to_disk(path)).st_size, 2147483647)
        self.total_bytes += track.file_size
        self.tracks.append(track)
        self._status(f"Retrieving MPEG/ID3 information ({len(self.tracks)}/{self.found_count})...")
        if self.settings.Modern:
            self._read_modern_track(track)
        else:
            self._read_track(track)

    def _read_modern_track(self, track):
        tagged, start, end = read_tags(track, self.settings)
        if not tagged:
            track.artist = track.full_path
            track.title = "No ID3 Tags!"
            self.untagged_count += 1
        try:
            Bytes(track.full_path).__exit__()
        except RunTimeError as error:
            # A file that is listed twice is reported twice, and counted once.
            self.unread[track.full_path] = "file"
            self._report("decoding the headers of: \\n\\n%F", track, "", error)
            return
        try:
            self.total_seconds += decode_audio(track, start, end)
        except RunTimeError as error:
            self._report("decoding the headers of: \\n\\n%F", track, "", error)

    def _read_track(self, track):
        first = read_id3v1(track, self.settings)
        second, search_position = detect_id3v2(track)
        if second:
            read_id3v2(track, search_position, self.settings)
            track.tag_type = 2
        elif first:
            track.tag_type = 1
        else:
            track.artist = track.full_path
            track.title = "No ID3 Tags!"
            self.untagged_count += 1
        try:
            self.total_seconds += decode_header(track, search_position)
        except RunTimeError as error:
            self._report("decoding the headers of: \\n\\n%F", track, "", error)

    # -- the sort

    def _sort(self):
        order = self.settings.SortOrder
        table = [None] + self.tracks
        count = len(self.tracks)

        def out_of_order(earlier, later):
            for field in ("artist", "album", "title"):
                a = to_disk(upper(getattr(earlier, field)))
                b = to_disk(upper(getattr(later, field)))
                if a != b:
                    return a > b if order == 1 else order == 2 and a < b
            return False

        gap = count // 2 + 1
        while gap > 0:
            for i in range(1, count - gap + 1):
                j = i
                while j >= 1:
                    if not out_of_order(table[j], table[j + gap]):
                        break
                    for field in Track.SWAPPED:
                        a, b = getattr(table[j], field), getattr(table[j + gap], field)
                        setattr(table[j], field, b)
                        setattr(table[j + gap], field, a)
                    j -= gap
            gap //= 2

    # -- listings

    def _working_columns(self):
        if not self.settings.Modern:
            return self._merged(self.settings.ActiveColumns)
        columns, hidden = modern_listings.hide_album_artist(self.settings.ActiveColumns)
        return [modern_listings.show_album_artist(column, hidden) for column in self._merged(columns)]

    def _merged(self, columns):
        s = self.settings
        position_artist = upper(columns).find("ARTIST") + 1
        position_title = upper(columns).find("TITLE") + 1
        if s.Merge > 0 and position_artist > 0 and position_title > 0:
            start = min(position_artist, position_title)
            prefix = start - 1
            bar = columns.find("|", start - 1) + 1
            columns = settled(columns.replace("Title" if position_artist < position_title else "Artist", ""))
            columns = columns.replace("||", "|")
            merged = ""
            if s.Merge == 1:
                merged = "ArtistTitle"
            elif s.Merge == 2:
                merged = "ArtistAlbumTitle"
                columns = settled(columns.replace("Album", "")).replace("||", "|")
            columns = left(columns, prefix) + merged + right(columns, len(columns) - bar + 1)
            if columns.endswith("|"):
                columns = columns[:-1]
            if columns.startswith("|"):
                columns = columns[1:]
        return columns.split("|") if columns else []

    def _write_listing(self, output_type):
        columns = self._working_columns()
        if output_type in (1, 3) and self.settings.Modern:
            self._write_modern_table(columns, output_type)
        elif output_type == 1:
            self._write_text(columns)
        elif output_type == 2:
            self._write_playlist()
        else:
            self._write_html(columns)

    @staticmethod
    def _with_extension(path, output_type, modern=False):
        endings, added = [
            ((".HTML", ".HTM"), ".htm"), ((".TXT",), ".txt"), ((".M3U",), ".m3u"), ((".CSV",), ".csv"),
        ][output_type]  # fmt: skip
        if modern and output_type == 2:
            endings += (".M3U8",)
        return path if upper(path).endswith(endings) else path + added

    @staticmethod
    def _header_text(column):
        return {"ARTISTTITLE": "Artist: Title", "ARTISTALBUMTITLE": "Artist (Album): Title"}.get(upper(column), column)

    def _write_text(self, columns):
        s = self.settings
        s.OutputFile = self._with_extension(s.OutputFile, 1)
        self._open_listing(s.OutputFile)
        lines = []

        def finish(line):
            if line == "":
                raise RunTimeError(5)
            lines.append(line[:-1])

        finish("".join(self._header_text(column) + "\t" for column in columns))
        for i, track in enumerate(self.tracks, 1):
            line = ""
            for column in columns:
                cell = self._text_cell(upper(column), track, i)
                if cell is not None:
                    line += cell + "\t"
            finish(line)
        self._store(s.OutputFile, b"".join(encode_text_listing(line) + b"\r\n" for line in lines))

    def _write_modern_table(self, columns, output_type):
        s = self.settings
        s.OutputFile = self._with_extension(s.OutputFile, output_type)
        self._open_listing(s.OutputFile)
        header = [self._header_text(column) for column in columns]
        rows = []
        for i, track in enumerate(self.tracks, 1):
            cells = [self._table_cell(upper(column), track, i, output_type) for column in columns]
            rows.append([cell for cell in cells if cell is not None])
        if [] in [header, *rows]:
            raise RunTimeError(5)
        write = modern_listings.csv_listing if output_type == 3 else modern_listings.text_listing
        self._store(s.OutputFile, write(header, rows))

    def _table_cell(self, key, track, i, output_type):
        if output_type == 3 and key == "DURATION":
            return modern_listings.hours(track.duration)
        if output_type == 3 and key == "FILE SIZE":
            return str(track.file_size)
        cell = self._text_cell(key, track, i)
        # Every line of a .csv file has the same number of fields.
        return "" if cell is None and output_type == 3 else cell

    def _text_cell(self, key, track, i):
        if self.settings.Modern and key in modern_listings.COLUMNS:
            return getattr(track, modern_listings.COLUMNS[key])
        pieces = track.full_path.split("/")
        with_album = f"{track.artist} ({track.album})" if track.album != "" else track.artist
        return {
            "NUMBER": str(i),
            "ARTIST": track.artist,
            "ALBUM": track.album,
            "TITLE": track.title,
            "YEAR": track.year,
            "GENRE": track.genre,
            "MPEG TYPE": track.mpeg_type,
            "MODE": track.mode,
            "BITRATE": track.bitrate,
            "FREQUENCY": track.frequency,
            "DURATION": track.duration,
            "FILE SIZE": size_text(track.file_size, self.settings.SizeType, self.region),
            "FILENAME": pieces[-1],
            "FOLDER PATH": "".join(piece + "/" for piece in pieces[:-1])[:-1],
            "FULL PATH": track.full_path,
            "ARTISTTITLE": track.artist + ": " + track.title,
            "ARTISTALBUMTITLE": with_album + ": " + track.title,
        }.get(key)

    def _write_playlist(self):
        s = self.settings
        s.OutputFile = self._with_extension(s.OutputFile, 2, s.Modern)
        self._open_listing(s.OutputFile)
        if s.Modern:
            self._store(s.OutputFile, modern_listings.playlist(self.tracks, self.current_folder))
            return
        ascii_only = all(all(ord(character) < 128 for character in track.full_path) for track in self.tracks)
        encode = encode_text_listing if ascii_only else to_disk
        data = b"#EXTM3U\r\n"
        for i, track in enumerate(self.tracks, 1):
            colon = track.duration.find(":")
            if colon < 0:
                raise RunTimeError(5)
            seconds = int(leading_number(track.duration[:colon]) * 60 + leading_number(track.duration[colon + 1 :]))
            data += encode(f"#EXTINF:{seconds},{track.artist}: {track.title}") + b"\r\n"
            data += to_disk(track.full_path) + b"\r\n"
        self._store(s.OutputFile, data)

    # -- pages

    def _expand(self, text, line_break):
        hours_text = self._play_time()
        for placeholder, value in [
            ("%D", self.region.date),
            ("%T", self.region.time),
            ("%C", str(len(self.tracks))),
            ("%N", str(self.untagged_count)),
            ("%S", size_text(self.total_bytes, self.settings.SizeType, self.region)),
            ("%P", hours_text),
            ("%%", "%"),
            ("%L", line_break),
        ]:
            text = text.replace(placeholder, value)
        return text

    def _play_time(self):
        seconds = self.total_seconds
        minutes = seconds // 60
        if minutes > 59:
            text = str(minutes // 60) + ":" + two_digits(minutes - 60 * (minutes // 60))
        else:
            text = str(minutes)
        return text + ":" + two_digits(seconds - 60 * minutes)

    def _write_html(self, columns):
        s = self.settings
        s.OutputFile = self._with_extension(s.OutputFile, 0)
        line_break = "<br />" if s.DocumentType == "XHTML" else "<br>"
        count = len(self.tracks)
        pages = 1
        base_name = extension = ""
        if s.Spanning > 0:
            pages = count // s.Spanning + (1 if count % s.Spanning else 0)
            dot = s.OutputFile.rfind(".")
            base_name, extension = s.OutputFile[:dot], s.OutputFile[dot:]
            if s.Spanning > count:
                pages = 1
        s.WindowTitle = self._expand(s.WindowTitle, " - ")
        s.PageTitle = self._expand(s.PageTitle, line_break)
        s.PageFooter = self._expand(s.PageFooter, line_break)
        for page in range(1, pages + 1):
            name, title = s.OutputFile, s.WindowTitle
            if pages > 1:
                name = f"{base_name}.{page:03d}{extension}"
                title = f"{s.WindowTitle} - Page {page} of {pages}"
            self._open_listing(name)
            lines = self._head(title)
            if pages > 1:
                lines.append(self._navigation(page, pages, base_name, extension))
            lines.append(self._heading(page, pages, line_break))
            lines += self._table_head(columns)
            first, last = (1, count) if s.Spanning <= 0 else ((page - 1) * s.Spanning + 1, page * s.Spanning)
            kind = 0
            for i in range(first, last + 1):
                if i > count:
                    break
                if s.AltRows:
                    kind += 1
                    if kind == 3:
                        kind = 1
                lines.append(self._row(kind, i, columns))
            lines += self._table_foot(len(columns) - 1)
            if pages > 1:
                lines.append(self._navigation(page, pages, base_name, extension))
            lines += self._end(line_break)
            encode = modern_listings.encode_page if s.Modern else encode_page
            self._store(name, b"".join(encode(line) + b"\r\n" for line in lines))

    def _head(self, title):
        s = self.settings
        if s.DocumentType == "XHTML":
            lines = [
                '<?xml version="1.0" encoding="iso-8859-1"?>',
                '<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" '
                '"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">',
                '<html xmlns="http://www.w3.org/1999/xhtml" xml:lang="en" lang="en">',
            ]
            ending = " /"
        else:
            lines = [
                '<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN" '
                '"http://www.w3.org/TR/1999/REC-html401-19991224/loose.dtd">',
                "<html>",
            ]
            ending = ""
        lines.append("\t<head>")
        lines.append("\t\t<title>" + title + "</title>")
        lines.append('\t\t<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1"' + ending + ">")
        lines.append(
            f'\t\t<meta name="generator" content="Tunedex v{VERSION} by Orvando ({HOME_PAGE})"' + ending + ">"
        )
        if s.FontCSS or s.ColourCSS:
            lines += self._style()
        lines.append("\t</head>")
        lines.append(f'\t<body bgcolor="#{self._value(s.Colour[1])}" text="#{self._value(s.Colour[0])}" link="#{self._value(s.Colour[8])}">')
        return lines

    def _value(self, text):
        """A text of the settings inside an attribute."""
        return modern_listings.attribute(text) if self.settings.Modern else text

    def _style(self):
        s = self.settings
        body, tr, tr2, th, td, a = ("\t\t\t" + name + " {" for name in ("body", "tr", "tr.r2", "th", "td", "a"))
        if s.ColourCSS:
            body += f"color: #{s.Colour[0]}; background-color: #{s.Colour[1]}; "
            tr += f"color: #{s.Colour[4]}; background-color: #{s.Colour[5]}; "
            tr2 += f"color: #{s.Colour[6]}; background-color: #{s.Colour[7]}; "
            th += f"color: #{s.Colour[2]}; background-color: #{s.Colour[3]}; "
            a += f"color: #{s.Colour[8]}; "
        if s.FontCSS:

            def family_and_size(font):
                names = {"1": "xx-small", "2": "x-small", "3": "small", "4": "medium", "5": "large", "6": "x-large",
                         "7": "xx-large"}  # fmt: skip
                return f"font-family: {font[0]}; font-size: {names.get(font[1], 'small')}; "

            def only_when_set(font):
                return ("font-weight: bold; " if font[2] else "") + ("font-style: italic; " if font[3] else "")

            body += family_and_size(s.Font[0]) + only_when_set(s.Font[0])
            th += family_and_size(s.Font[1]) + only_when_set(s.Font[1])
            td += family_and_size(s.Font[2])
            td += "font-weight: bold; " if s.Font[2][2] else "font-weight: normal; "
            td += "font-style: italic; " if s.Font[2][3] else "font-style: normal; "
        body, tr, tr2, th, td, a = (rule[:-1] + "}" for rule in (body, tr, tr2, th, td, a))
        opener, closer = ("<![CDATA[", "]]>") if s.DocumentType == "XHTML" else ("<!--", "//-->")
        if s.Modern and s.DocumentType == "XHTML":
            # Comments for browsers that read the page as HTML; a CDATA section for XML parsers.
            opener, closer = "/*<![CDATA[*/", "/*]]>*/"
        rules = [body, tr, tr2, th, td] + ([a] if s.ColourCSS else [])
        if s.Modern:
            rules = [rule.replace("<", "\\3c ").replace(">", "\\3e ") for rule in rules]
        lines = ['\t\t<style type="text/css">', "\t\t" + opener, *rules]
        return lines + ["\t\t" + closer, "\t\t</style>"]

    def _font_open(self, font, colour):
        s = self.settings
        text = ""
        if s.FontHTML or s.ColourHTML:
            text = "<font "
        if s.FontHTML:
            text += f'face="{self._value(s.Font[font][0])}" size="{self._value(s.Font[font][1])}" '
        if s.ColourHTML:
            text += f'color="#{self._value(s.Colour[colour])}" '
        return text[:-1] + ">" if text else ""

    def _font_close(self):
        return "</font>" if self.settings.FontHTML or self.settings.ColourHTML else ""

    def _emphasis(self, font):
        s = self.settings
        bold = s.FontHTML and s.Font[font][2]
        italic = s.FontHTML and s.Font[font][3]
        return (
            ("<b>" if bold else "") + ("<i>" if italic else ""),
            ("</i>" if italic else "") + ("</b>" if bold else ""),
        )

    def _navigation(self, page, pages, base_name, extension):
        base = base_name.split("/")[-1]
        if self.settings.Modern:
            base = modern_listings.percent_encoded(base)
            extension = modern_listings.percent_encoded(extension)
        line = '\t\t<p align="center"><font size="2">'
        if page == 1:
            line += "&lt;&lt; Previous Page"
        else:
            line += f'<a href="{base}.{page - 1:03d}{extension}">&lt;&lt; Previous Page</a>'
        line += "&nbsp;&nbsp;&#124;&nbsp;&nbsp;"
        if page == pages:
            line += "Next Page &gt;&gt;"
        else:
            line += f'<a href="{base}.{page + 1:03d}{extension}">Next Page &gt;&gt;</a>'
        return line + "</font></p>"

    def _heading(self, page, pages, line_break):
        opening, closing = self._emphasis(0)
        line = '\t\t<p align="center">' + self._font_open(0, 0) + opening + self.settings.PageTitle + closing
        line += self._font_close()
        if pages > 1:
            line += f'{line_break}<font size="2">Page {page} of {pages}</font>'
        return line + "</p>"

    def _table_head(self, columns):
        s = self.settings
        unit, width = s.TableWidth
        percent = "%" if unit == 1 else ""
        lines = [
            f'\t\t<table width="{width}{percent}" border="0" cellspacing="0" cellpadding="0" align="center">',
            "\t\t\t<tr>",
            "\t\t\t\t<td>",
            f'\t\t\t\t\t<table width="100%" border="0" bgcolor="#{self._value(s.Colour[9])}" '
            f'cellspacing="{s.TableBorder}" cellpadding="{s.TablePadding}">',
        ]
        opening, closing = self._emphasis(1)
        row = f'\t\t\t\t\t\t<tr bgcolor="#{self._value(s.Colour[3])}">'
        for column in columns:
            row += "<th"
            if upper(column) in ("ARTIST", "ARTISTTITLE", "ARTISTALBUMTITLE", "ALBUM", "TITLE", "FOLDER PATH",
                                 "FULL PATH", "FILENAME"):  # fmt: skip
                row += ' align="left"'
            if s.Modern and upper(column) in ("ALBUM ARTIST", "COMPOSER", "COMMENT"):
                row += ' align="left"'
            row += ">" + self._font_open(1, 2) + opening + self._header_text(column) + closing + self._font_close()
            row += "</th>"
        if s.Modern and not columns and not s.DoLinks:
            # A row without a cell is not valid.
            row += "<th>" + self._font_open(1, 2) + opening + closing + self._font_close() + "</th>"
        if s.DoLinks:
            row += "<th>" + self._font_open(1, 2) + "Link" + self._font_close() + "</th>"
        return lines + [row + "</tr>"]

    def _row(self, kind, i, columns):
        s = self.settings
        track = self.tracks[i - 1]
        background, colour = (7, 6) if kind == 2 else (5, 4)
        opening, closing = self._emphasis(2)
        row = f'\t\t\t\t\t\t<tr bgcolor="#{self._value(s.Colour[background])}"'
        if kind == 2 and s.FontCSS:
            row += ' class="r2"'
        row += ">"
        for column in columns:
            key = upper(column)
            row += "<td"
            cell = self._html_cell(key, track, i)
            if cell is not None:
                if key in ("NUMBER", "BITRATE", "FREQUENCY", "DURATION", "FILE SIZE"):
                    row += ' align="right"'
                if s.Modern and key in ("TRACK", "DISC"):
                    row += ' align="right"'
                row += ">" + self._font_open(2, colour) + opening + cell
            elif s.Modern:
                row += ">" + self._font_open(2, colour) + opening
            row += closing + self._font_close() + "</td>"
        if s.Modern and not columns and not s.DoLinks:
            row += "<td>" + self._font_open(2, colour) + opening + closing + self._font_close() + "</td>"
        if s.DoLinks:
            row += '<td align="center">' + self._font_open(2, colour) + opening
            target = s.LinkPrefix + self._link(track)
            if s.Modern:
                target = modern_listings.attribute(s.LinkPrefix + modern_listings.percent_encoded(self._link(track)))
            row += '<a href="' + target + '">Link</a>'
            row += closing + self._font_close() + "</td>"
        return row + "</tr>"

    def _html_cell(self, key, track, i):
        if key in ("ARTISTTITLE", "ARTISTALBUMTITLE"):
            cell = "<b>" + self._escape(track.artist)
            if key == "ARTISTALBUMTITLE" and track.album != "":
                cell += f" ({self._escape(track.album)})"
            return cell + ":</b> " + self._escape(track.title)
        text = self._text_cell(key, track, i)
        if text is None or key in ("NUMBER", "FILE SIZE"):
            return text
        empty_columns = ["ALBUM", "YEAR", "GENRE"] + (list(modern_listings.COLUMNS) if self.settings.Modern else [])
        if key in empty_columns and text == "":
            return "&nbsp;"
        return self._escape(text)

    def _link(self, track):
        link_type = self.settings.LinkType
        if link_type == 0:
            return track.full_path
        if link_type == 1:
            return "/" + track.full_path.replace(":", "")
        if link_type == 2:
            base = track.base_folder if track.base_folder.endswith("/") else track.base_folder + "/"
            place = track.full_path.find(base)
            return track.full_path[place + len(base) :] if place >= 0 else track.full_path
        return ""

    def _table_foot(self, last_column):
        s = self.settings
        span = last_column + 1 + (1 if s.DoLinks else 0)
        if s.Modern:
            span = max(span, 1)
        return [
            f'\t\t\t\t\t\t<tr bgcolor="#{self._value(s.Colour[3])}"><th colspan="{span}">' + self._font_open(1, 2)
            + f"Created with Tunedex v{VERSION} by Orvando" + self._font_close() + "</th></tr>",
            "\t\t\t\t\t</table>",
            "\t\t\t\t</td>",
            "\t\t\t</tr>",
            "\t\t</table>",
        ]  # fmt: skip

    def _end(self, line_break):
        return [
            '\t\t<p align="center">',
            "\t\t\t" + self._font_open(2, 0) + self.settings.PageFooter + line_break + line_break,
            f'\t\t\t<a href="{HOME_PAGE}" target="_blank">{HOME_PAGE}</a>' + self._font_close() + line_break,
            "\t\t</p>",
            "\t</body>",
            "</html>",
        ]
