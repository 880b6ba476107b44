"""What tests hand on to the program when they run it in surroundings of their own making."""

import functools
import os
import re
import subprocess

# Where sanitizers read their options, and where a run's coverage goes.
KEPT = ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LLVM_PROFILE_FILE", "LD_LIBRARY_PATH")


def kept(ordinary=False):
    """The variables that a run needs from outside. ordinary: it is somebody else's, who may not write root's files."""
    environment = {name: os.environ[name] for name in KEPT if name in os.environ}
    if ordinary and "LLVM_PROFILE_FILE" in environment:
        environment["LLVM_PROFILE_FILE"] += "-ordinary"
    return environment


@functools.cache
def sanitizer_of(program):
    """The sanitizer's library that the program loads, or none. It insists on being the first."""
    needed = subprocess.run(["ldd", program], capture_output=True, text=True, check=False).stdout
    found = re.search(r"=> (\S*/lib[a-z]*san\.so\S*)", needed)
    return found[1] if found else ""


def preload(program, *libraries):
    """A value for LD_PRELOAD that puts the libraries between the program and the system's."""
    return " ".join(filter(None, [sanitizer_of(program), *map(str, libraries)]))
