"""The program as assistive technology finds it on the accessibility bus. For the tests beside this
file, which run on a display and a session bus of their own:

  scripts/with_display dbus-run-session tests/desktop/keys_test.py build/release/desktop/clinorama
"""

import atexit
import os
import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 60  # seconds, in which also a slow machine does what is waited for

# The names of windows.
PRESENTATION = "Apresentação: CLINORAMA"
WORK_PAGE = "Página de trabalho: CLINORAMA"


def states_of(accessible):
    return {state.value_nick for state in accessible.get_state_set().get_states()}


class Node:
    """A window, a control or a menu item as it was when it was looked at."""

    def __init__(self, accessible):
        self.accessible = accessible
        self.role = accessible.get_role_name()
        self.name = accessible.get_name()
        self.states = states_of(accessible)

    def place(self):
        """What tells it from others: role, name, and the name of what it is in."""
        return self.role, self.name, self.accessible.get_parent().get_name()

    def children(self):
        """Those that can be seen."""
        for i in range(self.accessible.get_child_count()):
            child = self.accessible.get_child_at_index(i)
            if child and "showing" in states_of(child):
                yield Node(child)

    def nodes(self):
        yield self
        for child in self.children():
            yield from child.nodes()

    def find(self, role, name, state="showing"):
        """The first one in it of a role, whose name matches and which is in a state."""
        return next((node for node in self.nodes() if node.role == role and state in node.states
                     and re.fullmatch(name, node.name)), None)

    def act(self):
        """Does what a click on it does."""
        if not self.accessible.do_action(0):
            sys.exit(f"There is no action of {self}.")

    def write(self, text):
        self.accessible.set_text_contents(text)

    def read(self):
        return self.accessible.get_text(0, self.accessible.get_character_count())

    def __repr__(self):
        return f"{self.role} '{self.name}' ({' '.join(sorted(self.states))})"


class Program:
    """The running program."""

    def __init__(self, path):
        Atspi.init()
        Atspi.set_timeout(1000 * PATIENCE, 1000 * PATIENCE)
        self._desktop = Atspi.get_desktop(0)
        self._desktop.set_cache_mask(Atspi.Cache.NONE)
        self.announced = []  # all that the program said unasked
        self._keyboard_at = None
        self._listener = Atspi.EventListener.new(self._hear)
        for state in ("focused", "showing"):
            self._listener.register(f"object:state-changed:{state}")
        always_on = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.process = subprocess.Popen([path], env=os.environ | always_on)
        atexit.register(self.process.kill)

    def _hear(self, event):
        if not event.detail1:
            return
        node = Node(event.source)
        if "focused" in event.type:
            self._keyboard_at = node.place()
        elif node.role == "notification" and node.name:
            self.announced.append(node.name)

    @staticmethod
    def _listen():
        while GLib.MainContext.default().iteration(False):
            pass

    def keyboard_at(self):
        """The place of what last got the keyboard; None before that."""
        self._listen()
        return self._keyboard_at

    def windows(self):
        return [window for program in Node(self._desktop).children()
                for window in program.children()]

    def window(self, name=None):
        """The one of that name, or else the active one; None where there is none."""
        return next((window for window in self.windows() if window.name == name or
                     name is None and "active" in window.states), None)

    def find(self, role, name, state="showing"):
        """In the active window."""
        window = self.window()
        return window and window.find(role, name, state)

    def wait_for(self, role, name, state="showing"):
        return self.wait_until(f"{role} '{name}', {state}", lambda: self.find(role, name, state))

    def wait_until(self, what, condition):
        """Gives the first result of the condition that is true."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end and self.process.poll() is None:
            self._listen()
            try:
                if result := condition():
                    return result
            except GLib.Error:
                pass  # what was looked at has gone
            time.sleep(0.02)
        seen = "\n".join(map(repr, self.window().nodes())) if self.process.poll() is None else ""
        sys.exit(f"This did not come: {what}\nSaid so far: {self.announced}\n{seen}")
