#pragma once

#include <QColor>

class QPalette;
class QWidget;

namespace veln {

/// What the colour of a text means. On a light palette the colours are exact; on a dark one a tone of the
/// same hue that reads well.
enum class TextRole {
  Normal,   ///< black
  Chosen,   ///< light blue (0, 0, 255): selected, switched on
  Off,      ///< green: switched off
  Warning,  ///< light red
  Caution,  ///< dark red
  Maker     ///< dark blue: maker and titles
};

/// The colour of a role on this palette.
QColor RoleColour(TextRole role, const QPalette& palette);

/// Whether the palette has light text on a dark ground.
bool IsDark(const QPalette& palette);

/// Gives a widget's text the colour of a role, and keeps it through changes of the desktop's palette.
void SetRole(QWidget& widget, TextRole role);

/// Gives all widgets inside `window` the colours of their roles again, after a change of palette.
void RefreshRoles(QWidget& window);

}  // namespace veln
