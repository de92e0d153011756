#!/usr/bin/env python3
"""Fails when a catalogue lags behind the sources or a translation is faulty.

Runs lupdate over the sources into copies of the catalogues (the catalogues themselves stay
as they are), then reports every text left unfinished, every translation that drops or adds
a placeholder (%1, %L1, %n, %Ln), and every menu or button text whose keyboard accelerator
was lost or doubled.
"""
import argparse
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PLACEHOLDER = re.compile(r"%L?(?:[1-9][0-9]?|n)")


def accelerators(text):
    return len(re.findall(r"&(?!&)", text.replace("&&", "")))


def faults(message, context):
    source = message.findtext("source") or ""
    translation = message.find("translation")
    where = f"{context}: {source!r}"
    if translation is None or translation.get("type") in ("unfinished", "vanished", "obsolete"):
        return [f"unfinished: {where}"]
    forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
    found = []
    for form in forms:
        if not form:
            found.append(f"empty: {where}")
            continue
        # A plural form may leave the count out ("le fichier" for one), never another value.
        expected = set(PLACEHOLDER.findall(source))
        given = set(PLACEHOLDER.findall(form))
        if message.get("numerus") == "yes":
            expected.discard("%n")
            expected.discard("%Ln")
            given.discard("%n")
            given.discard("%Ln")
        if expected != given:
            found.append(f"placeholders {sorted(expected)} became {sorted(given)}: {where} -> {form!r}")
        if "<" not in source and accelerators(source) != accelerators(form):
            found.append(f"accelerator lost or doubled: {where} -> {form!r}")
    return found


def check(catalogue):
    root = ElementTree.parse(catalogue).getroot()
    found, total = [], 0
    for context in root.iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            total += 1
            found += faults(message, name)
    return total, found


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--lupdate", required=True)
    parser.add_argument("--sources", required=True, help="folder of the sources to scan")
    parser.add_argument("catalogues", nargs="+")
    arguments = parser.parse_args()

    failed = False
    with tempfile.TemporaryDirectory() as scratch:
        copies = []
        for catalogue in arguments.catalogues:
            copy = Path(scratch) / Path(catalogue).name
            shutil.copyfile(catalogue, copy)
            copies.append(copy)
        # The options of the build's update_translations target.
        subprocess.run([arguments.lupdate, arguments.sources, "-no-obsolete", "-locations", "none",
                        "-silent", "-ts", *map(str, copies)], check=True)
        for copy in copies:
            total, found = check(copy)
            print(f"{copy.name}: {total} texts, {total - len(found)} without fault")
            for fault in found:
                print(f"  {fault}")
            failed = failed or bool(found)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
