#include "ui/Images.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualSize = 22; // pixels

/// Draws an SVG file at whatever size is asked for. Qt's own engine for such files is a plugin, and need not be there.
class SvgEngine final : public QIconEngine {
public:
    explicit SvgEngine(const QString &file)
        : m_renderer(std::make_shared<QSvgRenderer>(file))
    {
        m_renderer->setAspectRatioMode(Qt::KeepAspectRatio);
    }

    bool isNull() override { return !m_renderer->isValid(); }
    QIconEngine *clone() const override { return new SvgEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        m_renderer->render(painter, QRectF(rect));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

private:
    std::shared_ptr<QSvgRenderer> m_renderer; // clones draw the same
};

QIcon themeOrEmbedded(const QString &iconName)
{
    // A lookup of a theme icon that is missing falls back to shorter names: ours would all become the application's.
    // One that is there may be of a kind that no installed plugin draws, or damaged.
    const QIcon themed = QIcon::hasThemeIcon(iconName) ? QIcon::fromTheme(iconName) : QIcon();
    if (!themed.pixmap(usualSize).isNull())
        return themed;
    const QIcon embedded(new SvgEngine(u":/tarvo/icons/%1.svg"_s.arg(iconName)));
    return embedded.isNull() ? QIcon() : embedded;
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
