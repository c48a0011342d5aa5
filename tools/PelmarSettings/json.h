// The program's answers for other programs.
#pragma once

#include <nlohmann/json.hpp>

#include "output.h"
#include "review/findings.h"
#include "review/values.h"

namespace pelmar::tool {

using Json = nlohmann::ordered_json;

inline std::string TextOf(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

inline void PrintJson(Output& output, const Json& json)
{
    output.Write(TextOf(json));
}

/// Which setting: "setting", "section", "key", "operation", "label".
Json JsonOf(const review::Setting& setting);
Json JsonOf(const review::Finding& finding);
/// The value as files hold it: a number, or a text.
Json StoredValue(const review::Setting& setting, const review::Values& values);

} // namespace pelmar::tool
