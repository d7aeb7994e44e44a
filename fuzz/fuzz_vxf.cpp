#include "FuzzLoad.h"

#include <vector>

// The first input byte picks one of the accepted magics, so that every input reaches the reader.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* const kMagics[] = {"VX2", "VX3", "W3N", "W2N"};
    if (size < 1) return 0;
    std::vector<uint8_t> file(kMagics[data[0] % 4], kMagics[data[0] % 4] + 3);
    file.insert(file.end(), data + 1, data + size);
    return fuzzLoad(file.data(), file.size(), "vxf");
}
