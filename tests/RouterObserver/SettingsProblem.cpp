#include "RouterObserver/SettingsProblem.h"

#include "tests/RouterObserver/ObserverFixture.h"

using namespace tarvo;

TEST(SettingsProblem, IsWhyNoModemCanBeFound)
{
    struct Case {
        QVariantList vendors;
        SettingsProblem problem;
        QString line;
    };
    const Case cases[] = {
        {{}, SettingsProblem::NoVendor, {}},
        {{u"4660"_s}, SettingsProblem::NoVendor, {}},
        {{qlonglong(17)}, SettingsProblem::VendorIsNumber, u"settings: entry 1 of vendor_ids, 17"_s},
        {{u"18"_s, qlonglong(17)}, SettingsProblem::None, u"settings: entry 2 of vendor_ids, 17"_s},
    };
    for (const auto &[vendors, problem, line] : cases) {
        const ConfigManager settings = settingsWith(QVariantMap{{u"vendor_ids"_s, vendors}});
        EXPECT_EQ(settingsProblem(settings), problem);
        EXPECT_EQ(unmatchedVendorLine(settings).section(u',', 0, 1), line);
    }
    EXPECT_EQ(settingsProblem(ConfigManager(u"/nonexistent"_s)), SettingsProblem::Unreadable);
}
