#include "setup/settings/Autostart.h"

#include "platform/WholeFile.h"
#include "setup/settings/RootRights.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStandardPaths>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostBytes = 64 << 10;

/// One line of an entry's main group that says whether it is started.
struct Line {
    QByteArray key;
    QByteArray valueWhenOn;
    QByteArray valueWhenOff;
};

const Line lines[] = {{"Hidden", "false", "true"}, {"X-GNOME-Autostart-enabled", "true", "false"}};

bool isMainGroup(const QByteArray &line)
{
    return line.trimmed() == "[Desktop Entry]";
}

QByteArray keyOf(const QByteArray &line)
{
    return line.left(line.indexOf('=')).trimmed();
}

QByteArray valueOf(const QByteArray &line)
{
    return line.mid(line.indexOf('=') + 1).trimmed();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.read(mostBytes) : QByteArray();
}

/// @return the companion's autostart entries, the one that counts first
QStringList entryPaths()
{
    for (const QString &name : {u"io.github.tarvo.Tarvo.desktop"_s, u"tarvo.desktop"_s}) {
        const QStringList found =
            QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, u"autostart/"_s + name);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

/// @return the first entry that names a program: some desktops hide one by a copy that says nothing but that
QByteArray startableEntry(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (const QByteArray entry = read(path); entry.contains("\nExec"))
            return entry;
    }
    return read(paths.value(0));
}

} // namespace

bool startsAtLogin(const QByteArray &entry)
{
    bool isMain = false;
    for (const QByteArray &line : entry.split('\n')) {
        if (line.startsWith('['))
            isMain = isMainGroup(line);
        for (const Line &known : lines) {
            if (isMain && keyOf(line) == known.key && valueOf(line) == known.valueWhenOff)
                return false;
        }
    }
    return true;
}

QByteArray withStartAtLogin(const QByteArray &entry, bool starts)
{
    QList<QByteArray> result;
    bool isMain = false;
    for (const QByteArray &line : entry.split('\n')) {
        if (line.startsWith('['))
            isMain = isMainGroup(line);
        const bool isReplaced = isMain && (keyOf(line) == lines[0].key || keyOf(line) == lines[1].key);
        if (!isReplaced)
            result.append(line);
        for (const Line &known : lines) {
            if (isMainGroup(line))
                result.append(known.key + '=' + (starts ? known.valueWhenOn : known.valueWhenOff));
        }
    }
    return result.join('\n');
}

std::optional<bool> Autostart::isOn() const
{
    const QStringList paths = entryPaths();
    return paths.isEmpty() ? std::nullopt : std::optional(startsAtLogin(read(paths.first())));
}

QString Autostart::set(bool on) const
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart"_s;
    const QByteArray entry = withStartAtLogin(startableEntry(entryPaths()), on);
    const QString path = folder + u'/' + QFileInfo(entryPaths().value(0)).fileName();
    if (const QString refusal = rootRefusal(path, Scope::User); !refusal.isEmpty())
        return refusal;
    QDir().mkpath(folder); // where that fails, so does the writing
    const QString problem = writeWholeFile(path, entry);
    return problem.isEmpty() ? problem : u"%1: %2"_s.arg(path, problem);
}

} // namespace tarvo
