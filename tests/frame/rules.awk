# SPDX-License-Identifier: MIT
# The rules of the source tree, for tests/frame/check. Patterns of forbidden words are written so that they do
# not match themselves.

BEGIN {
    standard = "^[a-z_]+$"
    common = "^platform/[A-Za-z0-9]+\\.h$"
    generated = "^[A-Za-z]+\\.(inc|moc)$"

    # folder; what it may include in quotes; what it may, and may not, include in angle brackets. The longest
    # folder that a file's path begins with counts; files elsewhere (tests, measurements) include what they like.
    room("platform/", common, standard, "")
    room("platform/fake/", common "|^platform/fake/", standard, "")
    room("platform/script/", common "|^platform/script/", standard, "")
    room("platform/linux/", common "|^platform/linux/", "", "^(Q|boost/|xcb/|X11/|xkbcommon/|wayland)")
    room("platform/x11/", common "|^platform/x11/", "", "^(Q|boost/|wayland)")
    room("platform/wayland/", common "|^platform/wayland/", "", "^(Q|boost/|xcb/|X11/)")
    room("core/", "^(core|platform)/[A-Za-z]+\\.h$", standard "|^boost/", "")
    room("prefs/", "^(prefs|core|platform)/[A-Za-z]+\\.h$", standard "|^boost/", "")
    room("engine/", "^(engine|prefs|core|platform)/[A-Za-z]+\\.h$", standard "|^boost/", "")
    room("app/", "^app/|^(engine|prefs|core|platform)/[A-Za-z]+\\.h$", "", "^(xcb/|X11/|xkbcommon/|wayland)")
    # A program of its own, without a toolkit.
    room("app/script/", "^app/script/|^platform/((script|linux|x11)/)?[A-Za-z0-9]+\\.h$", "",
         "^(Q|boost/|xcb/|X11/|xkbcommon/|wayland)")
    # The one place that chooses backends and joins everything; programs are made of it.
    room("app/program/", "^(app|engine|prefs|core|platform)/", "", "^(xcb/|X11/|xkbcommon/|wayland)")

    mayCallServices = "^(core/KeyNames|engine/(HotKeyCenter|AppleScript|MacroPlayer|KeyRecorder))\\.cpp$" \
                      "|^app/|^platform/Services\\.|^(tests|bench|fuzz)/"
    mayInstallServices = "^app/program/|^platform/Services\\.|^(tests|bench|fuzz)/"
    isCode = "\\.(h|cpp|c)$"
    isBuildFile = "(^|/)CMakeLists\\.txt$|\\.cmake$"
    isSource = isCode "|" isBuildFile "|\\.(inc|sh|py|awk|conf)$|(^|/)\\.clang-(format|tidy)$"
    pointsOutside = "(^|[^A-Za-z])Part[s]? [0-9]+\\.[0-9]|spe[c]\\.md|linu[x]\\.md|hous[e]\\.md" \
                    "|[Tt]he specificatio[n]|[Ww]orktre[e]|/wor[k]/|/tmp/w[t]|[Ii]ssu[e] [0-9]"
}

function room(folder, quoted, angled, refused) {
    quotedOf[folder] = quoted
    angledOf[folder] = angled
    refusedOf[folder] = refused
}

function roomOf(path,    folder, best) {
    best = ""
    for (folder in quotedOf) {
        if (index(path, folder) == 1 && length(folder) > length(best)) best = folder
    }
    return best
}

function breach(line, rule) {
    print file ":" line ": " rule
    breaches++
}

function endFile() {
    if (needsLicence && !hasLicence) breach(1, "no SPDX-License-Identifier: MIT in the first lines")
}

function checkInclude(    name) {
    name = $0
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", name)
    if (name ~ /^["<][^">]*\.\.\//) breach(FNR, "an include names a folder above")
    if (folder == "") return
    if (name ~ /^"/) {
        sub(/^"/, "", name)
        sub(/".*$/, "", name)
        if (name !~ quotedOf[folder] && name !~ generated) breach(FNR, folder " may not include " name)
    } else if (name ~ /^</) {
        sub(/^</, "", name)
        sub(/>.*$/, "", name)
        if ((angledOf[folder] != "" && name !~ angledOf[folder]) ||
            (refusedOf[folder] != "" && name ~ refusedOf[folder])) {
            breach(FNR, folder " may not include <" name ">")
        }
    }
}

function checkCode(    code) {
    code = $0
    sub(/\/\/.*/, "", code)
    if (code ~ /(^|[^A-Za-z0-9_])services\(\)/ && file !~ mayCallServices) {
        breach(FNR, "services() is called; take a reference in the constructor")
    }
    if (code ~ /(^|[^A-Za-z0-9_])ServicesScope([^A-Za-z0-9_]|$)/ && file !~ mayInstallServices) {
        breach(FNR, "services are installed by programs and tests alone")
    }
    if (code ~ /std::shared_ptr/ && file ~ /^(core|prefs|engine|app)\//) {
        breach(FNR, "std::shared_ptr; the model's pointer is boost::shared_ptr")
    }
}

FNR == 1 {
    if (file != "") endFile()
    file = FILENAME
    folder = roomOf(file)
    needsLicence = file ~ isSource || /^#!/
    hasLicence = 0
}

FNR <= 3 && /SPDX-License-Identifier: MIT/ { hasLicence = 1 }
file ~ isCode && /^[ \t]*#[ \t]*include[ \t]*["<]/ { checkInclude() }
file ~ isCode { checkCode() }
file ~ isBuildFile && /CMAKE_(SOURCE|BINARY)_DI[R]/ {
    breach(FNR, "a path of the whole build; use the project's own")
}
$0 ~ pointsOutside { breach(FNR, "points to something that readers of the tree do not have") }

END {
    if (file != "") endFile()
    exit breaches > 0
}
