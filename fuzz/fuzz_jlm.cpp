#include "FuzzLoad.h"

// JLM files have no magic: every input goes to the reader by its extension.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    return fuzzLoad(data, size, "jlm");
}
