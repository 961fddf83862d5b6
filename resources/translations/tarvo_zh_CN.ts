<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>调制解调器已移除。</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>您的调制解调器有新固件可用。</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>您已超出三天流量限额 %1。</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>您已超出每月流量限额 %1。</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>本月已用 %1，剩余 %2。</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>本月已用 %1，超出限额 %2。</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>调制解调器更新</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>您的调制解调器有新固件可用。您可以在调制解调器的更新页面下载。</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>打开更新页面</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>打开调制解调器页面</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>短信</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>关于 Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>显示移动宽带调制解调器的状态并打开其网页。</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>无调制解调器</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>USB 网络设备 %1 尚未设置</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>已找到调制解调器，正在等待地址</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>已找到调制解调器，但没有网关</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>已暂停，目前不查询调制解调器</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>已找到调制解调器</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>调制解调器没有应答</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>调制解调器要求输入密码</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>调制解调器正忙</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>调制解调器要求 https，但不受支持</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>调制解调器没有返回状态页</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>未连接：没有 SIM 卡</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>未连接：SIM 卡已损坏</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>未连接：SIM 卡需要 PIN 码</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>未连接：SIM 卡需要 PUK 码</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>未连接：调制解调器已锁定到其他网络</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>漫游已开启</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>漫游已关闭</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>打开主页</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>打开固件页面</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>打开流量限额页面</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>近期通知</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>设置此调制解调器…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>流量限额</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>页面未打开</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>此计算机上没有程序能够打开 %1。</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>本月</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>最近三天</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>自插入调制解调器以来的用量</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>复制详细信息</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>拨号</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>接入点</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>上次应答</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>手动</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>开启</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>关闭</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>有新版本可用</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>未提供新版本</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>已发送 %Ln 个</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>未找到设置</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>无法读取设置</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>未设置任何调制解调器</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>设置中的厂商是数字，永远无法匹配</translation>
    </message>
</context>
</TS>
