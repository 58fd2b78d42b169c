// SPDX-License-Identifier: MIT
// Written by tools/manual; not to be edited.
const translatedIndex = [
{
"url": "first.html",
"page": "Ihr erstes Makro in einer Minute",
"title": "Ihr erstes Makro in einer Minute",
"words": "Anfang, beginnen, starten, Anleitung, Einführung, Symbol, Systemabschnitt, Tray, Menü, Schnellstart",
"text": [
"Drei Tastenkürzel sind alles, was Sie brauchen. Klicken Sie in ein Textfeld, drücken Sie ",
"Strg+Super+R und tippen Sie ein paar Wörter. Super ist die Taste mit dem Logo der ",
"Arbeitsumgebung. Eine Einblendung oben rechts auf dem Bildschirm zeigt die Tasten. Drücken ",
"Sie Strg+Super+S. Die Einblendung verschwindet, das Makro ist fertig. Drücken Sie ",
"Strg+Super+P und lassen Sie die Tasten los. Die Wörter werden noch einmal getippt. Nichts ",
"geschieht? Probleme nach ihren Anzeichen (englisch) sagt, warum. In einer Wayland-Sitzung ",
"hängt es von der Arbeitsumgebung ab, was aufgezeichnet werden kann: siehe Wayland auf den ",
"einzelnen Arbeitsumgebungen (englisch)."
]
},
{
"url": "first.html#next",
"page": "Ihr erstes Makro in einer Minute",
"title": "Wie es weitergeht",
"text": [
"Das Makro hundertmal abspielen: wie oft (englisch). Es behalten, ihm einen Namen und ein ",
"eigenes Tastenkürzel geben: das Fenster der Makros (englisch). Auch Ihre Pausen ",
"aufzeichnen: Pausen. Andere Tastenkürzel wählen: Tastenkürzel wählen. Ein Makro schreiben, ",
"das fragt, zählt und entscheidet: Makros als Skripte (englisch), dazu die Rezepte ",
"(englisch)."
]
},
{
"url": "first.html#menu",
"page": "Ihr erstes Makro in einer Minute",
"title": "Das Symbol und sein Menü",
"text": [
"Keyrill sitzt im Systemabschnitt der Leiste. Sein Symbol zeigt drei Punkte, solange sich ",
"das Programm bereit macht, danach eine Taste mit einem K. Das Menü (hier auf Englisch) Das ",
"Menü (hier auf Englisch) Eintrag was er tut Aufzeichnung starten, Aufzeichnung beenden ",
"beginnt oder beendet ein Makro Pause aufzeichnen während der Aufzeichnung: behält die Zeit ",
"seit der letzten Taste als Pause Abspielen, Mehrmals abspielen... tippt das aktuelle ",
"Makro, einmal oder so oft Sie angeben Verlauf was aufgezeichnet wurde, seit Keyrill ",
"gestartet ist, oder auch davor, wenn der Verlauf behalten (englisch) werden soll; das ",
"Neueste steht oben. Wenn Sie einen Eintrag wählen, wird er abgespielt und ist das aktuelle ",
"Makro Makro speichern..., Makro laden... speichert das aktuelle Makro in einer Datei und ",
"holt es aus einer zurück Makros... alle Makros, die Sie behalten haben: zum Suchen, Lesen, ",
"Ändern und Abspielen Einstellungen... Tastenkürzel, Pausen, Start bei der Anmeldung, ",
"Aktualisierungen Hilfe dieses Handbuch (Dokumentation), die Seiten des Herstellers, wie ",
"Sie uns erreichen, und Was hier funktioniert Beenden beendet Keyrill Abspielen, Mehrmals ",
"abspielen und Makro speichern erscheinen, wenn die erste Aufzeichnung beendet ist. Auf ",
"einer Arbeitsumgebung ohne Systemabschnitt erscheint nach drei Sekunden ein kleines ",
"Fenster mit demselben Menü. Es nimmt dem Fenster, in das Sie tippen, nie die Tasten weg. ",
"Wenn Sie Keyrill ein zweites Mal starten, wird dieses Fenster ebenfalls gezeigt."
]
},
{
"url": "hot-keys.html",
"page": "Tastenkürzel",
"title": "Tastenkürzel",
"words": "Hotkey, Hotkeys, Tastenkombination, Kurzbefehl, Shortcut, Tastenbelegung, Auslöser",
"text": [
"Ein Tastenkürzel wirkt in jedem Programm, soweit die Sitzung (englisch) das zulässt. ",
"Tastenkürzel was es tut Strg+Super+R startet eine Aufzeichnung oder beendet sie ",
"Strg+Super+S beendet die Aufzeichnung; während ein Makro abgespielt wird, das Abspielen ",
"Strg+Super+P spielt das aktuelle Makro ab, sobald alle Tasten losgelassen sind ",
"Strg+Super+M fragt, wie oft abgespielt werden soll Esc, eine Drittelsekunde lang gehalten ",
"beendet das Abspielen Tastenkürzel sind nie Teil einer Aufzeichnung. Solange die ",
"Einstellungen oder eine Frage von Keyrill offen sind, sind sie abgeschaltet; nur das ",
"Tastenkürzel zum Beenden beendet dann noch ein Makro, das etwas fragt."
]
},
{
"url": "hot-keys.html#choose",
"page": "Tastenkürzel",
"title": "Tastenkürzel wählen",
"text": [
"Klicken Sie auf ein Feld der Einstellungen (englisch) oder drücken Sie darauf die ",
"Leertaste; drücken Sie dann die neue Kombination. Ein Buchstabe oder eine Ziffer braucht ",
"Strg, Alt oder Super dazu. Die Rücktaste leert das Feld; eine so entfernte Kombination ",
"wirkt noch, bis Keyrill neu gestartet wird. Hat schon ein anderes der vier Tastenkürzel ",
"die Kombination, verliert es sie. Tastenkürzel sind, wie in einer Aufzeichnung, Tasten ",
"nach ihrem Platz auf der Tastatur: Was auf einer US-Tastatur das M war, ist auf einer ",
"französischen das Komma, und die Einstellungen zeigen stets, was in der gerade aktiven ",
"Tastaturbelegung darauf steht. In Wayland-Sitzungen von GNOME ab Version 48 werden die ",
"Kombinationen in den Einstellungen von GNOME selbst gewählt: siehe GNOME (englisch)."
]
},
{
"url": "hot-keys.html#macros",
"page": "Tastenkürzel",
"title": "Ein Tastenkürzel für ein Makro",
"text": [
"Jedes Makro des Makroordners kann eines haben: Öffnen Sie Makros... im Menü, wählen Sie ",
"das Makro, klicken Sie auf das Feld Tastenkürzel: darunter oder drücken Sie darin die ",
"Leertaste, und drücken Sie die Kombination. Sie wird sofort übernommen. Daneben steht, wie ",
"oft das Tastenkürzel das Makro abspielt und wie schnell (englisch). Ein Tastenkürzel ",
"gehört nur auf Ihrem Rechner zu einem Makro: Es steht nie in der Makrodatei, sodass ein ",
"fremdes Makro keines an sich nimmt."
]
},
{
"url": "hot-keys.html#taken",
"page": "Tastenkürzel",
"title": "Eine Kombination, die schon vergeben ist",
"text": [
"Die Einstellungen sagen es neben dem Feld, das Fenster der Makros unter dem Makro, und ",
"auch die Kurzinfo des Symbols sagt es. Sie nennen, wer die Kombination hat, soweit sich ",
"das feststellen lässt: Bereits vom Makro „Greeting“ verwendet. Wählen Sie eine andere ",
"Kombination oder geben Sie sie dort frei. Ein Tastenkürzel, das ein anderes Programm ",
"belegt, bekommt Keyrill, sobald jenes Programm es freigibt. Eine Kombination, die Sie ",
"einem Tastenkürzel der Einstellungen geben, verliert das Makro, das sie hatte. keyrill ",
"--check in einem Terminal und Was hier funktioniert unter Hilfe im Menü sagen für jedes ",
"Tastenkürzel, ob es jemand anderes hat."
]
},
{
"url": "hot-keys.html#actions",
"page": "Tastenkürzel",
"title": "Von anderen Programmen und mit den Tastenkürzeln der Arbeitsumgebung",
"text": [
"keyrill --action=record, stop, play, multiple und save-pause tun, was die Zeilen des Menüs ",
"tun. Legen Sie einen solchen Befehl auf eine Taste Ihrer Fensterverwaltung, auf einen ",
"Knopf oder in ein Skript; das Menü der Arbeitsumgebung bietet sie beim Namen des Programms ",
"ebenfalls an. Auf Tasten, die Sie noch halten, wird gewartet. record, play, multiple und ",
"macros, das das Fenster der Makros zeigt, starten Keyrill nötigenfalls. Was gerade nicht ",
"möglich ist, steht in der Standardfehlerausgabe, und der Rückgabewert ist 2. Während ein ",
"Makro abgespielt wird, wird nur stop angenommen. Die Befehle brauchen den Sitzungsbus, den ",
"jede Arbeitsumgebung hat; nichts darin verrät, was Sie aufgezeichnet haben."
]
},
{
"url": "hot-keys.html#play-by-name",
"page": "Tastenkürzel",
"title": "Ein Makro mit seinem Namen abspielen",
"text": [
"keyrill --play Greeting spielt das Makro dieses Namens aus dem Makroordner ab, so oft und ",
"so schnell, wie es für das Makro eingestellt ist; --times 3 --speed 2 dreimal und doppelt ",
"so schnell; --play mail/Greeting das der Gruppe mail, --play ./macro.keyrill eine Datei, ",
"und --play allein das, was Abspielen abspielt; das aktuelle Makro bleibt dabei, was es ",
"war. keyrill --list gibt alle Namen aus, keyrill --show Greeting zeigt das Makro in seinem ",
"Fenster. bash, zsh und fish ergänzen die Namen. Der Rückgabewert ist 0, wenn es getan ",
"wurde, 1, wenn es nicht möglich war, und 2, wenn die Befehlszeile keinen Sinn ergibt; die ",
"Standardfehlerausgabe sagt, warum. So bekommt ein Makro eine Taste Ihrer ",
"Fensterverwaltung, hier von openbox: <keybind key=\"C-W-F5\"><action name=\"Execute\"> ",
"<command>keyrill --play Greeting</command> </action></keybind> Andere Programme fragen ",
"über D-Bus: man keyrill sagt, wie."
]
},
{
"url": "recording.html",
"page": "Aufzeichnen",
"title": "Aufzeichnen",
"words": "aufnehmen, Aufnahme, mitschneiden, erfassen, Pause, Verzögerung, Wartezeit, Modifikatortasten, Einblendung, Overlay, Maus",
"text": [
"Drücken Sie Strg+Super+R oder wählen Sie Aufzeichnung starten im Menü, tippen Sie, und ",
"beenden Sie die Aufzeichnung mit Strg+Super+S."
]
},
{
"url": "recording.html#what",
"page": "Aufzeichnen",
"title": "Was aufgezeichnet wird",
"text": [
"Alles, was Sie drücken, kommt in das Makro: Buchstaben, Ziffern, Pfeile, Funktionstasten ",
"und Kombinationen mit Strg, Alt, Super und Umschalt. Eine Taste, die gehalten wird, zählt ",
"so oft, wie sie sich wiederholt. Mausklicks werden nicht aufgezeichnet. Keyrills eigene ",
"Tastenkürzel sind kein Teil des Makros. Tasten werden nach ihrem Platz auf der Tastatur ",
"behalten, nicht nach dem Zeichen, das sie tippen: Ein Makro, das mit englischer ",
"Tastaturbelegung aufgezeichnet und mit französischer abgespielt wird, drückt dieselben ",
"Tasten, die dort andere Buchstaben tippen. Für Text, der mit jeder Belegung richtig ",
"ankommen muss, schreiben Sie keystroke \"...\" in das Skript des Makros oder benutzen Sie ",
"Als Text (englisch). Mehr dazu steht unter Tastaturen und Belegungen (englisch). Eine ",
"Aufzeichnung ohne eine einzige Taste wird verworfen. Jede andere wird zum aktuellen Makro, ",
"das Abspielen (englisch) abspielt, und zur ersten Zeile unter Verlauf."
]
},
{
"url": "recording.html#pauses",
"page": "Aufzeichnen",
"title": "Pausen",
"text": [
"Wie lange Sie zwischen zwei Tasten warten, wird nicht behalten, damit ein Makro mit voller ",
"Geschwindigkeit abläuft. Wo das Warten wichtig ist, etwa während eine Seite lädt, wählen ",
"Sie Pause aufzeichnen im Menü: Die Zeit seit der letzten Taste wird Teil des Makros. In ",
"den Einstellungen können Sie festlegen, dass alle Pausen behalten werden: Wählen Sie für ",
"Pausen aufzeichnen Wie getippt, dauert ein Makro Taste für Taste so lange, wie das Tippen ",
"gedauert hat; bei Höchstens zählt eine längere Pause nur so lang wie angegeben. Was vor ",
"der ersten und nach der letzten Taste vergeht, ist kein Teil des Makros. Jede Pause wird ",
"in der Einblendung gezeigt und ist eine Zeile delay des Skripts."
]
},
{
"url": "recording.html#modifiers",
"page": "Aufzeichnen",
"title": "Sondertasten",
"text": [
"Sondertasten und Feststelltasten zählen für die Tasten, die Sie drücken, während sie ",
"gehalten oder eingeschaltet sind; einzeln gedrückt werden sie nicht behalten. Ein kurzer ",
"Druck auf Super, der einen Starter öffnet, fehlt daher im Makro. Mit Sondertasten auch ",
"einzeln aufzeichnen in den Einstellungen werden solche kurzen Drücke als Tasten behalten, ",
"wenn nichts anderes zugleich gedrückt wird und sie nicht länger als eine halbe Sekunde ",
"dauern. Eine Sondertaste, die Sie über mehrere Tasten hinweg halten, wird dann auch im ",
"Makro über sie hinweg gehalten, durch key down und key up: Alt gehalten und dazu Tab, Tab ",
"führt auch dann zum dritten Fenster, wenn das Makro dazwischen wartet. Feststelltasten und ",
"AltGr bleiben Teil der Tasten, die sie verändern."
]
},
{
"url": "recording.html#overlay",
"page": "Aufzeichnen",
"title": "Die Einblendung",
"text": [
"Die Einblendung während einer Aufzeichnung Die Einblendung während einer Aufzeichnung Die ",
"Einblendung zeigt die Tasten, wie sie kommen. Sie bleibt über Vollbildfenstern, nimmt nie ",
"die Tasten an sich, und Klicks gehen durch sie hindurch. In Wayland-Sitzungen hängt es von ",
"der Arbeitsumgebung (englisch) ab, worüber sie liegt."
]
},
{
"url": "recording.html#not-recorded",
"page": "Aufzeichnen",
"title": "Wenn nichts aufgezeichnet wird",
"text": [
"Solange ein anderes Programm die Tastatur für sich allein hat (eine Bildschirmsperre, eine ",
"Passwortabfrage, das Fenster eines anderen Rechners), wird nichts aufgezeichnet, und die ",
"Einblendung sagt Nicht aufgezeichnet: Tastatur belegt. In Menüs, bei Tastenkürzeln anderer ",
"Programme und wenn jemand die Tastatur kürzer als zwei Sekunden für sich hat, wird wie ",
"sonst aufgezeichnet; eine Bildschirmsperre ist daran zu erkennen, was sie belegt: die ",
"Tastatur länger als die Tasten, mit denen es begann, dazu die Maus oder den ganzen ",
"Bildschirm, und ohne das Fenster eines Menüs. Ebenso wird nichts aufgezeichnet, solange ",
"der Bildschirm gesperrt ist, und nichts von dem, was Sie in Keyrills eigenes Menü und ",
"seine Fragen tippen. Auch Strg+Alt+F2 und ähnliche Kombinationen, die eine andere Konsole ",
"zeigen, gehören nicht zu einer Aufzeichnung: Sie abzuspielen würde die Sitzung verlassen."
]
}
];
