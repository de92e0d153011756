#!/usr/bin/env python3
"""Writes src/engine/attributes/CatalogueTexts.cpp from the attribute schema's catalogue.json.

The schema's names and descriptions are English data; listing them with QT_TRANSLATE_NOOP lets
lupdate put them into the translators' catalogues. Run this after every edit of the JSON;
with --check it only fails when the checked-in file no longer matches the JSON.
"""
import argparse
import json
import sys
from pathlib import Path

SOURCES = Path(__file__).resolve().parent.parent / "src" / "engine" / "attributes"
CONTEXT = "AttributeCatalogue"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def generated(catalogue):
    texts = []
    for record in json.loads(catalogue.read_text(encoding="utf-8"))["attributes"].values():
        for field in ("name", "description"):
            text = record.get(field, "")
            if text and text not in texts:
                texts.append(text)
    entries = "".join(f"    QT_TRANSLATE_NOOP(\"{CONTEXT}\", {quoted(text)}),\n" for text in texts)
    return ("// Generated from catalogue.json by translations/catalogue_texts.py: edit the JSON and run\n"
            "// the script again. The catalogue translates these texts when it shows them; this list\n"
            "// is only here for lupdate to find them.\n\n"
            "#include <QtGlobal>\n\n"
            "[[maybe_unused]] static const char *const kCatalogueTexts[] = {\n"
            f"{entries}}};\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="fail when the file is out of date")
    arguments = parser.parse_args()
    target = SOURCES / "CatalogueTexts.cpp"
    expected = generated(SOURCES / "catalogue.json")
    if not arguments.check:
        target.write_text(expected, encoding="utf-8")
        return 0
    if not target.exists() or target.read_text(encoding="utf-8") != expected:
        print(f"{target} does not match catalogue.json; run {Path(__file__).name}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
