#include "apn/ProfileDecoding.h"

#include "apn/ProfileFile.h"
#include "tests/apn/ProfileFolder.h"

#include <openssl/rand.h>
#include <unistd.h>

#include <cstdlib>

using namespace tarvo;

namespace {

bool isExiting = false;
[[maybe_unused]] const int lastToRun = std::atexit([] {
    if (isExiting)
        _exit(RAND_status());
});

} // namespace

TEST(ProfileDecoding, CanGoOnWhileTheProcessExits)
{
    const ProfileFolder folder; // has used the library
    // NOLINTNEXTLINE(concurrency-mt-unsafe): that is what is tried
    EXPECT_EXIT((isExiting = true, std::exit(2)), testing::ExitedWithCode(1), "");
}

TEST(ProfileDecoding, JoinsTheTextsOfAllRecords)
{
    const ProfileFolder folder;
    for (const QString &text : {u"x"_s.repeated(117), u"a*\u00e9*\u20ac"_s.repeated(60), u"\ufeffmark"_s}) {
        folder.add(u"a.xml"_s, text);
        EXPECT_EQ(decryptApnFile(folder.path(u"a.xml"_s)), text);
    }
    folder.write(u"a.xml"_s, {});
    EXPECT_EQ(decryptApnFile(folder.path(u"a.xml"_s)), QString());
    EXPECT_EQ(decryptApnFile(folder.path(u"none.xml"_s)), QString());
    folder.write(u"a.xml"_s, folder.signer().makeRecord(QByteArrayView("a\0\0", 3)).value());
    EXPECT_EQ(decryptApnFile(folder.path(u"a.xml"_s)), u"a"_s);
}

TEST(ProfileDecoding, ADamagedFileHasNoText)
{
    const ProfileFolder folder;
    const QByteArray good = folder.signer().pack(u"x"_s.repeated(300)).value();
    QByteArray changed = good;
    changed[200] = static_cast<char>(changed[200] ^ 1);
    const QByteArray halfCharacter = folder.signer().makeRecord("\xc3").value();
    const QByteArray twoTexts = folder.signer().makeRecord(QByteArrayView("a\0b", 3)).value();
    EXPECT_EQ(decodeProfile(good + twoTexts, folder.signer().publicKey()).problem,
              u"record 4 holds no UTF-8 text alone"_s);
    for (const QByteArray &bytes :
         {good + 'x', good.chopped(2), changed, halfCharacter, twoTexts, QByteArray(130, '\xff')}) {
        folder.write(u"a.xml"_s, bytes);
        EXPECT_FALSE(decryptApnFile(folder.path(u"a.xml"_s))) << bytes.size();
    }
}

TEST(ProfileDecoding, CutsNamesBeforeTheFirstOccurrenceOfTheExtension)
{
    const QMap<QString, QString> names{{u"/x/y/a.b.xml"_s, u"a.b"_s},
                                       {u"/x/y/profxml.xml"_s, u"pro"_s},
                                       {u"axml.xml"_s, u""_s},
                                       {u"/x/b.xml/"_s, u"b"_s}};
    for (const auto &[path, name] : names.asKeyValueRange())
        EXPECT_EQ(getFileNameFromAbsolutePath(path), name);
    for (const QString &path : {u"/x/xmlconf.xml"_s, u"/x/.xml"_s, u"/x.y/plain"_s, u"end."_s, u""_s})
        EXPECT_FALSE(getFileNameFromAbsolutePath(path)) << path.toStdString();
}
