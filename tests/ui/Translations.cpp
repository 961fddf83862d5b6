#include "ui/Translations.h"

#include "tests/support/PrintQt.h"
#include "ui/Images.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

#include <set>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// @return what @p expression captures in the product's sources, each once
std::set<QString> inSources(const QString &expression)
{
    std::set<QString> found;
    for (const QString &folder : {u"ui"_s, u"monitor"_s, u"app"_s}) {
        QDirIterator files(QStringLiteral(TARVO_SOURCES "/") + folder, {u"*.cpp"_s});
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const QString source = QString::fromUtf8(file.readAll());
            for (const auto &match : QRegularExpression(expression).globalMatch(source))
                found.insert(match.captured(1));
        }
    }
    return found;
}

QStringList placeholders(const QString &text)
{
    QStringList found;
    for (const auto &match : QRegularExpression(u"%\\d"_s).globalMatch(text))
        found << match.captured();
    found.sort();
    return found;
}

} // namespace

TEST(Translations, SayEveryTextInEveryLanguage)
{
    const std::set<QString> keys = inSources(u"qtTrId\\(\"(\\w+)\"\\)"_s);
    ASSERT_GE(keys.size(), 14U);
    QTranslator english;
    ASSERT_TRUE(english.load(u":/tarvo/translations/tarvo_en"_s));
    for (const char *language : {"ar", "de", "en", "es", "fr", "it", "ja", "pl", "pt_BR", "ru", "zh_CN"}) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(u":/tarvo/translations/tarvo_"_s + QLatin1StringView(language))) << language;
        for (const QString &key : keys) {
            const QByteArray id = key.toLatin1();
            const QString text = translator.translate(nullptr, id.constData());
            EXPECT_FALSE(text.isEmpty()) << language << ' ' << id.toStdString();
            EXPECT_EQ(placeholders(text), placeholders(english.translate(nullptr, id.constData())))
                << language << ' ' << id.toStdString();
        }
    }
}

TEST(Translations, FollowTheUsersLanguage)
{
    const Qt::LayoutDirection before = QApplication::layoutDirection();
    for (const auto &[locale, text] : {std::pair("de_AT", u"Beenden"_s), {"ar_EG", u"إنهاء"_s}, {"he_IL", u"Quit"_s}}) {
        QObject scope; // takes the texts back
        installTranslations(scope, QLocale(QLatin1StringView(locale)));
        EXPECT_EQ(qtTrId("MenuQuit"), text);
        EXPECT_EQ(qtTrId("NoSuchKey"), u"NoSuchKey"_s);
        EXPECT_EQ(QApplication::isRightToLeft(), text == u"إنهاء") << locale;
    }
    QApplication::setLayoutDirection(before);
}

TEST(Images, AreThereAtEverySizeWithoutATheme)
{
    QList<QImage> pictures;
    for (const char *name : {"ready", "online", "newVersion", "dataFluxReached", "dataFluxExceeded"}) {
        for (const int size : {16, 22, 24, 32, 48})
            EXPECT_EQ(imageNamed(QLatin1StringView(name)).pixmap(size).size(), QSize(size, size)) << name;
        const QImage picture =
            imageNamed(QLatin1StringView(name)).pixmap(16).toImage().convertToFormat(QImage::Format_Grayscale8);
        EXPECT_FALSE(pictures.contains(picture)) << name << " looks like another without colour";
        pictures << picture;
    }
    EXPECT_TRUE(imageNamed(u"none"_s).isNull());
}
