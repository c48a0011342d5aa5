// The table of tools.
#pragma once

#include <span>

#include "ToolLib.h"

namespace toollib {

enum Units : int { kInch = 0, kMillimetre = 1 };

enum class Shape { Flat, BullNose, Ball, Face, Chamfer, CornerRound, Other };

struct Tool {
    ToolLibKind kind;
    int id;     ///< in the tool database, unique within kind and units
    int number; ///< by which the shop calls the tool, unique within kind and units
    Units units;
    Shape shape;
    double diameter;
    double cornerRadius;
    double gaugeLength;
    int teeth;
    const char* material;       ///< ISO 513 code of a cutting material, else a common designation
    const char* designation;    ///< Latin, for systems without Cyrillic letters
    const wchar_t* description; ///< for the user
};

/// All tools: by kind, inch before millimetre, then by diameter and id.
std::span<const Tool> Tools();

/// The tool of a kind with an id, that of `units` if both unit systems have one; null where there is none.
const Tool* FindTool(ToolLibKind kind, int id, Units units);

/// Whether any tool is of this kind.
bool IsKind(int kind);

} // namespace toollib
