/*
 * Everything that a caller of the C interface can do wrong, done to the built library: nothing of it may crash, and each
 * call gives the result that core/pexlo.h promises. A program of its own, in C, of another compiler's making perhaps.
 *
 * Prints what went otherwise; the exit code is the number of these things, up to 100.
 */
#include "core/pexlo.h"

#include <limits.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#if defined(_WIN32)
#include <windows.h>
#else
#include <pthread.h>
#endif

static int failures;
static int checks;

static void Check(const char* what, long result, long expected, int line)
{
    ++checks;
    if (result == expected)
        return;
    printf("line %d: %s is %ld, not %ld\n", line, what, result, expected);
    fflush(stdout);
    ++failures;
}

#define EXPECT(call, expected) Check(#call, (long)(call), (long)(expected), __LINE__)
#define EXPECT_NULL(call) Check(#call, (call) != NULL, 0, __LINE__)
#define EXPECT_TRUE(what) Check(#what, (what) ? 1 : 0, 1, __LINE__)

#define LATER 64 /* bytes that a later version's structures have more */

/* Memory of exactly `size` bytes, so that a tool that watches it finds what reaches beyond. */
static void* Block(size_t size, int fill)
{
    void* block = malloc(size);
    if (block == NULL)
        exit(100);
    memset(block, fill, size);
    return block;
}

static PexloHandle Number(size_t number)
{
    return (PexloHandle)number;
}

/* ---- Threads -------------------------------------------------------------------------------------------------------- */

typedef void (*Task)(PexloHandle handle);

typedef struct Work
{
    Task task;
    PexloHandle handle;
} Work;

#if defined(_WIN32)
static DWORD WINAPI RunTask(LPVOID work)
{
    ((Work*)work)->task(((Work*)work)->handle);
    return 0;
}

static void OnAnotherThread(Task task, PexloHandle handle)
{
    Work work;
    HANDLE thread;
    work.task = task;
    work.handle = handle;
    thread = CreateThread(NULL, 0, RunTask, &work, 0, NULL);
    if (thread == NULL || WaitForSingleObject(thread, 60000) != WAIT_OBJECT_0)
    {
        printf("a thread does not end\n");
        fflush(stdout);
        _exit(100);
    }
    CloseHandle(thread);
}
#else
static void* RunTask(void* work)
{
    ((Work*)work)->task(((Work*)work)->handle);
    return NULL;
}

static void OnAnotherThread(Task task, PexloHandle handle)
{
    Work work;
    pthread_t thread;
    work.task = task;
    work.handle = handle;
    if (pthread_create(&thread, NULL, RunTask, &work) != 0)
        exit(100);
    pthread_join(thread, NULL);
}
#endif

/* ---- Every operation with a handle that gives `error` --------------------------------------------------------------- */

static void ExpectOfEveryOperation(PexloHandle handle, int error)
{
    int a = 71, b = 72, c = 73, d = 74, e = 75;
    unsigned code = 76;
    char text[8] = "as it";
    PexloData data = {0};
    PexloInstCode record = {0};
    PexloForm form = {0};
    PexloEntry entry = {0};
    PexloRefusal refusal = {0};
    PexloField field = {0};
    PexloItem item = {0};
    PexloOffer offer = {0};
    data.size = sizeof data;
    record.size = sizeof record;
    form.size = sizeof form;
    form.instruction = 168;
    entry.size = sizeof entry;
    entry.name = "start";
    entry.text = "1";
    refusal.size = sizeof refusal;
    field.size = sizeof field;
    item.size = sizeof item;
    offer.size = sizeof offer;

    EXPECT(Pexlo_DoOpenPosDlg(handle, 0, 0, NULL), error);
    EXPECT(Pexlo_DoInputPosCtrlDlg(handle, &code, NULL), error);
    EXPECT(Pexlo_DoOpenPIDDlg(handle, 30, NULL), error);
    EXPECT(Pexlo_DoOpenSCRDlg(handle, NULL, NULL), error);
    EXPECT(Pexlo_DoOpenSCALDlg(handle, NULL, 0, NULL), error);
    EXPECT(Pexlo_SetPlcType(handle, 1), error);
    EXPECT(Pexlo_GetPlcType(handle), error);
    EXPECT(Pexlo_SetDevRange(handle, -1, 9, 0, 1), error);
    EXPECT(Pexlo_GetDevRange(handle, -1, 9, &a, &b), error);
    EXPECT(Pexlo_GetSeqDevInfo(handle, 0, &a, &b, &c, 0), error);
    EXPECT(Pexlo_SetMaxSlot(handle, 1), error);
    EXPECT(Pexlo_GetMaxSlot(handle), error);
    EXPECT(Pexlo_SetDefaultMaxSlot(handle), error);
    EXPECT(Pexlo_SetChannelNo(handle, 0, 171), error);
    EXPECT(Pexlo_ResetChannelNo(handle), error);
    EXPECT(Pexlo_GetNumOfChannel(handle, 171), error);
    EXPECT(Pexlo_GetChannelNo(handle, 0, 171), error);
    EXPECT(Pexlo_GetChannelTypeIndex(handle, 171), error);
    EXPECT(Pexlo_SetF175DispType(handle, 1), error);
    EXPECT(Pexlo_GetF175DispType(handle), error);
    EXPECT(Pexlo_ResetContents(handle), error);
    EXPECT(Pexlo_SetLanguageInfo(handle, 1), error);
    EXPECT_NULL(Pexlo_GetLoadInstance(handle));
    EXPECT(Pexlo_GetTextCodePage(handle), error);
    EXPECT_NULL(Pexlo_CreateDlgFont(handle, NULL));
    EXPECT(Pexlo_SetDlgFont(handle, NULL, 0, NULL), error);
    EXPECT(Pexlo_DeleteDlgFont(handle), error);
    EXPECT(Pexlo_SetHelpPath(handle, "x"), error);
    EXPECT(Pexlo_SetHelpPathUtf8(handle, "x"), error);
    EXPECT(Pexlo_GetHelpPath(handle, text, sizeof text), error);
    EXPECT(Pexlo_GetHelpPathUtf8(handle, text, sizeof text), error);
    EXPECT(Pexlo_SetAppName(handle, "x"), error);
    EXPECT(Pexlo_SetAppNameUtf8(handle, "x"), error);
    EXPECT(Pexlo_EntrySupportFunInfo(handle, 168), error);
    EXPECT(Pexlo_FindSupportFun(handle, 168), error);
    EXPECT(Pexlo_GetSupportFunNum(handle, 0), error);
    EXPECT(Pexlo_ClearSuppportFunInfo(handle), error);
    EXPECT(Pexlo_SetCmtRec(handle, 0), error);
    EXPECT(Pexlo_IsCmtRec(handle), error);
    EXPECT(Pexlo_SetOnlyDataTable(handle, 1), error);
    EXPECT(Pexlo_IsOnlyDataTable(handle), error);
    EXPECT(Pexlo_SetStartType(handle, 1), error);
    EXPECT(Pexlo_GetStartType(handle), error);
    EXPECT(Pexlo_IsAxisType(handle), error);
    EXPECT(Pexlo_IsStartCondition(handle), error);
    EXPECT(Pexlo_IsSameCondition(handle), error);
    EXPECT(Pexlo_SetDlgDataPtr(handle, "data", 5), error);
    EXPECT_NULL(Pexlo_GetDlgDataPtr(handle));
    EXPECT(Pexlo_RemoveDlgData(handle), error);
    EXPECT(Pexlo_AddContInfo(handle, 1, 2, 3), error);
    EXPECT(Pexlo_GetContInfoCount(handle), error);
    EXPECT(Pexlo_GetContInfo(handle, 0, &a, &b, &c), error);
    EXPECT(Pexlo_RemoveAllContInfo(handle), error);
    EXPECT(Pexlo_AddOprdInfo(handle, 1, 2), error);
    EXPECT(Pexlo_GetOprdInfoCount(handle), error);
    EXPECT(Pexlo_GetOprdInfo(handle, 0, &a, &b), error);
    EXPECT(Pexlo_RemoveAllOprdInfo(handle), error);
    EXPECT(Pexlo_AddDataInfo(handle, 9, 1, 0, 0, 1), error);
    EXPECT(Pexlo_GetDataInfoCount(handle), error);
    EXPECT(Pexlo_GetDataInfo(handle, 0, &data), error);
    EXPECT(Pexlo_RemoveAllDataInfo(handle), error);
    EXPECT(Pexlo_AddCmtInfo(handle, "x"), error);
    EXPECT(Pexlo_AddCmtInfoUtf8(handle, "x"), error);
    EXPECT(Pexlo_GetCmtInfoCount(handle), error);
    EXPECT(Pexlo_GetCmtInfo(handle, 0, text, sizeof text), error);
    EXPECT(Pexlo_GetCmtInfoUtf8(handle, 0, text, sizeof text), error);
    EXPECT(Pexlo_RemoveAllCmtInfo(handle), error);
    EXPECT(Pexlo_AddInstCodeInfo(handle, 8, -1, 168, 0, 0), error);
    EXPECT(Pexlo_GetInstCodeCount(handle), error);
    EXPECT(Pexlo_GetInstCodeInfo(handle, 0, &record), error);
    EXPECT(Pexlo_GetInstCode(handle, 0, &a, &b, &c, &d, &e), error);
    EXPECT(Pexlo_RemoveAllInstCodeInfo(handle), error);
    EXPECT(Pexlo_CreateInstCode(handle), error);
    EXPECT(Pexlo_CreateInstCode_1(handle), error);
    EXPECT(Pexlo_CreateInstCode_11(handle), error);
    EXPECT(Pexlo_CreateInstCode_2(handle), error);
    EXPECT(Pexlo_CreateInstCode_3(handle), error);
    EXPECT(Pexlo_CreateInstCode_4(handle), error);
    EXPECT(Pexlo_GetOffer(handle, 0, &offer), error);
    EXPECT(Pexlo_Fill(handle, &form, &entry, 1, &refusal), error);
    EXPECT(Pexlo_Check(handle, &form, &entry, 1, &refusal), error);
    EXPECT(Pexlo_DescribeFields(handle, &form, &entry, 1, &field, 1, &refusal), error);
    EXPECT(Pexlo_GetFieldItem(handle, 0, 0, &item), error);
    EXPECT(Pexlo_GetFieldText(handle, 0, text, sizeof text), error);
    EXPECT_TRUE(strcmp(text, "as it") == 0);
    EXPECT_TRUE(a == 71 && b == 72 && c == 73 && d == 74 && e == 75 && code == 76);
    EXPECT_TRUE(refusal.message[0] == '\0' && field.control == 0 && offer.text[0] == '\0' && item.text[0] == '\0');
    EXPECT(Pexlo_Destroy(handle), error);
}

static void ExpectNoHandle(PexloHandle handle)
{
    ExpectOfEveryOperation(handle, PEXLO_E_HANDLE);
    EXPECT(Pexlo_TakeOver(handle), PEXLO_E_HANDLE);
}

static void ExpectOthersHandle(PexloHandle handle)
{
    ExpectOfEveryOperation(handle, PEXLO_E_THREAD);
}

/* A controller with what most dialogs need. */
static void SetUp(PexloHandle handle)
{
    int i;
    EXPECT(Pexlo_SetPlcType(handle, 1), 1);
    for (i = 0; i < 8; ++i)
        EXPECT(Pexlo_SetDevRange(handle, -1, i, 0, 500), 1);
    EXPECT(Pexlo_SetDevRange(handle, -1, 9, 0, 1659), 1);
    for (i = 168; i <= 177; ++i)
        EXPECT(Pexlo_EntrySupportFunInfo(handle, i), 0);
    for (i = 171; i <= 175; ++i)
        EXPECT(Pexlo_SetChannelNo(handle, 0, i), 1);
}

static PexloForm FormOf(int instruction)
{
    PexloForm form = {0};
    form.size = sizeof form;
    form.instruction = instruction;
    form.axisFlag = 1;
    form.workArea = 30;
    return form;
}

/* ---- Handles -------------------------------------------------------------------------------------------------------- */

static void TestHandles(void)
{
    const PexloHandle alive = Pexlo_Create();
    const PexloHandle dead = Pexlo_Create();
    const size_t number = (size_t)alive;
    size_t garbage[12];
    int i;
    int onStack = 0;
    EXPECT_TRUE(alive != NULL && dead != NULL && alive != dead);
    EXPECT(Pexlo_Destroy(dead), 1);
    EXPECT(Pexlo_Destroy(dead), PEXLO_E_HANDLE);
    ExpectNoHandle(dead);
    ExpectNoHandle(NULL);

    garbage[0] = 1;
    garbage[1] = 0xFFFF;
    garbage[2] = 0x10000;
    garbage[3] = ~(size_t)0;
    garbage[4] = number + 1000;
    garbage[5] = number + 0x10000;
    garbage[6] = number ^ 0x10000000u;
    garbage[7] = number * 3;
    garbage[8] = (size_t)&onStack;
    garbage[9] = (size_t)(const void*)"a text";
    garbage[10] = (size_t)(void*)&failures;
    garbage[11] = (size_t)0xDEADBEEFu;
    for (i = 0; i < 12; ++i)
        ExpectNoHandle(Number(garbage[i]));
    EXPECT(Pexlo_GetPlcType(alive), 0);

    OnAnotherThread(ExpectOthersHandle, alive);
    OnAnotherThread(ExpectNoHandle, dead);
    EXPECT(Pexlo_GetPlcType(alive), 0);
    EXPECT(Pexlo_Destroy(alive), 1);
}

static PexloHandle made;

static void MakeOne(PexloHandle unused)
{
    (void)unused;
    made = Pexlo_Create();
    EXPECT(Pexlo_SetPlcType(made, 70), 1);
}

static void TakeAndDestroy(PexloHandle handle)
{
    EXPECT(Pexlo_GetPlcType(handle), PEXLO_E_THREAD);
    EXPECT(Pexlo_TakeOver(handle), 1);
    EXPECT(Pexlo_GetPlcType(handle), 70);
    EXPECT(Pexlo_Destroy(handle), 1);
}

static void TestOwners(void)
{
    PexloHandle handle;
    OnAnotherThread(MakeOne, NULL);
    handle = made;
    ExpectOthersHandle(handle);
    EXPECT(Pexlo_TakeOver(handle), 1);
    EXPECT(Pexlo_GetPlcType(handle), 70);
    OnAnotherThread(ExpectOthersHandle, handle);
    OnAnotherThread(TakeAndDestroy, handle);
    ExpectNoHandle(handle);
}

#define MOST 65535

static void TestMost(void)
{
    PexloHandle* handles = (PexloHandle*)Block((MOST + 1) * sizeof *handles, 0);
    int count = 0, i, again;
    while (count <= MOST && (handles[count] = Pexlo_Create()) != NULL)
        ++count;
    EXPECT(count, MOST);
    EXPECT_NULL(Pexlo_Create());
    for (i = 0; i < count; i += 1000)
        EXPECT(Pexlo_SetPlcType(handles[i], i % 256), 1);
    for (i = 0; i < count; i += 1000)
        EXPECT(Pexlo_GetPlcType(handles[i]), i % 256);
    /* The same place again and again: each time another handle. */
    for (again = 0; again < 100; ++again)
    {
        const PexloHandle before = handles[count / 2];
        EXPECT(Pexlo_Destroy(before), 1);
        handles[count / 2] = Pexlo_Create();
        EXPECT_TRUE(handles[count / 2] != NULL && handles[count / 2] != before);
        EXPECT(Pexlo_GetPlcType(before), PEXLO_E_HANDLE);
    }
    for (i = 0; i < count; ++i)
        EXPECT(Pexlo_Destroy(handles[i]), 1);
    for (i = 0; i < count; i += 500)
        EXPECT(Pexlo_Destroy(handles[i]), PEXLO_E_HANDLE);
    free(handles);
}

/* ---- Arguments ------------------------------------------------------------------------------------------------------ */

static void TestIndices(void)
{
    static const int bad[] = {-1, 1, 2, 100000, INT_MAX, INT_MIN, INT_MIN + 1};
    const PexloHandle handle = Pexlo_Create();
    size_t i;
    SetUp(handle);
    EXPECT(Pexlo_AddContInfo(handle, 1, 2, 3), 1);
    EXPECT(Pexlo_AddOprdInfo(handle, 1, 2), 1);
    EXPECT(Pexlo_AddDataInfo(handle, 9, 1, 0, 0, 1), 1);
    EXPECT(Pexlo_AddCmtInfo(handle, "x"), 1);
    EXPECT(Pexlo_AddInstCodeInfo(handle, 8, -1, 168, 0, 0), 1);
    for (i = 0; i < sizeof bad / sizeof *bad; ++i)
    {
        int a = 1, b = 2, c = 3, d = 4, e = 5;
        char text[4] = "abc";
        PexloData data = {0};
        PexloInstCode record = {0};
        PexloOffer offer = {0};
        PexloItem item = {0};
        data.size = sizeof data;
        record.size = sizeof record;
        offer.size = sizeof offer;
        item.size = sizeof item;
        EXPECT(Pexlo_GetContInfo(handle, bad[i], &a, &b, &c), 0);
        EXPECT(Pexlo_GetOprdInfo(handle, bad[i], &a, &b), 0);
        EXPECT(Pexlo_GetDataInfo(handle, bad[i], &data), 0);
        EXPECT(Pexlo_GetCmtInfo(handle, bad[i], text, sizeof text), 0);
        EXPECT(Pexlo_GetCmtInfoUtf8(handle, bad[i], text, sizeof text), 0);
        EXPECT(Pexlo_GetInstCodeInfo(handle, bad[i], &record), 0);
        EXPECT(Pexlo_GetInstCode(handle, bad[i], &a, &b, &c, &d, &e), 0);
        EXPECT(Pexlo_GetFieldItem(handle, bad[i], bad[i], &item), 0);
        if (bad[i] != -1) /* the caption */
            EXPECT(Pexlo_GetFieldText(handle, bad[i], text, sizeof text), 0);
        if (bad[i] < 0 || bad[i] > 1000)
            EXPECT(Pexlo_GetOffer(handle, bad[i], &offer), 0);
        EXPECT_TRUE(a == 1 && b == 2 && c == 3 && d == 4 && e == 5 && strcmp(text, "abc") == 0);
        (void)Pexlo_GetChannelNo(handle, bad[i], bad[i]);
        (void)Pexlo_GetNumOfChannel(handle, bad[i]);
        (void)Pexlo_GetSupportFunNum(handle, bad[i]);
        (void)Pexlo_SetChannelNo(handle, bad[i], bad[i]);
        (void)Pexlo_EntrySupportFunInfo(handle, bad[i]);
        (void)Pexlo_SetLanguageInfo(handle, bad[i] / 2 + 20);
    }
    EXPECT(Pexlo_Destroy(handle), 1);
}

static void TestNullPointers(void)
{
    const PexloHandle handle = Pexlo_Create();
    const PexloForm form = FormOf(168);
    PexloForm filled = form;
    int a = 1;
    SetUp(handle);
    EXPECT(Pexlo_AddContInfo(handle, 1, 2, 3), 1);
    EXPECT(Pexlo_AddCmtInfo(handle, NULL), 1);
    EXPECT(Pexlo_AddCmtInfoUtf8(handle, NULL), 1);
    EXPECT(Pexlo_SetHelpPath(handle, NULL), 1);
    EXPECT(Pexlo_SetHelpPathUtf8(handle, NULL), 1);
    EXPECT(Pexlo_SetAppName(handle, NULL), 1);
    EXPECT(Pexlo_SetAppNameUtf8(handle, NULL), 1);
    EXPECT(Pexlo_SetMessageCaption(NULL), 1);
    EXPECT(Pexlo_SetMessageCaptionUtf8(NULL), 1);
    EXPECT(Pexlo_SetDlgDataPtr(handle, NULL, 10), 1);
    EXPECT(Pexlo_SetDlgDataPtr(handle, "x", 0), 1);
    EXPECT(Pexlo_SetDlgDataPtr(handle, "x", -1), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetContInfo(handle, 0, NULL, &a, &a), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetContInfo(handle, 0, &a, &a, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetOprdInfo(handle, 0, NULL, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetDataInfo(handle, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetInstCodeInfo(handle, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetInstCode(handle, 0, &a, &a, &a, &a, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetDevRange(handle, -1, 9, NULL, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetSeqDevInfo(handle, 0, NULL, NULL, NULL, 0), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetOffer(handle, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetFieldItem(handle, 0, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_SetDlgFont(handle, NULL, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_Fill(handle, NULL, NULL, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_Check(handle, NULL, NULL, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_DescribeFields(handle, NULL, NULL, 0, NULL, 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_Fill(handle, &filled, NULL, 3, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_Check(handle, &form, NULL, -3, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_DescribeFields(handle, &form, NULL, 0, NULL, 3, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_Fill(handle, &filled, NULL, 0, NULL), 2);
    EXPECT(Pexlo_Check(handle, &form, NULL, 0, NULL), 2);
    EXPECT_TRUE(Pexlo_DescribeFields(handle, &form, NULL, 0, NULL, 0, NULL) > 5);
    EXPECT(Pexlo_Destroy(handle), 1);
}

static void TestBuffers(void)
{
    static const char path[] = "C:\\Tool\\Help.chm";
    const PexloHandle handle = Pexlo_Create();
    const int needed = (int)sizeof path;
    int size;
    EXPECT(Pexlo_SetHelpPath(handle, path), 1);
    EXPECT(Pexlo_AddCmtInfo(handle, path), 1);
    for (size = 0; size <= needed + 1; ++size)
    {
        char* buffer = (char*)Block((size_t)size + 1, '~');
        const size_t fitting = size == 0 ? 0 : (size_t)(size < needed ? size - 1 : needed - 1);
        EXPECT(Pexlo_GetHelpPath(handle, buffer, size), needed);
        EXPECT_TRUE(buffer[size] == '~' && memcmp(buffer, path, fitting) == 0);
        EXPECT_TRUE(size == 0 || strlen(buffer) == fitting);
        EXPECT(Pexlo_GetHelpPathUtf8(handle, buffer, size), needed);
        EXPECT_TRUE(size == 0 || strlen(buffer) == fitting);
        EXPECT(Pexlo_GetCmtInfo(handle, 0, buffer, size), needed);
        EXPECT_TRUE(size == 0 || strlen(buffer) == fitting);
        EXPECT(Pexlo_GetCmtInfoUtf8(handle, 0, buffer, size), needed);
        EXPECT_TRUE(buffer[size] == '~');
        free(buffer);
    }
    EXPECT(Pexlo_GetHelpPath(handle, NULL, 0), needed);
    EXPECT(Pexlo_GetHelpPath(handle, NULL, 1000), needed);
    EXPECT(Pexlo_GetHelpPath(handle, NULL, -1), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetHelpPathUtf8(handle, NULL, INT_MIN), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetCmtInfo(handle, 0, NULL, -1), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetCmtInfoUtf8(handle, 0, NULL, -1), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_GetFieldText(handle, 0, NULL, -1), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_Destroy(handle), 1);
}

/* ---- Structures ----------------------------------------------------------------------------------------------------- */

/* A structure of which the caller says another size. `known` is that of this version. */
static void* Sized(size_t known, size_t more, int rest, unsigned size)
{
    char* structure = (char*)Block(known + more, 0);
    memset(structure + known, rest, more);
    memcpy(structure, &size, sizeof size);
    return structure;
}

static const unsigned kWrong[] = {0, 1, 3, 4, 0x80000000u, 0xFFFFFFFFu};

static void TestReturnedStructures(void)
{
    const PexloHandle handle = Pexlo_Create();
    const PexloForm form = FormOf(168);
    size_t i;
    int which;
    SetUp(handle);
    EXPECT(Pexlo_AddDataInfo(handle, 9, 1, 0, 0, 1), 1);
    EXPECT(Pexlo_AddInstCodeInfo(handle, 8, -1, 168, 0, 0), 1);
    EXPECT_TRUE(Pexlo_DescribeFields(handle, &form, NULL, 0, NULL, 0, NULL) > 0);
    for (which = 0; which < 6; ++which)
    {
        static const size_t sizes[] = {sizeof(PexloData),  sizeof(PexloInstCode), sizeof(PexloOffer),
                                       sizeof(PexloField), sizeof(PexloRefusal),  sizeof(PexloItem)};
        const size_t known = sizes[which];
        for (i = 0; i < sizeof kWrong / sizeof *kWrong + 2; ++i)
        {
            const size_t count = sizeof kWrong / sizeof *kWrong;
            const int isLater = i == count + 1;
            const size_t more = isLater ? LATER : 0;
            const unsigned size = (unsigned)(i < count ? kWrong[i] : i == count ? known - 1 : known + more);
            char* structure = (char*)Sized(known, more, 0x55, size);
            int result = -1;
            unsigned after;
            switch (which)
            {
            case 0:
                result = Pexlo_GetDataInfo(handle, 0, (PexloData*)structure);
                break;
            case 1:
                result = Pexlo_GetInstCodeInfo(handle, 0, (PexloInstCode*)structure);
                break;
            case 2:
                result = Pexlo_GetOffer(handle, 0, (PexloOffer*)structure);
                break;
            case 3:
                result = Pexlo_DescribeFields(handle, &form, NULL, 0, (PexloField*)structure, 1, NULL);
                break;
            case 4:
                result = Pexlo_Check(handle, &form, NULL, 0, (PexloRefusal*)structure);
                break;
            default:
                result = Pexlo_GetFieldItem(handle, 0, 0, (PexloItem*)structure);
                if (result == 0)
                    result = 1; /* the first field is no list */
                break;
            }
            memcpy(&after, structure, sizeof after);
            if (isLater)
            {
                EXPECT_TRUE(result > 0);
                EXPECT_TRUE(which == 5 || after == known);
                EXPECT_TRUE(structure[known] == 0x55 && structure[known + more - 1] == 0x55);
            }
            else
            {
                EXPECT(result, PEXLO_E_SIZE);
                EXPECT_TRUE(after == size);
            }
            free(structure);
        }
    }
    EXPECT(Pexlo_Destroy(handle), 1);
}

static void TestPassedStructures(void)
{
    const PexloHandle handle = Pexlo_Create();
    const PexloForm known = FormOf(168);
    PexloRefusal refusal = {0};
    size_t i;
    char* later;
    char* entries;
    unsigned size;
    refusal.size = sizeof refusal;
    SetUp(handle);
    for (i = 0; i < sizeof kWrong / sizeof *kWrong; ++i)
    {
        PexloForm form = known;
        PexloEntry entry = {0};
        form.size = kWrong[i];
        EXPECT(Pexlo_Fill(handle, &form, NULL, 0, NULL), PEXLO_E_SIZE);
        EXPECT(Pexlo_Check(handle, &form, NULL, 0, NULL), PEXLO_E_SIZE);
        EXPECT(Pexlo_DescribeFields(handle, &form, NULL, 0, NULL, 0, NULL), PEXLO_E_SIZE);
        entry.size = kWrong[i];
        entry.name = "start";
        EXPECT(Pexlo_Check(handle, &known, &entry, 1, NULL), PEXLO_E_SIZE);
    }

    /* Those of a later version: good as long as they say nothing that this one does not know. */
    later = (char*)Sized(sizeof known, LATER, 0, 0);
    memcpy(later, &known, sizeof known);
    size = (unsigned)sizeof known + LATER;
    memcpy(later, &size, sizeof size);
    EXPECT(Pexlo_Check(handle, (const PexloForm*)later, NULL, 0, &refusal), 2);
    later[sizeof known + LATER - 1] = 1;
    EXPECT(Pexlo_Check(handle, (const PexloForm*)later, NULL, 0, &refusal), PEXLO_E_SIZE);
    EXPECT(Pexlo_Fill(handle, (PexloForm*)later, NULL, 0, &refusal), PEXLO_E_SIZE);
    free(later);

    entries = (char*)Block(2 * (sizeof(PexloEntry) + LATER), 0);
    for (i = 0; i < 2; ++i)
    {
        PexloEntry entry = {0};
        entry.size = (unsigned)sizeof entry + LATER;
        entry.name = i == 0 ? "start" : "no such field";
        entry.text = "100";
        memcpy(entries + i * (sizeof entry + LATER), &entry, sizeof entry);
    }
    EXPECT(Pexlo_Check(handle, &known, (const PexloEntry*)entries, 2, &refusal), 2);
    EXPECT(refusal.reason, PEXLO_REFUSED_NO_FIELD);
    EXPECT(refusal.entry, 1);
    entries[2 * (sizeof(PexloEntry) + LATER) - 1] = 1;
    EXPECT(Pexlo_Check(handle, &known, (const PexloEntry*)entries, 2, &refusal), PEXLO_E_SIZE);
    free(entries);
    EXPECT(Pexlo_Destroy(handle), 1);
}

/* ---- Forms ---------------------------------------------------------------------------------------------------------- */

static void TestForms(void)
{
    const PexloHandle handle = Pexlo_Create();
    PexloEntry entries[3];
    PexloRefusal refusal = {0};
    PexloForm form = FormOf(169);
    int instruction;
    char* longText;
    memset(entries, 0, sizeof entries);
    refusal.size = sizeof refusal;

    /* A PLC that nobody has described. */
    for (instruction = -2; instruction < 400; ++instruction)
    {
        const PexloForm any = FormOf(instruction);
        const int result = Pexlo_Check(handle, &any, NULL, 0, &refusal);
        EXPECT_TRUE(result == 1 || result == 2 || result == PEXLO_E_INSTRUCTION);
    }
    SetUp(handle);
    entries[0].size = entries[1].size = entries[2].size = sizeof *entries;
    entries[0].name = "contact-number";
    entries[0].text = "1";
    entries[1].name = "start";
    entries[1].text = "100";
    entries[2].name = "frequency";
    entries[2].text = "500";
    EXPECT(Pexlo_Check(handle, &form, entries, 3, &refusal), 1);
    EXPECT(Pexlo_GetOprdInfoCount(handle), 0);
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), 1);
    EXPECT(refusal.reason, 0);
    EXPECT(Pexlo_CreateInstCode(handle), 1);
    EXPECT_TRUE(Pexlo_GetInstCodeCount(handle) > 5);

    entries[2].text = NULL;
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), 2);
    EXPECT(refusal.reason, PEXLO_REFUSED_BY_MESSAGE);
    EXPECT(refusal.entry, 2);
    EXPECT_TRUE(refusal.messageId != 0 && refusal.message[0] != '\0');

    /* A text that is longer than anything, one that is no UTF-8, a control that is none. */
    longText = (char*)Block(1000001, '7');
    longText[1000000] = '\0';
    entries[2].text = longText;
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), 2);
    EXPECT(refusal.reason, PEXLO_REFUSED_TYPING);
    EXPECT_TRUE(memchr(refusal.message, '\0', sizeof refusal.message) != NULL);
    entries[2].text = "\xFF\xFE\xC3";
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), 2);
    entries[2].name = longText;
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), 2);
    EXPECT(refusal.reason, PEXLO_REFUSED_NO_FIELD);
    EXPECT_TRUE(memchr(refusal.name, '\0', sizeof refusal.name) != NULL);
    entries[2].name = NULL;
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), PEXLO_E_ARGUMENT);
    for (instruction = -3; instruction < 12; ++instruction)
    {
        entries[2].control = instruction;
        (void)Pexlo_Check(handle, &form, entries, 3, &refusal); /* buttons too: OK, Cancel, ... */
    }
    entries[2].control = INT_MAX;
    EXPECT(Pexlo_Fill(handle, &form, entries, 3, &refusal), 2);
    EXPECT(refusal.reason, PEXLO_REFUSED_NO_FIELD);
    EXPECT_TRUE(Pexlo_GetInstCodeCount(handle) > 5);
    free(longText);
    EXPECT(Pexlo_Destroy(handle), 1);
}

/* ---- Dialogs -------------------------------------------------------------------------------------------------------- */

#if defined(_WIN32)

static PexloHandle opened;
static int timerRuns;
static int isToBeDestroyed;

static HWND FindDialog(void)
{
    return GetActiveWindow();
}

static void UseWhileOpen(PexloHandle handle)
{
    ExpectOfEveryOperation(handle, PEXLO_E_THREAD);
    EXPECT(Pexlo_TakeOver(handle), PEXLO_E_BUSY);
}

static void FillOne(PexloHandle unused)
{
    const PexloHandle handle = Pexlo_Create();
    const PexloForm form = FormOf(169);
    (void)unused;
    SetUp(handle);
    EXPECT(Pexlo_Check(handle, &form, NULL, 0, NULL), 2);
    EXPECT(Pexlo_Destroy(handle), 1);
}

static VOID CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time)
{
    const PexloForm form = FormOf(169);
    PexloForm filled = form;
    (void)window;
    (void)message;
    (void)time;
    KillTimer(NULL, timer);
    ++timerRuns;
    EXPECT(Pexlo_DoOpenPIDDlg(opened, 30, NULL), 2);
    EXPECT(Pexlo_DoOpenPosDlg(opened, 0, 0, NULL), 2);
    EXPECT(Pexlo_Fill(opened, &filled, NULL, 0, NULL), PEXLO_E_BUSY);
    EXPECT(Pexlo_Check(opened, &form, NULL, 0, NULL), PEXLO_E_BUSY);
    EXPECT(Pexlo_DescribeFields(opened, &form, NULL, 0, NULL, 0, NULL), PEXLO_E_BUSY);
    EXPECT(Pexlo_SetLanguageInfo(opened, 0), 0);
    EXPECT_NULL(Pexlo_CreateDlgFont(opened, NULL));
    EXPECT(Pexlo_TakeOver(opened), 1);
    OnAnotherThread(UseWhileOpen, opened);
    OnAnotherThread(FillOne, NULL);
    FillOne(NULL);
    EXPECT(Pexlo_GetPlcType(opened), 1);
    if (isToBeDestroyed)
    {
        EXPECT(Pexlo_Destroy(opened), 1);
        ExpectNoHandle(opened);
        OnAnotherThread(ExpectNoHandle, opened);
        return;
    }
    EXPECT_TRUE(FindDialog() != NULL);
    PostMessageA(FindDialog(), WM_COMMAND, IDCANCEL, 0);
}

static void TestOpenDialogs(void)
{
    int i;
    for (i = 0; i < 8; ++i)
    {
        unsigned code = 0x20;
        opened = Pexlo_Create();
        SetUp(opened);
        isToBeDestroyed = i >= 4;
        timerRuns = 0;
        SetTimer(NULL, 0, 50, OnTimer);
        switch (i % 4)
        {
        case 0:
            EXPECT(Pexlo_DoOpenPIDDlg(opened, 30, NULL), 2);
            break;
        case 1:
            EXPECT(Pexlo_DoOpenPosDlg(opened, 0, 1, NULL), 2);
            break;
        case 2:
            EXPECT(Pexlo_DoInputPosCtrlDlg(opened, &code, NULL), 2);
            EXPECT(code, 0x20);
            break;
        default:
            EXPECT(Pexlo_DoOpenSCRDlg(opened, NULL, Number(0x4711)), 2); /* above no window */
            break;
        }
        EXPECT(timerRuns, 1);
        if (isToBeDestroyed)
            ExpectNoHandle(opened);
        else
        {
            EXPECT(Pexlo_GetPlcType(opened), 1);
            EXPECT(Pexlo_Destroy(opened), 1);
        }
    }
}

#else

static void TestOpenDialogs(void)
{
    const PexloHandle handle = Pexlo_Create();
    unsigned code = 0x20;
    EXPECT(Pexlo_DoOpenPosDlg(handle, 0, 0, NULL), PEXLO_E_DESKTOP);
    EXPECT(Pexlo_DoInputPosCtrlDlg(handle, &code, NULL), PEXLO_E_DESKTOP);
    EXPECT(Pexlo_DoInputPosCtrlDlg(handle, NULL, NULL), PEXLO_E_DESKTOP);
    EXPECT(Pexlo_DoOpenPIDDlg(handle, 30, &code), PEXLO_E_DESKTOP);
    EXPECT(Pexlo_DoOpenSCRDlg(handle, NULL, NULL), PEXLO_E_DESKTOP);
    EXPECT(Pexlo_DoOpenSCALDlg(handle, NULL, 0, NULL), PEXLO_E_DESKTOP);
    EXPECT(Pexlo_Destroy(handle), 1);
}

#endif

static void TestWindows(void)
{
    const PexloHandle handle = Pexlo_Create();
    EXPECT(Pexlo_SetDlgFont(handle, Number(0x4711), 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_SetDlgFont(handle, Number(~(size_t)0), 0, NULL), PEXLO_E_ARGUMENT);
    EXPECT(Pexlo_SetDlgFont(handle, &failures, 0, NULL), PEXLO_E_ARGUMENT);
    (void)Pexlo_CreateDlgFont(handle, Number(0x4711));
    (void)Pexlo_CreateDlgFont(handle, &failures);
    EXPECT(Pexlo_DeleteDlgFont(handle), 1);
    EXPECT(Pexlo_DeleteDlgFont(handle), 1);
    EXPECT(Pexlo_Destroy(handle), 1);
}

int main(void)
{
    EXPECT(Pexlo_GetVersion() >> 16, PEXLO_INTERFACE_VERSION >> 16);
    TestHandles();
    TestOwners();
    TestIndices();
    TestNullPointers();
    TestBuffers();
    TestReturnedStructures();
    TestPassedStructures();
    TestForms();
    TestWindows();
    TestOpenDialogs();
    TestMost();
    printf("%d checks, %d failed\n", checks, failures);
    return failures < 100 ? failures : 100;
}
