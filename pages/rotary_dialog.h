// The dialog in which the user gives the axis of rotation.
#pragma once

#include "PelmarDlgs/expression_edits.h"
#include "pages/axis_points.h"
#include "pages/field_leaving.h"

/// Edits an axis as two points. It stores nothing: who shows it fills the axis before and reads it afterwards.
///
/// A coordinate that is left for another one is taken at once, so that a cancelled dialog holds what was taken until
/// then. One that is empty or does not evaluate is refused and keeps the dialog open, except for Cancel.
class CDefsRotaryMillDlg : public CDialog {
public:
    enum { IDD = 4157 };

    explicit CDefsRotaryMillDlg(CWnd* parent = nullptr);

    pelmar::AxisPoints m_axis{};

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnCancel() override;

    void OnKillFStartX();
    void OnKillFStartY();
    void OnKillFStartZ();
    void OnKillFEndX();
    void OnKillFEndY();
    void OnKillFEndZ();
    void OnHelp();
    DECLARE_MESSAGE_MAP()

private:
    void LeaveEdit(size_t coordinate);

    std::array<CExpEqEdit, std::tuple_size_v<pelmar::AxisPoints>> m_edits;
    pelmar::FieldLeaving m_leaving;
};
