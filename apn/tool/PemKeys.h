#pragma once

#include "apn/ProfileKey.h"
#include "apn/ProfileSeal.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <openssl/types.h>

#include <memory>
#include <optional>

namespace tarvo {

struct PrivateKey {
    std::shared_ptr<EVP_PKEY> key; ///< null when there is none
    QString problem; ///< why it is null, as the end of a sentence; empty when it is not
};

/// Reads a private key of any kind in PEM form; its pass phrase, if it has one, is asked for on the terminal.
PrivateKey privateKeyFromPem(QByteArrayView pem);

/// Reads a public key in PEM form, for profiles. A key that profiles can be forged for is a problem.
ProfileKeyReading profileKeyFromPem(QByteArrayView pem);

/// Reads a public key in PEM form, for seals. @return nil unless it holds an Ed25519 key
std::optional<SealKey> sealKeyFromPem(QByteArrayView pem);

/// @return the seal that an Ed25519 private key gives @p text; nil for any other key
std::optional<QByteArray> makeSeal(QByteArrayView text, EVP_PKEY *key);

} // namespace tarvo
