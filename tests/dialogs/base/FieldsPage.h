// The page of docs/ that tells what every dialog asks for and where it goes, made from what the dialogs declare.
#pragma once

#include <string>

/// The whole page. Opens every dialog in English.
std::string FieldsPage();
