// Checks that every option page and record goes through, told by tables of its controls and keys. A check opens the
// page in a real sheet, acts as a user does and looks at what became of the live record.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "module/host_folder.h"
#include "pages/page_driver.h"

// ---- pages ----

enum class Marking {
    Modified,
    Nothing,
};

/// An edit of a real and how a fresh record's value shows.
template <class Record> struct RealControl {
    int id;
    double Record::*field;
    const wchar_t* shown;
};

/// An edit of a whole number.
template <class Record> struct WholeControl {
    int id;
    int Record::*field;
    const wchar_t* shown;
};

/// A list, its items in order, and the value of its first item.
template <class Record> struct ListControl {
    int id;
    int Record::*field;
    std::vector<std::wstring> items;
    int firstValue = 0;
};

/// A check box and what it stores.
template <class Record> struct BoxControl {
    int id;
    int Record::*field;
    int checked = 1;
    int unchecked = 0;
    Marking marking = Marking::Modified;
};

/// A text that an edit refuses, one that it accepts, and the bounds that its prompt names.
struct Bound {
    int id;
    const wchar_t* refused;
    const wchar_t* accepted;
    const wchar_t* low;
    const wchar_t* high;
};

/// A text that an edit refuses, and the prompt that says so.
struct Refusal {
    int id;
    const wchar_t* refused;
    const wchar_t* prompt;
};

/// What the page tells its siblings of a control.
struct ToldOf {
    int id;
    WPARAM code;
};

struct Topic {
    int control; ///< 0 asks about the page
    const char* topic;
};

constexpr wchar_t kShownUnbounded[] = L"340282346638528859811704183484516925440.0000";
constexpr wchar_t kShownUnboundedBelow[] = L"-340282346638528859811704183484516925440.0000";
inline std::vector<Bound> Joined(const std::vector<std::vector<Bound>>& parts)
{
    std::vector<Bound> all;
    for (const std::vector<Bound>& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// A real that reaches to the largest single-precision value on both sides.
inline std::vector<Bound> Unbounded(int id)
{
    return {{id, L"3.5e38", L"3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded},
            {id, L"-3.5e38", L"-3.4028234663852886e38", kShownUnboundedBelow, kShownUnbounded}};
}

constexpr wchar_t kEnterNumber[] = L"Please enter a number.";
constexpr wchar_t kEnterInteger[] = L"Please enter an integer.";
inline const std::vector<std::wstring> kLengthTypeItems = {L"Константа", L"Радиус инструмента"};
inline const std::vector<std::wstring> kCornerTypeItems = {L"Дуга", L"Прямая"};
inline const std::vector<std::wstring> kFeedItems = {L"Прямое", L"Рабочая", L"Быстрая"};

/// Opens fresh pages over a fresh live record, and leaves both as they were at load.
template <class PageClass, class Record, Record* (*Live)()> class OptionPageTest : public testing::Test {
protected:
    OptionPageTest() { page = Fresh(); }
    ~OptionPageTest() override
    {
        *Live() = Record();
        // The kind's current units are inch again for whoever comes next.
        ui::UiThread::Get().Call([] { PageClass().GetData(0); });
    }

    /// A page that has been handed a record, as GetData hands it over.
    std::unique_ptr<PageClass> Fresh(const Record& record = Record(), int units = 0)
    {
        *Live() = record;
        auto made = std::make_unique<PageClass>();
        ui::UiThread::Get().Call([&] { made->GetData(units); });
        return made;
    }

    /// The record that the page holds now, which is what its OnOK stores; nothing is exchanged before.
    Record Held(PageClass& holder)
    {
        ui::UiThread::Get().Call([&] { holder.OnOK(); });
        return *Live();
    }

    /// A control to put the focus on when another one is to lose it.
    virtual int OtherControl(int id) = 0;

    void CheckReals(const std::vector<RealControl<Record>>& rows)
    {
        OpenSheet sheet({page.get()});
        double value = 30.5;
        for (const RealControl<Record>& row : rows) {
            EXPECT_EQ(row.shown, ui::TextOf(sheet.Page(), row.id)) << row.id;
            ui::Type(sheet.Page(), row.id, std::to_wstring(value) + L"+1");
            ui::FocusOn(sheet.Page(), OtherControl(row.id));
            EXPECT_EQ(CString(FormatForDisplay(value + 1).c_str()).GetString(), ui::TextOf(sheet.Page(), row.id))
                << row.id;
            value += 2;
        }
        sheet.Ok();
        value = 30.5;
        for (const RealControl<Record>& row : rows) {
            EXPECT_EQ(value + 1, Live()->*row.field) << row.id;
            value += 2;
        }
    }

    void CheckLists(const std::vector<ListControl<Record>>& rows, Marking marking = Marking::Modified)
    {
        for (const ListControl<Record>& row : rows) {
            const int fresh = Record().*row.field - row.firstValue;
            const int last = static_cast<int>(row.items.size()) - 1;
            const int chosen = fresh == last ? 0 : last;
            const std::unique_ptr<PageClass> shown = Fresh();
            OpenSheet sheet({shown.get()});
            EXPECT_EQ(row.items, ui::Items(sheet.Page(), row.id)) << row.id;
            EXPECT_EQ(fresh, ui::Selection(sheet.Page(), row.id)) << row.id;
            EXPECT_FALSE(sheet.IsModified()) << row.id;
            ui::Choose(sheet.Page(), row.id, chosen);
            EXPECT_EQ(marking == Marking::Modified, sheet.IsModified()) << row.id;
            sheet.Ok();
            EXPECT_EQ(chosen + row.firstValue, Live()->*row.field) << row.id;
        }
    }

    /// With nothing selected, and with a stored value that a list does not hold, the field stays as it is; or it is
    /// `left` with, where the page's exchange takes the lists too.
    void CheckListsWithoutSelection(const std::vector<ListControl<Record>>& rows, int left = 99)
    {
        for (const ListControl<Record>& row : rows) {
            Record odd;
            odd.*row.field = 99;
            const std::unique_ptr<PageClass> shown = Fresh(odd);
            OpenSheet sheet({shown.get()});
            EXPECT_EQ(-1, ui::Selection(sheet.Page(), row.id)) << row.id;
            ui::Choose(sheet.Page(), row.id, -1);
            sheet.Ok();
            EXPECT_EQ(left, Live()->*row.field) << row.id;
        }
    }

    /// A handler keeps what is chosen before any exchange does, and keeps the old choice where nothing is selected.
    void CheckChoicesHeldAtOnce(const std::vector<ListControl<Record>>& rows)
    {
        OpenSheet sheet({page.get()});
        for (const ListControl<Record>& row : rows)
            for (const int index : {1, 0}) {
                ui::Choose(sheet.Page(), row.id, index);
                EXPECT_EQ(index + row.firstValue, Held(*page).*row.field) << row.id;
                ui::Choose(sheet.Page(), row.id, -1);
                EXPECT_TRUE(sheet.IsModified()) << row.id;
                EXPECT_EQ(index + row.firstValue, Held(*page).*row.field) << row.id;
            }
        sheet.Cancel();
    }

    void CheckEditsMark(const std::vector<int>& ids)
    {
        for (const int id : ids) {
            const std::unique_ptr<PageClass> shown = Fresh();
            OpenSheet sheet({shown.get()});
            EXPECT_FALSE(sheet.IsModified()) << id;
            ui::Type(sheet.Page(), id, L"40");
            EXPECT_TRUE(sheet.IsModified()) << id;
        }
    }

    /// Leaving the edit tells the address of the new value; leaving it with a text that is refused tells nothing.
    void CheckRealNotices(const std::vector<ToldOf>& rows)
    {
        for (const ToldOf& row : rows) {
            SiblingSpy spy;
            spy.realCodes = {row.code};
            const std::unique_ptr<PageClass> shown = Fresh();
            OpenSheet sheet({shown.get(), &spy});
            ui::Type(sheet.Page(), row.id, L"1/4");
            EXPECT_TRUE(spy.notices.empty()) << row.id;
            ui::FocusOn(sheet.Page(), OtherControl(row.id));
            ASSERT_EQ(1u, spy.notices.size()) << row.id;
            EXPECT_EQ(row.code, spy.notices[0].code) << row.id;
            EXPECT_EQ(std::vector<double>{0.25}, spy.reals) << row.id;

            ui::Type(sheet.Page(), row.id, L"(");
            ui::FocusOn(sheet.Page(), OtherControl(row.id));
            ui::Answer(ui::WaitForBox(), IDOK);
            EXPECT_EQ(1u, spy.notices.size()) << row.id;
            ui::Type(sheet.Page(), row.id, L"1");
        }
    }

    /// Every choice tells the index, the old one again too; no selection tells nothing.
    void CheckChoiceNotices(const std::vector<ToldOf>& rows)
    {
        for (const ToldOf& row : rows)
            CheckNotices(row, {{row.code, 0}, {row.code, 1}, {row.code, 1}});
    }

    /// A choice tells the index where it is another than before. The lists' built-in choice is 1.
    void CheckTypeNotices(const std::vector<ToldOf>& rows)
    {
        for (const ToldOf& row : rows)
            CheckNotices(row, {{row.code, 0}, {row.code, 1}});
    }

    /// What is told when 0, 1, nothing and 1 again are chosen, and that all of it marks the page modified.
    void CheckNotices(const ToldOf& row, const std::vector<SiblingSpy::Notice>& expected)
    {
        for (const int index : {0, 1, -1}) {
            SiblingSpy spy;
            const std::unique_ptr<PageClass> shown = Fresh();
            OpenSheet sheet({shown.get(), &spy});
            ui::Choose(sheet.Page(), row.id, index);
            EXPECT_TRUE(sheet.IsModified()) << row.id;
        }
        SiblingSpy spy;
        const std::unique_ptr<PageClass> shown = Fresh();
        OpenSheet sheet({shown.get(), &spy});
        for (const int index : {0, 1, -1, 1})
            ui::Choose(sheet.Page(), row.id, index);
        EXPECT_EQ(expected, spy.notices) << row.id;
    }

    void CheckBoxes(const std::vector<BoxControl<Record>>& rows)
    {
        for (const BoxControl<Record>& row : rows) {
            const bool checked = Record().*row.field == row.checked;
            const std::unique_ptr<PageClass> shown = Fresh();
            Prepare(*shown);
            OpenSheet sheet({shown.get()});
            EXPECT_EQ(checked, ui::IsChecked(sheet.Page(), row.id)) << row.id;
            ui::Click(sheet.Page(), row.id);
            EXPECT_EQ(row.marking == Marking::Modified, sheet.IsModified()) << row.id;
            sheet.Ok();
            EXPECT_EQ(checked ? row.unchecked : row.checked, Live()->*row.field) << row.id;
        }
    }

    /// A refused text shows the range prompt, keeps the sheet open and the focus in the field.
    void CheckBounds(const std::vector<Bound>& rows, const Record& record = Record())
    {
        for (const Bound& row : rows) {
            const std::unique_ptr<PageClass> shown = Fresh(record);
            OpenSheet sheet({shown.get()});
            ui::Type(sheet.Page(), row.id, row.refused);
            sheet.Press(IDOK);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(std::wstring(L"Please enter a number between ") + row.low + L" and " + row.high + L".", box.text);
            EXPECT_EQ(LoadIcon(nullptr, IDI_EXCLAMATION), box.icon);
            EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
            ui::Answer(box, IDOK);
            EXPECT_TRUE(sheet.IsOpen()) << row.id;
            EXPECT_EQ(ui::Control(sheet.Page(), row.id), ui::Focus(sheet.window)) << row.id;
            ui::Type(sheet.Page(), row.id, row.accepted);
            sheet.Ok();
        }
    }

    /// OK with a refused text shows its prompt, keeps the sheet open and the focus in the field.
    void CheckRefused(const std::vector<Refusal>& rows)
    {
        for (const Refusal& row : rows) {
            const std::unique_ptr<PageClass> shown = Fresh();
            OpenSheet sheet({shown.get()});
            ui::Type(sheet.Page(), row.id, row.refused);
            sheet.Press(IDOK);
            const ui::MessageBoxSeen box = ui::WaitForBox();
            EXPECT_EQ(row.prompt, box.text) << row.id;
            ui::Answer(box, IDOK);
            EXPECT_TRUE(sheet.IsOpen()) << row.id;
            EXPECT_EQ(ui::Control(sheet.Page(), row.id), ui::Focus(sheet.window)) << row.id;
            ui::Type(sheet.Page(), row.id, L"31");
            sheet.Cancel();
        }
    }

    void CheckTopics(const std::vector<Topic>& rows)
    {
        OpenSheet sheet({page.get()});
        for (const Topic& row : rows)
            EXPECT_EQ(row.topic, TopicShownFor(sheet.Page(), row.control)) << row.control;
    }

    /// The topic of an id that no control of the template bears: shown for a control that is put there.
    void CheckTopicOfMissingControl(int id, const char* topic)
    {
        OpenSheet sheet({page.get()});
        ui::UiThread::Get().Call([&] {
            CreateWindow(L"Button", L"", WS_CHILD | WS_VISIBLE, 0, 0, 8, 8, sheet.Page(),
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
        });
        EXPECT_EQ(topic, TopicShownFor(sheet.Page(), id));
    }

    /// Items are not added a second time, whatever lists the page has.
    void CheckReactivation()
    {
        SiblingSpy other;
        OpenSheet sheet({page.get(), &other});
        std::vector<size_t> before;
        for (const HWND control : ui::Children(sheet.Page()))
            if (ui::ClassOf(control) == L"ComboBox")
                before.push_back(ui::Items(sheet.Page(), GetDlgCtrlID(control)).size());
        sheet.Switch(1);
        sheet.Switch(0);
        std::vector<size_t> after;
        for (const HWND control : ui::Children(sheet.Page()))
            if (ui::ClassOf(control) == L"ComboBox")
                after.push_back(ui::Items(sheet.Page(), GetDlgCtrlID(control)).size());
        EXPECT_EQ(before, after);
    }

    void CheckLayout()
    {
        OpenSheet sheet({page.get()});
        EXPECT_EQ(std::vector<std::string>{}, LayoutFaults(sheet.Page()));
    }

    static bool IsPushButton(HWND control)
    {
        return ui::ClassOf(control) == L"Button" &&
               (GetWindowLong(control, GWL_STYLE) & BS_TYPEMASK) <= BS_DEFPUSHBUTTON;
    }

    /// A page whose template holds no control at all: whatever notification comes, the record stays as it is. Returns
    /// the live record after the page has been left and applied.
    Record AfterEveryControlWasMissing(const Record& record)
    {
        struct Bare : PageClass {
            std::vector<int> ids;
            BOOL OnInitDialog() override
            {
                for (const HWND control : ui::Children(this->m_hWnd)) {
                    if (!IsPushButton(control)) // which acts whatever else is there
                        ids.push_back(GetDlgCtrlID(control));
                    DestroyWindow(control);
                }
                return PageClass::OnInitDialog();
            }
        };
        *Live() = record;
        Bare bare;
        ui::UiThread::Get().Call([&] { bare.GetData(record.Units); });
        Prepare(bare);
        SiblingSpy other;
        OpenSheet sheet({&bare, &other});
        EXPECT_TRUE(ui::Children(sheet.Page()).empty());
        const LPARAM somebody = reinterpret_cast<LPARAM>(GetDlgItem(sheet.window, IDOK));
        for (const int id : bare.ids)
            for (const int code : {int{BN_CLICKED}, int{CBN_SELCHANGE}, int{EN_CHANGE}, int{EN_KILLFOCUS}})
                SendMessage(sheet.Page(), WM_COMMAND, MAKEWPARAM(id, code), somebody);
        sheet.Switch(1);
        sheet.Switch(0);
        sheet.Press(kApply);
        const Record after = *Live();
        EXPECT_EQ(0, SendMessage(sheet.Page(), kSetDefaultsMessage, 0, 0));
        sheet.Ok();
        return after;
    }

    /// Its template, its title, and that it can be made dynamically.
    void CheckCreation(int templateId, const wchar_t* title)
    {
        EXPECT_EQ(templateId, int{PageClass::IDD});
        EXPECT_EQ(CExpRegenPropertyPage::GetThisClass(), PageClass::GetThisClass()->m_pfnGetBaseClass());
        ui::UiThread::Get().Call([] { delete PageClass::GetThisClass()->CreateObject(); });
        OpenSheet sheet({page.get()});
        EXPECT_EQ(title, ui::TextOf(sheet.Page()));
    }

    /// What a page needs so that its boxes can be clicked.
    virtual void Prepare(PageClass&) {}

    HostFolder host;
    std::unique_ptr<PageClass> page;
};

// ---- records ----

/// A file whose keys are those of `fresh`, in its order, each with a value of its own: 2, 3.5, 4 ...
inline std::string EveryKeyChanged(const std::string& fresh)
{
    std::string changed;
    int next = 2;
    for (size_t at = 0; at < fresh.size();) {
        const size_t end = fresh.find("\r\n", at);
        const std::string line = fresh.substr(at, end - at);
        const size_t equals = line.find('=');
        if (equals == std::string::npos) {
            changed += line + "\r\n";
        } else {
            const bool real = line.find('.', equals) != std::string::npos;
            changed += line.substr(0, equals + 1) + std::to_string(next++) + (real ? ".500000" : "") + "\r\n";
        }
        at = end + 2;
    }
    return changed;
}

inline std::vector<std::string> KeysOf(const std::string& file)
{
    std::vector<std::string> keys;
    for (size_t at = 0; at < file.size(); at = file.find("\r\n", at) + 2)
        if (const size_t equals = file.find('=', at); equals < file.find("\r\n", at))
            keys.push_back(file.substr(at, equals - at));
    return keys;
}

/// `fresh` is what a record with its built-in values writes. Its reals hold texts that are no numbers: each keeps its
/// built-in value, and so does everything else. (Whole numbers read as the platform reads them.)
template <class Record> void CheckHostileReals(const HostFolder& host, const std::string& fresh,
                                               void (Record::*restore)(), void (Record::*save)())
{
    for (const std::string& text : {std::string(), std::string("   "), std::string(10000, 'x'), std::string("nan"),
                                    std::string("1e400"), std::string("-inf"), std::string("\x80\xff\xd0")}) {
        std::string file;
        for (size_t at = 0; at < fresh.size(); at = fresh.find("\r\n", at) + 2) {
            const std::string line = fresh.substr(at, fresh.find("\r\n", at) - at);
            const bool real = line.find('.') != std::string::npos;
            file += (real ? line.substr(0, line.find('=') + 1) + text : line) + "\r\n";
        }
        host.WriteSettings(file);
        Record record;
        (record.*restore)();
        (record.*save)();
        EXPECT_EQ(fresh, host.ReadSettings()) << text.substr(0, 20);
    }
}

/// Each whole number of a fresh record's file holds -1, 2147483648 and texts that are no numbers, and is taken as it is
/// read; `sanitized` names those that are not.
template <class Record> void CheckWholeNumbers(const HostFolder& host, const std::string& fresh,
                                               void (Record::*restore)(), void (Record::*save)(),
                                               const std::vector<std::string>& sanitized = {})
{
    const std::string section = fresh.substr(1, fresh.find(']') - 1);
    for (const std::string& text :
         {std::string("-1"), std::string("2147483648"), std::string(), std::string("   "), std::string(10000, 'x'),
          std::string(10000, '7'), std::string("nan"), std::string("1e400")}) {
        host.WriteSettings(fresh);
        std::string file = "[" + section + "]\r\n";
        std::map<std::string, int> values; // the fallbacks, then what is read
        for (const std::string& key : KeysOf(fresh)) {
            file += key + "=" + text + "\r\n";
            values[key] = ReadWhole(section.c_str(), key.c_str(), 0);
        }
        host.WriteSettings(file);
        for (auto& [key, value] : values)
            value = ReadWhole(section.c_str(), key.c_str(), value);
        Record record;
        (record.*restore)();
        (record.*save)();
        for (const std::string& key : KeysOf(fresh)) {
            const std::string saved = Value(host.settings, section.c_str(), key.c_str());
            const bool isSanitized = std::find(sanitized.begin(), sanitized.end(), key) != sanitized.end();
            const bool isReal = saved.find('.') != std::string::npos;
            if (!isReal && !isSanitized) {
                EXPECT_EQ(std::to_string(values[key]), saved) << key << "=" << text.substr(0, 20);
            }
        }
    }
}
