#include <QApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace Qt::StringLiterals;

/// The application that widgets need, and settings of the tests' own.
class Application : public testing::Environment {
public:
    void SetUp() override
    {
        const QDir home(qEnvironmentVariable("XDG_CONFIG_HOME"));
        home.mkpath(u"tarvo"_s);
        QFile file(home.filePath(u"tarvo/Config.plist"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"(<?xml version="1.0"?><plist version="1.0"><dict/></plist>)");
        file.close();
        m_application = std::make_unique<QApplication>(m_argc, m_argv);
    }

    void TearDown() override { m_application.reset(); }

private:
    char m_name[6] = "tests";
    char *m_argv[2] = {m_name, nullptr};
    int m_argc = 1;
    std::unique_ptr<QApplication> m_application;
};

const auto *const application = testing::AddGlobalTestEnvironment(new Application);

} // namespace
