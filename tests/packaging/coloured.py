# SPDX-License-Identifier: MIT
"""How GtkSourceView colours a file: "#RRGGBB text" for each piece that is coloured, a line each.

coloured.py FOLDER FILE: FOLDER holds language definitions; the file's language is guessed by its name. The colours are
those of the scheme "classic".
"""
import sys

import gi

gi.require_version("GtkSource", "4")
from gi.repository import GtkSource  # noqa: E402

folder, file = sys.argv[1:]
languages = GtkSource.LanguageManager()
# The styles that all languages share are beside the system's own definitions.
languages.set_search_path([folder, "/usr/share/gtksourceview-4/language-specs"])
text = GtkSource.Buffer.new_with_language(languages.guess_language(file, None))
text.set_style_scheme(GtkSource.StyleSchemeManager.get_default().get_scheme("classic"))
with open(file, encoding="utf-8") as source:
    text.set_text(source.read())
text.ensure_highlight(*text.get_bounds())


def colour(place):
    """Of the innermost tag that has one."""
    found = None
    for tag in place.get_tags():
        if tag.props.foreground_set:
            found = tag.props.foreground_rgba
    return found and "#%02X%02X%02X" % tuple(round(255 * part) for part in (found.red, found.green, found.blue))


begin = text.get_start_iter()
while not begin.is_end():
    end = begin.copy()
    end.forward_to_tag_toggle(None)
    if colour(begin):
        print(colour(begin), text.get_text(begin, end, True))
    begin = end
