#pragma once

#include <QString>

namespace tarvo {

// Amounts of data for the user: gigabytes of 2^30 bytes in, text in the user's language out, with three digits that
// count.

/// @return whether @p gigabytes is an amount that a modem can have, and no more than 2^60 bytes
bool isKnownAmount(double gigabytes);

/// @return @p gigabytes in the unit that suits its size; a dash for one that is not known
QString dataAmount(double gigabytes);

/// @return how much of a limit is used, such as "12.0 of 10.0 GB"; the amount alone when there is no limit, or it is not
///         known itself
QString amountOfLimit(double used, double limit);

} // namespace tarvo
