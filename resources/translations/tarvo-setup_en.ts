<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>Tarvo Setup</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>Checks</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>Use This Modem</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>Leave This Device Alone</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>Used by Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>Left alone</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>Not set up</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>asking its gateway…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>answers like a modem</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>does not answer like a modem</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>no gateway yet</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>gateway %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>Checking…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>Everything that could be checked is in order.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>Something is not in order. Each broken point says what to do.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>Check Again</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>Copy Report</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>In order</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>Broken</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>Not known</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>Not checked</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>Settings file</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>Supported device</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>Network interface</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>Modem’s web server</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>Status page</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>Connection status</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>Data use and roaming</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>Session for commands</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>Access-point profiles</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>Place for the icon</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>Web browser</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>Tarvo itself</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>There is no settings file yet. Choose your modem in the list of devices.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>No USB network device is plugged in. Plug your modem in.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>The settings support none of the USB network devices. Choose your modem in the list of devices.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>%1 is to be left alone. Choose it in the list of devices to use it after all.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>The interface %1 is switched off. Switch it on in the network settings of your desktop.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>The interface %1 has no gateway. Let its connection set a default route in the network settings.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>The modem’s page “%1” is empty. Correct “Status page” in the settings.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>The status page lacks these fields, so that data limits cannot be shown: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>There are no profiles in %1. Install those of your operator, or do not send access points.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>Not every profile in %1 is in order. Replace those named below.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>Your desktop shows no notifications. Start its notification service.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>No browser opens web addresses. Choose a default browser in the settings of your desktop.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo is not running. Start it from the menu of your desktop.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>“%1” is no setting. Correct its spelling, or take it out.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>“%1” has a value of the wrong type. Enter it again in the settings.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>The number %1 in “%2” never matches. Write it as text.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>“%1” is no web address. Write it in full, such as http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>“%1” is no page of the modem. Write its path without the address.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>No maker of modems is named. Choose your modem in the list of devices.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>Only the example %1 is named as a maker. Choose your modem in the list of devices.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>The settings are saved.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>The settings are not saved: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>They had the binary form and have the XML form now.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>The file that was there before is now %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>Tarvo starts again with them.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo is not running.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>Quit Tarvo and start it again, so that it reads them.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: another program is changing these settings. Try again.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>%1 cannot be changed in this way.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>With --force, the shipped settings are the start.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>switched off</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>to use it: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>No device %1 is plugged in.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>The output could not be written.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>The settings in force are in %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>Tarvo has been started.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>Tarvo cannot be started: it is not installed.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>Start Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>Start Afresh</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>Go back to the settings that Tarvo is shipped with? Your file is kept.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>Shipped Settings</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>Some settings are changed and not saved. Discard the changes?</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>Discard Changes</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>Start Tarvo at login</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>Icon</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>Web pages</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>Access points</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>Shipped: on.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>Shipped: off.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>Shipped: none.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>Shipped: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>Makers of supported modems</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>USB vendor numbers, in decimal, with commas between them.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>Products</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>USB product numbers, for reference only: every product of a supported maker is used.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>Products to leave alone</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>Show the modem’s status</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>The icon, its changes, and the messages under it.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>No messages when the pointer is on the icon</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>News is still shown when it comes.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>Keep the icon without a modem</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>Otherwise the icon goes when the modem is removed.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>Send the page’s own address with each request</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>Modems that guard their pages answer nothing without it.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>Status page</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>The page of the modem that is read every second.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>Page of the dial mode</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>The page that tells how the modem dials.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>Read the connection status from the field below only</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>Otherwise the usual fields are read.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>Field of the connection status</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>The name and what follows it up to the opening quote.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>Status that means connected</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>In addition to the usual ones.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>Look at the dial mode</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>Whether the modem dials by itself.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>Field of the dial mode</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>Tried before the usual one.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>Look for new firmware</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>The modem is asked when it is connected.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>Home page of the operator</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>Page of text messages</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>If empty, nothing is opened.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>Page about new firmware</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>If empty, nothing is opened.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>Page about a reached data limit</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>If empty, nothing is opened.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>Send access points to the modem</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>For operators that install profiles. Without profiles the modem’s default would become blank.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>Access points that the modem has</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>The names of their profiles in order, with semicolons between them.</translation>
    </message>
</context>
</TS>
