#include "ui/icon/CustomView.h"

#include "platform/SystemLog.h"
#include "ui/look/Images.h"

#include <QEnterEvent>

namespace tarvo {

using namespace Qt::StringLiterals;

CustomView::CustomView(SystemLog &systemLog)
    : systemLog_(systemLog)
{
    setFlat(true);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(u"Tarvo"_s);
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
    Q_EMIT appearanceChanged();
}

QSize CustomView::sizeHint() const
{
    return iconSize(); // a button's own reads all fonts to measure a text that is not there
}

void CustomView::enterEvent(QEnterEvent *event)
{
    QPushButton::enterEvent(event);
    systemLog_.write(u"mouseEntered"_s);
    Q_EMIT mouseEntered();
}

} // namespace tarvo
