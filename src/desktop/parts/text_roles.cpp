#include "desktop/parts/text_roles.h"

#include <QApplication>
#include <QPalette>
#include <QVariant>
#include <QWidget>

#include <array>

namespace veln {

namespace {

constexpr const char* RoleProperty = "textRole";

struct RoleTones {
  QRgb OnLight;
  QRgb OnDark;
};

/// By role. The dark tones have a contrast of at least 4.5 to any ground that is darker than mid grey (70,
/// 70, 70).
constexpr std::array<RoleTones, 6> Tones = {{{qRgb(0, 0, 0), qRgb(252, 252, 252)},
                                             {qRgb(0, 0, 255), qRgb(150, 180, 255)},
                                             {qRgb(0, 128, 0), qRgb(125, 215, 125)},
                                             {qRgb(255, 0, 0), qRgb(255, 170, 165)},
                                             {qRgb(128, 0, 0), qRgb(240, 165, 150)},
                                             {qRgb(0, 0, 128), qRgb(170, 190, 255)}}};

void ApplyRole(QWidget& widget, TextRole role)
{
  const QColor colour = RoleColour(role, QApplication::palette());
  QPalette palette;  // only what is set here differs from the desktop's
  for (const QPalette::ColorRole part : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Active, part, colour);
    palette.setColor(QPalette::Inactive, part, colour);
  }
  widget.setPalette(palette);
}

}  // namespace

QColor RoleColour(TextRole role, const QPalette& palette)
{
  const RoleTones& tones = Tones.at(static_cast<std::size_t>(role));
  return IsDark(palette) ? tones.OnDark : tones.OnLight;
}

bool IsDark(const QPalette& palette)
{
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

void SetRole(QWidget& widget, TextRole role)
{
  widget.setProperty(RoleProperty, static_cast<int>(role));
  ApplyRole(widget, role);
}

void RefreshRoles(QWidget& window)
{
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const QVariant role = widget->property(RoleProperty);
    if (role.isValid()) {
      ApplyRole(*widget, static_cast<TextRole>(role.toInt()));
    }
  }
}

}  // namespace veln
