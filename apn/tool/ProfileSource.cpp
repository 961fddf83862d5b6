#include "apn/tool/ProfileSource.h"

#include "apn/ProfileDecoding.h"
#include "modemapi/JsonValues.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <iterator>

namespace tarvo {

namespace {

enum class Kind { Integer, Text };

struct RecordKey {
    QStringView name;
    Kind kind;
};

constexpr std::array recordKeys = {
    RecordKey{u"index", Kind::Integer},        RecordKey{u"isPC", Kind::Integer},
    RecordKey{u"isWeb", Kind::Integer},        RecordKey{u"pdp_type", Kind::Integer},
    RecordKey{u"profile", Kind::Text},         RecordKey{u"apn", Kind::Text},
    RecordKey{u"auth", Kind::Integer},         RecordKey{u"username", Kind::Text},
    RecordKey{u"password", Kind::Text},        RecordKey{u"dns_mode", Kind::Integer},
    RecordKey{u"prefer_dns", Kind::Text},      RecordKey{u"standby_dns", Kind::Text},
    RecordKey{u"ipv6_prefer_dns", Kind::Text}, RecordKey{u"ipv6_standby_dns", Kind::Text},
};

bool isInteger(const QJsonValue &value)
{
    static const QRegularExpression integer(QStringLiteral("^-?[0-9]+$"));
    if (value.isString())
        return integer.match(value.toString()).hasMatch();
    return value.isDouble() && value.toInteger(0) == value.toInteger(1);
}

QString keyProblem(const QJsonObject &record, const RecordKey &key)
{
    const QJsonValue value = record.value(key.name);
    if (value.isUndefined())
        return QStringLiteral("key \"%1\" is missing").arg(key.name);
    if (key.kind == Kind::Integer && !isInteger(value))
        return QStringLiteral("\"%1\" is no integer").arg(key.name);
    if (key.kind == Kind::Text && !value.isString())
        return QStringLiteral("\"%1\" is no text").arg(key.name);
    return {};
}

bool isKnown(const QString &name)
{
    return std::any_of(recordKeys.begin(), recordKeys.end(), [&](const RecordKey &key) { return key.name == name; });
}

QStringList keyProblems(const QJsonObject &record)
{
    QStringList problems;
    for (const RecordKey &key : recordKeys)
        problems.append(keyProblem(record, key));
    for (const QString &name : record.keys()) {
        if (!isKnown(name))
            problems.append(QStringLiteral("key \"%1\" is unknown").arg(name));
    }
    if (record.value(u"profile").toString(QStringLiteral("-")).isEmpty())
        problems.append(QStringLiteral("\"profile\" is empty"));
    problems.removeAll(QString());
    return problems;
}

/// A record goes to the modem inside a form (HTML, URL-encoded form data), where these have a meaning.
QStringList formProblems(const QString &record)
{
    QStringList problems;
    for (const QChar reserved : QStringView(u"&+%")) {
        if (record.contains(reserved))
            problems.append(QStringLiteral("'%1' does not reach the modem; write it as \\u%2")
                                .arg(reserved)
                                .arg(reserved.unicode(), 4, 16, QLatin1Char('0')));
    }
    return problems;
}

QString withoutLineBreaks(const QString &json)
{
    QString line; // JSON texts and numbers never go over a line's end
    for (const QString &piece : json.split(u'\n'))
        line += piece.trimmed();
    return line;
}

ProfileSource nameList(const QJsonArray &values)
{
    ProfileSource source{{}, true};
    QStringList names;
    for (const QJsonValue &value : values) {
        if (!value.isString())
            source.problems.append(QStringLiteral("the list holds something that is no text"));
        names.append(value.toString());
        source.problems.append(nameProblems(names.last()));
    }
    if (names.isEmpty())
        source.problems.append(QStringLiteral("the list is empty"));
    if (names.removeDuplicates() > 0)
        source.problems.append(QStringLiteral("a name is there twice"));
    source.text = names.join(u'*');
    return source;
}

} // namespace

QStringList recordProblems(const QString &record)
{
    const ParsedJson parsed = parseJson(record);
    if (!parsed.document)
        return {QStringLiteral("it is no JSON: ") + parsed.error};
    if (!parsed.document->isObject())
        return {QStringLiteral("it is no JSON object")};
    return keyProblems(parsed.document->object()) + formProblems(record);
}

QStringList nameProblems(const QString &name)
{
    if (name.isEmpty())
        return {QStringLiteral("a name is empty")};
    if (name.contains(u'*') || name.contains(u'/'))
        return {QStringLiteral("name \"%1\" holds '*' or '/'").arg(name)};
    if (getFileNameFromAbsolutePath(name + QStringLiteral(".xml")) != name)
        return {QStringLiteral("name \"%1\" holds \"xml\", where the companion cuts it").arg(name)};
    return {};
}

ProfileSource readSource(const QString &json)
{
    const ParsedJson parsed = parseJson(json);
    if (parsed.document && parsed.document->isArray())
        return nameList(parsed.document->array());
    const QString record = withoutLineBreaks(json);
    return {record, false, recordProblems(record)};
}

} // namespace tarvo
