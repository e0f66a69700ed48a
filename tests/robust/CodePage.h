#pragma once

/// Code pages that the wizard's languages use.
inline constexpr unsigned kCodePages[] = {1252, 932, 936, 949, 950, 874};

/// Makes a code page the one of the desktop's texts, where it can be chosen while a program runs.
void UseCodePage(unsigned codePage);
