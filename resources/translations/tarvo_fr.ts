<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>Le modem a été retiré.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>Un nouveau micrologiciel est disponible pour votre modem.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Vous avez dépassé votre limite de trois jours (%1).</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Vous avez dépassé votre limite mensuelle (%1).</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 utilisés ce mois-ci, %2 restants.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 utilisés ce mois-ci, %2 au-delà de la limite.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Mise à jour du modem</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>Un nouveau micrologiciel est disponible pour votre modem. Vous pouvez le télécharger sur la page de mise à jour du modem.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Ouvrir la page de mise à jour</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Ouvrir la page du modem</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>À propos de Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Affiche l’état de votre modem haut débit mobile et ouvre ses pages web.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
</TS>
