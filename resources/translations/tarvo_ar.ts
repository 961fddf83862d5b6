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
    <message id="StatusNoModem">
        <source>No modem</source>
        <translation>لا يوجد مودم</translation>
    </message>
    <message id="StatusNotSetUp">
        <source>USB network device %1 is not set up</source>
        <translation>لم يتم إعداد جهاز شبكة USB %1</translation>
    </message>
    <message id="StatusWaitingForAddress">
        <source>Modem found, waiting for an address</source>
        <translation>تم العثور على المودم، بانتظار عنوان</translation>
    </message>
    <message id="StatusNoGateway">
        <source>Modem found, without a gateway</source>
        <translation>تم العثور على المودم، بلا بوابة</translation>
    </message>
    <message id="StatusAsleep">
        <source>Paused, the modem is not asked at present</source>
        <translation>متوقف مؤقتًا، لا يُستعلَم عن حالة المودم حاليًا</translation>
    </message>
    <message id="StatusModemFound">
        <source>Modem found</source>
        <translation>تم العثور على المودم</translation>
    </message>
    <message id="StatusNotAnswering">
        <source>The modem does not answer</source>
        <translation>المودم لا يستجيب</translation>
    </message>
    <message id="StatusWantsPassword">
        <source>The modem asks for a password</source>
        <translation>يطلب المودم كلمة مرور</translation>
    </message>
    <message id="StatusBusy">
        <source>The modem is busy</source>
        <translation>المودم مشغول</translation>
    </message>
    <message id="StatusWantsHttps">
        <source>The modem wants https, which is not supported</source>
        <translation>يطلب المودم https وهو غير مدعوم</translation>
    </message>
    <message id="StatusOtherPage">
        <source>The modem does not answer with a status page</source>
        <translation>لا يستجيب المودم بصفحة حالة</translation>
    </message>
    <message id="StatusConnecting">
        <source>Connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message id="StatusNotConnected">
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message id="StatusConnected">
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message id="StatusSimMissing">
        <source>Not connected: no SIM card</source>
        <translation>غير متصل: لا توجد بطاقة SIM</translation>
    </message>
    <message id="StatusSimDamaged">
        <source>Not connected: the SIM card is damaged</source>
        <translation>غير متصل: بطاقة SIM تالفة</translation>
    </message>
    <message id="StatusSimNeedsPin">
        <source>Not connected: the SIM card needs its PIN</source>
        <translation>غير متصل: بطاقة SIM تتطلب رمز PIN</translation>
    </message>
    <message id="StatusSimNeedsPuk">
        <source>Not connected: the SIM card needs its PUK</source>
        <translation>غير متصل: بطاقة SIM تتطلب رمز PUK</translation>
    </message>
    <message id="StatusSimLocked">
        <source>Not connected: the modem is locked to another network</source>
        <translation>غير متصل: المودم مقفل على شبكة أخرى</translation>
    </message>
    <message id="StatusRoamingOn">
        <source>roaming on</source>
        <translation>التجوال مفعّل</translation>
    </message>
    <message id="StatusRoamingOff">
        <source>roaming off</source>
        <translation>التجوال معطّل</translation>
    </message>
    <message id="StatusAnd">
        <source>%1 · %2</source>
        <translation>%1، %2</translation>
    </message>
    <message id="AmountOfLimit">
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message id="MenuOpenHomePage">
        <source>Open Home Page</source>
        <translation>فتح الصفحة الرئيسية</translation>
    </message>
    <message id="MenuOpenFirmwarePage">
        <source>Open Firmware Page</source>
        <translation>فتح صفحة البرنامج الثابت</translation>
    </message>
    <message id="MenuOpenDataLimitPage">
        <source>Open Data Limit Page</source>
        <translation>فتح صفحة حد البيانات</translation>
    </message>
    <message id="MenuRecentNews">
        <source>Recent News</source>
        <translation>أحدث الإشعارات</translation>
    </message>
    <message id="MenuSettings">
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message id="MenuSetUpModem">
        <source>Set Up This Modem…</source>
        <translation>إعداد هذا المودم…</translation>
    </message>
    <message id="updateButtonOk">
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message id="NewsTitleDataLimit">
        <source>Data Limit</source>
        <translation>حد البيانات</translation>
    </message>
    <message id="NewsOpen">
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message id="CannotOpenTitle">
        <source>Page Not Opened</source>
        <translation>لم تُفتح الصفحة</translation>
    </message>
    <message id="CannotOpenText">
        <source>No program on this computer could open %1.</source>
        <translation>لم يتمكن أي برنامج على هذا الكمبيوتر من فتح %1&#x200e;.</translation>
    </message>
    <message id="StatusMonth">
        <source>This month</source>
        <translation>هذا الشهر</translation>
    </message>
    <message id="StatusThreeDays">
        <source>Last three days</source>
        <translation>آخر ثلاثة أيام</translation>
    </message>
    <message id="StatusPlot">
        <source>Used since the modem was plugged in</source>
        <translation>المستخدم منذ توصيل المودم</translation>
    </message>
    <message id="StatusCopyDetails">
        <source>Copy Details</source>
        <translation>نسخ التفاصيل</translation>
    </message>
    <message id="RowConnection">
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message id="RowDialMode">
        <source>Dialling</source>
        <translation>طلب الاتصال</translation>
    </message>
    <message id="RowRoaming">
        <source>Roaming</source>
        <translation>التجوال</translation>
    </message>
    <message id="RowFirmware">
        <source>Firmware</source>
        <translation>البرنامج الثابت</translation>
    </message>
    <message id="RowDevice">
        <source>Device</source>
        <translation>الجهاز</translation>
    </message>
    <message id="RowInterface">
        <source>Interface</source>
        <translation>الواجهة</translation>
    </message>
    <message id="RowAddress">
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message id="RowGateway">
        <source>Gateway</source>
        <translation>البوابة</translation>
    </message>
    <message id="RowAccessPoints">
        <source>Access points</source>
        <translation>نقاط الوصول</translation>
    </message>
    <message id="RowLastAnswer">
        <source>Last answer</source>
        <translation>آخر استجابة</translation>
    </message>
    <message id="ValueDialAuto">
        <source>automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message id="ValueDialManual">
        <source>manual</source>
        <translation>يدوي</translation>
    </message>
    <message id="ValueOn">
        <source>on</source>
        <translation>مفعّل</translation>
    </message>
    <message id="ValueOff">
        <source>off</source>
        <translation>معطّل</translation>
    </message>
    <message id="ValueFirmwareNew">
        <source>new version available</source>
        <translation>يتوفر إصدار جديد</translation>
    </message>
    <message id="ValueFirmwareNoneOffered">
        <source>no new version offered</source>
        <translation>لم يُعرض إصدار جديد</translation>
    </message>
    <message id="ValueAccessPointsSent" numerus="yes">
        <source>%Ln sent</source>
        <translation>
            <numerusform>تم إرسال %Ln</numerusform>
            <numerusform>تم إرسال %Ln</numerusform>
            <numerusform>تم إرسال %Ln</numerusform>
            <numerusform>تم إرسال %Ln</numerusform>
            <numerusform>تم إرسال %Ln</numerusform>
            <numerusform>تم إرسال %Ln</numerusform>
        </translation>
    </message>
    <message id="ProblemNoSettings">
        <source>No settings were found</source>
        <translation>لم يتم العثور على إعدادات</translation>
    </message>
    <message id="ProblemUnreadable">
        <source>The settings cannot be read</source>
        <translation>تعذّرت قراءة الإعدادات</translation>
    </message>
    <message id="ProblemNoVendor">
        <source>No modem is set up</source>
        <translation>لم يتم إعداد أي مودم</translation>
    </message>
    <message id="ProblemVendorType">
        <source>The settings name a vendor as a number, which never matches</source>
        <translation>تحدّد الإعدادات الشركة المصنّعة برقم، وهو لا يطابق أبدًا</translation>
    </message>
</context>
</TS>
