<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>Modem został odłączony.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>Dostępne jest nowe oprogramowanie modemu.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Przekroczono trzydniowy limit danych: %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Przekroczono miesięczny limit danych: %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>Wykorzystano w tym miesiącu: %1, pozostało: %2.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>Wykorzystano w tym miesiącu: %1, ponad limit: %2.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Aktualizacja modemu</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>Dostępne jest nowe oprogramowanie modemu. Można je pobrać na stronie aktualizacji modemu.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Otwórz stronę aktualizacji</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Otwórz stronę modemu</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Wiadomości</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>O programie Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Pokazuje stan modemu komórkowego i otwiera jego strony.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
</TS>
