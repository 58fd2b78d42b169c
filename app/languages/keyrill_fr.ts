<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 ou ultérieure</translation>
    </message>
    <message>
        <source>curl licence</source>
        <translation>licence curl</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>À propos de Keyrill</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>&amp;Documentation</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>Page du &amp;produit</translation>
    </message>
    <message>
        <source>&amp;Maker&apos;s Website</source>
        <translation>&amp;Site de l’éditeur</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Réalisé avec</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Records the keys you press and presses them again.</source>
        <translation>Enregistre vos frappes au clavier et les reproduit.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Keyrill authors. Free software under the MIT licence, without any warranty.</source>
        <translation>Copyright © 2026 les auteurs de Keyrill. Logiciel libre sous licence MIT, sans aucune garantie.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>AccessDesk</name>
    <message>
        <source>To record what you type in other programs, Keyrill has to read the keyboard until the recording ends. That is why you are asked for your password.</source>
        <translation>Pour enregistrer ce que vous saisissez dans d’autres programmes, Keyrill doit lire le clavier jusqu’à la fin de l’enregistrement. C’est pourquoi votre mot de passe vous est demandé.</translation>
    </message>
</context>
<context>
    <name>ActionCall</name>
    <message>
        <source>Keyrill is not running.</source>
        <translation>Keyrill n’est pas lancé.</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>The screen is locked.</source>
        <translation>L’écran est verrouillé.</translation>
    </message>
    <message>
        <source>Keyrill is asking something, which has to be answered first.</source>
        <translation>Keyrill pose une question, à laquelle il faut d’abord répondre.</translation>
    </message>
    <message>
        <source>A macro is being recorded.</source>
        <translation>Une macro est en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Il n’y a pas encore de macro à exécuter.</translation>
    </message>
    <message>
        <source>A macro is being recorded already.</source>
        <translation>Une macro est déjà en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>Nothing is being recorded or played.</source>
        <translation>Rien n’est en cours d’enregistrement ni d’exécution.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Rien n’est en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>Keyrill is asking how often to play.</source>
        <translation>Keyrill demande combien de fois exécuter la macro.</translation>
    </message>
    <message>
        <source>Keyrill&apos;s hot keys are off while they are being chosen in a window of its own.</source>
        <translation>Les raccourcis de Keyrill sont désactivés tant qu’ils sont choisis dans une de ses fenêtres.</translation>
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
        <translation>Mise à jour de Keyrill disponible</translation>
    </message>
    <message>
        <source>There is a new update available for Keyrill, would you like to download it now?</source>
        <translation>Une nouvelle mise à jour de Keyrill est disponible. Voulez-vous la télécharger maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Keyrill requires that programs can see and press keys in this session. </source>
        <translation>Keyrill nécessite que les programmes puissent détecter et simuler des frappes dans cette session. </translation>
    </message>
    <message>
        <source>Please see the &apos;Configuration&apos; section of the documentation for more information.

Keyrill must close, please restart it once this is possible.
</source>
        <translation>Veuillez consulter la section «&#xa0;Configuration&#xa0;» de la documentation pour plus d’informations.

Keyrill doit se fermer. Veuillez le relancer une fois que cela sera possible.
</translation>
    </message>
    <message>
        <source>Open Documentation now</source>
        <translation>Ouvrir la documentation maintenant</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Recording is not possible in this session yet</source>
        <translation>L’enregistrement n’est pas encore possible dans cette session</translation>
    </message>
    <message>
        <source>Nothing was recorded</source>
        <translation>Rien n’a été enregistré</translation>
    </message>
    <message>
        <source>The recording has ended</source>
        <translation>L’enregistrement est terminé</translation>
    </message>
    <message>
        <source>What was recorded until then is kept.</source>
        <translation>Ce qui a été enregistré jusque-là est conservé.</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>OUI</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NON</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No Update Available</source>
        <translation>Aucune mise à jour disponible</translation>
    </message>
    <message>
        <source>You&apos;re currently running the latest version of Keyrill</source>
        <translation>Vous utilisez déjà la dernière version de Keyrill</translation>
    </message>
    <message>
        <source>The macro was not saved as &quot;%1&quot;.</source>
        <translation>La macro n’a pas été sauvegardée sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>No macro was loaded from &quot;%1&quot;.</source>
        <translation>Aucune macro n’a été chargée depuis «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What is in it will be lost.</source>
        <translation>Voulez-vous le remplacer&#xa0;? Son contenu sera perdu.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a macro file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier de macro.</translation>
    </message>
    <message>
        <source>The names of Keyrill&apos;s macro files end with &quot;.%1&quot;.</source>
        <translation>Les noms des fichiers de macro de Keyrill se terminent par «&#xa0;.%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>Check the name, or choose one of the list.</source>
        <translation>Vérifiez le nom ou choisissez-en un dans la liste.</translation>
    </message>
    <message>
        <source>Your settings were not saved.</source>
        <translation>Vos réglages n’ont pas été sauvegardés.</translation>
    </message>
    <message>
        <source>Whether Keyrill starts when you log in could not be changed.</source>
        <translation>Le lancement de Keyrill à l’ouverture de session n’a pas pu être modifié.</translation>
    </message>
    <message>
        <source>Something is wrong with your settings.</source>
        <translation>Vos réglages comportent une erreur.</translation>
    </message>
    <message>
        <source>May Keyrill write its hot keys into GNOME&apos;s settings?</source>
        <translation>Keyrill peut-il inscrire ses raccourcis clavier dans les réglages de GNOME ?</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. Keyrill would write one there for each of its combinations, and take them out when it ends. It does not touch what is yours.

You can change your mind in Keyrill&apos;s preferences.</source>
        <translation>Cette version de GNOME ne fournit de raccourcis clavier aux programmes que sous forme de raccourcis personnalisés dans vos propres réglages. Keyrill y inscrirait un raccourci pour chacune de ses combinaisons et les retirerait en se terminant. Il ne touche pas aux vôtres.

Vous pourrez changer d’avis dans les préférences de Keyrill.</translation>
    </message>
    <message>
        <source>Write Them</source>
        <translation>Les inscrire</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more under &quot;Configuration&quot;.</source>
        <translation>Dans cette session, Keyrill ne voit et n’atteint que les fenêtres des programmes X11. Le manuel en dit plus sous «&#xa0;Configuration&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ApplicationObject</name>
    <message>
        <source>Keyrill is playing a macro.</source>
        <translation>Keyrill exécute une macro.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;. There are: %2.</source>
        <translation>L’action «&#xa0;%1&#xa0;» n’existe pas. Actions possibles&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; takes no parameter.</source>
        <translation>L’action «&#xa0;%1&#xa0;» n’accepte aucun paramètre.</translation>
    </message>
</context>
<context>
    <name>BusOwner</name>
    <message>
        <source>Keyrill has ended without an answer.</source>
        <translation>Keyrill s’est arrêté sans répondre.</translation>
    </message>
    <message>
        <source>Process %1, which has Keyrill&apos;s name on the session bus, does not answer.</source>
        <translation>Le processus %1, qui a le nom de Keyrill sur le bus de session, ne répond pas.</translation>
    </message>
    <message>
        <source>End it and start Keyrill again.</source>
        <translation>Arrêtez-le et relancez Keyrill.</translation>
    </message>
</context>
<context>
    <name>CapabilityWords</name>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Utilisez un serveur X plus récent ou activez l’extension dans ses réglages.</translation>
    </message>
    <message>
        <source>by XInput</source>
        <translation>par XInput</translation>
    </message>
    <message>
        <source>by key grabs</source>
        <translation>par capture de touches</translation>
    </message>
    <message>
        <source>by XTEST</source>
        <translation>par XTEST</translation>
    </message>
    <message>
        <source>the X server&apos;s</source>
        <translation>celui du serveur X</translation>
    </message>
    <message>
        <source>above all windows</source>
        <translation>au-dessus de toutes les fenêtres</translation>
    </message>
    <message>
        <source>by the window manager</source>
        <translation>par le gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>a tray that icons dock into</source>
        <translation>une zone de notification où s’insèrent les icônes</translation>
    </message>
    <message>
        <source>a tray that asks for icons over the session bus</source>
        <translation>une zone de notification qui demande les icônes par le bus de session</translation>
    </message>
    <message>
        <source>by a virtual keyboard</source>
        <translation>par un clavier virtuel</translation>
    </message>
    <message>
        <source>by bindings of sway&apos;s</source>
        <translation>par les associations de touches de sway</translation>
    </message>
    <message>
        <source>by KDE&apos;s shortcuts</source>
        <translation>par les raccourcis de KDE</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal, once you allow it</source>
        <translation>par le portail du bureau, une fois que vous l’autorisez</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal: you choose them when it asks, and later in its settings</source>
        <translation>par le portail du bureau&#xa0;: vous les choisissez lorsqu’il le demande, et plus tard dans ses réglages</translation>
    </message>
    <message>
        <source>by sway</source>
        <translation>par sway</translation>
    </message>
    <message>
        <source>by KWin</source>
        <translation>par KWin</translation>
    </message>
    <message>
        <source>what you type into a window of Keyrill&apos;s, &quot;Record Here&quot;</source>
        <translation>ce que vous saisissez dans la fenêtre «&#xa0;Enregistrer ici&#xa0;» de Keyrill</translation>
    </message>
    <message>
        <source>the compositor&apos;s</source>
        <translation>celui du compositeur</translation>
    </message>
    <message>
        <source>as an ordinary window</source>
        <translation>comme une fenêtre ordinaire</translation>
    </message>
    <message>
        <source>on a layer above all windows</source>
        <translation>sur un plan au-dessus de toutes les fenêtres</translation>
    </message>
    <message>
        <source>from the keyboards themselves, which every program of yours may read</source>
        <translation>depuis les claviers eux-mêmes, que chacun de vos programmes peut lire</translation>
    </message>
    <message>
        <source>by keyrill-access, which asks for your password and opens the keyboard while Keyrill records</source>
        <translation>par keyrill-access, qui demande votre mot de passe et ouvre le clavier pendant que Keyrill enregistre</translation>
    </message>
    <message>
        <source>The display cannot be reached.</source>
        <translation>L’affichage est inaccessible.</translation>
    </message>
    <message>
        <source>Start Keyrill inside a desktop session.</source>
        <translation>Lancez Keyrill dans une session graphique.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which shows keys.</source>
        <translation>Il manque au serveur X l’extension %1, qui signale les frappes.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which says what keys mean.</source>
        <translation>Il manque au serveur X l’extension %1, qui dit ce que signifient les touches.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which presses keys.</source>
        <translation>Il manque au serveur X l’extension %1, qui simule les frappes.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1: a key that is held is recorded once.</source>
        <translation>Il manque au serveur X l’extension %1&#xa0;: une touche maintenue n’est enregistrée qu’une fois.</translation>
    </message>
    <message>
        <source>The program keyrill-guard, which releases keys after a crash, is not there; nothing is played without it.</source>
        <translation>Le programme keyrill-guard, qui relâche les touches après un plantage, est absent&#xa0;; rien n’est exécuté sans lui.</translation>
    </message>
    <message>
        <source>Install Keyrill again.</source>
        <translation>Installez Keyrill à nouveau.</translation>
    </message>
    <message>
        <source>Only with the windows of X11 programs: this is a Wayland session.</source>
        <translation>Seulement avec les fenêtres des programmes X11&#xa0;: cette session est une session Wayland.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Choisissez une session X11 à l’ouverture de session.</translation>
    </message>
    <message>
        <source>There is none; a small window with the menu stands in for the icon.</source>
        <translation>Il n’y en a pas&#xa0;; une petite fenêtre avec le menu remplace l’icône.</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. GNOME needs the extension &quot;AppIndicator and KStatusNotifierItem Support&quot;.</source>
        <translation>Ajoutez une zone de notification au tableau de bord du bureau. GNOME a besoin de l’extension «&#xa0;AppIndicator and KStatusNotifierItem Support&#xa0;».</translation>
    </message>
    <message>
        <source>A Wayland session shows no program what is typed in others, and the service that would is not installed.</source>
        <translation>Une session Wayland ne montre à aucun programme ce qui est saisi dans les autres, et le service qui le ferait n’est pas installé.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, &quot;tools/access install&quot;; or record in an X11 session, macros play in both.</source>
        <translation>Installez le paquet keyrill-wayland-access ou exécutez «&#xa0;tools/access install&#xa0;» dans les sources de Keyrill&#xa0;; ou enregistrez dans une session X11, les macros s’exécutent dans les deux.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Ce compositeur ne fournit pas de raccourcis clavier aux programmes.</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Dans les réglages du compositeur, associez des touches à des commandes comme «&#xa0;keyrill --action=play&#xa0;».</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>Ce compositeur ne laisse aucun programme presser des touches.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>Utilisez un compositeur avec claviers virtuels, comme sway, ou une session X11.</translation>
    </message>
    <message>
        <source>This desktop lets no program press keys: its portal does not answer.</source>
        <translation>Ce bureau ne laisse aucun programme presser des touches&#xa0;: son portail ne répond pas.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to the desktop, such as xdg-desktop-portal-kde.</source>
        <translation>Installez xdg-desktop-portal et la partie de celui-ci qui correspond au bureau, comme xdg-desktop-portal-kde.</translation>
    </message>
    <message>
        <source>Only characters that one of your keyboard layouts has.</source>
        <translation>Seulement les caractères présents dans l’une de vos dispositions de clavier.</translation>
    </message>
    <message>
        <source>Add a layout that has them in the desktop&apos;s settings.</source>
        <translation>Ajoutez une disposition qui les contient dans les réglages du bureau.</translation>
    </message>
    <message>
        <source>Only characters that the keyboard layout in force has.</source>
        <translation>Seulement les caractères présents dans la disposition de clavier active.</translation>
    </message>
    <message>
        <source>Switch to a layout that has the others before you play.</source>
        <translation>Passez à une disposition qui contient les autres avant d’exécuter la macro.</translation>
    </message>
    <message>
        <source>This compositor shows the clipboard to windows in front alone.</source>
        <translation>Ce compositeur ne montre le presse-papiers qu’aux fenêtres au premier plan.</translation>
    </message>
    <message>
        <source>Scripts that use the clipboard need another compositor, such as sway, or an X11 session.</source>
        <translation>Les scripts qui utilisent le presse-papiers ont besoin d’un autre compositeur, comme sway, ou d’une session X11.</translation>
    </message>
    <message>
        <source>This compositor tells nothing of other programs&apos; windows.</source>
        <translation>Ce compositeur ne dit rien des fenêtres des autres programmes.</translation>
    </message>
    <message>
        <source>Scripts that bring a window to the front need sway, KDE or an X11 session.</source>
        <translation>Les scripts qui amènent une fenêtre au premier plan ont besoin de sway, de KDE ou d’une session X11.</translation>
    </message>
    <message>
        <source>Full-screen windows may cover it.</source>
        <translation>Les fenêtres en plein écran peuvent la recouvrir.</translation>
    </message>
    <message>
        <source>Use a compositor that has layers, such as sway&apos;s or KDE&apos;s, or an X11 session.</source>
        <translation>Utilisez un compositeur qui gère les plans, comme celui de sway ou de KDE, ou une session X11.</translation>
    </message>
    <message>
        <source>by custom shortcuts in GNOME&apos;s settings while Keyrill runs, as you have agreed; the preferences take that back</source>
        <translation>par des raccourcis personnalisés dans les réglages de GNOME tant que Keyrill fonctionne, comme vous l’avez accepté ; les préférences permettent d’y revenir</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>Cette version de GNOME ne fournit de raccourcis clavier aux programmes que sous forme de raccourcis personnalisés dans vos propres réglages, et vous n’avez pas accepté que Keyrill les y inscrive.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Cochez la case dans les préférences de Keyrill, ou associez vous-même, dans les réglages de GNOME, des touches à des commandes comme « keyrill --action=play ».</translation>
    </message>
</context>
<context>
    <name>CombinationText</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
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
        <translation>--times et --speed précisent comment --play exécute la macro.</translation>
    </message>
    <message>
        <source>keyrill --help tells more.</source>
        <translation>keyrill --help en dit plus.</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>L’option «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>keyrill --help lists them.</source>
        <translation>keyrill --help en donne la liste.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>L’action «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Choisissez l’une de celles-ci&#xa0;: %1.</translation>
    </message>
    <message>
        <source>An action takes no file, and &quot;%1&quot; was given.</source>
        <translation>Une action n’accepte aucun fichier, mais «&#xa0;%1&#xa0;» a été indiqué.</translation>
    </message>
    <message>
        <source>Load it first: keyrill FILE.</source>
        <translation>Chargez-le d’abord&#xa0;: keyrill FICHIER.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much.</source>
        <translation>«&#xa0;%1&#xa0;» est de trop.</translation>
    </message>
    <message>
        <source>--list takes no name.</source>
        <translation>--list n’accepte aucun nom.</translation>
    </message>
    <message>
        <source>A name with blanks is put in quotation marks: &quot;%1&quot;.</source>
        <translation>Un nom avec des espaces se met entre guillemets&#xa0;: &quot;%1&quot;.</translation>
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
        <translation>Utilisation&#xa0;: keyrill [--session=NOM] [--] [FICHIER...]   lancer Keyrill ou, s’il l’est déjà, y charger des macros
              keyrill [--session=NOM] --action=ACTION   demander une action à Keyrill, lancé au besoin
              keyrill [--session=NOM] --play [MACRO|FICHIER] [--times=N|until-stopped] [--speed=X]
                                          lui demander d’exécuter une macro du dossier des macros, ou un fichier
              keyrill [--session=NOM] --show [MACRO]   lui demander d’afficher la fenêtre des macros
              keyrill --list   afficher les noms des macros du dossier des macros
              keyrill [--session=NOM] --check   afficher ce qui fonctionne dans cette session, et ce qu’il faut faire
              keyrill -h | --help | --version
ACTION est l’une de celles-ci&#xa0;: %1.
MACRO est un nom affiché par --list, avec ou sans son groupe&#xa0;; sans MACRO ni FICHIER, --play exécute ce que
la commande «&#xa0;Exécuter&#xa0;» exécute. Un FICHIER sans MACRO de ce nom, ou qui commence par / ou ./, est exécuté tel
quel. Le nombre de fois et la vitesse (0.25 à 4) sont ceux de la macro, sauf s’ils sont donnés. --show choisit
MACRO dans la fenêtre. Pour --play, --show et --list, le code de retour est 0 si c’est fait, 1 sinon, 2 si
l’appel est incorrect&#xa0;; la sortie d’erreur dit pourquoi.
NOM est le type de session graphique&#xa0;; sans lui, le programme le trouve lui-même. Types possibles&#xa0;: %2
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one thing too many.</source>
        <translation>«&#xa0;%1&#xa0;» est de trop.</translation>
    </message>
    <message>
        <source>Call keyrill once for each.</source>
        <translation>Appelez keyrill une fois pour chacun.</translation>
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
        <translation>&amp;Menu de Keyrill</translation>
    </message>
    <message>
        <source>No tray was found, so here is the menu.</source>
        <translation>Aucune zone de notification n’a été trouvée, voici donc le menu.</translation>
    </message>
    <message>
        <source>Keyrill is running; its menu is in the tray too.</source>
        <translation>Keyrill est lancé&#xa0;; son menu est aussi dans la zone de notification.</translation>
    </message>
</context>
<context>
    <name>DraftFiles</name>
    <message>
        <source>The folder %1 cannot be written to: %2.</source>
        <extracomment>a folder, and why</extracomment>
        <translation>Impossible d’écrire dans le dossier %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>A macro needs a name.</source>
        <translation>Une macro a besoin d’un nom.</translation>
    </message>
    <message>
        <source>A name cannot have a slash (/) in it.</source>
        <translation>Un nom ne peut pas contenir de barre oblique (/).</translation>
    </message>
    <message>
        <source>A name cannot begin with a point: the file would be hidden.</source>
        <translation>Un nom ne peut pas commencer par un point&#xa0;: le fichier serait caché.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>Le nom est trop long pour un fichier.</translation>
    </message>
    <message>
        <source>There is already a macro called &quot;%1&quot;.</source>
        <translation>Il y a déjà une macro nommée «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed: %2.</source>
        <translation>Impossible de renommer «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be copied: %2.</source>
        <translation>Impossible de copier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be put into the trash.</source>
        <translation>Impossible de mettre «&#xa0;%1&#xa0;» à la corbeille.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be brought back: %2.</source>
        <translation>Impossible de restaurer «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>FilesDesk</name>
    <message>
        <source>&quot;%1&quot; was not loaded</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été chargé</translation>
    </message>
    <message>
        <source>A macro is being recorded. Stop recording first.</source>
        <translation>Une macro est en cours d’enregistrement. Arrêtez d’abord l’enregistrement.</translation>
    </message>
    <message>
        <source>The screen is locked. Unlock it first.</source>
        <translation>L’écran est verrouillé. Déverrouillez-le d’abord.</translation>
    </message>
    <message>
        <source>Answer Keyrill&apos;s question first.</source>
        <translation>Répondez d’abord à la question de Keyrill.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded</source>
        <translation>«&#xa0;%1&#xa0;» est chargé</translation>
    </message>
    <message>
        <source>Choose a shortcut for Play in the preferences to play it.</source>
        <translation>Choisissez un raccourci pour «&#xa0;Exécuter&#xa0;» dans les préférences pour l’exécuter.</translation>
    </message>
    <message>
        <source>Press %1 to play it.</source>
        <translation>Appuyez sur %1 pour l’exécuter.</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>This is a script of its own: line %1 cannot be changed here. What it would press is shown; change it under Script.</source>
        <translation>Ceci est un script personnalisé&#xa0;: la ligne %1 ne peut pas être modifiée ici. Les touches qu’il presserait sont affichées&#xa0;; modifiez-le sous «&#xa0;Script&#xa0;».</translation>
    </message>
    <message>
        <source>Keys of the macro</source>
        <translation>Touches de la macro</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Record Keys</source>
        <translation>Ajouter des touches</translation>
    </message>
    <message>
        <source>Record keys behind the selected step</source>
        <translation>Enregistrer des touches après l’étape sélectionnée</translation>
    </message>
    <message>
        <source>Add Pause</source>
        <translation>Ajouter une pause</translation>
    </message>
    <message>
        <source>A pause behind the selected step</source>
        <translation>Une pause après l’étape sélectionnée</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Change the text, the pause or how often a key is pressed</source>
        <translation>Modifier le texte, la pause ou le nombre d’appuis sur une touche</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>The selected steps once more</source>
        <translation>Répéter les étapes sélectionnées</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Déplacer vers le haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Déplacer vers le bas</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove the selected steps</source>
        <translation>Retirer les étapes sélectionnées</translation>
    </message>
    <message>
        <source>Convert to Text</source>
        <translation>En texte</translation>
    </message>
    <message>
        <source>Type the same under every keyboard layout</source>
        <translation>Saisir la même chose quelle que soit la disposition de clavier</translation>
    </message>
    <message>
        <source>Convert to Keys</source>
        <translation>En touches</translation>
    </message>
    <message>
        <source>Press the keys of the present keyboard layout</source>
        <translation>Presser les touches de la disposition de clavier actuelle</translation>
    </message>
</context>
<context>
    <name>LibraryController</name>
    <message>
        <source>&quot;%1&quot; was not played</source>
        <translation>La macro «&#xa0;%1&#xa0;» n’a pas été exécutée</translation>
    </message>
    <message>
        <source>Hot keys of macros</source>
        <translation>Raccourcis clavier des macros</translation>
    </message>
    <message>
        <source>The history</source>
        <translation>L’historique</translation>
    </message>
</context>
<context>
    <name>MacroCalls</name>
    <message>
        <source>Keyrill does not answer.</source>
        <translation>Keyrill ne répond pas.</translation>
    </message>
    <message>
        <source>Perhaps its macro folder cannot be reached.</source>
        <translation>Son dossier des macros est peut-être inaccessible.</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>S&amp;cript</source>
        <translation>Sc&amp;ript</translation>
    </message>
</context>
<context>
    <name>MacroFilePanel</name>
    <message>
        <source>Keyrill macros (*.%1)</source>
        <translation>Macros Keyrill (*.%1)</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>Sauvegarder la macro</translation>
    </message>
    <message>
        <source>Load Macro</source>
        <translation>Charger une macro</translation>
    </message>
    <message>
        <source>This name is too long for a file.</source>
        <translation>Ce nom est trop long pour un fichier.</translation>
    </message>
</context>
<context>
    <name>MacroList</name>
    <message>
        <source>The folder %1 does not answer.</source>
        <translation>Le dossier %1 ne répond pas.</translation>
    </message>
</context>
<context>
    <name>MacroListModel</name>
    <message>
        <source>Group %1</source>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a macro and its hot key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, non sauvegardé</translation>
    </message>
</context>
<context>
    <name>MacroSettingsRow</name>
    <message>
        <source>Hot key</source>
        <translation>Raccourci clavier</translation>
    </message>
    <message>
        <source>&amp;Hot key:</source>
        <translation>Raccourc&amp;i&#xa0;:</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Exécutions</translation>
    </message>
    <message>
        <source>Unt&amp;il stopped</source>
        <translation>&amp;Jusqu’à l’arrêt</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>E&amp;xécutions&#xa0;:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>behind a number: so many times as fast</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>The pauses of the macro are divided by this</source>
        <translation>Les pauses de la macro sont divisées par ce nombre</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Sp&amp;eed:</source>
        <translation>&amp;Vitesse&#xa0;:</translation>
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
        <translation>Pause %1&#xa0;s</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Texte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Hold %1</source>
        <extracomment>a key that goes down and stays there</extracomment>
        <translation>Maintenir %1</translation>
    </message>
    <message>
        <source>Let go of %1</source>
        <translation>Relâcher %1</translation>
    </message>
    <message>
        <source>Ask: %1</source>
        <extracomment>a dialog of a script, with its question</extracomment>
        <translation>Demander&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tell: %1</source>
        <translation>Notifier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>Saisir %1</translation>
    </message>
    <message>
        <source>Press %1</source>
        <translation>Appuyer sur %1</translation>
    </message>
    <message numerus="yes">
        <source>Press %1 %Ln times</source>
        <translation>
            <numerusform>Appuyer sur %1 %Ln fois</numerusform>
            <numerusform>Appuyer sur %1 %Ln fois</numerusform>
        </translation>
    </message>
    <message>
        <source>Wait %1 seconds</source>
        <translation>Attendre %1 secondes</translation>
    </message>
    <message numerus="yes">
        <source>Wait %1 seconds, %Ln times</source>
        <translation>
            <numerusform>Attendre %1 secondes, %Ln fois</numerusform>
            <numerusform>Attendre %1 secondes, %Ln fois</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacrosDesk</name>
    <message>
        <source>Play has the latest macro until there is another.</source>
        <translation>«&#xa0;Exécuter&#xa0;» utilise la dernière macro jusqu’à ce qu’il y en ait une autre.</translation>
    </message>
    <message>
        <source>What is not saved would not outlive a crash. %1</source>
        <translation>Ce qui n’est pas sauvegardé ne survivrait pas à un plantage. %1</translation>
    </message>
    <message>
        <source>The macro is still being read: its folder does not answer.</source>
        <translation>La macro est encore en cours de lecture&#xa0;: son dossier ne répond pas.</translation>
    </message>
    <message>
        <source>The file of this macro is gone. If you save, it is there again.</source>
        <translation>Le fichier de cette macro a disparu. Si vous sauvegardez, il sera recréé.</translation>
    </message>
    <message>
        <source>Another program has deleted or moved the macro.</source>
        <translation>Un autre programme a supprimé ou déplacé la macro.</translation>
    </message>
    <message>
        <source>Another program has changed this macro. If you save, your text replaces it.</source>
        <translation>Un autre programme a modifié cette macro. Si vous sauvegardez, votre texte remplacera cette modification.</translation>
    </message>
    <message>
        <source>What was not saved is there again: %1.</source>
        <translation>Ce qui n’était pas sauvegardé a été récupéré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The recording is forgotten.</source>
        <translation>L’enregistrement a été supprimé de l’historique.</translation>
    </message>
    <message>
        <source>All recordings are forgotten.</source>
        <translation>Tous les enregistrements ont été supprimés de l’historique.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Sauvegardé.</translation>
    </message>
    <message>
        <source>New Macro</source>
        <translation>Nouvelle macro</translation>
    </message>
    <message>
        <source>The macro is in the trash.</source>
        <translation>La macro est dans la corbeille.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The macro cannot be played. Line %1: %2</source>
        <extracomment>of a script; what is wrong</extracomment>
        <translation>La macro ne peut pas être exécutée. Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The macro is deleted.</source>
        <translation>La macro est supprimée.</translation>
    </message>
</context>
<context>
    <name>MacrosInterface</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>L’option «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Options possibles&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file of this machine.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier de cet ordinateur.</translation>
    </message>
    <message>
        <source>It begins with file:///.</source>
        <translation>Son adresse doit commencer par file:///.</translation>
    </message>
</context>
<context>
    <name>MacrosWindow</name>
    <message>
        <source>Macros</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>Rechercher des macros</translation>
    </message>
    <message>
        <source>&amp;Record New</source>
        <translation>Nouvel &amp;enregistrement</translation>
    </message>
    <message>
        <source>Record a new macro</source>
        <translation>Enregistrer une nouvelle macro</translation>
    </message>
    <message>
        <source>Keep Recordin&amp;g...</source>
        <translation>C&amp;onserver un enregistrement...</translation>
    </message>
    <message>
        <source>Keep a recording of the history as a macro, by a name</source>
        <translation>Conserver un enregistrement de l’historique comme macro, sous un nom</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Supprimer de l’&amp;historique</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Exé&amp;cuter</translation>
    </message>
    <message>
        <source>Play into the window that you were in before, after three seconds</source>
        <translation>Exécuter après trois secondes dans la fenêtre où vous étiez auparavant</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sauvegarder</translation>
    </message>
    <message>
        <source>Save the macro (%1)</source>
        <translation>Sauvegarder la macro (%1)</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Make a copy of the macro</source>
        <translation>Faire une copie de la macro</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nommer</translation>
    </message>
    <message>
        <source>Give the macro another name (F2)</source>
        <translation>Donner un autre nom à la macro (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Su&amp;pprimer</translation>
    </message>
    <message>
        <source>Put the macro into the trash (Delete)</source>
        <translation>Mettre la macro à la corbeille (Suppr)</translation>
    </message>
    <message>
        <source>Stop (Escape)</source>
        <translation>Arrêter (Échap)</translation>
    </message>
    <message>
        <source>Do not play</source>
        <translation>Ne pas exécuter</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>The macro folder is still being read.</source>
        <translation>Le dossier des macros est encore en cours de lecture.</translation>
    </message>
    <message>
        <source>There is no macro yet. Record one, or put a macro file into the macro folder.</source>
        <translation>Il n’y a pas encore de macro. Enregistrez-en une ou placez un fichier de macro dans le dossier des macros.</translation>
    </message>
    <message>
        <source>Plays in %1 s...</source>
        <translation>Exécution dans %1&#xa0;s...</translation>
    </message>
</context>
<context>
    <name>MultiplePlayWindow</name>
    <message>
        <source>Play Multiple Times</source>
        <translation>Exécuter plusieurs fois</translation>
    </message>
    <message>
        <source>&amp;Times to play:</source>
        <translation>Nombre de &amp;fois&#xa0;:</translation>
    </message>
    <message>
        <source>Times to play</source>
        <translation>Nombre de fois</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Exé&amp;cuter</translation>
    </message>
    <message>
        <source>No macro yet</source>
        <translation>Pas encore de macro</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
</context>
<context>
    <name>OverlayDesk</name>
    <message>
        <source>Waiting for your permission</source>
        <translation>En attente de votre autorisation</translation>
    </message>
    <message>
        <source>Not recorded: keyboard held</source>
        <translation>Non enregistré&#xa0;: clavier capturé</translation>
    </message>
</context>
<context>
    <name>PauseRow</name>
    <message>
        <source>Never</source>
        <extracomment>whether pauses are recorded: never, as long as they were when typed, or not longer than a number of seconds</extracomment>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Telles quelles</translation>
    </message>
    <message>
        <source>At most</source>
        <extracomment>stands before a number of seconds</extracomment>
        <translation>Au plus</translation>
    </message>
    <message>
        <source>Record pauses</source>
        <translation>Enregistrer les pauses</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Longest pause in seconds</source>
        <translation>Pause la plus longue en secondes</translation>
    </message>
    <message>
        <source>Record p&amp;auses:</source>
        <translation>Enregistrer les pa&amp;uses&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PlayRequests</name>
    <message>
        <source>There are several macros called &quot;%1&quot;.</source>
        <translation>Il y a plusieurs macros nommées «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Say which one: %1.</source>
        <translation>Précisez laquelle&#xa0;: %1.</translation>
    </message>
    <message>
        <source>keyrill --list lists all.</source>
        <translation>keyrill --list en donne la liste.</translation>
    </message>
    <message>
        <source>There is no macro called &quot;%1&quot;.</source>
        <translation>Il n’y a pas de macro nommée «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Il n’y a pas encore de macro à exécuter.</translation>
    </message>
    <message>
        <source>What Play plays cannot be played: its script is wrong in line %1.</source>
        <translation>La macro de la commande «&#xa0;Exécuter&#xa0;» ne peut pas être exécutée&#xa0;: son script est erroné à la ligne %1.</translation>
    </message>
    <message>
        <source>Play in the menu tells more.</source>
        <translation>«&#xa0;Exécuter&#xa0;» dans le menu en dit plus.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be played: its script is wrong in line %2.</source>
        <translation>Impossible d’exécuter «&#xa0;%1&#xa0;»&#xa0;: son script est erroné à la ligne %2.</translation>
    </message>
    <message>
        <source>keyrill-script check &quot;%1&quot; tells more.</source>
        <translation>keyrill-script check &quot;%1&quot; en dit plus.</translation>
    </message>
    <message>
        <source>Similar: %1.</source>
        <translation>Noms proches&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>PlayWords</name>
    <message>
        <source>&quot;%1&quot; is not how many times a macro can be played.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre d’exécutions valide.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Indiquez un nombre entier à partir de 1, ou until-stopped.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not how fast a macro can be played.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une vitesse valide.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4, with a point: 1.5.</source>
        <translation>Indiquez un nombre de 0.25 à 4, avec un point décimal&#xa0;: 1.5.</translation>
    </message>
    <message>
        <source>The name of the macro is empty.</source>
        <translation>Le nom de la macro est vide.</translation>
    </message>
    <message>
        <source>keyrill --list prints those that there are.</source>
        <translation>keyrill --list affiche ceux qui existent.</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Keyrill Preferences</source>
        <translation>Préférences de Keyrill</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>Rechercher mai&amp;ntenant</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>These combinations work in every program. Click a field and press the combination you want.</source>
        <translation>Ces combinaisons fonctionnent dans tous les programmes. Cliquez dans un champ et appuyez sur la combinaison voulue.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
</context>
<context>
    <name>ProgramInstance</name>
    <message>
        <source>The macro folder was out of reach for too long.</source>
        <translation>Le dossier des macros est resté inaccessible trop longtemps.</translation>
    </message>
    <message>
        <source>Another program has Keyrill&apos;s name on the session bus and does not do its work: %1</source>
        <translation>Un autre programme a pris le nom de Keyrill sur le bus de session et ne fait pas son travail&#xa0;: %1</translation>
    </message>
    <message>
        <source>End that program and start Keyrill again.</source>
        <translation>Arrêtez ce programme et relancez Keyrill.</translation>
    </message>
    <message>
        <source>It cannot be given a file, since it has no session bus.</source>
        <translation>Aucun fichier ne peut lui être transmis, car il n’a pas de bus de session.</translation>
    </message>
    <message>
        <source>Keyrill is running already.</source>
        <translation>Keyrill est déjà lancé.</translation>
    </message>
</context>
<context>
    <name>RecordHerePanel</name>
    <message>
        <source>Record Here</source>
        <translation>Enregistrer ici</translation>
    </message>
    <message>
        <source>How to Record Everywhere</source>
        <translation>Comment enregistrer partout</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>Tapez ici</translation>
    </message>
    <message>
        <source>Keys typed here are recorded</source>
        <translation>Les touches frappées ici sont enregistrées</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>What you type in this window is recorded</source>
        <translation>Ce que vous saisissez dans cette fenêtre est enregistré</translation>
    </message>
    <message>
        <source>What you type in other programs is not. The macro can be played in all of them.</source>
        <translation>Ce que vous saisissez dans d’autres programmes ne l’est pas. La macro peut être exécutée dans tous.</translation>
    </message>
    <message>
        <source>Why not everywhere?</source>
        <translation>Pourquoi pas partout&#xa0;?</translation>
    </message>
    <message>
        <source>Press Stop Recording or close the window when you are done.</source>
        <translation>Cliquez sur «&#xa0;Arrêter l’enregistrement&#xa0;» ou fermez la fenêtre quand vous avez fini.</translation>
    </message>
    <message>
        <source>Press %1 when you are done, or close the window.</source>
        <translation>Appuyez sur %1 quand vous avez fini, ou fermez la fenêtre.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window.</source>
        <translation>Utilisez la combinaison définie dans les réglages du bureau quand vous avez fini, ou fermez la fenêtre.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window: %1</source>
        <translation>Utilisez la combinaison définie dans les réglages du bureau quand vous avez fini, ou fermez la fenêtre&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>RecorderWindow</name>
    <message>
        <source>Keyrill recording</source>
        <translation>Keyrill enregistre</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>There is no session bus, over which the running Keyrill could be asked.</source>
        <translation>Il n’y a pas de bus de session par lequel interroger Keyrill.</translation>
    </message>
    <message>
        <source>Call it from within the desktop session; the hot keys and the menu need none.</source>
        <translation>Appelez-le depuis la session graphique&#xa0;; les raccourcis clavier et le menu n’en ont pas besoin.</translation>
    </message>
    <message>
        <source>Keyrill could not be started, or runs already where this session bus does not reach.</source>
        <translation>Keyrill n’a pas pu être lancé, ou l’est déjà hors de portée de ce bus de session.</translation>
    </message>
    <message>
        <source>Start it as &quot;keyrill&quot; in a terminal to see why.</source>
        <translation>Lancez «&#xa0;keyrill&#xa0;» dans un terminal pour voir pourquoi.</translation>
    </message>
</context>
<context>
    <name>SRRecorderControl</name>
    <message>
        <source>Clear %1</source>
        <translation>Effacer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Click here, then press a combination. Backspace clears, Escape keeps what was set.</source>
        <translation>Cliquez ici, puis appuyez sur une combinaison. Retour arrière efface, Échap conserve ce qui était défini.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super</source>
        <translation>Ajoutez Ctrl, Alt ou Super</translation>
    </message>
    <message>
        <source>Press a combination…</source>
        <translation>Appuyez sur une combinaison…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
</context>
<context>
    <name>ScriptDialogWindow</name>
    <message>
        <source>Stop</source>
        <extracomment>the name of a picture: a stop sign</extracomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Keyrill Macro</source>
        <translation>Macro Keyrill</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>Words of the script language</source>
        <translation>Mots du langage de script</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <extracomment>of a script; what is wrong, or could be</extracomment>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ScriptNotices</name>
    <message>
        <source>The macro was not played to its end</source>
        <translation>La macro n’a pas été exécutée jusqu’au bout</translation>
    </message>
    <message>
        <source>The macro cannot be played</source>
        <translation>La macro ne peut pas être exécutée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded but cannot be played</source>
        <translation>«&#xa0;%1&#xa0;» est chargé mais ne peut pas être exécuté</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
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
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1, affichage %2</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>missing: %1; there: %2</source>
        <translation>manquants&#xa0;: %1&#xa0;; présents&#xa0;: %2</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Pressing keys</source>
        <translation>Appui sur les touches</translation>
    </message>
    <message>
        <source>Typing text</source>
        <translation>Saisie de texte</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Windows of other programs</source>
        <translation>Fenêtres des autres programmes</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>by what it works, and what is missing all the same, which is a sentence</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Hot key of &quot;%1&quot;</source>
        <translation>Raccourci clavier de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>none is chosen</source>
        <translation>aucun n’est choisi</translation>
    </message>
    <message>
        <source>%1, which nobody else has</source>
        <translation>%1, que personne d’autre n’utilise</translation>
    </message>
    <message>
        <source>%1, which the running Keyrill has</source>
        <translation>%1, que Keyrill utilise déjà</translation>
    </message>
    <message>
        <source>%1; the session does not tell who has it</source>
        <translation>%1&#xa0;; la session ne dit pas qui l’utilise</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de session</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>the session bus exists</extracomment>
        <translation>présent</translation>
    </message>
    <message>
        <source>There is none: &quot;keyrill --action&quot;, notifications and many trays need it, and a locked screen is not noticed at once.</source>
        <translation>Il n’y en a pas&#xa0;: «&#xa0;keyrill --action&#xa0;», les notifications et de nombreuses zones de notification en ont besoin, et un écran verrouillé n’est pas remarqué tout de suite.</translation>
    </message>
    <message>
        <source>Start Keyrill from within the desktop session.</source>
        <translation>Lancez Keyrill depuis la session graphique.</translation>
    </message>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>est lancé</translation>
    </message>
    <message>
        <source>is not running</source>
        <translation>n’est pas lancé</translation>
    </message>
    <message>
        <source>no lock is on</source>
        <translation>aucun verrouillage n’est actif</translation>
    </message>
    <message>
        <source>on: %1, which macros do not mind</source>
        <translation>actifs&#xa0;: %1, ce qui ne gêne pas les macros</translation>
    </message>
    <message>
        <source>layout unknown</source>
        <translation>disposition inconnue</translation>
    </message>
    <message>
        <source>layout %1</source>
        <translation>disposition %1</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>the keyboard layouts, and the locks that are on</extracomment>
        <translation>%1&#xa0;; %2</translation>
    </message>
</context>
<context>
    <name>ShortcutNotices</name>
    <message>
        <source>Still used by %1 until Keyrill restarts.</source>
        <translation>Encore utilisé par «&#xa0;%1&#xa0;» jusqu’au redémarrage de Keyrill.</translation>
    </message>
    <message>
        <source>Already used by %1.</source>
        <translation>Déjà utilisé par «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Le bureau n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings.</source>
        <translation>Défini dans les réglages du bureau.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings: %1</source>
        <translation>Défini dans les réglages du bureau&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 still works until Keyrill restarts.</source>
        <translation>%1 fonctionne encore jusqu’au redémarrage de Keyrill.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;, which gives way.</source>
        <translation>Déjà utilisé par la macro «&#xa0;%1&#xa0;», qui cède la place.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;.</source>
        <translation>Déjà utilisé par la macro «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ShortcutTitles</name>
    <message>
        <source>Start &amp;Recording:</source>
        <translation>&amp;Démarrer l’enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>Démarrer l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Stop Recording:</source>
        <translation>&amp;Arrêter l’enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Play:</source>
        <translation>&amp;Exécuter&#xa0;:</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Play &amp;Multiple Times:</source>
        <translation>Exécuter &amp;plusieurs fois&#xa0;:</translation>
    </message>
    <message>
        <source>Play Multiple Times</source>
        <translation>Exécuter plusieurs fois</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Start Recording</source>
        <translation>Démarrer l’enregistrement</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>Save Pause</source>
        <translation>Enregistrer la pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Play Multiple Times...</source>
        <translation>Exécuter plusieurs fois...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Save Macro...</source>
        <translation>Sauvegarder la macro...</translation>
    </message>
    <message>
        <source>Load Macro...</source>
        <translation>Charger une macro...</translation>
    </message>
    <message>
        <source>Macros...</source>
        <translation>Macros...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Forum</translation>
    </message>
    <message>
        <source>Product Page</source>
        <translation>Page du produit</translation>
    </message>
    <message>
        <source>Maker&apos;s Website</source>
        <translation>Site de l’éditeur</translation>
    </message>
    <message>
        <source>Get Support</source>
        <translation>Obtenir de l’aide</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Envoyer un commentaire</translation>
    </message>
    <message>
        <source>Report a Bug</source>
        <translation>Signaler un bogue</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Rechercher des mises à jour...</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>À propos de Keyrill</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Keyrill menu</source>
        <translation>Menu de Keyrill</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Ce qui fonctionne ici</translation>
    </message>
</context>
<context>
    <name>StatusNotice</name>
    <message>
        <source>%1 has no shortcut. %2</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de raccourci. %2</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>Works</source>
        <translation>Fonctionne</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>Ne fonctionne pas</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Ce qui fonctionne ici</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Copy all lines, for a mail or a forum</source>
        <translation>Copier toutes les lignes, pour un courriel ou un forum</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Vérifier à &amp;nouveau</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>A moment...</source>
        <translation>Un instant...</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>Impossible de déterminer ce qui fonctionne ici.</translation>
    </message>
    <message>
        <source>&quot;keyrill --check&quot; in a terminal may say why.</source>
        <translation>«&#xa0;keyrill --check&#xa0;» dans un terminal en dira peut-être la raison.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>whether it works, and what</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StepsModel</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The script goes on; only its beginning is shown.</source>
        <translation>Le script continue&#xa0;; seul son début est affiché.</translation>
    </message>
    <message>
        <source>A pause is a number of seconds from 0 to a day.</source>
        <translation>Une pause s’indique en secondes, de 0 à un jour.</translation>
    </message>
    <message>
        <source>A key is pressed from 1 to 10,000 times.</source>
        <translation>Une touche peut être pressée de 1 à 10&#x202f;000 fois.</translation>
    </message>
    <message>
        <source>This step cannot be changed here.</source>
        <translation>Cette étape ne peut pas être modifiée ici.</translation>
    </message>
</context>
<context>
    <name>Toggles</name>
    <message>
        <source>Check for &amp;updates when Keyrill starts</source>
        <translation>Rechercher les &amp;mises à jour au lancement de Keyrill</translation>
    </message>
    <message>
        <source>Start Keyrill when I log &amp;in</source>
        <translation>Lancer Keyrill à l’ou&amp;verture de session</translation>
    </message>
    <message>
        <source>Record modifier &amp;keys on their own</source>
        <translation>Enregistrer les touches de modification &amp;seules</translation>
    </message>
    <message>
        <source>Keep the &amp;history for the next start</source>
        <translation>Conserver l’&amp;historique pour le prochain lancement</translation>
    </message>
    <message>
        <source>&amp;Write hot keys into GNOME&apos;s settings</source>
        <translation>Inscrire les raccourcis dans les ré&amp;glages de GNOME</translation>
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
        <translation>Bienvenue dans Keyrill</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>Your first macro</source>
        <translation>Votre première macro</translation>
    </message>
    <message>
        <source>The combinations</source>
        <translation>Les combinaisons</translation>
    </message>
    <message>
        <source>You can change them in the preferences, which come next.</source>
        <translation>Vous pourrez les modifier dans les préférences, qui s’ouvrent ensuite.</translation>
    </message>
    <message>
        <source>Keyrill records the keys you press and presses them again for you, in any program, as often as you like.</source>
        <translation>Keyrill enregistre vos frappes au clavier et les reproduit pour vous, dans n’importe quel programme, aussi souvent que vous voulez.</translation>
    </message>
    <message>
        <source>Choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Choisissez «&#xa0;Démarrer l’enregistrement&#xa0;» dans le menu de Keyrill. Puis tapez.</translation>
    </message>
    <message>
        <source>Press %1, or choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Appuyez sur %1 ou choisissez «&#xa0;Démarrer l’enregistrement&#xa0;» dans le menu de Keyrill. Puis tapez.</translation>
    </message>
    <message>
        <source>Choose Stop Recording when you are done.</source>
        <translation>Choisissez «&#xa0;Arrêter l’enregistrement&#xa0;» quand vous avez fini.</translation>
    </message>
    <message>
        <source>Press %1 when you are done.</source>
        <translation>Appuyez sur %1 quand vous avez fini.</translation>
    </message>
    <message>
        <source>Click where the keys should go and choose Play.</source>
        <translation>Cliquez à l’endroit où la saisie doit se faire et choisissez «&#xa0;Exécuter&#xa0;».</translation>
    </message>
    <message>
        <source>Click where the keys should go and press %1.</source>
        <translation>Cliquez à l’endroit où la saisie doit se faire et appuyez sur %1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
</context>
</TS>
