#pragma once

#include <exception>
#include <string>
#include <utility>

namespace veln {

/// What kind of thing was refused; a front end takes the exit status from it.
enum class RefusalKind {
  Survey,   ///< the survey, a setting or a file does not allow the step
  Usage,    ///< what was asked for is wrong whatever the survey
  FieldUse  ///< the field ID is in use and the user did not want to overwrite
};

/// A check that failed: the message as the user reads it, lines joined by line feeds. Thrown before anything
/// has changed, unless the thrower's description says what stands; shown by the front end in one place.
class Refusal : public std::exception {
 public:
  explicit Refusal(std::string message, RefusalKind kind = RefusalKind::Survey, std::string place = "")
      : message_(std::move(message)), place_(std::move(place)), kind_(kind)
  {
  }

  [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }
  [[nodiscard]] const std::string& Message() const { return message_; }
  /// Where the fault lies in a file, as a line to stand below the message; may be empty.
  [[nodiscard]] const std::string& Place() const { return place_; }
  [[nodiscard]] RefusalKind Kind() const { return kind_; }

 private:
  std::string message_;
  std::string place_;
  RefusalKind kind_;
};

}  // namespace veln
