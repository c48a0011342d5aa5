// A file that stays the version that it is while it is read.
#pragma once

namespace pelmar {

/// Lets nobody write to the file or replace it while it lives. Where the file is missing, or another program does not
/// let go of it within a tenth of a second, nothing is held. Waits as long for a save that is under way.
class HeldFile {
public:
    explicit HeldFile(const char* file);
    ~HeldFile();
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    /// Lets go of all files that this process holds: it is about to save one itself.
    static void LetGoOfAll();

private:
    void LetGo();

    void* m_handle;
    HeldFile* m_next; ///< the one that was held before
};

} // namespace pelmar
