// The page that 4-axis and 5-axis milling share. Their records are alike but for one field and the axis of rotation.
#pragma once

#include "PelmarDlgs/pages/record_page.h"

namespace pelmar {

/// A page of multi-axis defaults.
class PELMAR_API CMultiAxisPage : public CRecordPage {
public:
    /// Hands the page the host's units (1 millimetre, else inch): converts the live record to them and copies it. "Оси
    /// поворота" is hidden from the next activation on, for good.
    void GetData(int units) override;
    /// The same with the axis of rotation: a row per point, start and end, a column per coordinate, X, Y and Z. It
    /// hides nothing.
    void GetData(int units, double axis[2][3]);
    /// Gives the axis of rotation back.
    void SetData(double axis[2][3]);

protected:
    using CRecordPage::CRecordPage;

    void OnChangeOptionInfo();
    void OnKillFFeedBetweenClearance();
    void OnKillFMaxFeedBetween();
    void OnKillFRapidPlane();
    void OnKillFRapidPlunge();
    void OnSelRotaryMotionType();
    void OnSelFeedBetweenType();
    void OnSelFeedBetweenRate();
    void OnSelLeadOnFeed();
    void OnSelChangeToolAxis();
    void OnSelToolVertical();
    void OnSelRapidFrequency();
    void OnSelSideStepMode();
    void OnSelWriteNormal();
    void OnSelSortType();
    void OnRotaryOptions();
    void OnRestoreDefaults();
    DECLARE_MESSAGE_MAP()
};

} // namespace pelmar
