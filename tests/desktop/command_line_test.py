#!/usr/bin/python3
"""Starts Corvane as a shell and a desktop do: with options, without a display, and a second time."""

import os
import subprocess
import sys
import tempfile

program = sys.argv[1]
patience = 20  # seconds


def run(*options, **surroundings):
    return subprocess.run([program, *options], capture_output=True, text=True, timeout=patience, **surroundings)


def expect(true, what):
    if not true:
        sys.exit(f"command line: FAILED: {what}")


# A process without a display: the window's toolkit would end it with an abort.
bare = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
for options, status, printed in (
    (["--version"], 0, "Corvane "),
    (["--help"], 0, "--list-ports"),
    (["--list-ports"], 0, "\n"),
    (["--wrong"], 2, "--wrong"),
    (["--version", "radio"], 2, "radio"),
):
    ended = run(*options, env=bare)
    expect(ended.returncode == status, f"{options} ends with {ended.returncode}")
    expect(printed in (ended.stderr if status else ended.stdout), f"{options} prints {ended}")

with tempfile.TemporaryDirectory() as home:
    bus = subprocess.Popen(
        ["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
    )
    own = {**bare, "HOME": home, "XDG_RUNTIME_DIR": home, "QT_QPA_PLATFORM": "offscreen"}
    own["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
    own["CORVANE_SERVICES"] = "http://127.0.0.1:9"
    own["PULSE_SERVER"] = own["SPEECHD_ADDRESS"] = f"unix:{home}/none"
    waiter = ["gdbus", "wait", "--session", "--timeout", str(patience), "org.corvane.Corvane"]
    first = subprocess.Popen([program], env=own, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        subprocess.run(waiter, env=own, timeout=patience, check=True)
        second = run(env=own)
        expect(second.returncode == 0, f"the second start ends with {second.returncode}: {second.stderr}")
        expect(first.poll() is None, "the first one goes on")
    finally:
        for process in (first, bus):
            process.terminate()
            process.wait(patience)
print("command line: every start did what it says")
