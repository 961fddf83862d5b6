#include "platform/linux/desktop/WebBrowsers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(WebBrowsers, KnowABrowserFromWhatWouldOnlyLookForOne)
{
    const QByteArray browser = qgetenv("BROWSER");
    const QByteArray folders = qgetenv("XDG_DATA_DIRS");
    QTemporaryDir folder;
    qunsetenv("BROWSER");
    qputenv("XDG_DATA_DIRS", folder.path().toUtf8());
    QDir(folder.path()).mkpath(u"applications/vendor"_s);
    const std::pair<QByteArray, bool> cases[] = {
        {"", false},
        {"Exec=sh %u\nMimeType=text/html;x-scheme-handler/http;\n[Desktop Action a]\nExec=none\n", true},
        {"Exec=\"/bin/sh\" -c %u\nMimeType=x-scheme-handler/http\n", true},
        {"Exec=sh %u\nMimeType=x-scheme-handler/https-only;text/html;\n", false},
        {"Exec=gone %u\nMimeType=x-scheme-handler/http;\n", false},
        {"Exec=exo-open --launch WebBrowser %u\nMimeType=x-scheme-handler/http;\n", false},
    };
    for (const QString &program : {u"sh"_s, u"exo-open"_s})
        QFile::link(u"/bin/sh"_s, folder.filePath(program));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    for (const auto &[entry, expected] : cases) {
        QFile file(folder.filePath(u"applications/vendor/a.desktop"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("[Desktop Entry]\n" + entry) > 0);
        file.close();
        EXPECT_EQ(isWebBrowserInstalled(), expected) << entry.toStdString();
    }
    qputenv("BROWSER", browser);
    qputenv("XDG_DATA_DIRS", folders);
    qputenv("PATH", path);
}
