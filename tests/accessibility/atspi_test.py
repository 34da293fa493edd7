# SPDX-License-Identifier: MIT
"""The popup as a screen reader meets it over AT-SPI.

A host process (lmfp_a11y_host) shows the popup on an X server whose session
runs the accessibility bus; these tests read the popup's accessible tree and
work it through the same calls Orca makes (pyatspi, Debian's python3-pyatspi):
roles, names, descriptions, states, and the actions of tabs, rows and row
buttons. What an action did is checked where the user would notice it: in the
tree, and in what the host's callback received.

    run-with-accessibility-bus.sh python3 atspi_test.py PATH/TO/lmfp_a11y_host
"""

import os
import queue
import subprocess
import sys
import tempfile
import threading
import time
import unittest

import pyatspi
from gi.repository import GLib

HOST = None
# An FFmpeg whose encoder list lacks libx265 (tests/support).
FAKE_FFMPEG = os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, "support",
                           "fake-ffmpeg-without-x265.sh")
TAB_TITLES = ["Recent", "Video", "Audio", "Device", "Web Video", "Custom"]


def wait_for(condition, what, timeout=20.0):
    """Polls condition until it gives something true; fails naming what."""
    deadline = time.monotonic() + timeout
    last_error = None
    while time.monotonic() < deadline:
        try:
            value = condition()
            if value:
                return value
        except Exception as error:  # the tree changes under a query
            last_error = error
        time.sleep(0.1)
    raise AssertionError(f"waited in vain for {what}" + (f" ({last_error})" if last_error else ""))


def children(accessible):
    accessible.clear_cache()
    return [accessible.getChildAtIndex(i) for i in range(accessible.childCount)]


def descendants(accessible, role=None):
    found = []
    for child in children(accessible):
        if child is None:
            continue
        if role is None or child.getRole() == role:
            found.append(child)
        found.extend(descendants(child, role))
    return found


def states(accessible):
    accessible.clear_cache()
    return accessible.getState()


def showing(accessible):
    return states(accessible).contains(pyatspi.STATE_SHOWING)


def action_names(accessible):
    try:
        actions = accessible.queryAction()
    except NotImplementedError:
        return []
    return [actions.getName(i) for i in range(actions.nActions)]


def do_action(accessible, name):
    actions = accessible.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    if name not in names:
        raise AssertionError(f"{accessible.name!r} offers {names}, not {name!r}")
    actions.doAction(names.index(name))


class FocusWatcher:
    """What a screen reader hears of the focus: each object that gains it."""

    def __init__(self):
        self.gained = []
        pyatspi.Registry.registerEventListener(self._note, "object:state-changed:focused")

    def _note(self, event):
        if event.detail1:
            self.gained.append((event.source.getRole(), event.source.name))

    def pump(self, seconds=0.5):
        context = GLib.MainContext.default()
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            while context.pending():
                context.iteration(False)
            time.sleep(0.02)

    def stop(self):
        pyatspi.Registry.deregisterEventListener(self._note, "object:state-changed:focused")


def press_keys(*keys):
    """Keys as the user types them: through the X server to the active window."""
    subprocess.run(["xdotool", "key", *keys], check=True)


class Host:
    """The host process and the lines it reports."""

    def __init__(self, program, *options):
        self.folder = tempfile.TemporaryDirectory()
        settings = os.path.join(self.folder.name, "settings.ini")
        env = dict(os.environ, XDG_CONFIG_HOME=self.folder.name, XDG_CACHE_HOME=self.folder.name,
                   XDG_DATA_HOME=self.folder.name)
        self.process = subprocess.Popen([program, settings, *options], stdout=subprocess.PIPE,
                                        text=True, env=env)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put(line.strip())

    def next_line(self, prefix, timeout=20.0):
        deadline = time.monotonic() + timeout
        while time.monotonic() < deadline:
            try:
                line = self.lines.get(timeout=max(0.0, deadline - time.monotonic()))
            except queue.Empty:
                break
            if line.startswith(prefix):
                return line
        raise AssertionError(f"the host did not report {prefix!r}")

    def application(self):
        pid = self.process.pid

        def find():
            for app in pyatspi.Registry.getDesktop(0):
                if app is not None and app.get_process_id() == pid:
                    return app
            return None
        return wait_for(find, "the host on the accessibility bus")

    def popup(self):
        """The popup's dialog, once it shows."""
        def find():
            for window in children(self.application()):
                if window.getRole() == pyatspi.ROLE_DIALOG and window.name == "Choose a format" \
                        and showing(window):
                    return window
            return None
        return wait_for(find, "the popup")

    def stop(self):
        self.process.kill()
        self.process.wait()
        self.folder.cleanup()


def tab_list(popup):
    lists = descendants(popup, pyatspi.ROLE_PAGE_TAB_LIST)
    assert len(lists) == 1, f"{len(lists)} page tab lists"
    return lists[0]


def select_tab(popup, title):
    tab = next(t for t in children(tab_list(popup)) if t.name == title)
    do_action(tab, "Press")
    wait_for(lambda: states(tab).contains(pyatspi.STATE_SELECTED), f"tab {title} selected")


def shown_lists(popup):
    return [item for item in descendants(popup, pyatspi.ROLE_LIST) if showing(item)]


def list_named(popup, name):
    return wait_for(lambda: next((item for item in shown_lists(popup) if item.name == name), None),
                    f"a shown list named {name!r}")


def row_named(list_accessible, name):
    return wait_for(lambda: next((row for row in children(list_accessible) if row.name == name),
                                 None), f"a row named {name!r} in {list_accessible.name!r}")


class HostTestCase(unittest.TestCase):
    """Each test has a host of its own, over settings of its own."""

    host_options = ()

    def setUp(self):
        self.host = Host(HOST, *self.host_options)
        self.addCleanup(self.host.stop)
        self.host.next_line("ready")
        self.popup = self.host.popup()


class PopupOverAtSpiTest(HostTestCase):

    def test_the_popup_is_a_dialog_named_after_its_title(self):
        self.assertEqual(self.popup.getRole(), pyatspi.ROLE_DIALOG)
        self.assertEqual(self.popup.name, "Choose a format")

    def test_the_tabs_are_page_tabs_of_one_named_page_tab_list_in_their_order(self):
        strip = tab_list(self.popup)
        self.assertEqual(strip.name, "Categories")
        tabs = children(strip)
        self.assertEqual([tab.getRole() for tab in tabs], [pyatspi.ROLE_PAGE_TAB] * len(tabs))
        self.assertEqual([tab.name for tab in tabs], TAB_TITLES)
        for tab in tabs:
            self.assertIn("Ctrl+Tab", tab.description, tab.name)
        selected = [tab.name for tab in tabs if states(tab).contains(pyatspi.STATE_SELECTED)]
        self.assertEqual(len(selected), 1)
        self.assertFalse(any(states(tab).contains(pyatspi.STATE_CHECKED) for tab in tabs))

    def test_pressing_a_tab_shows_its_category(self):
        select_tab(self.popup, "Audio")
        formats = list_named(self.popup, "Formats")
        self.assertEqual(formats.description, "Formats of Audio")
        select_tab(self.popup, "Recent")
        list_named(self.popup, "Recent presets")

    def test_every_list_row_and_row_button_has_a_name_and_a_description(self):
        for title in TAB_TITLES:
            select_tab(self.popup, title)
            lists = wait_for(lambda: shown_lists(self.popup), f"the lists of {title}")
            for list_accessible in lists:
                self.assertTrue(list_accessible.name, title)
                self.assertTrue(list_accessible.description, list_accessible.name)
                rows = children(list_accessible)
                self.assertTrue(rows, list_accessible.name)
                for row in rows:
                    self.assertEqual(row.getRole(), pyatspi.ROLE_LIST_ITEM)
                    self.assertTrue(row.name, list_accessible.name)
                    self.assertTrue(row.description, row.name)
                    for button in children(row):
                        self.assertEqual(button.getRole(), pyatspi.ROLE_PUSH_BUTTON)
                        self.assertIn(button.name, ["Edit", "Remove"])
                        self.assertTrue(button.description.startswith(button.name + " ("))
                        self.assertEqual(action_names(button), ["Press"])

    def test_the_search_field_and_its_clear_button_are_named(self):
        fields = [item for item in descendants(self.popup) if item.name == "Search"
                  and item.getRole() in (pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY)]
        self.assertEqual(len(fields), 1)
        self.assertIn("Type anywhere to search", fields[0].description)
        clear = [button for button in children(fields[0]) if button.name == "Clear search"]
        self.assertEqual(len(clear), 1)
        self.assertEqual(clear[0].getRole(), pyatspi.ROLE_PUSH_BUTTON)
        self.assertEqual(clear[0].description, "Show all presets again")
        for button in children(fields[0]):
            self.assertTrue(button.name)

    def test_rows_offer_choose_and_edit_or_remove_only_where_allowed(self):
        select_tab(self.popup, "Recent")
        recent = row_named(list_named(self.popup, "Recent presets"), "MP4 High Quality")
        self.assertEqual(action_names(recent), ["Choose", "Remove"])
        select_tab(self.popup, "Video")
        mp4 = row_named(list_named(self.popup, "Formats"), "MP4")
        self.assertEqual(action_names(mp4), ["Choose"])
        self.assertEqual(children(mp4), [])
        preset = row_named(list_named(self.popup, "Presets"), "HD 720p")
        self.assertEqual(action_names(preset), ["Choose", "Edit"])
        self.assertEqual([button.name for button in children(preset)], ["Edit"])
        select_tab(self.popup, "Custom")
        mine = row_named(list_named(self.popup, "Presets"), "My preset")
        self.assertEqual(action_names(mine), ["Choose", "Remove"])

    def test_choose_on_a_node_row_shows_that_nodes_presets(self):
        select_tab(self.popup, "Video")
        do_action(row_named(list_named(self.popup, "Formats"), "MKV"), "Choose")
        presets = wait_for(lambda: next((item for item in shown_lists(self.popup)
                                         if item.description == "Presets of MKV"), None),
                           "the presets of MKV")
        self.assertTrue(children(presets))

    def test_choose_on_a_preset_row_gives_the_host_that_preset(self):
        select_tab(self.popup, "Video")
        do_action(row_named(list_named(self.popup, "Formats"), "MP4"), "Choose")
        do_action(row_named(list_named(self.popup, "Presets"), "HD 720p"), "Choose")
        self.assertEqual(self.host.next_line("chosen:"), "chosen: MP4 / HD 720p")

    def test_edit_on_a_preset_row_opens_the_editor_on_it(self):
        select_tab(self.popup, "Video")
        do_action(row_named(list_named(self.popup, "Formats"), "MP4"), "Choose")
        do_action(row_named(list_named(self.popup, "Presets"), "HD 1080p"), "Edit")

        def editor():
            for window in children(self.host.application()):
                if window.getRole() == pyatspi.ROLE_DIALOG and window.name != "Choose a format" \
                        and showing(window):
                    return window
            return None
        dialog = wait_for(editor, "the editor")
        title = dialog.name
        cancel = wait_for(lambda: next((button for button in
                                        descendants(dialog, pyatspi.ROLE_PUSH_BUTTON)
                                        if button.name == "Cancel"), None), "Cancel")
        do_action(cancel, "Press")
        wait_for(lambda: not showing(dialog), "the editor to close")
        self.assertIn("HD 1080p", title)
        # Cancelled, the popup comes back as it was.
        self.host.popup()

    def test_moving_through_a_list_by_keys_leaves_the_screen_reader_on_each_row(self):
        select_tab(self.popup, "Video")
        watcher = FocusWatcher()
        self.addCleanup(watcher.stop)
        watcher.pump()
        # From the search field, where the popup opens, into the presets.
        press_keys("Down")
        watcher.pump()
        self.assertEqual(watcher.gained[-1:], [(pyatspi.ROLE_LIST_ITEM, "High Quality")])
        press_keys("Down")
        watcher.pump()
        self.assertEqual(watcher.gained[-1:], [(pyatspi.ROLE_LIST_ITEM, "Medium Quality")])

    def test_remove_on_a_custom_preset_removes_it_from_the_list_and_the_store(self):
        select_tab(self.popup, "Custom")
        presets = list_named(self.popup, "Presets")
        mine = row_named(presets, "My preset")
        do_action(mine, "Remove")
        wait_for(lambda: all(row.name != "My preset" for row in children(presets)),
                 "the row to go")
        # The store hears of it: the next showing's report counts no custom preset.
        select_tab(self.popup, "Recent")
        do_action(row_named(list_named(self.popup, "Recent presets"), "MP4 High Quality"),
                  "Choose")
        self.host.next_line("chosen:")
        self.assertEqual(self.host.next_line("recent:").split()[-1], "0")


class UnavailablePresetOverAtSpiTest(HostTestCase):
    host_options = ("--ffmpeg", FAKE_FFMPEG)

    def test_a_preset_this_ffmpeg_cannot_run_says_why_and_what_to_pick_instead(self):
        select_tab(self.popup, "Video")
        do_action(row_named(list_named(self.popup, "Formats"), "HEVC MP4"), "Choose")
        presets = wait_for(lambda: next((item for item in shown_lists(self.popup)
                                         if item.description == "Presets of HEVC MP4"), None),
                           "the presets of HEVC MP4")
        row = row_named(presets, "High Quality")
        reason = wait_for(lambda: "libx265" in row.description and row.description,
                          "the reason in the row's description")
        self.assertIn("try", reason)
        # It can still be chosen: the host decides.
        self.assertEqual(action_names(row)[0], "Choose")
        select_tab(self.popup, "Video")
        do_action(row_named(list_named(self.popup, "Formats"), "MP4"), "Choose")
        plain = row_named(list_named(self.popup, "Presets"), "High Quality")
        self.assertNotIn("libx265", plain.description)


if __name__ == "__main__":
    HOST = sys.argv.pop(1)
    unittest.main(verbosity=2)
