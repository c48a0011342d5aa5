#include "settings_text.h"

#include <sstream>

std::vector<Entry> EntriesOf(const std::string& file)
{
    std::vector<Entry> entries;
    std::string section;
    std::istringstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        const size_t equals = line.find('=');
        if (line.starts_with('['))
            section = line.substr(1, line.size() - 2);
        else if (equals != std::string::npos)
            entries.push_back({section, line.substr(0, equals), line.substr(equals + 1)});
    }
    return entries;
}

std::string FileOf(const std::vector<Entry>& entries)
{
    std::string file;
    std::string section;
    for (const Entry& entry : entries) {
        if (entry.section != section)
            file += "[" + (section = entry.section) + "]\r\n";
        file += entry.key + "=" + entry.text + "\r\n";
    }
    return file;
}

std::string HighBytes()
{
    std::string text;
    for (int code = 128; code < 256; ++code)
        text += static_cast<char>(code);
    return text;
}

const std::vector<std::string>& HostileTexts()
{
    static const std::vector<std::string> texts = {
        "",
        "   ",
        std::string(10000, 'x'),
        std::string(10000, '9'),
        HighBytes(),
        "nan",
        "inf",
        "1e400",
        "-1",
        "2147483648",
        "-1e-400",
    };
    return texts;
}
