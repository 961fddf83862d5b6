#include "modemapi/SessionToken.h"

#include <QByteArray>
#include <QCryptographicHash>

namespace tarvo {

QString md5String(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const QByteArray digested(bytes.constData()); // ends before the first zero
    return QString::fromLatin1(QCryptographicHash::hash(digested, QCryptographicHash::Md5).toHex());
}

QString sessionToken(const QString &innerVersion, const QString &crVersion, const QString &rd)
{
    return md5String(md5String(innerVersion + crVersion) + rd);
}

} // namespace tarvo
