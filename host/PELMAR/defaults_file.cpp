#include "defaults_file.h"

#include <algorithm>
#include <vector>

#include "frame/file_step.h"
#include "module.h"

namespace pelmar {
namespace {

constexpr size_t kTextCapacity = 1024;

struct TextField {
    const char* key;
    std::string TemplateDefaults::*field;
};
constexpr TextField kTexts[] = {
    {"TemplateFile", &TemplateDefaults::templateFile}, {"OwnText1", &TemplateDefaults::ownText1},
    {"OwnText2", &TemplateDefaults::ownText2},         {"OwnText3", &TemplateDefaults::ownText3},
    {"OwnText4", &TemplateDefaults::ownText4},         {"OwnText5", &TemplateDefaults::ownText5},
};

struct NumberField {
    const char* key;
    std::int32_t TemplateDefaults::*field;
};
constexpr NumberField kNumbers[] = {
    {"OwnNumber1", &TemplateDefaults::ownNumber1},     {"OwnNumber2", &TemplateDefaults::ownNumber2},
    {"OwnNumber3", &TemplateDefaults::ownNumber3},     {"HasDefaults", &TemplateDefaults::hasDefaults},
    {"FirstSortKey", &TemplateDefaults::firstSortKey}, {"SecondSortKey", &TemplateDefaults::secondSortKey},
    {"ThirdSortKey", &TemplateDefaults::thirdSortKey},
};

/// The settings file beside the library; no name where its path is longer than the platform's profile functions take:
/// they copy it into a buffer of MAX_PATH characters.
std::string RecordFile()
{
    char path[MAX_PATH] = {};
    if (GetModuleFileNameA(Module(), path, MAX_PATH) >= MAX_PATH)
        return {};
    const std::string library = path;
    const std::string file = library.substr(0, library.rfind('\\') + 1) + "PELMAR.INI";
    return file.size() < MAX_PATH ? file : std::string();
}

std::string SectionOf(const TemplateDefaults& record)
{
    return "Operation" + std::to_string(record.operationId);
}

bool CanBeKept(const std::string& text)
{
    const auto isControl = [](char character) { return static_cast<unsigned char>(character) < ' '; };
    return text.size() < kTextCapacity && std::ranges::none_of(text, isControl);
}

std::string ReadText(const std::string& section, const char* key, const std::string& file)
{
    char text[kTextCapacity + 2] = {}; // the platform drops the quotes after reading
    if (!file.empty())
        GetPrivateProfileStringA(section.c_str(), key, "", text, DWORD{sizeof text}, file.c_str());
    return text;
}

std::int32_t ReadNumber(const std::string& section, const char* key, std::int32_t fallback, const std::string& file)
{
    if (file.empty())
        return fallback;
    return static_cast<std::int32_t>(GetPrivateProfileIntA(section.c_str(), key, fallback, file.c_str()));
}

} // namespace

void ReadDefaults(TemplateDefaults& record)
{
    const std::string file = RecordFile();
    const std::string section = SectionOf(record);
    const TemplateDefaults fresh;
    for (const TextField& row : kTexts)
        record.*row.field = ReadText(section, row.key, file);
    for (const NumberField& row : kNumbers)
        record.*row.field = ReadNumber(section, row.key, fresh.*row.field, file);
}

bool WriteDefaults(const TemplateDefaults& record)
{
    const std::string file = RecordFile();
    if (file.empty())
        return false;
    const std::string section = SectionOf(record);
    std::vector<ProfileEntry> entries;
    for (const TextField& row : kTexts) {
        if (!CanBeKept(record.*row.field))
            return false;
        entries.push_back({section, row.key, '"' + record.*row.field + '"'});
    }
    for (const NumberField& row : kNumbers)
        entries.push_back({section, row.key, std::to_string(record.*row.field)});
    constexpr ULONGLONG kPatience = 5000;
    return SaveInOneStep(file, entries, GetTickCount64() + kPatience).failure == SaveFailure::None;
}

} // namespace pelmar
