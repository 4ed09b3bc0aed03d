"""A program as it is met on the accessibility bus, by nothing but what a screen reader's own library tells of it."""

import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib

Role = Atspi.Role  # whose names in words aren't the same in every version

PATIENCE = 30  # seconds that no machine is so busy to need for one step
AT_ONCE = 2  # seconds in which a program answers that isn't held up by a question to its user


def announce_reader():
    """Tells the session that somebody listens, as a screen reader does when it starts."""
    value = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", value,
        None, Gio.DBusCallFlags.NONE, -1, None)
    Atspi.init()
    Atspi.set_timeout(int(PATIENCE * 1000), int(PATIENCE * 1000))


def below(node):
    """What stands below a node, in the order in which it is read."""
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child
            yield from below(child)


def has_state(node, state):
    return node.get_state_set().contains(state)


def is_shown(node):
    return has_state(node, Atspi.StateType.SHOWING)


def text_of(node):
    return Atspi.Text.get_text(node, 0, -1)


class Reader:
    """Starts the program in its directory and works it."""

    def __init__(self, directory):
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", HOME=directory)
        self._program = subprocess.Popen([os.path.join(directory, "lineforge")], cwd=directory, env=environment)

    def end(self):
        self._program.kill()
        self._program.wait()

    def wait_for(self, what, look):
        """Looks until there is something, and gives it back."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            while GLib.MainContext.default().iteration(False):
                pass
            if self._program.poll() is not None:
                raise AssertionError(f"the program has ended while waiting for {what}")
            try:
                found = look()
            except GLib.Error:  # it has gone while it was being asked
                found = None
            if found:
                return found
            time.sleep(0.02)
        raise AssertionError(f"{what} hasn't come; there is\n{self.described()}")

    def _application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application is not None and application.get_process_id() == self._program.pid:
                return application
        return None

    def _everything(self):
        application = self._application()
        return below(application) if application is not None else iter(())

    def described(self):
        return "\n".join(f"{node.get_role_name()} '{node.get_name()}'" for node in self._everything() if is_shown(node))

    def find(self, name, role, within=None):
        """What is shown under that name and taken for that, in a window or anywhere. A menu's entries are there without
        being shown."""
        def look():
            for node in below(within) if within is not None else self._everything():
                if node.get_name() == name and node.get_role() == role:
                    if role == Role.MENU_ITEM or is_shown(node):
                        return node
            return None
        return self.wait_for(f"{Atspi.role_get_name(role)} '{name}'", look)

    def wait_until_gone(self, name, role):
        def is_gone():
            return not any(node.get_name() == name and node.get_role() == role and is_shown(node)
                           for node in self._everything())
        self.wait_for(f"the end of {Atspi.role_get_name(role)} '{name}'", is_gone)

    def act(self, node, action="Press"):
        """Does what the node offers, and gives back the seconds until the answer."""
        for index in range(node.get_n_actions()):
            if node.get_action_name(index) == action:
                begin = time.monotonic()
                if not node.do_action(index):
                    raise AssertionError(f"'{node.get_name()}' refuses '{action}'")
                return time.monotonic() - begin
        raise AssertionError(f"'{node.get_name()}' offers no '{action}'")

    def press(self, name, role=Role.PUSH_BUTTON, within=None):
        return self.act(self.find(name, role, within))

    def choose(self, *path, within):
        """An entry of a window's menus, by the captions that lead there."""
        node = within
        for caption in path:
            node = self.find(caption, Role.MENU_ITEM, node)
        return self.act(node)

    def enter(self, node, text):
        if not Atspi.EditableText.set_text_contents(node, text):
            raise AssertionError(f"'{node.get_name()}' takes no text")

    def wait_for_text(self, node, text):
        self.wait_for(f"'{text}' in '{node.get_name()}'", lambda: text_of(node) == text)
