// The tables of groove and slot milling, which differ in three keys only.
#pragma once

#include <array>

#include "pages/choices.h"
#include "pages/description.h"
#include "pages/feature_mill_options.h"

/// The fields that each of the two records names in its own way.
template <class Record> struct GrooveSlotKeys {
    const char* depthKey;
    double Record::*depth;
    const char* depthTypeKey;
    int Record::*depthType;
    const char* geometryKey;
    int Record::*geometry;
};

template <class Record> constexpr std::array<Field<Record>, 12> GrooveSlotFields(const GrooveSlotKeys<Record>& own)
{
    return {{
        {"Units", &Record::Units},
        // A depth and a plunge clearance are scaled whatever their types are.
        {own.depthKey, own.depth, Scaling::Always},
        {own.depthTypeKey, own.depthType},
        {own.geometryKey, own.geometry},
        {"RapidPlane", &Record::RapidPlane, Scaling::Always},
        {"PlungeClear", &Record::PlungeClear, Scaling::Always},
        {"PlungeClearType", &Record::PlungeClearType},
        {"DefCutingDir", &Record::DefCutingDir},
        {"DefLeaveStockZ", &Record::DefLeaveStockZ, Scaling::Always},
        {"DefMaxRoughDOCType", &Record::DefMaxRoughDOCType},
        {"DefMaxRoughDOC", &Record::DefMaxRoughDOC, &Record::DefMaxRoughDOCType},
        {"DefRampAngle", &Record::DefRampAngle},
    }};
}

constexpr Range kRampAngles{0.0, 90.0};

template <class Record>
constexpr std::array<ExchangeRow<Record>, 6> GrooveSlotExchange(const GrooveSlotKeys<Record>& own)
{
    using Row = ExchangeRow<Record>;
    return {{
        Row(IDC_GROOVE_SLOT_DEPTH, own.depth, kNotNegative).PlainEdit(),
        {IDC_FEATURE_RAPID_PLANE, &Record::RapidPlane, kNotNegative},
        // It is the rapid plane that is checked again here, so any plunge clearance passes.
        Row(IDC_GROOVE_SLOT_PLUNGE_CLEARANCE, &Record::PlungeClear, kNotNegative).ChecksInstead(&Record::RapidPlane),
        {IDC_FEATURE_STOCK, &Record::DefLeaveStockZ, kNotNegative},
        {IDC_FEATURE_ROUGH_DEPTH, &Record::DefMaxRoughDOC, kNotNegative},
        Row(IDC_GROOVE_SLOT_RAMP_ANGLE, &Record::DefRampAngle, kRampAngles).PlainEdit(),
    }};
}

constexpr UINT kGrooveSlotGeometries[] = {IDS_GEOMETRY_CENTER_TOP,     IDS_GEOMETRY_INSIDE_TOP,
                                          IDS_GEOMETRY_INSIDE_BOTTOM,  IDS_GEOMETRY_CENTER_BOTTOM,
                                          IDS_GEOMETRY_OUTSIDE_BOTTOM, IDS_GEOMETRY_OUTSIDE_TOP};

template <class Record> constexpr std::array<ChoiceRow<Record>, 4> GrooveSlotChoices(const GrooveSlotKeys<Record>& own)
{
    return {{
        {IDC_GROOVE_SLOT_DEPTH_TYPE, own.depthType, kLengthTypes},
        {IDC_GROOVE_SLOT_GEOMETRY, own.geometry, kGrooveSlotGeometries},
        {IDC_FEATURE_CUTTING_DIRECTION, &Record::DefCutingDir, kCuttingDirections, kFirstCuttingDirection},
        {IDC_FEATURE_ROUGH_DEPTH_TYPE, &Record::DefMaxRoughDOCType, kLengthTypes},
    }};
}
