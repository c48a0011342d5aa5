#include "PelmarDlgs/pages/milling_4axis.h"

#include "pages/milling_4axis_controls.h"
#include "pages/multi_axis_binding.h"

using namespace pelmar;

namespace {
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

/// The axis is part of the record.
class Binding4x : public MultiAxisBinding<C4AxisOptionsInfo> {
public:
    Binding4x() : MultiAxisBinding(kMilling4AxisPage) {}

    AxisPoints Axis() const override
    {
        AxisPoints axis;
        for (size_t coordinate = 0; coordinate < axis.size(); ++coordinate)
            axis[coordinate] = record.*kAxisFields[coordinate];
        return axis;
    }
    void SetAxis(const AxisPoints& axis) override { SetAxisOf(record, axis); }
    /// Points that coincide make no axis: the old one stays.
    void TakeAxisOfDialog(INT_PTR result, const AxisPoints& axis) override
    {
        if (result == IDOK && AreApart(axis))
            SetAxis(axis);
    }
    std::shared_ptr<const void> RecordWithFactoryAxis() override { return DataForTips().factory; }
};
} // namespace

static_assert(int{CDefs4xPage::IDD} == IDD_4X);

IMPLEMENT_DYNCREATE(CDefs4xPage, CExpRegenPropertyPage)

CDefs4xPage::CDefs4xPage() : CMultiAxisPage(IDD, new Binding4x) {}
