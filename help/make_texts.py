#!/usr/bin/env python3
"""Writes the topics' first sentences, what they say of lists' items, and drawings as tables for the library.

usage: make_texts.py HEADER
"""
import pathlib
import sys

import sources


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def write_table(header):
    # Numbers are inserted into pages only: the library's tips have them from its own tables.
    strings = sources.strings()
    found = sources.topics(strings | {"inch_to_millimetre": "…"})
    titles = {topic.name: topic.title for topic in found.values()}
    rows = []
    for topic in found.values():
        rows.append((topic.name, "", topic.head))
        rows += [(topic.name, label, part) for part in topic.parts for label in part.labels]
    lines = ["// Made by help/make_texts.py from help/topics; do not edit.", "constexpr TopicText kTopicTexts[] = {"]
    for name, label, part in rows:
        drawing = quoted("HELP_" + part.drawing) if part.drawing else "nullptr"
        lines.append(f"    {{{quoted(name)}, {quoted(label)}, {quoted(part.first_sentence)}, {drawing}}},")
    lines += ["};", "constexpr ItemText kItemTexts[] = {"]
    for name, label, part in rows:
        for item in sorted(set(strings.values())):
            if sentence := part.sentence_on(item, titles):
                lines.append(f"    {{{quoted(name)}, {quoted(label)}, {quoted(item)}, {quoted(sentence)}}},")
    pathlib.Path(header).write_text("\n".join(lines) + "\n};\n", "utf-8")


def main():
    try:
        write_table(sys.argv[1])
    except sources.SourceError as error:
        sys.exit(f"help: {error}")


if __name__ == "__main__":
    main()
