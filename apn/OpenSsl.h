#pragma once

#include <QByteArray>

#include <openssl/err.h>
#include <openssl/types.h>

namespace tarvo {

/// Takes back the error reports that the library leaves on the thread for whoever asks next.
class ErrorMark {
public:
    ErrorMark() { ERR_set_mark(); }
    ~ErrorMark() { ERR_pop_to_mark(); }
    ErrorMark(const ErrorMark &) = delete;
    ErrorMark &operator=(const ErrorMark &) = delete;
};

/// @return the SubjectPublicKeyInfo (RFC 5280) of @p key in DER form
QByteArray publicKeyDer(const EVP_PKEY *key);

} // namespace tarvo
