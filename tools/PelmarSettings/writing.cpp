#include "writing.h"

#include <algorithm>

#include "PelmarDlgs/saving.h"
#include "json.h"
#include "report.h"
#include "texts.h"

namespace pelmar::tool {
namespace {

using review::Change;
using review::Setting;
using review::Values;

/// The setting that is read in place of this one; null where that is this one itself.
const Setting* Source(const Setting& setting)
{
    const char* const section = setting.option->readSection;
    return section ? review::FindSetting(section, setting.Key()) : nullptr;
}

bool IsAmong(const Setting* setting, const ChosenSettings& chosen)
{
    return std::ranges::find(chosen, setting) != chosen.end();
}

const char* WordsOf(SaveFailure failure)
{
    switch (failure) {
    case SaveFailure::NotAFile:
        return "файла с таким именем быть не может, или на его месте папка";
    case SaveFailure::FolderMissing:
        return "папки нет, или она недоступна";
    case SaveFailure::ReadOnly:
        return "файл помечен «только для чтения»";
    case SaveFailure::Waiting:
        return "другое сохранение этого файла не закончилось за 5 секунд; повторите";
    case SaveFailure::Reading:
        return "файл не читается, или его держит другая программа";
    case SaveFailure::KeepingAside:
        return "повреждённый файл не удалось отложить";
    case SaveFailure::Copying:
        return "рядом с файлом не удалось сделать копию, и сам он не пишется";
    case SaveFailure::Writing:
        return "новый текст не записан; проверьте, есть ли место на диске";
    case SaveFailure::Replacing:
        return "файл держит другая программа; закройте её и повторите";
    case SaveFailure::None:
        break;
    }
    return "причина неизвестна";
}

std::string WhyNotSaved(const FilePath& path)
{
    const SaveOutcome& outcome = LastSave();
    const std::string system = outcome.systemError == 0 ? "" : " Система: " + SystemReason(outcome.systemError) + ".";
    return path.shown + ": не записано: " + WordsOf(outcome.failure) + "." + system;
}

/// Whether the file holds what was written.
bool Holds(const review::SettingsText& text, const Change& change)
{
    const review::TextLine* const line = text.Find(change.setting->Section(), change.setting->Key());
    return line && change.text ? line->value == *change.text : !line == !change.text;
}

} // namespace

const Setting* TypeOf(const Setting& length)
{
    const bool hasType = length.record && length.option->scaling == Scaling::WhileConstant;
    return hasType ? review::SettingOf(*length.record->TypeOf(*length.option)) : nullptr;
}

void MustHold(const Plan& plan, const Values& wanted, const ChosenSettings& chosen)
{
    const Values held = Values::AtStart(plan.after, review::SettingsText());
    std::string reasons;
    for (const Setting* const setting : review::NotAsWanted(plan.after, wanted, chosen)) {
        const Setting* const source = Source(*setting);
        if (source && IsAmong(source, chosen))
            continue; // its own line is of no use to anybody
        reasons += "\n  " + (source ? WhereItIsRead(*setting)
                                    : setting->Name() + ": библиотека прочла бы «" +
                                          review::ShownValue(*setting, held, LibraryWords()) + "».");
    }
    if (!reasons.empty())
        throw NotDone(plan.file.path.shown + ": ничего не записано. Библиотека не прочла бы этих значений:" + reasons);
}

void TakeTypesAlong(ChosenSettings& chosen)
{
    for (std::size_t index = 0; index < chosen.size(); ++index) {
        const Setting* const type = TypeOf(*chosen[index]);
        if (type && !IsAmong(type, chosen))
            chosen.push_back(type);
    }
}

ChosenSettings ReadElsewhere(const ChosenSettings& chosen)
{
    ChosenSettings others;
    std::ranges::copy_if(chosen, std::back_inserter(others), [&](const Setting* setting) {
        const Setting* const source = Source(*setting);
        return source && !IsAmong(source, chosen);
    });
    return others;
}

std::string WhereItIsRead(const Setting& setting)
{
    return setting.Name() + " читается из раздела [" + setting.option->readSection + "]: укажите " +
           Source(setting)->Name() + ".";
}

std::string Write(const Plan& plan)
{
    if (plan.changes.empty())
        return {};
    const FilePath& path = plan.file.path;
    SaveStep step;
    for (const Change& change : plan.changes)
        SaveText(path.narrow.c_str(), change.setting->Section(), change.setting->Key(),
                 change.text ? change.text->c_str() : nullptr);
    if (!step.Commit())
        throw NotDone(WhyNotSaved(path));
    const std::string keptAside = LastSave().keptAside;
    const SettingsFile written = SettingsFile::Read(path);
    for (const Change& change : plan.changes)
        if (!Holds(written.text, change))
            throw NotDone(path.shown + ": записано, но " + change.setting->Name() +
                          " в файле уже другой: файл меняет ещё кто-то. Повторите.");
    return keptAside.empty() ? "" : "Файл был повреждён. Прежний отложен: " + Utf8OfNarrow(keptAside);
}

ExitStatus WriteAndTell(const Plan& plan, const Speech& speech)
{
    const std::string remark = Write(plan);
    if (!remark.empty())
        speech.error.Line(remark);
    const std::string& file = plan.file.path.shown;
    if (speech.isJson) {
        PrintJson(speech.out, {{"file", file}, {"written", JsonOfChanges(plan.file.text, plan.after, plan.changes)}});
        return kClean;
    }
    Output& out = speech.out;
    if (plan.changes.empty()) {
        out.Line(out.Painted(Style::Strong, file) + ": всё уже так, писать нечего.");
        return kClean;
    }
    out.Line(out.Painted(Style::Strong, file) + ": записано значений: " + std::to_string(plan.changes.size()) + ".");
    WriteChanges(out, plan.file.text, plan.after, plan.changes);
    return kClean;
}

} // namespace pelmar::tool
