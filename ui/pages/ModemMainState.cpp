#include "ui/pages/ModemMainState.h"

#include "modemapi/StatusSnapshot.h"

namespace tarvo {

using namespace Qt::StringLiterals;

StartUpAction startUpAction(const std::optional<QString> &mainState, int counter)
{
    if (simState(mainState) != SimState::Unknown)
        return {StartUpPage::HomeOrModem, true};
    if (mainState == u"modem_handover"_s && counter == 5)
        return {StartUpPage::Home, true};
    return {StartUpPage::None, mainState == u"modem_init_complete"_s};
}

} // namespace tarvo
