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
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>Nenhum modem</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>O dispositivo de rede USB %1 não está configurado</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Modem encontrado, aguardando um endereço</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Modem encontrado, sem gateway</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>Em pausa, o modem não está sendo consultado no momento</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Modem encontrado</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>O modem não responde</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>O modem pede uma senha</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>O modem está ocupado</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>O modem exige https, que não é suportado</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>O modem não responde com uma página de estado</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Não conectado: sem cartão SIM</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Não conectado: o cartão SIM está danificado</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Não conectado: o cartão SIM precisa do PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Não conectado: o cartão SIM precisa do PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Não conectado: o modem está vinculado a outra rede</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>roaming ativado</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>roaming desativado</translation>
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
        <translation>Abrir página inicial</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Abrir página do firmware</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Abrir página do limite de dados</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Avisos recentes</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Configurar este modem…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Limite de dados</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Página não aberta</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>Nenhum programa neste computador conseguiu abrir %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>Este mês</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Últimos três dias</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Uso desde que o modem foi plugado</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Copiar detalhes</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Discagem</translation>
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
        <translation>Interface</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Pontos de acesso</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Última resposta</translation>
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
        <translation>ativado</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>desativado</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>nova versão disponível</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>nenhuma versão nova oferecida</translation>
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
        <translation>Nenhuma configuração foi encontrada</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>Não é possível ler as configurações</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>Nenhum modem está configurado</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>As configurações indicam um fabricante como número, que nunca corresponde</translation>
    </message>
</context>
</TS>
