#pragma once

#include <QString>
#include <QStringList>

namespace tarvo {

/// The text of a profile, and what an operator should know about it before the companion reads it.
struct ProfileSource {
    QString text; ///< what a profile is packed from when there are no problems
    bool isNameList = false; ///< the text is a list of names, not a record
    QStringList problems{}; ///< each the end of a sentence; empty when all is well
};

/// @return what is wrong with @p record as an access-point record: JSON, its keys, the kinds of their values, and
///         characters that end or change the record on its way to the modem
QStringList recordProblems(const QString &record);

/// @return what is wrong with @p name as the name of a profile in the list
QStringList nameProblems(const QString &name);

/// Makes a profile's text of what an operator wrote: a JSON object is a record, a JSON array of texts a list
/// of names. Line breaks between a record's values are taken out, all else stays as it is.
ProfileSource readSource(const QString &json);

} // namespace tarvo
