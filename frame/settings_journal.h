// What is to be saved: the writes that have been gathered, and how the last save went.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/file_step.h"

namespace pelmar {

/// Gathers the writes of a step, whose parts may be steps themselves, and saves them file by file. Nothing is on the
/// disk, and nobody waits, until the outermost step ends.
class SettingsJournal {
public:
    /// How long a save may wait for others in all, and how long it may where the last one has waited in vain: a host
    /// that saves one record after the other shall not wait for each.
    static constexpr std::uint64_t kWaitMilliseconds = 5000;
    static constexpr std::uint64_t kShortWaitMilliseconds = 200;

    SettingsJournal() = default;
    ~SettingsJournal() { ForgetPreview(); }
    SettingsJournal(const SettingsJournal&) = delete;
    SettingsJournal& operator=(const SettingsJournal&) = delete;

    void Begin();
    /// True at the end of a part. The outermost step stays open where a file could not be saved, with what was meant
    /// for that file.
    bool Commit();
    void Drop();
    /// Forgets every step that is open.
    void DropAll();

    /// One write to a file, by the rules of the profile functions: without a text the key is deleted, without a key the
    /// section. Saved at once where no step is open. False where that fails.
    bool Write(const char* section, const char* key, const char* text, const char* file);

    /// The file from which a key is to be read, or a whole section where the key is null: the file itself, or one that
    /// holds what it will hold, where the open step writes that key. Good until the journal is next used.
    const char* FileToRead(const char* section, const char* key, const char* file);

    const SaveOutcome& Last() const { return m_last; }

private:
    struct Entry {
        std::string file;
        ProfileEntry write;
    };
    struct WaitedInVain {
        std::string file;
        std::uint64_t at = 0;
    };

    bool Holds(const std::string& file, std::string_view section, const char* key) const;
    std::vector<ProfileEntry> WritesTo(const std::string& file) const;
    SaveOutcome Save(const std::string& file, std::uint64_t until);
    bool HasWaitedInVainFor(const std::string& file, std::uint64_t now) const;
    void ForgetPreview();

    std::vector<Entry> m_entries;
    std::vector<size_t> m_steps; ///< the number of entries at the beginning of each open step
    SaveOutcome m_last;
    WaitedInVain m_waitedInVain;
    std::string m_previewed; ///< the file that there is a preview of
    std::string m_preview;
};

/// The library's own.
SettingsJournal& Journal();

} // namespace pelmar
