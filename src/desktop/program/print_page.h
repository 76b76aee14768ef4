#pragma once

#include "desktop/program/program.h"
#include "toolkit/text_table.h"

#include <QString>
#include <QStringList>

namespace veln {

/// Prints a clean page on a printer that the user chooses: title, field ID, date, lines of text and the
/// table. Cancelling prints nothing; a print that fails is told with the reason.
void PrintTable(Program& program, QWidget* parent, const QString& title, const TextTable& table,
                const QStringList& lines = {});

/// The same for lines of text alone, in a font of one width.
void PrintLines(Program& program, QWidget* parent, const QString& title, const QStringList& lines);

}  // namespace veln
