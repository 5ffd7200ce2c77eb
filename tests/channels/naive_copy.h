#pragma once
// The channel views and the copy of a morph once more, as plainly as they can be said: over whole
// figures in memory, a line at a time, and with nothing shared with the program. What the tests
// hold the program's results against.

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace norvik::tests {

using Lines = std::vector<std::string>;

inline bool startsWith(std::string_view line, std::string_view head) {
  return line.substr(0, head.size()) == head;
}
inline bool contains(std::string_view line, std::string_view word) {
  return line.find(word) != std::string_view::npos;
}

/// The lines of a file whose lines all end in CR LF.
inline Lines linesOf(std::string_view bytes) {
  Lines lines;
  while (!bytes.empty()) {
    const auto end = bytes.find("\r\n");
    if (end == std::string_view::npos) throw std::runtime_error("a line does not end in CR LF");
    lines.emplace_back(bytes.substr(0, end));
    bytes.remove_prefix(end + 2);
  }
  return lines;
}

inline std::string bytesOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

/// A line as field reads see it: cut at commas, without the blanks and tabs in front.
inline Lines fieldsOf(const std::string& line) {
  Lines fields;
  std::string rest = line;
  for (;;) {
    const auto comma = rest.find(',');
    std::string field = rest.substr(0, comma);
    const auto text = field.find_first_not_of(" \t");
    field = text == std::string::npos ? "" : field.substr(text);
    if (startsWith(field, "\"")) throw std::runtime_error("no quoted fields are expected here");
    fields.push_back(field);
    if (comma == std::string::npos) return fields;
    rest = rest.substr(comma + 1);
  }
}

/// A morph or a link as a view lists it.
struct ListedChannel {
  std::string dial;
  bool isLink = false;
  std::string figure = {};
  std::string group = {};
  std::string master = {};
  std::string ratio = {};
};

inline Lines itemsOf(const std::string& actor, const ListedChannel& channel) {
  if (!channel.isLink) return {actor, "\t" + channel.dial};
  return {actor,
          "\tERC Channel",
          "\tSlaved Channel: " + channel.dial,
          "\tMaster (Controlling) Channel: " + channel.master,
          "\tFigure (Controlling): " + channel.figure,
          "\tMaster (Controlling) Group: " + channel.group,
          "\tDelta Control Ratio: " + channel.ratio};
}

inline std::string behindWord(const std::string& text, const std::string& word) {
  return text.substr(text.find(word) + word.size());
}

/// The channels of one part: from the second line that is its actor line to the next actor.
/// Nothing if there are not two such lines.
inline std::optional<std::vector<ListedChannel>> naivePartView(const Lines& figure,
                                                               const std::string& part) {
  int seen = 0;
  Lines fields;
  for (const std::string& line : figure) {
    if (seen == 2) {
      for (const std::string& field : fieldsOf(line)) {
        if (startsWith(field, "actor")) seen = 3;
        if (seen == 2) fields.push_back(field);
      }
    }
    if (seen < 2 && line == "actor " + part) ++seen;
  }
  if (seen < 2) return std::nullopt;

  std::vector<ListedChannel> channels;
  std::string dial;
  std::size_t i = 0;
  while (i < fields.size()) {
    if (contains(fields[i], "valueOpDeltaAdd")) {
      if (i + 4 >= fields.size()) break;
      channels.push_back({dial, true, fields[i + 1], fields[i + 2], fields[i + 3],
                          behindWord(fields[i + 4], " ")});
      i += 4;
    } else if (contains(fields[i], "targetGeom")) {
      dial = behindWord(fields.at(i + 2), "name ");
      i += 3;
      while (i < fields.size() && !contains(fields[i], "interpStyleLocked")) ++i;
      ++i;
      if (i < fields.size() && !contains(fields[i], "valueOpDeltaAdd")) channels.push_back({dial});
    } else {
      ++i;
    }
  }
  return channels;
}

/// What the view of all channels adds to the two lists.
struct AllChannels {
  Lines items;
  Lines reorder;
};

inline AllChannels naiveAllChannels(const Lines& figure) {
  AllChannels all;
  std::string actor;
  std::string actorLine;
  std::string dial;
  std::size_t i = 0;
  while (i < figure.size()) {
    const std::string& line = figure[i];
    if (startsWith(line, "actor")) {
      actor = line.substr(6);
      actorLine = " " + std::to_string(i);
      ++i;
    } else if (!actor.empty() && contains(line, "valueOpDeltaAdd")) {
      const auto field = [&](std::size_t n) { return fieldsOf(figure.at(i + n)).front(); };
      const ListedChannel link{dial, true, field(1), field(2), field(3), behindWord(field(4), " ")};
      for (const std::string& item : itemsOf(actor, link)) all.items.push_back(item);
      i += 4;
    } else if (!actor.empty() && contains(line, "targetGeom")) {
      dial = behindWord(figure.at(i + 2), "name ");
      all.reorder.push_back(actor + "*" + dial + "^" + actorLine + "@" + line.substr(13));
      i += 3;
      while (!contains(figure.at(i), "interpStyleLocked")) ++i;
      ++i;
      if (!contains(figure.at(i), "valueOpDeltaAdd")) {
        for (const std::string& item : itemsOf(actor, {dial})) all.items.push_back(item);
      }
    } else {
      ++i;
    }
  }
  return all;
}

/// Thrown where a read runs off the end of a figure.
struct EndOfFigure {};

/// Reads a figure from a line on.
class NaiveReader {
 public:
  explicit NaiveReader(const Lines& lines) : lines_(lines) {}
  bool atEnd() const { return next_ == lines_.size(); }
  const std::string& line() {
    if (atEnd()) throw EndOfFigure{};
    return lines_[next_++];
  }

 private:
  const Lines& lines_;
  std::size_t next_ = 0;
};

/// A morph's entry in the source.
inline Lines naiveEntry(const Lines& source, const std::string& name) {
  NaiveReader in(source);
  Lines entry;
  while (in.line() != "\t\ttargetGeom " + name) {
  }
  entry.push_back("\t\ttargetGeom " + name);
  while (!in.atEnd()) {
    const std::string& line = in.line();
    if (startsWith(line, "\t\ttargetGeom") || startsWith(line, "\t\ttwist") ||
        startsWith(line, "\t\tjoint")) {
      break;
    }
    entry.push_back(line);
  }
  return entry;
}

/// The five lines of a link in the source.
inline Lines naiveLink(const Lines& source, const ListedChannel& link) {
  NaiveReader in(source);
  while (in.line() != "\t\ttargetGeom " + link.dial) {
  }
  while (!contains(in.line(), "interp")) {
  }
  for (;;) {
    Lines block;
    for (int i = 0; i < 5; ++i) block.push_back(in.line());
    if (contains(block[1], link.figure) && contains(block[2], link.group) &&
        contains(block[3], link.master) && contains(block[4], link.ratio)) {
      return block;
    }
  }
}

/// The destination with an entry, or a link of the morph `slaved`, in the part.
inline Lines naiveMerge(const Lines& destination, const std::string& part,
                        const std::string& figureNumber, Lines extract,
                        const std::optional<std::string>& slaved) {
  NaiveReader in(destination);
  Lines out;
  while (!in.atEnd()) {
    std::string line = in.line();
    if (startsWith(line, "actor " + part)) {
      out.push_back(line);
      out.push_back(in.line());
      line = in.line();
      if (contains(line, "name")) {
        out.push_back(line);
        do out.push_back(in.line());
        while (!contains(out.back(), "channels"));
        out.push_back(in.line());
        if (slaved) {
          if (!extract.empty()) {
            do out.push_back(in.line());
            while (out.back() != "\t\ttargetGeom " + *slaved);
          }
          do out.push_back(in.line());
          while (!contains(out.back(), "interp"));
        }
        for (const std::string& taken : extract) {
          const auto colon = taken.find(':');
          const bool keep = slaved || colon == std::string::npos;
          out.push_back(keep ? taken : taken.substr(0, colon + 1) + figureNumber);
        }
        extract.clear();
        line = in.line();
        if (line == "     {") line = in.line();
      }
    }
    if (!line.empty()) out.push_back(line);
  }
  return out;
}

/// The destination behind a copy of one listed channel.
inline Lines naiveCopy(const Lines& source, const Lines& destination, const std::string& part,
                       const std::string& figureNumber, const ListedChannel& channel) {
  if (channel.isLink) {
    return naiveMerge(destination, part, figureNumber, naiveLink(source, channel), channel.dial);
  }
  return naiveMerge(destination, part, figureNumber, naiveEntry(source, channel.dial),
                    std::nullopt);
}

}  // namespace norvik::tests
