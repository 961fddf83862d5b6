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
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Brak modemu</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>Urządzenie sieciowe USB %1 nie jest skonfigurowane</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Znaleziono modem, oczekiwanie na adres</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Znaleziono modem, brak bramy</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>Wstrzymano, modem nie jest teraz odpytywany</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Znaleziono modem</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>Modem nie odpowiada</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>Modem wymaga hasła</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>Modem jest zajęty</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>Modem wymaga https, co nie jest obsługiwane</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>Modem nie odpowiada stroną stanu</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Łączenie</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Brak połączenia</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Brak połączenia: nie ma karty SIM</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Brak połączenia: karta SIM jest uszkodzona</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Brak połączenia: karta SIM wymaga kodu PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Brak połączenia: karta SIM wymaga kodu PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Brak połączenia: modem ma blokadę na inną sieć</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>roaming włączony</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>roaming wyłączony</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Otwórz stronę główną</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Otwórz stronę oprogramowania</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Otwórz stronę limitu danych</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Ostatnie powiadomienia</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Skonfiguruj ten modem…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Limit danych</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Nie otwarto strony</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Żaden program na tym komputerze nie mógł otworzyć %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Ten miesiąc</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Ostatnie trzy dni</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Wykorzystano od podłączenia modemu</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Kopiuj szczegóły</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Wybieranie</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>Oprogramowanie</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>Interfejs</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Brama</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Punkty dostępu</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Ostatnia odpowiedź</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>automatyczne</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>ręczne</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>włączony</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>wyłączony</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>dostępna nowa wersja</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>nie zaoferowano nowej wersji</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>wysłano %Ln</numerusform>
            <numerusform>wysłano %Ln</numerusform>
            <numerusform>wysłano %Ln</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>Nie znaleziono ustawień</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>Nie można odczytać ustawień</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>Żaden modem nie jest skonfigurowany</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>W ustawieniach podano producenta jako liczbę, która nigdy nie pasuje</translation>
    </message>
</context>
</TS>
