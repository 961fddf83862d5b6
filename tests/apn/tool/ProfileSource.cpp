#include "apn/tool/ProfileSource.h"

#include "tests/apn/ProfileFolder.h"

using namespace tarvo;

TEST(ProfileSource, AcceptsGoodRecordsAndNamesWhatIsWrong)
{
    EXPECT_EQ(readSource(record).problems, QStringList());
    EXPECT_EQ(readSource(QString(record).replace(u","_s, u",\r\n  "_s)).text, record);
    const QStringList changes[] = {
        {u"\"apn\":\"a\","_s, u""_s, u"key \"apn\" is missing"_s},
        {u"\"apn\""_s, u"\"x\":1,\"apn\""_s, u"key \"x\" is unknown"_s},
        {u"\"3\""_s, u"\"three\""_s, u"\"index\" is no integer"_s},
        {u"\"3\""_s, u"3.5"_s, u"\"index\" is no integer"_s},
        {u"\"a\""_s, u"1"_s, u"\"apn\" is no text"_s},
        {u"\"P\""_s, u"\"\""_s, u"\"profile\" is empty"_s},
        {u"\"a\""_s, u"\"a&b\""_s, u"'&' does not reach the modem; write it as \\u0026"_s},
    };
    for (const QStringList &row : changes)
        EXPECT_EQ(readSource(QString(record).replace(row[0], row[1])).problems, row.mid(2));
    EXPECT_EQ(readSource(uR"(["A","B"])"_s).text, u"A*B"_s);
    EXPECT_EQ(readSource(uR"(["A","A","","a*b","profxml",7])"_s).problems.size(), 6);
}
