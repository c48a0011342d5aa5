// Objects with run-time classes, exceptions and strings: the part of the framework that needs no window.
#pragma once

#include <cstdarg>
#include <cwchar>
#include <string>

#include <windows.h>

#ifdef AFX_IMPLEMENTATION
#define AFX_CLASS __declspec(dllexport)
#else
#define AFX_CLASS __declspec(dllimport)
#endif

// For the public classes of an extension DLL.
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif

class CObject;

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

/// Root of the framework's classes. Objects are not copied.
class AFX_CLASS CObject {
public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    static CRuntimeClass* GetThisClass();
    virtual CRuntimeClass* GetRuntimeClass() const;
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;
};

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
    /// The text for the user, cut off where it does not fit `capacity` characters. FALSE, and the text stays as it is,
    /// where the exception has none: the user has been told already.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT capacity, UINT* helpContext = nullptr) const;
    void Delete();
};

/// The user has already been told; whoever catches it only stops.
class AFX_CLASS CUserException : public CException {
    DECLARE_DYNAMIC(CUserException)
};

/// A request that the receiver cannot serve, such as exchanging a control that the dialog does not hold.
class AFX_CLASS CNotSupportedException : public CException {
    DECLARE_DYNAMIC(CNotSupportedException)
};

[[noreturn]] AFX_CLASS void AfxThrowUserException();
[[noreturn]] AFX_CLASS void AfxThrowNotSupportedException();

/// Text between the system's ANSI code page and UTF-16. Characters that the code page lacks become "?".
AFX_CLASS std::wstring AfxWiden(const char* text, int length = -1);
AFX_CLASS std::string AfxNarrow(const wchar_t* text, int length = -1);

template <class Char> struct AfxCharTraits;

template <> struct AfxCharTraits<char> {
    using Other = wchar_t;
    static std::string Convert(const wchar_t* text) { return AfxNarrow(text); }
    static int FormattedLength(const char* format, va_list arguments) { return _vscprintf(format, arguments); }
    static void Print(char* out, size_t size, const char* format, va_list arguments)
    {
        _vsnprintf(out, size, format, arguments);
    }
    static int CompareNoCase(const char* a, const char* b) { return lstrcmpiA(a, b); }
    static void Upper(char* text, DWORD length) { CharUpperBuffA(text, length); }
};

template <> struct AfxCharTraits<wchar_t> {
    using Other = char;
    static std::wstring Convert(const char* text) { return AfxWiden(text); }
    static int FormattedLength(const wchar_t* format, va_list arguments) { return _vscwprintf(format, arguments); }
    static void Print(wchar_t* out, size_t size, const wchar_t* format, va_list arguments)
    {
        _vsnwprintf(out, size, format, arguments);
    }
    static int CompareNoCase(const wchar_t* a, const wchar_t* b) { return lstrcmpiW(a, b); }
    static void Upper(wchar_t* text, DWORD length) { CharUpperBuffW(text, length); }
};

AFX_CLASS bool AfxLoadText(UINT id, std::wstring& text);

/// A string value. Indexes and lengths count characters, negative ones as 0; a null pointer counts as the empty text.
template <class Char> class CStringT {
    using Traits = AfxCharTraits<Char>;
    using Text = std::basic_string<Char>;

public:
    CStringT() = default;
    CStringT(const Char* text) : m_text(OrEmpty(text)) {}
    CStringT(const Char* text, int length) : m_text(OrEmpty(text), text ? Count(length) : 0) {}
    CStringT(const typename Traits::Other* text) : m_text(text ? Traits::Convert(text) : Text()) {}
    explicit CStringT(const CStringT<typename Traits::Other>& text) : m_text(Traits::Convert(text.GetString())) {}
    CStringT(Char character, int repeat = 1) : m_text(Count(repeat), character) {}

    operator const Char*() const { return m_text.c_str(); }
    const Char* GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    /// The character at a position, the terminator at any that the text does not have.
    Char GetAt(int index) const { return index >= 0 && index < GetLength() ? m_text[Count(index)] : Char{}; }

    CStringT Left(int count) const { return Mid(0, count); }
    CStringT Right(int count) const { return Mid(GetLength() - count, count); }
    CStringT Mid(int first) const { return Mid(first, GetLength()); }
    CStringT Mid(int first, int count) const
    {
        CStringT part;
        if (first < GetLength())
            part.m_text = m_text.substr(Count(first), Count(count));
        return part;
    }
    /// Position of the first match at or after `start`, -1 where there is none.
    int Find(const Char* part, int start = 0) const { return Position(m_text.find(OrEmpty(part), Count(start))); }
    int Find(Char part, int start = 0) const { return Position(m_text.find(part, Count(start))); }
    int ReverseFind(Char part) const { return Position(m_text.rfind(part)); }

    int Compare(const Char* other) const { return m_text.compare(OrEmpty(other)); }
    /// Compares as the user's language orders, upper and lower case alike.
    int CompareNoCase(const Char* other) const { return Traits::CompareNoCase(m_text.c_str(), OrEmpty(other)); }
    CStringT& MakeUpper()
    {
        Traits::Upper(m_text.data(), static_cast<DWORD>(m_text.size()));
        return *this;
    }

    /// Replaces the text by a printf-style format of the platform's C runtime (%s takes this string's width).
    void Format(const Char* format, ...)
    {
        va_list arguments;
        va_start(arguments, format);
        va_list measured;
        va_copy(measured, arguments);
        const int length = Traits::FormattedLength(format, measured);
        va_end(measured);
        Text text(Count(length) + 1, Char{});
        if (length > 0)
            Traits::Print(text.data(), text.size(), format, arguments);
        va_end(arguments);
        text.resize(Count(length));
        m_text = text;
    }

    /// Loads a string resource through the resource chain. FALSE, and the empty text, where there is none.
    BOOL LoadString(UINT id)
    {
        std::wstring text;
        const bool found = AfxLoadText(id, text);
        *this = CStringT(text.c_str());
        return found;
    }

    /// Room for `length` characters that the caller fills and then hands back with ReleaseBuffer.
    Char* GetBuffer(int length)
    {
        if (length > GetLength())
            m_text.resize(Count(length));
        return m_text.data();
    }
    /// Ends a GetBuffer: the text is `length` long, or runs to its first terminator when that is -1.
    void ReleaseBuffer(int length = -1)
    {
        m_text.resize(length >= 0 ? Count(length) : std::char_traits<Char>::length(m_text.c_str()));
    }

    CStringT& operator+=(const CStringT& other)
    {
        m_text += other.m_text;
        return *this;
    }
    CStringT& operator+=(const Char* other)
    {
        m_text += OrEmpty(other);
        return *this;
    }
    CStringT& operator+=(Char other)
    {
        m_text += other;
        return *this;
    }

    friend CStringT operator+(CStringT a, const CStringT& b) { return a += b; }
    friend CStringT operator+(CStringT a, const Char* b) { return a += b; }
    friend CStringT operator+(const Char* a, const CStringT& b) { return CStringT(a) += b; }
    friend bool operator==(const CStringT& a, const CStringT& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CStringT& a, const Char* b) { return a.m_text == OrEmpty(b); }
    friend bool operator<(const CStringT& a, const CStringT& b) { return a.m_text < b.m_text; }

private:
    static const Char* OrEmpty(const Char* text)
    {
        static const Char empty{};
        return text ? text : &empty;
    }
    static size_t Count(int count) { return count < 0 ? 0 : static_cast<size_t>(count); }
    static int Position(size_t found) { return found == Text::npos ? -1 : static_cast<int>(found); }

    Text m_text;
};

using CStringA = CStringT<char>;
using CStringW = CStringT<wchar_t>;
using CString = CStringW; ///< the framework is built for wide characters
