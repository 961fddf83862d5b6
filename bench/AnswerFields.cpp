#include "monitor/DataUsage.h"

#include <QString>
#include <QStringList>

#include <benchmark/benchmark.h>

namespace {

using namespace tarvo;
using namespace Qt::StringLiterals;

const QStringList names{
    u"flow_reminder_switch"_s,         u"max_usage_set_for_month"_s,  u"reminder_threshold_for_data_usage"_s,
    u"max_usage_set_for_three_days"_s, u"monthly_velta_tx"_s,         u"monthly_velta_rx"_s,
    u"last_three_days_tx_bytes"_s,     u"last_three_days_rx_bytes"_s, u"international_roaming_setting"_s};

/// @return a page of @p size characters and a few more, in which the fields that count come last
QString pageOf(qsizetype size)
{
    QString page = u"{"_s;
    for (int field = 0; page.size() < size; ++field)
        page += u"\"network_field_%1\":\"0123456789\","_s.arg(field);
    for (const QString &name : names)
        page += u"\"%1\":\"10\","_s.arg(name);
    page.back() = u'}';
    return page;
}

/// One search for each field, and nothing made of what is found.
void bareSearch(benchmark::State &state)
{
    const QString page = pageOf(state.range(0));
    QStringList keys;
    for (const QString &name : names)
        keys.append(name + u"\":"_s);
    for (auto _ : state) {
        for (const QString &key : keys)
            benchmark::DoNotOptimize(page.indexOf(key));
    }
}
BENCHMARK(bareSearch)->Arg(3 << 10)->Arg(64 << 10)->Arg(1 << 20);

void readFields(benchmark::State &state)
{
    const QString page = pageOf(state.range(0));
    for (auto _ : state) {
        const StatusFields fields = readStatusFields(page);
        if (!fields.roamingSetting || !fields.reminderSwitch)
            state.SkipWithError("the fields were not found");
    }
}
BENCHMARK(readFields)->Arg(3 << 10)->Arg(64 << 10)->Arg(1 << 20);

} // namespace

BENCHMARK_MAIN();
