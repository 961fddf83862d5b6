#include "ui/CustomView.h"

#include "platform/SystemLog.h"
#include "ui/Images.h"

#include <QAction>
#include <QEnterEvent>

namespace tarvo {

using namespace Qt::StringLiterals;

CustomView::CustomView(SystemLog &systemLog)
    : systemLog_(systemLog)
    , tipAction_(new QAction(this))
    , separator_(new QAction(this))
{
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(u"Tarvo"_s);
    tipAction_->setEnabled(false);
    tipAction_->setVisible(false);
    separator_->setSeparator(true);
    separator_->setVisible(false);
    addActions({tipAction_, separator_});
}

void CustomView::setImage(const QString &name)
{
    if (name == image_)
        return;
    image_ = name;
    setIcon(imageNamed(name));
    if (icon().isNull())
        systemLog_.write(u"no image: "_s + name);
    Q_EMIT appearanceChanged();
}

void CustomView::setTip(const QString &tip)
{
    if (tip == toolTip())
        return;
    setToolTip(tip);
    setAccessibleDescription(tip);
    tipAction_->setText(QString(tip).replace(u'&', u"&&"_s)); // a lone one would underline the next letter
    tipAction_->setVisible(!tip.isEmpty());
    separator_->setVisible(!tip.isEmpty());
    Q_EMIT appearanceChanged();
}

void CustomView::enterEvent(QEnterEvent *event)
{
    QPushButton::enterEvent(event);
    systemLog_.write(u"mouseEntered"_s);
    Q_EMIT mouseEntered();
}

} // namespace tarvo
