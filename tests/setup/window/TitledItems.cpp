#include "setup/window/TitledItems.h"

#include "tests/support/DesktopEnvironment.h"

#include <QImage>
#include <QPixmap>
#include <QTest>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// Expects a red icon at the left of @p image, and a text beside it that keeps clear of both edges.
void expectTextBesideIcon(const QImage &image)
{
    int besideIcon = image.width() / 2;
    while (besideIcon > 0 && image.pixelColor(besideIcon - 1, 20) != Qt::red)
        --besideIcon;
    EXPECT_GT(besideIcon, 8);
    const auto isEmpty = [&image](int x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != image.pixel(x, image.height() - 1))
                return false;
        }
        return true;
    };
    for (int i = 1; i <= 5; ++i)
        EXPECT_TRUE(isEmpty(besideIcon + i) && isEmpty(image.width() - i)) << i;
    bool begins = false;
    for (int i = 8; i <= 16; ++i)
        begins = begins || !isEmpty(besideIcon + i);
    EXPECT_TRUE(begins);
}

} // namespace

TEST(TitledList, KeepsTextsInsideTheirRows)
{
    QPixmap red(64, 64);
    red.fill(Qt::red);
    TitledList list;
    list.setItems({{red, u"icon"_s, u"title"_s, u"word "_s.repeated(40)}});
    list.resize(600, 400);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    const int height = list.visualItemRect(list.item(0)).height();
    list.clearSelection();
    list.setCurrentRow(-1);
    list.resize(240, 400);
    EXPECT_TRUE(waitFor([&] { return list.visualItemRect(list.item(0)).height() > height; })) << "they wrap";
    const auto seen = [&list](Qt::LayoutDirection direction) {
        list.setLayoutDirection(direction);
        return list.viewport()->grab().toImage().mirrored(direction == Qt::RightToLeft, false);
    };
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        expectTextBesideIcon(seen(direction));
}
