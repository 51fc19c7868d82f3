# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT
"""The screen reader's side of a turn: finds the game's controls by name, presses them and hears what changes."""

import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib


def everything(accessible):
    yield accessible
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is not None:
            yield from everything(child)


def find(name, role=None):
    desktop = pyatspi.Registry.getDesktop(0)
    for application in desktop:
        if application is not None and application.name == "kelvaro":
            for accessible in everything(application):
                if accessible.name == name and role in (None, accessible.getRole()):
                    return accessible
    return None


def wait_for(what, condition):
    """Runs the loop that delivers events until `condition` gives something."""
    context = GLib.MainContext.default()
    end = time.monotonic() + 20
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        while context.iteration(False):
            pass
        time.sleep(0.02)
    sys.exit(f"waited in vain for {what}")


heard = []
pyatspi.Registry.registerEventListener(
    lambda event: heard.append(event.source.name), "object:property-change:accessible-name"
)
game = subprocess.Popen([sys.argv[1]])
try:
    roll = wait_for("the roll button", lambda: find("Roll Dice", pyatspi.ROLE_PUSH_BUTTON))
    cell = wait_for("a cell", lambda: find("Row 2, column 4: empty"))
    assert cell.getRole() == pyatspi.ROLE_PUSH_BUTTON, cell.getRoleName()
    assert find("Sum of the roll: 0") is None and find("First die: 1") is None
    roll.queryAction().doAction(0)
    wait_for("the placement prompt", lambda: "Select A Location for the Roll on the Grid" in heard)
    assert find("Roll Dice", pyatspi.ROLE_PUSH_BUTTON) is None, "the hidden roll button is still found"
    actions = cell.queryAction()
    print("actions of a cell:", [actions.getName(index) for index in range(actions.nActions)])
    actions.doAction(0)
    wait_for("the next prompt", lambda: "Roll The Dice" in heard)
    wait_for("the cell's new name", lambda: cell.name.startswith("Row 2, column 4: ") and "empty" not in cell.name)
    print(cell.name, "was placed from outside")
finally:
    game.kill()
