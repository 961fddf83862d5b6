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
</context>
</TS>
