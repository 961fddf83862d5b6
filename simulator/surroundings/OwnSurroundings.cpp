#include "simulator/surroundings/OwnSurroundings.h"

#include <QProcessEnvironment>
#include <QStringList>

#include <sys/stat.h>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// How programs, their libraries and temporary files are found, and what sanitizers and the test framework are told.
bool isKept(const QString &name)
{
    static const QStringList kept{u"PATH"_s, u"TMPDIR"_s, u"LD_LIBRARY_PATH"_s, u"LD_PRELOAD"_s, u"MALLOC_PERTURB_"_s};
    return kept.contains(name) || name.endsWith(u"_OPTIONS") || name.startsWith(u"GTEST_");
}

void forgetEnvironment()
{
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString &name : names) {
        if (!isKept(name))
            qunsetenv(name.toLocal8Bit().constData());
    }
}

} // namespace

OwnSurroundings::OwnSurroundings()
{
    forgetEnvironment();
    for (const char *const name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME",
                                   "XDG_RUNTIME_DIR", "XDG_CONFIG_DIRS", "XDG_DATA_DIRS"}) {
        const QString folder = m_folder.filePath(QLatin1StringView(name));
        QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(name, QFile::encodeName(folder));
    }
    for (const char *const name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        qputenv(name, "disabled:");
    qputenv("LC_ALL", "C.UTF-8");
    umask(022);
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace tarvo
