#pragma once

#include <QString>

class QLocale;
class QObject;

namespace tarvo {

using Qt::StringLiterals::operator""_s;

/// Gives the application its texts in the first of @p locale's languages that there are translations for, else in
/// English, and the direction of that language. Translations in `tarvo/translations` of the data folders, or beside the
/// program, go before those that the program carries. A text without a translation shows its key. They are taken back
/// with @p owner.
/// @param catalogue  names the program's texts among those of several programs
void installTranslations(QObject &owner, const QLocale &locale, const QString &catalogue = u"tarvo"_s);

} // namespace tarvo
