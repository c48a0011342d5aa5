// Edit controls that take an arithmetic expression, and the exchange of real fields with them.
#pragma once

#include <afxwin.h>

#include "PelmarDlgs/export.h"

namespace pelmar {

/// What the expression edits have in common: typing "=" replaces the expression by its value. The "=" itself is never
/// inserted; a text that does not evaluate stays as typed, without a message.
class PELMAR_API CExpEqEditBase : public CEdit {
public:
    /// Takes over the parent's control `id` and limits its text to 254 characters. Non-zero on success.
    int SubclassDlgItem(unsigned id, CWnd* parent);
    virtual void Disable();
    virtual void Enable();

protected:
    /// Puts the value of a text, as this edit shows it, into `shown`. False where the text does not evaluate.
    virtual bool Evaluate(const char* text, CString& shown) const = 0;
    void OnChar(UINT character, UINT repeatCount, UINT flags);
    DECLARE_MESSAGE_MAP()
};

} // namespace pelmar

/// An edit of a real: values at the display precision.
class PELMAR_API CExpEqEdit : public pelmar::CExpEqEditBase {
protected:
    bool Evaluate(const char* text, CString& shown) const override;
};

/// An edit of a whole number.
class PELMAR_API CExpEqEditInt : public pelmar::CExpEqEditBase {
protected:
    bool Evaluate(const char* text, CString& shown) const override;
};

/// An edit of an unsigned whole number: -1 shows as 4294967295.
class PELMAR_API CExpEqEditUInt : public pelmar::CExpEqEditBase {
protected:
    bool Evaluate(const char* text, CString& shown) const override;
};

namespace pelmar {

/// While it is non-zero, a text that does not evaluate and a value out of range neither show a message nor fail the
/// exchange. A text that does not evaluate sets it back to 0. The host sets it; the library never does.
PELMAR_API int& ExpressionQuietFlag();

/// Exchanges a real with a control. `isSet`, where given, tells whether the field holds a value at all: an empty text
/// stands for a field without one, which keeps its old value. A text that does not evaluate shows the standard prompt
/// and fails the exchange; the field then stays as it was. A text that is what the field's value is shown as keeps that
/// value in full; of another text, a value that is too small to be shown is 0.
PELMAR_API void DDX_Expression(CDataExchange* exchange, int id, double& value, int* isSet = nullptr);

/// Checks, when saving, that the value lies between the bounds or on one. Shows the standard prompt with both and fails
/// the exchange where it does not.
PELMAR_API void DDV_ExpressionRange(CDataExchange* exchange, double value, double low, double high);

/// Shows a real in the parent's control at the display precision; what is too small to be shown becomes 0 in the field
/// too. Nothing happens where there is no parent or no such control, or where the control shows the value already.
PELMAR_API void ShowExpression(const CWnd* parent, int id, double* value, int* isSet = nullptr);

} // namespace pelmar
