#include "frame/held_file.h"

#include <utility>

#include "frame/file_step.h"
#include "frame/patience.h"

namespace pelmar {
namespace {

HeldFile* g_last = nullptr;

HANDLE OpenToRead(const char* path)
{
    return Files().createFile(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                              nullptr);
}

Patience PatienceFromNow()
{
    constexpr std::uint64_t kMilliseconds = 100;
    return Patience(Files().tickCount() + kMilliseconds);
}

bool IsBeingSaved(const char* file)
{
    const std::string path = LockOf(file);
    if (Files().fileAttributes(path.c_str()) == INVALID_FILE_ATTRIBUTES)
        return false;
    const HANDLE lock = OpenToRead(path.c_str());
    if (lock == INVALID_HANDLE_VALUE)
        return IsPassing(GetLastError());
    Files().closeHandle(lock); // left behind
    return false;
}

} // namespace

HeldFile::HeldFile(const char* file) : m_next(std::exchange(g_last, this))
{
    // Whoever saves the file goes first: readers that follow one another would keep him out.
    const Patience courtesy = PatienceFromNow();
    while (IsBeingSaved(file) && courtesy.Wait()) {
    }
    // And whoever replaces it has it open for a moment.
    PatienceFromNow().Insist([&] {
        m_handle = OpenToRead(file);
        return m_handle != INVALID_HANDLE_VALUE;
    });
}

HeldFile::~HeldFile()
{
    LetGo();
    HeldFile** link = &g_last;
    while (*link != this)
        link = &(*link)->m_next;
    *link = m_next;
}

void HeldFile::LetGoOfAll()
{
    for (HeldFile* held = g_last; held; held = held->m_next)
        held->LetGo();
}

void HeldFile::LetGo()
{
    if (m_handle != INVALID_HANDLE_VALUE)
        Files().closeHandle(std::exchange(m_handle, INVALID_HANDLE_VALUE));
}

} // namespace pelmar
