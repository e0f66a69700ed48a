// Reading the result lists of a wizard object.
#pragma once

#include "core/FunWizard.h"
#include "host/ResultLists.h"

SResultLists ReadLists(const CFunWizard& wizard);
