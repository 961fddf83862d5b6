#include "fuzz/Input.h"
#include "platform/linux/network/LeaseFiles.h"

using namespace tarvo;

/// The input is a lease as a network manager keeps it.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const Lease lease = parseLease(bytesOf(bytes, size));
    for (const quint32 address : {lease.address, lease.gateway}) {
        const quint32 network = address >> 24;
        check(address == 0 || (network != 0 && network != 127 && network < 224));
    }
    return 0;
}
