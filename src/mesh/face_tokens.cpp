#include "mesh/face_tokens.h"

#include "mesh/obj_number.h"
#include "text/columns.h"
#include "text/number_text.h"

#include <algorithm>

namespace norvik::obj {

namespace {

constexpr std::size_t kFirstToken = 3;

std::size_t indexOf(std::string_view token) {
  if (token.front() != '-') return leadingIndex(token);
  // "-1" becomes 0 and "-3" becomes -2: neither is a vertex. A lone minus becomes 1.
  return leadingIndex(text::numberText(static_cast<float>(leadingNumber(token) + 1)));
}

}  // namespace

void readFaceTokens(std::string_view line, std::vector<std::size_t>& indexes) {
  indexes.clear();
  std::string_view rest = text::from(text::leftmost(line, kFaceRecordLength), kFirstToken);
  std::size_t count = 0;
  std::size_t slash = rest.find('/');
  for (bool more = true; more;) {
    const std::size_t blank = rest.find(' ');
    const std::string_view token =
        rest.substr(0, std::min(slash, slash == rest.npos ? blank : slash));
    if (!token.empty()) {
      indexes.resize(count, 0);
      indexes.push_back(indexOf(token));
    }
    ++count;
    more = blank != rest.npos;
    if (!more) break;
    rest.remove_prefix(blank + 1);
    // A slash that lies ahead is still the first one; without any there never will be.
    if (slash != rest.npos) slash = slash > blank ? slash - blank - 1 : rest.find('/');
  }
}

std::string turnedRound(std::string_view line) {
  const std::size_t head = std::min(line.find_first_of(" \t"), line.size());
  std::string turned{line.substr(0, head)};
  std::string_view rest = line.substr(head);
  for (;;) {
    const std::size_t last = rest.find_last_not_of(" \t");
    if (last == rest.npos) return turned;
    rest = rest.substr(0, last + 1);
    const std::size_t before = rest.find_last_of(" \t");
    turned.append(" ").append(rest.substr(before == rest.npos ? 0 : before + 1));
    rest = rest.substr(0, before == rest.npos ? 0 : before);
  }
}

}  // namespace norvik::obj
