// SPDX-License-Identifier: MIT
// Written by tools/manual; not to be edited.
const translatedIndex = [
{
"url": "first.html",
"page": "Su primera macro en un minuto",
"title": "Su primera macro en un minuto",
"words": "comienzo, empezar, inicio, iniciar, tutorial, guía rápida, icono, bandeja del sistema, menú",
"text": [
"Bastan tres atajos de teclado. Haga clic en un campo de texto, pulse Ctrl+Súper+R y ",
"escriba unas palabras. Súper es la tecla con el logotipo del escritorio. Una superposición ",
"en la parte superior derecha de la pantalla muestra las teclas. Pulse Ctrl+Súper+S. La ",
"superposición desaparece; la macro está lista. Pulse Ctrl+Súper+P y suelte las teclas. Las ",
"palabras se escriben otra vez. ¿No ocurre nada? Problemas por síntomas (en inglés) explica ",
"por qué. En una sesión de Wayland, lo que se puede grabar depende del escritorio: consulte ",
"Wayland, escritorio por escritorio (en inglés)."
]
},
{
"url": "first.html#next",
"page": "Su primera macro en un minuto",
"title": "Y después",
"text": [
"Reproducirla cien veces: cuántas veces (en inglés). Conservarla, darle un nombre y un ",
"atajo de teclado propio: la ventana de macros (en inglés). Conservar también sus pausas: ",
"pausas. Elegir otros atajos de teclado: elegir los atajos. Escribir una macro que ",
"pregunte, cuente y decida: las macros como scripts (en inglés), y el recetario (en ",
"inglés)."
]
},
{
"url": "first.html#menu",
"page": "Su primera macro en un minuto",
"title": "El icono y su menú",
"text": [
"Keyrill está en la bandeja del sistema. Su icono muestra tres puntos mientras el programa ",
"se prepara y, después, una tecla con una K. El menú (aquí, en inglés) El menú (aquí, en ",
"inglés) opción qué hace Iniciar grabación, Detener grabación comienza o termina una macro ",
"Grabar pausa durante la grabación: conserva como pausa el tiempo transcurrido desde la ",
"última tecla Reproducir, Reproducir varias veces... escribe la macro actual, una vez o ",
"tantas como usted diga Historial lo que se ha grabado desde que se inició Keyrill, o ",
"también antes si quiere conservarlo (en inglés), lo más reciente primero; al elegir una ",
"entrada, se reproduce y pasa a ser la macro actual Guardar macro..., Cargar macro... ",
"guarda la macro actual en un archivo y recupera una de un archivo Macros... todas las ",
"macros que conserva, para buscarlas, leerlas, cambiarlas y reproducirlas Preferencias... ",
"atajos de teclado, pausas, inicio al entrar en la sesión, actualizaciones Ayuda este ",
"manual (Documentación), las páginas del fabricante, cómo ponerse en contacto con nosotros ",
"y Qué funciona aquí Salir cierra Keyrill Reproducir, Reproducir varias veces y Guardar ",
"macro aparecen cuando se ha detenido la primera grabación. En un escritorio sin bandeja ",
"del sistema aparece, al cabo de tres segundos, una ventana pequeña con el mismo menú. ",
"Nunca quita las teclas a la ventana en la que usted escribe. Si inicia Keyrill por segunda ",
"vez, también se muestra esa ventana."
]
},
{
"url": "hot-keys.html",
"page": "Atajos de teclado",
"title": "Atajos de teclado",
"words": "tecla rápida, tecla de acceso, atajo, combinación de teclas, hotkey, asignar, disparador",
"text": [
"Un atajo de teclado funciona en todos los programas, hasta donde la sesión (en inglés) lo ",
"permite. atajo qué hace Ctrl+Súper+R inicia una grabación o la termina Ctrl+Súper+S ",
"termina la grabación; mientras se reproduce una macro, termina la reproducción ",
"Ctrl+Súper+P reproduce la macro actual cuando se han soltado todas las teclas Ctrl+Súper+M ",
"pregunta cuántas veces hay que reproducir Esc, mantenida un tercio de segundo termina la ",
"reproducción Los atajos nunca forman parte de una grabación. Mientras están abiertas las ",
"preferencias o una pregunta de Keyrill, están desactivados; solo el de detener termina ",
"entonces una macro que pregunta algo."
]
},
{
"url": "hot-keys.html#choose",
"page": "Atajos de teclado",
"title": "Elegir los atajos",
"text": [
"Haga clic en un campo de las preferencias (en inglés), o pulse en él la barra espaciadora, ",
"y pulse después la nueva combinación. Una letra o una cifra necesita Ctrl, Alt o Súper. ",
"Retroceso borra el campo; una combinación borrada sigue funcionando hasta que se vuelve a ",
"iniciar Keyrill. Si la combinación la tiene otro de los cuatro atajos, este la pierde. Los ",
"atajos son teclas según su lugar en el teclado, como en una grabación: la que era la M en ",
"un teclado estadounidense es la coma de uno francés, y las preferencias muestran siempre ",
"lo que está impreso en ella con la distribución del momento. En las sesiones de Wayland de ",
"GNOME, a partir de la versión 48, las combinaciones se eligen en la configuración del ",
"propio GNOME: consulte GNOME (en inglés)."
]
},
{
"url": "hot-keys.html#macros",
"page": "Atajos de teclado",
"title": "Un atajo para una macro",
"text": [
"Cada macro de la carpeta de macros puede tener uno: abra Macros... en el menú, elija la ",
"macro, haga clic en el campo Atajo: que hay debajo, o pulse en él la barra espaciadora, y ",
"pulse la combinación. Se guarda en el acto. Al lado figuran cuántas veces reproduce el ",
"atajo la macro y a qué velocidad (en inglés). Un atajo pertenece a una macro solo en su ",
"equipo: nunca está en el archivo de la macro, de modo que una macro ajena no ocupa ",
"ninguno."
]
},
{
"url": "hot-keys.html#taken",
"page": "Atajos de teclado",
"title": "Una combinación ya ocupada",
"text": [
"Las preferencias lo dicen junto al campo, la ventana de macros lo dice debajo de la macro, ",
"y también lo dice la descripción emergente del icono. Nombran a quien la tiene, hasta ",
"donde se puede saber: Ya lo usa la macro «Greeting». Elija otra combinación o libérela ",
"allí. Un atajo que tiene otro programa se toma en cuanto ese programa lo deja libre. Una ",
"combinación que usted asigna a un atajo de las preferencias se le quita a la macro que la ",
"tenía. keyrill --check en un terminal, y Qué funciona aquí en Ayuda, en el menú, dicen de ",
"cada atajo si lo tiene otro."
]
},
{
"url": "hot-keys.html#actions",
"page": "Atajos de teclado",
"title": "Desde otros programas y con las teclas propias del escritorio",
"text": [
"keyrill --action=record, stop, play, multiple y save-pause hacen lo que hacen las líneas ",
"del menú. Asigne una de estas órdenes a una tecla de su gestor de ventanas, a un botón o a ",
"un script; el menú del escritorio también las ofrece, junto al nombre del programa. Si ",
"usted todavía mantiene pulsadas teclas, se espera a que las suelte. record, play, multiple ",
"y macros, que muestra la ventana de macros, inician Keyrill si hace falta. Lo que no se ",
"puede hacer en ese momento se dice en la salida de error, y el código de salida es 2. ",
"Mientras se reproduce una macro, solo se acepta stop. Estas órdenes necesitan el bus de ",
"sesión, que todo escritorio tiene; nada en él revela lo que usted ha grabado."
]
},
{
"url": "hot-keys.html#play-by-name",
"page": "Atajos de teclado",
"title": "Reproducir una macro por su nombre",
"text": [
"keyrill --play Greeting reproduce la macro de ese nombre de la carpeta de macros, con las ",
"veces y la velocidad que le corresponden; --times 3 --speed 2, tres veces y al doble de ",
"velocidad; --play mail/Greeting, la del grupo mail; --play ./macro.keyrill, un archivo; y ",
"--play solo, lo que reproduce Reproducir; la macro actual sigue siendo la que era. keyrill ",
"--list muestra todos los nombres, keyrill --show Greeting muestra la macro en su ventana. ",
"bash, zsh y fish completan los nombres. El código de salida es 0 si se hizo, 1 si no se ",
"pudo y 2 si la línea de órdenes no tiene sentido; la salida de error dice por qué. Así ",
"recibe una macro una tecla de su gestor de ventanas, aquí de openbox: <keybind ",
"key=\"C-W-F5\"><action name=\"Execute\"> <command>keyrill --play Greeting</command> ",
"</action></keybind> Otros programas lo piden por D-Bus: man keyrill explica cómo."
]
},
{
"url": "recording.html",
"page": "Grabar",
"title": "Grabar",
"words": "grabar, captura, registrar, pausa, retardo, espera, tecla modificadora, superposición, ratón",
"text": [
"Pulse Ctrl+Súper+R o elija Iniciar grabación en el menú, escriba y termine con ",
"Ctrl+Súper+S."
]
},
{
"url": "recording.html#what",
"page": "Grabar",
"title": "Qué se graba",
"text": [
"Todo lo que usted pulsa entra en la macro: letras, cifras, flechas, teclas de función y ",
"combinaciones con Ctrl, Alt, Súper y Mayús. Una tecla que se mantiene pulsada cuenta ",
"tantas veces como se repite. Los clics del ratón no se graban. Los atajos propios de ",
"Keyrill no forman parte de la macro. Las teclas se conservan por su lugar en el teclado, ",
"no por el carácter que escriben: grabada con una distribución de teclado inglesa y ",
"reproducida con una francesa, una macro pulsa las mismas teclas, que allí escriben otras ",
"letras. Para un texto que debe llegar igual con cualquier distribución, escriba keystroke ",
"\"...\" en el script de la macro o use Como texto (en inglés). Teclados y distribuciones (en ",
"inglés) explica más. Una grabación sin ninguna tecla se descarta. Cualquier otra pasa a ",
"ser la macro actual, la que reproduce Reproducir (en inglés), y la primera línea de ",
"Historial."
]
},
{
"url": "recording.html#pauses",
"page": "Grabar",
"title": "Pausas",
"text": [
"El tiempo que usted espera entre dos teclas no se conserva, para que una macro se ",
"reproduzca a toda velocidad. Donde la espera importa, por ejemplo mientras se carga una ",
"página, elija Grabar pausa en el menú: el tiempo transcurrido desde la última tecla pasa a ",
"formar parte de la macro. En las preferencias puede hacer que se conserven todas las ",
"pausas: con Grabar las pausas, Tal cual, una macro tarda lo mismo que se tardó en ",
"escribirla, tecla por tecla; con Como máximo, una pausa más larga cuenta solo el tiempo ",
"indicado. Lo que pasa antes de la primera tecla y después de la última no forma parte de ",
"la macro. Cada pausa se muestra en la superposición y es una línea delay del script."
]
},
{
"url": "recording.html#modifiers",
"page": "Grabar",
"title": "Teclas modificadoras",
"text": [
"Las teclas modificadoras y de bloqueo cuentan para las teclas que usted pulsa mientras ",
"están mantenidas o activadas; pulsadas solas no se conservan, de modo que una pulsación ",
"breve de Súper que abre un lanzador falta en la macro. Con Grabar las teclas modificadoras ",
"por separado en las preferencias, esas pulsaciones se conservan como teclas, si no se ",
"pulsa nada más con ellas y no duran más de medio segundo. Una tecla modificadora que usted ",
"mantiene durante varias teclas se mantiene entonces también en la macro, mediante key down ",
"y key up: Alt mantenida durante Tab, Tab lleva a la tercera ventana aunque la macro espere ",
"entre ellas. Las teclas de bloqueo, y AltGr, siguen siendo parte de las teclas que ",
"cambian."
]
},
{
"url": "recording.html#overlay",
"page": "Grabar",
"title": "La superposición",
"text": [
"La superposición mientras se graba una macro La superposición mientras se graba una macro ",
"La superposición muestra las teclas a medida que llegan. Permanece sobre las ventanas a ",
"pantalla completa, nunca se queda con las teclas y los clics la atraviesan. En las ",
"sesiones de Wayland, sobre qué se sitúa depende del escritorio (en inglés)."
]
},
{
"url": "recording.html#not-recorded",
"page": "Grabar",
"title": "Cuándo no se graba nada",
"text": [
"Mientras otro programa tiene el teclado para él solo (un bloqueo de pantalla, una petición ",
"de contraseña, la ventana de otro equipo) no se graba nada y la superposición dice No se ",
"graba: teclado capturado. En los menús, con los atajos de otros programas y cuando un ",
"programa tiene el teclado menos de dos segundos, se graba como siempre; un bloqueo de ",
"pantalla se reconoce por lo que captura: el teclado durante más tiempo que las teclas con ",
"las que empezó, junto con el ratón o toda la pantalla, y sin la ventana de un menú. ",
"Tampoco se graba nada mientras la pantalla está bloqueada, ni de lo que usted escribe en ",
"el menú y en las preguntas del propio Keyrill. Ctrl+Alt+F2 y similares, que muestran otra ",
"consola, tampoco forman parte de una grabación: reproducirla haría salir de la sesión."
]
}
];
