#pragma once

#include <QString>

namespace tarvo {

/// The system's log. Used on every thread.
class SystemLog {
public:
    virtual ~SystemLog() = default;

    /// Writes @p line as it is: no level, no prefix, never a format.
    virtual void write(const QString &line) = 0;
};

} // namespace tarvo
