<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Configurazione di Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Controlli</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo si occupa dei modem dei produttori indicati nelle impostazioni. Collega il modem e sceglilo qui.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>Nessun dispositivo di rete USB è collegato. Un modem compare qui pochi secondi dopo essere stato collegato.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Usa questo modem</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Ignora questo dispositivo</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Usato da Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Ignorato</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Non configurato</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>interrogazione del gateway…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>risponde come un modem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>non risponde come un modem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>ancora nessun gateway</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>gateway %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Controllo in corso…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Tutto ciò che si è potuto controllare è in ordine.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Qualcosa non è in ordine. Ogni punto difettoso dice che cosa fare.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Controlla di nuovo</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Copia il rapporto</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>In ordine</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Difettoso</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Sconosciuto</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Non controllato</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>File delle impostazioni</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Dispositivo supportato</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Interfaccia di rete</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Server web del modem</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Pagina di stato</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Stato della connessione</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Uso dei dati e roaming</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Sessione per i comandi</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Profili dei punti di accesso</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Posto per l’icona</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Browser web</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Tarvo stesso</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Non c’è ancora un file delle impostazioni. Scegli il tuo modem nell’elenco dei dispositivi.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 non si può usare: %2. Torna alle impostazioni fornite; il file viene conservato.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>Nessun dispositivo di rete USB è collegato. Collega il modem.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Le impostazioni non supportano nessuno dei dispositivi di rete USB. Scegli il tuo modem nell’elenco dei dispositivi.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 va ignorato. Sceglilo nell’elenco dei dispositivi per usarlo comunque.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>L’interfaccia %1 è disattivata. Attivala nelle impostazioni di rete del desktop.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>L’interfaccia %1 non ha un indirizzo IPv4. Imposta la connessione su automatico (DHCP) nelle impostazioni di rete.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>L’interfaccia %1 non ha un gateway. Consenti alla connessione una rotta predefinita nelle impostazioni di rete.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 non ha un gateway, perché la rotta predefinita su %2 non ha metrica. Assegna una metrica a quella rotta.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Nulla risponde sulla porta 80 di %1. Scollega il modem e ricollegalo.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>La pagina “%1” del modem è vuota. Correggi “Pagina di stato” nelle impostazioni.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>La pagina “%1” del modem non è una pagina di stato. Correggi “Pagina di stato” nelle impostazioni.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>Il modem all’indirizzo %1 è occupato con un altro programma. Chiudi le sue pagine nel browser e riprova. Se non basta, scollegalo e ricollegalo.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>Il modem all’indirizzo %1 chiede una password prima di indicare il suo stato. Accedi sulle sue pagine o disattiva la richiesta.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>Il modem all’indirizzo %1 risponde solo tramite https, che non è supportato. Abilita anche http sulle sue pagine.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>La pagina “%1” del modem non indica lo stato della connessione. Correggi la pagina o il nome del campo nelle impostazioni.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>Alla pagina di stato mancano questi campi, quindi i limiti dei dati non si possono mostrare: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>Il modem non apre alcuna sessione, quindi non accetta comandi. Scollegalo e ricollegalo.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>Non ci sono profili in %1. Installa quelli del tuo operatore, oppure non inviare punti di accesso.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Non tutti i profili in %1 sono in ordine. Sostituisci quelli indicati sotto.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Il desktop non mostra icone di stato. Attiva l’area di notifica, o l’estensione per le icone di stato.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Il desktop non mostra notifiche. Avvia il suo servizio di notifica.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Nessun browser apre gli indirizzi web. Scegli un browser predefinito nelle impostazioni del desktop.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo non è in esecuzione. Avvialo dal menu del desktop.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo usa impostazioni precedenti. Chiudilo dal menu della sua icona e riavvialo.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>“%1” non è un’impostazione. Correggi come è scritta, o toglila.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>“%1” ha un valore di tipo sbagliato. Inseriscilo di nuovo nelle impostazioni.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>Il numero %1 in “%2” non corrisponde mai. Scrivilo come testo.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>“%1” in “%2” non corrisponde ad alcun dispositivo. Scrivi un numero decimale da 0 a 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>“%1” non è un indirizzo web. Scrivilo per intero, per esempio http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>“%1” non è una pagina del modem. Scrivi il percorso senza l’indirizzo.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>Nessun produttore di modem è indicato. Scegli il tuo modem nell’elenco dei dispositivi.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Come produttore è indicato solo l’esempio %1. Scegli il tuo modem nell’elenco dei dispositivi.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Le impostazioni sono salvate.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Le impostazioni non sono salvate: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Avevano la forma binaria e ora hanno la forma XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>Il file precedente ora è %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo si riavvia con queste.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo non è in esecuzione.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Esci da Tarvo e avvialo di nuovo, perché le legga.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: un altro programma sta modificando queste impostazioni. Riprova.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 non è solo di root, quindi root non vi scrive nulla. Avvia tarvo-setup senza sudo per le tue impostazioni, o con --system per quelle di tutti gli utenti.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Sarebbero le impostazioni di root, non di %1. Avvia tarvo-setup senza sudo per quelle di %1, o con --system per quelle di tutti gli utenti.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 non si può modificare in questo modo.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>Con --force si riparte dalle impostazioni fornite.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>disattivata</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>per usarlo: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 non è il numero di nessun modem. “tarvo-setup list” mostra il tuo; con --force viene preso lo stesso.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>Nessun dispositivo %1 è collegato.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>Impossibile scrivere l’output.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Le impostazioni in vigore sono in %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo è stato avviato.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo non si può avviare: non è installato.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Avvia Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Le impostazioni non si possono leggere. Ricominciare dalle impostazioni fornite? Il file viene conservato accanto al nuovo.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Ricomincia</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Tornare alle impostazioni fornite con Tarvo? Il tuo file viene conservato.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Impostazioni fornite</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Alcune impostazioni sono cambiate e non salvate. Annullare le modifiche?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Annulla le modifiche</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Avvio</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Avvia Tarvo all’accesso</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Pagine web</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Punti di accesso</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Fornito: attivo.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Fornito: non attivo.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Fornito: nulla.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Fornito: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Produttori dei modem supportati</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>Numeri di produttore USB, in decimale, separati da virgole.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Prodotti</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>Numeri di prodotto USB, solo per riferimento: si usa ogni prodotto di un produttore supportato.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Prodotti da ignorare</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>Numeri di prodotto USB, in decimale, dei dispositivi ignorati benché il loro produttore sia supportato.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Mostra lo stato del modem</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>L’icona, i suoi cambiamenti e i messaggi sotto di essa.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Nessun messaggio quando il puntatore è sull’icona</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>Le novità si mostrano comunque quando arrivano.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Mantieni l’icona senza modem</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Altrimenti l’icona sparisce con il modem.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Invia l’indirizzo della pagina con ogni richiesta</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>I modem che proteggono le loro pagine non rispondono senza.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Pagina di stato</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>La pagina del modem che viene letta ogni secondo.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Pagina del modo di composizione</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>La pagina che dice come il modem si connette.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Leggi lo stato della connessione solo dal campo seguente</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Altrimenti si leggono i campi consueti.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Campo dello stato della connessione</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>Il nome e ciò che lo segue fino alla virgoletta di apertura.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Stato che significa “connesso”</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>Oltre a quelli consueti.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Considera il modo di composizione</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Se il modem si connette da solo.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Campo del modo di composizione</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Provato prima di quello consueto.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Cerca nuovo firmware</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>Il modem viene interrogato quando è connesso.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Pagina iniziale dell’operatore</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Se vuota, si aprono le pagine del modem. Negli indirizzi, %@ sta per il modem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Pagina dei messaggi di testo</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Se vuota, non si apre nulla.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Pagina sul nuovo firmware</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Se vuota, non si apre nulla.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Pagina su un limite di dati raggiunto</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Se vuota, non si apre nulla.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Invia punti di accesso al modem</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Per gli operatori che installano profili. Senza profili, il punto predefinito del modem diventerebbe vuoto.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Punti di accesso che il modem ha</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>I nomi dei loro profili in ordine, separati da punti e virgola.</translation>
    </message>
</context>
</TS>
