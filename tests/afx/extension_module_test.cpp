#include "extension.h"
#include "resource.h"

namespace {

bool IsFound(UINT id)
{
    CString text;
    return text.LoadString(id) != FALSE;
}

TEST(ExtensionModule, KnowsItsModuleOnceStarted)
{
    LoadedExtension extension(kFirstExtension);
    EXPECT_TRUE(extension.State().bInitialized);
    EXPECT_EQ(extension.module, extension.State().hModule);
}

TEST(ExtensionModule, StartsOnceOnly)
{
    LoadedExtension extension(kFirstExtension);
    EXPECT_TRUE(AfxInitExtensionModule(extension.State(), GetModuleHandle(nullptr)));
    EXPECT_EQ(extension.module, extension.State().hModule);
}

TEST(ExtensionModule, DoesNotStartWithoutAModule)
{
    AFX_EXTENSION_MODULE state;
    EXPECT_FALSE(AfxInitExtensionModule(state, nullptr));
    EXPECT_FALSE(state.bInitialized);
}

TEST(ExtensionModule, LeavesTheChainWithItsUnload)
{
    LoadedExtension extension(kFirstExtension);
    const CDynLinkLibrary* const library = extension.Join();
    EXPECT_EQ(extension.module, library->m_hModule);
    EXPECT_TRUE(IsFound(IDS_IN_FIRST));
    extension.Unload();
    EXPECT_EQ(nullptr, GetModuleHandle(kFirstExtension));
    EXPECT_FALSE(IsFound(IDS_IN_FIRST));
}

TEST(ExtensionModule, StopsBeingTheCurrentModuleWithItsUnload)
{
    LoadedExtension extension(kFirstExtension);
    AfxSetResourceHandle(extension.module);
    extension.Unload();
    EXPECT_EQ(GetModuleHandle(nullptr), AfxGetResourceHandle());
    EXPECT_FALSE(IsFound(IDS_IN_FIRST));
}

TEST(ExtensionModule, LeavesTheChainInAnyOrder)
{
    LoadedExtension first(kFirstExtension);
    LoadedExtension second(kSecondExtension);
    first.Join();
    second.Join();
    second.Join();
    first.Unload();
    EXPECT_FALSE(IsFound(IDS_IN_FIRST));
    EXPECT_TRUE(IsFound(IDS_IN_EXTENSIONS));
    second.Unload();
    EXPECT_FALSE(IsFound(IDS_IN_EXTENSIONS));
}

TEST(ExtensionModule, CanDropItsPlaceBeforeItsUnload)
{
    LoadedExtension extension(kFirstExtension);
    delete extension.Join();
    EXPECT_FALSE(IsFound(IDS_IN_FIRST));
    extension.Join();
    EXPECT_TRUE(IsFound(IDS_IN_FIRST));
}

TEST(ExtensionModule, CanBeLoadedAgain)
{
    for (int round = 0; round < 3; ++round) {
        LoadedExtension extension(kFirstExtension);
        extension.Join();
        EXPECT_TRUE(IsFound(IDS_IN_FIRST)) << round;
    }
    EXPECT_FALSE(IsFound(IDS_IN_FIRST));
}

TEST(ExtensionModule, IsLeftAloneByTheEndOfAStateThatNeverStarted)
{
    LoadedExtension extension(kFirstExtension);
    extension.Join();
    AFX_EXTENSION_MODULE never;
    AfxTermExtensionModule(never);
    EXPECT_TRUE(IsFound(IDS_IN_FIRST));
}

} // namespace
