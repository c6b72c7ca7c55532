#!/usr/bin/python3
"""Kills and stops the directory service under load, again and again. Every acknowledged check-in must be stored.

crash_test.py CORVANE-DIRECTORY KILLS STOPS
"""

import asyncio
import itertools
import json
import secrets
import signal
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time

CLIENTS = 300
CHECK_INS_A_ROUND = 400  # acknowledged ones, before the end


class Service:
    """The service on a free port, until it is killed."""

    def __init__(self, program, database):
        self.process = subprocess.Popen(
            [program, "--port", "0", "--rate-limit", "0", "--database", database],
            stdout=subprocess.PIPE,
            text=True,
        )
        self.port = None
        for line in self.process.stdout:
            entry = json.loads(line)
            if entry["event"] == "start":
                self.port = entry["port"]
                break
        if self.port is None:
            sys.exit("crash: FAILED: the service did not start")
        # Its log needs a reader, or the service would wait for one.
        threading.Thread(target=lambda: [None for _ in self.process.stdout], daemon=True).start()

    def end(self, signal_):
        start = time.monotonic()
        self.process.send_signal(signal_)
        self.process.wait()
        self.seconds = time.monotonic() - start


class Load:
    """Operators who check in to nets, each with their own key, on connections that stay, until the service is gone."""

    def __init__(self, port, nets):
        self.port = port
        self.nets = nets
        self.acknowledged = []
        self.refused = []
        self.enough = asyncio.Event()

    async def check_in(self, number):
        try:
            reader, writer = await asyncio.open_connection("127.0.0.1", self.port)
            for turn in itertools.count():
                key, net = secrets.token_hex(16), self.nets[(number + turn) % len(self.nets)]
                body = json.dumps({"key": key, "net_id": net, "action": 1})
                checks_in = number % 2 == 0
                line = "POST /netconf.php" if checks_in else f"GET /nets.php?key={key}"
                length = f"Content-Length: {len(body)}\r\n\r\n{body}" if checks_in else "\r\n"
                writer.write(f"{line} HTTP/1.1\r\nHost: x\r\n{length}".encode())
                head = (await reader.readuntil(b"\r\n\r\n")).decode()
                text = await reader.readexactly(int(head.lower().split("content-length: ")[1].split()[0]))
                if not head.startswith("HTTP/1.1 200 "):
                    self.refused.append(head + text.decode())
                    break
                if not checks_in:
                    continue
                self.acknowledged.append((key, net))
                if len(self.acknowledged) >= CHECK_INS_A_ROUND:
                    self.enough.set()
            writer.close()
        except (OSError, asyncio.IncompleteReadError):
            pass  # the service has ended

    async def until(self, end):
        clients = [asyncio.create_task(self.check_in(number)) for number in range(CLIENTS)]
        await asyncio.wait_for(self.enough.wait(), 60)
        refused = len(self.refused)
        await asyncio.get_running_loop().run_in_executor(None, end)
        await asyncio.gather(*clients)
        return refused


def problems(database, acknowledged):
    connection = sqlite3.connect(database)
    found = [row[0] for row in connection.execute("PRAGMA integrity_check") if row[0] != "ok"]
    found += [f"broken reference: {row}" for row in connection.execute("PRAGMA foreign_key_check")]
    stored = set(connection.execute("SELECT operator, net FROM confirmations"))
    found += [f"lost: {one}" for one in acknowledged if one not in stored]
    found += [
        f"miscounted: {row}"
        for row in connection.execute(
            "SELECT net, starts, confirmed, count(operator) FROM sessions LEFT JOIN confirmations USING (net, starts)"
            " GROUP BY net, starts, confirmed HAVING confirmed <> count(operator)"
        )
    ]
    connection.close()
    return found, len(stored)


def main():
    program, kills, stops = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    acknowledged = []
    with tempfile.TemporaryDirectory() as folder:
        database = folder + "/directory.sqlite"
        for end in [signal.SIGKILL] * kills + [signal.SIGTERM] * stops:
            service = Service(program, database)
            nets = [row[0] for row in sqlite3.connect(database).execute("SELECT id FROM nets ORDER BY id")]
            load = Load(service.port, nets)
            refused = asyncio.run(load.until(lambda: service.end(end)))
            acknowledged += load.acknowledged
            found, stored = problems(database, acknowledged)
            if refused:
                found.append(f"refused with {load.refused[:refused]}")
            found += [f"not closed: {head}" for head in load.refused if "Connection: close" not in head or " 503 " not in head]
            if service.process.returncode != (-end if end == signal.SIGKILL else 0):
                found.append(f"ended with {service.process.returncode}")
            if found:
                sys.exit(f"crash: FAILED after {end.name}: {found[:5]}, {len(found)} in all")
            print(f"{end.name}: {len(acknowledged)} acknowledged so far, all of them among {stored} stored,"
                  f" {len(load.refused)} refused as it stopped, {sum('in time' in x for x in load.refused)} late, ended in {service.seconds:.2f} s")
    print("crash: passed")


if __name__ == "__main__":
    main()
