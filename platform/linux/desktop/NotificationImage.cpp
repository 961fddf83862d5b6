#include "platform/linux/desktop/NotificationImage.h"

#include <QByteArray>
#include <QDBusMetaType>

namespace tarvo {

NotificationImage::NotificationImage()
{
    [[maybe_unused]] static const QMetaType type = qDBusRegisterMetaType<NotificationImage>();
}

NotificationImage::NotificationImage(const QImage &image)
    : NotificationImage()
{
    pixels = image.convertToFormat(QImage::Format_RGBA8888);
}

QDBusArgument &operator<<(QDBusArgument &argument, const NotificationImage &image)
{
    constexpr int bitsPerSample = 8;
    constexpr int channels = 4;
    const QImage &pixels = image.pixels;
    const QByteArray bytes(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
    argument.beginStructure();
    argument << pixels.width() << pixels.height() << static_cast<int>(pixels.bytesPerLine()) << true << bitsPerSample
             << channels << bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, NotificationImage &)
{
    return argument;
}

} // namespace tarvo
