// The page of flat surfaces.
#pragma once

#include "pages/pocket_controls.h"
#include "records/flat_surface_facts.h"

namespace pelmar {

constexpr char kMaterialCutModeTopic[] = "pelmar-_optionspopups_material_cut_mode.htm";
constexpr ChoiceText kYesNo[] = {IDS_YES, IDS_NO};

struct FlatSurfaceTable {
    using R = CFlatSurfaceOptionsInfo;

    static constexpr std::array step = {
        Edit<&R::SideStep>(IDC_POCKET_SIDE_STEP)
            .Tells(kFlatSideStepChanged)
            .Help("pelmar-_optionspopups_side_step_size.htm"),
    };
    static constexpr std::array stepType = {
        List<&R::SideStepType>(IDC_POCKET_SIDE_STEP_TYPE)
            .InExchange()
            .TellsChanges(kFlatSideStepTypeChosen)
            .Help(kStepSizeTopic),
    };
    static constexpr std::array others = {
        Check<&R::GougeCheck>(IDC_FS_GOUGE_CHECK).InExchange().Help(kLeadGougeCheckTopic),
        // The template holds none of these; where they are missing nothing happens. Plunges on islands are on at 0.
        List<&R::DepthFirst>(IDC_FS_DEPTH_FIRST, kNoYes),
        List<&R::PlungeWarnings>(IDC_FS_PLUNGE_WARNINGS, kNoYes),
        List<&R::IslandPlunges>(IDC_FS_ISLAND_PLUNGES, kYesNo),
        List<&R::AlignPlunges>(IDC_FS_ALIGN_PLUNGES, kNoYes),
    };
    static constexpr auto controls = Joined(kPocketCornerEdits<R>, step, kPocketCornerLists<R>, stepType,
                                            PocketPatterns<R>(kMaterialCutModeTopic, kMaterialCutModeTopic), others);
};

inline constexpr PageFacts kFlatSurfacePage{IDD_FS, FlatSurfaceTable::controls,
                                            "pelmar-_options_3_axis_flat_surface_pocket_options.htm"};

} // namespace pelmar
