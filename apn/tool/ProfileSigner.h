#pragma once

#include "apn/ProfileKey.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <openssl/types.h>

#include <memory>
#include <optional>

namespace tarvo {

struct PrivateKeyReading;

/// The private half of a key that makes profiles.
class ProfileSigner {
public:
    /// Reads a private key in PEM form; its pass phrase, if it has one, is asked for on the terminal.
    static PrivateKeyReading fromPem(QByteArrayView pem);

    /// @return the half that the companion decodes with
    ProfileKey publicKey() const;

    /// Makes one record of at most 117 bytes of plain text, by PKCS#1 v1.5 type 1 padding and the private-key
    /// operation (RFC 8017, 8.2.1, without a digest). @return nil when the text is too long
    std::optional<QByteArray> makeRecord(QByteArrayView plain) const;

    /// Makes a whole profile. Records end between characters, because each is read as a text of its own.
    /// @return nil when it would not be read back as @p text
    std::optional<QByteArray> pack(const QString &text) const;

private:
    explicit ProfileSigner(std::shared_ptr<EVP_PKEY> key);

    std::shared_ptr<EVP_PKEY> m_key;
};

struct PrivateKeyReading {
    std::optional<ProfileSigner> signer; ///< nil unless it is a key that makes profiles
    QString problem; ///< why it is nil, as the end of a sentence; empty when it is not
};

} // namespace tarvo
