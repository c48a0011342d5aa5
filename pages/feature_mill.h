// What the pages of face, chamfer, round, groove and slot milling have in common.
#pragma once

#include <memory>

#include "expr/expression_edits.h"
#include "frame/export.h"
#include "pages/option_page.h"

class FeatureMillOptions;

/// A page of the defaults of one kind of feature milling. It edits a copy of the live record, which OK puts back; it
/// writes no file.
class PELMAR_API CFeatureMillPage : public CExpRegenPropertyPage {
public:
    ~CFeatureMillPage() override;

    /// Hands the page the host's units (1 millimetre, else inch): converts the live record to them and copies it.
    void GetData(int units);

    BOOL OnSetActive() override;
    void OnOK() override;

protected:
    /// The page takes the options over. They hold a copy of the live record.
    CFeatureMillPage(int templateId, std::unique_ptr<FeatureMillOptions> options);

    void DoDataExchange(CDataExchange* exchange) override;
    /// The first activation makes the edits expression edits; later ones find them such.
    virtual void AttachEdits();

    /// The user leaves an edit: takes the page's data and, unless they are refused, shows the field again.
    void LeaveEdit(int id);
    /// The user has chosen from a list: keeps the choice, if there is one. The page does not count as modified by it.
    void StoreChoice(int id);
    FeatureMillOptions& Options() { return *m_options; }

    void OnDefButton();
    void OnHelp();
    LRESULT SetDefaults(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<CExpEqEdit[]> m_edits; ///< from the first activation on
    std::unique_ptr<FeatureMillOptions> m_options;
};

/// A page of an operation that cuts its depth in rough and finish passes: face, chamfer and round milling.
class PELMAR_API CRoughFinishMillPage : public CFeatureMillPage {
protected:
    CRoughFinishMillPage(int templateId, std::unique_ptr<FeatureMillOptions> options);

    void OnSelchangeDefCuttingDir();
    void OnSelchangeDefRdocType();
    void OnSelchangeDefFdocType();
    void OnKillfocusDefStockLeave();
    void OnKillfocusDefMaxRoughDoc();
    void OnKillfocusDefFinishDoc();
    void OnKillfocusDefRapidPlane();
    DECLARE_MESSAGE_MAP()
};
