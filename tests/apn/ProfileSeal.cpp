#include "apn/ProfileSeal.h"

#include "tests/apn/ProfileFolder.h"

#include <functional>

using namespace tarvo;

TEST(ProfileSeal, SignsHashAndNameOfEachFileInTheOrderOfTheNames)
{
    const ProfileFolder folder;
    folder.write(u"b/\u00e9"_s, "");
    folder.write(u"b.xml"_s, "abc");
    folder.write(u"profile.sig"_s, "no part of it");
    const FolderContent content = readFolderContent(folder.path({}), {});
    const QByteArray empty = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";
    const QByteArray abc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"; // FIPS 180-4's example
    EXPECT_EQ(content.text, abc + "  b.xml" + '\0' + empty + "  b/\xc3\xa9" + '\0');
    EXPECT_EQ(content.hashes.value(folder.path(u"b.xml"_s)).toHex(), abc);
    EXPECT_EQ(content.hashes.size(), 2);
    QFile::link(u"/dev/null"_s, folder.path(u"c"_s));
    EXPECT_EQ(readFolderContent(folder.path({}), {}).problem,
              folder.path(u"c"_s) + u" cannot be sealed: it is no regular file"_s);
}

TEST(ProfileSeal, IsBrokenByWhateverChanges)
{
    using Change = std::function<void(const ProfileFolder &)>;
    const auto remove = [](const QString &name) {
        return [name](const ProfileFolder &folder) { QFile::remove(folder.path(name)); };
    };
    const auto write = [](const QString &name, const QByteArray &bytes) {
        return [name, bytes](const ProfileFolder &folder) { folder.write(name, bytes); };
    };
    const SealRule checked = builtInSealRule();
    ASSERT_TRUE(checked.key && !checked.isDemanded) << "the demonstration key";
    const SealRule demanded{checked.key, true};
    const std::tuple<const char *, Change, SealRule, bool, bool> cases[] = {
        {"as sealed", [](const ProfileFolder &) {}, demanded, true, true},
        {"another byte", write(u"A.xml"_s, "abd"), checked, false, false},
        {"a file more", write(u"sub/B.xml"_s, ""), checked, false, false},
        {"a file less", remove(u"A.xml"_s), checked, false, false},
        {"another name", [](const auto &folder) { QFile::rename(folder.path(u"A.xml"_s), folder.path(u"B.xml"_s)); },
         checked, false, false},
        {"another seal", write(u"profile.sig"_s, QByteArray(64, 'x')), checked, false, false},
        {"an empty seal", write(u"profile.sig"_s, ""), checked, false, false},
        {"a seal that cannot be read",
         [](const auto &folder) {
             QFile::remove(folder.path(u"profile.sig"_s));
             QDir(folder.path({})).mkdir(u"profile.sig"_s);
         },
         checked, false, false},
        {"no seal where none is demanded", remove(u"profile.sig"_s), checked, true, false},
        {"no seal where one is demanded", remove(u"profile.sig"_s), demanded, false, false},
        {"no key", write(u"A.xml"_s, "abd"), {}, true, false},
    };
    for (const auto &[what, change, rule, isUsable, isChecked] : cases) {
        const ProfileFolder folder;
        folder.write(u"A.xml"_s, "abc");
        folder.seal();
        change(folder);
        const ProfileSeal seal = readProfileSeal(folder.path({}), rule, {});
        EXPECT_EQ(seal.problem.isEmpty(), isUsable) << what << seal.problem.toStdString();
        EXPECT_EQ(seal.hashes.has_value(), isChecked) << what;
        EXPECT_TRUE(seal.covers(folder.path(u"A.xml"_s), "abc")) << what;
        EXPECT_EQ(seal.covers(folder.path(u"A.xml"_s), "abd"), !isChecked) << what;
        EXPECT_EQ(seal.covers(folder.path(u"B.xml"_s), ""), !isChecked) << what;
    }
}
