"""Does check_translations.py find what is wrong?"""

import unittest
import xml.etree.ElementTree as ElementTree

from check_translations import problems_of_file


def file_of(*rows):
    """Rows of source, translation and type."""
    root = ElementTree.Element("TS")
    context = ElementTree.SubElement(root, "context")
    ElementTree.SubElement(context, "name").text = "Window"
    for source, text, kind in rows:
        message = ElementTree.SubElement(context, "message")
        ElementTree.SubElement(message, "source").text = source
        translation = ElementTree.SubElement(message, "translation")
        translation.text = text
        if kind:
            translation.set("type", kind)
    return root


class CheckTranslations(unittest.TestCase):
    def check(self, source, text, kind=None):
        kept = file_of((source, text, kind))
        return problems_of_file(kept, kept)

    def test_good_ones(self):
        for source, text in [("&Open...", "Ö&ffnen ..."), ("%1 of %2", "von %2: %1"),
                             ("Save && close", "Speichern && schließen"), (" pt", " Pt.")]:
            self.assertEqual(self.check(source, text), [])

    def test_lost_parts(self):
        for source, text, part in [("%1 of %2", "%1 von", "marks"), ("%n files", "Dateien", "marks"),
                                   ("&Open", "Öffnen", "access key"), ("Open", "Ö&ffnen", "access key"),
                                   ("Open...", "Öffnen", "dots"), ("a\nb", "a b", "line ends"),
                                   (" pt", "pt", "blanks")]:
            found = self.check(source, text)
            self.assertEqual(len(found), 1, (source, found))
            self.assertIn(part, found[0])

    def test_unfinished(self):
        self.assertEqual(len(self.check("Open", "", "unfinished")), 1)
        self.assertEqual(len(self.check("Open", "Öffnen", "vanished")), 1)
        self.assertEqual(len(self.check("Open", "  ")), 1)

    def test_sources(self):
        new = file_of(("Open", "Öffnen", None), ("Close", "", "unfinished"))
        old = file_of(("Open", "Öffnen", None), ("Print", "Drucken", None))
        found = problems_of_file(old, new)
        self.assertEqual(len(found), 2)
        self.assertIn("'Close' is not there", found[0])
        self.assertIn("'Print' is no longer", found[1])


if __name__ == "__main__":
    unittest.main()
