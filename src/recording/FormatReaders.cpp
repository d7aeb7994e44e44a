#include "recording/FamilyCodes.h"
#include "recording/FormatReader.h"
#include "recording/VxfFormat.h"

std::unique_ptr<FormatReader> makeFormatReader(int format) {
    switch (format) {
    default: return std::make_unique<VxfFormat>();
    }
}
