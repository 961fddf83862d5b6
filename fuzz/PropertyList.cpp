#include "RouterObserver/PropertyList.h"

#include <algorithm>
#include <cstdlib>

using namespace tarvo;

namespace {

int depth(const QVariant &value)
{
    int deepest = 0;
    for (const QVariant &child : value.toList())
        deepest = std::max(deepest, depth(child));
    for (const QVariant &child : value.toMap())
        deepest = std::max(deepest, depth(child));
    return deepest + 1;
}

} // namespace

/// The input is a property list in its XML or its binary form.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const PropertyListReading reading = readPropertyList(input);
    if (reading.root.has_value() != reading.problem.isEmpty())
        std::abort();
    if (!reading.root)
        return 0;
    if (depth(*reading.root) > maxPropertyListDepth + 1)
        std::abort();
    const auto written = writePropertyList(*reading.root);
    if (written && readPropertyList(*written).root != reading.root)
        std::abort();
    return 0;
}
