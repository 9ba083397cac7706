"""What a running program holds: memory, handles, what it keeps on the X server."""

import dataclasses
import os
import re
import socket
import time

from desk import PATIENCE
from preload import preloadable


@dataclasses.dataclass
class Reading:
    """One look at the program at rest. Bytes for memory, counts for all else."""

    heap: int  # in use, as the C library counts it
    own_memory: int  # pages that this process alone has written to
    memory: int  # its fair share of all pages, the PSS
    descriptors: int
    threads: int
    children: int  # processes that it has started and not taken leave of
    on_the_x_server: dict  # how many of each kind of resource
    spoken_objects: int | None = None  # what screen readers find; counted now and then


def _descriptors(pid):
    """How many stay open. One look may meet what is open for a moment, as the clock's file is."""
    looks = []
    for _ in range(3):
        looks.append(set(os.listdir(f"/proc/{pid}/fd")))
        time.sleep(0.02)
    return len(set.intersection(*looks))


class Probe:
    """Reads a program that was started with the environment that `environment` gives."""

    def __init__(self, desk, library):
        self._desk, self._library = desk, preloadable(library, desk.folder)
        self._socket = os.path.join(desk.folder, "heap")

    def environment(self, *preloaded):
        return {
            "LD_PRELOAD": " ".join([*preloaded, self._library]),
            "HEAP_PROBE": self._socket,
            # Blocks that a thread has given back and keeps at hand would count as used.
            "GLIBC_TUNABLES": "glibc.malloc.tcache_count=0",
        }

    def read(self, pid):
        heap = self._heap()
        rollup = _fields(f"/proc/{pid}/smaps_rollup")
        return Reading(
            heap=heap,
            own_memory=_kilobytes(rollup, "Private_Dirty"),
            memory=_kilobytes(rollup, "Pss"),
            descriptors=_descriptors(pid),
            threads=int(_fields(f"/proc/{pid}/status")["Threads"]),
            children=sum(_parent(other) == pid for other in os.listdir("/proc") if other.isdigit()),
            on_the_x_server=self._on_the_x_server(),
        )

    def _heap(self):
        with socket.socket(socket.AF_UNIX) as asked:
            asked.settimeout(PATIENCE)
            asked.connect(self._socket)
            return int(asked.makefile().readline())

    def _on_the_x_server(self):
        told = self._desk.run(["xrestop", "-b", "-m", "1"]).decode(errors="replace")
        for client in re.split(r"(?m)^\d+ - ", told):
            title, _, lines = client.partition("\n")
            if not title.startswith("N.A.V.A.R.U.N"):
                continue
            counts = (line.split(":") for line in lines.splitlines() if ":" in line)
            found = {name.strip(): value.strip() for name, value in counts}
            kinds = ("windows", "GCs", "pixmaps", "pictures", "glyphsets", "cursors", "unknowns")
            return {name: int(found[name]) for name in kinds}
        raise AssertionError(f"the program is not among those of the X server: {told[:2000]}")


def _fields(file):
    with open(file, encoding="ascii", errors="replace") as lines:
        return dict(line.split(":", 1) for line in lines if ":" in line)


def _kilobytes(fields, name):
    return int(fields[name].split()[0]) * 1024


def _parent(pid):
    try:
        with open(f"/proc/{pid}/stat", encoding="ascii", errors="replace") as line:
            return int(line.read().rpartition(")")[2].split()[1])
    except (OSError, IndexError):
        return None  # gone meanwhile
