<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>モデムが取り外されました。</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>モデムの新しいファームウェアがあります。</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>3 日間の上限 %1 を超えました。</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>月間の上限 %1 を超えました。</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>今月の使用量は %1、残りは %2 です。</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>今月の使用量は %1、上限を %2 超過しています。</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>モデムの更新</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>モデムの新しいファームウェアがあります。モデムの更新ページからダウンロードできます。</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>更新ページを開く</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>モデムのページを開く</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>Tarvo について</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>モバイルブロードバンドモデムの状態を表示し、モデムの Web ページを開きます。</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>モデムなし</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>USB ネットワークデバイス %1 はセットアップされていません</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>モデムを検出、アドレスを待っています</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>モデムを検出、ゲートウェイがありません</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>一時停止中、現在モデムには問い合わせていません</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>モデムを検出しました</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>モデムが応答しません</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>モデムがパスワードを求めています</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>モデムが使用中です</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>モデムは https を求めますが、対応していません</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>モデムが状態ページを返しません</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>接続中です</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>未接続: SIM カードがありません</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>未接続: SIM カードが破損しています</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>未接続: SIM カードの PIN が必要です</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>未接続: SIM カードの PUK が必要です</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>未接続: モデムは別のネットワークにロックされています</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>ローミング オン</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>ローミング オフ</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>トップページを開く</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>ファームウェアのページを開く</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>データ上限のページを開く</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>最近のお知らせ</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>このモデムをセットアップ…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>データ上限</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>ページを開けませんでした</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>このコンピューターのどのプログラムでも %1 を開けませんでした。</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>今月</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>過去 3 日間</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>モデムを差し込んでからの使用量</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>詳細をコピー</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>ダイヤル</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>ローミング</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>インターフェース</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>ゲートウェイ</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>アクセスポイント</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>最後の応答</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>手動</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>新しいバージョンあり</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>新しいバージョンの提供なし</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>%Ln 件送信済み</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>設定が見つかりません</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>設定を読み取れません</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>モデムがセットアップされていません</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>設定のベンダーが数値のため、一致することがありません</translation>
    </message>
</context>
</TS>
