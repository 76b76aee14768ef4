#pragma once

#include "logger/conversion_options.h"
#include "logger/track.h"

#include <cstddef>
#include <vector>

namespace veln {

/// The most rows that a survey can have.
inline constexpr std::size_t MostTrackRows = 250;

/// What rows a track has.
struct RowSummary {
  bool HasRows = false;                    ///< the survey is one of transect rows; else a grid
  std::size_t Rows = 0;                    ///< rows found, also where they are too few for a survey of rows
  std::size_t Sites = 0, SitesInRows = 0;  ///< before turns are dropped
  double TrackMetres = 0, RowMetres = 0;
};

/// Finds the rows of a track and numbers them in `TrackPoint::Row` from 1; sites of turns get 0, and so do
/// all sites where there are none. A site belongs to a turn where the headings of the chords over the track
/// behind and ahead differ too much. What lies between turns and gaps is a row if it is long enough, has at
/// least 5 sites and is straight (chord over length at least 0.9). The survey has rows when at least three
/// hold at least half the track. Throws Refusal for more than 250 rows.
RowSummary FindRows(std::vector<TrackPoint>& points, const RowChoices& choices);

/// Gives each turn to the row before it, what precedes the first row to that.
void KeepTurns(std::vector<TrackPoint>& points);

}  // namespace veln
