"""The files that are opened: pages with all that a colouring has to tell apart, the same in every run."""
import pathlib
import random

WORDS = ("harbour light a of the ledger &amp; caf\u00e9 winter to in morning, paper route &nbsp; northern stone is river. and "
         "table").split()
DEEPEST = 8
TYPED = "tag wri ghter "  # of small letters and blanks, none of which opens a list of completions


def words(chance: random.Random, count: int) -> str:
    return " ".join(chance.choices(WORDS, k=count))


def line_of(chance: random.Random) -> str:
    """A line that leaves no element open."""
    number = chance.randrange(1000)
    return chance.choice((
        f"<p>{words(chance, 9)} <b>{words(chance, 2)}</b> {words(chance, 3)}</p>",
        f"<p class=\"box{number}\">{words(chance, 12)}</p>",
        f"<!-- {words(chance, 5)} > kept -->",
        f"<a href=\"http://www.example.org/{number}/page{number}.htm\">{words(chance, 2)}</a> mailto:desk{number}@example.org",
        f"<tr><td align=\"left\" nowrap>{words(chance, 2)}</td><td width={number}>{words(chance, 2)}</td></tr>",
        f"<style> .box{number} {{ margin: {number}px; color: #{number * 1000:06x}; }} </style>",
        f"<script>for (var i = 0; i < {number}; i++) {{ total += i > 3 ? \"{words(chance, 1)}\" : '<br>'; }}</script>",
    ))


def page(characters: int) -> str:
    """A page of about so many characters, at most 500 more, in boxes within boxes."""
    chance = random.Random(7)
    lines = ["<!DOCTYPE html>", f"<html><head><title>{words(chance, 4)}</title></head>", "<body>"]
    size = sum(len(line) + 2 for line in lines)
    depth = 0
    while size < characters or depth:
        if depth and (chance.random() < 0.1 or depth == DEEPEST or size >= characters):
            depth -= 1
            line = "  " * depth + "</div>"
        elif chance.random() < 0.1:
            line = "  " * depth + f"<div id=part{chance.randrange(9999)}>"
            depth += 1
        else:
            line = "  " * depth + line_of(chance)
        lines.append(line)
        size += len(line) + 2
    return "\r\n".join(lines + ["</body></html>", ""])


def single_line(characters: int) -> str:
    return "<p class=\"a\">some words</p> " * (characters // 27)


def write_all(folder: pathlib.Path) -> dict[str, pathlib.Path | None]:
    """What a start opens, by the name that the table has for it."""
    # Up to 64,000 characters, ours colours a page as soon as it is open. Others begin with what is on show.
    texts = {"64,000 characters": page(63_400), "1 MB": page(1_000_000), "10 MB": page(10_000_000),
             "a line of 1 MB": single_line(1_000_000)}
    files: dict[str, pathlib.Path | None] = {"no file": None}
    for number, (name, text) in enumerate(texts.items()):
        files[name] = folder / f"page{number}.htm"
        files[name].write_text(text, encoding="utf-8", newline="")
    return files
