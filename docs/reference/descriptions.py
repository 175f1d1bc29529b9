"""What the sources of the model say of the wire: the descriptions of the classes and the tables of the enumerations."""

import re
from dataclasses import dataclass, field
from pathlib import Path

from cpp_text import arguments, body_behind, closing, without_comments

SHARED_TABLES = "vrx_api/format_options/shared_mode_tables.h"

# How many arguments stand before the field; see the table of verbs in docs/adding_a_class.md.
VERBS = {
    "always": (0, "written always"),
    "required": (0, "written always; a reader refuses an object without it"),
    "expected": (0, "written always; a reader logs that it is missing"),
    "filled": (0, "written when it holds something"),
    "when": (1, "written when {}"),
    "flagged": (0, "written when {} is set; a reader that finds it sets that flag"),
    "optional": (0, "written when {} is set; a reader sets that flag by whether it is there"),
    "readOnly": (0, "read, and never written"),
    "writeOnly": (1, "written when {}, and never read"),
    "classKey": (0, "written always; it tells the class"),
    "apart": (0, "read and written by operations of the class's own"),
}
CALL = re.compile(r"\b(\w+)\.(" + "|".join(VERBS) + r")\(")
HELPER_CALL = re.compile(r"^\s*(\w+)\(fields, ", re.MULTILINE)
DESCRIBE = re.compile(r"^void ([\w:]+)(?:<\w+>)?::describe\(Self& self, Fields& fields\)", re.MULTILINE)
BASE = re.compile(r"describeBase(ForWriting)?<(\w+)>\(self, fields\)")
MEMBER = re.compile(r"\.(m_\w+|[a-z]\w*(?:\(\))?)(?!\w|\()")


@dataclass
class Key:
    """One line of a description. A line in a loop over a table has no name of its own."""

    name: str | None
    verb: str
    when: str
    members: list[str]
    nested: bool  # in an object that is no class of its own


@dataclass
class Description:
    keys: list[Key] = field(default_factory=list)
    base: str | None = None
    base_is_read: bool = True
    whole: list[str] = field(default_factory=list)  # the members that are the value as a whole


@dataclass
class Facts:
    classes: dict[str, Description] = field(default_factory=dict)
    others: dict[str, list[Key]] = field(default_factory=dict)  # by source: described outside of a class
    sources: dict[str, str] = field(default_factory=dict)  # of a class
    tables: dict[str, dict[str, str]] = field(default_factory=dict)  # of an enumeration: wire strings by enumerator
    object_names: dict[str, str] = field(default_factory=dict)  # of exchange objects


def in_words(condition: str) -> str:
    """A condition of a description as the reader of a page may know it."""
    words = re.sub(r"!\s*self\.m_(\w+)\.empty\(\)", r"`\1` is not empty", condition)
    words = re.sub(r"self\.m_(\w+) (==|!=) ([\w:]+)", r"`\1` \2 `\3`", words)
    words = re.sub(r"(?:\w+\.)?m_(\w+)", r"`\1`", words)
    for sign, word in {"==": "is", "!=": "is not", "||": "or", "&&": "and"}.items():
        words = words.replace(f" {sign} ", f" {word} ")
    return f"{words} is set" if re.fullmatch(r"`\w+`", words) else words


class SourceReader:
    """Reads one source after the other into the facts."""

    def __init__(self, paths: list[Path]) -> None:
        self.facts = Facts()
        self.texts = {str(path): without_comments(path.read_text()) for path in paths}
        every = "\n".join(self.texts.values())
        self.constants = dict(re.findall(r"\bconst(?:expr|) (?:Key|wstring) (\w+) = WIDE\(\"(\w+)\"\)", every))
        self.numbers = dict(re.findall(r"\bconstexpr std::int32_t (\w+) = (\d+);", every))
        self.helpers = {
            name: body_behind(every, match.end())
            for match in re.finditer(r"^(?:void|auto) ((\w+))\(Fields& fields,", every, re.MULTILINE)
            for name in [match.group(1)]
        }
        for path, text in self.texts.items():
            self.read_tables(text)
            self.read_descriptions(path, text)
            object_name = re.compile(r"^const wstring (\w+)::s_objectName = WIDE\(\"(\w+)\"\);", re.MULTILINE)
            self.facts.object_names.update(object_name.findall(text))

    def key_name(self, text: str, constants: dict[str, str]) -> str | None:
        literal = re.search(r'WIDE\("([^"]+)"\)', text)
        return literal.group(1) if literal else constants.get(text)

    def key(self, walk: str, verb: str, call: list[str], constants: dict[str, str], body: str) -> Key:
        before, when = VERBS[verb]
        name = self.key_name(call[before], constants)
        condition = ""
        if verb in ("when", "writeOnly"):
            condition = in_words(self.condition(call[0], body))
        elif verb in ("flagged", "optional"):
            condition = in_words(call[1]).removesuffix(" is set")
        # The settings of formats are chosen by the file, which has a key of its own.
        members = MEMBER.findall(", ".join(call[before + 1 :]).replace("forFile(self.m_file", "forFile("))
        for names, member in re.findall(r"\[([\w, ]+)\] = self\.(m_\w+);", body):
            if set(names.split(", ")).intersection(re.findall(r"\w+", call[-1])):
                members.append(member)
        told = when.format(condition).replace("when true", "always")
        return Key(name, verb, told, members, walk != "fields")

    def condition(self, text: str, body: str) -> str:
        """A condition may name variables of the description, and constants."""
        for name in re.findall(r"\b[a-z]\w*\b", text):
            for told in re.findall(rf"const bool {name} =\s*([^;]+);", body):
                text = re.sub(rf"\b{name}\b", self.condition(" ".join(told.split()), body), text)
        return re.sub(r"\bk[A-Z]\w+", lambda name: self.numbers.get(name.group(0), name.group(0)), text)

    def keys_of(self, text: str, constants: dict[str, str]) -> list[Key]:
        found = []
        for match in CALL.finditer(text):
            call = arguments(text, match.end() - 1)
            found.append((match.start(), self.key(match.group(1), match.group(2), call, constants, text)))
        for match in HELPER_CALL.finditer(text):
            inner = CALL.search(self.helpers.get(match.group(1), ""))
            if inner is None:
                continue
            body = self.helpers[match.group(1)]
            call = arguments(text, match.start(1) + len(match.group(1)))
            told = arguments(body, inner.end() - 1)
            before = VERBS[inner.group(2)][0]
            told[before] = next((part for part in call if self.key_name(part, constants)), told[before])
            told = [call[-1] if part in ("field", "file", "path") else part for part in told]
            found.append((match.start(), self.key("fields", inner.group(2), told, constants, body)))
        return [key for _, key in sorted(found, key=lambda each: each[0])]

    def read_descriptions(self, path: str, text: str) -> None:
        constants = self.constants | dict(re.findall(r"\bKey (\w+) = WIDE\(\"(\w+)\"\)", text))
        rest = text
        for match in DESCRIBE.finditer(text):
            name = match.group(1).removeprefix("imp::")
            body = body_behind(text, match.end())
            described = Description(self.keys_of(body, constants))
            base = BASE.search(body)
            if base:
                described.base, described.base_is_read = base.group(2), base.group(1) is None
            whole = re.search(r"fields\.whole\(", body)
            if whole:
                described.whole = MEMBER.findall(arguments(body, whole.end() - 1)[0])
            self.facts.classes[name] = described
            self.facts.sources[name] = path
            rest = rest.replace(body, "")
        self.facts.others[path] = self.keys_of(rest, constants)

    def read_tables(self, text: str) -> None:
        every = text if "kAllOrNone[" in text else text + self.texts.get(SHARED_TABLES, "")
        aliases = dict(re.findall(r"^using (\w+) = ([\w:]+);", text, re.MULTILINE))
        for match in re.finditer(r"enumTable\(([\w:]+)\)\s*\{\s*return (\w+)", text):
            table = re.search(rf"\b{match.group(2)}\[\w*\] =\s*\{{", every)
            if table is None:
                continue
            rows = every[table.end() - 1 : closing(every, table.end() - 1)]
            name = aliases.get(match.group(1), match.group(1))
            self.facts.tables[name] = dict(re.findall(r'::(\w+),\s*WIDE\("([^"]*)"\)', rows))


def read_sources(folder: Path) -> Facts:
    paths = sorted(folder.glob("vrx_api/*/*.cpp")) + sorted(folder.glob("vrx_api/*/*.h"))
    return SourceReader([path.relative_to(folder) for path in paths]).facts
