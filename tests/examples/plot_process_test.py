#!/usr/bin/env python3
"""Runs the sample host as a user would: on ports whose other end is here, a print queue, a full disk, a terminal.

usage: plot_process_test.py PLOT_HOST DATA_FOLDER

Run by spooler.py, which says in the environment where a print server is; what needs one is left out without.
"""
import fcntl
import math
import os
import pathlib
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import termios
import threading
import time
import unittest

HOST, DATA = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
PLAN = str(DATA / "floor_plan.svg")
PRINT_PORT, SINK_PORT = (os.environ.get(name) for name in ("MVN_TEST_PRINT_PORT", "MVN_TEST_SINK_PORT"))
NOT_SENT, OTHER_DESTINATION, INTERRUPTED = 3, 4, 130
LONGEST = 60


def line_settings(line):
    """Input flags, control flags and bits per second; what termios gives has no word for some speeds."""
    record = struct.Struct("=4IB19B2I")
    fields = record.unpack(fcntl.ioctl(line, 0x802C542A, bytes(record.size)))
    return fields[0], fields[2], fields[-1]


class Line:
    """A serial line: the host has the far end, and what comes out of it is read here."""

    def __init__(self):
        self.end, self.line = os.openpty()
        self.name = os.ttyname(self.line)
        self.settings = None
        self.got = b""

    def read(self, until=None):
        def loop():
            while until is None or len(self.got) < until:
                try:
                    some = os.read(self.end, 512)
                except OSError:
                    return
                if self.settings is None:
                    self.settings = line_settings(self.line)
                self.got += some

        self.reader = threading.Thread(target=loop, daemon=True)
        self.reader.start()

    def wait_for(self, size):
        end = time.monotonic() + LONGEST
        while len(self.got) < size and time.monotonic() < end:
            time.sleep(0.01)
        return self.got

    def hang_up(self):
        os.close(self.end)
        os.close(self.line)


class Plots(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory(prefix="plots-")
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)

    def command(self, *arguments, drawing=PLAN, device="pen-plotter"):
        return [str(HOST), "--device", device, "--drawing", drawing, *arguments]

    def plot(self, *arguments, **which):
        return subprocess.run(self.command(*arguments, **which), stdin=subprocess.DEVNULL, timeout=LONGEST,
                              capture_output=True, text=True, check=False, cwd=self.folder)

    def start(self, *arguments, **which):
        process = subprocess.Popen(self.command(*arguments, **which), stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, cwd=self.folder)
        self.addCleanup(process.kill)
        return process

    def expected(self, **which):
        path = self.folder / "expected"
        self.assertEqual(self.plot("--to", f"file:{path}", **which).returncode, 0)
        return path.read_bytes()

    # More than any line holds back.
    def long_drawing(self):
        points = " ".join(f"{500 + i % 400},{500 + 400 * math.sin(i / 50):.1f}" for i in range(30000))
        path = self.folder / "long.svg"
        path.write_text(f'<svg viewBox="0 0 1000 1000"><polyline stroke="black" points="{points}"/></svg>')
        return str(path)

    def test_serial_line(self):
        drawing = self.long_drawing()  # so that the line is looked at while the plot goes on
        line = Line()
        line.read()
        choice = self.folder / "choice.json"
        done = self.plot("--map-port", f"COM1={line.name}", "--to", "port:com1:", "--save", str(choice),
                         drawing=drawing)
        self.assertEqual(done.returncode, 0, done.stderr)
        expected = self.expected(drawing=drawing)
        self.assertTrue(done.stdout.endswith(f"\nSent {len(expected)} bytes to port COM1\n"), done.stdout)
        self.assertNotIn("\r", done.stdout + done.stderr, "no bar where nobody looks")
        self.assertTrue(line.wait_for(len(expected)) == expected)
        iflag, cflag, speed = line.settings
        self.assertEqual(speed, 9600)
        self.assertEqual(cflag & (termios.CSIZE | termios.CSTOPB), termios.CS8)
        self.assertTrue(iflag & termios.IXON)

        # The saved choice with another line setting comes back to the same port.
        choice.write_text(choice.read_text().replace("9600", "2400"))
        line.settings = None
        done = self.plot("--map-port", f"COM1={line.name}", "--to", "port:COM1", "--choice", str(choice),
                         drawing=drawing)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue(line.wait_for(2 * len(expected)) == 2 * expected)
        self.assertEqual(line.settings[2], 2400)


    def test_reader_that_goes_away(self):
        line = Line()
        line.read(until=2000)
        process = self.start("--map-port", f"COM1={line.name}", "--to", "port:COM1", drawing=self.long_drawing())
        line.wait_for(2000)
        line.reader.join(LONGEST)
        line.hang_up()
        _, err = process.communicate(timeout=LONGEST)
        self.assertEqual(process.returncode, NOT_SENT, err)
        self.assertIn("aborted; the plot to port COM1 is not whole", err)

    def test_interrupted_before_a_standing_reader(self):
        line, pipe = Line(), self.folder / "pipe"
        os.mkfifo(pipe)
        standing = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
        self.addCleanup(os.close, standing)
        drawing = self.long_drawing()
        for name, port in ((line.name, "COM1"), (pipe, "LPT1")):
            with self.subTest(port=port):
                process = self.start("--map-port", f"{port}={name}", "--to", f"port:{port}", drawing=drawing)
                time.sleep(1.5)
                self.assertIsNone(process.poll(), "it waits")
                asked = time.monotonic()
                process.send_signal(signal.SIGINT)
                _, err = process.communicate(timeout=LONGEST)
                self.assertLess(time.monotonic() - asked, 5)
                self.assertEqual(process.returncode, INTERRUPTED, err)
                self.assertIn("interrupted; the plot to port", err)

    def test_other_destination_is_told_and_taken_only_when_allowed(self):
        self.assertEqual(self.plot("--map-port", "PLOT=/dev/null", "--to", "port:COM1").returncode, 2)
        refused = self.plot("--to", "port:COM77", "--strategy", "nearest")
        self.assertEqual(refused.returncode, OTHER_DESTINATION)
        self.assertRegex(refused.stderr, "port COM77 cannot be used; the choice goes to .* instead, where nothing")
        to_file = self.plot("--to", "queue:no-such", "--any-destination", "--print-server", "127.0.0.1:1")
        self.assertEqual(to_file.returncode, 0, to_file.stderr)
        self.assertEqual((self.folder / "floor_plan.plt").read_bytes(), self.expected())

    # A user who types, on a terminal of their own.
    def on_terminal(self, device, type_at_box):
        pid, terminal = os.forkpty()
        if pid == 0:
            # Ctrl-C would throw away what has been written and not been read yet.
            modes = termios.tcgetattr(0)
            modes[3] |= termios.NOFLSH
            termios.tcsetattr(0, termios.TCSANOW, modes)
            os.execv(HOST, self.command("--map-port", f"COM1={device}", "--to", "port:COM1"))
        shown, typed, end = b"", False, time.monotonic() + LONGEST
        while time.monotonic() < end:
            try:
                shown += os.read(terminal, 1024)
            except OSError:
                break
            if not typed and shown.endswith(b"Ignore: "):
                typed = True
                type_at_box(terminal)
        os.close(terminal)
        return os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]), shown

    def test_box_and_bar_on_a_terminal(self):
        for keys, answer, code in ((b"a\n", b"port COM1 cannot be opened", NOT_SENT), (b"\x03", b"interrupted", INTERRUPTED)):
            code_was, shown = self.on_terminal("/dev/null/none", lambda terminal: os.write(terminal, keys))
            self.assertEqual(code_was, code, (answer, shown))
            self.assertIn(answer, shown)
            self.assertIn(b"Abort / Retry / Ignore: ", shown)
        line = Line()
        line.read()
        code_was, shown = self.on_terminal(line.name, None)
        self.assertEqual(code_was, 0, shown)
        self.assertIn(b"] 100 %", shown)

    @unittest.skipUnless(PRINT_PORT and SINK_PORT, "no print server")
    def test_queue(self):
        got = []
        listener = socket.create_server(("127.0.0.1", int(SINK_PORT)))
        listener.settimeout(LONGEST)
        self.addCleanup(listener.close)

        def take():
            visitor, _ = listener.accept()
            visitor.settimeout(LONGEST)
            with visitor, visitor.makefile("rb") as all_of_it:
                got.append(all_of_it.read())

        sink = threading.Thread(target=take, daemon=True)
        sink.start()
        server = ("--print-server", f"127.0.0.1:{PRINT_PORT}")
        done = self.plot(*server, "--to", "queue:line")
        self.assertEqual(done.returncode, 0, done.stderr)
        sink.join(LONGEST)
        expected = self.expected()
        self.assertEqual(got, [expected])
        self.assertTrue(done.stdout.endswith(f"Sent {len(expected)} bytes to queue line\n"), done.stdout)
        refused = self.plot(*server, "--to", "queue:none-such")
        self.assertEqual(refused.returncode, OTHER_DESTINATION, refused.stderr)
        refused = self.plot(*server, "--to", "queue:refusing")
        self.assertEqual(refused.returncode, NOT_SENT, refused.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
