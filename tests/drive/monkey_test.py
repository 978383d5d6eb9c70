import time
import unittest

import monkey


class Cutting(unittest.TestCase):
    def test_leaves_what_fails_alone(self):
        steps = [f"key {number}\n" for number in range(100)]
        needed = {"key 3\n", "key 57\n", "key 99\n"}
        short = monkey.shortened(steps, lambda rest: needed <= set(rest), time.monotonic() + 60)
        self.assertEqual(short, ["key 3\n", "key 57\n", "key 99\n"])

    def test_stops_when_its_time_is_over(self):
        steps = ["a\n", "b\n"]
        self.assertEqual(monkey.shortened(steps, lambda rest: True, time.monotonic() - 1), steps)

    def test_keeps_answers_with_what_asks_for_them(self):
        lines = ["menu mnuOpen\n", "choose %SITE%/a.htm\n", "answer No\n", "key F1\n"]
        self.assertEqual(monkey.steps_of(lines), ["menu mnuOpen\nchoose %SITE%/a.htm\nanswer No\n", "key F1\n"])


class Seeds(unittest.TestCase):
    def test_are_numbers_or_new_ones(self):
        self.assertEqual(monkey.seeds_of("7"), [7])
        fixed, new = monkey.seeds_of("3,new")
        self.assertEqual(fixed, 3)
        self.assertGreater(new, 1_000_000_000)


class Signatures(unittest.TestCase):
    def test_tell_one_failure_from_another_but_not_one_try_from_the_next(self):
        first = monkey.signature('/tmp/a/play.drive:12: expected 3 lines, got "x"\n', 1)
        self.assertEqual(first, monkey.signature('/tmp/b/play.drive:7: expected 4 lines, got "yy"\n', 1))
        self.assertNotEqual(first, monkey.signature('/tmp/b/play.drive:7: expected 4 words, got "yy"\n', 1))

    def test_are_empty_where_nothing_failed(self):
        self.assertEqual(monkey.signature("some warning\n", 0), "")

    def test_go_by_what_a_sanitizer_says(self):
        errors = "SUMMARY: AddressSanitizer: heap-use-after-free /a/b.cpp:10 in f\n/t.drive:3: expected it to live\n"
        self.assertIn("heap-use-after-free", monkey.signature(errors, 1))


if __name__ == "__main__":
    unittest.main()
