"""The environment in which tests run the program."""

import functools
import os
import re
import subprocess

# Sanitizer options and the coverage output file.
KEPT = ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LLVM_PROFILE_FILE", "LD_LIBRARY_PATH")


def kept(ordinary=False):
    """Variables to pass on to a run. ordinary: the run has another user id and cannot write root's files."""
    environment = {name: os.environ[name] for name in KEPT if name in os.environ}
    if ordinary and "LLVM_PROFILE_FILE" in environment:
        environment["LLVM_PROFILE_FILE"] += "-ordinary"
    return environment


@functools.cache
def sanitizer_of(program):
    """The path of the sanitizer library that the program loads, or "". It must be the first in LD_PRELOAD."""
    needed = subprocess.run(["ldd", program], capture_output=True, text=True, check=False).stdout
    found = re.search(r"=> (\S*/lib[a-z]*san\.so\S*)", needed)
    return found[1] if found else ""


def preload(program, *libraries):
    """A value for LD_PRELOAD with the sanitizer library, if any, before the given libraries."""
    return " ".join(filter(None, [sanitizer_of(program), *map(str, libraries)]))
