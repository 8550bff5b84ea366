"""pseudo.py TRANSLATION OUTPUT: the English texts of a translation file, written so that they stand out, in OUTPUT.

"&Save" becomes "[\u200f&Šàvé~~~]": marked, a third longer, and with a mark that makes it run from right to left."""

import re
import sys
import xml.etree.ElementTree as ElementTree

ACCENTED = str.maketrans("aceinosuyACEINOSUY", "àçéîñöšùýÀÇÉÎÑÖŠÙÝ")
RIGHT_TO_LEFT_MARK = "\u200f"


def pseudo(text):
    parts = re.split(r"(%\d|%n)", text)
    shown = "".join(part if part.startswith("%") else part.translate(ACCENTED) for part in parts)
    return "\n".join(f"[{RIGHT_TO_LEFT_MARK}{line}{'~' * (len(line) // 3)}]" if line else "" for line in shown.split("\n"))


def main(source, output):
    tree = ElementTree.parse(source)
    root = tree.getroot()
    root.set("language", "ar_XB")
    for message in root.iter("message"):
        translation = message.find("translation")
        for form in translation.findall("numerusform"):
            translation.remove(form)
        text = pseudo(message.findtext("source"))
        if message.get("numerus"):
            # As many as Arabic has.
            for _ in range(6):
                ElementTree.SubElement(translation, "numerusform").text = text
        else:
            translation.text = text
    direction = ElementTree.SubElement(ElementTree.SubElement(root, "context"), "name")
    direction.text = "QGuiApplication"
    message = ElementTree.SubElement(root[-1], "message")
    ElementTree.SubElement(message, "source").text = "QT_LAYOUT_DIRECTION"
    ElementTree.SubElement(message, "translation").text = "RTL"
    tree.write(output, encoding="utf-8", xml_declaration=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
