#include "ui/windows/UpdateAlert.h"

#include "ui/pages/WebPages.h"
#include "ui/windows/AlertPanelController.h"

#include <QCoreApplication>

namespace tarvo {

using namespace Qt::StringLiterals;

UpdateAlert::UpdateAlert(WebPages &pages)
    : m_pages(pages)
{
}

void UpdateAlert::showAlertMsgForUpdate()
{
    if (!m_panel) {
        m_panel = AlertPanelController::shareAlertPanel();
        QObject::connect(m_panel.get(), &AlertPanelController::pageWanted, &m_context,
                         [this] { m_pages.openNewVersionPage(); });
    }
    const bool hasPage = m_pages.canOpen(Page::Firmware);
    m_panel->runAlertPanelTitle(qtTrId("updateTitleTip"),
                                hasPage ? qtTrId("updateMsgTip") : qtTrId("HaveNewVersionTipWhenConnected"),
                                hasPage ? qtTrId("updateButtonTip") : qtTrId("updateButtonOk"), std::nullopt);
}

void UpdateAlert::close()
{
    if (m_panel)
        m_panel->wndAlert().hide();
}

} // namespace tarvo
