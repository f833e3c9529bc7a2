#!/usr/bin/python3 -B
"""Uses the program by keys alone, and sees what they do on the accessibility bus."""

import subprocess
import sys

from accessible_program import Program


def press(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


def focused():
    window = program.window()
    return window and window.find(".*", ".*", "focused")


def go_by(key, role, name):
    """Presses the key until the keyboard is there; once around at most."""
    seen = []
    while not (now := program.wait_until("the keyboard's place", focused)).matches(role, name):
        if str(now) in seen:
            sys.exit(f"{key} does not lead to {role} '{name}' but to {seen}")
        seen.append(str(now))
        press(key)
        program.wait_until(f"{key} moves the keyboard", lambda: str(focused()) != seen[-1])
