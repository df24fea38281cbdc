"""Types tasks into examples/todo and reads them over AT-SPI, as a screen reader does."""
import atexit
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 60  # seconds, for a machine that is busy
TASKS = ["Water the plants", "Call Mira", "Mend the bicycle"]
heard = []


def hear(event):
    """Keeps the events of rows, such as "checked 1 Call Mira"."""
    if event.source.getRoleName() == "list item":
        kind = str(event.type).rsplit(":", 1)[1]
        heard.append(f"{kind} {event.detail1} {event.source.name}")


def deliver():
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(what, condition):
    """Lets events arrive until the condition holds. Returns its value."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        deliver()
        try:
            if value := condition():
                return value
        except (GLib.Error, LookupError):  # it is gone, or not there yet
            pass
        time.sleep(0.05)
    sys.exit(f"FAILED: waited for {what}. Events: {heard}")


def expect(what, got, wanted):
    if got != wanted:
        sys.exit(f"FAILED: {what}: {got!r} instead of {wanted!r}")


def xdotool(*arguments):
    return subprocess.run(["xdotool", *arguments], check=True, capture_output=True, text=True).stdout


def step(name, action, *events):
    """Does something, and waits until these events of rows have arrived."""
    heard.clear()
    action()
    wait_for(f"{name}: {events}", lambda: set(events) <= set(heard))


def states(row):
    row.clearCache()
    shown = {state.value_nick for state in row.getState().getStates()}
    return shown & {"checked", "selected", "focused", "editable", "showing"}


def act(row, name):
    actions = row.queryAction()
    actions.doAction([actions.getName(i) for i in range(actions.nActions)].index(name))


def extents(row):
    return row.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def click(row):
    x, y, width, height = extents(row)
    xdotool("mousemove", str(x + width // 2), str(y + height // 2), "click", "1")


pyatspi.setTimeout(PATIENCE * 1000, PATIENCE * 1000)
for kind in ("object:state-changed", "object:property-change"):
    pyatspi.Registry.registerEventListener(hear, kind)
# Qt misses what is registered while the program starts.
program = subprocess.Popen(sys.argv[1:])
atexit.register(program.terminate)
items = wait_for("the list", lambda: pyatspi.findDescendant(
    pyatspi.Registry.getDesktop(0), lambda found: found.getRoleName() == "list"))
window = xdotool("search", "--sync", "--name", "To do").split()[-1]
xdotool("windowfocus", "--sync", window)
for count, task in enumerate(TASKS, 1):
    xdotool("type", task)
    xdotool("key", "Return")
    wait_for(task, lambda: items.clearCache() or items.childCount == count)

rows = list(items)
expect("texts", [row.name for row in rows], TASKS)
expect("roles", {row.getRoleName() for row in rows}, {"list item"})
expect("places", [row.getIndexInParent() for row in rows], [0, 1, 2])
expect("size of the set", items.queryTable().nRows, 3)
expect("states", states(rows[2]), {"editable", "selected", "showing"})
x, y, width, height = extents(rows[0])
expect("the next row", [*extents(rows[1])], [x, y + height, width, height])
expect("the row at a point",
       items.queryComponent().getAccessibleAtPoint(x + 5, y + height + 5, pyatspi.DESKTOP_COORDS),
       rows[1])

step("Tab", lambda: xdotool("key", "Tab"), "focused 1 Mend the bicycle")
step("Up", lambda: xdotool("key", "Up"),
     "selected 0 Mend the bicycle", "selected 1 Call Mira", "focused 1 Call Mira")
step("a click in its rectangle", lambda: click(rows[0]), "focused 1 Water the plants")
step("Toggle", lambda: act(rows[2], "Toggle"), "checked 1 Mend the bicycle")
expect("states of what was checked", states(rows[2]),
       {"checked", "editable", "focused", "selected", "showing"})
step("Press", lambda: act(rows[1], "Press"), "focused 1 Call Mira")

xdotool("key", "F2")
box = wait_for("the edit box", lambda: items.clearCache() or items.childCount == 4 and items[3])
expect("text of the edit box", box.queryText().getText(0, -1), "Call Mira")
xdotool("type", "Call Jon")
step("Return", lambda: xdotool("key", "Return"), "accessible-name 0 Call Jon")
step("Delete", lambda: xdotool("key", "Delete"), "accessible-name 0 Mend the bicycle")
wait_for("two rows", lambda: items.clearCache() or items.childCount == 2)
expect("the end of the program", program.poll(), None)
