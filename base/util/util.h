// What the host's libraries may ask about the application that they run in.
#pragma once

#ifdef UTIL_IMPLEMENTATION
#define UTIL_CLASS __declspec(dllexport)
#else
#define UTIL_CLASS __declspec(dllimport)
#endif

namespace util {

/// The application as its libraries see it. One object per process, for the user-interface thread.
class UTIL_CLASS IAppUI {
public:
    /// The process's object; never null, and never to be deleted.
    static IAppUI* GetInstance();

    /// Path of the host's settings file, in the ANSI code page. The empty text where the host has registered none;
    /// never null. Valid until the next SetSettingsPath.
    virtual const char* GetSettingsPath() const = 0;
    /// Registers the path, which is copied. Null stands for the empty text.
    virtual void SetSettingsPath(const char* path) = 0;

protected:
    IAppUI() = default;
    ~IAppUI() = default;
    IAppUI(const IAppUI&) = delete;
    IAppUI& operator=(const IAppUI&) = delete;
};

} // namespace util
