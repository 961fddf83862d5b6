#include "apn/tool/ProfileSigner.h"

#include "apn/OpenSsl.h"
#include "apn/ProfileFile.h"
#include "apn/tool/PemKeys.h"

#include <openssl/evp.h>
#include <openssl/rsa.h>

#include <utility>

namespace tarvo {

namespace {

using Context = std::unique_ptr<EVP_PKEY_CTX, decltype(&EVP_PKEY_CTX_free)>;

/// How many bytes of @p utf8 the next record takes: all that fit, without part of a character.
qsizetype nextPieceSize(QByteArrayView utf8)
{
    auto size = static_cast<qsizetype>(maximumBlockTextSize);
    if (utf8.size() <= size)
        return utf8.size();
    while ((utf8[size] & 0xC0) == 0x80)
        --size;
    return size;
}

} // namespace

ProfileSigner::ProfileSigner(std::shared_ptr<EVP_PKEY> key)
    : m_key(std::move(key))
{
}

PrivateKeyReading ProfileSigner::fromPem(QByteArrayView pem)
{
    const PrivateKey key = privateKeyFromPem(pem);
    if (!key.key)
        return {std::nullopt, key.problem};
    const ProfileKeyReading publicHalf = readProfileKey(publicKeyDer(key.key.get()));
    if (!publicHalf.key)
        return {std::nullopt, publicHalf.problem};
    return {ProfileSigner(key.key), {}};
}

ProfileKey ProfileSigner::publicKey() const
{
    return ProfileKey::fromDer(publicKeyDer(m_key.get())).value();
}

std::optional<QByteArray> ProfileSigner::makeRecord(QByteArrayView plain) const
{
    const Context context(EVP_PKEY_CTX_new(m_key.get(), nullptr), EVP_PKEY_CTX_free);
    QByteArray block(static_cast<qsizetype>(profileBlockSize), '\0');
    std::size_t size = profileBlockSize;
    if (!context || EVP_PKEY_sign_init(context.get()) <= 0
        || EVP_PKEY_CTX_set_rsa_padding(context.get(), RSA_PKCS1_PADDING) <= 0
        || EVP_PKEY_sign(context.get(), reinterpret_cast<unsigned char *>(block.data()), &size,
                         reinterpret_cast<const unsigned char *>(plain.data()), static_cast<std::size_t>(plain.size()))
            <= 0)
        return std::nullopt;
    return block + "\r\n";
}

std::optional<QByteArray> ProfileSigner::pack(const QString &text) const
{
    const QByteArray utf8 = text.toUtf8();
    QByteArray file;
    for (QByteArrayView rest = utf8; !rest.isEmpty();) {
        const qsizetype size = nextPieceSize(rest);
        const auto record = makeRecord(rest.first(size));
        if (!record)
            return std::nullopt;
        file += *record;
        rest = rest.sliced(size);
    }
    if (file.size() > maximumProfileSize || decodeProfile(file, publicKey()).text != text)
        return std::nullopt;
    return file;
}

} // namespace tarvo
