#include "pages/milling_4axis.h"

#include "pages/multi_axis_tables.h"

namespace {
using Record = C4AxisOptionsInfo;

constexpr auto kFields =
    MultiAxisFields<Record>({"RotaryMotionType", &Record::RotaryMotionType}, Field<Record>{"StartPX", &Record::StartPX},
                            Field<Record>{"StartPY", &Record::StartPY}, Field<Record>{"StartPZ", &Record::StartPZ},
                            Field<Record>{"EndPX", &Record::EndPX}, Field<Record>{"EndPY", &Record::EndPY},
                            Field<Record>{"EndPZ", &Record::EndPZ});

RecordKind<Record> g_kind("Options4x", kFields);

constexpr auto kTopics = MultiAxisTopics("pelmar-_optionspopups_hidc_4axisopts_rot_motion.htm");

constexpr MultiAxisOperation<Record> kOperation{
    .templateId = IDD_4X,
    .tables = MultiAxisTables<Record>(g_kind, "pelmar-_options_hidd_4axis_cut_opt.htm", kTopics),
    .rotary = &Record::RotaryMotionType,
};

const DescribedPage<Record> g_description = DescribedMultiAxisPage(kOperation);

constexpr UINT kMotions[] = {IDS_MOTION_3_AXIS, IDS_MOTION_4_AXIS};

/// The coordinates of the axis in the record, in the axis's order.
constexpr double Record::*kAxisFields[] = {&Record::StartPX, &Record::StartPY, &Record::StartPZ,
                                           &Record::EndPX,   &Record::EndPY,   &Record::EndPZ};

/// Whether the points determine an axis.
bool AreApart(const AxisPoints& axis)
{
    double squaredDistance = 0.0;
    for (size_t coordinate = 0; coordinate < 3; ++coordinate) {
        const double difference = axis[coordinate + 3] - axis[coordinate];
        squaredDistance += difference * difference;
    }
    return squaredDistance > 1e-16;
}
} // namespace

// ---- the record's operations ----

void C4AxisOptionsInfo::vOptions_Defaults()
{
    g_kind.Defaults(*this);
}

void C4AxisOptionsInfo::vOptions_Save()
{
    g_kind.Save(*this);
}

void C4AxisOptionsInfo::vOptions_Restore()
{
    g_kind.Restore(*this);
}

void C4AxisOptionsInfo::v4xOptionsCheckUnits(long units)
{
    g_kind.Convert(*this, units);
}

C4AxisOptionsInfo* GetLast4xOptions()
{
    return g_kind.Live();
}

// ---- the page ----

static_assert(int{CDefs4xPage::IDD} == IDD_4X);

IMPLEMENT_DYNCREATE(CDefs4xPage, CExpRegenPropertyPage)

CDefs4xPage::CDefs4xPage() : CMultiAxisPage(kOperation) {}

void CDefs4xPage::FillRotaryList()
{
    FillList(*this, IDC_MX_ROTARY, kMotions);
}

AxisPoints CDefs4xPage::Axis() const
{
    AxisPoints axis;
    for (size_t coordinate = 0; coordinate < axis.size(); ++coordinate)
        axis[coordinate] = m_options.*kAxisFields[coordinate];
    return axis;
}

void CDefs4xPage::SetAxis(const AxisPoints& axis)
{
    for (size_t coordinate = 0; coordinate < axis.size(); ++coordinate)
        m_options.*kAxisFields[coordinate] = axis[coordinate];
}

/// Points that coincide make no axis: the old one stays.
void CDefs4xPage::TakeAxisOfDialog(INT_PTR result, const AxisPoints& axis)
{
    if (result == IDOK && AreApart(axis))
        SetAxis(axis);
}
