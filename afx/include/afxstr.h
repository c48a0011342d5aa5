// Strings. They need no window, and no Windows but for what only the system can tell: texts of the other width, the
// order and the capital letters of the user's language, string resources.
#pragma once

#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <string>

#ifdef _WIN32
#include <afxv_w32.h>

/// Text between the system's ANSI code page and UTF-16. Characters that the code page lacks become "?".
AFX_CLASS std::wstring AfxWiden(const char* text, int length = -1);
AFX_CLASS std::string AfxNarrow(const wchar_t* text, int length = -1);

/// Loads a string resource through the resource chain. False, and the empty text, where there is none.
AFX_CLASS bool AfxLoadText(UINT id, std::wstring& text);
#endif

/// What strings of one width ask the platform. Elsewhere than on Windows a string that asks for more does not compile.
template <class Char> struct AfxCharTraits;

#ifdef _WIN32
template <> struct AfxCharTraits<char> {
    using Other = wchar_t;
    static std::string Convert(const wchar_t* text) { return AfxNarrow(text); }
    static int FormattedLength(const char* format, va_list arguments) { return _vscprintf(format, arguments); }
    static void Print(char* out, size_t size, const char* format, va_list arguments)
    {
        _vsnprintf(out, size, format, arguments);
    }
    static int CompareNoCase(const char* a, const char* b) { return lstrcmpiA(a, b); }
    static void Upper(char* text, size_t length) { CharUpperBuffA(text, static_cast<DWORD>(length)); }
    static void Lower(char* text, size_t length) { CharLowerBuffA(text, static_cast<DWORD>(length)); }
    static bool IsBlank(char character) { return std::isspace(static_cast<unsigned char>(character)) != 0; }
    static bool Load(UINT id, std::wstring& text) { return AfxLoadText(id, text); }
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
    static void Upper(wchar_t* text, size_t length) { CharUpperBuffW(text, static_cast<DWORD>(length)); }
    static void Lower(wchar_t* text, size_t length) { CharLowerBuffW(text, static_cast<DWORD>(length)); }
    static bool IsBlank(wchar_t character) { return std::iswspace(static_cast<wint_t>(character)) != 0; }
    static bool Load(UINT id, std::wstring& text) { return AfxLoadText(id, text); }
};
#else
template <> struct AfxCharTraits<char> {
    using Other = wchar_t;
    static int FormattedLength(const char* format, va_list arguments)
    {
        return std::vsnprintf(nullptr, 0, format, arguments);
    }
    static void Print(char* out, size_t size, const char* format, va_list arguments)
    {
        std::vsnprintf(out, size, format, arguments);
    }
    static bool IsBlank(char character) { return std::isspace(static_cast<unsigned char>(character)) != 0; }
};

template <> struct AfxCharTraits<wchar_t> {
    using Other = char;
    static bool IsBlank(wchar_t character) { return std::iswspace(static_cast<wint_t>(character)) != 0; }
};
#endif

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
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    CStringT& Append(const Char* text) { return *this += text; }
    CStringT& AppendChar(Char character) { return *this += character; }
    /// Ignored for a position that the text does not have.
    void SetAt(int index, Char character)
    {
        if (index >= 0 && index < GetLength())
            m_text[Count(index)] = character;
    }
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
        Traits::Upper(m_text.data(), m_text.size());
        return *this;
    }

    CStringT& MakeLower()
    {
        Traits::Lower(m_text.data(), m_text.size());
        return *this;
    }
    CStringT& MakeReverse()
    {
        m_text.assign(m_text.rbegin(), m_text.rend());
        return *this;
    }
    int FindOneOf(const Char* characters) const { return Position(m_text.find_first_of(OrEmpty(characters))); }

    // Without an argument white space is trimmed off; else the one character, or each of the given ones.
    CStringT& TrimLeft()
    {
        size_t first = 0;
        while (first < m_text.size() && Traits::IsBlank(m_text[first]))
            ++first;
        m_text.erase(0, first);
        return *this;
    }
    CStringT& TrimLeft(Char target) { return TrimLeft(CStringT(target).GetString()); }
    CStringT& TrimLeft(const Char* targets)
    {
        m_text.erase(0, m_text.find_first_not_of(OrEmpty(targets)));
        return *this;
    }
    CStringT& TrimRight()
    {
        while (!m_text.empty() && Traits::IsBlank(m_text.back()))
            m_text.pop_back();
        return *this;
    }
    CStringT& TrimRight(Char target) { return TrimRight(CStringT(target).GetString()); }
    CStringT& TrimRight(const Char* targets)
    {
        m_text.erase(m_text.find_last_not_of(OrEmpty(targets)) + 1); // nothing found is one before the first
        return *this;
    }
    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(Char target) { return TrimRight(target).TrimLeft(target); }
    CStringT& Trim(const Char* targets) { return TrimRight(targets).TrimLeft(targets); }

    /// How many were replaced.
    int Replace(Char old, Char replacement)
    {
        int count = 0;
        for (Char& character : m_text)
            if (character == old && old != replacement) {
                character = replacement;
                ++count;
            }
        return count;
    }
    int Replace(const Char* old, const Char* replacement)
    {
        const Text target = OrEmpty(old);
        const Text put = OrEmpty(replacement);
        int count = 0;
        if (target.empty())
            return count;
        for (size_t at = m_text.find(target); at != Text::npos; at = m_text.find(target, at + put.size())) {
            m_text.replace(at, target.size(), put);
            ++count;
        }
        return count;
    }
    /// How many were removed.
    int Remove(Char character) { return static_cast<int>(std::erase(m_text, character)); }
    /// The length afterwards. Whatever lies outside of the text is left out.
    int Delete(int index, int count = 1)
    {
        if (index < GetLength())
            m_text.erase(Count(index), Count(count));
        return GetLength();
    }
    /// The length afterwards. Beyond its end the text is added to.
    int Insert(int index, Char character)
    {
        m_text.insert(Within(index), 1, character);
        return GetLength();
    }
    int Insert(int index, const Char* text)
    {
        m_text.insert(Within(index), OrEmpty(text));
        return GetLength();
    }

    /// The next part, from `start` on, between any of the delimiters; `start` then stands behind it. The empty text,
    /// and `start` -1, where there is none.
    CStringT Tokenize(const Char* delimiters, int& start) const
    {
        const Text marks = OrEmpty(delimiters);
        const size_t first = start < 0 ? Text::npos : m_text.find_first_not_of(marks, Count(start));
        CStringT token;
        if (first == Text::npos) {
            start = -1;
            return token;
        }
        token.m_text = m_text.substr(first, m_text.find_first_of(marks, first) - first);
        start = static_cast<int>(first + token.m_text.size()) + 1;
        return token;
    }

    /// Loads a string resource through the resource chain. FALSE, and the empty text, where there is none.
    int LoadString(unsigned int id)
    {
        std::wstring text;
        const bool found = Traits::Load(id, text);
        *this = CStringT(text.c_str());
        return found;
    }

    /// Replaces the text by a printf-style format of the platform's C runtime (%s takes this string's width).
    void Format(const Char* format, ...)
    {
        va_list arguments;
        va_start(arguments, format);
        FormatV(format, arguments);
        va_end(arguments);
    }
    void FormatV(const Char* format, va_list arguments) { m_text = Formatted(format, arguments); }
    /// Adds to the text what Format would replace it by.
    void AppendFormat(const Char* format, ...)
    {
        va_list arguments;
        va_start(arguments, format);
        m_text += Formatted(format, arguments);
        va_end(arguments);
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
    static Text Formatted(const Char* format, va_list arguments)
    {
        va_list measured;
        va_copy(measured, arguments);
        const int length = Traits::FormattedLength(format, measured);
        va_end(measured);
        Text text(Count(length) + 1, Char{});
        if (length > 0)
            Traits::Print(text.data(), text.size(), format, arguments);
        text.resize(Count(length));
        return text;
    }
    size_t Within(int index) const { return Count(index < GetLength() ? index : GetLength()); }
    static size_t Count(int count) { return count < 0 ? 0 : static_cast<size_t>(count); }
    static int Position(size_t found) { return found == Text::npos ? -1 : static_cast<int>(found); }

    Text m_text;
};

using CStringA = CStringT<char>;
using CStringW = CStringT<wchar_t>;
using CString = CStringW; ///< the framework is built for wide characters
