#include "app/HandOver.h"

#include "status/NewsEffect.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <chrono>
#include <iterator>

namespace tarvo {

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace {

constexpr const char *variable = "TARVO_HAND_OVER";
constexpr qsizetype longestText = 64 * 1024;
constexpr qsizetype longestAddress = 64;

bool isNewsKind(int kind)
{
    return std::ranges::find(displayTypes, kind) != displayTypes.end();
}

QJsonObject toJson(const PlugIn &plugIn)
{
    QJsonArray seen;
    for (const int kind : plugIn.state.seenNews)
        seen.append(kind);
    return {{u"index"_s, plugIn.identity.index},
            {u"address"_s, plugIn.identity.address},
            {u"openedPages"_s, plugIn.state.openedPages},
            {u"examined"_s, plugIn.state.accessPoints.examined},
            {u"complete"_s, plugIn.state.accessPoints.complete},
            {u"sent"_s, plugIn.state.accessPoints.sent},
            {u"newVersion"_s, plugIn.state.hasNewVersion},
            {u"seen"_s, seen}};
}

PlugIn readPlugIn(const QJsonObject &json)
{
    PlugIn plugIn{.identity = {json["index"_L1].toInt(), json["address"_L1].toString().left(longestAddress)},
                  .state = {.openedPages = json["openedPages"_L1].toBool(),
                            .accessPoints = {.examined = json["examined"_L1].toBool(),
                                             .complete = json["complete"_L1].toBool(),
                                             .sent = std::max(0, json["sent"_L1].toInt())},
                            .hasNewVersion = json["newVersion"_L1].toBool(),
                            .seenNews = {}}};
    const QJsonArray seen = json["seen"_L1].toArray();
    std::ranges::copy_if(displayTypes, std::back_inserter(plugIn.state.seenNews),
                         [&](int kind) { return seen.contains(kind); });
    return plugIn;
}

QJsonObject toJson(const RecentDeeds::Deed &deed)
{
    const auto time = std::chrono::duration_cast<milliseconds>(deed.time.time_since_epoch());
    return {{u"device"_s, deed.device}, {u"kind"_s, deed.kind}, {u"time"_s, static_cast<qint64>(time.count())}};
}

RecentDeeds::Deed readDeed(const QJsonObject &json)
{
    return {.device = json["device"_L1].toString().left(longestAddress),
            .kind = json["kind"_L1].toInt(-1),
            .time = Clock::TimePoint(milliseconds(json["time"_L1].toInteger()))};
}

} // namespace

HandOver takeHandOver()
{
    const HandOver handOver = readHandOver(qgetenv(variable));
    qunsetenv(variable);
    return handOver;
}

void leaveHandOver(const HandOver &handOver)
{
    qputenv(variable, toText(handOver));
}

QByteArray toText(const HandOver &handOver)
{
    QJsonArray plugIns;
    for (const PlugIn &plugIn : handOver.plugIns)
        plugIns.append(toJson(plugIn));
    QJsonArray deeds;
    for (const RecentDeeds::Deed &deed : handOver.deeds)
        deeds.append(toJson(deed));
    return QJsonDocument({{u"plugIns"_s, plugIns}, {u"deeds"_s, deeds}}).toJson(QJsonDocument::Compact);
}

HandOver readHandOver(const QByteArray &text)
{
    HandOver handOver;
    if (text.size() > longestText)
        return handOver;
    const QJsonObject json = QJsonDocument::fromJson(text).object();
    const QJsonArray plugIns = json["plugIns"_L1].toArray();
    for (const auto &item : plugIns) {
        const PlugIn plugIn = readPlugIn(item.toObject());
        if (plugIn.identity.index > 0 && handOver.plugIns.size() < PlugIns::longest)
            handOver.plugIns.append(plugIn);
    }
    const QJsonArray deeds = json["deeds"_L1].toArray();
    for (const auto &item : deeds) {
        const RecentDeeds::Deed deed = readDeed(item.toObject());
        const bool isKnown = deed.kind == RecentDeeds::openedPages || isNewsKind(deed.kind);
        if (isKnown && !deed.device.isEmpty() && handOver.deeds.size() < RecentDeeds::longest)
            handOver.deeds.append(deed);
    }
    return handOver;
}

} // namespace tarvo
