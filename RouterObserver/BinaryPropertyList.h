#pragma once

#include "RouterObserver/PropertyList.h"

#include <QByteArray>

namespace tarvo {

/// Reads a property list in its binary form. Safe on bytes of any origin, of at most `maxPropertyListSize`.
///
/// The format is that of Apple's CFBinaryPList.c (opensource.apple.com, CF): header, objects, a table of their offsets,
/// and a trailer of 32 bytes. Objects may be shared: the values may become 4 MiB in all.
PropertyListReading readBinaryPropertyList(const QByteArray &bytes);

} // namespace tarvo
