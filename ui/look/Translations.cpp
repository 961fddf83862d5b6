#include "ui/look/Translations.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QStringList>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QString embeddedTexts()
{
    return u":/tarvo/translations"_s;
}

/// @return where our texts may be: what is installed mends, or adds to, what is embedded
QStringList textFolders()
{
    const QString folder = u"tarvo/translations"_s;
    return QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, folder, QStandardPaths::LocateDirectory)
        + QStringList{QCoreApplication::applicationDirPath() + u"/../share/"_s + folder, embeddedTexts()};
}

/// Takes the texts for @p locale from the first of @p folders that has them.
/// @return the language of the texts that were installed; an empty text when there are none for @p locale
QString install(QObject &owner, const QLocale &locale, const QString &file, const QStringList &folders)
{
    auto translator = std::make_unique<QTranslator>();
    if (!std::ranges::any_of(folders,
                             [&](const QString &folder) { return translator->load(locale, file, u"_"_s, folder); }))
        return {};
    const QString language = translator->language();
    QCoreApplication::installTranslator(translator.get());
    translator.release()->setParent(&owner);
    return language;
}

} // namespace

void installTranslations(QObject &owner, const QLocale &locale, const QString &catalogue)
{
    install(owner, QLocale(QLocale::English), catalogue, {embeddedTexts()});
    const QString language = install(owner, locale, catalogue, textFolders());
    // The buttons of standard dialogs speak the language of ours.
    install(owner, QLocale(language), u"qtbase"_s, {QLibraryInfo::path(QLibraryInfo::TranslationsPath)});
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}

} // namespace tarvo
