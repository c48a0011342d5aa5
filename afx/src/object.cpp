// Objects with run-time classes, diagnostics, exceptions, and texts of the other width.

// What sources that are built for debugging call is here for all.
#ifndef _DEBUG
#define _DEBUG
#endif

#include <afx.h>

#include <cstdlib>
#include <new>

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

CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object)
{
    return object && object->IsKindOf(runtimeClass) ? object : nullptr;
}

CObject* AfxStaticDownCast([[maybe_unused]] CRuntimeClass* runtimeClass, CObject* object)
{
    ASSERT(!object || object->IsKindOf(runtimeClass));
    return object;
}

BOOL AfxAssertFailedLine(LPCSTR file, int line)
{
    CStringA text;
    text.Format("Assertion failed in file %s in line %d.", file, line);
    const int answer =
        MessageBoxA(nullptr, text, "Assertion Failed!", MB_TASKMODAL | MB_ICONHAND | MB_ABORTRETRYIGNORE);
    if (answer == IDABORT)
        std::_Exit(3);
    return answer == IDRETRY;
}

void AfxTrace(LPCSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    CStringA text;
    text.FormatV(format, arguments);
    va_end(arguments);
    OutputDebugStringA(text);
}

void AfxTrace(LPCWSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    CStringW text;
    text.FormatV(format, arguments);
    va_end(arguments);
    OutputDebugStringW(text);
}

void* CObject::operator new(size_t size)
{
    void* const memory = ::operator new(size, std::nothrow);
    if (!memory)
        AfxThrowMemoryException();
    return memory;
}

void CObject::operator delete(void* object)
{
    ::operator delete(object);
}

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CException)

BOOL CException::GetErrorMessage(LPTSTR, UINT, UINT*) const
{
    return FALSE;
}

void CException::Delete()
{
    if (m_autoDelete)
        delete this;
}

BOOL CMemoryException::GetErrorMessage(LPTSTR text, UINT capacity, UINT*) const
{
    lstrcpyn(text, L"Out of memory.", static_cast<int>(capacity));
    return TRUE;
}

namespace {
CMemoryException g_outOfMemory(FALSE);
}

void AfxThrowMemoryException()
{
    throw &g_outOfMemory;
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
