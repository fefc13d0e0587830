// libFuzzer entry for fuzz::htmlText.
#include "fuzz/FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::htmlText(data, size);
    return 0;
}
