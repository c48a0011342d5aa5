// What the pages of 4-axis and 5-axis milling keep behind their classes.
#pragma once

#include "pages/axis_points.h"
#include "pages/multi_axis_controls.h"
#include "pages/page_binding.h"

namespace pelmar {

/// The axis of rotation, which each of the two keeps in its own place.
class AxisHolder {
public:
    virtual AxisPoints Axis() const = 0;
    virtual void SetAxis(const AxisPoints& axis) = 0;
    /// The rotary dialog has been closed: takes its axis or leaves it. `result`: of the dialog's DoModal.
    virtual void TakeAxisOfDialog(INT_PTR result, const AxisPoints& axis) = 0;
    /// A C4AxisOptionsInfo with the axis that Defaults bring; null where they bring none.
    virtual std::shared_ptr<const void> RecordWithFactoryAxis() = 0;

    bool hidesRotaryOptions = false;

protected:
    ~AxisHolder() = default;
};

template <class R> class MultiAxisBinding : public BindingOf<R>, public AxisHolder {
public:
    using BindingOf<R>::BindingOf;

private:
    void ShowMore(CPropertyPage& page) override
    {
        if (hidesRotaryOptions)
            HideControl(page, IDC_MX_ROTARY_OPTIONS);
    }

    /// A lead-in between passes leaves no choice of the side step. Only a click of its box gives the list back.
    void ApplyRules(CWnd& page, const Occasion& occasion) override
    {
        if (occasion.Is(Occasion::Activation) && this->record.LeadOnFeed == 1)
            EnableControl(page, IDC_MX_SIDE_STEP_MODE, false);
        if (occasion.IsChoiceOf(IDC_MX_LEAD_ON_FEED))
            EnableControl(page, IDC_MX_SIDE_STEP_MODE, this->record.LeadOnFeed == 0);
    }
};

} // namespace pelmar
