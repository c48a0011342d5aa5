// What is left of the diagnostics in a build that is not for debugging.
#undef _DEBUG
#include <afxext.h>

#include <gtest/gtest.h>

namespace {

TEST(ReleaseBuild, DoesNothingForAssertionsAndTraces)
{
    int done = 0;
    ASSERT(++done);
    TRACE("%d", ++done);
    TRACE(_T("%d"), ++done);
    EXPECT_EQ(0, done);
}

TEST(ReleaseBuild, DoesTheWorkOfWhatItVerifies)
{
    int done = 0;
    VERIFY(++done == 7);
    EXPECT_EQ(1, done);
}

TEST(ReleaseBuild, TakesAnObjectForWhatItIsSaidToBe)
{
    CEdit edit;
    CWnd* const window = &edit;
    EXPECT_EQ(&edit, STATIC_DOWNCAST(CEdit, window));
}

/// A handler is marked as such, which means nothing to the compiler.
class CMarked : public CWnd {
public:
    afx_msg void OnDestroy() { destroyed = true; }
    bool destroyed = false;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMarked, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

TEST(Handlers, MayBeMarked)
{
    CMarked window;
    window.OnDestroy();
    EXPECT_TRUE(window.destroyed);
}

} // namespace
