"""Waiting for what takes a second or two, and much longer on a busy machine."""

import time

PATIENCE = 120  # seconds


def wait_until(true, seconds=PATIENCE):
    """Waits until something is true, and tells whether it became so."""
    end = time.monotonic() + seconds
    while not true():
        if time.monotonic() > end:
            return False
        time.sleep(0.1)
    return True
