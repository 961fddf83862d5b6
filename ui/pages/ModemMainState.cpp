#include "ui/pages/ModemMainState.h"

#include <QStringList>

namespace tarvo {

using namespace Qt::StringLiterals;

StartUpAction startUpAction(const std::optional<QString> &mainState, int counter)
{
    static const QStringList needUser{
        u"modem_sim_undetected"_s, u"modem_sim_destroy"_s, u"modem_waitpin"_s,
        u"modem_waitpuk"_s,        u"modem_imsi_lock"_s,   u"modem_imsi_waitnck"_s,
    };
    if (!mainState)
        return {};
    if (needUser.contains(*mainState))
        return {StartUpPage::HomeOrModem, true};
    if (*mainState == u"modem_handover" && counter == 5)
        return {StartUpPage::Home, true};
    return {StartUpPage::None, *mainState == u"modem_init_complete"};
}

} // namespace tarvo
