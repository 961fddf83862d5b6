#include "setup/window/Marks.h"

#include <QCoreApplication>

namespace tarvo {

using namespace Qt::StringLiterals;

QIcon markIcon(Mark mark)
{
    switch (mark) {
    case Mark::Ok:
        return QIcon(u":/tarvo/setup/mark-ok.svg"_s);
    case Mark::Broken:
        return QIcon(u":/tarvo/setup/mark-broken.svg"_s);
    case Mark::Unknown:
        return QIcon(u":/tarvo/setup/mark-unknown.svg"_s);
    case Mark::Skipped:
        return QIcon(u":/tarvo/setup/mark-skipped.svg"_s);
    }
    return {};
}

QString markText(Mark mark)
{
    switch (mark) {
    case Mark::Ok:
        return qtTrId("MarkOk");
    case Mark::Broken:
        return qtTrId("MarkBroken");
    case Mark::Unknown:
        return qtTrId("MarkUnknown");
    case Mark::Skipped:
        return qtTrId("MarkSkipped");
    }
    return {};
}

} // namespace tarvo
