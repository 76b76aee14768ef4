#pragma once

#include <QWidget>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace veln {

class Program;

/// What a user sees of a control: "text", "tip", "name" (the accessible one, where it is not the text), "on",
/// "hidden", "closed", "role" (of its colour), "value", and so on. What is plain has no entry.
using Properties = std::map<std::string, std::string>;

/// All controls and menu entries of a window by their names; the window's own name stands for itself.
std::map<std::string, Properties> ShownBy(const QWidget& window);

/// The windows that are open, by name.
std::map<std::string, QWidget*> OpenWindows();

/// "text "OK" hidden".
std::string InWords(const Properties& properties);

/// What differs, one line a property: "Option1 on: yes".
std::vector<std::string> Differences(const std::map<std::string, Properties>& before,
                                     const std::map<std::string, Properties>& after);

/// All that a user can do in a window now: a button, an entry, keys of a bar, a box or the window; how it is
/// called, and the doing.
std::map<std::string, std::function<void(QWidget& window)>> ActionsOf(const QWidget& window);

/// Fails where a window shows anything else than its form says, or a colour that does not fit.
void ExpectWindowsShowTheirForms(const Program& program);

/// Fails where a control of a window has no room, lies over another or outside its parent, or stands outside
/// of the layout.
void ExpectGoodLayout(const QWidget& window);

}  // namespace veln
