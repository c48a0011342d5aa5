#include "pages/tip_text.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <string_view>

#include "PelmarDlgs/settings_values.h"
#include "expr/field_preview.h"
#include "frame/module.h"
#include "help/topic_texts.h"
#include "pages/page_controls.h"
#include "records/shown_value.h"

namespace pelmar {
namespace {

CString FromUtf8(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // no letter has more units than bytes
    wide.resize(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
    return CString(wide.c_str());
}

std::string ToUtf8(const CString& text)
{
    const int length = text.GetLength();
    std::string narrow(static_cast<size_t>(length) * 3, '\0'); // no UTF-16 unit takes more
    narrow.resize(static_cast<size_t>(WideCharToMultiByte(CP_UTF8, 0, text.GetString(), length, narrow.data(),
                                                          static_cast<int>(narrow.size()), nullptr, nullptr)));
    return narrow;
}

/// A text of the string table with what it has a place for.
CString Filled(UINT id, const CString& part)
{
    CString text;
    text.Format(LoadText(id), part.GetString());
    return text;
}

CString TextOfControl(const CWnd& window, int id)
{
    CString text;
    window.GetDlgItemText(id, text);
    return text;
}

/// What the exchange would take from an edit; the field's own value where the text is no more than what that is shown
/// as, or would be refused.
double TypedReal(const CString& text, double kept)
{
    if (text == CString(FormatForDisplay(kept).c_str()))
        return kept;
    return PreviewFieldReal(CStringA(text)).value_or(kept);
}

double TypedWhole(const CString& text, int kept)
{
    wchar_t* end = nullptr;
    const long long value = std::wcstoll(text, &end, 10);
    const bool isWhole = end != text.GetString() && std::in_range<int>(value);
    return isWhole ? static_cast<double>(value) : kept;
}

class Composer {
public:
    Composer(const CWnd& window, const Control& control, TipSource& source)
        : m_window(window), m_control(control), m_option(control.option), m_controls(source.Facts().controls),
          m_topic(control.topic ? control.topic : source.Facts().topic), m_data(source.DataForTips())
    {
    }

    Tip Compose()
    {
        const char* const label = m_option ? m_option->label : "";
        // The window's own topic says nothing of a control that is none of its options.
        if (!m_control.topic && !m_option)
            return {};
        AddLine(FromUtf8(FirstSentenceOf(m_topic, label)));
        if (m_control.kind == ControlKind::List)
            AddChoice(label);
        if (m_option && m_control.kind == ControlKind::Edit)
            AddUnitAndRange();
        if (m_option && m_control.kind != ControlKind::Button && m_data.factory)
            AddFactoryValue();
        return {m_text, DrawingOf(m_topic, label)};
    }

private:
    void AddLine(const CString& line)
    {
        if (line.IsEmpty())
            return;
        m_text += m_text.IsEmpty() ? L"" : L"\n";
        m_text += line;
    }

    /// The chosen item, as far as the topic has words for it.
    void AddChoice(std::string_view label)
    {
        const CString item = TextOfControl(m_window, m_control.id);
        const std::string_view sentence = SentenceOnItem(m_topic, label, ToUtf8(item));
        if (sentence.empty() || sentence == FirstSentenceOf(m_topic, label))
            return;
        AddLine(FromUtf8(sentence));
    }

    void AddUnitAndRange()
    {
        const bool isScaled = IsScaledNow();
        const bool isInRadii = m_option->lengthType && !isScaled;
        const CString unit = isInRadii ? LoadText(IDS_TIP_RADII) : UnitOf(isScaled);
        if (!unit.IsEmpty())
            AddLine(Filled(IDS_TIP_UNIT, unit));
        // Where another field is checked in place of this one, any number will do here.
        const Range own = m_control.checkedInstead ? kAnyReal : m_option->range;
        const CString range = FromUtf8(ShownRange(m_control.range.value_or(own)));
        const CString any = LoadText(m_option->whole ? IDS_TIP_ANY_WHOLE : IDS_TIP_ANY_NUMBER);
        AddLine(Filled(IDS_TIP_RANGE, range.IsEmpty() ? any : range));
    }

    void AddFactoryValue()
    {
        const void* const factory = m_data.factory.get();
        const double number = m_option->Value(factory);
        AddLine(Filled(IDS_TIP_FACTORY, ValueText(number, m_option->IsScaled(factory))));
        AddLine(LoadText(Differs(number, factory) ? IDS_TIP_DIFFERS : IDS_TIP_SAME));
    }

    CString ValueText(double number, bool isScaled) const
    {
        const int whole = static_cast<int>(m_option->whole ? number : 0);
        if (m_option->kind == OptionKind::Switch)
            return LoadText(m_option->IsOn(whole) ? IDS_YES : IDS_NO);
        if (m_option->kind == OptionKind::Choice && !TextOfItem(whole).IsEmpty())
            return TextOfItem(whole);
        CString text = m_option->whole ? FromUtf8(std::to_string(whole)) : FromUtf8(ShownReal(number));
        const CString unit = UnitOf(isScaled);
        if (!unit.IsEmpty())
            text += L" " + unit;
        return text;
    }

    bool Differs(double number, const void* factory) const
    {
        if (m_option->kind == OptionKind::Switch)
            return IsOnNow() != m_option->IsOn(static_cast<int>(number));
        if (m_control.kind == ControlKind::List)
            return ChosenNow(m_control) != static_cast<int>(number);
        const CString text = TextOfControl(m_window, m_control.id);
        if (m_option->whole)
            return TypedWhole(text, m_option->Whole(m_data.record)) != number;
        // The same number of radii is another length.
        const bool hasOtherUnit = m_option->lengthType && IsScaledNow() != m_option->IsScaled(factory);
        return hasOtherUnit || !IsSameNumber(TypedReal(text, m_option->Real(m_data.record)), number);
    }

    /// Whether the length is one that units change, with the type that is chosen beside it now.
    bool IsScaledNow() const
    {
        if (!m_option->lengthType)
            return m_option->IsScaled(m_data.record);
        const auto type = std::ranges::find_if(m_controls, [this](const Control& other) {
            return other.kind == ControlKind::List && other.option && other.option->whole == m_option->lengthType;
        });
        return type == m_controls.end() ? m_option->IsScaled(m_data.record) : ChosenNow(*type) == 0;
    }

    /// The value that the list's selection stands for; the record's where nothing is selected, or the window itself
    /// sees to the list.
    int ChosenNow(const Control& list) const
    {
        const bool isByPosition = list.isKept || list.isExchanged;
        const std::optional<int> index = isByPosition ? SelectedIndex(m_window, list.id) : std::nullopt;
        return index ? *index + list.option->firstChoice : list.option->Whole(m_data.record);
    }

    /// A box that the exchange shows the other way round than a click is taken says nothing by itself.
    bool IsOnNow() const
    {
        return m_control.isExchangedAsItStands ? m_option->IsOn(m_option->Whole(m_data.record))
                                               : IsChecked(m_window, m_control.id);
    }

    CString TextOfItem(int value) const
    {
        const ChoiceTexts texts = m_control.choices.empty() ? m_option->choices : m_control.choices;
        const auto position = static_cast<std::int64_t>(value) - m_option->firstChoice;
        const bool isItem = position >= 0 && position < static_cast<std::int64_t>(texts.size());
        return isItem ? TextOfChoice(texts[static_cast<size_t>(position)]) : CString();
    }

    CString UnitOf(bool isScaled) const
    {
        const bool isLength = m_option->kind == OptionKind::Length || m_option->kind == OptionKind::Feed;
        if (isLength && !m_data.units)
            return CString();
        return FromUtf8(ShownUnit(*m_option, m_data.units.value_or(kInch), isScaled));
    }

    const CWnd& m_window;
    const Control& m_control;
    const Option* const m_option;
    const std::span<const Control> m_controls;
    const char* const m_topic;
    const TipData m_data;
    CString m_text;
};

} // namespace

Tip TipOf(const CWnd& window, const Control& control, TipSource& source)
{
    return Composer(window, control, source).Compose();
}

} // namespace pelmar
