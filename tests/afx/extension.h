// The test's extension DLLs, loaded for a while.
#pragma once

#include <afxdllx.h>
#include <gtest/gtest.h>

class LoadedExtension {
public:
    explicit LoadedExtension(const wchar_t* file) : module(LoadLibrary(file)) { EXPECT_NE(nullptr, module); }
    ~LoadedExtension() { Unload(); }
    LoadedExtension(const LoadedExtension&) = delete;
    LoadedExtension& operator=(const LoadedExtension&) = delete;

    CDynLinkLibrary* Join() { return Call<CDynLinkLibrary*>("Join"); }
    AFX_EXTENSION_MODULE& State() { return *Call<AFX_EXTENSION_MODULE*>("ModuleState"); }
    void Unload()
    {
        if (module)
            FreeLibrary(module);
        module = nullptr;
    }

    HMODULE module;

private:
    template <class Result> Result Call(const char* name)
    {
        return reinterpret_cast<Result (*)()>(reinterpret_cast<void*>(GetProcAddress(module, name)))();
    }
};

constexpr const wchar_t* kFirstExtension = L"afx_first_extension.dll";
constexpr const wchar_t* kSecondExtension = L"afx_second_extension.dll";
