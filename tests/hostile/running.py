"""Runs of the tool on hostile documents: how one ended, what it wrote, what it took."""

import ctypes
import dataclasses
import mmap
import os
import pathlib
import re
import subprocess
import tempfile
import time

HANGS_AFTER = 1800  # seconds; the longest run at full size takes a few minutes
SHOWN = 1 << 20  # bytes looked at from both ends of what was written
COUNTER = ["valgrind", "--tool=cachegrind", "--cache-sim=no", "--cachegrind-out-file=/dev/null"]


class Wrong(Exception):
    """What a case found that should not be."""


def expect(condition, sentence):
    if not condition:
        raise Wrong(sentence)


@dataclasses.dataclass
class Run:
    """How a run ended. Of long texts the begin and the end are kept."""

    status: int  # negative: the number of the signal
    out: str
    err: str
    seconds: float  # of the processor, the system's part included
    bytes: int  # of memory, at most
    has_own_line: bool  # whether the tool itself said something on standard error

    def last_line(self):
        lines = self.err.rstrip("\n").splitlines()
        return lines[-1] if lines else ""

    def expect_end(self, status, line):
        """It exits with this status and says so: what it writes has the text `line`, and a run that fails ends
        with a line of the tool's own, or a report that counts errors."""
        expect(self.status == status, f"exit status {self.status}, {status} expected; {self.last_line()[:300]}")
        expect(line in self.out or line in self.err,
               f"\"{line}\" expected; {self.out[-300:]} {self.last_line()[:300]}")
        if status != 0:
            expect(self.has_own_line or "error" in self.out,
                   f"no line of the tool's own: {self.last_line()[:300]}")


def _has_own_line(file):
    if file.seek(0, os.SEEK_END) == 0:
        return False
    with mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ) as text:
        return text[:8] == b"zandic: " or text.find(b"\nzandic: ") >= 0


def _ends(file):
    size = file.seek(0, os.SEEK_END)
    file.seek(0)
    text = file.read(SHOWN)
    if size > SHOWN:
        file.seek(max(SHOWN, size - SHOWN))
        text += file.read()
    return text.decode(errors="replace")


class Tool:
    """The tool, run in a directory of its own."""

    def __init__(self, path, work):
        self.path = path
        self.work = work

    def popen(self, arguments, before=(), **more):
        environment = {name: value for name, value in os.environ.items() if not name.startswith("ZEL")}
        return subprocess.Popen([*before, str(self.path), *arguments], env=environment,
                                stdin=subprocess.DEVNULL, cwd=more.pop("cwd", self.work), **more)

    def run(self, arguments, before=(), **more):
        """Runs it to its end. One that does not end is ended, and wrong."""
        with tempfile.TemporaryFile(dir=self.work) as out, tempfile.TemporaryFile(dir=self.work) as err:
            process = self.popen(arguments, before, stdout=out, stderr=err, **more)
            begin = time.monotonic()
            pause = 0.001
            while True:
                pid, status, usage = os.wait4(process.pid, os.WNOHANG)
                if pid != 0:
                    break
                if time.monotonic() - begin > HANGS_AFTER:
                    process.kill()
                    process.wait()
                    raise Wrong(f"it does not end: {' '.join(arguments)}")
                time.sleep(pause)
                pause = min(pause * 2, 0.05)
            process.returncode = os.waitstatus_to_exitcode(status)
            return Run(process.returncode, _ends(out), _ends(err), usage.ru_utime + usage.ru_stime,
                       usage.ru_maxrss * 1024, _has_own_line(err))

    def count(self, arguments):
        """Returns how many instructions a run takes. Unlike time, that does not depend on the machine's other
        work."""
        with tempfile.NamedTemporaryFile(dir=self.work) as log:
            run = self.run(arguments, [*COUNTER, f"--log-file={log.name}"])
            text = pathlib.Path(log.name).read_text(encoding="utf-8", errors="replace")
        found = re.search(r"I +refs: +([\d,]+)", text)
        expect(found is not None, f"instructions cannot be counted: {run.last_line()} {text[-300:]}")
        return int(found.group(1).replace(",", ""))


class Watch:
    """Tells what was done to files and directories that nothing may touch, while it lasts. Needs no rights."""

    OPEN, ACCESS, MODIFY, CREATE = 0x20, 0x1, 0x2, 0x100

    def __init__(self, paths):
        self._libc = ctypes.CDLL(None, use_errno=True)
        self._descriptor = self._libc.inotify_init1(os.O_NONBLOCK | os.O_CLOEXEC)
        expect(self._descriptor >= 0, "files cannot be watched here")
        self._paths = {}
        for path in paths:
            mask = self.OPEN | self.ACCESS | self.MODIFY | self.CREATE
            number = self._libc.inotify_add_watch(self._descriptor, os.fsencode(path), mask)
            expect(number >= 0, f"{path} cannot be watched: {os.strerror(ctypes.get_errno())}")
            self._paths[number] = path

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self._descriptor)

    def touched(self):
        """Returns whether anything was."""
        try:
            return len(os.read(self._descriptor, 4096)) > 0
        except BlockingIOError:
            return False

    def expect_untouched(self):
        expect(not self.touched(), "a file was opened, or made, where nothing may be")
