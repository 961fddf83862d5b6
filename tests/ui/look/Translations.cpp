#include "ui/look/Translations.h"

#include "tests/support/PrintQt.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

#include <map>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// @return what @p expression captures in @p text, sorted
QStringList captures(const QString &expression, const QString &text)
{
    QStringList found;
    for (const auto &match : QRegularExpression(expression).globalMatch(text))
        found << match.captured(1);
    found.sort();
    return found;
}

QString textOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// @return the names of the texts that the companion's sources use
QStringList usedKeys()
{
    QString sources;
    for (const QString &folder : {u"app"_s, u"monitor"_s, u"status"_s, u"ui"_s}) {
        QDirIterator files(QStringLiteral(TARVO_SOURCES "/") + folder, {u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            sources += textOf(files.next());
    }
    QStringList keys = captures(u"qtTrId\\(\"(\\w+)\"[,)]"_s, sources);
    keys.removeDuplicates();
    return keys;
}

} // namespace

TEST(Translations, SayEveryTextInEveryLanguage)
{
    const QStringList keys = usedKeys();
    const QString english = textOf(QStringLiteral(TARVO_SOURCES "/resources/translations/tarvo_en.ts"));
    EXPECT_EQ(keys, captures(u"<message id=\"(\\w+)\""_s, english));
    std::map<QString, QStringList> placeholders; // of the first language
    for (const char *language : {"en", "ar", "de", "es", "fr", "it", "ja", "pl", "pt_BR", "ru", "zh_CN"}) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(u":/tarvo/translations/tarvo_"_s + QLatin1StringView(language))) << language;
        for (const QString &key : keys) {
            const QString text = translator.translate(nullptr, key.toLatin1().constData());
            EXPECT_FALSE(text.isEmpty()) << language << ' ' << key.toStdString();
            const QStringList own = captures(u"(%\\d)"_s, text);
            EXPECT_EQ(own, placeholders.try_emplace(key, own).first->second) << language << ' ' << key.toStdString();
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
        EXPECT_EQ(QApplication::isRightToLeft(), text == u"إنهاء") << locale;
    }
    QApplication::setLayoutDirection(before);
}
