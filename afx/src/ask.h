// What the control classes are written in: each call is one message.
#pragma once

#include <afxwin.h>

inline int Ask(const CWnd& control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return static_cast<int>(control.SendMessage(message, wParam, lParam));
}

inline WPARAM Index(int index)
{
    return static_cast<WPARAM>(static_cast<INT_PTR>(index));
}

inline LPARAM Text(LPCTSTR text)
{
    return reinterpret_cast<LPARAM>(text);
}

template <class Value> LPARAM Address(Value* value)
{
    return reinterpret_cast<LPARAM>(value);
}

/// The object of a control that belongs to another one: its own where it has one, else `lent`, which lends the handle.
/// Null for null.
template <class Control> Control* ObjectOf(HWND window, Control& lent)
{
    if (!window)
        return nullptr;
    if (CWnd* const own = CWnd::FromHandlePermanent(window); own && own->IsKindOf(RUNTIME_CLASS(Control)))
        return static_cast<Control*>(own);
    lent.m_hWnd = window;
    return &lent;
}
