"""Brings together what the headers, the sources and the outline say of the classes."""

import re
from functools import cache
from pathlib import Path

from cpp_text import body_behind, without_comments
from descriptions import Description, Key, read_sources
from headers import Declaration, HeaderReader, all_of
from schema import Row, Schema

DEFINITION = re.compile(r"^[\w:<>&*, ]*?\b([\w:]+?)(?:<\w+>)?::(~?\w+)\(", re.MULTILINE)
# The bases of all, whose members belong to no key.
FRAME = ("IJsonObject", "IExchangeObject")
BULK = re.compile(r"std::vector<(float|double|std::int32_t)>")


def is_accessor(member: Declaration, name: str) -> bool:
    others = ("operator", "~", "readObject", "writeObject", "merge", "clone", "load", "binary", "compress")
    usable = member.kind == "function" and not member.name.startswith(others)
    return member.public and usable and member.name != name.rsplit("::", 1)[-1]


def is_field(member: Declaration) -> bool:
    return member.public and member.kind == "value" and not member.name.startswith(("m_", "s_"))


def short(qualified: str) -> str:
    """The name of a class without the namespaces around it."""
    return re.sub(r"^(vrx::)?(imp::)?", "", qualified)


class Model:
    def __init__(self, folder: Path, schema: Schema) -> None:
        self.schema = schema
        self.facts = read_sources(folder)
        self.classes: dict[str, Declaration] = {}
        self.bodies: dict[tuple[str, str], str] = {}
        self.of_entries: set[str] = set()  # the sources whose classes have the keys of a shared header
        self.touched: dict[int, set[str]] = {}
        for path in sorted(folder.glob("vrx_api/*/*.h")) + sorted(folder.glob("bridge/*.h")):
            for each in all_of(HeaderReader(path).found):
                if each.kind == "class":
                    self.classes[short(each.qualified)] = each
        for path in sorted(folder.glob("vrx_api/*/*.cpp")):
            text = without_comments(path.read_text())
            for found in DEFINITION.finditer(text):
                head = re.compile(r"[^;{]*\{").match(text, found.end())
                if head:
                    at = (short(found.group(1)), found.group(2))
                    self.bodies[at] = self.bodies.get(at, "") + body_behind(text, head.end() - 1)
            for name in re.findall(r"enterShape\(typeid\((\w+)\)|outlineOf<(\w+)>", text):
                self.facts.sources.setdefault(name[0] or name[1], str(path.relative_to(folder)))
            if "outlineEntries(" in text:
                self.of_entries.add(str(path.relative_to(folder)))
        self.shared = [key for path, keys in self.facts.others.items() if path.endswith(".h") for key in keys]

    @cache
    def bases(self, name: str) -> list[str]:
        """The class and its bases, the nearest first."""
        found = [name]
        for each in found:
            declared = self.classes.get(each)
            found += [short(base) for base in declared.bases if short(base) in self.classes] if declared else []
        return list(dict.fromkeys(found))

    @cache
    def derived(self, name: str) -> list[str]:
        return [each for each in self.classes if each != name and name in self.bases(each)]

    def description(self, name: str) -> Description | None:
        return self.facts.classes.get(name)

    @cache
    def line(self, name: str, path: str) -> Key | None:
        """The line of a description that tells of a key."""
        lines: list[Key] = []
        for each in self.bases(name):
            described = self.description(each)
            lines += described.keys if described else []
            lines += self.facts.others.get(self.facts.sources.get(each, ""), [])
        if any(self.facts.sources.get(each) in self.of_entries for each in self.bases(name)):
            lines += self.shared
        key = path.rsplit(".", 1)[-1]
        told = [line for line in lines if line.name == key] or [line for line in lines if line.name is None]
        # A key that is only read by its line may be written by the class's own operations, which another line tells.
        told.sort(key=lambda line: (line.nested != ("." in path), line.verb == "readOnly"))
        return told[0] if told else None

    @cache
    def rows(self, name: str) -> list[Row]:
        """The keys of a class; an abstract one has those of its description."""
        if name in self.schema.rows:
            return self.schema.rows[name]
        described = self.description(name)
        if described is None:
            return []
        described_bases = [each for each in self.bases(name) if self.description(each)]
        wanted = {line.name for each in described_bases for line in self.facts.classes[each].keys}
        for each in self.derived(name):
            described = self.description(each)
            if described and not described.base_is_read:
                continue
            found = [row for row in self.schema.rows.get(each, []) if row.path in wanted]
            if found:
                return found
        return []

    def members_of(self, name: str, declared: Declaration) -> set[str]:
        """The variables that an accessor touches."""
        if id(declared) not in self.touched:
            self.touched[id(declared)] = self.variables(name, declared)
        return self.touched[id(declared)]

    def variables(self, name: str, declared: Declaration) -> set[str]:
        text = declared.text + declared.body + self.bodies.get((name, declared.name), "")
        found = set(re.findall(r"\bm_\w+", text))
        found.add(declared.name if declared.kind == "value" else f"{declared.name}()")
        return found

    def keys_of(self, name: str, declared: Declaration) -> list[tuple[str, Row]]:
        """The keys, each with its class, that a member of a class reads or sets."""
        if name in FRAME:
            return []
        found: dict[str, tuple[str, Row]] = {}
        touched = {name: self.members_of(name, declared)}
        for each in self.derived(name):
            touched[each] = touched[name].union(*(
                self.members_of(base, inner)
                for base in self.bases(each)
                for inner in self.classes[base].inner
                if inner.name == declared.name
            ))
        around = name.rsplit("::", 1)[0]
        touched.setdefault(around, touched[name] if declared.kind == "value" else set())
        for holder, members in touched.items():
            for row in self.rows(holder):
                line = self.line(holder, row.path)
                if line and members.intersection(line.members) and (row.path not in found):
                    found[row.path] = (holder, row)
        exact = {path: each for path, each in found.items() if "." not in path}
        return list((exact or found).values())

    def accessors(self, name: str, row: Row) -> list[Declaration]:
        """The public members by which a key is reached, each once by its name."""
        line = self.line(name, row.path)
        found: dict[str, Declaration] = {}
        for each in self.bases(name):
            declared = self.classes.get(each)
            for member in all_of(declared.inner) if declared else []:
                usable = is_accessor(member, each) or is_field(member)
                if line and usable and self.reaches(each, member, line, row.key):
                    found.setdefault(member.name, member)
        if not found and "." in row.path:
            above = row.path.rsplit(".", 1)[0]
            return next((self.accessors(name, other) for other in self.rows(name) if other.path == above), [])
        return list(found.values())

    def reaches(self, name: str, member: Declaration, line: Key, key: str) -> bool:
        """By the variable, or by its name where the description names no variable."""
        if line.members:
            return bool(self.members_of(name, member).intersection(line.members))
        return key.replace("_", "") in member.name.lower() and not member.name.startswith("new")

    def only_in(self, name: str, path: str) -> list[str]:
        """The classes derived from this one that have a key, when some don't."""
        derived = [each for each in self.derived(name) if each in self.schema.rows]
        having = [each for each in derived if any(row.path == path for row in self.schema.rows[each])]
        return [] if len(having) == len(derived) else having

    def is_bulk(self, name: str, line: Key | None) -> str:
        """The type of an array of numbers in memory, or nothing."""
        declared = self.classes.get(name)
        for member in declared.inner if declared else []:
            bulk = BULK.search(member.text) if line and member.name in line.members else None
            if bulk:
                return {"float": "32-bit floats", "double": "64-bit floats"}.get(bulk.group(1), "32-bit integers")
        return ""
