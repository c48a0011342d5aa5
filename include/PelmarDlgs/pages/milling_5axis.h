// 5-axis milling.
#pragma once

#include "PelmarDlgs/pages/multi_axis.h"
#include "PelmarDlgs/records/milling_5axis.h"

/// The page of the 5-axis defaults. The axis of rotation is the page's own: no record and no file holds it. It is all 0
/// until it is given.
class PELMAR_API CDefs5xPage : public pelmar::CMultiAxisPage {
    DECLARE_DYNCREATE(CDefs5xPage)
public:
    enum { IDD = 3936 };

    CDefs5xPage();

protected:
    LRESULT OnQuerySiblings(WPARAM code, LPARAM argument);
    DECLARE_MESSAGE_MAP()
};
