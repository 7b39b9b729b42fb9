#!/usr/bin/env python3
"""Drives the host program plot_device by Wine, and is the device at the other end of its ports and queues.

usage: devices.py TEST PROGRAM PREFIX

TEST is one of the functions marked below. PREFIX is Wine's folder, made at first use. Every step has a limit of time.
Exit code 77, with the reason, for what cannot be run here.
"""
import os
import pathlib
import queue
import shutil
import socket
import subprocess
import sys
import termios
import threading
import tty

SECONDS = 60
CMSPAR = 0o10000000000
TESTS = {}


def test(function):
    TESTS[function.__name__] = function


def skip(why):
    print(f"skipped: {why}")
    sys.exit(77)


def expect(what, found, expected):
    if found != expected:
        raise AssertionError(f"{what}: {found!r} instead of {expected!r}")


def expect_bytes(what, found, size):
    """The pattern that the host writes."""
    expected = bytes((at * 7 + at // 251) % 256 for at in range(size))
    if found != expected:
        same = next((at for at, (a, b) in enumerate(zip(found, expected)) if a != b), min(len(found), size))
        raise AssertionError(f"{what}: {len(found)} bytes instead of {size}, the same up to {same}")


class Machine:
    """A Windows of our own, without a display. Ports lead to files and devices of this machine."""

    def __init__(self, program, prefix):
        self.program = program
        self.prefix = prefix
        self.wine = shutil.which("wine") or shutil.which("wine64")
        if not self.wine or not shutil.which("wineserver"):
            skip("Wine is not installed")
        self.environment = dict(os.environ, WINEPREFIX=str(prefix), WINEDEBUG="-all", LC_ALL="C.UTF-8",
                                WINEDLLOVERRIDES="mscoree,mshtml=")
        self.environment.pop("DISPLAY", None)
        self.folder = prefix / "devices"
        self.spool = prefix / "drive_c/windows/system32/spool/printers"

    def run(self, *command, seconds=SECONDS):
        subprocess.run(command, env=self.environment, timeout=seconds, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def set_up(self, ports=None, printers=None, spooled=None):
        """`ports` lead to paths, `printers` to ports, and the spooler's ports in `spooled` to paths."""
        if not (self.prefix / "system.reg").exists():
            self.prefix.mkdir(parents=True, exist_ok=True)
            self.run(self.wine, "wineboot", "-i", seconds=180)
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()
        for job in self.spool.glob("*"):
            job.unlink()
        sections = {
            r"HKEY_LOCAL_MACHINE\Software\Wine\Ports": ports or {},
            r"HKEY_CURRENT_USER\Software\Wine\Printing\Spooler": spooled or {},
            r"HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Print\Printers": {},
        }
        for name, (port, attributes) in (printers or {}).items():
            sections[rf"HKEY_LOCAL_MACHINE\System\CurrentControlSet\Control\Print\Printers\{name}"] = {
                "Name": name, "Port": port, "Printer Driver": "Kestrane 20", "Print Processor": "winprint",
                "Datatype": "RAW", "Share Name": f"{name} for all", "Attributes": attributes, "Status": 0}
        lines = ["REGEDIT4", ""]
        lines += [f"[-{section}]" for section in list(sections)[:3]]
        for section, values in sections.items():
            lines += ["", f"[{section}]"]
            for key, value in values.items():
                text = f"dword:{value:08x}" if isinstance(value, int) else '"%s"' % value.replace("\\", "\\\\")
                lines.append(f'"{key}"={text}')
        file = self.folder / "machine.reg"
        file.write_text("\r\n".join(lines) + "\r\n")
        self.run(self.wine, "regedit", "/S", self.windows_path(file))
        # The ports are linked when the machine starts.
        self.shut_down()

    def shut_down(self):
        # 1 where it is down already.
        for option in ("-k", "-w"):
            subprocess.run(["wineserver", option], env=self.environment, timeout=SECONDS, check=False)

    @staticmethod
    def windows_path(path):
        return "Z:" + str(path).replace("/", "\\")


class Host:
    """The program, a line told and a line answered. What it asks of its user comes as an answer too."""

    def __init__(self, machine):
        self.process = subprocess.Popen([machine.wine, machine.program], env=machine.environment,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.lines = queue.Queue()
        threading.Thread(target=self.listen, daemon=True).start()

    def listen(self):
        for line in self.process.stdout:
            self.lines.put(line.decode("utf-8", "replace").rstrip("\r\n"))
        self.lines.put(None)

    def hear(self):
        try:
            line = self.lines.get(timeout=SECONDS)
        except queue.Empty:
            raise AssertionError(f"no answer within {SECONDS} seconds") from None
        if line is None:
            raise AssertionError("the host is gone")
        print(f"    {line}", flush=True)
        return line

    def tell(self, line):
        print(f"  {line}", flush=True)
        self.process.stdin.write(f"{line}\n".encode())
        self.process.stdin.flush()
        return self.hear()

    def hear_all(self, command):
        """The lines before the one that says that it is the end."""
        lines = [self.tell(command)]
        while lines[-1] != "end":
            lines.append(self.hear())
        return lines[:-1]

    def expect(self, command, answer):
        found = self.tell(command)
        # A box is known by its beginning.
        if found != answer and not (answer.startswith(("asked ", "told ")) and found.startswith(answer)):
            raise AssertionError(f"{command}: {found!r} instead of {answer!r}")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        try:
            self.process.wait(SECONDS)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()


class Line:
    """A pseudo terminal. Its far end is held open, so that its settings stay when the host closes the port."""

    def __init__(self):
        self.end, self.line = os.openpty()
        tty.setraw(self.line)
        self.path = os.ttyname(self.line)
        self.received = b""
        self.thread = None

    def settings(self):
        """Rate, parity, two stop bits, handshake by lines, by characters in and out. The rest is Wine's own affair."""
        iflag, _, cflag, _, _, rate, _ = termios.tcgetattr(self.end)
        return (rate, (cflag & (termios.PARODD | CMSPAR), iflag & termios.INPCK), bool(cflag & termios.CSTOPB),
                bool(cflag & termios.CRTSCTS), bool(iflag & termios.IXOFF), bool(iflag & termios.IXON))

    def characters(self):
        special = termios.tcgetattr(self.end)[6]
        return special[termios.VSTART], special[termios.VSTOP]

    def collect(self, size):
        """Takes so many bytes off the line from now on."""
        def take():
            while len(self.received) < size:
                self.received += os.read(self.end, 65536)
        self.received = b""
        self.thread = threading.Thread(target=take, daemon=True)
        self.thread.start()

    def collected(self):
        self.thread.join(SECONDS)
        return self.received


# The handshake, in the toolkit's bits.
XON_IN, XON_OUT, CTS_OUT, RTS_HANDSHAKE, RTS_TOGGLE = 0x1, 0x2, 0x4, 0x20, 0x40

# What the line is set to, and how it is seen on a pseudo terminal, which has 8 data bits and no parity bit,
# whatever it is set to; the rest of the settings tells the parity.
FRAME = {"8": termios.CS8, "7": termios.CS7, "N": 0, "O": termios.PARENB | termios.PARODD, "E": termios.PARENB,
         "M": termios.PARENB | termios.PARODD | CMSPAR, "S": termios.PARENB | CMSPAR}
PARITY = {"N": (0, 0), "O": (termios.PARODD, termios.INPCK), "E": (0, termios.INPCK),
          "M": (termios.PARODD | CMSPAR, termios.INPCK), "S": (CMSPAR, termios.INPCK)}


class Written_Settings:
    """The frames that Wine sets its lines to, as a module in it writes them down. It takes a compiler."""

    def __init__(self, machine):
        self.file = machine.prefix / "line_settings.txt"
        compiler = shutil.which("cc") or shutil.which("gcc")
        if not compiler:
            print("no compiler of this machine: the data bits were not looked at")
            self.file = None
            return
        module = machine.prefix / "line_settings.so"
        machine.run(compiler, "-shared", "-fPIC", "-o", module, pathlib.Path(__file__).with_name("line_settings.c"),
                    "-ldl")
        machine.environment.update(LD_PRELOAD=str(module), MVN_TEST_LINE_SETTINGS=str(self.file))

    def forget(self):
        if self.file:
            self.file.write_text("")

    def expect(self, protocol):
        if self.file:
            bits = termios.CSIZE | termios.PARENB | termios.PARODD | CMSPAR
            frames = {int(line, 8) & bits for line in self.file.read_text().split()}
            if FRAME[protocol[0]] | FRAME[protocol[1]] not in frames:
                raise AssertionError(f"{protocol}: the line was set to {[oct(frame) for frame in frames]}")


@test
def serial_port(machine):
    line = Line()
    machine.set_up(ports={"COM1": line.path, "COM12": line.path})
    rows = [("8N1", 9600, 0), ("7E2", 19200, XON_OUT), ("8O1", 115200, XON_IN | XON_OUT), ("7M1", 1200, 0),
            ("7S2", 300, CTS_OUT | RTS_HANDSHAKE)]
    written = Written_Settings(machine)
    with Host(machine) as host:
        for protocol, rate, handshake in rows:
            before = line.settings()
            written.forget()
            host.expect(f"to serial {protocol} {rate} {handshake} 500 20000 COM1", "set")
            host.expect("open", "open")
            expect("settings", line.settings(),
                   (getattr(termios, f"B{rate}"), PARITY[protocol[1]], protocol[2] == "2",
                    bool(handshake & CTS_OUT), bool(handshake & XON_IN), bool(handshake & XON_OUT)))
            written.expect(protocol)
            expect("XON and XOFF", line.characters(), (b"\x11", b"\x13"))
            line.collect(20000)
            host.expect("write 20000 700", "20000")
            os.write(line.end, b"ready")
            host.expect("read 5", "5 ready")
            host.expect("read 5", "0 ")
            host.expect("close", "closed")
            expect_bytes(protocol, line.collected(), 20000)
            expect("settings after closing", line.settings(), before)

        # A device that takes nothing for a while, and one that never does. The port has taken some of the bytes.
        host.expect("to serial 8N1 9600 0 500 300 COM1", "set")
        for answer in ("retry", "abort"):
            host.expect("open", "open")
            host.expect("write 100000 5000", "asked box 50 The device is not accepting any data.")
            if answer == "retry":
                line.collect(100000)
                # More than once, where this machine has more to do than to take bytes off the line.
                found = host.tell("retry")
                while found.startswith("asked box 50 "):
                    found = host.tell("retry")
                expect("bytes after the stall", found, "100000")
                host.expect("close", "closed")
                expect_bytes("after the stall", line.collected(), 100000)
            else:
                host.expect("abort", "aborted")
                host.expect("write 1 1", "aborted")
                host.expect("close", "closed")
        termios.tcflush(line.end, termios.TCIOFLUSH)
        termios.tcflush(line.line, termios.TCIOFLUSH)

        # What the port offers, and this line cannot have. A rate would not do: those that Wine does not know
        # leave the line at the rate it has, and count as set.
        host.expect(f"to serial 8N1 9600 {RTS_TOGGLE} 500 20000 COM1", "set")
        host.expect("open", "asked ARI 239 ")
        host.expect("retry", "asked ARI 239 ")
        host.expect("ignore", "open")
        line.collect(10)
        host.expect("write 10 10", "10")
        host.expect("close", "closed")
        expect_bytes("with the line's own settings", line.collected(), 10)

        host.expect("to serial 8N1 9600 0 500 20000 COM12:", "set")
        host.expect("open", "open")
        host.expect("close", "closed")
        host.expect("to serial 8N1 9600 0 500 20000 COM99", "set")
        host.expect("open", "asked ARI 208 The port could not be opened.")
        host.expect("retry", "asked ARI 208 ")
        host.expect("ignore", "not open")


@test
def parallel_port(machine):
    device = machine.folder / "lpt1"
    machine.set_up(ports={"LPT1": str(device), "LPT2": "/dev/full"})
    device.write_bytes(b"")
    with Host(machine) as host:
        host.expect("to parallel 0 20000 LPT1", "set")
        host.expect("open", "open")
        host.expect("write 50000 700", "50000")
        host.expect("close", "closed")
        expect_bytes("the device", device.read_bytes(), 50000)

        host.expect("to parallel 0 20000 LPT2", "set")
        host.expect("open", "open")
        host.expect("write 9000 9000", "asked box 50 The device on port LPT2 is not accepting any data.")
        host.expect("retry", "asked box 50 ")
        host.expect("abort", "aborted")
        host.expect("close", "closed")


@test
def plot_file(machine):
    machine.set_up()
    folder = machine.folder / "Pläne \u2026 7"
    file = folder / "Grundriß.plt"
    with Host(machine) as host:
        host.expect(f"to file {machine.windows_path(file)}", "set")
        host.expect("open", "asked ARI 238 The plot file could not be created.")
        folder.mkdir()
        host.expect("retry", "open")
        host.expect("write 1000000 1000", "1000000")
        host.expect("flush", "flushed")
        expect_bytes("flushed", file.read_bytes(), 1000000)
        # Nobody else has the file meanwhile. Wine does not watch over its ports in that way.
        with Host(machine) as other:
            other.expect(f"to file {machine.windows_path(file)}", "set")
            other.expect("open", "asked ARI 238 ")
            other.expect("abort", "not open")
        host.expect("close", "closed")
        # What was there is gone.
        host.expect("open", "open")
        host.expect("write 4096 1", "4096")
        host.expect("close", "closed")
        expect_bytes("a second plot", file.read_bytes(), 4096)

        # A full disk, with the buffer and past it.
        host.expect(f"to file {machine.windows_path('/dev/full')}", "set")
        host.expect("open", "open")
        host.expect("write 9000 9000", "asked box 50 The device is not accepting any data.")
        host.expect("ignore", "0")
        host.expect("write 10 10", "10")
        host.expect("close", "asked box 50 The device is not accepting any data.")
        host.expect("retry", "asked box 50 The device is not accepting any data.")
        host.expect("abort", "closed")


LOCAL, SHARED = 0x40, 0x8


@test
def print_queue(machine):
    printed = {name: machine.folder / name for name in ("office", "lpt1")}
    machine.set_up(printers={"Office": (str(printed["office"]), LOCAL | SHARED), "Hall": ("LPT1:", LOCAL),
                             "Gone": (str(machine.folder / "missing" / "gone"), LOCAL),
                             "Bin": ("/dev/null", LOCAL)},
                   spooled={"LPT1:": str(printed["lpt1"])})
    with Host(machine) as host:
        host.expect("to queue Office", "set")
        host.expect("validate", "valid")
        host.expect("open", "open")
        host.expect("write 300000 5000", "300000")
        host.expect("read 5", "-1 ")
        host.expect("close", "closed")
        expect_bytes("the queue's file", printed["office"].read_bytes(), 300000)

        # A job stays a job: it is not cancelled.
        host.expect("open", "open")
        host.expect("write 5000 5000", "5000")
        host.expect("purge", "purged")
        host.expect("close", "closed")
        expect_bytes("what was sent before the purge", printed["office"].read_bytes(), 5000)

        host.expect("to parallel 0 1000 LPT1", "set")
        host.expect("open", "told box 0 Port LPT1 belongs to a printer of the operating system.")
        expect("the port's printer", host.hear(), "open, spooling")
        host.expect("write 300000 5000", "300000")
        host.expect("close", "closed")
        expect_bytes("the port's printer", printed["lpt1"].read_bytes(), 300000)

        host.expect("to queue Nowhere", "set")
        host.expect("validate", "told error 241 ")
        expect("no printer of that name", host.hear(), "changed")
        host.expect("to queue Nowhere", "set")
        host.expect("open", "not open")

        # The job comes to its device at the end, and there is none.
        host.expect("to queue Gone", "set")
        host.expect("open", "open")
        host.expect("write 5000 5000", "5000")
        host.expect("close", "not well closed")

        # No room for jobs. When the job ends, Wine takes it out of the file of that name, and from there nowhere.
        jobs = [machine.spool / f"{number:05}.SPL" for number in range(100)]
        for job in jobs:
            job.symlink_to("/dev/full")
        host.expect("to queue Bin", "set")
        host.expect("open", "open")
        host.expect("write 9000 9000", "asked ARI 240 The data could not be sent to the print queue.")
        host.expect("retry", "asked ARI 240 ")
        host.expect("abort", "aborted")
        for job in jobs:
            job.unlink()
            job.write_bytes(b"")
        host.expect("close", "closed")


@test
def cups_queue(machine):
    sink = os.environ.get("MVN_TEST_SINK_PORT")
    if not sink:
        skip("no print server of this machine")
    machine.set_up()
    # Wine hands its jobs on as plain text, which the server would typeset, unless the user's options say "raw".
    (machine.folder / "lpoptions").write_text("Dest line raw=true\n")
    machine.environment.update(CUPS_SERVER=f"127.0.0.1:{os.environ['MVN_TEST_PRINT_PORT']}",
                               CUPS_SERVERROOT=str(machine.folder))
    with socket.create_server(("127.0.0.1", int(sink))) as device, Host(machine) as host:
        device.settimeout(SECONDS)
        host.expect("to queue line", "set")
        host.expect("validate", "valid")
        host.expect("open", "open")
        host.expect("write 300000 5000", "300000")
        host.expect("close", "closed")
        visitor, _ = device.accept()
        visitor.settimeout(SECONDS)
        with visitor, visitor.makefile("rb") as stream:
            expect_bytes("at the queue's device", stream.read(), 300000)
        expect("Wine calls its queues neither local nor far, so that nobody is offered them",
               [line for line in host.hear_all("ports") if "|line|" in line], [])


@test
def discovery(machine):
    machine.set_up(printers={"Office": (str(machine.folder / "office"), LOCAL | SHARED), "Hall": ("LPT1:", LOCAL),
                             "Nameless": ("XYZ:", SHARED)})
    with Host(machine) as host:
        raw = host.hear_all("raw")
        found = host.hear_all("ports")
    ports = [line.removeprefix("port ") for line in raw if line.startswith("port ")]
    expected = []
    for port in ports:
        if port != "FILE:":
            expected.append(f"port {4 if port.startswith('COM') else 5}|{port.removesuffix(':')}|")
    if not {"COM1:", "LPT1:", "FILE:"} <= set(ports):
        raise AssertionError(f"Wine's ports: {ports}")
    expect("Wine's printers", sorted(line.split("|")[1] for line in raw if line.startswith("printer ")),
           ["Hall", "Nameless", "Office"])
    expected.append("port 6|Office|Office for all")
    expect("the toolkit's ports, last found first", found, expected[::-1])


def main():
    name, program, prefix = sys.argv[1:]
    machine = Machine(program, pathlib.Path(prefix))
    try:
        TESTS[name](machine)
    finally:
        machine.shut_down()


if __name__ == "__main__":
    main()
