#include "modemapi/StatusSnapshot.h"

#include <QMap>

namespace tarvo {

using namespace Qt::StringLiterals;

SimState simState(const std::optional<QString> &mainState)
{
    static const QMap<QString, SimState> states{
        {u"modem_sim_undetected"_s, SimState::Missing}, {u"modem_sim_destroy"_s, SimState::Damaged},
        {u"modem_waitpin"_s, SimState::NeedsPin},       {u"modem_waitpuk"_s, SimState::NeedsPuk},
        {u"modem_imsi_lock"_s, SimState::Locked},       {u"modem_imsi_waitnck"_s, SimState::Locked},
    };
    return states.value(mainState.value_or(QString()), SimState::Unknown);
}

bool SharedSnapshot::update(const Work &work, const std::function<void(StatusSnapshot &snapshot)> &change)
{
    return work.whileAttached([&] {
        StatusSnapshot snapshot = m_snapshot.get();
        change(snapshot);
        m_snapshot.set(snapshot);
    });
}

} // namespace tarvo
