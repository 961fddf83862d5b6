#include "apn/ProfileKey.h"

#include "platform/Assertion.h"

#include <QCryptographicHash>

#include <ProfileSettings.h>
#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

// Qt leaves by exit() when the display has gone, whatever other threads do. The library must not be taken down while one
// of them is using it, so it must not begin to take care of that: it does with its first use by anybody, libcurl included.
// Nobody reads the texts of its errors, and what is done with it depends on no configuration: both stay unread, which
// saves 850 KiB (OPENSSL_init_crypto(3)).
[[maybe_unused]] const int initialised = OPENSSL_init_crypto(
    OPENSSL_INIT_NO_ATEXIT | OPENSSL_INIT_NO_LOAD_CRYPTO_STRINGS | OPENSSL_INIT_NO_LOAD_CONFIG, nullptr);

/// Takes back the error reports that the library leaves on the thread for whoever asks next.
class ErrorMark {
public:
    ErrorMark() { ERR_set_mark(); }
    ~ErrorMark() { ERR_pop_to_mark(); }
    ErrorMark(const ErrorMark &) = delete;
    ErrorMark &operator=(const ErrorMark &) = delete;
};

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

QByteArray ProfileKey::fingerprint() const
{
    unsigned char *bytes = nullptr;
    const int size = i2d_PUBKEY(m_key.get(), &bytes);
    const auto hash = QCryptographicHash::hash(QByteArrayView(bytes, qMax(size, 0)), QCryptographicHash::Sha256);
    OPENSSL_free(bytes);
    return hash;
}

const std::optional<ProfileKey> &builtInProfileKey()
{
    static const std::optional<ProfileKey> key = ProfileKey::fromDer(QByteArrayView(profilePublicKey));
    TARVO_ASSERT(key || profilePublicKey.empty(), "key", "builtInProfileKey", "apn/ProfileKey", __LINE__);
    return key;
}

} // namespace tarvo
