#!/usr/bin/env python3
"""Write src/html/src/entity_tables.inc from the published list of named character references.

    tools/make_entity_tables.py > src/entity_tables.inc

Each table is a text of lines `name=CODE;INDEX` or `name=CODE1,CODE2;INDEX`, sorted by name. Codes and the index, which
is the entry's place when sorted by code point and then by name, are in base 36.
"""
import pathlib

DIGITS = "0123456789abcdefghijklmnopqrstuvwxyz"
LIST = pathlib.Path(__file__).with_name("named_character_references.tsv")
XML_NAMES = ("amp", "gt", "lt", "quot")


def base36(number):
    text = DIGITS[number % 36]
    while number >= 36:
        number //= 36
        text = DIGITS[number % 36] + text
    return text


def read_list():
    """All names, split by whether the list gives them with or without the semicolon."""
    closed, open_ended = {}, {}
    for line in LIST.read_text(encoding="utf-8").splitlines():
        if line.startswith("#"):
            continue
        name, codes = line.split("\t")
        points = [int(code, 16) for code in codes.split()]
        if name.endswith(";"):
            closed[name[:-1]] = points
        else:
            open_ended[name] = points
    return closed, open_ended


def table(entries):
    by_code = sorted(entries, key=lambda name: (entries[name][0], name))
    place = {name: base36(index) for index, name in enumerate(by_code)}
    return ["%s=%s;%s" % (name, ",".join(map(base36, entries[name])), place[name]) for name in sorted(entries)]


def emit(constant, lines):
    print("constexpr std::string_view %s =" % constant)
    row = ""
    for number, line in enumerate(lines):
        piece = line + ("" if number + 1 == len(lines) else "\\n")
        if row and len(row) + len(piece) > 104:
            print('    "%s"' % row)
            row = ""
        row += piece
    print('    "%s";' % row)


def main():
    closed, open_ended = read_list()
    print("// Made by tools/make_entity_tables.py; see there for the format.")
    emit("xhtmlTable", table({name: closed[name] for name in XML_NAMES}))
    emit("baseTable", table(open_ended))
    emit("extendedTable", table(closed))


if __name__ == "__main__":
    main()
