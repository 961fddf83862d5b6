<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>The modem has been removed.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>New firmware is available for your modem.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>You have used more than your three-day limit of %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>You have used more than your monthly limit of %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 used this month, %2 left.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 used this month, %2 over the limit.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Modem Update</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>New firmware is available for your modem. You can download it on the modem’s update page.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Open Update Page</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Open Modem Page</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>About Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Shows the state of your mobile broadband modem and opens its web pages.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
</TS>
