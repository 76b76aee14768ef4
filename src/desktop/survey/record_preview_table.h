#pragma once

#include "survey/survey_import.h"

#include <QString>

class QTableWidget;
class QWidget;

namespace veln {

/// An empty table for the first records of a raw survey file.
QTableWidget* MakePreviewTable(QWidget* parent);

/// Shows the first ten records of the requested file under the requested structure, with the first item
/// marked that the import would refuse. Returns a line that tells what is seen. Changes no state.
QString FillPreviewTable(QTableWidget& table, const ImportRequest& request);

}  // namespace veln
