#include "status/Situation.h"

#include "status/CompanionStatus.h"

namespace tarvo {

namespace {

Situation connectionOf(const ModemDetails &details)
{
    if (details.sim != SimState::Unknown)
        return Situation::SimNeedsUser;
    if (details.connecting)
        return Situation::Connecting;
    if (!details.connected)
        return Situation::Answering;
    return *details.connected ? Situation::Connected : Situation::NotConnected;
}

Situation ofPolled(const StatusSnapshot &snapshot)
{
    if (!snapshot.answering)
        return Situation::Found;
    return *snapshot.answering ? connectionOf(snapshot.details) : Situation::NotAnswering;
}

} // namespace

Situation situationOf(const CompanionStatus &status)
{
    switch (status.detection) {
    case Detection::NoModem:
        return status.settingsProblem == SettingsProblem::None ? Situation::NoModem : Situation::NoSettings;
    case Detection::NotSetUp:
        return Situation::NotSetUp;
    case Detection::WaitingForAddress:
        return Situation::WaitingForAddress;
    case Detection::NoGateway:
        return Situation::NoGateway;
    case Detection::LeftAlone:
        return Situation::Asleep;
    case Detection::Attached:
        break;
    }
    return ofPolled(status.snapshot);
}

bool isPolled(Situation situation)
{
    return situation == Situation::Found || situation == Situation::NotAnswering || answers(situation);
}

bool answers(Situation situation)
{
    switch (situation) {
    case Situation::Answering:
    case Situation::SimNeedsUser:
    case Situation::Connecting:
    case Situation::NotConnected:
    case Situation::Connected:
        return true;
    default:
        return false;
    }
}

bool wantsSetup(Situation situation)
{
    return situation == Situation::NoSettings || situation == Situation::NotSetUp;
}

} // namespace tarvo
