<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>Das Modem wurde entfernt.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>Für Ihr Modem ist neue Firmware verfügbar.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Ihr Dreitageslimit von %1 ist überschritten.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Ihr Monatslimit von %1 ist überschritten.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 in diesem Monat verbraucht, %2 übrig.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 in diesem Monat verbraucht, %2 über dem Limit.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Modem-Update</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>Für Ihr Modem ist neue Firmware verfügbar. Sie können sie auf der Update-Seite des Modems herunterladen.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Update-Seite öffnen</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Modem-Seite öffnen</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>Über Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Zeigt den Zustand Ihres mobilen Breitbandmodems und öffnet seine Webseiten.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
