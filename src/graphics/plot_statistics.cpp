#include "graphics/plot_statistics.h"

#include "toolkit/number_text.h"

namespace veln {

namespace {

/// A number in text form through a format, with what stands before it; empty if the text is no number.
std::string Line(const std::string& prefix, const std::string& text, const char* format)
{
  const auto value = ParseNumber(text);
  return value ? prefix + FormatNumber(*value, format) : "";
}

std::string MomentLine(const std::string& prefix, const std::string& text)
{
  return Line(prefix, text, "0.000");
}

std::string CorrelationLine(const std::string& text)
{
  return Line("r= ", text, "0.0000");
}

std::string TestedCorrelationLine(const std::string& text)
{
  return text.size() > 1 ? CorrelationLine(text) : "";
}

}  // namespace

void SetStats(Plot& plot, const StatisticsBlock& first, const StatisticsBlock& second,
              const CorrelationBlock& correlation)
{
  PlotStatistics panel;
  panel.LblT1 = first.Title;
  panel.Lblm1 = MomentLine("u= ", first.Mean);
  panel.Lblv1 = MomentLine("s= ", first.Std);
  if (second.Title == "hist") {
    panel.LblT2 = "min and max";
    panel.Lblm2 = MomentLine("", second.Mean);
    panel.Lblv2 = MomentLine("", second.Std);
  } else if (second.Title != "none") {
    panel.LblT2 = second.Title;
    panel.Lblm2 = MomentLine("u= ", second.Mean);
    panel.Lblv2 = MomentLine("s= ", second.Std);
  }
  panel.LblCorr = correlation.Title == "none" ? "" : correlation.Title;
  panel.Lblr1 = TestedCorrelationLine(correlation.First);
  panel.Lblr2 = TestedCorrelationLine(correlation.Second);
  plot.Statistics = panel;
  plot.StatisticsPanel = true;
}

void SetSubStats(Plot& plot, const StatisticsBlock& second, const std::string& title,
                 const std::string& correlation)
{
  plot.Statistics.LblT2 = second.Title;
  plot.Statistics.Lblm2 = MomentLine("u= ", second.Mean);
  plot.Statistics.Lblv2 = MomentLine("s= ", second.Std);
  plot.Statistics.LblCorr = title;
  plot.Statistics.Lblr2 = CorrelationLine(correlation);
  plot.StatisticsPanel = true;
}

}  // namespace veln
