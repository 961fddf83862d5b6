<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>The modem has been removed.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>New firmware is available for your modem.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>You have used more than your three-day limit of %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>You have used more than your monthly limit of %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>%1 used this month, %2 left.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>%1 used this month, %2 over the limit.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>Modem Update</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>New firmware is available for your modem. You can download it on the modem’s update page.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>Open Update Page</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>Open Modem Page</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>About Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>Shows the state of your mobile broadband modem and opens its web pages.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>No modem</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>USB network device %1 is not set up</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>Modem found, waiting for an address</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>Modem found, without a gateway</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>Paused, the modem is not asked at present</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>Modem found</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>The modem does not answer</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>The modem asks for a password</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>The modem is busy</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>The modem wants https, which is not supported</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>The modem does not answer with a status page</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>Connecting</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>Not connected: no SIM card</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>Not connected: the SIM card is damaged</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>Not connected: the SIM card needs its PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>Not connected: the SIM card needs its PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>Not connected: the modem is locked to another network</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>roaming on</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>roaming off</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>Open Home Page</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>Open Firmware Page</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>Open Data Limit Page</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>Recent News</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>Settings…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>Set Up This Modem…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>Data Limit</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>Page Not Opened</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>No program on this computer could open %1.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>This month</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>Last three days</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>Used since the modem was plugged in</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>Copy Details</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>Dialling</translation>
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
        <translation>Device</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>Access points</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>Last answer</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>automatic</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>manual</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>on</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>off</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>new version available</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>no new version offered</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>%Ln sent</numerusform>
            <numerusform>%Ln sent</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>No settings were found</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>The settings cannot be read</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>No modem is set up</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>The settings name a vendor as a number, which never matches</translation>
    </message>
</context>
</TS>
