#include "RouterObserver/PropertyList.h"

#include "RouterObserver/BinaryPropertyList.h"
#include "RouterObserver/XmlPropertyList.h"

namespace tarvo {

using namespace Qt::StringLiterals;

PropertyListReading readPropertyList(const QByteArray &bytes)
{
    if (bytes.size() > maxPropertyListSize)
        return {std::nullopt, u"it is larger than %1 bytes"_s.arg(maxPropertyListSize)};
    return bytes.startsWith("bplist00") ? readBinaryPropertyList(bytes) : readXmlPropertyList(bytes);
}

std::optional<QByteArray> writePropertyList(const QVariant &root)
{
    QByteArray bytes = xmlPropertyList(root);
    // Control characters, NaN and the like have no XML form.
    if (readPropertyList(bytes).root != root)
        return std::nullopt;
    return bytes;
}

} // namespace tarvo
