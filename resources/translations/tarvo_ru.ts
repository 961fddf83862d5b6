<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>Модем отключён.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>Для модема доступна новая прошивка.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Превышен трёхдневный лимит трафика: %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Превышен месячный лимит трафика: %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>Израсходовано за месяц: %1, осталось: %2.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>Израсходовано за месяц: %1, сверх лимита: %2.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Обновление модема</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>Для модема доступна новая прошивка. Её можно загрузить на странице обновления модема.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Открыть страницу обновления</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Открыть страницу модема</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Сообщения</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>О программе Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Показывает состояние мобильного модема и открывает его веб-страницы.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
</TS>
