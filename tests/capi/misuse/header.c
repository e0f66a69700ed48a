/* What a header that comes before is enough for. */
int UseHeader(void);

int UseHeader(void)
{
    PexloHandle handle = Pexlo_Create();
    static PexloForm form;
    form.size = (unsigned int)sizeof form;
    return Pexlo_Fill(handle, &form, 0, 0, 0) == PEXLO_E_INSTRUCTION && Pexlo_Destroy(handle) == 1;
}
