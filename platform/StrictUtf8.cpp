#include "platform/StrictUtf8.h"

#include <QStringDecoder>

#include <utility>

namespace tarvo {

std::optional<QString> strictUtf8(QByteArrayView bytes, ByteOrderMark mark)
{
    QStringConverter::Flags flags = QStringDecoder::Flag::Stateless;
    if (mark == ByteOrderMark::Keep)
        flags |= QStringDecoder::Flag::ConvertInitialBom;
    QStringDecoder decoder(QStringDecoder::Utf8, flags);
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

QString utf8OrLatin1(QByteArrayView bytes)
{
    std::optional<QString> text = strictUtf8(bytes, ByteOrderMark::Drop);
    return text ? *std::move(text) : QString::fromLatin1(bytes);
}

} // namespace tarvo
