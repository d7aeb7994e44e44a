#include "FuzzLoad.h"

#include <vector>

// The first input byte picks one of the accepted magics, so that every input reaches the reader.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* const kMagics[] = {"QD30", "QD31", "QD10"};
    if (size < 1) return 0;
    const char* magic = kMagics[data[0] % 3];
    std::vector<uint8_t> file(magic, magic + 4);
    file.insert(file.end(), data + 1, data + size);
    return fuzzLoad(file.data(), file.size(), "qdf");
}
