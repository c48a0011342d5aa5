// The table of stock materials.
#pragma once

#include <span>

namespace toollib {

struct Material {
    int id;
    int group;               ///< one of ToolLibMaterial's groups
    const char* designation; ///< Latin, for systems without Cyrillic letters
    const wchar_t* name;     ///< for the user
};

std::span<const Material> Materials();

/// Null where there is none.
const Material* FindMaterial(int id);

} // namespace toollib
