#include "frame/settings_journal.h"

#include <algorithm>
#include <array>

#include "frame/file_system.h"
#include "frame/held_file.h"

namespace pelmar {
namespace {

/// The full path of a file that the profile functions are given. One without a folder is looked for in the system's.
std::string FullPath(const char* file)
{
    const std::string_view name = file;
    std::array<char, MAX_PATH> path{};
    if (!name.empty() && name.find_first_of("\\/:") == name.npos) {
        const UINT length = GetWindowsDirectoryA(path.data(), MAX_PATH);
        return std::string(path.data(), length < MAX_PATH ? length : 0).append("\\").append(name);
    }
    const DWORD length = GetFullPathNameA(file, MAX_PATH, path.data(), nullptr);
    return length > 0 && length < MAX_PATH ? path.data() : file;
}

std::optional<std::string> TextOrNone(const char* text)
{
    return text ? std::optional<std::string>(text) : std::nullopt;
}

} // namespace

void SettingsJournal::Begin()
{
    m_steps.push_back(m_entries.size());
}

bool SettingsJournal::Commit()
{
    if (m_steps.size() != 1) {
        if (!m_steps.empty())
            m_steps.pop_back();
        return true;
    }
    ForgetPreview();
    HeldFile::LetGoOfAll();
    const std::uint64_t until = Files().tickCount() + kWaitMilliseconds;
    SaveOutcome outcome;
    std::vector<Entry> unsaved;
    while (!m_entries.empty()) {
        const std::string file = m_entries.front().file;
        SaveOutcome saved = Save(file, until);
        if (!saved.keptAside[0])
            std::ranges::copy(outcome.keptAside, saved.keptAside);
        const bool hasFailed = saved.failure != SaveFailure::None;
        if (outcome.failure == SaveFailure::None)
            outcome = saved;
        // What the partition of std::ranges answers not every clang-tidy can read.
        const auto others = std::stable_partition(m_entries.begin(), m_entries.end(),
                                                  [&](const Entry& entry) { return IsSameName(entry.file, file); });
        if (hasFailed)
            unsaved.insert(unsaved.end(), m_entries.begin(), others);
        m_entries.erase(m_entries.begin(), others);
    }
    m_last = outcome;
    m_entries = std::move(unsaved);
    if (!m_entries.empty())
        return false;
    m_steps.clear();
    return true;
}

void SettingsJournal::Drop()
{
    if (m_steps.empty())
        return;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(m_steps.back()), m_entries.end());
    m_steps.pop_back();
    ForgetPreview();
}

void SettingsJournal::DropAll()
{
    while (!m_steps.empty())
        Drop();
}

bool SettingsJournal::Write(const char* section, const char* key, const char* text, const char* file)
{
    const bool isAlone = m_steps.empty();
    if (isAlone)
        Begin();
    ForgetPreview();
    m_entries.push_back({FullPath(file), {section, TextOrNone(key), TextOrNone(text)}});
    if (!isAlone || Commit())
        return true;
    Drop();
    return false;
}

const char* SettingsJournal::FileToRead(const char* section, const char* key, const char* file)
{
    if (m_entries.empty())
        return file;
    const std::string path = FullPath(file);
    if (!Holds(path, section, key))
        return file;
    if (m_preview.empty() || !IsSameName(m_previewed, path)) {
        ForgetPreview();
        m_preview = MakePreview(path, WritesTo(path));
        m_previewed = path;
    }
    return m_preview.empty() ? file : m_preview.c_str();
}

bool SettingsJournal::Holds(const std::string& file, std::string_view section, const char* key) const
{
    return std::ranges::any_of(m_entries, [&](const Entry& entry) {
        const ProfileEntry& write = entry.write;
        return IsSameName(write.section, section) && IsSameName(entry.file, file) &&
               (!key || !write.key || IsSameName(*write.key, key));
    });
}

std::vector<ProfileEntry> SettingsJournal::WritesTo(const std::string& file) const
{
    std::vector<ProfileEntry> writes;
    for (const Entry& entry : m_entries)
        if (IsSameName(entry.file, file))
            writes.push_back(entry.write);
    return writes;
}

SaveOutcome SettingsJournal::Save(const std::string& file, std::uint64_t until)
{
    const std::uint64_t now = Files().tickCount();
    if (HasWaitedInVainFor(file, now))
        until = std::min(until, now + kShortWaitMilliseconds);
    const SaveOutcome outcome = SaveInOneStep(file, WritesTo(file), until);
    const std::uint64_t end = Files().tickCount();
    if (outcome.failure != SaveFailure::None && end >= until)
        m_waitedInVain = {file, end};
    return outcome;
}

bool SettingsJournal::HasWaitedInVainFor(const std::string& file, std::uint64_t now) const
{
    return IsSameName(m_waitedInVain.file, file) && now - m_waitedInVain.at < kWaitMilliseconds;
}

void SettingsJournal::ForgetPreview()
{
    if (!m_preview.empty())
        Files().deleteFile(m_preview.c_str());
    m_preview.clear();
}

SettingsJournal& Journal()
{
    static SettingsJournal journal;
    return journal;
}

} // namespace pelmar
