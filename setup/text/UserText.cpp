#include "setup/text/UserText.h"

#include <QCoreApplication>

namespace tarvo {

QString UserText::shown() const
{
    if (id.isEmpty())
        return {};
    const QString text = qtTrId(id.constData());
    switch (arguments.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(arguments[0]);
    default:
        return text.arg(arguments[0], arguments[1]); // both at once: the first may hold "%2"
    }
}

} // namespace tarvo
