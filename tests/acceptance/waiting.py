"""Waiting for something to become true, however slow the machine is."""

import time

PATIENCE = 900  # seconds: whatever takes longer will never come


def wait_until(true):
    """Waits until something is true, and tells whether it became so."""
    end = time.monotonic() + PATIENCE
    while not true():
        if time.monotonic() > end:
            return False
        time.sleep(0.05)
    return True
