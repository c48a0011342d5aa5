// Objects with run-time classes, exceptions and strings: the part of the framework that needs no window.
#pragma once

#include <afxv_w32.h>

#include <afxstr.h>

class CObject;

// ---- diagnostics: where _DEBUG is defined. Elsewhere they are nothing, but for VERIFY, which still does its work ----

#ifdef _DEBUG
/// Tells the user of an assertion that has failed. TRUE where he wants the debugger; the program ends where he says so.
AFX_CLASS BOOL AfxAssertFailedLine(LPCSTR file, int line);
/// Writes a printf-style text for the debugger.
AFX_CLASS void AfxTrace(LPCSTR format, ...);
AFX_CLASS void AfxTrace(LPCWSTR format, ...);

#define ASSERT(expression)                                                                                             \
    ((expression) || !AfxAssertFailedLine(__FILE__, __LINE__) ? static_cast<void>(0) : DebugBreak())
#define VERIFY(expression) ASSERT(expression)
#define TRACE(...) AfxTrace(__VA_ARGS__)
#else
#define ASSERT(expression) static_cast<void>(0)
#define VERIFY(expression) static_cast<void>(expression)
#define TRACE(...) static_cast<void>(0)
#endif

/// What sources put in the place of `new` for debugging. Nothing is kept of who took which memory.
#define DEBUG_NEW new

/// A place in a list that is gone through; null at the end.
struct __POSITION {};
using POSITION = __POSITION*;

/// What is known of a class at run time: its name, its base and, where it was declared so, how to create one.
struct AFX_CLASS CRuntimeClass {
    const char* m_lpszClassName;
    int m_nObjectSize;
    CObject* (*m_pfnCreateObject)();       ///< null where the class cannot be created dynamically
    CRuntimeClass* (*m_pfnGetBaseClass)(); ///< null for CObject

    /// A new object of the class, owned by the caller; null where the class cannot be created dynamically.
    CObject* CreateObject() const;
    /// Whether this is `base` or derives from it, as the classes name their bases.
    BOOL IsDerivedFrom(const CRuntimeClass* base) const;
};

/// Root of the framework's classes. Objects are not copied. Where memory runs out `new` throws CMemoryException; there
/// is no form of it that answers null.
class AFX_CLASS CObject {
public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    void* operator new(size_t size);
    void* operator new(size_t, void* place) { return place; }
    void operator delete(void* object);
    void operator delete(void*, void*) {}

    static CRuntimeClass* GetThisClass();
    virtual CRuntimeClass* GetRuntimeClass() const;
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;
};

/// The object as one of the class: null where it is none, or null itself.
AFX_CLASS CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object);
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
/// The same, asserted where _DEBUG is defined and taken for granted elsewhere.
#ifdef _DEBUG
AFX_CLASS CObject* AfxStaticDownCast(CRuntimeClass* runtimeClass, CObject* object);
#define STATIC_DOWNCAST(class_name, object)                                                                            \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass* GetThisClass();                                                                              \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, create)                                                \
    CRuntimeClass* class_name::GetThisClass()                                                                          \
    {                                                                                                                  \
        static CRuntimeClass thisClass{#class_name, int{sizeof(class_name)}, create, &base_class_name::GetThisClass};  \
        return &thisClass;                                                                                             \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject()                                                                                \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, &class_name::CreateObject)

/// Base of what the framework throws. Exceptions are thrown by pointer; who catches one calls Delete.
class AFX_CLASS CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException() = default;
    /// `autoDelete`: whether Delete deletes the object, which was made with `new` then.
    explicit CException(BOOL autoDelete) : m_autoDelete(autoDelete) {}

    /// The text for the user, cut off where it does not fit `capacity` characters. FALSE, and the text stays as it is,
    /// where the exception has none: the user has been told already.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT capacity, UINT* helpContext = nullptr) const;
    void Delete();

private:
    BOOL m_autoDelete = TRUE;
};

/// Memory has run out.
class AFX_CLASS CMemoryException : public CException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException() = default;
    explicit CMemoryException(BOOL autoDelete) : CException(autoDelete) {}

    BOOL GetErrorMessage(LPTSTR text, UINT capacity, UINT* helpContext = nullptr) const override;
};

/// The user has already been told; whoever catches it only stops.
class AFX_CLASS CUserException : public CException {
    DECLARE_DYNAMIC(CUserException)
};

/// A request that the receiver cannot serve, such as exchanging a control that the dialog does not hold.
class AFX_CLASS CNotSupportedException : public CException {
    DECLARE_DYNAMIC(CNotSupportedException)
};

/// Takes no memory.
[[noreturn]] AFX_CLASS void AfxThrowMemoryException();
[[noreturn]] AFX_CLASS void AfxThrowUserException();
[[noreturn]] AFX_CLASS void AfxThrowNotSupportedException();
