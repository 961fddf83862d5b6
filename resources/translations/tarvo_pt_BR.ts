<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>O modem foi removido.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>Há um novo firmware disponível para o seu modem.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>Você ultrapassou o limite de três dias de %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>Você ultrapassou o limite mensal de %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 usados neste mês, restam %2.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 usados neste mês, %2 acima do limite.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Atualização do modem</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>Há um novo firmware disponível para o seu modem. Você pode baixá-lo na página de atualização do modem.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Abrir página de atualização</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Abrir página do modem</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>Sobre o Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Mostra o estado do seu modem de banda larga móvel e abre as páginas dele.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
