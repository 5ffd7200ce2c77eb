// The bracket count against its steps, field by field. Steering: READ SIZE.

#include "figure/bracket_count.h"
#include "input.h"
#include "memory_host.h"
#include "plain_text.h"

#include <optional>

namespace {

using norvik::figure::BracketCount;
using norvik::fuzz::PlainText;

bool begins(const std::string& field, std::string_view token) {
  return field.starts_with(token);
}

/// The next block's brackets; `field` is its actor's label first and the field behind it last.
/// Whether that one begins the next block.
bool countBlock(PlainText& in, std::string& field, BracketCount& total) {
  total.actor = field.substr(0, field.find(':'));
  long long left = 0;
  long long right = 0;
  bool carried = false;
  field = in.field();
  while (!begins(field, "actor") && !in.atEnd()) {
    left += begins(field, "{") ? 1 : 0;
    right += begins(field, "}") ? 1 : 0;
    field = in.field();
    carried = begins(field, "actor");
  }
  total.left += left;
  total.right += right;
  if (left == right + 1) total.missing = "right";
  if (right == left + 1) total.missing = "left";
  return carried;
}

BracketCount plainCount(PlainText& in) {
  while (in.field().find("figureResFile") == std::string::npos) {
  }
  BracketCount total;
  total.left = 1;
  bool inActors = false;
  bool carried = false;
  std::string field;
  while (!in.atEnd()) {
    if (!carried) field = in.field();
    inActors = inActors || begins(field, "actor");
    if (inActors) {
      carried = countBlock(in, field, total);
      if (!total.missing.empty()) break;
    }
    total.left += begins(field, "{") ? 1 : 0;
    total.right += begins(field, "}") ? 1 : 0;
  }
  return total;
}

std::string told(const BracketCount& count) {
  return count.missing + "|" + count.actor + "|" + std::to_string(count.left) + "|" +
         std::to_string(count.right);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const norvik::fuzz::Input input(data, size);
  norvik::fuzz::MemoryHost host;
  host.addFile("/f", input.text);
  host.limitReads(norvik::fuzz::numberIn(input.pieces(1)[0], 1, 4096));
  std::unique_ptr<norvik::text::HostFile> file;
  host.open("/f", norvik::text::HostOpenMode::read, file);

  std::string wanted = "error";
  try {
    PlainText plain(input.text);
    wanted = told(plainCount(plain));
  } catch (int) {
  }
  std::string found = "error";
  try {
    norvik::text::LineReader in(std::move(file));
    found = told(norvik::figure::countBrackets(in));
  } catch (const norvik::text::FileError&) {
  }
  norvik::fuzz::requireEqual(found, wanted, "the count");
  return 0;
}
