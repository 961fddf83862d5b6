<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>调制解调器已移除。</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>您的调制解调器有新固件可用。</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>您已超出三天流量限额 %1。</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>您已超出每月流量限额 %1。</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>本月已用 %1，剩余 %2。</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>本月已用 %1，超出限额 %2。</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>调制解调器更新</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>您的调制解调器有新固件可用。您可以在调制解调器的更新页面下载。</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>打开更新页面</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>打开调制解调器页面</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>短信</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>关于 Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>显示移动宽带调制解调器的状态并打开其网页。</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
</TS>
