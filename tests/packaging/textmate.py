# SPDX-License-Identifier: MIT
"""How a TextMate grammar colours a file: "scope text" for each piece that is coloured, a line each.

textmate.py GRAMMAR FILE: reads what grammars have that this one uses: match, begin, end, patterns, include.
"""
import json
import re
import sys

grammar, file = sys.argv[1:]
with open(grammar, encoding="utf-8") as source:
    grammar = json.load(source)


def rules(patterns):
    for pattern in patterns:
        if "include" in pattern:
            yield grammar["repository"][pattern["include"][1:]]
        else:
            yield pattern


def colour(line, stack):
    """The scope of each character; the stack holds the rules that have begun and not ended."""
    scopes = []
    place = 0
    while place <= len(line):
        inside = stack[-1] if stack else None
        candidates = [(inside, re.compile(inside["end"]))] if inside else []
        patterns = inside.get("patterns", []) if inside else grammar["patterns"]
        candidates += [(rule, re.compile(rule.get("match") or rule["begin"])) for rule in rules(patterns)]
        found = [(match.start(), order, rule, match)
                 for order, (rule, pattern) in enumerate(candidates) for match in [pattern.search(line, place)] if match]
        outside = inside["name"] if inside else None
        if not found:
            return scopes + [outside] * (len(line) - place)
        start, order, rule, match = min(found, key=lambda row: row[:2])
        scopes += [outside] * (start - place) + [rule["name"]] * (match.end() - start)
        if inside and order == 0:
            stack.pop()
        elif "begin" in rule:
            stack.append(rule)
        place = max(match.end(), place + (match.end() == place and start == place))
    return scopes


stack = []
with open(file, encoding="utf-8") as source:
    for line in source.read().split("\n"):
        scopes = colour(line, stack)[:len(line)]
        begin = 0
        for end in range(1, len(line) + 1):
            if end == len(line) or scopes[end] != scopes[begin]:
                if scopes[begin]:
                    print(scopes[begin].removesuffix(".keyrill"), line[begin:end])
                begin = end
