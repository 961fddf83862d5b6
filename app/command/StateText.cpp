#include "app/command/StateText.h"

#include "platform/LogLine.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QStringList>

#include <optional>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString stateOf(const QVariantMap &state)
{
    return state.isEmpty() ? u"not-running"_s : state.value(u"State"_s).toString();
}

QString summaryOf(const QVariantMap &state)
{
    return state.isEmpty() ? u"Tarvo is not running"_s : state.value(u"Summary"_s).toString();
}

/// @return what a property that may be unknown holds
std::optional<quint64> known(const QVariantMap &state, const QString &name)
{
    const QVariantMap value = state.value(name).toMap();
    return value.isEmpty() ? std::nullopt : std::optional(value.value(u"Value"_s).toULongLong());
}

QJsonObject asJson(const QVariantMap &state)
{
    QJsonObject object{{u"State"_s, stateOf(state)}};
    for (auto property = state.cbegin(); property != state.cend(); ++property) {
        const bool mayBeUnknown = property->typeId() == QMetaType::QVariantMap;
        const QVariantMap value = property->toMap();
        if (mayBeUnknown && value.isEmpty())
            object.insert(property.key(), QJsonValue::Null);
        else if (mayBeUnknown && value.contains(u"Value"_s))
            object.insert(property.key(), QJsonValue::fromVariant(value.value(u"Value"_s)));
        else
            object.insert(property.key(), QJsonValue::fromVariant(*property));
    }
    return object;
}

/// @return the summary, and the last news, each with the time of day at which it was told
QStringList tipOf(const QVariantMap &state)
{
    constexpr qsizetype most = 3;
    QStringList lines{summaryOf(state)};
    for (const QVariant &each : state.value(u"News"_s).toList().mid(0, most)) {
        const QVariantMap news = each.toMap();
        const QTime time = QDateTime::fromSecsSinceEpoch(news.value(u"Time"_s).toLongLong()).time();
        lines.append(QLocale().toString(time, QLocale::ShortFormat) + u"  "_s + news.value(u"Text"_s).toString());
    }
    return lines;
}

QString amountText(quint64 bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeTraditionalFormat);
}

/// The bar takes texts as Pango markup.
QJsonObject forWaybar(const QVariantMap &state)
{
    const auto used = known(state, u"MonthUsed"_s);
    const auto limit = known(state, u"MonthLimit"_s);
    QJsonArray classes{stateOf(state)};
    if (state.value(u"FirmwareOffered"_s).toBool())
        classes.append(u"firmware"_s);
    if (used && limit && *used > *limit)
        classes.append(u"over-limit"_s);
    QJsonObject object{{u"text"_s, used ? amountText(*used) : QString()},
                       {u"alt"_s, stateOf(state)},
                       {u"tooltip"_s, tipOf(state).join(u'\n').toHtmlEscaped()},
                       {u"class"_s, classes}};
    if (used && limit && *limit > 0)
        object.insert(
            u"percentage"_s,
            static_cast<int>(std::min<double>(100, 100.0 * static_cast<double>(*used) / static_cast<double>(*limit))));
    return object;
}

} // namespace

QByteArray stateText(const QVariantMap &state, StateForm form)
{
    if (form == StateForm::Line)
        return escapedText(summaryOf(state));
    return QJsonDocument(form == StateForm::Json ? asJson(state) : forWaybar(state)).toJson(QJsonDocument::Compact);
}

bool isConnected(const QVariantMap &state)
{
    return stateOf(state) == u"connected";
}

} // namespace tarvo
