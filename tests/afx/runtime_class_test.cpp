#include <memory>

#include <afxdlgs.h>
#include <gtest/gtest.h>

namespace {

class CShape : public CObject {
    DECLARE_DYNAMIC(CShape)
};
IMPLEMENT_DYNAMIC(CShape, CObject)

class CCircle : public CShape {
    DECLARE_DYNCREATE(CCircle)
public:
    int m_radius = 5;
};
IMPLEMENT_DYNCREATE(CCircle, CShape)

/// Names a class farther up as its base, and is taken at its word.
class CDisc : public CCircle {
    DECLARE_DYNCREATE(CDisc)
};
IMPLEMENT_DYNCREATE(CDisc, CShape)

TEST(RuntimeClass, KnowsNameSizeAndBase)
{
    const CRuntimeClass* const circle = RUNTIME_CLASS(CCircle);
    EXPECT_STREQ("CCircle", circle->m_lpszClassName);
    EXPECT_EQ(int{sizeof(CCircle)}, circle->m_nObjectSize);
    EXPECT_EQ(RUNTIME_CLASS(CShape), circle->m_pfnGetBaseClass());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CObject)->m_pfnGetBaseClass);
}

TEST(RuntimeClass, IsTheObjectsOwnWhateverPointerAsks)
{
    CCircle circle;
    const CObject& object = circle;
    EXPECT_EQ(RUNTIME_CLASS(CCircle), object.GetRuntimeClass());
    EXPECT_EQ(RUNTIME_CLASS(CObject), CObject().GetRuntimeClass());
}

TEST(RuntimeClass, CreatesAnObject)
{
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(CCircle)->CreateObject());
    ASSERT_TRUE(object);
    EXPECT_EQ(RUNTIME_CLASS(CCircle), object->GetRuntimeClass());
    EXPECT_EQ(5, static_cast<CCircle&>(*object).m_radius);
}

TEST(RuntimeClass, CreatesNothingForAClassThatIsOnlyDynamic)
{
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CShape)->CreateObject());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CObject)->CreateObject());
}

TEST(RuntimeClass, DerivesFromItselfAndItsBasesOnly)
{
    EXPECT_TRUE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(RUNTIME_CLASS(CShape)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
    EXPECT_FALSE(RUNTIME_CLASS(CCircle)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
}

TEST(RuntimeClass, TellsTheKindOfAnObject)
{
    const CCircle circle;
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CShape)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CDisc)));
}

TEST(RuntimeClass, HasTheBaseThatItWasDeclaredWith)
{
    EXPECT_EQ(RUNTIME_CLASS(CShape), RUNTIME_CLASS(CDisc)->m_pfnGetBaseClass());
    EXPECT_FALSE(CDisc().IsKindOf(RUNTIME_CLASS(CCircle)));
}

TEST(RuntimeClass, LeadsFromAPageUpToTheRoot)
{
    const std::vector<CRuntimeClass*> line = {RUNTIME_CLASS(CPropertyPage), RUNTIME_CLASS(CDialog), RUNTIME_CLASS(CWnd),
                                              RUNTIME_CLASS(CCmdTarget), RUNTIME_CLASS(CObject)};
    for (size_t index = 0; index + 1 < line.size(); ++index)
        EXPECT_EQ(line[index + 1], line[index]->m_pfnGetBaseClass()) << line[index]->m_lpszClassName;
}

/// Larger than the memory that a process can have.
class CTooLarge : public CObject {
    [[maybe_unused]] char m_bytes[size_t{1} << 47];
};

TEST(Object, ThrowsAnExceptionOfTheFrameworksWhereMemoryRunsOut)
{
    for (int time = 0; time < 2; ++time) {
        const CObject* object = nullptr;
        bool isThrown = false;
        try {
            object = new CTooLarge;
        } catch (CMemoryException* outOfMemory) {
            isThrown = true;
            outOfMemory->Delete();
        }
        EXPECT_TRUE(isThrown);
        EXPECT_EQ(nullptr, object);
    }
}

TEST(Object, IsMadeInAGivenPlace)
{
    alignas(CCircle) char place[sizeof(CCircle)];
    CCircle* const circle = new (place) CCircle;
    EXPECT_EQ(static_cast<void*>(place), circle);
    EXPECT_EQ(5, circle->m_radius);
    circle->~CCircle();
}

TEST(Exception, TellsThatMemoryRanOut)
{
    try {
        AfxThrowMemoryException();
    } catch (CException* thrown) {
        EXPECT_TRUE(thrown->IsKindOf(RUNTIME_CLASS(CMemoryException)));
        wchar_t text[32] = L"";
        EXPECT_TRUE(thrown->GetErrorMessage(text, 32));
        EXPECT_STREQ(L"Out of memory.", text);
        EXPECT_TRUE(thrown->GetErrorMessage(text, 4));
        EXPECT_STREQ(L"Out", text);
        thrown->Delete();
    }
}

TEST(Exception, IsNotDeletedWhereItIsNotOnTheHeap)
{
    class CCountingException : public CException {
    public:
        CCountingException(BOOL autoDelete, int& deleted) : CException(autoDelete), m_deleted(deleted) {}
        ~CCountingException() override { ++m_deleted; }

    private:
        int& m_deleted;
    };
    int deleted = 0;
    {
        CCountingException local(FALSE, deleted);
        local.Delete();
        EXPECT_EQ(0, deleted);
    }
    deleted = 0;
    (new CCountingException(TRUE, deleted))->Delete();
    EXPECT_EQ(1, deleted);
}

TEST(Exception, IsThrownByPointerAndTellsItsKind)
{
    try {
        AfxThrowUserException();
    } catch (CException* thrown) {
        EXPECT_TRUE(thrown->IsKindOf(RUNTIME_CLASS(CUserException)));
        thrown->Delete();
    }
    try {
        AfxThrowNotSupportedException();
    } catch (CException* thrown) {
        EXPECT_TRUE(thrown->IsKindOf(RUNTIME_CLASS(CNotSupportedException)));
        EXPECT_FALSE(thrown->IsKindOf(RUNTIME_CLASS(CUserException)));
        thrown->Delete();
    }
}

} // namespace
