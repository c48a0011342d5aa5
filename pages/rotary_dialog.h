// The dialog in which the user gives the axis of rotation.
#pragma once

#include <functional>

#include "PelmarDlgs/expression_edits.h"
#include "pages/axis_points.h"
#include "pages/field_leaving.h"
#include "pages/tips.h"

/// Edits an axis as two points. It stores nothing: who shows it fills the axis before and reads it afterwards.
///
/// A coordinate that is left for another one is taken at once, so that a cancelled dialog holds what was taken until
/// then. One that is empty or does not evaluate is refused and keeps the dialog open, except for Cancel.
class CDefsRotaryMillDlg : public CDialog, private pelmar::TipSource {
public:
    enum { IDD = 4157 };

    explicit CDefsRotaryMillDlg(CWnd* parent = nullptr);

    pelmar::AxisPoints m_axis{};
    /// Makes a C4AxisOptionsInfo with the axis that Defaults bring, for the tips; null where they bring none.
    std::function<std::shared_ptr<const void>()> m_recordWithFactoryAxis;

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

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
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    const pelmar::PageFacts& Facts() const override;
    pelmar::TipData DataForTips() override;
    void LeaveEdit(size_t coordinate);

    std::array<CExpEqEdit, std::tuple_size_v<pelmar::AxisPoints>> m_edits;
    pelmar::FieldLeaving m_leaving;
    C4AxisOptionsInfo m_record; ///< with the axis, as the tips read it
    pelmar::Tips m_tips{*this};
};
