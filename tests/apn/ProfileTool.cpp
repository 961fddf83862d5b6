#include "apn/ProfileDecoding.h"
#include "tests/apn/ProfileFolder.h"
#include "tests/support/FullDisk.h"

#include <QProcess>

using namespace tarvo;

namespace {

struct Tool : testing::Test {
    /// @return the exit code
    int run(const QStringList &arguments)
    {
        tool.start(QStringLiteral(TARVO_PROFILE_TOOL), arguments);
        EXPECT_TRUE(tool.waitForFinished());
        output = tool.readAllStandardOutput();
        errors = tool.readAllStandardError();
        return tool.exitCode();
    }

    ProfileFolder folder;
    const QString packed = folder.path(u"A.xml"_s);
    const QStringList pack{u"pack"_s, u"--key"_s, QStringLiteral(TARVO_DEMO_PRIVATE_KEY), u"-o"_s, packed};
    QProcess tool;
    QByteArray output;
    QByteArray errors;
};

} // namespace

TEST_F(Tool, PacksWhatTheCompanionReads)
{
    folder.write(u"a.json"_s, record.toUtf8());
    folder.write(u"names.json"_s, R"(["A"])");
    EXPECT_EQ(run(pack + QStringList{folder.path(u"a.json"_s)}), 0);
    EXPECT_EQ(run({u"unpack"_s, packed}), 0);
    EXPECT_EQ(output, record.toUtf8() + '\n');
    EXPECT_EQ(run({u"about"_s}), 0);
    EXPECT_TRUE(output.contains(folder.signer().publicKey().fingerprint().toHex()));
    EXPECT_TRUE(
        output.contains("seal: checked where there is one, SHA-256 " + builtInSealRule().key->fingerprint().toHex()));
    EXPECT_EQ(run({u"check"_s, folder.path({})}), 1) << "there is no list";
    EXPECT_EQ(run(pack + QStringList{folder.path(u"names.json"_s)}), 1) << "a list has its own name";
    EXPECT_EQ(run({u"pack"_s, folder.path(u"a.json"_s)}), 2);
    const FullDisk full;
    EXPECT_EQ(run(pack + QStringList{folder.path(u"a.json"_s)}), 1);
    EXPECT_TRUE(errors.contains("A.xml: "));
    EXPECT_EQ(decryptApnFile(packed), record) << "and nothing was written over";
}

TEST_F(Tool, TheTextOfAProfileIsForItsReaderAlone)
{
    folder.add(u"A.xml"_s, record);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(run({u"unpack"_s, packed, u"-o"_s, folder.path(u"text"_s)}), 0);
        EXPECT_EQ(contentOf(folder.path(u"text"_s)), record.toUtf8());
        EXPECT_EQ(QFile::permissions(folder.path(u"text"_s)) & QFile::Permissions(0x77), QFile::Permissions())
            << "group and others";
        QFile::setPermissions(folder.path(u"text"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    }
}

TEST_F(Tool, WhatComesFromOutsideForgesNoLineAndMovesNoCursor)
{
    folder.add(u"profile.xml"_s, u"A"_s);
    folder.write(u"B.xml: listed, in order\nC.xml"_s, "");
    folder.add(u"A.xml"_s, u"\u001b[2J\n"_s);
    EXPECT_EQ(run({u"check"_s, folder.path({})}), 1);
    EXPECT_FALSE(output.contains("in order\n")) << output.constData();
    EXPECT_EQ(run({u"unpack"_s, packed}), 0);
    EXPECT_EQ(output, "\x1b[2J\n\n") << "a program gets what is there";
    tool.start(u"script"_s,
               {u"-qc"_s, u"'%1' unpack '%2'"_s.arg(QStringLiteral(TARVO_PROFILE_TOOL), packed), u"/dev/null"_s});
    EXPECT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.readAllStandardOutput(), "\\x1b[2J\\n\r\n") << "a terminal does not";
}

TEST_F(Tool, SealsAFolder)
{
    folder.add(u"profile.xml"_s, u"A"_s);
    folder.add(u"A.xml"_s, record);
    const QStringList check{u"check"_s, folder.path({})};
    const auto publicHalf = [](QString key) { return key.replace(u"-NOT-SECRET"_s, u".public"_s); };
    const QStringList demand = check + QStringList{u"--seal-key"_s, publicHalf(QStringLiteral(TARVO_DEMO_SEAL_KEY))};
    EXPECT_EQ(run(check), 0);
    EXPECT_EQ(run(demand), 1) << "there is none";
    EXPECT_EQ(run(check + QStringList{u"--seal-key"_s, publicHalf(QStringLiteral(TARVO_DEMO_PRIVATE_KEY))}), 1);
    EXPECT_TRUE(errors.contains("it holds no Ed25519 public key"));
    EXPECT_EQ(run({u"seal"_s, folder.path({})}), 2);
    EXPECT_EQ(run({u"seal"_s, u"--key"_s, QStringLiteral(TARVO_DEMO_PRIVATE_KEY), folder.path({})}), 1);
    EXPECT_TRUE(errors.contains("it is no Ed25519 key"));
    EXPECT_EQ(run({u"seal"_s, u"--key"_s, QStringLiteral(TARVO_DEMO_SEAL_KEY), folder.path({})}), 0);
    EXPECT_EQ(run(check), 0);
    EXPECT_TRUE(output.startsWith("profile.sig: in order\n"));
    EXPECT_EQ(run(demand), 0);
    folder.add(u"A.xml"_s, record + u' ');
    EXPECT_EQ(run(check), 1);
}

TEST_F(Tool, RefusesKeysThatAnybodyCanForgeProfilesFor)
{
    const QString key = folder.path(u"key.pem"_s);
    tool.start(u"openssl"_s, {u"genrsa"_s, u"-3"_s, u"-out"_s, key, u"1024"_s});
    ASSERT_TRUE(tool.waitForFinished() && tool.exitCode() == 0);
    tool.start(u"openssl"_s, {u"rsa"_s, u"-in"_s, key, u"-pubout"_s, u"-out"_s, key + u".pub"_s});
    ASSERT_TRUE(tool.waitForFinished() && tool.exitCode() == 0);
    folder.write(u"a.json"_s, record.toUtf8());
    for (const QStringList &arguments :
         {QStringList{u"pack"_s, u"--key"_s, key, u"-o"_s, packed, folder.path(u"a.json"_s)},
          QStringList{u"check"_s, u"--public-key"_s, key + u".pub"_s, folder.path({})}}) {
        EXPECT_EQ(run(arguments), 1);
        EXPECT_TRUE(errors.contains("its public exponent is below 65537")) << errors.constData();
    }
    EXPECT_FALSE(QFile::exists(packed));
}
