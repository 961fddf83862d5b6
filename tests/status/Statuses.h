#pragma once

#include "status/CompanionStatus.h"
#include "tests/support/PrintQt.h"
#include "ui/look/Translations.h"

#include <QLocale>
#include <QObject>

#include <gtest/gtest.h>

namespace tarvo {

/// The texts of a language, for as long as the object lives.
struct InLanguage {
    explicit InLanguage(const QLocale &locale)
    {
        QLocale::setDefault(locale);
        installTranslations(scope, locale);
    }
    ~InLanguage() { QLocale::setDefault(before); }

    QLocale before;
    QObject scope;
};

inline CompanionStatus attached(std::optional<bool> answering, const ModemDetails &details = {})
{
    return {.detection = Detection::Attached,
            .snapshot = {.m_useData = 12, .m_totalMonthData = 10, .answering = answering, .details = details}};
}

} // namespace tarvo
