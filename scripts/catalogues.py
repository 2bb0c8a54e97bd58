#!/usr/bin/env python3
"""The catalogues of the phone's texts.

catalogues.py update    brings the .ts files in line with the sources; new texts are then unfinished
catalogues.py check     tells what is wrong with them, and ends with 1 then

A folder `translations` holds the texts of the sources beside it.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent / "phoneui"
LANGUAGES = ["", "_de_DE", "_es_ES", "_it_IT", "_ko_KR", "_ru_RU", "_tr_TR"]
# Labels of numbers are told apart by the word that they contain.
KINDS = ["Company", "Mobile", "Home", "Fax", "Etc", "Number"]


def lupdate(sources, catalogue):
    subprocess.run([os.environ.get("LUPDATE", "lupdate"), "-silent", "-locations", "none", "-no-obsolete", sources, "-ts",
                    catalogue], check=True, stderr=subprocess.DEVNULL)


def faults_of(catalogue, fresh):
    """What is wrong with a catalogue, `fresh` being its copy brought in line with the sources."""
    if catalogue.read_bytes() != fresh.read_bytes():
        yield "is not what lupdate makes of it: build the target `catalogues`"
    for context in ElementTree.parse(fresh).iter("context"):
        seen = {}
        for message in context.iter("message"):
            source, translation = message.find("source").text, message.find("translation")
            text = translation.text or ""
            where = f"{context.find('name').text}: {source!r}"
            if translation.get("type") or not text:
                yield f"{where} is not translated"
                continue
            for kept in (r"%\d", r"\n", r"\|", r"^\s", r"\s$", r"\.wav$"):
                if re.findall(kept, source) and sorted(re.findall(kept, source)) != sorted(re.findall(kept, text)):
                    yield f"{where} loses {kept} in {text!r}"
            # Soft keys, rows and choices are known by their words.
            if text in seen:
                yield f"{where} and {seen[text]!r} are both {text!r}"
            seen[text] = source
        kinds = [text for text, source in seen.items() if source in KINDS]
        for text in kinds:
            if any(text in other for other in kinds if other != text):
                yield f"{text!r} is part of the word for another kind of number"


def hidden_words(language):
    """Soft keys that would show the erase sign in the place of their words."""
    words = {}
    for catalogue in ROOT.rglob(f"translations/*{language}.ts"):
        if not language and catalogue.stem != catalogue.parent.parent.name:
            continue
        for message in ElementTree.parse(catalogue).iter("message"):
            words.setdefault(message.find("source").text, set()).add(message.find("translation").text)
    erase = ElementTree.parse(ROOT / f"toolkit/translations/toolkit{language}.ts").find(
        "context[name='Tail']/message[source='Erase']/translation").text
    return [f"{language}: {source!r} is the word of the erase key" for source, texts in words.items()
            if erase in texts and source != "Erase"]


def main(action):
    faults = []
    for folder in sorted(ROOT.rglob("translations")):
        name = folder.parent.name
        for language in LANGUAGES:
            catalogue = folder / f"{name}{language}.ts"
            if action == "update":
                lupdate(folder.parent, catalogue)
                continue
            with tempfile.TemporaryDirectory() as work:
                fresh = Path(work) / catalogue.name
                shutil.copy(catalogue, fresh)
                lupdate(folder.parent, fresh)
                faults += [f"{catalogue.name}: {fault}" for fault in faults_of(catalogue, fresh)]
    if action == "check":
        faults += [fault for language in LANGUAGES for fault in hidden_words(language)]
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    if sys.argv[1:] not in (["update"], ["check"]):
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
