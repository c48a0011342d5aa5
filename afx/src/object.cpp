#include <afx.h>

#include <vector>

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* step = this; step; step = step->m_pfnGetBaseClass ? step->m_pfnGetBaseClass() : nullptr)
        if (step == base)
            return TRUE;
    return FALSE;
}

CRuntimeClass* CObject::GetThisClass()
{
    static CRuntimeClass thisClass{"CObject", int{sizeof(CObject)}, nullptr, nullptr};
    return &thisClass;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CUserException, CException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CException)

BOOL CException::GetErrorMessage(LPTSTR, UINT, UINT*) const
{
    return FALSE;
}

void CException::Delete()
{
    delete this;
}

void AfxThrowUserException()
{
    throw new CUserException;
}

void AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

std::wstring AfxWiden(const char* text, int length)
{
    const int given = length < 0 ? lstrlenA(text) : length;
    const int needed = given ? MultiByteToWideChar(CP_ACP, 0, text, given, nullptr, 0) : 0;
    std::wstring wide(static_cast<size_t>(needed), L'\0');
    if (needed)
        MultiByteToWideChar(CP_ACP, 0, text, given, wide.data(), needed);
    return wide;
}

std::string AfxNarrow(const wchar_t* text, int length)
{
    const int given = length < 0 ? lstrlenW(text) : length;
    const int needed = given ? WideCharToMultiByte(CP_ACP, 0, text, given, nullptr, 0, nullptr, nullptr) : 0;
    std::string narrow(static_cast<size_t>(needed), '\0');
    if (needed)
        WideCharToMultiByte(CP_ACP, 0, text, given, narrow.data(), needed, nullptr, nullptr);
    return narrow;
}
