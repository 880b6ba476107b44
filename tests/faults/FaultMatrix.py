#!/usr/bin/env python3
"""Makes every file system call of a small run fail, one at a time, and checks the outcome.

usage: FaultMatrix.py PROGRAM INTERPOSER [--sample] [--windows]
    --sample   a few errors for each call instead of all
    --windows  PROGRAM is fault_windows_run, which answers its own messages
"""
import collections
import concurrent.futures
import errno
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

sys.dont_write_bytecode = True  # keep bytecode out of the source tree
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
import surroundings  # noqa: E402

ERRORS = ["ENOENT", "EACCES", "EIO", "ENOSPC", "EMFILE", "EINTR", "short"]
KINDS = ["open", "opendir", "read", "write", "close", "readdir", "mkdir", "unlink", "rename", "stat",
         "chmod", "xattr", "truncate", "other"]
TIMEOUT = 60
WINDOWS = "--windows" in sys.argv
# Errors after which a run must still succeed, without any message.
UNNOTICED = {"EINTR", "short"}
MESSAGES = [b"error occurred", b"could not start", b"specified directory does not exist!",
            b"No input directory specified!", b"No output file specified!", b"No MP3 files were found"]
OLD_LISTING = b"the old listing\r\n"
OLD_STATISTICS = b'"2026-01-01"\r\n7\r\n3\r\n99\r\n'


def frame(name, text):
    return name + struct.pack(">I", len(text) + 1) + b"\0\0\0" + text


def tagged(title, artist, seconds):
    body = frame(b"TIT2", title) + frame(b"TPE1", artist)
    head = b"ID3\3\0\0" + bytes([0, 0, len(body) >> 7, len(body) & 127])
    v1 = b"TAG" + title.ljust(30, b"\0") + artist.ljust(30, b"\0") + b"\0" * 64 + b"\x11"
    return head + body + (b"\xff\xfb\x90\x64" + b"\0" * 413) * (seconds * 38) + v1


class Scenario:
    """A folder with a collection and a program folder, created for each run."""

    def __init__(self, name, output, answer=b"", old=(), settings=True, warnings=True, sort=1, link=False,
                 dangling=False):
        self.name, self.output, self.answer, self.old = name, output, answer, old
        self.settings, self.warnings, self.sort, self.link = settings, warnings, sort, link
        self.dangling = dangling

    def make(self, root):
        music = root / "watched" / "music"
        (music / "more").mkdir(parents=True)
        (music / "a.mp3").write_bytes(tagged(b"Second", b"B Band", 2))
        (music / "b.mp3").write_bytes(b"\0" * 3000 + tagged(b"First", b"A Band", 1)[10:])
        (music / "more" / "c.mp3").write_bytes(tagged(b"Third", b"The C", 3))
        os.symlink("more/c.mp3", music / "d.mp3")
        if not self.output.endswith(".m3u"):  # a playlist requires a duration
            (music / "no audio.MP3").write_bytes(b"nothing")
        output_folder = root / "watched" / "out"
        if self.answer != b"y\n":
            output_folder.mkdir()
        for name in self.old:
            if self.link:
                (root / "watched" / "real").mkdir()
                (root / "watched" / "real" / name).write_bytes(OLD_LISTING)
                (output_folder / name).symlink_to(pathlib.Path("..", "real", name))
            else:
                (output_folder / name).write_bytes(OLD_LISTING)
        if self.dangling:
            (root / "watched" / "real").mkdir()
            (output_folder / self.output).symlink_to(pathlib.Path("..", "real", self.output))
        registry = root / "config" / "Corvale Works"
        registry.mkdir(parents=True)
        program = root / "watched" / "program"
        if self.settings:
            program.mkdir()
            (registry / "Tunedex.conf").write_text(f'[General]\nInstallationPath="{program}"\n')
            (program / "Tunedex.cfg").write_bytes("\r\n".join([
                f"Directory={music}", f"OutputFile={output_folder / self.output}", "WindowTitle=List",
                "PageTitle=%C files", "PageFooter=%P", "Recurse=1", "Spanning=3", "SizeType=2",
                f"SortOrder={self.sort}", f"ErrorWarnings={int(self.warnings)}", "ErrorLog=1", "DocumentType=HTML",
                "ActiveColumns=Number|Artist|Title|Duration|Full Path", "TableWidth=1/99", ""]).encode())
            (program / "stats.lst").write_bytes(OLD_STATISTICS)
            (program / "html_entities.lst").write_bytes(b"38\t&amp;\r\n60\t&lt;\r\n62\t&gt;\r\n")


SCENARIOS = [
    Scenario("pages over old ones", "list.htm", old=("list.001.htm", "list.002.htm")),
    Scenario("text behind a link", "list.txt", old=("list.txt",), link=True, warnings=False),
    Scenario("text for a dangling link", "list.txt", dangling=True, warnings=False),
    Scenario("playlist in a new folder", "deep/list.m3u", answer=b"y\n", sort=2),
    Scenario("first start", "", settings=False),
]


def files_of(folder):
    found = {}
    for path in sorted(folder.rglob("*")):
        if path.is_symlink():
            found[str(path.relative_to(folder))] = ("link", os.readlink(path))
        elif path.is_file():
            found[str(path.relative_to(folder))] = ("file", path.read_bytes())
    return found


Outcome = collections.namedtuple("Outcome", "status stderr files log counts struck open")


def run(program, interposer, scenario, kind="", n=0, error="", kill=False, stays=False):
    with tempfile.TemporaryDirectory(prefix="tunedex-fault-") as folder:
        # Same path length in all runs, so that outputs differ only by the fault.
        root = pathlib.Path(folder)
        scenario.make(root)
        environment = surroundings.kept() | {
            "PATH": os.environ.get("PATH", ""), "HOME": str(root / "home"), "LC_ALL": "C",
            "XDG_CONFIG_HOME": str(root / "config"), "XDG_CONFIG_DIRS": str(root / "nowhere"),
            "XDG_DATA_HOME": str(root / "watched" / "data"),
            "LD_PRELOAD": surroundings.preload(program, interposer),
            "TUNEDEX_FAULT_PREFIX": str(root / "watched"),
            "TUNEDEX_FAULT_CALL": kind, "TUNEDEX_FAULT_N": str(n),
            "TUNEDEX_FAULT_ERROR": "short" if error == "short" else str(getattr(errno, error, 0)),
            "TUNEDEX_FAULT_KILL": "1" if kill else "", "TUNEDEX_FAULT_STAYS": "1" if stays else "",
            "TUNEDEX_FAULT_DENY": str(pathlib.Path(program).resolve().parent) + "/",
            "TUNEDEX_FAULT_REPORT": str(root / "report"),
        }
        if WINDOWS:
            environment |= {"QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": str(root),
                            "TUNEDEX_ANSWER": "yes" if scenario.answer else ""}
        try:
            done = subprocess.run([program, "/AUTO"], env=environment, input=scenario.answer, capture_output=True,
                                  timeout=TIMEOUT, cwd=root, check=False)
        except subprocess.TimeoutExpired:
            return Outcome("hangs", b"", {}, b"", {}, 0, 0)
        report = {}
        if (root / "report").exists():
            report = {name: int(count) for name, count in
                      (line.split() for line in (root / "report").read_text().splitlines())}
        # The folder name differs between runs.
        clean = lambda data: data.replace(str(root).encode(), b"/run")
        files = {name: (kind, clean(data) if kind == "file" else data) for name, (kind, data) in
                 files_of(root / "watched").items() if not name.startswith("music/")}
        log = files.pop("program/Tunedex.log", ("file", b""))[1]
        return Outcome(done.returncode, clean(done.stderr), files, log, report, report.get("struck", 0),
                       report.get("left-open", -1))


def rows_in(data):
    """The number of tracks of a complete listing; None for an incomplete one."""
    if data.startswith(b"<!DOCTYPE"):
        return data.count(b"<td align=\"right\">") // 2 if data.endswith(b"</html>\r\n") else None
    if not data.endswith(b"\r\n"):
        return None
    lines = data.split(b"\r\n")[:-1]
    if data.startswith(b"#EXTM3U"):
        return (len(lines) - 1) // 2 if len(lines) % 2 else None
    return len(lines) - 1 if all(line.count(b"\t") == 4 for line in lines) else None


def is_listing(name):
    return re.fullmatch(r"(out|real)/(deep/)?list(\.\d+)?\.(htm|txt|m3u)", name) is not None


def marks_unfinished_start(name, held):
    """Whether this is the mark that makes the next start finish filling the data folder."""
    return name == "data/tunedex/.filling" and held == ("file", b"")


def violations(scenario, outcome, right, before, kind, error):
    """The rules that this outcome violates."""
    if outcome.status == "hangs":
        return ["hangs"]
    if outcome.status not in (0, 1, 2):
        return [f"ends with {outcome.status}: {outcome.stderr[-300:]!r}"]
    found = []
    if outcome.open != 0:
        found.append(f"{outcome.open} files left open")
    rows = 0
    written = set()
    for name in sorted(set(before) | set(outcome.files)):
        held, was = outcome.files.get(name), before.get(name)
        if held == was:
            continue
        if ".tunedex-" in name:
            found.append(f"left behind: {name}")
        elif held is None:
            found.append(f"lost: {name}")
        elif is_listing(name) and held[0] == "file":
            written.add(name)
            if rows_in(held[1]) is None:
                found.append(f"neither old nor complete: {name}")
            rows += rows_in(held[1]) or 0
        elif held != right.files.get(name) and not marks_unfinished_start(name, held):
            found.append(f"damaged: {name}")
    reported = outcome.log != right.log or any(outcome.stderr.count(text) > right.stderr.count(text) for text in MESSAGES)
    listed = {name for name in right.files if is_listing(name) and right.files[name] != before.get(name)}
    complete = sum(rows_in(right.files[name][1]) for name in listed if right.files[name][0] == "file")
    if outcome.status == 0:
        # ENOENT is the correct answer for a dangling link, which is not a track, and for a missing output link: accept
        # one track less.
        gone = 1 if kind in ("stat", "other") and error == "ENOENT" else 0
        if not reported and (rows < complete - gone or (gone == 0 and written != listed)):
            found.append(f"{rows} of {complete} tracks in {sorted(written)}, not reported")
        if not written:
            found.append("reports success without a listing")
    if outcome.status != right.status and not reported:
        found.append("fails without a message")
    if error in UNNOTICED and (outcome.status, outcome.files, outcome.log) != (right.status, right.files, right.log):
        found.append(f"{error} changes the outcome")
    return found


def sample(point):
    """Two errors for each call, chosen by hash, and the two that must have no effect."""
    usual = [error for error in ERRORS if error not in UNNOTICED]
    start = zlib.crc32(repr(point).encode())
    if WINDOWS and start % 3:
        return [usual[start % 5]]
    return sorted({usual[start % 5], usual[(start // 5) % 5], "EINTR"} |
                  ({"short"} if point[1] in ("read", "write") else set()))


def main():
    program, interposer = (os.path.abspath(path) for path in sys.argv[1:3])
    full = "--sample" not in sys.argv
    bad = []
    print(f"{'scenario':26}{'call':9}{'points':>7}{'runs':>6}  outcomes")
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        for scenario in SCENARIOS:
            right = run(program, interposer, scenario)
            with tempfile.TemporaryDirectory() as folder:
                scenario.make(pathlib.Path(folder))
                before = {name: (kind, data.replace(folder.encode(), b"/run") if kind == "file" else data)
                          for name, (kind, data) in files_of(pathlib.Path(folder) / "watched").items()
                          if not name.startswith("music/")}
            expected = 0 if scenario.settings else 1
            if right.status != expected or right.open != 0:
                bad.append(f"{scenario.name}: fails without a fault: {right}")
                continue
            for kind in KINDS:
                jobs = []
                for n in range(1, right.counts.get(kind, 0) + 1):
                    errors = [error for error in ERRORS if error != "short" or kind in ("read", "write")]
                    for error in errors if full else sample((scenario.name, kind, n)):
                        jobs.append((n, error, pool.submit(run, program, interposer, scenario, kind, n, error)))
                    # Permanent failure from this call on, like a full disk; and a kill.
                    if kind in ("open", "write"):
                        lasting = "ENOSPC" if kind == "write" else "EMFILE"
                        jobs.append((n, lasting + " permanently",
                                     pool.submit(run, program, interposer, scenario, kind, n, lasting, False, True)))
                    if not WINDOWS:
                        jobs.append((n, "kill", pool.submit(run, program, interposer, scenario, kind, n, "", True)))
                outcomes = collections.Counter()
                for n, error, future in jobs:
                    outcome = future.result()
                    point = f"{scenario.name}: {error} at {kind} {n}"
                    if error == "kill":
                        outcomes["killed"] += 1
                        bad += [f"{point}: {what}" for what in after_a_kill(scenario, outcome, right, before)]
                        continue
                    if outcome.status != "hangs" and outcome.struck == 0:
                        outcomes["not reached"] += 1
                        continue
                    reported = "reported" if outcome.log != right.log or outcome.stderr != right.stderr else "silent"
                    outcomes[f"{outcome.status} {reported}"] += 1
                    bad += [f"{point}: {what}" for what in
                            violations(scenario, outcome, right, before, kind, error)]
                if jobs:
                    shown = ", ".join(f"{count} x {what}" for what, count in sorted(outcomes.items()))
                    print(f"{scenario.name:26}{kind:9}{right.counts[kind]:7}{len(jobs):6}  {shown}", flush=True)
    print(f"violations: {len(bad)}")
    for line in bad[:60]:
        print("  " + re.sub(r"\s+", " ", line)[:600])
    return 1 if bad else 0


def after_a_kill(scenario, outcome, right, before):
    """Every file must have its old or its new content; a temporary file may remain."""
    if outcome.status != -9:
        return [] if outcome.struck == 0 and outcome.status == right.status else [f"survives with {outcome.status}"]
    # Resolving a dangling link creates its target, which is empty for a moment.
    return [f"neither old nor new: {name}" for name in set(before) | set(outcome.files)
            if ".tunedex-" not in name and outcome.files.get(name) not in (before.get(name), right.files.get(name))
            and not (scenario.dangling and name.startswith("real/") and outcome.files.get(name) == ("file", b""))
            and not marks_unfinished_start(name, outcome.files.get(name))]


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main())
