<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Tarvo の設定</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>確認</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo は、設定に挙げられたメーカーのモデムを扱います。モデムを接続し、ここで選んでください。</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>USB ネットワークデバイスが接続されていません。モデムは、接続してから数秒でここに表示されます。</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>このモデムを使う</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>このデバイスを使わない</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Tarvo が使用中</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>使用しない</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>未設定</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>ゲートウェイに問い合わせ中…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>モデムとして応答します</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>モデムとして応答しません</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>ゲートウェイはまだありません</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>ゲートウェイ %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>確認しています…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>確認できたものはすべて正常です。</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>正常でないものがあります。問題のある項目には、対処方法が書かれています。</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>もう一度確認</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>結果をコピー</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>問題あり</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>未確認</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>設定ファイル</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>対応デバイス</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>ネットワークインターフェース</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>ゲートウェイ</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>モデムの Web サーバー</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>状態ページ</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>接続状態</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>データ使用量とローミング</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>コマンド用のセッション</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>アクセスポイントのプロファイル</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>アイコンの場所</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Web ブラウザー</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Tarvo 本体</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>設定ファイルがまだありません。デバイスの一覧でモデムを選んでください。</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 は使えません: %2。出荷時の設定に戻してください。このファイルは残ります。</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>USB ネットワークデバイスが接続されていません。モデムを接続してください。</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>設定は、接続された USB ネットワークデバイスのどれにも対応していません。デバイスの一覧でモデムを選んでください。</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 は使わないことになっています。使う場合は、デバイスの一覧で選んでください。</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>インターフェース %1 はオフです。デスクトップのネットワーク設定でオンにしてください。</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>インターフェース %1 に IPv4 アドレスがありません。ネットワーク設定で接続を自動 (DHCP) にしてください。</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>インターフェース %1 にゲートウェイがありません。ネットワーク設定で、接続にデフォルトルートを許可してください。</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%2 を通るデフォルトルートにメトリックがないため、%1 にゲートウェイがありません。そのルートにメトリックを付けてください。</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>%1 のポート 80 が応答しません。モデムを抜いて、もう一度接続してください。</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>モデムのページ「%1」は空です。設定の「状態ページ」を直してください。</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>モデムのページ「%1」は状態ページではありません。設定の「状態ページ」を直してください。</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>%1 のモデムは別のプログラムが使用中です。ブラウザーでモデムのページを閉じて、もう一度試してください。それでもだめなら、モデムを抜いて、もう一度接続してください。</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>%1 のモデムは、状態を知らせる前にパスワードを求めます。モデムのページでログインするか、そこで要求を無効にしてください。</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>%1 のモデムは https でのみ応答しますが、https には対応していません。モデムのページで http でも応答するようにしてください。</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>モデムのページ「%1」に接続状態がありません。設定でページまたはフィールド名を直してください。</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>状態ページに次のフィールドがないため、データの上限を表示できません: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>モデムがセッションを開かないため、コマンドを受け付けません。モデムを抜いて、もう一度接続してください。</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>%1 にプロファイルがありません。通信事業者のものをインストールするか、アクセスポイントを送らないでください。</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>%1 に正常でないプロファイルがあります。下に挙げたものを取り替えてください。</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>デスクトップが状態アイコンを表示しません。トレイ、または状態アイコンの拡張機能をオンにしてください。</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>デスクトップが通知を表示しません。通知サービスを起動してください。</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Web アドレスを開くブラウザーがありません。デスクトップの設定で既定のブラウザーを選んでください。</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo は起動していません。デスクトップのメニューから起動してください。</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo は古い設定で動作しています。アイコンのメニューから終了し、もう一度起動してください。</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>「%1」という設定はありません。つづりを直すか、取り除いてください。</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>「%1」の値の型が違います。設定で入力し直してください。</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>「%2」の数値 %1 はどれにも一致しません。文字列として書いてください。</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>「%2」の「%1」はどのデバイスにも一致しません。0 から 65535 までの 10 進数を書いてください。</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>「%1」は Web アドレスではありません。http://www.example.org/ のように全体を書いてください。</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>「%1」はモデムのページではありません。アドレスを除いたパスを書いてください。</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>モデムのメーカーが挙げられていません。デバイスの一覧でモデムを選んでください。</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>メーカーとして例の %1 だけが挙げられています。デバイスの一覧でモデムを選んでください。</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>設定を保存しました。</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>設定を保存できませんでした: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>バイナリ形式でしたが、XML 形式になりました。</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>以前のファイルは %1 になりました。</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo は新しい設定で再起動します。</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo は起動していません。</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>設定を読み込むよう、Tarvo を終了して起動し直してください。</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: 別のプログラムがこの設定を変更しています。もう一度お試しください。</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 は root だけのものではないので、root はそこに何も書きません。自分の設定には sudo なしで、全ユーザーの設定には --system を付けて tarvo-setup を実行してください。</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>これは %1 ではなく root の設定になります。%1 の設定には sudo なしで、全ユーザーの設定には --system を付けて tarvo-setup を実行してください。</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 はこのようには変更できません。</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>--force を付けると、出荷時の設定から始めます。</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>オフ</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>使うには: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 はどのモデムの番号でもありません。「tarvo-setup list」で確認できます。--force を付けるとそのまま受け付けます。</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>デバイス %1 は接続されていません。</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>出力を書き込めませんでした。</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>有効な設定は %1 にあります。</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo を起動しました。</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo を起動できません。インストールされていません。</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Tarvo を起動</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

設定を読み込めません。出荷時の設定からやり直しますか？ このファイルは新しいファイルの隣に残ります。</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>やり直す</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Tarvo の出荷時の設定に戻しますか？ 今のファイルは残ります。</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>出荷時の設定</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>保存していない変更があります。変更を破棄しますか？</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>変更を破棄</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>起動</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>ログイン時に Tarvo を起動する</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>モデム</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Web ページ</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>アクセスポイント</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>出荷時: オン。</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>出荷時: オフ。</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>出荷時: なし。</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>出荷時: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>対応モデムのメーカー</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>USB ベンダー番号 (10 進数、コンマ区切り)。</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>製品</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>USB 製品番号 (参考用)。対応メーカーの製品はすべて使われます。</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>使わない製品</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>対応メーカーのものでも使わないデバイスの USB 製品番号 (10 進数)。</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>モデムの状態を表示する</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>アイコンとその変化、およびその下のメッセージ。</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>ポインターがアイコンに乗ってもメッセージを出さない</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>新しいお知らせは、届いたときに表示されます。</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>モデムがなくてもアイコンを残す</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>オフの場合、モデムを取り外すとアイコンも消えます。</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>要求ごとにページ自身のアドレスを送る</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>ページを保護しているモデムは、これがないと応答しません。</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>状態ページ</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>毎秒読み込むモデムのページ。</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>ダイヤル方式のページ</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>モデムの接続方法を示すページ。</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>接続状態を下のフィールドだけから読む</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>オフの場合は通常のフィールドを読みます。</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>接続状態のフィールド</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>名前と、開始引用符までの続き。</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>接続済みを意味する状態</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>通常の状態に加えて使います。</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>ダイヤル方式を調べる</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>モデムが自動で接続するかどうか。</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>ダイヤル方式のフィールド</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>通常のフィールドより先に試します。</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>新しいファームウェアを調べる</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>モデムが接続しているときに問い合わせます。</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>通信事業者のホームページ</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>空の場合はモデムのページを開きます。アドレスの %@ はモデムを表します。</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>メッセージのページ</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>空の場合は何も開きません。</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>新しいファームウェアのページ</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>空の場合は何も開きません。</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>データの上限に達したときのページ</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>空の場合は何も開きません。</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>モデムにアクセスポイントを送る</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>プロファイルをインストールする通信事業者向け。プロファイルがないと、モデムの既定のアクセスポイントが空になります。</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>モデムにあるアクセスポイント</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>プロファイル名を順に、セミコロンで区切ります。</translation>
    </message>
</context>
</TS>
