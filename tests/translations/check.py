"""check.py LUPDATE SOURCES: every text of the program is in every file of translations/, translated, and nothing else.

What is found is printed, one line each; any is a failure. `translations/update` mends what can be mended by itself."""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

FORMS = {"de": 2, "es": 2, "fr": 2, "ja": 1, "zh_CN": 1}


def texts_of(file):
    """The messages of a translation file by context, text and disambiguation."""
    return {
        (context.findtext("name"), message.findtext("source"), message.findtext("comment")): message
        for context in ElementTree.parse(file).getroot().iter("context")
        for message in context.iter("message")
    }


def texts_of_program(lupdate, sources):
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder, "program.ts")
        command = [lupdate, "src", "-I", "src", "-locations", "none", "-silent", "-ts", str(file)]
        ran = subprocess.run(command, cwd=sources, check=True, capture_output=True, text=True)
        return texts_of(file), ran.stderr.splitlines()


def placeholders(text):
    return sorted(set(re.findall(r"%(?:\d|n)", text)))


def mnemonics(text):
    return len(re.findall(r"&\w", text))


def faults_of(message, forms):
    translation = message.find("translation")
    shown = [form.text for form in translation.findall("numerusform")] or [translation.text]
    source = message.findtext("source")
    if translation.get("type"):
        yield translation.get("type")
    if message.get("numerus") and len(shown) != forms:
        yield f"{len(shown)} plural forms in place of {forms}"
    for text in shown:
        if not text:
            yield "empty"
        elif placeholders(text) != placeholders(source):
            yield f"{placeholders(text)} in place of {placeholders(source)}: {text}"
        elif mnemonics(text) != mnemonics(source):
            yield f"{mnemonics(text)} mnemonics in place of {mnemonics(source)}: {text}"


def main(lupdate, sources):
    program, faults = texts_of_program(lupdate, sources)
    files = sorted(pathlib.Path(sources, "translations").glob("*.ts"))
    if [file.stem for file in files] != sorted(FORMS):
        faults.append(f"the languages are {[file.stem for file in files]}")
    for file in files:
        translated = texts_of(file)
        faults += [f"{file.name}: missing: {key}" for key in program.keys() - translated.keys()]
        faults += [f"{file.name}: no longer there: {key}" for key in translated.keys() - program.keys()]
        faults += [
            f"{file.name}: {key}: {fault}"
            for key, message in translated.items()
            for fault in faults_of(message, FORMS[file.stem])
        ]
    print(f"{len(program)} texts in {len(files)} languages", *faults, sep="\n")
    sys.exit(bool(faults or not program))


if __name__ == "__main__":
    main(*sys.argv[1:])
