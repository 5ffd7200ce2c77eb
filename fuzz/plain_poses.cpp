#include "plain_poses.h"

#include "plain_text.h"

#include <algorithm>
#include <functional>

namespace norvik::fuzz {

namespace {

bool holds(const std::string& text, const std::string& token) {
  return text.find(token) != std::string::npos;
}

bool begins(const std::string& text, const std::string& token) {
  return text.compare(0, token.size(), token) == 0;
}

bool ends(const std::string& text, const std::string& token) {
  return text.size() >= token.size() && text.substr(text.size() - token.size()) == token;
}

std::string from(const std::string& text, std::size_t column) {
  return text.size() < column ? "" : text.substr(column - 1);
}

std::string cut(const std::string& text, char at) {
  return text.substr(0, text.find(at));
}

bool contains(const Lines& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

std::string itemOf(const Lines& lines, std::size_t index) {
  return index < lines.size() ? lines[index] : "";
}

/// Runs the steps up to their end or an error.
PlainPose run(const std::function<void(PlainPose&)>& steps) {
  PlainPose pose;
  try {
    steps(pose);
  } catch (int error) {
    pose.error = error;
  }
  return pose;
}

}  // namespace

PlainPose plainParts(const std::string& text) {
  return run([&](PlainPose& pose) {
    PlainText in(text);
    while (!in.atEnd()) {
      const std::string actor = in.field();
      if (!begins(actor, "actor")) continue;
      in.field();
      const std::string third = in.field();
      if (third.empty() || holds(third, "Offset")) continue;
      const std::string name = from(actor, 7);
      if (holds(name, ":")) pose.first.push_back(cut(name, ':'));
    }
  });
}

PlainPose plainPartsPose(const std::string& text, bool scene, const Lines& wanted) {
  return run([&](PlainPose& pose) {
    PlainText in(text);
    for (int i = 0; i < 7; ++i) pose.out.push_back(in.line());
    while (scene) {
      const std::string field = in.field();
      if (!begins(field, "figureRes")) continue;
      pose.out.push_back(field);
      break;
    }
    const auto copy = [&] {
      bool onHand = false;
      std::string line;
      while (onHand || !in.atEnd()) {
        if (!onHand) line = in.line();
        onHand = false;
        if (line == "figure ") return;
        if (!begins(line, "actor")) continue;
        const std::string rest = from(line, 7);
        const std::string name = holds(rest, ":") ? cut(rest, ':') : "";
        for (const std::string& item : wanted) {
          if (item != name) continue;
          do {
            pose.out.push_back(line);
            if (in.atEnd()) return;
            line = in.line();
            if (line == "figure ") return;
          } while (!begins(line, "actor"));
          onHand = true;
        }
      }
    };
    copy();
    pose.out.emplace_back("}");
  });
}

PlainPose plainMatLists(const std::string& text, PlainKind kind) {
  return run([&](PlainPose& pose) {
    Lines seen;
    const auto materials = [&](PlainText& in) {
      while (!in.atEnd()) {
        const std::string line = in.field();
        const std::string name = from(line, 10);
        if (!begins(line, "material") || name == "Preview" || contains(seen, name)) continue;
        seen.push_back(name);
        pose.first.push_back(name);
        in.field();
        pose.second.push_back(from(in.field(), 9));
      }
    };
    const auto reach = [&](PlainText& in) {
      std::string line = in.field();
      if (kind == PlainKind::figure) {
        while (line != "figure" && !holds(line, "figureResFile")) line = in.field();
      } else {
        while ((kind == PlainKind::prop || line != "figure") && !begins(line, "prop")) {
          line = in.field();
        }
      }
      if (kind == PlainKind::hair) pose.third = {line};
      return line;
    };
    PlainText in(text);
    bool figure = reach(in) == "figure" && kind != PlainKind::prop;
    if (kind == PlainKind::prop) return materials(in);
    while (!figure && !in.atEnd()) {
      const std::string line = in.field();
      figure = line == "figure";
      if (begins(line, "prop")) seen.push_back(from(line, 6));
    }
    if (figure) return materials(in);
    if (kind == PlainKind::figure) return;
    seen.clear();
    PlainText again(text);
    reach(again);
    materials(again);
  });
}

PlainPose plainMat(const std::string& text, const PlainMat& choice) {
  return run([&](PlainPose& pose) {
    const bool hair = choice.kind == PlainKind::hair;
    pose.out = {"{", " ", "Version", "\t{", "\tNumber 4.01", "\t}"};
    pose.out.push_back(hair ? choice.propLine : "figure");
    pose.out.emplace_back("{");
    PlainText in(text);
    while (choice.kind == PlainKind::figure && in.field() != "figure") {
    }
    std::string line = in.line();
    while (!begins(line, "\tmaterial")) line = in.line();
    bool keeping = choice.all;
    std::size_t colour = 0;
    const auto unmapped = [&] { return holds(line, "Map") && !holds(line, "NO_MAP"); };
    const auto drop = [&] {
      const auto blank = line.find(' ');
      line = (blank == std::string::npos ? "" : line.substr(0, blank + 1)) + "NO_MAP";
    };
    while (!holds(line, "preset") && !in.atEnd()) {
      if (!choice.all && holds(line, "material")) {
        keeping = false;
        for (const std::string& name : choice.wanted) keeping = keeping || ends(line, name);
      }
      if (holds(line, "displayMode")) break;
      if (!choice.maps && unmapped()) drop();
      if (choice.noTrans && holds(line, "transparency") && unmapped()) drop();
      if (choice.white && holds(line, "KdColor")) {
        line = "\t\tKdColor 1 1 1 1";
      } else if (choice.white && holds(line, "KaColor")) {
        line = "\t\tKaColor 1 1 1 1";
      } else if (choice.white && holds(line, "KsColor")) {
        line = "\t\tKsColor 1 1 1 1";
      }
      if (!choice.white && holds(line, "KdColor")) {
        line = "\t\tKdColor " + itemOf(choice.colours, colour);
        ++colour;
      }
      if (keeping) pose.out.push_back(line);
      line = in.line();
      if (hair && holds(line, "locked")) break;
    }
    pose.out.insert(pose.out.end(), {"}", "}"});
  });
}

namespace {

void addChannel(Lines& out, const std::string& channel, const std::string& key) {
  const std::string tabs(3, '\t');
  out.insert(out.end(),
             {channel, tabs + "{", tabs + "keys", tabs + "{", key, tabs + "}", tabs + "}"});
}

}  // namespace

PlainPose plainSkeleton(const std::string& text) {
  return run([&](PlainPose& pose) {
    PlainText in(text);
    while (!in.atEnd()) {
      const std::string line = in.line();
      if (begins(line, "actor")) break;
      if (!begins(line, "fig")) pose.out.push_back(line);
    }
    while (!in.atEnd() && !begins(in.line(), "fig")) {
    }
    std::string actor;
    while (!in.atEnd()) {
      std::string line = in.line();
      if (begins(line, "actor") && line != actor) {
        if (!actor.empty()) pose.out.insert(pose.out.end(), {"\t\t}", "\t}"});
        actor = line;
        pose.out.push_back(line);
        pose.out.push_back(in.line());
        in.line();
        pose.out.insert(pose.out.end(), {"\tchannels", "\t\t{"});
        line = in.line();
      }
      if (holds(line, "targetGeom")) {
        pose.first.push_back(from(line, 13));
        addChannel(pose.out, line, "\t\t\tk 0 0");
      }
      if (holds(line, "valueParm")) {
        pose.first.push_back(from(line, 12));
        addChannel(pose.out, line, "\t\t\tk 0 0");
      }
    }
    pose.out.insert(pose.out.end(), {"\t\t}", "\t}", "}"});
  });
}

PlainPose plainMor(const std::string& skeleton, const Lines& values) {
  return run([&](PlainPose& pose) {
    PlainText in(skeleton);
    std::size_t index = 0;
    while (!in.atEnd()) {
      const std::string line = in.line();
      pose.out.push_back(line);
      if (!holds(line, "targetGeom") && !holds(line, "valueParm")) continue;
      for (int i = 0; i < 3; ++i) pose.out.push_back(in.line());
      in.line();
      const std::string value = itemOf(values, index);
      ++index;
      pose.out.push_back("\t\t\tk 0 " + std::string(begins(value, ".") ? "0" : "") + value);
    }
  });
}

PlainPose plainSettings(const std::string& text) {
  return run([&](PlainPose& pose) {
    PlainText in(text);
    std::string actor;
    while (!in.atEnd()) {
      const std::string line = in.line();
      if (begins(line, "actor")) actor = from(line, 7);
      const bool morph = holds(line, "targetGeom");
      if (!morph && !holds(line, "valueParm")) continue;
      in.line();
      if (holds(in.line(), "keys")) in.line();
      const std::string key = in.line();
      pose.first.push_back(from(line, morph ? 13 : 12));
      pose.second.push_back(key);
      pose.third.emplace_back(morph ? "TG" : "VP");
      pose.fourth.push_back(actor);
    }
  });
}

PlainPose plainWeld(const std::string& text, const PlainPose& own, const PlainPose& given,
                    const std::vector<int>& selected) {
  return run([&](PlainPose& pose) {
    const auto isSelected = [&](std::size_t i) {
      return std::find(selected.begin(), selected.end(), static_cast<int>(i)) != selected.end();
    };
    PlainText in(text);
    Lines found;
    std::size_t index = 0;
    while (!in.atEnd()) {
      const std::string line = in.line();
      pose.out.push_back(line);
      if (!holds(line, "targetGeom") && !holds(line, "valueParm")) continue;
      for (int i = 0; i < 3; ++i) pose.out.push_back(in.line());
      std::string name = itemOf(own.first, index);
      ++index;
      while (begins(name, " ")) name.erase(0, 1);
      for (std::size_t i = 0; i < given.first.size(); ++i) {
        if (!holds(given.first[i], name)) continue;
        found.push_back(given.first[i]);
        if (!isSelected(i)) continue;
        pose.out.push_back(given.second[i]);
        in.line();
        break;
      }
    }
    std::vector<std::size_t> missing;
    for (std::size_t i = 0; i < given.first.size(); ++i) {
      if (!isSelected(i) || contains(found, given.first[i])) continue;
      missing.push_back(i);
      pose.first.push_back(std::to_string(i) + "*" + given.first[i]);
    }
    for (const std::size_t i : missing) {
      const std::string actor = "actor " + cut(given.fourth[i], ':');
      std::size_t at = 0;
      while (at < pose.out.size() && cut(pose.out[at], ':') != actor) ++at;
      if (at == pose.out.size()) continue;
      if (at + 3 >= pose.out.size()) throw kPastEnd;
      Lines channel;
      const std::string keyword = given.third[i] == "TG" ? "targetGeom" : "valueParm";
      addChannel(channel, "\t\t" + keyword + given.first[i], given.second[i]);
      const auto place = pose.out.begin() + static_cast<std::ptrdiff_t>(at) + 4;
      pose.out.insert(place, channel.begin(), channel.end());
    }
  });
}

}  // namespace norvik::fuzz
