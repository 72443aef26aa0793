#!/usr/bin/env python3
"""Feeds check_docs.py lines of documents, to see that it finds what can be broken."""

import unittest

from check_docs import long_lines

WORDS = "word " * 21
LINK = "https://example.org/" + "a" * 90


class CheckDocs(unittest.TestCase):
    def test_long(self):
        for text in (WORDS, "- " + WORDS, "  " + WORDS, f"see {LINK}", "> " + WORDS,
                     "a\n    " + WORDS, "```\n```\n" + WORDS, ": " + WORDS):
            self.assertEqual(long_lines(text), [text.count("\n") + 1], text)

    def test_fine(self):
        for text in ("é" * 50 + " " + "é" * 49, "| " + WORDS, "## " + WORDS, LINK, "- " + LINK,
                     "```\n" + WORDS + "\n```", "~~~\n```\n" + WORDS, "a\n\n    b\n    " + WORDS,
                     "[a b]: " + LINK + " c"):
            self.assertEqual(long_lines(text), [], text)


if __name__ == "__main__":
    unittest.main()
