#include "ui/look/Images.h"

#include "simulator/surroundings/RecordingLog.h"
#include "tests/support/PrintQt.h"
#include "ui/icon/CustomView.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(Images, AreThereWithoutPluginsAndDifferWithoutColour)
{
    QTemporaryDir theme;
    QFile other(theme.filePath(u"tarvo-online.png"_s));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    QIcon::setThemeName(u"hicolor"_s);
    QIcon::setFallbackSearchPaths({theme.path()});
    QCoreApplication::setLibraryPaths({}); // of plugins that are not loaded yet
    EXPECT_FALSE(applicationImage().pixmap(16).isNull());

    EXPECT_EQ(imageNamed(u"online"_s).name(), u"tarvo-online"_s);
    EXPECT_EQ(imageNamed(u"ready"_s).name(), QString()) << "the theme does not have it";

    QList<QImage> pictures;
    for (const char *name : {"ready", "online", "newVersion", "dataFluxReached", "dataFluxExceeded"}) {
        const QIcon icon = imageNamed(QLatin1StringView(name));
        QImage picture = icon.pixmap(16).toImage();
        EXPECT_EQ(picture.size(), QSize(16, 16)) << name;
        EXPECT_NE(icon.pixmap({16, 16}, 2).toImage(), picture.scaled(32, 32)) << name << " is not sharp";
        EXPECT_EQ(icon.pixmap(24).toImage().copy(1, 1, 22, 22), icon.pixmap(22).toImage()) << name << " is stretched";
        picture.convertTo(QImage::Format_Grayscale8);
        EXPECT_FALSE(pictures.contains(picture)) << name << " looks like another without colour";
        pictures << picture;
    }
    RecordingLog systemLog;
    CustomView(systemLog).setImage(u"none"_s);
    EXPECT_TRUE(systemLog.contains(u"no image: none"_s));
}
