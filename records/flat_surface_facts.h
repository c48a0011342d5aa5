// The options of flat surfaces.
#pragma once

#include "PelmarDlgs/records/flat_surface.h"
#include "records/choices.h"
#include "records/pocket_facts.h"
#include "records/record_table.h"

namespace pelmar {

template <> struct RecordFacts<CFlatSurfaceOptionsInfo> {
    using R = CFlatSurfaceOptionsInfo;

    static constexpr std::array step = {
        Length<&R::SideStep, &R::SideStepType>("SideStep", "Шаг на сторону"),
        LengthType<&R::SideStepType>("SideStepType", "Шаг на сторону"),
    };
    static constexpr auto options = Joined(kPocketCorners<R>, step, kPocketPattern<R>, kPocketPlunges<R>);
    static constexpr RecordTable table{"OptionsFlatSurface", "Плоские поверхности", options};
    static RecordKind<R>& Kind();
};

} // namespace pelmar
