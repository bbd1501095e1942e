"""What processes cost, as the kernel accounts for it."""

import os
import time
from pathlib import Path

PROCESSES = Path("/proc")


def processor_seconds(pid):
    """What all its threads have used, those that ended included, to the nanosecond."""
    processor_clock_of_process = (~pid << 3) | 2
    return time.clock_gettime(processor_clock_of_process)


def peak_megabytes(pid):
    return _field(pid, "status", "VmHWM") / 1024


def proportional_megabytes(pid):
    """Memory that is shared with other processes is counted in parts."""
    return _field(pid, "smaps_rollup", "Pss") / 1024


def named(name, part_of_environment):
    """The process of this name with this in its environment."""
    for folder in PROCESSES.glob("[0-9]*"):
        try:
            if (folder / "comm").read_text().strip() == name and part_of_environment in (
                folder / "environ"
            ).read_bytes():
                return int(folder.name)
        except OSError:
            pass  # it has ended meanwhile
    raise LookupError(name)


def below(ancestor, *words):
    """The processes that descend from another and have one of these words in their command line."""
    parents = {int(folder.name): _parent(folder) for folder in PROCESSES.glob("[0-9]*")}
    found = []
    for pid, parent in parents.items():
        while parent not in (ancestor, 0, None):
            parent = parents.get(parent)
        if parent == ancestor and any(word.encode() in (PROCESSES / str(pid) / "cmdline").read_bytes() for word in words):
            found.append(pid)
    return found


def _parent(folder):
    try:
        return int((folder / "stat").read_text().rpartition(")")[2].split()[1])
    except OSError:
        return None  # it has ended meanwhile


def drop_page_cache():
    os.sync()
    Path("/proc/sys/vm/drop_caches").write_text("3")


def _field(pid, file, name):
    for line in (PROCESSES / str(pid) / file).read_text().splitlines():
        if line.startswith(name + ":"):
            return int(line.split()[1])
    raise LookupError(name)


BUSY = 0.15  # of all cores
PATIENCE = 60  # seconds
_busy_shares = []


def wait_until_quiet():
    """Waits until other programs leave the machine alone, unless they were already found not to do so."""
    if was_busy():
        return
    end = time.monotonic() + PATIENCE
    while (busy := _busy_share(0.3)) > BUSY and time.monotonic() < end:
        pass
    if busy > BUSY:
        _busy_shares.append(busy)


def was_busy():
    return bool(_busy_shares)


def _busy_share(seconds):
    before = _times()
    time.sleep(seconds)
    total, idle = (b - a for a, b in zip(before, _times()))
    return 1 - idle / total


def _times():
    fields = [int(part) for part in (PROCESSES / "stat").read_text().splitlines()[0].split()[1:9]]
    return sum(fields), fields[3] + fields[4]
