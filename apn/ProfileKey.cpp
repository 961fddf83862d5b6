#include "apn/ProfileKey.h"

#include "apn/OpenSsl.h"

#include <QCryptographicHash>

#include <ProfileSettings.h>
#include <openssl/bn.h>
#include <openssl/core_names.h>
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

#include <algorithm>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

// Qt leaves by exit() when the display has gone, whatever other threads do. The library must not be taken down while one
// of them is using it, so it must not begin to take care of that: it does with its first use by anybody, libcurl included.
// Nobody reads the texts of its errors, and what is done with it depends on no configuration: both stay unread, which
// saves 850 KiB (OPENSSL_init_crypto(3)).
[[maybe_unused]] const int initialised = OPENSSL_init_crypto(
    OPENSSL_INIT_NO_ATEXIT | OPENSSL_INIT_NO_LOAD_CRYPTO_STRINGS | OPENSSL_INIT_NO_LOAD_CONFIG, nullptr);

constexpr BN_ULONG smallestExponent = 65537;

} // namespace

BlockDecoder::BlockDecoder(EVP_PKEY *key)
    : m_context(EVP_PKEY_CTX_new(key, nullptr), EVP_PKEY_CTX_free)
{
    const ErrorMark mark;
    if (!m_context || EVP_PKEY_verify_recover_init(m_context.get()) <= 0
        || EVP_PKEY_CTX_set_rsa_padding(m_context.get(), RSA_PKCS1_PADDING) <= 0)
        m_context.reset();
}

std::optional<PlainBlock> BlockDecoder::decrypt(ProfileBlock block)
{
    const ErrorMark mark;
    std::array<unsigned char, profileBlockSize> plain;
    std::size_t size = plain.size();
    if (!m_context || EVP_PKEY_verify_recover(m_context.get(), plain.data(), &size, block.data(), block.size()) <= 0)
        return std::nullopt;
    PlainBlock text{};
    std::copy_n(plain.begin(), std::min(size, maximumBlockTextSize), text.begin());
    return text;
}

ProfileKey::ProfileKey(std::shared_ptr<EVP_PKEY> key)
    : m_key(std::move(key))
{
}

std::optional<ProfileKey> ProfileKey::fromDer(QByteArrayView der)
{
    const ErrorMark mark;
    const auto *bytes = reinterpret_cast<const unsigned char *>(der.data());
    const std::shared_ptr<EVP_PKEY> key(d2i_PUBKEY(nullptr, &bytes, static_cast<long>(der.size())), EVP_PKEY_free);
    if (!key || !EVP_PKEY_is_a(key.get(), "RSA") || EVP_PKEY_get_size(key.get()) != static_cast<int>(profileBlockSize))
        return std::nullopt;
    return ProfileKey(key);
}

bool ProfileKey::isForgeable() const
{
    BIGNUM *exponent = nullptr;
    EVP_PKEY_get_bn_param(m_key.get(), OSSL_PKEY_PARAM_RSA_E, &exponent);
    const std::unique_ptr<BIGNUM, decltype(&BN_free)> owner(exponent, BN_free);
    return !exponent || BN_get_word(exponent) < smallestExponent; // a larger one than a word is all ones
}

QByteArray ProfileKey::fingerprint() const
{
    return QCryptographicHash::hash(publicKeyDer(m_key.get()), QCryptographicHash::Sha256);
}

ProfileKeyReading readProfileKey(QByteArrayView der)
{
    auto key = ProfileKey::fromDer(der);
    if (!key)
        return {std::nullopt, u"it is no RSA key of 1024 bits"_s};
    if (key->isForgeable())
        return {std::nullopt, u"its public exponent is below 65537, so that anybody can forge profiles"_s};
    return {std::move(key), {}};
}

const ProfileKeyReading &builtInProfileKey()
{
    static const ProfileKeyReading reading = profilePublicKey.empty()
        ? ProfileKeyReading{std::nullopt, u"none is built in"_s}
        : readProfileKey(QByteArrayView(profilePublicKey));
    return reading;
}

} // namespace tarvo
