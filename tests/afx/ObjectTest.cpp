#include <gtest/gtest.h>

#include "afx/afx.h"
#include "tests/support/AllocationFaults.h"

namespace
{

class CAnimal : public CObject
{
    DECLARE_DYNAMIC(CAnimal)
};

class CDog : public CAnimal
{
    DECLARE_DYNAMIC(CDog)

    int m_age = 3;
};

IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNAMIC(CDog, CAnimal)

TEST(ObjectTest, KnowsItsClassAtRunTime)
{
    const CDog dog;
    const CObject& object = dog;
    EXPECT_EQ(object.GetRuntimeClass(), &CDog::classCDog);
    EXPECT_STREQ(object.GetRuntimeClass()->m_lpszClassName, "CDog");
    EXPECT_EQ(object.GetRuntimeClass()->m_nObjectSize, static_cast<int>(sizeof(CDog)));
}

TEST(ObjectTest, IsOfItsClassAndOfAllBases)
{
    const CDog dog;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_FALSE(CAnimal().IsKindOf(RUNTIME_CLASS(CDog)));
}

TEST(ObjectTest, WindowClassesFormTheUsualTree)
{
    EXPECT_TRUE(RUNTIME_CLASS(CDialog)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(RUNTIME_CLASS(CEdit)->IsDerivedFrom(RUNTIME_CLASS(CCmdTarget)));
    EXPECT_TRUE(RUNTIME_CLASS(CFont)->IsDerivedFrom(RUNTIME_CLASS(CGdiObject)));
    EXPECT_TRUE(RUNTIME_CLASS(CMemoryException)->IsDerivedFrom(RUNTIME_CLASS(CException)));
    EXPECT_FALSE(RUNTIME_CLASS(CEdit)->IsDerivedFrom(RUNTIME_CLASS(CButton)));
}

TEST(ObjectTest, NewWithoutMemoryThrowsAMemoryException)
{
    const CAllocationFaults memory(0);
    CMemoryException* caught = nullptr;
    try
    {
        delete new CDog;
    }
    catch (CMemoryException* exception)
    {
        caught = exception;
        exception->Delete();
    }
    ASSERT_NE(caught, nullptr);
    EXPECT_TRUE(caught->IsKindOf(RUNTIME_CLASS(CMemoryException))); // it outlives Delete
}

TEST(ObjectTest, AnExceptionMadeWithNewIsFreedByDelete)
{
    try
    {
        throw new CResourceException;
    }
    catch (CException* exception)
    {
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CResourceException)));
        exception->Delete(); // or the leak check complains
    }
}

size_t hookedSize;
BOOL hookedObject;

BOOL PASCAL RecordingHook(size_t size, BOOL isObject, LONG)
{
    hookedSize = size;
    hookedObject = isObject;
    return TRUE;
}

TEST(ObjectTest, TheAllocationHookLearnsWhatIsAllocated)
{
    EXPECT_EQ(AfxSetAllocHook(RecordingHook), nullptr);
    delete new CDog;
    EXPECT_EQ(hookedSize, sizeof(CDog));
    EXPECT_TRUE(hookedObject);
    AfxFree(AfxAllocate(1234));
    EXPECT_EQ(hookedSize, 1234u);
    EXPECT_FALSE(hookedObject);
    EXPECT_EQ(AfxSetAllocHook(nullptr), &RecordingHook);
}

TEST(ObjectTest, AFailedReallocationLeavesTheBlock)
{
    char* block = static_cast<char*>(AfxAllocate(4));
    std::memcpy(block, "abc", 4);
    {
        const CAllocationFaults memory(0);
        EXPECT_THROW(AfxReallocate(block, 1000), CMemoryException*);
    }
    EXPECT_STREQ(block, "abc");
    AfxFree(block);
}

} // namespace
