#!/usr/bin/env python3
"""Reads the help file back, as a viewer does, and tests what a reader finds in it.

usage: help_file_test.py TORVEX.chm FACTS

FACTS is what help_facts prints: what the tables say of every page and dialog.
"""
import collections
import html.parser
import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests"))
import counted

INTRODUCTION = "introduction.htm"
BUTTONS = {1, 2, 0xE146}  # OK, Cancel, Help

# Where geometry decides.
DRAWN = {
    "pelmar-_optionspopups_hidc_2axisopts_side_rough_step.htm": "step_over.png",
    "pelmar-_optionspopups_hidc_2axisopts_depth_rough_step.htm": "step_down.png",
    "pelmar-_optionspopups_hidc_2axisopts_corner_ang.htm": "corner_angle.png",
    "pelmar-_optionspopups_hidc_2axisopts_corner_clear.htm": "corner_clearance.png",
    "pelmar-_optionspopups_plunge_clearance_options_tab.htm": "plunge.png",
    "pelmar-_optionspopups_hidc_2axisopts_rapid_plane.htm": "clearance_plane.png",
    "pelmar-_optionspopups_hidc_3axisopts_scallop_dist.htm": "scallop.png",
    "pelmar-_holeprocessing_hidc_hp_major_dir.htm": "hole_rows.png",
    "pelmar-_holeprocessing_hidc_hp_step_dir.htm": "hole_rows.png",
    "pelmar-_options_hidd_lathe_cut_opt.htm": "lathe_axes.png",
}


class Page(html.parser.HTMLParser):
    """A page as a reader sees it: title, headings, running text, cells of tables, links."""

    def __init__(self, text):
        super().__init__()
        self.title, self.headings, self.blocks, self.rows = "", [], [], []
        self.links, self.anchors, self.pictures = [], [], []
        self.open = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag not in ("meta", "link", "img", "br"):
            self.open.append(tag)
        if tag == "br" and "td" in self.open:
            self.rows[-1][-1] += "\n"
        if tag == "tr":
            self.rows.append([])
        elif tag in ("td", "th"):
            self.rows[-1].append("")
        elif tag in ("p", "li"):
            self.blocks.append("")
        elif tag in ("h1", "h2"):
            self.headings.append("")
        elif tag == "img":
            self.pictures.append(attributes["src"])
        elif tag == "link":
            self.links.append(attributes["href"])
        if tag == "a":
            if "href" in attributes:
                self.links.append(attributes["href"])
            if "name" in attributes:
                self.anchors.append(attributes["name"])

    def handle_endtag(self, tag):
        if tag in self.open:
            while self.open.pop() != tag:
                pass

    def handle_data(self, data):
        if "title" in self.open:
            self.title += data
        elif "td" in self.open or "th" in self.open:
            self.rows[-1][-1] += data
        elif "h1" in self.open or "h2" in self.open:
            self.headings[-1] += data
        elif ("p" in self.open or "li" in self.open) and not data.startswith("Раздел файла настроек"):
            self.blocks[-1] += data

    @property
    def sentences(self):
        text = [" ".join(block.split()) for block in self.blocks]
        found = [sentence.strip() for block in text for sentence in re.split(r"(?<=[.!?])\s+", block)]
        return [sentence for sentence in found if re.search("[а-я]{3}", sentence)]


class Sitemap(html.parser.HTMLParser):
    """The contents or the index: its entries as (name, targets)."""

    def __init__(self, text):
        super().__init__()
        self.entries = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag == "object":
            self.entries.append(([], []))
        elif tag == "param":
            self.entries[-1][attributes["name"] == "Local"].append(attributes["value"])


def string_table():
    numbers = dict(re.findall(r"#define (IDS_\w+) (\d+)", (ROOT / "resources/resource.h").read_text("utf-8")))
    lines = re.findall(r'^    (IDS_\w+) "(.*)"', (ROOT / "resources/strings.rc").read_text("utf-8"), re.M)
    return {int(numbers[name]): text for name, text in lines}


def template_ids():
    """The control ids of every template."""
    numbers = dict(re.findall(r"#define (ID\w_\w+) (\d+)", (ROOT / "resources/resource.h").read_text("utf-8")))
    found = {}
    for script in (ROOT / "resources").glob("*.rc"):
        for name, body in re.findall(r"^(IDD_\w+) DIALOGEX.*?^\{(.*?)^\}", script.read_text("utf-8"), re.M | re.S):
            found[int(numbers[name])] = {int(numbers[word]) for word in re.findall(r"\w+", body) if word in numbers}
    return found


class HelpFile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.path = pathlib.Path(cls.folder.name)
        subprocess.run(["extract_chmLib", CHM, cls.folder.name], check=True, capture_output=True)
        cls.pages = {page.name: Page(page.read_text("utf-8")) for page in cls.path.glob("*.htm")}
        cls.windows = json.loads(pathlib.Path(FACTS).read_text("utf-8"))["windows"]
        cls.contents = Sitemap((cls.path / "contents.hhc").read_bytes().decode("cp1251")).entries
        cls.index = Sitemap((cls.path / "index.hhk").read_bytes().decode("cp1251")).entries
        cls.strings = string_table()
        cls.templates = template_ids()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def named_topics(self):
        """By the tables, and by whatever else the sources say."""
        named = {window["topic"] for window in self.windows}
        named |= {control["topic"] for window in self.windows for control in window["controls"] if control["topic"]}
        for folder in ("pages", "dialogs", "frame", "host"):
            for source in (ROOT / folder).rglob("*"):
                if source.suffix in (".cpp", ".h"):
                    named |= set(re.findall(r'"([\w-]+\.htm)"', source.read_text("utf-8")))
        return named

    def each_option(self):
        """Every control with an option that the window's template holds, with the topic that it leads to."""
        for window in self.windows:
            for control in window["controls"]:
                if control["option"] and control["id"] in self.templates[window["template"]]:
                    yield window, control, control["topic"] or window["topic"]

    def test_holds_every_topic_that_is_named_and_no_other(self):
        self.assertGreater(len(self.named_topics()), 100)
        self.assertEqual(self.named_topics() | {INTRODUCTION}, set(self.pages))

    def test_gives_every_topic_a_title_of_its_own(self):
        titles = collections.Counter(page.title for page in self.pages.values())
        self.assertEqual([], [title for title, count in titles.items() if count > 1])
        for name, page in self.pages.items():
            self.assertRegex(page.title, "^[А-Я0-9]", name)
            self.assertEqual(page.title, page.headings[0], name)

    def test_says_at_least_two_sentences_of_its_own_on_every_topic(self):
        for name, page in self.pages.items():
            self.assertGreaterEqual(len(page.sentences), 2, name)
            self.assertGreaterEqual(sum(map(len, page.sentences)), 120, name)

    def test_says_nothing_twice(self):
        places = collections.defaultdict(list)
        for name, page in self.pages.items():
            for sentence in page.sentences:
                places[sentence].append(name)
        self.assertEqual({}, {sentence: names for sentence, names in places.items() if len(names) > 1})

    def test_leaves_nothing_to_be_inserted(self):
        for name in self.pages:
            text = (self.path / name).read_text("utf-8")
            self.assertNotRegex(text, r"\{\w+\}|IDS_|None|TODO", name)

    def test_has_the_facts_of_every_option_on_its_topic(self):
        count = 0
        for window, control, topic in self.each_option():
            option = control["option"]
            rows = [row for row in self.pages[topic].rows if self.tells_of(row, window, control, topic)]
            where = f"{topic}: {window['section']} {option['label']} {option['key']}"
            self.assertTrue(rows, where)
            words = " ".join(" ".join(row) for row in rows)
            for fact in self.facts_of(control):
                self.assertIn(fact, words, where)
            count += 1
        self.assertGreater(count, 200)

    def tells_of(self, row, window, control, topic):
        option = control["option"]
        if option["key"]:
            key = option["key"] if topic == window["topic"] else f"[{window['section']}] {option['key']}"
            return any(key == line.strip() for cell in row for line in cell.split("\n"))
        return row[0].startswith(option["label"])

    def facts_of(self, control):
        option, facts = control["option"], []
        if option["kind"] == "switch":
            return ["включено" if option["on"] else "выключено"]
        if option["kind"] == "choice":
            items = [self.strings[item] if isinstance(item, int) else item
                     for item in control["items"] or option["items"]]
            own = [self.strings[item] if isinstance(item, int) else item for item in option["items"]]
            return [f"«{item}»" for item in items] + [f"«{own[int(option['inch']) - option['first']]}»"]
        facts += [f"{option[side]:.10g}" for side in ("low", "high") if option[side] is not None]
        facts.append(f"{option['inch']:.10g}")
        if option["scaling"] == "always":
            facts.append(f"{option['millimetre']:.10g}")
        facts += {"angle": ["градусы"], "percent": ["%"], "feed": ["дюйм/мин", "мм/мин"],
                  "length": ["дюймы", "миллиметры"], "count": ["целое число"], "number": ["число"]}[option["kind"]]
        if option["scaling"] == "while_constant":
            facts.append("число радиусов")
        return facts

    def test_speaks_of_every_option_that_has_no_topic_on_the_topic_of_its_window(self):
        for window, control, topic in self.each_option():
            if control["topic"]:
                continue
            headings = [label for heading in self.pages[topic].headings for label in heading.split(" / ")]
            self.assertIn(control["option"]["label"], headings, topic)

    def test_lists_the_options_of_a_window_on_its_topic(self):
        for window, control, topic in self.each_option():
            page = self.pages[window["topic"]]
            cells = [row[0].removesuffix(" (поле скрыто)") for row in page.rows]
            self.assertIn(control["option"]["label"], cells, window["topic"])
            if control["topic"]:
                self.assertTrue(any(link.split("#")[0] in (control["topic"], "") for link in page.links), topic)

    def test_has_headings_only_of_what_its_window_shows(self):
        shown = {text.replace("&", "").strip().removesuffix(":") for script in (ROOT / "resources").glob("*.rc")
                 for text in re.findall(r'^ +[A-Z]+ "([^"]+)"', script.read_text("utf-8"), re.M)}
        known = shown | {control["option"]["label"] for _, control, _ in self.each_option()}
        for name, page in self.pages.items():
            if name == INTRODUCTION:
                continue
            for heading in page.headings[1:]:
                if heading != "Данные" and not heading.startswith("Параметры"):
                    for label in heading.split(" / "):
                        self.assertTrue(label in known, f"{name}: no window shows \"{label}\"")

    def test_has_no_dead_link(self):
        for name, page in self.pages.items():
            for link in page.links + page.pictures:
                target, _, anchor = link.partition("#")
                target = target or name
                self.assertTrue((self.path / target).is_file(), f"{name}: {link}")
                if anchor:
                    self.assertIn(anchor, self.pages[target].anchors, f"{name}: {link}")

    def test_draws_where_geometry_decides(self):
        for name, drawing in DRAWN.items():
            self.assertIn(drawing, self.pages[name].pictures, name)
        for drawing in self.path.glob("*.png"):
            head = drawing.read_bytes()[:24]
            self.assertEqual(b"\x89PNG\r\n\x1a\n", head[:8], drawing.name)
            self.assertGreater(struct.unpack(">II", head[16:]), (200, 100), drawing.name)

    def test_lists_every_topic_once_in_the_contents_by_its_title(self):
        listed = {targets[0]: names[0] for names, targets in self.contents if targets}
        self.assertEqual({name: page.title for name, page in self.pages.items()}, listed)
        self.assertEqual(len(listed), len([targets for _, targets in self.contents if targets]))
        self.assertTrue(all(names and re.search("[А-Яа-я0-9]", names[0]) for names, _ in self.contents))

    def test_has_every_title_and_every_label_in_the_index(self):
        words = {names[0]: targets for names, targets in self.index}
        self.assertEqual(len(words), len(self.index))
        for name, page in self.pages.items():
            self.assertIn(name, words[page.title])
        for window, control, topic in self.each_option():
            self.assertIn(control["option"]["label"], words, topic)
        for names, targets in self.index:
            self.assertTrue(targets, names)
            for target in targets:
                self.assertIn(target, self.pages, names)
        order = [word.lower() for word in words]
        self.assertEqual(sorted(order), order)

    def test_is_russian_for_the_viewer(self):
        # The system's part names the language, and the window its title in the viewer's code page.
        system = (self.path / "#SYSTEM").read_bytes()
        entries, at = {}, 4
        while at + 4 <= len(system):
            code, length = struct.unpack_from("<HH", system, at)
            entries[code] = system[at + 4:at + 4 + length]
            at += 4 + length
        self.assertEqual(0x419, struct.unpack_from("<I", entries[4])[0])
        self.assertEqual("TORVEX: параметры ЧПУ", entries[3].rstrip(b"\0").decode("cp1251"))
        self.assertEqual(INTRODUCTION, entries[2].rstrip(b"\0").decode("cp1251"))
        self.assertEqual("contents.hhc", entries[0].rstrip(b"\0").decode("cp1251"))
        self.assertEqual("index.hhk", entries[1].rstrip(b"\0").decode("cp1251"))
        for name in self.pages:
            self.assertIn("charset=utf-8", (self.path / name).read_text("utf-8"))


if __name__ == "__main__":
    CHM, FACTS = sys.argv[1:]
    counted.main(HelpFile)
