// What the records add to the profile calls that save and restore them.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <afxwin.h>

#include "bench/stopwatch.h"
#include "module/host_folder.h"
#include "option_pages.h"

namespace {

struct Entry {
    std::string section;
    std::string key;
    std::string text;
    bool isReal;
    int whole;
};

/// The zero-terminated texts of a list that ends with an empty one.
std::vector<std::string> TextsOf(const std::vector<char>& list)
{
    std::vector<std::string> texts;
    for (const char* text = list.data(); *text; text += std::strlen(text) + 1)
        texts.emplace_back(text);
    return texts;
}

/// What a settings file holds, in its order.
std::vector<Entry> EntriesOf(const char* file)
{
    std::vector<char> list(32765);
    GetPrivateProfileSectionNamesA(list.data(), static_cast<DWORD>(list.size()), file);
    std::vector<Entry> entries;
    for (const std::string& section : TextsOf(list)) {
        std::vector<char> lines(32765);
        GetPrivateProfileSectionA(section.c_str(), lines.data(), static_cast<DWORD>(lines.size()), file);
        for (const std::string& line : TextsOf(lines)) {
            const size_t equals = line.find('=');
            const std::string text = line.substr(equals + 1);
            const bool isReal = text.find('.') != std::string::npos;
            entries.push_back({section, line.substr(0, equals), text, isReal, isReal ? 0 : std::atoi(text.c_str())});
        }
    }
    return entries;
}

void SaveBare(const std::vector<Entry>& entries, const char* file)
{
    for (const Entry& entry : entries)
        WritePrivateProfileStringA(entry.section.c_str(), entry.key.c_str(), entry.text.c_str(), file);
}

void RestoreBare(const std::vector<Entry>& entries, const char* file)
{
    char text[256];
    for (const Entry& entry : entries) {
        if (entry.isReal)
            GetPrivateProfileStringA(entry.section.c_str(), entry.key.c_str(), entry.text.c_str(), text, sizeof text,
                                     file);
        else
            GetPrivateProfileIntA(entry.section.c_str(), entry.key.c_str(), entry.whole, file);
    }
}

/// Lines of a section that no record has.
std::string OtherLines(int count)
{
    std::string text = count > 0 ? "[OfTheHost]\r\n" : "";
    for (int line = 0; line < count; ++line)
        text += "Key" + std::to_string(line) + "=" + std::to_string(line) + "\r\n";
    return text;
}

/// Compares the records' own saving and restoring with the bare calls for all that they have saved. False where they
/// saved nothing.
template <class Save, class Restore> bool Compare(const std::string& what, const HostFolder& host, int rounds,
                                                  Save save, Restore restore, int otherLines = 0)
{
    const char* const file = host.settings.c_str();
    host.WriteSettings("");
    save();
    const std::vector<Entry> entries = EntriesOf(file);
    host.WriteSettings(OtherLines(otherLines));
    save();
    if (entries.empty())
        return false;
    const auto [ownSave, bareSave] = bench::BestTimes(rounds, 1, save, [&] { SaveBare(entries, file); });
    const auto [ownRestore, bareRestore] = bench::BestTimes(rounds, 1, restore, [&] { RestoreBare(entries, file); });
    const std::string name = "settings: " + what;
    bench::PrintRatio((name + ", saving / the same calls made bare").c_str(), ownSave / bareSave, "at most 1.05");
    bench::PrintRatio((name + ", restoring / the same calls made bare").c_str(), ownRestore / bareRestore,
                      "at most 1.05");
    std::printf("  %zu keys: %.0f microseconds for a bare save, %.0f for a bare restore\n", entries.size(),
                bareSave * 1e6, bareRestore * 1e6);
    return true;
}

} // namespace

int main()
{
    const HostFolder host;
    C2AxisOptionsInfo& record = *GetLast2xOptions();
    const auto saveAll = [] {
        for (const OptionPage& page : OptionPages())
            page.save();
    };
    const auto restoreAll = [] {
        for (const OptionPage& page : OptionPages())
            page.restore();
    };
    const auto save = [&] { record.vOptions_Save(); };
    const auto restore = [&] { record.vOptions_Restore(); };
    bool compared =
        Compare("2-axis record", host, 1000, save, restore) && Compare("all records", host, 100, saveAll, restoreAll);
    for (const int lines : {10, 1000, 10000})
        compared = compared && Compare("2-axis record in a file of " + std::to_string(lines) + " lines", host,
                                       lines > 1000 ? 10 : 100, save, restore, lines);
    if (!compared) {
        std::printf("settings: nothing was saved\n");
        return 1;
    }
}
