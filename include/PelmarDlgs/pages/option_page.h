// Base of every defaults page.
#pragma once

#include <ControlLib.h>

#include "PelmarDlgs/export.h"
#include "PelmarDlgs/messages.h"

/// A property page that can be shown read-only, every control disabled.
class PELMAR_API CExpRegenPropertyPage : public CPropertyPageTVEx {
    DECLARE_DYNCREATE(CExpRegenPropertyPage)
public:
    CExpRegenPropertyPage() = default;
    explicit CExpRegenPropertyPage(int templateId);

    /// Non-zero disables every control at the next initialisation or activation. Clearing it enables none again.
    int m_readOnly = 0;

    /// Creates the page as a modeless dialog.
    BOOL Create(UINT templateId, CWnd* parent) override;
    /// Disables every control. A page that keeps some of them overrides it.
    virtual void DisableNonEditParameters();

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    DECLARE_MESSAGE_MAP()
};
