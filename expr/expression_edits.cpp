#include "PelmarDlgs/expression_edits.h"

#include <cmath>

#include "PelmarDlgs/evaluator.h"
#include "PelmarDlgs/settings_values.h"
#include "expr/refusals.h"

namespace pelmar {
namespace {
constexpr int kMaxTyped = 254;

int g_quiet = 0;

CString TextOf(HWND control)
{
    CString text;
    CWnd::FromHandle(control)->GetWindowText(text);
    return text;
}

/// Texts of edits stay as they are where nothing would change, so that nobody is notified.
void ReplaceText(HWND control, const CString& text)
{
    if (!(TextOf(control) == text))
        SetWindowText(control, text);
}

CString DisplayText(double value, const int* isSet)
{
    return !isSet || *isSet ? CString(FormatForDisplay(value).c_str()) : CString();
}

/// Whether the text is no more than what the value is shown as: the value may hold more than is to be seen.
bool IsUntouched(const CString& text, double value, const int* isSet)
{
    return std::isfinite(value) && text == DisplayText(value, isSet);
}

bool AreSame(double left, double right)
{
    return left == right && std::signbit(left) == std::signbit(right);
}

void Take(double evaluated, const CString& text, double& value, int* isSet)
{
    // Most values are shown as they are, and then nothing has to be formatted.
    if (!AreSame(evaluated, value) && !IsUntouched(text, value, isSet))
        value = WithoutNoise(evaluated);
    if (isSet)
        *isSet = 1;
}
} // namespace

BEGIN_MESSAGE_MAP(CExpEqEditBase, CEdit)
    ON_WM_CHAR()
END_MESSAGE_MAP()

int CExpEqEditBase::SubclassDlgItem(unsigned id, CWnd* parent)
{
    const BOOL subclassed = CEdit::SubclassDlgItem(id, parent);
    if (subclassed)
        LimitText(kMaxTyped);
    return subclassed;
}

void CExpEqEditBase::Disable()
{
    EnableWindow(FALSE);
}

void CExpEqEditBase::Enable()
{
    EnableWindow(TRUE);
}

void CExpEqEditBase::OnChar(UINT character, UINT repeatCount, UINT flags)
{
    if (character != L'=') {
        CEdit::OnChar(character, repeatCount, flags);
        return;
    }
    const CString text = TextOf(m_hWnd);
    if (text.IsEmpty())
        return;
    CString value;
    if (Evaluate(CStringA(text), value))
        ReplaceText(m_hWnd, value);
}

} // namespace pelmar

bool CExpEqEdit::Evaluate(const char* text, CString& shown) const
{
    double value = 0;
    if (!EvalFieldReal(text, &value))
        return false;
    shown = pelmar::FormatForDisplay(value).c_str();
    return true;
}

bool CExpEqEditInt::Evaluate(const char* text, CString& shown) const
{
    int value = 0;
    if (!EvalFieldInt(text, &value))
        return false;
    shown.Format(L"%d", value);
    return true;
}

bool CExpEqEditUInt::Evaluate(const char* text, CString& shown) const
{
    int value = 0;
    if (!EvalFieldInt(text, &value))
        return false;
    shown.Format(L"%u", static_cast<unsigned>(value));
    return true;
}

namespace pelmar {

int& ExpressionQuietFlag()
{
    return g_quiet;
}

void DDX_Expression(CDataExchange* exchange, int id, double& value, int* isSet)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        ReplaceText(control, DisplayText(value, isSet));
        return;
    }
    const CString text = TextOf(control);
    if (text.IsEmpty() && isSet) {
        *isSet = 0;
        return;
    }
    double evaluated = 0;
    if (EvalFieldReal(CStringA(text), &evaluated)) {
        Take(evaluated, text, value, isSet);
        return;
    }
    // What is shown in more characters than a field takes does not evaluate, and has not been typed either.
    if (IsUntouched(text, value, isSet))
        return;
    const bool quiet = g_quiet != 0;
    if (!quiet && SilentRefusals::AreOn())
        AfxThrowUserException();
    g_quiet = 0;
    if (quiet)
        return;
    {
        const SilentRefusals meanwhile;
        AfxMessageBox(AFX_IDP_PARSE_REAL);
    }
    exchange->Fail();
}

void DDV_ExpressionRange(CDataExchange* exchange, double value, double low, double high)
{
    if (!exchange->m_bSaveAndValidate || (low <= value && value <= high) || g_quiet != 0)
        return;
    if (SilentRefusals::AreOn())
        AfxThrowUserException();
    CString prompt;
    AfxFormatString2(prompt, AFX_IDP_PARSE_REAL_RANGE, CString(FormatForDisplay(low).c_str()),
                     CString(FormatForDisplay(high).c_str()));
    {
        const SilentRefusals meanwhile;
        AfxMessageBox(prompt, MB_OK | MB_ICONEXCLAMATION, AFX_IDP_PARSE_REAL_RANGE);
    }
    exchange->Fail();
}

void ShowExpression(const CWnd* parent, int id, double* value, int* isSet)
{
    const CWnd* const control = parent ? parent->GetDlgItem(id) : nullptr;
    if (!control)
        return;
    const CString shown = DisplayText(*value, isSet);
    if (TextOf(control->m_hWnd) == shown)
        return;
    *value = WithoutNoise(*value);
    SetWindowText(control->m_hWnd, shown);
}

} // namespace pelmar
