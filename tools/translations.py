#!/usr/bin/env python3
"""The catalogues of translated texts in translations/: keeps them in step with the sources.

    translations.py              takes new texts of the sources into all catalogues, and drops those that have gone
    translations.py --check      says which catalogues lack texts, or have other places (%1), accelerators or ends, and
                                 which texts programs would look for in another context
    translations.py --list PART  numbers the texts of PART (widgets, workbench), one a line, for a translator
    translations.py --take PART LANGUAGE FILE   takes translations over, lines "number<TAB>text", forms divided by "¦"

The panels' own texts are in the .titles files; these are all others.
"""
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LUPDATE = "/usr/lib/qt6/bin/lupdate"
PARTS = {"widgets": ["src/ui"], "workbench": ["apps/workbench"]}
# English needs no more than the forms of its texts with numbers.
PLURALS = "en"
LANGUAGES = ["ar", "de", "es", "fr", "ja", "ru", "zh"]
QT_CONTEXTS = {"QObject", "QMessageBox"}
PLACE = re.compile(r"%(?:L?\d+|L?n|\w\b)")


def path_of(part, language):
    return os.path.join(ROOT, "translations", f"{part}_{language}.ts")


def update(part, files, *options):
    """Writes what the sources of PART say into the catalogues."""
    with tempfile.TemporaryDirectory() as folder:
        os.symlink(os.path.join(ROOT, "src"), os.path.join(folder, "tolvi"))
        command = [LUPDATE, "-silent", "-no-obsolete", "-locations", "none", "-I", ROOT, "-I", folder, *options,
                   *PARTS[part], "-ts", *files]
        # What it says of classes of other libraries concerns no text of ours.
        result = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if result.returncode != 0:
            sys.exit(result.stdout)


def messages(file):
    """Each message of a catalogue with its context."""
    for context in ET.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message


def texts_of(message):
    translation = message.find("translation")
    forms = [form.text or "" for form in translation.iter("numerusform")]
    return forms or [translation.text or ""]


def is_done(message):
    return message.find("translation").get("type") is None and all(texts_of(message))


def fault_of(message):
    """What is wrong with a translation, or None."""
    source = message.findtext("source")
    if not is_done(message):
        return "is not translated"
    for text in texts_of(message):
        wanted, found = sorted(set(PLACE.findall(source))), sorted(set(PLACE.findall(text)))
        if wanted != found and not (message.get("numerus") and set(wanted) - set(found) <= {"%n", "%Ln"}):
            return f"has the places {found} instead of {wanted}"
        if ("&" in source.replace("&&", "")) != ("&" in text.replace("&&", "")):
            return "has another accelerator, or none"
        if source.endswith(("...", "…")) != text.endswith(("...", "…")):
            return "does not end as the text does"
    return None


def lost_contexts(part, contexts):
    """The contexts under which no program asks for texts: lupdate goes by names, programs by what a class declares."""
    text = ""
    for top in PARTS[part]:
        for folder, _, names in os.walk(os.path.join(ROOT, top)):
            for name in names:
                if name.endswith((".cpp", ".h")):
                    with open(os.path.join(folder, name), encoding="utf-8") as file:
                        text += file.read()
    for context in sorted(contexts - QT_CONTEXTS):
        name = context.rpartition("::")[2]
        asked = (rf"Q_DECLARE_TR_FUNCTIONS\({context}\)", rf'translate\(\s*"{context}"',
                 rf"class (?:\w+_API )?{name}\b[^;{{]*\{{\s*Q_OBJECT")
        if not any(re.search(pattern, text) for pattern in asked):
            yield context


def check():
    """Compares the catalogues with catalogues made of the sources; returns the faults."""
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        for part in PARTS:
            fresh = os.path.join(folder, part + ".ts")
            update(part, [fresh])
            fresh_messages = [((context, m.findtext("source"), m.findtext("comment")), m.get("numerus"))
                              for context, m in messages(fresh)]
            wanted = {key for key, _ in fresh_messages}
            faults += [f"the texts of {context or 'no class'} are looked for elsewhere: has it Q_OBJECT or "
                       "Q_DECLARE_TR_FUNCTIONS?" for context in lost_contexts(part, {key[0] for key in wanted})]
            forms = {key for key, numerus in fresh_messages if numerus}
            for language in [*LANGUAGES, PLURALS]:
                file = path_of(part, language)
                found = {(context, m.findtext("source"), m.findtext("comment")): m for context, m in messages(file)}
                name = os.path.relpath(file, ROOT)
                lacking = (forms if language == PLURALS else wanted) - found.keys()
                faults += [f'{name}: lacks "{text}" of {context}' for context, text, _ in lacking]
                for (context, text, _), message in found.items():
                    if fault := fault_of(message):
                        faults.append(f'{name}: {context}: "{text}" {fault}')
    return sorted(faults)


def escaped(text):
    return text.replace("\\", "\\\\").replace("\n", "\\n")


def unescaped(text):
    return re.sub(r"\\(.)", lambda found: {"n": "\n"}.get(found[1], found[1]), text)


def list_texts(part):
    for number, (context, message) in enumerate(messages(path_of(part, LANGUAGES[0])), 1):
        numerus = "\t(forms)" if message.get("numerus") else ""
        print(f'{number}\t{context.rpartition(":")[2]}\t{escaped(message.findtext("source"))}{numerus}')


def take(part, language, file):
    given = {}
    with open(file, encoding="utf-8") as lines:
        for line in lines:
            number, _, text = line.rstrip("\n").partition("\t")
            if text:
                given[int(number)] = [unescaped(form) for form in text.split("¦")]
    path = path_of(part, language)
    tree = ET.parse(path)
    number = 0
    for context in tree.getroot().iter("context"):
        for message in context.iter("message"):
            number += 1
            if number not in given:
                continue
            translation = message.find("translation")
            forms = list(translation.iter("numerusform"))
            if len(given[number]) != max(1, len(forms)):
                sys.exit(f"{file}: {number}: {len(forms)} forms are wanted")
            translation.attrib.pop("type", None)
            if not forms:
                translation.text = given[number][0]
            for form, text in zip(forms, given[number]):
                form.text = text
    with open(path, "wb") as out:
        out.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        tree.write(out, encoding="utf-8", xml_declaration=False)
        out.write(b"\n")
    update(part, [path], *(["-pluralonly"] if language == PLURALS else []))  # in its own way to write them


def main(arguments):
    if arguments[:1] == ["--check"]:
        faults = check()
        print("\n".join(faults))
        return 1 if faults else 0
    if arguments[:1] == ["--list"]:
        list_texts(arguments[1])
    elif arguments[:1] == ["--take"]:
        take(*arguments[1:])
    else:
        for part in PARTS:
            update(part, [path_of(part, language) for language in LANGUAGES])
            update(part, [path_of(part, PLURALS)], "-pluralonly")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
