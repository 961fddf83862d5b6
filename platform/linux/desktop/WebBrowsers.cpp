#include "platform/linux/desktop/WebBrowsers.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostBytes = 256 << 10; // of an entry

/// @return whether @p command, which may be quoted and have arguments, can be started
bool canStart(const QString &command)
{
    const QString program = QProcess::splitCommand(command).value(0);
    return !program.isEmpty() && !QStandardPaths::findExecutable(program).isEmpty();
}

bool looksForABrowser(const QString &command)
{
    static const QStringList programs{u"exo-open"_s, u"gio"_s, u"sensible-browser"_s, u"xdg-open"_s};
    return programs.contains(QFileInfo(QProcess::splitCommand(command).value(0)).fileName());
}

/// @return the value of the first @p key in an entry's @p lines, where its main group stands
QString valueOf(const QStringList &lines, QStringView key)
{
    const auto line = std::ranges::find_if(
        lines, [key](const QString &candidate) { return candidate.section(u'=', 0, 0).trimmed() == key; });
    return line == lines.end() ? QString() : line->section(u'=', 1).trimmed();
}

bool isBrowserEntry(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QStringList lines = QString::fromUtf8(file.read(mostBytes)).split(u'\n');
    const QString command = valueOf(lines, u"Exec");
    return valueOf(lines, u"MimeType").split(u';').contains(u"x-scheme-handler/http") && canStart(command)
        && !looksForABrowser(command);
}

bool hasBrowserEntry(const QString &folder)
{
    QDirIterator entries(folder, {u"*.desktop"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        if (isBrowserEntry(entries.next()))
            return true;
    }
    return false;
}

} // namespace

bool isWebBrowserInstalled()
{
    const QStringList named = qEnvironmentVariable("BROWSER").split(u':') + QStringList{u"x-www-browser"_s};
    return std::ranges::any_of(named, canStart)
        || std::ranges::any_of(QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation),
                               hasBrowserEntry);
}

} // namespace tarvo
