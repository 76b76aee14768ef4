#pragma once

#include "toolkit/dialogs.h"

class QLineEdit;

namespace veln {

/// From here on a text box drops the characters that `refused` tells, however they come, with a beep.
void DropCharacters(QLineEdit& edit, bool (*refused)(char32_t character), Dialogs& dialogs);

}  // namespace veln
