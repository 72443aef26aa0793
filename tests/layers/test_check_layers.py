#!/usr/bin/env python3
"""Feeds check_layers.py small made-up trees, to see that each rule can fail."""

import tempfile
import unittest
from pathlib import Path

import check_layers

WIDGETS = {"QWidget", "QAction", "qwidget.h"}


def faults(files, exceptions=None):
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = Path(root) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return check_layers.check(root, WIDGETS, exceptions or {})


def header(*includes):
    return "#pragma once\n" + "".join(f"#include {include}\n" for include in includes)


def source(*includes):
    return "".join(f"#include {include}\n" for include in includes)


class CheckLayers(unittest.TestCase):
    def test_a_tree_in_order_has_no_fault(self):
        self.assertEqual(faults({
            "src/zorv_export.h": header("<QtGlobal>"),
            "src/core/project.h": header('"code/codedoc/node.h"', '"zorv_export.h"'),
            "src/code/codedoc/node.h": header("<QString>"),
            "src/code/codedoc/node.cpp": source('"code/codedoc/node.h"', '"core/project.h"',
                                                "<QWidget>"),
            "src/core/dialogs/dialog.h": header("<QWidget>"),
            "src/editors/framework/editor.h": header('"core/project.h"', "<QWidget>"),
            "host/family/parser.h": header("<zorv/core/project.h>"),
            "host/cli/check.cpp": source('"family/parser.h"'),
            "host/app/main/window.cpp": source('"cli/commands.h"', "<QWidget>"),
            "host/cli/commands.h": header(),
            "host/app/main/main.cpp": source("<QAction>"),
        }), [])

    def test_an_upward_include(self):
        self.assertEqual(faults({
            "src/core/project.cpp": source("<QString>", '"editors/framework/editor.h"'),
            "src/editors/framework/editor.h": header(),
        }), ["src/core/project.cpp:2: layer 2 includes src/editors/framework/editor.h of layer 4"])

    def test_the_longest_folder_counts(self):
        self.assertEqual(faults({
            "src/image/canvas/layer.h": header('"image/renderer.h"'),
            "src/image/renderer.h": header('"image/canvas/layer.h"'),
        }), ["src/image/canvas/layer.h:2: layer 5 includes src/image/renderer.h of layer 7"])

    def test_subjects_of_the_window_do_not_know_each_other(self):
        self.assertEqual(faults({
            "host/app/stage/view.cpp": source('"app/stage/clock.h"', '"app/window/part.h"',
                                              '"app/assets/panel.h"'),
            "host/app/stage/clock.h": header(),
            "host/app/window/part.h": header(),
            "host/app/assets/panel.h": header(),
        }), ["host/app/stage/view.cpp:3: includes host/app/assets/panel.h, of another subject of "
             "the same layer"])

    def test_the_library_does_not_reach_the_host(self):
        self.assertEqual(len(faults({
            "src/editors/sound/player.cpp": source('"family/parser.h"'),
            "host/family/parser.h": header(),
        })), 1)

    def test_an_exception_is_let_through_and_must_be_needed(self):
        files = {"src/core/project.cpp": source('"editors/framework/editor.h"'),
                 "src/editors/framework/editor.h": header()}
        pair = ("src/core/project.cpp", "src/editors/framework/editor.h")
        self.assertEqual(faults(files, {pair: "a reason"}), [])
        files["src/core/project.cpp"] = ""
        self.assertEqual(len(faults(files, {pair: "a reason"})), 1)

    def test_a_folder_without_layer(self):
        self.assertEqual(len(faults({"src/misc/thing.h": header()})), 1)

    def test_widgets_in_headers_of_the_core(self):
        for include in ("<QWidget>", "<QtWidgets/QAction>", "<QtWidgets>", '"qwidget.h"'):
            with self.subTest(include):
                self.assertEqual(len(faults({"src/core/project.h": header(include)})), 1)

    def test_widgets_by_way_of_another_header(self):
        self.assertEqual(faults({
            "src/core/project.h": header("<QString>", '"core/dialogs/dialog.h"'),
            "src/core/dialogs/dialog.h": header("<QWidget>"),
        }), ["src/core/project.h:3: includes the widget header QWidget"
             " by way of src/core/dialogs/dialog.h"])

    def test_a_header_has_one_spelling(self):
        files = {"src/core/project.h": header(), "host/family/kind.h": header()}
        for name, includes in {
            "host/family/part.cpp": ('"kind.h"', '"core/project.h"'),
            "src/core/part.cpp": ('"project.h"', "<zorv/core/project.h>"),
        }.items():
            for include in includes:
                with self.subTest(name + include):
                    self.assertEqual(len(faults({**files, name: source(include)})), 1)

    def test_widgets_in_family_and_command_line(self):
        for name in ("host/family/parser.cpp", "host/cli/check.cpp", "host/cli/check.h"):
            with self.subTest(name):
                self.assertEqual(len(faults({name: header("<QAction>")})), 1)
                self.assertEqual(len(faults({name: header("<zorv/zorv.h>")})), 1)

    def test_private_headers_in_the_host(self):
        for include in ('"core/project_p.h"', "<zorv/core/project_p.h>",
                        '"src/core/project_p.h"'):
            with self.subTest(include):
                found = faults({"host/app/main/window.cpp": source(include),
                                "src/core/project_p.h": header()})
                self.assertTrue(any("private to the library" in fault for fault in found))

    def test_own_header_first(self):
        for includes in (("<QString>", '"core/project.h"'), ("<QString>",), ()):
            with self.subTest(includes):
                self.assertEqual(len(faults({
                    "src/core/project.h": header(),
                    "src/core/project.cpp": source(*includes),
                })), 1)

    def test_a_private_header_is_an_own_header(self):
        self.assertEqual(len(faults({
            "src/code/index_p.h": header(),
            "src/code/index.cpp": source("<QString>", '"code/index_p.h"'),
        })), 1)

    def test_files_are_written_whole(self):
        self.assertEqual(len(faults({"host/app/main/window.cpp": source("<QtCore/QSaveFile>")})), 1)

    def test_pragma_once(self):
        self.assertEqual(faults({"host/app/main/window.h": "// #pragma once\n"}),
                         ["host/app/main/window.h:1: the header lacks #pragma once"])


if __name__ == "__main__":
    unittest.main()
