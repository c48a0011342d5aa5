// Dialog templates in memory: reading their font, and making a copy with another one.
#include <algorithm>
#include <cstring>
#include <utility>

#include "state.h"

namespace {
/// Goes through a template, in either of its two shapes.
class TemplateReader {
public:
    explicit TemplateReader(const DLGTEMPLATE& dialogTemplate)
        : m_start(reinterpret_cast<const BYTE*>(&dialogTemplate)), m_at(m_start)
    {
        m_isExtended = Word() == 1 && Peek<WORD>() == 0xFFFF;
        m_style = m_isExtended ? At<DWORD>(12) : At<DWORD>(0);
        m_controls = At<WORD>(m_isExtended ? 16 : 8);
        m_at = m_start + (m_isExtended ? 26 : 18);
        SkipName(); // menu
        SkipName(); // class
        SkipText(); // title
        m_fontBegins = m_at;
        if (m_style & DS_SETFONT) {
            m_points = Word();
            m_at += m_isExtended ? 4 : 0; // weight, slant and character set
            m_face = reinterpret_cast<const wchar_t*>(m_at);
            SkipText();
        }
        m_fontEnds = m_at;
        for (WORD control = 0; control < m_controls; ++control)
            SkipControl();
    }

    bool IsExtended() const { return m_isExtended; }
    AfxDialogFont Font() const { return {m_face ? m_face : L"", m_points}; }
    /// What stands before the font, and the controls, which begin at a multiple of four.
    std::pair<const BYTE*, const BYTE*> Head() const { return {m_start, m_fontBegins}; }
    std::pair<const BYTE*, const BYTE*> Controls() const
    {
        return {Aligned(m_fontEnds), std::max(Aligned(m_fontEnds), m_at)};
    }

private:
    template <class Value> Value At(size_t offset) const
    {
        Value value;
        std::memcpy(&value, m_start + offset, sizeof value);
        return value;
    }
    template <class Value> Value Peek() const { return At<Value>(static_cast<size_t>(m_at - m_start)); }
    WORD Word()
    {
        const WORD word = Peek<WORD>();
        m_at += sizeof word;
        return word;
    }
    void SkipText()
    {
        while (Word())
            ;
    }
    /// A name is a text, or 0xFFFF and a number.
    void SkipName()
    {
        if (Peek<WORD>() == 0xFFFF)
            m_at += 4;
        else
            SkipText();
    }
    void SkipControl()
    {
        m_at = Aligned(m_at) + (m_isExtended ? 24 : 18);
        SkipName(); // class
        SkipName(); // text
        const WORD data = Word();
        // The plain shape counts the count itself.
        m_at += m_isExtended || data < 2 ? data : data - 2;
    }
    const BYTE* Aligned(const BYTE* at) const { return at + (4 - (at - m_start) % 4) % 4; }

    const BYTE* m_start;
    const BYTE* m_at;
    const BYTE* m_fontBegins = nullptr;
    const BYTE* m_fontEnds = nullptr;
    const wchar_t* m_face = nullptr;
    DWORD m_style = 0;
    WORD m_controls = 0;
    WORD m_points = 0;
    bool m_isExtended = false;
};

class TemplateWriter {
public:
    void Put(const void* bytes, size_t count)
    {
        const auto* const first = static_cast<const BYTE*>(bytes);
        m_bytes.insert(m_bytes.end(), first, first + count);
    }
    void Put(std::pair<const BYTE*, const BYTE*> part)
    {
        Put(part.first, static_cast<size_t>(part.second - part.first));
    }
    void Align() { m_bytes.resize((m_bytes.size() + 3) / 4 * 4); }
    std::vector<BYTE> Take() { return std::move(m_bytes); }
    void SetFontStyle(size_t offset) { m_bytes[offset] |= BYTE{DS_SETFONT}; }

private:
    std::vector<BYTE> m_bytes;
};
} // namespace

AfxDialogFont AfxFontOf(const DLGTEMPLATE& dialogTemplate)
{
    return TemplateReader(dialogTemplate).Font();
}

std::vector<BYTE> AfxTemplateWithFont(const DLGTEMPLATE& dialogTemplate, const AfxDialogFont& font)
{
    const TemplateReader reader(dialogTemplate);
    TemplateWriter writer;
    writer.Put(reader.Head());
    writer.SetFontStyle(reader.IsExtended() ? 12 : 0);
    writer.Put(&font.points, sizeof font.points);
    if (reader.IsExtended()) {
        constexpr WORD kWeight = FW_NORMAL;
        constexpr BYTE kUprightInAnyCharacterSet[] = {FALSE, DEFAULT_CHARSET};
        writer.Put(&kWeight, sizeof kWeight);
        writer.Put(kUprightInAnyCharacterSet, sizeof kUprightInAnyCharacterSet);
    }
    writer.Put(font.face.c_str(), (font.face.size() + 1) * sizeof(wchar_t));
    writer.Align();
    writer.Put(reader.Controls());
    return writer.Take();
}

const DLGTEMPLATE* AfxLoadTemplate(HINSTANCE module, LPCTSTR name)
{
    const HRSRC resource = FindResource(module, name, RT_DIALOG);
    const HGLOBAL loaded = resource ? LoadResource(module, resource) : nullptr;
    return loaded ? static_cast<const DLGTEMPLATE*>(LockResource(loaded)) : nullptr;
}
