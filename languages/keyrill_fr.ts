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
        <translation>Keyrill peut-il inscrire ses raccourcis clavier dans les réglages de GNOME&#xa0;?</translation>
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
        <translation>par des raccourcis personnalisés dans les réglages de GNOME tant que Keyrill fonctionne, comme vous l’avez accepté&#xa0;; les préférences permettent d’y revenir</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>Cette version de GNOME ne fournit de raccourcis clavier aux programmes que sous forme de raccourcis personnalisés dans vos propres réglages, et vous n’avez pas accepté que Keyrill les y inscrive.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Cochez la case dans les préférences de Keyrill, ou associez vous-même, dans les réglages de GNOME, des touches à des commandes comme «&#xa0;keyrill --action=play&#xa0;».</translation>
    </message>
    <message>
        <source>by the compositor</source>
        <translation>par le compositeur</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>This compositor gives the clipboard to windows alone.</source>
        <translation>Ce compositeur ne donne accès au presse-papiers qu’aux fenêtres.</translation>
    </message>
    <message>
        <source>Use a compositor with data control, such as sway, or an X11 session.</source>
        <translation>Utilisez un compositeur avec contrôle des données (data control), comme sway, ou une session X11.</translation>
    </message>
    <message>
        <source>No more files can be opened.</source>
        <translation>Impossible d’ouvrir davantage de fichiers.</translation>
    </message>
    <message>
        <source>Close programs.</source>
        <translation>Fermez des programmes.</translation>
    </message>
    <message>
        <source>The text in the clipboard is too long.</source>
        <translation>Le texte du presse-papiers est trop long.</translation>
    </message>
    <message>
        <source>The clipboard is held by another program.</source>
        <translation>Le presse-papiers est occupé par un autre programme.</translation>
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
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
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
    <name>Files</name>
    <message>
        <source>Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is a code: 0xE9</extracomment>
        <translation>La ligne %1 contient l’octet %2 à la position %3, or un fichier de macro ne peut contenir que de l’ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085</extracomment>
        <translation>La ligne %1 contient le caractère (%2) à la position %3, or un fichier de macro ne peut contenir que de l’ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character &quot;%2&quot; (%3) at place %4, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %4 are numbers, %2 is a character, %3 its code: U+00E9</extracomment>
        <translation>La ligne %1 contient le caractère «&#xa0;%2&#xa0;» (%3) à la position %4, or un fichier de macro ne peut contenir que de l’ASCII.</translation>
    </message>
    <message>
        <source>Replace the character in the macro.</source>
        <translation>Remplacez ce caractère dans la macro.</translation>
    </message>
    <message>
        <source>The file %1 cannot be deleted: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Impossible de supprimer le fichier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Check who may write to its folder, or delete it yourself.</source>
        <translation>Vérifiez qui peut écrire dans son dossier, ou supprimez-le vous-même.</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>C’est un dossier</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Choisissez un fichier.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Impossible de lire le fichier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Impossible d’écrire le fichier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MiB</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Sa taille dépasse %1&#xa0;Mio</translation>
    </message>
    <message>
        <source>Choose a smaller file.</source>
        <translation>Choisissez un fichier plus petit.</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Check that the file is there and who may read it.</source>
        <translation>Vérifiez si le fichier existe et qui peut le lire.</translation>
    </message>
    <message>
        <source>Make room, check who may write there, or choose another place.</source>
        <translation>Libérez de l’espace, vérifiez qui peut écrire à cet emplacement ou choisissez-en un autre.</translation>
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
    <name>Folders</name>
    <message>
        <source>The folder %1 cannot be made: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Impossible de créer le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Check who may write there.</source>
        <translation>Vérifiez qui peut écrire à cet emplacement.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Impossible de lire le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Check who may read it.</source>
        <translation>Vérifiez qui peut le lire.</translation>
    </message>
    <message>
        <source>What changes in the folder %1 is not noticed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Les modifications dans le dossier %1 ne sont pas détectées&#xa0;: %2</translation>
    </message>
    <message>
        <source>Start Keyrill again after changes, or raise fs.inotify.max_user_watches.</source>
        <translation>Relancez Keyrill après des modifications ou augmentez fs.inotify.max_user_watches.</translation>
    </message>
    <message>
        <source>Make room, or check who may write there.</source>
        <translation>Libérez de l’espace ou vérifiez qui peut écrire à cet emplacement.</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>A handler is called with parentheses: %1().</source>
        <translation>Un gestionnaire s’appelle avec des parenthèses&#xa0;: %1().</translation>
    </message>
    <message>
        <source>The key has a number: key code %1.</source>
        <translation>La touche a un numéro&#xa0;: key code %1.</translation>
    </message>
    <message>
        <source>Return is joined to a text so: &quot;hello&quot; &amp; return.</source>
        <translation>La touche Entrée s’ajoute ainsi à un texte&#xa0;: &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>Tab is joined to a text so: &quot;hello&quot; &amp; tab.</source>
        <translation>La touche Tab s’ajoute ainsi à un texte&#xa0;: &quot;hello&quot; &amp; tab.</translation>
    </message>
    <message>
        <source>A question is asked with: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</source>
        <translation>Une question se pose ainsi&#xa0;: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</translation>
    </message>
    <message>
        <source>A number by chance is: random number from 1 to 10.</source>
        <translation>Un nombre aléatoire s’obtient ainsi&#xa0;: random number from 1 to 10.</translation>
    </message>
    <message>
        <source>A loop is left with “exit repeat”, the script with “return”.</source>
        <translation>On quitte une boucle avec «&#xa0;exit repeat&#xa0;», le script avec «&#xa0;return&#xa0;».</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Le texte se saisit avec «&#xa0;keystroke&#xa0;»&#xa0;: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A pause is written in seconds: delay 2.</source>
        <translation>Une pause s’écrit en secondes&#xa0;: delay 2.</translation>
    </message>
    <message>
        <source>Errors are caught with: try … on error … end try.</source>
        <translation>Les erreurs s’interceptent ainsi&#xa0;: try … on error … end try.</translation>
    </message>
    <message>
        <source>Nothing is imported; the commands are there from the start: delay 2, keystroke &quot;hello&quot;.</source>
        <translation>Il n’y a rien à importer&#xa0;; les commandes sont présentes dès le départ&#xa0;: delay 2, keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A value is printed with: log &quot;x&quot;. Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Une valeur s’affiche ainsi&#xa0;: log &quot;x&quot;. Le texte se saisit avec «&#xa0;keystroke&#xa0;»&#xa0;: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A message is shown with: display dialog &quot;hello&quot;.</source>
        <translation>Un message s’affiche ainsi&#xa0;: display dialog &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>What has no value is written: missing value.</source>
        <translation>Ce qui n’a pas de valeur s’écrit&#xa0;: missing value.</translation>
    </message>
    <message>
        <source>A window is brought to the front with: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Une fenêtre est amenée au premier plan ainsi&#xa0;: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.</source>
        <translation>Un code de touche est compris entre 0 et %1&#xa0;; «&#xa0;keyrill-script keys&#xa0;» affiche ceux qui correspondent à des touches.</translation>
    </message>
    <message>
        <source>A key code is a number; a text is typed with “keystroke”.</source>
        <translation>Un code de touche est un nombre&#xa0;; un texte se saisit avec «&#xa0;keystroke&#xa0;».</translation>
    </message>
    <message>
        <source>The key has a number: key code %1; “keyrill-script keys” prints all.</source>
        <translation>La touche a un numéro&#xa0;: key code %1&#xa0;; «&#xa0;keyrill-script keys&#xa0;» les affiche tous.</translation>
    </message>
    <message>
        <source>The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.</source>
        <translation>Les parties d’une date sont year, month, day, weekday, hours, minutes, seconds et time.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Vouliez-vous dire %1&#xa0;?</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: delay 0.5.</source>
        <translation>Les décimales se placent après un point&#xa0;: delay 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds: delay 0.5.</source>
        <translation>«&#xa0;delay&#xa0;» compte en secondes&#xa0;: delay 0.5.</translation>
    </message>
    <message>
        <source>A dialog gives a record; what was typed there is taken with: text returned of n.</source>
        <translation>Une boîte de dialogue donne un enregistrement (record)&#xa0;; ce qui y a été saisi s’obtient ainsi&#xa0;: text returned of n.</translation>
    </message>
    <message>
        <source>A modifier stands without quotes: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>Une touche de modification s’écrit sans guillemets&#xa0;: using %1 down.</translation>
    </message>
    <message>
        <source>Several modifiers stand in braces: using {control down, shift down}.</source>
        <translation>Plusieurs touches de modification s’écrivent entre accolades&#xa0;: using {control down, shift down}.</translation>
    </message>
    <message>
        <source>Texts are joined with “&amp;”: &quot;one&quot; &amp; &quot;two&quot;.</source>
        <translation>Les textes se joignent avec «&#xa0;&amp;&#xa0;»&#xa0;: &quot;one&quot; &amp; &quot;two&quot;.</translation>
    </message>
    <message>
        <source>This compares and changes nothing; a variable is set with “to”: set %1 to …</source>
        <translation>Ceci compare et ne change rien&#xa0;; une variable se définit avec «&#xa0;to&#xa0;»&#xa0;: set %1 to …</translation>
    </message>
    <message>
        <source>The script has no handler of that name: on %1(…) … end %1.</source>
        <translation>Le script n’a pas de gestionnaire de ce nom&#xa0;: on %1(…) … end %1.</translation>
    </message>
    <message>
        <source>No program takes a command but “activate”; press its keys: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</source>
        <translation>Les programmes n’acceptent aucune autre commande que «&#xa0;activate&#xa0;»&#xa0;; appuyez sur les touches qui font la même chose dans le programme&#xa0;: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</translation>
    </message>
    <message>
        <source>The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Les touches de modification s’appellent command (Super), control (Ctrl), option (Alt) et shift (Maj)&#xa0;: using %1 down.</translation>
    </message>
    <message>
        <source>An application is named: application &quot;%1&quot;.</source>
        <translation>Une application se désigne ainsi&#xa0;: application &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Le texte s’écrit entre guillemets droits&#xa0;: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A handler has variables of its own; to share this one write there: global %1.</source>
        <translation>Un gestionnaire a ses propres variables&#xa0;; pour partager celle-ci, écrivez-y&#xa0;: global %1.</translation>
    </message>
    <message>
        <source>A variable is set before it is used: set %1 to … Text stands between straight quotes: &quot;%2&quot;.</source>
        <translation>Une variable se définit avant d’être utilisée&#xa0;: set %1 to … Le texte s’écrit entre guillemets droits&#xa0;: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.</source>
        <translation>Une touche se presse par son numéro&#xa0;: key code 36 est la touche Entrée. «&#xa0;keyrill-script keys&#xa0;» affiche tous les numéros.</translation>
    </message>
    <message>
        <source>The date of today is “current date”; as a text: short date string of (current date).</source>
        <translation>La date du jour est «&#xa0;current date&#xa0;»&#xa0;; sous forme de texte&#xa0;: short date string of (current date).</translation>
    </message>
    <message>
        <source>Inside “tell” the script’s own handlers are called with “my”: my %1(…).</source>
        <translation>Dans «&#xa0;tell&#xa0;», les gestionnaires propres au script s’appellent avec «&#xa0;my&#xa0;»&#xa0;: my %1(…).</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Aucun bloc n’est ouvert ici&#xa0;; un «&#xa0;if&#xa0;» avec son instruction sur la même ligne n’a pas de «&#xa0;else&#xa0;».</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Aucun bloc n’est ouvert ici&#xa0;; un «&#xa0;if&#xa0;» avec son instruction sur la même ligne n’a pas de «&#xa0;end if&#xa0;».</translation>
    </message>
    <message>
        <source>No block is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Aucun bloc n’est ouvert ici&#xa0;; un «&#xa0;tell … to&#xa0;» sur une seule ligne n’a pas de «&#xa0;end tell&#xa0;».</translation>
    </message>
    <message>
        <source>No block is open here; this line is one too many.</source>
        <translation>Aucun bloc n’est ouvert ici&#xa0;; cette ligne est en trop.</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Aucun «&#xa0;if&#xa0;» n’est ouvert ici&#xa0;; un «&#xa0;if&#xa0;» avec son instruction sur la même ligne n’a pas de «&#xa0;else&#xa0;».</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Aucun «&#xa0;if&#xa0;» n’est ouvert ici&#xa0;; un «&#xa0;if&#xa0;» avec son instruction sur la même ligne n’a pas de «&#xa0;end if&#xa0;».</translation>
    </message>
    <message>
        <source>No “tell” is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Aucun «&#xa0;tell&#xa0;» n’est ouvert ici&#xa0;; un «&#xa0;tell … to&#xa0;» sur une seule ligne n’a pas de «&#xa0;end tell&#xa0;».</translation>
    </message>
    <message>
        <source>No “%1” is open here; the block that begins in line %2 has no “end” of its own.</source>
        <extracomment>%1 is the first word of a block, &quot;repeat&quot;, %2 a number.</extracomment>
        <translation>Aucun «&#xa0;%1&#xa0;» n’est ouvert ici&#xa0;; le bloc qui commence à la ligne %2 n’a pas de «&#xa0;end&#xa0;» propre.</translation>
    </message>
    <message>
        <source>In line %1 these are two words: %2.</source>
        <extracomment>%1 is a number, %2 what the line was meant to be, &quot;end if&quot;.</extracomment>
        <translation>À la ligne %1, cela s’écrit en deux mots&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 has no “end” of its own.</source>
        <translation>Le bloc qui commence à la ligne %1 n’a pas de «&#xa0;end&#xa0;» propre.</translation>
    </message>
    <message>
        <source>The text that begins here is not closed by a straight quote in its line.</source>
        <translation>Le texte qui commence ici n’est pas fermé par un guillemet droit sur sa ligne.</translation>
    </message>
    <message>
        <source>The comment that begins in line %1 is not closed by “*)”.</source>
        <translation>Le commentaire qui commence à la ligne %1 n’est pas fermé par «&#xa0;*)&#xa0;».</translation>
    </message>
    <message>
        <source>The keyboard commands stand inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Les commandes du clavier se placent dans «&#xa0;tell application &quot;System Events&quot;&#xa0;» … «&#xa0;end tell&#xa0;».</translation>
    </message>
    <message>
        <source>Modifiers are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Les touches de modification sont connues dans «&#xa0;tell application &quot;System Events&quot;&#xa0;» … «&#xa0;end tell&#xa0;».</translation>
    </message>
    <message>
        <source>Processes are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Les processus sont connus dans «&#xa0;tell application &quot;System Events&quot;&#xa0;» … «&#xa0;end tell&#xa0;».</translation>
    </message>
    <message>
        <source>Put straight quotes (&quot;) in place of the curly ones.</source>
        <translation>Mettez des guillemets droits (&quot;) à la place des guillemets typographiques.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to 5.</source>
        <translation>Une variable se définit avec «&#xa0;to&#xa0;»&#xa0;: set x to 5.</translation>
    </message>
    <message>
        <source>A loop is written: repeat with i from 1 to 5 … end repeat.</source>
        <translation>Une boucle s’écrit&#xa0;: repeat with i from 1 to 5 … end repeat.</translation>
    </message>
    <message>
        <source>A handler is written: on greet(x) … end greet.</source>
        <translation>Un gestionnaire s’écrit&#xa0;: on greet(x) … end greet.</translation>
    </message>
    <message>
        <source>Several stand in braces: {control down, shift down}, {36, 48}.</source>
        <translation>Plusieurs éléments s’écrivent entre accolades&#xa0;: {control down, shift down}, {36, 48}.</translation>
    </message>
    <message>
        <source>These are two words: else if … then.</source>
        <translation>Cela s’écrit en deux mots&#xa0;: else if … then.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, and Return joined with “&amp;”: keystroke &quot;hello&quot; &amp; return.</source>
        <translation>Le texte se saisit avec «&#xa0;keystroke&#xa0;», et la touche Entrée s’ajoute avec «&#xa0;&amp;&#xa0;»&#xa0;: keystroke &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and let go with: key up 36.</source>
        <translation>Une touche est pressée puis relâchée ainsi&#xa0;: keystroke return, key code 53. Elle est maintenue avec&#xa0;: key down 36, et relâchée avec&#xa0;: key up 36.</translation>
    </message>
    <message>
        <source>A macro has no mouse; press the keys that do the same, as Tab and Return.</source>
        <translation>Une macro n’a pas de souris&#xa0;; appuyez sur les touches qui font la même chose, comme Tab et Entrée.</translation>
    </message>
    <message>
        <source>Conditions are joined with “and” or “or”.</source>
        <translation>Les conditions se joignent avec «&#xa0;and&#xa0;» ou «&#xa0;or&#xa0;».</translation>
    </message>
    <message>
        <source>Of a process its name is known, and whether it is in front: every process whose name contains &quot;fire&quot;.</source>
        <translation>D’un processus, on connaît le nom et on sait s’il est au premier plan&#xa0;: every process whose name contains &quot;fire&quot;.</translation>
    </message>
    <message>
        <source>Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.</source>
        <translation>Les fenêtres, les boutons et les menus ne sont pas visibles pour une macro&#xa0;; appuyez sur les touches qui font la même chose.</translation>
    </message>
    <message>
        <source>Modifiers stand behind “using”: keystroke &quot;s&quot; using control down.</source>
        <translation>Les touches de modification se placent après «&#xa0;using&#xa0;»&#xa0;: keystroke &quot;s&quot; using control down.</translation>
    </message>
    <message>
        <source>What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.</source>
        <translation>Ce qui se fait plusieurs fois se place sur ses propres lignes entre «&#xa0;repeat 5 times&#xa0;» et «&#xa0;end repeat&#xa0;».</translation>
    </message>
    <message>
        <source>Each statement has a line of its own.</source>
        <translation>Chaque instruction a sa propre ligne.</translation>
    </message>
    <message>
        <source>A macro has no files; a text comes from “the clipboard” or from a dialog.</source>
        <translation>Une macro n’a pas accès aux fichiers&#xa0;; un texte vient de «&#xa0;the clipboard&#xa0;» ou d’une boîte de dialogue.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to x + 1.</source>
        <translation>Une variable se définit avec «&#xa0;to&#xa0;»&#xa0;: set x to x + 1.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed in this line.</source>
        <translation>Une parenthèse n’est pas fermée sur cette ligne.</translation>
    </message>
    <message>
        <source>A brace is not closed in this line.</source>
        <translation>Une accolade n’est pas fermée sur cette ligne.</translation>
    </message>
    <message>
        <source>Press the keys that start it, or bring a window to the front: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Appuyez sur les touches qui lancent le programme, ou amenez une fenêtre au premier plan&#xa0;: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>Write the command by its name.</source>
        <translation>Désignez la commande par son nom.</translation>
    </message>
    <message>
        <source>A shortcut is written: keystroke &quot;c&quot; using control down.</source>
        <translation>Une combinaison de touches s’écrit&#xa0;: keystroke &quot;c&quot; using control down.</translation>
    </message>
    <message>
        <source>Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat.</source>
        <translation>Seuls les processus se choisissent avec «&#xa0;whose&#xa0;»&#xa0;; parcourez une liste avec&#xa0;: repeat with x in theList … end repeat.</translation>
    </message>
    <message>
        <source>Behind “default answer” stands a text, be it empty: default answer &quot;&quot;.</source>
        <translation>Après «&#xa0;default answer&#xa0;» vient un texte, même vide&#xa0;: default answer &quot;&quot;.</translation>
    </message>
    <message>
        <source>An “if” in one line has no “else”; write it in lines, with “end if”.</source>
        <translation>Un «&#xa0;if&#xa0;» sur une seule ligne n’a pas de «&#xa0;else&#xa0;»&#xa0;; écrivez-le sur plusieurs lignes, avec «&#xa0;end if&#xa0;».</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: 0.5.</source>
        <translation>Les décimales se placent après un point&#xa0;: 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds, without a unit: delay 0.5.</source>
        <translation>«&#xa0;delay&#xa0;» compte en secondes, sans unité&#xa0;: delay 0.5.</translation>
    </message>
    <message>
        <source>A key is let go with: key up &quot;a&quot;.</source>
        <translation>Une touche se relâche ainsi&#xa0;: key up &quot;a&quot;.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, a key is pressed by its number: key code 36.</source>
        <translation>Le texte se saisit avec «&#xa0;keystroke&#xa0;», une touche se presse par son numéro&#xa0;: key code 36.</translation>
    </message>
    <message>
        <source>A key is held with “key down” and let go with “key up”: key down shift.</source>
        <translation>Une touche se maintient avec «&#xa0;key down&#xa0;» et se relâche avec «&#xa0;key up&#xa0;»&#xa0;: key down shift.</translation>
    </message>
    <message>
        <source>The text in the clipboard is: the clipboard.</source>
        <translation>Le texte du presse-papiers s’obtient ainsi&#xa0;: the clipboard.</translation>
    </message>
    <message>
        <source>A loop is written: repeat 5 times … end repeat.</source>
        <translation>Une boucle s’écrit&#xa0;: repeat 5 times … end repeat.</translation>
    </message>
    <message>
        <source>Behind the name stands “to”, or the line ends there: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</source>
        <translation>Après le nom vient «&#xa0;to&#xa0;», ou la ligne s’arrête là&#xa0;: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</translation>
    </message>
    <message>
        <source>The name stands between straight quotes: tell application &quot;System Events&quot;.</source>
        <translation>Le nom s’écrit entre guillemets droits&#xa0;: tell application &quot;System Events&quot;.</translation>
    </message>
    <message>
        <source>A loop is written: repeat while x &lt; 5 … end repeat.</source>
        <translation>Une boucle s’écrit&#xa0;: repeat while x &lt; 5 … end repeat.</translation>
    </message>
    <message>
        <source>A comment begins with -- or #.</source>
        <translation>Un commentaire commence par -- ou #.</translation>
    </message>
    <message>
        <source>A comment over lines is written (* … *).</source>
        <translation>Un commentaire sur plusieurs lignes s’écrit (* … *).</translation>
    </message>
    <message>
        <source>“Equal” is written with one =.</source>
        <translation>«&#xa0;Égal&#xa0;» s’écrit avec un seul =.</translation>
    </message>
    <message>
        <source>A text is not closed by a straight quote.</source>
        <translation>Un texte n’est pas fermé par un guillemet droit.</translation>
    </message>
    <message>
        <source>A backslash in a text is written twice: &quot;C:\\Users&quot;.</source>
        <translation>Une barre oblique inverse dans un texte s’écrit deux fois&#xa0;: &quot;C:\\Users&quot;.</translation>
    </message>
    <message>
        <source>Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.</source>
        <translation>Après «&#xa0;as&#xa0;» vient une classe&#xa0;: text, integer, real, number, boolean, list, record, date.</translation>
    </message>
    <message>
        <source>A block has no braces: if x = 1 then … end if.</source>
        <translation>Un bloc n’a pas d’accolades&#xa0;: if x = 1 then … end if.</translation>
    </message>
    <message>
        <source>A block has no braces; it ends with “end” and its first word: end repeat.</source>
        <translation>Un bloc n’a pas d’accolades&#xa0;; il se termine par «&#xa0;end&#xa0;» et son premier mot&#xa0;: end repeat.</translation>
    </message>
    <message>
        <source>A line needs no colon at its end.</source>
        <translation>Une ligne n’a pas besoin de deux-points à la fin.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|.</source>
        <translation>Un nom contenant d’autres lettres que A à Z s’écrit entre barres verticales&#xa0;: |%1|.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Un nom contenant d’autres lettres que A à Z s’écrit entre barres verticales&#xa0;: |%1|. Le texte s’écrit entre guillemets droits&#xa0;: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A sign that nobody sees stands here; delete it.</source>
        <translation>Il y a ici un caractère invisible&#xa0;; supprimez-le.</translation>
    </message>
    <message>
        <source>A hot key is no part of a script; it is set in the preferences, or for each macro in “Macros...”.</source>
        <extracomment>“Macros...” is an entry of the menu.</extracomment>
        <translation>Un raccourci clavier ne fait pas partie d’un script&#xa0;; il se définit dans les préférences, ou pour chaque macro dans «&#xa0;Macros...&#xa0;».</translation>
    </message>
    <message>
        <source>“Not equal” is written ≠ or /=.</source>
        <translation>«&#xa0;Différent&#xa0;» s’écrit ≠ ou /=.</translation>
    </message>
    <message>
        <source>An item is taken by its number: item 1 of x.</source>
        <translation>Un élément s’obtient par son numéro&#xa0;: item 1 of x.</translation>
    </message>
    <message>
        <source>What belongs to a value is taken with “of”: length of x.</source>
        <translation>Ce qui appartient à une valeur s’obtient avec «&#xa0;of&#xa0;»&#xa0;: length of x.</translation>
    </message>
    <message>
        <source>A list stands in braces: {1, 2}.</source>
        <translation>Une liste s’écrit entre accolades&#xa0;: {1, 2}.</translation>
    </message>
    <message>
        <source>The rest of a division is written: 7 mod 2.</source>
        <translation>Le reste d’une division s’écrit&#xa0;: 7 mod 2.</translation>
    </message>
    <message>
        <source>Text stands between straight double quotes (&quot;).</source>
        <translation>Le texte s’écrit entre guillemets droits doubles (&quot;).</translation>
    </message>
    <message>
        <source>A quote inside a text is written \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</source>
        <translation>Un guillemet à l’intérieur d’un texte s’écrit \&quot;&#xa0;: &quot;Hello \&quot;world\&quot;&quot;.</translation>
    </message>
    <message>
        <source>Take the items in parts, or paragraphs instead of characters.</source>
        <translation>Prenez les éléments par parties, ou utilisez des paragraphes au lieu de caractères.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 ends with “%2”.</source>
        <extracomment>%1 is a number, %2 the last line of a block, &quot;end if&quot;.</extracomment>
        <translation>Le bloc qui commence à la ligne %1 se termine par «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>GNOME&apos;s settings cannot be changed</source>
        <translation>les réglages de GNOME ne peuvent pas être modifiés</translation>
    </message>
    <message>
        <source>your settings of GNOME have another entry in its place</source>
        <translation>vos réglages de GNOME contiennent une autre entrée à sa place</translation>
    </message>
    <message>
        <source>your own shortcut “%1” in GNOME&apos;s settings has it</source>
        <translation>votre raccourci personnalisé «&#xa0;%1&#xa0;» dans les réglages de GNOME utilise cette combinaison</translation>
    </message>
    <message>
        <source>GNOME has it for “%1”</source>
        <translation>GNOME utilise cette combinaison pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>GNOME has no name for it</source>
        <translation>GNOME n’a pas de nom pour cette combinaison</translation>
    </message>
    <message>
        <source>it has been taken out of GNOME&apos;s settings</source>
        <translation>le raccourci a été retiré des réglages de GNOME</translation>
    </message>
    <message>
        <source>KDE has no name for this key</source>
        <translation>KDE n’a pas de nom pour cette touche</translation>
    </message>
    <message>
        <source>KDE says: %1</source>
        <translation>KDE indique&#xa0;: %1</translation>
    </message>
    <message>
        <source>KDE uses it for something else</source>
        <translation>KDE utilise cette combinaison pour autre chose</translation>
    </message>
    <message>
        <source>KDE does not give it</source>
        <translation>KDE ne fournit pas cette combinaison</translation>
    </message>
    <message>
        <source>%1 has it for “%2”</source>
        <translation>%1 utilise cette combinaison pour «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the desktop has not granted it</source>
        <translation>le bureau n’a pas accordé cette combinaison</translation>
    </message>
    <message>
        <source>you did not agree when the desktop asked</source>
        <translation>vous n’avez pas accepté lorsque le bureau l’a demandé</translation>
    </message>
    <message>
        <source>the desktop has not answered</source>
        <translation>le bureau n’a pas répondu</translation>
    </message>
    <message>
        <source>the desktop has refused it</source>
        <translation>le bureau a refusé cette combinaison</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>il n’y a pas de bus de session</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal does not answer</source>
        <translation>le portail du bureau ne répond pas</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal gives no hot keys</source>
        <translation>le portail du bureau ne fournit pas de raccourcis clavier</translation>
    </message>
    <message>
        <source>the desktop has taken it back</source>
        <translation>le bureau a repris cette combinaison</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal has ended</source>
        <translation>le portail du bureau s’est arrêté</translation>
    </message>
    <message>
        <source>your configuration of sway binds it</source>
        <translation>votre configuration de sway utilise cette combinaison</translation>
    </message>
    <message>
        <source>Choose another combination.</source>
        <translation>Choisissez une autre combinaison.</translation>
    </message>
    <message>
        <source>Choose another combination, or allow it in the desktop&apos;s settings.</source>
        <translation>Choisissez une autre combinaison ou autorisez celle-ci dans les réglages du bureau.</translation>
    </message>
    <message>
        <source>Choose another combination, or free it in the program that holds it.</source>
        <translation>Choisissez une autre combinaison ou libérez celle-ci dans le programme qui l’utilise.</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2.</source>
        <extracomment>%1 is a combination of keys, %2 one of the reasons: another program holds it</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the third level (AltGr).</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: la disposition de clavier n’a pas de touche pour le niveau 3 (AltGr).</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the fifth level.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: la disposition de clavier n’a pas de touche pour le niveau 5.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for %2.</source>
        <extracomment>%1 is a combination of keys, %2 a modifier: Super</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: la disposition de clavier n’a pas de touche pour %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: Keyrill uses it for something else.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: Keyrill utilise cette combinaison pour autre chose.</translation>
    </message>
    <message>
        <source>%1 cannot be used: this desktop has no such key.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: ce bureau n’a pas cette touche.</translation>
    </message>
    <message>
        <source>%1 cannot be used: nobody could type it any more.</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Impossible d’utiliser %1&#xa0;: plus personne ne pourrait taper avec cette touche.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super.</source>
        <translation>Ajoutez Ctrl, Alt ou Super.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Ce compositeur ne fournit pas de raccourcis clavier aux programmes.</translation>
    </message>
    <message>
        <source>this compositor gives no hot keys to programs</source>
        <translation>ce compositeur ne fournit pas de raccourcis clavier aux programmes</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>un autre programme utilise cette combinaison</translation>
    </message>
    <message>
        <source>the X server refuses it with error %1</source>
        <translation>le serveur X refuse cette combinaison avec l’erreur %1</translation>
    </message>
    <message>
        <source>the X server is gone</source>
        <translation>le serveur X a disparu</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Dans les réglages du compositeur, associez des touches à des commandes comme «&#xa0;keyrill --action=play&#xa0;».</translation>
    </message>
    <message>
        <source>GNOME has hot keys only in your own settings, which Keyrill may not change.</source>
        <translation>GNOME ne fournit de raccourcis clavier que dans vos propres réglages, que Keyrill n’est pas autorisé à modifier.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Cochez la case dans les préférences de Keyrill, ou associez vous-même, dans les réglages de GNOME, des touches à des commandes comme «&#xa0;keyrill --action=play&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Keyboards</name>
    <message>
        <source>The keyboard cannot be read: %1: %2.</source>
        <translation>Impossible de lire le clavier&#xa0;: %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Let the keyboard be read while a macro is recorded.</source>
        <translation>Autorisez la lecture du clavier pendant l’enregistrement d’une macro.</translation>
    </message>
    <message>
        <source>The keyboard can no longer be read: the permission has ended.</source>
        <translation>Le clavier ne peut plus être lu&#xa0;: l’autorisation a pris fin.</translation>
    </message>
    <message>
        <source>Another user&apos;s session may be in front, or the screen is locked.</source>
        <translation>La session d’un autre utilisateur est peut-être au premier plan, ou l’écran est verrouillé.</translation>
    </message>
    <message>
        <source>The keyboard cannot be read: there is no system bus.</source>
        <translation>Impossible de lire le clavier&#xa0;: il n’y a pas de bus système.</translation>
    </message>
    <message>
        <source>What it says stands in the system&apos;s journal: journalctl -u keyrill-access.</source>
        <translation>Ses messages se trouvent dans le journal du système&#xa0;: journalctl -u keyrill-access.</translation>
    </message>
    <message>
        <source>The keyboard is no longer read: the service keyrill-access has ended.</source>
        <translation>Le clavier n’est plus lu&#xa0;: le service keyrill-access s’est arrêté.</translation>
    </message>
    <message>
        <source>Keyrill may not read the keyboard: permission was not given.</source>
        <translation>Keyrill ne peut pas lire le clavier&#xa0;: l’autorisation n’a pas été accordée.</translation>
    </message>
    <message>
        <source>Record again and agree when you are asked for your password.</source>
        <translation>Relancez l’enregistrement et acceptez lorsque votre mot de passe vous est demandé.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access is not installed.</source>
        <translation>Keyrill ne peut pas lire le clavier&#xa0;: le service keyrill-access n’est pas installé.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, tools/access install.</source>
        <translation>Installez le paquet keyrill-wayland-access ou, depuis les sources de Keyrill, exécutez tools/access install.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access does not work.</source>
        <translation>Keyrill ne peut pas lire le clavier&#xa0;: le service keyrill-access ne fonctionne pas.</translation>
    </message>
    <message>
        <source>A Wayland session shows this program nothing of what is typed in others.</source>
        <translation>Une session Wayland ne montre à ce programme rien de ce qui est saisi dans les autres.</translation>
    </message>
    <message>
        <source>Record with keyrill itself, or use an X11 session.</source>
        <translation>Enregistrez avec keyrill lui-même ou utilisez une session X11.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>This desktop lets no program press keys: no portal for it answers.</source>
        <translation>Ce bureau ne laisse aucun programme presser des touches&#xa0;: aucun portail prévu pour cela ne répond.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to your desktop.</source>
        <translation>Installez xdg-desktop-portal et la partie de celui-ci qui correspond à votre bureau.</translation>
    </message>
    <message>
        <source>The desktop was not allowed to let Keyrill press keys.</source>
        <translation>Le bureau n’a pas été autorisé à laisser Keyrill presser des touches.</translation>
    </message>
    <message>
        <source>Play again, and agree when you are asked.</source>
        <translation>Exécutez la macro à nouveau et acceptez lorsque cela vous est demandé.</translation>
    </message>
    <message>
        <source>The desktop has not answered whether Keyrill may press keys.</source>
        <translation>Le bureau n’a pas indiqué si Keyrill peut presser des touches.</translation>
    </message>
    <message>
        <source>Play again; if nothing asks you, log in again.</source>
        <translation>Exécutez la macro à nouveau&#xa0;; si rien ne vous est demandé, fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>The desktop no longer lets Keyrill press keys.</source>
        <translation>Le bureau ne laisse plus Keyrill presser des touches.</translation>
    </message>
    <message>
        <source>Play again; it may ask for your permission.</source>
        <translation>Exécutez la macro à nouveau&#xa0;; votre autorisation vous sera peut-être demandée.</translation>
    </message>
    <message>
        <source>The power key cannot be pressed by a script.</source>
        <translation>Un script ne peut pas presser la touche d’alimentation.</translation>
    </message>
    <message>
        <source>Take key code 127 out of the script.</source>
        <translation>Retirez le code de touche 127 du script.</translation>
    </message>
    <message>
        <source>The text to type is not UTF-8 at byte %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Le texte à saisir n’est pas de l’UTF-8 à l’octet %1.</translation>
    </message>
    <message>
        <source>Save the script as UTF-8.</source>
        <translation>Sauvegardez le script en UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1...&quot;</source>
        <extracomment>The beginning of a text that is longer, in quotation marks.</extracomment>
        <translation>«&#xa0;%1...&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>A text in quotation marks.</extracomment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <extracomment>%1 is a character, %2 its code: U+00E9</extracomment>
        <translation>«&#xa0;%1&#xa0;» (%2)</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with the keyboard layout that is in force.</source>
        <translation>Le caractère %1 ne peut pas être saisi avec la disposition de clavier active.</translation>
    </message>
    <message>
        <source>Take it out of the text, or switch to a layout that has it before you play.</source>
        <translation>Retirez-le du texte ou passez à une disposition qui le contient avant d’exécuter la macro.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with your keyboard layouts.</source>
        <translation>Le caractère %1 ne peut pas être saisi avec vos dispositions de clavier.</translation>
    </message>
    <message>
        <source>Take it out of the text, or add a layout that has it.</source>
        <translation>Retirez-le du texte ou ajoutez une disposition qui le contient.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with this keyboard layout.</source>
        <translation>Le caractère %1 ne peut pas être saisi avec cette disposition de clavier.</translation>
    </message>
    <message>
        <source>Take it out of the text, or set a layout that has it.</source>
        <translation>Retirez-le du texte ou définissez une disposition qui le contient.</translation>
    </message>
    <message>
        <source>The keymap for typing could not be made.</source>
        <translation>La carte de clavier pour la saisie n’a pas pu être créée.</translation>
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
        <source>A script is running already.</source>
        <translation>Un script est déjà en cours d’exécution.</translation>
    </message>
    <message>
        <source>Wait for its end.</source>
        <translation>Attendez qu’il se termine.</translation>
    </message>
    <message>
        <source>The key %1 types no character.</source>
        <translation>La touche %1 ne produit aucun caractère.</translation>
    </message>
    <message>
        <source>A Wayland session has no bell.</source>
        <translation>Une session Wayland n’a pas de signal sonore.</translation>
    </message>
    <message>
        <source>Take the beep out of the script.</source>
        <translation>Retirez le signal sonore du script.</translation>
    </message>
    <message>
        <source>KDE lets no program press keys: its portal does not answer.</source>
        <translation>KDE ne laisse aucun programme presser des touches&#xa0;: son portail ne répond pas.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal-kde, or use an X11 session.</source>
        <translation>Installez xdg-desktop-portal-kde ou utilisez une session X11.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, such as KDE and GNOME, or an X11 session.</source>
        <translation>Utilisez un compositeur avec claviers virtuels, comme sway, un bureau dont le portail presse des touches, comme KDE ou GNOME, ou une session X11.</translation>
    </message>
    <message>
        <source>The keyboard layout was changed while text was typed, which may have arrived as something else: %1.</source>
        <translation>La disposition de clavier a changé pendant la saisie d’un texte, qui est peut-être arrivé sous une autre forme&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Play it again when the layout stays as it is.</source>
        <translation>Exécutez la macro à nouveau quand la disposition ne change plus.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard, so that no keys can be pressed.</source>
        <translation>Un autre programme a capturé le clavier, si bien qu’aucune touche ne peut être pressée.</translation>
    </message>
    <message>
        <source>Close the menu, the question or the screen lock that is open, and play again.</source>
        <translation>Fermez le menu, la question ou le verrouillage d’écran en cours, puis exécutez la macro à nouveau.</translation>
    </message>
    <message>
        <source>The X server refuses to put characters on unused keys.</source>
        <translation>Le serveur X refuse d’attribuer des caractères à des touches inutilisées.</translation>
    </message>
    <message>
        <source>Use characters of the keyboard layout, or set another layout.</source>
        <translation>Utilisez des caractères de la disposition de clavier ou définissez une autre disposition.</translation>
    </message>
    <message>
        <source>The program that is typed into reads nothing; not typed: %1.</source>
        <translation>Le programme destinataire de la saisie ne lit rien&#xa0;; non saisi&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Play it again when the program reads its keys.</source>
        <translation>Exécutez la macro à nouveau quand le programme lit ses touches.</translation>
    </message>
    <message>
        <source>The program that was typed into has not read all of it.</source>
        <translation>Le programme destinataire de la saisie n’a pas tout lu.</translation>
    </message>
    <message>
        <source>See whether it hangs; what it reads later may lack characters.</source>
        <translation>Vérifiez s’il est bloqué&#xa0;; il peut manquer des caractères dans ce qu’il lira plus tard.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.</source>
        <translation>Les répétitions automatiques des touches maintenues ne peuvent pas être enregistrées&#xa0;: le serveur X n’a pas d’extension RECORD.</translation>
    </message>
    <message>
        <source>A held key is recorded as one press. Switch the extension on in the settings of the X server.</source>
        <translation>Une touche maintenue est enregistrée comme un seul appui. Activez l’extension dans les réglages du serveur X.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys can no longer be recorded: the X server has ended it.</source>
        <translation>Les répétitions automatiques des touches maintenues ne peuvent plus être enregistrées&#xa0;: le serveur X y a mis fin.</translation>
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
    <name>Layouts</name>
    <message>
        <source>No key of the present keyboard layout types &quot;%1&quot;.</source>
        <extracomment>%1 is a character.</extracomment>
        <translation>Aucune touche de la disposition de clavier actuelle ne produit «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Convert the keys to text, which types any character.</source>
        <translation>Convertissez les touches en texte, ce qui permet de saisir n’importe quel caractère.</translation>
    </message>
    <message>
        <source>GNOME lets no program switch the keyboard layout.</source>
        <translation>GNOME ne laisse aucun programme changer de disposition de clavier.</translation>
    </message>
    <message>
        <source>The desktop has no keyboard layout of that number.</source>
        <translation>Le bureau n’a pas de disposition de clavier portant ce numéro.</translation>
    </message>
    <message>
        <source>This desktop lets no program switch the keyboard layout.</source>
        <translation>Ce bureau ne laisse aucun programme changer de disposition de clavier.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the third level (AltGr).</source>
        <translation>La disposition de clavier n’a pas de touche pour le niveau 3 (AltGr).</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the fifth level.</source>
        <translation>La disposition de clavier n’a pas de touche pour le niveau 5.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for %1.</source>
        <extracomment>%1 is a modifier: Super</extracomment>
        <translation>La disposition de clavier n’a pas de touche pour %1.</translation>
    </message>
    <message>
        <source>Choose a keyboard layout that has one.</source>
        <translation>Choisissez une disposition de clavier qui en a une.</translation>
    </message>
    <message>
        <source>The keyboard has no layout %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Le clavier n’a pas de disposition %1.</translation>
    </message>
    <message>
        <source>Add it to the keyboard layouts, or record the macro again.</source>
        <translation>Ajoutez-la aux dispositions de clavier ou enregistrez la macro à nouveau.</translation>
    </message>
    <message>
        <source>The keymap of the X server cannot be read.</source>
        <translation>Impossible de lire la carte de clavier du serveur X.</translation>
    </message>
    <message>
        <source>Set a keyboard layout, or log in again.</source>
        <translation>Définissez une disposition de clavier, ou fermez la session et rouvrez-la.</translation>
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
        <translation>Impossible de supprimer le fichier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Check who may write in its folder.</source>
        <translation>Vérifiez qui peut écrire dans son dossier.</translation>
    </message>
    <message>
        <source>A program whose path has a percent sign cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Un programme dont le chemin contient un signe pour cent ne peut pas être lancé à l’ouverture de session&#xa0;: %1</translation>
    </message>
    <message>
        <source>Move the program to a folder without one.</source>
        <translation>Déplacez le programme dans un dossier dont le chemin n’en contient pas.</translation>
    </message>
    <message>
        <source>A program whose path is not UTF-8 cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Un programme dont le chemin n’est pas en UTF-8 ne peut pas être lancé à l’ouverture de session&#xa0;: %1</translation>
    </message>
    <message>
        <source>Move the program to another folder.</source>
        <translation>Déplacez le programme dans un autre dossier.</translation>
    </message>
    <message>
        <source>A program in a sandbox cannot make an entry that starts it at log-in.</source>
        <translation>Un programme dans un bac à sable ne peut pas créer d’entrée qui le lance à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Add Keyrill to the programs that start at log-in, in your desktop&apos;s settings.</source>
        <translation>Ajoutez Keyrill aux programmes lancés à l’ouverture de session, dans les paramètres de votre bureau.</translation>
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
    <name>Programs</name>
    <message>
        <source>The program &quot;%1&quot;, which presses keys by the desktop&apos;s portal, could not be started.</source>
        <translation>Le programme «&#xa0;%1&#xa0;», qui presse des touches par le portail du bureau, n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>Install the program again.</source>
        <translation>Installez le programme à nouveau.</translation>
    </message>
    <message>
        <source>A text with a zero byte cannot be opened.</source>
        <translation>Un texte contenant un octet nul ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The program xdg-open cannot be started: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Impossible de lancer le programme xdg-open&#xa0;: %1</translation>
    </message>
    <message>
        <source>Install the package xdg-utils.</source>
        <translation>Installez le paquet xdg-utils.</translation>
    </message>
    <message>
        <source>The guard program &quot;%1&quot;, which releases keys after a crash, could not be started.</source>
        <translation>Le programme de garde «&#xa0;%1&#xa0;», qui relâche les touches après un plantage, n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>Install the program again; nothing is played without its guard.</source>
        <translation>Installez le programme à nouveau&#xa0;; rien n’est exécuté sans son programme de garde.</translation>
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
    <name>ScriptDialogs</name>
    <message>
        <source>Please make your selection:</source>
        <translation>Veuillez faire votre choix&#xa0;:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
    <name>ScriptErrors</name>
    <message>
        <source>Can’t declare %1 as both a local and global variable.</source>
        <translation>Impossible de déclarer %1 à la fois comme variable locale et globale.</translation>
    </message>
    <message>
        <source>list of button names</source>
        <translation>liste de noms de boutons</translation>
    </message>
    <message>
        <source>list of choices</source>
        <translation>liste de choix</translation>
    </message>
    <message>
        <source>Some parameter is missing for %1.</source>
        <translation>Il manque un paramètre à %1.</translation>
    </message>
    <message>
        <source>modifier</source>
        <translation>touche de modification</translation>
    </message>
    <message>
        <source>the power key is never pressed by a script.</source>
        <translation>un script n’appuie jamais sur la touche d’alimentation.</translation>
    </message>
    <message>
        <source>%1 doesn’t match the parameters %2 for %3.</source>
        <translation>%1 ne correspond pas aux paramètres %2 de %3.</translation>
    </message>
    <message>
        <source>%1 doesn’t understand the “%2” message.</source>
        <translation>%1 ne comprend pas le message «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The step of a repeat loop can’t be 0.</source>
        <translation>Le pas d’une boucle «&#xa0;repeat&#xa0;» ne peut pas être 0.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences: what is wrong, and what to do about it.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The variable %1 is not defined.</source>
        <translation>La variable %1 n’est pas définie.</translation>
    </message>
    <message>
        <source>unknown token</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un caractère inconnu</translation>
    </message>
    <message>
        <source>unknown token %1</source>
        <translation>le caractère inconnu %1</translation>
    </message>
    <message>
        <source>end of script</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>la fin du script</translation>
    </message>
    <message>
        <source>end of line</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>la fin de la ligne</translation>
    </message>
    <message>
        <source>variable name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un nom de variable</translation>
    </message>
    <message>
        <source>Raw codes («…») are not supported.</source>
        <translation>Les codes bruts («…») ne sont pas pris en charge.</translation>
    </message>
    <message>
        <source>Expected end of line after “¬”.</source>
        <translation>La fin de la ligne est attendue après «&#xa0;¬&#xa0;».</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>unknown token %1 (text stands between straight quotes)</source>
        <translation>le caractère inconnu %1 (le texte s’écrit entre guillemets droits)</translation>
    </message>
    <message>
        <source>identifier</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un identificateur</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Mémoire insuffisante.</translation>
    </message>
    <message>
        <source>User canceled.</source>
        <translation>Annulé par l’utilisateur.</translation>
    </message>
    <message>
        <source>Application isn’t running.</source>
        <translation>L’application n’est pas ouverte.</translation>
    </message>
    <message>
        <source>Connection is invalid.</source>
        <translation>La connexion n’est pas valide.</translation>
    </message>
    <message>
        <source>Can’t make some data into the expected type.</source>
        <translation>Impossible de convertir des données dans le type attendu.</translation>
    </message>
    <message>
        <source>Some parameter is missing for a command.</source>
        <translation>Il manque un paramètre à une commande.</translation>
    </message>
    <message>
        <source>Some data was of the wrong type.</source>
        <translation>Des données étaient d’un type incorrect.</translation>
    </message>
    <message>
        <source>Some parameter was invalid.</source>
        <translation>Un paramètre n’était pas valide.</translation>
    </message>
    <message>
        <source>A message was not understood.</source>
        <translation>Un message n’a pas été compris.</translation>
    </message>
    <message>
        <source>AppleEvent timed out.</source>
        <translation>Délai dépassé pour un AppleEvent.</translation>
    </message>
    <message>
        <source>Some required parameter was missing.</source>
        <translation>Un paramètre obligatoire manquait.</translation>
    </message>
    <message>
        <source>The handler is not defined.</source>
        <translation>Le gestionnaire n’est pas défini.</translation>
    </message>
    <message>
        <source>Can’t get the element. Invalid index.</source>
        <translation>Impossible d’obtenir l’élément. Indice non valide.</translation>
    </message>
    <message>
        <source>Some parameters don’t match.</source>
        <translation>Des paramètres ne correspondent pas.</translation>
    </message>
    <message>
        <source>Can’t get the object.</source>
        <translation>Impossible d’obtenir l’objet.</translation>
    </message>
    <message>
        <source>Not authorized to send Apple events.</source>
        <translation>L’envoi d’événements Apple n’est pas autorisé.</translation>
    </message>
    <message>
        <source>An error has occurred.</source>
        <translation>Une erreur s’est produite.</translation>
    </message>
    <message>
        <source>Can’t divide by zero.</source>
        <translation>Impossible de diviser par zéro.</translation>
    </message>
    <message>
        <source>The result of a numeric operation was too large.</source>
        <translation>Le résultat d’un calcul était trop grand.</translation>
    </message>
    <message>
        <source>Stack overflow.</source>
        <translation>Débordement de pile.</translation>
    </message>
    <message>
        <source>A variable is not defined.</source>
        <translation>Une variable n’est pas définie.</translation>
    </message>
    <message>
        <source>No result was returned for some argument of this expression.</source>
        <translation>Aucun résultat n’a été renvoyé pour un argument de cette expression.</translation>
    </message>
    <message>
        <source>AppleEvent handler failed.</source>
        <translation>Échec du gestionnaire d’AppleEvent.</translation>
    </message>
    <message>
        <source>Can’t set the object.</source>
        <translation>Impossible de modifier l’objet.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>%1 is a word of the script language.</extracomment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Expected %1 but found %2.</source>
        <extracomment>%1 and %2 are words of the script language in quotes, or &quot;expression&quot;, &quot;end of line&quot; and others below.</extracomment>
        <translation>Attendu&#xa0;: %1&#xa0;; trouvé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The %1 parameter is specified more than once.</source>
        <translation>Le paramètre %1 est indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>The %1 property is specified more than once.</source>
        <translation>La propriété %1 est indiquée plusieurs fois.</translation>
    </message>
    <message>
        <source>The %1 handler is specified more than once.</source>
        <translation>Le gestionnaire %1 est indiqué plusieurs fois.</translation>
    </message>
    <message>
        <source>%1 got an error: %2</source>
        <translation>%1 a rencontré une erreur&#xa0;: %2</translation>
    </message>
    <message>
        <source>An error of type %1 has occurred.</source>
        <translation>Une erreur de type %1 s’est produite.</translation>
    </message>
    <message>
        <source>Can’t both consider and ignore %1.</source>
        <translation>Impossible de considérer et d’ignorer %1 à la fois.</translation>
    </message>
    <message>
        <source>Expected at most %1 parameters but found more.</source>
        <translation>%1 paramètres au plus sont permis, mais il y en a davantage.</translation>
    </message>
    <message>
        <source>expression</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>une expression</translation>
    </message>
    <message>
        <source>class name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un nom de classe</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro can press keys and nothing else.</source>
        <translation>«&#xa0;%1&#xa0;» est refusé&#xa0;: une macro ne peut qu’appuyer sur des touches.</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro is one script.</source>
        <translation>«&#xa0;%1&#xa0;» est refusé&#xa0;: une macro est un seul script.</translation>
    </message>
    <message>
        <source>Expected at most %1 items in a list but found more.</source>
        <translation>%1 éléments au plus sont permis dans une liste, mais il y en a davantage.</translation>
    </message>
    <message>
        <source>Expected at most %1 properties in a record but found more.</source>
        <translation>%1 propriétés au plus sont permises dans un enregistrement, mais il y en a davantage.</translation>
    </message>
    <message>
        <source>Expected at most %1 levels of nesting but found more.</source>
        <translation>%1 niveaux d’imbrication au plus sont permis, mais il y en a davantage.</translation>
    </message>
    <message>
        <source>Tell statements are nested too deeply.</source>
        <translation>Les instructions «&#xa0;tell&#xa0;» sont imbriquées trop profondément.</translation>
    </message>
    <message>
        <source>Expected at most 16 MiB of script but found more.</source>
        <translation>Un script ne peut pas dépasser 16 Mio, mais celui-ci est plus grand.</translation>
    </message>
    <message>
        <source>Expected text in UTF-8 but found another byte.</source>
        <translation>Du texte en UTF-8 est attendu, mais un autre octet a été trouvé.</translation>
    </message>
    <message>
        <source>Exit statement was not in a repeat loop.</source>
        <translation>Une instruction «&#xa0;exit&#xa0;» n’était pas dans une boucle «&#xa0;repeat&#xa0;».</translation>
    </message>
    <message>
        <source>Can’t divide %1 by zero.</source>
        <translation>Impossible de diviser %1 par zéro.</translation>
    </message>
    <message>
        <source>A list holds at most %1 items.</source>
        <translation>Une liste contient au plus %1 éléments.</translation>
    </message>
    <message>
        <source>Can’t get contents of a variable that is not set.</source>
        <translation>Impossible d’obtenir le contenu d’une variable qui n’est pas définie.</translation>
    </message>
    <message>
        <source>Can’t make %1 into type %2.</source>
        <translation>Impossible de convertir %1 en type %2.</translation>
    </message>
    <message>
        <source>Can’t get %1.</source>
        <translation>Impossible d’obtenir %1.</translation>
    </message>
    <message>
        <source>Can’t set %1 to %2.</source>
        <translation>Impossible de donner à %1 la valeur %2.</translation>
    </message>
    <message>
        <source>Can’t raise %1 to the power of %2: the result is no number.</source>
        <translation>Impossible d’élever %1 à la puissance %2&#xa0;: le résultat n’est pas un nombre.</translation>
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
    <name>ScriptTool</name>
    <message>
        <source>--times %1 is not how often a script can be played.</source>
        <translation>--times %1 n’est pas un nombre d’exécutions valide.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Indiquez un nombre entier à partir de 1, ou until-stopped.</translation>
    </message>
    <message>
        <source>Nobody can stop a trace.</source>
        <translation>Personne ne peut arrêter une trace.</translation>
    </message>
    <message>
        <source>Give --times a number.</source>
        <translation>Donnez un nombre à --times.</translation>
    </message>
    <message>
        <source>--speed %1 is not how fast a script can be played.</source>
        <translation>--speed %1 n’est pas une vitesse valide.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4.</source>
        <translation>Indiquez un nombre de 0.25 à 4.</translation>
    </message>
    <message>
        <source>This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.</source>
        <translation>Ceci n’est pas de l’UTF-8&#xa0;; tout le fichier est donc lu comme du Mac Roman. Enregistrez-le en UTF-8.</translation>
    </message>
    <message>
        <source>Press a key.</source>
        <translation>Appuyez sur une touche.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Conseil&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1; standard input is &quot;-&quot;</source>
        <translation>%1&#xa0;; l’entrée standard est «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source>(Return)</source>
        <translation>(Entrée)</translation>
    </message>
    <message>
        <source>No dialog can be shown here.</source>
        <translation>Aucune boîte de dialogue ne peut être affichée ici.</translation>
    </message>
    <message>
        <source>Run the script in a terminal.</source>
        <translation>Exécutez le script dans un terminal.</translation>
    </message>
    <message>
        <source>The question was not answered.</source>
        <translation>La question est restée sans réponse.</translation>
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
        <translation>Utilisation&#xa0;: keyrill-script check FICHIER    compiler et dire ce qui ne va pas&#xa0;; avec --json pour les éditeurs
              keyrill-script run [--times N] [--speed X] FICHIER
                                              appuyer sur les touches, autant de fois (ou until-stopped), ses pauses divisées par X
              keyrill-script trace FICHIER    afficher ce qui serait fait, un tableau JSON par ligne
              keyrill-script format FICHIER   afficher le script dans une présentation uniforme
              keyrill-script keys             afficher les codes de touches&#xa0;; avec --press celui de la prochaine touche
              keyrill-script reference        afficher la référence du langage
              keyrill-script -h | --help | --version
FICHIER - est l’entrée standard&#xa0;; -e LIGNE, une ou plusieurs fois, donne le script lui-même.
</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>La commande «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Impossible d’écrire sur la sortie standard.</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>la sortie ne peut pas être écrite</translation>
    </message>
    <message>
        <source>“%1” has no option “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas d’option «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“keyrill-script --help” tells which there are.</source>
        <translation>«&#xa0;keyrill-script --help&#xa0;» les énumère.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no session bus.</source>
        <translation>Il n’y a pas de bus de session.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>sway does not answer at $SWAYSOCK.</source>
        <translation>sway ne répond pas à l’adresse $SWAYSOCK.</translation>
    </message>
    <message>
        <source>Start the program in the session of sway.</source>
        <translation>Lancez le programme dans la session de sway.</translation>
    </message>
    <message>
        <source>sway says: %1</source>
        <translation>sway indique&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no kind of session called &quot;%1&quot;.</source>
        <translation>Il n’y a pas de type de session nommé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Choisissez l’un de ceux-ci&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No kind of session is known.</source>
        <translation>Aucun type de session n’est connu.</translation>
    </message>
    <message>
        <source>The connection to the compositor was lost.</source>
        <translation>La connexion au compositeur a été perdue.</translation>
    </message>
    <message>
        <source>No Wayland compositor answers at $WAYLAND_DISPLAY.</source>
        <translation>Aucun compositeur Wayland ne répond à l’adresse $WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Start the program in a Wayland session.</source>
        <translation>Lancez le programme dans une session Wayland.</translation>
    </message>
    <message>
        <source>The Wayland compositor is gone.</source>
        <translation>Le compositeur Wayland a disparu.</translation>
    </message>
    <message>
        <source>$WAYLAND_DISPLAY names no Wayland compositor.</source>
        <translation>$WAYLAND_DISPLAY ne désigne aucun compositeur Wayland.</translation>
    </message>
    <message>
        <source>The X server is gone.</source>
        <translation>Le serveur X a disparu.</translation>
    </message>
    <message>
        <source>This is a Wayland session without an X server.</source>
        <translation>Cette session est une session Wayland sans serveur X.</translation>
    </message>
    <message>
        <source>Install Xwayland, or switch it on in the desktop&apos;s settings, and log in again; or choose an X11 session when you log in.</source>
        <translation>Installez Xwayland, ou activez-le dans les réglages du bureau, puis fermez la session et rouvrez-la&#xa0;; ou choisissez une session X11 à l’ouverture de session.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is no desktop session.</source>
        <translation>Une session X11 est nécessaire, or cette session n’est pas une session graphique.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is a Wayland session without an X server.</source>
        <translation>Une session X11 est nécessaire, or cette session est une session Wayland sans serveur X.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Choisissez une session X11 à l’ouverture de session.</translation>
    </message>
    <message>
        <source>The connection to the X server was lost.</source>
        <translation>La connexion au serveur X a été perdue.</translation>
    </message>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Utilisez un serveur X plus récent ou activez l’extension dans ses réglages.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has no XInput.</source>
        <translation>Le serveur X doit avoir XInput 2.2 ou une version plus récente, mais il n’a pas XInput.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but does not answer.</source>
        <translation>Le serveur X doit avoir XInput 2.2 ou une version plus récente, mais il ne répond pas.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has %1.</source>
        <translation>Le serveur X doit avoir XInput 2.2 ou une version plus récente, mais il a la version %1.</translation>
    </message>
    <message>
        <source>The X server must have the XKB extension, but it cannot be used.</source>
        <translation>Le serveur X doit avoir l’extension XKB, mais elle ne peut pas être utilisée.</translation>
    </message>
    <message>
        <source>The X server must have the XTEST extension, but it has not.</source>
        <translation>Le serveur X doit avoir l’extension XTEST, mais il ne l’a pas.</translation>
    </message>
    <message>
        <source>The X server of display &quot;%1&quot; cannot be reached.</source>
        <translation>Le serveur X de l’affichage «&#xa0;%1&#xa0;» est inaccessible.</translation>
    </message>
    <message>
        <source>Start the program inside a desktop session, or set DISPLAY to a running X server.</source>
        <translation>Lancez le programme dans une session graphique ou définissez DISPLAY sur un serveur X en cours d’exécution.</translation>
    </message>
    <message>
        <source>virtual keyboard</source>
        <translation>clavier virtuel</translation>
    </message>
    <message>
        <source>GNOME&apos;s settings</source>
        <translation>paramètres de GNOME</translation>
    </message>
    <message>
        <source>portal for keys</source>
        <translation>portail pour les touches</translation>
    </message>
    <message>
        <source>portal for hot keys</source>
        <translation>portail pour les raccourcis clavier</translation>
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
    <name>Settings</name>
    <message>
        <source>It has a zero byte</source>
        <translation>Il contient un octet nul</translation>
    </message>
    <message>
        <source>The settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>Le fichier des réglages %1 n’est pas un fichier de clés&#xa0;: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>Le fichier des réglages des macros %1 n’est pas un fichier de clés&#xa0;: %2</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>Impossible de créer le dossier des réglages %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The macro settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>Impossible de créer le dossier des réglages des macros %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>Il a été renommé en %1, et les réglages reprennent leurs valeurs par défaut.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and hot keys, times and speeds begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>Il a été renommé en %1, et les raccourcis clavier, les nombres d’exécutions et les vitesses reprennent leurs valeurs par défaut.</translation>
    </message>
    <message>
        <source>Correct the file or remove it.</source>
        <translation>Corrigez le fichier ou supprimez-le.</translation>
    </message>
    <message>
        <source>It could not be put aside either: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Il n’a pas non plus pu être mis de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Impossible de lire le fichier des réglages %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Impossible de lire le fichier des réglages des macros %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Impossible d’écrire le fichier des réglages %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Impossible d’écrire le fichier des réglages des macros %1&#xa0;: %2</translation>
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
    <name>Warnings</name>
    <message>
        <source>This is typed as it stands; the key has a number: key code %1.</source>
        <translation>Ceci est saisi tel quel&#xa0;; la touche a un numéro&#xa0;: key code %1.</translation>
    </message>
    <message>
        <source>“%1” is typed as it stands. %2</source>
        <extracomment>%1 is the name of a key in braces, %2 a sentence that says how the key is written.</extracomment>
        <translation>«&#xa0;%1&#xa0;» est saisi tel quel. %2</translation>
    </message>
    <message>
        <source>Key code %1 is an extension, which only Keyrill plays.</source>
        <translation>Le code de touche %1 est une extension, que seul Keyrill exécute.</translation>
    </message>
    <message>
        <source>Key code %1 has no key; nothing is pressed.</source>
        <translation>Aucune touche ne correspond au code de touche %1&#xa0;; rien n’est pressé.</translation>
    </message>
    <message>
        <source>A dialog gives a record and no text; take: button returned of %1, or text returned of %1.</source>
        <translation>Une boîte de dialogue donne un enregistrement (record) et non un texte&#xa0;; utilisez&#xa0;: button returned of %1 ou text returned of %1.</translation>
    </message>
    <message>
        <source>An alert gives a record and no text; take: button returned of %1.</source>
        <translation>Une alerte donne un enregistrement (record) et non un texte&#xa0;; utilisez&#xa0;: button returned of %1.</translation>
    </message>
    <message>
        <source>What was chosen comes in a list; take: item 1 of %1.</source>
        <translation>Ce qui a été choisi arrive dans une liste&#xa0;; utilisez&#xa0;: item 1 of %1.</translation>
    </message>
    <message>
        <source>The loop gives a reference, which equals no text; compare: contents of %1.</source>
        <translation>La boucle donne une référence, qui n’est égale à aucun texte&#xa0;; comparez&#xa0;: contents of %1.</translation>
    </message>
    <message>
        <source>“%1” is taken as “%1 down”.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>«&#xa0;%1&#xa0;» est compris comme «&#xa0;%1 down&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….</source>
        <extracomment>%1 is an operator, &quot;&gt;&quot;, %2 a command, &quot;count&quot;.</extracomment>
        <translation>«&#xa0;%1&#xa0;» se rapporte à ce que «&#xa0;%2&#xa0;» reçoit&#xa0;; mettez la commande entre parenthèses&#xa0;: (%2 …) %1 ….</translation>
    </message>
    <message>
        <source>“delay” counts seconds; %1 milliseconds are: delay %2.</source>
        <translation>«&#xa0;delay&#xa0;» compte en secondes&#xa0;; %1 millisecondes s’écrivent&#xa0;: delay %2.</translation>
    </message>
    <message>
        <source>This is typed as it stands; a shortcut is written: keystroke &quot;%1&quot; using %2 down.</source>
        <extracomment>%1 is a letter, %2 the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Ceci est saisi tel quel&#xa0;; une combinaison de touches s’écrit&#xa0;: keystroke &quot;%1&quot; using %2 down.</translation>
    </message>
    <message>
        <source>A modifier is held with: key down shift, without quotes.</source>
        <translation>Une touche de modification se maintient ainsi&#xa0;: key down shift, sans guillemets.</translation>
    </message>
    <message>
        <source>The variable %1 is never set. %2</source>
        <extracomment>%2 is a sentence that says what may have been meant.</extracomment>
        <translation>La variable %1 n’est jamais définie. %2</translation>
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
<context>
    <name>Windows</name>
    <message>
        <source>KWin does not tell of its windows.</source>
        <translation>KWin ne donne pas d’informations sur ses fenêtres.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>No file could be written for KWin.</source>
        <translation>Aucun fichier n’a pu être écrit pour KWin.</translation>
    </message>
    <message>
        <source>Free some space.</source>
        <translation>Libérez de l’espace.</translation>
    </message>
    <message>
        <source>KWin runs no scripts: %1</source>
        <translation>KWin n’exécute aucun script&#xa0;: %1</translation>
    </message>
    <message>
        <source>KWin does not show the window any more.</source>
        <translation>KWin n’affiche plus la fenêtre.</translation>
    </message>
    <message>
        <source>Open it again.</source>
        <translation>Ouvrez-la à nouveau.</translation>
    </message>
    <message>
        <source>This compositor tells nobody of windows.</source>
        <translation>Ce compositeur ne donne à personne d’informations sur les fenêtres.</translation>
    </message>
    <message>
        <source>Use a compositor with toplevel management, such as sway, or an X11 session.</source>
        <translation>Utilisez un compositeur avec gestion des fenêtres (toplevel management), comme sway, ou une session X11.</translation>
    </message>
    <message>
        <source>No window of “%1” is open.</source>
        <translation>Aucune fenêtre de «&#xa0;%1&#xa0;» n’est ouverte.</translation>
    </message>
    <message>
        <source>Start it first.</source>
        <translation>Lancez d’abord le programme.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>La fenêtre n’est pas à l’écran.</translation>
    </message>
</context>
</TS>
