#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdlib>

namespace tarvo {

/// @return a copy of a fuzz target's input: a read behind its end is one behind an allocation's
inline QByteArray bytesOf(const unsigned char *bytes, std::size_t size)
{
    return {reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)};
}

/// Ends the program, which the fuzzer takes for a finding, unless what the tested code promises @p holds.
inline void check(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace tarvo
