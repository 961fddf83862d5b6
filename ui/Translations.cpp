#include "ui/Translations.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// @return the language of the texts that were installed; an empty text when there are none for @p locale
QString install(QObject &owner, const QLocale &locale, const QString &file, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, file, u"_"_s, folder))
        return {};
    const QString language = translator->language();
    QCoreApplication::installTranslator(translator.get());
    translator.release()->setParent(&owner);
    return language;
}

} // namespace

void installTranslations(QObject &owner, const QLocale &locale)
{
    const QString ours = u":/tarvo/translations"_s;
    install(owner, QLocale(QLocale::English), u"tarvo"_s, ours);
    const QString language = install(owner, locale, u"tarvo"_s, ours);
    // The buttons of standard dialogs speak the language of ours.
    install(owner, QLocale(language), u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}

} // namespace tarvo
