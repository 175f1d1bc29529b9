"""usage: check.py SCHEMA FOLDER

Checks the reference that Doxygen made in FOLDER: no warning, a page for each public class, each key of each class of
SCHEMA on the page of the class, the wire strings of the enumerations, no link that leads nowhere, and nothing to fetch.
"""

import html
import json
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from prepare import public_headers
from headers import HeaderReader, all_of
from model import Model, short
from schema import Schema

LOADS = r"<(?:link|script|img|iframe|object|source)\b[^>]*\b(?:href|src|data)=\"(?:https?:)?//[^\"]+"
FETCHED = re.compile(LOADS + r"|url\([\"']?(?:https?:)?//[^)]*|@import[^;]*")
LINK = re.compile(r"href=\"([^\"#:]*)(?:#([^\"]*))?\"")


class Checker:
    def __init__(self, root: Path, schema: Schema, folder: Path) -> None:
        self.root = root
        self.folder = folder
        self.model = Model(root, schema)
        self.texts = {page.name: page.read_text() for page in sorted((folder / "html").glob("*.html"))}
        self.problems: list[str] = []
        tags = ElementTree.parse(folder / "vrx_api.tag").getroot()
        self.pages = {
            each.findtext("name", ""): each.findtext("filename", "")
            for each in tags.iter("compound")
            if each.get("kind") in ("class", "struct")
        }

    def warnings(self) -> None:
        """Those of Doxygen, at the lines of the headers themselves."""
        origins = json.loads((self.folder / "origins.json").read_text())
        place = re.compile(rf"^{re.escape(str((self.folder / 'source').resolve()))}/([^:]+):(\d+)", re.MULTILINE)

        def original(found: re.Match[str]) -> str:
            header, line = found.group(1), int(found.group(2))
            known = origins.get(header, [])
            return f"{header}:{known[line - 1] if line <= len(known) else line}"

        text = place.sub(original, (self.folder / "warnings.log").read_text())
        self.problems += dict.fromkeys(line for line in text.splitlines() if line)

    def keys(self, schema: Schema) -> None:
        """On the page of a class, or on that of the interface that it is made behind."""
        every = "".join(self.texts.values())
        for name in schema.rows:
            page = next((self.page_of(each) for each in self.model.bases(name) if self.page_of(each)), "")
            if not page:
                self.problems.append(f"{name} has no page")
            for row in schema.rows[name]:
                if page and f"<code>{row.path}</code>" not in page:
                    self.problems.append(f"{name}: the page does not show the key {row.path}")
                lost = [wire for wire in row.names if f"On the wire: <code>{wire}</code>" not in every]
                self.problems += [f"{name}: no enumeration shows {wire}, a name of {row.path}" for wire in lost]

    def page_of(self, name: str) -> str:
        declared = self.model.classes.get(name)
        file = self.pages.get(declared.qualified) if declared else None
        return self.texts.get(file or "", "")

    def declarations(self) -> None:
        """The classes have pages, and the enumerators their wire strings."""
        every = "".join(self.texts.values())
        for header in public_headers(self.root):
            for each in all_of(HeaderReader(self.root / header).found):
                if each.public and each.kind == "class" and not self.texts.get(self.pages.get(each.qualified, "")):
                    self.problems.append(f"{header}: {each.qualified} has no page")
                wire = self.model.facts.tables.get(short(each.scope), {}).get(each.name)
                if each.kind == "enumerator" and wire and f"On the wire: <code>{wire}</code>" not in every:
                    self.problems.append(f"{header}: {each.qualified} is shown without its wire string")

    def links(self) -> None:
        for sheet in (self.folder / "html").glob("*.css"):
            self.problems += [f"{sheet.name} would fetch {found}" for found in FETCHED.findall(sheet.read_text())]
        for name, text in self.texts.items():
            self.problems += [f"{name} would fetch {found}" for found in FETCHED.findall(text)]
            for target, anchor in LINK.findall(text):
                where = self.texts.get(html.unescape(target) or name)
                if where is None and not (self.folder / "html" / html.unescape(target)).exists():
                    self.problems.append(f"{name} has a link to {target}, which does not exist")
                elif where and anchor and f'id="{anchor}"' not in where and f'name="{anchor}"' not in where:
                    self.problems.append(f"{name} has a link to a place that {target or name} does not have: {anchor}")


def main() -> int:
    schema = Schema(json.loads(Path(sys.argv[1]).read_text()))
    checker = Checker(Path.cwd(), schema, Path(sys.argv[2]))
    checker.warnings()
    checker.keys(schema)
    checker.declarations()
    checker.links()
    for problem in checker.problems[:50]:
        print(problem, file=sys.stderr)
    counted = sum(len(rows) for rows in schema.rows.values())
    print(f"{len(checker.pages)} classes, {counted} keys, {len(checker.texts)} pages, {len(checker.problems)} problems")
    return 1 if checker.problems else 0


if __name__ == "__main__":
    sys.exit(main())
