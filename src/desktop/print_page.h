#pragma once

#include "desktop/program.h"
#include "toolkit/text_table.h"

#include <QString>

namespace veln {

/// Prints a clean page on a printer that the user chooses: title, field ID, date and the table. Cancelling
/// prints nothing; a print that fails is told with the reason.
void PrintTable(Program& program, QWidget* parent, const QString& title, const TextTable& table);

}  // namespace veln
