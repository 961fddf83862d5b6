#pragma once

#include <QDBusArgument>
#include <QImage>
#include <QMetaType>

namespace tarvo {

/// An image as notifications carry it: the type (iiibiiay) of the hint "image-data" (freedesktop Desktop Notifications
/// Specification 1.2).
struct NotificationImage {
    /// For the meta-type system only: holds no image.
    NotificationImage();
    explicit NotificationImage(const QImage &image);

    QImage pixels; ///< in the format that is sent
};

QDBusArgument &operator<<(QDBusArgument &argument, const NotificationImage &image);
/// Reads nothing: images are only sent.
const QDBusArgument &operator>>(const QDBusArgument &argument, NotificationImage &image);

} // namespace tarvo

Q_DECLARE_METATYPE(tarvo::NotificationImage)
