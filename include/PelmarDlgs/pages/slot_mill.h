// Slot milling.
#pragma once

#include "PelmarDlgs/pages/groove_slot.h"
#include "PelmarDlgs/records/slot_mill.h"

/// The page of the slot-milling defaults.
class PELMAR_API CDefsSlotMillPage : public pelmar::CGrooveSlotPage {
    DECLARE_DYNCREATE(CDefsSlotMillPage)
public:
    enum { IDD = 4158 };

    CDefsSlotMillPage();
};
