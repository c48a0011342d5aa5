// 4-axis milling.
#pragma once

#include "PelmarDlgs/pages/multi_axis.h"
#include "PelmarDlgs/records/milling_4axis.h"

/// The page of the 4-axis defaults. The axis of rotation is part of its record.
class PELMAR_API CDefs4xPage : public pelmar::CMultiAxisPage {
    DECLARE_DYNCREATE(CDefs4xPage)
public:
    enum { IDD = 3935 };

    CDefs4xPage();
};
