#pragma once

#include "logger/survey_sidecar.h"
#include "toolkit/advice.h"

#include <optional>
#include <string>
#include <vector>

namespace veln {

/// What stands beside a survey file: the sidecar of its conversion if it is sound and tells of this very
/// survey, the survey's content as it was read for that, and advice on one that does not count.
struct SidecarReading {
  std::optional<SurveySidecar> Sidecar;
  std::optional<std::string> Content;
  std::vector<Advice> Advices;
};

/// Whether a sidecar stands beside a survey that is a file on disk.
bool HasSidecar(const std::string& survey);

/// Reads survey and sidecar. Where either can't be read, it is as if there were no sidecar.
SidecarReading ReadSidecarOf(const std::string& survey);

}  // namespace veln
