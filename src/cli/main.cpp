#include "cli/convert_command.h"
#include "cli/run_options.h"
#include "cli/survey_run.h"
#include "toolkit/program_end.h"
#include "toolkit/refusal.h"

#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

int ExitStatus(veln::RefusalKind kind)
{
  switch (kind) {
    case veln::RefusalKind::Usage:
      return 2;
    case veln::RefusalKind::FieldUse:
      return 3;
    case veln::RefusalKind::Survey:
      break;
  }
  return 1;
}

int Convert(const std::vector<std::string>& arguments)
{
  const veln::ConvertCommandLine command = veln::ReadConvertCommandLine(arguments);
  if (command.Convert) {
    veln::RunConversion(*command.Convert, std::cout);
  } else {
    std::cout << command.Text;
  }
  return 0;
}

int Run(const std::vector<std::string>& arguments)
{
  if (!arguments.empty() && arguments.front() == "convert") {
    return Convert({arguments.begin() + 1, arguments.end()});
  }
  const veln::CommandLine command = veln::ReadCommandLine(arguments);
  if (!command.Run) {
    std::cout << command.Text;
    return 0;
  }
  return veln::RunSurvey(*command.Run, {std::cout, std::cerr, isatty(STDOUT_FILENO) == 1});
}

}  // namespace

int main(int argc, char** argv)
{
  veln::OccupyStandardStreams();
  veln::EndInOrderOnSignals();
  try {
    const int status = Run({argv + 1, argv + argc});
    if (!std::cout.flush()) {
      throw veln::Refusal("Standard output could not be written.");
    }
    return status;
  } catch (const veln::Refusal& refusal) {
    std::cout.flush();
    std::cerr << refusal.Message() << "\n";
    if (!refusal.Place().empty()) {
      std::cerr << refusal.Place() << "\n";
    }
    return ExitStatus(refusal.Kind());
  } catch (const std::bad_alloc&) {
    std::cerr << "There is not enough memory for this run.\n";
    return 1;
  } catch (const std::exception& failure) {
    std::cout.flush();
    std::cerr << "veln could not go on: " << failure.what() << "\n";
    return 1;
  }
}
