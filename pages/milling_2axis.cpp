#include "PelmarDlgs/pages/milling_2axis.h"

#include "pages/milling_2axis_controls.h"
#include "pages/page_binding.h"

using namespace pelmar;

namespace {

// Operations that change the page.
constexpr int kAlignsPlunges = 6;
constexpr int kConstantIslandDepths = 35;
constexpr int kThreadMilling = 38;

class Binding2x : public BindingOf<C2AxisOptionsInfo> {
public:
    explicit Binding2x(const CDefs2xPage& page) : BindingOf(kMilling2AxisPage, StartsWith::BuiltInValues), m_page(page)
    {
    }

    void ShowCompensation(const CWnd& page) const
    {
        SelectIndex(page, IDC_2X_LOOK_AHEAD, lookAhead);
        SelectIndex(page, IDC_2X_SHOW_TOOLPATH, showToolpath);
    }

    bool hidesCompensation = false;
    int lookAhead = 0;
    int showToolpath = 0;

private:
    void ShowMore(CPropertyPage& page) override
    {
        ShowIslandDepths(page);
        if (m_page.m_operationCode != kAlignsPlunges) {
            record.AlignPlunges = 0;
            ShowCheck(page, IDC_2X_ALIGN_PLUNGES, false);
        }
        ShowCompensation(page);
        if (hidesCompensation)
            for (const int id :
                 {IDC_2X_LOOK_AHEAD, IDC_2X_LOOK_AHEAD_LABEL, IDC_2X_SHOW_TOOLPATH, IDC_2X_SHOW_TOOLPATH_LABEL})
                HideControl(page, id);
        page.UpdateData(FALSE);
    }

    /// Depths that are not constant are for operations on islands alone.
    bool AllowsIslandDepths() const
    {
        return (m_page.m_contextBits & 1) && !m_page.m_contextFlag && m_page.m_operationCode != kConstantIslandDepths;
    }

    void ShowIslandDepths(const CWnd& page)
    {
        const ChoiceTexts depths = RecordFacts<C2AxisOptionsInfo>::islandDepths;
        FillList(page, IDC_2X_PATH_ISLAND_DEPTHS, AllowsIslandDepths() ? depths : depths.first(1));
        if (!AllowsIslandDepths())
            record.PathIslandDepths = 0;
        SelectIndex(page, IDC_2X_PATH_ISLAND_DEPTHS, record.PathIslandDepths);
    }

    void ShowDefaults(CExpRegenPropertyPage& page) override
    {
        ShowLists(page);
        page.QuerySiblings(kIslandDepthsChosen, record.PathIslandDepths);
        page.UpdateData(FALSE);
        GoOver(page, {Occasion::Defaults});
    }

    void ApplyRules(CWnd& page, const Occasion& occasion) override
    {
        EnableControl(page, IDC_2X_POCKET_NESTING_DEPTH, record.PocketNestingType == 1);
        if (!occasion.Is(Occasion::Activation))
            return;
        const int operation = m_page.m_operationCode;
        EnableControl(page, IDC_2X_FEED_BETWEEN_RATE, operation != kThreadMilling);
        EnableControl(page, IDC_2X_FEED_BETWEEN_RATE_LABEL, operation != kThreadMilling);
        const bool threadMillFeeds = operation == kThreadMilling || operation == 0;
        EnableControl(page, IDC_2X_THREAD_MILL_FEED_BETWEEN, threadMillFeeds);
        EnableControl(page, IDC_2X_THREAD_MILL_FEED_BETWEEN_LABEL, threadMillFeeds);
        // These two are given back by nothing.
        if (!AllowsIslandDepths())
            EnableControl(page, IDC_2X_PATH_ISLAND_DEPTHS, false);
        if (operation != kAlignsPlunges)
            EnableControl(page, IDC_2X_ALIGN_PLUNGES, false);
    }

    const CDefs2xPage& m_page;
};

Binding2x& MillingOf(PageBinding& binding)
{
    return static_cast<Binding2x&>(binding);
}
} // namespace

static_assert(int{CDefs2xPage::IDD} == IDD_2X);

IMPLEMENT_DYNCREATE(CDefs2xPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefs2xPage, pelmar::CRecordPage)
    ON_EN_KILLFOCUS(IDC_2X_MAX_FEED_BETWEEN, &CDefs2xPage::OnKillFMaxFeedBetween)
    ON_EN_KILLFOCUS(IDC_2X_CORNER_ANGLE, &CDefs2xPage::OnKillFCornerAngle)
    ON_EN_KILLFOCUS(IDC_2X_CORNER_CLEARANCE, &CDefs2xPage::OnKillFCornerClearance)
    ON_EN_KILLFOCUS(IDC_2X_SIDE_CLEARANCE, &CDefs2xPage::OnKillFSideClearance)
    ON_EN_KILLFOCUS(IDC_2X_SIDE_ROUGH_STEP, &CDefs2xPage::OnKillFSideRoughStep)
    ON_EN_KILLFOCUS(IDC_2X_SIDE_FINISH_STEP, &CDefs2xPage::OnKillFSideFinishStep)
    ON_EN_KILLFOCUS(IDC_2X_DEPTH_ROUGH_STEP, &CDefs2xPage::OnKillFDepthRoughStep)
    ON_EN_KILLFOCUS(IDC_2X_DEPTH_FINISH_STEP, &CDefs2xPage::OnKillFDepthFinishStep)
    ON_EN_KILLFOCUS(IDC_2X_RAPID_PLANE, &CDefs2xPage::OnKillFRapidPlane)
    ON_EN_KILLFOCUS(IDC_2X_RAPID_PLUNGE, &CDefs2xPage::OnKillFRapidPlunge)
    ON_CBN_SELCHANGE(IDC_2X_FEED_BETWEEN_TYPE, &CDefs2xPage::OnSelFeedBetweenType)
    ON_CBN_SELCHANGE(IDC_2X_CORNER_ANGLE_TYPE, &CDefs2xPage::OnSelCornerAngleType)
    ON_CBN_SELCHANGE(IDC_2X_CORNER_CLEARANCE_TYPE, &CDefs2xPage::OnSelCornerClearType)
    ON_CBN_SELCHANGE(IDC_2X_SIDE_CLEARANCE_TYPE, &CDefs2xPage::OnSelSideClearType)
    ON_CBN_SELCHANGE(IDC_2X_SIDE_ROUGH_STEP_TYPE, &CDefs2xPage::OnSelSideRoughStepType)
    ON_CBN_SELCHANGE(IDC_2X_SIDE_FINISH_STEP_TYPE, &CDefs2xPage::OnSelSideFinishStepType)
    ON_CBN_SELCHANGE(IDC_2X_DEPTH_ROUGH_STEP_TYPE, &CDefs2xPage::OnSelDepthRoughStepType)
    ON_CBN_SELCHANGE(IDC_2X_DEPTH_FINISH_STEP_TYPE, &CDefs2xPage::OnSelDepthFinishStepType)
    ON_CBN_SELCHANGE(IDC_2X_PATH_ISLAND_DEPTHS, &CDefs2xPage::OnSelPathIslandDepthType)
    ON_CBN_SELCHANGE(IDC_2X_GOUGE_CHECK, &CDefs2xPage::OnSelGougeCheckType)
    ON_BN_CLICKED(IDC_2X_CUTTER_COMP_TOP, &CDefs2xPage::OnSelCutterCompTop)
    ON_CBN_SELCHANGE(IDC_2X_FEED_BETWEEN_RATE, &CDefs2xPage::OnSelFeedBetweenRate)
    ON_CBN_SELCHANGE(IDC_2X_THREAD_MILL_FEED_BETWEEN, &CDefs2xPage::OnSelThreadMillFeedBetween)
    ON_BN_CLICKED(IDC_2X_DEPTH_FIRST, &CDefs2xPage::OnSelDepthFirst)
    ON_CBN_SELCHANGE(IDC_2X_FINISH_CUT_ON, &CDefs2xPage::OnSelFinishCutOn)
    ON_CBN_SELCHANGE(IDC_2X_POCKET_NESTING_TYPE, &CDefs2xPage::OnSelPocketNestingType)
    ON_CBN_SELCHANGE(IDC_2X_SORT_TYPE, &CDefs2xPage::OnSelSortType)
    ON_BN_CLICKED(IDC_2X_DISPLAY_PLUNGE_CHANGES, &CDefs2xPage::OnSelDispPlungeChanges)
    ON_BN_CLICKED(IDC_2X_ISLAND_PLUNGES, &CDefs2xPage::OnSelIslandPlunges)
    ON_BN_CLICKED(IDC_2X_ALIGN_PLUNGES, &CDefs2xPage::OnSelAlignPlunges)
    ON_CBN_SELCHANGE(IDC_2X_LOOK_AHEAD, &CDefs2xPage::OnSelLookAhead)
    ON_CBN_SELCHANGE(IDC_2X_SHOW_TOOLPATH, &CDefs2xPage::OnSelPEShowToolpath)
    ON_BN_CLICKED(IDC_RESTORE_DEFAULTS, &CDefs2xPage::OnRestoreDefaults)
END_MESSAGE_MAP()

CDefs2xPage::CDefs2xPage() : CRecordPage(IDD, new Binding2x(*this)) {}

void CDefs2xPage::GetData(int units)
{
    CRecordPage::GetData(units);
    MillingOf(Binding()).hidesCompensation = true;
}

void CDefs2xPage::GetData(int units, int lookAhead, int showToolpath)
{
    CRecordPage::GetData(units);
    Binding2x& binding = MillingOf(Binding());
    binding.lookAhead = lookAhead;
    binding.showToolpath = showToolpath;
    binding.ShowCompensation(*this);
}

void CDefs2xPage::SetData(int& lookAhead, int& showToolpath)
{
    lookAhead = MillingOf(Binding()).lookAhead;
    showToolpath = MillingOf(Binding()).showToolpath;
}

void CDefs2xPage::OnKillFMaxFeedBetween()
{
    Handle(At<Milling2AxisTable>(IDC_2X_MAX_FEED_BETWEEN));
}

void CDefs2xPage::OnKillFCornerAngle()
{
    Handle(At<Milling2AxisTable>(IDC_2X_CORNER_ANGLE));
}

void CDefs2xPage::OnKillFCornerClearance()
{
    Handle(At<Milling2AxisTable>(IDC_2X_CORNER_CLEARANCE));
}

void CDefs2xPage::OnKillFSideClearance()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SIDE_CLEARANCE));
}

void CDefs2xPage::OnKillFSideRoughStep()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SIDE_ROUGH_STEP));
}

void CDefs2xPage::OnKillFSideFinishStep()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SIDE_FINISH_STEP));
}

void CDefs2xPage::OnKillFDepthRoughStep()
{
    Handle(At<Milling2AxisTable>(IDC_2X_DEPTH_ROUGH_STEP));
}

void CDefs2xPage::OnKillFDepthFinishStep()
{
    Handle(At<Milling2AxisTable>(IDC_2X_DEPTH_FINISH_STEP));
}

void CDefs2xPage::OnKillFRapidPlane()
{
    Handle(At<Milling2AxisTable>(IDC_2X_RAPID_PLANE));
}

void CDefs2xPage::OnKillFRapidPlunge()
{
    Handle(At<Milling2AxisTable>(IDC_2X_RAPID_PLUNGE));
}

void CDefs2xPage::OnSelFeedBetweenType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_FEED_BETWEEN_TYPE));
}

void CDefs2xPage::OnSelCornerAngleType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_CORNER_ANGLE_TYPE));
}

void CDefs2xPage::OnSelCornerClearType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_CORNER_CLEARANCE_TYPE));
}

void CDefs2xPage::OnSelSideClearType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SIDE_CLEARANCE_TYPE));
}

void CDefs2xPage::OnSelSideRoughStepType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SIDE_ROUGH_STEP_TYPE));
}

void CDefs2xPage::OnSelSideFinishStepType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SIDE_FINISH_STEP_TYPE));
}

void CDefs2xPage::OnSelDepthRoughStepType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_DEPTH_ROUGH_STEP_TYPE));
}

void CDefs2xPage::OnSelDepthFinishStepType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_DEPTH_FINISH_STEP_TYPE));
}

void CDefs2xPage::OnSelPathIslandDepthType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_PATH_ISLAND_DEPTHS));
}

void CDefs2xPage::OnSelGougeCheckType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_GOUGE_CHECK));
}

void CDefs2xPage::OnSelCutterCompTop()
{
    Handle(At<Milling2AxisTable>(IDC_2X_CUTTER_COMP_TOP));
}

void CDefs2xPage::OnSelFeedBetweenRate()
{
    Handle(At<Milling2AxisTable>(IDC_2X_FEED_BETWEEN_RATE));
}

void CDefs2xPage::OnSelThreadMillFeedBetween()
{
    Handle(At<Milling2AxisTable>(IDC_2X_THREAD_MILL_FEED_BETWEEN));
}

void CDefs2xPage::OnSelDepthFirst()
{
    Handle(At<Milling2AxisTable>(IDC_2X_DEPTH_FIRST));
}

void CDefs2xPage::OnSelFinishCutOn()
{
    Handle(At<Milling2AxisTable>(IDC_2X_FINISH_CUT_ON));
}

void CDefs2xPage::OnSelPocketNestingType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_POCKET_NESTING_TYPE));
}

void CDefs2xPage::OnSelSortType()
{
    Handle(At<Milling2AxisTable>(IDC_2X_SORT_TYPE));
}

void CDefs2xPage::OnSelDispPlungeChanges()
{
    Handle(At<Milling2AxisTable>(IDC_2X_DISPLAY_PLUNGE_CHANGES));
}

void CDefs2xPage::OnSelIslandPlunges()
{
    Handle(At<Milling2AxisTable>(IDC_2X_ISLAND_PLUNGES));
}

void CDefs2xPage::OnSelAlignPlunges()
{
    Handle(At<Milling2AxisTable>(IDC_2X_ALIGN_PLUNGES));
}

void CDefs2xPage::OnSelLookAhead()
{
    StoreSelection(*this, IDC_2X_LOOK_AHEAD, MillingOf(Binding()).lookAhead);
    SetModified();
}

void CDefs2xPage::OnSelPEShowToolpath()
{
    StoreSelection(*this, IDC_2X_SHOW_TOOLPATH, MillingOf(Binding()).showToolpath);
    SetModified();
}

void CDefs2xPage::OnRestoreDefaults()
{
    RestoreDefaults();
}
