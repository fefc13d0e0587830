// libFuzzer entry for fuzz::stackFrame.
#include "fuzz/FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::stackFrame(data, size);
    return 0;
}
