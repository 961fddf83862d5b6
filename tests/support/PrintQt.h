#pragma once

#include <QString>

#include <ostream>

// How test failures show Qt's values.

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
