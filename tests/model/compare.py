#!/usr/bin/python3
"""Runs the program and its model on random collections and settings and compares the results.

    compare.py PROGRAM                 60 cases, from seed 1
    compare.py PROGRAM --seeds 5000    5000 cases; --first sets the first seed
    compare.py PROGRAM --seed 17       one case, kept for inspection

Compares listings and log byte for byte, every other file and folder (which must be unchanged), the permissions of all
files, standard error and the exit status. A case depends on its seed, and on the directory order of the file system.
"""

import argparse
import concurrent.futures
import contextlib
import datetime
import fcntl
import locale
import os
import pathlib
import re
import shutil
import stat
import struct
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import surroundings  # noqa: E402
from generator import Case  # noqa: E402
from model import Model, Region, program_folder, to_disk  # noqa: E402
from modern_order import language_of  # noqa: E402

NO_SLEEP = """
#include <time.h>
int nanosleep(const struct timespec* wanted, struct timespec* left) { (void)wanted; (void)left; return 0; }
int clock_nanosleep(clockid_t clock, int flags, const struct timespec* wanted, struct timespec* left)
{ (void)clock; (void)flags; (void)wanted; (void)left; return 0; }
"""

# Progress texts that the program may skip when they change too fast.
FLEETING = re.compile(
    rb"(^|\[OK\] |\[No\] )(?:Retrieving MPEG/ID3 information \(\d+/\d+\)|Writing entry for file \d+/\d+)\.\.\.\n",
    re.MULTILINE,
)
PROMPTS = {48: b"[OK] ", 64: b"[OK] ", 52: b"Yes or No? [No] "}
REASON = b"\0reason"
SHIPPED = str(pathlib.Path(__file__).resolve().parents[2] / "data")
TOO_LARGE_TO_READ = 4 << 20


def build_no_sleep(folder):
    """Builds a library that skips the pauses of a run; None without a compiler."""
    compiler = shutil.which("cc") or shutil.which("gcc") or shutil.which("gcc-12") or shutil.which("clang-14")
    if not compiler:
        return None
    source = os.path.join(folder, "nosleep.c")
    library = os.path.join(folder, "nosleep.so")
    with open(source, "w", encoding="ascii") as file:
        file.write(NO_SLEEP)
    subprocess.run([compiler, "-shared", "-fPIC", "-o", library, source], check=True)
    return library


def permissions(path):
    """What a replacement keeps: mode, access-control list and user attributes."""
    try:
        attributes = {name: os.getxattr(path, name) for name in sorted(os.listxattr(path))}
    except OSError:
        attributes = {}  # The file system does not support them.
    return oct(stat.S_IMODE(os.stat(path).st_mode)), attributes


def snapshot(folder, to_be_read=()):
    """Maps each path below a folder to its kind and content. Large files are read only if they are in `to_be_read`."""
    found = {}
    pending = [os.fsencode(folder)]
    while pending:
        for entry in os.scandir(pending.pop()):
            if entry.is_symlink():
                found[entry.path] = ("link", os.readlink(entry.path))
            elif entry.is_dir(follow_symlinks=False):
                found[entry.path] = ("folder",)
                if os.access(entry.path, os.R_OK | os.X_OK):
                    pending.append(entry.path)
            elif not os.access(entry.path, os.R_OK):
                found[entry.path] = ("locked",)
            elif entry.is_file(follow_symlinks=False):
                size = entry.stat(follow_symlinks=False).st_size
                if size > TOO_LARGE_TO_READ and entry.path not in to_be_read:
                    found[entry.path] = ("large file", size)
                else:
                    with open(entry.path, "rb") as file:
                        found[entry.path] = ("file", file.read(), *permissions(entry.path))
            else:
                found[entry.path] = ("other",)
    return found


def remove(folder):
    for path, folders, _ in os.walk(os.fsencode(folder)):
        for name in folders:
            if not os.path.islink(os.path.join(path, name)):
                os.chmod(os.path.join(path, name), 0o755)
    shutil.rmtree(folder, ignore_errors=True)


def printed(events):
    """The lines of standard error for the events of the model. REASON matches any text up to the line end."""
    out = b""
    for event in events:
        if event[0] == "status":
            out += to_disk(event[1]) + b"\n"
        elif event[0] == "message":
            _, title, text, buttons, answered = event
            out += to_disk(title + "\n" + text.replace("\r\n", "\n")) + b"\n" + PROMPTS[buttons]
            out += b"" if answered else b"\n"
        elif event[0] == "line":
            out += to_disk(event[1]) + b"\n"
        else:
            out += to_disk(event[1]) + b":%d: line skipped: " % event[2] + REASON + b"\n"
    return error_lines(out)


def error_lines(data):
    before = None
    while before != data:
        before = data
        data = FLEETING.sub(rb"\1", data)
    return data.split(b"\n")


def same_line(expected, actual):
    if expected.endswith(REASON):
        expected = expected[: -len(REASON)]
        return actual.startswith(expected) and len(actual) > len(expected)
    return expected == actual


def same_lines(expected, actual):
    return len(expected) == len(actual) and all(map(same_line, expected, actual))


def region(settings):
    """The region, at this moment, of the locale in these environment variables."""

    def in_force(category):
        for name in ("LC_ALL", category, "LANG"):
            if settings.get(name):
                return settings[name]
        return "C"

    def take(category, name):
        if in_force(name) in ("C", "POSIX", "C.UTF-8", "C.utf8"):
            return False
        try:
            locale.setlocale(category, in_force(name))
            return True
        except locale.Error:
            return False

    now = datetime.datetime.now()
    found = Region(now.strftime("%Y-%m-%d"), now.strftime("%H:%M"))
    try:
        if take(locale.LC_TIME, "LC_TIME"):
            locale.setlocale(locale.LC_CTYPE, in_force("LC_TIME"))
            twelve = re.search("%[rIlp]", locale.nl_langinfo(locale.T_FMT))
            found.date = now.strftime("%x")
            found.time = now.strftime("%I:%M %p" if twelve else "%H:%M")
        if take(locale.LC_NUMERIC, "LC_NUMERIC"):
            locale.setlocale(locale.LC_CTYPE, in_force("LC_NUMERIC"))
            found.thousands = locale.localeconv()["thousands_sep"]
            found.point = locale.localeconv()["decimal_point"]
    finally:
        locale.setlocale(locale.LC_ALL, "C")
    return found


def model_outcome(case, before, now, folder, shipped):
    language = language_of(case.locale)
    result = Model(folder, now, case.root, case.answers, shipped, language).run()
    files = dict(before)
    for path, data in result.files.items():
        old = before.get(path)
        kept = old[2:] if old and old[0] == "file" else (oct(0o666 & ~case.umask), {})
        files[path] = ("file", data, *kept)
    for path in result.folders:
        files[path] = ("folder",)
    for path in result.removed:
        del files[path]
    return files, printed(result.events), result.exit_status, result.files


def make_data_folder(case, command, environment):
    """Lets an earlier run make the data folder, then replaces the files in it by those of the case."""
    aside = os.path.join(case.root, "aside")
    os.rename(case.program_folder, aside)
    subprocess.run(command, cwd=case.root, env=environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=300)
    os.makedirs(case.program_folder, exist_ok=True)
    for entry in os.scandir(case.program_folder):
        if not entry.name.startswith("."):
            shutil.rmtree(entry.path) if entry.is_dir() else os.remove(entry.path)
    for name in os.listdir(aside):
        os.rename(os.path.join(aside, name), os.path.join(case.program_folder, name))
    os.rmdir(aside)


def without_marks(found, folder):
    """Leaves out the hidden files by which the program knows that it made its data folder."""
    marks = os.fsencode(folder) + b"/."
    return {path: what for path, what in found.items() if not path.startswith(marks)}


@contextlib.contextmanager
def locks(paths):
    """Holds locks of both kinds on the files, as a run does that is still writing them."""
    handles = []
    try:
        for path in paths:
            with contextlib.suppress(PermissionError):  # In a folder that may not be entered.
                handles.append(os.open(path, os.O_RDWR))
        for handle in handles:
            fcntl.flock(handle, fcntl.LOCK_EX)
            fcntl.fcntl(handle, fcntl.F_OFD_SETLK, struct.pack("hhqqi4x", fcntl.F_WRLCK, os.SEEK_SET, 0, 0, 0))
        yield
    finally:
        for handle in handles:
            os.close(handle)


def place(program, executable):
    """Links or copies the program to the path of the case."""
    os.makedirs(os.path.dirname(executable), exist_ok=True)
    try:
        os.link(program, executable)
    except OSError:
        shutil.copy2(program, executable)


def shortened(line):
    text = repr(line)
    return text if len(text) <= 4000 else f"{text[:4000]}... ({len(line)} bytes)"


def difference(name, expected, actual):
    lines = [f"  {name}:"]
    if isinstance(expected, list):
        for i in range(max(len(expected), len(actual))):
            wanted = expected[i] if i < len(expected) else None
            got = actual[i] if i < len(actual) else None
            if wanted is None or got is None or not same_line(wanted, got):
                lines.append(f"    line {i + 1}")
                lines += [f"      model:   {shortened(wanted)}", f"      program: {shortened(got)}"]
                break
    elif isinstance(expected, tuple) and isinstance(actual, tuple) and expected[0] == actual[0] == "file":
        if expected[2:] != actual[2:]:
            lines += [f"    model:   {expected[2:]!r}", f"    program: {actual[2:]!r}"]
        if expected[1] == actual[1]:
            return "\n".join(lines)
        return "\n".join(lines) + "\n" + difference("content", expected[1].split(b"\n"), actual[1].split(b"\n"))
    else:
        lines += [f"    model:   {expected!r:.300}", f"    program: {actual!r:.300}"]
    return "\n".join(lines)


def compare_case(seed, program, no_sleep, scratch, keep):
    root = os.path.join(scratch, f"case{seed}")
    remove(root)
    os.makedirs(root)
    case = Case(seed, root)
    environment = surroundings.kept() | {"PATH": os.environ["PATH"]} | case.environment
    environment.update(case.locale)
    if no_sleep:
        environment["LD_PRELOAD"] = surroundings.preload(program, no_sleep)
    executable = case.executable or program
    if case.executable:
        place(program, executable)
    folder, is_data_folder = program_folder(case.installation_path, executable, environment)
    if case.made_by_the_program:
        make_data_folder(case, [executable, "/AUTO"], environment)
    before = snapshot(root)
    now = region(case.locale)
    with locks(case.locked):
        expected = model_outcome(case, before, now, folder, SHIPPED if is_data_folder else "")
        run = subprocess.run(
            [executable, *case.arguments],
            cwd=root,
            env=environment,
            input=b"Yes\n" * case.answers,
            capture_output=True,
            timeout=300,
            umask=case.umask,
        )
    after = snapshot(root, expected[3])
    if is_data_folder and not case.in_data_folder:
        after = without_marks(after, folder)
    lines = error_lines(run.stderr)

    def agrees(outcome):
        return run.stdout == b"" and outcome[0] == after and same_lines(outcome[1], lines) and outcome[2] == run.returncode

    if not agrees(expected) and vars(region(case.locale)) != vars(now):
        # The minute changed between the model and the program.
        return compare_case(seed, program, no_sleep, scratch, keep)
    problem = ""
    if not agrees(expected):
        parts = [f"seed {seed}: the program and the model differ"]
        if expected[2] != run.returncode:
            parts.append(difference("exit status", expected[2], run.returncode))
        if run.stdout:
            parts.append(difference("standard output", b"", run.stdout))
        if not same_lines(expected[1], lines):
            parts.append(difference("standard error", expected[1], lines))
        for path in sorted(set(expected[0]) | set(after)):
            wanted, got = expected[0].get(path), after.get(path)
            if wanted != got:
                parts.append(difference(os.fsdecode(os.path.relpath(path, os.fsencode(root))), wanted, got))
        problem = "\n".join(parts)
    written = sum(1 for path, what in after.items() if before.get(path) != what)
    if not (keep and (problem or keep == "always")):
        remove(root)
    return seed, problem, written, run.returncode


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--seeds", type=int, default=60, help="number of cases (60)")
    parser.add_argument("--first", type=int, default=1, help="the first seed (1)")
    parser.add_argument("--seed", type=int, help="run one case and keep it in the scratch folder")
    parser.add_argument("--jobs", type=int, default=2, help="cases to run at once (2)")
    parser.add_argument("--with-pauses", action="store_true", help="keep the pauses of the program")
    parser.add_argument("--scratch", help="folder for the cases; cases that differ are kept")
    options = parser.parse_args()
    program = os.path.abspath(options.program)
    scratch = os.path.abspath(options.scratch) if options.scratch else tempfile.mkdtemp(prefix="tunedex-model-")
    os.makedirs(scratch, exist_ok=True)
    no_sleep = None if options.with_pauses else build_no_sleep(scratch)
    if options.seed is not None:
        seeds, keep = [options.seed], "always"
    else:
        seeds = range(options.first, options.first + options.seeds)
        keep = "different" if options.scratch else ""
    differing = listings = 0
    with concurrent.futures.ProcessPoolExecutor(options.jobs) as pool:
        futures = [pool.submit(compare_case, seed, program, no_sleep, scratch, keep) for seed in seeds]
        for future in futures:
            seed, problem, written, status = future.result()
            listings += status == 0 and written > 0
            if problem:
                differing += 1
                print(problem, flush=True)
            elif keep == "always":
                print(f"seed {seed}: the program and the model agree; see {os.path.join(scratch, f'case{seed}')}")
    if not keep:
        shutil.rmtree(scratch, ignore_errors=True)
    print(f"{len(seeds)} cases, {listings} of them with a listing, {differing} with a difference")
    if len(seeds) >= 60 and listings < len(seeds) // 4:
        print("Too few cases reached a listing for a meaningful result.")
        return 1
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
