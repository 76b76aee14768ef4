#include "logger/kml_rings.h"

#include "logger/field_split.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <expat.h>
#include <memory>

namespace veln {

namespace {

/// Collects rings while the document is parsed.
struct KmlReader {
  std::vector<std::vector<Ring>> Polygons;
  std::string Coordinates;
  bool InPolygon = false, InCoordinates = false, Fault = false;

  /// "lon,lat[,height]" apart by blanks and line ends.
  void EndCoordinates()
  {
    Ring ring;
    std::string text;
    for (const char c : Coordinates) {
      text += c == '\n' ? ' ' : c;
    }
    std::vector<std::string_view> tuples;
    std::vector<std::string_view> numbers;
    SplitFields(text, BlankRuns, false, tuples);
    for (const std::string_view tuple : tuples) {
      SplitFields(tuple, ',', false, numbers);
      const auto x = ParseNumber(numbers.front());
      const auto y = numbers.size() > 1 ? ParseNumber(numbers[1]) : std::nullopt;
      Fault = Fault || !x || !y;
      ring.push_back({x.value_or(0), y.value_or(0)});
    }
    Polygons.back().push_back(std::move(ring));
  }
};

/// An element's name without its prefix.
std::string_view LocalName(const char* name)
{
  const std::string_view text = name;
  return text.substr(text.find(':') == std::string_view::npos ? 0 : text.find(':') + 1);
}

void Begin(void* data, const char* name, const char** /*attributes*/)
{
  auto& reader = *static_cast<KmlReader*>(data);
  if (LocalName(name) == "Polygon") {
    reader.InPolygon = true;
    reader.Polygons.emplace_back();
  } else if (LocalName(name) == "coordinates") {
    reader.InCoordinates = reader.InPolygon;
    reader.Coordinates.clear();
  }
}

void End(void* data, const char* name)
{
  auto& reader = *static_cast<KmlReader*>(data);
  if (LocalName(name) == "Polygon") {
    reader.InPolygon = false;
  } else if (LocalName(name) == "coordinates" && reader.InCoordinates) {
    reader.InCoordinates = false;
    reader.EndCoordinates();
  }
}

void Characters(void* data, const char* text, int length)
{
  auto& reader = *static_cast<KmlReader*>(data);
  if (reader.InCoordinates) {
    reader.Coordinates.append(text, static_cast<std::size_t>(length));
  }
}

}  // namespace

std::vector<std::vector<Ring>> ReadKmlRings(std::string_view content, const std::string& name)
{
  const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                            XML_ParserFree);
  KmlReader reader;
  XML_SetUserData(parser.get(), &reader);
  XML_SetElementHandler(parser.get(), Begin, End);
  XML_SetCharacterDataHandler(parser.get(), Characters);
  if (content.find("<!ENTITY") != std::string_view::npos) {
    throw Refusal(name + " defines entities, which KML has no use for; save it anew from your map program.");
  }
  constexpr std::size_t MostBytes = std::size_t{1} << 30U;
  if (content.size() > MostBytes) {
    throw Refusal(name + " is larger than a field's boundary can be.");
  }
  if (XML_Parse(parser.get(), content.data(), static_cast<int>(content.size()), XML_TRUE) != XML_STATUS_OK) {
    throw Refusal(name + ", line " +
                  GeneralForm(static_cast<double>(XML_GetCurrentLineNumber(parser.get()))) +
                  ": no KML: " + XML_ErrorString(XML_GetErrorCode(parser.get())) + ".");
  }
  if (reader.Fault) {
    throw Refusal(name + ": coordinates of a polygon are no numbers.");
  }
  return std::move(reader.Polygons);
}

}  // namespace veln
