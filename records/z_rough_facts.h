// The options of Z roughing.
#pragma once

#include "PelmarDlgs/records/z_rough.h"
#include "records/choices.h"
#include "records/pocket_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CZRoughOptionsInfo> {
    using R = CZRoughOptionsInfo;

    static constexpr std::array steps = {
        Length<&R::SideRoughStep, &R::SideRoughStepType>("SideRoughStep", "Черновой шаг на сторону"),
        LengthType<&R::SideRoughStepType>("SideRoughStepType", "Черновой шаг на сторону"),
        Length<&R::DepthRoughStep, &R::DepthRoughStepType>("DepthRoughStep", "Черновой шаг по глубине"),
        LengthType<&R::DepthRoughStepType>("DepthRoughStepType", "Черновой шаг по глубине"),
        Switch<&R::CutterCompTop>("CutterCompTop", "Компенсатор по верху"),
    };
    static constexpr std::array approach = {
        Length<&R::SideClearance, &R::SideClearanceType>("SideClearance", "Подход к контуру"),
        LengthType<&R::SideClearanceType>("SideClearanceType", "Подход к контуру"),
    };
    static constexpr auto options = Joined(kPocketCorners<R>, steps, kPocketPattern<R>, approach, kPocketPlunges<R>);
    static constexpr RecordTable table{"OptionsZRough", "Черновая по Z", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
