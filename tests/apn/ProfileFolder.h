#pragma once

#include "apn/ProfileSelection.h"
#include "apn/tool/PemKeys.h"
#include "apn/tool/ProfileSigner.h"
#include "tests/support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QScopedValueRollback>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// The text of a profile that is in order.
inline const QString record = uR"({"index":"3","isPC":1,"isWeb":0,"pdp_type":1,"profile":"P","apn":"a","auth":0,)"
                              uR"("username":"","password":"","dns_mode":0,"prefer_dns":"","standby_dns":"",)"
                              uR"("ipv6_prefer_dns":"","ipv6_standby_dns":""})"_s;

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The private half of the built-in key.
inline ProfileSigner demoSigner()
{
    return ProfileSigner::fromPem(contentOf(QStringLiteral(TARVO_DEMO_PRIVATE_KEY))).signer.value();
}

/// The private half of the built-in key for seals.
inline std::shared_ptr<EVP_PKEY> demoSealer()
{
    return privateKeyFromPem(contentOf(QStringLiteral(TARVO_DEMO_SEAL_KEY))).key;
}

/// A profile folder of the test's own, which the companion reads as long as this lives.
class ProfileFolder {
public:
    QString path(const QString &name) const { return m_folder.path() + u'/' + name; }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void add(const QString &name, const QString &text) const { write(name, m_signer.pack(text).value()); }

    void seal() const
    {
        const FolderContent content = readFolderContent(path({}), {});
        write(QStringLiteral("profile.sig"), makeSeal(content.text, demoSealer().get()).value());
    }

    const ProfileSigner &signer() const { return m_signer; }

private:
    QTemporaryDir m_folder;
    QByteArray m_root = m_folder.path().toUtf8() + '/';
    QByteArray m_list = m_root + "profile.xml";
    QScopedValueRollback<const char *> m_usedRoot{APN_ROOT, m_root.constData()};
    QScopedValueRollback<const char *> m_usedList{APN_TOTAL_PROFILE, m_list.constData()};
    ProfileSigner m_signer = demoSigner();
};

} // namespace tarvo
