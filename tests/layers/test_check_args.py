#!/usr/bin/env python3
"""Feeds check_args.py lines of code, to see that it finds chains and nothing else."""

import unittest

from check_args import chains


class CheckArgs(unittest.TestCase):
    def test_chains(self):
        for text in ('tr("%1 %2").arg(name).arg(2)', 'x.arg(f(a, "("))\n    .arg(b)',
                     "x.arg(')').arg(a, b)", 'x.arg(y.arg(a).arg(b))'):
            self.assertEqual(chains(text), [1], text)
        self.assertEqual(chains('x\n.arg(a)\n.arg(b)\n.arg(c)'), [2, 3])

    def test_no_chains(self):
        for text in ('tr("%1 %2").arg(name, other)', 'x.arg(y.arg(a))', 'x.arg(a).trimmed()',
                     'x.arg(")").size(); y.arg(a)'):
            self.assertEqual(chains(text), [], text)


if __name__ == "__main__":
    unittest.main()
