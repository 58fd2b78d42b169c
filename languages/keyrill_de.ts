<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 oder neuer</translation>
    </message>
    <message>
        <source>curl licence</source>
        <translation>curl-Lizenz</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>Über Keyrill</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>&amp;Dokumentation</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>&amp;Produktseite</translation>
    </message>
    <message>
        <source>&amp;Maker&apos;s Website</source>
        <translation>&amp;Website des Herstellers</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Erstellt mit</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Records the keys you press and presses them again.</source>
        <translation>Zeichnet Ihre Tastatureingaben auf und spielt sie wieder ab.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Keyrill authors. Free software under the MIT licence, without any warranty.</source>
        <translation>Copyright © 2026 die Autoren von Keyrill. Freie Software unter der MIT-Lizenz, ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>AccessDesk</name>
    <message>
        <source>To record what you type in other programs, Keyrill has to read the keyboard until the recording ends. That is why you are asked for your password.</source>
        <translation>Um aufzuzeichnen, was Sie in anderen Programmen tippen, muss Keyrill die Tastatur lesen, bis die Aufzeichnung endet. Darum werden Sie nach Ihrem Passwort gefragt.</translation>
    </message>
</context>
<context>
    <name>ActionCall</name>
    <message>
        <source>Keyrill is not running.</source>
        <translation>Keyrill läuft nicht.</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>The screen is locked.</source>
        <translation>Der Bildschirm ist gesperrt.</translation>
    </message>
    <message>
        <source>Keyrill is asking something, which has to be answered first.</source>
        <translation>Keyrill hat eine Frage gestellt, die erst beantwortet werden muss.</translation>
    </message>
    <message>
        <source>A macro is being recorded.</source>
        <translation>Es wird gerade ein Makro aufgezeichnet.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Es gibt noch kein Makro zum Abspielen.</translation>
    </message>
    <message>
        <source>A macro is being recorded already.</source>
        <translation>Es wird bereits ein Makro aufgezeichnet.</translation>
    </message>
    <message>
        <source>Nothing is being recorded or played.</source>
        <translation>Es wird gerade nichts aufgezeichnet oder abgespielt.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Es wird gerade nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>Keyrill is asking how often to play.</source>
        <translation>Keyrill fragt gerade, wie oft abgespielt werden soll.</translation>
    </message>
    <message>
        <source>Keyrill&apos;s hot keys are off while they are being chosen in a window of its own.</source>
        <translation>Die Tastenkürzel von Keyrill sind aus, solange sie in einem seiner Fenster gewählt werden.</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Keyrill Update Available</source>
        <translation>Aktualisierung für Keyrill verfügbar</translation>
    </message>
    <message>
        <source>There is a new update available for Keyrill, would you like to download it now?</source>
        <translation>Für Keyrill ist eine neue Aktualisierung verfügbar. Möchten Sie sie jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Keyrill requires that programs can see and press keys in this session. </source>
        <translation>Keyrill setzt voraus, dass Programme in dieser Sitzung Tastendrücke sehen und auslösen können. </translation>
    </message>
    <message>
        <source>Please see the &apos;Configuration&apos; section of the documentation for more information.

Keyrill must close, please restart it once this is possible.
</source>
        <translation>Weitere Informationen finden Sie im Abschnitt „Configuration“ der Dokumentation.

Keyrill muss beendet werden. Bitte starten Sie es neu, sobald dies möglich ist.
</translation>
    </message>
    <message>
        <source>Open Documentation now</source>
        <translation>Dokumentation jetzt öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Recording is not possible in this session yet</source>
        <translation>In dieser Sitzung kann noch nicht aufgezeichnet werden</translation>
    </message>
    <message>
        <source>Nothing was recorded</source>
        <translation>Es wurde nichts aufgezeichnet</translation>
    </message>
    <message>
        <source>The recording has ended</source>
        <translation>Die Aufzeichnung wurde beendet</translation>
    </message>
    <message>
        <source>What was recorded until then is kept.</source>
        <translation>Was bis dahin aufgezeichnet wurde, bleibt erhalten.</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>JA</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NEIN</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No Update Available</source>
        <translation>Keine Aktualisierung verfügbar</translation>
    </message>
    <message>
        <source>You&apos;re currently running the latest version of Keyrill</source>
        <translation>Sie verwenden bereits die neueste Version von Keyrill</translation>
    </message>
    <message>
        <source>The macro was not saved as &quot;%1&quot;.</source>
        <translation>Das Makro wurde nicht als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>No macro was loaded from &quot;%1&quot;.</source>
        <translation>Aus „%1“ wurde kein Makro geladen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>„%1“ ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What is in it will be lost.</source>
        <translation>Möchten Sie die Datei ersetzen? Der bisherige Inhalt geht verloren.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a macro file.</source>
        <translation>„%1“ ist keine Makrodatei.</translation>
    </message>
    <message>
        <source>The names of Keyrill&apos;s macro files end with &quot;.%1&quot;.</source>
        <translation>Die Namen der Makrodateien von Keyrill enden auf „.%1“.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>Check the name, or choose one of the list.</source>
        <translation>Prüfen Sie den Namen oder wählen Sie einen aus der Liste.</translation>
    </message>
    <message>
        <source>Your settings were not saved.</source>
        <translation>Ihre Einstellungen wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Whether Keyrill starts when you log in could not be changed.</source>
        <translation>Ob Keyrill bei der Anmeldung startet, konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Something is wrong with your settings.</source>
        <translation>Mit Ihren Einstellungen stimmt etwas nicht.</translation>
    </message>
    <message>
        <source>May Keyrill write its hot keys into GNOME&apos;s settings?</source>
        <translation>Darf Keyrill seine Tastenkürzel in die Einstellungen von GNOME schreiben?</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. Keyrill would write one there for each of its combinations, and take them out when it ends. It does not touch what is yours.

You can change your mind in Keyrill&apos;s preferences.</source>
        <translation>Diese Version von GNOME bietet Programmen Tastenkürzel nur als eigene Tastenkürzel in Ihren Einstellungen. Keyrill würde dort für jede seiner Tastenkombinationen eines anlegen und sie entfernen, wenn es endet. Was Sie selbst angelegt haben, bleibt unberührt.

Sie können sich in den Einstellungen von Keyrill anders entscheiden.</translation>
    </message>
    <message>
        <source>Write Them</source>
        <translation>Eintragen</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more under &quot;Configuration&quot;.</source>
        <translation>In dieser Sitzung sieht und erreicht Keyrill nur die Fenster von X11-Programmen. Mehr dazu steht im Handbuch unter „Configuration“.</translation>
    </message>
</context>
<context>
    <name>ApplicationObject</name>
    <message>
        <source>Keyrill is playing a macro.</source>
        <translation>Keyrill spielt gerade ein Makro ab.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;. There are: %2.</source>
        <translation>Es gibt keine Aktion „%1“. Es gibt: %2.</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; takes no parameter.</source>
        <translation>Die Aktion „%1“ nimmt keinen Parameter an.</translation>
    </message>
</context>
<context>
    <name>BusOwner</name>
    <message>
        <source>Keyrill has ended without an answer.</source>
        <translation>Keyrill hat sich beendet, ohne zu antworten.</translation>
    </message>
    <message>
        <source>Process %1, which has Keyrill&apos;s name on the session bus, does not answer.</source>
        <translation>Der Prozess %1, der den Namen von Keyrill auf dem Sitzungsbus hat, antwortet nicht.</translation>
    </message>
    <message>
        <source>End it and start Keyrill again.</source>
        <translation>Beenden Sie ihn und starten Sie Keyrill erneut.</translation>
    </message>
</context>
<context>
    <name>CapabilityWords</name>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Verwenden Sie einen neueren X-Server oder schalten Sie die Erweiterung in seinen Einstellungen ein.</translation>
    </message>
    <message>
        <source>by XInput</source>
        <translation>über XInput</translation>
    </message>
    <message>
        <source>by key grabs</source>
        <translation>durch Abfangen der Tasten</translation>
    </message>
    <message>
        <source>by XTEST</source>
        <translation>über XTEST</translation>
    </message>
    <message>
        <source>the X server&apos;s</source>
        <translation>die des X-Servers</translation>
    </message>
    <message>
        <source>above all windows</source>
        <translation>über allen Fenstern</translation>
    </message>
    <message>
        <source>by the window manager</source>
        <translation>durch die Fensterverwaltung</translation>
    </message>
    <message>
        <source>a tray that icons dock into</source>
        <translation>ein Systemabschnitt, in den Symbole eingebettet werden</translation>
    </message>
    <message>
        <source>a tray that asks for icons over the session bus</source>
        <translation>ein Systemabschnitt, der Symbole über den Sitzungsbus anfragt</translation>
    </message>
    <message>
        <source>by a virtual keyboard</source>
        <translation>über eine virtuelle Tastatur</translation>
    </message>
    <message>
        <source>by bindings of sway&apos;s</source>
        <translation>über Tastenzuordnungen von sway</translation>
    </message>
    <message>
        <source>by KDE&apos;s shortcuts</source>
        <translation>über die Kurzbefehle von KDE</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal, once you allow it</source>
        <translation>über das Portal der Arbeitsumgebung, sobald Sie es erlauben</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal: you choose them when it asks, and later in its settings</source>
        <translation>über das Portal der Arbeitsumgebung: Sie wählen sie, wenn es danach fragt, und später in dessen Einstellungen</translation>
    </message>
    <message>
        <source>by sway</source>
        <translation>über sway</translation>
    </message>
    <message>
        <source>by KWin</source>
        <translation>über KWin</translation>
    </message>
    <message>
        <source>what you type into a window of Keyrill&apos;s, &quot;Record Here&quot;</source>
        <translation>was Sie in das Fenster „Hier aufzeichnen“ von Keyrill tippen</translation>
    </message>
    <message>
        <source>the compositor&apos;s</source>
        <translation>die des Compositors</translation>
    </message>
    <message>
        <source>as an ordinary window</source>
        <translation>als gewöhnliches Fenster</translation>
    </message>
    <message>
        <source>on a layer above all windows</source>
        <translation>auf einer Ebene über allen Fenstern</translation>
    </message>
    <message>
        <source>from the keyboards themselves, which every program of yours may read</source>
        <translation>von den Tastaturen selbst, die jedes Ihrer Programme lesen darf</translation>
    </message>
    <message>
        <source>by keyrill-access, which asks for your password and opens the keyboard while Keyrill records</source>
        <translation>über keyrill-access, das nach Ihrem Passwort fragt und die Tastatur öffnet, solange Keyrill aufzeichnet</translation>
    </message>
    <message>
        <source>The display cannot be reached.</source>
        <translation>Die Anzeige ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Start Keyrill inside a desktop session.</source>
        <translation>Starten Sie Keyrill innerhalb einer grafischen Sitzung.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which shows keys.</source>
        <translation>Dem X-Server fehlt die Erweiterung %1, die Tastendrücke meldet.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which says what keys mean.</source>
        <translation>Dem X-Server fehlt die Erweiterung %1, die sagt, was Tasten bedeuten.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which presses keys.</source>
        <translation>Dem X-Server fehlt die Erweiterung %1, die Tasten drückt.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1: a key that is held is recorded once.</source>
        <translation>Dem X-Server fehlt die Erweiterung %1: Eine gehaltene Taste wird nur einmal aufgezeichnet.</translation>
    </message>
    <message>
        <source>The program keyrill-guard, which releases keys after a crash, is not there; nothing is played without it.</source>
        <translation>Das Programm keyrill-guard, das nach einem Absturz die Tasten loslässt, ist nicht vorhanden; ohne es wird nichts abgespielt.</translation>
    </message>
    <message>
        <source>Install Keyrill again.</source>
        <translation>Installieren Sie Keyrill erneut.</translation>
    </message>
    <message>
        <source>Only with the windows of X11 programs: this is a Wayland session.</source>
        <translation>Nur mit den Fenstern von X11-Programmen: Dies ist eine Wayland-Sitzung.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Wählen Sie bei der Anmeldung eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>There is none; a small window with the menu stands in for the icon.</source>
        <translation>Es gibt keinen; ein kleines Fenster mit dem Menü ersetzt das Symbol.</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. GNOME needs the extension &quot;AppIndicator and KStatusNotifierItem Support&quot;.</source>
        <translation>Fügen Sie der Leiste der Arbeitsumgebung einen Systemabschnitt hinzu. GNOME braucht dazu die Erweiterung „AppIndicator and KStatusNotifierItem Support“.</translation>
    </message>
    <message>
        <source>A Wayland session shows no program what is typed in others, and the service that would is not installed.</source>
        <translation>Eine Wayland-Sitzung zeigt keinem Programm, was in anderen getippt wird, und der Dienst, der das täte, ist nicht installiert.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, &quot;tools/access install&quot;; or record in an X11 session, macros play in both.</source>
        <translation>Installieren Sie das Paket keyrill-wayland-access oder führen Sie in den Quellen von Keyrill „tools/access install“ aus; oder zeichnen Sie in einer X11-Sitzung auf, Makros lassen sich in beiden abspielen.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Dieser Compositor bietet Programmen keine Tastenkürzel.</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Belegen Sie in den Einstellungen des Compositors Tasten mit Befehlen wie „keyrill --action=play“.</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>Dieser Compositor lässt kein Programm Tasten drücken.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>Verwenden Sie einen Compositor mit virtuellen Tastaturen, etwa sway, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>This desktop lets no program press keys: its portal does not answer.</source>
        <translation>Diese Arbeitsumgebung lässt kein Programm Tasten drücken: Ihr Portal antwortet nicht.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to the desktop, such as xdg-desktop-portal-kde.</source>
        <translation>Installieren Sie xdg-desktop-portal und den Teil davon, der zur Arbeitsumgebung gehört, etwa xdg-desktop-portal-kde.</translation>
    </message>
    <message>
        <source>Only characters that one of your keyboard layouts has.</source>
        <translation>Nur Zeichen, die eine Ihrer Tastaturbelegungen hat.</translation>
    </message>
    <message>
        <source>Add a layout that has them in the desktop&apos;s settings.</source>
        <translation>Fügen Sie in den Einstellungen der Arbeitsumgebung eine Belegung hinzu, die sie hat.</translation>
    </message>
    <message>
        <source>Only characters that the keyboard layout in force has.</source>
        <translation>Nur Zeichen, die die aktive Tastaturbelegung hat.</translation>
    </message>
    <message>
        <source>Switch to a layout that has the others before you play.</source>
        <translation>Wechseln Sie vor dem Abspielen zu einer Belegung, die die übrigen hat.</translation>
    </message>
    <message>
        <source>This compositor shows the clipboard to windows in front alone.</source>
        <translation>Dieser Compositor zeigt die Zwischenablage nur Fenstern im Vordergrund.</translation>
    </message>
    <message>
        <source>Scripts that use the clipboard need another compositor, such as sway, or an X11 session.</source>
        <translation>Skripte, die die Zwischenablage verwenden, brauchen einen anderen Compositor, etwa sway, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>This compositor tells nothing of other programs&apos; windows.</source>
        <translation>Dieser Compositor sagt nichts über die Fenster anderer Programme.</translation>
    </message>
    <message>
        <source>Scripts that bring a window to the front need sway, KDE or an X11 session.</source>
        <translation>Skripte, die ein Fenster in den Vordergrund holen, brauchen sway, KDE oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>Full-screen windows may cover it.</source>
        <translation>Vollbildfenster können sie verdecken.</translation>
    </message>
    <message>
        <source>Use a compositor that has layers, such as sway&apos;s or KDE&apos;s, or an X11 session.</source>
        <translation>Verwenden Sie einen Compositor, der Ebenen hat, etwa den von sway oder KDE, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>by custom shortcuts in GNOME&apos;s settings while Keyrill runs, as you have agreed; the preferences take that back</source>
        <translation>über eigene Tastenkürzel in den Einstellungen von GNOME, solange Keyrill läuft, wie Sie es erlaubt haben; in den Einstellungen von Keyrill nehmen Sie das zurück</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>Diese Version von GNOME bietet Programmen Tastenkürzel nur als eigene Tastenkürzel in Ihren Einstellungen, und Sie haben nicht erlaubt, dass Keyrill sie anlegt.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Setzen Sie in den Einstellungen von Keyrill das Häkchen, oder belegen Sie in den Einstellungen von GNOME selbst Tasten mit Befehlen wie „keyrill --action=play“.</translation>
    </message>
    <message>
        <source>by the compositor</source>
        <translation>über den Compositor</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>This compositor gives the clipboard to windows alone.</source>
        <translation>Dieser Compositor gibt die Zwischenablage nur an Fenster weiter.</translation>
    </message>
    <message>
        <source>Use a compositor with data control, such as sway, or an X11 session.</source>
        <translation>Verwenden Sie einen Compositor mit Datensteuerung (data control), etwa sway, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>No more files can be opened.</source>
        <translation>Es können keine weiteren Dateien geöffnet werden.</translation>
    </message>
    <message>
        <source>Close programs.</source>
        <translation>Beenden Sie einige Programme.</translation>
    </message>
    <message>
        <source>The text in the clipboard is too long.</source>
        <translation>Der Text in der Zwischenablage ist zu lang.</translation>
    </message>
    <message>
        <source>The clipboard is held by another program.</source>
        <translation>Die Zwischenablage wird von einem anderen Programm belegt.</translation>
    </message>
</context>
<context>
    <name>CombinationText</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Strg</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--times and --speed say how --play plays.</source>
        <translation>--times und --speed legen fest, wie --play abspielt.</translation>
    </message>
    <message>
        <source>keyrill --help tells more.</source>
        <translation>keyrill --help sagt mehr.</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Es gibt keine Option „%1“.</translation>
    </message>
    <message>
        <source>keyrill --help lists them.</source>
        <translation>keyrill --help listet sie auf.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Es gibt keine Aktion „%1“.</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Wählen Sie eine davon: %1.</translation>
    </message>
    <message>
        <source>An action takes no file, and &quot;%1&quot; was given.</source>
        <translation>Eine Aktion nimmt keine Datei an, aber „%1“ wurde angegeben.</translation>
    </message>
    <message>
        <source>Load it first: keyrill FILE.</source>
        <translation>Laden Sie sie zuerst: keyrill DATEI.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much.</source>
        <translation>„%1“ ist zu viel.</translation>
    </message>
    <message>
        <source>--list takes no name.</source>
        <translation>--list nimmt keinen Namen an.</translation>
    </message>
    <message>
        <source>A name with blanks is put in quotation marks: &quot;%1&quot;.</source>
        <translation>Ein Name mit Leerzeichen steht in Anführungszeichen: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Usage: keyrill [--session=NAME] [--] [FILE...]   start, or load macros into the one that runs
       keyrill [--session=NAME] --action=ACTION   ask the one that runs to act; starts it if need be
       keyrill [--session=NAME] --play [MACRO|FILE] [--times=N|until-stopped] [--speed=X]
                                          ask it to play one macro of the macro folder, or a file
       keyrill [--session=NAME] --show [MACRO]   ask it to show the window of the macros
       keyrill --list   print the names of the macros in the macro folder
       keyrill [--session=NAME] --check   print what works in this session, and what to do
       keyrill -h | --help | --version
ACTION is one of these: %1.
MACRO is a name that --list prints, with its group or without; without MACRO and FILE --play plays what
Play plays. A FILE without MACRO of that name, or one that begins with / or ./ is played as it is. How often
and how fast (0.25 to 4) is what belongs to the macro, unless it is given. --show chooses MACRO in the
window. Of --play, --show and --list the exit status is 0 if it was done, 1 if not, 2 if it was not
well put; standard error tells why.
NAME is the kind of desktop session; without it the program finds out itself. There are: %2
</source>
        <extracomment>Options, and what stands in capital letters, stay as they are where the program takes them as they are.</extracomment>
        <translation>Aufruf: keyrill [--session=NAME] [--] [DATEI...]   starten oder Makros in das laufende Programm laden
        keyrill [--session=NAME] --action=AKTION   eine Aktion ausführen lassen; startet das Programm nötigenfalls
        keyrill [--session=NAME] --play [MAKRO|DATEI] [--times=N|until-stopped] [--speed=X]
                                           ein Makro des Makroordners oder eine Datei abspielen lassen
        keyrill [--session=NAME] --show [MAKRO]   das Fenster der Makros zeigen lassen
        keyrill --list   die Namen der Makros im Makroordner ausgeben
        keyrill [--session=NAME] --check   ausgeben, was in dieser Sitzung funktioniert und was zu tun ist
        keyrill -h | --help | --version
AKTION ist eine von diesen: %1.
MAKRO ist ein Name, den --list ausgibt, mit seiner Gruppe oder ohne; ohne MAKRO und DATEI spielt --play ab, was
„Abspielen“ abspielt. Eine DATEI, zu der es kein MAKRO dieses Namens gibt oder die mit / oder ./ beginnt, wird so
abgespielt, wie sie ist. Wie oft und wie schnell (0.25 bis 4), bestimmt das Makro, wenn es nicht angegeben wird. --show
wählt MAKRO im Fenster aus. Bei --play, --show und --list ist der Rückgabewert 0, wenn es getan wurde, 1, wenn nicht,
und 2, wenn der Aufruf falsch war; die Standardfehlerausgabe sagt, warum.
NAME ist die Art der grafischen Sitzung; ohne ihn findet das Programm sie selbst heraus. Es gibt: %2
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one thing too many.</source>
        <translation>„%1“ ist eines zu viel.</translation>
    </message>
    <message>
        <source>Call keyrill once for each.</source>
        <translation>Rufen Sie keyrill für jedes einzeln auf.</translation>
    </message>
</context>
<context>
    <name>ControlWindow</name>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
    <message>
        <source>Keyrill &amp;menu</source>
        <translation>Keyrill-&amp;Menü</translation>
    </message>
    <message>
        <source>No tray was found, so here is the menu.</source>
        <translation>Es wurde kein Systemabschnitt gefunden, daher ist das Menü hier.</translation>
    </message>
    <message>
        <source>Keyrill is running; its menu is in the tray too.</source>
        <translation>Keyrill läuft; sein Menü ist auch im Systemabschnitt.</translation>
    </message>
</context>
<context>
    <name>DraftFiles</name>
    <message>
        <source>The folder %1 cannot be written to: %2.</source>
        <extracomment>a folder, and why</extracomment>
        <translation>In den Ordner %1 kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>A macro needs a name.</source>
        <translation>Ein Makro braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name cannot have a slash (/) in it.</source>
        <translation>Ein Name kann keinen Schrägstrich (/) enthalten.</translation>
    </message>
    <message>
        <source>A name cannot begin with a point: the file would be hidden.</source>
        <translation>Ein Name kann nicht mit einem Punkt beginnen: Die Datei wäre verborgen.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>Der Name ist zu lang für eine Datei.</translation>
    </message>
    <message>
        <source>There is already a macro called &quot;%1&quot;.</source>
        <translation>Es gibt bereits ein Makro namens „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed: %2.</source>
        <translation>„%1“ kann nicht umbenannt werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be copied: %2.</source>
        <translation>„%1“ kann nicht kopiert werden: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be put into the trash.</source>
        <translation>„%1“ kann nicht in den Papierkorb verschoben werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be brought back: %2.</source>
        <translation>„%1“ kann nicht wiederhergestellt werden: %2.</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is a code: 0xE9</extracomment>
        <translation>Zeile %1 enthält an Stelle %3 das Byte %2, eine Makrodatei kann jedoch nur ASCII enthalten.</translation>
    </message>
    <message>
        <source>Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085</extracomment>
        <translation>Zeile %1 enthält an Stelle %3 das Zeichen (%2), eine Makrodatei kann jedoch nur ASCII enthalten.</translation>
    </message>
    <message>
        <source>Line %1 has the character &quot;%2&quot; (%3) at place %4, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %4 are numbers, %2 is a character, %3 its code: U+00E9</extracomment>
        <translation>Zeile %1 enthält an Stelle %4 das Zeichen „%2“ (%3), eine Makrodatei kann jedoch nur ASCII enthalten.</translation>
    </message>
    <message>
        <source>Replace the character in the macro.</source>
        <translation>Ersetzen Sie das Zeichen im Makro.</translation>
    </message>
    <message>
        <source>The file %1 cannot be deleted: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Die Datei %1 kann nicht gelöscht werden: %2</translation>
    </message>
    <message>
        <source>Check who may write to its folder, or delete it yourself.</source>
        <translation>Prüfen Sie, wer in den Ordner der Datei schreiben darf, oder löschen Sie sie selbst.</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>Es ist ein Ordner</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Es ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Die Datei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MiB</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>Choose a smaller file.</source>
        <translation>Wählen Sie eine kleinere Datei.</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Check that the file is there and who may read it.</source>
        <translation>Prüfen Sie, ob die Datei vorhanden ist und wer sie lesen darf.</translation>
    </message>
    <message>
        <source>Make room, check who may write there, or choose another place.</source>
        <translation>Schaffen Sie Platz, prüfen Sie, wer dort schreiben darf, oder wählen Sie einen anderen Ort.</translation>
    </message>
</context>
<context>
    <name>FilesDesk</name>
    <message>
        <source>&quot;%1&quot; was not loaded</source>
        <translation>„%1“ wurde nicht geladen</translation>
    </message>
    <message>
        <source>A macro is being recorded. Stop recording first.</source>
        <translation>Es wird gerade ein Makro aufgezeichnet. Beenden Sie zuerst die Aufzeichnung.</translation>
    </message>
    <message>
        <source>The screen is locked. Unlock it first.</source>
        <translation>Der Bildschirm ist gesperrt. Entsperren Sie ihn zuerst.</translation>
    </message>
    <message>
        <source>Answer Keyrill&apos;s question first.</source>
        <translation>Beantworten Sie zuerst die Frage von Keyrill.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded</source>
        <translation>„%1“ ist geladen</translation>
    </message>
    <message>
        <source>Choose a shortcut for Play in the preferences to play it.</source>
        <translation>Wählen Sie in den Einstellungen ein Tastenkürzel für „Abspielen“, um es abzuspielen.</translation>
    </message>
    <message>
        <source>Press %1 to play it.</source>
        <translation>Drücken Sie %1, um es abzuspielen.</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The folder %1 cannot be made: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Der Ordner %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>Check who may write there.</source>
        <translation>Prüfen Sie, wer dort schreiben darf.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Der Ordner %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Check who may read it.</source>
        <translation>Prüfen Sie, wer ihn lesen darf.</translation>
    </message>
    <message>
        <source>What changes in the folder %1 is not noticed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Änderungen im Ordner %1 werden nicht bemerkt: %2</translation>
    </message>
    <message>
        <source>Start Keyrill again after changes, or raise fs.inotify.max_user_watches.</source>
        <translation>Starten Sie Keyrill nach Änderungen erneut oder erhöhen Sie fs.inotify.max_user_watches.</translation>
    </message>
    <message>
        <source>Make room, or check who may write there.</source>
        <translation>Schaffen Sie Platz oder prüfen Sie, wer dort schreiben darf.</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>A handler is called with parentheses: %1().</source>
        <translation>Ein Handler wird mit Klammern aufgerufen: %1().</translation>
    </message>
    <message>
        <source>The key has a number: key code %1.</source>
        <translation>Die Taste hat eine Nummer: key code %1.</translation>
    </message>
    <message>
        <source>Return is joined to a text so: &quot;hello&quot; &amp; return.</source>
        <translation>Die Eingabetaste wird so an einen Text angehängt: &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>Tab is joined to a text so: &quot;hello&quot; &amp; tab.</source>
        <translation>Die Tabulatortaste wird so an einen Text angehängt: &quot;hello&quot; &amp; tab.</translation>
    </message>
    <message>
        <source>A question is asked with: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</source>
        <translation>Eine Frage wird so gestellt: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</translation>
    </message>
    <message>
        <source>A number by chance is: random number from 1 to 10.</source>
        <translation>Eine Zufallszahl erhalten Sie so: random number from 1 to 10.</translation>
    </message>
    <message>
        <source>A loop is left with “exit repeat”, the script with “return”.</source>
        <translation>Eine Schleife wird mit „exit repeat“ verlassen, das Skript mit „return“.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Text wird mit „keystroke“ getippt: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A pause is written in seconds: delay 2.</source>
        <translation>Eine Pause wird in Sekunden angegeben: delay 2.</translation>
    </message>
    <message>
        <source>Errors are caught with: try … on error … end try.</source>
        <translation>Fehler werden so abgefangen: try … on error … end try.</translation>
    </message>
    <message>
        <source>Nothing is imported; the commands are there from the start: delay 2, keystroke &quot;hello&quot;.</source>
        <translation>Es muss nichts importiert werden; die Befehle sind von Anfang an vorhanden: delay 2, keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A value is printed with: log &quot;x&quot;. Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Ein Wert wird so ausgegeben: log &quot;x&quot;. Text wird mit „keystroke“ getippt: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A message is shown with: display dialog &quot;hello&quot;.</source>
        <translation>Eine Meldung wird so angezeigt: display dialog &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>What has no value is written: missing value.</source>
        <translation>Was keinen Wert hat, wird so geschrieben: missing value.</translation>
    </message>
    <message>
        <source>A window is brought to the front with: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Ein Fenster wird so in den Vordergrund geholt: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.</source>
        <translation>Ein Tastencode liegt zwischen 0 und %1; „keyrill-script keys“ gibt die Tastencodes aus, zu denen es Tasten gibt.</translation>
    </message>
    <message>
        <source>A key code is a number; a text is typed with “keystroke”.</source>
        <translation>Ein Tastencode ist eine Zahl; ein Text wird mit „keystroke“ getippt.</translation>
    </message>
    <message>
        <source>The key has a number: key code %1; “keyrill-script keys” prints all.</source>
        <translation>Die Taste hat eine Nummer: key code %1; „keyrill-script keys“ gibt alle aus.</translation>
    </message>
    <message>
        <source>The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.</source>
        <translation>Die Teile eines Datums sind year, month, day, weekday, hours, minutes, seconds und time.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Meinten Sie %1?</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: delay 0.5.</source>
        <translation>Nachkommastellen stehen nach einem Punkt: delay 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds: delay 0.5.</source>
        <translation>„delay“ zählt in Sekunden: delay 0.5.</translation>
    </message>
    <message>
        <source>A dialog gives a record; what was typed there is taken with: text returned of n.</source>
        <translation>Ein Dialog liefert einen Datensatz (record); was dort eingegeben wurde, erhalten Sie so: text returned of n.</translation>
    </message>
    <message>
        <source>A modifier stands without quotes: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>Eine Sondertaste steht ohne Anführungszeichen: using %1 down.</translation>
    </message>
    <message>
        <source>Several modifiers stand in braces: using {control down, shift down}.</source>
        <translation>Mehrere Sondertasten stehen in geschweiften Klammern: using {control down, shift down}.</translation>
    </message>
    <message>
        <source>Texts are joined with “&amp;”: &quot;one&quot; &amp; &quot;two&quot;.</source>
        <translation>Texte werden mit „&amp;“ verbunden: &quot;one&quot; &amp; &quot;two&quot;.</translation>
    </message>
    <message>
        <source>This compares and changes nothing; a variable is set with “to”: set %1 to …</source>
        <translation>Dies vergleicht nur und ändert nichts; eine Variable wird mit „to“ gesetzt: set %1 to …</translation>
    </message>
    <message>
        <source>The script has no handler of that name: on %1(…) … end %1.</source>
        <translation>Das Skript hat keinen Handler mit diesem Namen: on %1(…) … end %1.</translation>
    </message>
    <message>
        <source>No program takes a command but “activate”; press its keys: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</source>
        <translation>Programme nehmen keinen anderen Befehl als „activate“ an; drücken Sie die Tasten, die im Programm dasselbe bewirken: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</translation>
    </message>
    <message>
        <source>The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Die Sondertasten heißen command (Super), control (Strg), option (Alt) und shift (Umschalt): using %1 down.</translation>
    </message>
    <message>
        <source>An application is named: application &quot;%1&quot;.</source>
        <translation>Eine Anwendung wird so benannt: application &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Text steht zwischen geraden Anführungszeichen: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A handler has variables of its own; to share this one write there: global %1.</source>
        <translation>Ein Handler hat eigene Variablen; um diese Variable mit ihm zu teilen, schreiben Sie dort: global %1.</translation>
    </message>
    <message>
        <source>A variable is set before it is used: set %1 to … Text stands between straight quotes: &quot;%2&quot;.</source>
        <translation>Eine Variable wird gesetzt, bevor sie verwendet wird: set %1 to … Text steht zwischen geraden Anführungszeichen: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.</source>
        <translation>Eine Taste wird über ihre Nummer gedrückt: key code 36 ist die Eingabetaste. „keyrill-script keys“ gibt alle Nummern aus.</translation>
    </message>
    <message>
        <source>The date of today is “current date”; as a text: short date string of (current date).</source>
        <translation>Das heutige Datum ist „current date“; als Text: short date string of (current date).</translation>
    </message>
    <message>
        <source>Inside “tell” the script’s own handlers are called with “my”: my %1(…).</source>
        <translation>Innerhalb von „tell“ werden die eigenen Handler des Skripts mit „my“ aufgerufen: my %1(…).</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Hier ist kein Block offen; ein „if“ mit seiner Anweisung in derselben Zeile hat kein „else“.</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Hier ist kein Block offen; ein „if“ mit seiner Anweisung in derselben Zeile hat kein „end if“.</translation>
    </message>
    <message>
        <source>No block is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Hier ist kein Block offen; ein „tell … to“ in einer Zeile hat kein „end tell“.</translation>
    </message>
    <message>
        <source>No block is open here; this line is one too many.</source>
        <translation>Hier ist kein Block offen; diese Zeile ist überzählig.</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Hier ist kein „if“ offen; ein „if“ mit seiner Anweisung in derselben Zeile hat kein „else“.</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Hier ist kein „if“ offen; ein „if“ mit seiner Anweisung in derselben Zeile hat kein „end if“.</translation>
    </message>
    <message>
        <source>No “tell” is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Hier ist kein „tell“ offen; ein „tell … to“ in einer Zeile hat kein „end tell“.</translation>
    </message>
    <message>
        <source>No “%1” is open here; the block that begins in line %2 has no “end” of its own.</source>
        <extracomment>%1 is the first word of a block, &quot;repeat&quot;, %2 a number.</extracomment>
        <translation>Hier ist kein „%1“ offen; der Block, der in Zeile %2 beginnt, hat kein eigenes „end“.</translation>
    </message>
    <message>
        <source>In line %1 these are two words: %2.</source>
        <extracomment>%1 is a number, %2 what the line was meant to be, &quot;end if&quot;.</extracomment>
        <translation>In Zeile %1 sind dies zwei Wörter: %2.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 has no “end” of its own.</source>
        <translation>Der Block, der in Zeile %1 beginnt, hat kein eigenes „end“.</translation>
    </message>
    <message>
        <source>The text that begins here is not closed by a straight quote in its line.</source>
        <translation>Der Text, der hier beginnt, wird in seiner Zeile nicht durch ein gerades Anführungszeichen geschlossen.</translation>
    </message>
    <message>
        <source>The comment that begins in line %1 is not closed by “*)”.</source>
        <translation>Der Kommentar, der in Zeile %1 beginnt, wird nicht durch „*)“ geschlossen.</translation>
    </message>
    <message>
        <source>The keyboard commands stand inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Die Tastaturbefehle stehen innerhalb von „tell application &quot;System Events&quot;“ … „end tell“.</translation>
    </message>
    <message>
        <source>Modifiers are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Sondertasten sind innerhalb von „tell application &quot;System Events&quot;“ … „end tell“ bekannt.</translation>
    </message>
    <message>
        <source>Processes are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Prozesse sind innerhalb von „tell application &quot;System Events&quot;“ … „end tell“ bekannt.</translation>
    </message>
    <message>
        <source>Put straight quotes (&quot;) in place of the curly ones.</source>
        <translation>Setzen Sie gerade Anführungszeichen (&quot;) anstelle der typografischen.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to 5.</source>
        <translation>Eine Variable wird mit „to“ gesetzt: set x to 5.</translation>
    </message>
    <message>
        <source>A loop is written: repeat with i from 1 to 5 … end repeat.</source>
        <translation>Eine Schleife wird so geschrieben: repeat with i from 1 to 5 … end repeat.</translation>
    </message>
    <message>
        <source>A handler is written: on greet(x) … end greet.</source>
        <translation>Ein Handler wird so geschrieben: on greet(x) … end greet.</translation>
    </message>
    <message>
        <source>Several stand in braces: {control down, shift down}, {36, 48}.</source>
        <translation>Mehrere Angaben stehen in geschweiften Klammern: {control down, shift down}, {36, 48}.</translation>
    </message>
    <message>
        <source>These are two words: else if … then.</source>
        <translation>Dies sind zwei Wörter: else if … then.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, and Return joined with “&amp;”: keystroke &quot;hello&quot; &amp; return.</source>
        <translation>Text wird mit „keystroke“ getippt und die Eingabetaste mit „&amp;“ angehängt: keystroke &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and let go with: key up 36.</source>
        <translation>Eine Taste wird so gedrückt und wieder losgelassen: keystroke return, key code 53. Gehalten wird sie mit: key down 36, und losgelassen mit: key up 36.</translation>
    </message>
    <message>
        <source>A macro has no mouse; press the keys that do the same, as Tab and Return.</source>
        <translation>Ein Makro hat keine Maus; drücken Sie die Tasten, die dasselbe bewirken, etwa die Tabulatortaste und die Eingabetaste.</translation>
    </message>
    <message>
        <source>Conditions are joined with “and” or “or”.</source>
        <translation>Bedingungen werden mit „and“ oder „or“ verbunden.</translation>
    </message>
    <message>
        <source>Of a process its name is known, and whether it is in front: every process whose name contains &quot;fire&quot;.</source>
        <translation>Von einem Prozess ist bekannt, wie er heißt und ob er im Vordergrund ist: every process whose name contains &quot;fire&quot;.</translation>
    </message>
    <message>
        <source>Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.</source>
        <translation>Fenster, Knöpfe und Menüs sind für ein Makro nicht sichtbar; drücken Sie die Tasten, die dasselbe bewirken.</translation>
    </message>
    <message>
        <source>Modifiers stand behind “using”: keystroke &quot;s&quot; using control down.</source>
        <translation>Sondertasten stehen hinter „using“: keystroke &quot;s&quot; using control down.</translation>
    </message>
    <message>
        <source>What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.</source>
        <translation>Was mehrmals ausgeführt wird, steht in eigenen Zeilen zwischen „repeat 5 times“ und „end repeat“.</translation>
    </message>
    <message>
        <source>Each statement has a line of its own.</source>
        <translation>Jede Anweisung hat eine eigene Zeile.</translation>
    </message>
    <message>
        <source>A macro has no files; a text comes from “the clipboard” or from a dialog.</source>
        <translation>Ein Makro hat keinen Zugriff auf Dateien; ein Text kommt aus „the clipboard“ oder aus einem Dialog.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to x + 1.</source>
        <translation>Eine Variable wird mit „to“ gesetzt: set x to x + 1.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed in this line.</source>
        <translation>Eine runde Klammer wird in dieser Zeile nicht geschlossen.</translation>
    </message>
    <message>
        <source>A brace is not closed in this line.</source>
        <translation>Eine geschweifte Klammer wird in dieser Zeile nicht geschlossen.</translation>
    </message>
    <message>
        <source>Press the keys that start it, or bring a window to the front: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Drücken Sie die Tasten, die das Programm starten, oder holen Sie ein Fenster in den Vordergrund: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>Write the command by its name.</source>
        <translation>Schreiben Sie den Befehl mit seinem Namen.</translation>
    </message>
    <message>
        <source>A shortcut is written: keystroke &quot;c&quot; using control down.</source>
        <translation>Eine Tastenkombination wird so geschrieben: keystroke &quot;c&quot; using control down.</translation>
    </message>
    <message>
        <source>Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat.</source>
        <translation>Nur Prozesse werden mit „whose“ ausgewählt; eine Liste gehen Sie so durch: repeat with x in theList … end repeat.</translation>
    </message>
    <message>
        <source>Behind “default answer” stands a text, be it empty: default answer &quot;&quot;.</source>
        <translation>Hinter „default answer“ steht ein Text, auch wenn er leer ist: default answer &quot;&quot;.</translation>
    </message>
    <message>
        <source>An “if” in one line has no “else”; write it in lines, with “end if”.</source>
        <translation>Ein „if“ in einer Zeile hat kein „else“; schreiben Sie es in mehreren Zeilen, mit „end if“.</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: 0.5.</source>
        <translation>Nachkommastellen stehen nach einem Punkt: 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds, without a unit: delay 0.5.</source>
        <translation>„delay“ zählt in Sekunden, ohne Einheit: delay 0.5.</translation>
    </message>
    <message>
        <source>A key is let go with: key up &quot;a&quot;.</source>
        <translation>Eine Taste wird so losgelassen: key up &quot;a&quot;.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, a key is pressed by its number: key code 36.</source>
        <translation>Text wird mit „keystroke“ getippt, eine Taste wird über ihre Nummer gedrückt: key code 36.</translation>
    </message>
    <message>
        <source>A key is held with “key down” and let go with “key up”: key down shift.</source>
        <translation>Eine Taste wird mit „key down“ gehalten und mit „key up“ losgelassen: key down shift.</translation>
    </message>
    <message>
        <source>The text in the clipboard is: the clipboard.</source>
        <translation>Den Text in der Zwischenablage erhalten Sie so: the clipboard.</translation>
    </message>
    <message>
        <source>A loop is written: repeat 5 times … end repeat.</source>
        <translation>Eine Schleife wird so geschrieben: repeat 5 times … end repeat.</translation>
    </message>
    <message>
        <source>Behind the name stands “to”, or the line ends there: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</source>
        <translation>Hinter dem Namen steht „to“, oder die Zeile endet dort: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</translation>
    </message>
    <message>
        <source>The name stands between straight quotes: tell application &quot;System Events&quot;.</source>
        <translation>Der Name steht zwischen geraden Anführungszeichen: tell application &quot;System Events&quot;.</translation>
    </message>
    <message>
        <source>A loop is written: repeat while x &lt; 5 … end repeat.</source>
        <translation>Eine Schleife wird so geschrieben: repeat while x &lt; 5 … end repeat.</translation>
    </message>
    <message>
        <source>A comment begins with -- or #.</source>
        <translation>Ein Kommentar beginnt mit -- oder #.</translation>
    </message>
    <message>
        <source>A comment over lines is written (* … *).</source>
        <translation>Ein Kommentar über mehrere Zeilen wird so geschrieben: (* … *).</translation>
    </message>
    <message>
        <source>“Equal” is written with one =.</source>
        <translation>„Gleich“ wird mit einem einzelnen = geschrieben.</translation>
    </message>
    <message>
        <source>A text is not closed by a straight quote.</source>
        <translation>Ein Text wird nicht durch ein gerades Anführungszeichen geschlossen.</translation>
    </message>
    <message>
        <source>A backslash in a text is written twice: &quot;C:\\Users&quot;.</source>
        <translation>Ein umgekehrter Schrägstrich in einem Text wird doppelt geschrieben: &quot;C:\\Users&quot;.</translation>
    </message>
    <message>
        <source>Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.</source>
        <translation>Hinter „as“ steht eine Klasse: text, integer, real, number, boolean, list, record, date.</translation>
    </message>
    <message>
        <source>A block has no braces: if x = 1 then … end if.</source>
        <translation>Ein Block hat keine geschweiften Klammern: if x = 1 then … end if.</translation>
    </message>
    <message>
        <source>A block has no braces; it ends with “end” and its first word: end repeat.</source>
        <translation>Ein Block hat keine geschweiften Klammern; er endet mit „end“ und seinem ersten Wort: end repeat.</translation>
    </message>
    <message>
        <source>A line needs no colon at its end.</source>
        <translation>Eine Zeile braucht am Ende keinen Doppelpunkt.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|.</source>
        <translation>Ein Name mit anderen Buchstaben als A bis Z steht zwischen senkrechten Strichen: |%1|.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Ein Name mit anderen Buchstaben als A bis Z steht zwischen senkrechten Strichen: |%1|. Text steht zwischen geraden Anführungszeichen: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A sign that nobody sees stands here; delete it.</source>
        <translation>Hier steht ein unsichtbares Zeichen; löschen Sie es.</translation>
    </message>
    <message>
        <source>A hot key is no part of a script; it is set in the preferences, or for each macro in “Macros...”.</source>
        <extracomment>“Macros...” is an entry of the menu.</extracomment>
        <translation>Ein Tastenkürzel ist kein Teil eines Skripts; es wird in den Einstellungen festgelegt oder für jedes Makro unter „Makros...“.</translation>
    </message>
    <message>
        <source>“Not equal” is written ≠ or /=.</source>
        <translation>„Ungleich“ wird als ≠ oder /= geschrieben.</translation>
    </message>
    <message>
        <source>An item is taken by its number: item 1 of x.</source>
        <translation>Ein Element erhalten Sie über seine Nummer: item 1 of x.</translation>
    </message>
    <message>
        <source>What belongs to a value is taken with “of”: length of x.</source>
        <translation>Was zu einem Wert gehört, erhalten Sie mit „of“: length of x.</translation>
    </message>
    <message>
        <source>A list stands in braces: {1, 2}.</source>
        <translation>Eine Liste steht in geschweiften Klammern: {1, 2}.</translation>
    </message>
    <message>
        <source>The rest of a division is written: 7 mod 2.</source>
        <translation>Der Rest einer Division wird so geschrieben: 7 mod 2.</translation>
    </message>
    <message>
        <source>Text stands between straight double quotes (&quot;).</source>
        <translation>Text steht zwischen geraden doppelten Anführungszeichen (&quot;).</translation>
    </message>
    <message>
        <source>A quote inside a text is written \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</source>
        <translation>Ein Anführungszeichen in einem Text wird als \&quot; geschrieben: &quot;Hello \&quot;world\&quot;&quot;.</translation>
    </message>
    <message>
        <source>Take the items in parts, or paragraphs instead of characters.</source>
        <translation>Holen Sie die Elemente in mehreren Teilen, oder verwenden Sie Absätze statt Zeichen.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 ends with “%2”.</source>
        <extracomment>%1 is a number, %2 the last line of a block, &quot;end if&quot;.</extracomment>
        <translation>Der Block, der in Zeile %1 beginnt, endet mit „%2“.</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>GNOME&apos;s settings cannot be changed</source>
        <translation>Die Einstellungen von GNOME können nicht geändert werden</translation>
    </message>
    <message>
        <source>your settings of GNOME have another entry in its place</source>
        <translation>In Ihren Einstellungen von GNOME steht an dieser Stelle ein anderer Eintrag</translation>
    </message>
    <message>
        <source>your own shortcut “%1” in GNOME&apos;s settings has it</source>
        <translation>Ihr eigenes Tastenkürzel „%1“ in den Einstellungen von GNOME verwendet diese Kombination</translation>
    </message>
    <message>
        <source>GNOME has it for “%1”</source>
        <translation>GNOME verwendet diese Kombination für „%1“</translation>
    </message>
    <message>
        <source>GNOME has no name for it</source>
        <translation>GNOME hat keinen Namen für diese Kombination</translation>
    </message>
    <message>
        <source>it has been taken out of GNOME&apos;s settings</source>
        <translation>Das Tastenkürzel wurde aus den Einstellungen von GNOME entfernt</translation>
    </message>
    <message>
        <source>KDE has no name for this key</source>
        <translation>KDE hat keinen Namen für diese Taste</translation>
    </message>
    <message>
        <source>KDE says: %1</source>
        <translation>KDE meldet: %1</translation>
    </message>
    <message>
        <source>KDE uses it for something else</source>
        <translation>KDE verwendet diese Kombination für etwas anderes</translation>
    </message>
    <message>
        <source>KDE does not give it</source>
        <translation>KDE stellt diese Kombination nicht zur Verfügung</translation>
    </message>
    <message>
        <source>%1 has it for “%2”</source>
        <translation>%1 verwendet diese Kombination für „%2“</translation>
    </message>
    <message>
        <source>the desktop has not granted it</source>
        <translation>Die Arbeitsumgebung hat diese Kombination nicht gewährt</translation>
    </message>
    <message>
        <source>you did not agree when the desktop asked</source>
        <translation>Sie haben nicht zugestimmt, als die Arbeitsumgebung gefragt hat</translation>
    </message>
    <message>
        <source>the desktop has not answered</source>
        <translation>Die Arbeitsumgebung hat nicht geantwortet</translation>
    </message>
    <message>
        <source>the desktop has refused it</source>
        <translation>Die Arbeitsumgebung hat diese Kombination abgelehnt</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>Es gibt keinen Sitzungsbus</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal does not answer</source>
        <translation>Das Portal der Arbeitsumgebung antwortet nicht</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal gives no hot keys</source>
        <translation>Das Portal der Arbeitsumgebung bietet keine Tastenkürzel</translation>
    </message>
    <message>
        <source>the desktop has taken it back</source>
        <translation>Die Arbeitsumgebung hat diese Kombination zurückgenommen</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal has ended</source>
        <translation>Das Portal der Arbeitsumgebung hat sich beendet</translation>
    </message>
    <message>
        <source>your configuration of sway binds it</source>
        <translation>Ihre Konfiguration von sway belegt diese Kombination</translation>
    </message>
    <message>
        <source>Choose another combination.</source>
        <translation>Wählen Sie eine andere Kombination.</translation>
    </message>
    <message>
        <source>Choose another combination, or allow it in the desktop&apos;s settings.</source>
        <translation>Wählen Sie eine andere Kombination oder erlauben Sie diese in den Einstellungen der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Choose another combination, or free it in the program that holds it.</source>
        <translation>Wählen Sie eine andere Kombination oder geben Sie diese in dem Programm frei, das sie belegt.</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2.</source>
        <extracomment>%1 is a combination of keys, %2 one of the reasons: another program holds it</extracomment>
        <translation>%1 kann nicht verwendet werden: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the third level (AltGr).</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 kann nicht verwendet werden: Die Tastaturbelegung hat keine Taste für die dritte Ebene (AltGr).</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the fifth level.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 kann nicht verwendet werden: Die Tastaturbelegung hat keine Taste für die fünfte Ebene.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for %2.</source>
        <extracomment>%1 is a combination of keys, %2 a modifier: Super</extracomment>
        <translation>%1 kann nicht verwendet werden: Die Tastaturbelegung hat keine Taste für %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: Keyrill uses it for something else.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 kann nicht verwendet werden: Keyrill verwendet diese Kombination für etwas anderes.</translation>
    </message>
    <message>
        <source>%1 cannot be used: this desktop has no such key.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 kann nicht verwendet werden: Diese Arbeitsumgebung hat keine solche Taste.</translation>
    </message>
    <message>
        <source>%1 cannot be used: nobody could type it any more.</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>%1 kann nicht verwendet werden: Niemand könnte diese Taste dann noch tippen.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super.</source>
        <translation>Nehmen Sie Strg, Alt oder Super hinzu.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Dieser Compositor bietet Programmen keine Tastenkürzel.</translation>
    </message>
    <message>
        <source>this compositor gives no hot keys to programs</source>
        <translation>Dieser Compositor bietet Programmen keine Tastenkürzel</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>Ein anderes Programm belegt diese Kombination</translation>
    </message>
    <message>
        <source>the X server refuses it with error %1</source>
        <translation>Der X-Server lehnt diese Kombination mit dem Fehler %1 ab</translation>
    </message>
    <message>
        <source>the X server is gone</source>
        <translation>Der X-Server ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Belegen Sie in den Einstellungen des Compositors Tasten mit Befehlen wie „keyrill --action=play“.</translation>
    </message>
    <message>
        <source>GNOME has hot keys only in your own settings, which Keyrill may not change.</source>
        <translation>GNOME bietet Tastenkürzel nur in Ihren eigenen Einstellungen, die Keyrill nicht ändern darf.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Setzen Sie in den Einstellungen von Keyrill das Häkchen, oder belegen Sie in den Einstellungen von GNOME selbst Tasten mit Befehlen wie „keyrill --action=play“.</translation>
    </message>
</context>
<context>
    <name>Keyboards</name>
    <message>
        <source>The keyboard cannot be read: %1: %2.</source>
        <translation>Die Tastatur kann nicht gelesen werden: %1: %2.</translation>
    </message>
    <message>
        <source>Let the keyboard be read while a macro is recorded.</source>
        <translation>Erlauben Sie, dass die Tastatur gelesen wird, während ein Makro aufgezeichnet wird.</translation>
    </message>
    <message>
        <source>The keyboard can no longer be read: the permission has ended.</source>
        <translation>Die Tastatur kann nicht mehr gelesen werden: Die Erlaubnis ist erloschen.</translation>
    </message>
    <message>
        <source>Another user&apos;s session may be in front, or the screen is locked.</source>
        <translation>Vielleicht ist die Sitzung eines anderen Benutzers im Vordergrund oder der Bildschirm ist gesperrt.</translation>
    </message>
    <message>
        <source>The keyboard cannot be read: there is no system bus.</source>
        <translation>Die Tastatur kann nicht gelesen werden: Es gibt keinen Systembus.</translation>
    </message>
    <message>
        <source>What it says stands in the system&apos;s journal: journalctl -u keyrill-access.</source>
        <translation>Seine Meldungen stehen im Systemjournal: journalctl -u keyrill-access.</translation>
    </message>
    <message>
        <source>The keyboard is no longer read: the service keyrill-access has ended.</source>
        <translation>Die Tastatur wird nicht mehr gelesen: Der Dienst keyrill-access hat sich beendet.</translation>
    </message>
    <message>
        <source>Keyrill may not read the keyboard: permission was not given.</source>
        <translation>Keyrill darf die Tastatur nicht lesen: Die Erlaubnis wurde nicht erteilt.</translation>
    </message>
    <message>
        <source>Record again and agree when you are asked for your password.</source>
        <translation>Zeichnen Sie erneut auf und stimmen Sie zu, wenn Sie nach Ihrem Passwort gefragt werden.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access is not installed.</source>
        <translation>Keyrill kann die Tastatur nicht lesen: Der Dienst keyrill-access ist nicht installiert.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, tools/access install.</source>
        <translation>Installieren Sie das Paket keyrill-wayland-access oder führen Sie in den Quellen von Keyrill den Befehl tools/access install aus.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access does not work.</source>
        <translation>Keyrill kann die Tastatur nicht lesen: Der Dienst keyrill-access funktioniert nicht.</translation>
    </message>
    <message>
        <source>A Wayland session shows this program nothing of what is typed in others.</source>
        <translation>Eine Wayland-Sitzung zeigt diesem Programm nichts von dem, was in anderen getippt wird.</translation>
    </message>
    <message>
        <source>Record with keyrill itself, or use an X11 session.</source>
        <translation>Zeichnen Sie mit keyrill selbst auf oder verwenden Sie eine X11-Sitzung.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>This desktop lets no program press keys: no portal for it answers.</source>
        <translation>Diese Arbeitsumgebung lässt kein Programm Tasten drücken: Kein Portal dafür antwortet.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to your desktop.</source>
        <translation>Installieren Sie xdg-desktop-portal und den Teil davon, der zu Ihrer Arbeitsumgebung gehört.</translation>
    </message>
    <message>
        <source>The desktop was not allowed to let Keyrill press keys.</source>
        <translation>Der Arbeitsumgebung wurde nicht erlaubt, Keyrill Tasten drücken zu lassen.</translation>
    </message>
    <message>
        <source>Play again, and agree when you are asked.</source>
        <translation>Spielen Sie das Makro erneut ab und stimmen Sie zu, wenn Sie gefragt werden.</translation>
    </message>
    <message>
        <source>The desktop has not answered whether Keyrill may press keys.</source>
        <translation>Die Arbeitsumgebung hat die Frage nicht beantwortet, ob Keyrill Tasten drücken darf.</translation>
    </message>
    <message>
        <source>Play again; if nothing asks you, log in again.</source>
        <translation>Spielen Sie das Makro erneut ab; wenn Sie nicht gefragt werden, melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>The desktop no longer lets Keyrill press keys.</source>
        <translation>Die Arbeitsumgebung lässt Keyrill keine Tasten mehr drücken.</translation>
    </message>
    <message>
        <source>Play again; it may ask for your permission.</source>
        <translation>Spielen Sie das Makro erneut ab; vielleicht werden Sie um Ihre Erlaubnis gebeten.</translation>
    </message>
    <message>
        <source>The power key cannot be pressed by a script.</source>
        <translation>Die Ein-/Aus-Taste kann nicht von einem Skript gedrückt werden.</translation>
    </message>
    <message>
        <source>Take key code 127 out of the script.</source>
        <translation>Entfernen Sie den Tastencode 127 aus dem Skript.</translation>
    </message>
    <message>
        <source>The text to type is not UTF-8 at byte %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Der zu tippende Text ist bei Byte %1 kein UTF-8.</translation>
    </message>
    <message>
        <source>Save the script as UTF-8.</source>
        <translation>Speichern Sie das Skript als UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1...&quot;</source>
        <extracomment>The beginning of a text that is longer, in quotation marks.</extracomment>
        <translation>„%1...“</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>A text in quotation marks.</extracomment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <extracomment>%1 is a character, %2 its code: U+00E9</extracomment>
        <translation>„%1“ (%2)</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with the keyboard layout that is in force.</source>
        <translation>Das Zeichen %1 kann mit der aktiven Tastaturbelegung nicht getippt werden.</translation>
    </message>
    <message>
        <source>Take it out of the text, or switch to a layout that has it before you play.</source>
        <translation>Entfernen Sie es aus dem Text oder wechseln Sie vor dem Abspielen zu einer Belegung, die es hat.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with your keyboard layouts.</source>
        <translation>Das Zeichen %1 kann mit Ihren Tastaturbelegungen nicht getippt werden.</translation>
    </message>
    <message>
        <source>Take it out of the text, or add a layout that has it.</source>
        <translation>Entfernen Sie es aus dem Text oder fügen Sie eine Belegung hinzu, die es hat.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with this keyboard layout.</source>
        <translation>Das Zeichen %1 kann mit dieser Tastaturbelegung nicht getippt werden.</translation>
    </message>
    <message>
        <source>Take it out of the text, or set a layout that has it.</source>
        <translation>Entfernen Sie es aus dem Text oder stellen Sie eine Belegung ein, die es hat.</translation>
    </message>
    <message>
        <source>The keymap for typing could not be made.</source>
        <translation>Die Tastenbelegung zum Tippen konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>Dieser Compositor lässt kein Programm Tasten drücken.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>Verwenden Sie einen Compositor mit virtuellen Tastaturen, etwa sway, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>A script is running already.</source>
        <translation>Es läuft bereits ein Skript.</translation>
    </message>
    <message>
        <source>Wait for its end.</source>
        <translation>Warten Sie, bis es zu Ende ist.</translation>
    </message>
    <message>
        <source>The key %1 types no character.</source>
        <translation>Die Taste %1 erzeugt kein Zeichen.</translation>
    </message>
    <message>
        <source>A Wayland session has no bell.</source>
        <translation>Eine Wayland-Sitzung hat keinen Signalton.</translation>
    </message>
    <message>
        <source>Take the beep out of the script.</source>
        <translation>Entfernen Sie den Signalton aus dem Skript.</translation>
    </message>
    <message>
        <source>KDE lets no program press keys: its portal does not answer.</source>
        <translation>KDE lässt kein Programm Tasten drücken: Sein Portal antwortet nicht.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal-kde, or use an X11 session.</source>
        <translation>Installieren Sie xdg-desktop-portal-kde oder verwenden Sie eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, such as KDE and GNOME, or an X11 session.</source>
        <translation>Verwenden Sie einen Compositor mit virtuellen Tastaturen, etwa sway, eine Arbeitsumgebung, deren Portal Tasten drückt, etwa KDE oder GNOME, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>The keyboard layout was changed while text was typed, which may have arrived as something else: %1.</source>
        <translation>Die Tastaturbelegung wurde gewechselt, während Text getippt wurde, der deshalb vielleicht anders angekommen ist: %1.</translation>
    </message>
    <message>
        <source>Play it again when the layout stays as it is.</source>
        <translation>Spielen Sie das Makro erneut ab, wenn die Belegung bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard, so that no keys can be pressed.</source>
        <translation>Ein anderes Programm belegt die Tastatur, sodass keine Tasten gedrückt werden können.</translation>
    </message>
    <message>
        <source>Close the menu, the question or the screen lock that is open, and play again.</source>
        <translation>Schließen Sie das Menü, die Rückfrage oder die Bildschirmsperre, die gerade offen ist, und spielen Sie das Makro erneut ab.</translation>
    </message>
    <message>
        <source>The X server refuses to put characters on unused keys.</source>
        <translation>Der X-Server lehnt es ab, Zeichen auf unbenutzte Tasten zu legen.</translation>
    </message>
    <message>
        <source>Use characters of the keyboard layout, or set another layout.</source>
        <translation>Verwenden Sie Zeichen der Tastaturbelegung oder stellen Sie eine andere Belegung ein.</translation>
    </message>
    <message>
        <source>The program that is typed into reads nothing; not typed: %1.</source>
        <translation>Das Programm, in das getippt wird, liest nichts; nicht getippt: %1.</translation>
    </message>
    <message>
        <source>Play it again when the program reads its keys.</source>
        <translation>Spielen Sie das Makro erneut ab, wenn das Programm seine Tasten liest.</translation>
    </message>
    <message>
        <source>The program that was typed into has not read all of it.</source>
        <translation>Das Programm, in das getippt wurde, hat nicht alles gelesen.</translation>
    </message>
    <message>
        <source>See whether it hangs; what it reads later may lack characters.</source>
        <translation>Prüfen Sie, ob es hängt; in dem, was es später liest, können Zeichen fehlen.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.</source>
        <translation>Die Wiederholungen gehaltener Tasten können nicht aufgezeichnet werden: Der X-Server hat keine Erweiterung RECORD.</translation>
    </message>
    <message>
        <source>A held key is recorded as one press. Switch the extension on in the settings of the X server.</source>
        <translation>Eine gehaltene Taste wird als ein Tastendruck aufgezeichnet. Schalten Sie die Erweiterung in den Einstellungen des X-Servers ein.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys can no longer be recorded: the X server has ended it.</source>
        <translation>Die Wiederholungen gehaltener Tasten können nicht mehr aufgezeichnet werden: Der X-Server hat dies beendet.</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>This is a script of its own: line %1 cannot be changed here. What it would press is shown; change it under Script.</source>
        <translation>Dies ist ein eigenes Skript: Zeile %1 lässt sich hier nicht ändern. Gezeigt wird, was es drücken würde; ändern können Sie es unter „Skript“.</translation>
    </message>
    <message>
        <source>Keys of the macro</source>
        <translation>Tasten des Makros</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Record Keys</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Record keys behind the selected step</source>
        <translation>Tasten hinter dem ausgewählten Schritt aufzeichnen</translation>
    </message>
    <message>
        <source>Add Pause</source>
        <translation>Pause einfügen</translation>
    </message>
    <message>
        <source>A pause behind the selected step</source>
        <translation>Eine Pause hinter dem ausgewählten Schritt</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change the text, the pause or how often a key is pressed</source>
        <translation>Den Text, die Pause oder die Anzahl der Tastendrücke ändern</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>The selected steps once more</source>
        <translation>Die ausgewählten Schritte noch einmal</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben verschieben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten verschieben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected steps</source>
        <translation>Die ausgewählten Schritte entfernen</translation>
    </message>
    <message>
        <source>Convert to Text</source>
        <translation>Als Text</translation>
    </message>
    <message>
        <source>Type the same under every keyboard layout</source>
        <translation>Mit jeder Tastaturbelegung dasselbe tippen</translation>
    </message>
    <message>
        <source>Convert to Keys</source>
        <translation>Als Tasten</translation>
    </message>
    <message>
        <source>Press the keys of the present keyboard layout</source>
        <translation>Die Tasten der aktuellen Tastaturbelegung drücken</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>No key of the present keyboard layout types &quot;%1&quot;.</source>
        <extracomment>%1 is a character.</extracomment>
        <translation>Keine Taste der aktuellen Tastaturbelegung erzeugt „%1“.</translation>
    </message>
    <message>
        <source>Convert the keys to text, which types any character.</source>
        <translation>Wandeln Sie die Tasten in Text um; damit lässt sich jedes Zeichen tippen.</translation>
    </message>
    <message>
        <source>GNOME lets no program switch the keyboard layout.</source>
        <translation>GNOME lässt kein Programm die Tastaturbelegung wechseln.</translation>
    </message>
    <message>
        <source>The desktop has no keyboard layout of that number.</source>
        <translation>Die Arbeitsumgebung hat keine Tastaturbelegung mit dieser Nummer.</translation>
    </message>
    <message>
        <source>This desktop lets no program switch the keyboard layout.</source>
        <translation>Diese Arbeitsumgebung lässt kein Programm die Tastaturbelegung wechseln.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the third level (AltGr).</source>
        <translation>Die Tastaturbelegung hat keine Taste für die dritte Ebene (AltGr).</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the fifth level.</source>
        <translation>Die Tastaturbelegung hat keine Taste für die fünfte Ebene.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for %1.</source>
        <extracomment>%1 is a modifier: Super</extracomment>
        <translation>Die Tastaturbelegung hat keine Taste für %1.</translation>
    </message>
    <message>
        <source>Choose a keyboard layout that has one.</source>
        <translation>Wählen Sie eine Tastaturbelegung, die eine solche Taste hat.</translation>
    </message>
    <message>
        <source>The keyboard has no layout %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Die Tastatur hat keine Belegung %1.</translation>
    </message>
    <message>
        <source>Add it to the keyboard layouts, or record the macro again.</source>
        <translation>Fügen Sie sie den Tastaturbelegungen hinzu oder zeichnen Sie das Makro erneut auf.</translation>
    </message>
    <message>
        <source>The keymap of the X server cannot be read.</source>
        <translation>Die Tastenbelegung des X-Servers kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Set a keyboard layout, or log in again.</source>
        <translation>Stellen Sie eine Tastaturbelegung ein oder melden Sie sich neu an.</translation>
    </message>
</context>
<context>
    <name>LibraryController</name>
    <message>
        <source>&quot;%1&quot; was not played</source>
        <translation>„%1“ wurde nicht abgespielt</translation>
    </message>
    <message>
        <source>Hot keys of macros</source>
        <translation>Tastenkürzel der Makros</translation>
    </message>
    <message>
        <source>The history</source>
        <translation>Der Verlauf</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>LogIn</name>
    <message>
        <source>The file %1 cannot be removed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Die Datei %1 kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>Check who may write in its folder.</source>
        <translation>Prüfen Sie, wer in ihrem Ordner schreiben darf.</translation>
    </message>
    <message>
        <source>A program whose path has a percent sign cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Ein Programm, dessen Pfad ein Prozentzeichen enthält, kann bei der Anmeldung nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>Move the program to a folder without one.</source>
        <translation>Verschieben Sie das Programm in einen Ordner ohne Prozentzeichen.</translation>
    </message>
    <message>
        <source>A program whose path is not UTF-8 cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Ein Programm, dessen Pfad kein UTF-8 ist, kann bei der Anmeldung nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>Move the program to another folder.</source>
        <translation>Verschieben Sie das Programm in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>A program in a sandbox cannot make an entry that starts it at log-in.</source>
        <translation>Ein Programm in einer Sandbox kann keinen Eintrag anlegen, der es bei der Anmeldung startet.</translation>
    </message>
    <message>
        <source>Add Keyrill to the programs that start at log-in, in your desktop&apos;s settings.</source>
        <translation>Fügen Sie Keyrill in den Einstellungen Ihrer Arbeitsumgebung den Programmen hinzu, die bei der Anmeldung starten.</translation>
    </message>
</context>
<context>
    <name>MacroCalls</name>
    <message>
        <source>Keyrill does not answer.</source>
        <translation>Keyrill antwortet nicht.</translation>
    </message>
    <message>
        <source>Perhaps its macro folder cannot be reached.</source>
        <translation>Vielleicht ist sein Makroordner nicht erreichbar.</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>S&amp;cript</source>
        <translation>Sk&amp;ript</translation>
    </message>
</context>
<context>
    <name>MacroFilePanel</name>
    <message>
        <source>Keyrill macros (*.%1)</source>
        <translation>Keyrill-Makros (*.%1)</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>Makro speichern</translation>
    </message>
    <message>
        <source>Load Macro</source>
        <translation>Makro laden</translation>
    </message>
    <message>
        <source>This name is too long for a file.</source>
        <translation>Dieser Name ist zu lang für eine Datei.</translation>
    </message>
</context>
<context>
    <name>MacroList</name>
    <message>
        <source>The folder %1 does not answer.</source>
        <translation>Der Ordner %1 antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>MacroListModel</name>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a macro and its hot key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>MacroSettingsRow</name>
    <message>
        <source>Hot key</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;Hot key:</source>
        <translation>Tasten&amp;kürzel:</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Durchläufe</translation>
    </message>
    <message>
        <source>Unt&amp;il stopped</source>
        <translation>Bis zum An&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>Dur&amp;chläufe:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>behind a number: so many times as fast</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>The pauses of the macro are divided by this</source>
        <translation>Die Pausen des Makros werden durch diesen Wert geteilt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Sp&amp;eed:</source>
        <translation>Te&amp;mpo:</translation>
    </message>
</context>
<context>
    <name>MacroSteps</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Pause %1 s</source>
        <translation>Pause %1 s</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Text: %1</translation>
    </message>
    <message>
        <source>Hold %1</source>
        <extracomment>a key that goes down and stays there</extracomment>
        <translation>%1 halten</translation>
    </message>
    <message>
        <source>Let go of %1</source>
        <translation>%1 loslassen</translation>
    </message>
    <message>
        <source>Ask: %1</source>
        <extracomment>a dialog of a script, with its question</extracomment>
        <translation>Fragen: %1</translation>
    </message>
    <message>
        <source>Tell: %1</source>
        <translation>Melden: %1</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>%1 tippen</translation>
    </message>
    <message>
        <source>Press %1</source>
        <translation>%1 drücken</translation>
    </message>
    <message numerus="yes">
        <source>Press %1 %Ln times</source>
        <translation>
            <numerusform>%1 %Ln-mal drücken</numerusform>
            <numerusform>%1 %Ln-mal drücken</numerusform>
        </translation>
    </message>
    <message>
        <source>Wait %1 seconds</source>
        <translation>%1 Sekunden warten</translation>
    </message>
    <message numerus="yes">
        <source>Wait %1 seconds, %Ln times</source>
        <translation>
            <numerusform>%1 Sekunden warten, %Ln-mal</numerusform>
            <numerusform>%1 Sekunden warten, %Ln-mal</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacrosDesk</name>
    <message>
        <source>Play has the latest macro until there is another.</source>
        <translation>„Abspielen“ spielt das neueste Makro ab, bis es ein anderes gibt.</translation>
    </message>
    <message>
        <source>What is not saved would not outlive a crash. %1</source>
        <translation>Was nicht gespeichert ist, würde einen Absturz nicht überstehen. %1</translation>
    </message>
    <message>
        <source>The macro is still being read: its folder does not answer.</source>
        <translation>Das Makro wird noch gelesen: Sein Ordner antwortet nicht.</translation>
    </message>
    <message>
        <source>The file of this macro is gone. If you save, it is there again.</source>
        <translation>Die Datei dieses Makros ist nicht mehr vorhanden. Wenn Sie speichern, wird sie neu angelegt.</translation>
    </message>
    <message>
        <source>Another program has deleted or moved the macro.</source>
        <translation>Ein anderes Programm hat das Makro gelöscht oder verschoben.</translation>
    </message>
    <message>
        <source>Another program has changed this macro. If you save, your text replaces it.</source>
        <translation>Ein anderes Programm hat dieses Makro geändert. Wenn Sie speichern, ersetzt Ihr Text die Änderung.</translation>
    </message>
    <message>
        <source>What was not saved is there again: %1.</source>
        <translation>Nicht Gespeichertes wurde wiederhergestellt: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The recording is forgotten.</source>
        <translation>Die Aufzeichnung wurde aus dem Verlauf gelöscht.</translation>
    </message>
    <message>
        <source>All recordings are forgotten.</source>
        <translation>Alle Aufzeichnungen wurden aus dem Verlauf gelöscht.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>New Macro</source>
        <translation>Neues Makro</translation>
    </message>
    <message>
        <source>The macro is in the trash.</source>
        <translation>Das Makro ist im Papierkorb.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>The macro cannot be played. Line %1: %2</source>
        <extracomment>of a script; what is wrong</extracomment>
        <translation>Das Makro kann nicht abgespielt werden. Zeile %1: %2</translation>
    </message>
    <message>
        <source>The macro is deleted.</source>
        <translation>Das Makro ist gelöscht.</translation>
    </message>
</context>
<context>
    <name>MacrosInterface</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Es gibt keine Option „%1“.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Es gibt: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file of this machine.</source>
        <translation>„%1“ ist keine Datei auf diesem Rechner.</translation>
    </message>
    <message>
        <source>It begins with file:///.</source>
        <translation>Ihre Adresse muss mit file:/// beginnen.</translation>
    </message>
</context>
<context>
    <name>MacrosWindow</name>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>Makros durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Record New</source>
        <translation>&amp;Neue Aufzeichnung</translation>
    </message>
    <message>
        <source>Record a new macro</source>
        <translation>Ein neues Makro aufzeichnen</translation>
    </message>
    <message>
        <source>Keep Recordin&amp;g...</source>
        <translation>Aufzeichnung &amp;behalten...</translation>
    </message>
    <message>
        <source>Keep a recording of the history as a macro, by a name</source>
        <translation>Eine Aufzeichnung aus dem Verlauf unter einem Namen als Makro behalten</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Aus dem &amp;Verlauf löschen</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>&amp;Alle löschen</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Abs&amp;pielen</translation>
    </message>
    <message>
        <source>Play into the window that you were in before, after three seconds</source>
        <translation>Nach drei Sekunden in das Fenster abspielen, in dem Sie zuvor waren</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the macro (%1)</source>
        <translation>Das Makro speichern (%1)</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Make a copy of the macro</source>
        <translation>Eine Kopie des Makros anlegen</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Give the macro another name (F2)</source>
        <translation>Dem Makro einen anderen Namen geben (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Put the macro into the trash (Delete)</source>
        <translation>Das Makro in den Papierkorb verschieben (Entf)</translation>
    </message>
    <message>
        <source>Stop (Escape)</source>
        <translation>Anhalten (Esc)</translation>
    </message>
    <message>
        <source>Do not play</source>
        <translation>Nicht abspielen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>The macro folder is still being read.</source>
        <translation>Der Makroordner wird noch gelesen.</translation>
    </message>
    <message>
        <source>There is no macro yet. Record one, or put a macro file into the macro folder.</source>
        <translation>Es gibt noch kein Makro. Zeichnen Sie eines auf oder legen Sie eine Makrodatei in den Makroordner.</translation>
    </message>
    <message>
        <source>Plays in %1 s...</source>
        <translation>Wird in %1 s abgespielt...</translation>
    </message>
</context>
<context>
    <name>MultiplePlayWindow</name>
    <message>
        <source>Play Multiple Times</source>
        <translation>Mehrmals abspielen</translation>
    </message>
    <message>
        <source>&amp;Times to play:</source>
        <translation>&amp;Wie oft abspielen:</translation>
    </message>
    <message>
        <source>Times to play</source>
        <translation>Wie oft abspielen</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Abs&amp;pielen</translation>
    </message>
    <message>
        <source>No macro yet</source>
        <translation>Noch kein Makro</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>OverlayDesk</name>
    <message>
        <source>Waiting for your permission</source>
        <translation>Warten auf Ihre Erlaubnis</translation>
    </message>
    <message>
        <source>Not recorded: keyboard held</source>
        <translation>Nicht aufgezeichnet: Tastatur belegt</translation>
    </message>
</context>
<context>
    <name>PauseRow</name>
    <message>
        <source>Never</source>
        <extracomment>whether pauses are recorded: never, as long as they were when typed, or not longer than a number of seconds</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Wie getippt</translation>
    </message>
    <message>
        <source>At most</source>
        <extracomment>stands before a number of seconds</extracomment>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>Record pauses</source>
        <translation>Pausen aufzeichnen</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Longest pause in seconds</source>
        <translation>Längste Pause in Sekunden</translation>
    </message>
    <message>
        <source>Record p&amp;auses:</source>
        <translation>&amp;Pausen aufzeichnen:</translation>
    </message>
</context>
<context>
    <name>PlayRequests</name>
    <message>
        <source>There are several macros called &quot;%1&quot;.</source>
        <translation>Es gibt mehrere Makros namens „%1“.</translation>
    </message>
    <message>
        <source>Say which one: %1.</source>
        <translation>Geben Sie an, welches: %1.</translation>
    </message>
    <message>
        <source>keyrill --list lists all.</source>
        <translation>keyrill --list listet alle auf.</translation>
    </message>
    <message>
        <source>There is no macro called &quot;%1&quot;.</source>
        <translation>Es gibt kein Makro namens „%1“.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Es gibt noch kein Makro zum Abspielen.</translation>
    </message>
    <message>
        <source>What Play plays cannot be played: its script is wrong in line %1.</source>
        <translation>Das Makro von „Abspielen“ kann nicht abgespielt werden: Sein Skript ist in Zeile %1 fehlerhaft.</translation>
    </message>
    <message>
        <source>Play in the menu tells more.</source>
        <translation>„Abspielen“ im Menü sagt mehr.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be played: its script is wrong in line %2.</source>
        <translation>„%1“ kann nicht abgespielt werden: Das Skript ist in Zeile %2 fehlerhaft.</translation>
    </message>
    <message>
        <source>keyrill-script check &quot;%1&quot; tells more.</source>
        <translation>keyrill-script check &quot;%1&quot; sagt mehr.</translation>
    </message>
    <message>
        <source>Similar: %1.</source>
        <translation>Ähnlich: %1.</translation>
    </message>
</context>
<context>
    <name>PlayWords</name>
    <message>
        <source>&quot;%1&quot; is not how many times a macro can be played.</source>
        <translation>„%1“ ist keine gültige Anzahl von Durchläufen.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Gültig ist eine ganze Zahl ab 1 oder until-stopped.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not how fast a macro can be played.</source>
        <translation>„%1“ ist kein gültiges Tempo.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4, with a point: 1.5.</source>
        <translation>Gültig ist eine Zahl von 0.25 bis 4, mit Dezimalpunkt: 1.5.</translation>
    </message>
    <message>
        <source>The name of the macro is empty.</source>
        <translation>Der Name des Makros ist leer.</translation>
    </message>
    <message>
        <source>keyrill --list prints those that there are.</source>
        <translation>keyrill --list gibt die vorhandenen aus.</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Keyrill Preferences</source>
        <translation>Keyrill-Einstellungen</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>&amp;Jetzt suchen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>These combinations work in every program. Click a field and press the combination you want.</source>
        <translation>Diese Kombinationen funktionieren in jedem Programm. Klicken Sie in ein Feld und drücken Sie die gewünschte Kombination.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>ProgramInstance</name>
    <message>
        <source>The macro folder was out of reach for too long.</source>
        <translation>Der Makroordner war zu lange nicht erreichbar.</translation>
    </message>
    <message>
        <source>Another program has Keyrill&apos;s name on the session bus and does not do its work: %1</source>
        <translation>Ein anderes Programm hat den Namen von Keyrill auf dem Sitzungsbus und tut dessen Arbeit nicht: %1</translation>
    </message>
    <message>
        <source>End that program and start Keyrill again.</source>
        <translation>Beenden Sie dieses Programm und starten Sie Keyrill erneut.</translation>
    </message>
    <message>
        <source>It cannot be given a file, since it has no session bus.</source>
        <translation>Ihm kann keine Datei übergeben werden, da es keinen Sitzungsbus hat.</translation>
    </message>
    <message>
        <source>Keyrill is running already.</source>
        <translation>Keyrill läuft bereits.</translation>
    </message>
</context>
<context>
    <name>Programs</name>
    <message>
        <source>The program &quot;%1&quot;, which presses keys by the desktop&apos;s portal, could not be started.</source>
        <translation>Das Programm „%1“, das über das Portal der Arbeitsumgebung Tasten drückt, konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Install the program again.</source>
        <translation>Installieren Sie das Programm erneut.</translation>
    </message>
    <message>
        <source>A text with a zero byte cannot be opened.</source>
        <translation>Ein Text mit einem Nullbyte kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The program xdg-open cannot be started: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Das Programm xdg-open kann nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>Install the package xdg-utils.</source>
        <translation>Installieren Sie das Paket xdg-utils.</translation>
    </message>
    <message>
        <source>The guard program &quot;%1&quot;, which releases keys after a crash, could not be started.</source>
        <translation>Das Wächterprogramm „%1“, das nach einem Absturz die Tasten loslässt, konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Install the program again; nothing is played without its guard.</source>
        <translation>Installieren Sie das Programm erneut; ohne seinen Wächter wird nichts abgespielt.</translation>
    </message>
</context>
<context>
    <name>RecordHerePanel</name>
    <message>
        <source>Record Here</source>
        <translation>Hier aufzeichnen</translation>
    </message>
    <message>
        <source>How to Record Everywhere</source>
        <translation>Wie man überall aufzeichnet</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>Tippen Sie hier</translation>
    </message>
    <message>
        <source>Keys typed here are recorded</source>
        <translation>Hier getippte Tasten werden aufgezeichnet</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>What you type in this window is recorded</source>
        <translation>Was Sie in diesem Fenster tippen, wird aufgezeichnet</translation>
    </message>
    <message>
        <source>What you type in other programs is not. The macro can be played in all of them.</source>
        <translation>Was Sie in anderen Programmen tippen, nicht. Abspielen lässt sich das Makro in allen.</translation>
    </message>
    <message>
        <source>Why not everywhere?</source>
        <translation>Warum nicht überall?</translation>
    </message>
    <message>
        <source>Press Stop Recording or close the window when you are done.</source>
        <translation>Drücken Sie „Aufzeichnung beenden“ oder schließen Sie das Fenster, wenn Sie fertig sind.</translation>
    </message>
    <message>
        <source>Press %1 when you are done, or close the window.</source>
        <translation>Drücken Sie %1, wenn Sie fertig sind, oder schließen Sie das Fenster.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window.</source>
        <translation>Drücken Sie die Kombination aus den Einstellungen der Arbeitsumgebung, wenn Sie fertig sind, oder schließen Sie das Fenster.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window: %1</source>
        <translation>Drücken Sie die Kombination aus den Einstellungen der Arbeitsumgebung, wenn Sie fertig sind, oder schließen Sie das Fenster: %1</translation>
    </message>
</context>
<context>
    <name>RecorderWindow</name>
    <message>
        <source>Keyrill recording</source>
        <translation>Keyrill zeichnet auf</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>There is no session bus, over which the running Keyrill could be asked.</source>
        <translation>Es gibt keinen Sitzungsbus, über den das laufende Keyrill gefragt werden könnte.</translation>
    </message>
    <message>
        <source>Call it from within the desktop session; the hot keys and the menu need none.</source>
        <translation>Rufen Sie es aus der grafischen Sitzung heraus auf; die Tastenkürzel und das Menü brauchen keinen.</translation>
    </message>
    <message>
        <source>Keyrill could not be started, or runs already where this session bus does not reach.</source>
        <translation>Keyrill konnte nicht gestartet werden oder läuft bereits dort, wohin dieser Sitzungsbus nicht reicht.</translation>
    </message>
    <message>
        <source>Start it as &quot;keyrill&quot; in a terminal to see why.</source>
        <translation>Starten Sie „keyrill“ in einem Terminal, um zu sehen, warum.</translation>
    </message>
</context>
<context>
    <name>SRRecorderControl</name>
    <message>
        <source>Clear %1</source>
        <translation>„%1“ leeren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Click here, then press a combination. Backspace clears, Escape keeps what was set.</source>
        <translation>Klicken Sie hier und drücken Sie dann eine Kombination. Die Rücktaste leert das Feld, Esc behält, was eingestellt war.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super</source>
        <translation>Mit Strg, Alt oder Super</translation>
    </message>
    <message>
        <source>Press a combination…</source>
        <translation>Kombination drücken…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
</context>
<context>
    <name>ScriptDialogWindow</name>
    <message>
        <source>Stop</source>
        <extracomment>the name of a picture: a stop sign</extracomment>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Keyrill Macro</source>
        <translation>Keyrill-Makro</translation>
    </message>
</context>
<context>
    <name>ScriptDialogs</name>
    <message>
        <source>Please make your selection:</source>
        <translation>Bitte treffen Sie Ihre Auswahl:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>Words of the script language</source>
        <translation>Wörter der Skriptsprache</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <extracomment>of a script; what is wrong, or could be</extracomment>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptErrors</name>
    <message>
        <source>Can’t declare %1 as both a local and global variable.</source>
        <translation>%1 kann nicht zugleich als lokale und globale Variable deklariert werden.</translation>
    </message>
    <message>
        <source>list of button names</source>
        <translation>Liste von Knopfnamen</translation>
    </message>
    <message>
        <source>list of choices</source>
        <translation>Liste von Auswahlmöglichkeiten</translation>
    </message>
    <message>
        <source>Some parameter is missing for %1.</source>
        <translation>Für %1 fehlt ein Parameter.</translation>
    </message>
    <message>
        <source>modifier</source>
        <translation>Sondertaste</translation>
    </message>
    <message>
        <source>the power key is never pressed by a script.</source>
        <translation>Die Ein-/Aus-Taste wird nie von einem Skript gedrückt.</translation>
    </message>
    <message>
        <source>%1 doesn’t match the parameters %2 for %3.</source>
        <translation>%1 passt nicht zu den Parametern %2 von %3.</translation>
    </message>
    <message>
        <source>%1 doesn’t understand the “%2” message.</source>
        <translation>%1 versteht die Nachricht „%2“ nicht.</translation>
    </message>
    <message>
        <source>The step of a repeat loop can’t be 0.</source>
        <translation>Die Schrittweite einer „repeat“-Schleife kann nicht 0 sein.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences: what is wrong, and what to do about it.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The variable %1 is not defined.</source>
        <translation>Die Variable %1 ist nicht definiert.</translation>
    </message>
    <message>
        <source>unknown token</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>ein unbekanntes Zeichen</translation>
    </message>
    <message>
        <source>unknown token %1</source>
        <translation>das unbekannte Zeichen %1</translation>
    </message>
    <message>
        <source>end of script</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>das Ende des Skripts</translation>
    </message>
    <message>
        <source>end of line</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>das Zeilenende</translation>
    </message>
    <message>
        <source>variable name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>ein Variablenname</translation>
    </message>
    <message>
        <source>Raw codes («…») are not supported.</source>
        <translation>Rohcodes («…») werden nicht unterstützt.</translation>
    </message>
    <message>
        <source>Expected end of line after “¬”.</source>
        <translation>Nach „¬“ wurde das Zeilenende erwartet.</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>unknown token %1 (text stands between straight quotes)</source>
        <translation>das unbekannte Zeichen %1 (Text steht zwischen geraden Anführungszeichen)</translation>
    </message>
    <message>
        <source>identifier</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>ein Bezeichner</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>User canceled.</source>
        <translation>Vom Benutzer abgebrochen.</translation>
    </message>
    <message>
        <source>Application isn’t running.</source>
        <translation>Die Anwendung läuft nicht.</translation>
    </message>
    <message>
        <source>Connection is invalid.</source>
        <translation>Die Verbindung ist ungültig.</translation>
    </message>
    <message>
        <source>Can’t make some data into the expected type.</source>
        <translation>Einige Daten können nicht in den erwarteten Typ umgewandelt werden.</translation>
    </message>
    <message>
        <source>Some parameter is missing for a command.</source>
        <translation>Für einen Befehl fehlt ein Parameter.</translation>
    </message>
    <message>
        <source>Some data was of the wrong type.</source>
        <translation>Einige Daten hatten den falschen Typ.</translation>
    </message>
    <message>
        <source>Some parameter was invalid.</source>
        <translation>Ein Parameter war ungültig.</translation>
    </message>
    <message>
        <source>A message was not understood.</source>
        <translation>Eine Nachricht wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>AppleEvent timed out.</source>
        <translation>Zeitüberschreitung bei einem AppleEvent.</translation>
    </message>
    <message>
        <source>Some required parameter was missing.</source>
        <translation>Ein erforderlicher Parameter fehlte.</translation>
    </message>
    <message>
        <source>The handler is not defined.</source>
        <translation>Der Handler ist nicht definiert.</translation>
    </message>
    <message>
        <source>Can’t get the element. Invalid index.</source>
        <translation>Das Element kann nicht gelesen werden. Ungültiger Index.</translation>
    </message>
    <message>
        <source>Some parameters don’t match.</source>
        <translation>Einige Parameter passen nicht.</translation>
    </message>
    <message>
        <source>Can’t get the object.</source>
        <translation>Das Objekt kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Not authorized to send Apple events.</source>
        <translation>Das Senden von Apple-Events ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>An error has occurred.</source>
        <translation>Ein Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Can’t divide by zero.</source>
        <translation>Durch null kann nicht geteilt werden.</translation>
    </message>
    <message>
        <source>The result of a numeric operation was too large.</source>
        <translation>Das Ergebnis einer Berechnung war zu groß.</translation>
    </message>
    <message>
        <source>Stack overflow.</source>
        <translation>Stapelüberlauf.</translation>
    </message>
    <message>
        <source>A variable is not defined.</source>
        <translation>Eine Variable ist nicht definiert.</translation>
    </message>
    <message>
        <source>No result was returned for some argument of this expression.</source>
        <translation>Für ein Argument dieses Ausdrucks wurde kein Ergebnis geliefert.</translation>
    </message>
    <message>
        <source>AppleEvent handler failed.</source>
        <translation>Der AppleEvent-Handler ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Can’t set the object.</source>
        <translation>Das Objekt kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>%1 is a word of the script language.</extracomment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Expected %1 but found %2.</source>
        <extracomment>%1 and %2 are words of the script language in quotes, or &quot;expression&quot;, &quot;end of line&quot; and others below.</extracomment>
        <translation>Erwartet wurde %1, gefunden wurde %2.</translation>
    </message>
    <message>
        <source>The %1 parameter is specified more than once.</source>
        <translation>Der Parameter %1 ist mehr als einmal angegeben.</translation>
    </message>
    <message>
        <source>The %1 property is specified more than once.</source>
        <translation>Die Eigenschaft %1 ist mehr als einmal angegeben.</translation>
    </message>
    <message>
        <source>The %1 handler is specified more than once.</source>
        <translation>Der Handler %1 ist mehr als einmal angegeben.</translation>
    </message>
    <message>
        <source>%1 got an error: %2</source>
        <translation>%1 hat einen Fehler erhalten: %2</translation>
    </message>
    <message>
        <source>An error of type %1 has occurred.</source>
        <translation>Ein Fehler vom Typ %1 ist aufgetreten.</translation>
    </message>
    <message>
        <source>Can’t both consider and ignore %1.</source>
        <translation>%1 kann nicht zugleich beachtet und ignoriert werden.</translation>
    </message>
    <message>
        <source>Expected at most %1 parameters but found more.</source>
        <translation>Erwartet wurden höchstens %1 Parameter, gefunden wurden mehr.</translation>
    </message>
    <message>
        <source>expression</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>ein Ausdruck</translation>
    </message>
    <message>
        <source>class name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>ein Klassenname</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro can press keys and nothing else.</source>
        <translation>„%1“ wird abgelehnt: Ein Makro kann Tasten drücken und sonst nichts.</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro is one script.</source>
        <translation>„%1“ wird abgelehnt: Ein Makro ist ein einziges Skript.</translation>
    </message>
    <message>
        <source>Expected at most %1 items in a list but found more.</source>
        <translation>Erwartet wurden höchstens %1 Elemente in einer Liste, gefunden wurden mehr.</translation>
    </message>
    <message>
        <source>Expected at most %1 properties in a record but found more.</source>
        <translation>Erwartet wurden höchstens %1 Eigenschaften in einem Datensatz, gefunden wurden mehr.</translation>
    </message>
    <message>
        <source>Expected at most %1 levels of nesting but found more.</source>
        <translation>Erwartet wurden höchstens %1 Verschachtelungsebenen, gefunden wurden mehr.</translation>
    </message>
    <message>
        <source>Tell statements are nested too deeply.</source>
        <translation>„tell“-Anweisungen sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>Expected at most 16 MiB of script but found more.</source>
        <translation>Ein Skript kann höchstens 16 MiB groß sein, dieses ist größer.</translation>
    </message>
    <message>
        <source>Expected text in UTF-8 but found another byte.</source>
        <translation>Erwartet wurde Text in UTF-8, gefunden wurde ein anderes Byte.</translation>
    </message>
    <message>
        <source>Exit statement was not in a repeat loop.</source>
        <translation>Eine „exit“-Anweisung stand nicht in einer „repeat“-Schleife.</translation>
    </message>
    <message>
        <source>Can’t divide %1 by zero.</source>
        <translation>%1 kann nicht durch null geteilt werden.</translation>
    </message>
    <message>
        <source>A list holds at most %1 items.</source>
        <translation>Eine Liste enthält höchstens %1 Elemente.</translation>
    </message>
    <message>
        <source>Can’t get contents of a variable that is not set.</source>
        <translation>Der Inhalt einer nicht gesetzten Variablen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Can’t make %1 into type %2.</source>
        <translation>%1 kann nicht in den Typ %2 umgewandelt werden.</translation>
    </message>
    <message>
        <source>Can’t get %1.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Can’t set %1 to %2.</source>
        <translation>%1 kann nicht auf %2 gesetzt werden.</translation>
    </message>
    <message>
        <source>Can’t raise %1 to the power of %2: the result is no number.</source>
        <translation>%1 kann nicht mit %2 potenziert werden: Das Ergebnis ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>ScriptNotices</name>
    <message>
        <source>The macro was not played to its end</source>
        <translation>Das Makro wurde nicht zu Ende abgespielt</translation>
    </message>
    <message>
        <source>The macro cannot be played</source>
        <translation>Das Makro kann nicht abgespielt werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded but cannot be played</source>
        <translation>„%1“ ist geladen, kann aber nicht abgespielt werden</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>ScriptTool</name>
    <message>
        <source>--times %1 is not how often a script can be played.</source>
        <translation>--times %1 ist keine gültige Anzahl von Wiedergaben.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Gültig ist eine ganze Zahl ab 1 oder until-stopped.</translation>
    </message>
    <message>
        <source>Nobody can stop a trace.</source>
        <translation>Ein trace lässt sich nicht anhalten.</translation>
    </message>
    <message>
        <source>Give --times a number.</source>
        <translation>Geben Sie bei --times eine Zahl an.</translation>
    </message>
    <message>
        <source>--speed %1 is not how fast a script can be played.</source>
        <translation>--speed %1 ist kein gültiges Tempo.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4.</source>
        <translation>Gültig ist eine Zahl von 0.25 bis 4.</translation>
    </message>
    <message>
        <source>This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.</source>
        <translation>Dies ist kein UTF-8, daher wird die ganze Datei als Mac Roman gelesen. Speichern Sie sie als UTF-8.</translation>
    </message>
    <message>
        <source>Press a key.</source>
        <translation>Drücken Sie eine Taste.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>%1; standard input is &quot;-&quot;</source>
        <translation>%1; die Standardeingabe ist „-“</translation>
    </message>
    <message>
        <source>(Return)</source>
        <translation>(Eingabetaste)</translation>
    </message>
    <message>
        <source>No dialog can be shown here.</source>
        <translation>Hier kann kein Dialog angezeigt werden.</translation>
    </message>
    <message>
        <source>Run the script in a terminal.</source>
        <translation>Führen Sie das Skript in einem Terminal aus.</translation>
    </message>
    <message>
        <source>The question was not answered.</source>
        <translation>Die Frage wurde nicht beantwortet.</translation>
    </message>
    <message>
        <source>Usage: keyrill-script check FILE   compile, and say what is wrong; with --json for editors
       keyrill-script run [--times N] [--speed X] FILE
                                   press the keys, so often (or until-stopped), its pauses divided by X
       keyrill-script trace FILE   print what would be done, one JSON array a line
       keyrill-script format FILE  print the script in one layout
       keyrill-script keys         print the key codes; with --press that of the next key
       keyrill-script reference    print the reference of the language
       keyrill-script -h | --help | --version
FILE - is standard input; -e LINE, once or more, gives the script itself.
</source>
        <translation>Aufruf: keyrill-script check DATEI    übersetzen und sagen, was falsch ist; mit --json für Editoren
        keyrill-script run [--times N] [--speed X] DATEI
                                      die Tasten drücken, so oft (oder until-stopped), die Pausen geteilt durch X
        keyrill-script trace DATEI    ausgeben, was getan würde, ein JSON-Feld je Zeile
        keyrill-script format DATEI   das Skript in einheitlicher Gestalt ausgeben
        keyrill-script keys           die Tastencodes ausgeben; mit --press den der nächsten Taste
        keyrill-script reference      die Referenz der Sprache ausgeben
        keyrill-script -h | --help | --version
DATEI - ist die Standardeingabe; -e ZEILE, ein- oder mehrmals, gibt das Skript selbst an.
</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Es gibt keinen Befehl „%1“.</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>die Ausgabe kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>“%1” has no option “%2”.</source>
        <translation>„%1“ hat keine Option „%2“.</translation>
    </message>
    <message>
        <source>“keyrill-script --help” tells which there are.</source>
        <translation>„keyrill-script --help“ nennt alle.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no session bus.</source>
        <translation>Es gibt keinen Sitzungsbus.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>sway does not answer at $SWAYSOCK.</source>
        <translation>sway antwortet unter $SWAYSOCK nicht.</translation>
    </message>
    <message>
        <source>Start the program in the session of sway.</source>
        <translation>Starten Sie das Programm in der Sitzung von sway.</translation>
    </message>
    <message>
        <source>sway says: %1</source>
        <translation>sway meldet: %1</translation>
    </message>
    <message>
        <source>There is no kind of session called &quot;%1&quot;.</source>
        <translation>Es gibt keine Sitzungsart namens „%1“.</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Wählen Sie eine davon: %1.</translation>
    </message>
    <message>
        <source>No kind of session is known.</source>
        <translation>Es ist keine Sitzungsart bekannt.</translation>
    </message>
    <message>
        <source>The connection to the compositor was lost.</source>
        <translation>Die Verbindung zum Compositor ist abgebrochen.</translation>
    </message>
    <message>
        <source>No Wayland compositor answers at $WAYLAND_DISPLAY.</source>
        <translation>Unter $WAYLAND_DISPLAY antwortet kein Wayland-Compositor.</translation>
    </message>
    <message>
        <source>Start the program in a Wayland session.</source>
        <translation>Starten Sie das Programm in einer Wayland-Sitzung.</translation>
    </message>
    <message>
        <source>The Wayland compositor is gone.</source>
        <translation>Der Wayland-Compositor ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>$WAYLAND_DISPLAY names no Wayland compositor.</source>
        <translation>$WAYLAND_DISPLAY nennt keinen Wayland-Compositor.</translation>
    </message>
    <message>
        <source>The X server is gone.</source>
        <translation>Der X-Server ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>This is a Wayland session without an X server.</source>
        <translation>Dies ist eine Wayland-Sitzung ohne X-Server.</translation>
    </message>
    <message>
        <source>Install Xwayland, or switch it on in the desktop&apos;s settings, and log in again; or choose an X11 session when you log in.</source>
        <translation>Installieren Sie Xwayland oder schalten Sie es in den Einstellungen der Arbeitsumgebung ein, und melden Sie sich neu an; oder wählen Sie bei der Anmeldung eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is no desktop session.</source>
        <translation>Es wird eine X11-Sitzung benötigt, und dies ist keine grafische Sitzung.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is a Wayland session without an X server.</source>
        <translation>Es wird eine X11-Sitzung benötigt, und dies ist eine Wayland-Sitzung ohne X-Server.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Wählen Sie bei der Anmeldung eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>The connection to the X server was lost.</source>
        <translation>Die Verbindung zum X-Server ist abgebrochen.</translation>
    </message>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Verwenden Sie einen neueren X-Server oder schalten Sie die Erweiterung in seinen Einstellungen ein.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has no XInput.</source>
        <translation>Der X-Server muss XInput 2.2 oder neuer haben, hat aber kein XInput.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but does not answer.</source>
        <translation>Der X-Server muss XInput 2.2 oder neuer haben, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has %1.</source>
        <translation>Der X-Server muss XInput 2.2 oder neuer haben, hat aber %1.</translation>
    </message>
    <message>
        <source>The X server must have the XKB extension, but it cannot be used.</source>
        <translation>Der X-Server muss die Erweiterung XKB haben, sie kann aber nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The X server must have the XTEST extension, but it has not.</source>
        <translation>Der X-Server muss die Erweiterung XTEST haben, hat sie aber nicht.</translation>
    </message>
    <message>
        <source>The X server of display &quot;%1&quot; cannot be reached.</source>
        <translation>Der X-Server der Anzeige „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Start the program inside a desktop session, or set DISPLAY to a running X server.</source>
        <translation>Starten Sie das Programm innerhalb einer grafischen Sitzung oder setzen Sie DISPLAY auf einen laufenden X-Server.</translation>
    </message>
    <message>
        <source>virtual keyboard</source>
        <translation>virtuelle Tastatur</translation>
    </message>
    <message>
        <source>GNOME&apos;s settings</source>
        <translation>GNOME-Einstellungen</translation>
    </message>
    <message>
        <source>portal for keys</source>
        <translation>Portal für Tasten</translation>
    </message>
    <message>
        <source>portal for hot keys</source>
        <translation>Portal für Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>SessionReport</name>
    <message>
        <source>, </source>
        <extracomment>between the names of a list</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a line of keyrill --check: what was looked at, and what was found</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1, Anzeige %2</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Bestandteile</translation>
    </message>
    <message>
        <source>missing: %1; there: %2</source>
        <translation>es fehlen: %1; vorhanden: %2</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Pressing keys</source>
        <translation>Tasten drücken</translation>
    </message>
    <message>
        <source>Typing text</source>
        <translation>Text tippen</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Einblendung</translation>
    </message>
    <message>
        <source>Windows of other programs</source>
        <translation>Fenster anderer Programme</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Systemabschnitt</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>by what it works, and what is missing all the same, which is a sentence</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Hot key of &quot;%1&quot;</source>
        <translation>Tastenkürzel für „%1“</translation>
    </message>
    <message>
        <source>none is chosen</source>
        <translation>keines gewählt</translation>
    </message>
    <message>
        <source>%1, which nobody else has</source>
        <translation>%1, das sonst niemand verwendet</translation>
    </message>
    <message>
        <source>%1, which the running Keyrill has</source>
        <translation>%1, das vom laufenden Keyrill verwendet wird</translation>
    </message>
    <message>
        <source>%1; the session does not tell who has it</source>
        <translation>%1; die Sitzung sagt nicht, wer es verwendet</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Sitzungsbus</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>the session bus exists</extracomment>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>There is none: &quot;keyrill --action&quot;, notifications and many trays need it, and a locked screen is not noticed at once.</source>
        <translation>Es gibt keinen: „keyrill --action“, Benachrichtigungen und viele Systemabschnitte brauchen ihn, und ein gesperrter Bildschirm wird nicht sofort bemerkt.</translation>
    </message>
    <message>
        <source>Start Keyrill from within the desktop session.</source>
        <translation>Starten Sie Keyrill aus der grafischen Sitzung heraus.</translation>
    </message>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>is not running</source>
        <translation>läuft nicht</translation>
    </message>
    <message>
        <source>no lock is on</source>
        <translation>keine Sperrtaste ist aktiv</translation>
    </message>
    <message>
        <source>on: %1, which macros do not mind</source>
        <translation>aktiv: %1, was Makros nicht stört</translation>
    </message>
    <message>
        <source>layout unknown</source>
        <translation>Belegung unbekannt</translation>
    </message>
    <message>
        <source>layout %1</source>
        <translation>Belegung %1</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>the keyboard layouts, and the locks that are on</extracomment>
        <translation>%1; %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>It has a zero byte</source>
        <translation>Sie enthält ein Nullbyte</translation>
    </message>
    <message>
        <source>The settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>Die Einstellungsdatei %1 ist keine Schlüsselwertedatei: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>Die Datei der Makroeinstellungen %1 ist keine Schlüsselwertedatei: %2</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>Der Einstellungsordner %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>The macro settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>Der Ordner der Makroeinstellungen %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>Sie wurde in %1 umbenannt, und es gelten wieder die Standardeinstellungen.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and hot keys, times and speeds begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>Sie wurde in %1 umbenannt, und Tastenkürzel, Durchläufe und Tempo sind auf die Standardwerte zurückgesetzt.</translation>
    </message>
    <message>
        <source>Correct the file or remove it.</source>
        <translation>Berichtigen Sie die Datei oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>It could not be put aside either: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Sie konnte auch nicht beiseitegelegt werden: %1</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Die Einstellungsdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Die Datei der Makroeinstellungen %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Die Einstellungsdatei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Die Datei der Makroeinstellungen %1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ShortcutNotices</name>
    <message>
        <source>Still used by %1 until Keyrill restarts.</source>
        <translation>Bis zum Neustart von Keyrill noch von „%1“ verwendet.</translation>
    </message>
    <message>
        <source>Already used by %1.</source>
        <translation>Bereits von „%1“ verwendet.</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Die Arbeitsumgebung hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings.</source>
        <translation>In den Einstellungen der Arbeitsumgebung festgelegt.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings: %1</source>
        <translation>In den Einstellungen der Arbeitsumgebung festgelegt: %1</translation>
    </message>
    <message>
        <source>%1 still works until Keyrill restarts.</source>
        <translation>%1 funktioniert noch bis zum Neustart von Keyrill.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;, which gives way.</source>
        <translation>Bereits vom Makro „%1“ verwendet, das zurücksteht.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;.</source>
        <translation>Bereits vom Makro „%1“ verwendet.</translation>
    </message>
</context>
<context>
    <name>ShortcutTitles</name>
    <message>
        <source>Start &amp;Recording:</source>
        <translation>Aufzeichnung &amp;starten:</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>Aufzeichnung starten</translation>
    </message>
    <message>
        <source>&amp;Stop Recording:</source>
        <translation>Aufzeichnung &amp;beenden:</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>&amp;Play:</source>
        <translation>&amp;Abspielen:</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play &amp;Multiple Times:</source>
        <translation>&amp;Mehrmals abspielen:</translation>
    </message>
    <message>
        <source>Play Multiple Times</source>
        <translation>Mehrmals abspielen</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Start Recording</source>
        <translation>Aufzeichnung starten</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>Save Pause</source>
        <translation>Pause aufzeichnen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play Multiple Times...</source>
        <translation>Mehrmals abspielen...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Save Macro...</source>
        <translation>Makro speichern...</translation>
    </message>
    <message>
        <source>Load Macro...</source>
        <translation>Makro laden...</translation>
    </message>
    <message>
        <source>Macros...</source>
        <translation>Makros...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Forum</translation>
    </message>
    <message>
        <source>Product Page</source>
        <translation>Produktseite</translation>
    </message>
    <message>
        <source>Maker&apos;s Website</source>
        <translation>Website des Herstellers</translation>
    </message>
    <message>
        <source>Get Support</source>
        <translation>Unterstützung erhalten</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Rückmeldung senden</translation>
    </message>
    <message>
        <source>Report a Bug</source>
        <translation>Fehler melden</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Nach Aktualisierungen suchen...</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>Über Keyrill</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Keyrill menu</source>
        <translation>Keyrill-Menü</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Was hier funktioniert</translation>
    </message>
</context>
<context>
    <name>StatusNotice</name>
    <message>
        <source>%1 has no shortcut. %2</source>
        <translation>„%1“ hat kein Tastenkürzel. %2</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>Works</source>
        <translation>Funktioniert</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>Funktioniert nicht</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Was hier funktioniert</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy all lines, for a mail or a forum</source>
        <translation>Alle Zeilen kopieren, für eine E-Mail oder ein Forum</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>A moment...</source>
        <translation>Einen Moment...</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>Was hier funktioniert, konnte nicht ermittelt werden.</translation>
    </message>
    <message>
        <source>&quot;keyrill --check&quot; in a terminal may say why.</source>
        <translation>„keyrill --check“ in einem Terminal sagt vielleicht, warum.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>whether it works, and what</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StepsModel</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The script goes on; only its beginning is shown.</source>
        <translation>Das Skript geht weiter; nur sein Anfang wird gezeigt.</translation>
    </message>
    <message>
        <source>A pause is a number of seconds from 0 to a day.</source>
        <translation>Eine Pause wird in Sekunden angegeben, von 0 bis zu einem Tag.</translation>
    </message>
    <message>
        <source>A key is pressed from 1 to 10,000 times.</source>
        <translation>Eine Taste kann 1- bis 10.000-mal gedrückt werden.</translation>
    </message>
    <message>
        <source>This step cannot be changed here.</source>
        <translation>Dieser Schritt kann hier nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>Toggles</name>
    <message>
        <source>Check for &amp;updates when Keyrill starts</source>
        <translation>Beim Start von Keyrill nach Akt&amp;ualisierungen suchen</translation>
    </message>
    <message>
        <source>Start Keyrill when I log &amp;in</source>
        <translation>Keyrill bei der Anmel&amp;dung starten</translation>
    </message>
    <message>
        <source>Record modifier &amp;keys on their own</source>
        <translation>Sondertasten auch ein&amp;zeln aufzeichnen</translation>
    </message>
    <message>
        <source>Keep the &amp;history for the next start</source>
        <translation>&amp;Verlauf für den nächsten Start behalten</translation>
    </message>
    <message>
        <source>&amp;Write hot keys into GNOME&apos;s settings</source>
        <translation>&amp;Tastenkürzel in die Einstellungen von GNOME schreiben</translation>
    </message>
</context>
<context>
    <name>TrayStatusItem</name>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
</context>
<context>
    <name>Warnings</name>
    <message>
        <source>This is typed as it stands; the key has a number: key code %1.</source>
        <translation>Dies wird so getippt, wie es dasteht; die Taste hat eine Nummer: key code %1.</translation>
    </message>
    <message>
        <source>“%1” is typed as it stands. %2</source>
        <extracomment>%1 is the name of a key in braces, %2 a sentence that says how the key is written.</extracomment>
        <translation>„%1“ wird so getippt, wie es dasteht. %2</translation>
    </message>
    <message>
        <source>Key code %1 is an extension, which only Keyrill plays.</source>
        <translation>Der Tastencode %1 ist eine Erweiterung, die nur Keyrill abspielt.</translation>
    </message>
    <message>
        <source>Key code %1 has no key; nothing is pressed.</source>
        <translation>Zum Tastencode %1 gibt es keine Taste; es wird nichts gedrückt.</translation>
    </message>
    <message>
        <source>A dialog gives a record and no text; take: button returned of %1, or text returned of %1.</source>
        <translation>Ein Dialog liefert einen Datensatz (record) und keinen Text; verwenden Sie: button returned of %1 oder text returned of %1.</translation>
    </message>
    <message>
        <source>An alert gives a record and no text; take: button returned of %1.</source>
        <translation>Eine Warnmeldung liefert einen Datensatz (record) und keinen Text; verwenden Sie: button returned of %1.</translation>
    </message>
    <message>
        <source>What was chosen comes in a list; take: item 1 of %1.</source>
        <translation>Was ausgewählt wurde, kommt in einer Liste; verwenden Sie: item 1 of %1.</translation>
    </message>
    <message>
        <source>The loop gives a reference, which equals no text; compare: contents of %1.</source>
        <translation>Die Schleife liefert einen Verweis, der keinem Text gleich ist; vergleichen Sie: contents of %1.</translation>
    </message>
    <message>
        <source>“%1” is taken as “%1 down”.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>„%1“ wird als „%1 down“ verstanden.</translation>
    </message>
    <message>
        <source>“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….</source>
        <extracomment>%1 is an operator, &quot;&gt;&quot;, %2 a command, &quot;count&quot;.</extracomment>
        <translation>„%1“ gehört zu dem, was „%2“ übergeben wird; setzen Sie den Befehl in Klammern: (%2 …) %1 ….</translation>
    </message>
    <message>
        <source>“delay” counts seconds; %1 milliseconds are: delay %2.</source>
        <translation>„delay“ zählt in Sekunden; %1 Millisekunden sind: delay %2.</translation>
    </message>
    <message>
        <source>This is typed as it stands; a shortcut is written: keystroke &quot;%1&quot; using %2 down.</source>
        <extracomment>%1 is a letter, %2 the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Dies wird so getippt, wie es dasteht; eine Tastenkombination wird so geschrieben: keystroke &quot;%1&quot; using %2 down.</translation>
    </message>
    <message>
        <source>A modifier is held with: key down shift, without quotes.</source>
        <translation>Eine Sondertaste wird so gehalten: key down shift, ohne Anführungszeichen.</translation>
    </message>
    <message>
        <source>The variable %1 is never set. %2</source>
        <extracomment>%2 is a sentence that says what may have been meant.</extracomment>
        <translation>Die Variable %1 wird nie gesetzt. %2</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Welcome to Keyrill</source>
        <translation>Willkommen bei Keyrill</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Your first macro</source>
        <translation>Ihr erstes Makro</translation>
    </message>
    <message>
        <source>The combinations</source>
        <translation>Die Tastenkombinationen</translation>
    </message>
    <message>
        <source>You can change them in the preferences, which come next.</source>
        <translation>Sie können sie in den Einstellungen ändern, die sich als Nächstes öffnen.</translation>
    </message>
    <message>
        <source>Keyrill records the keys you press and presses them again for you, in any program, as often as you like.</source>
        <translation>Keyrill zeichnet Ihre Tastatureingaben auf und spielt sie für Sie wieder ab, in jedem Programm und so oft, wie Sie möchten.</translation>
    </message>
    <message>
        <source>Choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Wählen Sie „Aufzeichnung starten“ im Menü von Keyrill. Tippen Sie dann.</translation>
    </message>
    <message>
        <source>Press %1, or choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Drücken Sie %1 oder wählen Sie „Aufzeichnung starten“ im Menü von Keyrill. Tippen Sie dann.</translation>
    </message>
    <message>
        <source>Choose Stop Recording when you are done.</source>
        <translation>Wählen Sie „Aufzeichnung beenden“, wenn Sie fertig sind.</translation>
    </message>
    <message>
        <source>Press %1 when you are done.</source>
        <translation>Drücken Sie %1, wenn Sie fertig sind.</translation>
    </message>
    <message>
        <source>Click where the keys should go and choose Play.</source>
        <translation>Klicken Sie dorthin, wo getippt werden soll, und wählen Sie „Abspielen“.</translation>
    </message>
    <message>
        <source>Click where the keys should go and press %1.</source>
        <translation>Klicken Sie dorthin, wo getippt werden soll, und drücken Sie %1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>KWin does not tell of its windows.</source>
        <translation>KWin gibt keine Auskunft über seine Fenster.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Melden Sie sich neu an.</translation>
    </message>
    <message>
        <source>No file could be written for KWin.</source>
        <translation>Für KWin konnte keine Datei geschrieben werden.</translation>
    </message>
    <message>
        <source>Free some space.</source>
        <translation>Geben Sie etwas Speicherplatz frei.</translation>
    </message>
    <message>
        <source>KWin runs no scripts: %1</source>
        <translation>KWin führt keine Skripte aus: %1</translation>
    </message>
    <message>
        <source>KWin does not show the window any more.</source>
        <translation>KWin zeigt das Fenster nicht mehr an.</translation>
    </message>
    <message>
        <source>Open it again.</source>
        <translation>Öffnen Sie es erneut.</translation>
    </message>
    <message>
        <source>This compositor tells nobody of windows.</source>
        <translation>Dieser Compositor gibt niemandem Auskunft über Fenster.</translation>
    </message>
    <message>
        <source>Use a compositor with toplevel management, such as sway, or an X11 session.</source>
        <translation>Verwenden Sie einen Compositor mit Verwaltung von Fenstern (toplevel management), etwa sway, oder eine X11-Sitzung.</translation>
    </message>
    <message>
        <source>No window of “%1” is open.</source>
        <translation>Es ist kein Fenster von „%1“ geöffnet.</translation>
    </message>
    <message>
        <source>Start it first.</source>
        <translation>Starten Sie das Programm zuerst.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>Das Fenster ist nicht auf dem Bildschirm.</translation>
    </message>
</context>
</TS>
