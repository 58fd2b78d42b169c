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
    <message>
        <source>by the compositor</source>
        <translation>через композитор</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>This compositor gives the clipboard to windows alone.</source>
        <translation>Этот композитор предоставляет буфер обмена только окнам.</translation>
    </message>
    <message>
        <source>Use a compositor with data control, such as sway, or an X11 session.</source>
        <translation>Используйте композитор с протоколом data control, например sway, или сеанс X11.</translation>
    </message>
    <message>
        <source>No more files can be opened.</source>
        <translation>Больше нельзя открыть ни одного файла.</translation>
    </message>
    <message>
        <source>Close programs.</source>
        <translation>Закройте некоторые программы.</translation>
    </message>
    <message>
        <source>The text in the clipboard is too long.</source>
        <translation>Текст в буфере обмена слишком длинный.</translation>
    </message>
    <message>
        <source>The clipboard is held by another program.</source>
        <translation>Буфер обмена занят другой программой.</translation>
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
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
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
    <name>Files</name>
    <message>
        <source>Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is a code: 0xE9</extracomment>
        <translation>В строке %1 в позиции %3 находится байт %2, а файл макроса может содержать только ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085</extracomment>
        <translation>В строке %1 в позиции %3 находится символ (%2), а файл макроса может содержать только ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character &quot;%2&quot; (%3) at place %4, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %4 are numbers, %2 is a character, %3 its code: U+00E9</extracomment>
        <translation>В строке %1 в позиции %4 находится символ «%2» (%3), а файл макроса может содержать только ASCII.</translation>
    </message>
    <message>
        <source>Replace the character in the macro.</source>
        <translation>Замените этот символ в макросе.</translation>
    </message>
    <message>
        <source>The file %1 cannot be deleted: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Невозможно удалить файл %1: %2</translation>
    </message>
    <message>
        <source>Check who may write to its folder, or delete it yourself.</source>
        <translation>Проверьте, кто может записывать в его папку, или удалите файл вручную.</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>Это папка</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Это не обычный файл</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Выберите файл.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Невозможно прочитать файл %1: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Невозможно записать файл %1: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MiB</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Его размер больше %1 МиБ</translation>
    </message>
    <message>
        <source>Choose a smaller file.</source>
        <translation>Выберите файл меньшего размера.</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Выберите другое имя.</translation>
    </message>
    <message>
        <source>Check that the file is there and who may read it.</source>
        <translation>Проверьте, существует ли файл и кто может его читать.</translation>
    </message>
    <message>
        <source>Make room, check who may write there, or choose another place.</source>
        <translation>Освободите место, проверьте, кто может туда записывать, или выберите другое место.</translation>
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
    <name>Folders</name>
    <message>
        <source>The folder %1 cannot be made: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Невозможно создать папку %1: %2</translation>
    </message>
    <message>
        <source>Check who may write there.</source>
        <translation>Проверьте, кто может туда записывать.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Невозможно прочитать папку %1: %2</translation>
    </message>
    <message>
        <source>Check who may read it.</source>
        <translation>Проверьте, кто может её читать.</translation>
    </message>
    <message>
        <source>What changes in the folder %1 is not noticed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>Изменения в папке %1 не отслеживаются: %2</translation>
    </message>
    <message>
        <source>Start Keyrill again after changes, or raise fs.inotify.max_user_watches.</source>
        <translation>Запускайте Keyrill заново после изменений или увеличьте fs.inotify.max_user_watches.</translation>
    </message>
    <message>
        <source>Make room, or check who may write there.</source>
        <translation>Освободите место или проверьте, кто может туда записывать.</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>A handler is called with parentheses: %1().</source>
        <translation>Обработчик вызывается со скобками: %1().</translation>
    </message>
    <message>
        <source>The key has a number: key code %1.</source>
        <translation>У этой клавиши есть номер: key code %1.</translation>
    </message>
    <message>
        <source>Return is joined to a text so: &quot;hello&quot; &amp; return.</source>
        <translation>Return присоединяется к тексту так: &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>Tab is joined to a text so: &quot;hello&quot; &amp; tab.</source>
        <translation>Tab присоединяется к тексту так: &quot;hello&quot; &amp; tab.</translation>
    </message>
    <message>
        <source>A question is asked with: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</source>
        <translation>Вопрос задаётся так: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</translation>
    </message>
    <message>
        <source>A number by chance is: random number from 1 to 10.</source>
        <translation>Случайное число получают так: random number from 1 to 10.</translation>
    </message>
    <message>
        <source>A loop is left with “exit repeat”, the script with “return”.</source>
        <translation>Из цикла выходят с помощью «exit repeat», из сценария — с помощью «return».</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Текст набирается с помощью «keystroke»: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A pause is written in seconds: delay 2.</source>
        <translation>Пауза указывается в секундах: delay 2.</translation>
    </message>
    <message>
        <source>Errors are caught with: try … on error … end try.</source>
        <translation>Ошибки перехватываются так: try … on error … end try.</translation>
    </message>
    <message>
        <source>Nothing is imported; the commands are there from the start: delay 2, keystroke &quot;hello&quot;.</source>
        <translation>Ничего импортировать не нужно; команды доступны с самого начала: delay 2, keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A value is printed with: log &quot;x&quot;. Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>Значение выводится так: log &quot;x&quot;. Текст набирается с помощью «keystroke»: keystroke &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>A message is shown with: display dialog &quot;hello&quot;.</source>
        <translation>Сообщение показывается так: display dialog &quot;hello&quot;.</translation>
    </message>
    <message>
        <source>What has no value is written: missing value.</source>
        <translation>Отсутствие значения записывается так: missing value.</translation>
    </message>
    <message>
        <source>A window is brought to the front with: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Окно выводится на передний план так: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.</source>
        <translation>Код клавиши — число от 0 до %1; «keyrill-script keys» выводит коды, которым соответствуют клавиши.</translation>
    </message>
    <message>
        <source>A key code is a number; a text is typed with “keystroke”.</source>
        <translation>Код клавиши — это число; текст набирается с помощью «keystroke».</translation>
    </message>
    <message>
        <source>The key has a number: key code %1; “keyrill-script keys” prints all.</source>
        <translation>У этой клавиши есть номер: key code %1; «keyrill-script keys» выводит все номера.</translation>
    </message>
    <message>
        <source>The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.</source>
        <translation>Части даты: year, month, day, weekday, hours, minutes, seconds и time.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Возможно, вы имели в виду %1?</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: delay 0.5.</source>
        <translation>Дробная часть отделяется точкой: delay 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds: delay 0.5.</source>
        <translation>«delay» считает в секундах: delay 0.5.</translation>
    </message>
    <message>
        <source>A dialog gives a record; what was typed there is taken with: text returned of n.</source>
        <translation>Диалог возвращает запись (record); введённый в нём текст получают так: text returned of n.</translation>
    </message>
    <message>
        <source>A modifier stands without quotes: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>Модификатор указывается без кавычек: using %1 down.</translation>
    </message>
    <message>
        <source>Several modifiers stand in braces: using {control down, shift down}.</source>
        <translation>Несколько модификаторов указываются в фигурных скобках: using {control down, shift down}.</translation>
    </message>
    <message>
        <source>Texts are joined with “&amp;”: &quot;one&quot; &amp; &quot;two&quot;.</source>
        <translation>Тексты соединяются с помощью «&amp;»: &quot;one&quot; &amp; &quot;two&quot;.</translation>
    </message>
    <message>
        <source>This compares and changes nothing; a variable is set with “to”: set %1 to …</source>
        <translation>Это сравнение, оно ничего не меняет; значение переменной задаётся с помощью «to»: set %1 to …</translation>
    </message>
    <message>
        <source>The script has no handler of that name: on %1(…) … end %1.</source>
        <translation>В сценарии нет обработчика с таким именем: on %1(…) … end %1.</translation>
    </message>
    <message>
        <source>No program takes a command but “activate”; press its keys: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</source>
        <translation>Программы не принимают никаких команд, кроме «activate»; нажимайте их клавиши: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</translation>
    </message>
    <message>
        <source>The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Модификаторы называются command (Super), control (Ctrl), option (Alt) и shift: using %1 down.</translation>
    </message>
    <message>
        <source>An application is named: application &quot;%1&quot;.</source>
        <translation>Приложение указывается так: application &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Текст заключается в прямые кавычки: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A handler has variables of its own; to share this one write there: global %1.</source>
        <translation>У обработчика свои переменные; чтобы эта была общей, напишите в нём: global %1.</translation>
    </message>
    <message>
        <source>A variable is set before it is used: set %1 to … Text stands between straight quotes: &quot;%2&quot;.</source>
        <translation>Значение переменной задаётся до её использования: set %1 to … Текст заключается в прямые кавычки: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.</source>
        <translation>Клавиша нажимается по номеру: key code 36 — это Return. «keyrill-script keys» выводит все номера.</translation>
    </message>
    <message>
        <source>The date of today is “current date”; as a text: short date string of (current date).</source>
        <translation>Сегодняшняя дата — «current date»; в виде текста: short date string of (current date).</translation>
    </message>
    <message>
        <source>Inside “tell” the script’s own handlers are called with “my”: my %1(…).</source>
        <translation>Внутри «tell» собственные обработчики сценария вызываются с «my»: my %1(…).</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Здесь нет открытого блока; у «if» с инструкцией в той же строке не бывает «else».</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Здесь нет открытого блока; у «if» с инструкцией в той же строке не бывает «end if».</translation>
    </message>
    <message>
        <source>No block is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Здесь нет открытого блока; у «tell … to» в одной строке не бывает «end tell».</translation>
    </message>
    <message>
        <source>No block is open here; this line is one too many.</source>
        <translation>Здесь нет открытого блока; эта строка лишняя.</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>Здесь нет открытого «if»; у «if» с инструкцией в той же строке не бывает «else».</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>Здесь нет открытого «if»; у «if» с инструкцией в той же строке не бывает «end if».</translation>
    </message>
    <message>
        <source>No “tell” is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>Здесь нет открытого «tell»; у «tell … to» в одной строке не бывает «end tell».</translation>
    </message>
    <message>
        <source>No “%1” is open here; the block that begins in line %2 has no “end” of its own.</source>
        <extracomment>%1 is the first word of a block, &quot;repeat&quot;, %2 a number.</extracomment>
        <translation>Здесь нет открытого «%1»; у блока, который начинается в строке %2, нет своего «end».</translation>
    </message>
    <message>
        <source>In line %1 these are two words: %2.</source>
        <extracomment>%1 is a number, %2 what the line was meant to be, &quot;end if&quot;.</extracomment>
        <translation>В строке %1 это пишется в два слова: %2.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 has no “end” of its own.</source>
        <translation>У блока, который начинается в строке %1, нет своего «end».</translation>
    </message>
    <message>
        <source>The text that begins here is not closed by a straight quote in its line.</source>
        <translation>Текст, который начинается здесь, не закрыт прямой кавычкой в той же строке.</translation>
    </message>
    <message>
        <source>The comment that begins in line %1 is not closed by “*)”.</source>
        <translation>Комментарий, который начинается в строке %1, не закрыт знаками «*)».</translation>
    </message>
    <message>
        <source>The keyboard commands stand inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Команды клавиатуры ставятся внутри «tell application &quot;System Events&quot;» … «end tell».</translation>
    </message>
    <message>
        <source>Modifiers are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Модификаторы доступны внутри «tell application &quot;System Events&quot;» … «end tell».</translation>
    </message>
    <message>
        <source>Processes are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>Процессы доступны внутри «tell application &quot;System Events&quot;» … «end tell».</translation>
    </message>
    <message>
        <source>Put straight quotes (&quot;) in place of the curly ones.</source>
        <translation>Поставьте прямые кавычки (&quot;) вместо типографских.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to 5.</source>
        <translation>Значение переменной задаётся с помощью «to»: set x to 5.</translation>
    </message>
    <message>
        <source>A loop is written: repeat with i from 1 to 5 … end repeat.</source>
        <translation>Цикл записывается так: repeat with i from 1 to 5 … end repeat.</translation>
    </message>
    <message>
        <source>A handler is written: on greet(x) … end greet.</source>
        <translation>Обработчик записывается так: on greet(x) … end greet.</translation>
    </message>
    <message>
        <source>Several stand in braces: {control down, shift down}, {36, 48}.</source>
        <translation>Несколько значений указываются в фигурных скобках: {control down, shift down}, {36, 48}.</translation>
    </message>
    <message>
        <source>These are two words: else if … then.</source>
        <translation>Это пишется в два слова: else if … then.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, and Return joined with “&amp;”: keystroke &quot;hello&quot; &amp; return.</source>
        <translation>Текст набирается с помощью «keystroke», а Return присоединяется с помощью «&amp;»: keystroke &quot;hello&quot; &amp; return.</translation>
    </message>
    <message>
        <source>A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and let go with: key up 36.</source>
        <translation>Клавиша нажимается и отпускается так: keystroke return или key code 53. Удерживается она так: key down 36, а отпускается так: key up 36.</translation>
    </message>
    <message>
        <source>A macro has no mouse; press the keys that do the same, as Tab and Return.</source>
        <translation>Макрос не может управлять мышью; нажимайте клавиши, которые делают то же самое, например Tab и Return.</translation>
    </message>
    <message>
        <source>Conditions are joined with “and” or “or”.</source>
        <translation>Условия соединяются с помощью «and» или «or».</translation>
    </message>
    <message>
        <source>Of a process its name is known, and whether it is in front: every process whose name contains &quot;fire&quot;.</source>
        <translation>О процессе известно его имя и то, находится ли он на переднем плане: every process whose name contains &quot;fire&quot;.</translation>
    </message>
    <message>
        <source>Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.</source>
        <translation>Макрос не видит окон, кнопок и меню; нажимайте клавиши, которые делают то же самое.</translation>
    </message>
    <message>
        <source>Modifiers stand behind “using”: keystroke &quot;s&quot; using control down.</source>
        <translation>Модификаторы ставятся после «using»: keystroke &quot;s&quot; using control down.</translation>
    </message>
    <message>
        <source>What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.</source>
        <translation>То, что выполняется несколько раз, пишется отдельными строками между «repeat 5 times» и «end repeat».</translation>
    </message>
    <message>
        <source>Each statement has a line of its own.</source>
        <translation>Каждая инструкция пишется в отдельной строке.</translation>
    </message>
    <message>
        <source>A macro has no files; a text comes from “the clipboard” or from a dialog.</source>
        <translation>Макрос не работает с файлами; текст можно взять из «the clipboard» или из диалога.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to x + 1.</source>
        <translation>Значение переменной задаётся с помощью «to»: set x to x + 1.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed in this line.</source>
        <translation>В этой строке не закрыта круглая скобка.</translation>
    </message>
    <message>
        <source>A brace is not closed in this line.</source>
        <translation>В этой строке не закрыта фигурная скобка.</translation>
    </message>
    <message>
        <source>Press the keys that start it, or bring a window to the front: tell application &quot;Firefox&quot; to activate.</source>
        <translation>Нажмите клавиши, которые запускают программу, или выведите окно на передний план: tell application &quot;Firefox&quot; to activate.</translation>
    </message>
    <message>
        <source>Write the command by its name.</source>
        <translation>Укажите команду по имени.</translation>
    </message>
    <message>
        <source>A shortcut is written: keystroke &quot;c&quot; using control down.</source>
        <translation>Комбинация клавиш записывается так: keystroke &quot;c&quot; using control down.</translation>
    </message>
    <message>
        <source>Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat.</source>
        <translation>С помощью «whose» выбираются только процессы; список перебирается так: repeat with x in theList … end repeat.</translation>
    </message>
    <message>
        <source>Behind “default answer” stands a text, be it empty: default answer &quot;&quot;.</source>
        <translation>После «default answer» ставится текст, хотя бы пустой: default answer &quot;&quot;.</translation>
    </message>
    <message>
        <source>An “if” in one line has no “else”; write it in lines, with “end if”.</source>
        <translation>У «if» в одной строке не бывает «else»; запишите его в несколько строк, с «end if».</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: 0.5.</source>
        <translation>Дробная часть отделяется точкой: 0.5.</translation>
    </message>
    <message>
        <source>“delay” counts seconds, without a unit: delay 0.5.</source>
        <translation>«delay» считает в секундах, единица не указывается: delay 0.5.</translation>
    </message>
    <message>
        <source>A key is let go with: key up &quot;a&quot;.</source>
        <translation>Клавиша отпускается так: key up &quot;a&quot;.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, a key is pressed by its number: key code 36.</source>
        <translation>Текст набирается с помощью «keystroke», клавиша нажимается по номеру: key code 36.</translation>
    </message>
    <message>
        <source>A key is held with “key down” and let go with “key up”: key down shift.</source>
        <translation>Клавиша удерживается с помощью «key down» и отпускается с помощью «key up»: key down shift.</translation>
    </message>
    <message>
        <source>The text in the clipboard is: the clipboard.</source>
        <translation>Текст из буфера обмена записывается так: the clipboard.</translation>
    </message>
    <message>
        <source>A loop is written: repeat 5 times … end repeat.</source>
        <translation>Цикл записывается так: repeat 5 times … end repeat.</translation>
    </message>
    <message>
        <source>Behind the name stands “to”, or the line ends there: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</source>
        <translation>После имени ставится «to», или строка на нём заканчивается: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</translation>
    </message>
    <message>
        <source>The name stands between straight quotes: tell application &quot;System Events&quot;.</source>
        <translation>Имя заключается в прямые кавычки: tell application &quot;System Events&quot;.</translation>
    </message>
    <message>
        <source>A loop is written: repeat while x &lt; 5 … end repeat.</source>
        <translation>Цикл записывается так: repeat while x &lt; 5 … end repeat.</translation>
    </message>
    <message>
        <source>A comment begins with -- or #.</source>
        <translation>Комментарий начинается с -- или #.</translation>
    </message>
    <message>
        <source>A comment over lines is written (* … *).</source>
        <translation>Комментарий в несколько строк записывается так: (* … *).</translation>
    </message>
    <message>
        <source>“Equal” is written with one =.</source>
        <translation>«Равно» записывается одним знаком =.</translation>
    </message>
    <message>
        <source>A text is not closed by a straight quote.</source>
        <translation>Текст не закрыт прямой кавычкой.</translation>
    </message>
    <message>
        <source>A backslash in a text is written twice: &quot;C:\\Users&quot;.</source>
        <translation>Обратная косая черта в тексте пишется дважды: &quot;C:\\Users&quot;.</translation>
    </message>
    <message>
        <source>Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.</source>
        <translation>После «as» ставится класс: text, integer, real, number, boolean, list, record, date.</translation>
    </message>
    <message>
        <source>A block has no braces: if x = 1 then … end if.</source>
        <translation>Блок записывается без фигурных скобок: if x = 1 then … end if.</translation>
    </message>
    <message>
        <source>A block has no braces; it ends with “end” and its first word: end repeat.</source>
        <translation>Блок записывается без фигурных скобок; он заканчивается словом «end» и своим первым словом: end repeat.</translation>
    </message>
    <message>
        <source>A line needs no colon at its end.</source>
        <translation>Двоеточие в конце строки не нужно.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|.</source>
        <translation>Имя с буквами, отличными от A–Z, заключается в вертикальные черты: |%1|.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>Имя с буквами, отличными от A–Z, заключается в вертикальные черты: |%1|. Текст заключается в прямые кавычки: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A sign that nobody sees stands here; delete it.</source>
        <translation>Здесь стоит невидимый символ; удалите его.</translation>
    </message>
    <message>
        <source>A hot key is no part of a script; it is set in the preferences, or for each macro in “Macros...”.</source>
        <extracomment>“Macros...” is an entry of the menu.</extracomment>
        <translation>Глобальная комбинация клавиш не является частью сценария; она задаётся в параметрах или, для каждого макроса, в окне «Макросы...».</translation>
    </message>
    <message>
        <source>“Not equal” is written ≠ or /=.</source>
        <translation>«Не равно» записывается как ≠ или /=.</translation>
    </message>
    <message>
        <source>An item is taken by its number: item 1 of x.</source>
        <translation>Элемент берётся по номеру: item 1 of x.</translation>
    </message>
    <message>
        <source>What belongs to a value is taken with “of”: length of x.</source>
        <translation>То, что относится к значению, берётся с помощью «of»: length of x.</translation>
    </message>
    <message>
        <source>A list stands in braces: {1, 2}.</source>
        <translation>Список заключается в фигурные скобки: {1, 2}.</translation>
    </message>
    <message>
        <source>The rest of a division is written: 7 mod 2.</source>
        <translation>Остаток от деления записывается так: 7 mod 2.</translation>
    </message>
    <message>
        <source>Text stands between straight double quotes (&quot;).</source>
        <translation>Текст заключается в прямые двойные кавычки (&quot;).</translation>
    </message>
    <message>
        <source>A quote inside a text is written \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</source>
        <translation>Кавычка внутри текста пишется как \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</translation>
    </message>
    <message>
        <source>Take the items in parts, or paragraphs instead of characters.</source>
        <translation>Берите элементы по частям или используйте абзацы вместо символов.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 ends with “%2”.</source>
        <extracomment>%1 is a number, %2 the last line of a block, &quot;end if&quot;.</extracomment>
        <translation>Блок, который начинается в строке %1, завершается строкой «%2».</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>GNOME&apos;s settings cannot be changed</source>
        <translation>настройки GNOME нельзя изменить</translation>
    </message>
    <message>
        <source>your settings of GNOME have another entry in its place</source>
        <translation>в ваших настройках GNOME на её месте находится другая запись</translation>
    </message>
    <message>
        <source>your own shortcut “%1” in GNOME&apos;s settings has it</source>
        <translation>она занята вашей дополнительной комбинацией клавиш «%1» в настройках GNOME</translation>
    </message>
    <message>
        <source>GNOME has it for “%1”</source>
        <translation>GNOME использует её для «%1»</translation>
    </message>
    <message>
        <source>GNOME has no name for it</source>
        <translation>в GNOME для неё нет имени</translation>
    </message>
    <message>
        <source>it has been taken out of GNOME&apos;s settings</source>
        <translation>она убрана из настроек GNOME</translation>
    </message>
    <message>
        <source>KDE has no name for this key</source>
        <translation>в KDE для этой клавиши нет имени</translation>
    </message>
    <message>
        <source>KDE says: %1</source>
        <translation>KDE сообщает: %1</translation>
    </message>
    <message>
        <source>KDE uses it for something else</source>
        <translation>KDE использует её для другого</translation>
    </message>
    <message>
        <source>KDE does not give it</source>
        <translation>KDE её не предоставляет</translation>
    </message>
    <message>
        <source>%1 has it for “%2”</source>
        <translation>%1 использует её для «%2»</translation>
    </message>
    <message>
        <source>the desktop has not granted it</source>
        <translation>рабочий стол её не разрешил</translation>
    </message>
    <message>
        <source>you did not agree when the desktop asked</source>
        <translation>вы не дали согласия в ответ на запрос рабочего стола</translation>
    </message>
    <message>
        <source>the desktop has not answered</source>
        <translation>рабочий стол не ответил</translation>
    </message>
    <message>
        <source>the desktop has refused it</source>
        <translation>рабочий стол отклонил её</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>нет сеансовой шины</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal does not answer</source>
        <translation>портал рабочего стола не отвечает</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal gives no hot keys</source>
        <translation>портал рабочего стола не даёт глобальных комбинаций клавиш</translation>
    </message>
    <message>
        <source>the desktop has taken it back</source>
        <translation>рабочий стол отозвал её</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal has ended</source>
        <translation>портал рабочего стола завершил работу</translation>
    </message>
    <message>
        <source>your configuration of sway binds it</source>
        <translation>она назначена в вашей конфигурации sway</translation>
    </message>
    <message>
        <source>Choose another combination.</source>
        <translation>Выберите другую комбинацию.</translation>
    </message>
    <message>
        <source>Choose another combination, or allow it in the desktop&apos;s settings.</source>
        <translation>Выберите другую комбинацию или разрешите эту в настройках рабочего стола.</translation>
    </message>
    <message>
        <source>Choose another combination, or free it in the program that holds it.</source>
        <translation>Выберите другую комбинацию или освободите эту в программе, которая её занимает.</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2.</source>
        <extracomment>%1 is a combination of keys, %2 one of the reasons: another program holds it</extracomment>
        <translation>Невозможно использовать комбинацию %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the third level (AltGr).</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Невозможно использовать комбинацию %1: в раскладке клавиатуры нет клавиши для третьего уровня (AltGr).</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the fifth level.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Невозможно использовать комбинацию %1: в раскладке клавиатуры нет клавиши для пятого уровня.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for %2.</source>
        <extracomment>%1 is a combination of keys, %2 a modifier: Super</extracomment>
        <translation>Невозможно использовать комбинацию %1: в раскладке клавиатуры нет клавиши для %2.</translation>
    </message>
    <message>
        <source>%1 cannot be used: Keyrill uses it for something else.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Невозможно использовать комбинацию %1: Keyrill использует её для другого.</translation>
    </message>
    <message>
        <source>%1 cannot be used: this desktop has no such key.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>Невозможно использовать комбинацию %1: на этом рабочем столе нет такой клавиши.</translation>
    </message>
    <message>
        <source>%1 cannot be used: nobody could type it any more.</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Невозможно использовать клавишу %1: ею больше нельзя было бы набирать текст.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super.</source>
        <translation>Добавьте Ctrl, Alt или Super.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>Этот композитор не даёт программам глобальных комбинаций клавиш.</translation>
    </message>
    <message>
        <source>this compositor gives no hot keys to programs</source>
        <translation>этот композитор не даёт программам глобальных комбинаций клавиш</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>она занята другой программой</translation>
    </message>
    <message>
        <source>the X server refuses it with error %1</source>
        <translation>X-сервер отклоняет её с ошибкой %1</translation>
    </message>
    <message>
        <source>the X server is gone</source>
        <translation>X-сервер завершил работу</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>Назначьте клавишам в настройках композитора команды вида «keyrill --action=play».</translation>
    </message>
    <message>
        <source>GNOME has hot keys only in your own settings, which Keyrill may not change.</source>
        <translation>В GNOME комбинации клавиш возможны только в ваших собственных настройках, а Keyrill не разрешено их изменять.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Поставьте флажок в параметрах Keyrill или сами назначьте клавишам в настройках GNOME команды вида «keyrill --action=play».</translation>
    </message>
</context>
<context>
    <name>Keyboards</name>
    <message>
        <source>The keyboard cannot be read: %1: %2.</source>
        <translation>Невозможно читать клавиатуру: %1: %2.</translation>
    </message>
    <message>
        <source>Let the keyboard be read while a macro is recorded.</source>
        <translation>Разрешите чтение клавиатуры на время записи макроса.</translation>
    </message>
    <message>
        <source>The keyboard can no longer be read: the permission has ended.</source>
        <translation>Клавиатуру больше нельзя читать: разрешение больше не действует.</translation>
    </message>
    <message>
        <source>Another user&apos;s session may be in front, or the screen is locked.</source>
        <translation>Возможно, на переднем плане сеанс другого пользователя или экран заблокирован.</translation>
    </message>
    <message>
        <source>The keyboard cannot be read: there is no system bus.</source>
        <translation>Невозможно читать клавиатуру: нет системной шины.</translation>
    </message>
    <message>
        <source>What it says stands in the system&apos;s journal: journalctl -u keyrill-access.</source>
        <translation>Её сообщения находятся в системном журнале: journalctl -u keyrill-access.</translation>
    </message>
    <message>
        <source>The keyboard is no longer read: the service keyrill-access has ended.</source>
        <translation>Клавиатура больше не читается: служба keyrill-access завершила работу.</translation>
    </message>
    <message>
        <source>Keyrill may not read the keyboard: permission was not given.</source>
        <translation>Keyrill не может читать клавиатуру: разрешение не получено.</translation>
    </message>
    <message>
        <source>Record again and agree when you are asked for your password.</source>
        <translation>Начните запись снова и дайте согласие, когда у вас запросят пароль.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access is not installed.</source>
        <translation>Keyrill не может читать клавиатуру: служба keyrill-access не установлена.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, tools/access install.</source>
        <translation>Установите пакет keyrill-wayland-access или выполните tools/access install из исходного кода Keyrill.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access does not work.</source>
        <translation>Keyrill не может читать клавиатуру: служба keyrill-access не работает.</translation>
    </message>
    <message>
        <source>A Wayland session shows this program nothing of what is typed in others.</source>
        <translation>Сеанс Wayland не показывает этой программе ничего из того, что набирают в других.</translation>
    </message>
    <message>
        <source>Record with keyrill itself, or use an X11 session.</source>
        <translation>Записывайте с помощью самого keyrill или используйте сеанс X11.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>This desktop lets no program press keys: no portal for it answers.</source>
        <translation>Этот рабочий стол не позволяет программам нажимать клавиши: ни один портал для этого не отвечает.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to your desktop.</source>
        <translation>Установите xdg-desktop-portal и его часть для вашего рабочего стола.</translation>
    </message>
    <message>
        <source>The desktop was not allowed to let Keyrill press keys.</source>
        <translation>Рабочему столу не дано разрешение на то, чтобы Keyrill нажимал клавиши.</translation>
    </message>
    <message>
        <source>Play again, and agree when you are asked.</source>
        <translation>Запустите воспроизведение снова и дайте согласие, когда появится запрос.</translation>
    </message>
    <message>
        <source>The desktop has not answered whether Keyrill may press keys.</source>
        <translation>Рабочий стол не ответил, можно ли Keyrill нажимать клавиши.</translation>
    </message>
    <message>
        <source>Play again; if nothing asks you, log in again.</source>
        <translation>Запустите воспроизведение снова; если запрос не появится, выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>The desktop no longer lets Keyrill press keys.</source>
        <translation>Рабочий стол больше не позволяет Keyrill нажимать клавиши.</translation>
    </message>
    <message>
        <source>Play again; it may ask for your permission.</source>
        <translation>Запустите воспроизведение снова; возможно, рабочий стол запросит ваше разрешение.</translation>
    </message>
    <message>
        <source>The power key cannot be pressed by a script.</source>
        <translation>Сценарий не может нажать клавишу питания.</translation>
    </message>
    <message>
        <source>Take key code 127 out of the script.</source>
        <translation>Уберите код клавиши 127 из сценария.</translation>
    </message>
    <message>
        <source>The text to type is not UTF-8 at byte %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>Текст для набора не соответствует UTF-8 в байте %1.</translation>
    </message>
    <message>
        <source>Save the script as UTF-8.</source>
        <translation>Сохраните сценарий в кодировке UTF-8.</translation>
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
        <translation>Символ %1 нельзя набрать в текущей раскладке клавиатуры.</translation>
    </message>
    <message>
        <source>Take it out of the text, or switch to a layout that has it before you play.</source>
        <translation>Уберите его из текста или перед воспроизведением переключитесь на раскладку, в которой он есть.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with your keyboard layouts.</source>
        <translation>Символ %1 нельзя набрать в ваших раскладках клавиатуры.</translation>
    </message>
    <message>
        <source>Take it out of the text, or add a layout that has it.</source>
        <translation>Уберите его из текста или добавьте раскладку, в которой он есть.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with this keyboard layout.</source>
        <translation>Символ %1 нельзя набрать в этой раскладке клавиатуры.</translation>
    </message>
    <message>
        <source>Take it out of the text, or set a layout that has it.</source>
        <translation>Уберите его из текста или установите раскладку, в которой он есть.</translation>
    </message>
    <message>
        <source>The keymap for typing could not be made.</source>
        <translation>Не удалось создать таблицу раскладки клавиатуры для набора.</translation>
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
        <source>A script is running already.</source>
        <translation>Сценарий уже выполняется.</translation>
    </message>
    <message>
        <source>Wait for its end.</source>
        <translation>Дождитесь его завершения.</translation>
    </message>
    <message>
        <source>The key %1 types no character.</source>
        <translation>Клавиша %1 не набирает никакого символа.</translation>
    </message>
    <message>
        <source>A Wayland session has no bell.</source>
        <translation>В сеансе Wayland нет системного звукового сигнала.</translation>
    </message>
    <message>
        <source>Take the beep out of the script.</source>
        <translation>Уберите звуковой сигнал из сценария.</translation>
    </message>
    <message>
        <source>KDE lets no program press keys: its portal does not answer.</source>
        <translation>KDE не позволяет программам нажимать клавиши: его портал не отвечает.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal-kde, or use an X11 session.</source>
        <translation>Установите xdg-desktop-portal-kde или используйте сеанс X11.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, such as KDE and GNOME, or an X11 session.</source>
        <translation>Используйте композитор с виртуальными клавиатурами, например sway, рабочий стол, портал которого нажимает клавиши, например KDE или GNOME, или сеанс X11.</translation>
    </message>
    <message>
        <source>The keyboard layout was changed while text was typed, which may have arrived as something else: %1.</source>
        <translation>Во время набора изменилась раскладка клавиатуры, поэтому текст мог быть передан с искажениями: %1.</translation>
    </message>
    <message>
        <source>Play it again when the layout stays as it is.</source>
        <translation>Повторите воспроизведение, когда раскладка не будет меняться.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard, so that no keys can be pressed.</source>
        <translation>Клавиатура занята другой программой, поэтому нажимать клавиши невозможно.</translation>
    </message>
    <message>
        <source>Close the menu, the question or the screen lock that is open, and play again.</source>
        <translation>Закройте открытое меню или запрос либо разблокируйте экран и запустите воспроизведение снова.</translation>
    </message>
    <message>
        <source>The X server refuses to put characters on unused keys.</source>
        <translation>X-сервер отказывается назначать символы неиспользуемым клавишам.</translation>
    </message>
    <message>
        <source>Use characters of the keyboard layout, or set another layout.</source>
        <translation>Используйте символы из раскладки клавиатуры или установите другую раскладку.</translation>
    </message>
    <message>
        <source>The program that is typed into reads nothing; not typed: %1.</source>
        <translation>Программа, в которой набирается текст, ничего не читает; не набрано: %1.</translation>
    </message>
    <message>
        <source>Play it again when the program reads its keys.</source>
        <translation>Повторите воспроизведение, когда программа будет читать клавиши.</translation>
    </message>
    <message>
        <source>The program that was typed into has not read all of it.</source>
        <translation>Программа, в которой набирался текст, прочитала не всё.</translation>
    </message>
    <message>
        <source>See whether it hangs; what it reads later may lack characters.</source>
        <translation>Проверьте, не зависла ли она; в том, что она прочитает позже, могут отсутствовать символы.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.</source>
        <translation>Автоповторы удерживаемых клавиш нельзя записывать: у X-сервера нет расширения RECORD.</translation>
    </message>
    <message>
        <source>A held key is recorded as one press. Switch the extension on in the settings of the X server.</source>
        <translation>Удерживаемая клавиша записывается как одно нажатие. Включите расширение в настройках X-сервера.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys can no longer be recorded: the X server has ended it.</source>
        <translation>Автоповторы удерживаемых клавиш больше нельзя записывать: X-сервер прекратил эту запись.</translation>
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
    <name>Layouts</name>
    <message>
        <source>No key of the present keyboard layout types &quot;%1&quot;.</source>
        <extracomment>%1 is a character.</extracomment>
        <translation>Ни одна клавиша текущей раскладки клавиатуры не набирает «%1».</translation>
    </message>
    <message>
        <source>Convert the keys to text, which types any character.</source>
        <translation>Преобразуйте клавиши в текст: он набирает любые символы.</translation>
    </message>
    <message>
        <source>GNOME lets no program switch the keyboard layout.</source>
        <translation>GNOME не позволяет программам переключать раскладку клавиатуры.</translation>
    </message>
    <message>
        <source>The desktop has no keyboard layout of that number.</source>
        <translation>На рабочем столе нет раскладки клавиатуры с таким номером.</translation>
    </message>
    <message>
        <source>This desktop lets no program switch the keyboard layout.</source>
        <translation>Этот рабочий стол не позволяет программам переключать раскладку клавиатуры.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the third level (AltGr).</source>
        <translation>В раскладке клавиатуры нет клавиши для третьего уровня (AltGr).</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the fifth level.</source>
        <translation>В раскладке клавиатуры нет клавиши для пятого уровня.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for %1.</source>
        <extracomment>%1 is a modifier: Super</extracomment>
        <translation>В раскладке клавиатуры нет клавиши для %1.</translation>
    </message>
    <message>
        <source>Choose a keyboard layout that has one.</source>
        <translation>Выберите раскладку клавиатуры, в которой она есть.</translation>
    </message>
    <message>
        <source>The keyboard has no layout %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>У клавиатуры нет раскладки %1.</translation>
    </message>
    <message>
        <source>Add it to the keyboard layouts, or record the macro again.</source>
        <translation>Добавьте её к раскладкам клавиатуры или запишите макрос заново.</translation>
    </message>
    <message>
        <source>The keymap of the X server cannot be read.</source>
        <translation>Невозможно прочитать таблицу раскладки клавиатуры X-сервера.</translation>
    </message>
    <message>
        <source>Set a keyboard layout, or log in again.</source>
        <translation>Установите раскладку клавиатуры либо выйдите из системы и войдите снова.</translation>
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
        <translation>Невозможно удалить файл %1: %2</translation>
    </message>
    <message>
        <source>Check who may write in its folder.</source>
        <translation>Проверьте, кто может записывать в его папку.</translation>
    </message>
    <message>
        <source>A program whose path has a percent sign cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Программу, путь к которой содержит знак процента, нельзя запускать при входе в систему: %1</translation>
    </message>
    <message>
        <source>Move the program to a folder without one.</source>
        <translation>Переместите программу в папку, путь к которой его не содержит.</translation>
    </message>
    <message>
        <source>A program whose path is not UTF-8 cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>Программу, путь к которой не соответствует UTF-8, нельзя запускать при входе в систему: %1</translation>
    </message>
    <message>
        <source>Move the program to another folder.</source>
        <translation>Переместите программу в другую папку.</translation>
    </message>
    <message>
        <source>A program in a sandbox cannot make an entry that starts it at log-in.</source>
        <translation>Программа в изолированной среде не может создать запись, запускающую её при входе в систему.</translation>
    </message>
    <message>
        <source>Add Keyrill to the programs that start at log-in, in your desktop&apos;s settings.</source>
        <translation>Добавьте Keyrill в программы, запускаемые при входе в систему, в параметрах рабочего стола.</translation>
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
    <name>Programs</name>
    <message>
        <source>The program &quot;%1&quot;, which presses keys by the desktop&apos;s portal, could not be started.</source>
        <translation>Не удалось запустить программу «%1», которая нажимает клавиши через портал рабочего стола.</translation>
    </message>
    <message>
        <source>Install the program again.</source>
        <translation>Установите программу заново.</translation>
    </message>
    <message>
        <source>A text with a zero byte cannot be opened.</source>
        <translation>Невозможно открыть текст с нулевым байтом.</translation>
    </message>
    <message>
        <source>The program xdg-open cannot be started: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Невозможно запустить программу xdg-open: %1</translation>
    </message>
    <message>
        <source>Install the package xdg-utils.</source>
        <translation>Установите пакет xdg-utils.</translation>
    </message>
    <message>
        <source>The guard program &quot;%1&quot;, which releases keys after a crash, could not be started.</source>
        <translation>Не удалось запустить сторожевую программу «%1», которая отпускает клавиши после сбоя.</translation>
    </message>
    <message>
        <source>Install the program again; nothing is played without its guard.</source>
        <translation>Установите программу заново; без сторожевой программы ничего не воспроизводится.</translation>
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
    <name>ScriptDialogs</name>
    <message>
        <source>Please make your selection:</source>
        <translation>Сделайте выбор:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
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
    <name>ScriptErrors</name>
    <message>
        <source>Can’t declare %1 as both a local and global variable.</source>
        <translation>Нельзя объявить %1 одновременно локальной и глобальной переменной.</translation>
    </message>
    <message>
        <source>list of button names</source>
        <translation>список названий кнопок</translation>
    </message>
    <message>
        <source>list of choices</source>
        <translation>список вариантов</translation>
    </message>
    <message>
        <source>Some parameter is missing for %1.</source>
        <translation>Для %1 не хватает параметра.</translation>
    </message>
    <message>
        <source>modifier</source>
        <translation>модификатор</translation>
    </message>
    <message>
        <source>the power key is never pressed by a script.</source>
        <translation>сценарий никогда не нажимает клавишу питания.</translation>
    </message>
    <message>
        <source>%1 doesn’t match the parameters %2 for %3.</source>
        <translation>%1 не соответствует параметрам %2 для %3.</translation>
    </message>
    <message>
        <source>%1 doesn’t understand the “%2” message.</source>
        <translation>%1 не понимает сообщение «%2».</translation>
    </message>
    <message>
        <source>The step of a repeat loop can’t be 0.</source>
        <translation>Шаг цикла «repeat» не может быть равен 0.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences: what is wrong, and what to do about it.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The variable %1 is not defined.</source>
        <translation>Переменная %1 не определена.</translation>
    </message>
    <message>
        <source>unknown token</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>неизвестный символ</translation>
    </message>
    <message>
        <source>unknown token %1</source>
        <translation>неизвестный символ %1</translation>
    </message>
    <message>
        <source>end of script</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>конец сценария</translation>
    </message>
    <message>
        <source>end of line</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>конец строки</translation>
    </message>
    <message>
        <source>variable name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>имя переменной</translation>
    </message>
    <message>
        <source>Raw codes («…») are not supported.</source>
        <translation>Необработанные коды («…») не поддерживаются.</translation>
    </message>
    <message>
        <source>Expected end of line after “¬”.</source>
        <translation>После «¬» ожидался конец строки.</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>число</translation>
    </message>
    <message>
        <source>unknown token %1 (text stands between straight quotes)</source>
        <translation>неизвестный символ %1 (текст заключается в прямые кавычки)</translation>
    </message>
    <message>
        <source>identifier</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>идентификатор</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>Недостаточно памяти.</translation>
    </message>
    <message>
        <source>User canceled.</source>
        <translation>Отменено пользователем.</translation>
    </message>
    <message>
        <source>Application isn’t running.</source>
        <translation>Приложение не запущено.</translation>
    </message>
    <message>
        <source>Connection is invalid.</source>
        <translation>Недопустимое соединение.</translation>
    </message>
    <message>
        <source>Can’t make some data into the expected type.</source>
        <translation>Не удаётся преобразовать данные в ожидаемый тип.</translation>
    </message>
    <message>
        <source>Some parameter is missing for a command.</source>
        <translation>Для команды не хватает параметра.</translation>
    </message>
    <message>
        <source>Some data was of the wrong type.</source>
        <translation>Данные имеют неверный тип.</translation>
    </message>
    <message>
        <source>Some parameter was invalid.</source>
        <translation>Недопустимый параметр.</translation>
    </message>
    <message>
        <source>A message was not understood.</source>
        <translation>Сообщение не понято.</translation>
    </message>
    <message>
        <source>AppleEvent timed out.</source>
        <translation>Истекло время ожидания AppleEvent.</translation>
    </message>
    <message>
        <source>Some required parameter was missing.</source>
        <translation>Отсутствует обязательный параметр.</translation>
    </message>
    <message>
        <source>The handler is not defined.</source>
        <translation>Обработчик не определён.</translation>
    </message>
    <message>
        <source>Can’t get the element. Invalid index.</source>
        <translation>Не удаётся получить элемент. Недопустимый индекс.</translation>
    </message>
    <message>
        <source>Some parameters don’t match.</source>
        <translation>Параметры не соответствуют.</translation>
    </message>
    <message>
        <source>Can’t get the object.</source>
        <translation>Не удаётся получить объект.</translation>
    </message>
    <message>
        <source>Not authorized to send Apple events.</source>
        <translation>Нет разрешения отправлять события Apple.</translation>
    </message>
    <message>
        <source>An error has occurred.</source>
        <translation>Произошла ошибка.</translation>
    </message>
    <message>
        <source>Can’t divide by zero.</source>
        <translation>Нельзя делить на ноль.</translation>
    </message>
    <message>
        <source>The result of a numeric operation was too large.</source>
        <translation>Результат вычисления слишком велик.</translation>
    </message>
    <message>
        <source>Stack overflow.</source>
        <translation>Переполнение стека.</translation>
    </message>
    <message>
        <source>A variable is not defined.</source>
        <translation>Переменная не определена.</translation>
    </message>
    <message>
        <source>No result was returned for some argument of this expression.</source>
        <translation>Для одного из аргументов этого выражения не получен результат.</translation>
    </message>
    <message>
        <source>AppleEvent handler failed.</source>
        <translation>Сбой обработчика AppleEvent.</translation>
    </message>
    <message>
        <source>Can’t set the object.</source>
        <translation>Не удаётся изменить объект.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>%1 is a word of the script language.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 или %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Expected %1 but found %2.</source>
        <extracomment>%1 and %2 are words of the script language in quotes, or &quot;expression&quot;, &quot;end of line&quot; and others below.</extracomment>
        <translation>Ожидалось: %1; найдено: %2.</translation>
    </message>
    <message>
        <source>The %1 parameter is specified more than once.</source>
        <translation>Параметр %1 указан более одного раза.</translation>
    </message>
    <message>
        <source>The %1 property is specified more than once.</source>
        <translation>Свойство %1 указано более одного раза.</translation>
    </message>
    <message>
        <source>The %1 handler is specified more than once.</source>
        <translation>Обработчик %1 указан более одного раза.</translation>
    </message>
    <message>
        <source>%1 got an error: %2</source>
        <translation>В %1 произошла ошибка: %2</translation>
    </message>
    <message>
        <source>An error of type %1 has occurred.</source>
        <translation>Произошла ошибка типа %1.</translation>
    </message>
    <message>
        <source>Can’t both consider and ignore %1.</source>
        <translation>Нельзя одновременно учитывать и игнорировать %1.</translation>
    </message>
    <message>
        <source>Expected at most %1 parameters but found more.</source>
        <translation>Ожидалось не более %1 параметров, найдено больше.</translation>
    </message>
    <message>
        <source>expression</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>выражение</translation>
    </message>
    <message>
        <source>class name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>имя класса</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro can press keys and nothing else.</source>
        <translation>«%1» отклоняется: макрос может только нажимать клавиши.</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro is one script.</source>
        <translation>«%1» отклоняется: макрос — это один сценарий.</translation>
    </message>
    <message>
        <source>Expected at most %1 items in a list but found more.</source>
        <translation>Ожидалось не более %1 элементов в списке, найдено больше.</translation>
    </message>
    <message>
        <source>Expected at most %1 properties in a record but found more.</source>
        <translation>Ожидалось не более %1 свойств в записи, найдено больше.</translation>
    </message>
    <message>
        <source>Expected at most %1 levels of nesting but found more.</source>
        <translation>Ожидалось не более %1 уровней вложенности, найдено больше.</translation>
    </message>
    <message>
        <source>Tell statements are nested too deeply.</source>
        <translation>Инструкции «tell» вложены слишком глубоко.</translation>
    </message>
    <message>
        <source>Expected at most 16 MiB of script but found more.</source>
        <translation>Сценарий не может быть больше 16 МиБ, а этот больше.</translation>
    </message>
    <message>
        <source>Expected text in UTF-8 but found another byte.</source>
        <translation>Ожидался текст в UTF-8, найден другой байт.</translation>
    </message>
    <message>
        <source>Exit statement was not in a repeat loop.</source>
        <translation>Инструкция «exit» находится вне цикла «repeat».</translation>
    </message>
    <message>
        <source>Can’t divide %1 by zero.</source>
        <translation>Нельзя разделить %1 на ноль.</translation>
    </message>
    <message>
        <source>A list holds at most %1 items.</source>
        <translation>Список содержит не более %1 элементов.</translation>
    </message>
    <message>
        <source>Can’t get contents of a variable that is not set.</source>
        <translation>Не удаётся получить содержимое переменной, значение которой не задано.</translation>
    </message>
    <message>
        <source>Can’t make %1 into type %2.</source>
        <translation>Не удаётся преобразовать %1 в тип %2.</translation>
    </message>
    <message>
        <source>Can’t get %1.</source>
        <translation>Не удаётся получить %1.</translation>
    </message>
    <message>
        <source>Can’t set %1 to %2.</source>
        <translation>Не удаётся присвоить %1 значение %2.</translation>
    </message>
    <message>
        <source>Can’t raise %1 to the power of %2: the result is no number.</source>
        <translation>Нельзя возвести %1 в степень %2: результат не является числом.</translation>
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
    <name>ScriptTool</name>
    <message>
        <source>--times %1 is not how often a script can be played.</source>
        <translation>--times %1 не может быть числом воспроизведений сценария.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>Это целое число не меньше 1 или until-stopped.</translation>
    </message>
    <message>
        <source>Nobody can stop a trace.</source>
        <translation>Трассировку некому остановить.</translation>
    </message>
    <message>
        <source>Give --times a number.</source>
        <translation>Укажите для --times число.</translation>
    </message>
    <message>
        <source>--speed %1 is not how fast a script can be played.</source>
        <translation>--speed %1 не может быть скоростью воспроизведения сценария.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4.</source>
        <translation>Это число от 0.25 до 4.</translation>
    </message>
    <message>
        <source>This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.</source>
        <translation>Это не UTF-8, поэтому весь файл читается как Mac Roman. Сохраните его в UTF-8.</translation>
    </message>
    <message>
        <source>Press a key.</source>
        <translation>Нажмите клавишу.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>Подсказка: %1</translation>
    </message>
    <message>
        <source>%1; standard input is &quot;-&quot;</source>
        <translation>%1; стандартный ввод — «-»</translation>
    </message>
    <message>
        <source>(Return)</source>
        <translation>(Return)</translation>
    </message>
    <message>
        <source>No dialog can be shown here.</source>
        <translation>Здесь нельзя показать диалог.</translation>
    </message>
    <message>
        <source>Run the script in a terminal.</source>
        <translation>Запустите сценарий в терминале.</translation>
    </message>
    <message>
        <source>The question was not answered.</source>
        <translation>На вопрос не ответили.</translation>
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
        <translation>Использование: keyrill-script check ФАЙЛ    скомпилировать и сообщить об ошибках; с --json — для редакторов
               keyrill-script run [--times N] [--speed X] ФАЙЛ
                                            нажать клавиши столько раз (или until-stopped), деля паузы на X
               keyrill-script trace ФАЙЛ    вывести, что было бы сделано, по массиву JSON в строке
               keyrill-script format ФАЙЛ   вывести сценарий в едином оформлении
               keyrill-script keys          вывести коды клавиш; с --press — код следующей клавиши
               keyrill-script reference     вывести справочник языка
               keyrill-script -h | --help | --version
ФАЙЛ - — стандартный ввод; -e СТРОКА, один или несколько раз, задаёт сам сценарий.
</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Команды «%1» нет.</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Невозможно записать в стандартный вывод.</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>не удаётся записать вывод</translation>
    </message>
    <message>
        <source>“%1” has no option “%2”.</source>
        <translation>У команды «%1» нет параметра «%2».</translation>
    </message>
    <message>
        <source>“keyrill-script --help” tells which there are.</source>
        <translation>Все параметры показывает «keyrill-script --help».</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no session bus.</source>
        <translation>Нет сеансовой шины.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>sway does not answer at $SWAYSOCK.</source>
        <translation>Нет ответа от sway по адресу $SWAYSOCK.</translation>
    </message>
    <message>
        <source>Start the program in the session of sway.</source>
        <translation>Запустите программу в сеансе sway.</translation>
    </message>
    <message>
        <source>sway says: %1</source>
        <translation>Сообщение sway: %1</translation>
    </message>
    <message>
        <source>There is no kind of session called &quot;%1&quot;.</source>
        <translation>Вида сеанса с именем «%1» нет.</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>Выберите один из следующих: %1.</translation>
    </message>
    <message>
        <source>No kind of session is known.</source>
        <translation>Ни один вид сеанса не известен.</translation>
    </message>
    <message>
        <source>The connection to the compositor was lost.</source>
        <translation>Соединение с композитором потеряно.</translation>
    </message>
    <message>
        <source>No Wayland compositor answers at $WAYLAND_DISPLAY.</source>
        <translation>Ни один композитор Wayland не отвечает по адресу $WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Start the program in a Wayland session.</source>
        <translation>Запустите программу в сеансе Wayland.</translation>
    </message>
    <message>
        <source>The Wayland compositor is gone.</source>
        <translation>Композитор Wayland завершил работу.</translation>
    </message>
    <message>
        <source>$WAYLAND_DISPLAY names no Wayland compositor.</source>
        <translation>В $WAYLAND_DISPLAY не указан композитор Wayland.</translation>
    </message>
    <message>
        <source>The X server is gone.</source>
        <translation>X-сервер завершил работу.</translation>
    </message>
    <message>
        <source>This is a Wayland session without an X server.</source>
        <translation>Это сеанс Wayland без X-сервера.</translation>
    </message>
    <message>
        <source>Install Xwayland, or switch it on in the desktop&apos;s settings, and log in again; or choose an X11 session when you log in.</source>
        <translation>Установите Xwayland или включите его в настройках рабочего стола, затем выйдите из системы и войдите снова; либо выберите сеанс X11 при входе в систему.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is no desktop session.</source>
        <translation>Нужен сеанс X11, а это не графический сеанс.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is a Wayland session without an X server.</source>
        <translation>Нужен сеанс X11, а это сеанс Wayland без X-сервера.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>Выберите сеанс X11 при входе в систему.</translation>
    </message>
    <message>
        <source>The connection to the X server was lost.</source>
        <translation>Соединение с X-сервером потеряно.</translation>
    </message>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>Используйте более новый X-сервер или включите расширение в его настройках.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has no XInput.</source>
        <translation>X-сервер должен иметь XInput 2.2 или новее, но XInput у него нет.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but does not answer.</source>
        <translation>X-сервер должен иметь XInput 2.2 или новее, но он не отвечает.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has %1.</source>
        <translation>X-сервер должен иметь XInput 2.2 или новее, но у него версия %1.</translation>
    </message>
    <message>
        <source>The X server must have the XKB extension, but it cannot be used.</source>
        <translation>X-сервер должен иметь расширение XKB, но использовать его невозможно.</translation>
    </message>
    <message>
        <source>The X server must have the XTEST extension, but it has not.</source>
        <translation>X-сервер должен иметь расширение XTEST, но у него его нет.</translation>
    </message>
    <message>
        <source>The X server of display &quot;%1&quot; cannot be reached.</source>
        <translation>X-сервер дисплея «%1» недоступен.</translation>
    </message>
    <message>
        <source>Start the program inside a desktop session, or set DISPLAY to a running X server.</source>
        <translation>Запустите программу в графическом сеансе или укажите в DISPLAY работающий X-сервер.</translation>
    </message>
    <message>
        <source>virtual keyboard</source>
        <translation>виртуальная клавиатура</translation>
    </message>
    <message>
        <source>GNOME&apos;s settings</source>
        <translation>параметры GNOME</translation>
    </message>
    <message>
        <source>portal for keys</source>
        <translation>портал для клавиш</translation>
    </message>
    <message>
        <source>portal for hot keys</source>
        <translation>портал для глобальных комбинаций клавиш</translation>
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
    <name>Settings</name>
    <message>
        <source>It has a zero byte</source>
        <translation>Он содержит нулевой байт</translation>
    </message>
    <message>
        <source>The settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>Файл настроек %1 не является файлом ключей: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>Файл настроек макросов %1 не является файлом ключей: %2</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>Невозможно создать папку настроек %1: %2</translation>
    </message>
    <message>
        <source>The macro settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>Невозможно создать папку настроек макросов %1: %2</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>Файл переименован в %1, а настройки сброшены.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and hot keys, times and speeds begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>Файл переименован в %1, а комбинации клавиш, число воспроизведений и скорости сброшены.</translation>
    </message>
    <message>
        <source>Correct the file or remove it.</source>
        <translation>Исправьте файл или удалите его.</translation>
    </message>
    <message>
        <source>It could not be put aside either: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>Переименовать его тоже не удалось: %1</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Невозможно прочитать файл настроек %1: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Невозможно прочитать файл настроек макросов %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Невозможно записать файл настроек %1: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>Невозможно записать файл настроек макросов %1: %2</translation>
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
    <name>Warnings</name>
    <message>
        <source>This is typed as it stands; the key has a number: key code %1.</source>
        <translation>Это набирается буквально; у клавиши есть номер: key code %1.</translation>
    </message>
    <message>
        <source>“%1” is typed as it stands. %2</source>
        <extracomment>%1 is the name of a key in braces, %2 a sentence that says how the key is written.</extracomment>
        <translation>«%1» набирается буквально. %2</translation>
    </message>
    <message>
        <source>Key code %1 is an extension, which only Keyrill plays.</source>
        <translation>Код клавиши %1 — расширение, которое воспроизводит только Keyrill.</translation>
    </message>
    <message>
        <source>Key code %1 has no key; nothing is pressed.</source>
        <translation>Коду клавиши %1 не соответствует никакая клавиша; ничего не нажимается.</translation>
    </message>
    <message>
        <source>A dialog gives a record and no text; take: button returned of %1, or text returned of %1.</source>
        <translation>Диалог возвращает запись (record), а не текст; используйте: button returned of %1 или text returned of %1.</translation>
    </message>
    <message>
        <source>An alert gives a record and no text; take: button returned of %1.</source>
        <translation>Оповещение возвращает запись (record), а не текст; используйте: button returned of %1.</translation>
    </message>
    <message>
        <source>What was chosen comes in a list; take: item 1 of %1.</source>
        <translation>Выбранное возвращается в списке; используйте: item 1 of %1.</translation>
    </message>
    <message>
        <source>The loop gives a reference, which equals no text; compare: contents of %1.</source>
        <translation>Цикл даёт ссылку, которая не равна никакому тексту; сравнивайте: contents of %1.</translation>
    </message>
    <message>
        <source>“%1” is taken as “%1 down”.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>«%1» понимается как «%1 down».</translation>
    </message>
    <message>
        <source>“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….</source>
        <extracomment>%1 is an operator, &quot;&gt;&quot;, %2 a command, &quot;count&quot;.</extracomment>
        <translation>«%1» относится к тому, что передаётся команде «%2»; заключите команду в скобки: (%2 …) %1 ….</translation>
    </message>
    <message>
        <source>“delay” counts seconds; %1 milliseconds are: delay %2.</source>
        <translation>«delay» считает в секундах; %1 мс — это: delay %2.</translation>
    </message>
    <message>
        <source>This is typed as it stands; a shortcut is written: keystroke &quot;%1&quot; using %2 down.</source>
        <extracomment>%1 is a letter, %2 the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>Это набирается буквально; комбинация клавиш записывается так: keystroke &quot;%1&quot; using %2 down.</translation>
    </message>
    <message>
        <source>A modifier is held with: key down shift, without quotes.</source>
        <translation>Модификатор удерживается так, без кавычек: key down shift.</translation>
    </message>
    <message>
        <source>The variable %1 is never set. %2</source>
        <extracomment>%2 is a sentence that says what may have been meant.</extracomment>
        <translation>Значение переменной %1 нигде не задаётся. %2</translation>
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
<context>
    <name>Windows</name>
    <message>
        <source>KWin does not tell of its windows.</source>
        <translation>KWin не сообщает об окнах.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>Выйдите из системы и войдите снова.</translation>
    </message>
    <message>
        <source>No file could be written for KWin.</source>
        <translation>Не удалось записать файл для KWin.</translation>
    </message>
    <message>
        <source>Free some space.</source>
        <translation>Освободите место.</translation>
    </message>
    <message>
        <source>KWin runs no scripts: %1</source>
        <translation>KWin не выполняет сценарии: %1</translation>
    </message>
    <message>
        <source>KWin does not show the window any more.</source>
        <translation>KWin больше не показывает это окно.</translation>
    </message>
    <message>
        <source>Open it again.</source>
        <translation>Откройте его снова.</translation>
    </message>
    <message>
        <source>This compositor tells nobody of windows.</source>
        <translation>Этот композитор никому не сообщает об окнах.</translation>
    </message>
    <message>
        <source>Use a compositor with toplevel management, such as sway, or an X11 session.</source>
        <translation>Используйте композитор с протоколом toplevel management, например sway, или сеанс X11.</translation>
    </message>
    <message>
        <source>No window of “%1” is open.</source>
        <translation>Нет открытых окон «%1».</translation>
    </message>
    <message>
        <source>Start it first.</source>
        <translation>Сначала запустите программу.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>Окна нет на экране.</translation>
    </message>
</context>
</TS>
