<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Configuración de Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Comprobaciones</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo se ocupa de los módems de los fabricantes que nombran sus ajustes. Conecte su módem y elíjalo aquí.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>No hay ningún dispositivo de red USB conectado. Un módem aparece aquí unos segundos después de conectarlo.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Usar este módem</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>No usar este dispositivo</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Usado por Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>No se usa</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Sin configurar</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>consultando su puerta de enlace…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>responde como un módem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>no responde como un módem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>aún sin puerta de enlace</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>puerta de enlace %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Todo lo que se pudo comprobar está en orden.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Algo no está en orden. Cada punto que falla dice qué hacer.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Copiar el informe</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>En orden</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Falla</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Sin comprobar</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Archivo de ajustes</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Dispositivo compatible</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Interfaz de red</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Puerta de enlace</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Servidor web del módem</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Página de estado</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Estado de la conexión</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Uso de datos e itinerancia</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Sesión para órdenes</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Perfiles de puntos de acceso</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Lugar para el icono</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Navegador web</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>El propio Tarvo</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Aún no hay archivo de ajustes. Elija su módem en la lista de dispositivos.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 no se puede usar: %2. Vuelva a los ajustes incluidos; el archivo se conserva.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>No hay ningún dispositivo de red USB conectado. Conecte su módem.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Los ajustes no incluyen ninguno de los dispositivos de red USB. Elija su módem en la lista de dispositivos.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 está marcado para no usarse. Elíjalo en la lista de dispositivos para usarlo de todos modos.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>La interfaz %1 está desactivada. Actívela en los ajustes de red de su escritorio.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>La interfaz %1 no tiene dirección IPv4. Ponga su conexión en automático (DHCP) en los ajustes de red.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>La interfaz %1 no tiene puerta de enlace. Permita que su conexión cree una ruta predeterminada en los ajustes de red.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 no tiene puerta de enlace porque la ruta predeterminada por %2 no tiene métrica. Dé una métrica a esa ruta.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Nada responde en el puerto 80 de %1. Desconecte el módem y vuelva a conectarlo.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>La página «%1» del módem está vacía. Corrija «Página de estado» en los ajustes.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>La página «%1» del módem no es una página de estado. Corrija «Página de estado» en los ajustes.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>El módem en %1 está ocupado con otro programa. Cierre sus páginas en el navegador y vuelva a intentarlo. Si no ayuda, desconéctelo y vuelva a conectarlo.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>El módem en %1 pide una contraseña antes de indicar su estado. Inicie sesión en sus páginas o desactive eso allí.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>El módem en %1 solo responde por https, lo que no se admite. Haga en sus páginas que responda también por http.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>La página «%1» del módem no indica el estado de la conexión. Corrija la página o el nombre del campo en los ajustes.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>A la página de estado le faltan estos campos, así que no se pueden mostrar los límites de datos: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>El módem no abre ninguna sesión, así que no acepta órdenes. Desconéctelo y vuelva a conectarlo.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>No hay perfiles en %1. Instale los de su operador, o no envíe puntos de acceso.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>No todos los perfiles de %1 están en orden. Sustituya los que se nombran abajo.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Su escritorio no muestra iconos de estado. Active su bandeja, o su extensión para iconos de estado.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Su escritorio no muestra notificaciones. Inicie su servicio de notificaciones.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Ningún navegador abre direcciones web. Elija un navegador predeterminado en los ajustes de su escritorio.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo no está en marcha. Inícielo desde el menú de su escritorio.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo funciona con ajustes anteriores. Ciérrelo desde el menú de su icono y vuelva a iniciarlo.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>«%1» no es un ajuste. Corrija cómo está escrito, o quítelo.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>«%1» tiene un valor de tipo incorrecto. Vuelva a introducirlo en los ajustes.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>El número %1 en «%2» no coincide nunca. Escríbalo como texto.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>«%1» en «%2» no coincide con ningún dispositivo. Escriba un número decimal de 0 a 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>«%1» no es una dirección web. Escríbala completa, por ejemplo http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>«%1» no es una página del módem. Escriba su ruta sin la dirección.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>No se nombra ningún fabricante de módems. Elija su módem en la lista de dispositivos.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Solo se nombra como fabricante el ejemplo %1. Elija su módem en la lista de dispositivos.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Los ajustes se han guardado.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Los ajustes no se han guardado: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Tenían la forma binaria y ahora tienen la forma XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>El archivo anterior es ahora %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo se reinicia con ellos.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo no está en marcha.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Salga de Tarvo y vuelva a iniciarlo para que los lea.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: otro programa está cambiando estos ajustes. Inténtelo de nuevo.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 no es solo de root, así que root no escribe nada ahí. Ejecute tarvo-setup sin sudo para sus propios ajustes, o con --system para los de todos los usuarios.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Serían los ajustes de root, no de %1. Ejecute tarvo-setup sin sudo para los de %1, o con --system para los de todos los usuarios.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 no se puede cambiar de esta manera.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>Con --force se parte de los ajustes incluidos.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>desactivada</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>para usarlo: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 no es el número de ningún módem. «tarvo-setup list» muestra el suyo; con --force se acepta de todos modos.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>No hay ningún dispositivo %1 conectado.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>No se pudo escribir la salida.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Los ajustes vigentes están en %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo se ha iniciado.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo no se puede iniciar: no está instalado.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Iniciar Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Los ajustes no se pueden leer. ¿Empezar de nuevo con los ajustes incluidos? El archivo se conserva junto al nuevo.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>¿Volver a los ajustes incluidos con Tarvo? Su archivo se conserva.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Ajustes incluidos</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Algunos ajustes se han cambiado y no se han guardado. ¿Descartar los cambios?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Descartar los cambios</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Iniciar Tarvo al entrar en la sesión</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Icono</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Módem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Páginas web</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Puntos de acceso</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Incluido: activado.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Incluido: desactivado.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Incluido: nada.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Incluido: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Fabricantes de los módems compatibles</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>Números de fabricante USB, en decimal, separados por comas.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Productos</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>Números de producto USB, solo como referencia: se usa todo producto de un fabricante compatible.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Productos que no se usan</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>Números de producto USB, en decimal, de dispositivos que no se usan aunque su fabricante sea compatible.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Mostrar el estado del módem</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>El icono, sus cambios y los mensajes debajo de él.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Sin mensajes cuando el puntero está sobre el icono</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>Las novedades se muestran igualmente cuando llegan.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Conservar el icono sin módem</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Si no, el icono desaparece con el módem.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Enviar la dirección de la propia página con cada petición</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Los módems que protegen sus páginas no responden sin ella.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Página de estado</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>La página del módem que se lee cada segundo.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Página del modo de marcado</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>La página que dice cómo se conecta el módem.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Leer el estado de la conexión solo del campo siguiente</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Si no, se leen los campos habituales.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Campo del estado de la conexión</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>El nombre y lo que le sigue hasta la comilla de apertura.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Estado que significa «conectado»</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>Además de los habituales.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Tener en cuenta el modo de marcado</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Si el módem se conecta por sí mismo.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Campo del modo de marcado</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Se prueba antes que el habitual.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Buscar firmware nuevo</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>Se consulta al módem cuando está conectado.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Página principal del operador</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Si está vacía, se abren las páginas del módem. En las direcciones, %@ representa el módem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Página de mensajes de texto</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Si está vacía, no se abre nada.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Página sobre firmware nuevo</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Si está vacía, no se abre nada.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Página sobre un límite de datos alcanzado</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Si está vacía, no se abre nada.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Enviar puntos de acceso al módem</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Para operadores que instalan perfiles. Sin perfiles, el punto predeterminado del módem quedaría en blanco.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Puntos de acceso que tiene el módem</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>Los nombres de sus perfiles en orden, separados por punto y coma.</translation>
    </message>
</context>
</TS>
