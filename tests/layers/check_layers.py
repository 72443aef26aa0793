#!/usr/bin/env python3
"""Reads the includes of src/, host/ and player/ and complains of those against the order of the layers.

usage: check_layers.py ROOT QTWIDGETS_INCLUDE_DIR

Prints one line a fault, as file:line: text, and exits 1 if there is one.
"""

import posixpath
import re
import sys
from pathlib import Path

# A file belongs to the layer of the longest path here that is a prefix of its own, and includes
# its own layer and lower ones.
LAYERS = {
    "src/zorv_export.h": 0,
    "src/text/": 1,
    "src/core/": 2,
    "src/code/": 2,
    "src/cache/": 3,
    "src/media/": 3,
    "src/editors/framework/": 4,
    "src/graphics/": 5,
    "src/image/canvas/": 5,
    "src/editors/code/": 6,
    "src/editors/import/": 6,
    "src/editors/organizer/": 6,
    "src/editors/snipman/": 6,
    "src/editors/palette/": 6,
    "src/editors/palette/paletteeditor": 8,
    "src/editors/palette/palettesave": 8,
    "src/animation/spritedrag.": 4,
    "src/animation/timeline/": 6,
    "src/image/tools/": 7,
    "src/image/": 7,
    "src/image/spriteeditor": 8,
    "src/graphics/graphicwork/": 7,
    "src/animation/": 8,
    "src/editors/sound/": 8,
    "host/family/": 19,
    "player/rules/": 20,
    "player/picture/": 21,
    "player/script/": 21,
    "player/training/": 21,
    "player/sound/": 22,
    "player/window/": 23,
    "player/main.cpp": 24,
    "host/operations/": 21,
    "host/cli/": 22,
    "host/app/look/": 23,
    "host/app/actions/": 24,
    "host/app/changes/": 24,
    "host/app/controls/": 24,
    "host/app/dialogs/": 24,
    "host/app/find/": 24,
    "host/app/session/": 24,
    "host/app/window/": 25,
    "host/app/animations/": 26,
    "host/app/assets/": 26,
    "host/app/code/": 26,
    "host/app/game/": 26,
    "host/app/messages/": 26,
    "host/app/paint/": 26,
    "host/app/palettes/": 26,
    "host/app/recovery/": 26,
    "host/app/references/": 26,
    "host/app/run/": 26,
    "host/app/search/": 26,
    "host/app/settings/": 26,
    "host/app/sounds/": 26,
    "host/app/stage/": 26,
    "host/app/start/": 26,
    "host/app/main/": 27,
    "host/app/picture/": 27,
    "host/main.cpp": 28,
}

# A folder of this layer has one subject, and knows no other: what goes on between two of them is
# joined above.
SUBJECTS = 26

# Where the compiler looks for an include, after the folder of the file itself.
INCLUDE_FOLDERS = ["src", "host", "player", ""]

# Meant includes of a higher layer: (file, included file) and the reason.
EXCEPTIONS = {
    ("src/core/saveall.cpp", "src/editors/framework/fileeditor.h"):
        "saving all files asks for the name of a new one by the dialog of its editor",
}

# Headers below these, their sub-folders in the second list aside, reach no widget header; nor do
# all files of the command line and of what it shares with the window.
WIDGET_FREE_HEADERS = ["src/text/", "src/core/", "src/code/", "src/cache/", "src/media/"]
WIDGET_HEADERS_ALLOWED = ["src/core/dialogs/"]
WIDGET_FREE_FILES = ["host/family/", "host/operations/", "host/cli/", "player/rules/",
                     "player/script/", "player/picture/", "player/sound/",
                     "player/training/", "player/window/"]

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)


class Tree:
    """The sources below a root, with what each includes."""

    def __init__(self, root, widget_headers, exceptions):
        self.root = Path(root)
        self.widget_headers = widget_headers
        self.exceptions = exceptions
        self.used_exceptions = set()
        self.faults = []
        self.includes = {}
        for top in ("src", "host", "player"):
            for path in sorted((self.root / top).rglob("*")):
                if path.suffix in (".h", ".cpp"):
                    self.read(path)

    def read(self, path):
        text = path.read_text(encoding="utf-8")
        name = path.relative_to(self.root).as_posix()
        self.includes[name] = [
            (text.count("\n", 0, match.start()) + 1, match.group(2))
            for match in INCLUDE.finditer(text)
        ]
        if path.suffix == ".h" and not re.search(r"^#pragma once$", text, re.MULTILINE):
            self.fault(name, 1, "the header lacks #pragma once")

    def fault(self, name, line, text):
        self.faults.append(f"{name}:{line}: {text}")

    def resolve(self, includer, included):
        """The file of the tree that an include names, or None for one from outside."""
        folder = includer.rsplit("/", 1)[0]
        installed = included[len("zorv/"):] if included.startswith("zorv/") else included
        for base in [folder, *INCLUDE_FOLDERS]:
            path = installed if base == "src" else included
            name = posixpath.normpath(posixpath.join(base, path))
            if name in self.includes:
                return name
        return None

    def is_widget(self, included):
        parts = included.split("/")
        return parts[0] == "QtWidgets" or parts[-1] in self.widget_headers \
            or included == "zorv/zorv.h"

    def reach(self, name):
        """Each include that a file sees, its own and those of the headers it includes."""
        seen = set()
        # (file, line in the first file, file in which the include stands)
        todo = [(name, None)]
        while todo:
            current, first_line = todo.pop()
            for line, included in self.includes[current]:
                line = first_line or line
                yield line, included, current
                target = self.resolve(current, included)
                if target and target not in seen:
                    seen.add(target)
                    todo.append((target, line))


def layer(name):
    prefixes = [prefix for prefix in LAYERS if name.startswith(prefix)]
    return LAYERS[max(prefixes, key=len)] if prefixes else None


def folder(name):
    return name.rsplit("/", 1)[0]


def starts_with_any(name, prefixes):
    return any(name.startswith(prefix) for prefix in prefixes)


def check_order(tree, name):
    own = layer(name)
    if own is None:
        tree.fault(name, 1, "stands in no layer; LAYERS in check_layers.py has to name its folder")
        return
    for line, included in tree.includes[name]:
        target = tree.resolve(name, included)
        if not target:
            continue
        if own == SUBJECTS == layer(target) and folder(target) != folder(name):
            tree.fault(name, line, f"includes {target}, of another subject of the same layer")
            continue
        if (layer(target) or 0) <= own:
            continue
        if (name, target) in tree.exceptions:
            tree.used_exceptions.add((name, target))
        else:
            tree.fault(name, line, f"layer {own} includes {target} of layer {layer(target)}")


def check_widgets(tree, name):
    free_header = name.endswith(".h") and starts_with_any(name, WIDGET_FREE_HEADERS) \
        and not starts_with_any(name, WIDGET_HEADERS_ALLOWED)
    if not free_header and not starts_with_any(name, WIDGET_FREE_FILES):
        return
    for line, included, where in tree.reach(name):
        if tree.is_widget(included):
            way = "" if where == name else f" by way of {where}"
            tree.fault(name, line, f"includes the widget header {included}{way}")


def check_private(tree, name):
    if name.startswith("src/"):
        return
    for line, included in tree.includes[name]:
        target = tree.resolve(name, included) or ""
        if target.startswith("src/") and target.endswith("_p.h"):
            tree.fault(name, line, f"includes {target}, which is private to the library")


def check_spelling(tree, name):
    """A header has one name: a host author's for the library, from host/ for one of the host."""
    for line, included in tree.includes[name]:
        target = tree.resolve(name, included)
        if not target:
            continue
        top, path = target.split("/", 1)
        wanted = f"zorv/{path}" if top == "src" and not name.startswith("src/") else path
        if included != wanted:
            tree.fault(name, line, f"includes {included}, which is written {wanted} here")


def check_own_header(tree, name):
    if not name.endswith(".cpp"):
        return
    stem = name[: -len(".cpp")]
    own = [header for header in (f"{stem}.h", f"{stem}_p.h") if header in tree.includes]
    if not own:
        return
    includes = tree.includes[name]
    if not includes or tree.resolve(name, includes[0][1]) not in own:
        tree.fault(name, includes[0][0] if includes else 1, f"has to include {own[0]} first")


def check_saving(tree, name):
    """With its buffer it takes a short write on a full disk for success."""
    for line, included in tree.includes[name]:
        if included.split("/")[-1] == "QSaveFile":
            tree.fault(name, line, "includes QSaveFile; files are written by Zorv::SafeFile")


def check(root, widget_headers, exceptions):
    """The faults of a tree, as lines of text."""
    tree = Tree(root, widget_headers, exceptions)
    for name in tree.includes:
        for rule in (check_order, check_widgets, check_private, check_spelling, check_own_header,
                     check_saving):
            rule(tree, name)
    for name, target in sorted(set(exceptions) - tree.used_exceptions):
        tree.fault(name, 1, f"the exception for {target} is listed, but no longer needed")
    return tree.faults


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root, widgets = arguments
    widget_headers = {path.name for path in Path(widgets).iterdir()}
    if "QWidget" not in widget_headers:
        print(f"{widgets} is not the folder of QtWidgets headers", file=sys.stderr)
        return 2
    faults = check(root, widget_headers, EXCEPTIONS)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
