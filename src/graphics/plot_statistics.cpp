#include "graphics/plot_statistics.h"

#include "toolkit/number_text.h"

#include <cmath>

namespace veln {

namespace {

/// A number through a format, with what stands before it.
std::string Line(const std::string& prefix, std::optional<double> value, const char* format)
{
  return value && std::isfinite(*value) ? prefix + FormatNumber(*value, format) : "";
}

std::string LimitLine(double limit)
{
  return std::isfinite(limit) ? FormatNumber(RoundByFormat(limit, "0.00"), "0.000") : "";
}

std::string CorrelationLine(std::optional<double> correlation)
{
  return Line("r= ", correlation, "0.0000");
}

void WriteSecond(PlotStatistics& panel, const SecondBlock& second)
{
  if (const auto* moments = std::get_if<MomentBlock>(&second)) {
    panel.LblT2 = moments->Title;
    panel.Lblm2 = Line("u= ", moments->Mean, "0.000");
    panel.Lblv2 = Line("s= ", moments->Std, "0.000");
  } else if (const auto* limits = std::get_if<Limits>(&second)) {
    panel.LblT2 = "min and max";
    panel.Lblm2 = LimitLine(limits->Minimum);
    panel.Lblv2 = LimitLine(limits->Maximum);
  }
}

}  // namespace

MomentBlock MomentsOf(const std::string& title, std::span<const double> series)
{
  if (series.size() < 2) {
    return {title, series.empty() ? std::nullopt : std::optional(series.front()), {}};
  }
  const Moments moments = MeanStd(series);
  return {title, moments.Mean, moments.Std};
}

std::optional<double> CorrelationOf(std::span<const double> x, std::span<const double> y)
{
  return x.size() > 1 ? Correlation(x, y) : std::nullopt;
}

std::optional<double> UnlessWhole(std::optional<double> correlation)
{
  const double rounded = correlation ? RoundByFormat(*correlation, "0.0000") : 0;
  return rounded == 0 || rounded == 1 ? std::nullopt : correlation;
}

void SetStats(Plot& plot, const MomentBlock& first, const SecondBlock& second,
              const CorrelationBlock& correlation)
{
  PlotStatistics panel;
  panel.LblT1 = first.Title;
  panel.Lblm1 = Line("u= ", first.Mean, "0.000");
  panel.Lblv1 = Line("s= ", first.Std, "0.000");
  WriteSecond(panel, second);
  panel.LblCorr = correlation.Title;
  panel.Lblr1 = CorrelationLine(correlation.R);
  plot.Statistics = panel;
  plot.StatisticsPanel = true;
}

void SetSubStats(Plot& plot, const MomentBlock& second, const CorrelationBlock& correlation)
{
  WriteSecond(plot.Statistics, second);
  plot.Statistics.LblCorr = correlation.Title;
  plot.Statistics.Lblr2 = CorrelationLine(correlation.R);
  plot.StatisticsPanel = true;
}

}  // namespace veln
