#include "logger/sidecar_beside.h"

#include "toolkit/file_store.h"
#include "toolkit/refusal.h"
#include "toolkit/sha256.h"

#include <filesystem>
#include <system_error>

namespace veln {

namespace {

bool IsFile(const std::filesystem::path& path)
{
  std::error_code failure;
  return std::filesystem::is_regular_file(path, failure);
}

}  // namespace

bool HasSidecar(const std::string& survey)
{
  return IsFile(SidecarPath(survey)) && IsFile(survey);
}

SidecarReading ReadSidecarOf(const std::string& survey)
{
  SidecarReading reading;
  const std::filesystem::path path = SidecarPath(survey);
  try {
    reading.Content = ReadFile(survey);
  } catch (const Refusal&) {
    return reading;  // the import says why
  }
  try {
    SurveySidecar sidecar = ReadSidecar(ReadFile(path));
    if (sidecar.SurveyDigest == Sha256Hex(*reading.Content)) {
      reading.Sidecar = std::move(sidecar);
    } else {
      reading.Advices.push_back(
          {"sidecar-other-survey", path.filename().string() +
                                       " tells of another survey and is left aside; the file was "
                                       "changed since it was converted"});
    }
  } catch (const Refusal& refusal) {
    reading.Advices.push_back({"sidecar-damaged", path.filename().string() +
                                                      " is damaged and is left aside: " + refusal.Message()});
  }
  return reading;
}

}  // namespace veln
