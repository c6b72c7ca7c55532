#!/usr/bin/python3
"""Kills the directory service under load, again and again, and checks that every acknowledged check-in is stored.

crash_test.py CORVANE-DIRECTORY [ROUNDS]
"""

import http.client
import json
import secrets
import signal
import sqlite3
import subprocess
import sys
import tempfile
import threading

CLIENTS = 16
CHECK_INS_A_ROUND = 400  # acknowledged ones, before the kill


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

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()


class Load:
    """Operators who check in to nets, each with their own key, until the service is gone."""

    def __init__(self, port, nets):
        self.port = port
        self.nets = nets
        self.acknowledged = []
        self.enough = threading.Event()
        self.refused = []
        self.clients = [threading.Thread(target=self.check_in, args=(number,)) for number in range(CLIENTS)]
        for client in self.clients:
            client.start()

    def check_in(self, number):
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=30)
        turn = 0
        try:
            while True:
                key, net = secrets.token_hex(16), self.nets[(number + turn) % len(self.nets)]
                body = json.dumps({"key": key, "net_id": net, "action": 1})
                connection.request("POST", "/netconf.php", body, {"Content-Type": "Application/json"})
                answer = connection.getresponse()
                answer.read()
                if answer.status != 200:
                    self.refused.append(answer.status)
                    return
                self.acknowledged.append((key, net))
                turn += 1
                if len(self.acknowledged) >= CHECK_INS_A_ROUND:
                    self.enough.set()
        except (OSError, http.client.HTTPException):
            pass  # the service has been killed

    def wait(self):
        for client in self.clients:
            client.join()


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
    program, rounds = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 10
    acknowledged = []
    with tempfile.TemporaryDirectory() as folder:
        database = folder + "/directory.sqlite"
        for round_number in range(1, rounds + 1):
            service = Service(program, database)
            nets = [row[0] for row in sqlite3.connect(database).execute("SELECT id FROM nets ORDER BY id")]
            load = Load(service.port, nets)
            came = load.enough.wait(60)
            service.kill()
            load.wait()
            acknowledged += load.acknowledged
            if not came or load.refused:
                sys.exit(f"crash: FAILED: {len(load.acknowledged)} acknowledged, refused with {load.refused}")
            found, stored = problems(database, acknowledged)
            if found:
                sys.exit(f"crash: FAILED after kill {round_number}: {found[:5]}, {len(found)} in all")
            print(f"kill {round_number}: {len(acknowledged)} acknowledged so far, all of them among {stored} stored")
    print("crash: passed")


if __name__ == "__main__":
    main()
