#pragma once

#include <QApplication>

namespace veln {

class Program;

/// The application of the program: an exception that leaves the handler of an event is told there and ends
/// neither the event loop nor the program.
class Application : public QApplication {
 public:
  /// Says in one sentence on standard error why there can be no windows, and ends with status 1, if no
  /// display can be reached.
  Application(int& argc, char** argv);

  /// The program that failures are told in.
  void Serve(Program* program) { program_ = program; }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  Program* program_ = nullptr;
};

}  // namespace veln
