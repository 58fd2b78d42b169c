<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 или более поздняя</translation>
    </message>
    <message>
        <source>curl licence</source>
        <translation>лицензия curl</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>О программе Keyrill</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>&amp;Документация</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>Страница &amp;программы</translation>
    </message>
    <message>
        <source>&amp;Maker&apos;s Website</source>
        <translation>Сайт &amp;разработчика</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>Создано с помощью</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Records the keys you press and presses them again.</source>
        <translation>Записывает нажатые вами клавиши и нажимает их снова.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Keyrill authors. Free software under the MIT licence, without any warranty.</source>
        <translation>Copyright © 2026 авторы Keyrill. Свободная программа по лицензии MIT, без каких-либо гарантий.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
<context>
    <name>AccessDesk</name>
    <message>
        <source>To record what you type in other programs, Keyrill has to read the keyboard until the recording ends. That is why you are asked for your password.</source>
        <translation>Чтобы записывать то, что вы набираете в других программах, Keyrill должен читать клавиатуру до конца записи. Поэтому у вас запрашивается пароль.</translation>
    </message>
</context>
<context>
    <name>ActionCall</name>
    <message>
        <source>Keyrill is not running.</source>
        <translation>Keyrill не запущен.</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>The screen is locked.</source>
        <translation>Экран заблокирован.</translation>
    </message>
    <message>
        <source>Keyrill is asking something, which has to be answered first.</source>
        <translation>Keyrill задаёт вопрос, на который нужно сначала ответить.</translation>
    </message>
    <message>
        <source>A macro is being recorded.</source>
        <translation>Идёт запись макроса.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Макроса для воспроизведения пока нет.</translation>
    </message>
    <message>
        <source>A macro is being recorded already.</source>
        <translation>Запись макроса уже идёт.</translation>
    </message>
    <message>
        <source>Nothing is being recorded or played.</source>
        <translation>Ничего не записывается и не воспроизводится.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Ничего не записывается.</translation>
    </message>
    <message>
        <source>Keyrill is asking how often to play.</source>
        <translation>Keyrill спрашивает, сколько раз воспроизвести макрос.</translation>
    </message>
    <message>
        <source>Keyrill&apos;s hot keys are off while they are being chosen in a window of its own.</source>
        <translation>Комбинации клавиш Keyrill отключены, пока они выбираются в его окне.</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Keyrill Update Available</source>
        <translation>Доступно обновление Keyrill</translation>
    </message>
    <message>
        <source>There is a new update available for Keyrill, would you like to download it now?</source>
        <translation>Доступно новое обновление Keyrill. Загрузить его сейчас?</translation>
    </message>
    <message>
        <source>Keyrill requires that programs can see and press keys in this session. </source>
        <translation>Для работы Keyrill нужно, чтобы программы в этом сеансе могли видеть и нажимать клавиши. </translation>
    </message>
    <message>
        <source>Please see the &apos;Configuration&apos; section of the documentation for more information.

Keyrill must close, please restart it once this is possible.
</source>
        <translation>Подробности смотрите в разделе «Configuration» документации.

Keyrill должен завершить работу. Запустите его снова, когда это станет возможно.
</translation>
    </message>
    <message>
        <source>Open Documentation now</source>
        <translation>Открыть документацию</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Recording is not possible in this session yet</source>
        <translation>В этом сеансе запись пока невозможна</translation>
    </message>
    <message>
        <source>Nothing was recorded</source>
        <translation>Ничего не записано</translation>
    </message>
    <message>
        <source>The recording has ended</source>
        <translation>Запись завершена</translation>
    </message>
    <message>
        <source>What was recorded until then is kept.</source>
        <translation>Всё записанное до этого момента сохранено.</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>ДА</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>НЕТ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>No Update Available</source>
        <translation>Нет доступных обновлений</translation>
    </message>
    <message>
        <source>You&apos;re currently running the latest version of Keyrill</source>
        <translation>Вы используете последнюю версию Keyrill</translation>
    </message>
    <message>
        <source>The macro was not saved as &quot;%1&quot;.</source>
        <translation>Макрос не сохранён как «%1».</translation>
    </message>
    <message>
        <source>No macro was loaded from &quot;%1&quot;.</source>
        <translation>Макрос из «%1» не загружен.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>«%1» уже существует.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What is in it will be lost.</source>
        <translation>Заменить файл? Его содержимое будет потеряно.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a macro file.</source>
        <translation>«%1» не является файлом макроса.</translation>
    </message>
    <message>
        <source>The names of Keyrill&apos;s macro files end with &quot;.%1&quot;.</source>
        <translation>Имена файлов макросов Keyrill заканчиваются на «.%1».</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Файла «%1» нет.</translation>
    </message>
    <message>
        <source>Check the name, or choose one of the list.</source>
        <translation>Проверьте имя или выберите файл из списка.</translation>
    </message>
    <message>
        <source>Your settings were not saved.</source>
        <translation>Настройки не сохранены.</translation>
    </message>
    <message>
        <source>Whether Keyrill starts when you log in could not be changed.</source>
        <translation>Не удалось изменить запуск Keyrill при входе в систему.</translation>
    </message>
    <message>
        <source>Something is wrong with your settings.</source>
        <translation>В настройках есть ошибка.</translation>
    </message>
    <message>
        <source>May Keyrill write its hot keys into GNOME&apos;s settings?</source>
        <translation>Разрешить Keyrill записывать комбинации клавиш в настройки GNOME?</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. Keyrill would write one there for each of its combinations, and take them out when it ends. It does not touch what is yours.

You can change your mind in Keyrill&apos;s preferences.</source>
        <translation>В этой версии GNOME комбинации клавиш для программ возможны только как дополнительные комбинации в ваших собственных настройках. Keyrill добавит туда по одной для каждой из своих комбинаций и уберёт их, когда завершится. Ваши собственные он не трогает.

Изменить решение можно в параметрах Keyrill.</translation>
    </message>
    <message>
        <source>Write Them</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Никогда</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more under &quot;Configuration&quot;.</source>
        <translation>В этом сеансе Keyrill видит только окна программ X11 и действует только в них. Подробнее — в руководстве, раздел «Configuration».</translation>
    </message>
</context>
<context>
    <name>ApplicationObject</name>
    <message>
        <source>Keyrill is playing a macro.</source>
        <translation>Keyrill воспроизводит макрос.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;. There are: %2.</source>
        <translation>Действия «%1» нет. Доступны: %2.</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; takes no parameter.</source>
        <translation>Действие «%1» не принимает параметров.</translation>
    </message>
</context>
<context>
    <name>BusOwner</name>
    <message>
        <source>Keyrill has ended without an answer.</source>
        <translation>Keyrill завершился, не ответив.</translation>
    </message>
    <message>
        <source>Process %1, which has Keyrill&apos;s name on the session bus, does not answer.</source>
        <translation>Процесс %1, занявший имя Keyrill на сеансовой шине, не отвечает.</translation>
    </message>
    <message>
        <source>End it and start Keyrill again.</source>
        <translation>Завершите его и запустите Keyrill снова.</translation>
    </message>
</context>
<context>
    <name>CapabilityWords</name>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Используйте более новый X-сервер или включите расширение в его настройках.</translation>
    </message>
    <message>
        <source>by XInput</source>
        <translation>через XInput</translation>
    </message>
    <message>
        <source>by key grabs</source>
        <translation>через захват клавиш</translation>
    </message>
    <message>
        <source>by XTEST</source>
        <translation>через XTEST</translation>
    </message>
    <message>
        <source>the X server&apos;s</source>
        <translation>буфер X-сервера</translation>
    </message>
    <message>
        <source>above all windows</source>
        <translation>поверх всех окон</translation>
    </message>
    <message>
        <source>by the window manager</source>
        <translation>через диспетчер окон</translation>
    </message>
    <message>
        <source>a tray that icons dock into</source>
        <translation>лоток, в который встраиваются значки</translation>
    </message>
    <message>
        <source>a tray that asks for icons over the session bus</source>
        <translation>лоток, который запрашивает значки по сеансовой шине</translation>
    </message>
    <message>
        <source>by a virtual keyboard</source>
        <translation>через виртуальную клавиатуру</translation>
    </message>
    <message>
        <source>by bindings of sway&apos;s</source>
        <translation>через привязки клавиш sway</translation>
    </message>
    <message>
        <source>by KDE&apos;s shortcuts</source>
        <translation>через комбинации клавиш KDE</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal, once you allow it</source>
        <translation>через портал рабочего стола, когда вы это разрешите</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal: you choose them when it asks, and later in its settings</source>
        <translation>через портал рабочего стола: вы выбираете их по его запросу, а потом в его настройках</translation>
    </message>
    <message>
        <source>by sway</source>
        <translation>через sway</translation>
    </message>
    <message>
        <source>by KWin</source>
        <translation>через KWin</translation>
    </message>
    <message>
        <source>what you type into a window of Keyrill&apos;s, &quot;Record Here&quot;</source>
        <translation>то, что вы набираете в окне Keyrill «Записать здесь»</translation>
    </message>
    <message>
        <source>the compositor&apos;s</source>
        <translation>буфер композитора</translation>
    </message>
    <message>
        <source>as an ordinary window</source>
        <translation>как обычное окно</translation>
    </message>
    <message>
        <source>on a layer above all windows</source>
        <translation>на слое поверх всех окон</translation>
    </message>
    <message>
        <source>from the keyboards themselves, which every program of yours may read</source>
        <translation>с самих клавиатур, которые может читать каждая ваша программа</translation>
    </message>
    <message>
        <source>by keyrill-access, which asks for your password and opens the keyboard while Keyrill records</source>
        <translation>через keyrill-access, который запрашивает пароль и открывает клавиатуру, пока Keyrill ведёт запись</translation>
    </message>
    <message>
        <source>The display cannot be reached.</source>
        <translation>Дисплей недоступен.</translation>
    </message>
    <message>
        <source>Start Keyrill inside a desktop session.</source>
        <translation>Запустите Keyrill в графическом сеансе.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which shows keys.</source>
        <translation>У X-сервера нет расширения %1, которое показывает клавиши.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which says what keys mean.</source>
        <translation>У X-сервера нет расширения %1, которое сообщает значение клавиш.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which presses keys.</source>
        <translation>У X-сервера нет расширения %1, которое нажимает клавиши.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1: a key that is held is recorded once.</source>
        <translation>У X-сервера нет расширения %1: удерживаемая клавиша записывается один раз.</translation>
    </message>
    <message>
        <source>The program keyrill-guard, which releases keys after a crash, is not there; nothing is played without it.</source>
        <translation>Программа keyrill-guard, которая отпускает клавиши после сбоя, отсутствует; без неё ничего не воспроизводится.</translation>
    </message>
    <message>
        <source>Install Keyrill again.</source>
        <translation>Установите Keyrill заново.</translation>
    </message>
    <message>
        <source>Only with the windows of X11 programs: this is a Wayland session.</source>
        <translation>Только с окнами программ X11: это сеанс Wayland.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Выберите сеанс X11 при входе в систему.</translation>
    </message>
    <message>
        <source>There is none; a small window with the menu stands in for the icon.</source>
        <translation>Его нет; вместо значка показано небольшое окно с меню.</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. GNOME needs the extension &quot;AppIndicator and KStatusNotifierItem Support&quot;.</source>
        <translation>Добавьте системный лоток на панель рабочего стола. В GNOME нужно расширение «AppIndicator and KStatusNotifierItem Support».</translation>
    </message>
    <message>
        <source>A Wayland session shows no program what is typed in others, and the service that would is not installed.</source>
        <translation>В сеансе Wayland программы не видят, что набирают в других, а служба, которая это позволяет, не установлена.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, &quot;tools/access install&quot;; or record in an X11 session, macros play in both.</source>
        <translation>Установите пакет keyrill-wayland-access или, из исходного кода Keyrill, «tools/access install»; либо записывайте в сеансе X11: макросы воспроизводятся в обоих.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Этот композитор не даёт программам глобальных комбинаций клавиш.</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Назначьте клавишам в настройках композитора команды вида «keyrill --action=play».</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>Этот композитор не позволяет программам нажимать клавиши.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>Используйте композитор с виртуальными клавиатурами, например sway, или сеанс X11.</translation>
    </message>
    <message>
        <source>This desktop lets no program press keys: its portal does not answer.</source>
        <translation>Этот рабочий стол не позволяет программам нажимать клавиши: его портал не отвечает.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to the desktop, such as xdg-desktop-portal-kde.</source>
        <translation>Установите xdg-desktop-portal и его часть для вашего рабочего стола, например xdg-desktop-portal-kde.</translation>
    </message>
    <message>
        <source>Only characters that one of your keyboard layouts has.</source>
        <translation>Только символы, которые есть в одной из ваших раскладок клавиатуры.</translation>
    </message>
    <message>
        <source>Add a layout that has them in the desktop&apos;s settings.</source>
        <translation>Добавьте раскладку с ними в настройках рабочего стола.</translation>
    </message>
    <message>
        <source>Only characters that the keyboard layout in force has.</source>
        <translation>Только символы, которые есть в текущей раскладке клавиатуры.</translation>
    </message>
    <message>
        <source>Switch to a layout that has the others before you play.</source>
        <translation>Перед воспроизведением переключитесь на раскладку, в которой есть остальные.</translation>
    </message>
    <message>
        <source>This compositor shows the clipboard to windows in front alone.</source>
        <translation>Этот композитор показывает буфер обмена только окнам на переднем плане.</translation>
    </message>
    <message>
        <source>Scripts that use the clipboard need another compositor, such as sway, or an X11 session.</source>
        <translation>Сценариям, использующим буфер обмена, нужен другой композитор, например sway, или сеанс X11.</translation>
    </message>
    <message>
        <source>This compositor tells nothing of other programs&apos; windows.</source>
        <translation>Этот композитор ничего не сообщает об окнах других программ.</translation>
    </message>
    <message>
        <source>Scripts that bring a window to the front need sway, KDE or an X11 session.</source>
        <translation>Сценариям, которые выводят окно на передний план, нужен sway, KDE или сеанс X11.</translation>
    </message>
    <message>
        <source>Full-screen windows may cover it.</source>
        <translation>Полноэкранные окна могут его перекрыть.</translation>
    </message>
    <message>
        <source>Use a compositor that has layers, such as sway&apos;s or KDE&apos;s, or an X11 session.</source>
        <translation>Используйте композитор со слоями, например из sway или KDE, или сеанс X11.</translation>
    </message>
    <message>
        <source>by custom shortcuts in GNOME&apos;s settings while Keyrill runs, as you have agreed; the preferences take that back</source>
        <translation>через дополнительные комбинации клавиш в настройках GNOME, пока работает Keyrill, с вашего согласия; отозвать его можно в параметрах</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>В этой версии GNOME комбинации клавиш для программ возможны только как дополнительные комбинации в ваших собственных настройках, а вы не разрешили Keyrill их записывать.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Поставьте флажок в параметрах Keyrill или сами назначьте клавишам в настройках GNOME команды вида «keyrill --action=play».</translation>
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
        <translation>Shift</translation>
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
        <translation>--times и --speed указывают, как воспроизводит --play.</translation>
    </message>
    <message>
        <source>keyrill --help tells more.</source>
        <translation>Подробнее: keyrill --help.</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Параметра «%1» нет.</translation>
    </message>
    <message>
        <source>keyrill --help lists them.</source>
        <translation>Список параметров: keyrill --help.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Действия «%1» нет.</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Выберите одно из следующих: %1.</translation>
    </message>
    <message>
        <source>An action takes no file, and &quot;%1&quot; was given.</source>
        <translation>Действие не принимает файлов, а указан «%1».</translation>
    </message>
    <message>
        <source>Load it first: keyrill FILE.</source>
        <translation>Сначала загрузите его: keyrill ФАЙЛ.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much.</source>
        <translation>«%1» — лишнее.</translation>
    </message>
    <message>
        <source>--list takes no name.</source>
        <translation>--list не принимает имени.</translation>
    </message>
    <message>
        <source>A name with blanks is put in quotation marks: &quot;%1&quot;.</source>
        <translation>Имя с пробелами пишут в кавычках: &quot;%1&quot;.</translation>
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
        <translation>Использование: keyrill [--session=ИМЯ] [--] [ФАЙЛ...]   запустить или загрузить макросы в работающую программу
               keyrill [--session=ИМЯ] --action=ДЕЙСТВИЕ   запросить у неё действие; при необходимости запустить её
               keyrill [--session=ИМЯ] --play [МАКРОС|ФАЙЛ] [--times=N|until-stopped] [--speed=X]
                                          попросить её воспроизвести макрос из папки макросов или файл
               keyrill [--session=ИМЯ] --show [МАКРОС]   попросить её показать окно макросов
               keyrill --list   вывести имена макросов из папки макросов
               keyrill [--session=ИМЯ] --check   вывести, что работает в этом сеансе и что делать
               keyrill -h | --help | --version
ДЕЙСТВИЕ — одно из этих: %1.
МАКРОС — имя, которое выводит --list, с группой или без неё; без МАКРОСА и ФАЙЛА --play воспроизводит то же,
что команда «Воспроизвести». ФАЙЛ, для которого нет МАКРОСА с таким именем или который начинается с / или ./,
воспроизводится как есть. Сколько раз и как быстро (от 0.25 до 4), определяет макрос, если это не указано.
--show выбирает МАКРОС в окне. Для --play, --show и --list код возврата 0, если сделано, 1, если нет, и 2, если
вызов неверен; причина — в стандартном потоке ошибок.
ИМЯ — вид графического сеанса; без него программа определяет его сама. Доступны: %2
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one thing too many.</source>
        <translation>«%1» — лишнее.</translation>
    </message>
    <message>
        <source>Call keyrill once for each.</source>
        <translation>Вызовите keyrill отдельно для каждого.</translation>
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
        <translation>&amp;Меню Keyrill</translation>
    </message>
    <message>
        <source>No tray was found, so here is the menu.</source>
        <translation>Системный лоток не найден, поэтому меню здесь.</translation>
    </message>
    <message>
        <source>Keyrill is running; its menu is in the tray too.</source>
        <translation>Keyrill работает; его меню есть и в системном лотке.</translation>
    </message>
</context>
<context>
    <name>DraftFiles</name>
    <message>
        <source>The folder %1 cannot be written to: %2.</source>
        <extracomment>a folder, and why</extracomment>
        <translation>Невозможно записать в папку %1: %2.</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>A macro needs a name.</source>
        <translation>Макросу нужно имя.</translation>
    </message>
    <message>
        <source>A name cannot have a slash (/) in it.</source>
        <translation>В имени не может быть косой черты (/).</translation>
    </message>
    <message>
        <source>A name cannot begin with a point: the file would be hidden.</source>
        <translation>Имя не может начинаться с точки: файл стал бы скрытым.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>Имя слишком длинное для файла.</translation>
    </message>
    <message>
        <source>There is already a macro called &quot;%1&quot;.</source>
        <translation>Макрос с именем «%1» уже есть.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed: %2.</source>
        <translation>Невозможно переименовать «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be copied: %2.</source>
        <translation>Невозможно скопировать «%1»: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be put into the trash.</source>
        <translation>Невозможно переместить «%1» в корзину.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be brought back: %2.</source>
        <translation>Невозможно восстановить «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>FilesDesk</name>
    <message>
        <source>&quot;%1&quot; was not loaded</source>
        <translation>«%1» не загружен</translation>
    </message>
    <message>
        <source>A macro is being recorded. Stop recording first.</source>
        <translation>Идёт запись макроса. Сначала остановите запись.</translation>
    </message>
    <message>
        <source>The screen is locked. Unlock it first.</source>
        <translation>Экран заблокирован. Сначала разблокируйте его.</translation>
    </message>
    <message>
        <source>Answer Keyrill&apos;s question first.</source>
        <translation>Сначала ответьте на вопрос Keyrill.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded</source>
        <translation>«%1» загружен</translation>
    </message>
    <message>
        <source>Choose a shortcut for Play in the preferences to play it.</source>
        <translation>Чтобы воспроизвести его, выберите в параметрах комбинацию клавиш для команды «Воспроизвести».</translation>
    </message>
    <message>
        <source>Press %1 to play it.</source>
        <translation>Нажмите %1, чтобы воспроизвести его.</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>This is a script of its own: line %1 cannot be changed here. What it would press is shown; change it under Script.</source>
        <translation>Это самостоятельный сценарий: строку %1 здесь изменить нельзя. Показано, что он нажал бы; изменить его можно на вкладке «Сценарий».</translation>
    </message>
    <message>
        <source>Keys of the macro</source>
        <translation>Клавиши макроса</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Record Keys</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Record keys behind the selected step</source>
        <translation>Записать клавиши после выбранного шага</translation>
    </message>
    <message>
        <source>Add Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>A pause behind the selected step</source>
        <translation>Пауза после выбранного шага</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Change the text, the pause or how often a key is pressed</source>
        <translation>Изменить текст, паузу или число нажатий клавиши</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>The selected steps once more</source>
        <translation>Выбранные шаги ещё раз</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Переместить вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Переместить вниз</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove the selected steps</source>
        <translation>Убрать выбранные шаги</translation>
    </message>
    <message>
        <source>Convert to Text</source>
        <translation>В текст</translation>
    </message>
    <message>
        <source>Type the same under every keyboard layout</source>
        <translation>Набирать одно и то же при любой раскладке клавиатуры</translation>
    </message>
    <message>
        <source>Convert to Keys</source>
        <translation>В клавиши</translation>
    </message>
    <message>
        <source>Press the keys of the present keyboard layout</source>
        <translation>Нажимать клавиши текущей раскладки клавиатуры</translation>
    </message>
</context>
<context>
    <name>LibraryController</name>
    <message>
        <source>&quot;%1&quot; was not played</source>
        <translation>«%1» не воспроизведён</translation>
    </message>
    <message>
        <source>Hot keys of macros</source>
        <translation>Комбинации клавиш макросов</translation>
    </message>
    <message>
        <source>The history</source>
        <translation>Журнал</translation>
    </message>
</context>
<context>
    <name>MacroCalls</name>
    <message>
        <source>Keyrill does not answer.</source>
        <translation>Keyrill не отвечает.</translation>
    </message>
    <message>
        <source>Perhaps its macro folder cannot be reached.</source>
        <translation>Возможно, недоступна его папка макросов.</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Клавиши</translation>
    </message>
    <message>
        <source>S&amp;cript</source>
        <translation>Сц&amp;енарий</translation>
    </message>
</context>
<context>
    <name>MacroFilePanel</name>
    <message>
        <source>Keyrill macros (*.%1)</source>
        <translation>Макросы Keyrill (*.%1)</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>Сохранить макрос</translation>
    </message>
    <message>
        <source>Load Macro</source>
        <translation>Загрузить макрос</translation>
    </message>
    <message>
        <source>This name is too long for a file.</source>
        <translation>Это имя слишком длинное для файла.</translation>
    </message>
</context>
<context>
    <name>MacroList</name>
    <message>
        <source>The folder %1 does not answer.</source>
        <translation>Папка %1 не отвечает.</translation>
    </message>
</context>
<context>
    <name>MacroListModel</name>
    <message>
        <source>Group %1</source>
        <translation>Группа %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a macro and its hot key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, не сохранено</translation>
    </message>
</context>
<context>
    <name>MacroSettingsRow</name>
    <message>
        <source>Hot key</source>
        <translation>Комбинация клавиш</translation>
    </message>
    <message>
        <source>&amp;Hot key:</source>
        <translation>Ко&amp;мбинация:</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Сколько раз</translation>
    </message>
    <message>
        <source>Unt&amp;il stopped</source>
        <translation>До &amp;остановки</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>&amp;Раз:</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>behind a number: so many times as fast</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>The pauses of the macro are divided by this</source>
        <translation>Паузы макроса делятся на это число</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Sp&amp;eed:</source>
        <translation>Скорос&amp;ть:</translation>
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
        <translation>Пауза %1 с</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>Текст: %1</translation>
    </message>
    <message>
        <source>Hold %1</source>
        <extracomment>a key that goes down and stays there</extracomment>
        <translation>Удерживать %1</translation>
    </message>
    <message>
        <source>Let go of %1</source>
        <translation>Отпустить %1</translation>
    </message>
    <message>
        <source>Ask: %1</source>
        <extracomment>a dialog of a script, with its question</extracomment>
        <translation>Спросить: %1</translation>
    </message>
    <message>
        <source>Tell: %1</source>
        <translation>Сообщить: %1</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>Набрать %1</translation>
    </message>
    <message>
        <source>Press %1</source>
        <translation>Нажать %1</translation>
    </message>
    <message numerus="yes">
        <source>Press %1 %Ln times</source>
        <translation>
            <numerusform>Нажать %1 %Ln раз</numerusform>
            <numerusform>Нажать %1 %Ln раза</numerusform>
            <numerusform>Нажать %1 %Ln раз</numerusform>
        </translation>
    </message>
    <message>
        <source>Wait %1 seconds</source>
        <translation>Подождать %1 с</translation>
    </message>
    <message numerus="yes">
        <source>Wait %1 seconds, %Ln times</source>
        <translation>
            <numerusform>Подождать %1 с, %Ln раз</numerusform>
            <numerusform>Подождать %1 с, %Ln раза</numerusform>
            <numerusform>Подождать %1 с, %Ln раз</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacrosDesk</name>
    <message>
        <source>Play has the latest macro until there is another.</source>
        <translation>Команда «Воспроизвести» использует последний макрос, пока не появится другой.</translation>
    </message>
    <message>
        <source>What is not saved would not outlive a crash. %1</source>
        <translation>Несохранённое будет потеряно при сбое. %1</translation>
    </message>
    <message>
        <source>The macro is still being read: its folder does not answer.</source>
        <translation>Макрос ещё читается: его папка не отвечает.</translation>
    </message>
    <message>
        <source>The file of this macro is gone. If you save, it is there again.</source>
        <translation>Файла этого макроса больше нет. Если сохранить, он появится снова.</translation>
    </message>
    <message>
        <source>Another program has deleted or moved the macro.</source>
        <translation>Другая программа удалила или переместила макрос.</translation>
    </message>
    <message>
        <source>Another program has changed this macro. If you save, your text replaces it.</source>
        <translation>Другая программа изменила этот макрос. Если сохранить, ваш текст заменит его.</translation>
    </message>
    <message>
        <source>What was not saved is there again: %1.</source>
        <translation>Несохранённое восстановлено: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The recording is forgotten.</source>
        <translation>Запись забыта.</translation>
    </message>
    <message>
        <source>All recordings are forgotten.</source>
        <translation>Все записи забыты.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Сохранено.</translation>
    </message>
    <message>
        <source>New Macro</source>
        <translation>Новый макрос</translation>
    </message>
    <message>
        <source>The macro is in the trash.</source>
        <translation>Макрос перемещён в корзину.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>The macro cannot be played. Line %1: %2</source>
        <extracomment>of a script; what is wrong</extracomment>
        <translation>Макрос нельзя воспроизвести. Строка %1: %2</translation>
    </message>
    <message>
        <source>The macro is deleted.</source>
        <translation>Макрос удалён.</translation>
    </message>
</context>
<context>
    <name>MacrosInterface</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Параметра «%1» нет.</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>Доступны: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file of this machine.</source>
        <translation>«%1» — не файл этого компьютера.</translation>
    </message>
    <message>
        <source>It begins with file:///.</source>
        <translation>Адрес начинается с file:///.</translation>
    </message>
</context>
<context>
    <name>MacrosWindow</name>
    <message>
        <source>Macros</source>
        <translation>Макросы</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>Поиск макросов</translation>
    </message>
    <message>
        <source>&amp;Record New</source>
        <translation>&amp;Новая запись</translation>
    </message>
    <message>
        <source>Record a new macro</source>
        <translation>Записать новый макрос</translation>
    </message>
    <message>
        <source>Keep Recordin&amp;g...</source>
        <translation>Оставить &amp;запись...</translation>
    </message>
    <message>
        <source>Keep a recording of the history as a macro, by a name</source>
        <translation>Оставить запись из журнала как макрос под именем</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Забыть</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>Забыть &amp;все</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Воспроизвести</translation>
    </message>
    <message>
        <source>Play into the window that you were in before, after three seconds</source>
        <translation>Воспроизвести через три секунды в окне, где вы были до этого</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>Save the macro (%1)</source>
        <translation>Сохранить макрос (%1)</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Дублировать</translation>
    </message>
    <message>
        <source>Make a copy of the macro</source>
        <translation>Сделать копию макроса</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>Give the macro another name (F2)</source>
        <translation>Дать макросу другое имя (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Put the macro into the trash (Delete)</source>
        <translation>Переместить макрос в корзину (Delete)</translation>
    </message>
    <message>
        <source>Stop (Escape)</source>
        <translation>Остановить (Esc)</translation>
    </message>
    <message>
        <source>Do not play</source>
        <translation>Не воспроизводить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <source>The macro folder is still being read.</source>
        <translation>Папка макросов ещё читается.</translation>
    </message>
    <message>
        <source>There is no macro yet. Record one, or put a macro file into the macro folder.</source>
        <translation>Макросов пока нет. Запишите макрос или поместите файл макроса в папку макросов.</translation>
    </message>
    <message>
        <source>Plays in %1 s...</source>
        <translation>Запуск через %1 с...</translation>
    </message>
</context>
<context>
    <name>MultiplePlayWindow</name>
    <message>
        <source>Play Multiple Times</source>
        <translation>Воспроизвести несколько раз</translation>
    </message>
    <message>
        <source>&amp;Times to play:</source>
        <translation>&amp;Сколько раз воспроизвести:</translation>
    </message>
    <message>
        <source>Times to play</source>
        <translation>Сколько раз воспроизвести</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Воспроизвести</translation>
    </message>
    <message>
        <source>No macro yet</source>
        <translation>Макроса пока нет</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
</context>
<context>
    <name>OverlayDesk</name>
    <message>
        <source>Waiting for your permission</source>
        <translation>Ожидание вашего разрешения</translation>
    </message>
    <message>
        <source>Not recorded: keyboard held</source>
        <translation>Не записывается: клавиатура занята</translation>
    </message>
</context>
<context>
    <name>PauseRow</name>
    <message>
        <source>Never</source>
        <extracomment>whether pauses are recorded: never, as long as they were when typed, or not longer than a number of seconds</extracomment>
        <translation>Никогда</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Как набрано</translation>
    </message>
    <message>
        <source>At most</source>
        <extracomment>stands before a number of seconds</extracomment>
        <translation>Не дольше</translation>
    </message>
    <message>
        <source>Record pauses</source>
        <translation>Записывать паузы</translation>
    </message>
    <message>
        <source> s</source>
        <translation> с</translation>
    </message>
    <message>
        <source>Longest pause in seconds</source>
        <translation>Самая длинная пауза в секундах</translation>
    </message>
    <message>
        <source>Record p&amp;auses:</source>
        <translation>Записывать &amp;паузы:</translation>
    </message>
</context>
<context>
    <name>PlayRequests</name>
    <message>
        <source>There are several macros called &quot;%1&quot;.</source>
        <translation>Есть несколько макросов с именем «%1».</translation>
    </message>
    <message>
        <source>Say which one: %1.</source>
        <translation>Укажите, какой: %1.</translation>
    </message>
    <message>
        <source>keyrill --list lists all.</source>
        <translation>Список всех: keyrill --list.</translation>
    </message>
    <message>
        <source>There is no macro called &quot;%1&quot;.</source>
        <translation>Макроса с именем «%1» нет.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>Макроса для воспроизведения пока нет.</translation>
    </message>
    <message>
        <source>What Play plays cannot be played: its script is wrong in line %1.</source>
        <translation>Команда «Воспроизвести» не может быть выполнена: ошибка сценария в строке %1.</translation>
    </message>
    <message>
        <source>Play in the menu tells more.</source>
        <translation>Подробности покажет команда «Воспроизвести» в меню.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be played: its script is wrong in line %2.</source>
        <translation>Невозможно воспроизвести «%1»: ошибка сценария в строке %2.</translation>
    </message>
    <message>
        <source>keyrill-script check &quot;%1&quot; tells more.</source>
        <translation>Подробнее: keyrill-script check &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Similar: %1.</source>
        <translation>Похожие: %1.</translation>
    </message>
</context>
<context>
    <name>PlayWords</name>
    <message>
        <source>&quot;%1&quot; is not how many times a macro can be played.</source>
        <translation>«%1» не может быть числом воспроизведений макроса.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Это целое число не меньше 1 или until-stopped.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not how fast a macro can be played.</source>
        <translation>«%1» не может быть скоростью воспроизведения макроса.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4, with a point: 1.5.</source>
        <translation>Это число от 0.25 до 4, с точкой: 1.5.</translation>
    </message>
    <message>
        <source>The name of the macro is empty.</source>
        <translation>Имя макроса пустое.</translation>
    </message>
    <message>
        <source>keyrill --list prints those that there are.</source>
        <translation>Список имеющихся: keyrill --list.</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Keyrill Preferences</source>
        <translation>Параметры Keyrill</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>Проверить с&amp;ейчас</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>These combinations work in every program. Click a field and press the combination you want.</source>
        <translation>Эти комбинации действуют во всех программах. Щёлкните по полю и нажмите нужную комбинацию.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Прочие параметры</translation>
    </message>
</context>
<context>
    <name>ProgramInstance</name>
    <message>
        <source>The macro folder was out of reach for too long.</source>
        <translation>Папка макросов слишком долго была недоступна.</translation>
    </message>
    <message>
        <source>Another program has Keyrill&apos;s name on the session bus and does not do its work: %1</source>
        <translation>Имя Keyrill на сеансовой шине занято другой программой, которая не выполняет его работу: %1</translation>
    </message>
    <message>
        <source>End that program and start Keyrill again.</source>
        <translation>Завершите эту программу и запустите Keyrill снова.</translation>
    </message>
    <message>
        <source>It cannot be given a file, since it has no session bus.</source>
        <translation>Ему нельзя передать файл, так как у него нет сеансовой шины.</translation>
    </message>
    <message>
        <source>Keyrill is running already.</source>
        <translation>Keyrill уже запущен.</translation>
    </message>
</context>
<context>
    <name>RecordHerePanel</name>
    <message>
        <source>Record Here</source>
        <translation>Записать здесь</translation>
    </message>
    <message>
        <source>How to Record Everywhere</source>
        <translation>Как записывать везде</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>Набирайте здесь</translation>
    </message>
    <message>
        <source>Keys typed here are recorded</source>
        <translation>Набранные здесь клавиши записываются</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>What you type in this window is recorded</source>
        <translation>То, что вы набираете в этом окне, записывается</translation>
    </message>
    <message>
        <source>What you type in other programs is not. The macro can be played in all of them.</source>
        <translation>То, что вы набираете в других программах, — нет. Воспроизвести макрос можно во всех.</translation>
    </message>
    <message>
        <source>Why not everywhere?</source>
        <translation>Почему не везде?</translation>
    </message>
    <message>
        <source>Press Stop Recording or close the window when you are done.</source>
        <translation>Закончив, нажмите «Остановить запись» или закройте окно.</translation>
    </message>
    <message>
        <source>Press %1 when you are done, or close the window.</source>
        <translation>Закончив, нажмите %1 или закройте окно.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window.</source>
        <translation>Закончив, нажмите комбинацию из настроек рабочего стола или закройте окно.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window: %1</source>
        <translation>Закончив, нажмите комбинацию из настроек рабочего стола или закройте окно: %1</translation>
    </message>
</context>
<context>
    <name>RecorderWindow</name>
    <message>
        <source>Keyrill recording</source>
        <translation>Keyrill записывает</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>There is no session bus, over which the running Keyrill could be asked.</source>
        <translation>Нет сеансовой шины, по которой можно обратиться к работающему Keyrill.</translation>
    </message>
    <message>
        <source>Call it from within the desktop session; the hot keys and the menu need none.</source>
        <translation>Вызовите его из графического сеанса; комбинациям клавиш и меню сеансовая шина не нужна.</translation>
    </message>
    <message>
        <source>Keyrill could not be started, or runs already where this session bus does not reach.</source>
        <translation>Не удалось запустить Keyrill, или он уже работает там, куда не достаёт эта сеансовая шина.</translation>
    </message>
    <message>
        <source>Start it as &quot;keyrill&quot; in a terminal to see why.</source>
        <translation>Чтобы узнать причину, запустите его в терминале командой «keyrill».</translation>
    </message>
</context>
<context>
    <name>SRRecorderControl</name>
    <message>
        <source>Clear %1</source>
        <translation>Очистить %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Click here, then press a combination. Backspace clears, Escape keeps what was set.</source>
        <translation>Щёлкните здесь и нажмите комбинацию. Backspace очищает, Esc оставляет прежнее.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super</source>
        <translation>Добавьте Ctrl, Alt или Super</translation>
    </message>
    <message>
        <source>Press a combination…</source>
        <translation>Нажмите комбинацию…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
</context>
<context>
    <name>ScriptDialogWindow</name>
    <message>
        <source>Stop</source>
        <extracomment>the name of a picture: a stop sign</extracomment>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>Внимание</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Keyrill Macro</source>
        <translation>Макрос Keyrill</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Script</source>
        <translation>Сценарий</translation>
    </message>
    <message>
        <source>Words of the script language</source>
        <translation>Слова языка сценариев</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <extracomment>of a script; what is wrong, or could be</extracomment>
        <translation>Строка %1: %2</translation>
    </message>
</context>
<context>
    <name>ScriptNotices</name>
    <message>
        <source>The macro was not played to its end</source>
        <translation>Макрос воспроизведён не до конца</translation>
    </message>
    <message>
        <source>The macro cannot be played</source>
        <translation>Макрос невозможно воспроизвести</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded but cannot be played</source>
        <translation>«%1» загружен, но воспроизвести его невозможно</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
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
        <translation>Сеанс</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1, дисплей %2</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Компоненты</translation>
    </message>
    <message>
        <source>missing: %1; there: %2</source>
        <translation>нет: %1; есть: %2</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Глобальные комбинации клавиш</translation>
    </message>
    <message>
        <source>Pressing keys</source>
        <translation>Нажатие клавиш</translation>
    </message>
    <message>
        <source>Typing text</source>
        <translation>Набор текста</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Буфер обмена</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Экранный индикатор</translation>
    </message>
    <message>
        <source>Windows of other programs</source>
        <translation>Окна других программ</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Системный лоток</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>by what it works, and what is missing all the same, which is a sentence</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Hot key of &quot;%1&quot;</source>
        <translation>Комбинация клавиш для «%1»</translation>
    </message>
    <message>
        <source>none is chosen</source>
        <translation>не выбрана</translation>
    </message>
    <message>
        <source>%1, which nobody else has</source>
        <translation>%1, больше никем не занята</translation>
    </message>
    <message>
        <source>%1, which the running Keyrill has</source>
        <translation>%1, занята работающим Keyrill</translation>
    </message>
    <message>
        <source>%1; the session does not tell who has it</source>
        <translation>%1; сеанс не сообщает, кем она занята</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Сеансовая шина</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>the session bus exists</extracomment>
        <translation>есть</translation>
    </message>
    <message>
        <source>There is none: &quot;keyrill --action&quot;, notifications and many trays need it, and a locked screen is not noticed at once.</source>
        <translation>Её нет: она нужна для «keyrill --action», уведомлений и многих лотков, а блокировка экрана замечается не сразу.</translation>
    </message>
    <message>
        <source>Start Keyrill from within the desktop session.</source>
        <translation>Запустите Keyrill из графического сеанса.</translation>
    </message>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>работает</translation>
    </message>
    <message>
        <source>is not running</source>
        <translation>не работает</translation>
    </message>
    <message>
        <source>no lock is on</source>
        <translation>режимы Lock выключены</translation>
    </message>
    <message>
        <source>on: %1, which macros do not mind</source>
        <translation>включены: %1, макросам это не мешает</translation>
    </message>
    <message>
        <source>layout unknown</source>
        <translation>раскладка неизвестна</translation>
    </message>
    <message>
        <source>layout %1</source>
        <translation>раскладка %1</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
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
        <translation>Занято командой «%1» до перезапуска Keyrill.</translation>
    </message>
    <message>
        <source>Already used by %1.</source>
        <translation>Уже занято командой «%1».</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>Рабочий стол ещё не ответил.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings.</source>
        <translation>Задано в настройках рабочего стола.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings: %1</source>
        <translation>Задано в настройках рабочего стола: %1</translation>
    </message>
    <message>
        <source>%1 still works until Keyrill restarts.</source>
        <translation>%1 ещё действует до перезапуска Keyrill.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;, which gives way.</source>
        <translation>Уже занято макросом «%1», он уступит эту комбинацию.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;.</source>
        <translation>Уже занято макросом «%1».</translation>
    </message>
</context>
<context>
    <name>ShortcutTitles</name>
    <message>
        <source>Start &amp;Recording:</source>
        <translation>&amp;Начать запись:</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>Начать запись</translation>
    </message>
    <message>
        <source>&amp;Stop Recording:</source>
        <translation>&amp;Остановить запись:</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>&amp;Play:</source>
        <translation>&amp;Воспроизвести:</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Play &amp;Multiple Times:</source>
        <translation>Воспроизвести нес&amp;колько раз:</translation>
    </message>
    <message>
        <source>Play Multiple Times</source>
        <translation>Воспроизвести несколько раз</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Start Recording</source>
        <translation>Начать запись</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>Save Pause</source>
        <translation>Зафиксировать паузу</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Play Multiple Times...</source>
        <translation>Воспроизвести несколько раз...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Save Macro...</source>
        <translation>Сохранить макрос...</translation>
    </message>
    <message>
        <source>Load Macro...</source>
        <translation>Загрузить макрос...</translation>
    </message>
    <message>
        <source>Macros...</source>
        <translation>Макросы...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Параметры...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Документация</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>Форум</translation>
    </message>
    <message>
        <source>Product Page</source>
        <translation>Страница программы</translation>
    </message>
    <message>
        <source>Maker&apos;s Website</source>
        <translation>Сайт разработчика</translation>
    </message>
    <message>
        <source>Get Support</source>
        <translation>Получить поддержку</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Отправить отзыв</translation>
    </message>
    <message>
        <source>Report a Bug</source>
        <translation>Сообщить об ошибке</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Проверить обновления...</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>О программе Keyrill</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Keyrill menu</source>
        <translation>Меню Keyrill</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Что здесь работает</translation>
    </message>
</context>
<context>
    <name>StatusNotice</name>
    <message>
        <source>%1 has no shortcut. %2</source>
        <translation>Для команды «%1» нет комбинации клавиш. %2</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>Works</source>
        <translation>Работает</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>Не работает</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>Что здесь работает</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Copy all lines, for a mail or a forum</source>
        <translation>Скопировать все строки для письма или форума</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>&amp;Проверить снова</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>A moment...</source>
        <translation>Подождите...</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>Не удалось узнать, что здесь работает.</translation>
    </message>
    <message>
        <source>&quot;keyrill --check&quot; in a terminal may say why.</source>
        <translation>Причину может сообщить «keyrill --check» в терминале.</translation>
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
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>The script goes on; only its beginning is shown.</source>
        <translation>Сценарий продолжается; показано только его начало.</translation>
    </message>
    <message>
        <source>A pause is a number of seconds from 0 to a day.</source>
        <translation>Пауза — это число секунд от 0 до суток.</translation>
    </message>
    <message>
        <source>A key is pressed from 1 to 10,000 times.</source>
        <translation>Клавишу можно нажать от 1 до 10&#xa0;000 раз.</translation>
    </message>
    <message>
        <source>This step cannot be changed here.</source>
        <translation>Этот шаг нельзя изменить здесь.</translation>
    </message>
</context>
<context>
    <name>Toggles</name>
    <message>
        <source>Check for &amp;updates when Keyrill starts</source>
        <translation>Проверять о&amp;бновления при запуске Keyrill</translation>
    </message>
    <message>
        <source>Start Keyrill when I log &amp;in</source>
        <translation>Запускать Keyrill при в&amp;ходе в систему</translation>
    </message>
    <message>
        <source>Record modifier &amp;keys on their own</source>
        <translation>Записывать клавиши-&amp;модификаторы отдельно</translation>
    </message>
    <message>
        <source>Keep the &amp;history for the next start</source>
        <translation>Сохранять &amp;журнал между запусками</translation>
    </message>
    <message>
        <source>&amp;Write hot keys into GNOME&apos;s settings</source>
        <translation>Запис&amp;ывать комбинации клавиш в настройки GNOME</translation>
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
        <translation>Добро пожаловать в Keyrill</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>&amp;Продолжить</translation>
    </message>
    <message>
        <source>Your first macro</source>
        <translation>Ваш первый макрос</translation>
    </message>
    <message>
        <source>The combinations</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>You can change them in the preferences, which come next.</source>
        <translation>Их можно изменить в параметрах, которые откроются следом.</translation>
    </message>
    <message>
        <source>Keyrill records the keys you press and presses them again for you, in any program, as often as you like.</source>
        <translation>Keyrill записывает нажатые вами клавиши и снова нажимает их за вас — в любой программе и сколько угодно раз.</translation>
    </message>
    <message>
        <source>Choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Выберите «Начать запись» в меню Keyrill. Затем набирайте.</translation>
    </message>
    <message>
        <source>Press %1, or choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Нажмите %1 или выберите «Начать запись» в меню Keyrill. Затем набирайте.</translation>
    </message>
    <message>
        <source>Choose Stop Recording when you are done.</source>
        <translation>Закончив, выберите «Остановить запись».</translation>
    </message>
    <message>
        <source>Press %1 when you are done.</source>
        <translation>Закончив, нажмите %1.</translation>
    </message>
    <message>
        <source>Click where the keys should go and choose Play.</source>
        <translation>Щёлкните там, где должны нажиматься клавиши, и выберите «Воспроизвести».</translation>
    </message>
    <message>
        <source>Click where the keys should go and press %1.</source>
        <translation>Щёлкните там, где должны нажиматься клавиши, и нажмите %1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Не задано</translation>
    </message>
</context>
</TS>
