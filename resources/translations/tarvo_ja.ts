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
</context>
</TS>
