// What the post-processor library keeps for a toolpath operation. The library and those who ask it share this record
// as it stands: both are built with one compiler and run-time, so that its strings may cross.
#pragma once

#include <cstdint>
#include <string>

namespace pelmar {

/// Default template and sort keys of one operation. A fresh one holds nothing and sorts by the first option.
/// Texts are in the ANSI code page.
struct TemplateDefaults {
    std::int32_t operationId = 0;
    std::string operationName;
    std::string templateFile; ///< path of the default template
    // The library's own, as all that is named so: whoever hands a record back leaves it as it came.
    std::string ownText1;
    std::string ownText2;
    std::int32_t ownNumber1 = 0;
    std::string ownText3;
    std::int32_t ownNumber2 = 0;
    std::int32_t ownNumber3 = 0;
    std::string ownText4;
    std::int32_t hasDefaults = 0; ///< non-zero where defaults were set for the operation
    std::string ownText5;
    std::int32_t firstSortKey = 1; ///< a sort key is one bit, 1 to 64
    std::int32_t secondSortKey = 1;
    std::int32_t thirdSortKey = 1;
};

} // namespace pelmar
