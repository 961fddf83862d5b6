#include "apn/DefaultApn.h"

#include "modemapi/JsonValues.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// What the records have to say about the name.
struct RecordSearch {
    std::optional<int> index; ///< of the record that has the name
    bool anyNamed = false;
    QStringList problems{};
};

RecordSearch searchRecords(const std::optional<QString> &name, const QStringList &records)
{
    RecordSearch search;
    for (const QString &record : records) {
        if (record.isEmpty())
            continue;
        const ParsedJson parsed = parseJson(record);
        if (!parsed.document) {
            search.problems.append(u"apn dictionary: (null), json Error: "_s + parsed.error);
            continue;
        }
        const QJsonObject fields = parsed.document->object();
        const QString profile = fields.value(u"profile").toString();
        if (profile.isEmpty())
            continue;
        search.anyNamed = true;
        if (profile == name) {
            search.index = static_cast<int>(integerValue(fields.value(u"index")));
            break;
        }
    }
    return search;
}

} // namespace

QString notFoundApnTemplate()
{
    return uR"({ "index": 199,"isPC":1,"isWeb":0,"pdp_type": 1,"profile": "PC_PROFILE_NAME","apn": "","auth": 1,)"
           R"("username": "","password": "","dns_mode": 0,"prefer_dns": "","standby_dns": "",)"
           R"("ipv6_prefer_dns": "","ipv6_standby_dns": ""})"_s;
}

DefaultApn chooseDefaultApn(const std::optional<QString> &name, const QStringList &webDefaults,
                            const QStringList &records)
{
    const bool isNamed = name && !name->isEmpty();
    const auto position = static_cast<int>(isNamed ? webDefaults.indexOf(*name) : -1);
    if (position > 0)
        return {position};

    const RecordSearch search = searchRecords(name, records);
    const int index = search.index.value_or(records.isEmpty() ? -1 : position);
    if (index >= 0)
        return {index, false, search.problems};
    if (isNamed)
        return {notFoundApnIndex, true, search.problems};
    return {search.anyNamed ? unnamedApnIndex : 0, false, search.problems};
}

} // namespace tarvo
