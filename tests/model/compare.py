#!/usr/bin/env python3
"""Runs the program and its model on random collections and settings and compares everything that they leave behind.

    compare.py PROGRAM                 a round of 60 cases
    compare.py PROGRAM --seeds 5000    more of them, --first 1000 others
    compare.py PROGRAM --seed 17       one case, kept for a look

Compared are the listings and the log byte for byte, every other file and folder (which must be as before), what is
printed on standard error, and the exit status. A case depends on its seed alone; only the order of the names in a
folder is the file system's.
"""

import argparse
import concurrent.futures
import datetime
import os
import re
import shutil
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True

from generator import Case  # noqa: E402
from model import Model, to_disk  # noqa: E402

NO_SLEEP = """
#include <time.h>
int nanosleep(const struct timespec* wanted, struct timespec* left) { (void)wanted; (void)left; return 0; }
int clock_nanosleep(clockid_t clock, int flags, const struct timespec* wanted, struct timespec* left)
{ (void)clock; (void)flags; (void)wanted; (void)left; return 0; }
"""

# Texts of the progress display that the program is free to leave out when they would follow each other too fast.
FLEETING = re.compile(rb"(Retrieving MPEG/ID3 information \(\d+/\d+\)|Writing entry for file \d+/\d+)\.\.\.\Z")
PROMPTS = {48: b"[OK] ", 64: b"[OK] ", 52: b"Yes or No? [No] "}
TOO_LARGE_TO_READ = 4 << 20


def build_no_sleep(folder):
    """A library that takes the pause out of a run; without a compiler the pauses are sat through."""
    compiler = shutil.which("cc") or shutil.which("gcc") or shutil.which("gcc-12") or shutil.which("clang-14")
    if not compiler:
        return None
    source = os.path.join(folder, "nosleep.c")
    library = os.path.join(folder, "nosleep.so")
    with open(source, "w", encoding="ascii") as file:
        file.write(NO_SLEEP)
    subprocess.run([compiler, "-shared", "-fPIC", "-o", library, source], check=True)
    return library


def snapshot(folder):
    """Everything below a folder: path -> what it is."""
    found = {}
    pending = [os.fsencode(folder)]
    while pending:
        for entry in os.scandir(pending.pop()):
            if entry.is_symlink():
                found[entry.path] = ("link", os.readlink(entry.path))
            elif entry.is_dir(follow_symlinks=False):
                found[entry.path] = ("folder",)
                pending.append(entry.path)
            elif entry.is_file(follow_symlinks=False):
                size = entry.stat(follow_symlinks=False).st_size
                if size > TOO_LARGE_TO_READ:
                    found[entry.path] = ("large file", size)
                else:
                    with open(entry.path, "rb") as file:
                        found[entry.path] = ("file", file.read())
            else:
                found[entry.path] = ("other",)
    return found


def printed(events):
    """What standard error holds for the events of the model, fleeting texts aside; None stands for any reason."""
    lines = []
    for event in events:
        if event[0] == "status":
            text = to_disk(event[1])
            if not FLEETING.match(text):
                lines.append(text)
        elif event[0] == "message":
            _, title, text, buttons = event
            lines += to_disk(title + "\n" + text.replace("\r\n", "\n")).split(b"\n")
            lines.append(PROMPTS[buttons])
        else:
            lines.append((to_disk(event[1]) + b":%d: line skipped: " % event[2],))
    return lines


def same_lines(expected, actual):
    if len(expected) != len(actual):
        return False
    for wanted, got in zip(expected, actual):
        if isinstance(wanted, tuple):
            if not got.startswith(wanted[0]) or len(got) <= len(wanted[0]):
                return False
        elif wanted != got:
            return False
    return True


def clock():
    now = datetime.datetime.now()
    return now.strftime("%Y-%m-%d"), now.strftime("%H:%M")


def model_outcome(case, before, now):
    result = Model(case.program_folder, now[0], now[1], case.root).run()
    files = dict(before)
    for path, data in result.files.items():
        files[path] = ("file", data)
    return files, printed(result.events), result.exit_status


def difference(name, expected, actual):
    lines = [f"  {name}:"]
    if isinstance(expected, list):
        for i in range(max(len(expected), len(actual))):
            wanted = expected[i] if i < len(expected) else None
            got = actual[i] if i < len(actual) else None
            if not (isinstance(wanted, tuple) and got and got.startswith(wanted[0])) and wanted != got:
                lines += [f"    line {i + 1}", f"      model:   {wanted!r}", f"      program: {got!r}"]
                break
    elif isinstance(expected, tuple) and isinstance(actual, tuple) and expected[0] == actual[0] == "file":
        return "\n".join(lines) + "\n" + difference("content", expected[1].split(b"\n"), actual[1].split(b"\n"))
    else:
        lines += [f"    model:   {expected!r:.300}", f"    program: {actual!r:.300}"]
    return "\n".join(lines)


def compare_case(seed, program, no_sleep, scratch, keep):
    root = os.path.join(scratch, f"case{seed}")
    shutil.rmtree(root, ignore_errors=True)
    os.makedirs(root)
    case = Case(seed, root)
    environment = {"PATH": os.environ["PATH"], "HOME": root, "XDG_CONFIG_HOME": case.config_folder, "LC_ALL": "C"}
    for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
        if name in os.environ:
            environment[name] = os.environ[name]
    if no_sleep:
        environment["LD_PRELOAD"] = no_sleep
    before = snapshot(root)
    first_clock = clock()
    expected = model_outcome(case, before, first_clock)
    run = subprocess.run(
        [program, "/AUTO"], cwd=root, env=environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=300
    )
    after = snapshot(root)
    lines = run.stderr.split(b"\n")
    if lines and lines[-1] == b"":
        lines.pop()
    lines = [line for line in lines if not FLEETING.match(line)]

    def agrees(outcome):
        return outcome[0] == after and same_lines(outcome[1], lines) and outcome[2] == run.returncode

    if not agrees(expected) and clock() != first_clock:
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
        shutil.rmtree(root, ignore_errors=True)
    return seed, problem, written, run.returncode


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--seeds", type=int, default=60, help="number of cases (60)")
    parser.add_argument("--first", type=int, default=1, help="the first seed (1)")
    parser.add_argument("--seed", type=int, help="one case only, kept in the scratch folder")
    parser.add_argument("--jobs", type=int, default=2, help="cases at a time (2)")
    parser.add_argument("--with-pauses", action="store_true", help="let the program pause as it does for a user")
    parser.add_argument("--scratch", help="folder for the cases; those that differ are kept in it")
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
        print("Too few cases got as far as a listing for this to mean anything.")
        return 1
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
