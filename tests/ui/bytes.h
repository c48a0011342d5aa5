#pragma once

#include <string_view>

namespace ui {

/// All that a value consists of, where not even a bit of it may change.
template <class Value> std::string_view BytesOf(const Value& value)
{
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

} // namespace ui
