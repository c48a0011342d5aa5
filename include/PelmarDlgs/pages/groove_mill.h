// Groove milling.
#pragma once

#include "PelmarDlgs/pages/groove_slot.h"
#include "PelmarDlgs/records/groove_mill.h"

/// The page of the groove-milling defaults.
class PELMAR_API CDefsGMPage : public pelmar::CGrooveSlotPage {
    DECLARE_DYNCREATE(CDefsGMPage)
public:
    enum { IDD = 4155 };

    CDefsGMPage();
};
