#include "status/DetailRows.h"

#include "tests/status/Statuses.h"

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(DetailRows, AreAlwaysTheSameAndSayWhatIsKnown)
{
    const InLanguage english(QLocale::English);
    const DeviceDetails device{.name = u"Stick"_s, .usbIdentity = u"1234:5678"_s, .accessPointsSent = 2};
    const auto known = detailRows(attached(true, {.connected = true, .dialsByItself = true}), device);
    const auto unknown = detailRows({}, device);
    ASSERT_EQ(known.size(), unknown.size());
    QStringList values;
    for (qsizetype i = 0; i < known.size(); ++i) {
        EXPECT_EQ(known[i].label, unknown[i].label);
        EXPECT_EQ(unknown[i].value, u"–"_s) << known[i].label.toStdString();
        values << known[i].value;
    }
    EXPECT_EQ(values.join(u','), u"Connected,automatic,–,no new version offered,Stick (1234:5678),–,–,–,2 sent,–"_s);
    EXPECT_TRUE(supportText({}, device).contains(u"\nNo modem\n"));
}
