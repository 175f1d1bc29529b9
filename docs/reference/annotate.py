"""Copies the public headers with the documentation that follows from the sources put before each declaration.

What a comment of the header tells stays as it is. A line without a comment directly under one that has it shares it, as
the headers of the project are written.
"""

import re
from pathlib import Path

from headers import Declaration, HeaderReader, all_of
from model import Model, short
from schema import Row

# Of constructors and assignments without a comment.
DEFAULT = "Makes one with the defaults of its members."
NO_COPY = "Is not copied."


def link(name: str, label: str = "") -> str:
    return f'@ref {name} "{label or short(name)}"'


class Annotator:
    def __init__(self, model: Model, folder: Path, headers: list[str]) -> None:
        self.model = model
        self.readers = {header: HeaderReader(folder / header) for header in headers}
        self.public = {
            short(each.qualified): each.qualified
            for reader in self.readers.values()
            for each in all_of(reader.found)
            if each.kind in ("class", "enum") and each.public
        }
        self.names: dict[tuple[str, str], str] = {}  # the enumerations of keys whose values are names
        self.used_by = self.uses_of_enumerations()

    def class_link(self, name: str) -> str:
        """A class, or the public interface of one that is not public."""
        for each in self.model.bases(name):
            if each in self.public:
                return link(self.public[each], each)
        return f"`{name}`"

    def with_links(self, kind: str) -> str:
        return re.sub(r"\{([^}]+)\}", lambda found: self.class_link(str(found.group(1))), kind)

    def kind(self, name: str, row: Row) -> str:
        line = self.model.line(name, row.path)
        told = self.with_links(row.kind)
        if (name, row.path) in self.names:
            enumeration = self.names[name, row.path]
            told = re.sub(r"\bnames?\b", link(self.public[enumeration], enumeration), told, count=1)
        bulk = next(filter(None, (self.model.is_bulk(each, line) for each in self.model.bases(name))), "")
        if bulk and "." not in row.path:
            told += f" (bulk data, {bulk} in memory)"
        return told

    def note(self, name: str, row: Row) -> str:
        """When a key is written, and what its value means."""
        line = self.model.line(name, row.path)
        told = line.when if line else ""
        note = row.note.replace("Written, and not read.", "").replace("Read, and not written.", "").strip()
        note = note.replace("Read only where", "Written and read only where")
        if "Written, and not read." in row.note and "never read" not in told:
            told += "; never read"
        note = re.sub(r'"(\w+)"', r"`\1`", note)
        return (told[:1].upper() + told[1:] + ". " + note).strip()

    def indexed_by(self, name: str, row: Row) -> str:
        """How the numbers of an array group, when another key counts in it."""
        for other in self.model.rows(name):
            found = re.search(r'Positions in "(\w+)", where (\d+) numbers make one', other.note)
            if found and found.group(1) == row.key and found.group(2) != "1":
                return f" {found.group(2)} numbers make one point; `{other.path}` counts points."
        return ""

    def uses_of_enumerations(self) -> dict[str, list[str]]:
        """For each enumeration the keys whose values are its names."""
        found: dict[str, list[str]] = {}
        for name in sorted(self.model.classes):
            for row in self.model.rows(name):
                for accessor in self.model.accessors(name, row):
                    wanted = re.search(r"\b((?:\w+::)*E[A-Z]\w+)\b", accessor.text)
                    if wanted is None or "name" not in row.kind:
                        continue
                    scopes = [short(accessor.scope), ""]
                    at = [f"{scope}::{wanted.group(1)}" if scope else wanted.group(1) for scope in scopes]
                    known = next((each for each in at if each in self.public), "")
                    told = f"`{row.path}` of {self.class_link(name)}"
                    if known:
                        self.names[name, row.path] = known
                    if name in self.model.schema.rows and known and told not in found.setdefault(known, []):
                        found[known].append(told)
        return found

    def of_class(self, declared: Declaration) -> list[str]:
        name = short(declared.qualified)
        lines = []
        wire_name = self.model.facts.object_names.get(name)
        if wire_name:
            lines += ["", f"On the wire it is the exchange object `{wire_name}`."]
        names = [name] + [each for each in self.model.derived(name) if each not in self.public]
        rows = [(each, row) for each in names for row in self.model.rows(each)]
        if rows:
            table = "<table class='keys'><tr><th>Key</th><th>Kind</th><th>When</th><th>Member</th></tr>"
            for each, row in rows:
                members = dict.fromkeys(
                    link(self.qualified(each, member), member.name)
                    for member in self.model.accessors(each, row)
                    if self.qualified(each, member)
                )
                told = self.note(each, row) + self.indexed_by(each, row)
                table += f"<tr><td>`{row.path}`</td><td>{self.kind(each, row)}</td><td>{told}</td>"
                table += f"<td>{', '.join(members)}</td></tr>"
            lines += ["", "@par Keys", table + "</table>"]
        elif name in self.model.schema.definitions:
            shape = self.model.schema.whole(name)
            lines += ["", "@par JSON", self.with_links(shape) + "."]
        # What is held as a base is one of the classes derived from it.
        meant = names if name in self.model.schema.rows else names + self.model.derived(name)
        holders = [each for meaning in meant for each in self.model.schema.holders.get(meaning, [])]
        held = [self.held_by(name, holder, row) for holder, row in holders]
        if held and name != "IJsonObject":
            lines += ["", "@par Held by", ", ".join(dict.fromkeys(held)) + "."]
        return lines

    def qualified(self, name: str, member: Declaration) -> str:
        """The public member that is meant, which may be that of an interface; empty for none."""
        if short(member.scope) in self.public:
            return member.qualified
        for each in self.model.bases(name):
            declared = self.model.classes.get(each)
            if each in self.public and declared and any(inner.name == member.name for inner in declared.inner):
                return f"{self.public[each]}::{member.name}"
        return ""

    def held_by(self, name: str, holder: str, row: Row | None) -> str:
        if row is None:
            return self.class_link(holder)
        told = self.class_link(holder)
        members = [each for each in self.model.accessors(holder, row) if self.qualified(holder, each)]
        # The first of them, or rather one that deals with just this class.
        members.sort(key=lambda member: not re.search(rf"\b{name}\b", member.text))
        if members and holder in self.public:
            told = link(self.qualified(holder, members[0]), f"{holder}::{members[0].name}")
        return f"{told} (`{row.path}`)"

    def of_member(self, declared: Declaration) -> list[str]:
        name = short(declared.scope)
        if declared.name in ("s_objectName", "objName") and name in self.model.facts.object_names:
            return [f"The name of the class on the wire, `{self.model.facts.object_names[name]}`."]
        if declared.name.startswith(("operator", "~")) or declared.name in ("readObject", "writeObject", "merge"):
            return []
        if declared.name == name.rsplit("::", 1)[-1] or name not in self.model.classes:
            return []
        keys = self.model.keys_of(name, declared)
        if len(keys) > 4:
            return ["", f"Keys {', '.join(f'`{row.path}`' for _, row in keys)}."]
        told = []
        for holder, row in keys:
            note = self.note(holder, row) + self.indexed_by(holder, row)
            only = self.model.only_in(name, row.path) if name not in self.model.schema.rows else []
            note += f" Only in {' and '.join(map(self.class_link, only))}." if 0 < len(only) < 4 else ""
            told += ["", f"Key `{row.path}`, {self.kind(holder, row)}. {note}"]
        return told

    def of_enumerator(self, declared: Declaration) -> list[str]:
        wire = self.model.facts.tables.get(short(declared.scope), {}).get(declared.name)
        own = "" if "///<" in declared.text or not declared.comment else declared.comment.strip()
        lines = [own[:1].upper() + own[1:].removesuffix(".") + "."] if own else []
        return lines + ([f"On the wire: `{wire}`."] if wire else [])

    def of_enumeration(self, declared: Declaration) -> list[str]:
        used = self.used_by.get(short(declared.qualified), [])
        if not used:
            return []
        return ["", f"The values of {', '.join(used)}."]

    @staticmethod
    def of_special(declared: Declaration) -> list[str]:
        """Constructors, assignments and destructors that have nothing to tell."""
        last = declared.scope.rsplit("::", 1)[-1]
        text = declared.text
        if text.startswith("template <>"):
            types = dict.fromkeys(re.findall(r"\bE[A-Z]\w+", text))
            return [f"The function template of this name for {', '.join(types)}."]
        if declared.name not in (last, "operator="):
            return []
        if "= delete" in text:
            return [NO_COPY]
        if re.search(rf"\({last}(<\w+>)?&& ?\w*\)", text):
            return ["Moves."]
        if re.search(rf"\(const {last}(<\w+>)?& ?\w*\)", text):
            return ["Copies."]
        return [DEFAULT] if re.search(rf"\b{last}\(\)", text) else []

    @staticmethod
    def tells_nothing(declared: Declaration) -> bool:
        """A destructor, and what the compiler would copy or move by itself; on one line, and without a comment."""
        copies = "= default" in declared.text and "&" in declared.text
        return declared.kind == "function" and not declared.comment and (declared.name.startswith("~") or copies)

    def lines_for(self, declared: Declaration, group: str) -> list[str]:
        own = {
            "class": self.of_class,
            "enum": self.of_enumeration,
            "function": self.of_member,
            "value": self.of_member,
            "enumerator": self.of_enumerator,
        }[declared.kind](declared)
        special = [] if declared.comment or declared.kind != "function" else self.of_special(declared)
        is_of_base = declared.name in ("readObject", "writeObject", "objectName", "clone")
        shared = [] if declared.comment or special or is_of_base or not declared.group else [declared.group]
        lines = special + shared + own
        # A comment begins with what it tells, and a paragraph of its own follows only where something stands above.
        while lines and not lines[0] and not declared.comment:
            lines.pop(0)
        if group and not self.is_inner(declared):
            lines += ["", f"@ingroup {group}"]
        return lines

    def is_inner(self, declared: Declaration) -> bool:
        return short(declared.scope) in self.public

    def annotated(self, header: str, group: str) -> tuple[str, list[int]]:
        """The text, and for each line the line of the header that it stands for."""
        reader = self.readers[header]
        added: dict[int, list[str]] = {}
        left_out = set(reader.private)
        for declared in all_of(reader.found):
            number = reader.text.count("\n", 0, declared.place)
            if self.tells_nothing(declared):
                left_out.add(number)
            elif declared.public:
                added[number] = self.lines_for(declared, group)
        text = []
        origins = []
        for number, line in enumerate(reader.text.splitlines()):
            if number in left_out:
                continue
            indent = line[: len(line) - len(line.lstrip())]
            for told in added.get(number, []):
                text.append(f"{indent}/// {told}".rstrip())
                origins.append(number + 1)
            text.append(line)
            origins.append(number + 1)
        return "\n".join(text) + "\n", origins
