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

using namespace Qt::StringLiterals;

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
    static const QRegularExpression integer(u"^-?[0-9]+$"_s);
    if (value.isString())
        return integer.match(value.toString()).hasMatch();
    return value.isDouble() && value.toInteger(0) == value.toInteger(1);
}

QString keyProblem(const QJsonObject &record, const RecordKey &key)
{
    const QJsonValue value = record.value(key.name);
    if (value.isUndefined())
        return u"key \"%1\" is missing"_s.arg(key.name);
    if (key.kind == Kind::Integer && !isInteger(value))
        return u"\"%1\" is no integer"_s.arg(key.name);
    if (key.kind == Kind::Text && !value.isString())
        return u"\"%1\" is no text"_s.arg(key.name);
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
            problems.append(u"key \"%1\" is unknown"_s.arg(name));
    }
    if (record.value(u"profile").toString(u"-"_s).isEmpty())
        problems.append(u"\"profile\" is empty"_s);
    problems.removeAll(QString());
    return problems;
}

/// A record goes to the modem inside a form (HTML, URL-encoded form data), where these have a meaning.
QStringList formProblems(const QString &record)
{
    QStringList problems;
    for (const QChar reserved : QStringView(u"&+%")) {
        if (record.contains(reserved))
            problems.append(u"'%1' does not reach the modem; write it as \\u%2"_s.arg(reserved).arg(
                reserved.unicode(), 4, 16, QLatin1Char('0')));
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
    for (const QJsonValue value : values) {
        if (!value.isString())
            source.problems.append(u"the list holds something that is no text"_s);
        names.append(value.toString());
        source.problems.append(nameProblems(names.last()));
    }
    if (names.isEmpty())
        source.problems.append(u"the list is empty"_s);
    if (names.removeDuplicates() > 0)
        source.problems.append(u"a name is there twice"_s);
    source.text = names.join(u'*');
    return source;
}

} // namespace

QStringList recordProblems(const QString &record)
{
    const ParsedJson parsed = parseJson(record);
    if (!parsed.document)
        return {u"it is no JSON: "_s + parsed.error};
    if (!parsed.document->isObject())
        return {u"it is no JSON object"_s};
    return keyProblems(parsed.document->object()) + formProblems(record);
}

QStringList nameProblems(const QString &name)
{
    if (name.isEmpty())
        return {u"a name is empty"_s};
    if (name.contains(u'*') || name.contains(u'/'))
        return {u"name \"%1\" holds '*' or '/'"_s.arg(name)};
    if (getFileNameFromAbsolutePath(name + u".xml"_s) != name)
        return {u"name \"%1\" holds \"xml\", where the companion cuts it"_s.arg(name)};
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
