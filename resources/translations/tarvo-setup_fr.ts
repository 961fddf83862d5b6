<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Configuration de Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Périphériques</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Vérifications</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo s’occupe des modems des fabricants nommés dans ses réglages. Branchez votre modem et choisissez-le ici.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>Aucun périphérique réseau USB n’est branché. Un modem apparaît ici quelques secondes après son branchement.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Utiliser ce modem</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Ignorer ce périphérique</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Utilisé par Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Ignoré</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Non configuré</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>interrogation de sa passerelle…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>répond comme un modem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>ne répond pas comme un modem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>pas encore de passerelle</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>passerelle %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Vérification en cours…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Tout ce qui a pu être vérifié est en ordre.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Quelque chose n’est pas en ordre. Chaque point défaillant indique quoi faire.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Copier le rapport</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>En ordre</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Défaillant</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Non vérifié</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Fichier de réglages</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Périphérique pris en charge</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Interface réseau</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Serveur web du modem</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Page d’état</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>État de la connexion</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Données utilisées et itinérance</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Session pour les commandes</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Profils de points d’accès</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Emplacement de l’icône</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Navigateur web</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Tarvo lui-même</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Il n’y a pas encore de fichier de réglages. Choisissez votre modem dans la liste des périphériques.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 est inutilisable : %2. Revenez aux réglages fournis ; le fichier est conservé.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>Aucun périphérique réseau USB n’est branché. Branchez votre modem.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Les réglages ne prennent en charge aucun des périphériques réseau USB. Choisissez votre modem dans la liste des périphériques.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 doit être ignoré. Choisissez-le dans la liste des périphériques pour l’utiliser malgré tout.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>L’interface %1 est désactivée. Activez-la dans les paramètres réseau de votre bureau.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>L’interface %1 n’a pas d’adresse IPv4. Mettez sa connexion en automatique (DHCP) dans les paramètres réseau.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>L’interface %1 n’a pas de passerelle. Autorisez sa connexion à créer une route par défaut dans les paramètres réseau.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 n’a pas de passerelle, car la route par défaut par %2 n’a pas de métrique. Donnez une métrique à cette route.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Rien ne répond sur le port 80 de %1. Débranchez le modem et rebranchez-le.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>La page « %1 » du modem est vide. Corrigez « Page d’état » dans les réglages.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>La page « %1 » du modem n’est pas une page d’état. Corrigez « Page d’état » dans les réglages.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>Le modem à l’adresse %1 est occupé par un autre programme. Fermez ses pages dans le navigateur et réessayez. Si cela ne suffit pas, débranchez-le et rebranchez-le.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>Le modem à l’adresse %1 demande un mot de passe avant d’indiquer son état. Connectez-vous sur ses pages, ou désactivez cela.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>Le modem à l’adresse %1 ne répond qu’en https, ce qui n’est pas pris en charge. Autorisez aussi http sur ses pages.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>La page « %1 » du modem n’indique pas l’état de la connexion. Corrigez la page ou le nom du champ dans les réglages.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>Il manque ces champs à la page d’état, les limites de données ne peuvent donc pas être affichées : %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>Le modem n’ouvre pas de session et n’accepte donc aucune commande. Débranchez-le et rebranchez-le.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>Il n’y a pas de profils dans %1. Installez ceux de votre opérateur, ou n’envoyez pas de points d’accès.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Certains profils de %1 ne sont pas en ordre. Remplacez ceux qui sont nommés ci-dessous.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Votre bureau n’affiche pas d’icônes d’état. Activez sa zone de notification, ou son extension pour les icônes d’état.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Votre bureau n’affiche pas de notifications. Démarrez son service de notification.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Aucun navigateur n’ouvre les adresses web. Choisissez un navigateur par défaut dans les paramètres de votre bureau.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo n’est pas lancé. Lancez-le depuis le menu de votre bureau.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo fonctionne avec d’anciens réglages. Quittez-le depuis le menu de son icône, puis relancez-le.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>« %1 » n’est pas un réglage. Corrigez son orthographe, ou retirez-le.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>« %1 » a une valeur du mauvais type. Saisissez-la à nouveau dans les réglages.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>Le nombre %1 dans « %2 » ne correspond jamais. Écrivez-le comme texte.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>« %1 » dans « %2 » ne correspond à aucun périphérique. Écrivez un nombre décimal de 0 à 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>« %1 » n’est pas une adresse web. Écrivez-la en entier, par exemple http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>« %1 » n’est pas une page du modem. Écrivez son chemin sans l’adresse.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>Aucun fabricant de modems n’est nommé. Choisissez votre modem dans la liste des périphériques.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Seul l’exemple %1 est nommé comme fabricant. Choisissez votre modem dans la liste des périphériques.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Les réglages sont enregistrés.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Les réglages ne sont pas enregistrés : %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Ils avaient la forme binaire et ont maintenant la forme XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>L’ancien fichier est maintenant %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo redémarre avec eux.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo n’est pas lancé.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Quittez Tarvo et relancez-le pour qu’il les lise.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1 : un autre programme modifie ces réglages. Réessayez.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 n’appartient pas à root seul, donc root n’y écrit rien. Lancez tarvo-setup sans sudo pour vos propres réglages, ou avec --system pour ceux de tous les utilisateurs.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Ce seraient les réglages de root, pas de %1. Lancez tarvo-setup sans sudo pour ceux de %1, ou avec --system pour ceux de tous les utilisateurs.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 ne peut pas être modifié ainsi.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>Avec --force, on repart des réglages fournis.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>désactivée</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>pour l’utiliser : %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 n’est le numéro d’aucun modem. « tarvo-setup list » montre le vôtre ; avec --force, il est pris quand même.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>Aucun appareil %1 n’est branché.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>La sortie n’a pas pu être écrite.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Les réglages en vigueur sont dans %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo a été lancé.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo ne peut pas être lancé : il n’est pas installé.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Lancer Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Les réglages ne peuvent pas être lus. Repartir des réglages fournis ? Le fichier est conservé à côté du nouveau.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Repartir de zéro</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Revenir aux réglages fournis avec Tarvo ? Votre fichier est conservé.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Réglages fournis</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Certains réglages sont modifiés et non enregistrés. Abandonner les modifications ?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Abandonner les modifications</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Démarrage</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Lancer Tarvo à l’ouverture de session</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Périphériques</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Pages web</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Points d’accès</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Fourni : activé.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Fourni : désactivé.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Fourni : rien.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Fourni : %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Fabricants des modems pris en charge</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>Numéros de fabricant USB, en décimal, séparés par des virgules.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Produits</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>Numéros de produit USB, pour information seulement : tout produit d’un fabricant pris en charge est utilisé.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Produits à ignorer</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>Numéros de produit USB, en décimal, des périphériques ignorés bien que leur fabricant soit pris en charge.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Afficher l’état du modem</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>L’icône, ses changements et les messages au-dessous.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Pas de messages quand le pointeur est sur l’icône</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>Les nouvelles sont tout de même affichées quand elles arrivent.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Garder l’icône sans modem</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Sinon, l’icône disparaît avec le modem.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Envoyer l’adresse de la page avec chaque requête</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Sans elle, les modems qui protègent leurs pages ne répondent pas.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Page d’état</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>La page du modem qui est lue chaque seconde.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Page du mode de numérotation</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>La page qui indique comment le modem se connecte.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Lire l’état de la connexion dans le champ ci-dessous seulement</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Sinon, les champs habituels sont lus.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Champ de l’état de la connexion</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>Le nom et ce qui le suit jusqu’au guillemet ouvrant.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>État qui signifie « connecté »</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>En plus des états habituels.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Tenir compte du mode de numérotation</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Si le modem se connecte de lui-même.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Champ du mode de numérotation</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Essayé avant le champ habituel.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Rechercher un nouveau micrologiciel</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>Le modem est interrogé quand il est connecté.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Page d’accueil de l’opérateur</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Si vide, les pages du modem sont ouvertes. Dans les adresses, %@ désigne le modem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Page des messages</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Si vide, rien n’est ouvert.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Page sur le nouveau micrologiciel</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Si vide, rien n’est ouvert.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Page sur une limite de données atteinte</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Si vide, rien n’est ouvert.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Envoyer des points d’accès au modem</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Pour les opérateurs qui installent des profils. Sans profils, le point d’accès par défaut du modem deviendrait vide.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Points d’accès que le modem possède</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>Les noms de leurs profils dans l’ordre, séparés par des points-virgules.</translation>
    </message>
</context>
</TS>
