#include "FuzzLoad.h"

#include <vector>

// The first input byte picks N5F, or one of the P4F magics read in GS mode.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* const kMagics[] = {"NP5", "PA4", "PB4", "PC4", "PD4"};
    if (size < 1) return 0;
    const int pick = data[0] % 5;
    std::vector<uint8_t> file(kMagics[pick], kMagics[pick] + 3);
    file.insert(file.end(), data + 1, data + size);
    return pick == 0 ? fuzzLoad(file.data(), file.size(), "n5f")
                     : fuzzLoad(file.data(), file.size(), "p4f", true);
}
