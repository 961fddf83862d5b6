#include "apn/tool/FolderReport.h"

#include "tests/apn/ProfileFolder.h"

using namespace tarvo;

TEST(FolderReport, ShowsAFolderAsTheCompanionReadsIt)
{
    const ProfileFolder folder;
    const QStringList inOrder{u"profile.xml: lists A"_s, u"sub/A.xml: listed, in order"_s};
    const SealRule rule = builtInSealRule();
    const std::tuple<QString, QString, QStringList> cases[] = {
        {u"A"_s, record, inOrder},
        {u"A"_s, u"[]"_s, {inOrder[0], u"sub/A.xml: listed, it is no JSON object"_s}},
        {u"A*Gone"_s,
         record,
         {u"profile.xml: lists A, Gone"_s, inOrder[1], u"Gone: listed, and there is no such file"_s}},
    };
    for (const auto &[list, content, lines] : cases) {
        folder.add(u"profile.xml"_s, list);
        folder.add(u"sub/A.xml"_s, content);
        const FolderReport report = reportFolder(folder.path({}), folder.signer().publicKey(), rule);
        EXPECT_EQ(report.lines, lines);
        EXPECT_EQ(report.isInOrder, lines == inOrder);
    }
    folder.seal();
    const auto seal = [&](const SealRule &by) {
        const FolderReport report = reportFolder(folder.path({}), folder.signer().publicKey(), by);
        return report.lines[0];
    };
    EXPECT_EQ(seal(rule), u"profile.sig: in order"_s);
    EXPECT_EQ(seal({}), u"profile.sig: not checked, as no key is built in"_s);
    folder.write(u"more"_s, "");
    EXPECT_TRUE(seal(rule).endsWith(u"is not the seal of what lies there"_s));
}
