<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>LGPL 2.1 or later</source>
        <translation>LGPL 2.1 以降</translation>
    </message>
    <message>
        <source>curl licence</source>
        <translation>curl ライセンス</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>Keyrill について</translation>
    </message>
    <message>
        <source>&amp;Documentation</source>
        <translation>ドキュメント(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Product Page</source>
        <translation>製品ページ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Maker&apos;s Website</source>
        <translation>開発元のウェブサイト(&amp;M)</translation>
    </message>
    <message>
        <source>Built with</source>
        <translation>使用ライブラリ</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Records the keys you press and presses them again.</source>
        <translation>押したキーを記録し、もう一度押します。</translation>
    </message>
    <message>
        <source>Copyright © 2026 the Keyrill authors. Free software under the MIT licence, without any warranty.</source>
        <translation>Copyright © 2026 Keyrill の作者。MIT ライセンスによるフリーソフトウェアで、いかなる保証もありません。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>AccessDesk</name>
    <message>
        <source>To record what you type in other programs, Keyrill has to read the keyboard until the recording ends. That is why you are asked for your password.</source>
        <translation>他のプログラムでの入力を記録するには、記録が終わるまで Keyrill がキーボードを読み取る必要があります。そのため、パスワードの入力をお願いしています。</translation>
    </message>
</context>
<context>
    <name>ActionCall</name>
    <message>
        <source>Keyrill is not running.</source>
        <translation>Keyrill は実行されていません。</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>The screen is locked.</source>
        <translation>画面がロックされています。</translation>
    </message>
    <message>
        <source>Keyrill is asking something, which has to be answered first.</source>
        <translation>Keyrill が質問を表示しています。先に回答してください。</translation>
    </message>
    <message>
        <source>A macro is being recorded.</source>
        <translation>マクロを記録中です。</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>再生するマクロはまだありません。</translation>
    </message>
    <message>
        <source>A macro is being recorded already.</source>
        <translation>すでにマクロを記録中です。</translation>
    </message>
    <message>
        <source>Nothing is being recorded or played.</source>
        <translation>記録中または再生中のものはありません。</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>記録中のものはありません。</translation>
    </message>
    <message>
        <source>Keyrill is asking how often to play.</source>
        <translation>Keyrill が再生回数を尋ねています。</translation>
    </message>
    <message>
        <source>Keyrill&apos;s hot keys are off while they are being chosen in a window of its own.</source>
        <translation>ショートカットを Keyrill のウィンドウで選択している間、ショートカットは無効です。</translation>
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
        <translation>Keyrill のアップデートがあります</translation>
    </message>
    <message>
        <source>There is a new update available for Keyrill, would you like to download it now?</source>
        <translation>Keyrill の新しいアップデートがあります。今すぐダウンロードしますか?</translation>
    </message>
    <message>
        <source>Keyrill requires that programs can see and press keys in this session. </source>
        <translation>Keyrill を使うには、このセッションでプログラムがキー入力を読み取り、キーを押せることが必要です。 </translation>
    </message>
    <message>
        <source>Please see the &apos;Configuration&apos; section of the documentation for more information.

Keyrill must close, please restart it once this is possible.
</source>
        <translation>詳しくはドキュメントの「Configuration」の節をご覧ください。

Keyrill を終了します。使えるようになったら再び起動してください。
</translation>
    </message>
    <message>
        <source>Open Documentation now</source>
        <translation>今すぐドキュメントを開く</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Recording is not possible in this session yet</source>
        <translation>このセッションではまだ記録できません</translation>
    </message>
    <message>
        <source>Nothing was recorded</source>
        <translation>何も記録されませんでした</translation>
    </message>
    <message>
        <source>The recording has ended</source>
        <translation>記録が終了しました</translation>
    </message>
    <message>
        <source>What was recorded until then is kept.</source>
        <translation>それまでに記録された内容は残っています。</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No Update Available</source>
        <translation>アップデートはありません</translation>
    </message>
    <message>
        <source>You&apos;re currently running the latest version of Keyrill</source>
        <translation>お使いの Keyrill は最新バージョンです</translation>
    </message>
    <message>
        <source>The macro was not saved as &quot;%1&quot;.</source>
        <translation>マクロは「%1」として保存されませんでした。</translation>
    </message>
    <message>
        <source>No macro was loaded from &quot;%1&quot;.</source>
        <translation>「%1」からマクロは読み込まれませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>「%1」はすでに存在します。</translation>
    </message>
    <message>
        <source>Do you want to replace it? What is in it will be lost.</source>
        <translation>置き換えますか? 現在の内容は失われます。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a macro file.</source>
        <translation>「%1」はマクロファイルではありません。</translation>
    </message>
    <message>
        <source>The names of Keyrill&apos;s macro files end with &quot;.%1&quot;.</source>
        <translation>Keyrill のマクロファイルの名前は「.%1」で終わります。</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>ファイル「%1」はありません。</translation>
    </message>
    <message>
        <source>Check the name, or choose one of the list.</source>
        <translation>名前を確認するか、一覧から選択してください。</translation>
    </message>
    <message>
        <source>Your settings were not saved.</source>
        <translation>設定は保存されませんでした。</translation>
    </message>
    <message>
        <source>Whether Keyrill starts when you log in could not be changed.</source>
        <translation>ログイン時に Keyrill を起動するかどうかを変更できませんでした。</translation>
    </message>
    <message>
        <source>Something is wrong with your settings.</source>
        <translation>設定に問題があります。</translation>
    </message>
    <message>
        <source>May Keyrill write its hot keys into GNOME&apos;s settings?</source>
        <translation>Keyrill がショートカットを GNOME の設定に書き込んでもよろしいですか?</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. Keyrill would write one there for each of its combinations, and take them out when it ends. It does not touch what is yours.

You can change your mind in Keyrill&apos;s preferences.</source>
        <translation>このバージョンの GNOME では、プログラムのグローバルショートカットはユーザー自身の設定にある独自のショートカットとしてしか使えません。Keyrill は自分の組み合わせをひとつずつそこに書き込み、終了するときに取り除きます。ユーザー自身のショートカットには触れません。

この選択は Keyrill の設定で変更できます。</translation>
    </message>
    <message>
        <source>Write Them</source>
        <translation>書き込む</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>後で決める</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>書き込まない</translation>
    </message>
</context>
<context>
    <name>AppController</name>
    <message>
        <source>In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more under &quot;Configuration&quot;.</source>
        <translation>このセッションで Keyrill から見えて操作できるのは、X11 プログラムのウィンドウだけです。詳しくはマニュアルの「Configuration」をご覧ください。</translation>
    </message>
</context>
<context>
    <name>ApplicationObject</name>
    <message>
        <source>Keyrill is playing a macro.</source>
        <translation>Keyrill はマクロを再生中です。</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;. There are: %2.</source>
        <translation>アクション「%1」はありません。使えるもの: %2。</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; takes no parameter.</source>
        <translation>アクション「%1」はパラメーターを取りません。</translation>
    </message>
</context>
<context>
    <name>BusOwner</name>
    <message>
        <source>Keyrill has ended without an answer.</source>
        <translation>Keyrill は応答せずに終了しました。</translation>
    </message>
    <message>
        <source>Process %1, which has Keyrill&apos;s name on the session bus, does not answer.</source>
        <translation>セッションバスで Keyrill の名前を持つプロセス %1 が応答しません。</translation>
    </message>
    <message>
        <source>End it and start Keyrill again.</source>
        <translation>そのプロセスを終了し、Keyrill をもう一度起動してください。</translation>
    </message>
</context>
<context>
    <name>CapabilityWords</name>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>新しい X サーバーを使うか、設定で拡張機能を有効にしてください。</translation>
    </message>
    <message>
        <source>by XInput</source>
        <translation>XInput による</translation>
    </message>
    <message>
        <source>by key grabs</source>
        <translation>キーグラブによる</translation>
    </message>
    <message>
        <source>by XTEST</source>
        <translation>XTEST による</translation>
    </message>
    <message>
        <source>the X server&apos;s</source>
        <translation>X サーバーのもの</translation>
    </message>
    <message>
        <source>above all windows</source>
        <translation>すべてのウィンドウの上</translation>
    </message>
    <message>
        <source>by the window manager</source>
        <translation>ウィンドウマネージャーによる</translation>
    </message>
    <message>
        <source>a tray that icons dock into</source>
        <translation>アイコンを埋め込むトレイ</translation>
    </message>
    <message>
        <source>a tray that asks for icons over the session bus</source>
        <translation>セッションバスでアイコンを問い合わせるトレイ</translation>
    </message>
    <message>
        <source>by a virtual keyboard</source>
        <translation>仮想キーボードによる</translation>
    </message>
    <message>
        <source>by bindings of sway&apos;s</source>
        <translation>sway のキー割り当てによる</translation>
    </message>
    <message>
        <source>by KDE&apos;s shortcuts</source>
        <translation>KDE のショートカットによる</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal, once you allow it</source>
        <translation>デスクトップのポータルによる (許可が必要です)</translation>
    </message>
    <message>
        <source>by the desktop&apos;s portal: you choose them when it asks, and later in its settings</source>
        <translation>デスクトップのポータルによる: 尋ねられたときと、以後はポータルの設定で選べます</translation>
    </message>
    <message>
        <source>by sway</source>
        <translation>sway による</translation>
    </message>
    <message>
        <source>by KWin</source>
        <translation>KWin による</translation>
    </message>
    <message>
        <source>what you type into a window of Keyrill&apos;s, &quot;Record Here&quot;</source>
        <translation>Keyrill のウィンドウ「ここで記録」に入力した内容</translation>
    </message>
    <message>
        <source>the compositor&apos;s</source>
        <translation>コンポジターのもの</translation>
    </message>
    <message>
        <source>as an ordinary window</source>
        <translation>通常のウィンドウとして</translation>
    </message>
    <message>
        <source>on a layer above all windows</source>
        <translation>すべてのウィンドウの上のレイヤー</translation>
    </message>
    <message>
        <source>from the keyboards themselves, which every program of yours may read</source>
        <translation>キーボードそのものから (あなたが使うどのプログラムからも読み取れます)</translation>
    </message>
    <message>
        <source>by keyrill-access, which asks for your password and opens the keyboard while Keyrill records</source>
        <translation>keyrill-access による (パスワードを尋ね、Keyrill の記録中だけキーボードを開きます)</translation>
    </message>
    <message>
        <source>The display cannot be reached.</source>
        <translation>ディスプレイに接続できません。</translation>
    </message>
    <message>
        <source>Start Keyrill inside a desktop session.</source>
        <translation>デスクトップセッションの中で Keyrill を起動してください。</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which shows keys.</source>
        <translation>X サーバーに、キーを知らせる拡張機能 %1 がありません。</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which says what keys mean.</source>
        <translation>X サーバーに、キーの意味を知らせる拡張機能 %1 がありません。</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1, which presses keys.</source>
        <translation>X サーバーに、キーを押す拡張機能 %1 がありません。</translation>
    </message>
    <message>
        <source>The X server lacks the extension %1: a key that is held is recorded once.</source>
        <translation>X サーバーに拡張機能 %1 がありません: 押し続けたキーは 1 回だけ記録されます。</translation>
    </message>
    <message>
        <source>The program keyrill-guard, which releases keys after a crash, is not there; nothing is played without it.</source>
        <translation>クラッシュ後にキーを離すプログラム keyrill-guard がありません。これがないと何も再生されません。</translation>
    </message>
    <message>
        <source>Install Keyrill again.</source>
        <translation>Keyrill をもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>Only with the windows of X11 programs: this is a Wayland session.</source>
        <translation>X11 プログラムのウィンドウだけです: これは Wayland セッションです。</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>ログイン時に X11 セッションを選択してください。</translation>
    </message>
    <message>
        <source>There is none; a small window with the menu stands in for the icon.</source>
        <translation>ありません。アイコンの代わりに、メニューのある小さなウィンドウを表示します。</translation>
    </message>
    <message>
        <source>Add a tray to the desktop&apos;s panel. GNOME needs the extension &quot;AppIndicator and KStatusNotifierItem Support&quot;.</source>
        <translation>デスクトップのパネルにトレイを追加してください。GNOME では拡張機能「AppIndicator and KStatusNotifierItem Support」が必要です。</translation>
    </message>
    <message>
        <source>A Wayland session shows no program what is typed in others, and the service that would is not installed.</source>
        <translation>Wayland セッションでは、他のプログラムへの入力はどのプログラムにも見えません。それを可能にするサービスはインストールされていません。</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, &quot;tools/access install&quot;; or record in an X11 session, macros play in both.</source>
        <translation>パッケージ keyrill-wayland-access をインストールするか、Keyrill のソースから「tools/access install」を実行してください。または X11 セッションで記録してください。マクロはどちらでも再生できます。</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>このコンポジターはプログラムにグローバルショートカットを提供しません。</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>コンポジターの設定で「keyrill --action=play」などのコマンドにキーを割り当ててください。</translation>
    </message>
    <message>
        <source>This compositor lets no program press keys.</source>
        <translation>このコンポジターではプログラムがキーを押せません。</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, or an X11 session.</source>
        <translation>sway など仮想キーボードのあるコンポジターか、X11 セッションを使ってください。</translation>
    </message>
    <message>
        <source>This desktop lets no program press keys: its portal does not answer.</source>
        <translation>このデスクトップではプログラムがキーを押せません: ポータルが応答しません。</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to the desktop, such as xdg-desktop-portal-kde.</source>
        <translation>xdg-desktop-portal と、xdg-desktop-portal-kde などデスクトップに合ったものをインストールしてください。</translation>
    </message>
    <message>
        <source>Only characters that one of your keyboard layouts has.</source>
        <translation>いずれかのキーボードレイアウトにある文字だけです。</translation>
    </message>
    <message>
        <source>Add a layout that has them in the desktop&apos;s settings.</source>
        <translation>デスクトップの設定で、それらの文字があるレイアウトを追加してください。</translation>
    </message>
    <message>
        <source>Only characters that the keyboard layout in force has.</source>
        <translation>現在のキーボードレイアウトにある文字だけです。</translation>
    </message>
    <message>
        <source>Switch to a layout that has the others before you play.</source>
        <translation>再生する前に、残りの文字があるレイアウトに切り替えてください。</translation>
    </message>
    <message>
        <source>This compositor shows the clipboard to windows in front alone.</source>
        <translation>このコンポジターは、前面のウィンドウにしかクリップボードを見せません。</translation>
    </message>
    <message>
        <source>Scripts that use the clipboard need another compositor, such as sway, or an X11 session.</source>
        <translation>クリップボードを使うスクリプトには、sway など別のコンポジターか X11 セッションが必要です。</translation>
    </message>
    <message>
        <source>This compositor tells nothing of other programs&apos; windows.</source>
        <translation>このコンポジターは他のプログラムのウィンドウについて何も知らせません。</translation>
    </message>
    <message>
        <source>Scripts that bring a window to the front need sway, KDE or an X11 session.</source>
        <translation>ウィンドウを前面に出すスクリプトには、sway、KDE または X11 セッションが必要です。</translation>
    </message>
    <message>
        <source>Full-screen windows may cover it.</source>
        <translation>フルスクリーンのウィンドウに隠れることがあります。</translation>
    </message>
    <message>
        <source>Use a compositor that has layers, such as sway&apos;s or KDE&apos;s, or an X11 session.</source>
        <translation>sway や KDE などレイヤーのあるコンポジターか、X11 セッションを使ってください。</translation>
    </message>
    <message>
        <source>by custom shortcuts in GNOME&apos;s settings while Keyrill runs, as you have agreed; the preferences take that back</source>
        <translation>許可に基づき、Keyrill の実行中だけ GNOME の設定に置かれる独自のショートカットによる。許可は Keyrill の設定で取り消せます</translation>
    </message>
    <message>
        <source>This version of GNOME has hot keys for programs only as custom shortcuts in your own settings, and you have not agreed that Keyrill writes them.</source>
        <translation>このバージョンの GNOME では、プログラムのグローバルショートカットはユーザー自身の設定にある独自のショートカットとしてしか使えず、Keyrill が書き込むことは許可されていません。</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Keyrill の設定でチェックを入れるか、GNOME の設定で「keyrill --action=play」などのコマンドに自分でキーを割り当ててください。</translation>
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
        <translation>--times と --speed は --play の再生方法を指定します。</translation>
    </message>
    <message>
        <source>keyrill --help tells more.</source>
        <translation>詳しくは keyrill --help をご覧ください。</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>オプション「%1」はありません。</translation>
    </message>
    <message>
        <source>keyrill --help lists them.</source>
        <translation>keyrill --help で一覧を表示できます。</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>アクション「%1」はありません。</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>次のいずれかを選んでください: %1。</translation>
    </message>
    <message>
        <source>An action takes no file, and &quot;%1&quot; was given.</source>
        <translation>アクションはファイルを取りませんが、「%1」が指定されました。</translation>
    </message>
    <message>
        <source>Load it first: keyrill FILE.</source>
        <translation>先に読み込んでください: keyrill ファイル。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too much.</source>
        <translation>「%1」は余分です。</translation>
    </message>
    <message>
        <source>--list takes no name.</source>
        <translation>--list は名前を取りません。</translation>
    </message>
    <message>
        <source>A name with blanks is put in quotation marks: &quot;%1&quot;.</source>
        <translation>空白を含む名前は引用符で囲んでください: &quot;%1&quot;。</translation>
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
        <translation>使い方: keyrill [--session=名前] [--] [ファイル...]   起動する、または実行中のものにマクロを読み込む
        keyrill [--session=名前] --action=アクション   実行中のものに動作を頼む (必要なら起動する)
        keyrill [--session=名前] --play [マクロ|ファイル] [--times=N|until-stopped] [--speed=X]
                                          マクロフォルダーのマクロまたはファイルの再生を頼む
        keyrill [--session=名前] --show [マクロ]   マクロのウィンドウの表示を頼む
        keyrill --list   マクロフォルダーにあるマクロの名前を表示する
        keyrill [--session=名前] --check   このセッションで使えるものと、するべきことを表示する
        keyrill -h | --help | --version
アクションは次のいずれかです: %1。
マクロは --list が表示する名前で、グループは付けても付けなくてもかまいません。マクロもファイルもなければ、
--play は「再生」が再生するものを再生します。その名前のマクロがないファイルや、/ または ./ で始まるファイルは
そのまま再生されます。回数と速さ (0.25 から 4) は、指定がなければマクロに設定されたものです。--show は
ウィンドウでマクロを選びます。--play、--show、--list の終了ステータスは、できたら 0、できなければ 1、
呼び出し方が誤っていれば 2 です。理由は標準エラー出力に表示されます。
名前はデスクトップセッションの種類です。なければプログラムが自分で調べます。使えるもの: %2
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one thing too many.</source>
        <translation>「%1」は余分です。</translation>
    </message>
    <message>
        <source>Call keyrill once for each.</source>
        <translation>それぞれについて keyrill を別々に呼び出してください。</translation>
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
        <translation>Keyrill メニュー(&amp;M)</translation>
    </message>
    <message>
        <source>No tray was found, so here is the menu.</source>
        <translation>トレイが見つからないため、ここにメニューがあります。</translation>
    </message>
    <message>
        <source>Keyrill is running; its menu is in the tray too.</source>
        <translation>Keyrill は実行中です。メニューはトレイにもあります。</translation>
    </message>
</context>
<context>
    <name>DraftFiles</name>
    <message>
        <source>The folder %1 cannot be written to: %2.</source>
        <extracomment>a folder, and why</extracomment>
        <translation>フォルダー %1 に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>FileMoves</name>
    <message>
        <source>A macro needs a name.</source>
        <translation>マクロには名前が必要です。</translation>
    </message>
    <message>
        <source>A name cannot have a slash (/) in it.</source>
        <translation>名前にスラッシュ (/) は使えません。</translation>
    </message>
    <message>
        <source>A name cannot begin with a point: the file would be hidden.</source>
        <translation>名前をピリオドで始めることはできません: 隠しファイルになります。</translation>
    </message>
    <message>
        <source>The name is too long for a file.</source>
        <translation>ファイル名としては長すぎます。</translation>
    </message>
    <message>
        <source>There is already a macro called &quot;%1&quot;.</source>
        <translation>「%1」というマクロはすでにあります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be renamed: %2.</source>
        <translation>「%1」の名前を変更できません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be copied: %2.</source>
        <translation>「%1」をコピーできません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be put into the trash.</source>
        <translation>「%1」をゴミ箱に移動できません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be brought back: %2.</source>
        <translation>「%1」を元に戻せません: %2。</translation>
    </message>
</context>
<context>
    <name>FilesDesk</name>
    <message>
        <source>&quot;%1&quot; was not loaded</source>
        <translation>「%1」は読み込まれませんでした</translation>
    </message>
    <message>
        <source>A macro is being recorded. Stop recording first.</source>
        <translation>マクロを記録中です。先に記録を停止してください。</translation>
    </message>
    <message>
        <source>The screen is locked. Unlock it first.</source>
        <translation>画面がロックされています。先にロックを解除してください。</translation>
    </message>
    <message>
        <source>Answer Keyrill&apos;s question first.</source>
        <translation>先に Keyrill の質問に回答してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded</source>
        <translation>「%1」を読み込みました</translation>
    </message>
    <message>
        <source>Choose a shortcut for Play in the preferences to play it.</source>
        <translation>再生するには、設定で「再生」のショートカットを選んでください。</translation>
    </message>
    <message>
        <source>Press %1 to play it.</source>
        <translation>再生するには %1 を押してください。</translation>
    </message>
</context>
<context>
    <name>KeysView</name>
    <message>
        <source>This is a script of its own: line %1 cannot be changed here. What it would press is shown; change it under Script.</source>
        <translation>これは独自のスクリプトです。%1 行目はここでは変更できません。押されるキーを表示しています。変更は「スクリプト」で行います。</translation>
    </message>
    <message>
        <source>Keys of the macro</source>
        <translation>マクロのキー</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what a button does, and its keys</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Record Keys</source>
        <translation>キーを記録</translation>
    </message>
    <message>
        <source>Record keys behind the selected step</source>
        <translation>選択したステップの後にキーを記録します</translation>
    </message>
    <message>
        <source>Add Pause</source>
        <translation>待ち時間を追加</translation>
    </message>
    <message>
        <source>A pause behind the selected step</source>
        <translation>選択したステップの後に待ち時間を入れます</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Change the text, the pause or how often a key is pressed</source>
        <translation>テキスト、待ち時間、キーを押す回数を変更します</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>繰り返す</translation>
    </message>
    <message>
        <source>The selected steps once more</source>
        <translation>選択したステップをもう一度追加します</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove the selected steps</source>
        <translation>選択したステップを削除します</translation>
    </message>
    <message>
        <source>Convert to Text</source>
        <translation>テキストに変換</translation>
    </message>
    <message>
        <source>Type the same under every keyboard layout</source>
        <translation>どのキーボードレイアウトでも同じ文字を入力します</translation>
    </message>
    <message>
        <source>Convert to Keys</source>
        <translation>キーに変換</translation>
    </message>
    <message>
        <source>Press the keys of the present keyboard layout</source>
        <translation>現在のキーボードレイアウトのキーを押します</translation>
    </message>
</context>
<context>
    <name>LibraryController</name>
    <message>
        <source>&quot;%1&quot; was not played</source>
        <translation>「%1」は再生されませんでした</translation>
    </message>
    <message>
        <source>Hot keys of macros</source>
        <translation>マクロのショートカット</translation>
    </message>
    <message>
        <source>The history</source>
        <translation>履歴</translation>
    </message>
</context>
<context>
    <name>MacroCalls</name>
    <message>
        <source>Keyrill does not answer.</source>
        <translation>Keyrill が応答しません。</translation>
    </message>
    <message>
        <source>Perhaps its macro folder cannot be reached.</source>
        <translation>マクロフォルダーにアクセスできないのかもしれません。</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>&amp;Keys</source>
        <translation>キー(&amp;K)</translation>
    </message>
    <message>
        <source>S&amp;cript</source>
        <translation>スクリプト(&amp;C)</translation>
    </message>
</context>
<context>
    <name>MacroFilePanel</name>
    <message>
        <source>Keyrill macros (*.%1)</source>
        <translation>Keyrill マクロ (*.%1)</translation>
    </message>
    <message>
        <source>Save Macro</source>
        <translation>マクロを保存</translation>
    </message>
    <message>
        <source>Load Macro</source>
        <translation>マクロを読み込む</translation>
    </message>
    <message>
        <source>This name is too long for a file.</source>
        <translation>この名前はファイル名としては長すぎます。</translation>
    </message>
</context>
<context>
    <name>MacroList</name>
    <message>
        <source>The folder %1 does not answer.</source>
        <translation>フォルダー %1 が応答しません。</translation>
    </message>
</context>
<context>
    <name>MacroListModel</name>
    <message>
        <source>Group %1</source>
        <translation>グループ %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a macro and its hot key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1、未保存</translation>
    </message>
</context>
<context>
    <name>MacroSettingsRow</name>
    <message>
        <source>Hot key</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>&amp;Hot key:</source>
        <translation>ショートカット(&amp;H):</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>回数</translation>
    </message>
    <message>
        <source>Unt&amp;il stopped</source>
        <translation>停止するまで(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Times:</source>
        <translation>回数(&amp;T):</translation>
    </message>
    <message>
        <source> ×</source>
        <comment>behind a number: so many times as fast</comment>
        <translation> ×</translation>
    </message>
    <message>
        <source>The pauses of the macro are divided by this</source>
        <translation>マクロの待ち時間をこの数で割ります</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速さ</translation>
    </message>
    <message>
        <source>Sp&amp;eed:</source>
        <translation>速さ(&amp;E):</translation>
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
        <translation>待ち時間 %1 秒</translation>
    </message>
    <message>
        <source>Text: %1</source>
        <translation>テキスト: %1</translation>
    </message>
    <message>
        <source>Hold %1</source>
        <extracomment>a key that goes down and stays there</extracomment>
        <translation>%1 を押したままにする</translation>
    </message>
    <message>
        <source>Let go of %1</source>
        <translation>%1 を離す</translation>
    </message>
    <message>
        <source>Ask: %1</source>
        <extracomment>a dialog of a script, with its question</extracomment>
        <translation>質問: %1</translation>
    </message>
    <message>
        <source>Tell: %1</source>
        <translation>通知: %1</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>%1 を入力</translation>
    </message>
    <message>
        <source>Press %1</source>
        <translation>%1 を押す</translation>
    </message>
    <message numerus="yes">
        <source>Press %1 %Ln times</source>
        <translation>
            <numerusform>%1 を %Ln 回押す</numerusform>
        </translation>
    </message>
    <message>
        <source>Wait %1 seconds</source>
        <translation>%1 秒待つ</translation>
    </message>
    <message numerus="yes">
        <source>Wait %1 seconds, %Ln times</source>
        <translation>
            <numerusform>%1 秒待つ、%Ln 回</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacrosDesk</name>
    <message>
        <source>Play has the latest macro until there is another.</source>
        <translation>「再生」は、次のマクロができるまで最新のマクロを再生します。</translation>
    </message>
    <message>
        <source>What is not saved would not outlive a crash. %1</source>
        <translation>保存していない内容はクラッシュすると失われます。%1</translation>
    </message>
    <message>
        <source>The macro is still being read: its folder does not answer.</source>
        <translation>マクロをまだ読み込み中です: フォルダーが応答しません。</translation>
    </message>
    <message>
        <source>The file of this macro is gone. If you save, it is there again.</source>
        <translation>このマクロのファイルがなくなりました。保存すると再び作られます。</translation>
    </message>
    <message>
        <source>Another program has deleted or moved the macro.</source>
        <translation>別のプログラムがこのマクロを削除または移動しました。</translation>
    </message>
    <message>
        <source>Another program has changed this macro. If you save, your text replaces it.</source>
        <translation>別のプログラムがこのマクロを変更しました。保存すると、あなたのテキストで置き換わります。</translation>
    </message>
    <message>
        <source>What was not saved is there again: %1.</source>
        <translation>保存していなかった内容を復元しました: %1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The recording is forgotten.</source>
        <translation>記録を消去しました。</translation>
    </message>
    <message>
        <source>All recordings are forgotten.</source>
        <translation>すべての記録を消去しました。</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>New Macro</source>
        <translation>新しいマクロ</translation>
    </message>
    <message>
        <source>The macro is in the trash.</source>
        <translation>マクロをゴミ箱に移動しました。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>The macro cannot be played. Line %1: %2</source>
        <extracomment>of a script; what is wrong</extracomment>
        <translation>マクロを再生できません。%1 行目: %2</translation>
    </message>
    <message>
        <source>The macro is deleted.</source>
        <translation>マクロを削除しました。</translation>
    </message>
</context>
<context>
    <name>MacrosInterface</name>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>オプション「%1」はありません。</translation>
    </message>
    <message>
        <source>There are: %1.</source>
        <translation>使えるもの: %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file of this machine.</source>
        <translation>「%1」はこのコンピューターのファイルではありません。</translation>
    </message>
    <message>
        <source>It begins with file:///.</source>
        <translation>file:/// で始まります。</translation>
    </message>
</context>
<context>
    <name>MacrosWindow</name>
    <message>
        <source>Macros</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search macros</source>
        <translation>マクロを検索</translation>
    </message>
    <message>
        <source>&amp;Record New</source>
        <translation>新しく記録(&amp;R)</translation>
    </message>
    <message>
        <source>Record a new macro</source>
        <translation>新しいマクロを記録します</translation>
    </message>
    <message>
        <source>Keep Recordin&amp;g...</source>
        <translation>記録を残す(&amp;G)...</translation>
    </message>
    <message>
        <source>Keep a recording of the history as a macro, by a name</source>
        <translation>履歴の記録に名前を付け、マクロとして残します</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>消去(&amp;F)</translation>
    </message>
    <message>
        <source>Forget &amp;All</source>
        <translation>すべて消去(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>Play into the window that you were in before, after three seconds</source>
        <translation>直前に使っていたウィンドウで、3 秒後に再生します</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the macro (%1)</source>
        <translation>マクロを保存します (%1)</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>複製(&amp;U)</translation>
    </message>
    <message>
        <source>Make a copy of the macro</source>
        <translation>マクロのコピーを作ります</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前の変更(&amp;N)</translation>
    </message>
    <message>
        <source>Give the macro another name (F2)</source>
        <translation>マクロに別の名前を付けます (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Put the macro into the trash (Delete)</source>
        <translation>マクロをゴミ箱に移動します (Delete)</translation>
    </message>
    <message>
        <source>Stop (Escape)</source>
        <translation>停止 (Esc)</translation>
    </message>
    <message>
        <source>Do not play</source>
        <translation>再生しません</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>The macro folder is still being read.</source>
        <translation>マクロフォルダーをまだ読み込み中です。</translation>
    </message>
    <message>
        <source>There is no macro yet. Record one, or put a macro file into the macro folder.</source>
        <translation>マクロはまだありません。記録するか、マクロフォルダーにマクロファイルを入れてください。</translation>
    </message>
    <message>
        <source>Plays in %1 s...</source>
        <translation>%1 秒後に再生...</translation>
    </message>
</context>
<context>
    <name>MultiplePlayWindow</name>
    <message>
        <source>Play Multiple Times</source>
        <translation>複数回再生</translation>
    </message>
    <message>
        <source>&amp;Times to play:</source>
        <translation>再生回数(&amp;T):</translation>
    </message>
    <message>
        <source>Times to play</source>
        <translation>再生回数</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>No macro yet</source>
        <translation>マクロはまだありません</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
</context>
<context>
    <name>OverlayDesk</name>
    <message>
        <source>Waiting for your permission</source>
        <translation>許可を待っています</translation>
    </message>
    <message>
        <source>Not recorded: keyboard held</source>
        <translation>記録されません: キーボード使用中</translation>
    </message>
</context>
<context>
    <name>PauseRow</name>
    <message>
        <source>Never</source>
        <extracomment>whether pauses are recorded: never, as long as they were when typed, or not longer than a number of seconds</extracomment>
        <translation>しない</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>入力どおり</translation>
    </message>
    <message>
        <source>At most</source>
        <extracomment>stands before a number of seconds</extracomment>
        <translation>最長</translation>
    </message>
    <message>
        <source>Record pauses</source>
        <translation>待ち時間の記録</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Longest pause in seconds</source>
        <translation>最長の待ち時間 (秒)</translation>
    </message>
    <message>
        <source>Record p&amp;auses:</source>
        <translation>待ち時間の記録(&amp;A):</translation>
    </message>
</context>
<context>
    <name>PlayRequests</name>
    <message>
        <source>There are several macros called &quot;%1&quot;.</source>
        <translation>「%1」というマクロは複数あります。</translation>
    </message>
    <message>
        <source>Say which one: %1.</source>
        <translation>どれかを指定してください: %1。</translation>
    </message>
    <message>
        <source>keyrill --list lists all.</source>
        <translation>keyrill --list ですべて表示できます。</translation>
    </message>
    <message>
        <source>There is no macro called &quot;%1&quot;.</source>
        <translation>「%1」というマクロはありません。</translation>
    </message>
    <message>
        <source>There is no macro to play yet.</source>
        <translation>再生するマクロはまだありません。</translation>
    </message>
    <message>
        <source>What Play plays cannot be played: its script is wrong in line %1.</source>
        <translation>「再生」の対象を再生できません: スクリプトの %1 行目に誤りがあります。</translation>
    </message>
    <message>
        <source>Play in the menu tells more.</source>
        <translation>詳しくはメニューの「再生」で確認できます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be played: its script is wrong in line %2.</source>
        <translation>「%1」を再生できません: スクリプトの %2 行目に誤りがあります。</translation>
    </message>
    <message>
        <source>keyrill-script check &quot;%1&quot; tells more.</source>
        <translation>詳しくは keyrill-script check &quot;%1&quot; で確認できます。</translation>
    </message>
    <message>
        <source>Similar: %1.</source>
        <translation>似た名前: %1。</translation>
    </message>
</context>
<context>
    <name>PlayWords</name>
    <message>
        <source>&quot;%1&quot; is not how many times a macro can be played.</source>
        <translation>「%1」はマクロの再生回数として使えません。</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>1 以上の整数か until-stopped です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not how fast a macro can be played.</source>
        <translation>「%1」はマクロの再生の速さとして使えません。</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4, with a point: 1.5.</source>
        <translation>0.25 から 4 までの数で、小数点はピリオドです: 1.5。</translation>
    </message>
    <message>
        <source>The name of the macro is empty.</source>
        <translation>マクロの名前が空です。</translation>
    </message>
    <message>
        <source>keyrill --list prints those that there are.</source>
        <translation>keyrill --list で一覧を表示できます。</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel</name>
    <message>
        <source>Keyrill Preferences</source>
        <translation>Keyrill の設定</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>今すぐ確認(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>These combinations work in every program. Click a field and press the combination you want.</source>
        <translation>次のキーの組み合わせはすべてのプログラムで使えます。欄をクリックし、使いたい組み合わせを押してください。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
</context>
<context>
    <name>ProgramInstance</name>
    <message>
        <source>The macro folder was out of reach for too long.</source>
        <translation>マクロフォルダーに長い間アクセスできませんでした。</translation>
    </message>
    <message>
        <source>Another program has Keyrill&apos;s name on the session bus and does not do its work: %1</source>
        <translation>別のプログラムがセッションバスで Keyrill の名前を使っていますが、その役割を果たしていません: %1</translation>
    </message>
    <message>
        <source>End that program and start Keyrill again.</source>
        <translation>そのプログラムを終了し、Keyrill をもう一度起動してください。</translation>
    </message>
    <message>
        <source>It cannot be given a file, since it has no session bus.</source>
        <translation>セッションバスがないため、ファイルを渡せません。</translation>
    </message>
    <message>
        <source>Keyrill is running already.</source>
        <translation>Keyrill はすでに実行中です。</translation>
    </message>
</context>
<context>
    <name>RecordHerePanel</name>
    <message>
        <source>Record Here</source>
        <translation>ここで記録</translation>
    </message>
    <message>
        <source>How to Record Everywhere</source>
        <translation>どこでも記録する方法</translation>
    </message>
    <message>
        <source>Type here</source>
        <translation>ここに入力</translation>
    </message>
    <message>
        <source>Keys typed here are recorded</source>
        <translation>ここで入力したキーが記録されます</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>記録を停止</translation>
    </message>
    <message>
        <source>What you type in this window is recorded</source>
        <translation>このウィンドウに入力した内容が記録されます</translation>
    </message>
    <message>
        <source>What you type in other programs is not. The macro can be played in all of them.</source>
        <translation>他のプログラムへの入力は記録されません。マクロはすべてのプログラムで再生できます。</translation>
    </message>
    <message>
        <source>Why not everywhere?</source>
        <translation>どこでも記録できないのはなぜですか?</translation>
    </message>
    <message>
        <source>Press Stop Recording or close the window when you are done.</source>
        <translation>終わったら「記録を停止」を押すか、ウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Press %1 when you are done, or close the window.</source>
        <translation>終わったら %1 を押すか、ウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window.</source>
        <translation>終わったらデスクトップの設定にある組み合わせを押すか、ウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Use the combination of the desktop&apos;s settings when you are done, or close the window: %1</source>
        <translation>終わったらデスクトップの設定にある組み合わせを押すか、ウィンドウを閉じてください: %1</translation>
    </message>
</context>
<context>
    <name>RecorderWindow</name>
    <message>
        <source>Keyrill recording</source>
        <translation>Keyrill 記録中</translation>
    </message>
</context>
<context>
    <name>RunningProgram</name>
    <message>
        <source>There is no session bus, over which the running Keyrill could be asked.</source>
        <translation>実行中の Keyrill に問い合わせるためのセッションバスがありません。</translation>
    </message>
    <message>
        <source>Call it from within the desktop session; the hot keys and the menu need none.</source>
        <translation>デスクトップセッションの中から呼び出してください。ショートカットとメニューにはセッションバスは不要です。</translation>
    </message>
    <message>
        <source>Keyrill could not be started, or runs already where this session bus does not reach.</source>
        <translation>Keyrill を起動できなかったか、このセッションバスの届かないところですでに実行中です。</translation>
    </message>
    <message>
        <source>Start it as &quot;keyrill&quot; in a terminal to see why.</source>
        <translation>理由を知るには、端末で「keyrill」と入力して起動してください。</translation>
    </message>
</context>
<context>
    <name>SRRecorderControl</name>
    <message>
        <source>Clear %1</source>
        <translation>%1 をクリア</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Click here, then press a combination. Backspace clears, Escape keeps what was set.</source>
        <translation>ここをクリックしてから組み合わせを押してください。Backspace でクリアし、Esc で元のままにします。</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super</source>
        <translation>Ctrl、Alt、Super のどれかを追加</translation>
    </message>
    <message>
        <source>Press a combination…</source>
        <translation>組み合わせを押す…</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
</context>
<context>
    <name>ScriptDialogWindow</name>
    <message>
        <source>Stop</source>
        <extracomment>the name of a picture: a stop sign</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>Caution</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Keyrill Macro</source>
        <translation>Keyrill マクロ</translation>
    </message>
</context>
<context>
    <name>ScriptEditor</name>
    <message>
        <source>Script</source>
        <translation>スクリプト</translation>
    </message>
    <message>
        <source>Words of the script language</source>
        <translation>スクリプト言語の単語</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <extracomment>of a script; what is wrong, or could be</extracomment>
        <translation>%1 行目: %2</translation>
    </message>
</context>
<context>
    <name>ScriptNotices</name>
    <message>
        <source>The macro was not played to its end</source>
        <translation>マクロは最後まで再生されませんでした</translation>
    </message>
    <message>
        <source>The macro cannot be played</source>
        <translation>マクロを再生できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is loaded but cannot be played</source>
        <translation>「%1」を読み込みましたが、再生できません</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>SessionReport</name>
    <message>
        <source>, </source>
        <extracomment>between the names of a list</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a line of keyrill --check: what was looked at, and what was found</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1、ディスプレイ %2</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>構成要素</translation>
    </message>
    <message>
        <source>missing: %1; there: %2</source>
        <translation>なし: %1 / あり: %2</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>グローバルショートカット</translation>
    </message>
    <message>
        <source>Pressing keys</source>
        <translation>キーの押下</translation>
    </message>
    <message>
        <source>Typing text</source>
        <translation>テキストの入力</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>クリップボード</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Windows of other programs</source>
        <translation>他のプログラムのウィンドウ</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>トレイ</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>by what it works, and what is missing all the same, which is a sentence</extracomment>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>Hot key of &quot;%1&quot;</source>
        <translation>「%1」のショートカット</translation>
    </message>
    <message>
        <source>none is chosen</source>
        <translation>選ばれていません</translation>
    </message>
    <message>
        <source>%1, which nobody else has</source>
        <translation>%1 (他に使っているものはありません)</translation>
    </message>
    <message>
        <source>%1, which the running Keyrill has</source>
        <translation>%1 (実行中の Keyrill が使っています)</translation>
    </message>
    <message>
        <source>%1; the session does not tell who has it</source>
        <translation>%1 (何が使っているかは、このセッションではわかりません)</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>セッションバス</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>the session bus exists</extracomment>
        <translation>あり</translation>
    </message>
    <message>
        <source>There is none: &quot;keyrill --action&quot;, notifications and many trays need it, and a locked screen is not noticed at once.</source>
        <translation>ありません: 「keyrill --action」、通知、多くのトレイに必要です。画面のロックにもすぐには気付きません。</translation>
    </message>
    <message>
        <source>Start Keyrill from within the desktop session.</source>
        <translation>デスクトップセッションの中から Keyrill を起動してください。</translation>
    </message>
    <message>
        <source>Keyrill</source>
        <translation>Keyrill</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>is not running</source>
        <translation>実行されていません</translation>
    </message>
    <message>
        <source>no lock is on</source>
        <translation>ロックキーはすべてオフ</translation>
    </message>
    <message>
        <source>on: %1, which macros do not mind</source>
        <translation>オン: %1 (マクロには影響しません)</translation>
    </message>
    <message>
        <source>layout unknown</source>
        <translation>レイアウト不明</translation>
    </message>
    <message>
        <source>layout %1</source>
        <translation>レイアウト %1</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <extracomment>the keyboard layouts, and the locks that are on</extracomment>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>ShortcutNotices</name>
    <message>
        <source>Still used by %1 until Keyrill restarts.</source>
        <translation>Keyrill を再起動するまで「%1」が使い続けます。</translation>
    </message>
    <message>
        <source>Already used by %1.</source>
        <translation>すでに「%1」が使っています。</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>デスクトップがまだ応答していません。</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings.</source>
        <translation>デスクトップの設定で決められています。</translation>
    </message>
    <message>
        <source>Set in the desktop&apos;s settings: %1</source>
        <translation>デスクトップの設定で決められています: %1</translation>
    </message>
    <message>
        <source>%1 still works until Keyrill restarts.</source>
        <translation>%1 は Keyrill を再起動するまで有効です。</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;, which gives way.</source>
        <translation>すでにマクロ「%1」が使っていますが、こちらが優先されます。</translation>
    </message>
    <message>
        <source>Already used by macro &quot;%1&quot;.</source>
        <translation>すでにマクロ「%1」が使っています。</translation>
    </message>
</context>
<context>
    <name>ShortcutTitles</name>
    <message>
        <source>Start &amp;Recording:</source>
        <translation>記録を開始(&amp;R):</translation>
    </message>
    <message>
        <source>Start Recording</source>
        <translation>記録を開始</translation>
    </message>
    <message>
        <source>&amp;Stop Recording:</source>
        <translation>記録を停止(&amp;S):</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>記録を停止</translation>
    </message>
    <message>
        <source>&amp;Play:</source>
        <translation>再生(&amp;P):</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play &amp;Multiple Times:</source>
        <translation>複数回再生(&amp;M):</translation>
    </message>
    <message>
        <source>Play Multiple Times</source>
        <translation>複数回再生</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Start Recording</source>
        <translation>記録を開始</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>記録を停止</translation>
    </message>
    <message>
        <source>Save Pause</source>
        <translation>待ち時間を記録</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play Multiple Times...</source>
        <translation>複数回再生...</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Save Macro...</source>
        <translation>マクロを保存...</translation>
    </message>
    <message>
        <source>Load Macro...</source>
        <translation>マクロを読み込む...</translation>
    </message>
    <message>
        <source>Macros...</source>
        <translation>マクロ...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Forum</source>
        <translation>フォーラム</translation>
    </message>
    <message>
        <source>Product Page</source>
        <translation>製品ページ</translation>
    </message>
    <message>
        <source>Maker&apos;s Website</source>
        <translation>開発元のウェブサイト</translation>
    </message>
    <message>
        <source>Get Support</source>
        <translation>サポートを受ける</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>フィードバックを送る</translation>
    </message>
    <message>
        <source>Report a Bug</source>
        <translation>バグを報告</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>アップデートを確認...</translation>
    </message>
    <message>
        <source>About Keyrill</source>
        <translation>Keyrill について</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Keyrill menu</source>
        <translation>Keyrill メニュー</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>ここで使えるもの</translation>
    </message>
</context>
<context>
    <name>StatusNotice</name>
    <message>
        <source>%1 has no shortcut. %2</source>
        <translation>「%1」にはショートカットがありません。%2</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <source>Works</source>
        <translation>使えます</translation>
    </message>
    <message>
        <source>Does not work</source>
        <translation>使えません</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>What Works Here</source>
        <translation>ここで使えるもの</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>コピー(&amp;O)</translation>
    </message>
    <message>
        <source>Copy all lines, for a mail or a forum</source>
        <translation>メールやフォーラムに貼り付けられるよう、すべての行をコピーします</translation>
    </message>
    <message>
        <source>Check &amp;Again</source>
        <translation>もう一度確認(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>A moment...</source>
        <translation>お待ちください...</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>ここで使えるものを調べられませんでした。</translation>
    </message>
    <message>
        <source>&quot;keyrill --check&quot; in a terminal may say why.</source>
        <translation>端末で「keyrill --check」を実行すると理由がわかるかもしれません。</translation>
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
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>The script goes on; only its beginning is shown.</source>
        <translation>スクリプトは続きます。最初の部分だけを表示しています。</translation>
    </message>
    <message>
        <source>A pause is a number of seconds from 0 to a day.</source>
        <translation>待ち時間は 0 秒から 1 日までの秒数です。</translation>
    </message>
    <message>
        <source>A key is pressed from 1 to 10,000 times.</source>
        <translation>キーを押す回数は 1 回から 10,000 回までです。</translation>
    </message>
    <message>
        <source>This step cannot be changed here.</source>
        <translation>このステップはここでは変更できません。</translation>
    </message>
</context>
<context>
    <name>Toggles</name>
    <message>
        <source>Check for &amp;updates when Keyrill starts</source>
        <translation>Keyrill の起動時にアップデートを確認する(&amp;U)</translation>
    </message>
    <message>
        <source>Start Keyrill when I log &amp;in</source>
        <translation>ログイン時に Keyrill を起動する(&amp;I)</translation>
    </message>
    <message>
        <source>Record modifier &amp;keys on their own</source>
        <translation>修飾キーを単独でも記録する(&amp;K)</translation>
    </message>
    <message>
        <source>Keep the &amp;history for the next start</source>
        <translation>Keyrill を終了しても履歴を残す(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Write hot keys into GNOME&apos;s settings</source>
        <translation>ショートカットを GNOME の設定に書き込む(&amp;W)</translation>
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
        <translation>Keyrill へようこそ</translation>
    </message>
    <message>
        <source>&amp;Continue</source>
        <translation>続ける(&amp;C)</translation>
    </message>
    <message>
        <source>Your first macro</source>
        <translation>最初のマクロ</translation>
    </message>
    <message>
        <source>The combinations</source>
        <translation>キーの組み合わせ</translation>
    </message>
    <message>
        <source>You can change them in the preferences, which come next.</source>
        <translation>次に開く設定で変更できます。</translation>
    </message>
    <message>
        <source>Keyrill records the keys you press and presses them again for you, in any program, as often as you like.</source>
        <translation>Keyrill は、押したキーを記録し、どのプログラムでも、何度でも、代わりに押します。</translation>
    </message>
    <message>
        <source>Choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>Keyrill のメニューで「記録を開始」を選びます。それから入力します。</translation>
    </message>
    <message>
        <source>Press %1, or choose Start Recording in Keyrill&apos;s menu. Then type.</source>
        <translation>%1 を押すか、Keyrill のメニューで「記録を開始」を選びます。それから入力します。</translation>
    </message>
    <message>
        <source>Choose Stop Recording when you are done.</source>
        <translation>終わったら「記録を停止」を選びます。</translation>
    </message>
    <message>
        <source>Press %1 when you are done.</source>
        <translation>終わったら %1 を押します。</translation>
    </message>
    <message>
        <source>Click where the keys should go and choose Play.</source>
        <translation>キーを送りたいところをクリックし、「再生」を選びます。</translation>
    </message>
    <message>
        <source>Click where the keys should go and press %1.</source>
        <translation>キーを送りたいところをクリックし、%1 を押します。</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
</context>
</TS>
