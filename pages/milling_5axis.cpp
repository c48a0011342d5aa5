#include "pages/milling_5axis.h"

#include "pages/multi_axis_tables.h"
#include "resources/resource.h"

namespace {
using Record = C5AxisOptionsInfo;

constexpr auto kFields = MultiAxisFields<Record>({"RotaryAxis", &Record::RotaryAxis});

RecordKind<Record> g_kind("Options5x", kFields);

constexpr auto kTopics = MultiAxisTopics("pelmar-_optionspopups_hidc_5axisopts_num_rot_axis.htm");

constexpr MultiAxisOperation<Record> kOperation{
    .templateId = IDD_5X,
    .tables = MultiAxisTables<Record>(g_kind, "pelmar-_options_hidd_5axis_cut_opt.htm", kTopics),
    .rotary = &Record::RotaryAxis,
};

const DescribedPage<Record> g_description = DescribedMultiAxisPage(kOperation);

constexpr const wchar_t* kAxisCounts[] = {L"0", L"1"};

// What the page answers its siblings.
constexpr WPARAM kAsksForNormals = 0x801A;
constexpr LRESULT kNormalsOff = 1;
constexpr LRESULT kNormalsOn = 2;
} // namespace

// ---- the record's operations ----

void C5AxisOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void C5AxisOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void C5AxisOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void C5AxisOptionsInfo::v5xOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

C5AxisOptionsInfo* GetLast5xOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefs5xPage::IDD} == IDD_5X);

IMPLEMENT_DYNCREATE(CDefs5xPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefs5xPage, CMultiAxisPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CDefs5xPage::OnQuerySiblings)
END_MESSAGE_MAP()

CDefs5xPage::CDefs5xPage() : CMultiAxisPage(kOperation) {}

void CDefs5xPage::FillRotaryList()
{
    FillList(*this, IDC_MX_ROTARY, kAxisCounts);
}

AxisPoints CDefs5xPage::Axis() const
{
    return m_axis;
}

void CDefs5xPage::SetAxis(const AxisPoints& axis)
{
    m_axis = axis;
}

/// The page follows the dialog, whatever it holds and whichever button closed it.
void CDefs5xPage::TakeAxisOfDialog(INT_PTR, const AxisPoints& axis)
{
    SetAxis(axis);
}

LRESULT CDefs5xPage::OnQuerySiblings(WPARAM code, LPARAM)
{
    if (code != kAsksForNormals)
        return 0;
    return m_options.WriteNormal ? kNormalsOn : kNormalsOff;
}
