<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>Il modem è stato rimosso.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>È disponibile un nuovo firmware per il modem.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Hai superato il limite di tre giorni di %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Hai superato il limite mensile di %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 utilizzati questo mese, %2 rimanenti.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 utilizzati questo mese, %2 oltre il limite.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Aggiornamento del modem</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>È disponibile un nuovo firmware per il modem. Puoi scaricarlo dalla pagina di aggiornamento del modem.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Apri pagina di aggiornamento</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Apri pagina del modem</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>Informazioni su Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Mostra lo stato del modem a banda larga mobile e ne apre le pagine web.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Nessun modem</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>Il dispositivo di rete USB %1 non è configurato</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Modem trovato, in attesa di un indirizzo</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Modem trovato, senza gateway</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>In pausa, il modem al momento non viene interrogato</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Modem trovato</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>Il modem non risponde</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>Il modem chiede una password</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>Il modem è occupato</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>Il modem richiede https, che non è supportato</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>Il modem non risponde con una pagina di stato</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Connessione in corso</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Non connesso: nessuna scheda SIM</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Non connesso: la scheda SIM è danneggiata</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Non connesso: la scheda SIM richiede il PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Non connesso: la scheda SIM richiede il PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Non connesso: il modem è bloccato su un’altra rete</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>roaming attivo</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>roaming disattivato</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Apri pagina iniziale</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Apri pagina del firmware</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Apri pagina del limite dati</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Avvisi recenti</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Configura questo modem…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Limite dati</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Pagina non aperta</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Nessun programma su questo computer è riuscito ad aprire %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Questo mese</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Ultimi tre giorni</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Utilizzo dall’inserimento del modem</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Copia dettagli</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Composizione</translation>
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
        <translation>Dispositivo</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>Interfaccia</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Punti di accesso</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Ultima risposta</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>automatica</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>manuale</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>disattivato</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>nuova versione disponibile</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>nessuna nuova versione offerta</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>%Ln inviato</numerusform>
            <numerusform>%Ln inviati</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>Nessuna impostazione trovata</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>Impossibile leggere le impostazioni</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>Nessun modem è configurato</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>Le impostazioni indicano un produttore come numero, che non corrisponde mai</translation>
    </message>
</context>
</TS>
