#pragma once

#include <QString>
#include <QStringList>

namespace tarvo {

/// A text for the user that is not yet in the user's language: the id of a translation, and what is put into it.
struct UserText {
    QByteArray id; ///< empty for no text
    QStringList arguments{}; ///< for %1 and %2

    bool operator==(const UserText &) const = default;

    /// @return the text in the user's language
    QString shown() const;
};

} // namespace tarvo
