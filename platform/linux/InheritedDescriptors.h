#pragma once

namespace tarvo {

/// Makes the three standard descriptors the only ones that programs inherit which are started from now on.
void closeDescriptorsOnExec();

} // namespace tarvo
