#pragma once

#include "apn/ProfileSelection.h"
#include "apn/tool/ProfileSigner.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <utility>

namespace tarvo {

/// The private half of the built-in key.
inline ProfileSigner demoSigner()
{
    QFile file(QStringLiteral(TARVO_DEMO_PRIVATE_KEY));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return ProfileSigner::fromPem(file.readAll()).value();
}

/// A profile folder of the test's own, which the companion reads as long as this lives.
class ProfileFolder {
public:
    ProfileFolder()
        : m_root(m_folder.path().toUtf8() + '/')
        , m_list(m_root + "profile.xml")
        , m_before(std::exchange(APN_ROOT, m_root.constData()))
        , m_listBefore(std::exchange(APN_TOTAL_PROFILE, m_list.constData()))
    {
    }
    ~ProfileFolder()
    {
        APN_ROOT = m_before;
        APN_TOTAL_PROFILE = m_listBefore;
    }
    ProfileFolder(const ProfileFolder &) = delete;
    ProfileFolder &operator=(const ProfileFolder &) = delete;

    QString path(const QString &name) const { return m_folder.path() + u'/' + name; }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void add(const QString &name, const QString &text) const { write(name, m_signer.pack(text).value()); }

    const ProfileSigner &signer() const { return m_signer; }

private:
    QTemporaryDir m_folder;
    QByteArray m_root;
    QByteArray m_list;
    const char *m_before;
    const char *m_listBefore;
    ProfileSigner m_signer = demoSigner();
};

} // namespace tarvo
