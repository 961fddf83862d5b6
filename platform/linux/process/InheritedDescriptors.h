#pragma once

namespace tarvo {

/// Makes the three standard descriptors the only ones that programs inherit which are started from now on
/// (close_range(2), Linux 5.11).
void closeDescriptorsOnExec();

} // namespace tarvo
