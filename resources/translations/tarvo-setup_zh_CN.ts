<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Tarvo 设置</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>检查</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>选项</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo 负责其选项中列出的厂商的调制解调器。请插入您的调制解调器，并在此处选择它。</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>没有插入 USB 网络设备。调制解调器插入几秒钟后会显示在这里。</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>使用此调制解调器</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>不使用此设备</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>由 Tarvo 使用</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>不使用</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>未设置</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>正在询问其网关…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>应答与调制解调器相符</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>应答与调制解调器不符</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>尚无网关</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>网关 %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>所有能够检查的项目均正常。</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>有项目不正常。每个有问题的项目都写明了处理办法。</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>重新检查</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>复制报告</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>有问题</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>未检查</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>选项文件</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>选项</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>受支持的设备</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>网络接口</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>调制解调器的网页服务器</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>状态页</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>连接状态</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>数据用量与漫游</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>命令会话</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>接入点配置文件</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>图标的位置</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>网页浏览器</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Tarvo 本身</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>还没有选项文件。请在设备列表中选择您的调制解调器。</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 无法使用：%2。请恢复为自带选项；该文件会保留。</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>没有插入 USB 网络设备。请插入您的调制解调器。</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>选项不支持任何已插入的 USB 网络设备。请在设备列表中选择您的调制解调器。</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 被列为不使用。如果仍要使用，请在设备列表中选择它。</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>接口 %1 已关闭。请在桌面的网络设置中将其打开。</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>接口 %1 没有 IPv4 地址。请在网络设置中将其连接设为自动 (DHCP)。</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>接口 %1 没有网关。请在网络设置中允许其连接设置默认路由。</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 没有网关，因为经由 %2 的默认路由没有跃点数。请为该路由指定跃点数。</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>%1 的 80 端口没有应答。请拔下调制解调器再重新插入。</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>调制解调器的页面“%1”是空的。请在选项中更正“状态页”。</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>调制解调器的页面“%1”不是状态页。请在选项中更正“状态页”。</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>位于 %1 的调制解调器正被其他程序占用。请关闭浏览器中它的页面，然后重试。如果仍不行，请拔下再重新插入。</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>位于 %1 的调制解调器要求输入密码后才显示状态。请在它的页面上登录，或在那里关闭此要求。</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>位于 %1 的调制解调器只通过 https 应答，而 https 不受支持。请在它的页面上也允许 http。</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>调制解调器的页面“%1”没有给出连接状态。请在选项中更正页面或字段名称。</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>状态页缺少以下字段，因此无法显示数据限额：%1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>调制解调器不建立会话，因此不接受命令。请将其拔下再重新插入。</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>%1 中没有配置文件。请安装运营商的配置文件，或者不发送接入点。</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>%1 中并非每个配置文件都正常。请更换下面列出的文件。</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>您的桌面不显示状态图标。请打开其托盘或状态图标扩展。</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>您的桌面不显示通知。请启动其通知服务。</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>没有浏览器打开网页地址。请在桌面的设置中选择默认浏览器。</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo 没有运行。请从桌面菜单启动它。</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo 仍在使用旧选项运行。请从其图标菜单退出，然后重新启动。</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>“%1”不是选项。请更正拼写，或将其删除。</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>“%1”的值类型不对。请在选项中重新输入。</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>“%2”中的数字 %1 永远不会匹配。请将其写为文本。</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>“%2”中的“%1”与任何设备都不匹配。请写 0 到 65535 的十进制数。</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>“%1”不是网页地址。请写完整，例如 http://www.example.org/。</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>“%1”不是调制解调器的页面。请写不含地址的路径。</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>没有列出调制解调器厂商。请在设备列表中选择您的调制解调器。</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>厂商中只列出了示例 %1。请在设备列表中选择您的调制解调器。</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>选项已保存。</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>选项未保存：%1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>选项原为二进制形式，现为 XML 形式。</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>原来的文件现为 %1。</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo 将以新选项重新启动。</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo 没有运行。</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>请退出 Tarvo 并重新启动，使其读取选项。</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1：另一个程序正在更改这些选项。请重试。</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 并非 root 独有，因此 root 不在那里写入。要更改您自己的选项，请不用 sudo 运行 tarvo-setup；要更改所有用户的选项，请加 --system。</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>这将是 root 的选项，而不是 %1 的。要更改 %1 的选项，请不用 sudo 运行 tarvo-setup；要更改所有用户的选项，请加 --system。</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 无法这样更改。</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>使用 --force 可从自带选项重新开始。</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>已关闭</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>使用它：%1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 不是任何调制解调器的编号。“tarvo-setup list”会显示您的编号；使用 --force 则仍会接受。</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>没有插入设备 %1。</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>无法写入输出。</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>当前使用的选项位于 %1。</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo 已启动。</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>无法启动 Tarvo：未安装。</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>启动 Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

无法读取选项。要从自带选项重新开始吗？该文件会保留在新文件旁边。</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>重新开始</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>要恢复为 Tarvo 自带的选项吗？您的文件会保留。</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>自带选项</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>有些选项已更改但未保存。要放弃更改吗？</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>放弃更改</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>登录时启动 Tarvo</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>调制解调器</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>网页</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>接入点</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>自带：开。</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>自带：关。</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>自带：无。</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>自带：%1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>受支持调制解调器的厂商</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>USB 厂商编号，十进制，用逗号分隔。</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>产品</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>USB 产品编号，仅供参考：受支持厂商的所有产品都会使用。</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>不使用的产品</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>虽属受支持厂商但不使用的设备的 USB 产品编号，十进制。</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>显示调制解调器的状态</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>图标、图标的变化及其下方的消息。</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>指针在图标上时不显示消息</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>有新消息时仍会显示。</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>没有调制解调器时保留图标</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>否则图标会随调制解调器一起消失。</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>每次请求都发送页面自身的地址</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>保护其页面的调制解调器没有它就不应答。</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>状态页</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>每秒读取一次的调制解调器页面。</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>拨号方式页</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>说明调制解调器如何拨号的页面。</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>只从下面的字段读取连接状态</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>否则读取常用字段。</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>连接状态字段</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>名称及其后直到开引号的内容。</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>表示已连接的状态</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>在常用状态之外。</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>查看拨号方式</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>调制解调器是否自动拨号。</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>拨号方式字段</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>在常用字段之前尝试。</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>查找新固件</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>在调制解调器已连接时询问。</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>运营商主页</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>如果为空，则打开调制解调器自己的页面。地址中的 %@ 代表调制解调器。</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>短信页面</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>如果为空，则不打开任何页面。</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>新固件页面</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>如果为空，则不打开任何页面。</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>达到数据限额时的页面</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>如果为空，则不打开任何页面。</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>向调制解调器发送接入点</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>供安装配置文件的运营商使用。没有配置文件时，调制解调器的默认接入点会变为空白。</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>调制解调器已有的接入点</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>按顺序列出其配置文件名称，用分号分隔。</translation>
    </message>
</context>
</TS>
