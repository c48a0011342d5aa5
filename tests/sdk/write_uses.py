#!/usr/bin/env python3
"""Writes a source that takes the address of every function that the public headers declare and do not define.

usage: write_uses.py INCLUDE OUTPUT

The headers are regular: one declaration ends with ";", a class begins with "class PELMAR_API Name", a namespace of the
library's own is pelmar. What it cannot read it says, and fails.
"""

import pathlib
import re
import sys

SKIPPED = re.compile(r"^(using|friend|typedef|enum|static_assert|DECLARE_|template|extern \"C\"|#)")
FREE = re.compile(r"^PELMAR_API (?P<result>[\w:&*<> ]+?[&* ])(?P<name>\w+)\((?P<arguments>.*)\)$")
CONSTRUCTOR = re.compile(r"^(explicit )?(?P<name>\w+)\((?P<arguments>.*)\)$")
LONE = re.compile(r"^PELMAR_API (?P<end>~)?(?P<name>\w+)\(\)$")
METHOD = re.compile(r"^(virtual |(?P<static>static ))?(?P<result>[\w:&*<> ]+?[&* ])(?P<name>\w+)\((?P<arguments>.*)\)"
                    r"(?P<const> const)?(?P<rest>( override| = 0)*)$")


def without_comments(text):
    return re.sub(r"//[^\n]*", "", text)


def without_defaults(arguments):
    return re.sub(r" = [^,]+", "", arguments)


def types_of(arguments):
    """The declared parameters without their names."""
    parts = [part.strip() for part in without_defaults(arguments).split(",") if part.strip()]
    types = []
    for part in parts:
        array = re.fullmatch(r"(.+?) ?(\w+)((?:\[\d+\])+)", part)
        if array:  # a parameter that is an array is a pointer to its first row
            rows = re.sub(r"^\[\d+\]", "", array[3])
            types.append(f"{array[1]} (*){rows}" if rows else f"{array[1]}*")
            continue
        named = re.fullmatch(r"(.+[&* ])(\w+)", part)
        types.append(part if not named or part in ("unsigned char",) else named[1].strip())
    return ", ".join(types)


def declarations(text):
    """Each declaration with the namespace and the exported class that it stands in."""
    scopes = []
    pending = ""
    for character in without_comments(text):
        if character == "{":
            head = " ".join(pending.split())
            pending = ""
            scopes.append(head)
        elif character == "}":
            scopes.pop()
            pending = ""
        elif character == ";":
            yield list(scopes), " ".join(pending.split())
            pending = ""
        else:
            pending += character
            if re.search(r"(public|protected|private):$", pending):
                pending = ""
            macro = re.search(r"DECLARE_\w+\([^)]*\)$", pending)
            if macro:
                pending = pending[:macro.start()]


def class_of(scopes):
    for scope in reversed(scopes):
        found = re.match(r"class PELMAR_API (\w+)", scope)
        if found:
            return found[1]
    return None


def is_for_hosts(owner):
    """The bases of the library's pages and dialogs have no constructor for others."""
    return not owner.startswith("pelmar::")


def main():
    include, output = map(pathlib.Path, sys.argv[1:])
    free, methods, constructors, scoped, unread = [], {}, [], [], []
    for header in sorted((include / "PelmarDlgs").rglob("*.h")):
        # Preprocessor lines end with the line, not with ";".
        text = re.sub(r"^#[^\n]*(\\\n[^\n]*)*", "", header.read_text(encoding="utf-8"), flags=re.M)
        for scopes, declaration in declarations(text):
            owner = class_of(scopes)
            inside = [scope for scope in scopes if scope]
            space = "pelmar::" if any(scope.startswith("namespace pelmar") for scope in inside) else ""
            if not declaration or SKIPPED.match(declaration) or "(" not in declaration:
                continue
            if owner and re.match(r"class PELMAR_API", scopes[-1]):
                declaration = declaration.removesuffix(" = default")
                name = space + owner
                made = CONSTRUCTOR.match(declaration)
                found = METHOD.match(declaration)
                if made and made["name"] == owner:
                    needed = [part for part in made["arguments"].split(",") if part and "=" not in part]
                    constructors.append((name, needed))
                elif declaration.startswith(f"~{owner}("):
                    pass # whoever deletes an object uses it
                elif not found:
                    unread.append(declaration)
                elif "= 0" not in found["rest"]:
                    methods.setdefault(name, []).append(found)
            elif (lone := LONE.match(declaration)) and scopes[-1] == f"class {lone['name']}":
                if not lone["end"]:  # what lasts for a scope is exported by its two ends
                    scoped.append(space + lone["name"])
            elif declaration.startswith("PELMAR_API"):
                found = FREE.match(declaration)
                (free.append((space, found)) if found else unread.append(declaration))
    if unread:
        sys.exit("not read: " + "; ".join(unread))

    lines = ["#include <cstdio>", "", "#include <PelmarDlgs.h>", "", "using namespace pelmar;", "", "namespace {", "", "int g_uses = 0;", "",
             "template <class Function> void Use(Function function)", "{",
             "    if (function != nullptr)", "        ++g_uses;", "}", ""]
    calls = []
    for owner, found in methods.items():
        name = owner.replace("::", "_")
        lines += [f"struct Of_{name} : {owner} {{", "    static void UseAll()", "    {"]
        for method in found:
            arguments = types_of(method["arguments"])
            result = method["result"].strip()
            pointer = "*" if method["static"] else f"{owner}::*"
            const = " const" if method["const"] else ""
            lines.append(f"        Use(static_cast<{result} ({pointer})({arguments}){const}>"
                         f"(&Of_{name}::{method['name']}));")
        lines += ["    }", "};", ""]
        calls.append(f"    Of_{name}::UseAll();")
    for space, function in free:
        calls.append(f"    Use(static_cast<{function['result'].strip()} (*)({types_of(function['arguments'])})>"
                     f"(&{space}{function['name']}));")
    for owner, arguments in constructors:
        if is_for_hosts(owner):
            values = ", ".join(f"{kind}{{}}" for kind in types_of(",".join(arguments)).split(", ") if kind)
            calls.append(f"    if (g_uses < 0) // links, and makes none\n        delete new {owner}({values});")
    for name in scoped:
        calls.append(f"    if (g_uses < 0)\n        delete new {name};")
    lines += ["} // namespace", "", "int main()", "{", *calls,
              '    std::printf("%d declared functions link\\n", g_uses);', "}", ""]
    output.write_text("\n".join(lines), encoding="utf-8")
    print(f"{len(free)} functions, {sum(map(len, methods.values()))} members of {len(methods)} classes, "
          f"{len(constructors) + len(scoped)} constructors")


main()
