#!/usr/bin/env python3
"""Refreshes the translation catalogues from the sources and says what is left to translate.

    python3 scripts/translations.py [BUILD_DIR]      (default: build)

1. Notes every translation the catalogues hold now.
2. Runs the build's update_translations target (lupdate, obsolete entries dropped).
3. Fills each unfinished message from what step 1 noted for the same English text (a text that
   moved to another context or file keeps its translation), else from i18n/glossary_<lang>.tsv
   (translations agreed before their texts reached the code), and lets lupdate tidy the files.
4. Lists per catalogue every message still unfinished and every translation whose arguments
   (%1 .. %9) differ from the source's. The exit status is 1 while anything is listed.

Translate what is listed in Qt Linguist (linguist i18n/admin_af.ts) or in the .ts file itself,
then run this again. Qt's own dialogs are in i18n/qt/qtbase_<lang>.ts, kept by hand.
"""
import collections
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parent.parent
I18N = ROOT / "i18n"


def catalogues():
    return sorted(I18N.glob("*_*.ts"))


def language(ts):
    return ts.stem.split("_", 1)[1]


def messages(tree):
    for context in tree.getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            yield name, message


def known_translations():
    known = collections.defaultdict(dict)
    for ts in catalogues():
        for _, message in messages(ET.parse(ts)):
            translation = message.find("translation")
            if translation.get("type") is None and translation.text:
                known[language(ts)][message.findtext("source")] = translation.text
    return known


def glossary(lang):
    entries = {}
    path = I18N / f"glossary_{lang}.tsv"
    if path.exists():
        for line in path.read_text(encoding="utf-8").splitlines():
            if line and not line.startswith("#"):
                source, translation = line.split("\t")
                entries[source.replace("\\n", "\n")] = translation.replace("\\n", "\n")
    return entries


def fill(known):
    filled = 0
    for ts in catalogues():
        tree = ET.parse(ts)
        offered = {**glossary(language(ts)), **known[language(ts)]}
        changed = False
        for _, message in messages(tree):
            translation = message.find("translation")
            text = offered.get(message.findtext("source"))
            if translation.get("type") == "unfinished" and text:
                translation.text = text
                del translation.attrib["type"]
                changed = True
                filled += 1
        if changed:
            tree.write(ts, encoding="utf-8", xml_declaration=True)
    return filled


def arguments(text):
    return sorted(re.findall(r"%[1-9]", text or ""))


def problems():
    found = []
    for ts in catalogues() + sorted((I18N / "qt").glob("*.ts")):
        for context, message in messages(ET.parse(ts)):
            source = message.findtext("source")
            translation = message.find("translation")
            state = translation.get("type")
            if state or not translation.text:
                found.append(f"{ts.relative_to(ROOT)}: {context}: {state or 'empty'}: {source!r}")
            elif arguments(source) != arguments(translation.text):
                found.append(f"{ts.relative_to(ROOT)}: {context}: arguments differ: {source!r}")
    return found


def update(build):
    subprocess.run(["cmake", "--build", str(build), "--target", "update_translations"], check=True,
                   stdout=subprocess.DEVNULL)


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build")
    known = known_translations()
    update(build)
    filled = fill(known)
    if filled:
        update(build)
    left = problems()
    print(f"{filled} message(s) filled from earlier translations and the glossary")
    print("\n".join(left) if left else "every message is translated")
    return 1 if left else 0


if __name__ == "__main__":
    sys.exit(main())
