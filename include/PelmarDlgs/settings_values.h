// Values in the settings files: how they are written, how they are read, and the units they are in.
#pragma once

#include <string>

#include "PelmarDlgs/export.h"

namespace pelmar {

/// Unit codes of the records' "Units".
enum UnitCode { kInch = 0, kMillimetre = 1 };

/// The factors are a round pair on purpose: a length that is converted there and back is the same again.
constexpr double kInchToMillimetre = 25.0;
constexpr double kMillimetreToInch = 0.04;

/// The code of the host's units: 1 is millimetre, anything else inch.
constexpr int UnitsOfHost(int units)
{
    return units == 1 ? kMillimetre : kInch;
}

/// Write to the settings file: a whole number as "%d", a real as "%f". False where that cannot be saved; within an
/// open step (saving.h) it is noted for the step, and true. The value in memory is not affected.
PELMAR_API bool WriteWhole(const char* section, const char* key, int value);
PELMAR_API bool WriteReal(const char* section, const char* key, double value);

/// Read from the settings file. A missing file, section or key yields the fallback. A real passes through text and
/// single precision, the fallback too; a text that is no number, or is too large for single precision, yields the
/// fallback as well.
PELMAR_API int ReadWhole(const char* section, const char* key, int fallback);
PELMAR_API double ReadReal(const char* section, const char* key, double fallback);

/// The same from the defaults file.
PELMAR_API int ReadDefaultWhole(const char* section, const char* key, int fallback);
PELMAR_API double ReadDefaultReal(const char* section, const char* key, double fallback);

/// The number of decimals that reals are shown with: "Decimals" of section "Settings", 4 where it is absent or
/// negative, and at most 50.
PELMAR_API int DisplayDecimals();

/// 0 for what is too small to be shown (below 1e-8), else the value.
PELMAR_API double WithoutNoise(double value);

/// A real as it is shown to the user.
PELMAR_API std::string FormatForDisplay(double value);

} // namespace pelmar
