#include "apn/ProfileSeal.h"

#include "apn/OpenSsl.h"
#include "apn/ProfileFile.h"
#include "apn/ProfileListing.h"

#include <QCryptographicHash>
#include <QFile>

#include <ProfileSettings.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <map>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QByteArray sha256(QByteArrayView bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

const unsigned char *data(QByteArrayView bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.data());
}

} // namespace

SealKey::SealKey(std::shared_ptr<EVP_PKEY> key)
    : m_key(std::move(key))
{
}

std::optional<SealKey> SealKey::fromDer(QByteArrayView der)
{
    const ErrorMark mark;
    const unsigned char *bytes = data(der);
    const std::shared_ptr<EVP_PKEY> key(d2i_PUBKEY(nullptr, &bytes, static_cast<long>(der.size())), EVP_PKEY_free);
    return key && EVP_PKEY_is_a(key.get(), "ED25519") ? std::optional(SealKey(key)) : std::nullopt;
}

bool SealKey::verifies(QByteArrayView text, QByteArrayView signature) const
{
    const ErrorMark mark;
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    return context && EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, m_key.get()) == 1
        && EVP_DigestVerify(context.get(), data(signature), static_cast<std::size_t>(signature.size()), data(text),
                            static_cast<std::size_t>(text.size()))
        == 1;
}

QByteArray SealKey::fingerprint() const
{
    return sha256(publicKeyDer(m_key.get()));
}

const SealRule &builtInSealRule()
{
    static const SealRule rule{SealKey::fromDer(QByteArrayView(profileSealKey)), profileSealIsDemanded};
    return rule;
}

QString sealPath(const QString &root)
{
    return root + u"profile.sig"_s;
}

FolderContent readFolderContent(const QString &root, const std::stop_token &stop)
{
    FolderContent content;
    std::map<QByteArray, QByteArray> byName;
    for (const QString &path : listProfiles(root, stop).files) {
        if (path == sealPath(root))
            continue;
        const ProfileBytes file = readProfileBytes(path);
        if (!file.bytes)
            return {.problem = u"%1 cannot be sealed: %2"_s.arg(path, file.problem)};
        const QByteArray hash = sha256(*file.bytes);
        content.hashes.insert(path, hash);
        byName.insert({QFile::encodeName(path.sliced(root.size())), hash});
    }
    for (const auto &[name, hash] : byName)
        content.text += hash.toHex() + "  " + name + '\0';
    return content;
}

bool ProfileSeal::covers(const QString &path, QByteArrayView bytes) const
{
    return !hashes || hashes->value(path) == sha256(bytes);
}

ProfileSeal readProfileSeal(const QString &root, const SealRule &rule, const std::stop_token &stop)
{
    const QString path = sealPath(root);
    const bool isThere = QFile::exists(path);
    if (!isThere && rule.isDemanded)
        return {.problem = u"%1 has no seal"_s.arg(root)};
    if (!isThere || !rule.key)
        return {};
    const ProfileBytes seal = readProfileBytes(path);
    if (!seal.bytes)
        return {.problem = u"%1: %2"_s.arg(path, seal.problem)};
    FolderContent content = readFolderContent(root, stop);
    if (!content.problem.isEmpty())
        return {.problem = content.problem};
    if (!rule.key->verifies(content.text, *seal.bytes))
        return {.problem = u"%1 is not the seal of what lies there"_s.arg(path)};
    return {.hashes = std::move(content.hashes)};
}

} // namespace tarvo
