#include <QCoreApplication>

#include <gtest/gtest.h>

/// For tests that run event loops: the test program's main, with an application around it.
int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
