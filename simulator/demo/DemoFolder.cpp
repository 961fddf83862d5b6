#include "simulator/demo/DemoFolder.h"

#include "apn/ProfileSelection.h"

#include <QDir>
#include <QFile>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {
// Vendor 4661 is 0x1235, which no maker has.
const QString settings = uR"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
  <key>IsDisplayNetStatusInToolBar</key><true/>
  <key>NeedDisplayWhenDeviceRemoved</key><true/>
  <key>AddRefererIntoHttpHeader</key><false/>
  <key>NeedCheckFotaUpdate</key><true/>
  <key>OperatorHomePage</key><string>http://%1/</string>
  <key>WebUISmsPage</key><string>http://%1/messages</string>
  <key>FotaNewVersionHomePage</key><string>http://%1/firmware</string>
  <key>DateLimitHomePage</key><string>http://%1/data</string>
  <key>WebDefaultApnProfileName</key><string>Internet</string>
  <key>device_info</key>
  <dict>
    <key>vendor_ids</key><array><string>4661</string></array>
  </dict>
</dict>
</plist>
)"_s;
} // namespace

DemoFolder::DemoFolder()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
    APN_ROOT = TARVO_DEMO_PROFILE_FOLDER;
    APN_TOTAL_PROFILE = TARVO_DEMO_PROFILE_FOLDER "profile.xml";
}

bool DemoFolder::writeSettings(const QString &authority) const
{
    QDir(m_folder.path()).mkpath(u"tarvo"_s);
    QFile file(m_folder.filePath(u"tarvo/Config.plist"_s));
    const QByteArray text = settings.arg(authority).toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace tarvo
