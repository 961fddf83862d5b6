#include "simulator/demo/tour/Pictures.h"

#include <QGuiApplication>
#include <QScreen>

namespace tarvo {

QPixmap screenPicture(const QRect &part)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, part.x(), part.y(), part.width(), part.height());
}

bool isPlain(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
}

bool isDrawnIn(const QRect &part)
{
    return !isPlain(screenPicture(part).toImage());
}

} // namespace tarvo
