#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace veln {

/// The three maker lines of the main window, typed out one character a tick (`Label20`, `Label22`,
/// `Label23`).
struct Banner {
  static constexpr std::array<const char*, 3> Lines = {"Norvane Department", "Norvane Service",
                                                       "Norvane Laboratory"};

  /// One of the labels.
  struct Label {
    std::string Text;
    bool Visible = false;
  };

  int BannerRunning = 1;
  std::size_t BannerCount = 0;  ///< characters typed
  std::array<Label, 3> Labels;
  bool LastLineRed = false;  ///< `Label23` in red, as the other two in blue
  bool TimerRunning = true;  ///< `Timer1`

  /// One tick of `Timer1`: the next character, or the end of the banner once it is no longer running.
  void Tick()
  {
    if (BannerRunning != 1) {
      Finish();
      return;
    }
    ++BannerCount;
    LastLineRed = true;
    std::size_t before = 0;
    for (std::size_t i = 0; i < Lines.size(); ++i) {
      const std::string line = Lines.at(i);
      const bool reached = BannerCount > before || i == 0;
      Labels.at(i) = {reached ? line.substr(0, BannerCount - before) : "", reached};
      before += line.size();
    }
    if (BannerCount > before) {
      BannerRunning = 0;
    }
  }

 private:
  void Finish()
  {
    for (std::size_t i = 0; i < Lines.size(); ++i) {
      Labels.at(i) = {Lines.at(i), true};
    }
    BannerRunning = 0;
    TimerRunning = false;
  }
};

}  // namespace veln
