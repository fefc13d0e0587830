// libFuzzer entry for fuzz::prefsFile.
#include "fuzz/FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::prefsFile(data, size);
    return 0;
}
