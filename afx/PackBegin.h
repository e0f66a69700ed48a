// Opens the one-byte packing of objects whose layout hosts depend on: in the 32-bit Windows build only. Elsewhere
// nobody depends on it, and fields at odd addresses would only be slow. Ended by PackEnd.h.
#if defined(_WIN32) && !defined(_WIN64)
#pragma pack(push, 1)
#endif
