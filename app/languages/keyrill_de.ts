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
</TS>
