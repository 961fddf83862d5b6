#include "platform/linux/desktop/LogindSession.h"

#include "tests/platform/linux/desktop/LogindWorkspaceTest.h"

using namespace tarvo;
using LogindSessionTest = LogindWorkspaceTest;

TEST_F(LogindSessionTest, FollowsWhetherTheSessionIsActive)
{
    startBus();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    const auto workspace = startWorkspace();
    QList<bool> told;
    workspace->addActivityObserver([&](bool active) { told.append(active); });
    ASSERT_TRUE(becomes(true));
    EXPECT_EQ(told, QList<bool>()) << "without a session it is active";

    logind_->setSession(true);
    for (const auto &[session, all] :
         std::vector<std::pair<std::optional<bool>, QList<bool>>>{{false, {false}},
                                                                  {true, {false, true}},
                                                                  {false, {false, true, false}},
                                                                  {{}, {false, true, false, true}}}) {
        logind_->setSession(session);
        EXPECT_TRUE(waitFor([&, &expected = all] { return told == expected; })) << all.size();
    }
    logind_->setSession(false);
    EXPECT_TRUE(waitFor([&] { return told.size() == 5; })) << "of a session that is new";
    logind_.reset();
    logind_ = std::make_unique<SimulatedLogind>(address_);
    EXPECT_TRUE(waitFor([&] { return told.size() == 6; })) << "a logind that knows of none";
    logind_->setSession(false);
    EXPECT_TRUE(waitFor([&] { return told.size() == 7; }));
    logind_.reset();
    EXPECT_TRUE(waitFor([&] { return told.size() == 8; })) << "no logind";
    EXPECT_TRUE(told.last());
}
