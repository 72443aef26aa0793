"""Are the translations whole?

usage: check_translations.py LUPDATE SOURCE FOLDER...

Fails on texts of the sources that a file of translations lacks, on unfinished and left-over
entries, on marks (%1, %n), access keys (&), dots and line ends that a translation lost, and on
texts that lupdate gives another context than the program.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def marks(text):
    return sorted(set(re.findall(r"%L?(?:\d{1,2}|n)", text)))


def access_keys(text):
    return len(re.findall(r"&(?=[^&\s])", text.replace("&&", "")))


def dots(text):
    return text.rstrip().endswith(("...", "…"))


def outer_blanks(text):
    return text[: len(text) - len(text.lstrip())], text[len(text.rstrip()):]


RULES = [
    ("marks", marks),
    ("access key", access_keys),
    ("dots", dots),
    ("line ends", lambda text: text.count("\n")),
    ("blanks around it", outer_blanks),
]


def problems_of_entry(context, message):
    """What is wrong with one entry, a line each."""
    source = message.findtext("source") or ""
    translation = message.find("translation")
    where = f"{context}: {source!r}"
    kind = translation.get("type")
    if kind:
        return [f"{where} is {kind}"]
    texts = [form.text or "" for form in translation.iter("numerusform")]
    texts = texts or [translation.text or ""]
    lines = []
    for text in texts:
        if not text.strip():
            lines.append(f"{where} is empty")
            continue
        for name, rule in RULES:
            if rule(source) != rule(text):
                lines.append(f"{where} lost its {name}: {text!r}")
    return lines


def entries(root):
    for context in root.iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message


def keys(root):
    return {(context, message.findtext("source"), message.findtext("comment"))
            for context, message in entries(root)}


def problems_of_file(kept, updated):
    """Compares the file that is kept with one that was brought in line with the sources."""
    lines = [f"{context}: {source!r} is not there: build the target translations"
             for context, source, _ in sorted(keys(updated) - keys(kept), key=str)]
    lines += [f"{context}: {source!r} is no longer in the sources"
              for context, source, _ in sorted(keys(kept) - keys(updated), key=str)]
    for context, message in entries(kept):
        lines += problems_of_entry(context, message)
    return lines


def update(lupdate, source, folders, kept, folder, *options):
    """The entries that the sources have, and what lupdate complains about."""
    copy = pathlib.Path(folder) / kept.name
    shutil.copy(kept, copy)
    run = subprocess.run(
        [lupdate, "-silent", "-locations", "none", "-no-obsolete",
         "-I", source / "src", "-I", source / "host", "-I", source / "player", *options,
         *[source / name for name in folders], "-ts", copy],
        capture_output=True, text=True, check=True)
    complaints = [line for line in run.stderr.splitlines() if line.strip()]
    return ElementTree.parse(copy).getroot(), complaints


def problems_of_words(kept, updated):
    """Of a file that is kept by hand each text has to be one of the sources."""
    lines = [f"{context}: {source!r} is no longer in the sources"
             for context, source, _ in sorted(keys(kept) - keys(updated), key=str)]
    return lines + [line for context, message in entries(kept)
                    for line in problems_of_entry(context, message) if "lost its marks" not in line]


def main(lupdate, source, *folders):
    source = pathlib.Path(source)
    lines = []
    files = sorted((source / "translations").glob("*.ts"))
    with tempfile.TemporaryDirectory() as folder:
        for kept in files:
            root = ElementTree.parse(kept).getroot()
            counts = kept.stem == "zorv_en"
            updated, complaints = update(
                lupdate, source, folders, kept, folder, *(["-pluralonly"] if counts else []))
            words = kept.stem.endswith("_words")
            found = (problems_of_words if words else problems_of_file)(root, updated)
            lines += complaints + [f"{kept.name}: {line}" for line in found]
    print("\n".join(lines))
    print(f"{len(files)} files, {len(lines)} problems")
    return 1 if lines or not files else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
