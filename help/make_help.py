#!/usr/bin/env python3
"""Makes the help file from the topics' texts and from what the tables say.

usage: make_help.py FACTS DRAWINGS FOLDER

FACTS     what help_facts prints
DRAWINGS  the folder of the drawings as PNG
FOLDER    where the pages, the contents and the index are put, and TORVEX.chm is made
"""
import html
import itertools
import json
import pathlib
import re
import shutil
import struct
import subprocess
import sys

import sources

TITLE = "TORVEX: параметры ЧПУ"
VIEWER_ENCODING = "cp1251"  # contents, index and window title; pages are UTF-8

STYLE = """body { font-family: "Segoe UI", Tahoma, Verdana, sans-serif; font-size: 10pt; margin: 12px 16px; color: #202020; }
h1 { font-size: 15pt; color: #1f3f66; margin: 0 0 8px 0; }
h2 { font-size: 11.5pt; color: #1f3f66; margin: 18px 0 4px 0; }
p, ul { margin: 6px 0; }
a { color: #0b57a4; }
table { border-collapse: collapse; margin: 6px 0; }
th, td { border: 1px solid #b8c4d0; padding: 3px 7px; text-align: left; vertical-align: top; font-size: 9pt; }
th { background: #e8eef5; }
code { font-family: Consolas, "Courier New", monospace; font-size: 9pt; }
"""

PAGE = """<!DOCTYPE html PUBLIC "-//W3C//DTD HTML 4.01//EN" "http://www.w3.org/TR/html4/strict.dtd">
<html lang="ru">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8">
<title>{title}</title>
<link rel="stylesheet" type="text/css" href="help.css">
</head>
<body>
<h1>{title}</h1>
{body}
</body>
</html>
"""


def escaped(text):
    return html.escape(text, quote=True)


def number(value):
    return f"{value:.10g}"


# ---- facts in words ----


class Words:
    """Puts what the tables say into words. `strings`: the string table by number."""

    UNITS = {"angle": "градусы", "percent": "%", "count": "целое число", "number": "число", "choice": "", "switch": ""}

    def __init__(self, strings):
        self.strings = strings

    def item(self, item):
        return self.strings[item] if isinstance(item, int) else item

    def items(self, items):
        return [self.item(item) for item in items]

    def values(self, option, items):
        if option["kind"] == "switch":
            return "включено, выключено"
        if option["kind"] == "choice":
            return ", ".join(f"«{text}»" for text in self.items(items or option["items"]))
        low, high = option["low"], option["high"]
        if low is None and high is None:
            return "любое целое число" if option["whole"] else "любое число"
        if high is None:
            return f"от {number(low)}"
        return f"от {number(low)} до {number(high)}"

    def unit(self, option):
        kind, scaling = option["kind"], option["scaling"]
        if kind == "feed":
            return "дюйм/мин или мм/мин"
        if kind == "length":
            length = "дюймы или миллиметры"
            return {"always": length,
                    "while_constant": f"«{self.constant}»: {length}; «{self.radius}»: число радиусов",
                    "never": length + "; при смене единиц число остается прежним"}[scaling]
        if kind == "angle" and option["whole"]:
            return "градусы, целое число"
        return self.UNITS[kind]

    def at_start(self, option):
        """The factory value in inch and in millimetre; one text where they are the same."""
        if option["kind"] == "switch":
            return ["включено" if option["on"] else "выключено"]
        if option["kind"] == "choice":
            position = int(option["inch"]) - option["first"]
            return [f"«{self.items(option['items'])[position]}»"]
        inch, millimetre = number(option["inch"]), number(option["millimetre"])
        if option["scaling"] == "never" or inch == millimetre:
            return [inch]
        per_minute = "/мин" if option["kind"] == "feed" else ""
        return [f"{inch} дюйм{per_minute}", f"{millimetre} мм{per_minute}"]


# ---- windows ----


class Entry:
    """What a window shows beside one label: a field, its type, a row of buttons."""

    def __init__(self, window, label):
        self.window, self.label = window, label
        self.controls = []  # of the tables
        self.is_hidden = True

    @property
    def topic(self):
        """Of the first control that has one."""
        return next((c["topic"] for c in self.controls if c["topic"]), None)


class Window:
    """A page or a dialog, with what it shows."""

    def __init__(self, facts, templates):
        template = templates[facts["template"]]
        self.topic, self.section = facts["topic"], facts["section"]
        self.caption = template.caption if template.caption != "Dialog" else ""
        self.operation = facts["operation"]
        self.controls = facts["controls"]
        rows = {control["id"]: control for control in facts["controls"]}
        self.buttons = [rows[c.number] for c in template.controls
                        if c.number in sources.BUTTONS_OF_A_DIALOG and c.number in rows]
        self.entries = []
        for shown in template.controls:
            if shown.number in sources.BUTTONS_OF_A_DIALOG or not shown.label:
                continue
            row = rows.get(shown.number)
            label = row["option"]["label"] if row and row["option"] else shown.label
            entry = next((e for e in self.entries if e.label == label), None)
            if not entry:
                entry = Entry(self, label)
                self.entries.append(entry)
            entry.is_hidden = entry.is_hidden and shown.is_hidden
            if row:
                entry.controls.append(row)
        self.absent = [control for control in facts["controls"] if control["absent"]]

    @property
    def name(self):
        """For a reader: the operation where the caption does not tell pages apart."""
        return self.title or self.operation or self.caption


# ---- tables ----


def table(head, rows):
    if not rows:
        return ""
    cells = lambda tag, row: "".join(f"<{tag}>{cell}</{tag}>" for cell in row)
    lines = ["<table>", f"<tr>{cells('th', head)}</tr>"]
    return "\n".join(lines + [f"<tr>{cells('td', row)}</tr>" for row in rows] + ["</table>"])


class Maker:
    def __init__(self, facts, drawings, folder):
        strings = sources.strings()
        numbers = sources.ids()
        self.words = Words({numbers[name]: text for name, text in strings.items()})
        self.words.constant, self.words.radius = strings["IDS_CONSTANT"], strings["IDS_TOOL_RADIUS"]
        self.topics = sources.topics(strings | {"inch_to_millimetre": number(facts["inch_to_millimetre"])})
        templates = sources.templates()
        self.windows = [Window(window, templates) for window in facts["windows"]]
        self.drawings, self.folder = drawings, folder
        self.name_windows()

    def name_windows(self):
        """A window is called as its topic is; of several with one topic the others are called by their operation."""
        seen = set()
        for window in self.windows:
            window.title = None
            if window.topic not in seen and window.topic in self.topics:
                window.title = self.topics[window.topic].title
            elif window.topic in self.topics:
                window.title = window.operation
            seen.add(window.topic)

    # ---- facts of a topic ----

    def fact_rows(self, entry, control):
        """One option of a control, as cells: field, values, unit, factory value, key."""
        option = control["option"]
        start = "<br>".join(map(escaped, self.words.at_start(option)))
        key = f"<code>{option['key']}</code>" if option["key"] else "не сохраняется"
        if not entry.window.section:
            key = "в файлах диалога"
        return [escaped(self.words.values(option, control["items"])), escaped(self.words.unit(option)), start, key]

    def facts_of(self, name):
        """The facts of all controls that lead to a topic, equal ones in one row."""
        gathered, plain = {}, {}
        for window in self.windows:
            for entry in window.entries:
                for control in entry.controls:
                    if control["topic"] != name:
                        continue
                    where = escaped(window.name) + (" (поле скрыто)" if entry.is_hidden else "")
                    if control["option"]:
                        *cells, key = self.fact_rows(entry, control)
                        key = key.replace("<code>", f"<code>[{window.section}] ")
                        row = gathered.setdefault((entry.label, *cells), {})
                        row.setdefault(where, []).append(key)
                    else:
                        items = ", ".join(f"«{text}»" for text in self.words.items(control["items"]))
                        plain.setdefault((entry.label, items), []).append(where)
            for button in window.buttons:
                if button["topic"] == name:
                    plain.setdefault((self.topics[name].title, ""), []).append(escaped(window.name))
            for control in window.absent:
                if control["topic"] == name:
                    plain.setdefault((self.topics[name].title, "в этом окне поля нет"), []).append(escaped(window.name))
        rows = []
        for (label, values, unit, start), places in gathered.items():
            wheres = "<br>".join(places)
            keys = "<br>".join(dict.fromkeys(itertools.chain.from_iterable(places.values())))
            rows.append([escaped(label), values, unit, start, wheres, keys])
        facts = table(["Поле", "Значения", "Единица", "Заводское значение", "Где", "Ключ"], rows)
        others = [[escaped(label), escaped(items), "<br>".join(dict.fromkeys(wheres))]
                  for (label, items), wheres in plain.items()]
        return facts + table(["Что", "Значения", "Где"], others)

    def options_of(self, window):
        """The list of what a window shows, with links."""
        rows = []
        for entry in window.entries:
            link = self.link_to(entry.topic or window.topic, entry.label, window.topic)
            name = f'<a href="{link}">{escaped(entry.label)}</a>' if link else escaped(entry.label)
            note = " (поле скрыто)" if entry.is_hidden else ""
            options = {c["option"]["key"] or c["option"]["label"]: c for c in entry.controls if c["option"]}
            if not options:
                items = [f"«{text}»" for c in entry.controls for text in self.words.items(c["items"])]
                rows.append([name + note, escaped(", ".join(items)), "", "", ""])
            for position, control in enumerate(options.values()):
                rows.append([name + note if position == 0 else self.second_link(window, entry, control),
                             *self.fact_rows(entry, control)])
        place = f"<p>Раздел файла настроек: <code>[{window.section}]</code></p>\n" if window.section else ""
        return place + table(["Параметр", "Значения", "Единица", "Заводское значение", "Ключ"], rows)

    def second_link(self, window, entry, control):
        """To the topic of what stands beside a field, where it has one of its own."""
        topic = control["topic"]
        if not topic or topic in (entry.topic, window.topic):
            return ""
        return f'<a href="{topic}">{escaped(self.topics[topic].title)}</a>'

    def link_to(self, name, label, on):
        """From the page `on`; nothing where that page itself is all there is."""
        part = self.topics[name].part_of(label)
        place = f"#{anchor(part)}" if part else ""
        return place if name == on else name + place

    # ---- pages ----

    def body_of(self, topic):
        parts = [self.to_html(topic, topic.head.markdown)]
        windows = [window for window in self.windows if window.topic == topic.name]
        for window in windows:
            heading = "Параметры" if len(windows) == 1 else f"Параметры: {window.operation or window.caption}"
            options = self.options_of(window)
            if options:
                parts.append(f"<h2>{escaped(heading)}</h2>\n{options}")
        for part in topic.parts:
            parts.append(f'<h2><a name="{anchor(part)}"></a>{escaped(part.heading)}</h2>\n'
                         + self.to_html(topic, part.markdown))
        # What a page's own topic says of its options stands in its list.
        facts = "" if windows else self.facts_of(topic.name)
        if facts:
            parts.append(f"<h2>Данные</h2>\n{facts}")
        return "\n".join(parts)

    def to_html(self, topic, markdown):
        text = re.sub(r"\[\]\(([^)#]+)\)", lambda link: f"[{self.title_of(topic, link[1])}]({link[1]})", markdown)
        text = re.sub(r"\]\((\w+)\)", r"](\1.png)", text)
        return subprocess.run(["cmark", "--to", "html"], input=text, capture_output=True, check=True,
                              encoding="utf-8").stdout

    def title_of(self, topic, name):
        if name not in self.topics:
            raise sources.SourceError(f"{topic.name}: leads to {name}, which is no topic")
        return self.topics[name].title

    # ---- contents and index ----

    def check_named(self):
        named = {sources.INTRODUCTION}
        for window in self.windows:
            named |= {window.topic} | {control["topic"] for control in window.controls if control["topic"]}
        lacking, idle = named - set(self.topics), set(self.topics) - named
        if lacking or idle:
            raise sources.SourceError(f"topics without a text: {sorted(lacking)}; texts that nothing names: {sorted(idle)}")
        listed = [entry for _, entry in sources.contents() if entry.endswith(".htm")]
        if sorted(listed) != sorted(self.topics):
            odd = set(listed) ^ set(self.topics) or {entry for entry in listed if listed.count(entry) > 1}
            raise sources.SourceError(f"contents.txt must name each topic once: {sorted(odd)}")

    def contents(self):
        lines, depth = [], -1
        for level, entry in sources.contents():
            while depth < level:
                lines.append("<UL>")
                depth += 1
            while depth > level:
                lines.append("</UL>")
                depth -= 1
            is_topic = entry.endswith(".htm")
            lines.append(sitemap(self.topics[entry].title if is_topic else entry, [entry] if is_topic else []))
        return sitemap_file(lines + ["</UL>"] * (depth + 1))

    def index(self):
        """Titles, keywords, and the labels of what a window's own topic tells of."""
        words = {}
        for topic in self.topics.values():
            for word in [topic.title, *topic.keywords, *(label for part in topic.parts for label in part.labels)]:
                targets = words.setdefault(word, [])
                if topic.name not in targets:
                    targets.append(topic.name)
        for window in self.windows:
            for entry in window.entries:
                target = entry.topic or window.topic
                if target not in words.setdefault(entry.label, []):
                    words[entry.label].append(target)
        order = sorted(words, key=lambda word: (word.lower().replace("ё", "е"), word))
        return sitemap_file(["<UL>"] + [sitemap(word, words[word], self.topics) for word in order] + ["</UL>"])

    # ---- the file ----

    def make(self):
        self.check_named()
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        (self.folder / "help.css").write_text(STYLE, "utf-8")
        for topic in self.topics.values():
            page = PAGE.format(title=escaped(topic.title), body=self.body_of(topic))
            (self.folder / topic.name).write_text(page, "utf-8")
        used = {part.drawing for topic in self.topics.values() for part in [topic.head, *topic.parts] if part.drawing}
        for drawing in sorted(used):
            shutil.copy(self.drawings / f"{drawing}.png", self.folder)
        for name, text in (("contents.hhc", self.contents()), ("index.hhk", self.index()),
                           ("help.hhp", self.project(sorted(used)))):
            (self.folder / name).write_bytes(text.replace("\n", "\r\n").encode(VIEWER_ENCODING))
        compile_help(self.folder)

    def project(self, drawings):
        files = ["help.css", *sorted(self.topics), *(f"{drawing}.png" for drawing in drawings)]
        window = f'"{TITLE}","contents.hhc","index.hhk","{sources.INTRODUCTION}","{sources.INTRODUCTION}"'
        # No full-text search: the compiler's indexer knows Latin letters only, and ends on other texts.
        return "\n".join(["[OPTIONS]", "Compatibility=1.1 or later", "Compiled file=TORVEX.chm",
                          "Contents file=contents.hhc", "Index file=index.hhk", "Default Window=main",
                          f"Default topic={sources.INTRODUCTION}", "Language=0x419 Russian", f"Title={TITLE}",
                          "Full-text search=No", "Binary TOC=No", "Binary Index=No", "", "[WINDOWS]",
                          f"main={window},,,,,0x62520,,0x304e,,,,,,,,0", "", "[FILES]", *files, ""])


def anchor(part):
    """Latin, so that every viewer finds it."""
    return "part-" + "".join(f"{ord(letter):x}" if not letter.isascii() else letter if letter.isalnum() else "-"
                             for letter in part.labels[0])


def sitemap(name, targets, titles=None):
    """An entry of the contents or the index. Several targets are offered by their titles."""
    lines = ['<LI><OBJECT type="text/sitemap">', f'<param name="Name" value="{escaped(name)}">']
    for target in targets:
        if titles:
            lines.append(f'<param name="Name" value="{escaped(titles[target].title)}">')
        lines.append(f'<param name="Local" value="{target}">')
    return "\n".join(lines + ["</OBJECT>"])


def sitemap_file(lines):
    head = ['<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">', "<HTML>", "<HEAD>",
            '<meta http-equiv="Content-Type" content="text/html; charset=windows-1251">', "</HEAD>", "<BODY>"]
    return "\n".join(head + lines + ["</BODY>", "</HTML>", ""])


def compile_help(folder):
    done = subprocess.run(["chmcmd", "help.hhp"], cwd=folder, capture_output=True, encoding="utf-8", errors="replace")
    made = folder / "TORVEX.chm"
    if done.returncode != 0 or "exception" in done.stdout or not made.exists() or not made.stat().st_size:
        raise sources.SourceError(f"chmcmd made no help file:\n{done.stdout}{done.stderr}")
    data = bytearray(made.read_bytes())
    forget_the_hour(data)
    begin_at_the_first_chunk(data)
    made.write_bytes(data)


def forget_the_hour(data):
    """The hour of the build is told twice; without it the same texts make the same file."""
    data[16:20] = bytes(4)
    system = bytes([3, 0, 0, 0, 10, 0, 4, 0])
    if data.count(system) == 1:
        at = data.index(system) + len(system)
        data[at:at + 4] = bytes(4)


def begin_at_the_first_chunk(data):
    """The compiler names the last chunk of the directory as its first one: who lists the files then misses most."""
    header = data.index(b"ITSP")
    length, _, chunk_length = struct.unpack_from("<III", data, header + 8)
    first_chunk = data[header + length:header + length + chunk_length]
    if first_chunk[:4] != b"PMGL" or struct.unpack_from("<i", first_chunk, 12) != (-1,):
        raise sources.SourceError("the help file's directory does not begin with its first chunk")
    struct.pack_into("<I", data, header + 32, 0)


def main():
    facts, drawings, folder = sys.argv[1:]
    try:
        Maker(json.loads(pathlib.Path(facts).read_text("utf-8")), pathlib.Path(drawings),
              pathlib.Path(folder)).make()
    except sources.SourceError as error:
        sys.exit(f"help: {error}")


if __name__ == "__main__":
    main()
