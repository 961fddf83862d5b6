#include "apn/DefaultApn.h"

#include "modemapi/JsonValues.h"

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
        const ParsedObject parsed = parseJsonObject(record);
        if (!parsed.object) {
            search.problems.append(u"apn dictionary: (null), json Error: "_s + parsed.error);
            continue;
        }
        const QString profile = parsed.object->value(u"profile").toString();
        if (profile.isEmpty())
            continue;
        search.anyNamed = true;
        if (profile == name) {
            search.index = static_cast<int>(integerValue(parsed.object->value(u"index")));
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
                            const QStringList &records, const QList<ListedApn> &taken)
{
    const bool isNamed = name && !name->isEmpty();
    const auto position = static_cast<int>(isNamed ? webDefaults.indexOf(*name) : -1);
    if (position > 0)
        return {position};

    RecordSearch search = searchRecords(name, records);
    const bool wasRefused = search.index && !hasProfile(taken, *name);
    if (wasRefused)
        search.index.reset();
    const int index = search.index.value_or(records.isEmpty() ? -1 : position);
    if (index >= 0 || wasRefused)
        return {index, false, search.problems};
    if (isNamed)
        return {notFoundApnIndex, true, search.problems};
    return {search.anyNamed ? unnamedApnIndex : 0, false, search.problems};
}

} // namespace tarvo
