#include "apn/tool/ProfileSource.h"
#include "fuzz/Input.h"

using namespace tarvo;

/// The input is the source of a profile, as an operator writes it.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const ProfileSource source = readSource(QString::fromUtf8(bytesOf(bytes, size)));
    if (!source.problems.isEmpty())
        return 0;
    check(!source.text.isEmpty());
    if (source.isNameList)
        return 0;
    check(recordProblems(source.text).isEmpty());
    const ProfileSource again = readSource(source.text);
    check(again.problems.isEmpty() && again.text == source.text);
    return 0;
}
