#include "platform/linux/DesktopEntry.h"

#include <QMap>
#include <QString>

#include <optional>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString execLine(const QByteArray &contents)
{
    bool inMainGroup = false;
    for (const QByteArray &line : contents.split('\n')) {
        if (line.startsWith('['))
            inMainGroup = line.trimmed() == "[Desktop Entry]";
        const qsizetype equals = line.indexOf('=');
        if (inMainGroup && equals > 0 && line.first(equals).trimmed() == "Exec")
            return QString::fromUtf8(line.sliced(equals + 1)).trimmed();
    }
    return {};
}

/// Undoes the escapes that every text of a desktop file may have.
QString unescaped(const QString &text)
{
    static const QMap<QChar, QChar> escapes{{u's', u' '}, {u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u'\\', u'\\'}};
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' && i + 1 < text.size() && escapes.contains(text[i + 1]))
            result += escapes[text[++i]];
        else
            result += text[i];
    }
    return result;
}

/// Takes the first argument off @p rest. @return nil when there is none or its quotes do not close
std::optional<QString> takeArgument(QString &rest)
{
    rest = rest.trimmed();
    if (rest.isEmpty())
        return std::nullopt;
    QString argument;
    bool quoted = false;
    qsizetype i = 0;
    for (; i < rest.size() && (quoted || !rest[i].isSpace()); ++i) {
        if (rest[i] == u'"')
            quoted = !quoted;
        else if (quoted && rest[i] == u'\\' && i + 1 < rest.size())
            argument += rest[++i];
        else if (rest[i] == u'%' && i + 1 < rest.size())
            argument += rest[++i] == u'%' ? u"%"_s : QString();
        else
            argument += rest[i];
    }
    rest.remove(0, i);
    return quoted ? std::nullopt : std::optional(argument);
}

} // namespace

QStringList commandOfDesktopEntry(const QByteArray &contents)
{
    QStringList command;
    for (QString rest = unescaped(execLine(contents)); !rest.trimmed().isEmpty();) {
        const bool isFieldCode = rest.trimmed().startsWith(u'%') && !rest.trimmed().startsWith(u"%%");
        const auto argument = takeArgument(rest);
        if (!argument)
            return {};
        if (!isFieldCode || !argument->isEmpty())
            command.append(*argument);
    }
    return command;
}

} // namespace tarvo
