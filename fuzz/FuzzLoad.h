#pragma once

#include <cstddef>
#include <cstdint>

// Writes the input as a file with the given extension and opens it as the command line does.
// The reader must either load it or fail cleanly with an empty view.
int fuzzLoad(const uint8_t* data, size_t size, const char* extension, bool gsMode = false);
