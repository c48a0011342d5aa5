// The steps of a save: under a lock file beside the settings file, the platform's profile functions write to a copy in
// the same folder, and the copy takes the file's place once it is on the disk. Whoever dies on the way leaves the old
// file, the copy, which the next save clears away, and no lock: it goes with its last handle.
//
// The file is held while the copy is made, so that nobody writes to it who does not know of the lock. It has to be let
// go for the replacing, which the system refuses while anybody has the file open: readers let go soon, so it is tried
// again, but never over what somebody has written meanwhile.
//
// Where there can be no copy that takes the file's place, but the file itself may be written, it is written in place in
// one go, held so that nobody else gets at it: in a folder in which nobody may make or replace a file, for a link, an
// encrypted file, a name too long for a longer one, or an access list that the copy may not have. That is the one way
// in which a killed process can leave half a file.
#include "frame/file_step.h"

#include <array>
#include <charconv>
#include <cstring>
#include <new>
#include <utility>
#include <vector>

#include "frame/damaged_settings.h"
#include "frame/file.h"
#include "frame/patience.h"

namespace pelmar {

FileSystem& Files()
{
    static FileSystem files;
    return files;
}

namespace {

// Neither these nor the lock's end like a settings file's, in their short forms neither: choosers list "*.INI".
constexpr char kCopyEnd[] = ".new";
constexpr char kKeptEnd[] = ".damaged";
constexpr size_t kDigits = 8;
constexpr size_t kCopyTail = 1 + kDigits + sizeof kCopyEnd - 1;

// A copy would be another thing than the file: a link's target, or readable by others.
constexpr DWORD kOnlyInPlace = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_ENCRYPTED;
constexpr DWORD kCarriedOver = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Why a save ends. What it has made is taken back on the way out.
struct Refusal {
    SaveFailure failure;
    DWORD error;
};

[[noreturn]] void Refuse(SaveFailure failure, DWORD error = GetLastError())
{
    throw Refusal{failure, error};
}

/// At least as many digits as that, with zeros in front.
std::string Digits(unsigned number, size_t count, int base = 10)
{
    std::array<char, 32> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
    const std::string text(digits.data(), end);
    return std::string(count > text.size() ? count - text.size() : 0, '0') + text;
}

/// A name that nobody else uses, `kCopyTail` characters longer than `stem`.
std::string FreshName(const std::string& stem)
{
    static unsigned made = 0;
    const auto process = static_cast<unsigned>(GetCurrentProcessId());
    const auto moment = static_cast<unsigned>(Files().tickCount());
    return stem + "." + Digits((process << 16 ^ moment) + made++, kDigits, 16) + kCopyEnd;
}

std::string FreshPassingName()
{
    std::array<char, MAX_PATH> folder{};
    const DWORD length = GetTempPathA(MAX_PATH, folder.data());
    if (length == 0 || length + kCopyTail + sizeof "PelmarDlgs" > MAX_PATH)
        Refuse(SaveFailure::Copying);
    return FreshName(folder.data() + std::string("PelmarDlgs"));
}

/// Makes a new file of these bytes. False where the folder lets nobody make a file.
bool MakeFile(const std::string& path, std::string_view bytes, SaveFailure failure, const Patience& patience)
{
    File file;
    const auto create = [&] {
        file = File(path, GENERIC_WRITE, 0, CREATE_NEW);
        return file.IsOpen();
    };
    if (!patience.Insist(create)) {
        if (GetLastError() == ERROR_ACCESS_DENIED)
            return false;
        Refuse(failure);
    }
    if (!file.Write(bytes))
        Refuse(failure);
    return true;
}

void WriteEntries(const std::string& path, std::span<const ProfileEntry> entries, const Patience& patience)
{
    const auto textOf = [](const std::optional<std::string>& text) { return text ? text->c_str() : nullptr; };
    for (const ProfileEntry& entry : entries) {
        const auto write = [&] {
            SetLastError(ERROR_WRITE_FAULT); // where the platform gives no reason
            return Files().writeProfile(entry.section.c_str(), textOf(entry.key), textOf(entry.text), path.c_str());
        };
        if (!patience.Insist(write))
            Refuse(SaveFailure::Writing);
    }
    // The platform keeps the files that it used last. This one is about to go.
    Files().writeProfile(nullptr, nullptr, nullptr, path.c_str());
}

/// Opens what the profile functions have written and reads it.
File OpenWritten(const std::string& path, std::string& bytes, const Patience& patience)
{
    File file;
    const auto open = [&] {
        file = File(path, GENERIC_READ | GENERIC_WRITE, 0, OPEN_EXISTING);
        return file.IsOpen() && file.Read(bytes);
    };
    if (!patience.Insist(open))
        Refuse(SaveFailure::Writing);
    return file;
}

/// Puts the file on the disk. Where the disk is full the platform may have cut it off without a word, so there has to
/// be room for as much once more.
void Finish(const File& file, size_t size)
{
    const std::string more(size, '\0');
    if (!file.Write(more) || !file.CutAt(size) || !file.Flush())
        Refuse(SaveFailure::Writing);
}

ULONGLONG TicksOf(const FILETIME& time)
{
    return ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

/// A version that follows another within the clock's step gets a later time: by that the platform tells whether the
/// file that it keeps has changed.
void MakeLaterThan(const BY_HANDLE_FILE_INFORMATION& before, const File& file)
{
    constexpr ULONGLONG kMillisecond = 10'000;
    constexpr ULONGLONG kClockStep = 1000 * kMillisecond;
    BY_HANDLE_FILE_INFORMATION description{};
    const ULONGLONG then = TicksOf(before.ftLastWriteTime);
    if (!file.Describe(description))
        return;
    const ULONGLONG now = TicksOf(description.ftLastWriteTime);
    if (now > then || then - now > kClockStep)
        return;
    const ULONGLONG later = then + kMillisecond;
    file.SetWriteTime({static_cast<DWORD>(later), static_cast<DWORD>(later >> 32)});
}

/// Who may do what with the file; empty where the platform has no such thing.
std::vector<char> AccessList(const std::string& path)
{
    std::vector<char> list(1024);
    DWORD size = 0;
    const auto get = [&] {
        return Files().fileSecurity(path.c_str(), DACL_SECURITY_INFORMATION, list.data(),
                                    static_cast<DWORD>(list.size()), &size);
    };
    BOOL got = get();
    if (!got && GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        list.resize(size);
        got = get();
    }
    list.resize(got ? GetSecurityDescriptorLength(list.data()) : 0);
    return list;
}

/// Gives the copy the file's attributes and access list. False where it cannot have them.
bool CarryOver(const std::string& file, DWORD attributes, const std::string& copy)
{
    const std::vector<char> wanted = AccessList(file);
    if (!wanted.empty() && wanted != AccessList(copy) &&
        !Files().setFileSecurity(copy.c_str(), DACL_SECURITY_INFORMATION, const_cast<char*>(wanted.data())))
        return false;
    attributes &= kCarriedOver;
    return attributes == 0 || Files().setFileAttributes(copy.c_str(), attributes | FILE_ATTRIBUTE_ARCHIVE);
}

/// The settings file as it is, held so that nobody writes to it or replaces it.
struct Original {
    File handle;
    bool exists = false;
    BY_HANDLE_FILE_INFORMATION description{};

    bool IsSameVersionAs(const Original& other) const
    {
        return exists == other.exists && description.nFileSizeLow == other.description.nFileSizeLow &&
               description.nFileIndexLow == other.description.nFileIndexLow &&
               description.nFileIndexHigh == other.description.nFileIndexHigh &&
               CompareFileTime(&description.ftLastWriteTime, &other.description.ftLastWriteTime) == 0;
    }
};

class Step {
public:
    Step(const std::string& file, std::span<const ProfileEntry> entries, std::uint64_t until)
        : m_file(file), m_entries(entries), m_patience(until)
    {
    }

    /// The path of the damaged file that was kept aside, where there was one.
    std::string Run();

private:
    enum class Result { Saved, ChangedMeanwhile, OnlyInPlace };

    void LookAtPlace();
    bool NamesFit() const { return m_file.size() + kCopyTail < MAX_PATH; }
    bool TakeLock();
    bool FolderTakesFiles() const;
    void ClearAbandonedCopies() const;
    bool TryHold(Original& original) const;
    Result Replace();
    Result PutInPlace(PassingFile& copy, const Original& before) const;
    bool IsInNobodysHands() const;
    void WriteInPlace();
    std::string KeepAside(std::string_view bytes) const;

    const std::string& m_file;
    std::span<const ProfileEntry> m_entries;
    Patience m_patience;
    DWORD m_attributes = FILE_ATTRIBUTE_NORMAL;
    File m_lock;
    std::string m_keptAside;
};

std::string Step::Run()
{
    LookAtPlace();
    if ((m_attributes & kOnlyInPlace) != 0 || !NamesFit() || !TakeLock()) {
        WriteInPlace();
        return m_keptAside;
    }
    ClearAbandonedCopies();
    Result result = Replace();
    while (result == Result::ChangedMeanwhile)
        result = Replace();
    if (result == Result::OnlyInPlace)
        WriteInPlace();
    return m_keptAside;
}

void Step::LookAtPlace()
{
    if (m_file.empty() || m_file.size() >= MAX_PATH)
        Refuse(SaveFailure::NotAFile, ERROR_FILENAME_EXCED_RANGE);
    const DWORD attributes = Files().fileAttributes(m_file.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = GetLastError();
        if (error == ERROR_INVALID_NAME)
            Refuse(SaveFailure::NotAFile, error);
        if (error != ERROR_FILE_NOT_FOUND && error != ERROR_ACCESS_DENIED && !IsPassing(error))
            Refuse(SaveFailure::FolderMissing, error);
        return;
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        Refuse(SaveFailure::NotAFile, ERROR_ACCESS_DENIED);
    // A replacing does not mind the mark.
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
        Refuse(SaveFailure::ReadOnly, ERROR_ACCESS_DENIED);
    m_attributes = attributes;
}

/// False where the folder lets nobody make a file.
bool Step::TakeLock()
{
    for (;;) {
        m_lock = File(LockOf(m_file), GENERIC_WRITE | DELETE, 0, OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE);
        if (m_lock.IsOpen())
            return true;
        const DWORD error = GetLastError();
        if (error == ERROR_PATH_NOT_FOUND)
            Refuse(SaveFailure::FolderMissing, error);
        // A lock that is just going is denied as well.
        if (error == ERROR_ACCESS_DENIED && !FolderTakesFiles())
            return false;
        if (error != ERROR_ACCESS_DENIED && !IsPassing(error))
            Refuse(SaveFailure::Copying, error);
        if (!m_patience.Wait())
            Refuse(SaveFailure::Waiting, error);
    }
}

bool Step::FolderTakesFiles() const
{
    const File file(FreshName(m_file), GENERIC_WRITE | DELETE, 0, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE);
    return file.IsOpen() || GetLastError() != ERROR_ACCESS_DENIED;
}

/// Copies are made under the lock only: what lies about is a killed process's.
void Step::ClearAbandonedCopies() const
{
    const size_t nameStart = m_file.rfind('\\') + 1;
    const std::string name = m_file.substr(nameStart) + ".";
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((m_file + ".*" + kCopyEnd).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::string_view candidate = found.cFileName;
        if (candidate.size() != name.size() + kCopyTail - 1)
            continue;
        const std::string_view digits = candidate.substr(name.size(), kDigits);
        if (digits.find_first_not_of("0123456789abcdef") == digits.npos)
            Files().deleteFile((m_file.substr(0, nameStart) + found.cFileName).c_str());
    } while (FindNextFileA(search, &found));
    FindClose(search);
}

/// Holds the file where it exists. False where it cannot be held now.
bool Step::TryHold(Original& original) const
{
    original = Original{};
    original.handle = File(m_file, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    if (!original.handle.IsOpen())
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    original.exists = true;
    return original.handle.Describe(original.description);
}

Step::Result Step::Replace()
{
    Original original;
    std::string before;
    if (!m_patience.Insist([&] { return TryHold(original); }) || (original.exists && !original.handle.Read(before)))
        Refuse(SaveFailure::Reading);
    const bool isDamaged = IsDamaged(before);
    const std::vector<ProfileEntry> changes = Changes(m_entries, m_file);
    if (changes.empty() && !isDamaged)
        return Result::Saved;
    PassingFile kept(isDamaged ? KeepAside(before) : std::string());

    PassingFile copy(FreshName(m_file));
    if (!MakeFile(copy.Path(), isDamaged ? Mended(before) : before, SaveFailure::Copying, m_patience))
        return Result::OnlyInPlace;
    WriteEntries(copy.Path(), isDamaged ? m_entries : changes, m_patience);
    std::string after;
    File written = OpenWritten(copy.Path(), after, m_patience);
    if (after == before)
        return Result::Saved;
    Finish(written, after.size());
    if (original.exists)
        MakeLaterThan(original.description, written);
    written.Close();
    if (original.exists && !CarryOver(m_file, m_attributes, copy.Path()))
        return Result::OnlyInPlace;

    original.handle.Close();
    const Result result = PutInPlace(copy, original);
    if (result == Result::Saved)
        m_keptAside = kept.Stay();
    return result;
}

Step::Result Step::PutInPlace(PassingFile& copy, const Original& before) const
{
    // Replacing is denied to whoever has no right to, and to everybody while somebody has the file open. Once may be
    // chance: he closed it just after.
    constexpr int kNoChance = 5;
    int deniedWhileFree = 0;
    for (;;) {
        if (Files().moveFile(copy.Path().c_str(), m_file.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            copy.Stay();
            return Result::Saved;
        }
        const DWORD error = GetLastError();
        const bool isDenied = error == ERROR_ACCESS_DENIED;
        if (isDenied && IsInNobodysHands() && ++deniedWhileFree == kNoChance)
            return Result::OnlyInPlace;
        if (!isDenied && !IsPassing(error))
            Refuse(SaveFailure::Replacing, error);
        Original now;
        do {
            if (!m_patience.Wait())
                Refuse(SaveFailure::Replacing, error);
        } while (!TryHold(now));
        if (!now.IsSameVersionAs(before))
            return Result::ChangedMeanwhile;
    }
}

bool Step::IsInNobodysHands() const
{
    return File(m_file, GENERIC_READ, 0, OPEN_EXISTING).IsOpen();
}

void Step::WriteInPlace()
{
    PassingFile unfinished;
    File file;
    const auto open = [&] {
        file = File(m_file, GENERIC_READ | GENERIC_WRITE, 0, OPEN_ALWAYS);
        if (file.IsOpen() && GetLastError() != ERROR_ALREADY_EXISTS)
            unfinished.Become(m_file);
        return file.IsOpen();
    };
    if (!m_patience.Insist(open))
        Refuse(IsPassing(GetLastError()) ? SaveFailure::Reading : SaveFailure::Copying);
    std::string before;
    if (!file.Read(before))
        Refuse(SaveFailure::Reading);
    const bool isDamaged = IsDamaged(before);
    PassingFile kept(isDamaged ? KeepAside(before) : std::string());

    const PassingFile copy(FreshPassingName());
    if (!MakeFile(copy.Path(), isDamaged ? Mended(before) : before, SaveFailure::Copying, m_patience))
        Refuse(SaveFailure::Copying, ERROR_ACCESS_DENIED);
    WriteEntries(copy.Path(), m_entries, m_patience);
    std::string after;
    Finish(OpenWritten(copy.Path(), after, m_patience), after.size());
    if (after == before)
        return;
    if (!file.MoveTo(0) || !file.Write(after) || !file.CutAt(after.size()) || !file.Flush()) {
        const DWORD error = GetLastError();
        if (file.MoveTo(0) && file.Write(before))
            file.CutAt(before.size());
        Refuse(SaveFailure::Writing, error);
    }
    unfinished.Stay();
    m_keptAside = kept.Stay();
}

/// Keeps a damaged file's bytes under a name that tells the day. An earlier one stays.
std::string Step::KeepAside(std::string_view bytes) const
{
    SYSTEMTIME today{};
    GetLocalTime(&today);
    const std::string day = "." + Digits(today.wYear, 4) + "-" + Digits(today.wMonth, 2) + "-" + Digits(today.wDay, 2);
    for (int number = 1;; ++number) {
        const std::string path = m_file + day + (number > 1 ? "-" + std::to_string(number) : "") + kKeptEnd;
        if (path.size() >= MAX_PATH)
            Refuse(SaveFailure::KeepingAside, ERROR_FILENAME_EXCED_RANGE);
        PassingFile kept;
        const File file(path, GENERIC_WRITE, 0, CREATE_NEW);
        if (!file.IsOpen() && GetLastError() == ERROR_FILE_EXISTS)
            continue;
        if (!file.IsOpen())
            Refuse(SaveFailure::KeepingAside);
        kept.Become(path);
        if (!file.Write(bytes) || !file.Flush())
            Refuse(SaveFailure::KeepingAside);
        return kept.Stay();
    }
}

void Copy(const std::string& text, char (&to)[SaveOutcome::kPathCapacity])
{
    const size_t length = std::min(text.size(), sizeof to - 1);
    std::memcpy(to, text.data(), length);
    to[length] = '\0';
}

} // namespace

std::string LockOf(const std::string& file)
{
    return file + ".lock";
}

SaveOutcome SaveInOneStep(const std::string& file, std::span<const ProfileEntry> entries, std::uint64_t until)
{
    SaveOutcome outcome;
    Copy(file, outcome.file);
    const auto fail = [&](SaveFailure failure, DWORD error) {
        outcome.failure = failure;
        outcome.systemError = error;
    };
    try {
        Copy(Step(file, entries, until).Run(), outcome.keptAside);
    } catch (const Refusal& refusal) {
        fail(refusal.failure, refusal.error);
    } catch (const std::bad_alloc&) {
        fail(SaveFailure::Copying, ERROR_NOT_ENOUGH_MEMORY);
    }
    return outcome;
}

std::string MakePreview(const std::string& file, std::span<const ProfileEntry> entries)
try {
    const Patience impatience(0);
    std::string bytes;
    const File original(file, GENERIC_READ, kShareAll, OPEN_EXISTING);
    if (original.IsOpen() && !original.Read(bytes))
        return {};
    PassingFile preview(FreshPassingName());
    if (!MakeFile(preview.Path(), bytes, SaveFailure::Copying, impatience))
        return {};
    WriteEntries(preview.Path(), entries, impatience);
    return preview.Stay();
} catch (const Refusal&) {
    return {};
} catch (const std::bad_alloc&) {
    return {};
}

} // namespace pelmar
