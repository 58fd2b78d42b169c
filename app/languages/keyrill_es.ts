<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 o posterior</translation>
    </message>
    <message>
        <source>curl licence</source>
        <translation>licencia de curl</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>Acerca de Keyrill</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>&amp;Documentación</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>Página del &amp;producto</translation>
    </message>
    <message>
        <source>&amp;Maker&apos;s Website</source>
        <translation>&amp;Sitio web del desarrollador</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Creado con</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Records the keys you press and presses them again.</source>
        <translation>Graba sus pulsaciones de teclado y las reproduce.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Keyrill authors. Free software under the MIT licence, without any warranty.</source>
        <translation>Copyright © 2026 los autores de Keyrill. Software libre bajo la licencia MIT, sin garantía alguna.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>AccessDesk</name>
    <message>
        <source>To record what you type in other programs, Keyrill has to read the keyboard until the recording ends. That is why you are asked for your password.</source>
        <translation>Para grabar lo que escribe en otros programas, Keyrill tiene que leer el teclado hasta que termine la grabación. Por eso se le pide la contraseña.</translation>
    </message>
</context>
<context>
    <name>ActionCall</name>
    <message>
        <source>Keyrill is not running.</source>
        <translation>Keyrill no está en ejecución.</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>The screen is locked.</source>
        <translation>La pantalla está bloqueada.</translation>
    </message>
    <message>
        <source>Keyrill is asking something, which has to be answered first.</source>
        <translation>Keyrill está haciendo una pregunta que debe responderse primero.</translation>
    </message>
    <message>
        <source>A macro is being recorded.</source>
        <translation>Se está grabando una macro.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Todavía no hay ninguna macro que reproducir.</translation>
    </message>
    <message>
        <source>A macro is being recorded already.</source>
        <translation>Ya se está grabando una macro.</translation>
    </message>
    <message>
        <source>Nothing is being recorded or played.</source>
        <translation>No se está grabando ni reproduciendo nada.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>No se está grabando nada.</translation>
    </message>
    <message>
        <source>Keyrill is asking how often to play.</source>
        <translation>Keyrill está preguntando cuántas veces reproducir.</translation>
    </message>
    <message>
        <source>Keyrill&apos;s hot keys are off while they are being chosen in a window of its own.</source>
        <translation>Los atajos de Keyrill están desactivados mientras se eligen en una de sus ventanas.</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Keyrill Update Available</source>
        <translation>Actualización de Keyrill disponible</translation>
    </message>
    <message>
        <source>There is a new update available for Keyrill, would you like to download it now?</source>
        <translation>Hay una nueva actualización disponible para Keyrill. ¿Quiere descargarla ahora?</translation>
    </message>
    <message>
        <source>Keyrill requires that programs can see and press keys in this session. </source>
        <translation>Keyrill necesita que los programas puedan detectar y simular pulsaciones de teclas en esta sesión. </translation>
    </message>
    <message>
        <source>Please see the &apos;Configuration&apos; section of the documentation for more information.

Keyrill must close, please restart it once this is possible.
</source>
        <translation>Consulte la sección «Configuration» de la documentación para obtener más información.

Keyrill debe cerrarse. Vuelva a iniciarlo cuando esto sea posible.
</translation>
    </message>
    <message>
        <source>Open Documentation now</source>
        <translation>Abrir la documentación ahora</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Recording is not possible in this session yet</source>
        <translation>Todavía no se puede grabar en esta sesión</translation>
    </message>
    <message>
        <source>Nothing was recorded</source>
        <translation>No se ha grabado nada</translation>
    </message>
    <message>
        <source>The recording has ended</source>
        <translation>La grabación ha terminado</translation>
    </message>
    <message>
        <source>What was recorded until then is kept.</source>
        <translation>Lo grabado hasta entonces se conserva.</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>SÍ</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No Update Available</source>
        <translation>No hay actualizaciones disponibles</translation>
    </message>
    <message>
        <source>You&apos;re currently running the latest version of Keyrill</source>
        <translation>Ya está usando la última versión de Keyrill</translation>
    </message>
    <message>
        <source>The macro was not saved as &quot;%1&quot;.</source>
        <translation>La macro no se ha guardado como «%1».</translation>
    </message>
    <message>
        <source>No macro was loaded from &quot;%1&quot;.</source>
        <translation>No se ha cargado ninguna macro de «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What is in it will be lost.</source>
        <translation>¿Quiere reemplazarlo? Se perderá su contenido.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a macro file.</source>
        <translation>«%1» no es un archivo de macro.</translation>
    </message>
    <message>
        <source>The names of Keyrill&apos;s macro files end with &quot;.%1&quot;.</source>
        <translation>Los nombres de los archivos de macro de Keyrill terminan en «.%1».</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>No existe el archivo «%1».</translation>
    </message>
    <message>
        <source>Check the name, or choose one of the list.</source>
        <translation>Compruebe el nombre o elija uno de la lista.</translation>
    </message>
    <message>
        <source>Your settings were not saved.</source>
        <translation>No se han guardado sus ajustes.</translation>
    </message>
    <message>
        <source>Whether Keyrill starts when you log in could not be changed.</source>
        <translation>No se ha podido cambiar si Keyrill se inicia al iniciar sesión.</translation>
    </message>
    <message>
        <source>Something is wrong with your settings.</source>
        <translation>Hay algo incorrecto en sus ajustes.</translation>
    </message>
    <message>
        <source>May Keyrill write its hot keys into GNOME&apos;s settings?</source>
        <translation>¿Puede Keyrill escribir sus atajos de teclado en los ajustes de GNOME?</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. Keyrill would write one there for each of its combinations, and take them out when it ends. It does not touch what is yours.

You can change your mind in Keyrill&apos;s preferences.</source>
        <translation>Esta versión de GNOME solo ofrece atajos de teclado a los programas como atajos personalizados en sus propios ajustes. Keyrill escribiría allí uno por cada una de sus combinaciones y los quitaría al terminar. No toca los que son suyos.

Puede cambiar de opinión en las preferencias de Keyrill.</translation>
    </message>
    <message>
        <source>Write Them</source>
        <translation>Escribirlos</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more under &quot;Configuration&quot;.</source>
        <translation>En esta sesión, Keyrill solo ve y alcanza las ventanas de programas X11. El manual explica más en «Configuration».</translation>
    </message>
</context>
<context>
    <name>ApplicationObject</name>
    <message>
        <source>Keyrill is playing a macro.</source>
        <translation>Keyrill está reproduciendo una macro.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;. There are: %2.</source>
        <translation>No existe la acción «%1». Existen: %2.</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; takes no parameter.</source>
        <translation>La acción «%1» no admite ningún parámetro.</translation>
    </message>
</context>
<context>
    <name>BusOwner</name>
    <message>
        <source>Keyrill has ended without an answer.</source>
        <translation>Keyrill ha terminado sin responder.</translation>
    </message>
    <message>
        <source>Process %1, which has Keyrill&apos;s name on the session bus, does not answer.</source>
        <translation>El proceso %1, que tiene el nombre de Keyrill en el bus de sesión, no responde.</translation>
    </message>
    <message>
        <source>End it and start Keyrill again.</source>
        <translation>Termínelo y vuelva a iniciar Keyrill.</translation>
    </message>
</context>
<context>
    <name>CapabilityWords</name>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Use un servidor X más reciente o active la extensión en sus ajustes.</translation>
    </message>
    <message>
        <source>by XInput</source>
        <translation>mediante XInput</translation>
    </message>
    <message>
        <source>by key grabs</source>
        <translation>mediante captura de teclas</translation>
    </message>
    <message>
        <source>by XTEST</source>
        <translation>mediante XTEST</translation>
    </message>
    <message>
        <source>the X server&apos;s</source>
        <translation>el del servidor X</translation>
    </message>
    <message>
        <source>above all windows</source>
        <translation>por encima de todas las ventanas</translation>
    </message>
    <message>
        <source>by the window manager</source>
        <translation>mediante el gestor de ventanas</translation>
    </message>
    <message>
        <source>a tray that icons dock into</source>
        <translation>una bandeja en la que se incrustan iconos</translation>
    </message>
    <message>
        <source>a tray that asks for icons over the session bus</source>
        <translation>una bandeja que pide los iconos por el bus de sesión</translation>
    </message>
    <message>
        <source>by a virtual keyboard</source>
        <translation>mediante un teclado virtual</translation>
    </message>
    <message>
        <source>by bindings of sway&apos;s</source>
        <translation>mediante las asignaciones de teclas de sway</translation>
    </message>
    <message>
        <source>by KDE&apos;s shortcuts</source>
        <translation>mediante los atajos de KDE</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal, once you allow it</source>
        <translation>mediante el portal del escritorio, cuando usted lo permita</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal: you choose them when it asks, and later in its settings</source>
        <translation>mediante el portal del escritorio: se eligen cuando lo pide, y después en sus ajustes</translation>
    </message>
    <message>
        <source>by sway</source>
        <translation>mediante sway</translation>
    </message>
    <message>
        <source>by KWin</source>
        <translation>mediante KWin</translation>
    </message>
    <message>
        <source>what you type into a window of Keyrill&apos;s, &quot;Record Here&quot;</source>
        <translation>lo que escriba en la ventana «Grabar aquí» de Keyrill</translation>
    </message>
    <message>
        <source>the compositor&apos;s</source>
        <translation>el del compositor</translation>
    </message>
    <message>
        <source>as an ordinary window</source>
        <translation>como una ventana normal</translation>
    </message>
    <message>
        <source>on a layer above all windows</source>
        <translation>en una capa por encima de todas las ventanas</translation>
    </message>
    <message>
        <source>from the keyboards themselves, which every program of yours may read</source>
        <translation>desde los propios teclados, que todos sus programas pueden leer</translation>
    </message>
    <message>
        <source>by keyrill-access, which asks for your password and opens the keyboard while Keyrill records</source>
        <translation>mediante keyrill-access, que pide su contraseña y abre el teclado mientras Keyrill graba</translation>
    </message>
    <message>
        <source>The display cannot be reached.</source>
        <translation>No se puede acceder a la pantalla.</translation>
    </message>
    <message>
        <source>Start Keyrill inside a desktop session.</source>
        <translation>Inicie Keyrill dentro de una sesión gráfica.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which shows keys.</source>
        <translation>Al servidor X le falta la extensión %1, que comunica las pulsaciones.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which says what keys mean.</source>
        <translation>Al servidor X le falta la extensión %1, que dice qué significan las teclas.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which presses keys.</source>
        <translation>Al servidor X le falta la extensión %1, que simula las pulsaciones.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1: a key that is held is recorded once.</source>
        <translation>Al servidor X le falta la extensión %1: una tecla mantenida se graba una sola vez.</translation>
    </message>
    <message>
        <source>The program keyrill-guard, which releases keys after a crash, is not there; nothing is played without it.</source>
        <translation>Falta el programa keyrill-guard, que suelta las teclas tras un cierre inesperado; sin él no se reproduce nada.</translation>
    </message>
    <message>
        <source>Install Keyrill again.</source>
        <translation>Vuelva a instalar Keyrill.</translation>
    </message>
    <message>
        <source>Only with the windows of X11 programs: this is a Wayland session.</source>
        <translation>Solo con las ventanas de programas X11: esta es una sesión de Wayland.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Elija una sesión X11 al iniciar sesión.</translation>
    </message>
    <message>
        <source>There is none; a small window with the menu stands in for the icon.</source>
        <translation>No hay ninguna; una pequeña ventana con el menú sustituye al icono.</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. GNOME needs the extension &quot;AppIndicator and KStatusNotifierItem Support&quot;.</source>
        <translation>Añada una bandeja del sistema al panel del escritorio. GNOME necesita la extensión «AppIndicator and KStatusNotifierItem Support».</translation>
    </message>
    <message>
        <source>A Wayland session shows no program what is typed in others, and the service that would is not installed.</source>
        <translation>Una sesión de Wayland no muestra a ningún programa lo que se escribe en otros, y el servicio que lo haría no está instalado.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, &quot;tools/access install&quot;; or record in an X11 session, macros play in both.</source>
        <translation>Instale el paquete keyrill-wayland-access o ejecute «tools/access install» en el código fuente de Keyrill; o grabe en una sesión X11, las macros se reproducen en ambas.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Este compositor no ofrece atajos de teclado a los programas.</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Asigne teclas a órdenes como «keyrill --action=play» en los ajustes del compositor.</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>Este compositor no permite que ningún programa pulse teclas.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>Use un compositor con teclados virtuales, como sway, o una sesión X11.</translation>
    </message>
    <message>
        <source>This desktop lets no program press keys: its portal does not answer.</source>
        <translation>Este escritorio no permite que ningún programa pulse teclas: su portal no responde.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to the desktop, such as xdg-desktop-portal-kde.</source>
        <translation>Instale xdg-desktop-portal y la parte que corresponde al escritorio, como xdg-desktop-portal-kde.</translation>
    </message>
    <message>
        <source>Only characters that one of your keyboard layouts has.</source>
        <translation>Solo los caracteres que tiene alguna de sus distribuciones de teclado.</translation>
    </message>
    <message>
        <source>Add a layout that has them in the desktop&apos;s settings.</source>
        <translation>Añada una distribución que los tenga en los ajustes del escritorio.</translation>
    </message>
    <message>
        <source>Only characters that the keyboard layout in force has.</source>
        <translation>Solo los caracteres que tiene la distribución de teclado activa.</translation>
    </message>
    <message>
        <source>Switch to a layout that has the others before you play.</source>
        <translation>Cambie a una distribución que tenga los demás antes de reproducir la macro.</translation>
    </message>
    <message>
        <source>This compositor shows the clipboard to windows in front alone.</source>
        <translation>Este compositor solo muestra el portapapeles a las ventanas en primer plano.</translation>
    </message>
    <message>
        <source>Scripts that use the clipboard need another compositor, such as sway, or an X11 session.</source>
        <translation>Los scripts que usan el portapapeles necesitan otro compositor, como sway, o una sesión X11.</translation>
    </message>
    <message>
        <source>This compositor tells nothing of other programs&apos; windows.</source>
        <translation>Este compositor no dice nada de las ventanas de otros programas.</translation>
    </message>
    <message>
        <source>Scripts that bring a window to the front need sway, KDE or an X11 session.</source>
        <translation>Los scripts que traen una ventana al frente necesitan sway, KDE o una sesión X11.</translation>
    </message>
    <message>
        <source>Full-screen windows may cover it.</source>
        <translation>Las ventanas a pantalla completa pueden taparla.</translation>
    </message>
    <message>
        <source>Use a compositor that has layers, such as sway&apos;s or KDE&apos;s, or an X11 session.</source>
        <translation>Use un compositor que tenga capas, como el de sway o el de KDE, o una sesión X11.</translation>
    </message>
    <message>
        <source>by custom shortcuts in GNOME&apos;s settings while Keyrill runs, as you have agreed; the preferences take that back</source>
        <translation>mediante atajos personalizados en los ajustes de GNOME mientras Keyrill se ejecuta, como ha aceptado; en las preferencias puede retirarlo</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>Esta versión de GNOME solo ofrece atajos de teclado a los programas como atajos personalizados en sus propios ajustes, y no ha aceptado que Keyrill los escriba.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Marque la casilla en las preferencias de Keyrill, o asigne usted mismo teclas a órdenes como «keyrill --action=play» en los ajustes de GNOME.</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Súper</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--times and --speed say how --play plays.</source>
        <translation>--times y --speed dicen cómo reproduce --play.</translation>
    </message>
    <message>
        <source>keyrill --help tells more.</source>
        <translation>keyrill --help explica más.</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>No existe la opción «%1».</translation>
    </message>
    <message>
        <source>keyrill --help lists them.</source>
        <translation>keyrill --help las enumera.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>No existe la acción «%1».</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Elija una de estas: %1.</translation>
    </message>
    <message>
        <source>An action takes no file, and &quot;%1&quot; was given.</source>
        <translation>Una acción no admite ningún archivo, pero se ha indicado «%1».</translation>
    </message>
    <message>
        <source>Load it first: keyrill FILE.</source>
        <translation>Cárguelo primero: keyrill ARCHIVO.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much.</source>
        <translation>«%1» sobra.</translation>
    </message>
    <message>
        <source>--list takes no name.</source>
        <translation>--list no admite ningún nombre.</translation>
    </message>
    <message>
        <source>A name with blanks is put in quotation marks: &quot;%1&quot;.</source>
        <translation>Un nombre con espacios se pone entre comillas: &quot;%1&quot;.</translation>
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
        <translation>Uso: keyrill [--session=NOMBRE] [--] [ARCHIVO...]   iniciar Keyrill o, si ya está en ejecución, cargarle macros
     keyrill [--session=NOMBRE] --action=ACCIÓN   pedir una acción a Keyrill; lo inicia si hace falta
     keyrill [--session=NOMBRE] --play [MACRO|ARCHIVO] [--times=N|until-stopped] [--speed=X]
                                          pedirle que reproduzca una macro de la carpeta de macros, o un archivo
     keyrill [--session=NOMBRE] --show [MACRO]   pedirle que muestre la ventana de macros
     keyrill --list   mostrar los nombres de las macros de la carpeta de macros
     keyrill [--session=NOMBRE] --check   mostrar qué funciona en esta sesión y qué hacer
     keyrill -h | --help | --version
ACCIÓN es una de estas: %1.
MACRO es un nombre que muestra --list, con su grupo o sin él; sin MACRO ni ARCHIVO, --play reproduce lo que
reproduce «Reproducir». Un ARCHIVO sin MACRO de ese nombre, o que empieza por / o ./, se reproduce tal cual.
Cuántas veces y a qué velocidad (0.25 a 4) es lo que tiene la macro, salvo que se indique. --show elige MACRO en
la ventana. Con --play, --show y --list, el código de salida es 0 si se hizo, 1 si no, y 2 si la llamada era
incorrecta; la salida de error dice por qué.
NOMBRE es el tipo de sesión gráfica; sin él, el programa lo averigua por sí mismo. Existen: %2
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one thing too many.</source>
        <translation>«%1» está de más.</translation>
    </message>
    <message>
        <source>Call keyrill once for each.</source>
        <translation>Llame a keyrill una vez para cada cosa.</translation>
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
        <translation>&amp;Menú de Keyrill</translation>
    </message>
    <message>
        <source>No tray was found, so here is the menu.</source>
        <translation>No se ha encontrado ninguna bandeja del sistema, así que aquí está el menú.</translation>
    </message>
    <message>
        <source>Keyrill is running; its menu is in the tray too.</source>
        <translation>Keyrill está en ejecución; su menú también está en la bandeja del sistema.</translation>
    </message>
</context>
<context>
    <name>DraftFiles</name>
    <message>
        <source>The folder %1 cannot be written to: %2.</source>
        <extracomment>a folder, and why</extracomment>
        <translation>No se puede escribir en la carpeta %1: %2.</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>A macro needs a name.</source>
        <translation>Una macro necesita un nombre.</translation>
    </message>
    <message>
        <source>A name cannot have a slash (/) in it.</source>
        <translation>Un nombre no puede contener una barra (/).</translation>
    </message>
    <message>
        <source>A name cannot begin with a point: the file would be hidden.</source>
        <translation>Un nombre no puede empezar por un punto: el archivo estaría oculto.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>El nombre es demasiado largo para un archivo.</translation>
    </message>
    <message>
        <source>There is already a macro called &quot;%1&quot;.</source>
        <translation>Ya existe una macro llamada «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed: %2.</source>
        <translation>No se puede renombrar «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be copied: %2.</source>
        <translation>No se puede copiar «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be put into the trash.</source>
        <translation>No se puede mover «%1» a la papelera.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be brought back: %2.</source>
        <translation>No se puede restaurar «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>FilesDesk</name>
    <message>
        <source>&quot;%1&quot; was not loaded</source>
        <translation>No se ha cargado «%1»</translation>
    </message>
    <message>
        <source>A macro is being recorded. Stop recording first.</source>
        <translation>Se está grabando una macro. Detenga primero la grabación.</translation>
    </message>
    <message>
        <source>The screen is locked. Unlock it first.</source>
        <translation>La pantalla está bloqueada. Desbloquéela primero.</translation>
    </message>
    <message>
        <source>Answer Keyrill&apos;s question first.</source>
        <translation>Responda primero a la pregunta de Keyrill.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded</source>
        <translation>Se ha cargado «%1»</translation>
    </message>
    <message>
        <source>Choose a shortcut for Play in the preferences to play it.</source>
        <translation>Elija un atajo para «Reproducir» en las preferencias para reproducirla.</translation>
    </message>
    <message>
        <source>Press %1 to play it.</source>
        <translation>Pulse %1 para reproducirla.</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>This is a script of its own: line %1 cannot be changed here. What it would press is shown; change it under Script.</source>
        <translation>Este es un script propio: la línea %1 no se puede modificar aquí. Se muestra lo que pulsaría; modifíquelo en «Script».</translation>
    </message>
    <message>
        <source>Keys of the macro</source>
        <translation>Teclas de la macro</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Record Keys</source>
        <translation>Grabar teclas</translation>
    </message>
    <message>
        <source>Record keys behind the selected step</source>
        <translation>Grabar teclas después del paso seleccionado</translation>
    </message>
    <message>
        <source>Add Pause</source>
        <translation>Añadir pausa</translation>
    </message>
    <message>
        <source>A pause behind the selected step</source>
        <translation>Una pausa después del paso seleccionado</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Change the text, the pause or how often a key is pressed</source>
        <translation>Cambiar el texto, la pausa o cuántas veces se pulsa una tecla</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>The selected steps once more</source>
        <translation>Los pasos seleccionados una vez más</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover hacia arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover hacia abajo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove the selected steps</source>
        <translation>Quitar los pasos seleccionados</translation>
    </message>
    <message>
        <source>Convert to Text</source>
        <translation>Como texto</translation>
    </message>
    <message>
        <source>Type the same under every keyboard layout</source>
        <translation>Escribir lo mismo con cualquier distribución de teclado</translation>
    </message>
    <message>
        <source>Convert to Keys</source>
        <translation>Como teclas</translation>
    </message>
    <message>
        <source>Press the keys of the present keyboard layout</source>
        <translation>Pulsar las teclas de la distribución de teclado actual</translation>
    </message>
</context>
<context>
    <name>LibraryController</name>
    <message>
        <source>&quot;%1&quot; was not played</source>
        <translation>No se ha reproducido «%1»</translation>
    </message>
    <message>
        <source>Hot keys of macros</source>
        <translation>Atajos de teclado de las macros</translation>
    </message>
    <message>
        <source>The history</source>
        <translation>El historial</translation>
    </message>
</context>
<context>
    <name>MacroCalls</name>
    <message>
        <source>Keyrill does not answer.</source>
        <translation>Keyrill no responde.</translation>
    </message>
    <message>
        <source>Perhaps its macro folder cannot be reached.</source>
        <translation>Quizá no se pueda acceder a su carpeta de macros.</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Teclas</translation>
    </message>
    <message>
        <source>S&amp;cript</source>
        <translation>Scri&amp;pt</translation>
    </message>
</context>
<context>
    <name>MacroFilePanel</name>
    <message>
        <source>Keyrill macros (*.%1)</source>
        <translation>Macros de Keyrill (*.%1)</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>Guardar macro</translation>
    </message>
    <message>
        <source>Load Macro</source>
        <translation>Cargar macro</translation>
    </message>
    <message>
        <source>This name is too long for a file.</source>
        <translation>Este nombre es demasiado largo para un archivo.</translation>
    </message>
</context>
<context>
    <name>MacroList</name>
    <message>
        <source>The folder %1 does not answer.</source>
        <translation>La carpeta %1 no responde.</translation>
    </message>
</context>
<context>
    <name>MacroListModel</name>
    <message>
        <source>Group %1</source>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a macro and its hot key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, sin guardar</translation>
    </message>
</context>
<context>
    <name>MacroSettingsRow</name>
    <message>
        <source>Hot key</source>
        <translation>Atajo de teclado</translation>
    </message>
    <message>
        <source>&amp;Hot key:</source>
        <translation>Ata&amp;jo:</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Número de veces</translation>
    </message>
    <message>
        <source>Unt&amp;il stopped</source>
        <translation>&amp;Hasta detenerla</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>&amp;Veces:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>behind a number: so many times as fast</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>The pauses of the macro are divided by this</source>
        <translation>Las pausas de la macro se dividen por este número</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Sp&amp;eed:</source>
        <translation>Ve&amp;locidad:</translation>
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
        <translation>Pausa de %1 s</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Texto: %1</translation>
    </message>
    <message>
        <source>Hold %1</source>
        <extracomment>a key that goes down and stays there</extracomment>
        <translation>Mantener %1</translation>
    </message>
    <message>
        <source>Let go of %1</source>
        <translation>Soltar %1</translation>
    </message>
    <message>
        <source>Ask: %1</source>
        <extracomment>a dialog of a script, with its question</extracomment>
        <translation>Preguntar: %1</translation>
    </message>
    <message>
        <source>Tell: %1</source>
        <translation>Notificar: %1</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>Escribir %1</translation>
    </message>
    <message>
        <source>Press %1</source>
        <translation>Pulsar %1</translation>
    </message>
    <message numerus="yes">
        <source>Press %1 %Ln times</source>
        <translation>
            <numerusform>Pulsar %1 %Ln vez</numerusform>
            <numerusform>Pulsar %1 %Ln veces</numerusform>
        </translation>
    </message>
    <message>
        <source>Wait %1 seconds</source>
        <translation>Esperar %1 segundos</translation>
    </message>
    <message numerus="yes">
        <source>Wait %1 seconds, %Ln times</source>
        <translation>
            <numerusform>Esperar %1 segundos, %Ln vez</numerusform>
            <numerusform>Esperar %1 segundos, %Ln veces</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacrosDesk</name>
    <message>
        <source>Play has the latest macro until there is another.</source>
        <translation>«Reproducir» usará la última macro hasta que haya otra.</translation>
    </message>
    <message>
        <source>What is not saved would not outlive a crash. %1</source>
        <translation>Lo que no está guardado no sobreviviría a un cierre inesperado. %1</translation>
    </message>
    <message>
        <source>The macro is still being read: its folder does not answer.</source>
        <translation>La macro todavía se está leyendo: su carpeta no responde.</translation>
    </message>
    <message>
        <source>The file of this macro is gone. If you save, it is there again.</source>
        <translation>El archivo de esta macro ha desaparecido. Si guarda, se creará de nuevo.</translation>
    </message>
    <message>
        <source>Another program has deleted or moved the macro.</source>
        <translation>Otro programa ha eliminado o movido la macro.</translation>
    </message>
    <message>
        <source>Another program has changed this macro. If you save, your text replaces it.</source>
        <translation>Otro programa ha cambiado esta macro. Si guarda, su texto la reemplazará.</translation>
    </message>
    <message>
        <source>What was not saved is there again: %1.</source>
        <translation>Se ha recuperado lo que no estaba guardado: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The recording is forgotten.</source>
        <translation>La grabación se ha eliminado del historial.</translation>
    </message>
    <message>
        <source>All recordings are forgotten.</source>
        <translation>Todas las grabaciones se han eliminado del historial.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>New Macro</source>
        <translation>Macro nueva</translation>
    </message>
    <message>
        <source>The macro is in the trash.</source>
        <translation>La macro está en la papelera.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>The macro cannot be played. Line %1: %2</source>
        <extracomment>of a script; what is wrong</extracomment>
        <translation>La macro no se puede reproducir. Línea %1: %2</translation>
    </message>
    <message>
        <source>The macro is deleted.</source>
        <translation>La macro se ha eliminado.</translation>
    </message>
</context>
<context>
    <name>MacrosInterface</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>No existe la opción «%1».</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Existen: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file of this machine.</source>
        <translation>«%1» no es un archivo de este equipo.</translation>
    </message>
    <message>
        <source>It begins with file:///.</source>
        <translation>Su dirección debe empezar por file:///.</translation>
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
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>Buscar macros</translation>
    </message>
    <message>
        <source>&amp;Record New</source>
        <translation>&amp;Nueva grabación</translation>
    </message>
    <message>
        <source>Record a new macro</source>
        <translation>Grabar una macro nueva</translation>
    </message>
    <message>
        <source>Keep Recordin&amp;g...</source>
        <translation>Conservar &amp;grabación...</translation>
    </message>
    <message>
        <source>Keep a recording of the history as a macro, by a name</source>
        <translation>Conservar una grabación del historial como macro, con un nombre</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Eliminar del &amp;historial</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>Eliminar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>Play into the window that you were in before, after three seconds</source>
        <translation>Reproducir tras tres segundos en la ventana en la que estaba antes</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Guard&amp;ar</translation>
    </message>
    <message>
        <source>Save the macro (%1)</source>
        <translation>Guardar la macro (%1)</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>Make a copy of the macro</source>
        <translation>Hacer una copia de la macro</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Reno&amp;mbrar</translation>
    </message>
    <message>
        <source>Give the macro another name (F2)</source>
        <translation>Dar otro nombre a la macro (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Put the macro into the trash (Delete)</source>
        <translation>Mover la macro a la papelera (Supr)</translation>
    </message>
    <message>
        <source>Stop (Escape)</source>
        <translation>Detener (Esc)</translation>
    </message>
    <message>
        <source>Do not play</source>
        <translation>No reproducir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>The macro folder is still being read.</source>
        <translation>La carpeta de macros todavía se está leyendo.</translation>
    </message>
    <message>
        <source>There is no macro yet. Record one, or put a macro file into the macro folder.</source>
        <translation>Todavía no hay ninguna macro. Grabe una o ponga un archivo de macro en la carpeta de macros.</translation>
    </message>
    <message>
        <source>Plays in %1 s...</source>
        <translation>Se reproducirá en %1 s...</translation>
    </message>
</context>
<context>
    <name>MultiplePlayWindow</name>
    <message>
        <source>Play Multiple Times</source>
        <translation>Reproducir varias veces</translation>
    </message>
    <message>
        <source>&amp;Times to play:</source>
        <translation>&amp;Número de veces:</translation>
    </message>
    <message>
        <source>Times to play</source>
        <translation>Número de veces</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>No macro yet</source>
        <translation>Todavía no hay macro</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
</context>
<context>
    <name>OverlayDesk</name>
    <message>
        <source>Waiting for your permission</source>
        <translation>Esperando su permiso</translation>
    </message>
    <message>
        <source>Not recorded: keyboard held</source>
        <translation>No se graba: teclado capturado</translation>
    </message>
</context>
<context>
    <name>PauseRow</name>
    <message>
        <source>Never</source>
        <extracomment>whether pauses are recorded: never, as long as they were when typed, or not longer than a number of seconds</extracomment>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Tal cual</translation>
    </message>
    <message>
        <source>At most</source>
        <extracomment>stands before a number of seconds</extracomment>
        <translation>Como máximo</translation>
    </message>
    <message>
        <source>Record pauses</source>
        <translation>Grabar las pausas</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Longest pause in seconds</source>
        <translation>Pausa más larga en segundos</translation>
    </message>
    <message>
        <source>Record p&amp;auses:</source>
        <translation>Grabar las &amp;pausas:</translation>
    </message>
</context>
<context>
    <name>PlayRequests</name>
    <message>
        <source>There are several macros called &quot;%1&quot;.</source>
        <translation>Hay varias macros llamadas «%1».</translation>
    </message>
    <message>
        <source>Say which one: %1.</source>
        <translation>Indique cuál: %1.</translation>
    </message>
    <message>
        <source>keyrill --list lists all.</source>
        <translation>keyrill --list las enumera todas.</translation>
    </message>
    <message>
        <source>There is no macro called &quot;%1&quot;.</source>
        <translation>No existe ninguna macro llamada «%1».</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Todavía no hay ninguna macro que reproducir.</translation>
    </message>
    <message>
        <source>What Play plays cannot be played: its script is wrong in line %1.</source>
        <translation>La macro de «Reproducir» no se puede reproducir: su script es incorrecto en la línea %1.</translation>
    </message>
    <message>
        <source>Play in the menu tells more.</source>
        <translation>«Reproducir» en el menú explica más.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be played: its script is wrong in line %2.</source>
        <translation>No se puede reproducir «%1»: su script es incorrecto en la línea %2.</translation>
    </message>
    <message>
        <source>keyrill-script check &quot;%1&quot; tells more.</source>
        <translation>keyrill-script check &quot;%1&quot; explica más.</translation>
    </message>
    <message>
        <source>Similar: %1.</source>
        <translation>Parecidos: %1.</translation>
    </message>
</context>
<context>
    <name>PlayWords</name>
    <message>
        <source>&quot;%1&quot; is not how many times a macro can be played.</source>
        <translation>«%1» no es un número de veces válido.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Debe ser un número entero a partir de 1, o until-stopped.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not how fast a macro can be played.</source>
        <translation>«%1» no es una velocidad válida.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4, with a point: 1.5.</source>
        <translation>Debe ser un número de 0.25 a 4, con punto decimal: 1.5.</translation>
    </message>
    <message>
        <source>The name of the macro is empty.</source>
        <translation>El nombre de la macro está vacío.</translation>
    </message>
    <message>
        <source>keyrill --list prints those that there are.</source>
        <translation>keyrill --list muestra los que existen.</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Keyrill Preferences</source>
        <translation>Preferencias de Keyrill</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>Buscar &amp;ahora</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>These combinations work in every program. Click a field and press the combination you want.</source>
        <translation>Estas combinaciones funcionan en todos los programas. Haga clic en un campo y pulse la combinación que quiera.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
</context>
<context>
    <name>ProgramInstance</name>
    <message>
        <source>The macro folder was out of reach for too long.</source>
        <translation>La carpeta de macros ha estado demasiado tiempo inaccesible.</translation>
    </message>
    <message>
        <source>Another program has Keyrill&apos;s name on the session bus and does not do its work: %1</source>
        <translation>Otro programa tiene el nombre de Keyrill en el bus de sesión y no hace su trabajo: %1</translation>
    </message>
    <message>
        <source>End that program and start Keyrill again.</source>
        <translation>Cierre ese programa y vuelva a iniciar Keyrill.</translation>
    </message>
    <message>
        <source>It cannot be given a file, since it has no session bus.</source>
        <translation>No se le puede dar un archivo, ya que no tiene bus de sesión.</translation>
    </message>
    <message>
        <source>Keyrill is running already.</source>
        <translation>Keyrill ya está en ejecución.</translation>
    </message>
</context>
<context>
    <name>RecordHerePanel</name>
    <message>
        <source>Record Here</source>
        <translation>Grabar aquí</translation>
    </message>
    <message>
        <source>How to Record Everywhere</source>
        <translation>Cómo grabar en todas partes</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>Escriba aquí</translation>
    </message>
    <message>
        <source>Keys typed here are recorded</source>
        <translation>Las teclas que pulse aquí se grabarán</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>What you type in this window is recorded</source>
        <translation>Lo que escriba en esta ventana se grabará</translation>
    </message>
    <message>
        <source>What you type in other programs is not. The macro can be played in all of them.</source>
        <translation>Lo que escriba en otros programas, no. La macro se puede reproducir en todos ellos.</translation>
    </message>
    <message>
        <source>Why not everywhere?</source>
        <translation>¿Por qué no en todas partes?</translation>
    </message>
    <message>
        <source>Press Stop Recording or close the window when you are done.</source>
        <translation>Pulse «Detener grabación» o cierre la ventana cuando termine.</translation>
    </message>
    <message>
        <source>Press %1 when you are done, or close the window.</source>
        <translation>Pulse %1 cuando termine, o cierre la ventana.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window.</source>
        <translation>Use la combinación definida en los ajustes del escritorio cuando termine, o cierre la ventana.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window: %1</source>
        <translation>Use la combinación definida en los ajustes del escritorio cuando termine, o cierre la ventana: %1</translation>
    </message>
</context>
<context>
    <name>RecorderWindow</name>
    <message>
        <source>Keyrill recording</source>
        <translation>Keyrill está grabando</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>There is no session bus, over which the running Keyrill could be asked.</source>
        <translation>No hay ningún bus de sesión por el que comunicarse con Keyrill.</translation>
    </message>
    <message>
        <source>Call it from within the desktop session; the hot keys and the menu need none.</source>
        <translation>Llámelo desde la sesión gráfica; los atajos de teclado y el menú no lo necesitan.</translation>
    </message>
    <message>
        <source>Keyrill could not be started, or runs already where this session bus does not reach.</source>
        <translation>No se ha podido iniciar Keyrill, o ya está en ejecución donde no llega este bus de sesión.</translation>
    </message>
    <message>
        <source>Start it as &quot;keyrill&quot; in a terminal to see why.</source>
        <translation>Ejecute «keyrill» en un terminal para ver por qué.</translation>
    </message>
</context>
<context>
    <name>SRRecorderControl</name>
    <message>
        <source>Clear %1</source>
        <translation>Borrar «%1»</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Click here, then press a combination. Backspace clears, Escape keeps what was set.</source>
        <translation>Haga clic aquí y pulse después una combinación. Retroceso borra, Esc mantiene lo que había.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super</source>
        <translation>Añada Ctrl, Alt o Súper</translation>
    </message>
    <message>
        <source>Press a combination…</source>
        <translation>Pulse una combinación…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
</context>
<context>
    <name>ScriptDialogWindow</name>
    <message>
        <source>Stop</source>
        <extracomment>the name of a picture: a stop sign</extracomment>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Precaución</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Keyrill Macro</source>
        <translation>Macro de Keyrill</translation>
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
        <translation>Palabras del lenguaje de script</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <extracomment>of a script; what is wrong, or could be</extracomment>
        <translation>Línea %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptNotices</name>
    <message>
        <source>The macro was not played to its end</source>
        <translation>La macro no se ha reproducido hasta el final</translation>
    </message>
    <message>
        <source>The macro cannot be played</source>
        <translation>La macro no se puede reproducir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded but cannot be played</source>
        <translation>Se ha cargado «%1», pero no se puede reproducir</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
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
        <translation>Sesión</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1, pantalla %2</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>missing: %1; there: %2</source>
        <translation>faltan: %1; hay: %2</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Pressing keys</source>
        <translation>Pulsación de teclas</translation>
    </message>
    <message>
        <source>Typing text</source>
        <translation>Escritura de texto</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Portapapeles</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Superposición</translation>
    </message>
    <message>
        <source>Windows of other programs</source>
        <translation>Ventanas de otros programas</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja del sistema</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>by what it works, and what is missing all the same, which is a sentence</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Hot key of &quot;%1&quot;</source>
        <translation>Atajo de teclado de «%1»</translation>
    </message>
    <message>
        <source>none is chosen</source>
        <translation>no se ha elegido ninguno</translation>
    </message>
    <message>
        <source>%1, which nobody else has</source>
        <translation>%1, que nadie más usa</translation>
    </message>
    <message>
        <source>%1, which the running Keyrill has</source>
        <translation>%1, que Keyrill ya usa</translation>
    </message>
    <message>
        <source>%1; the session does not tell who has it</source>
        <translation>%1; la sesión no dice quién lo usa</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de sesión</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>the session bus exists</extracomment>
        <translation>presente</translation>
    </message>
    <message>
        <source>There is none: &quot;keyrill --action&quot;, notifications and many trays need it, and a locked screen is not noticed at once.</source>
        <translation>No hay ninguno: «keyrill --action», las notificaciones y muchas bandejas lo necesitan, y una pantalla bloqueada no se advierte de inmediato.</translation>
    </message>
    <message>
        <source>Start Keyrill from within the desktop session.</source>
        <translation>Inicie Keyrill desde dentro de la sesión gráfica.</translation>
    </message>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>está en ejecución</translation>
    </message>
    <message>
        <source>is not running</source>
        <translation>no está en ejecución</translation>
    </message>
    <message>
        <source>no lock is on</source>
        <translation>ningún bloqueo está activado</translation>
    </message>
    <message>
        <source>on: %1, which macros do not mind</source>
        <translation>activados: %1, que no afectan a las macros</translation>
    </message>
    <message>
        <source>layout unknown</source>
        <translation>distribución desconocida</translation>
    </message>
    <message>
        <source>layout %1</source>
        <translation>distribución %1</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
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
        <translation>«%1» lo usa todavía hasta que se reinicie Keyrill.</translation>
    </message>
    <message>
        <source>Already used by %1.</source>
        <translation>Ya lo usa «%1».</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>El escritorio aún no ha respondido.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings.</source>
        <translation>Definido en los ajustes del escritorio.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings: %1</source>
        <translation>Definido en los ajustes del escritorio: %1</translation>
    </message>
    <message>
        <source>%1 still works until Keyrill restarts.</source>
        <translation>%1 sigue funcionando hasta que se reinicie Keyrill.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;, which gives way.</source>
        <translation>Ya lo usa la macro «%1», que se lo cede.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;.</source>
        <translation>Ya lo usa la macro «%1».</translation>
    </message>
</context>
<context>
    <name>ShortcutTitles</name>
    <message>
        <source>Start &amp;Recording:</source>
        <translation>&amp;Iniciar grabación:</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>Iniciar grabación</translation>
    </message>
    <message>
        <source>&amp;Stop Recording:</source>
        <translation>&amp;Detener grabación:</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>&amp;Play:</source>
        <translation>&amp;Reproducir:</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play &amp;Multiple Times:</source>
        <translation>Reproducir &amp;varias veces:</translation>
    </message>
    <message>
        <source>Play Multiple Times</source>
        <translation>Reproducir varias veces</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Start Recording</source>
        <translation>Iniciar grabación</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>Save Pause</source>
        <translation>Grabar pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play Multiple Times...</source>
        <translation>Reproducir varias veces...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Save Macro...</source>
        <translation>Guardar macro...</translation>
    </message>
    <message>
        <source>Load Macro...</source>
        <translation>Cargar macro...</translation>
    </message>
    <message>
        <source>Macros...</source>
        <translation>Macros...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Foro</translation>
    </message>
    <message>
        <source>Product Page</source>
        <translation>Página del producto</translation>
    </message>
    <message>
        <source>Maker&apos;s Website</source>
        <translation>Sitio web del desarrollador</translation>
    </message>
    <message>
        <source>Get Support</source>
        <translation>Obtener asistencia</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Report a Bug</source>
        <translation>Informar de un fallo</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Buscar actualizaciones...</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>Acerca de Keyrill</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Keyrill menu</source>
        <translation>Menú de Keyrill</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Qué funciona aquí</translation>
    </message>
</context>
<context>
    <name>StatusNotice</name>
    <message>
        <source>%1 has no shortcut. %2</source>
        <translation>«%1» no tiene atajo. %2</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>Works</source>
        <translation>Funciona</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>No funciona</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Se desconoce</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Qué funciona aquí</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>Copy all lines, for a mail or a forum</source>
        <translation>Copiar todas las líneas, para un correo o un foro</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>Comprobar de &amp;nuevo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>A moment...</source>
        <translation>Un momento...</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>No se ha podido averiguar qué funciona aquí.</translation>
    </message>
    <message>
        <source>&quot;keyrill --check&quot; in a terminal may say why.</source>
        <translation>«keyrill --check» en un terminal quizá diga por qué.</translation>
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
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>The script goes on; only its beginning is shown.</source>
        <translation>El script continúa; solo se muestra el principio.</translation>
    </message>
    <message>
        <source>A pause is a number of seconds from 0 to a day.</source>
        <translation>Una pausa se indica en segundos, de 0 a un día.</translation>
    </message>
    <message>
        <source>A key is pressed from 1 to 10,000 times.</source>
        <translation>Una tecla se puede pulsar de 1 a 10.000 veces.</translation>
    </message>
    <message>
        <source>This step cannot be changed here.</source>
        <translation>Este paso no se puede cambiar aquí.</translation>
    </message>
</context>
<context>
    <name>Toggles</name>
    <message>
        <source>Check for &amp;updates when Keyrill starts</source>
        <translation>&amp;Buscar actualizaciones al iniciar Keyrill</translation>
    </message>
    <message>
        <source>Start Keyrill when I log &amp;in</source>
        <translation>Iniciar Keyrill al iniciar &amp;sesión</translation>
    </message>
    <message>
        <source>Record modifier &amp;keys on their own</source>
        <translation>Grabar las teclas &amp;modificadoras por separado</translation>
    </message>
    <message>
        <source>Keep the &amp;history for the next start</source>
        <translation>Conservar el &amp;historial para el próximo inicio</translation>
    </message>
    <message>
        <source>&amp;Write hot keys into GNOME&apos;s settings</source>
        <translation>&amp;Escribir los atajos en los ajustes de GNOME</translation>
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
        <translation>Le damos la bienvenida a Keyrill</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Your first macro</source>
        <translation>Su primera macro</translation>
    </message>
    <message>
        <source>The combinations</source>
        <translation>Las combinaciones</translation>
    </message>
    <message>
        <source>You can change them in the preferences, which come next.</source>
        <translation>Puede cambiarlas en las preferencias, que se abren a continuación.</translation>
    </message>
    <message>
        <source>Keyrill records the keys you press and presses them again for you, in any program, as often as you like.</source>
        <translation>Keyrill graba sus pulsaciones de teclado y las reproduce por usted, en cualquier programa y tantas veces como quiera.</translation>
    </message>
    <message>
        <source>Choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Elija «Iniciar grabación» en el menú de Keyrill. Después escriba.</translation>
    </message>
    <message>
        <source>Press %1, or choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Pulse %1 o elija «Iniciar grabación» en el menú de Keyrill. Después escriba.</translation>
    </message>
    <message>
        <source>Choose Stop Recording when you are done.</source>
        <translation>Elija «Detener grabación» cuando termine.</translation>
    </message>
    <message>
        <source>Press %1 when you are done.</source>
        <translation>Pulse %1 cuando termine.</translation>
    </message>
    <message>
        <source>Click where the keys should go and choose Play.</source>
        <translation>Haga clic donde se deba escribir y elija «Reproducir».</translation>
    </message>
    <message>
        <source>Click where the keys should go and press %1.</source>
        <translation>Haga clic donde se deba escribir y pulse %1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
</context>
</TS>
