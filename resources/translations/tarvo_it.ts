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
</context>
</TS>
