#!/usr/bin/python3
"""Reads the editors like a screen reader. Usage: traverse.py GALLERY

Traverses the pages of the gallery over the accessibility bus, finds the children of
each row by the row's name and in their order, presses the buttons and receives the
events of changed values. Exits with 1 and prints what differs.
"""

import math
import subprocess
import sys
import time

import pyatspi
from gi.repository import Gio, GLib

PATIENCE_S = 20

# The rows of each page in their order, and the locks after the rows of a panel.
PAGES = {
    "Adjust": ["Continuous", "On release", "Every 100 ms", "Exposure", "Contrast", "Gamma",
               "Saturation", "Black level"],
    "Crop": ["X", "Y", "Lock position", "Width", "Height", "Lock size"],
    "Mask": ["Top", "Bottom", "Left", "Right"],
    "Layout": ["X", "Y", "Width", "Height", "Lock size"],
    "Colour": ["Red", "Green", "Blue", "Master", "Red", "Green", "Blue",
               "Red", "Green", "Blue", "Opacity"],
}

# The steps that are not 1.
STEPS = {"Exposure": 100, "Gamma": 0.05, "Saturation": 0.05}

# Prefixes and suffixes in the text of a field.
UNITS = "× %µspx"

# In the gallery each of these rows shows the value that the user sets in another one.
ALIKE = PAGES["Adjust"][:3]

ROLES = {
    pyatspi.ROLE_LABEL: "label",
    pyatspi.ROLE_SLIDER: "slider",
    pyatspi.ROLE_SPIN_BUTTON: "field",
    pyatspi.ROLE_PUSH_BUTTON: "button",
    pyatspi.ROLE_CHECK_BOX: "lock",
}


def fail(message):
    sys.exit(f"FAIL: {message}")


def is_showing(accessible):
    return accessible.getState().contains(pyatspi.STATE_SHOWING)


def descendants(accessible):
    """The visible children: no other page, and no lock that is disabled."""
    for child in accessible:
        if child is not None and is_showing(child):
            yield child
            yield from descendants(child)


def enable_accessibility():
    """Starts the bus and notifies the session, as a screen reader does at its start."""
    session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    status = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
    session.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
        status, None, Gio.DBusCallFlags.NONE, -1, None,
    )
    # Qt 5 requests the address of the bus and registers before it receives the reply: it
    # does not connect unless the display's root window has the address, too.
    (address,) = session.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
        None, None, Gio.DBusCallFlags.NONE, -1, None,
    ).unpack()
    subprocess.run(
        ["xprop", "-root", "-f", "AT_SPI_BUS", "8s", "-set", "AT_SPI_BUS", address], check=True)


def find_window(pid):
    desktop = pyatspi.Registry.getDesktop(0)
    # The cache keeps a desktop empty if it was empty when it was first read.
    desktop.clear_cache()
    for application in desktop:
        if application is not None and application.get_process_id() == pid:
            for window in application:
                if window.name.endswith("Gallery"):
                    return window
    return None


def wait_for(condition):
    """Runs the bus until the condition returns a value, or until the time limit."""
    deadline = time.monotonic() + PATIENCE_S
    context = GLib.MainContext.default()
    while time.monotonic() < deadline:
        result = condition()
        if result:
            return result
        if not context.iteration(False):
            time.sleep(0.02)
    return None


def start(command):
    gallery = subprocess.Popen(command)
    window = wait_for(lambda: find_window(gallery.pid))
    if window is None:
        gallery.terminate()
        fail("no window on the accessibility bus")
    return gallery, window


def show_page(window, name):
    """Toggles the page's button and waits for the page."""
    stack = pyatspi.findDescendant(window, lambda a: a.getRole() == pyatspi.ROLE_LAYERED_PANE)
    page = stack[list(PAGES).index(name)]

    def is_shown_alone():
        stack.clear_cache()  # it receives no event about what is hidden now
        return [other for other in stack if is_showing(other)] == [page]

    if not is_shown_alone():
        button = pyatspi.findDescendant(window, lambda a: a.name == name)
        button.queryAction().doAction(0)
    if not wait_for(is_shown_alone):
        fail(f"the page {name} is not shown")
    return page


def check_focusable(page):
    """Each focusable widget has a name; a field's line edit has that of its field."""
    focusable = [
        child
        for child in descendants(page)
        if child.getState().contains(pyatspi.STATE_FOCUSABLE)
        and child.getRole() != pyatspi.ROLE_TEXT
    ]
    nameless = [child.getRoleName() for child in focusable if not child.name]
    if nameless or not focusable:
        fail(f"of {len(focusable)} children that take the focus, these have no name: {nameless}")
    print(f"{len(focusable)} children that take the focus have names")


def children_of(page):
    """The named children of the editors; the labels beside the editors are headings."""
    return [
        (ROLES[child.getRole()], child.name, child)
        for child in descendants(page)
        if child.getRole() in ROLES and child.name
        and child.parent.getRole() == pyatspi.ROLE_FRAME
    ]


def expected_children(names):
    for name in names:
        if name.startswith("Lock"):
            yield ("lock", name)
        else:
            yield ("label", name)
            yield ("slider", name)
            yield ("field", name)
            yield ("button", name + " \N{MINUS SIGN}")
            yield ("button", name + " +")


def check_names(children, names):
    found = [(role, name) for role, name, _ in children]
    expected = list(expected_children(names))
    if found != expected:
        fail(f"the page reads\n{found}\nand not\n{expected}")
    print(f"{len(found)} children read by their names, in order")


def rows_of(children):
    """The children of each row, which are in order: label, slider, field, minus, plus."""
    children = [child for role, _, child in children if role != "lock"]
    return [children[i:i + 5] for i in range(0, len(children), 5)]


def check_change(rows, heard, row, button, step):
    _, slider, field, *_ = row
    changing = [other for other in rows if row[0].name in ALIKE and other[0].name in ALIKE]
    expected = [part for other in changing or [row] for part in other[1:3]]
    value = field.queryValue()
    before = value.currentValue
    heard.clear()
    button.queryAction().doAction(0)
    if not wait_for(lambda: all(part in [source for source, _ in heard] for part in expected)):
        fail(f"{button.name} pressed, but received only {heard}")
    if not all(source in expected for source, _ in heard):
        fail(f"{button.name} pressed, and received events of another row: {heard}")
    told = [float(text.strip(UNITS)) for source, text in heard if source == field]
    if len(told) != 1 or not all(
            math.isclose(v, before + step) for v in (told[0], value.currentValue)):
        fail(f"{button.name}: from {before:g} to {value.currentValue:g}, received {told}")
    print(f"{button.name}: {before:g} to {told[0]:g}, slider at {slider.queryValue().currentValue:g}")


def main():
    enable_accessibility()
    gallery, window = start(sys.argv[1:])
    heard = []

    # A slider notifies of its value, a field of the text that it now shows.
    def hear(event):
        if event.source and ROLES.get(event.source.getRole()) in ("field", "slider"):
            heard.append((event.source, event.any_data))

    try:
        for event in ("object:property-change:accessible-value", "object:text-changed:insert"):
            pyatspi.Registry.registerEventListener(hear, event)
        for name, row_names in PAGES.items():
            page = show_page(window, name)
            children = children_of(page)
            check_focusable(page)
            check_names(children, row_names)
            rows = rows_of(children)
            if name == "Crop":
                # At first it is the whole picture, which can't be moved.
                for row in rows[2:]:
                    check_change(rows, heard, row, row[3], -1)
            for row in rows:
                _, slider, _, minus, plus = row
                step = STEPS.get(row[0].name, 1)
                there_and_back = [(plus, step), (minus, -step)]
                if slider.queryValue().currentValue == slider.queryValue().maximumValue:
                    there_and_back.reverse()
                for button, change in there_and_back:
                    check_change(rows, heard, row, button, change)
    finally:
        gallery.terminate()
        gallery.wait()
    print("PASS")


if __name__ == "__main__":
    main()
