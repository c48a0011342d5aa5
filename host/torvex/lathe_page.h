// The lathe page of the host, with the axis modes that the host keeps.
#pragma once

#include <PelmarDlgs.h>

/// Hands the axis modes to the library's page. On OK and Apply it takes them back and has the page write them to the
/// host's settings, where they are read again at the next start.
class CLathePage : public CDefsLathePage {
    DECLARE_DYNAMIC(CLathePage)
public:
    void GetData(int units) override;
    void OnOK() override;
};
