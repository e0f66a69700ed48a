// Closes what PackBegin.h opened.
#if defined(_WIN32) && !defined(_WIN64)
#pragma pack(pop)
#endif
