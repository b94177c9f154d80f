#include <algorithm>

#include <tolvi/foundation/listtext.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

void AppendListItem(std::string& list, std::string_view item) {
  if (!list.empty()) list += ',';
  const bool quoted = item.empty() || item.find_first_of(",\"") != std::string_view::npos || Trim(item) != item;
  if (quoted) {
    list += QuotedString(item, '"');
  } else {
    list += item;
  }
}

std::vector<std::string> SplitList(std::string_view list) {
  std::vector<std::string> items;
  while (!(list = Trim(list)).empty()) {
    if (list.front() != '"') {
      const std::size_t comma = list.find(',');
      const std::string_view item = Trim(list.substr(0, comma));
      if (!item.empty()) items.emplace_back(item);
      list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
      continue;
    }
    std::string& item = items.emplace_back();
    std::size_t at = 1;
    for (; at < list.size(); ++at) {
      if (list[at] == '"' && (++at == list.size() || list[at] != '"')) break;
      item += list[at];
    }
    list.remove_prefix(std::min(at, list.size()));
    const std::size_t comma = list.find(',');
    list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
  }
  return items;
}

}  // namespace tolvi
