"""The classes, enumerations and members that a header declares, with the places where comments can be put."""

import re
from dataclasses import dataclass, field
from pathlib import Path

from cpp_text import closing, without_comments

TYPE = re.compile(r"(?:template <.*?>\s*)?(namespace|class|struct|enum class|enum)\b\s*(.*)", re.DOTALL)
NAME = re.compile(r"(operator\s*(?:\(\)|\[\]|[^\s(]+)|~?\w+)\s*\($")


@dataclass
class Declaration:
    """Something that wants a comment: a type, a member, a function, an enumerator."""

    kind: str  # class, enum, enumerator, function, value
    name: str
    text: str
    place: int  # in the text of the header
    comment: str  # what stands above or behind it
    public: bool = True
    body: str = ""
    scope: str = ""  # the qualified name of what it stands in
    bases: list[str] = field(default_factory=list)
    inner: list["Declaration"] = field(default_factory=list)
    group: str = ""  # the comment of the lines directly above, which holds for it, too

    @property
    def qualified(self) -> str:
        return f"{self.scope}::{self.name}" if self.scope else self.name


class HeaderReader:
    def __init__(self, path: Path) -> None:
        self.text = path.read_text()
        self.code = without_comments(self.text)
        self.found: list[Declaration] = []
        self.private: set[int] = set()  # the lines of private sections, counted from 0
        self.read(0, len(self.text), "", True, self.found)

    def read(self, place: int, end: int, scope: str, public: bool, into: list[Declaration]) -> None:
        comment = group = ""
        while place < end:
            if self.text[place] in " \t":
                place += 1
                continue
            if self.text[place] == "\n":
                if self.text[place - 1] == "\n":
                    comment = group = ""
                place += 1
                continue
            line = self.text[place:end].split("\n", 1)[0]
            if line.startswith("///"):
                comment += line[3:].strip() + " "
            elif line.startswith("#"):
                while line.endswith("\\"):
                    place += len(line) + 1
                    line = self.text[place:end].split("\n", 1)[0]
            elif line in ("public:", "protected:", "private:"):
                public = line != "private:"
                if not public:
                    section = re.compile(r"^\s*(?:public|protected):", re.MULTILINE).search(self.text, place, end)
                    behind = section.start() if section else end
                    first = self.text.count("\n", 0, place)
                    self.private.update(range(first, self.text.count("\n", 0, behind)))
            elif line and not line.startswith("//"):
                group = comment or group
                before = len(into)
                place = self.declaration(place, end, scope, public, comment, into)
                for declared in into[before:]:
                    declared.group = declared.group or ("" if declared.comment else group)
                comment = ""
                continue
            place += len(line)

    def declaration(self, begin: int, end: int, scope: str, public: bool, comment: str, into: list[Declaration]) -> int:
        """Reads one declaration and gives the place behind it."""
        place = begin
        while place < end and self.code[place] not in ";{":
            place = closing(self.code, place) + 1 if self.code[place] in "([" else place + 1
        text = self.code[begin:place]
        kind = TYPE.match(text)
        if self.code[place : place + 1] == ";" or place >= end:
            self.member(text, "", begin, scope, public, comment, into)
            return place + 1
        last = closing(self.code, place)
        if kind is None:
            body = self.code[place : last + 1]
            # The members of a constructor's list may be set by curly brackets, and a variable, too.
            behind = re.compile(r"\s*(;|,|\{)?").match(self.code, last + 1)
            self.member(text, body, begin, scope, public, comment, into)
            return behind.end() if behind and behind.group(1) == ";" else last + 1
        what, head = kind.groups()
        head = re.sub(r"\b(?:VRX_API|VRX_BRIDGE|MP_API|KOLT_API|[A-Z]+_(?:API|EXPORT))\s+", "", head)
        name = "".join(re.findall(r"^[\w:]*", head))
        # A base that a template makes of a class stands for that class, too.
        bases = re.findall(r"\b(?!public\b)[\w:]+", "".join(re.split(r"(?<!:):(?!:)", head, maxsplit=1)[1:]))
        inner_scope = "::".join(part for part in (scope, name) if part)
        if what == "namespace":
            self.read(place + 1, last, inner_scope, True, into)
            return last + 1
        made = Declaration("enum" if what.startswith("enum") else "class", name, text, begin, comment, public)
        made.scope, made.bases = scope, bases
        into.append(made)
        if made.kind == "enum":
            self.enumerators(place + 1, last, inner_scope, made)
        else:
            self.read(place + 1, last, inner_scope, what == "struct", made.inner)
        for each in all_of(made.inner):
            each.public = each.public and public
        return self.code.index(";", last) + 1

    def enumerators(self, begin: int, end: int, scope: str, into: Declaration) -> None:
        above = ""
        for line in re.compile(r".+").finditer(self.text, begin, end):
            words = line.group(0).strip()
            told = re.match(r"(\w+)[^/]*(?:///?<?(.*))?$", words)
            if words.startswith("///"):
                above += words[3:]
            elif told:
                place = line.start() + len(line.group(0)) - len(line.group(0).lstrip())
                comment = above + (told.group(2) or "")
                into.inner.append(Declaration("enumerator", told.group(1), words, place, comment.strip(), scope=scope))
                above = ""

    def member(
        self, text: str, body: str, begin: int, scope: str, public: bool, comment: str, into: list[Declaration]
    ) -> None:
        words = " ".join(text.split())
        if not words or words.startswith(("friend ", "extern template", "template class", "template struct")):
            return
        if re.match(r"(class|struct|enum class) [\w ]+$", words):
            return  # a forward declaration
        bracket = re.search(r"\(", words.replace("operator()", "operator__"))
        name = NAME.search(words[: bracket.start() + 1]) if bracket else None
        if name and not words.startswith("using "):
            made = Declaration("function", name.group(1), words, begin, comment, public, body, scope)
        else:
            value = re.search(r"(\w+)(?:\[\w*\])?(?: = .*)?$", words)
            alias = re.match(r"using (\w+) =", words)
            told = alias.group(1) if alias else value.group(1) if value else words
            trailing = self.text[begin + len(text) : self.text.find("\n", begin + len(text))]
            behind = trailing.split("///<", 1)[1] if "///<" in trailing else ""
            made = Declaration("value", told, words, begin, comment + behind, public, body, scope)
        into.append(made)


def all_of(declarations: list[Declaration]) -> list[Declaration]:
    """All declarations with what stands inside of them."""
    found = []
    for each in declarations:
        found.append(each)
        found += all_of(each.inner)
    return found
