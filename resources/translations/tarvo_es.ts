<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>Se ha retirado el módem.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>Hay un nuevo firmware disponible para su módem.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Ha superado su límite de tres días de %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Ha superado su límite mensual de %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 usados este mes, quedan %2.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 usados este mes, %2 por encima del límite.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Actualización del módem</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>Hay un nuevo firmware disponible para su módem. Puede descargarlo en la página de actualización del módem.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Abrir página de actualización</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Abrir página del módem</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>Acerca de Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Muestra el estado de su módem de banda ancha móvil y abre sus páginas web.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Sin módem</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>El dispositivo de red USB %1 no está configurado</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Módem encontrado, esperando una dirección</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Módem encontrado, sin puerta de enlace</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>En pausa, el módem no se consulta por ahora</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Módem encontrado</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>El módem no responde</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>El módem pide una contraseña</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>El módem está ocupado</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>El módem exige https, que no se admite</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>El módem no responde con una página de estado</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>No conectado: no hay tarjeta SIM</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>No conectado: la tarjeta SIM está dañada</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>No conectado: la tarjeta SIM necesita su PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>No conectado: la tarjeta SIM necesita su PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>No conectado: el módem está vinculado a otra red</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>itinerancia activada</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>itinerancia desactivada</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Abrir página de inicio</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Abrir página del firmware</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Abrir página del límite de datos</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Avisos recientes</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Configurar este módem…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Límite de datos</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Página no abierta</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Ningún programa de este equipo pudo abrir %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Este mes</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Últimos tres días</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Uso desde que se enchufó el módem</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Copiar detalles</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Marcación</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>Itinerancia</translation>
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
        <translation>Interfaz</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Puerta de enlace</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Puntos de acceso</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Última respuesta</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>automática</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>manual</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>activada</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>desactivada</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>nueva versión disponible</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>ninguna versión nueva ofrecida</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>%Ln enviado</numerusform>
            <numerusform>%Ln enviados</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>No se encontró ninguna configuración</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>No se puede leer la configuración</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>No hay ningún módem configurado</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>La configuración indica un fabricante como número, que nunca coincide</translation>
    </message>
</context>
</TS>
