#include "workspace/site_columns.h"

namespace veln {

namespace {

template <class Column>
void Compact(Column& column, const std::vector<bool>& stays)
{
  if (column.empty()) {
    return;
  }
  std::size_t kept = 0;
  for (std::size_t i = 0; i < stays.size(); ++i) {
    if (stays[i]) {
      column[kept++] = column[i];
    }
  }
  column.resize(kept);
}

}  // namespace

void SiteColumns::KeepOnly(const std::vector<bool>& stays)
{
  std::apply([&](auto... columns) { (Compact(this->*columns, stays), ...); }, AllSiteColumns);
}

}  // namespace veln
