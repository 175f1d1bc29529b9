#!/usr/bin/python3
"""usage: natvis_test.py FOLDER_OF_RAPIDJSON

Holds the file for Visual Studio's debugger against the words of its schema, and each class, member and number in it
against the sources. Only that debugger can show whether its pictures are good.
"""

from __future__ import annotations

import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"

# What may stand within each element that is used, and its attributes: the part of the schema that this file needs.
CHILDREN = {
    "AutoVisualizer": {"Type"},
    "Type": {"DisplayString", "Expand"},
    "Expand": {"Item", "ArrayItems", "ExpandedItem"},
    "ArrayItems": {"Size", "ValuePointer"},
}
ATTRIBUTES = {
    "Type": {"Name"},
    "DisplayString": {"Condition"},
    "Item": {"Name", "Condition"},
    "ArrayItems": {"Condition"},
    "ExpandedItem": {"Condition"},
}

# Members of Microsoft's std::array and std::basic_string: their sources are not here.
OF_THE_STANDARD_LIBRARY = {"_Elems", "_Mypair", "_Myval2", "_Mysize"}
NO_MEMBERS = {"sizeof", "wchar_t", "unsigned", "__int64"}
FLAGS = {"0x1000": "kInlineStrFlag", "0x0200": "kDoubleFlag", "0x0020": "kIntFlag", "0x0040": "kUintFlag",
         "0x0080": "kInt64Flag"}


class Sources:
    def __init__(self, rapidjson: Path) -> None:
        headers = [path for folder in ("vrx_api", "mp") for path in (ROOT / folder).rglob("*.h")]
        self.texts = [path.read_text(encoding="utf-8") for path in headers]
        self.texts.append((rapidjson / "rapidjson/document.h").read_text(encoding="utf-8"))

    def class_text(self, name: str) -> str:
        """The class with its bases, or nothing."""
        head = re.compile(rf"^(?:class|struct)(?: VRX_API)? {name}\b([^;{{]*)\{{(.*?)^\}};", re.MULTILINE | re.DOTALL)
        for text in self.texts:
            if found := head.search(text):
                bases = re.findall(r"public (?:\w+::)*(\w+)", found[1])
                return found[2] + "".join(self.class_text(base) for base in bases)
        return ""

    def value_of(self, constant: str) -> str:
        found = [m[1] for text in self.texts if (m := re.search(rf"\b{constant}\s*=\s*(\w+)", text))]
        return found[0] if found else ""


def expressions(element: ElementTree.Element) -> list[str]:
    tag, text = element.tag.removeprefix(SPACE), (element.text or "").strip()
    found = [element.attrib["Condition"]] if "Condition" in element.attrib else []
    if tag == "DisplayString":
        if text.count("{") != text.count("}"):
            found.append(f"unbalanced({text}")
        return found + re.findall(r"\{([^{}]*)\}", text)
    return found + ([text] if tag in ("Item", "ExpandedItem", "Size", "ValuePointer") else [])


def problems_of_expression(expression: str, members: str, sources: Sources) -> list[str]:
    problems = []
    if any(expression.count(a) != expression.count(b) for a, b in ("()", "[]")):
        problems.append(f"brackets that do not close: {expression}")
    for name in re.findall(r"rapidjson::(\w+)", expression):
        if name != "UTF16" and not sources.class_text(name):
            problems.append(f"no class {name}")
    expression = re.sub(r"\(rapidjson::.*?\*\)", "", expression)
    expression = re.sub(r",(\[(.*)\])?(su|g|d|u|x)?$", r" \2", expression)  # how the value is shown
    for number in re.findall(r"\b0x\w{4}\b", expression):
        if sources.value_of(FLAGS.get(number, "no_flag")) != number:
            problems.append(f"{number} is not {FLAGS.get(number, 'a flag')}")
    for name in set(re.findall(r"\b[A-Za-z_]\w*", expression)) - NO_MEMBERS - OF_THE_STANDARD_LIBRARY:
        if not re.search(rf"\b{name}\b\s*(\[[^\]]*\])?\s*(=[^;]*|\{{[^;]*)?;", members):
            problems.append(f"no member {name}: {expression}")
    return problems


def problems_of(natvis: str, sources: Sources) -> list[str]:
    problems: list[str] = []
    root = ElementTree.fromstring(natvis)
    for element in root.iter():
        tag = element.tag.removeprefix(SPACE)
        if unknown := {child.tag.removeprefix(SPACE) for child in element} - CHILDREN.get(tag, set()):
            problems.append(f"{unknown} in {tag}")
        if unknown := set(element.attrib) - ATTRIBUTES.get(tag, set()):
            problems.append(f"attributes {unknown} of {tag}")
    for kind in root:
        name = kind.attrib["Name"]
        members = sources.class_text(re.split("<", name)[0].rpartition("::")[2])
        if not members:
            problems.append(f"no class {name}")
            continue
        strings = [element for element in kind if element.tag == SPACE + "DisplayString"]
        if any("Condition" not in element.attrib for element in strings[:-1]):
            problems.append(f"what is never reached in {name}")
        for element in kind.iter():
            for expression in expressions(element):
                problems += [f"{name}: {text}" for text in problems_of_expression(expression, members, sources)]
    return problems


# The natvis file with one fault each, which must be seen.
PLANTED = [("m_components", "m_parts"), ("vrx::ExcColor", "vrx::ExcColour"), ("data_.o.size", "data_.o.extent"),
           ("0x1000", "0x0800"), ("<Expand>", "<Expand Name='x'>"), ("<Size>", "<Length>x</Length><Size>"),
           ("m_blockId}", "m_blockId"), ("m_hasRGB &amp;", "(m_hasRGB &amp;"), ("GenericMember&lt;", "Member&lt;"),
           (' Condition="m_hasRGB"', "")]


def main() -> int:
    sources = Sources(Path(sys.argv[1]))
    natvis = (ROOT / "tools/debugger/vrx_api.natvis").read_text(encoding="utf-8")
    problems = problems_of(natvis, sources)
    for sound, faulty in PLANTED:
        if sound not in natvis or not problems_of(natvis.replace(sound, faulty), sources):
            problems.append(f"the planted fault {faulty} is not seen")
    print("\n".join(problems) or "the natvis file fits the sources")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
