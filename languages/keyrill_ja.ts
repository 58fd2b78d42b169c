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
    <message>
        <source>by the compositor</source>
        <translation>コンポジターによる</translation>
    </message>
</context>
<context>
    <name>Clipboard</name>
    <message>
        <source>This compositor gives the clipboard to windows alone.</source>
        <translation>このコンポジターは、ウィンドウにしかクリップボードを渡しません。</translation>
    </message>
    <message>
        <source>Use a compositor with data control, such as sway, or an X11 session.</source>
        <translation>sway などデータ制御のあるコンポジターか、X11 セッションを使ってください。</translation>
    </message>
    <message>
        <source>No more files can be opened.</source>
        <translation>これ以上ファイルを開けません。</translation>
    </message>
    <message>
        <source>Close programs.</source>
        <translation>使っていないプログラムを終了してください。</translation>
    </message>
    <message>
        <source>The text in the clipboard is too long.</source>
        <translation>クリップボードのテキストが長すぎます。</translation>
    </message>
    <message>
        <source>The clipboard is held by another program.</source>
        <translation>別のプログラムがクリップボードを使用中です。</translation>
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
    <name>Files</name>
    <message>
        <source>Line %1 has the byte %2 at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is a code: 0xE9</extracomment>
        <translation>%1 行目の %3 番目の位置にバイト %2 がありますが、マクロファイルで使えるのは ASCII だけです。</translation>
    </message>
    <message>
        <source>Line %1 has the character (%2) at place %3, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %3 are numbers, %2 is the code of a character that cannot be shown: U+0085</extracomment>
        <translation>%1 行目の %3 番目の位置に文字 (%2) がありますが、マクロファイルで使えるのは ASCII だけです。</translation>
    </message>
    <message>
        <source>Line %1 has the character &quot;%2&quot; (%3) at place %4, and a macro file can hold ASCII only.</source>
        <extracomment>%1 and %4 are numbers, %2 is a character, %3 its code: U+00E9</extracomment>
        <translation>%1 行目の %4 番目の位置に文字「%2」(%3) がありますが、マクロファイルで使えるのは ASCII だけです。</translation>
    </message>
    <message>
        <source>Replace the character in the macro.</source>
        <translation>マクロの中のその文字を置き換えてください。</translation>
    </message>
    <message>
        <source>The file %1 cannot be deleted: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>ファイル %1 を削除できません: %2</translation>
    </message>
    <message>
        <source>Check who may write to its folder, or delete it yourself.</source>
        <translation>そのフォルダーに書き込めるユーザーを確認するか、ご自分でファイルを削除してください。</translation>
    </message>
    <message>
        <source>It is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>ファイルを選択してください。</translation>
    </message>
    <message>
        <source>The file %1 cannot be read: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>ファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <extracomment>%2 is why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>ファイル %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>It is larger than %1 MiB</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>サイズが %1 MiB を超えています</translation>
    </message>
    <message>
        <source>Choose a smaller file.</source>
        <translation>もっと小さいファイルを選択してください。</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>別の名前を選んでください。</translation>
    </message>
    <message>
        <source>Check that the file is there and who may read it.</source>
        <translation>ファイルがあることと、それを読み取れるユーザーを確認してください。</translation>
    </message>
    <message>
        <source>Make room, check who may write there, or choose another place.</source>
        <translation>空き容量を増やすか、そこに書き込めるユーザーを確認するか、別の場所を選んでください。</translation>
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
    <name>Folders</name>
    <message>
        <source>The folder %1 cannot be made: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>フォルダー %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>Check who may write there.</source>
        <translation>そこに書き込めるユーザーを確認してください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>フォルダー %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>Check who may read it.</source>
        <translation>それを読み取れるユーザーを確認してください。</translation>
    </message>
    <message>
        <source>What changes in the folder %1 is not noticed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>フォルダー %1 の変更を検知できません: %2</translation>
    </message>
    <message>
        <source>Start Keyrill again after changes, or raise fs.inotify.max_user_watches.</source>
        <translation>変更の後に Keyrill をもう一度起動するか、fs.inotify.max_user_watches の値を大きくしてください。</translation>
    </message>
    <message>
        <source>Make room, or check who may write there.</source>
        <translation>空き容量を増やすか、そこに書き込めるユーザーを確認してください。</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>A handler is called with parentheses: %1().</source>
        <translation>ハンドラーは丸かっこを付けて呼び出します: %1()。</translation>
    </message>
    <message>
        <source>The key has a number: key code %1.</source>
        <translation>このキーには番号があります: key code %1。</translation>
    </message>
    <message>
        <source>Return is joined to a text so: &quot;hello&quot; &amp; return.</source>
        <translation>Return はテキストに次のように連結します: &quot;hello&quot; &amp; return。</translation>
    </message>
    <message>
        <source>Tab is joined to a text so: &quot;hello&quot; &amp; tab.</source>
        <translation>Tab はテキストに次のように連結します: &quot;hello&quot; &amp; tab。</translation>
    </message>
    <message>
        <source>A question is asked with: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;).</source>
        <translation>質問して答えを受け取るには次のように書きます: text returned of (display dialog &quot;Name?&quot; default answer &quot;&quot;)。</translation>
    </message>
    <message>
        <source>A number by chance is: random number from 1 to 10.</source>
        <translation>乱数は次のように書きます: random number from 1 to 10。</translation>
    </message>
    <message>
        <source>A loop is left with “exit repeat”, the script with “return”.</source>
        <translation>ループから抜けるには「exit repeat」、スクリプトを終えるには「return」を使います。</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>テキストは「keystroke」で入力します: keystroke &quot;hello&quot;。</translation>
    </message>
    <message>
        <source>A pause is written in seconds: delay 2.</source>
        <translation>待ち時間は秒数で書きます: delay 2。</translation>
    </message>
    <message>
        <source>Errors are caught with: try … on error … end try.</source>
        <translation>エラーは次のように捕捉します: try … on error … end try。</translation>
    </message>
    <message>
        <source>Nothing is imported; the commands are there from the start: delay 2, keystroke &quot;hello&quot;.</source>
        <translation>インポートは必要ありません。コマンドは最初から使えます: delay 2, keystroke &quot;hello&quot;。</translation>
    </message>
    <message>
        <source>A value is printed with: log &quot;x&quot;. Text is typed with “keystroke”: keystroke &quot;hello&quot;.</source>
        <translation>値は次のように出力します: log &quot;x&quot;。テキストは「keystroke」で入力します: keystroke &quot;hello&quot;。</translation>
    </message>
    <message>
        <source>A message is shown with: display dialog &quot;hello&quot;.</source>
        <translation>メッセージは次のように表示します: display dialog &quot;hello&quot;。</translation>
    </message>
    <message>
        <source>What has no value is written: missing value.</source>
        <translation>値がないことは次のように書きます: missing value。</translation>
    </message>
    <message>
        <source>A window is brought to the front with: tell application &quot;Firefox&quot; to activate.</source>
        <translation>ウィンドウを前面に出すには次のように書きます: tell application &quot;Firefox&quot; to activate。</translation>
    </message>
    <message>
        <source>A key code lies between 0 and %1; “keyrill-script keys” prints those that keys have.</source>
        <translation>キーコードは 0 から %1 までの数です。キーのあるコードは「keyrill-script keys」で表示できます。</translation>
    </message>
    <message>
        <source>A key code is a number; a text is typed with “keystroke”.</source>
        <translation>キーコードは数です。テキストは「keystroke」で入力します。</translation>
    </message>
    <message>
        <source>The key has a number: key code %1; “keyrill-script keys” prints all.</source>
        <translation>このキーには番号があります: key code %1。すべての番号は「keyrill-script keys」で表示できます。</translation>
    </message>
    <message>
        <source>The parts of a date are year, month, day, weekday, hours, minutes, seconds and time.</source>
        <translation>日付の要素は year、month、day、weekday、hours、minutes、seconds、time です。</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>%1 のことですか?</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: delay 0.5.</source>
        <translation>小数点にはピリオドを使います: delay 0.5。</translation>
    </message>
    <message>
        <source>“delay” counts seconds: delay 0.5.</source>
        <translation>「delay」の単位は秒です: delay 0.5。</translation>
    </message>
    <message>
        <source>A dialog gives a record; what was typed there is taken with: text returned of n.</source>
        <translation>ダイアログはレコードを返します。入力された内容は次のように取り出します: text returned of n。</translation>
    </message>
    <message>
        <source>A modifier stands without quotes: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>修飾キーは引用符なしで書きます: using %1 down。</translation>
    </message>
    <message>
        <source>Several modifiers stand in braces: using {control down, shift down}.</source>
        <translation>複数の修飾キーは波かっこで囲みます: using {control down, shift down}。</translation>
    </message>
    <message>
        <source>Texts are joined with “&amp;”: &quot;one&quot; &amp; &quot;two&quot;.</source>
        <translation>テキストは「&amp;」で連結します: &quot;one&quot; &amp; &quot;two&quot;。</translation>
    </message>
    <message>
        <source>This compares and changes nothing; a variable is set with “to”: set %1 to …</source>
        <translation>これは比較するだけで、何も変更しません。変数は「to」を使って設定します: set %1 to …</translation>
    </message>
    <message>
        <source>The script has no handler of that name: on %1(…) … end %1.</source>
        <translation>スクリプトにその名前のハンドラーがありません: on %1(…) … end %1。</translation>
    </message>
    <message>
        <source>No program takes a command but “activate”; press its keys: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down.</source>
        <translation>プログラムに使えるコマンドは「activate」だけです。代わりに、そのプログラムで使うキーを押してください: tell application &quot;System Events&quot; to keystroke &quot;q&quot; using control down。</translation>
    </message>
    <message>
        <source>The modifiers are called command (Super), control (Ctrl), option (Alt) and shift: using %1 down.</source>
        <extracomment>%1 is the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>修飾キーの名前は command (Super)、control (Ctrl)、option (Alt)、shift です: using %1 down。</translation>
    </message>
    <message>
        <source>An application is named: application &quot;%1&quot;.</source>
        <translation>アプリケーションは次のように名前で指定します: application &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>テキストはまっすぐな引用符で囲みます: &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>A handler has variables of its own; to share this one write there: global %1.</source>
        <translation>ハンドラーの変数は、そのハンドラーだけのものです。この変数を共有するには、ハンドラーの中に次のように書いてください: global %1。</translation>
    </message>
    <message>
        <source>A variable is set before it is used: set %1 to … Text stands between straight quotes: &quot;%2&quot;.</source>
        <translation>変数は使う前に設定します: set %1 to …。テキストはまっすぐな引用符で囲みます: &quot;%2&quot;。</translation>
    </message>
    <message>
        <source>A key is pressed by its number: key code 36 is Return. “keyrill-script keys” prints all numbers.</source>
        <translation>キーは番号で押します: key code 36 は Return です。すべての番号は「keyrill-script keys」で表示できます。</translation>
    </message>
    <message>
        <source>The date of today is “current date”; as a text: short date string of (current date).</source>
        <translation>今日の日付は「current date」です。テキストにするには次のように書きます: short date string of (current date)。</translation>
    </message>
    <message>
        <source>Inside “tell” the script’s own handlers are called with “my”: my %1(…).</source>
        <translation>「tell」の中では、スクリプト自身のハンドラーを「my」で呼び出します: my %1(…)。</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>ここで開いているブロックはありません。文まで 1 行に書いた「if」に「else」は付けられません。</translation>
    </message>
    <message>
        <source>No block is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>ここで開いているブロックはありません。文まで 1 行に書いた「if」に「end if」は不要です。</translation>
    </message>
    <message>
        <source>No block is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>ここで開いているブロックはありません。1 行で書いた「tell … to」に「end tell」は不要です。</translation>
    </message>
    <message>
        <source>No block is open here; this line is one too many.</source>
        <translation>ここで開いているブロックはありません。この行は余分です。</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “else”.</source>
        <translation>ここで開いている「if」はありません。文まで 1 行に書いた「if」に「else」は付けられません。</translation>
    </message>
    <message>
        <source>No “if” is open here; an “if” with its statement in one line has no “end if”.</source>
        <translation>ここで開いている「if」はありません。文まで 1 行に書いた「if」に「end if」は不要です。</translation>
    </message>
    <message>
        <source>No “tell” is open here; a “tell … to” in one line has no “end tell”.</source>
        <translation>ここで開いている「tell」はありません。1 行で書いた「tell … to」に「end tell」は不要です。</translation>
    </message>
    <message>
        <source>No “%1” is open here; the block that begins in line %2 has no “end” of its own.</source>
        <extracomment>%1 is the first word of a block, &quot;repeat&quot;, %2 a number.</extracomment>
        <translation>ここで開いている「%1」はありません。%2 行目から始まるブロックには、対応する「end」がありません。</translation>
    </message>
    <message>
        <source>In line %1 these are two words: %2.</source>
        <extracomment>%1 is a number, %2 what the line was meant to be, &quot;end if&quot;.</extracomment>
        <translation>%1 行目のこの部分は 2 語に分けて書きます: %2。</translation>
    </message>
    <message>
        <source>The block that begins in line %1 has no “end” of its own.</source>
        <translation>%1 行目から始まるブロックには、対応する「end」がありません。</translation>
    </message>
    <message>
        <source>The text that begins here is not closed by a straight quote in its line.</source>
        <translation>ここから始まるテキストが、同じ行の中でまっすぐな引用符で閉じられていません。</translation>
    </message>
    <message>
        <source>The comment that begins in line %1 is not closed by “*)”.</source>
        <translation>%1 行目から始まるコメントが「*)」で閉じられていません。</translation>
    </message>
    <message>
        <source>The keyboard commands stand inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>キーボードのコマンドは「tell application &quot;System Events&quot;」 … 「end tell」の中に書きます。</translation>
    </message>
    <message>
        <source>Modifiers are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>修飾キーを使えるのは「tell application &quot;System Events&quot;」 … 「end tell」の中です。</translation>
    </message>
    <message>
        <source>Processes are known inside “tell application &quot;System Events&quot;” … “end tell”.</source>
        <translation>プロセスを使えるのは「tell application &quot;System Events&quot;」 … 「end tell」の中です。</translation>
    </message>
    <message>
        <source>Put straight quotes (&quot;) in place of the curly ones.</source>
        <translation>曲がった引用符の代わりに、まっすぐな引用符 (&quot;) を使ってください。</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to 5.</source>
        <translation>変数は「to」を使って設定します: set x to 5。</translation>
    </message>
    <message>
        <source>A loop is written: repeat with i from 1 to 5 … end repeat.</source>
        <translation>ループは次のように書きます: repeat with i from 1 to 5 … end repeat。</translation>
    </message>
    <message>
        <source>A handler is written: on greet(x) … end greet.</source>
        <translation>ハンドラーは次のように書きます: on greet(x) … end greet。</translation>
    </message>
    <message>
        <source>Several stand in braces: {control down, shift down}, {36, 48}.</source>
        <translation>複数あるときは波かっこで囲みます: {control down, shift down}, {36, 48}。</translation>
    </message>
    <message>
        <source>These are two words: else if … then.</source>
        <translation>これは 2 語に分けて書きます: else if … then。</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, and Return joined with “&amp;”: keystroke &quot;hello&quot; &amp; return.</source>
        <translation>テキストは「keystroke」で入力し、Return は「&amp;」で連結します: keystroke &quot;hello&quot; &amp; return。</translation>
    </message>
    <message>
        <source>A key goes down and up again with: keystroke return, key code 53. It is held with: key down 36, and let go with: key up 36.</source>
        <translation>キーを押して離すには次のように書きます: keystroke return または key code 53。押し続けるには次のように書きます: key down 36。離すには次のように書きます: key up 36。</translation>
    </message>
    <message>
        <source>A macro has no mouse; press the keys that do the same, as Tab and Return.</source>
        <translation>マクロではマウスを使えません。Tab や Return など、同じことができるキーを押してください。</translation>
    </message>
    <message>
        <source>Conditions are joined with “and” or “or”.</source>
        <translation>条件は「and」または「or」でつなぎます。</translation>
    </message>
    <message>
        <source>Of a process its name is known, and whether it is in front: every process whose name contains &quot;fire&quot;.</source>
        <translation>プロセスについて分かるのは、名前と、前面にあるかどうかです: every process whose name contains &quot;fire&quot;。</translation>
    </message>
    <message>
        <source>Windows, buttons and menus are not to be seen by a macro; press the keys that do the same.</source>
        <translation>マクロからウィンドウやボタン、メニューは見えません。同じことができるキーを押してください。</translation>
    </message>
    <message>
        <source>Modifiers stand behind “using”: keystroke &quot;s&quot; using control down.</source>
        <translation>修飾キーは「using」の後に書きます: keystroke &quot;s&quot; using control down。</translation>
    </message>
    <message>
        <source>What is done several times stands in lines of its own between “repeat 5 times” and “end repeat”.</source>
        <translation>何度も繰り返すことは、「repeat 5 times」と「end repeat」の間に独立した行で書きます。</translation>
    </message>
    <message>
        <source>Each statement has a line of its own.</source>
        <translation>文は 1 行に 1 つずつ書きます。</translation>
    </message>
    <message>
        <source>A macro has no files; a text comes from “the clipboard” or from a dialog.</source>
        <translation>マクロではファイルを使えません。テキストは「the clipboard」またはダイアログから受け取ります。</translation>
    </message>
    <message>
        <source>A variable is set with “to”: set x to x + 1.</source>
        <translation>変数は「to」を使って設定します: set x to x + 1。</translation>
    </message>
    <message>
        <source>A parenthesis is not closed in this line.</source>
        <translation>この行に、閉じられていない丸かっこがあります。</translation>
    </message>
    <message>
        <source>A brace is not closed in this line.</source>
        <translation>この行に、閉じられていない波かっこがあります。</translation>
    </message>
    <message>
        <source>Press the keys that start it, or bring a window to the front: tell application &quot;Firefox&quot; to activate.</source>
        <translation>プログラムを起動するキーを押すか、ウィンドウを前面に出してください: tell application &quot;Firefox&quot; to activate。</translation>
    </message>
    <message>
        <source>Write the command by its name.</source>
        <translation>コマンドは名前で書いてください。</translation>
    </message>
    <message>
        <source>A shortcut is written: keystroke &quot;c&quot; using control down.</source>
        <translation>ショートカットは次のように書きます: keystroke &quot;c&quot; using control down。</translation>
    </message>
    <message>
        <source>Only processes are chosen by “whose”; go through a list with: repeat with x in theList … end repeat.</source>
        <translation>「whose」で選べるのはプロセスだけです。リストの項目は次のように順に調べます: repeat with x in theList … end repeat。</translation>
    </message>
    <message>
        <source>Behind “default answer” stands a text, be it empty: default answer &quot;&quot;.</source>
        <translation>「default answer」の後には、空であってもテキストを書きます: default answer &quot;&quot;。</translation>
    </message>
    <message>
        <source>An “if” in one line has no “else”; write it in lines, with “end if”.</source>
        <translation>1 行で書いた「if」に「else」は付けられません。「end if」を使い、複数の行に分けて書いてください。</translation>
    </message>
    <message>
        <source>Decimals stand behind a point: 0.5.</source>
        <translation>小数点にはピリオドを使います: 0.5。</translation>
    </message>
    <message>
        <source>“delay” counts seconds, without a unit: delay 0.5.</source>
        <translation>「delay」の単位は秒です。単位は付けません: delay 0.5。</translation>
    </message>
    <message>
        <source>A key is let go with: key up &quot;a&quot;.</source>
        <translation>キーは次のように離します: key up &quot;a&quot;。</translation>
    </message>
    <message>
        <source>Text is typed with “keystroke”, a key is pressed by its number: key code 36.</source>
        <translation>テキストは「keystroke」で入力し、キーは番号で押します: key code 36。</translation>
    </message>
    <message>
        <source>A key is held with “key down” and let go with “key up”: key down shift.</source>
        <translation>キーは「key down」で押し続け、「key up」で離します: key down shift。</translation>
    </message>
    <message>
        <source>The text in the clipboard is: the clipboard.</source>
        <translation>クリップボードのテキストは次のように書きます: the clipboard。</translation>
    </message>
    <message>
        <source>A loop is written: repeat 5 times … end repeat.</source>
        <translation>ループは次のように書きます: repeat 5 times … end repeat。</translation>
    </message>
    <message>
        <source>Behind the name stands “to”, or the line ends there: tell application &quot;System Events&quot; to keystroke &quot;a&quot;.</source>
        <translation>名前の後には「to」を書くか、そこで行を終えます: tell application &quot;System Events&quot; to keystroke &quot;a&quot;。</translation>
    </message>
    <message>
        <source>The name stands between straight quotes: tell application &quot;System Events&quot;.</source>
        <translation>名前はまっすぐな引用符で囲みます: tell application &quot;System Events&quot;。</translation>
    </message>
    <message>
        <source>A loop is written: repeat while x &lt; 5 … end repeat.</source>
        <translation>ループは次のように書きます: repeat while x &lt; 5 … end repeat。</translation>
    </message>
    <message>
        <source>A comment begins with -- or #.</source>
        <translation>コメントは -- または # で始めます。</translation>
    </message>
    <message>
        <source>A comment over lines is written (* … *).</source>
        <translation>複数行のコメントは (* … *) のように書きます。</translation>
    </message>
    <message>
        <source>“Equal” is written with one =.</source>
        <translation>「等しい」は 1 つの = で書きます。</translation>
    </message>
    <message>
        <source>A text is not closed by a straight quote.</source>
        <translation>まっすぐな引用符で閉じられていないテキストがあります。</translation>
    </message>
    <message>
        <source>A backslash in a text is written twice: &quot;C:\\Users&quot;.</source>
        <translation>テキストの中のバックスラッシュは 2 つ続けて書きます: &quot;C:\\Users&quot;。</translation>
    </message>
    <message>
        <source>Behind “as” stands a class: text, integer, real, number, boolean, list, record, date.</source>
        <translation>「as」の後にはクラスを書きます: text, integer, real, number, boolean, list, record, date。</translation>
    </message>
    <message>
        <source>A block has no braces: if x = 1 then … end if.</source>
        <translation>ブロックに波かっこは使いません: if x = 1 then … end if。</translation>
    </message>
    <message>
        <source>A block has no braces; it ends with “end” and its first word: end repeat.</source>
        <translation>ブロックに波かっこは使いません。「end」とブロックの最初の単語で終わります: end repeat。</translation>
    </message>
    <message>
        <source>A line needs no colon at its end.</source>
        <translation>行の終わりにコロンは必要ありません。</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|.</source>
        <translation>A から Z 以外の文字を含む名前は縦線で囲みます: |%1|。</translation>
    </message>
    <message>
        <source>Other letters than A to Z stand in a name between bars: |%1|. Text stands between straight quotes: &quot;%1&quot;.</source>
        <translation>A から Z 以外の文字を含む名前は縦線で囲みます: |%1|。テキストはまっすぐな引用符で囲みます: &quot;%1&quot;。</translation>
    </message>
    <message>
        <source>A sign that nobody sees stands here; delete it.</source>
        <translation>ここに目に見えない文字があります。削除してください。</translation>
    </message>
    <message>
        <source>A hot key is no part of a script; it is set in the preferences, or for each macro in “Macros...”.</source>
        <extracomment>“Macros...” is an entry of the menu.</extracomment>
        <translation>グローバルショートカットはスクリプトの一部ではありません。設定で、またはマクロごとに「マクロ...」で設定します。</translation>
    </message>
    <message>
        <source>“Not equal” is written ≠ or /=.</source>
        <translation>「等しくない」は ≠ または /= と書きます。</translation>
    </message>
    <message>
        <source>An item is taken by its number: item 1 of x.</source>
        <translation>項目は番号で取り出します: item 1 of x。</translation>
    </message>
    <message>
        <source>What belongs to a value is taken with “of”: length of x.</source>
        <translation>値に属するものは「of」で取り出します: length of x。</translation>
    </message>
    <message>
        <source>A list stands in braces: {1, 2}.</source>
        <translation>リストは波かっこで囲みます: {1, 2}。</translation>
    </message>
    <message>
        <source>The rest of a division is written: 7 mod 2.</source>
        <translation>割り算の余りは次のように書きます: 7 mod 2。</translation>
    </message>
    <message>
        <source>Text stands between straight double quotes (&quot;).</source>
        <translation>テキストはまっすぐな二重引用符 (&quot;) で囲みます。</translation>
    </message>
    <message>
        <source>A quote inside a text is written \&quot;: &quot;Hello \&quot;world\&quot;&quot;.</source>
        <translation>テキストの中の引用符は \&quot; と書きます: &quot;Hello \&quot;world\&quot;&quot;。</translation>
    </message>
    <message>
        <source>Take the items in parts, or paragraphs instead of characters.</source>
        <translation>項目を何回かに分けて取り出すか、文字ではなく段落を取り出してください。</translation>
    </message>
    <message>
        <source>The block that begins in line %1 ends with “%2”.</source>
        <extracomment>%1 is a number, %2 the last line of a block, &quot;end if&quot;.</extracomment>
        <translation>%1 行目から始まるブロックは「%2」で終わります。</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>GNOME&apos;s settings cannot be changed</source>
        <translation>GNOME の設定を変更できません</translation>
    </message>
    <message>
        <source>your settings of GNOME have another entry in its place</source>
        <translation>GNOME の設定では、その場所に別の項目があります</translation>
    </message>
    <message>
        <source>your own shortcut “%1” in GNOME&apos;s settings has it</source>
        <translation>GNOME の設定にあるユーザー自身のショートカット「%1」が使っています</translation>
    </message>
    <message>
        <source>GNOME has it for “%1”</source>
        <translation>GNOME が「%1」に使っています</translation>
    </message>
    <message>
        <source>GNOME has no name for it</source>
        <translation>この組み合わせを表す名前が GNOME にありません</translation>
    </message>
    <message>
        <source>it has been taken out of GNOME&apos;s settings</source>
        <translation>GNOME の設定から取り除かれました</translation>
    </message>
    <message>
        <source>KDE has no name for this key</source>
        <translation>このキーを表す名前が KDE にありません</translation>
    </message>
    <message>
        <source>KDE says: %1</source>
        <translation>KDE からのメッセージ: %1</translation>
    </message>
    <message>
        <source>KDE uses it for something else</source>
        <translation>KDE が別の用途に使っています</translation>
    </message>
    <message>
        <source>KDE does not give it</source>
        <translation>KDE がこの組み合わせを提供しません</translation>
    </message>
    <message>
        <source>%1 has it for “%2”</source>
        <translation>%1 が「%2」に使っています</translation>
    </message>
    <message>
        <source>the desktop has not granted it</source>
        <translation>デスクトップがこの組み合わせを許可していません</translation>
    </message>
    <message>
        <source>you did not agree when the desktop asked</source>
        <translation>デスクトップの確認に対して許可が与えられませんでした</translation>
    </message>
    <message>
        <source>the desktop has not answered</source>
        <translation>デスクトップが応答していません</translation>
    </message>
    <message>
        <source>the desktop has refused it</source>
        <translation>デスクトップがこの組み合わせを拒否しました</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>セッションバスがありません</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal does not answer</source>
        <translation>デスクトップのポータルが応答しません</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal gives no hot keys</source>
        <translation>デスクトップのポータルがグローバルショートカットを提供しません</translation>
    </message>
    <message>
        <source>the desktop has taken it back</source>
        <translation>デスクトップがこの組み合わせの許可を取り消しました</translation>
    </message>
    <message>
        <source>the desktop&apos;s portal has ended</source>
        <translation>デスクトップのポータルが終了しました</translation>
    </message>
    <message>
        <source>your configuration of sway binds it</source>
        <translation>sway の設定ファイルで割り当てられています</translation>
    </message>
    <message>
        <source>Choose another combination.</source>
        <translation>別の組み合わせを選んでください。</translation>
    </message>
    <message>
        <source>Choose another combination, or allow it in the desktop&apos;s settings.</source>
        <translation>別の組み合わせを選ぶか、デスクトップの設定で許可してください。</translation>
    </message>
    <message>
        <source>Choose another combination, or free it in the program that holds it.</source>
        <translation>別の組み合わせを選ぶか、それを使っているプログラムで解放してください。</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2.</source>
        <extracomment>%1 is a combination of keys, %2 one of the reasons: another program holds it</extracomment>
        <translation>%1 は使えません: %2。</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the third level (AltGr).</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 は使えません: キーボードレイアウトに第 3 レベル (AltGr) のキーがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for the fifth level.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 は使えません: キーボードレイアウトに第 5 レベルのキーがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be used: the keyboard layout has no key for %2.</source>
        <extracomment>%1 is a combination of keys, %2 a modifier: Super</extracomment>
        <translation>%1 は使えません: キーボードレイアウトに %2 のキーがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be used: Keyrill uses it for something else.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 は使えません: Keyrill が別の用途に使っています。</translation>
    </message>
    <message>
        <source>%1 cannot be used: this desktop has no such key.</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>%1 は使えません: このデスクトップにはそのようなキーがありません。</translation>
    </message>
    <message>
        <source>%1 cannot be used: nobody could type it any more.</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>%1 は使えません: このキーを入力できなくなってしまいます。</translation>
    </message>
    <message>
        <source>Add Ctrl, Alt or Super.</source>
        <translation>Ctrl、Alt、Super のどれかを追加してください。</translation>
    </message>
    <message>
        <source>This compositor gives no hot keys to programs.</source>
        <translation>このコンポジターはプログラムにグローバルショートカットを提供しません。</translation>
    </message>
    <message>
        <source>this compositor gives no hot keys to programs</source>
        <translation>このコンポジターはプログラムにグローバルショートカットを提供しません</translation>
    </message>
    <message>
        <source>another program holds it</source>
        <translation>別のプログラムが使っています</translation>
    </message>
    <message>
        <source>the X server refuses it with error %1</source>
        <translation>X サーバーがエラー %1 で拒否しました</translation>
    </message>
    <message>
        <source>the X server is gone</source>
        <translation>X サーバーが終了しました</translation>
    </message>
    <message>
        <source>Bind keys to commands such as &quot;keyrill --action=play&quot; in the compositor&apos;s settings.</source>
        <translation>コンポジターの設定で「keyrill --action=play」などのコマンドにキーを割り当ててください。</translation>
    </message>
    <message>
        <source>GNOME has hot keys only in your own settings, which Keyrill may not change.</source>
        <translation>GNOME のグローバルショートカットはユーザー自身の設定にしかなく、Keyrill はその変更を許可されていません。</translation>
    </message>
    <message>
        <source>Tick the box in Keyrill&apos;s preferences, or bind keys to commands such as &quot;keyrill --action=play&quot; in GNOME&apos;s settings yourself.</source>
        <translation>Keyrill の設定でチェックを入れるか、GNOME の設定で「keyrill --action=play」などのコマンドに自分でキーを割り当ててください。</translation>
    </message>
</context>
<context>
    <name>Keyboards</name>
    <message>
        <source>The keyboard cannot be read: %1: %2.</source>
        <translation>キーボードを読み取れません: %1: %2。</translation>
    </message>
    <message>
        <source>Let the keyboard be read while a macro is recorded.</source>
        <translation>マクロの記録中はキーボードの読み取りを許可してください。</translation>
    </message>
    <message>
        <source>The keyboard can no longer be read: the permission has ended.</source>
        <translation>キーボードを読み取れなくなりました: 許可が無効になりました。</translation>
    </message>
    <message>
        <source>Another user&apos;s session may be in front, or the screen is locked.</source>
        <translation>別のユーザーのセッションが前面にあるか、画面がロックされている可能性があります。</translation>
    </message>
    <message>
        <source>The keyboard cannot be read: there is no system bus.</source>
        <translation>キーボードを読み取れません: システムバスがありません。</translation>
    </message>
    <message>
        <source>What it says stands in the system&apos;s journal: journalctl -u keyrill-access.</source>
        <translation>サービスのメッセージはシステムのジャーナルで確認できます: journalctl -u keyrill-access。</translation>
    </message>
    <message>
        <source>The keyboard is no longer read: the service keyrill-access has ended.</source>
        <translation>キーボードの読み取りが止まりました: サービス keyrill-access が終了しました。</translation>
    </message>
    <message>
        <source>Keyrill may not read the keyboard: permission was not given.</source>
        <translation>Keyrill はキーボードを読み取れません: 許可が与えられませんでした。</translation>
    </message>
    <message>
        <source>Record again and agree when you are asked for your password.</source>
        <translation>もう一度記録し、パスワードを求められたら許可してください。</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access is not installed.</source>
        <translation>Keyrill はキーボードを読み取れません: サービス keyrill-access がインストールされていません。</translation>
    </message>
    <message>
        <source>Install the package keyrill-wayland-access or, from Keyrill&apos;s sources, tools/access install.</source>
        <translation>パッケージ keyrill-wayland-access をインストールするか、Keyrill のソースから tools/access install を実行してください。</translation>
    </message>
    <message>
        <source>Keyrill cannot read the keyboard: the service keyrill-access does not work.</source>
        <translation>Keyrill はキーボードを読み取れません: サービス keyrill-access が動作していません。</translation>
    </message>
    <message>
        <source>A Wayland session shows this program nothing of what is typed in others.</source>
        <translation>Wayland セッションでは、他のプログラムへの入力はこのプログラムにまったく見えません。</translation>
    </message>
    <message>
        <source>Record with keyrill itself, or use an X11 session.</source>
        <translation>keyrill 自体で記録するか、X11 セッションを使ってください。</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>This desktop lets no program press keys: no portal for it answers.</source>
        <translation>このデスクトップではプログラムがキーを押せません: そのためのポータルが応答しません。</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the part of it that belongs to your desktop.</source>
        <translation>xdg-desktop-portal と、お使いのデスクトップ用のバックエンドをインストールしてください。</translation>
    </message>
    <message>
        <source>The desktop was not allowed to let Keyrill press keys.</source>
        <translation>デスクトップが Keyrill にキーを押させることは許可されませんでした。</translation>
    </message>
    <message>
        <source>Play again, and agree when you are asked.</source>
        <translation>もう一度再生し、尋ねられたら許可してください。</translation>
    </message>
    <message>
        <source>The desktop has not answered whether Keyrill may press keys.</source>
        <translation>Keyrill がキーを押してもよいかどうか、デスクトップから応答がありません。</translation>
    </message>
    <message>
        <source>Play again; if nothing asks you, log in again.</source>
        <translation>もう一度再生してください。何も尋ねられない場合は、ログインし直してください。</translation>
    </message>
    <message>
        <source>The desktop no longer lets Keyrill press keys.</source>
        <translation>デスクトップが Keyrill にキーを押させなくなりました。</translation>
    </message>
    <message>
        <source>Play again; it may ask for your permission.</source>
        <translation>もう一度再生してください。許可を求められることがあります。</translation>
    </message>
    <message>
        <source>The power key cannot be pressed by a script.</source>
        <translation>電源キーをスクリプトで押すことはできません。</translation>
    </message>
    <message>
        <source>Take key code 127 out of the script.</source>
        <translation>スクリプトからキーコード 127 を取り除いてください。</translation>
    </message>
    <message>
        <source>The text to type is not UTF-8 at byte %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>入力するテキストは、バイト %1 の位置で UTF-8 になっていません。</translation>
    </message>
    <message>
        <source>Save the script as UTF-8.</source>
        <translation>スクリプトを UTF-8 で保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1...&quot;</source>
        <extracomment>The beginning of a text that is longer, in quotation marks.</extracomment>
        <translation>「%1...」</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <extracomment>A text in quotation marks.</extracomment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <extracomment>%1 is a character, %2 its code: U+00E9</extracomment>
        <translation>「%1」(%2)</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with the keyboard layout that is in force.</source>
        <translation>文字 %1 は、現在のキーボードレイアウトでは入力できません。</translation>
    </message>
    <message>
        <source>Take it out of the text, or switch to a layout that has it before you play.</source>
        <translation>テキストから取り除くか、再生する前に、その文字があるレイアウトに切り替えてください。</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with your keyboard layouts.</source>
        <translation>文字 %1 は、お使いのキーボードレイアウトでは入力できません。</translation>
    </message>
    <message>
        <source>Take it out of the text, or add a layout that has it.</source>
        <translation>テキストから取り除くか、その文字があるレイアウトを追加してください。</translation>
    </message>
    <message>
        <source>The character %1 cannot be typed with this keyboard layout.</source>
        <translation>文字 %1 は、このキーボードレイアウトでは入力できません。</translation>
    </message>
    <message>
        <source>Take it out of the text, or set a layout that has it.</source>
        <translation>テキストから取り除くか、その文字があるレイアウトを設定してください。</translation>
    </message>
    <message>
        <source>The keymap for typing could not be made.</source>
        <translation>入力用のキーマップを作成できませんでした。</translation>
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
        <source>A script is running already.</source>
        <translation>すでにスクリプトを実行中です。</translation>
    </message>
    <message>
        <source>Wait for its end.</source>
        <translation>終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>The key %1 types no character.</source>
        <translation>キー %1 で入力できる文字はありません。</translation>
    </message>
    <message>
        <source>A Wayland session has no bell.</source>
        <translation>Wayland セッションにはベルがありません。</translation>
    </message>
    <message>
        <source>Take the beep out of the script.</source>
        <translation>スクリプトからビープ音を取り除いてください。</translation>
    </message>
    <message>
        <source>KDE lets no program press keys: its portal does not answer.</source>
        <translation>KDE ではプログラムがキーを押せません: ポータルが応答しません。</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal-kde, or use an X11 session.</source>
        <translation>xdg-desktop-portal-kde をインストールするか、X11 セッションを使ってください。</translation>
    </message>
    <message>
        <source>Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, such as KDE and GNOME, or an X11 session.</source>
        <translation>sway など仮想キーボードのあるコンポジターか、KDE や GNOME などポータルでキーを押せるデスクトップか、X11 セッションを使ってください。</translation>
    </message>
    <message>
        <source>The keyboard layout was changed while text was typed, which may have arrived as something else: %1.</source>
        <translation>テキストの入力中にキーボードレイアウトが変更されたため、違う文字として届いた可能性があります: %1。</translation>
    </message>
    <message>
        <source>Play it again when the layout stays as it is.</source>
        <translation>レイアウトが変わらない状態で、もう一度再生してください。</translation>
    </message>
    <message>
        <source>Another program holds the keyboard, so that no keys can be pressed.</source>
        <translation>別のプログラムがキーボードを占有しているため、キーを押せません。</translation>
    </message>
    <message>
        <source>Close the menu, the question or the screen lock that is open, and play again.</source>
        <translation>開いているメニューや質問を閉じるか、画面のロックを解除してから、もう一度再生してください。</translation>
    </message>
    <message>
        <source>The X server refuses to put characters on unused keys.</source>
        <translation>使われていないキーへの文字の割り当てを X サーバーが拒否しました。</translation>
    </message>
    <message>
        <source>Use characters of the keyboard layout, or set another layout.</source>
        <translation>キーボードレイアウトにある文字を使うか、別のレイアウトを設定してください。</translation>
    </message>
    <message>
        <source>The program that is typed into reads nothing; not typed: %1.</source>
        <translation>入力先のプログラムが何も読み取りません。入力されなかった内容: %1。</translation>
    </message>
    <message>
        <source>Play it again when the program reads its keys.</source>
        <translation>プログラムがキーを読み取るようになったら、もう一度再生してください。</translation>
    </message>
    <message>
        <source>The program that was typed into has not read all of it.</source>
        <translation>入力先のプログラムが、入力をすべては読み取っていません。</translation>
    </message>
    <message>
        <source>See whether it hangs; what it reads later may lack characters.</source>
        <translation>プログラムが応答しなくなっていないか確認してください。後で読み取られる内容では文字が欠けることがあります。</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys cannot be recorded: the X server has no RECORD extension.</source>
        <translation>押し続けたキーのリピートを記録できません: X サーバーに RECORD 拡張機能がありません。</translation>
    </message>
    <message>
        <source>A held key is recorded as one press. Switch the extension on in the settings of the X server.</source>
        <translation>押し続けたキーは 1 回の押下として記録されます。X サーバーの設定で拡張機能を有効にしてください。</translation>
    </message>
    <message>
        <source>Auto-repeats of held keys can no longer be recorded: the X server has ended it.</source>
        <translation>押し続けたキーのリピートを記録できなくなりました: X サーバーが記録を終了しました。</translation>
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
    <name>Layouts</name>
    <message>
        <source>No key of the present keyboard layout types &quot;%1&quot;.</source>
        <extracomment>%1 is a character.</extracomment>
        <translation>現在のキーボードレイアウトには「%1」を入力できるキーがありません。</translation>
    </message>
    <message>
        <source>Convert the keys to text, which types any character.</source>
        <translation>キーをテキストに変換してください。テキストならどの文字でも入力できます。</translation>
    </message>
    <message>
        <source>GNOME lets no program switch the keyboard layout.</source>
        <translation>GNOME ではプログラムがキーボードレイアウトを切り替えられません。</translation>
    </message>
    <message>
        <source>The desktop has no keyboard layout of that number.</source>
        <translation>デスクトップにその番号のキーボードレイアウトはありません。</translation>
    </message>
    <message>
        <source>This desktop lets no program switch the keyboard layout.</source>
        <translation>このデスクトップではプログラムがキーボードレイアウトを切り替えられません。</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the third level (AltGr).</source>
        <translation>キーボードレイアウトに第 3 レベル (AltGr) のキーがありません。</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for the fifth level.</source>
        <translation>キーボードレイアウトに第 5 レベルのキーがありません。</translation>
    </message>
    <message>
        <source>The keyboard layout has no key for %1.</source>
        <extracomment>%1 is a modifier: Super</extracomment>
        <translation>キーボードレイアウトに %1 のキーがありません。</translation>
    </message>
    <message>
        <source>Choose a keyboard layout that has one.</source>
        <translation>そのキーがあるキーボードレイアウトを選択してください。</translation>
    </message>
    <message>
        <source>The keyboard has no layout %1.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>キーボードにレイアウト %1 がありません。</translation>
    </message>
    <message>
        <source>Add it to the keyboard layouts, or record the macro again.</source>
        <translation>キーボードレイアウトに追加するか、マクロを記録し直してください。</translation>
    </message>
    <message>
        <source>The keymap of the X server cannot be read.</source>
        <translation>X サーバーのキーマップを読み取れません。</translation>
    </message>
    <message>
        <source>Set a keyboard layout, or log in again.</source>
        <translation>キーボードレイアウトを設定するか、ログインし直してください。</translation>
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
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>LogIn</name>
    <message>
        <source>The file %1 cannot be removed: %2</source>
        <extracomment>%2 is why, in the system&apos;s words.</extracomment>
        <translation>ファイル %1 を削除できません: %2</translation>
    </message>
    <message>
        <source>Check who may write in its folder.</source>
        <translation>そのフォルダーに書き込めるユーザーを確認してください。</translation>
    </message>
    <message>
        <source>A program whose path has a percent sign cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>パスにパーセント記号が含まれるプログラムは、ログイン時に起動できません: %1</translation>
    </message>
    <message>
        <source>Move the program to a folder without one.</source>
        <translation>パスにパーセント記号が含まれないフォルダーにプログラムを移動してください。</translation>
    </message>
    <message>
        <source>A program whose path is not UTF-8 cannot be started at login: %1</source>
        <extracomment>%1 is the path.</extracomment>
        <translation>パスが UTF-8 ではないプログラムは、ログイン時に起動できません: %1</translation>
    </message>
    <message>
        <source>Move the program to another folder.</source>
        <translation>プログラムを別のフォルダーに移動してください。</translation>
    </message>
    <message>
        <source>A program in a sandbox cannot make an entry that starts it at log-in.</source>
        <translation>サンドボックス内のプログラムは、ログイン時に自身を起動するエントリーを作成できません。</translation>
    </message>
    <message>
        <source>Add Keyrill to the programs that start at log-in, in your desktop&apos;s settings.</source>
        <translation>デスクトップの設定で、ログイン時に起動するプログラムに Keyrill を追加してください。</translation>
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
    <name>Programs</name>
    <message>
        <source>The program &quot;%1&quot;, which presses keys by the desktop&apos;s portal, could not be started.</source>
        <translation>デスクトップのポータルでキーを押すプログラム「%1」を起動できませんでした。</translation>
    </message>
    <message>
        <source>Install the program again.</source>
        <translation>プログラムをもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>A text with a zero byte cannot be opened.</source>
        <translation>ヌルバイトを含むテキストは開けません。</translation>
    </message>
    <message>
        <source>The program xdg-open cannot be started: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>プログラム xdg-open を起動できません: %1</translation>
    </message>
    <message>
        <source>Install the package xdg-utils.</source>
        <translation>パッケージ xdg-utils をインストールしてください。</translation>
    </message>
    <message>
        <source>The guard program &quot;%1&quot;, which releases keys after a crash, could not be started.</source>
        <translation>クラッシュ後にキーを離す監視プログラム「%1」を起動できませんでした。</translation>
    </message>
    <message>
        <source>Install the program again; nothing is played without its guard.</source>
        <translation>プログラムをもう一度インストールしてください。監視プログラムがないと何も再生されません。</translation>
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
    <name>ScriptDialogs</name>
    <message>
        <source>Please make your selection:</source>
        <translation>選択してください:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
    <name>ScriptErrors</name>
    <message>
        <source>Can’t declare %1 as both a local and global variable.</source>
        <translation>%1 をローカル変数とグローバル変数の両方として宣言することはできません。</translation>
    </message>
    <message>
        <source>list of button names</source>
        <translation>ボタン名のリスト</translation>
    </message>
    <message>
        <source>list of choices</source>
        <translation>選択肢のリスト</translation>
    </message>
    <message>
        <source>Some parameter is missing for %1.</source>
        <translation>%1 のパラメーターが足りません。</translation>
    </message>
    <message>
        <source>modifier</source>
        <translation>修飾キー</translation>
    </message>
    <message>
        <source>the power key is never pressed by a script.</source>
        <translation>スクリプトが電源キーを押すことはありません。</translation>
    </message>
    <message>
        <source>%1 doesn’t match the parameters %2 for %3.</source>
        <translation>%1 は %3 のパラメーター %2 と一致しません。</translation>
    </message>
    <message>
        <source>%1 doesn’t understand the “%2” message.</source>
        <translation>%1 はメッセージ「%2」を理解できません。</translation>
    </message>
    <message>
        <source>The step of a repeat loop can’t be 0.</source>
        <translation>「repeat」ループの増分を 0 にすることはできません。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Two sentences: what is wrong, and what to do about it.</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>The variable %1 is not defined.</source>
        <translation>変数 %1 は定義されていません。</translation>
    </message>
    <message>
        <source>unknown token</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>不明な文字</translation>
    </message>
    <message>
        <source>unknown token %1</source>
        <translation>不明な文字 %1</translation>
    </message>
    <message>
        <source>end of script</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>スクリプトの終わり</translation>
    </message>
    <message>
        <source>end of line</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>行末</translation>
    </message>
    <message>
        <source>variable name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>変数名</translation>
    </message>
    <message>
        <source>Raw codes («…») are not supported.</source>
        <translation>生のコード («…») には対応していません。</translation>
    </message>
    <message>
        <source>Expected end of line after “¬”.</source>
        <translation>「¬」の後は行末でなければなりません。</translation>
    </message>
    <message>
        <source>number</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>数</translation>
    </message>
    <message>
        <source>unknown token %1 (text stands between straight quotes)</source>
        <translation>不明な文字 %1 (テキストはまっすぐな引用符で囲みます)</translation>
    </message>
    <message>
        <source>identifier</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Out of memory.</source>
        <translation>メモリーが足りません。</translation>
    </message>
    <message>
        <source>User canceled.</source>
        <translation>ユーザーによってキャンセルされました。</translation>
    </message>
    <message>
        <source>Application isn’t running.</source>
        <translation>アプリケーションが動作していません。</translation>
    </message>
    <message>
        <source>Connection is invalid.</source>
        <translation>接続が無効です。</translation>
    </message>
    <message>
        <source>Can’t make some data into the expected type.</source>
        <translation>データを必要な型に変換できません。</translation>
    </message>
    <message>
        <source>Some parameter is missing for a command.</source>
        <translation>コマンドのパラメーターが足りません。</translation>
    </message>
    <message>
        <source>Some data was of the wrong type.</source>
        <translation>データの型が正しくありません。</translation>
    </message>
    <message>
        <source>Some parameter was invalid.</source>
        <translation>無効なパラメーターがあります。</translation>
    </message>
    <message>
        <source>A message was not understood.</source>
        <translation>メッセージを理解できませんでした。</translation>
    </message>
    <message>
        <source>AppleEvent timed out.</source>
        <translation>AppleEvent がタイムアウトしました。</translation>
    </message>
    <message>
        <source>Some required parameter was missing.</source>
        <translation>必要なパラメーターがありません。</translation>
    </message>
    <message>
        <source>The handler is not defined.</source>
        <translation>ハンドラーが定義されていません。</translation>
    </message>
    <message>
        <source>Can’t get the element. Invalid index.</source>
        <translation>要素を取得できません。インデックスが無効です。</translation>
    </message>
    <message>
        <source>Some parameters don’t match.</source>
        <translation>パラメーターが一致しません。</translation>
    </message>
    <message>
        <source>Can’t get the object.</source>
        <translation>オブジェクトを取得できません。</translation>
    </message>
    <message>
        <source>Not authorized to send Apple events.</source>
        <translation>Apple イベントの送信は許可されていません。</translation>
    </message>
    <message>
        <source>An error has occurred.</source>
        <translation>エラーが起きました。</translation>
    </message>
    <message>
        <source>Can’t divide by zero.</source>
        <translation>0 で割ることはできません。</translation>
    </message>
    <message>
        <source>The result of a numeric operation was too large.</source>
        <translation>計算の結果が大きすぎます。</translation>
    </message>
    <message>
        <source>Stack overflow.</source>
        <translation>スタックがあふれました。</translation>
    </message>
    <message>
        <source>A variable is not defined.</source>
        <translation>変数が定義されていません。</translation>
    </message>
    <message>
        <source>No result was returned for some argument of this expression.</source>
        <translation>この式の引数の 1 つから結果が返されませんでした。</translation>
    </message>
    <message>
        <source>AppleEvent handler failed.</source>
        <translation>AppleEvent のハンドラーが失敗しました。</translation>
    </message>
    <message>
        <source>Can’t set the object.</source>
        <translation>オブジェクトを設定できません。</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>%1 is a word of the script language.</extracomment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1または%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Expected %1 but found %2.</source>
        <extracomment>%1 and %2 are words of the script language in quotes, or &quot;expression&quot;, &quot;end of line&quot; and others below.</extracomment>
        <translation>%1が来るべきところに、%2があります。</translation>
    </message>
    <message>
        <source>The %1 parameter is specified more than once.</source>
        <translation>パラメーター %1 が 2 回以上指定されています。</translation>
    </message>
    <message>
        <source>The %1 property is specified more than once.</source>
        <translation>プロパティ %1 が 2 回以上指定されています。</translation>
    </message>
    <message>
        <source>The %1 handler is specified more than once.</source>
        <translation>ハンドラー %1 が 2 回以上指定されています。</translation>
    </message>
    <message>
        <source>%1 got an error: %2</source>
        <translation>%1 でエラーが起きました: %2</translation>
    </message>
    <message>
        <source>An error of type %1 has occurred.</source>
        <translation>タイプ %1 のエラーが起きました。</translation>
    </message>
    <message>
        <source>Can’t both consider and ignore %1.</source>
        <translation>%1 を考慮すると同時に無視することはできません。</translation>
    </message>
    <message>
        <source>Expected at most %1 parameters but found more.</source>
        <translation>パラメーターは %1 個までですが、それを超えています。</translation>
    </message>
    <message>
        <source>expression</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>式</translation>
    </message>
    <message>
        <source>class name</source>
        <extracomment>what a script was expected to have somewhere, or has there</extracomment>
        <translation>クラス名</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro can press keys and nothing else.</source>
        <translation>「%1」は拒否されます: マクロにできるのはキーを押すことだけです。</translation>
    </message>
    <message>
        <source>“%1” is refused: a macro is one script.</source>
        <translation>「%1」は拒否されます: マクロは 1 つのスクリプトです。</translation>
    </message>
    <message>
        <source>Expected at most %1 items in a list but found more.</source>
        <translation>リストの項目は %1 個までですが、それを超えています。</translation>
    </message>
    <message>
        <source>Expected at most %1 properties in a record but found more.</source>
        <translation>レコードのプロパティは %1 個までですが、それを超えています。</translation>
    </message>
    <message>
        <source>Expected at most %1 levels of nesting but found more.</source>
        <translation>入れ子は %1 段までですが、それを超えています。</translation>
    </message>
    <message>
        <source>Tell statements are nested too deeply.</source>
        <translation>「tell」文の入れ子が深すぎます。</translation>
    </message>
    <message>
        <source>Expected at most 16 MiB of script but found more.</source>
        <translation>スクリプトは 16 MiB までですが、それを超えています。</translation>
    </message>
    <message>
        <source>Expected text in UTF-8 but found another byte.</source>
        <translation>UTF-8 のテキストが来るべきところに、別のバイトがあります。</translation>
    </message>
    <message>
        <source>Exit statement was not in a repeat loop.</source>
        <translation>「exit」文が「repeat」ループの中にありません。</translation>
    </message>
    <message>
        <source>Can’t divide %1 by zero.</source>
        <translation>%1 を 0 で割ることはできません。</translation>
    </message>
    <message>
        <source>A list holds at most %1 items.</source>
        <translation>リストの項目は %1 個までです。</translation>
    </message>
    <message>
        <source>Can’t get contents of a variable that is not set.</source>
        <translation>設定されていない変数の内容は取得できません。</translation>
    </message>
    <message>
        <source>Can’t make %1 into type %2.</source>
        <translation>%1 を型 %2 に変換できません。</translation>
    </message>
    <message>
        <source>Can’t get %1.</source>
        <translation>%1 を取得できません。</translation>
    </message>
    <message>
        <source>Can’t set %1 to %2.</source>
        <translation>%1 を %2 に設定できません。</translation>
    </message>
    <message>
        <source>Can’t raise %1 to the power of %2: the result is no number.</source>
        <translation>%1 を %2 乗することはできません: 結果が数になりません。</translation>
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
    <name>ScriptTool</name>
    <message>
        <source>--times %1 is not how often a script can be played.</source>
        <translation>--times %1 はスクリプトの再生回数として使えません。</translation>
    </message>
    <message>
        <source>It is a whole number from 1 on, or until-stopped.</source>
        <translation>1 以上の整数か until-stopped です。</translation>
    </message>
    <message>
        <source>Nobody can stop a trace.</source>
        <translation>トレースは誰も停止できません。</translation>
    </message>
    <message>
        <source>Give --times a number.</source>
        <translation>--times に数を指定してください。</translation>
    </message>
    <message>
        <source>--speed %1 is not how fast a script can be played.</source>
        <translation>--speed %1 はスクリプトの再生の速さとして使えません。</translation>
    </message>
    <message>
        <source>It is a number from 0.25 to 4.</source>
        <translation>0.25 から 4 までの数です。</translation>
    </message>
    <message>
        <source>This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8.</source>
        <translation>UTF-8 ではないため、ファイル全体を Mac Roman として読み取ります。UTF-8 で保存してください。</translation>
    </message>
    <message>
        <source>Press a key.</source>
        <translation>キーを押してください。</translation>
    </message>
    <message>
        <source>Hint: %1</source>
        <translation>ヒント: %1</translation>
    </message>
    <message>
        <source>%1; standard input is &quot;-&quot;</source>
        <translation>%1。標準入力は「-」です</translation>
    </message>
    <message>
        <source>(Return)</source>
        <translation>(Return)</translation>
    </message>
    <message>
        <source>No dialog can be shown here.</source>
        <translation>ここではダイアログを表示できません。</translation>
    </message>
    <message>
        <source>Run the script in a terminal.</source>
        <translation>スクリプトを端末で実行してください。</translation>
    </message>
    <message>
        <source>The question was not answered.</source>
        <translation>質問に答えがありませんでした。</translation>
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
        <translation>使い方: keyrill-script check ファイル    コンパイルして誤りを示す (--json はエディター用)
        keyrill-script run [--times N] [--speed X] ファイル
                                         キーを押す。回数は N (または until-stopped)、休止は X で割る
        keyrill-script trace ファイル    実行される内容を 1 行に 1 つの JSON 配列で表示する
        keyrill-script format ファイル   スクリプトを統一した書式で表示する
        keyrill-script keys              キーコードを表示する (--press は次に押すキーのもの)
        keyrill-script reference         言語のリファレンスを表示する
        keyrill-script -h | --help | --version
ファイル - は標準入力。-e 行 (1 回以上) はスクリプトそのものを指定する。
</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>コマンド「%1」はありません。</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>標準出力に書き込めません。</translation>
    </message>
    <message>
        <source>the output cannot be written</source>
        <translation>出力を書き込めません</translation>
    </message>
    <message>
        <source>“%1” has no option “%2”.</source>
        <translation>「%1」にオプション「%2」はありません。</translation>
    </message>
    <message>
        <source>“keyrill-script --help” tells which there are.</source>
        <translation>オプションは「keyrill-script --help」で確認できます。</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no session bus.</source>
        <translation>セッションバスがありません。</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>ログインし直してください。</translation>
    </message>
    <message>
        <source>sway does not answer at $SWAYSOCK.</source>
        <translation>sway が $SWAYSOCK で応答しません。</translation>
    </message>
    <message>
        <source>Start the program in the session of sway.</source>
        <translation>プログラムを sway のセッションで起動してください。</translation>
    </message>
    <message>
        <source>sway says: %1</source>
        <translation>sway からのメッセージ: %1</translation>
    </message>
    <message>
        <source>There is no kind of session called &quot;%1&quot;.</source>
        <translation>「%1」という種類のセッションはありません。</translation>
    </message>
    <message>
        <source>Choose one of these: %1.</source>
        <translation>次のいずれかを選んでください: %1。</translation>
    </message>
    <message>
        <source>No kind of session is known.</source>
        <translation>既知のセッションの種類がありません。</translation>
    </message>
    <message>
        <source>The connection to the compositor was lost.</source>
        <translation>コンポジターへの接続が失われました。</translation>
    </message>
    <message>
        <source>No Wayland compositor answers at $WAYLAND_DISPLAY.</source>
        <translation>$WAYLAND_DISPLAY で応答する Wayland コンポジターがありません。</translation>
    </message>
    <message>
        <source>Start the program in a Wayland session.</source>
        <translation>プログラムを Wayland セッションで起動してください。</translation>
    </message>
    <message>
        <source>The Wayland compositor is gone.</source>
        <translation>Wayland コンポジターが終了しました。</translation>
    </message>
    <message>
        <source>$WAYLAND_DISPLAY names no Wayland compositor.</source>
        <translation>$WAYLAND_DISPLAY が Wayland コンポジターを指していません。</translation>
    </message>
    <message>
        <source>The X server is gone.</source>
        <translation>X サーバーが終了しました。</translation>
    </message>
    <message>
        <source>This is a Wayland session without an X server.</source>
        <translation>これは X サーバーのない Wayland セッションです。</translation>
    </message>
    <message>
        <source>Install Xwayland, or switch it on in the desktop&apos;s settings, and log in again; or choose an X11 session when you log in.</source>
        <translation>Xwayland をインストールするか、デスクトップの設定で有効にして、ログインし直してください。または、ログイン時に X11 セッションを選択してください。</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is no desktop session.</source>
        <translation>X11 セッションが必要ですが、これはデスクトップセッションではありません。</translation>
    </message>
    <message>
        <source>An X11 session is needed, and this is a Wayland session without an X server.</source>
        <translation>X11 セッションが必要ですが、これは X サーバーのない Wayland セッションです。</translation>
    </message>
    <message>
        <source>Choose an X11 session when you log in.</source>
        <translation>ログイン時に X11 セッションを選択してください。</translation>
    </message>
    <message>
        <source>The connection to the X server was lost.</source>
        <translation>X サーバーへの接続が失われました。</translation>
    </message>
    <message>
        <source>Use a newer X server, or switch the extension on in its settings.</source>
        <translation>新しい X サーバーを使うか、設定で拡張機能を有効にしてください。</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has no XInput.</source>
        <translation>X サーバーには XInput 2.2 以降が必要ですが、XInput がありません。</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but does not answer.</source>
        <translation>X サーバーには XInput 2.2 以降が必要ですが、応答がありません。</translation>
    </message>
    <message>
        <source>The X server must have XInput 2.2 or newer, but has %1.</source>
        <translation>X サーバーには XInput 2.2 以降が必要ですが、現在は %1 です。</translation>
    </message>
    <message>
        <source>The X server must have the XKB extension, but it cannot be used.</source>
        <translation>X サーバーには XKB 拡張機能が必要ですが、使えません。</translation>
    </message>
    <message>
        <source>The X server must have the XTEST extension, but it has not.</source>
        <translation>X サーバーには XTEST 拡張機能が必要ですが、ありません。</translation>
    </message>
    <message>
        <source>The X server of display &quot;%1&quot; cannot be reached.</source>
        <translation>ディスプレイ「%1」の X サーバーに接続できません。</translation>
    </message>
    <message>
        <source>Start the program inside a desktop session, or set DISPLAY to a running X server.</source>
        <translation>プログラムをデスクトップセッションの中で起動するか、DISPLAY に実行中の X サーバーを設定してください。</translation>
    </message>
    <message>
        <source>virtual keyboard</source>
        <translation>仮想キーボード</translation>
    </message>
    <message>
        <source>GNOME&apos;s settings</source>
        <translation>GNOME の設定</translation>
    </message>
    <message>
        <source>portal for keys</source>
        <translation>キー用ポータル</translation>
    </message>
    <message>
        <source>portal for hot keys</source>
        <translation>グローバルショートカット用ポータル</translation>
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
    <name>Settings</name>
    <message>
        <source>It has a zero byte</source>
        <translation>ヌルバイトが含まれています</translation>
    </message>
    <message>
        <source>The settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>設定ファイル %1 はキーファイルではありません: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 is not a key file: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It has a zero byte</extracomment>
        <translation>マクロの設定ファイル %1 はキーファイルではありません: %2</translation>
    </message>
    <message>
        <source>The settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>設定フォルダー %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>The macro settings folder %1 cannot be made: %2</source>
        <extracomment>%1 is a folder, %2 why, in the system&apos;s words.</extracomment>
        <translation>マクロの設定フォルダー %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>ファイルの名前を %1 に変更しました。設定は初期状態に戻ります。</translation>
    </message>
    <message>
        <source>It was renamed to %1, and hot keys, times and speeds begin anew.</source>
        <extracomment>%1 is a file.</extracomment>
        <translation>ファイルの名前を %1 に変更しました。ショートカット、回数、速さは初期状態に戻ります。</translation>
    </message>
    <message>
        <source>Correct the file or remove it.</source>
        <translation>ファイルを修正するか、削除してください。</translation>
    </message>
    <message>
        <source>It could not be put aside either: %1</source>
        <extracomment>%1 is why, in the system&apos;s words.</extracomment>
        <translation>ファイルを退避することもできませんでした: %1</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>設定ファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be read: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>マクロの設定ファイル %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>設定ファイル %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>The macro settings file %1 cannot be written: %2</source>
        <extracomment>%1 is a file, %2 why, perhaps in the system&apos;s words: It is a folder</extracomment>
        <translation>マクロの設定ファイル %1 に書き込めません: %2</translation>
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
    <name>Warnings</name>
    <message>
        <source>This is typed as it stands; the key has a number: key code %1.</source>
        <translation>これはそのまま入力されます。このキーには番号があります: key code %1。</translation>
    </message>
    <message>
        <source>“%1” is typed as it stands. %2</source>
        <extracomment>%1 is the name of a key in braces, %2 a sentence that says how the key is written.</extracomment>
        <translation>「%1」はそのまま入力されます。%2</translation>
    </message>
    <message>
        <source>Key code %1 is an extension, which only Keyrill plays.</source>
        <translation>キーコード %1 は拡張で、Keyrill でしか再生できません。</translation>
    </message>
    <message>
        <source>Key code %1 has no key; nothing is pressed.</source>
        <translation>キーコード %1 のキーはありません。何も押されません。</translation>
    </message>
    <message>
        <source>A dialog gives a record and no text; take: button returned of %1, or text returned of %1.</source>
        <translation>ダイアログが返すのはレコードで、テキストではありません。次のどちらかを使ってください: button returned of %1 または text returned of %1。</translation>
    </message>
    <message>
        <source>An alert gives a record and no text; take: button returned of %1.</source>
        <translation>アラートが返すのはレコードで、テキストではありません。次を使ってください: button returned of %1。</translation>
    </message>
    <message>
        <source>What was chosen comes in a list; take: item 1 of %1.</source>
        <translation>選択されたものはリストで返されます。次を使ってください: item 1 of %1。</translation>
    </message>
    <message>
        <source>The loop gives a reference, which equals no text; compare: contents of %1.</source>
        <translation>ループが渡すのは参照で、テキストと等しくなることはありません。比較には次を使ってください: contents of %1。</translation>
    </message>
    <message>
        <source>“%1” is taken as “%1 down”.</source>
        <extracomment>%1 is the name of a modifier, &quot;shift&quot;.</extracomment>
        <translation>「%1」は「%1 down」と見なされます。</translation>
    </message>
    <message>
        <source>“%1” belongs to what “%2” is given; put parentheses round the command: (%2 …) %1 ….</source>
        <extracomment>%1 is an operator, &quot;&gt;&quot;, %2 a command, &quot;count&quot;.</extracomment>
        <translation>「%1」は「%2」に渡す値の一部になっています。コマンドを丸かっこで囲んでください: (%2 …) %1 …。</translation>
    </message>
    <message>
        <source>“delay” counts seconds; %1 milliseconds are: delay %2.</source>
        <translation>「delay」の単位は秒です。%1 ミリ秒は次のように書きます: delay %2。</translation>
    </message>
    <message>
        <source>This is typed as it stands; a shortcut is written: keystroke &quot;%1&quot; using %2 down.</source>
        <extracomment>%1 is a letter, %2 the name of a modifier, &quot;control&quot;.</extracomment>
        <translation>これはそのまま入力されます。ショートカットは次のように書きます: keystroke &quot;%1&quot; using %2 down。</translation>
    </message>
    <message>
        <source>A modifier is held with: key down shift, without quotes.</source>
        <translation>修飾キーを押し続けるには、引用符なしで次のように書きます: key down shift。</translation>
    </message>
    <message>
        <source>The variable %1 is never set. %2</source>
        <extracomment>%2 is a sentence that says what may have been meant.</extracomment>
        <translation>変数 %1 は一度も設定されていません。%2</translation>
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
<context>
    <name>Windows</name>
    <message>
        <source>KWin does not tell of its windows.</source>
        <translation>KWin がウィンドウについて何も知らせません。</translation>
    </message>
    <message>
        <source>Log in again.</source>
        <translation>ログインし直してください。</translation>
    </message>
    <message>
        <source>No file could be written for KWin.</source>
        <translation>KWin 用のファイルを書き込めませんでした。</translation>
    </message>
    <message>
        <source>Free some space.</source>
        <translation>空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>KWin runs no scripts: %1</source>
        <translation>KWin がスクリプトを実行しません: %1</translation>
    </message>
    <message>
        <source>KWin does not show the window any more.</source>
        <translation>KWin がそのウィンドウを表示しなくなりました。</translation>
    </message>
    <message>
        <source>Open it again.</source>
        <translation>もう一度開いてください。</translation>
    </message>
    <message>
        <source>This compositor tells nobody of windows.</source>
        <translation>このコンポジターはウィンドウについて何も知らせません。</translation>
    </message>
    <message>
        <source>Use a compositor with toplevel management, such as sway, or an X11 session.</source>
        <translation>sway などトップレベルウィンドウの管理ができるコンポジターか、X11 セッションを使ってください。</translation>
    </message>
    <message>
        <source>No window of “%1” is open.</source>
        <translation>「%1」のウィンドウは開いていません。</translation>
    </message>
    <message>
        <source>Start it first.</source>
        <translation>先に起動してください。</translation>
    </message>
    <message>
        <source>The window is not on the screen.</source>
        <translation>ウィンドウが画面上にありません。</translation>
    </message>
</context>
</TS>
