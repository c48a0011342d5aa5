// The options of round milling.
#pragma once

#include "PelmarDlgs/records/round_mill.h"
#include "records/choices.h"
#include "records/depth_pass_facts.h"
#include "records/record_table.h"

namespace pelmar {

constexpr char kSectionOf2Axis[] = "Options2x";

template <> struct RecordFacts<CRoundMillDefsInfo> {
    using R = CRoundMillDefsInfo;

    static constexpr std::array units = {
        Units<R>(),
    };
    // The side clearance follows the one of 2-axis milling: what is written here is not what is read.
    static constexpr std::array approach = {
        Length<&R::SideClearance, &R::SideClearanceType>("SideClearance", "Подход к контуру").ReadFrom(kSectionOf2Axis),
        LengthType<&R::SideClearanceType>("SideClearanceType", "Подход к контуру").ReadFrom(kSectionOf2Axis),
    };
    static constexpr auto options = Joined(units, DepthPasses<R>("Макс. черновой шаг по глубине"), approach);
    static constexpr RecordTable table{"RoundMill", "Скругление", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
