#include "apn/OpenSsl.h"

#include <openssl/crypto.h>
#include <openssl/x509.h>

namespace tarvo {

QByteArray publicKeyDer(const EVP_PKEY *key)
{
    unsigned char *bytes = nullptr;
    const int size = i2d_PUBKEY(key, &bytes);
    const QByteArray der(reinterpret_cast<const char *>(bytes), qMax(size, 0));
    OPENSSL_free(bytes);
    return der;
}

} // namespace tarvo
