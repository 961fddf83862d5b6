<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="SetupTitle">
        <source>Tarvo Setup</source>
        <translation>إعداد Tarvo</translation>
    </message>
    <message id="TabDevices">
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message id="TabChecks">
        <source>Checks</source>
        <translation>الفحوص</translation>
    </message>
    <message id="TabSettings">
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message id="DevicesIntroduction">
        <source>Tarvo looks after the modems of the makers that its settings name. Plug your modem in and choose it here.</source>
        <translation>يعتني Tarvo بأجهزة المودم من الشركات المذكورة في إعداداته. وصّل المودم واختره هنا.</translation>
    </message>
    <message id="NoDevices">
        <source>No USB network device is plugged in. A modem appears here a few seconds after it is plugged in.</source>
        <translation>لا يوجد جهاز شبكة USB موصول. يظهر المودم هنا بعد ثوانٍ من توصيله.</translation>
    </message>
    <message id="UseModem">
        <source>Use This Modem</source>
        <translation>استخدام هذا المودم</translation>
    </message>
    <message id="LeaveAlone">
        <source>Leave This Device Alone</source>
        <translation>عدم استخدام هذا الجهاز</translation>
    </message>
    <message id="DeviceSupported">
        <source>Used by Tarvo</source>
        <translation>يستخدمه Tarvo</translation>
    </message>
    <message id="DeviceExcluded">
        <source>Left alone</source>
        <translation>غير مستخدم</translation>
    </message>
    <message id="DeviceUnsupported">
        <source>Not set up</source>
        <translation>غير مُعد</translation>
    </message>
    <message id="DeviceAsked">
        <source>asking its gateway…</source>
        <translation>يجري سؤال بوابته…</translation>
    </message>
    <message id="DeviceIsModem">
        <source>answers like a modem</source>
        <translation>يجيب كمودم</translation>
    </message>
    <message id="DeviceIsNoModem">
        <source>does not answer like a modem</source>
        <translation>لا يجيب كمودم</translation>
    </message>
    <message id="DeviceNoGateway">
        <source>no gateway yet</source>
        <translation>لا بوابة بعد</translation>
    </message>
    <message id="DeviceGateway">
        <source>gateway %1</source>
        <translation>البوابة %1</translation>
    </message>
    <message id="Checking">
        <source>Checking…</source>
        <translation>يجري الفحص…</translation>
    </message>
    <message id="ChainWhole">
        <source>Everything that could be checked is in order.</source>
        <translation>كل ما أمكن فحصه سليم.</translation>
    </message>
    <message id="ChainBroken">
        <source>Something is not in order. Each broken point says what to do.</source>
        <translation>هناك ما ليس سليمًا. تذكر كل نقطة معطلة ما ينبغي فعله.</translation>
    </message>
    <message id="CheckAgain">
        <source>Check Again</source>
        <translation>إعادة الفحص</translation>
    </message>
    <message id="CopyReport">
        <source>Copy Report</source>
        <translation>نسخ التقرير</translation>
    </message>
    <message id="MarkOk">
        <source>In order</source>
        <translation>سليم</translation>
    </message>
    <message id="MarkBroken">
        <source>Broken</source>
        <translation>معطل</translation>
    </message>
    <message id="MarkUnknown">
        <source>Not known</source>
        <translation>غير معروف</translation>
    </message>
    <message id="MarkSkipped">
        <source>Not checked</source>
        <translation>لم يُفحص</translation>
    </message>
    <message id="Check_settings">
        <source>Settings file</source>
        <translation>ملف الإعدادات</translation>
    </message>
    <message id="Check_keys">
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message id="Check_device">
        <source>Supported device</source>
        <translation>جهاز مدعوم</translation>
    </message>
    <message id="Check_link">
        <source>Network interface</source>
        <translation>واجهة الشبكة</translation>
    </message>
    <message id="Check_address">
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message id="Check_gateway">
        <source>Gateway</source>
        <translation>البوابة</translation>
    </message>
    <message id="Check_port">
        <source>Modem’s web server</source>
        <translation>خادم الويب في المودم</translation>
    </message>
    <message id="Check_page">
        <source>Status page</source>
        <translation>صفحة الحالة</translation>
    </message>
    <message id="Check_connection">
        <source>Connection status</source>
        <translation>حالة الاتصال</translation>
    </message>
    <message id="Check_data">
        <source>Data use and roaming</source>
        <translation>استهلاك البيانات والتجوال</translation>
    </message>
    <message id="Check_session">
        <source>Session for commands</source>
        <translation>جلسة للأوامر</translation>
    </message>
    <message id="Check_profiles">
        <source>Access-point profiles</source>
        <translation>ملفات نقاط الوصول</translation>
    </message>
    <message id="Check_tray">
        <source>Place for the icon</source>
        <translation>مكان الأيقونة</translation>
    </message>
    <message id="Check_notifications">
        <source>Notifications</source>
        <translation>الإشعارات</translation>
    </message>
    <message id="Check_browser">
        <source>Web browser</source>
        <translation>متصفح الويب</translation>
    </message>
    <message id="Check_companion">
        <source>Tarvo itself</source>
        <translation>برنامج Tarvo نفسه</translation>
    </message>
    <message id="FixNoSettings">
        <source>There is no settings file yet. Choose your modem in the list of devices.</source>
        <translation>لا يوجد ملف إعدادات بعد. اختر المودم من قائمة الأجهزة.</translation>
    </message>
    <message id="FixUnreadable">
        <source>%1 cannot be used: %2. Go back to the shipped settings; the file is kept.</source>
        <translation>لا يمكن استخدام %1: %2. ارجع إلى الإعدادات الأصلية؛ يُحفظ الملف.</translation>
    </message>
    <message id="FixNoDevice">
        <source>No USB network device is plugged in. Plug your modem in.</source>
        <translation>لا يوجد جهاز شبكة USB موصول. وصّل المودم.</translation>
    </message>
    <message id="FixUnsupported">
        <source>The settings support none of the USB network devices. Choose your modem in the list of devices.</source>
        <translation>لا تدعم الإعدادات أيًا من أجهزة شبكة USB. اختر المودم من قائمة الأجهزة.</translation>
    </message>
    <message id="FixExcluded">
        <source>%1 is to be left alone. Choose it in the list of devices to use it after all.</source>
        <translation>الجهاز %1 محدد لعدم الاستخدام. اختره من قائمة الأجهزة لاستخدامه رغم ذلك.</translation>
    </message>
    <message id="FixLinkDown">
        <source>The interface %1 is switched off. Switch it on in the network settings of your desktop.</source>
        <translation>الواجهة %1 مطفأة. شغّلها من إعدادات الشبكة في سطح المكتب.</translation>
    </message>
    <message id="FixNoAddress">
        <source>The interface %1 has no IPv4 address. Set its connection to automatic (DHCP) in the network settings.</source>
        <translation>ليس للواجهة %1 عنوان IPv4. اجعل اتصالها تلقائيًا (DHCP) من إعدادات الشبكة.</translation>
    </message>
    <message id="FixNoGateway">
        <source>The interface %1 has no gateway. Let its connection set a default route in the network settings.</source>
        <translation>ليس للواجهة %1 بوابة. اسمح لاتصالها بمسار افتراضي من إعدادات الشبكة.</translation>
    </message>
    <message id="FixHiddenGateway">
        <source>%1 has no gateway, because the default route over %2 has no metric. Give that route a metric.</source>
        <translation>ليس للواجهة %1 بوابة لأن المسار الافتراضي عبر %2 بلا أولوية رقمية. حدد أولوية رقمية لذلك المسار.</translation>
    </message>
    <message id="FixNoAnswer">
        <source>Nothing answers on port 80 of %1. Unplug the modem and plug it in again.</source>
        <translation>لا شيء يجيب على المنفذ 80 في %1. افصل المودم ثم وصّله من جديد.</translation>
    </message>
    <message id="FixNoPage">
        <source>The modem’s page “%1” is empty. Correct “Status page” in the settings.</source>
        <translation>صفحة المودم «%1» فارغة. صحح «صفحة الحالة» في الإعدادات.</translation>
    </message>
    <message id="FixOtherPage">
        <source>The modem’s page “%1” is no status page. Correct “Status page” in the settings.</source>
        <translation>صفحة المودم «%1» ليست صفحة حالة. صحح «صفحة الحالة» في الإعدادات.</translation>
    </message>
    <message id="FixBusy">
        <source>The modem at %1 is busy with another program. Close its pages in the browser and try again. If that does not help, unplug it and plug it in again.</source>
        <translation>المودم على %1 مشغول ببرنامج آخر. أغلق صفحاته في المتصفح وحاول مرة أخرى. إن لم يفد ذلك فافصله ثم وصّله من جديد.</translation>
    </message>
    <message id="FixPassword">
        <source>The modem at %1 asks for a password before it tells its status. Log in on its pages, or switch that off there.</source>
        <translation>يطلب المودم على %1 كلمة مرور قبل أن يخبر بحالته. سجّل الدخول في صفحاته أو أوقف ذلك هناك.</translation>
    </message>
    <message id="FixHttps">
        <source>The modem at %1 answers over https only, which is not supported. Have it answer over http as well, on its pages.</source>
        <translation>يجيب المودم على %1 عبر https فقط، وهذا غير مدعوم. اسمح في صفحاته بالإجابة عبر http أيضًا.</translation>
    </message>
    <message id="FixNoConnection">
        <source>The modem’s page “%1” tells no connection status. Correct the page or the name of the field in the settings.</source>
        <translation>لا تذكر صفحة المودم «%1» حالة الاتصال. صحح الصفحة أو اسم الحقل في الإعدادات.</translation>
    </message>
    <message id="FixNoData">
        <source>The status page lacks these fields, so that data limits cannot be shown: %1</source>
        <translation>تنقص صفحة الحالة هذه الحقول، فلا يمكن عرض حدود البيانات: %1</translation>
    </message>
    <message id="FixNoSession">
        <source>The modem opens no session, so that it takes no commands. Unplug it and plug it in again.</source>
        <translation>لا يفتح المودم جلسة، فلا يقبل أوامر. افصله ثم وصّله من جديد.</translation>
    </message>
    <message id="FixNoProfiles">
        <source>There are no profiles in %1. Install those of your operator, or do not send access points.</source>
        <translation>لا توجد ملفات في %1. ثبّت ملفات المشغّل، أو لا ترسل نقاط الوصول.</translation>
    </message>
    <message id="FixProfiles">
        <source>Not every profile in %1 is in order. Replace those named below.</source>
        <translation>ليست كل الملفات في %1 سليمة. استبدل المذكور منها أدناه.</translation>
    </message>
    <message id="FixNoTray">
        <source>Your desktop shows no status icons. Switch on its tray, or its extension for status icons.</source>
        <translation>لا يعرض سطح المكتب أيقونات الحالة. شغّل علبة النظام أو إضافة أيقونات الحالة.</translation>
    </message>
    <message id="FixNoNotifications">
        <source>Your desktop shows no notifications. Start its notification service.</source>
        <translation>لا يعرض سطح المكتب الإشعارات. شغّل خدمة الإشعارات.</translation>
    </message>
    <message id="FixNoBrowser">
        <source>No browser opens web addresses. Choose a default browser in the settings of your desktop.</source>
        <translation>لا يوجد متصفح يفتح عناوين الويب. اختر متصفحًا افتراضيًا من إعدادات سطح المكتب.</translation>
    </message>
    <message id="FixNotRunning">
        <source>Tarvo is not running. Start it from the menu of your desktop.</source>
        <translation>Tarvo لا يعمل. شغّله من قائمة سطح المكتب.</translation>
    </message>
    <message id="FixOlderSettings">
        <source>Tarvo runs with older settings. Quit it in the menu of its icon, and start it again.</source>
        <translation>يعمل Tarvo بإعدادات أقدم. أنهِه من قائمة أيقونته ثم شغّله من جديد.</translation>
    </message>
    <message id="FaultUnknownKey">
        <source>“%1” is no setting. Correct its spelling, or take it out.</source>
        <translation>«%1» ليس من الإعدادات. صحح كتابته أو احذفه.</translation>
    </message>
    <message id="FaultWrongType">
        <source>“%1” has a value of the wrong type. Enter it again in the settings.</source>
        <translation>قيمة «%1» من نوع خاطئ. أدخلها من جديد في الإعدادات.</translation>
    </message>
    <message id="FaultNumberNeverMatches">
        <source>The number %1 in “%2” never matches. Write it as text.</source>
        <translation>الرقم %1 في «%2» لا يطابق أبدًا. اكتبه كنص.</translation>
    </message>
    <message id="FaultNotDecimal">
        <source>“%1” in “%2” matches no device. Write a decimal number from 0 to 65535.</source>
        <translation>«%1» في «%2» لا يطابق أي جهاز. اكتب رقمًا عشريًا من 0 إلى 65535.</translation>
    </message>
    <message id="FaultNoUrl">
        <source>“%1” is no web address. Write it in full, such as http://www.example.org/.</source>
        <translation>«%1» ليس عنوان ويب. اكتبه كاملًا، مثل http://www.example.org/.</translation>
    </message>
    <message id="FaultNoModemPath">
        <source>“%1” is no page of the modem. Write its path without the address.</source>
        <translation>«%1» ليست صفحة في المودم. اكتب مسارها دون العنوان.</translation>
    </message>
    <message id="FaultNoVendor">
        <source>No maker of modems is named. Choose your modem in the list of devices.</source>
        <translation>لم تُذكر أي شركة لأجهزة المودم. اختر المودم من قائمة الأجهزة.</translation>
    </message>
    <message id="FaultOnlyExampleVendor">
        <source>Only the example %1 is named as a maker. Choose your modem in the list of devices.</source>
        <translation>لم يُذكر سوى المثال %1 كشركة. اختر المودم من قائمة الأجهزة.</translation>
    </message>
    <message id="Saved">
        <source>The settings are saved.</source>
        <translation>حُفظت الإعدادات.</translation>
    </message>
    <message id="NotSaved">
        <source>The settings are not saved: %1</source>
        <translation>لم تُحفظ الإعدادات: %1</translation>
    </message>
    <message id="WasBinary">
        <source>They had the binary form and have the XML form now.</source>
        <translation>كانت بالصيغة الثنائية وأصبحت بصيغة XML.</translation>
    </message>
    <message id="OldFileKept">
        <source>The file that was there before is now %1.</source>
        <translation>الملف السابق هو الآن %1.</translation>
    </message>
    <message id="CompanionRestarts">
        <source>Tarvo starts again with them.</source>
        <translation>يعيد Tarvo التشغيل بها.</translation>
    </message>
    <message id="CompanionNotRunning">
        <source>Tarvo is not running.</source>
        <translation>Tarvo لا يعمل.</translation>
    </message>
    <message id="CompanionUntold">
        <source>Quit Tarvo and start it again, so that it reads them.</source>
        <translation>أنهِ Tarvo ثم شغّله من جديد ليقرأها.</translation>
    </message>
    <message id="SettingsBeingChanged">
        <source>%1: another program is changing these settings. Try again.</source>
        <translation>%1: برنامج آخر يغيّر هذه الإعدادات. حاول مرة أخرى.</translation>
    </message>
    <message id="RootRefuses">
        <source>%1 is not root’s alone, so root writes nothing there. Run tarvo-setup without sudo for your own settings, or with --system for those of all users.</source>
        <translation>%1 ليس ملكًا لـ root وحده، لذا لا يكتب root شيئًا هناك. شغّل tarvo-setup دون sudo لإعداداتك، أو مع --system لإعدادات جميع المستخدمين.</translation>
    </message>
    <message id="RootsSettings">
        <source>These would be the settings of root, not of %1. Run tarvo-setup without sudo for those of %1, or with --system for those of all users.</source>
        <translation>ستكون هذه إعدادات root لا إعدادات %1. شغّل tarvo-setup دون sudo لإعدادات %1، أو مع --system لإعدادات جميع المستخدمين.</translation>
    </message>
    <message id="CannotBeChanged">
        <source>%1 cannot be changed in this way.</source>
        <translation>لا يمكن تغيير %1 بهذه الطريقة.</translation>
    </message>
    <message id="ForceStartsAfresh">
        <source>With --force, the shipped settings are the start.</source>
        <translation>مع --force تكون الإعدادات الأصلية هي البداية.</translation>
    </message>
    <message id="LinkDown">
        <source>switched off</source>
        <translation>مطفأة</translation>
    </message>
    <message id="UseCommand">
        <source>to use it: %1</source>
        <translation>لاستخدامه: %1</translation>
    </message>
    <message id="NeedsForce">
        <source>%1 is the number of no modem. “tarvo-setup list” shows yours; with --force it is taken all the same.</source>
        <translation>%1 ليس رقم أي مودم. يعرض الأمر «tarvo-setup list» رقم جهازك؛ ومع --force يُقبل على أي حال.</translation>
    </message>
    <message id="NotPluggedIn">
        <source>No device %1 is plugged in.</source>
        <translation>لا يوجد جهاز %1 موصول.</translation>
    </message>
    <message id="OutputLost">
        <source>The output could not be written.</source>
        <translation>تعذّرت كتابة المخرجات.</translation>
    </message>
    <message id="SettingsAreIn">
        <source>The settings in force are in %1.</source>
        <translation>الإعدادات السارية موجودة في %1.</translation>
    </message>
    <message id="CompanionStarted">
        <source>Tarvo has been started.</source>
        <translation>شُغّل Tarvo.</translation>
    </message>
    <message id="CompanionNotFound">
        <source>Tarvo cannot be started: it is not installed.</source>
        <translation>لا يمكن تشغيل Tarvo: ليس مثبتًا.</translation>
    </message>
    <message id="StartCompanion">
        <source>Start Tarvo</source>
        <translation>تشغيل Tarvo</translation>
    </message>
    <message id="AskStartAfresh">
        <source>%1

The settings cannot be read. Start afresh from the shipped settings? The file is kept beside the new one.</source>
        <translation>%1

لا يمكن قراءة الإعدادات. أتريد البدء من جديد بالإعدادات الأصلية؟ يُحفظ الملف بجانب الجديد.</translation>
    </message>
    <message id="StartAfresh">
        <source>Start Afresh</source>
        <translation>البدء من جديد</translation>
    </message>
    <message id="AskReset">
        <source>Go back to the settings that Tarvo is shipped with? Your file is kept.</source>
        <translation>أتريد الرجوع إلى الإعدادات الأصلية المرفقة مع Tarvo؟ يُحفظ ملفك.</translation>
    </message>
    <message id="ShippedSettings">
        <source>Shipped Settings</source>
        <translation>الإعدادات الأصلية</translation>
    </message>
    <message id="AskDiscard">
        <source>Some settings are changed and not saved. Discard the changes?</source>
        <translation>تغيرت بعض الإعدادات ولم تُحفظ. أتريد تجاهل التغييرات؟</translation>
    </message>
    <message id="DiscardChanges">
        <source>Discard Changes</source>
        <translation>تجاهل التغييرات</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message id="GroupStart">
        <source>Start</source>
        <translation>البدء</translation>
    </message>
    <message id="StartAtLogin">
        <source>Start Tarvo at login</source>
        <translation>تشغيل Tarvo عند تسجيل الدخول</translation>
    </message>
    <message id="GroupDevices">
        <source>Devices</source>
        <translation>الأجهزة</translation>
    </message>
    <message id="GroupIcon">
        <source>Icon</source>
        <translation>الأيقونة</translation>
    </message>
    <message id="GroupModem">
        <source>Modem</source>
        <translation>المودم</translation>
    </message>
    <message id="GroupPages">
        <source>Web pages</source>
        <translation>صفحات الويب</translation>
    </message>
    <message id="GroupAccessPoints">
        <source>Access points</source>
        <translation>نقاط الوصول</translation>
    </message>
    <message id="ShippedOn">
        <source>Shipped: on.</source>
        <translation>الأصل: مفعّل.</translation>
    </message>
    <message id="ShippedOff">
        <source>Shipped: off.</source>
        <translation>الأصل: معطّل.</translation>
    </message>
    <message id="ShippedNone">
        <source>Shipped: none.</source>
        <translation>الأصل: لا شيء.</translation>
    </message>
    <message id="ShippedText">
        <source>Shipped: %1</source>
        <translation>الأصل: %1</translation>
    </message>
    <message id="Setting_vendor_ids">
        <source>Makers of supported modems</source>
        <translation>شركات أجهزة المودم المدعومة</translation>
    </message>
    <message id="Explain_vendor_ids">
        <source>USB vendor numbers, in decimal, with commas between them.</source>
        <translation>أرقام شركات USB، بالنظام العشري، تفصل بينها فواصل.</translation>
    </message>
    <message id="Setting_product_ids">
        <source>Products</source>
        <translation>المنتجات</translation>
    </message>
    <message id="Explain_product_ids">
        <source>USB product numbers, for reference only: every product of a supported maker is used.</source>
        <translation>أرقام منتجات USB، للعلم فقط: يُستخدم كل منتج من شركة مدعومة.</translation>
    </message>
    <message id="Setting_eliminate_product_ids">
        <source>Products to leave alone</source>
        <translation>المنتجات غير المستخدمة</translation>
    </message>
    <message id="Explain_eliminate_product_ids">
        <source>USB product numbers, in decimal, of devices that are left alone although their maker is supported.</source>
        <translation>أرقام منتجات USB، بالنظام العشري، لأجهزة لا تُستخدم رغم أن شركتها مدعومة.</translation>
    </message>
    <message id="Setting_IsDisplayNetStatusInToolBar">
        <source>Show the modem’s status</source>
        <translation>عرض حالة المودم</translation>
    </message>
    <message id="Explain_IsDisplayNetStatusInToolBar">
        <source>The icon, its changes, and the messages under it.</source>
        <translation>الأيقونة وتغيراتها والرسائل تحتها.</translation>
    </message>
    <message id="Setting_DonotShowStatusWhenMouseMoveIn">
        <source>No messages when the pointer is on the icon</source>
        <translation>لا رسائل عند وجود المؤشر على الأيقونة</translation>
    </message>
    <message id="Explain_DonotShowStatusWhenMouseMoveIn">
        <source>News is still shown when it comes.</source>
        <translation>تظهر الأخبار رغم ذلك عند ورودها.</translation>
    </message>
    <message id="Setting_NeedDisplayWhenDeviceRemoved">
        <source>Keep the icon without a modem</source>
        <translation>إبقاء الأيقونة دون مودم</translation>
    </message>
    <message id="Explain_NeedDisplayWhenDeviceRemoved">
        <source>Otherwise the icon goes when the modem is removed.</source>
        <translation>وإلا اختفت الأيقونة مع المودم.</translation>
    </message>
    <message id="Setting_AddRefererIntoHttpHeader">
        <source>Send the page’s own address with each request</source>
        <translation>إرسال عنوان الصفحة نفسها مع كل طلب</translation>
    </message>
    <message id="Explain_AddRefererIntoHttpHeader">
        <source>Modems that guard their pages answer nothing without it.</source>
        <translation>أجهزة المودم التي تحمي صفحاتها لا تجيب دونه.</translation>
    </message>
    <message id="Setting_NetInfoAddress">
        <source>Status page</source>
        <translation>صفحة الحالة</translation>
    </message>
    <message id="Explain_NetInfoAddress">
        <source>The page of the modem that is read every second.</source>
        <translation>صفحة المودم التي تُقرأ كل ثانية.</translation>
    </message>
    <message id="Setting_ConnectModeAddress">
        <source>Page of the dial mode</source>
        <translation>صفحة نمط الاتصال</translation>
    </message>
    <message id="Explain_ConnectModeAddress">
        <source>The page that tells how the modem dials.</source>
        <translation>الصفحة التي تذكر كيف يتصل المودم.</translation>
    </message>
    <message id="Setting_NeedManualSetConnectStatus">
        <source>Read the connection status from the field below only</source>
        <translation>قراءة حالة الاتصال من الحقل أدناه فقط</translation>
    </message>
    <message id="Explain_NeedManualSetConnectStatus">
        <source>Otherwise the usual fields are read.</source>
        <translation>وإلا قُرئت الحقول المعتادة.</translation>
    </message>
    <message id="Setting_ConnectStatusKey">
        <source>Field of the connection status</source>
        <translation>حقل حالة الاتصال</translation>
    </message>
    <message id="Explain_ConnectStatusKey">
        <source>The name and what follows it up to the opening quote.</source>
        <translation>الاسم وما يليه حتى علامة الاقتباس الأولى.</translation>
    </message>
    <message id="Setting_ConnectedStatusValue">
        <source>Status that means connected</source>
        <translation>الحالة التي تعني «متصل»</translation>
    </message>
    <message id="Explain_ConnectedStatusValue">
        <source>In addition to the usual ones.</source>
        <translation>إضافة إلى الحالات المعتادة.</translation>
    </message>
    <message id="Setting_NeedDialModeJudge">
        <source>Look at the dial mode</source>
        <translation>مراعاة نمط الاتصال</translation>
    </message>
    <message id="Explain_NeedDialModeJudge">
        <source>Whether the modem dials by itself.</source>
        <translation>هل يتصل المودم من تلقاء نفسه.</translation>
    </message>
    <message id="Setting_ManualDialKey">
        <source>Field of the dial mode</source>
        <translation>حقل نمط الاتصال</translation>
    </message>
    <message id="Explain_ManualDialKey">
        <source>Tried before the usual one.</source>
        <translation>يُجرَّب قبل الحقل المعتاد.</translation>
    </message>
    <message id="Setting_NeedCheckFotaUpdate">
        <source>Look for new firmware</source>
        <translation>البحث عن برنامج ثابت جديد</translation>
    </message>
    <message id="Explain_NeedCheckFotaUpdate">
        <source>The modem is asked when it is connected.</source>
        <translation>يُسأل المودم عندما يكون متصلًا.</translation>
    </message>
    <message id="Setting_OperatorHomePage">
        <source>Home page of the operator</source>
        <translation>الصفحة الرئيسية للمشغّل</translation>
    </message>
    <message id="Explain_OperatorHomePage">
        <source>If empty, the modem’s own pages are opened. In addresses, %@ stands for the modem.</source>
        <translation>إن كانت فارغة فُتحت صفحات المودم. في العناوين يرمز ⁦%@⁩ إلى المودم.</translation>
    </message>
    <message id="Setting_WebUISmsPage">
        <source>Page of text messages</source>
        <translation>صفحة الرسائل النصية</translation>
    </message>
    <message id="Explain_WebUISmsPage">
        <source>If empty, nothing is opened.</source>
        <translation>إن كانت فارغة لم يُفتح شيء.</translation>
    </message>
    <message id="Setting_FotaNewVersionHomePage">
        <source>Page about new firmware</source>
        <translation>صفحة البرنامج الثابت الجديد</translation>
    </message>
    <message id="Explain_FotaNewVersionHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>إن كانت فارغة لم يُفتح شيء.</translation>
    </message>
    <message id="Setting_DateLimitHomePage">
        <source>Page about a reached data limit</source>
        <translation>صفحة بلوغ حد البيانات</translation>
    </message>
    <message id="Explain_DateLimitHomePage">
        <source>If empty, nothing is opened.</source>
        <translation>إن كانت فارغة لم يُفتح شيء.</translation>
    </message>
    <message id="Setting_ProvisionAccessPoints">
        <source>Send access points to the modem</source>
        <translation>إرسال نقاط الوصول إلى المودم</translation>
    </message>
    <message id="Explain_ProvisionAccessPoints">
        <source>For operators that install profiles. Without profiles the modem’s default would become blank.</source>
        <translation>للمشغّلين الذين يثبّتون ملفات نقاط الوصول. دونها تصبح نقطة الوصول الافتراضية للمودم فارغة.</translation>
    </message>
    <message id="Setting_WebDefaultApnProfileName">
        <source>Access points that the modem has</source>
        <translation>نقاط الوصول الموجودة في المودم</translation>
    </message>
    <message id="Explain_WebDefaultApnProfileName">
        <source>The names of their profiles in order, with semicolons between them.</source>
        <translation>أسماء ملفاتها بالترتيب، تفصل بينها فواصل منقوطة.</translation>
    </message>
</context>
</TS>
