"""What the help file is made from: the topics' texts, the resource scripts and what the tables say.

A topic is one Markdown file in help/topics, named like the topic. docs/help.md tells a writer what may stand in it.
"""
import pathlib
import re

HERE = pathlib.Path(__file__).resolve().parent
RESOURCES = HERE.parent / "resources"
INTRODUCTION = "introduction.htm"

KEYWORDS = "Ключевые слова:"
BUTTONS_OF_A_DIALOG = {1, 2, 0xE146}  # OK, Cancel, Help


class SourceError(Exception):
    """A text that cannot become a page, with its file."""


# ---- resource scripts ----


def ids():
    text = (RESOURCES / "resource.h").read_text("utf-8")
    return {name: int(number) for name, number in re.findall(r"^#define (\w+) (\d+)", text, re.M)} | {
        "IDOK": 1, "IDCANCEL": 2, "ID_HELP": 0xE146}


def strings():
    """The string table, by name."""
    text = (RESOURCES / "strings.rc").read_text("utf-8")
    return {name: value.replace('""', '"') for name, value in re.findall(r'^    (IDS_\w+) "((?:[^"]|"")*)"', text, re.M)}


class TemplateControl:
    def __init__(self, number, label, is_hidden):
        self.number, self.label, self.is_hidden = number, label, is_hidden


class Template:
    def __init__(self, caption, controls):
        self.caption, self.controls = caption, controls


def plain_label(text):
    return text.replace("&", "").strip().removesuffix(":")


STATEMENT = re.compile(r'^ +(?P<kind>[A-Z]+) +(?:"(?P<text>(?:[^"]|"")*)", *)?(?P<id>\w+)(?P<rest>.*)$')


def templates():
    """The dialog templates by their ids: what a control shows, or the static text before it, is its label."""
    numbers = ids()
    found = {}
    for script in sorted(RESOURCES.glob("*.rc")):
        text = re.sub(r",\n +", ", ", script.read_text("utf-8"))
        for name, head, body in re.findall(r"^(IDD_\w+) DIALOGEX(.*?)^\{(.*?)^\}", text, re.M | re.S):
            caption = re.search(r'CAPTION "(.*)"', head)
            controls, before = [], ""
            for line in body.splitlines():
                statement = STATEMENT.match(line)
                if not statement:
                    continue
                own = plain_label(statement["text"] or "")
                if statement["kind"] in ("LTEXT", "CTEXT", "RTEXT"):
                    before = own or before
                if statement["kind"] in ("LTEXT", "CTEXT", "RTEXT", "GROUPBOX"):
                    continue
                label = own if own and own != "..." else before
                is_hidden = "HIDDEN" in statement["rest"] or "NOT WS_VISIBLE" in statement["rest"]
                controls.append(TemplateControl(numbers[statement["id"]], label, is_hidden))
            found[numbers[name]] = Template(caption[1] if caption else "", controls)
    return found


# ---- topics ----


class Part:
    """A topic's head, or what stands below one of its headings."""

    def __init__(self, heading):
        self.heading, self.lines = heading, []

    @property
    def markdown(self):
        return "\n".join(self.lines).strip()

    @property
    def labels(self):
        return [label.strip() for label in self.heading.split(" / ")]

    @property
    def drawing(self):
        found = re.search(r"^!\[[^\]]*\]\((\w+)\)$", self.markdown, re.M)
        return found[1] if found else None

    @property
    def paragraphs(self):
        """Without lists and drawings."""
        return [p for p in re.split(r"\n\s*\n", self.markdown) if p and not re.match(r"[-!|#]", p)]

    def sentences(self, titles=None):
        """Without marks; links have words of their own or the other topic's title, where the titles are given."""
        titled = [re.sub(r"\[\]\(([^)]*)\)", lambda link: f"«{titles[link[1]]}»" if titles else "", p)
                  for p in self.paragraphs]
        # An item's text may hold a full stop itself.
        sentence = re.compile(r"(?:«[^»]*»|[.!?](?=\S)|[^.!?«])+[.!?]?")
        return [found.strip() for p in titled for found in sentence.findall(plain(p))]

    @property
    def first_sentence(self):
        return self.sentences()[0] if self.paragraphs else ""

    def sentence_on(self, item, titles):
        """The first sentence that says something of a list's item; none where no sentence names it."""
        return next((sentence for sentence in self.sentences(titles) if f"«{item}»" in sentence), None)


def plain(markdown):
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", markdown)
    return " ".join(text.replace("**", "").replace("`", "").split())


class Topic:
    def __init__(self, name, title, keywords, head, parts):
        self.name, self.title, self.keywords, self.head, self.parts = name, title, keywords, head, parts

    def part_of(self, label):
        return next((part for part in self.parts if label in part.labels), None)


def read_topic(path, inserts):
    def inserted(match):
        if match[1] not in inserts:
            raise SourceError(f"{path}: nothing to insert for {match[0]}")
        return inserts[match[1]]

    lines = re.sub(r"\{(\w+)\}", inserted, path.read_text("utf-8")).splitlines()
    if not lines or not lines[0].startswith("# "):
        raise SourceError(f"{path}: the first line must be the title, \"# …\"")
    title, keywords, head, parts = lines[0][2:].strip(), [], Part(""), []
    for line in lines[1:]:
        if line.startswith("## "):
            parts.append(Part(line[3:].strip()))
        elif line.startswith(KEYWORDS):
            keywords += [word.strip() for word in line.removeprefix(KEYWORDS).split(";") if word.strip()]
        else:
            (parts[-1] if parts else head).lines.append(line)
    # A first sentence stands by itself in a tip, where no other topic's title can be put in.
    for part in [head, *parts] if path.stem + ".htm" != INTRODUCTION else []:
        if part.paragraphs and re.search(r"^[^.!?]*\[\]\(", part.paragraphs[0]):
            raise SourceError(f"{path}: the first sentence has a link without words of its own")
    return Topic(path.stem + ".htm", title, keywords, head, parts)


def topics(inserts):
    """All topics by name. `inserts`: what a text may insert by its name in braces."""
    return {topic.name: topic for topic in
            (read_topic(path, inserts) for path in sorted((HERE / "topics").glob("*.md")))}


def contents():
    """The contents tree as (depth, heading or topic)."""
    entries = []
    for line in (HERE / "contents.txt").read_text("utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            entries.append(((len(line) - len(line.lstrip())) // 4, line.strip()))
    return entries
