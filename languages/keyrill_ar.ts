<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>رخصة LGPL 2.1 أو أحدث</translation>
    </message>
    <message>
        <source>curl licence</source>
        <translation>رخصة curl</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>عن Keyrill</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>التوثيق (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>صفحة المنتج (&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Maker&apos;s Website</source>
        <translation>موقع المطوّر (&amp;M)</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>بُني باستخدام</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Records the keys you press and presses them again.</source>
        <translation>يسجّل المفاتيح التي تضغطها ثم يضغطها من جديد.</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Keyrill authors. Free software under the MIT licence, without any warranty.</source>
        <translation>حقوق النشر © 2026 لمؤلفي Keyrill. برنامج حر برخصة MIT، دون أي ضمان.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
</context>
<context>
    <name>AccessDesk</name>
    <message>
        <source>To record what you type in other programs, Keyrill has to read the keyboard until the recording ends. That is why you are asked for your password.</source>
        <translation>لتسجيل ما تكتبه في البرامج الأخرى، على Keyrill أن يقرأ لوحة المفاتيح إلى أن ينتهي التسجيل. لهذا تُطلب منك كلمة السر.</translation>
    </message>
</context>
<context>
    <name>ActionCall</name>
    <message>
        <source>Keyrill is not running.</source>
        <translation>لا يعمل Keyrill.</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>The screen is locked.</source>
        <translation>الشاشة مقفلة.</translation>
    </message>
    <message>
        <source>Keyrill is asking something, which has to be answered first.</source>
        <translation>يطرح Keyrill سؤالا تجب الإجابة عنه أولا.</translation>
    </message>
    <message>
        <source>A macro is being recorded.</source>
        <translation>يجري تسجيل ماكرو.</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>لا يوجد ماكرو لتشغيله بعد.</translation>
    </message>
    <message>
        <source>A macro is being recorded already.</source>
        <translation>يجري تسجيل ماكرو بالفعل.</translation>
    </message>
    <message>
        <source>Nothing is being recorded or played.</source>
        <translation>لا يُسجَّل شيء ولا يُشغَّل.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>لا يُسجَّل شيء.</translation>
    </message>
    <message>
        <source>Keyrill is asking how often to play.</source>
        <translation>يسأل Keyrill عن عدد مرات التشغيل.</translation>
    </message>
    <message>
        <source>Keyrill&apos;s hot keys are off while they are being chosen in a window of its own.</source>
        <translation>اختصارات Keyrill معطّلة ما دامت تُختار في إحدى نوافذه.</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Keyrill Update Available</source>
        <translation>يتوفر تحديث لبرنامج Keyrill</translation>
    </message>
    <message>
        <source>There is a new update available for Keyrill, would you like to download it now?</source>
        <translation>يتوفر تحديث جديد لبرنامج Keyrill، أتريد تنزيله الآن؟</translation>
    </message>
    <message>
        <source>Keyrill requires that programs can see and press keys in this session. </source>
        <translation>يتطلب Keyrill أن تستطيع البرامج رؤية المفاتيح وضغطها في هذه الجلسة. </translation>
    </message>
    <message>
        <source>Please see the &apos;Configuration&apos; section of the documentation for more information.

Keyrill must close, please restart it once this is possible.
</source>
        <translation>لمزيد من المعلومات راجع قسم «Configuration» في التوثيق.

سيُغلق Keyrill، أعد تشغيله عندما يصبح ذلك ممكنا.
</translation>
    </message>
    <message>
        <source>Open Documentation now</source>
        <translation>فتح التوثيق الآن</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Recording is not possible in this session yet</source>
        <translation>التسجيل غير ممكن في هذه الجلسة بعد</translation>
    </message>
    <message>
        <source>Nothing was recorded</source>
        <translation>لم يُسجَّل شيء</translation>
    </message>
    <message>
        <source>The recording has ended</source>
        <translation>انتهى التسجيل</translation>
    </message>
    <message>
        <source>What was recorded until then is kept.</source>
        <translation>بقي ما سُجِّل حتى ذلك الحين محفوظا.</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>No Update Available</source>
        <translation>لا يوجد تحديث</translation>
    </message>
    <message>
        <source>You&apos;re currently running the latest version of Keyrill</source>
        <translation>أنت تستخدم أحدث إصدار من Keyrill</translation>
    </message>
    <message>
        <source>The macro was not saved as &quot;%1&quot;.</source>
        <translation>لم يُحفظ الماكرو باسم «⁨%1⁩».</translation>
    </message>
    <message>
        <source>No macro was loaded from &quot;%1&quot;.</source>
        <translation>لم يُحمَّل أي ماكرو من «⁨%1⁩».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>الملف «⁨%1⁩» موجود بالفعل.</translation>
    </message>
    <message>
        <source>Do you want to replace it? What is in it will be lost.</source>
        <translation>أتريد استبداله؟ سيُفقد محتواه.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a macro file.</source>
        <translation>الملف «⁨%1⁩» ليس ملف ماكرو.</translation>
    </message>
    <message>
        <source>The names of Keyrill&apos;s macro files end with &quot;.%1&quot;.</source>
        <translation>تنتهي أسماء ملفات الماكرو في Keyrill بـ «⁨.%1⁩».</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>لا يوجد ملف باسم «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Check the name, or choose one of the list.</source>
        <translation>تحقق من الاسم، أو اختر ملفا من القائمة.</translation>
    </message>
    <message>
        <source>Your settings were not saved.</source>
        <translation>لم تُحفظ إعداداتك.</translation>
    </message>
    <message>
        <source>Whether Keyrill starts when you log in could not be changed.</source>
        <translation>تعذر تغيير إعداد بدء Keyrill عند الولوج.</translation>
    </message>
    <message>
        <source>Something is wrong with your settings.</source>
        <translation>يوجد خطأ في إعداداتك.</translation>
    </message>
    <message>
        <source>May Keyrill write its hot keys into GNOME&apos;s settings?</source>
        <translation>هل تسمح لبرنامج Keyrill بكتابة اختصاراته في إعدادات GNOME؟</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. Keyrill would write one there for each of its combinations, and take them out when it ends. It does not touch what is yours.

You can change your mind in Keyrill&apos;s preferences.</source>
        <translation>لا يتيح هذا الإصدار من GNOME اختصارات عامة للبرامج إلا كاختصارات مخصصة في إعداداتك. سيكتب Keyrill هناك اختصارا لكل تركيبة من تركيباته ويزيلها عند انتهائه، ولا يمس اختصاراتك أنت.

يمكنك تغيير رأيك في تفضيلات Keyrill.</translation>
    </message>
    <message>
        <source>Write Them</source>
        <translation>اكتبها</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>ليس الآن</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>أبدا</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more under &quot;Configuration&quot;.</source>
        <translation>في هذه الجلسة لا يرى Keyrill إلا نوافذ برامج X11، ولا يصل إلى غيرها. لمزيد من المعلومات راجع «Configuration» في الدليل.</translation>
    </message>
</context>
<context>
    <name>ApplicationObject</name>
    <message>
        <source>Keyrill is playing a macro.</source>
        <translation>يشغّل Keyrill ماكرو الآن.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;. There are: %2.</source>
        <translation>لا يوجد إجراء باسم «%1». المتاح: %2.</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; takes no parameter.</source>
        <translation>لا يقبل الإجراء «%1» أي معامل.</translation>
    </message>
</context>
<context>
    <name>BusOwner</name>
    <message>
        <source>Keyrill has ended without an answer.</source>
        <translation>انتهى Keyrill دون أن يجيب.</translation>
    </message>
    <message>
        <source>Process %1, which has Keyrill&apos;s name on the session bus, does not answer.</source>
        <translation>العملية %1 التي تحمل اسم Keyrill على ناقل الجلسة لا تستجيب.</translation>
    </message>
    <message>
        <source>End it and start Keyrill again.</source>
        <translation>أنهِها وابدأ Keyrill من جديد.</translation>
    </message>
</context>
<context>
    <name>CapabilityWords</name>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>استخدم خادم X أحدث، أو فعّل الامتداد في إعداداته.</translation>
    </message>
    <message>
        <source>by XInput</source>
        <translation>عبر XInput</translation>
    </message>
    <message>
        <source>by key grabs</source>
        <translation>عبر حجز المفاتيح</translation>
    </message>
    <message>
        <source>by XTEST</source>
        <translation>عبر XTEST</translation>
    </message>
    <message>
        <source>the X server&apos;s</source>
        <translation>حافظة خادم X</translation>
    </message>
    <message>
        <source>above all windows</source>
        <translation>فوق كل النوافذ</translation>
    </message>
    <message>
        <source>by the window manager</source>
        <translation>عبر مدير النوافذ</translation>
    </message>
    <message>
        <source>a tray that icons dock into</source>
        <translation>صينية نظام تُضمَّن فيها الأيقونات</translation>
    </message>
    <message>
        <source>a tray that asks for icons over the session bus</source>
        <translation>صينية نظام تطلب الأيقونات عبر ناقل الجلسة</translation>
    </message>
    <message>
        <source>by a virtual keyboard</source>
        <translation>عبر لوحة مفاتيح افتراضية</translation>
    </message>
    <message>
        <source>by bindings of sway&apos;s</source>
        <translation>عبر ارتباطات المفاتيح في sway</translation>
    </message>
    <message>
        <source>by KDE&apos;s shortcuts</source>
        <translation>عبر اختصارات KDE</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal, once you allow it</source>
        <translation>عبر بوابة سطح المكتب، بعد أن تسمح بذلك</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal: you choose them when it asks, and later in its settings</source>
        <translation>عبر بوابة سطح المكتب: تختار أنت الاختصارات عندما تسألك البوابة، ولاحقا في إعداداتها</translation>
    </message>
    <message>
        <source>by sway</source>
        <translation>عبر sway</translation>
    </message>
    <message>
        <source>by KWin</source>
        <translation>عبر KWin</translation>
    </message>
    <message>
        <source>what you type into a window of Keyrill&apos;s, &quot;Record Here&quot;</source>
        <translation>ما تكتبه في نافذة من نوافذ Keyrill، «التسجيل هنا»</translation>
    </message>
    <message>
        <source>the compositor&apos;s</source>
        <translation>حافظة المُركِّب</translation>
    </message>
    <message>
        <source>as an ordinary window</source>
        <translation>كنافذة عادية</translation>
    </message>
    <message>
        <source>on a layer above all windows</source>
        <translation>على طبقة فوق كل النوافذ</translation>
    </message>
    <message>
        <source>from the keyboards themselves, which every program of yours may read</source>
        <translation>من لوحات المفاتيح نفسها، التي يستطيع كل برنامج من برامجك قراءتها</translation>
    </message>
    <message>
        <source>by keyrill-access, which asks for your password and opens the keyboard while Keyrill records</source>
        <translation>عبر keyrill-access، الذي يطلب كلمة السر ويفتح لوحة المفاتيح أثناء تسجيل Keyrill</translation>
    </message>
    <message>
        <source>The display cannot be reached.</source>
        <translation>يتعذر الوصول إلى شاشة العرض.</translation>
    </message>
    <message>
        <source>Start Keyrill inside a desktop session.</source>
        <translation>ابدأ Keyrill داخل جلسة رسومية.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which shows keys.</source>
        <translation>ينقص خادم X الامتداد %1، الذي يُظهر المفاتيح.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which says what keys mean.</source>
        <translation>ينقص خادم X الامتداد %1، الذي يبيّن معاني المفاتيح.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which presses keys.</source>
        <translation>ينقص خادم X الامتداد %1، الذي يضغط المفاتيح.</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1: a key that is held is recorded once.</source>
        <translation>ينقص خادم X الامتداد %1: يُسجَّل المفتاح المضغوط مطولا مرة واحدة.</translation>
    </message>
    <message>
        <source>The program keyrill-guard, which releases keys after a crash, is not there; nothing is played without it.</source>
        <translation>البرنامج keyrill-guard الذي يُفلت المفاتيح بعد الانهيار غير موجود؛ لا يُشغَّل شيء من دونه.</translation>
    </message>
    <message>
        <source>Install Keyrill again.</source>
        <translation>ثبّت Keyrill من جديد.</translation>
    </message>
    <message>
        <source>Only with the windows of X11 programs: this is a Wayland session.</source>
        <translation>مع نوافذ برامج X11 فقط: هذه جلسة Wayland.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>اختر جلسة X11 عند الولوج.</translation>
    </message>
    <message>
        <source>There is none; a small window with the menu stands in for the icon.</source>
        <translation>لا توجد صينية نظام؛ تحل نافذة صغيرة فيها القائمة محل الأيقونة.</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. GNOME needs the extension &quot;AppIndicator and KStatusNotifierItem Support&quot;.</source>
        <translation>أضف صينية النظام إلى لوحة سطح المكتب. يحتاج GNOME إلى الامتداد «AppIndicator and KStatusNotifierItem Support».</translation>
    </message>
    <message>
        <source>A Wayland session shows no program what is typed in others, and the service that would is not installed.</source>
        <translation>لا تُظهر جلسة Wayland لأي برنامج ما يُكتب في غيره، والخدمة التي تتيح ذلك غير مثبتة.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, &quot;tools/access install&quot;; or record in an X11 session, macros play in both.</source>
        <translation>ثبّت الحزمة keyrill-wayland-access، أو نفّذ «tools/access install» من مصادر Keyrill؛ أو سجّل في جلسة X11، فوحدات الماكرو تعمل في كلتيهما.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>لا يتيح هذا المُركِّب اختصارات عامة للبرامج.</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>اربط المفاتيح بأوامر مثل «keyrill --action=play» في إعدادات المُركِّب.</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>لا يسمح هذا المُركِّب لأي برنامج بضغط المفاتيح.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>استخدم مُركِّبا فيه لوحات مفاتيح افتراضية مثل sway، أو جلسة X11.</translation>
    </message>
    <message>
        <source>This desktop lets no program press keys: its portal does not answer.</source>
        <translation>لا يسمح سطح المكتب هذا لأي برنامج بضغط المفاتيح: بوابته لا تستجيب.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to the desktop, such as xdg-desktop-portal-kde.</source>
        <translation>ثبّت xdg-desktop-portal والجزء الخاص بسطح المكتب منه، مثل xdg-desktop-portal-kde.</translation>
    </message>
    <message>
        <source>Only characters that one of your keyboard layouts has.</source>
        <translation>المحارف الموجودة في أحد تخطيطات لوحة مفاتيحك فقط.</translation>
    </message>
    <message>
        <source>Add a layout that has them in the desktop&apos;s settings.</source>
        <translation>أضف تخطيطا يحتويها في إعدادات سطح المكتب.</translation>
    </message>
    <message>
        <source>Only characters that the keyboard layout in force has.</source>
        <translation>المحارف الموجودة في تخطيط لوحة المفاتيح الحالي فقط.</translation>
    </message>
    <message>
        <source>Switch to a layout that has the others before you play.</source>
        <translation>انتقل إلى تخطيط يحتوي البقية قبل التشغيل.</translation>
    </message>
    <message>
        <source>This compositor shows the clipboard to windows in front alone.</source>
        <translation>لا يُظهر هذا المُركِّب الحافظة إلا للنوافذ الأمامية.</translation>
    </message>
    <message>
        <source>Scripts that use the clipboard need another compositor, such as sway, or an X11 session.</source>
        <translation>تحتاج السكربتات التي تستخدم الحافظة إلى مُركِّب آخر مثل sway، أو إلى جلسة X11.</translation>
    </message>
    <message>
        <source>This compositor tells nothing of other programs&apos; windows.</source>
        <translation>لا يخبر هذا المُركِّب بشيء عن نوافذ البرامج الأخرى.</translation>
    </message>
    <message>
        <source>Scripts that bring a window to the front need sway, KDE or an X11 session.</source>
        <translation>تحتاج السكربتات التي تجلب نافذة إلى الأمام إلى sway أو KDE أو جلسة X11.</translation>
    </message>
    <message>
        <source>Full-screen windows may cover it.</source>
        <translation>قد تغطيها نوافذ ملء الشاشة.</translation>
    </message>
    <message>
        <source>Use a compositor that has layers, such as sway&apos;s or KDE&apos;s, or an X11 session.</source>
        <translation>استخدم مُركِّبا له طبقات، كالذي في sway أو KDE، أو جلسة X11.</translation>
    </message>
    <message>
        <source>by custom shortcuts in GNOME&apos;s settings while Keyrill runs, as you have agreed; the preferences take that back</source>
        <translation>عبر اختصارات مخصصة في إعدادات GNOME ما دام Keyrill يعمل، كما وافقت؛ ويمكنك سحب ذلك من التفضيلات</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>لا يتيح هذا الإصدار من GNOME اختصارات عامة للبرامج إلا كاختصارات مخصصة في إعداداتك، ولم توافق على أن يكتبها Keyrill.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>ضع علامة في المربع في تفضيلات Keyrill، أو اربط بنفسك المفاتيح بأوامر مثل «keyrill --action=play» في إعدادات GNOME.</translation>
    </message>
    <message>
        <source>by the compositor</source>
        <translation>عبر المُركِّب</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>This compositor gives the clipboard to windows alone.</source>
        <translation>لا يتيح هذا المُركِّب الحافظة إلا للنوافذ.</translation>
    </message>
    <message>
        <source>Use a compositor with data control, such as sway, or an X11 session.</source>
        <translation>استخدم مُركِّبا فيه التحكم في البيانات مثل sway، أو جلسة X11.</translation>
    </message>
    <message>
        <source>No more files can be opened.</source>
        <translation>لا يمكن فتح المزيد من الملفات.</translation>
    </message>
    <message>
        <source>Close programs.</source>
        <translation>أغلق بعض البرامج.</translation>
    </message>
    <message>
        <source>The text in the clipboard is too long.</source>
        <translation>النص الموجود في الحافظة أطول مما ينبغي.</translation>
    </message>
    <message>
        <source>The clipboard is held by another program.</source>
        <translation>يحجز برنامج آخر الحافظة.</translation>
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
        <translation>يحدد --times و --speed كيفية التشغيل بـ --play.</translation>
    </message>
    <message>
        <source>keyrill --help tells more.</source>
        <translation>يشرح keyrill --help المزيد.</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>لا يوجد خيار باسم «%1».</translation>
    </message>
    <message>
        <source>keyrill --help lists them.</source>
        <translation>يسرد keyrill --help الخيارات.</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>لا يوجد إجراء باسم «%1».</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>اختر واحدا من هذه: %1.</translation>
    </message>
    <message>
        <source>An action takes no file, and &quot;%1&quot; was given.</source>
        <translation>لا يقبل الإجراء أي ملف، وقد أُعطي «%1».</translation>
    </message>
    <message>
        <source>Load it first: keyrill FILE.</source>
        <translation>حمّله أولا: keyrill FILE.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much.</source>
        <translation>الوسيط «%1» زائد.</translation>
    </message>
    <message>
        <source>--list takes no name.</source>
        <translation>لا يقبل --list أي اسم.</translation>
    </message>
    <message>
        <source>A name with blanks is put in quotation marks: &quot;%1&quot;.</source>
        <translation>يوضع الاسم الذي فيه مسافات بين علامتي اقتباس: &quot;%1&quot;.</translation>
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
        <translation>الاستخدام: keyrill [--session=NAME] [--] [FILE...]   البدء، أو تحميل وحدات ماكرو في البرنامج العامل
       keyrill [--session=NAME] --action=ACTION   طلب إجراء من البرنامج العامل؛ يبدؤه عند الحاجة
       keyrill [--session=NAME] --play [MACRO|FILE] [--times=N|until-stopped] [--speed=X]
                                          طلب تشغيل ماكرو واحد من مجلد الماكرو، أو ملف
       keyrill [--session=NAME] --show [MACRO]   طلب إظهار نافذة وحدات الماكرو
       keyrill --list   طباعة أسماء وحدات الماكرو في مجلد الماكرو
       keyrill [--session=NAME] --check   طباعة ما يعمل في هذه الجلسة، وما يجب فعله
       keyrill -h | --help | --version
ACTION واحد من هذه: %1.
MACRO اسم يطبعه --list، مع مجموعته أو من دونها؛ من دون MACRO و FILE يشغّل --play ما يشغّله أمر «تشغيل».
الملف FILE الذي لا MACRO باسمه، أو الذي يبدأ بـ / أو ./ يُشغَّل كما هو. عدد المرات والسرعة (0.25 إلى 4)
هما ما للماكرو، ما لم يُعطيا. يختار --show الماكرو MACRO في النافذة. مع --play و --show و --list تكون حالة
الخروج 0 إن تم الأمر، و 1 إن لم يتم، و 2 إن كان الاستدعاء خاطئا؛ ويُكتب السبب في مخرج الأخطاء.
NAME نوع الجلسة الرسومية؛ من دونه يكتشفها البرنامج بنفسه. المتاح: %2
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one thing too many.</source>
        <translation>الخيار «%1» زائد.</translation>
    </message>
    <message>
        <source>Call keyrill once for each.</source>
        <translation>استدعِ keyrill مرة لكل منهما.</translation>
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
        <translation>قائمة Keyrill (&amp;M)</translation>
    </message>
    <message>
        <source>No tray was found, so here is the menu.</source>
        <translation>لم يُعثر على صينية النظام، فهذه هي القائمة.</translation>
    </message>
    <message>
        <source>Keyrill is running; its menu is in the tray too.</source>
        <translation>يعمل Keyrill، وقائمته في صينية النظام أيضا.</translation>
    </message>
</context>
<context>
    <name>DraftFiles</name>
    <message>
        <source>The folder %1 cannot be written to: %2.</source>
        <extracomment>a folder, and why</extracomment>
        <translation>تتعذر الكتابة في المجلد ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>A macro needs a name.</source>
        <translation>يحتاج الماكرو إلى اسم.</translation>
    </message>
    <message>
        <source>A name cannot have a slash (/) in it.</source>
        <translation>لا يمكن أن يحتوي الاسم على شرطة مائلة (/).</translation>
    </message>
    <message>
        <source>A name cannot begin with a point: the file would be hidden.</source>
        <translation>لا يمكن أن يبدأ الاسم بنقطة: سيكون الملف مخفيا.</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>الاسم أطول مما يسمح به لملف.</translation>
    </message>
    <message>
        <source>There is already a macro called &quot;%1&quot;.</source>
        <translation>يوجد ماكرو باسم «⁨%1⁩» بالفعل.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed: %2.</source>
        <translation>تتعذر إعادة تسمية «⁨%1⁩»: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be copied: %2.</source>
        <translation>يتعذر نسخ «⁨%1⁩»: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be put into the trash.</source>
        <translation>يتعذر نقل «⁨%1⁩» إلى المهملات.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be brought back: %2.</source>
        <translation>تتعذر استعادة «⁨%1⁩»: ⁨%2⁩.</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is a code: 0xE9</extracomment>
        <translation>في السطر ⁨%1⁩ البايت ⁨%2⁩ عند الموضع ⁨%3⁩، ولا يمكن أن يحتوي ملف الماكرو إلا على ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085</extracomment>
        <translation>في السطر ⁨%1⁩ المحرف (⁨%2⁩) عند الموضع ⁨%3⁩، ولا يمكن أن يحتوي ملف الماكرو إلا على ASCII.</translation>
    </message>
    <message>
        <source>Line %1 has the character &quot;%2&quot; (%3) at place %4, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %4 are numbers, %2 is a character, %3 its code: U+00E9</extracomment>
        <translation>في السطر ⁨%1⁩ المحرف «⁨%2⁩» (⁨%3⁩) عند الموضع ⁨%4⁩، ولا يمكن أن يحتوي ملف الماكرو إلا على ASCII.</translation>
    </message>
    <message>
        <source>Replace the character in the macro.</source>
        <translation>استبدل المحرف في الماكرو.</translation>
    </message>
    <message>
        <source>The file %1 cannot be deleted: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>يتعذر حذف الملف ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Check who may write to its folder, or delete it yourself.</source>
        <translation>تحقق ممن يحق له الكتابة في مجلده، أو احذفه بنفسك.</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>إنه مجلد</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>إنه ليس ملفا عاديا</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>اختر ملفا.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>تتعذر قراءة الملف ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>تتعذر كتابة الملف ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>It is larger than %1 MiB</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>حجمه أكبر من ⁨%1⁩ ميبيبايت</translation>
    </message>
    <message>
        <source>Choose a smaller file.</source>
        <translation>اختر ملفا أصغر.</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>اختر اسما آخر.</translation>
    </message>
    <message>
        <source>Check that the file is there and who may read it.</source>
        <translation>تحقق من وجود الملف وممن يحق له قراءته.</translation>
    </message>
    <message>
        <source>Make room, check who may write there, or choose another place.</source>
        <translation>أفرغ بعض المساحة، أو تحقق ممن يحق له الكتابة هناك، أو اختر مكانا آخر.</translation>
    </message>
</context>
<context>
    <name>FilesDesk</name>
    <message>
        <source>&quot;%1&quot; was not loaded</source>
        <translation>لم يُحمَّل «⁨%1⁩»</translation>
    </message>
    <message>
        <source>A macro is being recorded. Stop recording first.</source>
        <translation>يجري تسجيل ماكرو. أوقف التسجيل أولا.</translation>
    </message>
    <message>
        <source>The screen is locked. Unlock it first.</source>
        <translation>الشاشة مقفلة. ألغِ قفلها أولا.</translation>
    </message>
    <message>
        <source>Answer Keyrill&apos;s question first.</source>
        <translation>أجب عن سؤال Keyrill أولا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded</source>
        <translation>حُمِّل «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Choose a shortcut for Play in the preferences to play it.</source>
        <translation>لتشغيله، اختر في التفضيلات اختصارا لأمر «تشغيل».</translation>
    </message>
    <message>
        <source>Press %1 to play it.</source>
        <translation>اضغط ⁨%1⁩ لتشغيله.</translation>
    </message>
</context>
<context>
    <name>Folders</name>
    <message>
        <source>The folder %1 cannot be made: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>يتعذر إنشاء المجلد ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Check who may write there.</source>
        <translation>تحقق ممن يحق له الكتابة هناك.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>تتعذر قراءة المجلد ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Check who may read it.</source>
        <translation>تحقق ممن يحق له قراءته.</translation>
    </message>
    <message>
        <source>What changes in the folder %1 is not noticed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>لا تُلاحَظ التغييرات في المجلد ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Start Keyrill again after changes, or raise fs.inotify.max_user_watches.</source>
        <translation>ابدأ Keyrill من جديد بعد التغييرات، أو ارفع قيمة fs.inotify.max_user_watches.</translation>
    </message>
    <message>
        <source>Make room, or check who may write there.</source>
        <translation>أفرغ بعض المساحة، أو تحقق ممن يحق له الكتابة هناك.</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>A handler is called with parentheses: %1().</source>
        <translation>يُستدعى المعالج بقوسين: ⁦%1()⁩.</translation>
    </message>
    <message>
        <source>The key has a number: key code %1.</source>
        <translation>لهذا المفتاح رقم: ⁦key code %1⁩.</translation>
    </message>
    <message>
        <source>Return is joined to a text so: &quot;hello&quot; &amp; return.</source>
        <translation>يُضم المفتاح Return إلى نص هكذا: ⁦&quot;hello&quot; &amp; return⁩.</translation>
    </message>
    <message>
        <source>Tab is joined to a text so: &quot;hello&quot; &amp; tab.</source>
        <translation>يُضم المفتاح Tab إلى نص هكذا: ⁦&quot;hello&quot; &amp; tab⁩.</translation>
    </message>
    <message>
        <source>A question is asked with: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</source>
        <translation>يُطرح السؤال هكذا: ⁦text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;)⁩.</translation>
    </message>
    <message>
        <source>A number by chance is: random number from 1 to 10.</source>
        <translation>يُكتب العدد العشوائي هكذا: ⁦random number from 1 to 10⁩.</translation>
    </message>
    <message>
        <source>A loop is left with “exit repeat”, the script with “return”.</source>
        <translation>للخروج من الحلقة استخدم الأمر «exit repeat»، وللخروج من السكربت الأمر «return».</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>يُكتب النص بالأمر «keystroke»: ⁦keystroke &quot;hello&quot;⁩.</translation>
    </message>
    <message>
        <source>A pause is written in seconds: delay 2.</source>
        <translation>تُكتب الوقفة بالثواني: ⁦delay 2⁩.</translation>
    </message>
    <message>
        <source>Errors are caught with: try … on error … end try.</source>
        <translation>تُلتقط الأخطاء هكذا: ⁦try … on error … end try⁩.</translation>
    </message>
    <message>
        <source>Nothing is imported; the commands are there from the start: delay 2, keystroke &quot;hello&quot;.</source>
        <translation>لا يُستورد شيء؛ فالأوامر متاحة من البداية: ⁦delay 2⁩، ⁦keystroke &quot;hello&quot;⁩.</translation>
    </message>
    <message>
        <source>A value is printed with: log &quot;x&quot;. Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>تُطبع القيمة هكذا: ⁦log &quot;x&quot;⁩. يُكتب النص بالأمر «keystroke»: ⁦keystroke &quot;hello&quot;⁩.</translation>
    </message>
    <message>
        <source>A message is shown with: display dialog &quot;hello&quot;.</source>
        <translation>تُعرض الرسالة هكذا: ⁦display dialog &quot;hello&quot;⁩.</translation>
    </message>
    <message>
        <source>What has no value is written: missing value.</source>
        <translation>يُكتب ما لا قيمة له هكذا: ⁦missing value⁩.</translation>
    </message>
    <message>
        <source>A window is brought to the front with: tell application &quot;Firefox&quot; to activate.</source>
        <translation>تُجلب النافذة إلى الأمام هكذا: ⁦tell application &quot;Firefox&quot; to activate⁩.</translation>
    </message>
    <message>
        <source>A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.</source>
        <translation>يقع رمز المفتاح بين 0 و⁨%1⁩؛ ويطبع الأمر «keyrill-script keys» الرموز التي لها مفاتيح.</translation>
    </message>
    <message>
        <source>A key code is a number; a text is typed with “keystroke”.</source>
        <translation>رمز المفتاح عدد؛ أما النص فيُكتب بالأمر «keystroke».</translation>
    </message>
    <message>
        <source>The key has a number: key code %1; “keyrill-script keys” prints all.</source>
        <translation>لهذا المفتاح رقم: ⁦key code %1⁩؛ ويطبع الأمر «keyrill-script keys» كل الأرقام.</translation>
    </message>
    <message>
        <source>The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.</source>
        <translation>أجزاء التاريخ هي ⁦year, month, day, weekday, hours, minutes, seconds⁩ و⁦time⁩.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>هل تقصد ⁨%1⁩؟</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: delay 0.5.</source>
        <translation>تُكتب الكسور العشرية بعد نقطة: ⁦delay 0.5⁩.</translation>
    </message>
    <message>
        <source>“delay” counts seconds: delay 0.5.</source>
        <translation>تُكتب قيمة «delay» بالثواني: ⁦delay 0.5⁩.</translation>
    </message>
    <message>
        <source>A dialog gives a record; what was typed there is taken with: text returned of n.</source>
        <translation>يعيد مربع الحوار سجلا (record)؛ ويؤخذ ما كُتب فيه هكذا: ⁦text returned of n⁩.</translation>
    </message>
    <message>
        <source>A modifier stands without quotes: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>يُكتب المفتاح المغيِّر من دون علامتي اقتباس: ⁦using %1 down⁩.</translation>
    </message>
    <message>
        <source>Several modifiers stand in braces: using {control down, shift down}.</source>
        <translation>توضع المفاتيح المغيِّرة المتعددة بين قوسين متعرجين: ⁦using {control down, shift down}⁩.</translation>
    </message>
    <message>
        <source>Texts are joined with “&amp;”: &quot;one&quot; &amp; &quot;two&quot;.</source>
        <translation>تُضم النصوص بعضها إلى بعض بالعلامة «&amp;»: ⁦&quot;one&quot; &amp; &quot;two&quot;⁩.</translation>
    </message>
    <message>
        <source>This compares and changes nothing; a variable is set with “to”: set %1 to …</source>
        <translation>هذه مقارنة لا تغيّر شيئا؛ تُعيَّن قيمة المتغير بالكلمة «to»: ⁦set %1 to ⁩…</translation>
    </message>
    <message>
        <source>The script has no handler of that name: on %1(…) … end %1.</source>
        <translation>ليس في السكربت معالج بهذا الاسم: ⁦on %1(…) … end %1⁩.</translation>
    </message>
    <message>
        <source>No program takes a command but “activate”; press its keys: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</source>
        <translation>لا يقبل أي برنامج أمرا غير «activate»؛ اضغط مفاتيحه: ⁦tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down⁩.</translation>
    </message>
    <message>
        <source>The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>أسماء المفاتيح المغيِّرة هي ⁦command (Super)⁩ و⁦control (Ctrl)⁩ و⁦option (Alt)⁩ و⁦shift⁩: ⁦using %1 down⁩.</translation>
    </message>
    <message>
        <source>An application is named: application &quot;%1&quot;.</source>
        <translation>يُذكر التطبيق باسمه: ⁦application &quot;%1&quot;⁩.</translation>
    </message>
    <message>
        <source>Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>يوضع النص بين علامتي اقتباس مستقيمتين: ⁦&quot;%1&quot;⁩.</translation>
    </message>
    <message>
        <source>A handler has variables of its own; to share this one write there: global %1.</source>
        <translation>للمعالج متغيراته الخاصة؛ لمشاركة هذا المتغير اكتب في المعالج: ⁦global %1⁩.</translation>
    </message>
    <message>
        <source>A variable is set before it is used: set %1 to … Text stands between straight quotes: &quot;%2&quot;.</source>
        <translation>تُعيَّن قيمة المتغير قبل استخدامه: ⁦set %1 to …⁩. ويوضع النص بين علامتي اقتباس مستقيمتين: ⁦&quot;%2&quot;⁩.</translation>
    </message>
    <message>
        <source>A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.</source>
        <translation>يُضغط المفتاح برقمه: ⁦key code 36⁩ هو المفتاح Return. ويطبع الأمر «keyrill-script keys» كل الأرقام.</translation>
    </message>
    <message>
        <source>The date of today is “current date”; as a text: short date string of (current date).</source>
        <translation>تاريخ اليوم هو «current date»، ويُكتب نصا هكذا: ⁦short date string of (current date)⁩.</translation>
    </message>
    <message>
        <source>Inside “tell” the script’s own handlers are called with “my”: my %1(…).</source>
        <translation>داخل «tell» تُستدعى معالجات السكربت نفسه بالكلمة «my»: ⁦my %1(…)⁩.</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>لا توجد هنا كتلة مفتوحة؛ ولا تأخذ عبارة «if» المكتوبة مع أمرها في سطر واحد «else».</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>لا توجد هنا كتلة مفتوحة؛ ولا تأخذ عبارة «if» المكتوبة مع أمرها في سطر واحد «end if».</translation>
    </message>
    <message>
        <source>No block is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>لا توجد هنا كتلة مفتوحة؛ ولا تأخذ عبارة «⁦tell … to⁩» المكتوبة في سطر واحد «end tell».</translation>
    </message>
    <message>
        <source>No block is open here; this line is one too many.</source>
        <translation>لا توجد هنا كتلة مفتوحة؛ هذا السطر زائد.</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>لا توجد هنا «if» مفتوحة؛ ولا تأخذ عبارة «if» المكتوبة مع أمرها في سطر واحد «else».</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>لا توجد هنا «if» مفتوحة؛ ولا تأخذ عبارة «if» المكتوبة مع أمرها في سطر واحد «end if».</translation>
    </message>
    <message>
        <source>No “tell” is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>لا توجد هنا «tell» مفتوحة؛ ولا تأخذ عبارة «⁦tell … to⁩» المكتوبة في سطر واحد «end tell».</translation>
    </message>
    <message>
        <source>No “%1” is open here; the block that begins in line %2 has no “end” of its own.</source>
        <extracomment>%1 is the first word of a block, &quot;repeat&quot;, %2 a number.</extracomment>
        <translation>لا توجد هنا «⁨%1⁩» مفتوحة؛ وليس للكتلة التي تبدأ في السطر ⁨%2⁩ «end» خاصة بها.</translation>
    </message>
    <message>
        <source>In line %1 these are two words: %2.</source>
        <extracomment>%1 is a number, %2 what the line was meant to be, &quot;end if&quot;.</extracomment>
        <translation>في السطر ⁨%1⁩ تُكتب هذه كلمتين: ⁦%2⁩.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 has no “end” of its own.</source>
        <translation>ليس للكتلة التي تبدأ في السطر ⁨%1⁩ «end» خاصة بها.</translation>
    </message>
    <message>
        <source>The text that begins here is not closed by a straight quote in its line.</source>
        <translation>النص الذي يبدأ هنا غير مغلق في سطره بعلامة اقتباس مستقيمة.</translation>
    </message>
    <message>
        <source>The comment that begins in line %1 is not closed by “*)”.</source>
        <translation>التعليق الذي يبدأ في السطر ⁨%1⁩ غير مغلق بالعلامة «⁦*)⁩».</translation>
    </message>
    <message>
        <source>The keyboard commands stand inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>توضع أوامر لوحة المفاتيح داخل «⁦tell application &quot;System Events&quot;⁩» … «⁦end tell⁩».</translation>
    </message>
    <message>
        <source>Modifiers are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>تُعرف المفاتيح المغيِّرة داخل «⁦tell application &quot;System Events&quot;⁩» … «⁦end tell⁩».</translation>
    </message>
    <message>
        <source>Processes are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>تُعرف العمليات داخل «⁦tell application &quot;System Events&quot;⁩» … «⁦end tell⁩».</translation>
    </message>
    <message>
        <source>Put straight quotes (&quot;) in place of the curly ones.</source>
        <translation>ضع علامات اقتباس مستقيمة (⁦&quot;⁩) مكان المنحنية.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to 5.</source>
        <translation>تُعيَّن قيمة المتغير بالكلمة «to»: ⁦set x to 5⁩.</translation>
    </message>
    <message>
        <source>A loop is written: repeat with i from 1 to 5 … end repeat.</source>
        <translation>تُكتب الحلقة هكذا: ⁦repeat with i from 1 to 5 … end repeat⁩.</translation>
    </message>
    <message>
        <source>A handler is written: on greet(x) … end greet.</source>
        <translation>يُكتب المعالج هكذا: ⁦on greet(x) … end greet⁩.</translation>
    </message>
    <message>
        <source>Several stand in braces: {control down, shift down}, {36, 48}.</source>
        <translation>توضع القيم المتعددة بين قوسين متعرجين: ⁦{control down, shift down}⁩، ⁦{36, 48}⁩.</translation>
    </message>
    <message>
        <source>These are two words: else if … then.</source>
        <translation>تُكتب هذه كلمتين: ⁦else if … then⁩.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, and Return joined with “&amp;”: keystroke &quot;hello&quot; &amp; return.</source>
        <translation>يُكتب النص بالأمر «keystroke»، ويُضم المفتاح Return بالعلامة «&amp;»: ⁦keystroke &quot;hello&quot; &amp; return⁩.</translation>
    </message>
    <message>
        <source>A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and let go with: key up 36.</source>
        <translation>يُضغط المفتاح ويُفلت هكذا: ⁦keystroke return⁩ أو ⁦key code 53⁩. ويبقى مضغوطا هكذا: ⁦key down 36⁩، ويُفلت هكذا: ⁦key up 36⁩.</translation>
    </message>
    <message>
        <source>A macro has no mouse; press the keys that do the same, as Tab and Return.</source>
        <translation>لا يستخدم الماكرو الفأرة؛ اضغط المفاتيح التي تؤدي الغرض نفسه، مثل Tab و Return.</translation>
    </message>
    <message>
        <source>Conditions are joined with “and” or “or”.</source>
        <translation>تُربط الشروط بالكلمة «and» أو «or».</translation>
    </message>
    <message>
        <source>Of a process its name is known, and whether it is in front: every process whose name contains &quot;fire&quot;.</source>
        <translation>يُعرف عن العملية اسمها وما إذا كانت في الأمام: ⁦every process whose name contains &quot;fire&quot;⁩.</translation>
    </message>
    <message>
        <source>Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.</source>
        <translation>لا يرى الماكرو النوافذ والأزرار والقوائم؛ اضغط المفاتيح التي تؤدي الغرض نفسه.</translation>
    </message>
    <message>
        <source>Modifiers stand behind “using”: keystroke &quot;s&quot; using control down.</source>
        <translation>توضع المفاتيح المغيِّرة بعد «using»: ⁦keystroke &quot;s&quot; using control down⁩.</translation>
    </message>
    <message>
        <source>What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.</source>
        <translation>يُكتب ما يتكرر عدة مرات في أسطر مستقلة بين «⁦repeat 5 times⁩» و«⁦end repeat⁩».</translation>
    </message>
    <message>
        <source>Each statement has a line of its own.</source>
        <translation>لكل أمر سطر مستقل.</translation>
    </message>
    <message>
        <source>A macro has no files; a text comes from “the clipboard” or from a dialog.</source>
        <translation>لا يتعامل الماكرو مع الملفات؛ يأتي النص من «the clipboard» أو من مربع حوار.</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to x + 1.</source>
        <translation>تُعيَّن قيمة المتغير بالكلمة «to»: ⁦set x to x + 1⁩.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed in this line.</source>
        <translation>يوجد في هذا السطر قوس غير مغلق.</translation>
    </message>
    <message>
        <source>A brace is not closed in this line.</source>
        <translation>يوجد في هذا السطر قوس متعرج غير مغلق.</translation>
    </message>
    <message>
        <source>Press the keys that start it, or bring a window to the front: tell application &quot;Firefox&quot; to activate.</source>
        <translation>اضغط المفاتيح التي تبدأ البرنامج، أو اجلب نافذة إلى الأمام: ⁦tell application &quot;Firefox&quot; to activate⁩.</translation>
    </message>
    <message>
        <source>Write the command by its name.</source>
        <translation>اكتب الأمر باسمه.</translation>
    </message>
    <message>
        <source>A shortcut is written: keystroke &quot;c&quot; using control down.</source>
        <translation>يُكتب الاختصار هكذا: ⁦keystroke &quot;c&quot; using control down⁩.</translation>
    </message>
    <message>
        <source>Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat.</source>
        <translation>لا يُختار بالكلمة «whose» غير العمليات؛ ويُمر على عناصر القائمة هكذا: ⁦repeat with x in theList … end repeat⁩.</translation>
    </message>
    <message>
        <source>Behind “default answer” stands a text, be it empty: default answer &quot;&quot;.</source>
        <translation>يأتي بعد «default answer» نص وإن كان فارغا: ⁦default answer &quot;&quot;⁩.</translation>
    </message>
    <message>
        <source>An “if” in one line has no “else”; write it in lines, with “end if”.</source>
        <translation>لا تأخذ عبارة «if» المكتوبة في سطر واحد «else»؛ اكتبها في عدة أسطر تنتهي بعبارة «end if».</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: 0.5.</source>
        <translation>تُكتب الكسور العشرية بعد نقطة: ⁦0.5⁩.</translation>
    </message>
    <message>
        <source>“delay” counts seconds, without a unit: delay 0.5.</source>
        <translation>تُكتب قيمة «delay» بالثواني، من دون وحدة: ⁦delay 0.5⁩.</translation>
    </message>
    <message>
        <source>A key is let go with: key up &quot;a&quot;.</source>
        <translation>يُفلت المفتاح هكذا: ⁦key up &quot;a&quot;⁩.</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, a key is pressed by its number: key code 36.</source>
        <translation>يُكتب النص بالأمر «keystroke»، ويُضغط المفتاح برقمه: ⁦key code 36⁩.</translation>
    </message>
    <message>
        <source>A key is held with “key down” and let go with “key up”: key down shift.</source>
        <translation>يبقى المفتاح مضغوطا بالأمر «key down» ويُفلت بالأمر «key up»: ⁦key down shift⁩.</translation>
    </message>
    <message>
        <source>The text in the clipboard is: the clipboard.</source>
        <translation>يُكتب النص الموجود في الحافظة هكذا: ⁦the clipboard⁩.</translation>
    </message>
    <message>
        <source>A loop is written: repeat 5 times … end repeat.</source>
        <translation>تُكتب الحلقة هكذا: ⁦repeat 5 times … end repeat⁩.</translation>
    </message>
    <message>
        <source>Behind the name stands “to”, or the line ends there: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</source>
        <translation>يأتي بعد الاسم «to» أو ينتهي السطر هناك: ⁦tell application &quot;System Events&quot; to keystroke &quot;a&quot;⁩.</translation>
    </message>
    <message>
        <source>The name stands between straight quotes: tell application &quot;System Events&quot;.</source>
        <translation>يوضع الاسم بين علامتي اقتباس مستقيمتين: ⁦tell application &quot;System Events&quot;⁩.</translation>
    </message>
    <message>
        <source>A loop is written: repeat while x &lt; 5 … end repeat.</source>
        <translation>تُكتب الحلقة هكذا: ⁦repeat while x &lt; 5 … end repeat⁩.</translation>
    </message>
    <message>
        <source>A comment begins with -- or #.</source>
        <translation>يبدأ التعليق بالعلامة ⁦--⁩ أو ⁦#⁩.</translation>
    </message>
    <message>
        <source>A comment over lines is written (* … *).</source>
        <translation>يُكتب التعليق الممتد على عدة أسطر هكذا: ⁦(* … *)⁩.</translation>
    </message>
    <message>
        <source>“Equal” is written with one =.</source>
        <translation>تُكتب «يساوي» بعلامة ⁦=⁩ واحدة.</translation>
    </message>
    <message>
        <source>A text is not closed by a straight quote.</source>
        <translation>يوجد نص غير مغلق بعلامة اقتباس مستقيمة.</translation>
    </message>
    <message>
        <source>A backslash in a text is written twice: &quot;C:\\Users&quot;.</source>
        <translation>تُكتب الشرطة المائلة العكسية في النص مرتين: ⁦&quot;C:\\Users&quot;⁩.</translation>
    </message>
    <message>
        <source>Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.</source>
        <translation>يأتي بعد «as» صنف: ⁦text, integer, real, number, boolean, list, record, date⁩.</translation>
    </message>
    <message>
        <source>A block has no braces: if x = 1 then … end if.</source>
        <translation>تُكتب الكتلة من دون أقواس متعرجة: ⁦if x = 1 then … end if⁩.</translation>
    </message>
    <message>
        <source>A block has no braces; it ends with “end” and its first word: end repeat.</source>
        <translation>تُكتب الكتلة من دون أقواس متعرجة؛ فهي تنتهي بالكلمة «end» وكلمتها الأولى: ⁦end repeat⁩.</translation>
    </message>
    <message>
        <source>A line needs no colon at its end.</source>
        <translation>لا يحتاج السطر إلى نقطتين في آخره.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|.</source>
        <translation>يوضع الاسم الذي فيه حروف غير الحروف من A إلى Z بين خطين عموديين: ⁦|%1|⁩.</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>يوضع الاسم الذي فيه حروف غير الحروف من A إلى Z بين خطين عموديين: ⁦|%1|⁩. ويوضع النص بين علامتي اقتباس مستقيمتين: ⁦&quot;%1&quot;⁩.</translation>
    </message>
    <message>
        <source>A sign that nobody sees stands here; delete it.</source>
        <translation>يوجد هنا محرف لا يُرى؛ احذفه.</translation>
    </message>
    <message>
        <source>A hot key is no part of a script; it is set in the preferences, or for each macro in “Macros...”.</source>
        <extracomment>“Macros...” is an entry of the menu.</extracomment>
        <translation>ليس الاختصار العام جزءا من السكربت؛ يُعيَّن في التفضيلات، أو لكل ماكرو في «وحدات الماكرو...».</translation>
    </message>
    <message>
        <source>“Not equal” is written ≠ or /=.</source>
        <translation>تُكتب «لا يساوي» هكذا: ⁦≠⁩ أو ⁦/=⁩.</translation>
    </message>
    <message>
        <source>An item is taken by its number: item 1 of x.</source>
        <translation>يؤخذ العنصر برقمه: ⁦item 1 of x⁩.</translation>
    </message>
    <message>
        <source>What belongs to a value is taken with “of”: length of x.</source>
        <translation>يؤخذ ما يتبع القيمة بالكلمة «of»: ⁦length of x⁩.</translation>
    </message>
    <message>
        <source>A list stands in braces: {1, 2}.</source>
        <translation>توضع القائمة بين قوسين متعرجين: ⁦{1, 2}⁩.</translation>
    </message>
    <message>
        <source>The rest of a division is written: 7 mod 2.</source>
        <translation>يُكتب باقي القسمة هكذا: ⁦7 mod 2⁩.</translation>
    </message>
    <message>
        <source>Text stands between straight double quotes (&quot;).</source>
        <translation>يوضع النص بين علامتي اقتباس مزدوجتين مستقيمتين (⁦&quot;⁩).</translation>
    </message>
    <message>
        <source>A quote inside a text is written \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</source>
        <translation>تُكتب علامة الاقتباس داخل النص ⁦\&quot;⁩: ⁦&quot;Hello \&quot;world\&quot;&quot;⁩.</translation>
    </message>
    <message>
        <source>Take the items in parts, or paragraphs instead of characters.</source>
        <translation>خذ العناصر على أجزاء، أو خذ الفقرات بدل المحارف.</translation>
    </message>
    <message>
        <source>The block that begins in line %1 ends with “%2”.</source>
        <extracomment>%1 is a number, %2 the last line of a block, &quot;end if&quot;.</extracomment>
        <translation>تنتهي الكتلة التي تبدأ في السطر ⁨%1⁩ بالسطر «⁨%2⁩».</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>GNOME&apos;s settings cannot be changed</source>
        <translation>يتعذر تغيير إعدادات GNOME</translation>
    </message>
    <message>
        <source>your settings of GNOME have another entry in its place</source>
        <translation>في إعداداتك في GNOME مدخلة أخرى مكانه</translation>
    </message>
    <message>
        <source>your own shortcut “%1” in GNOME&apos;s settings has it</source>
        <translation>يستخدمه اختصارك المخصص «⁨%1⁩» في إعدادات GNOME</translation>
    </message>
    <message>
        <source>GNOME has it for “%1”</source>
        <translation>يستخدمه GNOME من أجل «⁨%1⁩»</translation>
    </message>
    <message>
        <source>GNOME has no name for it</source>
        <translation>لا اسم له في GNOME</translation>
    </message>
    <message>
        <source>it has been taken out of GNOME&apos;s settings</source>
        <translation>أُزيل من إعدادات GNOME</translation>
    </message>
    <message>
        <source>KDE has no name for this key</source>
        <translation>لا اسم لهذا المفتاح في KDE</translation>
    </message>
    <message>
        <source>KDE says: %1</source>
        <translation>يقول KDE: ⁨%1⁩</translation>
    </message>
    <message>
        <source>KDE uses it for something else</source>
        <translation>يستخدمه KDE لشيء آخر</translation>
    </message>
    <message>
        <source>KDE does not give it</source>
        <translation>لا يتيحه KDE</translation>
    </message>
    <message>
        <source>%1 has it for “%2”</source>
        <translation>يستخدمه ⁨%1⁩ من أجل «⁨%2⁩»</translation>
    </message>
    <message>
        <source>the desktop has not granted it</source>
        <translation>لم يمنحه سطح المكتب</translation>
    </message>
    <message>
        <source>you did not agree when the desktop asked</source>
        <translation>لم توافق عندما سألك سطح المكتب</translation>
    </message>
    <message>
        <source>the desktop has not answered</source>
        <translation>لم يستجب سطح المكتب</translation>
    </message>
    <message>
        <source>the desktop has refused it</source>
        <translation>رفضه سطح المكتب</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>لا يوجد ناقل جلسة</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal does not answer</source>
        <translation>بوابة سطح المكتب لا تستجيب</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal gives no hot keys</source>
        <translation>لا تتيح بوابة سطح المكتب اختصارات عامة</translation>
    </message>
    <message>
        <source>the desktop has taken it back</source>
        <translation>سحبه سطح المكتب</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal has ended</source>
        <translation>انتهت بوابة سطح المكتب</translation>
    </message>
    <message>
        <source>your configuration of sway binds it</source>
        <translation>يربطه ضبطك الخاص ببرنامج sway</translation>
    </message>
    <message>
        <source>Choose another combination.</source>
        <translation>اختر توليفة أخرى.</translation>
    </message>
    <message>
        <source>Choose another combination, or allow it in the desktop&apos;s settings.</source>
        <translation>اختر توليفة أخرى، أو اسمح بهذه في إعدادات سطح المكتب.</translation>
    </message>
    <message>
        <source>Choose another combination, or free it in the program that holds it.</source>
        <translation>اختر توليفة أخرى، أو حرّر هذه في البرنامج الذي يحجزها.</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2.</source>
        <extracomment>%1 is a combination of keys, %2 one of the reasons: another program holds it</extracomment>
        <translation>لا يمكن استخدام الاختصار ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the third level (AltGr).</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>لا يمكن استخدام الاختصار ⁨%1⁩: ليس في تخطيط لوحة المفاتيح مفتاح للمستوى الثالث (AltGr).</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the fifth level.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>لا يمكن استخدام الاختصار ⁨%1⁩: ليس في تخطيط لوحة المفاتيح مفتاح للمستوى الخامس.</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for %2.</source>
        <extracomment>%1 is a combination of keys, %2 a modifier: Super</extracomment>
        <translation>لا يمكن استخدام الاختصار ⁨%1⁩: ليس في تخطيط لوحة المفاتيح مفتاح ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 cannot be used: Keyrill uses it for something else.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>لا يمكن استخدام الاختصار ⁨%1⁩: يستخدمه Keyrill لشيء آخر.</translation>
    </message>
    <message>
        <source>%1 cannot be used: this desktop has no such key.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>لا يمكن استخدام الاختصار ⁨%1⁩: ليس في سطح المكتب هذا مفتاح كهذا.</translation>
    </message>
    <message>
        <source>%1 cannot be used: nobody could type it any more.</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>لا يمكن استخدام المفتاح ⁨%1⁩: لن يستطيع أحد كتابته بعد ذلك.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super.</source>
        <translation>أضف Ctrl أو Alt أو Super.</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>لا يتيح هذا المُركِّب اختصارات عامة للبرامج.</translation>
    </message>
    <message>
        <source>this compositor gives no hot keys to programs</source>
        <translation>لا يتيح هذا المُركِّب اختصارات عامة للبرامج</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>يحجزه برنامج آخر</translation>
    </message>
    <message>
        <source>the X server refuses it with error %1</source>
        <translation>يرفضه خادم X بالخطأ ⁨%1⁩</translation>
    </message>
    <message>
        <source>the X server is gone</source>
        <translation>اختفى خادم X</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>اربط المفاتيح بأوامر مثل «keyrill --action=play» في إعدادات المُركِّب.</translation>
    </message>
    <message>
        <source>GNOME has hot keys only in your own settings, which Keyrill may not change.</source>
        <translation>لا يتيح GNOME الاختصارات العامة إلا في إعداداتك أنت، وغير مسموح لبرنامج Keyrill بتغييرها.</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>ضع علامة في المربع في تفضيلات Keyrill، أو اربط بنفسك المفاتيح بأوامر مثل «keyrill --action=play» في إعدادات GNOME.</translation>
    </message>
</context>
<context>
    <name>Keyboards</name>
    <message>
        <source>The keyboard cannot be read: %1: %2.</source>
        <translation>تتعذر قراءة لوحة المفاتيح: ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Let the keyboard be read while a macro is recorded.</source>
        <translation>اسمح بقراءة لوحة المفاتيح أثناء تسجيل ماكرو.</translation>
    </message>
    <message>
        <source>The keyboard can no longer be read: the permission has ended.</source>
        <translation>لم تعد قراءة لوحة المفاتيح ممكنة: انتهى الإذن.</translation>
    </message>
    <message>
        <source>Another user&apos;s session may be in front, or the screen is locked.</source>
        <translation>ربما كانت جلسة مستخدم آخر في المقدمة، أو كانت الشاشة مقفلة.</translation>
    </message>
    <message>
        <source>The keyboard cannot be read: there is no system bus.</source>
        <translation>تتعذر قراءة لوحة المفاتيح: لا يوجد ناقل نظام.</translation>
    </message>
    <message>
        <source>What it says stands in the system&apos;s journal: journalctl -u keyrill-access.</source>
        <translation>رسائل الخدمة موجودة في سجل النظام: journalctl -u keyrill-access.</translation>
    </message>
    <message>
        <source>The keyboard is no longer read: the service keyrill-access has ended.</source>
        <translation>لم تعد لوحة المفاتيح تُقرأ: انتهت الخدمة keyrill-access.</translation>
    </message>
    <message>
        <source>Keyrill may not read the keyboard: permission was not given.</source>
        <translation>لا يُسمح لبرنامج Keyrill بقراءة لوحة المفاتيح: لم يُمنح الإذن.</translation>
    </message>
    <message>
        <source>Record again and agree when you are asked for your password.</source>
        <translation>سجّل من جديد ووافق عندما تُطلب منك كلمة السر.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access is not installed.</source>
        <translation>لا يستطيع Keyrill قراءة لوحة المفاتيح: الخدمة keyrill-access غير مثبتة.</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, tools/access install.</source>
        <translation>ثبّت الحزمة keyrill-wayland-access، أو نفّذ tools/access install من مصادر Keyrill.</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access does not work.</source>
        <translation>لا يستطيع Keyrill قراءة لوحة المفاتيح: الخدمة keyrill-access لا تعمل.</translation>
    </message>
    <message>
        <source>A Wayland session shows this program nothing of what is typed in others.</source>
        <translation>لا تُظهر جلسة Wayland لهذا البرنامج شيئا مما يُكتب في غيره.</translation>
    </message>
    <message>
        <source>Record with keyrill itself, or use an X11 session.</source>
        <translation>سجّل بالبرنامج keyrill نفسه، أو استخدم جلسة X11.</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>This desktop lets no program press keys: no portal for it answers.</source>
        <translation>لا يسمح سطح المكتب هذا لأي برنامج بضغط المفاتيح: لا تستجيب أي بوابة مخصصة لذلك.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to your desktop.</source>
        <translation>ثبّت xdg-desktop-portal والجزء الخاص بسطح مكتبك منه.</translation>
    </message>
    <message>
        <source>The desktop was not allowed to let Keyrill press keys.</source>
        <translation>لم يُسمح لسطح المكتب بأن يتيح لبرنامج Keyrill ضغط المفاتيح.</translation>
    </message>
    <message>
        <source>Play again, and agree when you are asked.</source>
        <translation>شغّل الماكرو من جديد، ووافق عندما تُسأل.</translation>
    </message>
    <message>
        <source>The desktop has not answered whether Keyrill may press keys.</source>
        <translation>لم يُجب سطح المكتب عما إذا كان يُسمح لبرنامج Keyrill بضغط المفاتيح.</translation>
    </message>
    <message>
        <source>Play again; if nothing asks you, log in again.</source>
        <translation>شغّل الماكرو من جديد؛ وإذا لم تُسأل عن شيء، فأعد الولوج.</translation>
    </message>
    <message>
        <source>The desktop no longer lets Keyrill press keys.</source>
        <translation>لم يعد سطح المكتب يسمح لبرنامج Keyrill بضغط المفاتيح.</translation>
    </message>
    <message>
        <source>Play again; it may ask for your permission.</source>
        <translation>شغّل الماكرو من جديد؛ قد يُطلب إذنك.</translation>
    </message>
    <message>
        <source>The power key cannot be pressed by a script.</source>
        <translation>لا يمكن لسكربت أن يضغط مفتاح الطاقة.</translation>
    </message>
    <message>
        <source>Take key code 127 out of the script.</source>
        <translation>أزل رمز المفتاح 127 من السكربت.</translation>
    </message>
    <message>
        <source>The text to type is not UTF-8 at byte %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>النص المراد كتابته ليس بترميز UTF-8 عند البايت ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Save the script as UTF-8.</source>
        <translation>احفظ السكربت بترميز UTF-8.</translation>
    </message>
    <message>
        <source>&quot;%1...&quot;</source>
        <extracomment>The beginning of a text that is longer, in quotation marks.</extracomment>
        <translation>«⁨%1...⁩»</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>A text in quotation marks.</extracomment>
        <translation>«⁨%1⁩»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <extracomment>%1 is a character, %2 its code: U+00E9</extracomment>
        <translation>«⁨%1⁩» (⁨%2⁩)</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with the keyboard layout that is in force.</source>
        <translation>لا يمكن كتابة المحرف ⁨%1⁩ بتخطيط لوحة المفاتيح الحالي.</translation>
    </message>
    <message>
        <source>Take it out of the text, or switch to a layout that has it before you play.</source>
        <translation>أزله من النص، أو انتقل إلى تخطيط يحتويه قبل التشغيل.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with your keyboard layouts.</source>
        <translation>لا يمكن كتابة المحرف ⁨%1⁩ بتخطيطات لوحة مفاتيحك.</translation>
    </message>
    <message>
        <source>Take it out of the text, or add a layout that has it.</source>
        <translation>أزله من النص، أو أضف تخطيطا يحتويه.</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with this keyboard layout.</source>
        <translation>لا يمكن كتابة المحرف ⁨%1⁩ بتخطيط لوحة المفاتيح هذا.</translation>
    </message>
    <message>
        <source>Take it out of the text, or set a layout that has it.</source>
        <translation>أزله من النص، أو عيّن تخطيطا يحتويه.</translation>
    </message>
    <message>
        <source>The keymap for typing could not be made.</source>
        <translation>تعذر إنشاء خريطة المفاتيح للكتابة.</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>لا يسمح هذا المُركِّب لأي برنامج بضغط المفاتيح.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>استخدم مُركِّبا فيه لوحات مفاتيح افتراضية مثل sway، أو جلسة X11.</translation>
    </message>
    <message>
        <source>A script is running already.</source>
        <translation>يعمل سكربت بالفعل.</translation>
    </message>
    <message>
        <source>Wait for its end.</source>
        <translation>انتظر حتى ينتهي.</translation>
    </message>
    <message>
        <source>The key %1 types no character.</source>
        <translation>لا يكتب المفتاح ⁨%1⁩ أي محرف.</translation>
    </message>
    <message>
        <source>A Wayland session has no bell.</source>
        <translation>ليس في جلسة Wayland جرس.</translation>
    </message>
    <message>
        <source>Take the beep out of the script.</source>
        <translation>أزل الصفير من السكربت.</translation>
    </message>
    <message>
        <source>KDE lets no program press keys: its portal does not answer.</source>
        <translation>لا يسمح KDE لأي برنامج بضغط المفاتيح: بوابته لا تستجيب.</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal-kde, or use an X11 session.</source>
        <translation>ثبّت xdg-desktop-portal-kde، أو استخدم جلسة X11.</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, such as KDE and GNOME, or an X11 session.</source>
        <translation>استخدم مُركِّبا فيه لوحات مفاتيح افتراضية مثل sway، أو سطح مكتب تضغط بوابته المفاتيح مثل KDE و GNOME، أو جلسة X11.</translation>
    </message>
    <message>
        <source>The keyboard layout was changed while text was typed, which may have arrived as something else: %1.</source>
        <translation>تغيّر تخطيط لوحة المفاتيح أثناء كتابة نص، وربما وصل النص مختلفا: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Play it again when the layout stays as it is.</source>
        <translation>شغّل الماكرو من جديد عندما يبقى التخطيط كما هو.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard, so that no keys can be pressed.</source>
        <translation>يحجز برنامج آخر لوحة المفاتيح، فلا يمكن ضغط أي مفتاح.</translation>
    </message>
    <message>
        <source>Close the menu, the question or the screen lock that is open, and play again.</source>
        <translation>أغلق القائمة أو السؤال المفتوح، أو ألغِ قفل الشاشة، ثم شغّل الماكرو من جديد.</translation>
    </message>
    <message>
        <source>The X server refuses to put characters on unused keys.</source>
        <translation>يرفض خادم X وضع محارف على المفاتيح غير المستخدمة.</translation>
    </message>
    <message>
        <source>Use characters of the keyboard layout, or set another layout.</source>
        <translation>استخدم محارف من تخطيط لوحة المفاتيح، أو عيّن تخطيطا آخر.</translation>
    </message>
    <message>
        <source>The program that is typed into reads nothing; not typed: %1.</source>
        <translation>البرنامج الذي تُوجَّه إليه الكتابة لا يقرأ شيئا؛ لم يُكتب: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Play it again when the program reads its keys.</source>
        <translation>شغّل الماكرو من جديد عندما يقرأ البرنامج مفاتيحه.</translation>
    </message>
    <message>
        <source>The program that was typed into has not read all of it.</source>
        <translation>لم يقرأ البرنامج الذي وُجِّهت إليه الكتابة كل ما كُتب.</translation>
    </message>
    <message>
        <source>See whether it hangs; what it reads later may lack characters.</source>
        <translation>تحقق مما إذا كان البرنامج معلّقا؛ قد تنقص محارف مما يقرؤه لاحقا.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.</source>
        <translation>لا يمكن تسجيل التكرار التلقائي للمفاتيح المضغوطة مطولا: ليس لخادم X الامتداد RECORD.</translation>
    </message>
    <message>
        <source>A held key is recorded as one press. Switch the extension on in the settings of the X server.</source>
        <translation>يُسجَّل المفتاح المضغوط مطولا ضغطة واحدة. فعّل الامتداد في إعدادات خادم X.</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys can no longer be recorded: the X server has ended it.</source>
        <translation>لم يعد تسجيل التكرار التلقائي للمفاتيح المضغوطة مطولا ممكنا: أنهاه خادم X.</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>This is a script of its own: line %1 cannot be changed here. What it would press is shown; change it under Script.</source>
        <translation>هذا سكربت قائم بذاته: لا يمكن تغيير السطر %1 هنا. يظهر ما سيضغطه؛ غيّره في «السكربت».</translation>
    </message>
    <message>
        <source>Keys of the macro</source>
        <translation>مفاتيح الماكرو</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its keys</comment>
        <translation>%1 (⁨%2⁩)</translation>
    </message>
    <message>
        <source>Record Keys</source>
        <translation>تسجيل مفاتيح</translation>
    </message>
    <message>
        <source>Record keys behind the selected step</source>
        <translation>تسجيل مفاتيح بعد الخطوة المحددة</translation>
    </message>
    <message>
        <source>Add Pause</source>
        <translation>إضافة وقفة</translation>
    </message>
    <message>
        <source>A pause behind the selected step</source>
        <translation>وقفة بعد الخطوة المحددة</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>تغيير</translation>
    </message>
    <message>
        <source>Change the text, the pause or how often a key is pressed</source>
        <translation>تغيير النص أو الوقفة أو عدد ضغطات المفتاح</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>The selected steps once more</source>
        <translation>الخطوات المحددة مرة أخرى</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>النقل إلى أعلى</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>النقل إلى أسفل</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove the selected steps</source>
        <translation>إزالة الخطوات المحددة</translation>
    </message>
    <message>
        <source>Convert to Text</source>
        <translation>تحويل إلى نص</translation>
    </message>
    <message>
        <source>Type the same under every keyboard layout</source>
        <translation>كتابة الشيء نفسه مع أي تخطيط للوحة المفاتيح</translation>
    </message>
    <message>
        <source>Convert to Keys</source>
        <translation>تحويل إلى مفاتيح</translation>
    </message>
    <message>
        <source>Press the keys of the present keyboard layout</source>
        <translation>ضغط مفاتيح تخطيط لوحة المفاتيح الحالي</translation>
    </message>
</context>
<context>
    <name>Layouts</name>
    <message>
        <source>No key of the present keyboard layout types &quot;%1&quot;.</source>
        <extracomment>%1 is a character.</extracomment>
        <translation>لا يكتب أي مفتاح في تخطيط لوحة المفاتيح الحالي «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Convert the keys to text, which types any character.</source>
        <translation>حوّل المفاتيح إلى نص، فهو يكتب أي محرف.</translation>
    </message>
    <message>
        <source>GNOME lets no program switch the keyboard layout.</source>
        <translation>لا يسمح GNOME لأي برنامج بتبديل تخطيط لوحة المفاتيح.</translation>
    </message>
    <message>
        <source>The desktop has no keyboard layout of that number.</source>
        <translation>ليس في سطح المكتب تخطيط لوحة مفاتيح بهذا الرقم.</translation>
    </message>
    <message>
        <source>This desktop lets no program switch the keyboard layout.</source>
        <translation>لا يسمح سطح المكتب هذا لأي برنامج بتبديل تخطيط لوحة المفاتيح.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the third level (AltGr).</source>
        <translation>ليس في تخطيط لوحة المفاتيح مفتاح للمستوى الثالث (AltGr).</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the fifth level.</source>
        <translation>ليس في تخطيط لوحة المفاتيح مفتاح للمستوى الخامس.</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for %1.</source>
        <extracomment>%1 is a modifier: Super</extracomment>
        <translation>ليس في تخطيط لوحة المفاتيح مفتاح ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Choose a keyboard layout that has one.</source>
        <translation>اختر تخطيط لوحة مفاتيح فيه هذا المفتاح.</translation>
    </message>
    <message>
        <source>The keyboard has no layout %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>ليس للوحة المفاتيح التخطيط ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Add it to the keyboard layouts, or record the macro again.</source>
        <translation>أضفه إلى تخطيطات لوحة المفاتيح، أو سجّل الماكرو من جديد.</translation>
    </message>
    <message>
        <source>The keymap of the X server cannot be read.</source>
        <translation>تتعذر قراءة خريطة المفاتيح من خادم X.</translation>
    </message>
    <message>
        <source>Set a keyboard layout, or log in again.</source>
        <translation>عيّن تخطيطا للوحة المفاتيح، أو أعد الولوج.</translation>
    </message>
</context>
<context>
    <name>LibraryController</name>
    <message>
        <source>&quot;%1&quot; was not played</source>
        <translation>لم يُشغَّل «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Hot keys of macros</source>
        <translation>اختصارات وحدات الماكرو</translation>
    </message>
    <message>
        <source>The history</source>
        <translation>السجل</translation>
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
        <translation>تتعذر إزالة الملف ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Check who may write in its folder.</source>
        <translation>تحقق ممن يحق له الكتابة في مجلده.</translation>
    </message>
    <message>
        <source>A program whose path has a percent sign cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>لا يمكن أن يُبدأ عند الولوج برنامج في مساره علامة النسبة المئوية: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Move the program to a folder without one.</source>
        <translation>انقل البرنامج إلى مجلد ليس في مساره هذه العلامة.</translation>
    </message>
    <message>
        <source>A program whose path is not UTF-8 cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>لا يمكن أن يُبدأ عند الولوج برنامج مساره ليس بترميز UTF-8: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Move the program to another folder.</source>
        <translation>انقل البرنامج إلى مجلد آخر.</translation>
    </message>
    <message>
        <source>A program in a sandbox cannot make an entry that starts it at log-in.</source>
        <translation>لا يستطيع برنامج داخل صندوق معزول إنشاء مدخلة تبدؤه عند الولوج.</translation>
    </message>
    <message>
        <source>Add Keyrill to the programs that start at log-in, in your desktop&apos;s settings.</source>
        <translation>أضف Keyrill إلى البرامج التي تبدأ عند الولوج، من إعدادات سطح المكتب.</translation>
    </message>
</context>
<context>
    <name>MacroCalls</name>
    <message>
        <source>Keyrill does not answer.</source>
        <translation>لا يستجيب Keyrill.</translation>
    </message>
    <message>
        <source>Perhaps its macro folder cannot be reached.</source>
        <translation>ربما يتعذر الوصول إلى مجلد الماكرو.</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>&amp;Keys</source>
        <translation>المفاتيح (&amp;K)</translation>
    </message>
    <message>
        <source>S&amp;cript</source>
        <translation>السكربت (&amp;C)</translation>
    </message>
</context>
<context>
    <name>MacroFilePanel</name>
    <message>
        <source>Keyrill macros (*.%1)</source>
        <translation>ملفات ماكرو Keyrill (*.%1)</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>حفظ الماكرو</translation>
    </message>
    <message>
        <source>Load Macro</source>
        <translation>تحميل ماكرو</translation>
    </message>
    <message>
        <source>This name is too long for a file.</source>
        <translation>هذا الاسم أطول مما يسمح به لملف.</translation>
    </message>
</context>
<context>
    <name>MacroList</name>
    <message>
        <source>The folder %1 does not answer.</source>
        <translation>لا يستجيب المجلد ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>MacroListModel</name>
    <message>
        <source>Group %1</source>
        <translation>المجموعة ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a macro and its hot key</comment>
        <translation>⁨%1⁩ (⁨%2⁩)</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>⁨%1⁩، غير محفوظ</translation>
    </message>
</context>
<context>
    <name>MacroSettingsRow</name>
    <message>
        <source>Hot key</source>
        <translation>الاختصار</translation>
    </message>
    <message>
        <source>&amp;Hot key:</source>
        <translation>الاختصار (&amp;H):</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>المرات</translation>
    </message>
    <message>
        <source>Unt&amp;il stopped</source>
        <translation>حتى الإيقاف (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>المرات (&amp;T):</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>behind a number: so many times as fast</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>The pauses of the macro are divided by this</source>
        <translation>تُقسم وقفات الماكرو على هذا العدد</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Sp&amp;eed:</source>
        <translation>السرعة (&amp;E):</translation>
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
        <translation>وقفة %1 ث</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>نص: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Hold %1</source>
        <extracomment>a key that goes down and stays there</extracomment>
        <translation>إبقاء ⁨%1⁩ مضغوطا</translation>
    </message>
    <message>
        <source>Let go of %1</source>
        <translation>إفلات ⁨%1⁩</translation>
    </message>
    <message>
        <source>Ask: %1</source>
        <extracomment>a dialog of a script, with its question</extracomment>
        <translation>سؤال: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tell: %1</source>
        <translation>إشعار: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>كتابة ⁨%1⁩</translation>
    </message>
    <message>
        <source>Press %1</source>
        <translation>ضغط ⁨%1⁩</translation>
    </message>
    <message numerus="yes">
        <source>Press %1 %Ln times</source>
        <translation>
            <numerusform>عدم ضغط ⁨%1⁩</numerusform>
            <numerusform>ضغط ⁨%1⁩ مرة واحدة</numerusform>
            <numerusform>ضغط ⁨%1⁩ مرتين</numerusform>
            <numerusform>ضغط ⁨%1⁩ %Ln مرات</numerusform>
            <numerusform>ضغط ⁨%1⁩ %Ln مرة</numerusform>
            <numerusform>ضغط ⁨%1⁩ %Ln مرة</numerusform>
        </translation>
    </message>
    <message>
        <source>Wait %1 seconds</source>
        <translation>انتظار %1 ثانية</translation>
    </message>
    <message numerus="yes">
        <source>Wait %1 seconds, %Ln times</source>
        <translation>
            <numerusform>عدم الانتظار %1 ثانية</numerusform>
            <numerusform>انتظار %1 ثانية، مرة واحدة</numerusform>
            <numerusform>انتظار %1 ثانية، مرتين</numerusform>
            <numerusform>انتظار %1 ثانية، %Ln مرات</numerusform>
            <numerusform>انتظار %1 ثانية، %Ln مرة</numerusform>
            <numerusform>انتظار %1 ثانية، %Ln مرة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacrosDesk</name>
    <message>
        <source>Play has the latest macro until there is another.</source>
        <translation>يبقى أحدث ماكرو لأمر «تشغيل» إلى أن يوجد غيره.</translation>
    </message>
    <message>
        <source>What is not saved would not outlive a crash. %1</source>
        <translation>ما لم يُحفظ لن ينجو من انهيار. %1</translation>
    </message>
    <message>
        <source>The macro is still being read: its folder does not answer.</source>
        <translation>ما زال الماكرو يُقرأ: مجلده لا يستجيب.</translation>
    </message>
    <message>
        <source>The file of this macro is gone. If you save, it is there again.</source>
        <translation>اختفى ملف هذا الماكرو. إذا حفظت فسيعود.</translation>
    </message>
    <message>
        <source>Another program has deleted or moved the macro.</source>
        <translation>حذف برنامج آخر الماكرو أو نقله.</translation>
    </message>
    <message>
        <source>Another program has changed this macro. If you save, your text replaces it.</source>
        <translation>غيّر برنامج آخر هذا الماكرو. إذا حفظت فسيحل نصك محله.</translation>
    </message>
    <message>
        <source>What was not saved is there again: %1.</source>
        <translation>عاد ما لم يُحفظ: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>The recording is forgotten.</source>
        <translation>نُسي التسجيل.</translation>
    </message>
    <message>
        <source>All recordings are forgotten.</source>
        <translation>نُسيت كل التسجيلات.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>حُفظ.</translation>
    </message>
    <message>
        <source>New Macro</source>
        <translation>ماكرو جديد</translation>
    </message>
    <message>
        <source>The macro is in the trash.</source>
        <translation>نُقل الماكرو إلى المهملات.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>The macro cannot be played. Line %1: %2</source>
        <extracomment>of a script; what is wrong</extracomment>
        <translation>لا يمكن تشغيل الماكرو. السطر ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The macro is deleted.</source>
        <translation>حُذف الماكرو.</translation>
    </message>
</context>
<context>
    <name>MacrosInterface</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>لا يوجد خيار باسم «%1».</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>المتاح: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file of this machine.</source>
        <translation>الملف «%1» ليس على هذا الجهاز.</translation>
    </message>
    <message>
        <source>It begins with file:///.</source>
        <translation>يبدأ العنوان بـ file:///.</translation>
    </message>
</context>
<context>
    <name>MacrosWindow</name>
    <message>
        <source>Macros</source>
        <translation>وحدات الماكرو</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>البحث في وحدات الماكرو</translation>
    </message>
    <message>
        <source>&amp;Record New</source>
        <translation>تسجيل جديد (&amp;R)</translation>
    </message>
    <message>
        <source>Record a new macro</source>
        <translation>تسجيل ماكرو جديد</translation>
    </message>
    <message>
        <source>Keep Recordin&amp;g...</source>
        <translation>الاحتفاظ بتسجيل (&amp;G)...</translation>
    </message>
    <message>
        <source>Keep a recording of the history as a macro, by a name</source>
        <translation>الاحتفاظ بتسجيل من السجل كماكرو له اسم</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>نسيان (&amp;F)</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>نسيان الكل (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>تشغيل (&amp;P)</translation>
    </message>
    <message>
        <source>Play into the window that you were in before, after three seconds</source>
        <translation>التشغيل بعد ثلاث ثوان في النافذة التي كنت فيها من قبل</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>حفظ (&amp;S)</translation>
    </message>
    <message>
        <source>Save the macro (%1)</source>
        <translation>حفظ الماكرو (%1)</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>استنساخ (&amp;U)</translation>
    </message>
    <message>
        <source>Make a copy of the macro</source>
        <translation>إنشاء نسخة من الماكرو</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>إعادة التسمية (&amp;N)</translation>
    </message>
    <message>
        <source>Give the macro another name (F2)</source>
        <translation>إعطاء الماكرو اسما آخر (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>حذف (&amp;D)</translation>
    </message>
    <message>
        <source>Put the macro into the trash (Delete)</source>
        <translation>نقل الماكرو إلى المهملات (Delete)</translation>
    </message>
    <message>
        <source>Stop (Escape)</source>
        <translation>إيقاف (Esc)</translation>
    </message>
    <message>
        <source>Do not play</source>
        <translation>عدم التشغيل</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة التسمية</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>استنساخ</translation>
    </message>
    <message>
        <source>The macro folder is still being read.</source>
        <translation>ما زال مجلد الماكرو يُقرأ.</translation>
    </message>
    <message>
        <source>There is no macro yet. Record one, or put a macro file into the macro folder.</source>
        <translation>لا يوجد ماكرو بعد. سجّل واحدا، أو ضع ملف ماكرو في مجلد الماكرو.</translation>
    </message>
    <message>
        <source>Plays in %1 s...</source>
        <translation>التشغيل بعد %1 ث...</translation>
    </message>
</context>
<context>
    <name>MultiplePlayWindow</name>
    <message>
        <source>Play Multiple Times</source>
        <translation>تشغيل عدة مرات</translation>
    </message>
    <message>
        <source>&amp;Times to play:</source>
        <translation>عدد مرات التشغيل (&amp;T):</translation>
    </message>
    <message>
        <source>Times to play</source>
        <translation>عدد مرات التشغيل</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>تشغيل (&amp;P)</translation>
    </message>
    <message>
        <source>No macro yet</source>
        <translation>لا يوجد ماكرو بعد</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>OverlayDesk</name>
    <message>
        <source>Waiting for your permission</source>
        <translation>في انتظار إذنك</translation>
    </message>
    <message>
        <source>Not recorded: keyboard held</source>
        <translation>لا يُسجَّل: لوحة المفاتيح محجوزة</translation>
    </message>
</context>
<context>
    <name>PauseRow</name>
    <message>
        <source>Never</source>
        <extracomment>whether pauses are recorded: never, as long as they were when typed, or not longer than a number of seconds</extracomment>
        <translation>أبدا</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>كما كُتبت</translation>
    </message>
    <message>
        <source>At most</source>
        <extracomment>stands before a number of seconds</extracomment>
        <translation>على الأكثر</translation>
    </message>
    <message>
        <source>Record pauses</source>
        <translation>تسجيل الوقفات</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>Longest pause in seconds</source>
        <translation>أطول وقفة بالثواني</translation>
    </message>
    <message>
        <source>Record p&amp;auses:</source>
        <translation>تسجيل الوقفات (&amp;A):</translation>
    </message>
</context>
<context>
    <name>PlayRequests</name>
    <message>
        <source>There are several macros called &quot;%1&quot;.</source>
        <translation>توجد عدة وحدات ماكرو باسم «%1».</translation>
    </message>
    <message>
        <source>Say which one: %1.</source>
        <translation>حدد أيها: %1.</translation>
    </message>
    <message>
        <source>keyrill --list lists all.</source>
        <translation>يسردها keyrill --list كلها.</translation>
    </message>
    <message>
        <source>There is no macro called &quot;%1&quot;.</source>
        <translation>لا يوجد ماكرو باسم «%1».</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>لا يوجد ماكرو لتشغيله بعد.</translation>
    </message>
    <message>
        <source>What Play plays cannot be played: its script is wrong in line %1.</source>
        <translation>يتعذر تشغيل ما يشغّله أمر «تشغيل»: يوجد خطأ في سكربته في السطر %1.</translation>
    </message>
    <message>
        <source>Play in the menu tells more.</source>
        <translation>يشرح أمر «تشغيل» في القائمة المزيد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be played: its script is wrong in line %2.</source>
        <translation>يتعذر تشغيل «%1»: يوجد خطأ في سكربته في السطر %2.</translation>
    </message>
    <message>
        <source>keyrill-script check &quot;%1&quot; tells more.</source>
        <translation>يشرح keyrill-script check &quot;%1&quot; المزيد.</translation>
    </message>
    <message>
        <source>Similar: %1.</source>
        <translation>أسماء مشابهة: ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>PlayWords</name>
    <message>
        <source>&quot;%1&quot; is not how many times a macro can be played.</source>
        <translation>القيمة «%1» ليست عدد مرات يمكن تشغيل ماكرو بها.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>هو عدد صحيح من 1 فصاعدا، أو until-stopped.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not how fast a macro can be played.</source>
        <translation>القيمة «%1» ليست سرعة يمكن تشغيل ماكرو بها.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4, with a point: 1.5.</source>
        <translation>هو عدد من 0.25 إلى 4، بنقطة: 1.5.</translation>
    </message>
    <message>
        <source>The name of the macro is empty.</source>
        <translation>اسم الماكرو فارغ.</translation>
    </message>
    <message>
        <source>keyrill --list prints those that there are.</source>
        <translation>يطبع keyrill --list الموجود منها.</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Keyrill Preferences</source>
        <translation>تفضيلات Keyrill</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>التحقق الآن (&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>These combinations work in every program. Click a field and press the combination you want.</source>
        <translation>تعمل هذه التوليفات في كل البرامج. انقر على حقل واضغط التوليفة التي تريدها.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
</context>
<context>
    <name>ProgramInstance</name>
    <message>
        <source>The macro folder was out of reach for too long.</source>
        <translation>تعذر الوصول إلى مجلد الماكرو مدة أطول من اللازم.</translation>
    </message>
    <message>
        <source>Another program has Keyrill&apos;s name on the session bus and does not do its work: %1</source>
        <translation>برنامج آخر يحمل اسم Keyrill على ناقل الجلسة ولا يؤدي عمله: %1</translation>
    </message>
    <message>
        <source>End that program and start Keyrill again.</source>
        <translation>أنهِ ذلك البرنامج وابدأ Keyrill من جديد.</translation>
    </message>
    <message>
        <source>It cannot be given a file, since it has no session bus.</source>
        <translation>لا يمكن إعطاؤه ملفا، إذ ليس له ناقل جلسة.</translation>
    </message>
    <message>
        <source>Keyrill is running already.</source>
        <translation>يعمل Keyrill بالفعل.</translation>
    </message>
</context>
<context>
    <name>Programs</name>
    <message>
        <source>The program &quot;%1&quot;, which presses keys by the desktop&apos;s portal, could not be started.</source>
        <translation>تعذر بدء البرنامج «⁨%1⁩»، الذي يضغط المفاتيح عبر بوابة سطح المكتب.</translation>
    </message>
    <message>
        <source>Install the program again.</source>
        <translation>ثبّت البرنامج من جديد.</translation>
    </message>
    <message>
        <source>A text with a zero byte cannot be opened.</source>
        <translation>لا يمكن فتح نص فيه بايت صفري.</translation>
    </message>
    <message>
        <source>The program xdg-open cannot be started: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>يتعذر بدء البرنامج xdg-open: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Install the package xdg-utils.</source>
        <translation>ثبّت الحزمة xdg-utils.</translation>
    </message>
    <message>
        <source>The guard program &quot;%1&quot;, which releases keys after a crash, could not be started.</source>
        <translation>تعذر بدء برنامج الحراسة «⁨%1⁩»، الذي يُفلت المفاتيح بعد الانهيار.</translation>
    </message>
    <message>
        <source>Install the program again; nothing is played without its guard.</source>
        <translation>ثبّت البرنامج من جديد؛ لا يُشغَّل شيء من دون برنامج الحراسة.</translation>
    </message>
</context>
<context>
    <name>RecordHerePanel</name>
    <message>
        <source>Record Here</source>
        <translation>التسجيل هنا</translation>
    </message>
    <message>
        <source>How to Record Everywhere</source>
        <translation>كيفية التسجيل في كل مكان</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>اكتب هنا</translation>
    </message>
    <message>
        <source>Keys typed here are recorded</source>
        <translation>تُسجَّل المفاتيح المكتوبة هنا</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>إيقاف التسجيل</translation>
    </message>
    <message>
        <source>What you type in this window is recorded</source>
        <translation>يُسجَّل ما تكتبه في هذه النافذة</translation>
    </message>
    <message>
        <source>What you type in other programs is not. The macro can be played in all of them.</source>
        <translation>أما ما تكتبه في البرامج الأخرى فلا. يمكن تشغيل الماكرو فيها كلها.</translation>
    </message>
    <message>
        <source>Why not everywhere?</source>
        <translation>لماذا ليس في كل مكان؟</translation>
    </message>
    <message>
        <source>Press Stop Recording or close the window when you are done.</source>
        <translation>اضغط «إيقاف التسجيل» أو أغلق النافذة عندما تنتهي.</translation>
    </message>
    <message>
        <source>Press %1 when you are done, or close the window.</source>
        <translation>اضغط ⁨%1⁩ عندما تنتهي، أو أغلق النافذة.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window.</source>
        <translation>استخدم التوليفة المحددة في إعدادات سطح المكتب عندما تنتهي، أو أغلق النافذة.</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window: %1</source>
        <translation>استخدم التوليفة المحددة في إعدادات سطح المكتب عندما تنتهي، أو أغلق النافذة: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>RecorderWindow</name>
    <message>
        <source>Keyrill recording</source>
        <translation>يسجّل Keyrill</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>There is no session bus, over which the running Keyrill could be asked.</source>
        <translation>لا يوجد ناقل جلسة يمكن عبره سؤال Keyrill العامل.</translation>
    </message>
    <message>
        <source>Call it from within the desktop session; the hot keys and the menu need none.</source>
        <translation>استدعه من داخل الجلسة الرسومية؛ لا تحتاج الاختصارات والقائمة إلى ناقل.</translation>
    </message>
    <message>
        <source>Keyrill could not be started, or runs already where this session bus does not reach.</source>
        <translation>تعذر بدء Keyrill، أو أنه يعمل بالفعل حيث لا يصل ناقل الجلسة هذا.</translation>
    </message>
    <message>
        <source>Start it as &quot;keyrill&quot; in a terminal to see why.</source>
        <translation>ابدأه بالأمر «keyrill» في طرفية لمعرفة السبب.</translation>
    </message>
</context>
<context>
    <name>SRRecorderControl</name>
    <message>
        <source>Clear %1</source>
        <translation>مسح %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Click here, then press a combination. Backspace clears, Escape keeps what was set.</source>
        <translation>انقر هنا ثم اضغط توليفة. يمسح Backspace، ويبقي Escape ما كان محددا.</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super</source>
        <translation>أضف Ctrl أو Alt أو Super</translation>
    </message>
    <message>
        <source>Press a combination…</source>
        <translation>اضغط توليفة…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>غير محدد</translation>
    </message>
</context>
<context>
    <name>ScriptDialogWindow</name>
    <message>
        <source>Stop</source>
        <extracomment>the name of a picture: a stop sign</extracomment>
        <translation>توقف</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>تنبيه</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Keyrill Macro</source>
        <translation>ماكرو Keyrill</translation>
    </message>
</context>
<context>
    <name>ScriptDialogs</name>
    <message>
        <source>Please make your selection:</source>
        <translation>يرجى الاختيار:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Script</source>
        <translation>السكربت</translation>
    </message>
    <message>
        <source>Words of the script language</source>
        <translation>كلمات لغة السكربت</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <extracomment>of a script; what is wrong, or could be</extracomment>
        <translation>السطر %1: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>ScriptErrors</name>
    <message>
        <source>Can’t declare %1 as both a local and global variable.</source>
        <translation>لا يمكن التصريح عن ⁨%1⁩ متغيرا محليا وعاما معا.</translation>
    </message>
    <message>
        <source>list of button names</source>
        <translation>قائمة أسماء أزرار</translation>
    </message>
    <message>
        <source>list of choices</source>
        <translation>قائمة خيارات</translation>
    </message>
    <message>
        <source>Some parameter is missing for %1.</source>
        <translation>ينقص معامل في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>modifier</source>
        <translation>مفتاح مغيِّر</translation>
    </message>
    <message>
        <source>the power key is never pressed by a script.</source>
        <translation>لا يضغط السكربت مفتاح الطاقة أبدا.</translation>
    </message>
    <message>
        <source>%1 doesn’t match the parameters %2 for %3.</source>
        <translation>القيم ⁨%1⁩ لا توافق المعاملات ⁨%2⁩ للمعالج ⁨%3⁩.</translation>
    </message>
    <message>
        <source>%1 doesn’t understand the “%2” message.</source>
        <translation>لا يفهم ⁨%1⁩ الرسالة «⁨%2⁩».</translation>
    </message>
    <message>
        <source>The step of a repeat loop can’t be 0.</source>
        <translation>لا يمكن أن تكون خطوة حلقة «repeat» صفرا.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences: what is wrong, and what to do about it.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>The variable %1 is not defined.</source>
        <translation>المتغير ⁨%1⁩ غير معرَّف.</translation>
    </message>
    <message>
        <source>unknown token</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>محرف غير معروف</translation>
    </message>
    <message>
        <source>unknown token %1</source>
        <translation>المحرف غير المعروف ⁨%1⁩</translation>
    </message>
    <message>
        <source>end of script</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>نهاية السكربت</translation>
    </message>
    <message>
        <source>end of line</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>نهاية السطر</translation>
    </message>
    <message>
        <source>variable name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>اسم متغير</translation>
    </message>
    <message>
        <source>Raw codes («…») are not supported.</source>
        <translation>الرموز الخام («…») غير مدعومة.</translation>
    </message>
    <message>
        <source>Expected end of line after “¬”.</source>
        <translation>المتوقع نهاية السطر بعد «¬».</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>عدد</translation>
    </message>
    <message>
        <source>unknown token %1 (text stands between straight quotes)</source>
        <translation>المحرف غير المعروف ⁨%1⁩ (يوضع النص بين علامتي اقتباس مستقيمتين)</translation>
    </message>
    <message>
        <source>identifier</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>معرِّف</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>الذاكرة غير كافية.</translation>
    </message>
    <message>
        <source>User canceled.</source>
        <translation>ألغاه المستخدم.</translation>
    </message>
    <message>
        <source>Application isn’t running.</source>
        <translation>التطبيق لا يعمل.</translation>
    </message>
    <message>
        <source>Connection is invalid.</source>
        <translation>الاتصال غير صالح.</translation>
    </message>
    <message>
        <source>Can’t make some data into the expected type.</source>
        <translation>لا يمكن تحويل بعض البيانات إلى النوع المتوقع.</translation>
    </message>
    <message>
        <source>Some parameter is missing for a command.</source>
        <translation>ينقص معامل في أحد الأوامر.</translation>
    </message>
    <message>
        <source>Some data was of the wrong type.</source>
        <translation>بعض البيانات من نوع خاطئ.</translation>
    </message>
    <message>
        <source>Some parameter was invalid.</source>
        <translation>أحد المعاملات غير صالح.</translation>
    </message>
    <message>
        <source>A message was not understood.</source>
        <translation>رسالة غير مفهومة.</translation>
    </message>
    <message>
        <source>AppleEvent timed out.</source>
        <translation>انتهت مهلة AppleEvent.</translation>
    </message>
    <message>
        <source>Some required parameter was missing.</source>
        <translation>ينقص معامل مطلوب.</translation>
    </message>
    <message>
        <source>The handler is not defined.</source>
        <translation>المعالج غير معرَّف.</translation>
    </message>
    <message>
        <source>Can’t get the element. Invalid index.</source>
        <translation>لا يمكن الحصول على العنصر. فهرس غير صالح.</translation>
    </message>
    <message>
        <source>Some parameters don’t match.</source>
        <translation>بعض المعاملات غير متوافقة.</translation>
    </message>
    <message>
        <source>Can’t get the object.</source>
        <translation>لا يمكن الحصول على الكائن.</translation>
    </message>
    <message>
        <source>Not authorized to send Apple events.</source>
        <translation>لا يُسمح بإرسال أحداث Apple.</translation>
    </message>
    <message>
        <source>An error has occurred.</source>
        <translation>حدث خطأ.</translation>
    </message>
    <message>
        <source>Can’t divide by zero.</source>
        <translation>لا يمكن القسمة على صفر.</translation>
    </message>
    <message>
        <source>The result of a numeric operation was too large.</source>
        <translation>نتيجة عملية حسابية أكبر مما يُسمح به.</translation>
    </message>
    <message>
        <source>Stack overflow.</source>
        <translation>تجاوز سعة المكدس.</translation>
    </message>
    <message>
        <source>A variable is not defined.</source>
        <translation>متغير غير معرَّف.</translation>
    </message>
    <message>
        <source>No result was returned for some argument of this expression.</source>
        <translation>لم ترجع أي نتيجة لأحد معاملات هذا التعبير.</translation>
    </message>
    <message>
        <source>AppleEvent handler failed.</source>
        <translation>فشل معالج AppleEvent.</translation>
    </message>
    <message>
        <source>Can’t set the object.</source>
        <translation>لا يمكن تعيين الكائن.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>%1 is a word of the script language.</extracomment>
        <translation>«⁨%1⁩»</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>⁧%1⁩ أو ⁧%2⁩</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Expected %1 but found %2.</source>
        <extracomment>%1 and %2 are words of the script language in quotes, or &quot;expression&quot;, &quot;end of line&quot; and others below.</extracomment>
        <translation>المتوقع ⁨%1⁩، والموجود ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The %1 parameter is specified more than once.</source>
        <translation>المعامل ⁨%1⁩ مذكور أكثر من مرة.</translation>
    </message>
    <message>
        <source>The %1 property is specified more than once.</source>
        <translation>الخاصية ⁨%1⁩ مذكورة أكثر من مرة.</translation>
    </message>
    <message>
        <source>The %1 handler is specified more than once.</source>
        <translation>المعالج ⁨%1⁩ مذكور أكثر من مرة.</translation>
    </message>
    <message>
        <source>%1 got an error: %2</source>
        <translation>واجه ⁨%1⁩ خطأ: ⁨%2⁩</translation>
    </message>
    <message>
        <source>An error of type %1 has occurred.</source>
        <translation>حدث خطأ من النوع ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Can’t both consider and ignore %1.</source>
        <translation>لا يمكن مراعاة ⁨%1⁩ وتجاهله معا.</translation>
    </message>
    <message>
        <source>Expected at most %1 parameters but found more.</source>
        <translation>الحد الأقصى للمعاملات ⁨%1⁩، والموجود أكثر.</translation>
    </message>
    <message>
        <source>expression</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>تعبير</translation>
    </message>
    <message>
        <source>class name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>اسم صنف</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro can press keys and nothing else.</source>
        <translation>الأمر «⁨%1⁩» مرفوض: لا يستطيع الماكرو إلا ضغط المفاتيح.</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro is one script.</source>
        <translation>الأمر «⁨%1⁩» مرفوض: الماكرو سكربت واحد.</translation>
    </message>
    <message>
        <source>Expected at most %1 items in a list but found more.</source>
        <translation>الحد الأقصى لعناصر القائمة ⁨%1⁩، والموجود أكثر.</translation>
    </message>
    <message>
        <source>Expected at most %1 properties in a record but found more.</source>
        <translation>الحد الأقصى لخصائص السجل ⁨%1⁩، والموجود أكثر.</translation>
    </message>
    <message>
        <source>Expected at most %1 levels of nesting but found more.</source>
        <translation>الحد الأقصى لمستويات التداخل ⁨%1⁩، والموجود أكثر.</translation>
    </message>
    <message>
        <source>Tell statements are nested too deeply.</source>
        <translation>عبارات «tell» متداخلة بعمق زائد.</translation>
    </message>
    <message>
        <source>Expected at most 16 MiB of script but found more.</source>
        <translation>الحد الأقصى لحجم السكربت 16 ميبي بايت، والموجود أكثر.</translation>
    </message>
    <message>
        <source>Expected text in UTF-8 but found another byte.</source>
        <translation>المتوقع نص بترميز UTF-8، والموجود بايت آخر.</translation>
    </message>
    <message>
        <source>Exit statement was not in a repeat loop.</source>
        <translation>عبارة «exit» ليست داخل حلقة «repeat».</translation>
    </message>
    <message>
        <source>Can’t divide %1 by zero.</source>
        <translation>لا يمكن قسمة ⁨%1⁩ على صفر.</translation>
    </message>
    <message>
        <source>A list holds at most %1 items.</source>
        <translation>الحد الأقصى لعناصر القائمة ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Can’t get contents of a variable that is not set.</source>
        <translation>لا يمكن الحصول على محتوى متغير لم تُعيَّن قيمته.</translation>
    </message>
    <message>
        <source>Can’t make %1 into type %2.</source>
        <translation>لا يمكن تحويل ⁨%1⁩ إلى النوع ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Can’t get %1.</source>
        <translation>لا يمكن الحصول على ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Can’t set %1 to %2.</source>
        <translation>لا يمكن تعيين ⁨%1⁩ إلى ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Can’t raise %1 to the power of %2: the result is no number.</source>
        <translation>لا يمكن رفع ⁨%1⁩ إلى الأس ⁨%2⁩: فالنتيجة ليست عددًا.</translation>
    </message>
</context>
<context>
    <name>ScriptNotices</name>
    <message>
        <source>The macro was not played to its end</source>
        <translation>لم يُشغَّل الماكرو إلى نهايته</translation>
    </message>
    <message>
        <source>The macro cannot be played</source>
        <translation>يتعذر تشغيل الماكرو</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded but cannot be played</source>
        <translation>حُمِّل «⁨%1⁩» لكن يتعذر تشغيله</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: ⁨%2⁩</translation>
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
        <translation>القيمة ⁨%1⁩ ليست عدد مرات يمكن تشغيل سكربت بها في --times.</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>هو عدد صحيح من 1 فصاعدا، أو until-stopped.</translation>
    </message>
    <message>
        <source>Nobody can stop a trace.</source>
        <translation>لا يستطيع أحد إيقاف التتبع.</translation>
    </message>
    <message>
        <source>Give --times a number.</source>
        <translation>أعط --times عددا.</translation>
    </message>
    <message>
        <source>--speed %1 is not how fast a script can be played.</source>
        <translation>القيمة ⁨%1⁩ ليست سرعة يمكن تشغيل سكربت بها في --speed.</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4.</source>
        <translation>هو عدد من 0.25 إلى 4.</translation>
    </message>
    <message>
        <source>This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.</source>
        <translation>هذا ليس UTF-8، لذلك يُقرأ الملف كله على أنه Mac Roman. احفظه بترميز UTF-8.</translation>
    </message>
    <message>
        <source>Press a key.</source>
        <translation>اضغط مفتاحا.</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>تلميح: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1; standard input is &quot;-&quot;</source>
        <translation>⁨%1⁩؛ الإدخال القياسي هو «-»</translation>
    </message>
    <message>
        <source>(Return)</source>
        <translation>(Return)</translation>
    </message>
    <message>
        <source>No dialog can be shown here.</source>
        <translation>لا يمكن عرض مربع حوار هنا.</translation>
    </message>
    <message>
        <source>Run the script in a terminal.</source>
        <translation>شغّل السكربت في طرفية.</translation>
    </message>
    <message>
        <source>The question was not answered.</source>
        <translation>لم يُجب عن السؤال.</translation>
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
        <translation>الاستخدام: keyrill-script check FILE    التصريف وذكر الأخطاء؛ مع ‎--json‎ للمحررات
           keyrill-script run [--times N] [--speed X] FILE
                                        ضغط المفاتيح بهذا العدد من المرات (أو until-stopped)، وتُقسم فتراته على X
           keyrill-script trace FILE    طباعة ما كان سيُنفذ، مصفوفة JSON في كل سطر
           keyrill-script format FILE   طباعة السكربت بتنسيق واحد
           keyrill-script keys          طباعة رموز المفاتيح؛ مع ‎--press‎ رمز المفتاح التالي
           keyrill-script reference     طباعة مرجع اللغة
           keyrill-script -h | --help | --version
الملف FILE - هو الإدخال القياسي؛ و ‎-e LINE‎ مرة أو أكثر يعطي السكربت نفسه.
</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>لا يوجد أمر باسم «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>تتعذر الكتابة في الخرج القياسي.</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>لا يمكن كتابة الخرج</translation>
    </message>
    <message>
        <source>“%1” has no option “%2”.</source>
        <translation>ليس للأمر «⁨%1⁩» خيار باسم «⁨%2⁩».</translation>
    </message>
    <message>
        <source>“keyrill-script --help” tells which there are.</source>
        <translation>يعرض الأمر «⁨keyrill-script --help⁩» الخيارات كلها.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no session bus.</source>
        <translation>لا يوجد ناقل جلسة.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>أعد الولوج.</translation>
    </message>
    <message>
        <source>sway does not answer at $SWAYSOCK.</source>
        <translation>لا يستجيب sway عند ⁨$SWAYSOCK⁩.</translation>
    </message>
    <message>
        <source>Start the program in the session of sway.</source>
        <translation>ابدأ البرنامج في جلسة sway.</translation>
    </message>
    <message>
        <source>sway says: %1</source>
        <translation>يقول sway: ⁨%1⁩</translation>
    </message>
    <message>
        <source>There is no kind of session called &quot;%1&quot;.</source>
        <translation>لا يوجد نوع جلسة باسم «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>اختر واحدا من هذه: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>No kind of session is known.</source>
        <translation>لا يوجد أي نوع جلسة معروف.</translation>
    </message>
    <message>
        <source>The connection to the compositor was lost.</source>
        <translation>فُقد الاتصال بالمُركِّب.</translation>
    </message>
    <message>
        <source>No Wayland compositor answers at $WAYLAND_DISPLAY.</source>
        <translation>لا يستجيب أي مُركِّب Wayland عند ⁨$WAYLAND_DISPLAY⁩.</translation>
    </message>
    <message>
        <source>Start the program in a Wayland session.</source>
        <translation>ابدأ البرنامج في جلسة Wayland.</translation>
    </message>
    <message>
        <source>The Wayland compositor is gone.</source>
        <translation>اختفى مُركِّب Wayland.</translation>
    </message>
    <message>
        <source>$WAYLAND_DISPLAY names no Wayland compositor.</source>
        <translation>لا يشير ⁨$WAYLAND_DISPLAY⁩ إلى أي مُركِّب Wayland.</translation>
    </message>
    <message>
        <source>The X server is gone.</source>
        <translation>اختفى خادم X.</translation>
    </message>
    <message>
        <source>This is a Wayland session without an X server.</source>
        <translation>هذه جلسة Wayland دون خادم X.</translation>
    </message>
    <message>
        <source>Install Xwayland, or switch it on in the desktop&apos;s settings, and log in again; or choose an X11 session when you log in.</source>
        <translation>ثبّت Xwayland، أو فعّله في إعدادات سطح المكتب، ثم أعد الولوج؛ أو اختر جلسة X11 عند الولوج.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is no desktop session.</source>
        <translation>تلزم جلسة X11، وهذه ليست جلسة رسومية.</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is a Wayland session without an X server.</source>
        <translation>تلزم جلسة X11، وهذه جلسة Wayland دون خادم X.</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>اختر جلسة X11 عند الولوج.</translation>
    </message>
    <message>
        <source>The connection to the X server was lost.</source>
        <translation>فُقد الاتصال بخادم X.</translation>
    </message>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>استخدم خادم X أحدث، أو فعّل الامتداد في إعداداته.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has no XInput.</source>
        <translation>يجب أن يكون لخادم X الامتداد XInput 2.2 أو أحدث، لكن ليس له XInput.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but does not answer.</source>
        <translation>يجب أن يكون لخادم X الامتداد XInput 2.2 أو أحدث، لكنه لا يستجيب.</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has %1.</source>
        <translation>يجب أن يكون لخادم X الامتداد XInput 2.2 أو أحدث، لكن ما لديه هو ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The X server must have the XKB extension, but it cannot be used.</source>
        <translation>يجب أن يكون لخادم X الامتداد XKB، لكن لا يمكن استخدامه.</translation>
    </message>
    <message>
        <source>The X server must have the XTEST extension, but it has not.</source>
        <translation>يجب أن يكون لخادم X الامتداد XTEST، لكنه ينقصه.</translation>
    </message>
    <message>
        <source>The X server of display &quot;%1&quot; cannot be reached.</source>
        <translation>يتعذر الوصول إلى خادم X لشاشة العرض «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Start the program inside a desktop session, or set DISPLAY to a running X server.</source>
        <translation>ابدأ البرنامج داخل جلسة رسومية، أو اضبط DISPLAY على خادم X عامل.</translation>
    </message>
    <message>
        <source>virtual keyboard</source>
        <translation>لوحة مفاتيح افتراضية</translation>
    </message>
    <message>
        <source>GNOME&apos;s settings</source>
        <translation>إعدادات GNOME</translation>
    </message>
    <message>
        <source>portal for keys</source>
        <translation>بوابة المفاتيح</translation>
    </message>
    <message>
        <source>portal for hot keys</source>
        <translation>بوابة الاختصارات العامة</translation>
    </message>
</context>
<context>
    <name>SessionReport</name>
    <message>
        <source>, </source>
        <extracomment>between the names of a list</extracomment>
        <translation>، </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a line of keyrill --check: what was looked at, and what was found</extracomment>
        <translation>%1: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>الجلسة</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>⁨%1⁩، شاشة العرض ⁨%2⁩</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>الأجزاء</translation>
    </message>
    <message>
        <source>missing: %1; there: %2</source>
        <translation>ناقص: %1؛ موجود: %2</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>الاختصارات العامة</translation>
    </message>
    <message>
        <source>Pressing keys</source>
        <translation>ضغط المفاتيح</translation>
    </message>
    <message>
        <source>Typing text</source>
        <translation>كتابة النص</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>الحافظة</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>الطبقة العلوية</translation>
    </message>
    <message>
        <source>Windows of other programs</source>
        <translation>نوافذ البرامج الأخرى</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>صينية النظام</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>by what it works, and what is missing all the same, which is a sentence</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Hot key of &quot;%1&quot;</source>
        <translation>اختصار «%1»</translation>
    </message>
    <message>
        <source>none is chosen</source>
        <translation>لم يُختر أي اختصار</translation>
    </message>
    <message>
        <source>%1, which nobody else has</source>
        <translation>⁨%1⁩، ولا يستخدمه برنامج آخر</translation>
    </message>
    <message>
        <source>%1, which the running Keyrill has</source>
        <translation>⁨%1⁩، ويستخدمه Keyrill العامل</translation>
    </message>
    <message>
        <source>%1; the session does not tell who has it</source>
        <translation>⁨%1⁩؛ لا تخبر الجلسة بمن يستخدمه</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>ناقل الجلسة</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>the session bus exists</extracomment>
        <translation>موجود</translation>
    </message>
    <message>
        <source>There is none: &quot;keyrill --action&quot;, notifications and many trays need it, and a locked screen is not noticed at once.</source>
        <translation>لا يوجد ناقل: يحتاج إليه «keyrill --action» والإشعارات وكثير من صواني النظام، ولا يُلاحظ قفل الشاشة فورا.</translation>
    </message>
    <message>
        <source>Start Keyrill from within the desktop session.</source>
        <translation>ابدأ Keyrill من داخل الجلسة الرسومية.</translation>
    </message>
    <message>
        <source>Keyrill</source>
        <translation>برنامج Keyrill</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>يعمل</translation>
    </message>
    <message>
        <source>is not running</source>
        <translation>لا يعمل</translation>
    </message>
    <message>
        <source>no lock is on</source>
        <translation>لا قفل مفعّل</translation>
    </message>
    <message>
        <source>on: %1, which macros do not mind</source>
        <translation>مفعّل: %1، ولا يؤثر ذلك في وحدات الماكرو</translation>
    </message>
    <message>
        <source>layout unknown</source>
        <translation>التخطيط مجهول</translation>
    </message>
    <message>
        <source>layout %1</source>
        <translation>التخطيط %1</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>لوحة المفاتيح</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>the keyboard layouts, and the locks that are on</extracomment>
        <translation>%1؛ %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>It has a zero byte</source>
        <translation>فيه بايت صفري</translation>
    </message>
    <message>
        <source>The settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>ملف الإعدادات ⁨%1⁩ ليس ملف مفاتيح وقيم: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The macro settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>ملف إعدادات الماكرو ⁨%1⁩ ليس ملف مفاتيح وقيم: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>يتعذر إنشاء مجلد الإعدادات ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The macro settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>يتعذر إنشاء مجلد إعدادات الماكرو ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>غُيِّر اسمه إلى ⁨%1⁩، وتبدأ الإعدادات من جديد.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and hot keys, times and speeds begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>غُيِّر اسمه إلى ⁨%1⁩، وتبدأ الاختصارات وأعداد المرات والسرعات من جديد.</translation>
    </message>
    <message>
        <source>Correct the file or remove it.</source>
        <translation>صحّح الملف أو أزله.</translation>
    </message>
    <message>
        <source>It could not be put aside either: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>تعذرت تنحيته جانبا أيضا: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>تتعذر قراءة ملف الإعدادات ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>تتعذر قراءة ملف إعدادات الماكرو ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>تتعذر كتابة ملف الإعدادات ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>تتعذر كتابة ملف إعدادات الماكرو ⁨%1⁩: ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>ShortcutNotices</name>
    <message>
        <source>Still used by %1 until Keyrill restarts.</source>
        <translation>ما زال أمر «%1» يستخدمه إلى أن يُعاد تشغيل Keyrill.</translation>
    </message>
    <message>
        <source>Already used by %1.</source>
        <translation>يستخدمه أمر «%1» بالفعل.</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>لم يستجب سطح المكتب بعد.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings.</source>
        <translation>محدد في إعدادات سطح المكتب.</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings: %1</source>
        <translation>محدد في إعدادات سطح المكتب: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 still works until Keyrill restarts.</source>
        <translation>ما زال ⁨%1⁩ يعمل إلى أن يُعاد تشغيل Keyrill.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;, which gives way.</source>
        <translation>يستخدمه بالفعل الماكرو «⁨%1⁩»، وسيتنازل عنه.</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;.</source>
        <translation>يستخدمه بالفعل الماكرو «⁨%1⁩».</translation>
    </message>
</context>
<context>
    <name>ShortcutTitles</name>
    <message>
        <source>Start &amp;Recording:</source>
        <translation>بدء التسجيل (&amp;R):</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>بدء التسجيل</translation>
    </message>
    <message>
        <source>&amp;Stop Recording:</source>
        <translation>إيقاف التسجيل (&amp;S):</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>إيقاف التسجيل</translation>
    </message>
    <message>
        <source>&amp;Play:</source>
        <translation>تشغيل (&amp;P):</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Play &amp;Multiple Times:</source>
        <translation>تشغيل عدة مرات (&amp;M):</translation>
    </message>
    <message>
        <source>Play Multiple Times</source>
        <translation>تشغيل عدة مرات</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Start Recording</source>
        <translation>بدء التسجيل</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>إيقاف التسجيل</translation>
    </message>
    <message>
        <source>Save Pause</source>
        <translation>تسجيل الوقفة</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Play Multiple Times...</source>
        <translation>تشغيل عدة مرات...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Save Macro...</source>
        <translation>حفظ الماكرو...</translation>
    </message>
    <message>
        <source>Load Macro...</source>
        <translation>تحميل ماكرو...</translation>
    </message>
    <message>
        <source>Macros...</source>
        <translation>وحدات الماكرو...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>التفضيلات...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>التوثيق</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>المنتدى</translation>
    </message>
    <message>
        <source>Product Page</source>
        <translation>صفحة المنتج</translation>
    </message>
    <message>
        <source>Maker&apos;s Website</source>
        <translation>موقع المطوّر</translation>
    </message>
    <message>
        <source>Get Support</source>
        <translation>الحصول على الدعم</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>إرسال ملاحظات</translation>
    </message>
    <message>
        <source>Report a Bug</source>
        <translation>الإبلاغ عن علة</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>التحقق من وجود تحديثات...</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>عن Keyrill</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Keyrill menu</source>
        <translation>قائمة Keyrill</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>ما يعمل هنا</translation>
    </message>
</context>
<context>
    <name>StatusNotice</name>
    <message>
        <source>%1 has no shortcut. %2</source>
        <translation>لا اختصار لأمر «%1». ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>Works</source>
        <translation>يعمل</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>لا يعمل</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>ما يعمل هنا</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>نسخ (&amp;O)</translation>
    </message>
    <message>
        <source>Copy all lines, for a mail or a forum</source>
        <translation>نسخ كل الأسطر لإرسالها في رسالة أو منتدى</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>التحقق من جديد (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلاق (&amp;C)</translation>
    </message>
    <message>
        <source>A moment...</source>
        <translation>لحظة...</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>تعذرت معرفة ما يعمل هنا.</translation>
    </message>
    <message>
        <source>&quot;keyrill --check&quot; in a terminal may say why.</source>
        <translation>قد يبيّن «keyrill --check» في طرفية السبب.</translation>
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
        <translation>السطر %1: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The script goes on; only its beginning is shown.</source>
        <translation>للسكربت بقية؛ لا تظهر إلا بدايته.</translation>
    </message>
    <message>
        <source>A pause is a number of seconds from 0 to a day.</source>
        <translation>الوقفة عدد من الثواني، من 0 إلى يوم.</translation>
    </message>
    <message>
        <source>A key is pressed from 1 to 10,000 times.</source>
        <translation>يُضغط المفتاح من 1 إلى 10,000 مرة.</translation>
    </message>
    <message>
        <source>This step cannot be changed here.</source>
        <translation>لا يمكن تغيير هذه الخطوة هنا.</translation>
    </message>
</context>
<context>
    <name>Toggles</name>
    <message>
        <source>Check for &amp;updates when Keyrill starts</source>
        <translation>التحقق من وجود تحديثات عند بدء Keyrill (&amp;U)</translation>
    </message>
    <message>
        <source>Start Keyrill when I log &amp;in</source>
        <translation>بدء Keyrill عند الولوج (&amp;I)</translation>
    </message>
    <message>
        <source>Record modifier &amp;keys on their own</source>
        <translation>تسجيل المفاتيح المغيِّرة منفردة (&amp;K)</translation>
    </message>
    <message>
        <source>Keep the &amp;history for the next start</source>
        <translation>الاحتفاظ بالسجل للمرة القادمة (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Write hot keys into GNOME&apos;s settings</source>
        <translation>كتابة الاختصارات في إعدادات GNOME (&amp;W)</translation>
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
        <translation>يُكتب هذا كما هو؛ ولهذا المفتاح رقم: ⁦key code %1⁩.</translation>
    </message>
    <message>
        <source>“%1” is typed as it stands. %2</source>
        <extracomment>%1 is the name of a key in braces, %2 a sentence that says how the key is written.</extracomment>
        <translation>يُكتب «⁨%1⁩» كما هو. ⁨%2⁩</translation>
    </message>
    <message>
        <source>Key code %1 is an extension, which only Keyrill plays.</source>
        <translation>رمز المفتاح ⁨%1⁩ إضافة لا يشغّلها إلا Keyrill.</translation>
    </message>
    <message>
        <source>Key code %1 has no key; nothing is pressed.</source>
        <translation>ليس لرمز المفتاح ⁨%1⁩ مفتاح؛ فلا يُضغط شيء.</translation>
    </message>
    <message>
        <source>A dialog gives a record and no text; take: button returned of %1, or text returned of %1.</source>
        <translation>يعيد مربع الحوار سجلا (record) لا نصا؛ استخدم: ⁦button returned of %1⁩، أو ⁦text returned of %1⁩.</translation>
    </message>
    <message>
        <source>An alert gives a record and no text; take: button returned of %1.</source>
        <translation>يعيد التنبيه سجلا (record) لا نصا؛ استخدم: ⁦button returned of %1⁩.</translation>
    </message>
    <message>
        <source>What was chosen comes in a list; take: item 1 of %1.</source>
        <translation>يأتي ما اختير في قائمة؛ استخدم: ⁦item 1 of %1⁩.</translation>
    </message>
    <message>
        <source>The loop gives a reference, which equals no text; compare: contents of %1.</source>
        <translation>تعطي الحلقة مرجعا لا يساوي أي نص؛ استخدم في المقارنة: ⁦contents of %1⁩.</translation>
    </message>
    <message>
        <source>“%1” is taken as “%1 down”.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>يُعامل «⁨%1⁩» على أنه «⁦%1 down⁩».</translation>
    </message>
    <message>
        <source>“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….</source>
        <extracomment>%1 is an operator, &quot;&gt;&quot;, %2 a command, &quot;count&quot;.</extracomment>
        <translation>تتبع العلامة «⁨%1⁩» ما يُعطى للأمر «⁨%2⁩»؛ ضع الأمر بين قوسين: ⁦(%2 …) %1 …⁩.</translation>
    </message>
    <message>
        <source>“delay” counts seconds; %1 milliseconds are: delay %2.</source>
        <translation>تُكتب قيمة «delay» بالثواني؛ وتُكتب ⁨%1⁩ ملي ثانية هكذا: ⁦delay %2⁩.</translation>
    </message>
    <message>
        <source>This is typed as it stands; a shortcut is written: keystroke &quot;%1&quot; using %2 down.</source>
        <extracomment>%1 is a letter, %2 the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>يُكتب هذا كما هو؛ أما الاختصار فيُكتب هكذا: ⁦keystroke &quot;%1&quot; using %2 down⁩.</translation>
    </message>
    <message>
        <source>A modifier is held with: key down shift, without quotes.</source>
        <translation>يبقى المفتاح المغيِّر مضغوطا هكذا، من دون علامتي اقتباس: ⁦key down shift⁩.</translation>
    </message>
    <message>
        <source>The variable %1 is never set. %2</source>
        <extracomment>%2 is a sentence that says what may have been meant.</extracomment>
        <translation>لا تُعيَّن قيمة المتغير ⁨%1⁩ أبدا. ⁨%2⁩</translation>
    </message>
</context>
<context>
    <name>WelcomePanel</name>
    <message>
        <source>%1.</source>
        <translation>‏%1.</translation>
    </message>
    <message>
        <source>Welcome to Keyrill</source>
        <translation>مرحبا بك في Keyrill</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>متابعة (&amp;C)</translation>
    </message>
    <message>
        <source>Your first macro</source>
        <translation>أول ماكرو لك</translation>
    </message>
    <message>
        <source>The combinations</source>
        <translation>التوليفات</translation>
    </message>
    <message>
        <source>You can change them in the preferences, which come next.</source>
        <translation>يمكنك تغييرها في التفضيلات، التي تأتي بعد هذا.</translation>
    </message>
    <message>
        <source>Keyrill records the keys you press and presses them again for you, in any program, as often as you like.</source>
        <translation>يسجّل Keyrill المفاتيح التي تضغطها ثم يضغطها عنك من جديد، في أي برنامج وبقدر ما تشاء.</translation>
    </message>
    <message>
        <source>Choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>اختر «بدء التسجيل» في قائمة Keyrill. ثم اكتب.</translation>
    </message>
    <message>
        <source>Press %1, or choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>اضغط ⁨%1⁩، أو اختر «بدء التسجيل» في قائمة Keyrill. ثم اكتب.</translation>
    </message>
    <message>
        <source>Choose Stop Recording when you are done.</source>
        <translation>اختر «إيقاف التسجيل» عندما تنتهي.</translation>
    </message>
    <message>
        <source>Press %1 when you are done.</source>
        <translation>اضغط ⁨%1⁩ عندما تنتهي.</translation>
    </message>
    <message>
        <source>Click where the keys should go and choose Play.</source>
        <translation>انقر حيث يجب أن تصل المفاتيح واختر «تشغيل».</translation>
    </message>
    <message>
        <source>Click where the keys should go and press %1.</source>
        <translation>انقر حيث يجب أن تصل المفاتيح واضغط ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>غير محدد</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>KWin does not tell of its windows.</source>
        <translation>لا يخبر KWin بشيء عن نوافذه.</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>أعد الولوج.</translation>
    </message>
    <message>
        <source>No file could be written for KWin.</source>
        <translation>تعذرت كتابة أي ملف لبرنامج KWin.</translation>
    </message>
    <message>
        <source>Free some space.</source>
        <translation>أفرغ بعض المساحة.</translation>
    </message>
    <message>
        <source>KWin runs no scripts: %1</source>
        <translation>لا ينفّذ KWin أي سكربت: ⁨%1⁩</translation>
    </message>
    <message>
        <source>KWin does not show the window any more.</source>
        <translation>لم يعد KWin يُظهر النافذة.</translation>
    </message>
    <message>
        <source>Open it again.</source>
        <translation>افتحها من جديد.</translation>
    </message>
    <message>
        <source>This compositor tells nobody of windows.</source>
        <translation>لا يخبر هذا المُركِّب أحدا عن النوافذ.</translation>
    </message>
    <message>
        <source>Use a compositor with toplevel management, such as sway, or an X11 session.</source>
        <translation>استخدم مُركِّبا فيه إدارة نوافذ المستوى الأعلى مثل sway، أو جلسة X11.</translation>
    </message>
    <message>
        <source>No window of “%1” is open.</source>
        <translation>لا توجد نافذة مفتوحة للبرنامج «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Start it first.</source>
        <translation>ابدأه أولا.</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>النافذة ليست على الشاشة.</translation>
    </message>
</context>
</TS>
