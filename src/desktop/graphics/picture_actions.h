#pragma once

#include "desktop/program/program.h"
#include "render/picture_file.h"

namespace veln {

/// Prints a picture on a printer that the user chooses. Cancelling prints nothing; a print that fails is told
/// with the reason. True once the page was sent.
bool PrintPicture(Program& program, QWidget* parent, const Drawing& page);

/// Shows how the page would be printed, in a window of its own.
void PreviewPicture(QWidget* parent, const Drawing& page);

/// Puts a picture on the clipboard, as pixels and as SVG.
void CopyPicture(const Picture& picture);

}  // namespace veln
