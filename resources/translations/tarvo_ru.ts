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
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Нет модема</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>Сетевое USB-устройство %1 не настроено</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Модем найден, ожидание адреса</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Модем найден, шлюза нет</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>Приостановлено, модем сейчас не опрашивается</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Модем найден</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>Модем не отвечает</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>Модем требует пароль</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>Модем занят</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>Модем требует https, что не поддерживается</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>Модем не отвечает страницей состояния</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Подключение</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Не подключено: нет SIM-карты</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Не подключено: SIM-карта повреждена</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Не подключено: для SIM-карты нужен PIN-код</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Не подключено: для SIM-карты нужен PUK-код</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Не подключено: модем привязан к другой сети</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>роуминг включён</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>роуминг выключен</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Открыть главную страницу</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Открыть страницу прошивки</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Открыть страницу лимита трафика</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Последние уведомления</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Настройки…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Настроить этот модем…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Лимит трафика</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Страница не открыта</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Ни одна программа на этом компьютере не смогла открыть %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Этот месяц</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Последние три дня</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Израсходовано с подключения модема к компьютеру</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Копировать сведения</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Дозвон</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>Роуминг</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>Прошивка</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Шлюз</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Точки доступа</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Последний ответ</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>автоматический</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>ручной</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>включён</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>выключен</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>доступна новая версия</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>новая версия не предложена</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>отправлена %Ln</numerusform>
            <numerusform>отправлено %Ln</numerusform>
            <numerusform>отправлено %Ln</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>Настройки не найдены</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>Не удаётся прочитать настройки</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>Ни один модем не настроен</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>Производитель указан в настройках числом, которое никогда не совпадает</translation>
    </message>
</context>
</TS>
