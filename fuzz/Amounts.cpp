#include "fuzz/Input.h"
#include "monitor/DataUsage.h"
#include "status/DataAmounts.h"

#include <algorithm>
#include <cmath>

using namespace tarvo;

namespace {

/// At most four digits with a point among them, and no word for what is no number.
void checkText(const QString &text)
{
    check(!text.isEmpty() && !text.contains(u"inf", Qt::CaseInsensitive)
          && !text.contains(u"nan", Qt::CaseInsensitive));
    check(std::ranges::count_if(text, [](QChar character) { return character.isDigit(); }) <= 4);
}

} // namespace

/// The input is a number as a modem writes it, a line feed, and another.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QString text = QString::fromUtf8(bytesOf(bytes, size));
    const double used = leadingNumber(text.section(u'\n', 0, 0));
    const double limit = leadingNumber(text.section(u'\n', 1));
    check(!std::isnan(used) && !std::isnan(limit));
    checkText(dataAmount(used));
    check(!amountOfLimit(used, limit).isEmpty());
    return 0;
}
