#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace veln {

/// A record of 26 bytes from the beginning of its content.
inline std::string CoilRecord(std::string content)
{
  content.resize(25, ' ');
  return content + "\n";
}

/// A reading: the converters' 16 bits of the long and the short coil, and its time stamp.
inline std::string CoilReadingRecord(unsigned longCoil, unsigned shortCoil, int milliseconds)
{
  std::string stamp = std::to_string(milliseconds);
  stamp.insert(0, 10 - stamp.size(), ' ');
  const auto bytes = [](unsigned value) {
    return std::string{static_cast<char>(value >> 8U & 0xFFU), static_cast<char>(value & 0xFFU)};
  };
  return CoilRecord("T\x06" + bytes(shortCoil) + "\x84\xEA" + bytes(longCoil) + std::string(7, '\x01') +
                    stamp);
}

/// The records of an NMEA sentence: its pieces and the time stamp.
inline std::vector<std::string> SentenceRecords(const std::string& sentence, int milliseconds)
{
  std::vector<std::string> records;
  for (std::size_t at = 0; at < sentence.size(); at += 24) {
    records.push_back(CoilRecord((at == 0 ? "@" : "#") + sentence.substr(at, 24)));
  }
  records.push_back(CoilRecord("!                  " + std::to_string(milliseconds)));
  return records;
}

/// A file of one survey line northward: a fix each second, 0.6 m apart, and five readings a second; those of
/// half a second before the first fix and behind the last have no position. Every second reading holds a line
/// feed.
inline std::string CoilRecordFile(int seconds)
{
  std::string file = CoilRecord("LOGGER2 W207") + CoilRecord("H e          0.200") + CoilRecord("L1") +
                     CoilRecord("O1     0.000      0.000") + CoilRecord("O2     0.000      0.000") +
                     CoilRecord("*09:00:00.000           0");
  const auto readings = [&file](int from, int to) {
    for (int stamp = from; stamp < to; stamp += 200) {
      file += CoilReadingRecord(0x8600U + static_cast<unsigned>(stamp / 200 % 2 == 0 ? 0x0A : 0x40), 0x8500,
                                stamp);
    }
  };
  readings(500, 1000);
  for (int second = 1; second <= seconds; ++second) {
    char sentence[96];
    std::snprintf(sentence, sizeof sentence,
                  "$GPGGA,0900%02d.00,5230.%05d,N,00115.00000,E,1,07,1.2,50.0,M,,M,,", second % 60,
                  second * 32);
    for (const std::string& record : SentenceRecords(sentence, second * 1000)) {
      file += record;
    }
    readings(second * 1000, second * 1000 + (second < seconds ? 1000 : 500));
  }
  return file;
}

}  // namespace veln
