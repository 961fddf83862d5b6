#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>

#include <openssl/types.h>

#include <memory>
#include <optional>
#include <stop_token>

namespace tarvo {

/// The public half of a key that seals profile folders: Ed25519 (RFC 8032). May be used on several threads.
class SealKey {
public:
    /// Reads a SubjectPublicKeyInfo (RFC 8410) in DER form. @return nil unless it holds such a key
    static std::optional<SealKey> fromDer(QByteArrayView der);

    /// @return whether @p signature is one of @p text by the key's private half
    bool verifies(QByteArrayView text, QByteArrayView signature) const;
    /// @return the SHA-256 hash of the key's SubjectPublicKeyInfo in DER form
    QByteArray fingerprint() const;

private:
    explicit SealKey(std::shared_ptr<EVP_PKEY> key);

    std::shared_ptr<EVP_PKEY> m_key;
};

/// What is asked of a folder's seal.
struct SealRule {
    std::optional<SealKey> key{}; ///< checks the seal; nil leaves it unchecked
    bool isDemanded = false; ///< a folder without a seal is refused
};

/// The rule that is built into the program.
const SealRule &builtInSealRule();

/// What lies in a profile folder.
struct FolderContent {
    QHash<QString, QByteArray> hashes{}; ///< of each file but the seal, SHA-256, by its path
    QByteArray text{}; ///< what a seal signs: for each file, by name, hash and name as `sha256sum --zero` writes them
    QString problem{}; ///< why it cannot be told, as a sentence; empty when it can
};

/// Reads all files below @p root, with its trailing slash. @param stop  ends it early, with part of the content
FolderContent readFolderContent(const QString &root, const std::stop_token &stop);

/// The path of the seal of the folder @p root.
QString sealPath(const QString &root);

/// What has come of looking at a folder's seal.
struct ProfileSeal {
    /// What is sealed, by its path; nil when no seal was checked.
    std::optional<QHash<QString, QByteArray>> hashes{};
    QString problem{}; ///< why nothing in the folder may be used, as a sentence; empty when it may

    /// @return whether @p bytes are what is sealed at @p path; true for each when no seal was checked
    bool covers(const QString &path, QByteArrayView bytes) const;
};

/// Checks the seal of the folder @p root, with its trailing slash.
ProfileSeal readProfileSeal(const QString &root, const SealRule &rule, const std::stop_token &stop);

} // namespace tarvo
