<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Настройка Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Устройства</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Проверки</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Параметры</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo следит за модемами производителей, указанных в его параметрах. Подключите модем и выберите его здесь.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>Сетевые USB-устройства не подключены. Модем появится здесь через несколько секунд после подключения.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Использовать этот модем</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Не использовать это устройство</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Используется программой Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Не используется</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Не настроено</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>идёт опрос шлюза…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>отвечает как модем</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>отвечает не как модем</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>шлюза пока нет</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>шлюз %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Идёт проверка…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Всё, что удалось проверить, в порядке.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Что-то не в порядке. У каждого неисправного пункта указано, что делать.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Проверить снова</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Копировать отчёт</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>В порядке</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Неисправно</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Неизвестно</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Не проверено</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Файл параметров</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Параметры</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Поддерживаемое устройство</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Сетевой интерфейс</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Шлюз</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Веб-сервер модема</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Страница состояния</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Состояние соединения</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Расход трафика и роуминг</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Сеанс для команд</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Профили точек доступа</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Место для значка</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Веб-браузер</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Сама программа Tarvo</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Файла параметров ещё нет. Выберите свой модем в списке устройств.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 нельзя использовать: %2. Вернитесь к исходным параметрам; файл сохранится.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>Сетевые USB-устройства не подключены. Подключите модем.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Параметры не поддерживают ни одно из сетевых USB-устройств. Выберите свой модем в списке устройств.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>Устройство %1 отмечено как неиспользуемое. Выберите его в списке, чтобы всё же использовать.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>Интерфейс %1 выключен. Включите его в параметрах сети рабочего стола.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>У интерфейса %1 нет адреса IPv4. Установите автоматическое подключение (DHCP) в параметрах сети.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>У интерфейса %1 нет шлюза. Разрешите его подключению маршрут по умолчанию в параметрах сети.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>У %1 нет шлюза, потому что у маршрута по умолчанию через %2 нет метрики. Задайте метрику этому маршруту.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>На порту 80 адреса %1 никто не отвечает. Отключите модем и подключите его снова.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>Страница модема «%1» пуста. Исправьте «Страница состояния» в параметрах.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>Страница модема «%1» — не страница состояния. Исправьте «Страница состояния» в параметрах.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>Модем по адресу %1 занят другой программой. Закройте его страницы в браузере и попробуйте ещё раз. Если это не поможет, отключите его и подключите снова.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>Модем по адресу %1 требует пароль, прежде чем сообщить своё состояние. Войдите на его страницах или отключите это там.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>Модем по адресу %1 отвечает только по https, что не поддерживается. Разрешите на его страницах и http.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>Страница модема «%1» не сообщает состояние соединения. Исправьте страницу или имя поля в параметрах.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>На странице состояния нет этих полей, поэтому лимиты трафика показать нельзя: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>Модем не открывает сеанс и поэтому не принимает команд. Отключите его и подключите снова.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>В %1 нет профилей. Установите профили своего оператора или не отправляйте точки доступа.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Не все профили в %1 в порядке. Замените названные ниже.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Рабочий стол не показывает значки состояния. Включите его область уведомлений или расширение для значков состояния.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Рабочий стол не показывает уведомления. Запустите его службу уведомлений.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Ни один браузер не открывает веб-адреса. Выберите браузер по умолчанию в параметрах рабочего стола.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo не запущен. Запустите его из меню рабочего стола.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo работает со старыми параметрами. Завершите его в меню значка и запустите снова.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>«%1» — не параметр. Исправьте написание или удалите запись.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>У «%1» значение неверного типа. Введите его заново в параметрах.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>Число %1 в «%2» никогда не совпадёт. Запишите его как текст.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>«%1» в «%2» не подходит ни одному устройству. Запишите десятичное число от 0 до 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>«%1» — не веб-адрес. Запишите его полностью, например http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>«%1» — не страница модема. Запишите её путь без адреса.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>Не указан ни один производитель модемов. Выберите свой модем в списке устройств.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Производителем указан только пример %1. Выберите свой модем в списке устройств.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Параметры сохранены.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Параметры не сохранены: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Они были в двоичном виде, а теперь в виде XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>Прежний файл теперь называется %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo перезапускается с ними.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo не запущен.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Завершите Tarvo и запустите снова, чтобы он их прочитал.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: эти параметры сейчас меняет другая программа. Повторите попытку.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 принадлежит не только root, поэтому root ничего туда не пишет. Запустите tarvo-setup без sudo для своих параметров или с --system для параметров всех пользователей.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Это были бы параметры root, а не %1. Запустите tarvo-setup без sudo для параметров %1 или с --system для параметров всех пользователей.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 нельзя изменить таким образом.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>С --force за основу берутся исходные параметры.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>отключён</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>чтобы использовать: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 — не номер какого-либо модема. «tarvo-setup list» покажет ваш; с --force он всё равно будет принят.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>Устройство %1 не подключено.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>Не удалось записать вывод.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Действующие параметры находятся в %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo запущен.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo нельзя запустить: он не установлен.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Запустить Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Параметры прочитать нельзя. Начать заново с исходных параметров? Файл сохранится рядом с новым.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Начать заново</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Вернуться к параметрам, с которыми поставляется Tarvo? Ваш файл сохранится.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Исходные параметры</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Некоторые параметры изменены и не сохранены. Отменить изменения?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Отменить изменения</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Запуск</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Запускать Tarvo при входе в систему</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Устройства</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Значок</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Модем</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Веб-страницы</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Точки доступа</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Исходно: включено.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Исходно: выключено.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Исходно: ничего.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Исходно: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Производители поддерживаемых модемов</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>Номера производителей USB, десятичные, через запятую.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Продукты</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>Номера продуктов USB, только для сведения: используется любой продукт поддерживаемого производителя.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Неиспользуемые продукты</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>Десятичные номера продуктов USB, которые не используются, хотя их производитель поддерживается.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Показывать состояние модема</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>Значок, его изменения и сообщения под ним.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Без сообщений, когда указатель на значке</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>Новости всё равно показываются, когда появляются.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Оставлять значок без модема</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Иначе значок исчезает вместе с модемом.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Отправлять адрес самой страницы с каждым запросом</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Модемы, которые защищают свои страницы, без него не отвечают.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Страница состояния</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>Страница модема, которая читается каждую секунду.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Страница режима дозвона</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>Страница, которая сообщает, как модем соединяется.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Читать состояние соединения только из поля ниже</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Иначе читаются обычные поля.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Поле состояния соединения</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>Имя и то, что следует за ним до открывающей кавычки.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Состояние, означающее соединение</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>В дополнение к обычным.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Учитывать режим дозвона</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Соединяется ли модем сам.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Поле режима дозвона</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Проверяется раньше обычного.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Искать новую прошивку</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>Модем опрашивается, когда он соединён.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Домашняя страница оператора</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Если пусто, открываются страницы модема. В адресах %@ означает модем.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Страница сообщений</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Если пусто, ничего не открывается.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Страница о новой прошивке</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Если пусто, ничего не открывается.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Страница о достигнутом лимите трафика</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Если пусто, ничего не открывается.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Отправлять точки доступа модему</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Для операторов, которые устанавливают профили. Без профилей точка доступа модема по умолчанию стала бы пустой.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Точки доступа, которые есть у модема</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>Имена их профилей по порядку, через точку с запятой.</translation>
    </message>
</context>
</TS>
