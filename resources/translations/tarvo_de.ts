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
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Kein Modem</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>USB-Netzwerkgerät %1 ist nicht eingerichtet</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Modem gefunden, Adresse wird erwartet</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Modem gefunden, aber ohne Gateway</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>Pausiert, das Modem wird derzeit nicht abgefragt</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Modem gefunden</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>Das Modem antwortet nicht</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>Das Modem verlangt ein Passwort</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>Das Modem ist beschäftigt</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>Das Modem verlangt https, was nicht unterstützt wird</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>Das Modem antwortet nicht mit einer Statusseite</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Verbindung wird hergestellt</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Nicht verbunden: keine SIM-Karte</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Nicht verbunden: SIM-Karte beschädigt</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Nicht verbunden: SIM-Karte benötigt ihre PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Nicht verbunden: SIM-Karte benötigt ihren PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Nicht verbunden: Modem an ein anderes Netz gebunden</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>Roaming ein</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>Roaming aus</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Startseite öffnen</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Firmware-Seite öffnen</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Datenlimit-Seite öffnen</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Letzte Meldungen</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Dieses Modem einrichten …</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Datenlimit</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Seite nicht geöffnet</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Kein Programm auf diesem Computer konnte %1 öffnen.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Dieser Monat</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Letzte drei Tage</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Verbrauch seit dem Anstecken des Modems</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Details kopieren</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Einwahl</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Zugangspunkte</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Letzte Antwort</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>manuell</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>neue Version verfügbar</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>keine neue Version angeboten</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>%Ln gesendet</numerusform>
            <numerusform>%Ln gesendet</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>Keine Einstellungen gefunden</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>Die Einstellungen sind nicht lesbar</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>Kein Modem ist eingerichtet</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>Die Einstellungen nennen einen Hersteller als Zahl, die nie übereinstimmt</translation>
    </message>
</context>
</TS>
