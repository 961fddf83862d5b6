#pragma once

#include <QString>

namespace tarvo {

/// @return the MD5 digest (RFC 1321) of the UTF-8 bytes of @p text up to the first zero byte, as 32 lower-case
///         hexadecimal digits
QString md5String(const QString &text);

/// The token that proves to the modem that a set command comes from someone who has just asked it for a session.
/// @param innerVersion  the modem's `wa_inner_version`
/// @param crVersion     the modem's `cr_version`
/// @param rd            the random text `RD` of the session
QString sessionToken(const QString &innerVersion, const QString &crVersion, const QString &rd);

} // namespace tarvo
