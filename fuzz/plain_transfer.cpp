#include "plain_transfer.h"

#include "text/number_text.h"

#include <string_view>

namespace norvik::fuzz {

namespace {

bool has(const std::string& line, std::string_view part) {
  return line.find(part) != std::string::npos;
}
bool starts(const std::string& line, std::string_view part) {
  return std::string_view(line).substr(0, part.size()) == part;
}
std::string mid(const std::string& line, std::size_t column) {
  return column > line.size() ? std::string{} : line.substr(column - 1);
}
std::string right(const std::string& line, std::size_t count) {
  return line.size() <= count ? line : line.substr(line.size() - count);
}
std::string lessRight(const std::string& line, std::size_t count) {
  return line.size() <= count ? std::string{} : line.substr(0, line.size() - count);
}

/// One run, from the reads of the destination to what is written.
class Grafting {
 public:
  Grafting(const std::string& text, const std::string& extract, PlainGraft graft)
      : in_(text), extract_(extract), graft_(std::move(graft)) {}

  PlainTransfer run() {
    try {
      result_.boxes = 1;
      storage();
      if (!actors()) return result_;
      channels();
      child();
      chain();
      weights();
      weld();
      result_.complete = true;
    } catch (int error) {
      result_.error = error;
    }
    return result_;
  }

 private:
  void read() { line_ = in_.line(); }
  void write(const std::string& line) { result_.out.push_back(line); }

  void storage() {
    const std::string geometry = "figureResFile :Runtime:Geometries:Man:a.obj";
    while (!has(line_, "figureResFile")) {
      read();
      write(line_);
    }
    ++result_.boxes;
    bool seen = false;
    for (read(); !has(line_, "figureResFile"); read()) {
      if (starts(line_, "actor") && !seen) {
        suffix_ = right(line_, 2);
        seen = true;
      }
      write(line_);
    }
    write(geometry);
    write("actor " + graft_.name + suffix_);
    extract_.line();
    for (int i = 0; i < 4; ++i) write(extract_.line());
    write(geometry);
  }

  bool actors() {
    for (read(); !starts(line_, "figure"); read()) {
      if (has(line_, "Custom")) {
        ++result_.boxes;
        if (!graft_.yes) return false;
      }
      write(line_);
    }
    return true;
  }

  void channels() {
    write(line_);
    write("\t{");
    write("\t\tname\t" + lessRight(graft_.name + suffix_, 2));
    for (int i = 0; i < 4; ++i) extract_.line();
    for (int i = 0; i < 7; ++i) write(extract_.line());
    const std::string line = extract_.line();
    const std::size_t behind = line.find(' ') == std::string::npos ? 0 : line.find(' ') + 1;
    parent_ = line.substr(behind);
    parent_ = parent_.substr(0, parent_.find(':'));
    write("\t" + line.substr(0, behind) + parent_ + suffix_);
    for (int i = 0; i < 2; ++i) write(extract_.line());
    while (!extract_.atEnd()) morphless(extract_.line());
  }

  void morphless(std::string line) {
    if (has(line, "otherActor")) {
      write(lessRight(line, 2) + suffix_);
      line = extract_.line();
    }
    if (has(line, "targetGeom")) {
      const auto stops = [&line] {
        const std::size_t twist = line.find("twist");
        return twist != std::string::npos && twist > 0;
      };
      while (!stops() && !extract_.atEnd()) line = extract_.line();
    }
    write(line);
  }

  void underParent(const std::string& keyword) {
    write("\t" + keyword + "    " + graft_.name + suffix_);
    write("\t\t\t" + parent_ + suffix_ + " ");
  }

  void child() {
    while (!has(line_, "inkyChain") && !in_.atEnd()) {
      read();
      if (!has(line_, "inkyChain")) write(line_);
    }
    underParent("addChild");
    write(line_);
    ++result_.boxes;
  }

  void chain() {
    if (!graft_.yes) return;
    while (!has(line_, graft_.chain)) {
      read();
      write(line_);
    }
    for (int i = 0; i < 3; ++i) {
      read();
      write(line_);
    }
    std::vector<std::string> items{" "};
    while (!has(line_, "Weight")) {
      read();
      if (has(line_, "Weight")) break;
      items.push_back(line_);
      items.emplace_back(" ");
    }
    ++result_.boxes;
    const auto count = static_cast<int>(items.size());
    if (graft_.pick >= count) graft_.pick = count - 1;
    for (int i = 1; i < count; ++i) {
      const std::string& item = items[static_cast<std::size_t>(i)];
      const bool blank = item == " ";
      if (i == graft_.pick) {
        write(blank ? "\t\taddLink " + graft_.name + suffix_ + " " : item);
      } else if (!blank && !item.empty()) {
        write(item);
      }
    }
  }

  void weights() {
    write(line_);
    std::string last;
    while (!has(line_, "\t}")) {
      read();
      if (has(line_, "\t}")) break;
      write(line_);
      last = line_;
    }
    if (graft_.yes) {
      const std::size_t blank = last.find(' ');
      const bool none = blank == std::string::npos;
      const std::string behind = none ? last : last.substr(blank + 1);
      const double index = text::value(behind.substr(0, 1));
      const double weight = text::value(mid(behind, 3)) / 20;
      write((none ? std::string{} : last.substr(0, blank)) +
            text::numberText(static_cast<float>(index + 1)) +
            text::numberText(static_cast<float>(weight)));
      ++result_.boxes;
    }
    write(line_);
  }

  void weld() {
    while (!has(line_, "allows")) {
      read();
      if (!has(line_, "allows")) write(line_);
    }
    underParent("weld");
    write(line_);
    while (!in_.atEnd()) write(in_.line());
    ++result_.boxes;
  }

  PlainText in_;
  PlainText extract_;
  PlainGraft graft_;
  PlainTransfer result_;
  std::string line_;
  std::string suffix_;
  std::string parent_;
};

}  // namespace

PlainTransfer plainExtract(const std::string& text, const std::string& item) {
  PlainTransfer result;
  std::string name = item.substr(0, item.find('*'));
  while (!name.empty() && name.front() == ' ') name.erase(0, 1);
  while (!name.empty() && name.back() == ' ') name.pop_back();
  const std::string actor = "actor " + name;
  PlainText in(text);
  std::string line;
  const auto copy = [&] {
    line = in.line();
    result.out.push_back(line);
  };
  try {
    while (line != actor) line = in.line();
    result.out.push_back(line);
    for (int i = 0; i < 3; ++i) copy();
    result.boxes = 1;
    if (has(line, "Custom")) return result;
    copy();
    result.out.emplace_back("*end geom*");
    while (line != actor) line = in.line();
    result.out.push_back(line);
    while (!has(line, "locked")) copy();
    copy();
    result.complete = true;
  } catch (int error) {
    result.error = error;
    result.boxes = 0;
  }
  return result;
}

PlainTransfer plainGraft(const std::string& text, const std::string& extract,
                         const PlainGraft& graft) {
  return Grafting(text, extract, graft).run();
}

}  // namespace norvik::fuzz
