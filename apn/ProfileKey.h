#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <openssl/types.h>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>

namespace tarvo {

/// Sizes in bytes. A profile is a run of records: one RSA block and a line end.
inline constexpr std::size_t profileBlockSize = 128;
inline constexpr std::size_t profileRecordSize = profileBlockSize + 2;
/// A block less the 11 bytes of its padding (RFC 8017, 9.2).
inline constexpr std::size_t maximumBlockTextSize = profileBlockSize - 11;

/// One block as it lies in a profile; the bytes stay the caller's.
using ProfileBlock = std::span<const unsigned char, profileBlockSize>;
/// A block's plain text, and zero bytes up to the end; at least one.
using PlainBlock = std::array<char, profileBlockSize + 1>;

/// Decodes blocks one after the other, for one thread at a time.
class BlockDecoder {
public:
    /// @param key  is shared, not owned alone
    explicit BlockDecoder(EVP_PKEY *key);

    /// Applies the public-key operation with PKCS#1 v1.5 type 1 padding (RFC 8017, 8.2.2).
    /// @return the plain text; nil when the block was not made with the key's private half
    std::optional<PlainBlock> decrypt(ProfileBlock block);

private:
    std::unique_ptr<EVP_PKEY_CTX, void (*)(EVP_PKEY_CTX *)> m_context;
};

/// The public half of a key that makes profiles. May be used on several threads.
class ProfileKey {
public:
    /// Reads a SubjectPublicKeyInfo (RFC 5280) in DER form.
    /// @return nil unless it holds an RSA key whose blocks have the profiles' size
    static std::optional<ProfileKey> fromDer(QByteArrayView der);

    /// @return whether its public exponent is so small that records are forged by taking roots; FIPS 186-5 asks for more than
    ///         65536
    bool isForgeable() const;
    /// @return the SHA-256 hash of the key's SubjectPublicKeyInfo in DER form
    QByteArray fingerprint() const;
    /// @return a decoder that shares this key, and may outlive it
    BlockDecoder decoder() const { return BlockDecoder(m_key.get()); }

private:
    explicit ProfileKey(std::shared_ptr<EVP_PKEY> key);

    std::shared_ptr<EVP_PKEY> m_key;
};

/// What came of reading a key that profiles are to be trusted with.
struct ProfileKeyReading {
    std::optional<ProfileKey> key; ///< nil when there is none, or it is not to be trusted
    QString problem; ///< why it is nil, as the end of a sentence; empty when it is not
};

/// Reads a SubjectPublicKeyInfo in DER form.
ProfileKeyReading readProfileKey(QByteArrayView der);

/// The key that is built into the program, read once.
const ProfileKeyReading &builtInProfileKey();

} // namespace tarvo
