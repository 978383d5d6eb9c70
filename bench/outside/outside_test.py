"""What the measuring from outside is built on: its texts and its counting, and that it can tell a rest from work."""
import os
import pathlib
import sys
import tempfile
import time
import unittest

import editors
import measuring
import rounds
import texts
from watched import Watched, adopt_orphans


class Texts(unittest.TestCase):
    def test_a_page_has_its_size_and_closes_its_boxes(self):
        page = texts.page(63_400)
        self.assertGreaterEqual(len(page), 63_400)
        self.assertLess(len(page), 63_900)
        self.assertEqual(page.count("<div"), page.count("</div>"))
        self.assertEqual(page, texts.page(63_400))

    def test_a_single_line_has_no_break(self):
        self.assertNotIn("\n", texts.single_line(1000))

    def test_what_is_typed_needs_no_shift(self):
        self.assertRegex(texts.TYPED, "^[a-z ]+$")


class Counting(unittest.TestCase):
    def test_the_middle_of_an_even_number_is_the_smaller_one(self):
        self.assertEqual(measuring.middle([9, 1, 4, 2]), 2)
        self.assertIsNone(measuring.middle([]))

    def test_letters_are_typed_in_all_rounds_or_in_the_first_ones(self):
        self.assertTrue(rounds.Wish([], rounds=3).types_in(2))
        few = rounds.Wish([], rounds=3, key_rounds=1)
        self.assertEqual([few.types_in(number) for number in range(3)], [True, False, False])
        self.assertFalse(rounds.Wish([], only_starts=True).types_in(0))

    def test_an_editor_that_is_not_installed_is_none(self):
        self.assertFalse(editors.Editor("none", ("no-such-editor-anywhere",)).is_there())

    def test_a_home_gets_the_settings_of_its_editor(self):
        with tempfile.TemporaryDirectory() as folder:
            home = pathlib.Path(folder)
            (home / "rc").write_text("first\n", encoding="utf-8")
            editors.Editor("some", ("some",), settings=(("rc", "second\n"),)).settle(home)
            self.assertEqual((home / "rc").read_text(encoding="utf-8"), "first\nsecond\n")


class Watching(unittest.TestCase):
    def watch(self, script: str) -> Watched:
        return Watched([sys.executable, "-c", script], dict(os.environ))

    def test_the_time_of_work_counts_and_that_of_waiting_does_not(self):
        work = "import time; end = time.process_time() + 0.2\nwhile time.process_time() < end: pass\ntime.sleep(60)"
        with self.watch(work) as program:
            time.sleep(2)
            used = program.processor_time()
            time.sleep(0.2)
            self.assertEqual(program.processor_time(), used)
        self.assertGreaterEqual(used, 200_000_000)
        self.assertLess(used, 1_500_000_000)

    def test_children_count_and_end_with_it(self):
        adopt_orphans()
        parent = "import subprocess, sys; subprocess.Popen([sys.executable, '-c', 'import time; time.sleep(60)']).wait()"
        with self.watch(parent) as program:
            time.sleep(1)
            alone = program._memory_of(program.main.pid)
            self.assertGreater(program.memory(), alone * 1.3)
            family = list(program.times)
        self.assertEqual(len(family), 2)
        for process in family:
            self.assertFalse(pathlib.Path(f"/proc/{process}").exists())


if __name__ == "__main__":
    unittest.main()
