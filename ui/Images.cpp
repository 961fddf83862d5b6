#include "ui/Images.h"

#include <QFile>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QIcon themeOrEmbedded(const QString &iconName)
{
    // A lookup of a theme icon that is missing falls back to shorter names: ours would all become the application's.
    if (QIcon::hasThemeIcon(iconName))
        return QIcon::fromTheme(iconName);
    const QString embedded = u":/tarvo/icons/%1.svg"_s.arg(iconName);
    return QFile::exists(embedded) ? QIcon(embedded) : QIcon();
}

} // namespace

QIcon imageNamed(const QString &name)
{
    return themeOrEmbedded(u"tarvo-"_s + name);
}

QIcon applicationImage()
{
    return themeOrEmbedded(u"tarvo"_s);
}

} // namespace tarvo
