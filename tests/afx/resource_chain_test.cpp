#include "extension.h"
#include "modal.h"
#include "resource.h"

namespace {

std::wstring Text(UINT id)
{
    CString text;
    text.LoadString(id);
    return text.GetString();
}

HINSTANCE HolderOf(UINT dialog)
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(dialog), RT_DIALOG);
}

/// Two extension DLLs are loaded; each test says which of them join the chain.
class ResourceChain : public testing::Test {
protected:
    ~ResourceChain() override { AfxSetResourceHandle(nullptr); }
    LoadedExtension first{kFirstExtension};
    LoadedExtension second{kSecondExtension};
    const HINSTANCE program = GetModuleHandle(nullptr);
};

TEST_F(ResourceChain, StartsWithTheApplication)
{
    EXPECT_EQ(program, AfxGetResourceHandle());
    EXPECT_EQ(program, AfxGetInstanceHandle());
    first.Join();
    EXPECT_EQ(L"программа", Text(IDS_IN_ALL));
    EXPECT_EQ(program, HolderOf(IDD_SHADOWED));
}

TEST_F(ResourceChain, StartsWithTheModuleThatIsSet)
{
    first.Join();
    AfxSetResourceHandle(second.module); // which has not joined
    EXPECT_EQ(second.module, AfxGetResourceHandle());
    EXPECT_EQ(L"второй", Text(IDS_IN_ALL));
    EXPECT_EQ(second.module, HolderOf(IDD_SHADOWED));
    EXPECT_EQ(program, HolderOf(IDD_NUMBER));
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(L"программа", Text(IDS_IN_ALL));
}

TEST_F(ResourceChain, GoesOnWithTheExtensionsTheLastJoinedFirst)
{
    first.Join();
    EXPECT_EQ(L"первый", Text(IDS_IN_EXTENSIONS));
    EXPECT_EQ(first.module, HolderOf(IDD_IN_EXTENSIONS));
    second.Join();
    EXPECT_EQ(L"второй", Text(IDS_IN_EXTENSIONS));
    EXPECT_EQ(second.module, HolderOf(IDD_IN_EXTENSIONS));
    EXPECT_EQ(L"только первый", Text(IDS_IN_FIRST));
}

TEST_F(ResourceChain, HoldsNothingOfADllThatHasNotJoined)
{
    EXPECT_EQ(L"", Text(IDS_IN_EXTENSIONS));
    first.Join();
    EXPECT_EQ(L"первый", Text(IDS_IN_EXTENSIONS));
}

TEST_F(ResourceChain, LooksOnWhereAModuleHasTheBundleButNotTheString)
{
    // Strings are stored in bundles of sixteen, and the application and the second extension hold others of this one.
    static_assert(IDS_IN_ALL / 16 == IDS_IN_FIRST / 16);
    first.Join();
    second.Join();
    EXPECT_EQ(L"только первый", Text(IDS_IN_FIRST));
}

TEST_F(ResourceChain, EndsWithTheFramework)
{
    EXPECT_EQ(L"Please enter a number.", Text(AFX_IDP_PARSE_REAL));
}

TEST_F(ResourceChain, GivesTheCurrentModuleWhereNoneHoldsTheResource)
{
    EXPECT_EQ(program, HolderOf(IDD_NOWHERE));
    AfxSetResourceHandle(second.module);
    EXPECT_EQ(second.module, HolderOf(IDD_NOWHERE));
}

TEST_F(ResourceChain, LetsAModuleReplaceTheStandardPrompts)
{
    AfxSetResourceHandle(second.module);
    EXPECT_EQ(L"Введите целое число.", Text(AFX_IDP_PARSE_INT));
    EXPECT_EQ(L"Please enter a number.", Text(AFX_IDP_PARSE_REAL));
}

TEST_F(ResourceChain, LetsAnExtensionReplaceTheStandardPrompts)
{
    second.Join();
    CQuietApp application;
    AfxMessageBox(AFX_IDP_PARSE_INT);
    EXPECT_EQ(L"Введите целое число.", application.boxes.at(0).text);
}

TEST_F(ResourceChain, GivesDialogsOfAnExtensionToTheApplication)
{
    first.Join();
    CDialog dialog(IDD_IN_EXTENSIONS);
    Modal open(dialog, L"Модуль первый");
    OnUi([&] { dialog.EndDialog(3); });
    EXPECT_EQ(3, open.Result());
}

} // namespace
