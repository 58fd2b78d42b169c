# SPDX-License-Identifier: MIT
# The rules of the source tree, for tests/frame/check. Patterns of forbidden words are written so that they do
# not match themselves.

BEGIN {
    standard = "^[a-z_]+$"
    generated = "^[A-Za-z]+\\.(inc|moc)$"

    # A room is a folder: the folders whose headers it may include beside its own; what it may, and may not,
    # include in angle brackets. Files elsewhere (tests, measurements) include what they like.
    foreign = "^(Q|boost/|xcb/|X11/|xkbcommon/|wayland)"
    room("platform", "", standard, "")
    room("platform/fake", "platform", standard, "")
    room("platform/none", "platform", standard, "")
    room("platform/keymap", "platform", standard "|^xkbcommon/xkbcommon\\.h$", "")
    room("platform/monitor", "platform platform/keymap platform/run", standard "|^xkbcommon/xkbcommon\\.h$", "")
    room("platform/run", "platform", "", foreign)
    room("platform/press", "platform platform/keymap platform/run", standard "|^xkbcommon/xkbcommon\\.h$", "")
    room("platform/linux", "platform", "", foreign)

    room("platform/evdev/devices", "platform", "", foreign)
    room("platform/evdev", "platform platform/evdev/devices platform/keymap platform/monitor platform/run", "",
         "^(Q|boost/|xcb/|X11/|wayland)")
    room("platform/evdev/access", "platform platform/evdev platform/linux", "", foreign)

    below = "platform"
    storey("platform/script/source")
    storey("platform/script/values", "|^glib\\.h$")
    storey("platform/script/commands")
    storey("platform/script/syntax")
    storey("platform/script/code")
    storey("platform/script/run")

    x11("server", "platform")
    x11("keymap", "platform platform/keymap platform/x11/server")
    x11("guard", "platform platform/run platform/x11/keymap platform/x11/server")
    x11("clipboard", "platform platform/x11/server")
    x11("windows", "platform platform/run platform/x11/clipboard platform/x11/server")
    x11("watch", "platform platform/keymap platform/monitor platform/run platform/x11/keymap platform/x11/server")
    x11("press", "platform platform/keymap platform/press platform/run platform/x11/guard platform/x11/keymap" \
                 " platform/x11/server platform/x11/windows")
    room("platform/x11", "platform platform/none platform/x11/press platform/x11/server platform/x11/watch" \
                         " platform/x11/windows", "", "^(Q|boost/|wayland)")

    room("platform/desktops/portal", "platform platform/linux", "", foreign)
    room("platform/desktops", "platform platform/desktops/portal platform/keymap platform/linux platform/monitor" \
                              " platform/run", "", foreign)
    room("platform/wayland", "platform platform/desktops platform/evdev platform/evdev/access platform/evdev/devices" \
                             " platform/keymap platform/linux platform/monitor platform/none platform/press platform/run", "",
         "^(Q|boost/|xcb/|X11/)")

    # The one list of sessions: nothing else that is no part of a session knows one.
    room("platform/sessions", "platform platform/wayland platform/x11", "", foreign)

    # The catalogues of all texts: what the desktop programs and the one for terminals speak.
    room("languages", "platform", standard "|^Q", "")

    room("core", "platform", standard "|^boost/", "")
    room("prefs", "core platform", standard "|^boost/", "")
    room("engine", "prefs core platform", standard "|^boost/", "")
    room("library", "engine prefs core platform", standard "|^boost/", "")

    room("library/steps", "core platform platform/script/code platform/script/run platform/script/source",
         standard "|^boost/", "")

    app("languages", "languages platform")
    app("icons", "platform")
    app("widgets", "app/icons platform")
    app("shortcuts", "prefs core platform")
    app("dialogs", "app/icons app/widgets platform")
    app("check", "app/shortcuts prefs platform")
    app("overlay", "app/icons app/widgets platform")
    app("panels", "app/check app/shortcuts app/widgets platform")
    app("macros", "app/shortcuts app/widgets library/steps core platform platform/script/code platform/script/commands" \
                  " platform/script/source")
    app("tray", "app/icons app/widgets platform")
    app("library", "library engine prefs core platform")
    app("controller", "app/check app/dialogs app/library app/macros app/overlay app/panels app/shortcuts app/tray app/widgets" \
                      " library library/steps engine prefs core platform")
    # Joins the controllers with services and event loop; programs are made of it.
    app("program", "app/check app/controller app/dialogs app/languages app/library app/tray app/widgets library platform platform/linux" \
                   " platform/script/run platform/sessions")
    app("demonstration", "app/program engine core")
    app("gallery", "app/check app/program app/controller app/dialogs app/icons app/languages app/macros app/overlay app/panels app/shortcuts" \
                   " app/tray engine core platform")
    room("app", "app/languages app/program", "", "^(boost/|xcb/|X11/|xkbcommon/|wayland)")
    # A service of its own, with as little as can be.
    room("access", "platform platform/evdev/devices", "", foreign)
    # A program of its own, without a toolkit.
    room("cli", "languages platform platform/linux platform/script/run platform/script/code platform/script/syntax" \
                " platform/script/commands platform/script/source platform/sessions", "", foreign)

    # The standard library cannot close a file descriptor.
    exempt["platform/Descriptor.cpp", "unistd.h"] = 1

    ofRooms = "^(access|app|cli|core|engine|languages|library|platform|prefs)/"
    besideTheRooms = "^(tests|bench|fuzz)/"
    # What platform/x11/server has a class for, or a function.
    xcbIdiom = "xcb_(get|change|delete)_property([^a-z_]|_(un)?checked|_reply\\()|xcb_(intern_atom|query_tree|query_extension)" \
               "|xcb_(connect|get_extension_data|get_input_focus|create_window|wait_for_event|poll_for_event)[^a-z]" \
               "|xcb_xkb_use_extension|xcb_input_xi_query_version|xcb_test_get_version"
    maySpeakXcb = "^platform/x11/server/|" besideTheRooms
    mayCallServices = "^(core/KeyNames|engine/(HotKeyCenter|AppleScript|MacroPlayer|KeyRecorder))\\.cpp$" \
                      "|^app/|^platform/Services\\.|^(tests|bench|fuzz)/"
    mayInstallServices = "^app/program/|^platform/Services\\.|^(tests|bench|fuzz)/"
    isCode = "\\.(h|hh|hpp|cpp|cc|cxx|c)$"
    isBuildFile = "(^|/)CMakeLists\\.txt$|\\.cmake$"
    isSource = isCode "|" isBuildFile "|\\.(inc|sh|py|awk|conf)$|(^|/)\\.clang-(format|tidy)$"
    pointsOutside = "(^|[^A-Za-z])Part[s]? [0-9]+\\.[0-9]|spe[c]\\.md|linu[x]\\.md|hous[e]\\.md" \
                    "|[Tt]he specificatio[n]|[Ww]orktre[e]|/wor[k]/|/tmp/w[t]|[Ii]ssu[e] [0-9]"
}

function room(folder, uses, angled, refused) {
    usesOf[folder] = " " folder " " uses " "
    angledOf[folder] = angled
    refusedOf[folder] = refused
}

# A room that may use all those named before it in this way, and what it may include in angle brackets beside the
# standard library.
function storey(folder, angled) {
    room(folder, below, standard angled, "")
    below = below " " folder
}

function x11(name, uses) {
    room("platform/x11/" name, uses, "", "^(Q|boost/|wayland)")
}

function app(name, uses) {
    room("app/" name, uses, "", "^(xcb/|X11/|xkbcommon/|wayland)")
}

function folderOf(path) {
    return path ~ /\// ? substr(path, 1, match(path, /\/[^\/]*$/) - 1) : ""
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
    if (!(folder in usesOf)) return
    if (name ~ /^"/) {
        sub(/^"/, "", name)
        sub(/".*$/, "", name)
        if (!index(usesOf[folder], " " folderOf(name) " ") && name !~ generated) {
            breach(FNR, folder "/ may not include " name)
        }
    } else if (name ~ /^</) {
        sub(/^</, "", name)
        sub(/>.*$/, "", name)
        if ((file, name) in exempt) return
        if (name ~ ofRooms) breach(FNR, "a header of a room stands in angle brackets")
        if ((angledOf[folder] != "" && name !~ angledOf[folder]) ||
            (refusedOf[folder] != "" && name ~ refusedOf[folder])) {
            breach(FNR, folder "/ may not include <" name ">")
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
    if (code ~ xcbIdiom && file !~ maySpeakXcb) breach(FNR, "xcb by hand; platform/x11/server has words for it")
    if (code ~ /std::shared_ptr/ && file ~ /^(core|prefs|engine|library|app)\//) {
        breach(FNR, "std::shared_ptr; the model's pointer is boost::shared_ptr")
    }
}

FNR == 1 {
    if (file != "") endFile()
    file = FILENAME
    folder = folderOf(file)
    if (file ~ isCode && file !~ besideTheRooms && !(folder in usesOf)) breach(1, "no room of the table is called " folder)
    needsLicence = file ~ isSource || /^#!/
    hasLicence = 0
    hasTranslator = 0
}

FNR <= 3 && /SPDX-License-Identifier: MIT/ { hasLicence = 1 }
file ~ isCode && /^[ \t]*#[ \t]*include[ \t]*["<]/ { checkInclude() }
# The presets for work compile headers first, which hides that one is missing.
/#include <QCoreApplication>/ { hasTranslator = 1 }
file ~ isCode && /^[ \t]*Q_DECLARE_TR_FUNCTIONS/ && !hasTranslator {
    breach(FNR, "Q_DECLARE_TR_FUNCTIONS needs <QCoreApplication>")
}
file ~ isCode { checkCode() }
file ~ isBuildFile && /CMAKE_(SOURCE|BINARY)_DI[R]/ {
    breach(FNR, "a path of the whole build; use the project's own")
}
$0 ~ pointsOutside { breach(FNR, "points to something that readers of the tree do not have") }

END {
    if (file != "") endFile()
    exit breaches > 0
}
