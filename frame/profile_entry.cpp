#include "frame/profile_entry.h"

#include <cstring>
#include <map>

#include "frame/file_system.h"

namespace pelmar {
namespace {

std::string Upper(std::string_view name)
{
    std::string upper(name);
    CharUpperBuffA(upper.data(), static_cast<DWORD>(upper.size()));
    return upper;
}

/// Lines "key=text" by their keys.
using Lines = std::map<std::string, std::string>;

/// The lines of a section as the platform tells them; none of one that is too long to be a settings file's.
Lines LinesOf(const std::string& section, const std::string& file)
{
    constexpr DWORD kLongest = 1 << 20;
    std::vector<char> text;
    DWORD capacity = 4096;
    DWORD length = 0;
    do {
        capacity *= 4;
        text.assign(capacity, '\0');
        length = Files().readSection(section.c_str(), text.data(), capacity, file.c_str());
    } while (length >= capacity - 2 && capacity < kLongest);
    Lines lines;
    if (length >= capacity - 2)
        return lines;
    for (const char* line = text.data(); *line; line += std::strlen(line) + 1)
        if (const char* const equals = std::strchr(line, '='))
            lines.emplace(Upper(std::string_view(line, equals)), line); // of two the first counts
    return lines;
}

} // namespace

bool IsSameName(std::string_view one, std::string_view other)
{
    return one.size() == other.size() && (one == other || Upper(one) == Upper(other));
}

std::vector<ProfileEntry> Changes(std::span<const ProfileEntry> entries, const std::string& file)
{
    std::map<std::string, Lines> sections;
    std::vector<ProfileEntry> changes;
    for (const ProfileEntry& entry : entries) {
        const auto [section, isNew] = sections.try_emplace(Upper(entry.section));
        Lines& lines = section->second;
        if (isNew)
            lines = LinesOf(entry.section, file);
        if (!entry.key) {
            lines.clear();
        } else if (!entry.text) {
            lines.erase(Upper(*entry.key));
        } else {
            std::string& line = lines[Upper(*entry.key)];
            std::string wanted = *entry.key + "=" + *entry.text;
            if (line == wanted)
                continue;
            line = std::move(wanted);
        }
        changes.push_back(entry);
    }
    return changes;
}

} // namespace pelmar
