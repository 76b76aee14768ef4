#include "toolkit/text_report.h"

#include "toolkit/number_text.h"
#include "toolkit/rounded_number.h"
#include "toolkit/utf8.h"

namespace veln {

TextReport& TextReport::Text(std::string_view text)
{
  content_ += text;
  lineLength_ += CharacterCount(text);
  return *this;
}

TextReport& TextReport::At(int column)
{
  const std::size_t before = column < 1 ? 0 : static_cast<std::size_t>(column) - 1;
  if (lineLength_ > before) {
    EndLine();
  }
  return Text(std::string(before - lineLength_, ' '));
}

TextReport& TextReport::NextZone()
{
  constexpr std::size_t ZoneWidth = 14;
  return Text(std::string(ZoneWidth - lineLength_ % ZoneWidth, ' '));
}

TextReport& TextReport::Number(double value)
{
  return Text(PrintedNumber(value));
}

TextReport& TextReport::Number(double value, std::string_view pattern)
{
  return Text(RoundedNumber(value, pattern)).Text(" ");
}

TextReport& TextReport::EndLine()
{
  content_ += "\r\n";
  lineLength_ = 0;
  return *this;
}

TextReport& TextReport::Line(std::string_view text)
{
  return Text(text).EndLine();
}

TextReport& TextReport::BlankLines(int count)
{
  for (int i = 0; i < count; ++i) {
    Line("   ");
  }
  return *this;
}

}  // namespace veln
