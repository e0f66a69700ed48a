/* Fills in F168, trapezoidal control, without showing its dialog, and prints the data table. C90, for any compiler. */
#include "core/pexlo.h"

#include <stdio.h>
#include <stdlib.h>

/* A negative number says that the library was called wrongly. Everything else is the operation's result. */
static int checked(int result)
{
    if (result <= PEXLO_E_HANDLE)
    {
        fprintf(stderr, "The library was called wrongly: %d, see pexlo.h.\n", result);
        exit(EXIT_FAILURE);
    }
    return result;
}

/* What the wizard has to know about the PLC. Bits are numbered word x 16 + bit. */
static void describe_plc(PexloHandle wizard)
{
    checked(Pexlo_SetPlcType(wizard, 1));
    checked(Pexlo_SetDevRange(wizard, -1, PEXLO_DEVICE_X, 0, 12 * 16 + 15)); /* X0 to X12F */
    checked(Pexlo_SetDevRange(wizard, -1, PEXLO_DEVICE_Y, 0, 12 * 16 + 15)); /* Y0 to Y12F */
    checked(Pexlo_SetDevRange(wizard, -1, PEXLO_DEVICE_R, 0, 62 * 16 + 15)); /* R0 to R62F */
    checked(Pexlo_SetDevRange(wizard, -1, PEXLO_DEVICE_DT, 0, 1659));        /* DT0 to DT1659 */
    checked(Pexlo_EntrySupportFunInfo(wizard, 168));                         /* it has F168 */
}

/* F168 has no real numbers: of its entries type and format are 0 or 1. */
static void print_data_table(PexloHandle wizard)
{
    static const char* const widths[] = {"1 word", "2 words"};
    const int count = checked(Pexlo_GetDataInfoCount(wizard));
    PexloData data;
    char name[16];
    int i;

    printf("Data table: %d\n", count);
    data.size = sizeof data;
    for (i = 0; i < count; i++)
    {
        checked(Pexlo_GetDataInfo(wizard, i, &data));
        sprintf(name, "DT%d", data.number);
        printf("%4d  %-10s  %-7s  ", i, name, widths[data.type]);
        printf(data.format == 1 ? "H%X\n" : "K%d\n", data.value);
    }
}

int main(void)
{
    /* What a user would type and select, by the names of the fields. */
    PexloEntry entries[] = {
        {sizeof(PexloEntry), 0, "start", "1654"}, /* the table needs seven registers: one too many from here */
        {sizeof(PexloEntry), 0, "contact-device", "R"},
        {sizeof(PexloEntry), 0, "contact-number", "10A"},
        {sizeof(PexloEntry), 0, "output", "Y1"},
        {sizeof(PexloEntry), 0, "width", "#1"}, /* an item by its code, in any language */
        {sizeof(PexloEntry), 0, "mode", "absolute  forward on/reverse off"},
        {sizeof(PexloEntry), 0, "initial-speed", "500"},
        {sizeof(PexloEntry), 0, "maximum-speed", "9500"},
        {sizeof(PexloEntry), 0, "acceleration-time", "300"},
        {sizeof(PexloEntry), 0, "target", "-8388608"},
    };
    const int count = sizeof entries / sizeof *entries;
    PexloForm form = {0};
    PexloRefusal refusal = {0};
    PexloHandle wizard = Pexlo_Create();

    if (wizard == NULL)
    {
        fputs("The wizard could not be created.\n", stderr);
        return EXIT_FAILURE;
    }
    describe_plc(wizard);

    form.size = sizeof form;
    form.instruction = 168;
    refusal.size = sizeof refusal;
    if (checked(Pexlo_Fill(wizard, &form, entries, count, &refusal)) != 1)
        printf("%s is refused: %s\n\n", refusal.name, refusal.message);

    entries[0].text = "1653";
    if (checked(Pexlo_Fill(wizard, &form, entries, count, &refusal)) != 1)
    {
        fprintf(stderr, "%s is refused: %s\n", refusal.name, refusal.message);
        return EXIT_FAILURE;
    }
    print_data_table(wizard);

    checked(Pexlo_Destroy(wizard));
    return EXIT_SUCCESS;
}
