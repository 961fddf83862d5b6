#include "apn/tool/PemKeys.h"

#include "apn/OpenSsl.h"

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>

#include <cstddef>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

using Bio = std::unique_ptr<BIO, decltype(&BIO_free)>;

Bio reader(QByteArrayView bytes)
{
    return {BIO_new_mem_buf(bytes.data(), static_cast<int>(bytes.size())), BIO_free};
}

QByteArray publicDerFromPem(QByteArrayView pem)
{
    const std::shared_ptr<EVP_PKEY> key(PEM_read_bio_PUBKEY(reader(pem).get(), nullptr, nullptr, nullptr),
                                        EVP_PKEY_free);
    return key ? publicKeyDer(key.get()) : QByteArray();
}

} // namespace

PrivateKey privateKeyFromPem(QByteArrayView pem)
{
    const std::shared_ptr<EVP_PKEY> key(PEM_read_bio_PrivateKey(reader(pem).get(), nullptr, nullptr, nullptr),
                                        EVP_PKEY_free);
    if (key)
        return {key, {}};
    return {nullptr,
            pem.contains("ENCRYPTED") ? u"its pass phrase is missing or wrong"_s
                                      : u"it holds no private key in PEM form"_s};
}

ProfileKeyReading profileKeyFromPem(QByteArrayView pem)
{
    return readProfileKey(publicDerFromPem(pem));
}

std::optional<SealKey> sealKeyFromPem(QByteArrayView pem)
{
    return SealKey::fromDer(publicDerFromPem(pem));
}

std::optional<QByteArray> makeSeal(QByteArrayView text, EVP_PKEY *key)
{
    if (!SealKey::fromDer(publicKeyDer(key)))
        return std::nullopt;
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    QByteArray seal(64, '\0');
    auto size = static_cast<std::size_t>(seal.size());
    if (!context || EVP_DigestSignInit(context.get(), nullptr, nullptr, nullptr, key) != 1
        || EVP_DigestSign(context.get(), reinterpret_cast<unsigned char *>(seal.data()), &size,
                          reinterpret_cast<const unsigned char *>(text.data()), static_cast<std::size_t>(text.size()))
            != 1)
        return std::nullopt;
    return seal.first(static_cast<qsizetype>(size));
}

} // namespace tarvo
