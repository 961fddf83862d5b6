<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="DeviceRemovedTip">
        <source>The modem has been removed.</source>
        <translation>تمت إزالة المودم.</translation>
    </message>
    <message id="HaveNewVersionTipWhenConnected">
        <source>New firmware is available for your modem.</source>
        <translation>يتوفر برنامج ثابت جديد للمودم.</translation>
    </message>
    <message id="DatalimitExceedForThreedays">
        <source>You have used more than your three-day limit of %1.</source>
        <translation>لقد تجاوزت حد الأيام الثلاثة البالغ %1.</translation>
    </message>
    <message id="DatalimitExceed">
        <source>You have used more than your monthly limit of %1.</source>
        <translation>لقد تجاوزت الحد الشهري البالغ %1.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth">
        <source>%1 used this month, %2 left.</source>
        <translation>تم استخدام %1 هذا الشهر، والمتبقي %2.</translation>
    </message>
    <message id="DatalimitReachedForOneMonth_Negative">
        <source>%1 used this month, %2 over the limit.</source>
        <translation>تم استخدام %1 هذا الشهر، بزيادة %2 عن الحد.</translation>
    </message>
    <message id="updateTitleTip">
        <source>Modem Update</source>
        <translation>تحديث المودم</translation>
    </message>
    <message id="updateMsgTip">
        <source>New firmware is available for your modem. You can download it on the modem’s update page.</source>
        <translation>يتوفر برنامج ثابت جديد للمودم. يمكنك تنزيله من صفحة التحديث الخاصة بالمودم.</translation>
    </message>
    <message id="updateButtonTip">
        <source>Open Update Page</source>
        <translation>فتح صفحة التحديث</translation>
    </message>
    <message id="MenuOpenModemPage">
        <source>Open Modem Page</source>
        <translation>فتح صفحة المودم</translation>
    </message>
    <message id="MenuOpenMessages">
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message id="MenuAbout">
        <source>About Tarvo</source>
        <translation>حول Tarvo</translation>
    </message>
    <message id="MenuQuit">
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message id="AboutText">
        <source>Shows the state of your mobile broadband modem and opens its web pages.</source>
        <translation>يعرض حالة مودم النطاق العريض المتنقل ويفتح صفحاته.</translation>
    </message>
    <message id="AboutClose">
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
</TS>
