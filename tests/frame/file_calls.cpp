#include "file_calls.h"

#include <algorithm>

#include "frame/file_system.h"

namespace saving {
namespace {

FileCalls* g_calls = nullptr;

/// What the platform leaves of a settings file when its process is killed while it writes it.
void CutInHalf(const char* path)
{
    const HANDLE file = CreateFileA(path, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    SetFilePointer(file, static_cast<LONG>(GetFileSize(file, nullptr) / 2), nullptr, FILE_BEGIN);
    SetEndOfFile(file);
    CloseHandle(file);
}

HANDLE WINAPI Create(const char* path, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD disposition,
                     DWORD flags, HANDLE like)
{
    if (!g_calls->Permits("CreateFile", path))
        return INVALID_HANDLE_VALUE;
    return CreateFileA(path, access, share, security, disposition, flags, like);
}

BOOL WINAPI Read(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped)
{
    return g_calls->Permits("ReadFile") && ReadFile(file, bytes, size, read, overlapped);
}

BOOL WINAPI Write(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* overlapped)
{
    if (!g_calls->Permits("WriteFile"))
        return FALSE;
    return WriteFile(file, bytes, g_calls->IsDying() ? size / 2 : size, written, overlapped);
}

BOOL WINAPI SetPointer(HANDLE file, LARGE_INTEGER to, LARGE_INTEGER* now, DWORD from)
{
    return g_calls->Permits("SetFilePointer") && SetFilePointerEx(file, to, now, from);
}

BOOL WINAPI SetEnd(HANDLE file)
{
    return g_calls->Permits("SetEndOfFile") && SetEndOfFile(file);
}

BOOL WINAPI Information(HANDLE file, BY_HANDLE_FILE_INFORMATION* information)
{
    return g_calls->Permits("GetFileInformation") && GetFileInformationByHandle(file, information);
}

BOOL WINAPI SetTime(HANDLE file, const FILETIME* made, const FILETIME* read, const FILETIME* written)
{
    return g_calls->Permits("SetFileTime") && SetFileTime(file, made, read, written);
}

BOOL WINAPI Flush(HANDLE file)
{
    return g_calls->Permits("FlushFileBuffers") && FlushFileBuffers(file);
}

DWORD WINAPI Attributes(const char* path)
{
    return g_calls->Permits("GetFileAttributes", path) ? GetFileAttributesA(path) : INVALID_FILE_ATTRIBUTES;
}

BOOL WINAPI SetAttributes(const char* path, DWORD attributes)
{
    return g_calls->Permits("SetFileAttributes", path) && SetFileAttributesA(path, attributes);
}

BOOL WINAPI Security(const char* path, SECURITY_INFORMATION what, void* descriptor, DWORD size, DWORD* needed)
{
    return g_calls->Permits("GetFileSecurity", path) && GetFileSecurityA(path, what, descriptor, size, needed);
}

BOOL WINAPI SetSecurity(const char* path, SECURITY_INFORMATION what, void* descriptor)
{
    return g_calls->Permits("SetFileSecurity", path) && SetFileSecurityA(path, what, descriptor);
}

DWORD WINAPI ReadSection(const char* section, char* lines, DWORD size, const char* path)
{
    return g_calls->Permits("GetPrivateProfileSection", path) ? GetPrivateProfileSectionA(section, lines, size, path)
                                                              : 0;
}

BOOL WINAPI WriteProfile(const char* section, const char* key, const char* text, const char* path)
{
    if (!g_calls->Permits("WritePrivateProfileString", path))
        return FALSE;
    const BOOL written = WritePrivateProfileStringA(section, key, text, path);
    if (g_calls->IsDying())
        CutInHalf(path);
    return written;
}

BOOL WINAPI Move(const char* from, const char* to, DWORD flags)
{
    return g_calls->Permits("MoveFile", to) && MoveFileExA(from, to, flags);
}

BOOL WINAPI Delete(const char* path)
{
    return g_calls->Permits("DeleteFile", path) && DeleteFileA(path);
}

void WINAPI SleepByClock(DWORD milliseconds)
{
    g_calls->Sleep(milliseconds);
}

ULONGLONG WINAPI TimeByClock()
{
    return g_calls->Now();
}

} // namespace

FileCalls::FileCalls()
{
    g_calls = this;
    pelmar::FileSystem& files = pelmar::Files();
    files.createFile = Create;
    files.readFile = Read;
    files.writeFile = Write;
    files.setFilePointer = SetPointer;
    files.setEndOfFile = SetEnd;
    files.fileInformation = Information;
    files.setFileTime = SetTime;
    files.flushFileBuffers = Flush;
    files.fileAttributes = Attributes;
    files.setFileAttributes = SetAttributes;
    files.fileSecurity = Security;
    files.setFileSecurity = SetSecurity;
    files.readSection = ReadSection;
    files.writeProfile = WriteProfile;
    files.moveFile = Move;
    files.deleteFile = Delete;
    files.sleep = SleepByClock;
    files.tickCount = TimeByClock;
}

FileCalls::~FileCalls()
{
    pelmar::Files() = pelmar::FileSystem{};
    g_calls = nullptr;
}

bool FileCalls::Permits(const char* name, const char* path)
{
    if (m_isDead) {
        SetLastError(ERROR_PROCESS_ABORTED);
        return false;
    }
    ++m_made;
    m_isDead = IsDying();
    const Call call{name, path ? path : ""};
    if (const DWORD error = fails ? fails(call) : 0) {
        SetLastError(error);
        return false;
    }
    if (before)
        before(call);
    return true;
}

void FileCalls::Sleep(DWORD milliseconds)
{
    m_now += std::max<DWORD>(milliseconds, 100);
    if (whileSleeping)
        whileSleeping();
}

} // namespace saving
