#include "PelmarDlgs/pages/milling_5axis.h"

#include "pages/milling_5axis_controls.h"
#include "pages/multi_axis_binding.h"

using namespace pelmar;

namespace {
/// The axis is the page's own.
class Binding5x : public MultiAxisBinding<C5AxisOptionsInfo> {
public:
    Binding5x() : MultiAxisBinding(kMilling5AxisPage) {}

    AxisPoints Axis() const override { return m_axis; }
    void SetAxis(const AxisPoints& axis) override { m_axis = axis; }
    /// The page follows the dialog, whatever it holds and whichever button closed it.
    void TakeAxisOfDialog(INT_PTR, const AxisPoints& axis) override { m_axis = axis; }
    std::shared_ptr<const void> RecordWithFactoryAxis() override { return nullptr; }

private:
    AxisPoints m_axis{};
};
} // namespace

static_assert(int{CDefs5xPage::IDD} == IDD_5X);

IMPLEMENT_DYNCREATE(CDefs5xPage, CExpRegenPropertyPage)

BEGIN_MESSAGE_MAP(CDefs5xPage, pelmar::CMultiAxisPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &CDefs5xPage::OnQuerySiblings)
END_MESSAGE_MAP()

CDefs5xPage::CDefs5xPage() : CMultiAxisPage(IDD, new Binding5x) {}

LRESULT CDefs5xPage::OnQuerySiblings(WPARAM code, LPARAM)
{
    if (code != kAsksForNormals)
        return 0;
    return static_cast<Binding5x&>(Binding()).record.WriteNormal ? kNormalsOn : kNormalsOff;
}
