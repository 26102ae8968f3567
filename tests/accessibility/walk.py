#!/usr/bin/python3
"""Reads the editors as a screen reader does: usage: walk.py HOST

Walks the host's window over the accessibility bus, finds the children of each
row by the row's name and in their order, presses the buttons and hears the
values change. Exits with 1 and says what it found where that differs.
"""

import subprocess
import sys
import time

import pyatspi
from gi.repository import Gio, GLib

PATIENCE_S = 20

# The rows in the window's order, with a step of their plus button.
ROWS = [
    ("Gain", 1),
    ("Gamma", 0.25),
    ("Red", 1),
    ("Green", 1),
    ("Blue", 1),
    ("Opacity", 1),
    ("X", 1),
    ("Y", 1),
    ("Width", 1),
    ("Height", 1),
]

ROLES = {
    pyatspi.ROLE_LABEL: "label",
    pyatspi.ROLE_SLIDER: "slider",
    pyatspi.ROLE_SPIN_BUTTON: "field",
    pyatspi.ROLE_PUSH_BUTTON: "button",
    pyatspi.ROLE_CHECK_BOX: "lock",
}

# The buttons behind the last row of a panel.
LOCKS = {"Y": "Lock position", "Height": "Lock size"}


def fail(message):
    sys.exit(f"FAIL: {message}")


def descendants(accessible):
    for child in accessible:
        if child is not None:
            yield child
            yield from descendants(child)


def enable_accessibility():
    """Starts the bus and tells the session, as a screen reader does at its start."""
    session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    status = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
    session.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
        status, None, Gio.DBusCallFlags.NONE, -1, None,
    )
    # Qt 5 asks for the bus's address and registers before it has the answer, so it
    # stays away unless it finds the address at the display's root window, too.
    (address,) = session.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
        None, None, Gio.DBusCallFlags.NONE, -1, None,
    ).unpack()
    subprocess.run(
        ["xprop", "-root", "-f", "AT_SPI_BUS", "8s", "-set", "AT_SPI_BUS", address], check=True)


def find_window(pid):
    desktop = pyatspi.Registry.getDesktop(0)
    # A desktop that was empty when it was read first stays so in the cache.
    desktop.clear_cache()
    for application in desktop:
        if application is not None and application.get_process_id() == pid:
            for window in application:
                if window.name == "Editors":
                    return window
    return None


def wait_for(condition):
    """Runs the bus until the condition yields something, or patience ends."""
    deadline = time.monotonic() + PATIENCE_S
    context = GLib.MainContext.default()
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        if not context.iteration(False):
            time.sleep(0.02)
    return None


def start_host(command):
    host = subprocess.Popen(command)
    window = wait_for(lambda: find_window(host.pid))
    if window is None:
        host.terminate()
        fail("no window on the accessibility bus")
    return host, window


def expected_children():
    for name, _ in ROWS:
        yield ("label", name)
        yield ("slider", name)
        yield ("field", name)
        yield ("button", name + " \N{MINUS SIGN}")
        yield ("button", name + " +")
        if name in LOCKS:
            yield ("lock", LOCKS[name])


def children_of(window):
    """The named children; the panels and a field's own text have no name."""
    return [
        (ROLES[child.getRole()], child.name, child)
        for child in descendants(window)
        if child.getRole() in ROLES and child.name
    ]


def check_focusable(window):
    """What takes the focus has a name; a field's own text goes by its field's."""
    focusable = [
        child
        for child in descendants(window)
        if child.getState().contains(pyatspi.STATE_FOCUSABLE)
        and child.getRole() != pyatspi.ROLE_TEXT
    ]
    nameless = [child.getRoleName() for child in focusable if not child.name]
    if nameless or not focusable:
        fail(f"of {len(focusable)} children that take the focus, these have no name: {nameless}")
    print(f"{len(focusable)} children that take the focus have names")


def check_names(children):
    found = [(role, name) for role, name, _ in children]
    expected = list(expected_children())
    if found != expected:
        fail(f"the window reads\n{found}\nand not\n{expected}")
    print(f"{len(found)} children read by their names, in order")


def check_change(children, heard, row, button, step):
    by_name = {(role, name): child for role, name, child in children}
    field = by_name[("field", row)].queryValue()
    slider = by_name[("slider", row)].queryValue()
    before = field.currentValue
    heard.clear()
    by_name[("button", button)].queryAction().doAction(0)
    if not wait_for(lambda: {role for role, _, _ in heard} == {"field", "slider"}):
        fail(f"{button} pressed, but heard only {heard}")
    if {name for _, name, _ in heard} != {row}:
        fail(f"{button} pressed, and heard of another row: {heard}")
    told = [float(text) for role, _, text in heard if role == "field"]
    if told != [before + step] or field.currentValue != before + step:
        fail(f"{button}: from {before:g} to {field.currentValue:g}, heard {told}")
    print(f"{button}: {before:g} to {told[0]:g}, slider at {slider.currentValue:g}")


def main():
    enable_accessibility()
    host, window = start_host(sys.argv[1:])
    heard = []

    # A slider tells its value, a field the text that it shows now.
    def hear(event):
        role = ROLES.get(event.source.getRole()) if event.source else None
        if role in ("field", "slider"):
            heard.append((role, event.source.name, event.any_data))

    try:
        for event in ("object:property-change:accessible-value", "object:text-changed:insert"):
            pyatspi.Registry.registerEventListener(hear, event)
        children = children_of(window)
        check_focusable(window)
        check_names(children)
        for name, step in ROWS:
            check_change(children, heard, name, name + " +", step)
            check_change(children, heard, name, name + " \N{MINUS SIGN}", -step)
    finally:
        host.terminate()
        host.wait()
    print("PASS")


if __name__ == "__main__":
    main()
