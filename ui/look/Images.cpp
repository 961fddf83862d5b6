#include "ui/look/Images.h"

#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int drawnSizes[]{TARVO_IMAGE_SIZES}; // pixels, ascending

QString pictureFile(const QString &name, int size)
{
    return u":/tarvo/images/%1-%2.rgba"_s.arg(name).arg(size);
}

/// @return the picture for @p side pixels: the one drawn for them, or else a larger one, made smaller
QImage picture(const QString &name, int side)
{
    const auto *const larger = std::ranges::lower_bound(drawnSizes, side);
    const int drawn = larger == std::end(drawnSizes) ? *std::rbegin(drawnSizes) : *larger;
    QFile file(pictureFile(name, drawn));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray pixels = file.readAll();
    const auto *const bytes = reinterpret_cast<const uchar *>(pixels.constData());
    const QImage image = QImage(bytes, drawn, drawn, QImage::Format_RGBA8888_Premultiplied).copy();
    return drawn == side ? image : image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Shows pictures that the program carries in several sizes. Each is read when it is shown only.
class PictureEngine final : public QIconEngine {
public:
    explicit PictureEngine(QString name)
        : m_name(std::move(name))
    {
    }

    QIconEngine *clone() const override { return new PictureEngine(*this); }

    /// @return the name by which others find the image, and its variant in one colour, in the icon theme; empty where it
    ///         is not installed
    QString iconName() override { return QIcon::hasThemeIcon(m_name) ? m_name : QString(); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        QRect square(0, 0, side, side);
        square.moveCenter(rect.center());
        painter->drawImage(square, picture(m_name, int(side * painter->device()->devicePixelRatio())));
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
    QString m_name;
};

} // namespace

QIcon imageNamed(const QString &name)
{
    // Not drawn by the icon theme: it would stretch the drawing for 22 pixels to 24, and its lines would blur.
    const QString ours = u"tarvo-"_s + name;
    return QFile::exists(pictureFile(ours, *drawnSizes)) ? QIcon(new PictureEngine(ours)) : QIcon();
}

QIcon applicationImage()
{
    // Not from the icon theme either: to look there takes memory at start, in a program that rarely shows a window.
    return QIcon(new PictureEngine(u"io.github.tarvo.Tarvo"_s));
}

} // namespace tarvo
