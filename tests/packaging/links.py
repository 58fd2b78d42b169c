#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""links.py FOLDER: that each link and picture of the pages and texts in an installed documentation folder leads to a file there:
packaging compresses some files, under another name."""
import pathlib
import re
import sys
from urllib.parse import unquote, urldefrag

KINDS = {".html": r'(?:href|src|srcset)="([^"]+)"', ".md": r"\]\(([^)\s]+)\)"}


def broken(folder):
    for page in sorted(folder.rglob("*")):
        for target in re.findall(KINDS[page.suffix], page.read_text(encoding="utf-8")) if page.suffix in KINDS else []:
            place = unquote(urldefrag(target)[0])
            if place and "://" not in place and not place.startswith("mailto:") and not (page.parent / place).exists():
                yield f"{page}: {target}"


def main():
    faults = list(broken(pathlib.Path(sys.argv[1])))
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
