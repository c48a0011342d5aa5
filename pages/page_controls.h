// What pages and dialogs do with single controls and with the rows of a table. A control that the template does not
// hold is taken for nothing.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <afxdlgs.h>

#include "PelmarDlgs/expression_edits.h"
#include "pages/control.h"

namespace pelmar {

// ---- single controls ----

inline HWND ControlOf(const CWnd& page, int id)
{
    return ::GetDlgItem(page.m_hWnd, id);
}

CString TextOf(const CWnd& control);
void EnableControl(const CWnd& page, int id, bool enable);
void HideControl(const CWnd& page, int id);
CString TextOfChoice(const ChoiceText& text);
/// Fills an empty list; a filled one keeps its items.
void FillList(const CWnd& page, int id, ChoiceTexts texts);
/// Selects nothing where the list has no such item.
void SelectIndex(const CWnd& page, int id, int index);
/// The list's selection; nothing where there is none.
std::optional<int> SelectedIndex(const CWnd& page, int id);
/// Puts the list's selection into `value`. False, and the value stays, where nothing is selected.
bool StoreSelection(const CWnd& page, int id, int& value);
void ShowCheck(const CWnd& page, int id, bool checked);
bool IsChecked(const CWnd& page, int id);

// ---- rows of a table ----

/// Exchanges the rows that take part in it, in their order, checking ranges.
void ExchangeControls(CDataExchange* exchange, void* record, std::span<const Control> controls);

/// Shows a real of the record where the edit's text would be refused.
void ShowInPlaceOfRefused(CWnd& page, const void* record, std::span<const Control> controls);

/// Expression edits, attached to controls for as long as they live.
using ExpressionEdits = std::vector<std::unique_ptr<CExpEqEditBase>>;
ExpressionEdits AttachExpressionEdits(CWnd& page, std::span<const Control> controls);

void FillLists(const CWnd& page, std::span<const Control> controls);
/// Shows lists and boxes that the exchange does not show.
void ShowKept(const CWnd& page, const void* record, std::span<const Control> controls);

/// Answers the Help command: the topic of the control at `position` (screen coordinates) in context-help mode, else the
/// general one. Ends the mode.
void ShowHelp(const CWnd& window, CPoint position, const char* general, std::span<const Control> controls);

} // namespace pelmar
