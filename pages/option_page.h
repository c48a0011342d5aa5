// Base of every defaults page.
#pragma once

#include <span>

#include <ControlLib.h>

#include "frame/export.h"
#include "frame/help_viewer.h"

/// Messages that the host sends to a page or dialog; both words are ignored, the answer is 0.
constexpr UINT kSetDefaultsMessage = 0x0C00;   ///< take the built-in defaults
constexpr UINT kWriteToIniMessage = 0x0C01;    ///< write the settings that only the page knows
constexpr UINT kCheckSaveDataMessage = 0x0C02; ///< store the changes, asking where that needs a restart

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
    /// Answers the Help command: the topic of the control under the pointer in context-help mode, else the page's.
    void ShowHelp(const char* pageTopic, std::span<const HelpTopic> topics);
    DECLARE_MESSAGE_MAP()
};
