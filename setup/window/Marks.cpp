#include "setup/window/Marks.h"

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

} // namespace tarvo
