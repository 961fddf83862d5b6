#include "ui/AboutDialog.h"

#include "ui/Images.h"

#include <QCoreApplication>
#include <QIcon>
#include <QMessageBox>

namespace tarvo {

std::unique_ptr<QMessageBox> makeAboutDialog()
{
    auto dialog = std::make_unique<QMessageBox>();
    dialog->setModal(false);
    dialog->setWindowTitle(qtTrId("MenuAbout"));
    dialog->setWindowIcon(applicationImage());
    dialog->setIconPixmap(applicationImage().pixmap(64));
    dialog->setText(QStringLiteral("Tarvo ") + QCoreApplication::applicationVersion());
    dialog->setInformativeText(qtTrId("AboutText"));
    dialog->setStandardButtons(QMessageBox::Close);
    return dialog;
}

} // namespace tarvo
