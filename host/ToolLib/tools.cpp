#include "tools.h"

#include <algorithm>

namespace toollib {
namespace {

// clang-format off
constexpr Tool kTools[] = {
    // kind, id, number, units, shape, diameter, corner radius, gauge length, teeth, material, designation, description
    {TOOLLIB_MILL,   36, 12, kInch, Shape::Flat,        0.25,  0,      2.0, 3, "HC",  "EM 1/4 Z3",          L"Фреза концевая 1/4 Z3"},
    {TOOLLIB_MILL,   61,  8, kInch, Shape::Ball,        0.25,  0.125,  2.0, 2, "HC",  "BALL 1/4 Z2",        L"Фреза сферическая 1/4 Z2"},
    {TOOLLIB_MILL,   40, 11, kInch, Shape::Flat,        0.375, 0,      2.5, 4, "HC",  "EM 3/8 Z4",          L"Фреза концевая 3/8 Z4"},
    {TOOLLIB_MILL,   44,  1, kInch, Shape::Flat,        0.5,   0,      3.0, 4, "HC",  "EM 1/2 Z4",          L"Фреза концевая 1/2 Z4"},
    {TOOLLIB_MILL,   63,  7, kInch, Shape::Ball,        0.5,   0.25,   3.0, 2, "HC",  "BALL 1/2 Z2",        L"Фреза сферическая 1/2 Z2"},
    {TOOLLIB_MILL,   71,  6, kInch, Shape::BullNose,    0.5,   0.0625, 3.0, 4, "HC",  "BULL 1/2 R1/16 Z4",  L"Фреза радиусная 1/2 R1/16 Z4"},
    {TOOLLIB_MILL,  335,  5, kInch, Shape::CornerRound, 0.5,   0.125,  3.0, 4, "HSS", "ROUND R1/8 Z4",      L"Фреза для скруглений R1/8 Z4"},
    {TOOLLIB_MILL, 1100,  2, kInch, Shape::Chamfer,     0.5,   0,      3.0, 4, "HC",  "CHAMFER 1/2 90DEG",  L"Фреза для фасок 1/2 90°"},
    {TOOLLIB_MILL,   48, 10, kInch, Shape::Flat,        0.75,  0,      3.5, 4, "HC",  "EM 3/4 Z4",          L"Фреза концевая 3/4 Z4"},
    {TOOLLIB_MILL,   52,  9, kInch, Shape::Flat,        1.0,   0,      4.0, 4, "HSS", "EM 1 Z4",            L"Фреза концевая 1 Z4"},
    {TOOLLIB_MILL, 1007,  4, kInch, Shape::Face,        2.0,   0,      2.5, 5, "HC",  "FACE 2 Z5",          L"Фреза торцевая 2 Z5"},
    {TOOLLIB_MILL, 1011,  3, kInch, Shape::Face,        3.0,   0,      2.5, 6, "HC",  "FACE 3 Z6",          L"Фреза торцевая 3 Z6"},
    {TOOLLIB_MILL, 2131, 14, kMillimetre, Shape::Flat,        6,  0,  50, 3, "HC",  "EM D6 Z3",           L"Фреза концевая D6 Z3"},
    {TOOLLIB_MILL, 2155,  7, kMillimetre, Shape::Ball,        6,  3,  50, 2, "HC",  "BALL D6 Z2",         L"Фреза сферическая D6 Z2"},
    {TOOLLIB_MILL, 2135, 13, kMillimetre, Shape::Flat,        8,  0,  60, 4, "HC",  "EM D8 Z4",           L"Фреза концевая D8 Z4"},
    {TOOLLIB_MILL, 2137, 12, kMillimetre, Shape::Flat,        10, 0,  70, 4, "HC",  "EM D10 Z4",          L"Фреза концевая D10 Z4"},
    {TOOLLIB_MILL, 2151,  9, kMillimetre, Shape::BullNose,    10, 1,  70, 4, "HC",  "BULL D10 R1 Z4",     L"Фреза радиусная D10 R1 Z4"},
    {TOOLLIB_MILL, 2157,  6, kMillimetre, Shape::Ball,        10, 5,  70, 2, "HC",  "BALL D10 Z2",        L"Фреза сферическая D10 Z2"},
    {TOOLLIB_MILL, 2161,  5, kMillimetre, Shape::Chamfer,     10, 0,  70, 4, "HC",  "CHAMFER D10 90DEG",  L"Фреза для фасок D10 90°"},
    {TOOLLIB_MILL, 2139,  1, kMillimetre, Shape::Flat,        12, 0,  80, 4, "HC",  "EM D12 Z4",          L"Фреза концевая D12 Z4"},
    {TOOLLIB_MILL, 2345,  2, kMillimetre, Shape::CornerRound, 12, 3,  80, 4, "HSS", "ROUND R3 Z4",        L"Фреза для скруглений R3 Z4"},
    {TOOLLIB_MILL, 2143, 11, kMillimetre, Shape::Flat,        16, 0,  90, 4, "HC",  "EM D16 Z4",          L"Фреза концевая D16 Z4"},
    {TOOLLIB_MILL, 2153,  8, kMillimetre, Shape::BullNose,    16, 2,  90, 4, "HC",  "BULL D16 R2 Z4",     L"Фреза радиусная D16 R2 Z4"},
    {TOOLLIB_MILL, 2145, 10, kMillimetre, Shape::Flat,        20, 0, 100, 4, "HSS", "EM D20 Z4",          L"Фреза концевая D20 Z4"},
    {TOOLLIB_MILL, 2167,  4, kMillimetre, Shape::Face,        63, 0,  60, 5, "HC",  "FACE D63 Z5",        L"Фреза торцевая D63 Z5"},
    {TOOLLIB_MILL, 2169,  3, kMillimetre, Shape::Face,        80, 0,  60, 6, "HC",  "FACE D80 Z6",        L"Фреза торцевая D80 Z6"},

    {TOOLLIB_DRILL,    1, 4, kInch, Shape::Other, 0.125, 0, 2.5, 2, "HSS", "SPOT DRILL 1/8",  L"Сверло центровочное 1/8"},
    {TOOLLIB_DRILL,    3, 1, kInch, Shape::Other, 0.25,  0, 4.0, 2, "HSS", "DRILL 1/4",       L"Сверло спиральное 1/4"},
    {TOOLLIB_DRILL,   21, 2, kInch, Shape::Other, 0.25,  0, 3.5, 4, "HSS", "TAP 1/4-20",      L"Метчик 1/4-20"},
    {TOOLLIB_DRILL,    5, 3, kInch, Shape::Other, 0.5,   0, 6.0, 2, "HSS", "DRILL 1/2",       L"Сверло спиральное 1/2"},
    {TOOLLIB_DRILL, 2201, 5, kMillimetre, Shape::Other, 3.15, 0,  50, 2, "HSS", "SPOT DRILL D3.15", L"Сверло центровочное D3.15"},
    {TOOLLIB_DRILL, 2203, 1, kMillimetre, Shape::Other, 6.8,  0, 110, 2, "HSS", "DRILL D6.8",       L"Сверло спиральное D6.8"},
    {TOOLLIB_DRILL, 2221, 3, kMillimetre, Shape::Other, 8,    0,  90, 4, "HSS", "TAP M8X1.25",      L"Метчик M8x1.25"},
    {TOOLLIB_DRILL, 2207, 4, kMillimetre, Shape::Other, 10,   0, 130, 2, "HSS", "DRILL D10",        L"Сверло спиральное D10"},
    {TOOLLIB_DRILL, 2241, 2, kMillimetre, Shape::Other, 10,   0, 130, 6, "HC",  "REAMER D10H7",     L"Развертка D10H7"},

    {TOOLLIB_LATHE,   1, 1, kInch, Shape::Other, 0, 0.0312, 5, 1, "HC", "CNMG 432 ROUGH",   L"Резец проходной черновой CNMG 432"},
    {TOOLLIB_LATHE,   7, 4, kInch, Shape::Other, 0, 0.0156, 5, 1, "HC", "VNMG 331 FINISH",  L"Резец проходной чистовой VNMG 331"},
    {TOOLLIB_LATHE,  41, 3, kInch, Shape::Other, 0, 0.0080, 5, 1, "HC", "GROOVE 1/8",       L"Резец канавочный 1/8"},
    {TOOLLIB_LATHE, 113, 2, kInch, Shape::Other, 0, 0.0050, 5, 1, "HC", "THREAD 60DEG 16ER", L"Резец резьбовой 60° 16ER"},
    {TOOLLIB_LATHE,   1, 1, kMillimetre, Shape::Other, 0, 0.8, 125, 1, "HC", "CNMG 120408 ROUGH",  L"Резец проходной черновой CNMG 120408"},
    {TOOLLIB_LATHE,   7, 4, kMillimetre, Shape::Other, 0, 0.4, 125, 1, "HC", "VNMG 160404 FINISH", L"Резец проходной чистовой VNMG 160404"},
    {TOOLLIB_LATHE,  41, 3, kMillimetre, Shape::Other, 0, 0.2, 125, 1, "HC", "GROOVE 3 MM",        L"Резец канавочный 3 мм"},
    {TOOLLIB_LATHE, 113, 2, kMillimetre, Shape::Other, 0, 0.1, 125, 1, "HC", "THREAD 60DEG 16ER",  L"Резец резьбовой 60° 16ER"},

    {TOOLLIB_LATHE_DRILL,  70, 2, kInch, Shape::Other, 0.25, 0, 4, 2, "HSS", "LATHE DRILL 1/4", L"Сверло токарное 1/4"},
    {TOOLLIB_LATHE_DRILL,  74, 1, kInch, Shape::Other, 0.5,  0, 6, 2, "HSS", "LATHE DRILL 1/2", L"Сверло токарное 1/2"},
    {TOOLLIB_LATHE_DRILL, 142, 1, kMillimetre, Shape::Other, 10, 0, 130, 2, "HSS", "LATHE DRILL D10", L"Сверло токарное D10"},
    {TOOLLIB_LATHE_DRILL, 146, 2, kMillimetre, Shape::Other, 16, 0, 180, 2, "HSS", "LATHE DRILL D16", L"Сверло токарное D16"},

    {TOOLLIB_PROBE, 1, 1, kInch,       Shape::Ball, 0.25, 0.125, 4,   0, "Ruby", "PROBE 1/4", L"Щуп измерительный 1/4"},
    {TOOLLIB_PROBE, 2, 2, kMillimetre, Shape::Ball, 2,    1,     100, 0, "Ruby", "PROBE D2",  L"Щуп измерительный D2"},
    {TOOLLIB_PROBE, 1, 1, kMillimetre, Shape::Ball, 6,    3,     100, 0, "Ruby", "PROBE D6",  L"Щуп измерительный D6"},

    {TOOLLIB_EDM,  8, 2, kInch,       Shape::Other, 0.008, 0, 0, 0, "CuZn37", "WIRE 0.008", L"Проволока латунная 0.008"},
    {TOOLLIB_EDM, 10, 1, kInch,       Shape::Other, 0.010, 0, 0, 0, "CuZn37", "WIRE 0.010", L"Проволока латунная 0.010"},
    {TOOLLIB_EDM, 37, 2, kMillimetre, Shape::Other, 0.20,  0, 0, 0, "CuZn37", "WIRE D0.20", L"Проволока латунная D0.20"},
    {TOOLLIB_EDM, 38, 1, kMillimetre, Shape::Other, 0.25,  0, 0, 0, "CuZn37", "WIRE D0.25", L"Проволока латунная D0.25"},

    {TOOLLIB_THREAD_MILL, 1, 1, kInch,       Shape::Other, 0.1875, 0, 2.5, 3, "HC", "THREAD MILL 1/4-20",  L"Фреза резьбовая 1/4-20"},
    {TOOLLIB_THREAD_MILL, 2, 2, kInch,       Shape::Other, 0.375,  0, 3.0, 4, "HC", "THREAD MILL 1/2-13",  L"Фреза резьбовая 1/2-13"},
    {TOOLLIB_THREAD_MILL, 1, 1, kMillimetre, Shape::Other, 4.8,    0, 60,  3, "HC", "THREAD MILL M6X1",    L"Фреза резьбовая M6x1"},
    {TOOLLIB_THREAD_MILL, 2, 2, kMillimetre, Shape::Other, 8,      0, 75,  4, "HC", "THREAD MILL M10X1.5", L"Фреза резьбовая M10x1.5"},

    {TOOLLIB_PLUNGE_MILL, 1, 1, kInch,       Shape::Other, 1.0, 0.0312, 5,   3, "HC", "PLUNGE MILL 1 Z3",   L"Фреза плунжерная 1 Z3"},
    {TOOLLIB_PLUNGE_MILL, 2, 1, kMillimetre, Shape::Other, 25,  0.8,    130, 3, "HC", "PLUNGE MILL D25 Z3", L"Фреза плунжерная D25 Z3"},
};
// clang-format on

} // namespace

std::span<const Tool> Tools()
{
    return kTools;
}

const Tool* FindTool(ToolLibKind kind, int id, Units units)
{
    const Tool* other = nullptr;
    for (const Tool& tool : kTools) {
        if (tool.kind != kind || tool.id != id)
            continue;
        if (tool.units == units)
            return &tool;
        other = &tool;
    }
    return other;
}

bool IsKind(int kind)
{
    return std::ranges::any_of(kTools, [kind](const Tool& tool) { return tool.kind == kind; });
}

} // namespace toollib
