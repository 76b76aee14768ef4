#pragma once

#include <QGuiApplication>

namespace veln {

/// The busy pointer for as long as it lives, also past a refusal.
class BusyPointer {
 public:
  BusyPointer() { QGuiApplication::setOverrideCursor(Qt::BusyCursor); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
};

}  // namespace veln
