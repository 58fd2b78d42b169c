#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""translated.py CATALOGUE CONTEXT TEXT: what a catalogue of languages has for that text of that context, as it is shown:
without the sign before the letter that is pressed for it."""
import sys
import xml.etree.ElementTree as ElementTree


def main():
    path, context, text = sys.argv[1:]
    for group in ElementTree.parse(path).iter("context"):
        if group.findtext("name") != context:
            continue
        for message in group.iter("message"):
            if message.findtext("source") == text:
                print(message.findtext("translation").replace("&", ""))
                return
    sys.exit(f"translated.py: {path} has no {text!r} of {context}")


if __name__ == "__main__":
    main()
