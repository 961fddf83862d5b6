#pragma once

#include <QString>
#include <QUrl>

#include <ostream>

// How test failures show Qt's values.

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QUrl &url, std::ostream *out)
{
    *out << url.toString().toStdString();
}
