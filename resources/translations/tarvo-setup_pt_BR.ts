<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Configuração do Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Verificações</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>O Tarvo cuida dos modems dos fabricantes citados em seus ajustes. Conecte seu modem e escolha-o aqui.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>Nenhum dispositivo de rede USB está conectado. Um modem aparece aqui alguns segundos depois de ser conectado.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Usar este modem</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Não usar este dispositivo</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Usado pelo Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Não usado</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Não configurado</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>consultando seu gateway…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>responde como um modem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>não responde como um modem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>ainda sem gateway</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>gateway %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Verificando…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Tudo o que pôde ser verificado está em ordem.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Algo não está em ordem. Cada ponto com falha diz o que fazer.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Verificar de novo</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Copiar relatório</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>Em ordem</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Com falha</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Desconhecido</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Não verificado</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Arquivo de ajustes</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Dispositivo compatível</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Interface de rede</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Servidor web do modem</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Página de estado</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Estado da conexão</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Uso de dados e roaming</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Sessão para comandos</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Perfis de pontos de acesso</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Lugar para o ícone</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Navegador web</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>O próprio Tarvo</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>Ainda não há arquivo de ajustes. Escolha seu modem na lista de dispositivos.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 não pode ser usado: %2. Volte aos ajustes fornecidos; o arquivo é guardado.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>Nenhum dispositivo de rede USB está conectado. Conecte seu modem.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>Os ajustes não incluem nenhum dos dispositivos de rede USB. Escolha seu modem na lista de dispositivos.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 está marcado para não ser usado. Escolha-o na lista de dispositivos para usá-lo mesmo assim.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>A interface %1 está desligada. Ligue-a nas configurações de rede da sua área de trabalho.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>A interface %1 não tem endereço IPv4. Deixe a conexão em automático (DHCP) nas configurações de rede.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>A interface %1 não tem gateway. Permita que a conexão crie uma rota padrão nas configurações de rede.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 não tem gateway porque a rota padrão por %2 não tem métrica. Dê uma métrica a essa rota.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Nada responde na porta 80 de %1. Desconecte o modem e conecte-o de novo.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>A página “%1” do modem está vazia. Corrija “Página de estado” nos ajustes.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>A página “%1” do modem não é uma página de estado. Corrija “Página de estado” nos ajustes.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>O modem em %1 está ocupado com outro programa. Feche as páginas dele no navegador e tente de novo. Se não ajudar, desconecte-o e conecte-o de novo.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>O modem em %1 pede uma senha antes de informar seu estado. Entre nas páginas dele ou desative isso lá.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>O modem em %1 responde apenas por https, o que não é suportado. Permita também http nas páginas dele.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>A página “%1” do modem não informa o estado da conexão. Corrija a página ou o nome do campo nos ajustes.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>Faltam estes campos na página de estado, por isso os limites de dados não podem ser mostrados: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>O modem não abre uma sessão e por isso não aceita comandos. Desconecte-o e conecte-o de novo.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>Não há perfis em %1. Instale os da sua operadora ou não envie pontos de acesso.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Nem todos os perfis em %1 estão em ordem. Substitua os citados abaixo.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Sua área de trabalho não mostra ícones de estado. Ative a bandeja ou a extensão para ícones de estado.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Sua área de trabalho não mostra notificações. Inicie o serviço de notificações.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>Nenhum navegador abre endereços web. Escolha um navegador padrão nas configurações da sua área de trabalho.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>O Tarvo não está em execução. Inicie-o pelo menu da sua área de trabalho.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>O Tarvo está usando ajustes antigos. Saia dele pelo menu do ícone e inicie-o novamente.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>“%1” não é um ajuste. Corrija a grafia ou retire-o.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>“%1” tem um valor do tipo errado. Digite-o de novo nos ajustes.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>O número %1 em “%2” nunca coincide. Escreva-o como texto.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>“%1” em “%2” não corresponde a nenhum dispositivo. Escreva um número decimal de 0 a 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>“%1” não é um endereço web. Escreva-o por inteiro, por exemplo http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>“%1” não é uma página do modem. Escreva o caminho sem o endereço.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>Nenhum fabricante de modems é citado. Escolha seu modem na lista de dispositivos.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Só o exemplo %1 é citado como fabricante. Escolha seu modem na lista de dispositivos.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>Os ajustes foram salvos.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>Os ajustes não foram salvos: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>Eles tinham a forma binária e agora têm a forma XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>O arquivo anterior agora é %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>O Tarvo reinicia com eles.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>O Tarvo não está em execução.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Saia do Tarvo e inicie-o de novo para que ele os leia.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: outro programa está alterando estes ajustes. Tente de novo.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 não é só do root, por isso o root não grava nada ali. Execute tarvo-setup sem sudo para os seus ajustes, ou com --system para os de todos os usuários.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>Seriam os ajustes do root, não de %1. Execute tarvo-setup sem sudo para os de %1, ou com --system para os de todos os usuários.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 não pode ser alterado desta forma.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>Com --force, parte-se dos ajustes fornecidos.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>desligada</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>para usá-lo: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 não é o número de nenhum modem. “tarvo-setup list” mostra o seu; com --force ele é aceito mesmo assim.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>Nenhum dispositivo %1 está conectado.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>Não foi possível gravar a saída.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>Os ajustes em vigor estão em %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>O Tarvo foi iniciado.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>O Tarvo não pode ser iniciado: não está instalado.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Iniciar o Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

Os ajustes não podem ser lidos. Recomeçar com os ajustes fornecidos? O arquivo é guardado ao lado do novo.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Recomeçar</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Voltar aos ajustes fornecidos com o Tarvo? Seu arquivo é guardado.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Ajustes fornecidos</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Alguns ajustes foram alterados e não salvos. Descartar as alterações?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Descartar alterações</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Início</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Iniciar o Tarvo ao entrar na sessão</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Ícone</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Páginas web</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Pontos de acesso</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Fornecido: ligado.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Fornecido: desligado.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Fornecido: nada.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Fornecido: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Fabricantes dos modems compatíveis</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>Números de fabricante USB, em decimal, separados por vírgulas.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Produtos</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>Números de produto USB, só para referência: todo produto de um fabricante compatível é usado.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Produtos que não são usados</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>Números de produto USB, em decimal, de dispositivos não usados embora o fabricante seja compatível.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Mostrar o estado do modem</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>O ícone, suas mudanças e as mensagens abaixo dele.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>Sem mensagens quando o ponteiro está sobre o ícone</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>As novidades ainda são mostradas quando chegam.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Manter o ícone sem modem</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Caso contrário, o ícone some com o modem.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Enviar o endereço da própria página com cada pedido</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Modems que protegem suas páginas não respondem sem ele.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Página de estado</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>A página do modem que é lida a cada segundo.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Página do modo de discagem</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>A página que diz como o modem se conecta.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Ler o estado da conexão só do campo abaixo</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Caso contrário, os campos usuais são lidos.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Campo do estado da conexão</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>O nome e o que o segue até as aspas de abertura.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Estado que significa “conectado”</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>Além dos usuais.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Considerar o modo de discagem</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Se o modem se conecta sozinho.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Campo do modo de discagem</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Tentado antes do usual.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Procurar novo firmware</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>O modem é consultado quando está conectado.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Página inicial da operadora</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>Se vazia, as páginas do modem são abertas. Nos endereços, %@ representa o modem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Página de mensagens de texto</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>Se vazia, nada é aberto.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Página sobre novo firmware</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Se vazia, nada é aberto.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Página sobre um limite de dados atingido</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>Se vazia, nada é aberto.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Enviar pontos de acesso ao modem</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>Para operadoras que instalam perfis. Sem perfis, o ponto padrão do modem ficaria em branco.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Pontos de acesso que o modem tem</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>Os nomes de seus perfis em ordem, separados por ponto e vírgula.</translation>
    </message>
</context>
</TS>
