#!/usr/bin/env python3
"""How fast a rigctl server answers: rigctl_bench.py NAME=PORT...

Measures each server: `f` while eight other programs ask f m t s v ten times a second each, gets one after the other,
and gets sent in bulk. Beside Corvane, `rigctld -m 1 -T 127.0.0.1 -t 4599` gives figures to compare with. Spin the knob
of the simulated transceiver meanwhile: type `spin 60` into corvane-radio.
"""
import multiprocessing
import socket
import statistics
import sys
import time


def connect(port):
    client = socket.create_connection(("127.0.0.1", port))
    client.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
    return client


def lines(client, count):
    taken = b""
    while taken.count(b"\n") < count:
        piece = client.recv(65536)
        if not piece:
            sys.exit("the server has closed the connection")
        taken += piece
    return taken


def poll(port, end):
    """One program: five questions ten times a second, seven lines."""
    client = connect(port)
    while time.monotonic() < end:
        client.sendall(b"f\nm\nt\ns\nv\n")
        lines(client, 7)
        time.sleep(0.1)


def latency(port, seconds):
    programs = [multiprocessing.Process(target=poll, args=(port, time.monotonic() + seconds)) for _ in range(8)]
    for program in programs:
        program.start()
    client = connect(port)
    took = []
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        start = time.perf_counter()
        client.sendall(b"f\n")
        lines(client, 1)
        took.append((time.perf_counter() - start) * 1e3)
        time.sleep(0.005)
    for program in programs:
        program.join()
    took.sort()
    return statistics.median(took), took[int(len(took) * 0.99)], took[-1]


def one_by_one(port, count):
    client = connect(port)
    start = time.perf_counter()
    for _ in range(count):
        client.sendall(b"f\n")
        lines(client, 1)
    return count / (time.perf_counter() - start)


def in_bulk(port, count):
    client = connect(port)
    start = time.perf_counter()
    for _ in range(count // 500):
        client.sendall(b"f\n" * 500)
        lines(client, 500)
    return count / (time.perf_counter() - start)


def main():
    print(f"{'server':12} {'median ms':>10} {'99 % ms':>10} {'worst ms':>10} {'gets/s':>10} {'in bulk/s':>10}")
    for argument in sys.argv[1:]:
        name, port = argument.split("=")
        median, most, worst = latency(int(port), 10)
        rate, bulk = one_by_one(int(port), 5000), in_bulk(int(port), 20000)
        print(f"{name:12} {median:10.3f} {most:10.3f} {worst:10.3f} {rate:10.0f} {bulk:10.0f}")


if __name__ == "__main__":
    main()
