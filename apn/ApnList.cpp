#include "apn/ApnList.h"

#include "modemapi/JsonValues.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

ListedApn apnOf(const QJsonObject &fields)
{
    return {fields.value("profile"_L1).toString(), integerValue(fields.value("index"_L1))};
}

} // namespace

ApnList readApnList(const QString &answer)
{
    const ParsedObject parsed = parseJsonObject(answer);
    if (!parsed.object)
        return {{}, parsed.error};
    ApnList list;
    const QJsonValue data = parsed.object->value("data"_L1);
    for (const QJsonValue apn : data.toArray())
        list.apns.append(apnOf(apn.toObject()));
    for (const QJsonValue apn : data.toObject())
        list.apns.append(apnOf(apn.toObject()));
    return list;
}

ListedApn describedApn(const QString &record)
{
    return apnOf(parseJsonObject(record).object.value_or(QJsonObject()));
}

bool hasProfile(const QList<ListedApn> &apns, const QString &profile)
{
    return !profile.isEmpty() && std::ranges::find(apns, profile, &ListedApn::profile) != apns.end();
}

ApnPlan planApns(const QList<ListedApn> &listed, qsizetype ownApns, const QStringList &records, bool owesDefault)
{
    const bool hasRoom = listed.size() <= ownApns;
    QStringList missing = records;
    missing.removeIf([&](const QString &record) { return hasProfile(listed, describedApn(record).profile); });
    const bool isBegun = missing.size() < records.size();
    if (isBegun) // a record without a name may be there already
        missing.removeIf([](const QString &record) { return describedApn(record).profile.isEmpty(); });
    if (missing.isEmpty())
        return {{}, hasRoom || owesDefault};
    if (isBegun || hasRoom)
        return {missing, true};
    return {};
}

} // namespace tarvo
