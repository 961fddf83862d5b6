#include "setup/text/PropertyListText.h"

#include "setup/settings/SettingKeys.h"

#include <cstdlib>

using namespace tarvo;
using namespace Qt::StringLiterals;

/// The input is the inside of a property list's dictionary, or a whole property list.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    for (const QByteArray &file : {input, "<plist><dict>" + input + "</dict></plist>"}) {
        const auto list = PropertyListText::fromBytes(file);
        if (!list)
            continue;
        if (list->toBytes() != file)
            std::abort();
        const auto vendors = list->withTexts(vendorsPath, {u"1"_s, u"<&"_s});
        if (vendors && identifiersAt(vendors->values(), vendorsPath).size() != 2)
            std::abort();
        const auto flag = list->withValue({u"k"_s}, true);
        const auto without = flag ? flag->withoutValue({u"k"_s}) : std::nullopt;
        if (without && without->values().contains(u"k"_s))
            std::abort();
    }
    return 0;
}
