#!/usr/bin/python3
"""Measures the directory service, and beside it nginx that serves the same bytes from a file. Needs wrk and nginx.

directory_load.py CORVANE-DIRECTORY [DATABASE]

With a PostgreSQL DATABASE, which it fills with a list of its own, it also measures two services together.
"""

import json
import re
import subprocess
import sys
import tempfile
import threading
import time
import urllib.request

SECONDS = 8
CONNECTIONS = 64  # of all services together
NETS = 1000

CHECK_INS = """
math.randomseed(os.time() + %d)
request = function()
  local key = string.format("%%08x%%08x%%08x%%08x", math.random(0, 0xffffffff), math.random(0, 0xffffffff),
                            math.random(0, 0xffffffff), math.random(0, 0xffffffff))
  local body = string.format('{"key":"%%s","net_id":"n%%d","action":1}', key, math.random(0, %d - 1))
  return wrk.format("POST", "/netconf.php", {}, body)
end
"""


def start(program, database, folder):
    service = subprocess.Popen(
        [program, "--port", "0", "--rate-limit", "0", "--database", database], stdout=subprocess.PIPE, text=True
    )
    for line in service.stdout:
        if json.loads(line)["event"] == "start":
            threading.Thread(target=service.stdout.read, daemon=True).start()
            return service, json.loads(line)["port"]
    sys.exit("The service did not start.")


def start_file_server(folder, text):
    with open(f"{folder}/list", "w", encoding="utf-8") as file:
        file.write(text)
    port = 8078
    with open(f"{folder}/nginx.conf", "w", encoding="utf-8") as file:
        file.write(
            f"daemon off; worker_processes 2; pid {folder}/pid; error_log {folder}/errors;"
            "events {} http { access_log " + folder + "/access; keepalive_requests 1000000000;"
            " server { listen 127.0.0.1:" + str(port) + "; root " + folder + "; } }"
        )
    subprocess.run(["chmod", "-R", "a+rX", folder], check=True)
    return subprocess.Popen(["/usr/sbin/nginx", "-c", f"{folder}/nginx.conf"]), port


def loads(urls, script=None):
    """Requests a second of all together, and the slowest of 99 in 100."""
    command = ["wrk", "-t1", f"-c{CONNECTIONS // len(urls)}", f"-d{SECONDS}s", "--latency"] + (["-s", script] if script else [])
    runs = [subprocess.Popen([*command, url], stdout=subprocess.PIPE, text=True) for url in urls]
    outs = [run.communicate()[0] for run in runs]
    rates = [float(re.search(r"Requests/sec:\s+([\d.]+)", out)[1]) for out in outs]
    slow = [re.search(r"99%\s+(\S+)", out)[1] for out in outs]
    bad = [line.strip() for out in outs for line in out.splitlines() if "Non-2xx" in line or "Socket errors" in line]
    return sum(rates), f"{sum(rates):8.0f} a second, 99 of 100 within {' and '.join(slow)} {' '.join(bad)}"


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        database = sys.argv[2] if len(sys.argv) > 2 else folder + "/directory.sqlite"
        with open(f"{folder}/nets.csv", "w", encoding="utf-8") as file:
            file.write("id,name,frequency_mhz,utc,days,mode,url\n")
            file.writelines(f"n{i},Net number {i},7.1,12:{i % 60:02},daily,LSB,https://example.org/{i}\n" for i in range(NETS))
        subprocess.run([program, "--database", database, "--replace", "import", "nets", f"{folder}/nets.csv"], check=True)
        services = [start(program, database, folder)]
        address = f"http://127.0.0.1:{services[0][1]}"
        text = urllib.request.urlopen(address + "/nets.php").read().decode()
        files, port = start_file_server(folder, text)
        time.sleep(1)
        script = f"{folder}/check_ins.lua"
        with open(script, "w", encoding="utf-8") as file:
            file.write(CHECK_INS % (time.time_ns() % 1_000_000, NETS))
        lists, shown = loads([address + "/nets.php"])
        print(f"lists ({len(text)} bytes)    {shown}")
        plain, shown = loads([f"http://127.0.0.1:{port}/list"])
        print(f"the same from nginx    {shown}\nratio {lists / plain:.2f}")
        one, shown = loads([address + "/netconf.php"], script)
        print(f"check-ins              {shown}")
        if database.startswith("postgres"):
            services.append(start(program, database, folder))
            two, shown = loads([f"http://127.0.0.1:{port}/netconf.php" for _, port in services], script)
            print(f"by two services        {shown}")
            again, shown = loads([address + "/netconf.php"], script)
            print(f"by one again           {shown}\nratio {two / max(one, again):.2f} to the better one")
        files.terminate()
        files.wait()
        for service, _ in services:
            service.terminate()
            print("exit status", service.wait())


if __name__ == "__main__":
    main()
