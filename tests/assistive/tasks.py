#!/usr/bin/python3
"""Tasks of a user who can't see the screen, each done by the accessibility bus alone:  tasks.py <installed directory>"""

import os
import shutil
import sys
import tempfile
import unittest

from reader import AT_ONCE, Reader, Role, announce_reader, below, is_shown, text_of

INSTALLED = None
BRANCH = "Victoria and Albert"
MAIN_WINDOW = f"Lineforge {BRANCH} Tree Branch."
RECORDS = f"Lineforge {BRANCH} Records."


class Task(unittest.TestCase):
    """Begins with a branch opened in a home of its own."""

    def setUp(self):
        directory = tempfile.mkdtemp(prefix="lineforge-assistive-")
        self.addCleanup(shutil.rmtree, directory)
        self.home = os.path.join(directory, "home")
        shutil.copytree(INSTALLED, self.home)
        shutil.copytree(os.path.join(INSTALLED, "examples"), self.home, dirs_exist_ok=True)
        self.reader = Reader(self.home)
        self.addCleanup(self.reader.end)
        self.open_branch()

    def open_branch(self):
        reader = self.reader
        menus = reader.find("Tree Graphics", Role.MENU_ITEM).get_parent()
        self.assertLess(reader.choose("File", "Open", within=menus), AT_ONCE)
        window = reader.find("Open Tree Branch", Role.FRAME)
        reader.act(reader.find(BRANCH, Role.LIST_ITEM, window), "Toggle")
        reader.press("Open", within=window)
        self.main = reader.find(MAIN_WINDOW, Role.FRAME)
        reader.wait_until_gone("Open Tree Branch", Role.FRAME)

    def open_records(self):
        self.reader.press("Records", within=self.main)
        return self.reader.find(RECORDS, Role.FRAME)

    def answer(self, box, button):
        self.reader.press(button, within=self.reader.find(box, Role.ALERT))
        self.reader.wait_until_gone(box, Role.ALERT)


class ReadARecord(Task):
    def test_a_surname_is_searched_and_its_record_read(self):
        reader = self.reader
        records = self.open_records()
        self.assertLess(reader.choose("Search By", "Surname", within=records), AT_ONCE)
        question = reader.find("Search Database", Role.DIALOG)
        reader.enter(reader.find("Enter the Surname or partial Surname", Role.TEXT, question), "hesse")
        reader.press("OK", within=question)
        self.answer("Search Word Found", "No")
        read = {name: text_of(reader.find(name, Role.TEXT, records)) for name in ("Surname", "Forenames", "BirthPlace")}
        self.assertEqual(read, {"Surname": "Hesse", "Forenames": "Alice", "BirthPlace": "Buckingham Palace, London"})


class ChangeARecord(Task):
    def test_what_is_entered_in_either_kind_of_box_is_kept(self):
        reader = self.reader
        records = self.open_records()
        one_line = reader.find("Education", Role.TEXT, records)
        several_lines = reader.find("Notes(2)", Role.TEXT, records)
        for box in (one_line, several_lines):
            reader.enter(box, "by ear")
        reader.press("Next record", within=records)
        for box in (one_line, several_lines):
            reader.wait_for("another record", lambda box=box: text_of(box) != "by ear")
        reader.press("Previous record", within=records)
        for box in (one_line, several_lines):
            reader.wait_for_text(box, "by ear")


class WorkTheMap(Task):
    def boxes(self):
        return [node for node in below(self.reader.find("Family tree map", Role.CANVAS, self.main))
                if node.get_role() == Role.PUSH_BUTTON]

    def test_the_boxes_are_read_and_pressed(self):
        reader = self.reader
        alice = reader.wait_for("Alice's box", lambda: next(
            (box for box in self.boxes() if box.get_name() == "A007 Alice"), None))
        self.assertRegex(alice.get_description(), r"^\d+, \d+$")
        self.assertTrue(is_shown(alice))
        reader.act(alice)
        reader.find("Ref  A007", Role.PANEL, self.main)
        reader.find("Alice", Role.LABEL, self.main)

    def test_a_tool_that_asks_answers_first(self):
        reader = self.reader
        reader.choose("Tree Graphics", "TreeTools", within=self.main)
        self.assertLess(reader.press("Colour", within=self.main), AT_ONCE)
        reader.press("Cancel", within=reader.find("Select Color", Role.DIALOG))


if __name__ == "__main__":
    INSTALLED = os.path.abspath(sys.argv.pop(1))
    announce_reader()
    unittest.main(verbosity=2)
