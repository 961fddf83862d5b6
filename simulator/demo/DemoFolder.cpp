#include "simulator/demo/DemoFolder.h"

#include "apn/ProfileSelection.h"

#include <QDir>
#include <QFile>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {
// The vendor is the one of the shipped example, so that the demo's modem is unknown at first.
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
    <key>vendor_ids</key><array><string>4660</string></array>
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
