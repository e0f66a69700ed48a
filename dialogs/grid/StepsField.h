// The row of a data table that goes on for as many steps as the user enters.
#pragma once

#include "dialogs/grid/GridField.h"

/// The rows of the table, one behind the other from a register on: each cell takes two registers, and so does the 0
/// that ends the table. Declared last. There are as many rows as the registers of the PLC hold.
void WDX_Steps(CWzdExchange* wx, CGridDlg& dialog, LONGLONG offset, CGridColumns columns);
