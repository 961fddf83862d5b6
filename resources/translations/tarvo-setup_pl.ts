<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Konfiguracja Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Sprawdzenie</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo obsługuje modemy producentów wymienionych w ustawieniach. Podłącz modem i wybierz go tutaj.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>Nie podłączono żadnego urządzenia sieciowego USB. Modem pojawia się tutaj kilka sekund po podłączeniu.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Używaj tego modemu</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Nie używaj tego urządzenia</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Używane przez Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Nieużywane</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Nieskonfigurowane</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>trwa pytanie bramy…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>odpowiada jak modem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>nie odpowiada jak modem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>jeszcze bez bramy</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>brama %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Wszystko, co dało się sprawdzić, jest w porządku.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Coś nie jest w porządku. Przy każdym wadliwym punkcie napisano, co zrobić.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Sprawdź ponownie</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Kopiuj raport</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>W porządku</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Wadliwe</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Nieznane</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Niesprawdzone</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Plik ustawień</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Obsługiwane urządzenie</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Interfejs sieciowy</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Brama</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Serwer WWW modemu</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Strona stanu</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Stan połączenia</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Zużycie danych i roaming</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Sesja do poleceń</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Profile punktów dostępu</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Miejsce na ikonę</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Powiadomienia</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Przeglądarka internetowa</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Sam program Tarvo</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Nie ma jeszcze pliku ustawień. Wybierz swój modem z listy urządzeń.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>Nie można użyć %1: %2. Wróć do dostarczonych ustawień; plik zostanie zachowany.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>Nie podłączono żadnego urządzenia sieciowego USB. Podłącz modem.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Ustawienia nie obejmują żadnego z urządzeń sieciowych USB. Wybierz swój modem z listy urządzeń.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>Urządzenie %1 ma nie być używane. Wybierz je z listy urządzeń, aby jednak go używać.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>Interfejs %1 jest wyłączony. Włącz go w ustawieniach sieci pulpitu.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>Interfejs %1 nie ma adresu IPv4. W ustawieniach sieci przełącz jego połączenie na automatyczne (DHCP).</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>Interfejs %1 nie ma bramy. W ustawieniach sieci pozwól jego połączeniu ustawić trasę domyślną.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 nie ma bramy, ponieważ trasa domyślna przez %2 nie ma metryki. Nadaj tej trasie metrykę.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Nic nie odpowiada na porcie 80 adresu %1. Odłącz modem i podłącz go ponownie.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>Strona „%1” modemu jest pusta. Popraw „Strona stanu” w ustawieniach.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>Strona „%1” modemu nie jest stroną stanu. Popraw „Strona stanu” w ustawieniach.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>Modem pod adresem %1 jest zajęty przez inny program. Zamknij jego strony w przeglądarce i spróbuj ponownie. Jeśli to nie pomoże, odłącz go i podłącz ponownie.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>Modem pod adresem %1 wymaga hasła, zanim poda swój stan. Zaloguj się na jego stronach albo wyłącz to tam.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>Modem pod adresem %1 odpowiada tylko przez https, co nie jest obsługiwane. Włącz na jego stronach także http.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>Strona „%1” modemu nie podaje stanu połączenia. Popraw stronę lub nazwę pola w ustawieniach.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>Na stronie stanu brakuje tych pól, więc nie można pokazać limitów danych: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>Modem nie otwiera sesji, więc nie przyjmuje poleceń. Odłącz go i podłącz ponownie.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>W %1 nie ma profili. Zainstaluj profile operatora albo nie wysyłaj punktów dostępu.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Nie każdy profil w %1 jest w porządku. Wymień te, które podano niżej.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Pulpit nie pokazuje ikon stanu. Włącz jego zasobnik lub rozszerzenie dla ikon stanu.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Pulpit nie pokazuje powiadomień. Uruchom jego usługę powiadomień.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Żadna przeglądarka nie otwiera adresów WWW. Wybierz przeglądarkę domyślną w ustawieniach pulpitu.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo nie działa. Uruchom go z menu pulpitu.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo działa ze starszymi ustawieniami. Zamknij go w menu jego ikony i uruchom ponownie.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>„%1” nie jest ustawieniem. Popraw pisownię albo usuń ten wpis.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>„%1” ma wartość niewłaściwego typu. Wpisz ją ponownie w ustawieniach.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>Liczba %1 w „%2” nigdy nie pasuje. Zapisz ją jako tekst.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>„%1” w „%2” nie pasuje do żadnego urządzenia. Wpisz liczbę dziesiętną od 0 do 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>„%1” nie jest adresem WWW. Wpisz go w całości, na przykład http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>„%1” nie jest stroną modemu. Wpisz jej ścieżkę bez adresu.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>Nie podano żadnego producenta modemów. Wybierz swój modem z listy urządzeń.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Jako producenta podano tylko przykład %1. Wybierz swój modem z listy urządzeń.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Ustawienia zostały zapisane.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Ustawień nie zapisano: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Miały postać binarną, a teraz mają postać XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>Poprzedni plik to teraz %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo uruchamia się z nimi ponownie.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo nie działa.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Zakończ Tarvo i uruchom go ponownie, aby je odczytał.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: inny program zmienia właśnie te ustawienia. Spróbuj ponownie.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 nie należy wyłącznie do roota, więc root nic tam nie zapisuje. Uruchom tarvo-setup bez sudo dla własnych ustawień albo z --system dla ustawień wszystkich użytkowników.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Byłyby to ustawienia użytkownika root, a nie %1. Uruchom tarvo-setup bez sudo dla ustawień %1 albo z --system dla ustawień wszystkich użytkowników.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>Nie można zmienić %1 w ten sposób.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>Z --force punktem wyjścia są dostarczone ustawienia.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>wyłączony</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>aby go używać: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 nie jest numerem żadnego modemu. „tarvo-setup list” pokaże Twój; z --force zostanie mimo to przyjęty.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>Żadne urządzenie %1 nie jest podłączone.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>Nie można było zapisać wyjścia.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Obowiązujące ustawienia są w %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo został uruchomiony.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Nie można uruchomić Tarvo: nie jest zainstalowany.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Uruchom Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Nie można odczytać ustawień. Zacząć od nowa od dostarczonych ustawień? Plik zostanie zachowany obok nowego.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Zacznij od nowa</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Wrócić do ustawień dostarczonych z Tarvo? Twój plik zostanie zachowany.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Dostarczone ustawienia</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Niektóre ustawienia zmieniono i nie zapisano. Odrzucić zmiany?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Odrzuć zmiany</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Uruchamianie</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Uruchamiaj Tarvo przy logowaniu</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Ikona</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Strony WWW</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Punkty dostępu</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Dostarczono: włączone.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Dostarczono: wyłączone.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Dostarczono: brak.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Dostarczono: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Producenci obsługiwanych modemów</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>Numery producentów USB, dziesiętnie, rozdzielone przecinkami.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Produkty</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>Numery produktów USB, tylko informacyjnie: używany jest każdy produkt obsługiwanego producenta.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Produkty nieużywane</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>Numery produktów USB, dziesiętnie, urządzeń nieużywanych mimo obsługiwanego producenta.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Pokazuj stan modemu</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>Ikona, jej zmiany i komunikaty pod nią.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Bez komunikatów, gdy wskaźnik jest na ikonie</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>Nowości są nadal pokazywane, gdy się pojawią.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Zachowaj ikonę bez modemu</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>W przeciwnym razie ikona znika razem z modemem.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Wysyłaj adres samej strony z każdym żądaniem</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Modemy, które chronią swoje strony, bez niego nie odpowiadają.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Strona stanu</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>Strona modemu odczytywana co sekundę.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Strona trybu wybierania</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>Strona, która mówi, jak modem się łączy.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Odczytuj stan połączenia tylko z poniższego pola</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>W przeciwnym razie odczytywane są zwykłe pola.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Pole stanu połączenia</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>Nazwa i to, co po niej następuje, aż do cudzysłowu otwierającego.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Stan oznaczający połączenie</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>Oprócz zwykłych.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Uwzględniaj tryb wybierania</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Czy modem łączy się sam.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Pole trybu wybierania</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Sprawdzane przed zwykłym.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Szukaj nowego oprogramowania</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>Modem jest pytany, gdy jest połączony.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Strona główna operatora</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Jeśli puste, otwierane są strony modemu. W adresach %@ oznacza modem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Strona wiadomości tekstowych</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Jeśli puste, nic nie jest otwierane.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Strona o nowym oprogramowaniu</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Jeśli puste, nic nie jest otwierane.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Strona o osiągniętym limicie danych</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Jeśli puste, nic nie jest otwierane.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Wysyłaj punkty dostępu do modemu</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Dla operatorów, którzy instalują profile. Bez profili domyślny punkt modemu stałby się pusty.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Punkty dostępu, które ma modem</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>Nazwy ich profili po kolei, rozdzielone średnikami.</translation>
    </message>
</context>
</TS>
