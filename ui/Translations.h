#pragma once

class QCoreApplication;
class QLocale;

namespace tarvo {

/// Gives @p application its texts in the first of @p locale's languages that there are translations for, else in
/// English, and the direction of that language. A text without a translation shows its key.
void installTranslations(QCoreApplication &application, const QLocale &locale);

} // namespace tarvo
