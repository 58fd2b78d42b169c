// SPDX-License-Identifier: MIT
// Written by tools/manual; not to be edited.
const translatedIndex = [
{
"url": "first.html",
"page": "Votre première macro en une minute",
"title": "Votre première macro en une minute",
"words": "début, commencer, démarrer, tutoriel, prise en main, icône, zone de notification, menu",
"text": [
"Trois raccourcis clavier suffisent. Cliquez dans un champ de texte, appuyez sur ",
"Ctrl+Super+R et tapez quelques mots. Super est la touche qui porte le logo du bureau. Une ",
"incrustation en haut à droite de l’écran montre les touches. Appuyez sur Ctrl+Super+S. ",
"L’incrustation disparaît : la macro est prête. Appuyez sur Ctrl+Super+P et relâchez les ",
"touches. Les mots sont tapés à nouveau. Rien ne se passe ? Problèmes par symptôme (en ",
"anglais) dit pourquoi. Dans une session Wayland, ce qui peut être enregistré dépend du ",
"bureau : voyez Wayland, bureau par bureau (en anglais)."
]
},
{
"url": "first.html#next",
"page": "Votre première macro en une minute",
"title": "Et ensuite",
"text": [
"L’exécuter cent fois : combien de fois (en anglais). La conserver, lui donner un nom et un ",
"raccourci clavier à elle : la fenêtre des macros (en anglais). Enregistrer aussi vos ",
"pauses : pauses. Choisir d’autres raccourcis clavier : choisir les raccourcis. Écrire une ",
"macro qui interroge, compte et décide : les macros comme scripts (en anglais), et le livre ",
"de recettes (en anglais)."
]
},
{
"url": "first.html#menu",
"page": "Votre première macro en une minute",
"title": "L’icône et son menu",
"text": [
"Keyrill se trouve dans la zone de notification. Son icône montre trois points pendant que ",
"le programme se prépare, puis une touche avec un K. Le menu (ici en anglais) Le menu (ici ",
"en anglais) commande ce qu’elle fait Démarrer l’enregistrement, Arrêter l’enregistrement ",
"commence ou termine une macro Enregistrer la pause pendant l’enregistrement : conserve ",
"comme pause le temps écoulé depuis la dernière touche Exécuter, Exécuter plusieurs fois... ",
"tape la macro actuelle, une fois ou autant de fois que vous le dites Historique ce qui a ",
"été enregistré depuis le lancement de Keyrill, ou avant si vous voulez le conserver (en ",
"anglais), le plus récent en premier ; choisir un élément l’exécute et en fait la macro ",
"actuelle Sauvegarder la macro..., Charger une macro... conserve la macro actuelle dans un ",
"fichier, et en récupère une Macros... toutes les macros que vous conservez, pour les ",
"trouver, les lire, les modifier et les exécuter Préférences... raccourcis clavier, pauses, ",
"lancement à l’ouverture de session, mises à jour Aide ce manuel (Documentation), les pages ",
"de l’éditeur, comment nous joindre, et Ce qui fonctionne ici Quitter ferme Keyrill ",
"Exécuter, Exécuter plusieurs fois et Sauvegarder la macro apparaissent une fois le premier ",
"enregistrement arrêté. Sur un bureau sans zone de notification, une petite fenêtre avec le ",
"même menu apparaît au bout de trois secondes. Elle ne prend jamais les touches à la ",
"fenêtre dans laquelle vous tapez. Lancer Keyrill une deuxième fois affiche aussi cette ",
"fenêtre."
]
},
{
"url": "hot-keys.html",
"page": "Raccourcis clavier",
"title": "Raccourcis clavier",
"words": "touche de raccourci, raccourci, combinaison de touches, hotkey, déclencheur, affecter",
"text": [
"Un raccourci clavier fonctionne dans tous les programmes, pour autant que la session (en ",
"anglais) le permette. raccourci ce qu’il fait Ctrl+Super+R démarre un enregistrement, ou ",
"l’arrête Ctrl+Super+S arrête l’enregistrement ; pendant qu’une macro est exécutée, arrête ",
"l’exécution Ctrl+Super+P exécute la macro actuelle une fois toutes les touches relâchées ",
"Ctrl+Super+M demande combien de fois exécuter Échap, maintenue un tiers de seconde arrête ",
"l’exécution Les raccourcis ne font jamais partie d’un enregistrement. Tant que les ",
"préférences ou une question de Keyrill sont ouvertes, ils sont désactivés ; seul celui de ",
"l’arrêt met alors fin à une macro qui pose une question."
]
},
{
"url": "hot-keys.html#choose",
"page": "Raccourcis clavier",
"title": "Choisir les raccourcis",
"text": [
"Cliquez sur un champ des préférences (en anglais), ou appuyez dessus sur Espace, puis ",
"appuyez sur la nouvelle combinaison. Une lettre ou un chiffre exige Ctrl, Alt ou Super. ",
"Retour arrière efface le champ ; une combinaison effacée continue de fonctionner jusqu’au ",
"prochain lancement de Keyrill. Une combinaison qu’un autre des quatre raccourcis possède ",
"lui est retirée. Les raccourcis sont des touches désignées par leur place sur le clavier, ",
"comme dans un enregistrement : celle qui était M sur un clavier américain est la virgule ",
"d’un clavier français, et les préférences montrent toujours ce qui y est imprimé dans la ",
"disposition du moment. Dans les sessions Wayland de GNOME, à partir de la version 48, les ",
"combinaisons se choisissent dans les paramètres de GNOME lui-même : voyez GNOME (en ",
"anglais)."
]
},
{
"url": "hot-keys.html#macros",
"page": "Raccourcis clavier",
"title": "Un raccourci pour une macro",
"text": [
"Chaque macro du dossier des macros peut en avoir un : ouvrez Macros... dans le menu, ",
"choisissez la macro, cliquez sur le champ Raccourci : au-dessous, ou appuyez dessus sur ",
"Espace, et appuyez sur la combinaison. Elle est conservée aussitôt. À côté est indiqué ",
"combien de fois le raccourci exécute la macro, et à quelle vitesse (en anglais). Un ",
"raccourci n’appartient à une macro que sur votre machine : il n’est jamais dans le fichier ",
"de la macro, si bien que la macro de quelqu’un d’autre n’en prend aucun."
]
},
{
"url": "hot-keys.html#taken",
"page": "Raccourcis clavier",
"title": "Une combinaison déjà prise",
"text": [
"Les préférences le disent à côté du champ, la fenêtre des macros au-dessous de la macro, ",
"et l’infobulle de l’icône le dit aussi. Elles nomment qui la possède, pour autant qu’on ",
"puisse le savoir : Déjà utilisé par la macro « Greeting ». Choisissez une autre ",
"combinaison, ou libérez celle-ci là où elle est prise. Un raccourci détenu par un autre ",
"programme est pris dès que ce programme le libère. Une combinaison que vous donnez à un ",
"raccourci des préférences est retirée à la macro qui l’avait. keyrill --check dans un ",
"terminal, et Ce qui fonctionne ici sous Aide dans le menu, disent pour chaque raccourci si ",
"quelqu’un d’autre le possède."
]
},
{
"url": "hot-keys.html#actions",
"page": "Raccourcis clavier",
"title": "Depuis d’autres programmes et les raccourcis du bureau",
"text": [
"keyrill --action=record, stop, play, multiple et save-pause font ce que font les lignes du ",
"menu. Affectez une telle commande à une touche de votre gestionnaire de fenêtres, à un ",
"bouton ou à un script ; le menu du bureau les propose aussi, à côté du nom du programme. ",
"Si vous tenez encore des touches, la commande attend que vous les relâchiez. record, play, ",
"multiple et macros, qui affiche la fenêtre des macros, lancent Keyrill au besoin. Ce qui ",
"ne peut pas se faire à ce moment est dit sur la sortie d’erreur, et le code de retour est ",
"2. Pendant l’exécution d’une macro, seul stop est accepté. Ces commandes ont besoin du bus ",
"de session, que tout bureau possède ; rien n’y révèle ce que vous avez enregistré."
]
},
{
"url": "hot-keys.html#play-by-name",
"page": "Raccourcis clavier",
"title": "Exécuter une macro par son nom",
"text": [
"keyrill --play Greeting exécute la macro de ce nom du dossier des macros, avec le nombre ",
"de fois et la vitesse qui lui appartiennent, --times 3 --speed 2 trois fois et deux fois ",
"plus vite ; --play mail/Greeting celle du groupe mail, --play ./macro.keyrill un fichier, ",
"et --play seul ce qu’exécute la commande Exécuter ; la macro actuelle reste ce qu’elle ",
"était. keyrill --list affiche tous les noms, keyrill --show Greeting montre la macro dans ",
"sa fenêtre. bash, zsh et fish complètent les noms. Le code de retour est 0 si c’est fait, ",
"1 si ce n’était pas possible, 2 si la ligne de commande n’a pas de sens ; la sortie ",
"d’erreur dit pourquoi. Une macro reçoit ainsi une touche de votre gestionnaire de ",
"fenêtres, ici d’openbox : <keybind key=\"C-W-F5\"><action name=\"Execute\"> <command>keyrill ",
"--play Greeting</command> </action></keybind> Les autres programmes s’adressent à Keyrill ",
"par D-Bus : man keyrill dit comment."
]
},
{
"url": "recording.html",
"page": "Enregistrer",
"title": "Enregistrer",
"words": "capturer, capture, enregistrement, pause, délai, attente, touche de modification, incrustation, souris",
"text": [
"Appuyez sur Ctrl+Super+R ou choisissez Démarrer l’enregistrement dans le menu, tapez, et ",
"terminez avec Ctrl+Super+S."
]
},
{
"url": "recording.html#what",
"page": "Enregistrer",
"title": "Ce qui est enregistré",
"text": [
"Tout ce sur quoi vous appuyez entre dans la macro : lettres, chiffres, flèches, touches de ",
"fonction, et combinaisons avec Ctrl, Alt, Super et Maj. Une touche maintenue compte autant ",
"de fois qu’elle se répète. Les clics de souris ne sont pas enregistrés. Les raccourcis ",
"propres à Keyrill ne font pas partie de la macro. Les touches sont conservées par leur ",
"place sur le clavier, non par le caractère qu’elles tapent : enregistrée avec une ",
"disposition de clavier anglaise et exécutée avec une française, une macro presse les mêmes ",
"touches, qui y tapent d’autres lettres. Pour un texte qui doit arriver tel quel avec toute ",
"disposition, écrivez keystroke \"...\" dans le script de la macro, ou utilisez En texte (en ",
"anglais). Claviers et dispositions (en anglais) en dit plus. Un enregistrement sans aucune ",
"touche est abandonné. Tout autre devient la macro actuelle, que la commande Exécuter (en ",
"anglais) exécute, et la première ligne du menu Historique."
]
},
{
"url": "recording.html#pauses",
"page": "Enregistrer",
"title": "Pauses",
"text": [
"Le temps que vous attendez entre deux touches n’est pas conservé, pour qu’une macro ",
"s’exécute à pleine vitesse. Là où l’attente compte, par exemple pendant qu’une page se ",
"charge, choisissez Enregistrer la pause dans le menu : le temps écoulé depuis la dernière ",
"touche devient une partie de la macro. Dans les préférences, vous pouvez faire conserver ",
"toutes les pauses : avec Enregistrer les pauses, Telles quelles, une macro dure aussi ",
"longtemps que la frappe, touche par touche ; avec Au plus, une pause plus longue ne compte ",
"que pour la durée indiquée. Ce qui s’écoule avant la première touche et après la dernière ",
"ne fait pas partie de la macro. Chaque pause est montrée dans l’incrustation et est une ",
"ligne delay du script."
]
},
{
"url": "recording.html#modifiers",
"page": "Enregistrer",
"title": "Touches de modification",
"text": [
"Les touches de modification et de verrouillage comptent pour les touches sur lesquelles ",
"vous appuyez pendant qu’elles sont tenues ou actives ; pressées seules, elles ne sont pas ",
"conservées, de sorte qu’un appui bref sur Super qui ouvre un lanceur manque dans la macro. ",
"Avec Enregistrer les touches de modification seules dans les préférences, ces appuis sont ",
"conservés comme des touches, si rien d’autre n’est pressé en même temps et s’ils ne durent ",
"pas plus d’une demi-seconde. Une touche de modification que vous tenez pendant plusieurs ",
"touches l’est alors aussi dans la macro, par key down et key up : Alt tenue pendant Tab, ",
"Tab mène à la troisième fenêtre même si la macro attend entre les deux. Les touches de ",
"verrouillage, et AltGr, restent une partie des touches qu’elles changent."
]
},
{
"url": "recording.html#overlay",
"page": "Enregistrer",
"title": "L’incrustation",
"text": [
"L’incrustation pendant un enregistrement L’incrustation pendant un enregistrement ",
"L’incrustation montre les touches à mesure qu’elles arrivent. Elle reste au-dessus des ",
"fenêtres en plein écran, ne prend jamais les touches, et les clics passent au travers. ",
"Dans les sessions Wayland, ce qu’elle recouvre dépend du bureau (en anglais)."
]
},
{
"url": "recording.html#not-recorded",
"page": "Enregistrer",
"title": "Quand rien n’est enregistré",
"text": [
"Tant qu’un autre programme a le clavier pour lui seul (un verrouillage d’écran, une ",
"demande de mot de passe, la fenêtre d’un autre ordinateur), rien n’est enregistré et ",
"l’incrustation dit Non enregistré : clavier capturé. Dans les menus, avec les raccourcis ",
"d’autres programmes et quand un programme a le clavier moins de deux secondes, ",
"l’enregistrement continue comme d’habitude ; un verrouillage d’écran se reconnaît à ce ",
"qu’il tient : le clavier plus longtemps que les touches par lesquelles il a commencé, avec ",
"la souris ou tout l’écran, et sans la fenêtre d’un menu. Rien n’est enregistré non plus ",
"tant que l’écran est verrouillé, ni de ce que vous tapez dans le menu et les questions de ",
"Keyrill. Ctrl+Alt+F2 et ses semblables, qui montrent une autre console, ne font pas non ",
"plus partie d’un enregistrement : les exécuter ferait quitter la session."
]
}
];
