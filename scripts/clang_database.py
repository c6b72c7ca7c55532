#!/usr/bin/env python3
"""Writes a compile database for clang from that of a g++ build: clang_database.py BUILD-FOLDER FOLDER.

clang cannot use the precompiled headers of g++. It makes its own, one per target: that takes half the time of parsing
the headers for every source.
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys

HEADER = re.compile(r" -Winvalid-pch -include (\S+/cmake_pch\.hxx)")


def without_output(command):
    """The command's options, without the compiler, the source and the object."""
    words = shlex.split(command)[1:]
    return words[: words.index("-o")]


def make_header(number, header, command, folder):
    made = os.path.join(folder, f"{number}.pch")
    options = without_output(HEADER.sub("", command))
    subprocess.run(
        ["clang++", *options, "-Wno-everything", "-x", "c++-header", header, "-o", made], check=True, cwd=folder
    )
    return made


def main():
    build, folder = sys.argv[1:]
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = [each for each in json.load(file) if not each["file"].endswith("cmake_pch.hxx.cxx")]
    for entry in entries:
        entry["command"] = entry["command"].replace(" -fpch-preprocess", "").replace(" -Wno-restrict", "")
    first = {}
    for entry in entries:
        header = HEADER.search(entry["command"])
        if header:
            first.setdefault(header[1], entry["command"])
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        made = pool.map(lambda item: make_header(item[0], *item[1], folder), enumerate(first.items()))
        clang_header = dict(zip(first, made))
    for entry in entries:
        entry["command"] = HEADER.sub(lambda found: f" -include-pch {clang_header[found[1]]}", entry["command"])
    with open(os.path.join(folder, "compile_commands.json"), "w", encoding="utf-8") as file:
        json.dump(entries, file, indent=1)


if __name__ == "__main__":
    main()
