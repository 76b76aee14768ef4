#include "cli/picture_option.h"

#include "cli/option_text.h"
#include "graphics/site_map.h"
#include "toolkit/number_text.h"
#include "toolkit/output_target.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace veln {

namespace {

constexpr const char* Option = "--plot";

/// A kind of picture: its name, what draws it, and what the survey must have.
struct PictureKind {
  std::string_view Name;
  GraphEntry Entry;
  bool SecondSignal = false;
  bool Transition = false;
};

const PictureKind* FindKind(std::string_view name)
{
  using enum GraphEntry;
  static constexpr std::array<PictureKind, 17> Kinds = {{{"grid", mnuGrid},
                                                         {"s1-x", mnuSs1x},
                                                         {"s1-y", mnuSs1y},
                                                         {"s2-x", mnuSs2x, true},
                                                         {"s2-y", mnuSs2y, true},
                                                         {"s1-s2", mnuSs1s2, true},
                                                         {"rsd", mnuSz1z2},
                                                         {"hist-s1", mnuHs1},
                                                         {"hist-s2", mnuHs2, true},
                                                         {"hist-z1", mnuHz1},
                                                         {"hist-z2", mnuHz2, true},
                                                         {"hist-ta", mnuHta, false, true},
                                                         {"map-s1", mnuVs1},
                                                         {"map-s2", mnuVs2, true},
                                                         {"map-z1", mnuVz1},
                                                         {"map-z2", mnuVz2, true},
                                                         {"map-ta", mnuVta, false, true}}};
  static constexpr std::array<PictureKind, 3> LineKinds = {
      {{"line-s1", mnuLs1}, {"line-s2", mnuLs2, true}, {"line-s1s2", mnuLs1s2, true}}};
  const std::size_t colon = name.find(':');
  const auto* plain = std::ranges::find(Kinds, name, &PictureKind::Name);
  if (plain != Kinds.end()) {
    return plain;
  }
  const auto* line = std::ranges::find(LineKinds, name.substr(0, colon), &PictureKind::Name);
  return colon != std::string_view::npos && line != LineKinds.end() ? line : nullptr;
}

[[noreturn]] void RefuseKind(const std::string& kind, const std::string& why)
{
  throw Refusal(std::string(Option) + ": \"" + kind + "\" " + why, RefusalKind::Usage);
}

void RequireOffered(const std::string& name, const PictureKind& kind, const PictureOffer& offer)
{
  if (kind.SecondSignal && !offer.Layout.SecondSignal) {
    RefuseKind(name, "needs a second signal (--s2).");
  }
  if (kind.Transition && !offer.TransitionAnalysis) {
    RefuseKind(name, "needs transition analysis (--transition).");
  }
}

/// The row behind the colon. Whether the survey has it shows at the end of the run.
std::string ReadRow(const std::string& name, const PictureOffer& offer)
{
  if (!offer.Layout.Transect) {
    RefuseKind(name, "needs a transect survey (--type transect).");
  }
  const std::string row = name.substr(name.find(':') + 1);
  if (row.empty() || row.find_first_not_of("0123456789") != std::string::npos) {
    RefuseKind(name, "has no row number behind the colon.");
  }
  const auto number = ParseNumber(row);  // none if it leaves the doubles
  return number ? GeneralForm(*number) : row;
}

PictureOption ReadKind(const std::string& name, const PictureOffer& offer)
{
  constexpr std::string_view SiteMaps = "sites:";
  PictureOption picture;
  if (name.starts_with(SiteMaps)) {
    picture.SiteMapDesign = ReadWholeNumber(Option, name.substr(SiteMaps.size()), 1, ManualDesignNumber);
    return picture;
  }
  const PictureKind* kind = FindKind(name);
  if (kind == nullptr) {
    RefuseKind(name, "is not a kind of picture. See veln run --help for the kinds.");
  }
  RequireOffered(name, *kind, offer);
  picture.Entry = kind->Entry;
  if (name.starts_with("line-")) {
    picture.Row = ReadRow(name, offer);
  }
  return picture;
}

/// A picture is told from other files by its name, so that none of these is replaced by one.
void RequirePictureName(const std::string& text, const std::filesystem::path& file)
{
  std::string extension = file.extension().string();
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (extension != ".svg" && !IsStream(file)) {
    throw Refusal(std::string(Option) + ": \"" + text +
                      "\" does not end in .svg, and is no device or FIFO that exists.",
                  RefusalKind::Usage);
  }
}

}  // namespace

std::vector<PictureOption> ReadPictures(const std::vector<std::string>& texts, const PictureOffer& offer)
{
  std::vector<PictureOption> pictures;
  for (const std::string& text : texts) {
    RequirePath(Option, text);
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos || sign + 1 == text.size()) {
      throw Refusal(std::string(Option) + ": \"" + text + "\" is not KIND=FILE.svg.", RefusalKind::Usage);
    }
    PictureOption picture = ReadKind(text.substr(0, sign), offer);
    picture.File = AbsolutePath(text.substr(sign + 1));
    RequirePictureName(text, picture.File);
    pictures.push_back(std::move(picture));
  }
  return pictures;
}

}  // namespace veln
