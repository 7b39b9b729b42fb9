#!/usr/bin/env python3
"""Runs a test program beside a print server of its own, on the loopback and in a folder that is gone afterwards.

usage: spooler.py PROGRAM [ARGUMENT...]

The program finds the server's port in MVN_TEST_PRINT_PORT, and in MVN_TEST_SINK_PORT the port that the device of
its queues is at: there it listens itself. Exit code 77 where there is no server to be had and the program has
passed what it can do without.
"""
import os
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import time

PROGRAMS = "/usr/lib/cups"

FILES = """
ServerRoot {folder}
RequestRoot {folder}/spool
TempDir {folder}/spool/tmp
CacheDir {folder}/cache
StateDir {folder}/state
ServerKeychain {folder}
Printcap {folder}/printcap
ServerBin {programs}
AccessLog {folder}/access_log
ErrorLog {folder}/error_log
PageLog {folder}/page_log
"""

SERVER = """
Listen 127.0.0.1:{port}
Browsing No
WebInterface No
DefaultAuthType None
LogLevel info
JobRetryInterval 1
<Location />
Order allow,deny
Allow 127.0.0.1
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
"""

QUEUE = """
<Printer {name}>
UUID urn:uuid:00000000-0000-3000-8000-{number:012}
Info {info}
Location By the window
DeviceURI {device}
State Idle
Type {type}
Accepting {accepting}
Shared {shared}
ErrorPolicy retry-job
</Printer>
"""

REMOTE = 2

# A queue without one is of a model that the server makes up.
DESCRIPTION = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KESTRANE.PPD"
*Manufacturer: "Kestrane"
*Product: "(Kestrane 20)"
*ModelName: "Kestrane 20"
*ShortNickName: "Kestrane 20"
*NickName: "Kestrane 20"
*PSVersion: "(3010.000) 0"
*cupsSNMPSupplies: False
"""


def queues(sink):
    line = f"socket://127.0.0.1:{sink}"
    rows = [
        ("line", "Line écrite", line, 0, "Yes", "Yes"),
        ("refusing", "Takes nothing", line, 0, "No", "No"),
        ("far", "On another machine", "ipp://host.invalid/printers/its-name", REMOTE, "Yes", "No"),
        ("wire", "A serial one", "serial:/dev/wire?baud=9600,x", 0, "Yes", "No"),
    ]
    names = ("name", "info", "device", "type", "accepting", "shared")
    return "".join(QUEUE.format(number=number, **dict(zip(names, row))) for number, row in enumerate(rows, 1))


def free_ports(count):
    sockets = [socket.create_server(("127.0.0.1", 0)) for _ in range(count)]
    ports = [each.getsockname()[1] for each in sockets]
    for each in sockets:
        each.close()
    return ports


def answers(port, server, seconds):
    end = time.monotonic() + seconds
    while time.monotonic() < end and server.poll() is None:
        try:
            socket.create_connection(("127.0.0.1", port), 1).close()
            return True
        except OSError:
            time.sleep(0.05)
    return False


def start(cupsd, folder, port, sink):
    for name in ("ppd", "spool", "spool/tmp", "cache", "state"):
        (folder / name).mkdir()
    (folder / "files.conf").write_text(FILES.format(folder=folder, programs=PROGRAMS))
    (folder / "server.conf").write_text(SERVER.format(port=port))
    (folder / "printers.conf").write_text(queues(sink), encoding="utf-8")
    (folder / "ppd/line.ppd").write_text(DESCRIPTION)
    return subprocess.Popen(
        [cupsd, "-f", "-c", folder / "server.conf", "-s", folder / "files.conf"], stdin=subprocess.DEVNULL)


def without_server(command, why):
    result = subprocess.run(command, check=False).returncode
    if result == 0:
        print(f"{why}: what needs a print server was left out")
    return result or 77


def main():
    command = sys.argv[1:]
    cupsd = shutil.which("cupsd", path="/usr/sbin:/usr/local/sbin:" + os.environ.get("PATH", ""))
    if not cupsd or not pathlib.Path(PROGRAMS, "backend/socket").exists():
        return without_server(command, "cupsd or its way to a socket is not installed")
    # Not in the build tree: a server that was started by root passes its jobs to a user who must get there.
    with tempfile.TemporaryDirectory(prefix="spooler-") as name:
        folder = pathlib.Path(name)
        folder.chmod(0o755)
        port, sink = free_ports(2)
        server = start(cupsd, folder, port, sink)
        try:
            if not answers(port, server, 15):
                return without_server(command, "cupsd does not start here")
            environment = dict(os.environ, MVN_TEST_PRINT_PORT=str(port), MVN_TEST_SINK_PORT=str(sink))
            result = subprocess.run(command, env=environment, check=False).returncode
            log = folder / "error_log"
            if result != 0 and log.exists():
                print(log.read_text(errors="replace"))
            return result
        finally:
            server.terminate()
            try:
                server.wait(10)
            except subprocess.TimeoutExpired:
                server.kill()
                server.wait()


if __name__ == "__main__":
    sys.exit(main())
