#include "recording/FamilyCodes.h"
#include "recording/FormatReader.h"
#include "recording/NpFormat.h"
#include "recording/QdfFormat.h"
#include "recording/TmFormat.h"
#include "recording/VxfFormat.h"

std::unique_ptr<FormatReader> makeFormatReader(int format) {
    switch (format) {
    case Format::QDF:
        return std::make_unique<QdfFormat>();
    case Format::NP:
        return std::make_unique<NpFormat>();
    case Format::TM6:
    case Format::TM12:
        return std::make_unique<TmFormat>(format);
    default:
        return std::make_unique<VxfFormat>();
    }
}
