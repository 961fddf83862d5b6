<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Tarvo einrichten</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Prüfungen</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo kümmert sich um die Modems der Hersteller, die in den Einstellungen stehen. Schließen Sie Ihr Modem an und wählen Sie es hier aus.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>Es ist kein USB-Netzwerkgerät angeschlossen. Ein Modem erscheint hier einige Sekunden, nachdem es angeschlossen wurde.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Dieses Modem verwenden</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Dieses Gerät nicht verwenden</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Wird von Tarvo verwendet</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Wird nicht verwendet</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Nicht eingerichtet</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>Gateway wird gefragt …</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>antwortet wie ein Modem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>antwortet nicht wie ein Modem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>noch kein Gateway</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>Gateway %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Es wird geprüft …</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Alles, was geprüft werden konnte, ist in Ordnung.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Etwas ist nicht in Ordnung. Bei jedem fehlerhaften Punkt steht, was zu tun ist.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>In Ordnung</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Fehlerhaft</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Unterstütztes Gerät</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Netzwerkschnittstelle</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Webserver des Modems</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Statusseite</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Verbindungsstatus</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Datenverbrauch und Roaming</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Sitzung für Befehle</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Zugangspunkt-Profile</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Platz für das Symbol</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Webbrowser</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Tarvo selbst</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Es gibt noch keine Einstellungsdatei. Wählen Sie Ihr Modem in der Liste der Geräte aus.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 kann nicht verwendet werden: %2. Kehren Sie zu den mitgelieferten Einstellungen zurück; die Datei bleibt erhalten.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>Es ist kein USB-Netzwerkgerät angeschlossen. Schließen Sie Ihr Modem an.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Die Einstellungen unterstützen keines der USB-Netzwerkgeräte. Wählen Sie Ihr Modem in der Liste der Geräte aus.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 soll nicht verwendet werden. Wählen Sie das Gerät in der Liste aus, um es doch zu verwenden.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>Die Schnittstelle %1 ist ausgeschaltet. Schalten Sie sie in den Netzwerkeinstellungen Ihres Desktops ein.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>Die Schnittstelle %1 hat keine IPv4-Adresse. Stellen Sie ihre Verbindung in den Netzwerkeinstellungen auf automatisch (DHCP).</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>Die Schnittstelle %1 hat kein Gateway. Erlauben Sie ihrer Verbindung in den Netzwerkeinstellungen eine Standardroute.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 hat kein Gateway, weil die Standardroute über %2 keine Metrik hat. Geben Sie dieser Route eine Metrik.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Auf Port 80 von %1 antwortet nichts. Ziehen Sie das Modem ab und schließen Sie es wieder an.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>Die Seite „%1“ des Modems ist leer. Berichtigen Sie „Statusseite“ in den Einstellungen.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>Die Seite „%1“ des Modems ist keine Statusseite. Berichtigen Sie „Statusseite“ in den Einstellungen.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>Das Modem unter %1 ist mit einem anderen Programm beschäftigt. Schließen Sie seine Seiten im Browser und versuchen Sie es noch einmal. Hilft das nicht, ziehen Sie es ab und schließen Sie es wieder an.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>Das Modem unter %1 verlangt ein Passwort, bevor es seinen Zustand nennt. Melden Sie sich auf seinen Seiten an oder schalten Sie das dort ab.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>Das Modem unter %1 antwortet nur über https, was nicht unterstützt wird. Lassen Sie es auf seinen Seiten auch über http antworten.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>Die Seite „%1“ des Modems nennt keinen Verbindungsstatus. Berichtigen Sie die Seite oder den Namen des Feldes in den Einstellungen.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>Der Statusseite fehlen diese Felder, daher können Datenlimits nicht angezeigt werden: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>Das Modem eröffnet keine Sitzung und nimmt daher keine Befehle an. Ziehen Sie es ab und schließen Sie es wieder an.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>In %1 gibt es keine Profile. Installieren Sie die Ihres Betreibers, oder senden Sie keine Zugangspunkte.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Nicht jedes Profil in %1 ist in Ordnung. Ersetzen Sie die unten genannten.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Ihr Desktop zeigt keine Statussymbole. Schalten Sie seinen Infobereich oder seine Erweiterung für Statussymbole ein.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Ihr Desktop zeigt keine Benachrichtigungen. Starten Sie seinen Benachrichtigungsdienst.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Kein Browser öffnet Webadressen. Wählen Sie in den Einstellungen Ihres Desktops einen Standardbrowser.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo läuft nicht. Starten Sie es aus dem Menü Ihres Desktops.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo läuft mit älteren Einstellungen. Beenden Sie es im Menü seines Symbols, und starten Sie es neu.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>„%1“ ist keine Einstellung. Berichtigen Sie die Schreibweise, oder nehmen Sie den Eintrag heraus.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>„%1“ hat einen Wert der falschen Art. Geben Sie ihn in den Einstellungen neu ein.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>Die Zahl %1 in „%2“ passt nie. Schreiben Sie sie als Text.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>„%1“ in „%2“ passt zu keinem Gerät. Schreiben Sie eine Dezimalzahl von 0 bis 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>„%1“ ist keine Webadresse. Schreiben Sie sie vollständig, etwa http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>„%1“ ist keine Seite des Modems. Schreiben Sie ihren Pfad ohne die Adresse.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>Es ist kein Hersteller von Modems genannt. Wählen Sie Ihr Modem in der Liste der Geräte aus.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Als Hersteller ist nur das Beispiel %1 genannt. Wählen Sie Ihr Modem in der Liste der Geräte aus.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Die Einstellungen sind gespeichert.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Die Einstellungen sind nicht gespeichert: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Sie hatten die binäre Form und haben nun die XML-Form.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>Die bisherige Datei ist jetzt %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo startet mit ihnen neu.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo läuft nicht.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Beenden Sie Tarvo und starten Sie es neu, damit es sie liest.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: Ein anderes Programm ändert gerade diese Einstellungen. Versuchen Sie es noch einmal.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 gehört nicht root allein, darum schreibt root dort nichts. Starten Sie tarvo-setup ohne sudo für Ihre eigenen Einstellungen, oder mit --system für die aller Benutzer.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Das wären die Einstellungen von root, nicht von %1. Starten Sie tarvo-setup ohne sudo für die von %1, oder mit --system für die aller Benutzer.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 kann nicht so geändert werden.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>Mit --force wird mit den mitgelieferten Einstellungen neu begonnen.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>zum Verwenden: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 ist die Nummer keines Modems. „tarvo-setup list“ zeigt Ihre; mit --force wird sie trotzdem genommen.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>Es ist kein Gerät %1 angeschlossen.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Die geltenden Einstellungen stehen in %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo wurde gestartet.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo kann nicht gestartet werden: Es ist nicht installiert.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Tarvo starten</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Die Einstellungen können nicht gelesen werden. Mit den mitgelieferten Einstellungen neu beginnen? Die Datei bleibt neben der neuen erhalten.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Neu beginnen</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Zu den Einstellungen zurückkehren, mit denen Tarvo geliefert wird? Ihre Datei bleibt erhalten.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Mitgelieferte Einstellungen</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Einige Einstellungen sind geändert und nicht gespeichert. Die Änderungen verwerfen?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Tarvo bei der Anmeldung starten</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Webseiten</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Zugangspunkte</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Mitgeliefert: ein.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Mitgeliefert: aus.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Mitgeliefert: nichts.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Mitgeliefert: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Hersteller unterstützter Modems</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>USB-Herstellernummern, dezimal, durch Kommas getrennt.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Produkte</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>USB-Produktnummern, nur zur Information: Jedes Produkt eines unterstützten Herstellers wird verwendet.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Produkte, die nicht verwendet werden</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>USB-Produktnummern, dezimal, von Geräten, die trotz unterstütztem Hersteller nicht verwendet werden.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Status des Modems anzeigen</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>Das Symbol, seine Änderungen und die Meldungen darunter.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Keine Meldungen, wenn der Zeiger auf dem Symbol ist</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>Neuigkeiten werden trotzdem gezeigt, wenn sie kommen.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Symbol ohne Modem behalten</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Sonst verschwindet das Symbol mit dem Modem.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Mit jeder Anfrage die Adresse der Seite selbst senden</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Modems, die ihre Seiten schützen, antworten sonst nicht.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Statusseite</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>Die Seite des Modems, die jede Sekunde gelesen wird.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Seite der Einwahlart</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>Die Seite, die sagt, wie das Modem sich einwählt.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Verbindungsstatus nur aus dem folgenden Feld lesen</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Sonst werden die üblichen Felder gelesen.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Feld des Verbindungsstatus</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>Der Name und was ihm bis zum öffnenden Anführungszeichen folgt.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Status, der „verbunden“ bedeutet</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>Zusätzlich zu den üblichen.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Einwahlart beachten</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Ob das Modem sich von selbst einwählt.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Feld der Einwahlart</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Wird vor dem üblichen versucht.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Nach neuer Firmware sehen</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>Das Modem wird gefragt, wenn es verbunden ist.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Startseite des Betreibers</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Wenn leer, werden die Seiten des Modems geöffnet. In Adressen steht %@ für das Modem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Seite der Textnachrichten</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Wenn leer, wird nichts geöffnet.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Seite zu neuer Firmware</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Wenn leer, wird nichts geöffnet.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Seite zu einem erreichten Datenlimit</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Wenn leer, wird nichts geöffnet.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Zugangspunkte an das Modem senden</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Für Betreiber, die Profile installieren. Ohne Profile würde der Standard des Modems leer.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Zugangspunkte, die das Modem hat</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>Die Namen ihrer Profile der Reihe nach, durch Semikolons getrennt.</translation>
    </message>
</context>
</TS>
