#include "logger/track.h"

namespace veln {

std::string_view FateText(Fate fate)
{
  switch (fate) {
    case Fate::Site:
      return "site";
    case Fate::Repeat:
      return "same place";
    case Fate::Thinned:
      return "thinned";
    case Fate::Missing:
      return "no position or reading";
    case Fate::OutOfRange:
      return "position out of range";
    case Fate::NoPosition:
      return "no position";
    case Fate::Jump:
      return "jump";
    case Fate::NoLag:
      return "no position before the lag";
    case Fate::Outside:
      return "outside the boundary";
    case Fate::Excluded:
      return "in an excluded area";
    case Fate::NonPositive:
      return "0 or less";
    case Fate::Turn:
      return "turn";
  }
  return "";
}

}  // namespace veln
