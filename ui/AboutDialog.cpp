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
    dialog->setTextFormat(Qt::RichText);
    dialog->setText(
        QStringLiteral("<b>Tarvo %1</b><p>%2</p>")
            .arg(QCoreApplication::applicationVersion().toHtmlEscaped(), qtTrId("AboutText").toHtmlEscaped()));
    dialog->addButton(qtTrId("AboutClose"), QMessageBox::RejectRole);
    return dialog;
}

} // namespace tarvo
