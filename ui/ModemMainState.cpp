#include "ui/ModemMainState.h"

#include <QStringList>

namespace tarvo {

StartUpAction startUpAction(const std::optional<QString> &mainState, int counter)
{
    static const QStringList needUser{
        QStringLiteral("modem_sim_undetected"), QStringLiteral("modem_sim_destroy"),
        QStringLiteral("modem_waitpin"),        QStringLiteral("modem_waitpuk"),
        QStringLiteral("modem_imsi_lock"),      QStringLiteral("modem_imsi_waitnck"),
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
