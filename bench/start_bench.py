#!/usr/bin/env python3
"""Starts programs in turn, each on its own virtual screen without a window manager, and prints when their windows stand.

    bench/start_bench.py build/release/bin/corvane build/release/bin/empty_window flrig

The screen is looked at from outside, in the memory that Xvfb keeps it in, and so by the same means for every program.
"appears": from the start of the process to the first picture in which 1 % of the screen has changed; a program may have
shown a window of one pixel before. "stands": to the first moment at which all but 2 % of the pixels are as they are a
second later. Memory is that of the process then: Rss and Pss of /proc/PID/smaps_rollup.
"""
import argparse
import mmap
import os
import signal
import statistics
import subprocess
import tempfile
import time

WIDTH, HEIGHT = 1280, 800
EVERY = 4  # of how many rows one is looked at
LOOK = 0.0005  # seconds between two looks
SETTLED = 1.0  # seconds after the last change that begin a picture that stays
LONGEST = 10.0


class Screen:
    def __init__(self, folder):
        self.folder = folder
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp", "-noreset",
             "-nocursor", "-fbdir", folder], pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writer)
        with open(reader, encoding="ascii") as number:
            self.name = ":" + number.readline().strip()
        with open(os.path.join(folder, "Xvfb_screen0"), "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        self.row = WIDTH * 4
        self.start = len(self.memory) - self.row * HEIGHT

    def picture(self):
        return b"".join(self.memory[at:at + self.row] for at in range(self.start, len(self.memory), EVERY * self.row))

    def end(self):
        self.server.terminate()
        self.server.wait()


def surroundings(screen):
    values = {name: value for name, value in os.environ.items() if not name.startswith(("WAYLAND", "DBUS"))}
    values.update(DISPLAY=screen.name, HOME=screen.folder, XDG_RUNTIME_DIR=screen.folder, XDG_CONFIG_HOME=screen.folder,
                  XDG_DATA_HOME=screen.folder, CORVANE_SERVICES="http://127.0.0.1:9", QT_QPA_PLATFORM="xcb")
    return values


def share_of_difference(one, other):
    different = sum(one[at:at + 4] != other[at:at + 4] for at in range(0, len(one), 4 * 7))
    return different / (len(one) / (4 * 7))


def memory_of(process):
    with open(f"/proc/{process.pid}/smaps_rollup", encoding="ascii") as file:
        rows = dict(line.split(":", 1) for line in file.readlines()[1:])
    return [int(rows[name].split()[0]) / 1024 for name in ("Rss", "Pss")]


def watch(screen, command):
    empty = last = screen.picture()
    seen = []
    began = changed = time.monotonic()
    process = subprocess.Popen(command, env=surroundings(screen), cwd=screen.folder, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
    while time.monotonic() - began < LONGEST and (not seen or time.monotonic() - changed < SETTLED):
        time.sleep(LOOK)
        now = screen.picture()
        if now != last:
            changed, last = time.monotonic(), now
            seen.append((changed - began, now))
    figures = memory_of(process)
    os.killpg(process.pid, signal.SIGTERM)
    process.wait(10)
    while screen.picture() != empty:
        time.sleep(LOOK)
    appears = next(at for at, picture in seen if share_of_difference(picture, empty) > 0.01)
    stands = next(at for at, picture in seen if share_of_difference(picture, last) < 0.02)
    return [appears * 1000, stands * 1000, *figures]


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--runs", type=int, default=20)
    options.add_argument("programs", nargs="+")
    given = options.parse_args()
    programs = [os.path.abspath(program) if "/" in program else program for program in given.programs]
    with tempfile.TemporaryDirectory() as folder:
        screens = []
        for number in range(len(programs)):
            os.mkdir(os.path.join(folder, str(number)), 0o700)
            screens.append(Screen(os.path.join(folder, str(number))))
        try:
            for program, screen in zip(programs, screens):
                watch(screen, [program])  # fills the caches and makes the settings
            runs = [[] for _ in programs]
            for _ in range(given.runs):
                for figures, program, screen in zip(runs, programs, screens):
                    figures.append(watch(screen, [program]))
        finally:
            for screen in screens:
                screen.end()
    print(f"median of {given.runs} starts in turn (least to most)")
    print(f"{'':16}{'appears, ms':>22}{'stands, ms':>22}{'Rss, MiB':>10}{'Pss, MiB':>10}")
    for program, figures in zip(programs, runs):
        columns = list(zip(*figures))
        times = "".join(f"{statistics.median(each):8.0f} ({min(each):4.0f} to{max(each):5.0f})" for each in columns[:2])
        memory = "".join(f"{statistics.median(each):10.1f}" for each in columns[2:])
        print(f"{os.path.basename(program):16}{times}{memory}")


if __name__ == "__main__":
    main()
