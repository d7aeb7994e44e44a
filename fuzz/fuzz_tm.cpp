#include "FuzzLoad.h"

#include <vector>

// The first input byte picks one of the accepted magics (formats 6 and 12); TM files have no
// extension of their own.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const char* const kMagics[] = {"TM00", "TM01", "TM10", "TM11"};
    if (size < 1) return 0;
    const char* magic = kMagics[data[0] % 4];
    std::vector<uint8_t> file(magic, magic + 4);
    file.insert(file.end(), data + 1, data + size);
    return fuzzLoad(file.data(), file.size(), "dat");
}
