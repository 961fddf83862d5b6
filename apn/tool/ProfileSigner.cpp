#include "apn/tool/ProfileSigner.h"

#include "apn/ProfileFile.h"

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using Bio = std::unique_ptr<BIO, decltype(&BIO_free)>;
using Key = std::shared_ptr<EVP_PKEY>;
using Context = std::unique_ptr<EVP_PKEY_CTX, decltype(&EVP_PKEY_CTX_free)>;

Bio reader(QByteArrayView bytes)
{
    return {BIO_new_mem_buf(bytes.data(), static_cast<int>(bytes.size())), BIO_free};
}

QByteArray publicDer(const EVP_PKEY *key)
{
    unsigned char *bytes = nullptr;
    const int size = i2d_PUBKEY(key, &bytes);
    const QByteArray der(reinterpret_cast<const char *>(bytes), qMax(size, 0));
    OPENSSL_free(bytes);
    return der;
}

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
    const Key key(PEM_read_bio_PrivateKey(reader(pem).get(), nullptr, nullptr, nullptr), EVP_PKEY_free);
    if (!key && pem.contains("ENCRYPTED"))
        return {std::nullopt, u"its pass phrase is missing or wrong"_s};
    if (!key || !ProfileKey::fromDer(publicDer(key.get())))
        return {std::nullopt, u"it holds no RSA private key of 1024 bits in PEM form"_s};
    return {ProfileSigner(key), {}};
}

ProfileKey ProfileSigner::publicKey() const
{
    return ProfileKey::fromDer(publicDer(m_key.get())).value();
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

std::optional<ProfileKey> profileKeyFromPem(QByteArrayView pem)
{
    const Key key(PEM_read_bio_PUBKEY(reader(pem).get(), nullptr, nullptr, nullptr), EVP_PKEY_free);
    return key ? ProfileKey::fromDer(publicDer(key.get())) : std::nullopt;
}

} // namespace tarvo
