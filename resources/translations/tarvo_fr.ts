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
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Aucun modem</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>Le périphérique réseau USB %1 n’est pas configuré</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Modem détecté, en attente d’une adresse</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Modem détecté, sans passerelle</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>En pause, le modem n’est pas interrogé pour l’instant</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Modem détecté</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>Le modem ne répond pas</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>Le modem demande un mot de passe</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>Le modem est occupé</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>Le modem exige https, qui n’est pas pris en charge</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>Le modem ne répond pas par une page d’état</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Connexion en cours</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Non connecté : pas de carte SIM</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Non connecté : la carte SIM est endommagée</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Non connecté : la carte SIM demande son code PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Non connecté : la carte SIM demande son code PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Non connecté : le modem est verrouillé sur un autre réseau</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>itinérance activée</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>itinérance désactivée</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Ouvrir la page d’accueil</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Ouvrir la page du micrologiciel</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Ouvrir la page de la limite de données</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Notifications récentes</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Configurer ce modem…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Limite de données</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Page non ouverte</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Aucun programme de cet ordinateur n’a pu ouvrir %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Ce mois-ci</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Trois derniers jours</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Consommation depuis le branchement du modem</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Copier les détails</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Numérotation</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Points d’accès</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Dernière réponse</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>manuelle</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>activée</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>désactivée</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>nouvelle version disponible</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>aucune nouvelle version proposée</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>%Ln envoyé</numerusform>
            <numerusform>%Ln envoyés</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>Aucun paramètre n’a été trouvé</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>Les paramètres sont illisibles</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>Aucun modem n’est configuré</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>Les paramètres indiquent un fabricant par un nombre, qui ne correspond jamais</translation>
    </message>
</context>
</TS>
