// The page that 4-axis and 5-axis milling share. Their records are alike but for one field and the axis of rotation.
#pragma once

#include "frame/export.h"
#include "pages/axis_points.h"
#include "pages/record_page.h"

template <class Record> struct MultiAxisOperation;

/// A page of multi-axis defaults. It edits a copy of the live record, which OK puts back; it writes no file.
template <class Record> class PELMAR_API CMultiAxisPage : public CRecordPage<Record> {
    using Base = CRecordPage<Record>;

public:
    /// Hands the page the host's units (1 millimetre, else inch) and fills it from the live record. "Оси поворота" is
    /// hidden from the next activation on, for good.
    void GetData(int units);
    /// The same with the axis of rotation: a row per point, start and end, a column per coordinate, X, Y and Z. It
    /// hides nothing.
    void GetData(int units, double axis[2][3]);
    /// Gives the axis of rotation back.
    void SetData(double axis[2][3]);

    BOOL OnSetActive() override;

protected:
    /// A page that is filled from the live record as it is. It keeps the reference.
    explicit CMultiAxisPage(const MultiAxisOperation<Record>& operation);

    // Where the operations differ.
    virtual void FillRotaryList() = 0;
    virtual AxisPoints Axis() const = 0;
    virtual void SetAxis(const AxisPoints& axis) = 0;
    /// The rotary dialog has been closed: takes its axis or leaves it. `result`: of the dialog's DoModal.
    virtual void TakeAxisOfDialog(INT_PTR result, const AxisPoints& axis) = 0;

    void OnKillFFeedBetweenClearance();
    void OnKillFMaxFeedBetween();
    void OnKillFRapidPlane();
    void OnKillFRapidPlunge();
    void OnChangeOptionInfo();
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
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    using Base::m_options;

private:
    using Base::LeaveEdit;
    using Base::TakeCheck;
    using Base::TakeChoice;
    void ShowLists();

    const MultiAxisOperation<Record>& m_operation;
    int m_hideRotaryOptions = 0;
};
