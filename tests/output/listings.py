"""Runs the program for the tests that check its listings with other programs."""

import os
import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
import surroundings  # noqa: E402

# Every setting: a key that a settings file lacks gets no default.
DEFAULTS = {
    "WindowTitle": "MP3 List (%D)",
    "PageTitle": "MP3 Listing (%C files)",
    "PageFooter": "Created on %D at %T",
    "Recurse": "1",
    "Spanning": "100",
    "SizeType": "2",
    "SortOrder": "1",
    "ErrorWarnings": "0",
    "ErrorLog": "1",
    "ConfirmQuit": "1",
    "DocumentType": "HTML",
    "DoLinks": "0",
    "LinkType": "0",
    "LinkPrefix": "file:///",
    "ActiveColumns": "Number|Artist|Album|Title|Duration",
    "InactiveColumns": "",
    "Merge": "2",
    "MoveTheArtists": "1",
    "Font(0)": "Times New Roman, serif%|%3%|%1%|%0",
    "Font(1)": "Tahoma, Arial, sans-serif%|%2%|%1%|%0",
    "Font(2)": "Tahoma, Arial, sans-serif%|%1%|%0%|%0",
    "FontCSS": "1",
    "FontHTML": "0",
    "Colour(0)": "000000",
    "Colour(1)": "FFFFFF",
    "Colour(2)": "FFFF00",
    "Colour(3)": "000066",
    "Colour(4)": "000000",
    "Colour(5)": "CECECE",
    "Colour(6)": "000000",
    "Colour(7)": "DEDEDE",
    "Colour(8)": "0000FF",
    "Colour(9)": "000000",
    "AltRows": "1",
    "ColourCSS": "1",
    "ColourHTML": "0",
    "TableWidth": "1/99",
    "TablePadding": "2",
    "TableBorder": "1",
}
ALL_COLUMNS = ("Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|File Size|Filename|"
               "Folder Path|Full Path")
MODERN_COLUMNS = ALL_COLUMNS + "|Track|Disc|Album Artist|Composer|Comment"


class Program:
    """The program, with a program folder in `work` and without a display."""

    def __init__(self, program, data, work):
        self.program = pathlib.Path(program)
        self.work = pathlib.Path(work)
        shutil.rmtree(self.work, ignore_errors=True)
        self.folder = self.work / "program"
        registry = self.work / "registry" / "Corvale Works"
        self.folder.mkdir(parents=True)
        registry.mkdir(parents=True)
        for file in pathlib.Path(data).glob("*.lst"):
            shutil.copy(file, self.folder)
        (registry / "Tunedex.conf").write_text(f'[General]\nInstallationPath="{self.folder}"\n')
        self.environment = surroundings.kept() | {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8",
                                                  "XDG_CONFIG_HOME": str(self.work / "registry")}

    def list(self, folders, output="list.htm", **changes):
        """Lists the folders and returns the pages in order. Indexed settings are passed as Font0, Colour9. Modern,
        which is off by default, becomes the last line of the settings file."""
        pages = self.work / "pages"
        shutil.rmtree(pages, ignore_errors=True)
        folders = [str(folder) for folder in folders]
        directory = folders[0] if len(folders) == 1 else "%MULT%" + "%||%".join(folders)
        settings = dict(DEFAULTS, Directory=directory, OutputFile=str(pages / output))
        pages.mkdir()
        for name, value in changes.items():
            if name not in settings and name not in ("Modern", "GroupByAlbum"):
                name = f"{name[:-1]}({name[-1]})"
                assert name in settings, name
            settings[name] = value
        lines = "".join(f"{name}={value}\r\n" for name, value in settings.items())
        (self.folder / "Tunedex.cfg").write_bytes(lines.encode())
        run = subprocess.run([self.program, "/AUTO"], env=self.environment, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=300)
        assert run.returncode == 0, run.stdout.decode(errors="replace")
        found = sorted(pages.iterdir())
        assert found, "the exit status is 0, but there is no listing"
        return found


def make_sample(make_sample, tagger, folder):
    """The sample collection, generated if it is missing or out of date."""
    subprocess.run([make_sample, str(folder), "--tagger", tagger], check=True, stdout=subprocess.DEVNULL)
    return pathlib.Path(folder)
