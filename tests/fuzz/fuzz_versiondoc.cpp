// libFuzzer entry for fuzz::versionDocument.
#include "fuzz/FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::versionDocument(data, size);
    return 0;
}
