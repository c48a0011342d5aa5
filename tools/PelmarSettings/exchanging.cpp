#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>

#include <afxwin.h>

#include "PelmarDlgs/settings_values.h"
#include "commands.h"
#include "frame/file.h"
#include "json.h"
#include "report.h"
#include "texts.h"
#include "writing.h"

namespace pelmar::tool {
namespace {

using review::Setting;
using review::SettingsText;
using review::Values;

constexpr char kFormat[] = "PelmarSettings";
constexpr int kVersion = 1;

bool HasFault(const SettingsText& text, const Setting& setting)
{
    const auto faults = Faults(text);
    return std::ranges::any_of(faults, [&](const review::Finding& fault) {
        return fault.setting == &setting && fault.kind != review::FindingKind::RepeatedKey;
    });
}

// ---- export ----

/// A value as it stands, with all of its digits.
Json Standing(const Setting& setting, std::string_view value)
{
    value = review::Unquoted(value);
    if (setting.IsText())
        return Utf8OfNarrow(value);
    if (value.starts_with('+'))
        value.remove_prefix(1);
    double real = 0.0;
    int whole = 0;
    if (setting.IsReal())
        std::from_chars(value.data(), value.data() + value.size(), real);
    else
        std::from_chars(value.data(), value.data() + value.size(), whole);
    return setting.IsReal() ? Json(real) : Json(whole);
}

Json Exported(const SettingsText& text)
{
    const auto sound = review::SoundSettings(text, LibraryWords());
    Json settings = Json::object();
    for (const Setting& setting : review::AllSettings()) {
        const review::TextLine* const line = text.Find(setting.Section(), setting.Key());
        const bool isSoundUnits = setting.IsUnits() && line && !HasFault(text, setting);
        if (isSoundUnits || std::ranges::find(sound, &setting) != sound.end())
            settings[setting.Section()][setting.Key()] = Standing(setting, line->value);
    }
    return {{"format", kFormat}, {"version", kVersion}, {"settings", std::move(settings)}};
}

void WriteTo(const std::string& name, const std::string& text)
{
    const FilePath path = FilePath::Of(name);
    const File file(path.narrow, GENERIC_WRITE, 0, CREATE_ALWAYS);
    if (!file.IsOpen() || !file.Write(text) || !file.Flush())
        throw NotDone(name + ": не записано: " + SystemReason(GetLastError()) + ".");
}

// ---- import ----

/// A mistake in the JSON, with where it is.
[[noreturn]] void Fail(const std::string& path, const std::string& reason)
{
    throw NotDone(path + ": " + reason);
}

std::string PlaceOf(std::string_view text, std::size_t byte)
{
    const std::string_view before = text.substr(0, std::min(byte > 0 ? byte - 1 : 0, text.size()));
    const auto line = std::ranges::count(before, '\n') + 1;
    const std::size_t start = before.rfind('\n') + 1; // of the line; 0 where there is none before
    return "строка " + std::to_string(line) + ", знак " + std::to_string(LengthOf(before.substr(start)) + 1);
}

/// Parses, and refuses what is nested too deeply or names a key twice, where either would go unseen.
class Parser {
public:
    explicit Parser(std::string name) : m_name(std::move(name)) {}

    Json Parse(const std::string& text)
    {
        if (text.starts_with("\xff\xfe") || text.starts_with("\xfe\xff"))
            Fail(m_name, "файл записан в UTF-16, а нужен UTF-8. В PowerShell вместо «>» пользуйтесь export --output.");
        try {
            return Json::parse(text, [this](int depth, Json::parse_event_t event, Json& parsed) {
                Look(depth, event, parsed);
                return true;
            });
        } catch (const Json::parse_error& error) {
            Fail(m_name, "это не JSON: " + PlaceOf(text, error.byte) + ".");
        } catch (const Json::exception&) {
            Fail(m_name, "в JSON стоит число, которого не может быть.");
        }
    }

private:
    static constexpr int kDeepest = 8;

    void Look(int depth, Json::parse_event_t event, const Json& parsed)
    {
        if (depth > kDeepest)
            Fail(m_name, "JSON вложен слишком глубоко.");
        if (event == Json::parse_event_t::object_start) {
            m_keys.resize(static_cast<std::size_t>(depth) + 1);
            m_keys.back().clear();
        }
        if (event != Json::parse_event_t::key)
            return;
        const auto key = parsed.get<std::string>();
        if (!m_keys[static_cast<std::size_t>(depth) - 1].insert(key).second)
            Fail(m_name, "ключ «" + key + "» стоит дважды в одном месте.");
    }

    std::string m_name;
    std::vector<std::set<std::string>> m_keys; ///< of the objects that are open
};

/// What the JSON wants of a file.
class Wanted {
public:
    Wanted(const Json& json, const SettingsText& file) : m_file(file), m_values(Values::AtStart(file, SettingsText()))
    {
        for (const RecordDescription& record : DescribeRecords())
            m_values.Convert(record, review::UnitsOfSection(file, record, kInch));
        Take(json);
    }

    const Values& Get() const { return m_values; }
    const std::vector<std::string>& Mistakes() const { return m_mistakes; }
    std::vector<review::Change> Changes() const
    {
        std::vector<review::Change> changes = review::ChangesTo(m_file, m_values, m_chosen);
        changes.insert(changes.end(), m_units.begin(), m_units.end());
        return changes;
    }

private:
    void Note(const std::string& path, const std::string& mistake) { m_mistakes.push_back(path + ": " + mistake); }

    void Take(const Json& json)
    {
        if (!json.is_object() || !json.contains("settings") || !json["settings"].is_object()) {
            Note("/settings", "нужен объект с разделами, какой пишет export.");
            return;
        }
        for (const auto& [name, value] : json.items())
            if (name != "format" && name != "version" && name != "settings")
                Note("/" + name, "такого ключа здесь нет.");
        if (!json.contains("format") || json["format"] != kFormat)
            Note("/format", std::string("нужно \"") + kFormat + "\".");
        if (!json.contains("version") || !json["version"].is_number_integer() || json["version"] != kVersion)
            Note("/version", "нужно " + std::to_string(kVersion) + ": другой формат эта программа не знает.");
        for (const auto& [section, values] : json["settings"].items())
            TakeSection(section, values);
    }

    void TakeSection(const std::string& section, const Json& values)
    {
        const std::string path = "/settings/" + section;
        if (!review::IsKnownSection(section)) {
            const std::string nearest = review::NearestSection(section);
            Note(path, "неизвестный раздел." + (nearest.empty() ? "" : " Похоже на «" + nearest + "»."));
            return;
        }
        if (!values.is_object()) {
            Note(path, "нужен объект с ключами раздела.");
            return;
        }
        TakeUnits(path, section, values);
        for (const auto& [key, value] : values.items())
            TakeValue(path + "/" + key, section, key, value);
    }

    /// Lengths of the section are in the units that it says.
    void TakeUnits(const std::string& path, const std::string& section, const Json& values)
    {
        const Setting* const units = review::FindSetting(section, "Units");
        if (!units || !units->record || !units->IsUnits())
            return;
        const auto stated = std::ranges::find_if(
            values.items(), [](const auto& item) { return review::IsSameName(item.key(), "Units"); });
        if (stated == values.items().end()) {
            const bool hasLength = std::ranges::any_of(values.items(), [&](const auto& item) {
                const Setting* const setting = review::FindSetting(section, item.key());
                return setting && setting->option->scaling != Scaling::Never;
            });
            if (hasLength)
                Note(path, "нет «Units»: неизвестно, в каких единицах длины (0 — дюймы, 1 — мм).");
            return;
        }
        const Json& value = stated.value();
        for (const int known : {0, 1})
            if (value == known)
                m_values.Convert(*units->record, known);
    }

    void TakeValue(const std::string& path, const std::string& section, const std::string& key, const Json& value)
    {
        const Setting* const setting = review::FindSetting(section, key);
        if (!setting) {
            const std::string nearest = review::NearestKey(section, key);
            Note(path, "неизвестный ключ." + (nearest.empty() ? "" : " Похоже на «" + nearest + "»."));
            return;
        }
        if (std::ranges::find(m_given, setting) != m_given.end()) {
            Note(path, "этот ключ уже был, другими буквами.");
            return;
        }
        m_given.push_back(setting);
        if (setting->IsText() ? !value.is_string() : !value.is_number()) {
            Note(path, setting->IsText() ? "нужен текст в кавычках." : "нужно число без кавычек.");
            return;
        }
        const review::Entered entered = setting->IsText()
                                            ? review::Enter(*setting, value.get<std::string>(), LibraryWords())
                                            : review::EnterNumber(*setting, value.get<double>(), LibraryWords());
        if (!entered.IsGood()) {
            Note(path, entered.refusal);
            return;
        }
        if (setting->IsUnits()) {
            TakeFactoryUnits(path, *setting, entered.number);
            return; // a section's have been taken already: they say what the lengths are, and are not changed
        }
        m_chosen.push_back(setting);
        if (setting->IsText())
            m_values.SetText(*setting, entered.text);
        else
            m_values.SetNumber(*setting, entered.number);
    }

    /// Units that no section's lengths are in.
    void TakeFactoryUnits(const std::string& path, const Setting& setting, double number)
    {
        if (setting.record)
            return;
        const std::string text = review::StoredText(setting, number);
        const review::TextLine* const line = m_file.Find(setting.Section(), setting.Key());
        if (!line)
            m_units.push_back({&setting, text});
        else if (line->value != text)
            Note(path, "в файле другие единицы. Сначала переведите его командой convert.");
    }

    const SettingsText& m_file;
    Values m_values;
    std::vector<review::Change> m_units;
    ChosenSettings m_chosen;
    ChosenSettings m_given;
    std::vector<std::string> m_mistakes;
};

[[noreturn]] void RefuseAll(const std::string& file, const std::vector<std::string>& mistakes)
{
    constexpr std::size_t kMost = 20;
    std::string text = file + ": ничего не записано.";
    for (std::size_t mistake = 0; mistake < std::min(mistakes.size(), kMost); ++mistake)
        text += "\n  " + mistakes[mistake];
    if (mistakes.size() > kMost)
        text += "\n  и ещё ошибок: " + std::to_string(mistakes.size() - kMost) + ".";
    throw NotDone(text);
}

ChosenSettings SettingsOf(const std::vector<review::Change>& changes)
{
    ChosenSettings settings;
    for (const review::Change& change : changes)
        settings.push_back(change.setting);
    return settings;
}

} // namespace

ExitStatus RunExport(const Arguments& arguments, const Speech& speech)
{
    const SettingsFile file = SettingsFile::Read(arguments.files.front()).MustBeSound();
    const std::string text = TextOf(Exported(file.text));
    if (arguments.output.empty())
        speech.out.Write(text);
    else
        WriteTo(arguments.output, text);
    const auto faults = Faults(file.text);
    if (faults.empty())
        return kClean;
    speech.error.Line(file.path.shown + ": ошибочное не выписано:");
    WriteFindings(speech.error, faults);
    return kFindings;
}

ExitStatus RunImport(const Arguments& arguments, const Speech& speech)
{
    const SettingsFile file = SettingsFile::Read(arguments.files.front()).MustBeSound();
    const std::string& name = arguments.files[1];
    const Json json = Parser(name).Parse(ReadWhole(FilePath::Of(name), SettingsText::kLargest));
    const Wanted wanted(json, file.text);
    if (!wanted.Mistakes().empty())
        RefuseAll(name, wanted.Mistakes());
    const Plan plan(file, wanted.Changes());
    MustHold(plan, wanted.Get(), SettingsOf(plan.changes));
    return WriteAndTell(plan, speech);
}

} // namespace pelmar::tool
