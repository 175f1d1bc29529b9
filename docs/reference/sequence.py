"""Draws a sequence of messages as SVG from a small text:

    Host | Translator | shared memory     the lifelines, in this order
    Host -> Translator: Command           a message; --> draws it dashed
    Host -> Host: load()                  what one does by itself
    note Host: text                       a remark beside a lifeline; "note Host, Translator: text" over several
    each block                            a frame around what follows, up to "end"
"""

import html
import re
from dataclasses import dataclass, field

COLUMN = 240
ROW = 38
TOP = 56
MARGIN = 110
LETTER = 7.2  # the width of a letter, at most about


@dataclass
class Drawing:
    columns: dict[str, int] = field(default_factory=dict)
    parts: list[str] = field(default_factory=list)
    y: int = TOP + 30
    right: float = 0  # how far the texts reach
    frames: list[tuple[int, str]] = field(default_factory=list)

    def text(self, x: float, y: float, words: str, kind: str) -> None:
        self.parts.append(f'<text x="{x:g}" y="{y:g}" class="{kind}">{html.escape(words)}</text>')

    def line(self, x1: float, y1: float, x2: float, y2: float, kind: str) -> None:
        self.parts.append(f'<line x1="{x1:g}" y1="{y1:g}" x2="{x2:g}" y2="{y2:g}" class="{kind}"/>')

    def head(self, x: float, y: float, to_right: bool) -> None:
        back = x - 9 if to_right else x + 9
        self.parts.append(f'<polygon points="{x:g},{y:g} {back:g},{y - 4:g} {back:g},{y + 4:g}" class="head"/>')

    def message(self, source: str, target: str, words: str, dashed: bool) -> None:
        x1, x2 = self.columns[source], self.columns[target]
        kind = "message dashed" if dashed else "message"
        if x1 == x2:
            self.parts.append(f'<path d="M{x1} {self.y - 8} h34 v16 h-26" class="{kind}"/>')
            self.head(x1 + 1, self.y + 8, False)
            self.text(x1 + 42, self.y + 4, words, "own")
            self.right = max(self.right, x1 + 42 + len(words) * LETTER)
        else:
            self.line(x1, self.y, x2, self.y, kind)
            self.head(x2, self.y, x2 > x1)
            self.text((x1 + x2) / 2, self.y - 7, words, "label")
        self.y += ROW

    def note(self, over: list[str], words: str) -> None:
        places = [self.columns[name] for name in over]
        spread = max(places) - min(places)
        width = max(len(words) * LETTER + 16, spread + 40 if len(over) > 1 else 0)
        left = max(sum(places) / len(places) - width / 2, 8)
        self.parts.append(f'<rect x="{left:g}" y="{self.y - 16}" width="{width:g}" height="24" class="note"/>')
        self.text(left + width / 2, self.y, words, "label")
        self.right = max(self.right, left + width)
        self.y += ROW

    def end_frame(self, width: int) -> None:
        top, words = self.frames.pop()
        inset = 8 + 8 * len(self.frames)
        height = self.y - top - 14
        box = f'<rect x="{inset}" y="{top}" width="{width - 2 * inset}" height="{height}" class="frame"/>'
        self.parts.insert(0, box)
        self.text(inset + 8, top + 15, words, "each")
        self.y += 12


def draw(source: str) -> str:
    """The picture of a text; ValueError for a line that is none of the above."""
    lines = [line.strip() for line in source.strip().splitlines() if line.strip()]
    names = [name.strip() for name in lines[0].split("|")]
    # The columns are as wide as the longest message between two of them.
    between = re.findall(r"^[^:>]+? --?> [^:]+?: (.*)$", "\n".join(lines), re.MULTILINE)
    column = max([COLUMN] + [round(len(words) * LETTER) + 40 for words in between])
    drawing = Drawing({name: MARGIN + place * column for place, name in enumerate(names)})
    width = 2 * MARGIN + (len(names) - 1) * column
    for line in lines[1:]:
        message = re.fullmatch(r"([^:>]+?) (--?>) ([^:]+?): (.*)", line)
        note = re.fullmatch(r"note ([^:]+): (.*)", line)
        if line == "end":
            drawing.end_frame(width)
        elif line.startswith(("each ", "when ")):
            drawing.frames.append((drawing.y - 22, line))
            drawing.y += 24
        elif message:
            drawing.message(message.group(1), message.group(3), message.group(4), message.group(2) == "-->")
        elif note:
            drawing.note([name.strip() for name in note.group(1).split(",")], note.group(2))
        else:
            raise ValueError(f"no line of a sequence: {line}")
    height = drawing.y
    width = max(width, round(drawing.right) + 10)
    back = Drawing(drawing.columns)
    for name, x in drawing.columns.items():
        back.line(x, TOP, x, height - 8, "life")
        box = max(len(name) * 8.5 + 24, 90)
        back.parts.append(f'<rect x="{x - box / 2:g}" y="{TOP - 40}" width="{box:g}" height="32" rx="4" class="who"/>')
        back.text(x, TOP - 19, name, "who")
    inner = "".join(back.parts + drawing.parts)
    return f'<svg class="sequence" viewBox="0 0 {width} {height}" width="{width}" role="img">{inner}</svg>'


def with_drawings(page: str) -> str:
    """The page with each block of the language "sequence" as its picture."""
    pattern = re.compile(r"^```sequence\n(.*?)^```$", re.MULTILINE | re.DOTALL)
    return pattern.sub(lambda block: f"@htmlonly {draw(block.group(1))} @endhtmlonly", page)
