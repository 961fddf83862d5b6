#include "ui/windows/AboutDialog.h"

#include "ui/look/Images.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QMessageBox> makeAboutDialog()
{
    auto dialog = std::make_unique<QMessageBox>();
    dialog->setModal(false);
    dialog->setWindowTitle(qtTrId("MenuAbout"));
    dialog->setWindowIcon(applicationImage());
    dialog->setIconPixmap(applicationImage().pixmap(64));
    dialog->setTextFormat(Qt::RichText);
    dialog->setText(u"<b>Tarvo %1</b><p>%2</p>"_s.arg(QCoreApplication::applicationVersion().toHtmlEscaped(),
                                                      qtTrId("AboutText").toHtmlEscaped()));
    dialog->addButton(qtTrId("AboutClose"), QMessageBox::RejectRole);
    return dialog;
}

} // namespace

AboutDialog::AboutDialog() = default;

AboutDialog::~AboutDialog() = default;

void AboutDialog::present()
{
    if (!m_window)
        m_window = makeAboutDialog();
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace tarvo
