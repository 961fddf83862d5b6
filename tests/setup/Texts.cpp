#include "setup/checks/Chain.h"
#include "setup/settings/SettingKeys.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace tarvo;
using namespace Qt::StringLiterals;

namespace {

/// @return the ids of all texts that the program shows, those that are put together included
QSet<QString> usedIds()
{
    static const QRegularExpression literal(uR"~(qtTrId\("(\w+)"\)|"((?:Fix|Fault|Group)[A-Z]\w+)")~"_s);
    QSet<QString> ids;
    QDirIterator files(QStringLiteral(TARVO_SOURCES "/setup"), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const auto &match : literal.globalMatch(QString::fromUtf8(file.readAll())))
            ids.insert(match.captured(1) + match.captured(2));
    }
    for (const SettingKey &key : settingKeys())
        ids.unite({u"Setting_"_s + key.path.last(), u"Explain_"_s + key.path.last()});
    for (const Check &check : checkChain({}))
        ids.insert(u"Check_"_s + QString::fromLatin1(check.id));
    return ids;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%[\\d@]"_s);
    QStringList found;
    for (const auto &match : placeholder.globalMatch(text))
        found.append(match.captured());
    std::ranges::sort(found);
    return found;
}

} // namespace

TEST(Texts, AreThereInEveryLanguage)
{
    const QSet<QString> ids = usedIds();
    ASSERT_GE(ids.size(), 130);
    std::map<QString, QStringList> expected; // of the first language
    for (const char *language : {"en", "ar", "de", "es", "fr", "it", "ja", "pl", "pt_BR", "ru", "zh_CN"}) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(u":/tarvo/translations/tarvo-setup_"_s + QLatin1StringView(language))) << language;
        for (const QString &id : ids) {
            const QString text = translator.translate(nullptr, id.toLatin1().constData());
            EXPECT_FALSE(text.isEmpty()) << language << ' ' << id.toStdString();
            const QStringList own = placeholders(text);
            EXPECT_EQ(own, expected.try_emplace(id, own).first->second) << language << ' ' << id.toStdString();
        }
    }
}
