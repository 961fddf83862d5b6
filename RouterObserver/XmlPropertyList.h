#pragma once

#include "RouterObserver/PropertyList.h"

#include <QByteArray>
#include <QVariant>

namespace tarvo {

/// Reads a property list in its XML form. Safe on bytes of any origin, of at most `maxPropertyListSize`.
///
/// Comments and processing instructions are skipped; entities that make the text longer are refused.
PropertyListReading readXmlPropertyList(const QByteArray &bytes);

/// @return @p root in the XML form; what has no such form is left out or damaged, so the caller reads it back
QByteArray xmlPropertyList(const QVariant &root);

} // namespace tarvo
