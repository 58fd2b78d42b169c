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
    <message>
        <source>by the compositor</source>
        <translation>mediante el compositor</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>This compositor gives the clipboard to windows alone.</source>
        <translation>Este compositor solo da acceso al portapapeles a las ventanas.</translation>
    </message>
    <message>
        <source>Use a compositor with data control, such as sway, or an X11 session.</source>
        <translation>Use un compositor con el protocolo data control, como sway, o una sesión X11.</translation>
    </message>
    <message>
        <source>No more files can be opened.</source>
        <translation>No se pueden abrir más archivos.</translation>
    </message>
    <message>
        <source>Close programs.</source>
        <translation>Cierre algún programa.</translation>
    </message>
    <message>
        <source>The text in the clipboard is too long.</source>
        <translation>El texto del portapapeles es demasiado largo.</translation>
    </message>
    <message>
        <source>The clipboard is held by another program.</source>
        <translation>Otro programa retiene el portapapeles.</translation>
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
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
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
    <name>Files</name>
    <message>
        <source>Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is a code: 0xE9</extracomment>
        <translation>La línea %1 contiene el byte %2 en la posición %3, y un archivo de macro solo puede contener ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085</extracomment>
        <translation>La línea %1 contiene el carácter (%2) en la posición %3, y un archivo de macro solo puede contener ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character &quot;%2&quot; (%3) at place %4, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %4 are numbers, %2 is a character, %3 its code: U+00E9</extracomment>
        <translation>La línea %1 contiene el carácter «%2» (%3) en la posición %4, y un archivo de macro solo puede contener ASCII.</translation>
    </message>
    <message>
        <source>Replace the character in the macro.</source>
        <translation>Reemplace el carácter en la macro.</translation>
    </message>
    <message>
        <source>The file %1 cannot be deleted: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>No se puede eliminar el archivo %1: %2</translation>
    </message>
    <message>
        <source>Check who may write to its folder, or delete it yourself.</source>
        <translation>Compruebe quién puede escribir en su carpeta o elimine el archivo manualmente.</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Elija un archivo.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>No se puede leer el archivo %1: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>No se puede escribir el archivo %1: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MiB</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Ocupa más de %1 MiB</translation>
    </message>
    <message>
        <source>Choose a smaller file.</source>
        <translation>Elija un archivo más pequeño.</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Elija otro nombre.</translation>
    </message>
    <message>
        <source>Check that the file is there and who may read it.</source>
        <translation>Compruebe si el archivo existe y quién puede leerlo.</translation>
    </message>
    <message>
        <source>Make room, check who may write there, or choose another place.</source>
        <translation>Libere espacio, compruebe quién puede escribir allí o elija otro lugar.</translation>
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
    <name>Folders</name>
    <message>
        <source>The folder %1 cannot be made: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>No se puede crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>Check who may write there.</source>
        <translation>Compruebe quién puede escribir allí.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>No se puede leer la carpeta %1: %2</translation>
    </message>
    <message>
        <source>Check who may read it.</source>
        <translation>Compruebe quién puede leerla.</translation>
    </message>
    <message>
        <source>What changes in the folder %1 is not noticed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>No se detectan los cambios en la carpeta %1: %2</translation>
    </message>
    <message>
        <source>Start Keyrill again after changes, or raise fs.inotify.max_user_watches.</source>
        <translation>Vuelva a iniciar Keyrill después de los cambios o aumente fs.inotify.max_user_watches.</translation>
    </message>
    <message>
        <source>Make room, or check who may write there.</source>
        <translation>Libere espacio o compruebe quién puede escribir allí.</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>A handler is called with parentheses: %1().</source>
        <translation>Un manejador se llama con paréntesis: %1().</translation>
    </message>
    <message>
        <source>The key has a number: key code %1.</source>
        <translation>La tecla tiene un número: key code %1.</translation>
    </message>
    <message>
        <source>Return is joined to a text so: &quot;hello&quot; &amp; return.</source>
        <translation>Intro se añade así a un texto: &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>Tab is joined to a text so: &quot;hello&quot; &amp; tab.</source>
        <translation>Tab se añade así a un texto: &quot;hello&quot; &amp; tab.</translation>
    </message>
    <message>
        <source>A question is asked with: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</source>
        <translation>Una pregunta se hace con: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</translation>
    </message>
    <message>
        <source>A number by chance is: random number from 1 to 10.</source>
        <translation>Un número al azar se obtiene con: random number from 1 to 10.</translation>
    </message>
    <message>
        <source>A loop is left with “exit repeat”, the script with “return”.</source>
        <translation>De un bucle se sale con «exit repeat», del script con «return».</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>El texto se escribe con «keystroke»: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A pause is written in seconds: delay 2.</source>
        <translation>Una pausa se indica en segundos: delay 2.</translation>
    </message>
    <message>
        <source>Errors are caught with: try … on error … end try.</source>
        <translation>Los errores se capturan con: try … on error … end try.</translation>
    </message>
    <message>
        <source>Nothing is imported; the commands are there from the start: delay 2, keystroke &quot;hello&quot;.</source>
        <translation>No hay que importar nada; las órdenes están disponibles desde el principio: delay 2, keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A value is printed with: log &quot;x&quot;. Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Un valor se muestra con: log &quot;x&quot;. El texto se escribe con «keystroke»: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A message is shown with: display dialog &quot;hello&quot;.</source>
        <translation>Un mensaje se muestra con: display dialog &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>What has no value is written: missing value.</source>
        <translation>La ausencia de valor se escribe: missing value.</translation>
    </message>
    <message>
        <source>A window is brought to the front with: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Una ventana se trae al primer plano con: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.</source>
        <translation>Un código de tecla está entre 0 y %1; «keyrill-script keys» muestra los que tienen las teclas.</translation>
    </message>
    <message>
        <source>A key code is a number; a text is typed with “keystroke”.</source>
        <translation>Un código de tecla es un número; un texto se escribe con «keystroke».</translation>
    </message>
    <message>
        <source>The key has a number: key code %1; “keyrill-script keys” prints all.</source>
        <translation>La tecla tiene un número: key code %1; «keyrill-script keys» los muestra todos.</translation>
    </message>
    <message>
        <source>The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.</source>
        <translation>Las partes de una fecha son year, month, day, weekday, hours, minutes, seconds y time.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>¿Quiso decir %1?</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: delay 0.5.</source>
        <translation>Los decimales van detrás de un punto: delay 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds: delay 0.5.</source>
        <translation>«delay» cuenta en segundos: delay 0.5.</translation>
    </message>
    <message>
        <source>A dialog gives a record; what was typed there is taken with: text returned of n.</source>
        <translation>Un diálogo devuelve un registro (record); lo que se escribió en él se obtiene con: text returned of n.</translation>
    </message>
    <message>
        <source>A modifier stands without quotes: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>Una tecla modificadora va sin comillas: using %1 down.</translation>
    </message>
    <message>
        <source>Several modifiers stand in braces: using {control down, shift down}.</source>
        <translation>Varias teclas modificadoras van entre llaves: using {control down, shift down}.</translation>
    </message>
    <message>
        <source>Texts are joined with “&amp;”: &quot;one&quot; &amp; &quot;two&quot;.</source>
        <translation>Los textos se unen con «&amp;»: &quot;one&quot; &amp; &quot;two&quot;.</translation>
    </message>
    <message>
        <source>This compares and changes nothing; a variable is set with “to”: set %1 to …</source>
        <translation>Esto compara y no cambia nada; a una variable se le da un valor con «to»: set %1 to …</translation>
    </message>
    <message>
        <source>The script has no handler of that name: on %1(…) … end %1.</source>
        <translation>El script no tiene ningún manejador con ese nombre: on %1(…) … end %1.</translation>
    </message>
    <message>
        <source>No program takes a command but “activate”; press its keys: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</source>
        <translation>Ningún programa admite más órdenes que «activate»; pulse las teclas que hacen lo mismo en el programa: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</translation>
    </message>
    <message>
        <source>The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Las teclas modificadoras se llaman command (Súper), control (Ctrl), option (Alt) y shift (Mayús): using %1 down.</translation>
    </message>
    <message>
        <source>An application is named: application &quot;%1&quot;.</source>
        <translation>Una aplicación se nombra así: application &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>El texto va entre comillas rectas: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A handler has variables of its own; to share this one write there: global %1.</source>
        <translation>Un manejador tiene sus propias variables; para compartir esta, escriba en él: global %1.</translation>
    </message>
    <message>
        <source>A variable is set before it is used: set %1 to … Text stands between straight quotes: &quot;%2&quot;.</source>
        <translation>A una variable se le da un valor antes de usarla: set %1 to … El texto va entre comillas rectas: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.</source>
        <translation>Una tecla se pulsa por su número: key code 36 es Intro. «keyrill-script keys» muestra todos los números.</translation>
    </message>
    <message>
        <source>The date of today is “current date”; as a text: short date string of (current date).</source>
        <translation>La fecha de hoy es «current date»; como texto: short date string of (current date).</translation>
    </message>
    <message>
        <source>Inside “tell” the script’s own handlers are called with “my”: my %1(…).</source>
        <translation>Dentro de «tell», los manejadores del propio script se llaman con «my»: my %1(…).</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Aquí no hay ningún bloque abierto; un «if» con su instrucción en la misma línea no lleva «else».</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Aquí no hay ningún bloque abierto; un «if» con su instrucción en la misma línea no lleva «end if».</translation>
    </message>
    <message>
        <source>No block is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Aquí no hay ningún bloque abierto; un «tell … to» en una sola línea no lleva «end tell».</translation>
    </message>
    <message>
        <source>No block is open here; this line is one too many.</source>
        <translation>Aquí no hay ningún bloque abierto; esta línea sobra.</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Aquí no hay ningún «if» abierto; un «if» con su instrucción en la misma línea no lleva «else».</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Aquí no hay ningún «if» abierto; un «if» con su instrucción en la misma línea no lleva «end if».</translation>
    </message>
    <message>
        <source>No “tell” is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Aquí no hay ningún «tell» abierto; un «tell … to» en una sola línea no lleva «end tell».</translation>
    </message>
    <message>
        <source>No “%1” is open here; the block that begins in line %2 has no “end” of its own.</source>
        <extracomment>%1 is the first word of a block, &quot;repeat&quot;, %2 a number.</extracomment>
        <translation>Aquí no hay ningún «%1» abierto; el bloque que empieza en la línea %2 no tiene su propio «end».</translation>
    </message>
    <message>
        <source>In line %1 these are two words: %2.</source>
        <extracomment>%1 is a number, %2 what the line was meant to be, &quot;end if&quot;.</extracomment>
        <translation>En la línea %1 esto se escribe en dos palabras: %2.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 has no “end” of its own.</source>
        <translation>El bloque que empieza en la línea %1 no tiene su propio «end».</translation>
    </message>
    <message>
        <source>The text that begins here is not closed by a straight quote in its line.</source>
        <translation>El texto que empieza aquí no se cierra con una comilla recta en su línea.</translation>
    </message>
    <message>
        <source>The comment that begins in line %1 is not closed by “*)”.</source>
        <translation>El comentario que empieza en la línea %1 no se cierra con «*)».</translation>
    </message>
    <message>
        <source>The keyboard commands stand inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Las órdenes de teclado van dentro de «tell application &quot;System Events&quot;» … «end tell».</translation>
    </message>
    <message>
        <source>Modifiers are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Las teclas modificadoras se reconocen dentro de «tell application &quot;System Events&quot;» … «end tell».</translation>
    </message>
    <message>
        <source>Processes are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Los procesos se reconocen dentro de «tell application &quot;System Events&quot;» … «end tell».</translation>
    </message>
    <message>
        <source>Put straight quotes (&quot;) in place of the curly ones.</source>
        <translation>Ponga comillas rectas (&quot;) en lugar de las tipográficas.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to 5.</source>
        <translation>A una variable se le da un valor con «to»: set x to 5.</translation>
    </message>
    <message>
        <source>A loop is written: repeat with i from 1 to 5 … end repeat.</source>
        <translation>Un bucle se escribe así: repeat with i from 1 to 5 … end repeat.</translation>
    </message>
    <message>
        <source>A handler is written: on greet(x) … end greet.</source>
        <translation>Un manejador se escribe así: on greet(x) … end greet.</translation>
    </message>
    <message>
        <source>Several stand in braces: {control down, shift down}, {36, 48}.</source>
        <translation>Si son varios, van entre llaves: {control down, shift down}, {36, 48}.</translation>
    </message>
    <message>
        <source>These are two words: else if … then.</source>
        <translation>Esto se escribe en dos palabras: else if … then.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, and Return joined with “&amp;”: keystroke &quot;hello&quot; &amp; return.</source>
        <translation>El texto se escribe con «keystroke», e Intro se añade con «&amp;»: keystroke &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and let go with: key up 36.</source>
        <translation>Una tecla se pulsa y se suelta con: keystroke return, key code 53. Se mantiene pulsada con: key down 36, y se suelta con: key up 36.</translation>
    </message>
    <message>
        <source>A macro has no mouse; press the keys that do the same, as Tab and Return.</source>
        <translation>Una macro no tiene ratón; pulse las teclas que hacen lo mismo, como Tab e Intro.</translation>
    </message>
    <message>
        <source>Conditions are joined with “and” or “or”.</source>
        <translation>Las condiciones se unen con «and» u «or».</translation>
    </message>
    <message>
        <source>Of a process its name is known, and whether it is in front: every process whose name contains &quot;fire&quot;.</source>
        <translation>De un proceso se conoce su nombre y si está en primer plano: every process whose name contains &quot;fire&quot;.</translation>
    </message>
    <message>
        <source>Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.</source>
        <translation>Una macro no puede ver ventanas, botones ni menús; pulse las teclas que hacen lo mismo.</translation>
    </message>
    <message>
        <source>Modifiers stand behind “using”: keystroke &quot;s&quot; using control down.</source>
        <translation>Las teclas modificadoras van detrás de «using»: keystroke &quot;s&quot; using control down.</translation>
    </message>
    <message>
        <source>What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.</source>
        <translation>Lo que se hace varias veces va en líneas propias entre «repeat 5 times» y «end repeat».</translation>
    </message>
    <message>
        <source>Each statement has a line of its own.</source>
        <translation>Cada instrucción va en su propia línea.</translation>
    </message>
    <message>
        <source>A macro has no files; a text comes from “the clipboard” or from a dialog.</source>
        <translation>Una macro no tiene acceso a archivos; un texto se obtiene de «the clipboard» o de un diálogo.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to x + 1.</source>
        <translation>A una variable se le da un valor con «to»: set x to x + 1.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed in this line.</source>
        <translation>En esta línea hay un paréntesis sin cerrar.</translation>
    </message>
    <message>
        <source>A brace is not closed in this line.</source>
        <translation>En esta línea hay una llave sin cerrar.</translation>
    </message>
    <message>
        <source>Press the keys that start it, or bring a window to the front: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Pulse las teclas que inician el programa o traiga una ventana al primer plano: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>Write the command by its name.</source>
        <translation>Escriba la orden con su nombre.</translation>
    </message>
    <message>
        <source>A shortcut is written: keystroke &quot;c&quot; using control down.</source>
        <translation>Una combinación de teclas se escribe así: keystroke &quot;c&quot; using control down.</translation>
    </message>
    <message>
        <source>Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat.</source>
        <translation>Solo los procesos se seleccionan con «whose»; recorra una lista con: repeat with x in theList … end repeat.</translation>
    </message>
    <message>
        <source>Behind “default answer” stands a text, be it empty: default answer &quot;&quot;.</source>
        <translation>Detrás de «default answer» va un texto, aunque esté vacío: default answer &quot;&quot;.</translation>
    </message>
    <message>
        <source>An “if” in one line has no “else”; write it in lines, with “end if”.</source>
        <translation>Un «if» en una sola línea no lleva «else»; escríbalo en varias líneas, con «end if».</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: 0.5.</source>
        <translation>Los decimales van detrás de un punto: 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds, without a unit: delay 0.5.</source>
        <translation>«delay» cuenta en segundos, sin unidad: delay 0.5.</translation>
    </message>
    <message>
        <source>A key is let go with: key up &quot;a&quot;.</source>
        <translation>Una tecla se suelta con: key up &quot;a&quot;.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, a key is pressed by its number: key code 36.</source>
        <translation>El texto se escribe con «keystroke»; una tecla se pulsa por su número: key code 36.</translation>
    </message>
    <message>
        <source>A key is held with “key down” and let go with “key up”: key down shift.</source>
        <translation>Una tecla se mantiene pulsada con «key down» y se suelta con «key up»: key down shift.</translation>
    </message>
    <message>
        <source>The text in the clipboard is: the clipboard.</source>
        <translation>El texto del portapapeles es: the clipboard.</translation>
    </message>
    <message>
        <source>A loop is written: repeat 5 times … end repeat.</source>
        <translation>Un bucle se escribe así: repeat 5 times … end repeat.</translation>
    </message>
    <message>
        <source>Behind the name stands “to”, or the line ends there: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</source>
        <translation>Detrás del nombre va «to», o la línea termina ahí: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</translation>
    </message>
    <message>
        <source>The name stands between straight quotes: tell application &quot;System Events&quot;.</source>
        <translation>El nombre va entre comillas rectas: tell application &quot;System Events&quot;.</translation>
    </message>
    <message>
        <source>A loop is written: repeat while x &lt; 5 … end repeat.</source>
        <translation>Un bucle se escribe así: repeat while x &lt; 5 … end repeat.</translation>
    </message>
    <message>
        <source>A comment begins with -- or #.</source>
        <translation>Un comentario empieza por -- o #.</translation>
    </message>
    <message>
        <source>A comment over lines is written (* … *).</source>
        <translation>Un comentario de varias líneas se escribe (* … *).</translation>
    </message>
    <message>
        <source>“Equal” is written with one =.</source>
        <translation>«Igual» se escribe con un solo =.</translation>
    </message>
    <message>
        <source>A text is not closed by a straight quote.</source>
        <translation>Hay un texto que no se cierra con una comilla recta.</translation>
    </message>
    <message>
        <source>A backslash in a text is written twice: &quot;C:\\Users&quot;.</source>
        <translation>Una barra inversa en un texto se escribe dos veces: &quot;C:\\Users&quot;.</translation>
    </message>
    <message>
        <source>Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.</source>
        <translation>Detrás de «as» va una clase: text, integer, real, number, boolean, list, record, date.</translation>
    </message>
    <message>
        <source>A block has no braces: if x = 1 then … end if.</source>
        <translation>Un bloque no lleva llaves: if x = 1 then … end if.</translation>
    </message>
    <message>
        <source>A block has no braces; it ends with “end” and its first word: end repeat.</source>
        <translation>Un bloque no lleva llaves; termina con «end» y su primera palabra: end repeat.</translation>
    </message>
    <message>
        <source>A line needs no colon at its end.</source>
        <translation>Una línea no necesita dos puntos al final.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|.</source>
        <translation>Un nombre con letras que no sean de la A a la Z va entre barras verticales: |%1|.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Un nombre con letras que no sean de la A a la Z va entre barras verticales: |%1|. El texto va entre comillas rectas: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A sign that nobody sees stands here; delete it.</source>
        <translation>Aquí hay un carácter invisible; elimínelo.</translation>
    </message>
    <message>
        <source>A hot key is no part of a script; it is set in the preferences, or for each macro in “Macros...”.</source>
        <extracomment>“Macros...” is an entry of the menu.</extracomment>
        <translation>Un atajo de teclado no forma parte de un script; se define en las preferencias o, para cada macro, en «Macros...».</translation>
    </message>
    <message>
        <source>“Not equal” is written ≠ or /=.</source>
        <translation>«Distinto» se escribe ≠ o /=.</translation>
    </message>
    <message>
        <source>An item is taken by its number: item 1 of x.</source>
        <translation>Un elemento se obtiene por su número: item 1 of x.</translation>
    </message>
    <message>
        <source>What belongs to a value is taken with “of”: length of x.</source>
        <translation>Lo que pertenece a un valor se obtiene con «of»: length of x.</translation>
    </message>
    <message>
        <source>A list stands in braces: {1, 2}.</source>
        <translation>Una lista va entre llaves: {1, 2}.</translation>
    </message>
    <message>
        <source>The rest of a division is written: 7 mod 2.</source>
        <translation>El resto de una división se escribe: 7 mod 2.</translation>
    </message>
    <message>
        <source>Text stands between straight double quotes (&quot;).</source>
        <translation>El texto va entre comillas dobles rectas (&quot;).</translation>
    </message>
    <message>
        <source>A quote inside a text is written \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</source>
        <translation>Una comilla dentro de un texto se escribe \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</translation>
    </message>
    <message>
        <source>Take the items in parts, or paragraphs instead of characters.</source>
        <translation>Tome los elementos por partes o use párrafos en lugar de caracteres.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 ends with “%2”.</source>
        <extracomment>%1 is a number, %2 the last line of a block, &quot;end if&quot;.</extracomment>
        <translation>El bloque que empieza en la línea %1 termina con «%2».</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>GNOME&apos;s settings cannot be changed</source>
        <translation>no se pueden cambiar los ajustes de GNOME</translation>
    </message>
    <message>
        <source>your settings of GNOME have another entry in its place</source>
        <translation>sus ajustes de GNOME tienen otra entrada en su lugar</translation>
    </message>
    <message>
        <source>your own shortcut “%1” in GNOME&apos;s settings has it</source>
        <translation>lo usa su atajo personalizado «%1» en los ajustes de GNOME</translation>
    </message>
    <message>
        <source>GNOME has it for “%1”</source>
        <translation>GNOME lo usa para «%1»</translation>
    </message>
    <message>
        <source>GNOME has no name for it</source>
        <translation>GNOME no tiene ningún nombre para este atajo</translation>
    </message>
    <message>
        <source>it has been taken out of GNOME&apos;s settings</source>
        <translation>se ha quitado de los ajustes de GNOME</translation>
    </message>
    <message>
        <source>KDE has no name for this key</source>
        <translation>KDE no tiene ningún nombre para esta tecla</translation>
    </message>
    <message>
        <source>KDE says: %1</source>
        <translation>KDE dice: %1</translation>
    </message>
    <message>
        <source>KDE uses it for something else</source>
        <translation>KDE lo usa para otra cosa</translation>
    </message>
    <message>
        <source>KDE does not give it</source>
        <translation>KDE no lo concede</translation>
    </message>
    <message>
        <source>%1 has it for “%2”</source>
        <translation>%1 lo usa para «%2»</translation>
    </message>
    <message>
        <source>the desktop has not granted it</source>
        <translation>el escritorio no lo ha concedido</translation>
    </message>
    <message>
        <source>you did not agree when the desktop asked</source>
        <translation>usted no aceptó cuando el escritorio se lo pidió</translation>
    </message>
    <message>
        <source>the desktop has not answered</source>
        <translation>el escritorio no ha respondido</translation>
    </message>
    <message>
        <source>the desktop has refused it</source>
        <translation>el escritorio lo ha rechazado</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>no hay ningún bus de sesión</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal does not answer</source>
        <translation>el portal del escritorio no responde</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal gives no hot keys</source>
        <translation>el portal del escritorio no ofrece atajos de teclado</translation>
    </message>
    <message>
        <source>the desktop has taken it back</source>
        <translation>el escritorio lo ha retirado</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal has ended</source>
        <translation>el portal del escritorio se ha cerrado</translation>
    </message>
    <message>
        <source>your configuration of sway binds it</source>
        <translation>está asignado en su configuración de sway</translation>
    </message>
    <message>
        <source>Choose another combination.</source>
        <translation>Elija otra combinación.</translation>
    </message>
    <message>
        <source>Choose another combination, or allow it in the desktop&apos;s settings.</source>
        <translation>Elija otra combinación o permita esta en los ajustes del escritorio.</translation>
    </message>
    <message>
        <source>Choose another combination, or free it in the program that holds it.</source>
        <translation>Elija otra combinación o libere esta en el programa que la usa.</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2.</source>
        <extracomment>%1 is a combination of keys, %2 one of the reasons: another program holds it</extracomment>
        <translation>No se puede usar %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the third level (AltGr).</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>No se puede usar %1: la distribución de teclado no tiene ninguna tecla para el tercer nivel (AltGr).</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the fifth level.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>No se puede usar %1: la distribución de teclado no tiene ninguna tecla para el quinto nivel.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for %2.</source>
        <extracomment>%1 is a combination of keys, %2 a modifier: Super</extracomment>
        <translation>No se puede usar %1: la distribución de teclado no tiene ninguna tecla para %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: Keyrill uses it for something else.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>No se puede usar %1: Keyrill lo usa para otra cosa.</translation>
    </message>
    <message>
        <source>%1 cannot be used: this desktop has no such key.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>No se puede usar %1: este escritorio no tiene esa tecla.</translation>
    </message>
    <message>
        <source>%1 cannot be used: nobody could type it any more.</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>No se puede usar %1: ya no se podría escribir con esa tecla.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super.</source>
        <translation>Añada Ctrl, Alt o Súper.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Este compositor no ofrece atajos de teclado a los programas.</translation>
    </message>
    <message>
        <source>this compositor gives no hot keys to programs</source>
        <translation>este compositor no ofrece atajos de teclado a los programas</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>otro programa lo usa</translation>
    </message>
    <message>
        <source>the X server refuses it with error %1</source>
        <translation>el servidor X lo rechaza con el error %1</translation>
    </message>
    <message>
        <source>the X server is gone</source>
        <translation>el servidor X ha desaparecido</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Asigne teclas a órdenes como «keyrill --action=play» en los ajustes del compositor.</translation>
    </message>
    <message>
        <source>GNOME has hot keys only in your own settings, which Keyrill may not change.</source>
        <translation>GNOME solo ofrece atajos de teclado en los ajustes del usuario, que Keyrill no tiene permiso para cambiar.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Marque la casilla en las preferencias de Keyrill, o asigne usted mismo teclas a órdenes como «keyrill --action=play» en los ajustes de GNOME.</translation>
    </message>
</context>
<context>
    <name>Keyboards</name>
    <message>
        <source>The keyboard cannot be read: %1: %2.</source>
        <translation>No se puede leer el teclado: %1: %2.</translation>
    </message>
    <message>
        <source>Let the keyboard be read while a macro is recorded.</source>
        <translation>Permita que se lea el teclado mientras se graba una macro.</translation>
    </message>
    <message>
        <source>The keyboard can no longer be read: the permission has ended.</source>
        <translation>Ya no se puede leer el teclado: el permiso ha dejado de ser válido.</translation>
    </message>
    <message>
        <source>Another user&apos;s session may be in front, or the screen is locked.</source>
        <translation>Puede que la sesión de otro usuario esté en primer plano o que la pantalla esté bloqueada.</translation>
    </message>
    <message>
        <source>The keyboard cannot be read: there is no system bus.</source>
        <translation>No se puede leer el teclado: no hay ningún bus del sistema.</translation>
    </message>
    <message>
        <source>What it says stands in the system&apos;s journal: journalctl -u keyrill-access.</source>
        <translation>Sus mensajes están en el registro del sistema: journalctl -u keyrill-access.</translation>
    </message>
    <message>
        <source>The keyboard is no longer read: the service keyrill-access has ended.</source>
        <translation>Ya no se lee el teclado: el servicio keyrill-access se ha detenido.</translation>
    </message>
    <message>
        <source>Keyrill may not read the keyboard: permission was not given.</source>
        <translation>Keyrill no puede leer el teclado: no se ha dado permiso.</translation>
    </message>
    <message>
        <source>Record again and agree when you are asked for your password.</source>
        <translation>Vuelva a grabar y acepte cuando se le pida la contraseña.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access is not installed.</source>
        <translation>Keyrill no puede leer el teclado: el servicio keyrill-access no está instalado.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, tools/access install.</source>
        <translation>Instale el paquete keyrill-wayland-access o ejecute tools/access install en el código fuente de Keyrill.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access does not work.</source>
        <translation>Keyrill no puede leer el teclado: el servicio keyrill-access no funciona.</translation>
    </message>
    <message>
        <source>A Wayland session shows this program nothing of what is typed in others.</source>
        <translation>Una sesión de Wayland no muestra a este programa nada de lo que se escribe en otros.</translation>
    </message>
    <message>
        <source>Record with keyrill itself, or use an X11 session.</source>
        <translation>Grabe con el propio keyrill o use una sesión X11.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>This desktop lets no program press keys: no portal for it answers.</source>
        <translation>Este escritorio no permite que ningún programa pulse teclas: no responde ningún portal para ello.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to your desktop.</source>
        <translation>Instale xdg-desktop-portal y la parte que corresponde a su escritorio.</translation>
    </message>
    <message>
        <source>The desktop was not allowed to let Keyrill press keys.</source>
        <translation>No se ha dado permiso al escritorio para que Keyrill pulse teclas.</translation>
    </message>
    <message>
        <source>Play again, and agree when you are asked.</source>
        <translation>Repita la reproducción y acepte cuando se le pregunte.</translation>
    </message>
    <message>
        <source>The desktop has not answered whether Keyrill may press keys.</source>
        <translation>El escritorio no ha indicado si Keyrill puede pulsar teclas.</translation>
    </message>
    <message>
        <source>Play again; if nothing asks you, log in again.</source>
        <translation>Repita la reproducción; si no se le pregunta nada, cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>The desktop no longer lets Keyrill press keys.</source>
        <translation>El escritorio ya no permite que Keyrill pulse teclas.</translation>
    </message>
    <message>
        <source>Play again; it may ask for your permission.</source>
        <translation>Repita la reproducción; puede que el escritorio le pida permiso.</translation>
    </message>
    <message>
        <source>The power key cannot be pressed by a script.</source>
        <translation>Un script no puede pulsar la tecla de encendido.</translation>
    </message>
    <message>
        <source>Take key code 127 out of the script.</source>
        <translation>Quite el código de tecla 127 del script.</translation>
    </message>
    <message>
        <source>The text to type is not UTF-8 at byte %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>El texto que se va a escribir no es UTF-8 en el byte %1.</translation>
    </message>
    <message>
        <source>Save the script as UTF-8.</source>
        <translation>Guarde el script como UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1...&quot;</source>
        <extracomment>The beginning of a text that is longer, in quotation marks.</extracomment>
        <translation>«%1...»</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>A text in quotation marks.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <extracomment>%1 is a character, %2 its code: U+00E9</extracomment>
        <translation>«%1» (%2)</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with the keyboard layout that is in force.</source>
        <translation>El carácter %1 no se puede escribir con la distribución de teclado activa.</translation>
    </message>
    <message>
        <source>Take it out of the text, or switch to a layout that has it before you play.</source>
        <translation>Quítelo del texto o cambie a una distribución que lo tenga antes de reproducir.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with your keyboard layouts.</source>
        <translation>El carácter %1 no se puede escribir con sus distribuciones de teclado.</translation>
    </message>
    <message>
        <source>Take it out of the text, or add a layout that has it.</source>
        <translation>Quítelo del texto o añada una distribución que lo tenga.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with this keyboard layout.</source>
        <translation>El carácter %1 no se puede escribir con esta distribución de teclado.</translation>
    </message>
    <message>
        <source>Take it out of the text, or set a layout that has it.</source>
        <translation>Quítelo del texto o establezca una distribución que lo tenga.</translation>
    </message>
    <message>
        <source>The keymap for typing could not be made.</source>
        <translation>No se ha podido crear el mapa de teclado para escribir.</translation>
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
        <source>A script is running already.</source>
        <translation>Ya se está ejecutando un script.</translation>
    </message>
    <message>
        <source>Wait for its end.</source>
        <translation>Espere a que termine.</translation>
    </message>
    <message>
        <source>The key %1 types no character.</source>
        <translation>La tecla %1 no escribe ningún carácter.</translation>
    </message>
    <message>
        <source>A Wayland session has no bell.</source>
        <translation>Una sesión de Wayland no tiene timbre del sistema.</translation>
    </message>
    <message>
        <source>Take the beep out of the script.</source>
        <translation>Quite el pitido del script.</translation>
    </message>
    <message>
        <source>KDE lets no program press keys: its portal does not answer.</source>
        <translation>KDE no permite que ningún programa pulse teclas: su portal no responde.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal-kde, or use an X11 session.</source>
        <translation>Instale xdg-desktop-portal-kde o use una sesión X11.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, such as KDE and GNOME, or an X11 session.</source>
        <translation>Use un compositor con teclados virtuales, como sway, un escritorio cuyo portal pulse teclas, como KDE o GNOME, o una sesión X11.</translation>
    </message>
    <message>
        <source>The keyboard layout was changed while text was typed, which may have arrived as something else: %1.</source>
        <translation>La distribución de teclado ha cambiado mientras se escribía un texto, que puede haber llegado distinto: %1.</translation>
    </message>
    <message>
        <source>Play it again when the layout stays as it is.</source>
        <translation>Repita la reproducción cuando la distribución ya no cambie.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard, so that no keys can be pressed.</source>
        <translation>Otro programa ha capturado el teclado, por lo que no se puede pulsar ninguna tecla.</translation>
    </message>
    <message>
        <source>Close the menu, the question or the screen lock that is open, and play again.</source>
        <translation>Cierre el menú, la pregunta o el bloqueo de pantalla que esté abierto y repita la reproducción.</translation>
    </message>
    <message>
        <source>The X server refuses to put characters on unused keys.</source>
        <translation>El servidor X se niega a asignar caracteres a teclas sin usar.</translation>
    </message>
    <message>
        <source>Use characters of the keyboard layout, or set another layout.</source>
        <translation>Use caracteres de la distribución de teclado o establezca otra distribución.</translation>
    </message>
    <message>
        <source>The program that is typed into reads nothing; not typed: %1.</source>
        <translation>El programa en el que se escribe no lee nada; no se ha escrito: %1.</translation>
    </message>
    <message>
        <source>Play it again when the program reads its keys.</source>
        <translation>Repita la reproducción cuando el programa lea sus teclas.</translation>
    </message>
    <message>
        <source>The program that was typed into has not read all of it.</source>
        <translation>El programa en el que se ha escrito no lo ha leído todo.</translation>
    </message>
    <message>
        <source>See whether it hangs; what it reads later may lack characters.</source>
        <translation>Compruebe si está bloqueado; a lo que lea después pueden faltarle caracteres.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.</source>
        <translation>No se pueden grabar las repeticiones automáticas de las teclas mantenidas: el servidor X no tiene la extensión RECORD.</translation>
    </message>
    <message>
        <source>A held key is recorded as one press. Switch the extension on in the settings of the X server.</source>
        <translation>Una tecla mantenida se graba como una sola pulsación. Active la extensión en los ajustes del servidor X.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys can no longer be recorded: the X server has ended it.</source>
        <translation>Ya no se pueden grabar las repeticiones automáticas de las teclas mantenidas: el servidor X ha terminado esa grabación.</translation>
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
    <name>Layouts</name>
    <message>
        <source>No key of the present keyboard layout types &quot;%1&quot;.</source>
        <extracomment>%1 is a character.</extracomment>
        <translation>Ninguna tecla de la distribución de teclado actual escribe «%1».</translation>
    </message>
    <message>
        <source>Convert the keys to text, which types any character.</source>
        <translation>Convierta las teclas en texto, con el que se puede escribir cualquier carácter.</translation>
    </message>
    <message>
        <source>GNOME lets no program switch the keyboard layout.</source>
        <translation>GNOME no permite que ningún programa cambie la distribución de teclado.</translation>
    </message>
    <message>
        <source>The desktop has no keyboard layout of that number.</source>
        <translation>El escritorio no tiene ninguna distribución de teclado con ese número.</translation>
    </message>
    <message>
        <source>This desktop lets no program switch the keyboard layout.</source>
        <translation>Este escritorio no permite que ningún programa cambie la distribución de teclado.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the third level (AltGr).</source>
        <translation>La distribución de teclado no tiene ninguna tecla para el tercer nivel (AltGr).</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the fifth level.</source>
        <translation>La distribución de teclado no tiene ninguna tecla para el quinto nivel.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for %1.</source>
        <extracomment>%1 is a modifier: Super</extracomment>
        <translation>La distribución de teclado no tiene ninguna tecla para %1.</translation>
    </message>
    <message>
        <source>Choose a keyboard layout that has one.</source>
        <translation>Elija una distribución de teclado que la tenga.</translation>
    </message>
    <message>
        <source>The keyboard has no layout %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>El teclado no tiene la distribución %1.</translation>
    </message>
    <message>
        <source>Add it to the keyboard layouts, or record the macro again.</source>
        <translation>Añádala a las distribuciones de teclado o vuelva a grabar la macro.</translation>
    </message>
    <message>
        <source>The keymap of the X server cannot be read.</source>
        <translation>No se puede leer el mapa de teclado del servidor X.</translation>
    </message>
    <message>
        <source>Set a keyboard layout, or log in again.</source>
        <translation>Establezca una distribución de teclado, o cierre la sesión y vuelva a iniciarla.</translation>
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
        <translation>No se puede eliminar el archivo %1: %2</translation>
    </message>
    <message>
        <source>Check who may write in its folder.</source>
        <translation>Compruebe quién puede escribir en su carpeta.</translation>
    </message>
    <message>
        <source>A program whose path has a percent sign cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Un programa cuya ruta contiene un signo de porcentaje no se puede ejecutar automáticamente al iniciar sesión: %1</translation>
    </message>
    <message>
        <source>Move the program to a folder without one.</source>
        <translation>Mueva el programa a una carpeta cuya ruta no lo contenga.</translation>
    </message>
    <message>
        <source>A program whose path is not UTF-8 cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Un programa cuya ruta no es UTF-8 no se puede ejecutar automáticamente al iniciar sesión: %1</translation>
    </message>
    <message>
        <source>Move the program to another folder.</source>
        <translation>Mueva el programa a otra carpeta.</translation>
    </message>
    <message>
        <source>A program in a sandbox cannot make an entry that starts it at log-in.</source>
        <translation>Un programa en un entorno aislado no puede crear una entrada que lo ejecute al iniciar sesión.</translation>
    </message>
    <message>
        <source>Add Keyrill to the programs that start at log-in, in your desktop&apos;s settings.</source>
        <translation>Añada Keyrill a los programas que se ejecutan al iniciar sesión, en los ajustes de su escritorio.</translation>
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
    <name>Programs</name>
    <message>
        <source>The program &quot;%1&quot;, which presses keys by the desktop&apos;s portal, could not be started.</source>
        <translation>No se ha podido iniciar el programa «%1», que pulsa teclas mediante el portal del escritorio.</translation>
    </message>
    <message>
        <source>Install the program again.</source>
        <translation>Vuelva a instalar el programa.</translation>
    </message>
    <message>
        <source>A text with a zero byte cannot be opened.</source>
        <translation>No se puede abrir un texto con un byte nulo.</translation>
    </message>
    <message>
        <source>The program xdg-open cannot be started: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>No se puede iniciar el programa xdg-open: %1</translation>
    </message>
    <message>
        <source>Install the package xdg-utils.</source>
        <translation>Instale el paquete xdg-utils.</translation>
    </message>
    <message>
        <source>The guard program &quot;%1&quot;, which releases keys after a crash, could not be started.</source>
        <translation>No se ha podido iniciar el programa guardián «%1», que suelta las teclas tras un cierre inesperado.</translation>
    </message>
    <message>
        <source>Install the program again; nothing is played without its guard.</source>
        <translation>Vuelva a instalar el programa; sin su guardián no se reproduce nada.</translation>
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
    <name>ScriptDialogs</name>
    <message>
        <source>Please make your selection:</source>
        <translation>Haga su selección:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
    <name>ScriptErrors</name>
    <message>
        <source>Can’t declare %1 as both a local and global variable.</source>
        <translation>No se puede declarar %1 como variable local y global a la vez.</translation>
    </message>
    <message>
        <source>list of button names</source>
        <translation>lista de nombres de botones</translation>
    </message>
    <message>
        <source>list of choices</source>
        <translation>lista de opciones</translation>
    </message>
    <message>
        <source>Some parameter is missing for %1.</source>
        <translation>Falta algún parámetro de %1.</translation>
    </message>
    <message>
        <source>modifier</source>
        <translation>tecla modificadora</translation>
    </message>
    <message>
        <source>the power key is never pressed by a script.</source>
        <translation>un script no pulsa nunca la tecla de encendido.</translation>
    </message>
    <message>
        <source>%1 doesn’t match the parameters %2 for %3.</source>
        <translation>%1 no corresponde a los parámetros %2 de %3.</translation>
    </message>
    <message>
        <source>%1 doesn’t understand the “%2” message.</source>
        <translation>%1 no entiende el mensaje «%2».</translation>
    </message>
    <message>
        <source>The step of a repeat loop can’t be 0.</source>
        <translation>El paso de un bucle «repeat» no puede ser 0.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences: what is wrong, and what to do about it.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The variable %1 is not defined.</source>
        <translation>La variable %1 no está definida.</translation>
    </message>
    <message>
        <source>unknown token</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un carácter desconocido</translation>
    </message>
    <message>
        <source>unknown token %1</source>
        <translation>el carácter desconocido %1</translation>
    </message>
    <message>
        <source>end of script</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>el fin del script</translation>
    </message>
    <message>
        <source>end of line</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>el fin de la línea</translation>
    </message>
    <message>
        <source>variable name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un nombre de variable</translation>
    </message>
    <message>
        <source>Raw codes («…») are not supported.</source>
        <translation>No se admiten códigos sin procesar («…»).</translation>
    </message>
    <message>
        <source>Expected end of line after “¬”.</source>
        <translation>Se esperaba el fin de la línea detrás de «¬».</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un número</translation>
    </message>
    <message>
        <source>unknown token %1 (text stands between straight quotes)</source>
        <translation>el carácter desconocido %1 (el texto va entre comillas rectas)</translation>
    </message>
    <message>
        <source>identifier</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un identificador</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>User canceled.</source>
        <translation>Cancelado por el usuario.</translation>
    </message>
    <message>
        <source>Application isn’t running.</source>
        <translation>La aplicación no se está ejecutando.</translation>
    </message>
    <message>
        <source>Connection is invalid.</source>
        <translation>La conexión no es válida.</translation>
    </message>
    <message>
        <source>Can’t make some data into the expected type.</source>
        <translation>No se pueden convertir algunos datos en el tipo esperado.</translation>
    </message>
    <message>
        <source>Some parameter is missing for a command.</source>
        <translation>Falta algún parámetro de una orden.</translation>
    </message>
    <message>
        <source>Some data was of the wrong type.</source>
        <translation>Algunos datos eran de un tipo incorrecto.</translation>
    </message>
    <message>
        <source>Some parameter was invalid.</source>
        <translation>Algún parámetro no era válido.</translation>
    </message>
    <message>
        <source>A message was not understood.</source>
        <translation>No se entendió un mensaje.</translation>
    </message>
    <message>
        <source>AppleEvent timed out.</source>
        <translation>Se agotó el tiempo de un AppleEvent.</translation>
    </message>
    <message>
        <source>Some required parameter was missing.</source>
        <translation>Faltaba algún parámetro obligatorio.</translation>
    </message>
    <message>
        <source>The handler is not defined.</source>
        <translation>El manejador no está definido.</translation>
    </message>
    <message>
        <source>Can’t get the element. Invalid index.</source>
        <translation>No se puede obtener el elemento. Índice no válido.</translation>
    </message>
    <message>
        <source>Some parameters don’t match.</source>
        <translation>Algunos parámetros no corresponden.</translation>
    </message>
    <message>
        <source>Can’t get the object.</source>
        <translation>No se puede obtener el objeto.</translation>
    </message>
    <message>
        <source>Not authorized to send Apple events.</source>
        <translation>No se permite enviar eventos Apple.</translation>
    </message>
    <message>
        <source>An error has occurred.</source>
        <translation>Se ha producido un error.</translation>
    </message>
    <message>
        <source>Can’t divide by zero.</source>
        <translation>No se puede dividir entre cero.</translation>
    </message>
    <message>
        <source>The result of a numeric operation was too large.</source>
        <translation>El resultado de una operación numérica era demasiado grande.</translation>
    </message>
    <message>
        <source>Stack overflow.</source>
        <translation>Desbordamiento de la pila.</translation>
    </message>
    <message>
        <source>A variable is not defined.</source>
        <translation>Una variable no está definida.</translation>
    </message>
    <message>
        <source>No result was returned for some argument of this expression.</source>
        <translation>No se devolvió ningún resultado para algún argumento de esta expresión.</translation>
    </message>
    <message>
        <source>AppleEvent handler failed.</source>
        <translation>Error en el manejador de AppleEvent.</translation>
    </message>
    <message>
        <source>Can’t set the object.</source>
        <translation>No se puede cambiar el objeto.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>%1 is a word of the script language.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Expected %1 but found %2.</source>
        <extracomment>%1 and %2 are words of the script language in quotes, or &quot;expression&quot;, &quot;end of line&quot; and others below.</extracomment>
        <translation>Se esperaba %1, pero se encontró %2.</translation>
    </message>
    <message>
        <source>The %1 parameter is specified more than once.</source>
        <translation>El parámetro %1 se ha indicado más de una vez.</translation>
    </message>
    <message>
        <source>The %1 property is specified more than once.</source>
        <translation>La propiedad %1 se ha indicado más de una vez.</translation>
    </message>
    <message>
        <source>The %1 handler is specified more than once.</source>
        <translation>El manejador %1 se ha indicado más de una vez.</translation>
    </message>
    <message>
        <source>%1 got an error: %2</source>
        <translation>%1 ha detectado un error: %2</translation>
    </message>
    <message>
        <source>An error of type %1 has occurred.</source>
        <translation>Se ha producido un error de tipo %1.</translation>
    </message>
    <message>
        <source>Can’t both consider and ignore %1.</source>
        <translation>No se puede considerar e ignorar %1 a la vez.</translation>
    </message>
    <message>
        <source>Expected at most %1 parameters but found more.</source>
        <translation>Se esperaban como máximo %1 parámetros, pero se encontraron más.</translation>
    </message>
    <message>
        <source>expression</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>una expresión</translation>
    </message>
    <message>
        <source>class name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>un nombre de clase</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro can press keys and nothing else.</source>
        <translation>Se rechaza «%1»: una macro solo puede pulsar teclas.</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro is one script.</source>
        <translation>Se rechaza «%1»: una macro es un único script.</translation>
    </message>
    <message>
        <source>Expected at most %1 items in a list but found more.</source>
        <translation>Se esperaban como máximo %1 elementos en una lista, pero se encontraron más.</translation>
    </message>
    <message>
        <source>Expected at most %1 properties in a record but found more.</source>
        <translation>Se esperaban como máximo %1 propiedades en un registro, pero se encontraron más.</translation>
    </message>
    <message>
        <source>Expected at most %1 levels of nesting but found more.</source>
        <translation>Se esperaban como máximo %1 niveles de anidamiento, pero se encontraron más.</translation>
    </message>
    <message>
        <source>Tell statements are nested too deeply.</source>
        <translation>Las instrucciones «tell» están anidadas a demasiada profundidad.</translation>
    </message>
    <message>
        <source>Expected at most 16 MiB of script but found more.</source>
        <translation>Se esperaban como máximo 16 MiB de script, pero hay más.</translation>
    </message>
    <message>
        <source>Expected text in UTF-8 but found another byte.</source>
        <translation>Se esperaba texto en UTF-8, pero se encontró otro byte.</translation>
    </message>
    <message>
        <source>Exit statement was not in a repeat loop.</source>
        <translation>Una instrucción «exit» no estaba dentro de un bucle «repeat».</translation>
    </message>
    <message>
        <source>Can’t divide %1 by zero.</source>
        <translation>No se puede dividir %1 entre cero.</translation>
    </message>
    <message>
        <source>A list holds at most %1 items.</source>
        <translation>Una lista contiene como máximo %1 elementos.</translation>
    </message>
    <message>
        <source>Can’t get contents of a variable that is not set.</source>
        <translation>No se puede obtener el contenido de una variable sin valor.</translation>
    </message>
    <message>
        <source>Can’t make %1 into type %2.</source>
        <translation>No se puede convertir %1 en el tipo %2.</translation>
    </message>
    <message>
        <source>Can’t get %1.</source>
        <translation>No se puede obtener %1.</translation>
    </message>
    <message>
        <source>Can’t set %1 to %2.</source>
        <translation>No se puede asignar a %1 el valor %2.</translation>
    </message>
    <message>
        <source>Can’t raise %1 to the power of %2: the result is no number.</source>
        <translation>No se puede elevar %1 a la potencia %2: el resultado no es un número.</translation>
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
    <name>ScriptTool</name>
    <message>
        <source>--times %1 is not how often a script can be played.</source>
        <translation>--times %1 no es un número de reproducciones válido.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Debe ser un número entero a partir de 1, o until-stopped.</translation>
    </message>
    <message>
        <source>Nobody can stop a trace.</source>
        <translation>Nadie puede detener una traza.</translation>
    </message>
    <message>
        <source>Give --times a number.</source>
        <translation>Dé un número a --times.</translation>
    </message>
    <message>
        <source>--speed %1 is not how fast a script can be played.</source>
        <translation>--speed %1 no es una velocidad válida.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4.</source>
        <translation>Debe ser un número de 0.25 a 4.</translation>
    </message>
    <message>
        <source>This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.</source>
        <translation>Esto no es UTF-8, así que todo el archivo se lee como Mac Roman. Guárdelo como UTF-8.</translation>
    </message>
    <message>
        <source>Press a key.</source>
        <translation>Pulse una tecla.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Sugerencia: %1</translation>
    </message>
    <message>
        <source>%1; standard input is &quot;-&quot;</source>
        <translation>%1; la entrada estándar es «-»</translation>
    </message>
    <message>
        <source>(Return)</source>
        <translation>(Intro)</translation>
    </message>
    <message>
        <source>No dialog can be shown here.</source>
        <translation>Aquí no se puede mostrar ningún diálogo.</translation>
    </message>
    <message>
        <source>Run the script in a terminal.</source>
        <translation>Ejecute el script en un terminal.</translation>
    </message>
    <message>
        <source>The question was not answered.</source>
        <translation>La pregunta no se respondió.</translation>
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
        <translation>Uso: keyrill-script check ARCHIVO    compilar y decir qué está mal; con --json para editores
     keyrill-script run [--times N] [--speed X] ARCHIVO
                                     pulsar las teclas, tantas veces (o until-stopped), con las pausas divididas entre X
     keyrill-script trace ARCHIVO    mostrar lo que se haría, una matriz JSON por línea
     keyrill-script format ARCHIVO   mostrar el script con un formato uniforme
     keyrill-script keys             mostrar los códigos de tecla; con --press, el de la próxima tecla
     keyrill-script reference        mostrar la referencia del lenguaje
     keyrill-script -h | --help | --version
ARCHIVO - es la entrada estándar; -e LÍNEA, una o más veces, da el propio script.
</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>No existe la orden «%1».</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>No se puede escribir en la salida estándar.</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>no se puede escribir la salida</translation>
    </message>
    <message>
        <source>“%1” has no option “%2”.</source>
        <translation>«%1» no tiene la opción «%2».</translation>
    </message>
    <message>
        <source>“keyrill-script --help” tells which there are.</source>
        <translation>«keyrill-script --help» las enumera.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no session bus.</source>
        <translation>No hay ningún bus de sesión.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>sway does not answer at $SWAYSOCK.</source>
        <translation>No hay respuesta de sway en $SWAYSOCK.</translation>
    </message>
    <message>
        <source>Start the program in the session of sway.</source>
        <translation>Inicie el programa en la sesión de sway.</translation>
    </message>
    <message>
        <source>sway says: %1</source>
        <translation>sway dice: %1</translation>
    </message>
    <message>
        <source>There is no kind of session called &quot;%1&quot;.</source>
        <translation>No existe ningún tipo de sesión llamado «%1».</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Elija uno de estos: %1.</translation>
    </message>
    <message>
        <source>No kind of session is known.</source>
        <translation>No se conoce ningún tipo de sesión.</translation>
    </message>
    <message>
        <source>The connection to the compositor was lost.</source>
        <translation>Se ha perdido la conexión con el compositor.</translation>
    </message>
    <message>
        <source>No Wayland compositor answers at $WAYLAND_DISPLAY.</source>
        <translation>No responde ningún compositor de Wayland en $WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Start the program in a Wayland session.</source>
        <translation>Inicie el programa en una sesión de Wayland.</translation>
    </message>
    <message>
        <source>The Wayland compositor is gone.</source>
        <translation>El compositor de Wayland ha desaparecido.</translation>
    </message>
    <message>
        <source>$WAYLAND_DISPLAY names no Wayland compositor.</source>
        <translation>$WAYLAND_DISPLAY no indica ningún compositor de Wayland.</translation>
    </message>
    <message>
        <source>The X server is gone.</source>
        <translation>El servidor X ha desaparecido.</translation>
    </message>
    <message>
        <source>This is a Wayland session without an X server.</source>
        <translation>Esta es una sesión de Wayland sin servidor X.</translation>
    </message>
    <message>
        <source>Install Xwayland, or switch it on in the desktop&apos;s settings, and log in again; or choose an X11 session when you log in.</source>
        <translation>Instale Xwayland o actívelo en los ajustes del escritorio y, después, cierre la sesión y vuelva a iniciarla; o elija una sesión X11 al iniciar sesión.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is no desktop session.</source>
        <translation>Se necesita una sesión X11, y esta no es una sesión gráfica.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is a Wayland session without an X server.</source>
        <translation>Se necesita una sesión X11, y esta es una sesión de Wayland sin servidor X.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Elija una sesión X11 al iniciar sesión.</translation>
    </message>
    <message>
        <source>The connection to the X server was lost.</source>
        <translation>Se ha perdido la conexión con el servidor X.</translation>
    </message>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Use un servidor X más reciente o active la extensión en sus ajustes.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has no XInput.</source>
        <translation>El servidor X debe tener XInput 2.2 o posterior, pero no tiene XInput.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but does not answer.</source>
        <translation>El servidor X debe tener XInput 2.2 o posterior, pero no responde.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has %1.</source>
        <translation>El servidor X debe tener XInput 2.2 o posterior, pero tiene la versión %1.</translation>
    </message>
    <message>
        <source>The X server must have the XKB extension, but it cannot be used.</source>
        <translation>El servidor X debe tener la extensión XKB, pero no se puede usar.</translation>
    </message>
    <message>
        <source>The X server must have the XTEST extension, but it has not.</source>
        <translation>El servidor X debe tener la extensión XTEST, pero no la tiene.</translation>
    </message>
    <message>
        <source>The X server of display &quot;%1&quot; cannot be reached.</source>
        <translation>No se puede acceder al servidor X de la pantalla «%1».</translation>
    </message>
    <message>
        <source>Start the program inside a desktop session, or set DISPLAY to a running X server.</source>
        <translation>Inicie el programa dentro de una sesión gráfica o asigne a DISPLAY un servidor X en ejecución.</translation>
    </message>
    <message>
        <source>virtual keyboard</source>
        <translation>teclado virtual</translation>
    </message>
    <message>
        <source>GNOME&apos;s settings</source>
        <translation>configuración de GNOME</translation>
    </message>
    <message>
        <source>portal for keys</source>
        <translation>portal para las teclas</translation>
    </message>
    <message>
        <source>portal for hot keys</source>
        <translation>portal para los atajos de teclado</translation>
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
    <name>Settings</name>
    <message>
        <source>It has a zero byte</source>
        <translation>Contiene un byte nulo</translation>
    </message>
    <message>
        <source>The settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>El archivo de ajustes %1 no es un archivo de claves válido: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>El archivo de ajustes de las macros %1 no es un archivo de claves válido: %2</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>No se puede crear la carpeta de ajustes %1: %2</translation>
    </message>
    <message>
        <source>The macro settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>No se puede crear la carpeta de ajustes de las macros %1: %2</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>El archivo se ha renombrado a %1 y los ajustes se han restablecido.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and hot keys, times and speeds begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>El archivo se ha renombrado a %1 y se han restablecido los atajos de teclado, el número de veces y las velocidades.</translation>
    </message>
    <message>
        <source>Correct the file or remove it.</source>
        <translation>Corrija el archivo o elimínelo.</translation>
    </message>
    <message>
        <source>It could not be put aside either: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Tampoco se ha podido apartar: %1</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>No se puede leer el archivo de ajustes %1: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>No se puede leer el archivo de ajustes de las macros %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>No se puede escribir el archivo de ajustes %1: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>No se puede escribir el archivo de ajustes de las macros %1: %2</translation>
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
    <name>Warnings</name>
    <message>
        <source>This is typed as it stands; the key has a number: key code %1.</source>
        <translation>Esto se escribe tal cual; la tecla tiene un número: key code %1.</translation>
    </message>
    <message>
        <source>“%1” is typed as it stands. %2</source>
        <extracomment>%1 is the name of a key in braces, %2 a sentence that says how the key is written.</extracomment>
        <translation>«%1» se escribe tal cual. %2</translation>
    </message>
    <message>
        <source>Key code %1 is an extension, which only Keyrill plays.</source>
        <translation>El código de tecla %1 es una extensión que solo Keyrill reproduce.</translation>
    </message>
    <message>
        <source>Key code %1 has no key; nothing is pressed.</source>
        <translation>Al código de tecla %1 no le corresponde ninguna tecla; no se pulsa nada.</translation>
    </message>
    <message>
        <source>A dialog gives a record and no text; take: button returned of %1, or text returned of %1.</source>
        <translation>Un diálogo devuelve un registro (record), no un texto; use: button returned of %1, o text returned of %1.</translation>
    </message>
    <message>
        <source>An alert gives a record and no text; take: button returned of %1.</source>
        <translation>Una alerta devuelve un registro (record), no un texto; use: button returned of %1.</translation>
    </message>
    <message>
        <source>What was chosen comes in a list; take: item 1 of %1.</source>
        <translation>Lo elegido se devuelve en una lista; use: item 1 of %1.</translation>
    </message>
    <message>
        <source>The loop gives a reference, which equals no text; compare: contents of %1.</source>
        <translation>El bucle da una referencia, que no es igual a ningún texto; compare: contents of %1.</translation>
    </message>
    <message>
        <source>“%1” is taken as “%1 down”.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>«%1» se interpreta como «%1 down».</translation>
    </message>
    <message>
        <source>“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….</source>
        <extracomment>%1 is an operator, &quot;&gt;&quot;, %2 a command, &quot;count&quot;.</extracomment>
        <translation>«%1» forma parte de lo que recibe «%2»; ponga la orden entre paréntesis: (%2 …) %1 ….</translation>
    </message>
    <message>
        <source>“delay” counts seconds; %1 milliseconds are: delay %2.</source>
        <translation>«delay» cuenta en segundos; %1 milisegundos son: delay %2.</translation>
    </message>
    <message>
        <source>This is typed as it stands; a shortcut is written: keystroke &quot;%1&quot; using %2 down.</source>
        <extracomment>%1 is a letter, %2 the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Esto se escribe tal cual; una combinación de teclas se escribe así: keystroke &quot;%1&quot; using %2 down.</translation>
    </message>
    <message>
        <source>A modifier is held with: key down shift, without quotes.</source>
        <translation>Una tecla modificadora se mantiene pulsada con: key down shift, sin comillas.</translation>
    </message>
    <message>
        <source>The variable %1 is never set. %2</source>
        <extracomment>%2 is a sentence that says what may have been meant.</extracomment>
        <translation>A la variable %1 nunca se le da un valor. %2</translation>
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
<context>
    <name>Windows</name>
    <message>
        <source>KWin does not tell of its windows.</source>
        <translation>KWin no informa de sus ventanas.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>No file could be written for KWin.</source>
        <translation>No se ha podido escribir ningún archivo para KWin.</translation>
    </message>
    <message>
        <source>Free some space.</source>
        <translation>Libere espacio.</translation>
    </message>
    <message>
        <source>KWin runs no scripts: %1</source>
        <translation>KWin no ejecuta scripts: %1</translation>
    </message>
    <message>
        <source>KWin does not show the window any more.</source>
        <translation>KWin ya no muestra la ventana.</translation>
    </message>
    <message>
        <source>Open it again.</source>
        <translation>Vuelva a abrirla.</translation>
    </message>
    <message>
        <source>This compositor tells nobody of windows.</source>
        <translation>Este compositor no informa a nadie de las ventanas.</translation>
    </message>
    <message>
        <source>Use a compositor with toplevel management, such as sway, or an X11 session.</source>
        <translation>Use un compositor con el protocolo toplevel management, como sway, o una sesión X11.</translation>
    </message>
    <message>
        <source>No window of “%1” is open.</source>
        <translation>No hay ninguna ventana de «%1» abierta.</translation>
    </message>
    <message>
        <source>Start it first.</source>
        <translation>Inicie primero el programa.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>La ventana no está en la pantalla.</translation>
    </message>
</context>
</TS>
