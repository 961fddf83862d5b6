#include "modemapi/SessionToken.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(SessionToken, HashesTextsAsRfc1321Does)
{
    EXPECT_EQ(md5String(u""_s), u"d41d8cd98f00b204e9800998ecf8427e"_s);
    EXPECT_EQ(md5String(u"message digest"_s), u"f96b697d7cb7938d525a2f31aaf161d0"_s);
    EXPECT_EQ(md5String(u"\0more"_s), md5String(QString())) << "a zero ends the text";
    EXPECT_EQ(md5String(u"é"_s), u"66ddcd97cfdeabb2f6fb8a999b4bc76f"_s) << "the bytes are UTF-8";
}

TEST(SessionToken, PutsTheInnerVersionFirst)
{
    // printf %s "$(printf %s INNERCR | md5sum | cut -c1-32)RD" | md5sum
    EXPECT_EQ(sessionToken(u"INNER"_s, u"CR"_s, u"RD"_s), u"36a476980d14f984bf9486255b23d386"_s);
}
