"""The examples of docs/python.md say what happens."""

import doctest
import os
import unittest


class Docs(unittest.TestCase):
    def test_examples(self):
        result = doctest.testfile(os.environ["KV_DOCS"], module_relative=False, encoding="utf-8")
        self.assertEqual(result.failed, 0)
        self.assertGreater(result.attempted, 30)


if __name__ == "__main__":
    unittest.main()
