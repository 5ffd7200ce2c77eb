#include "plain_listers.h"

#include "plain_text.h"
#include "text/number_text.h"

#include <algorithm>

namespace norvik::fuzz {

namespace {

bool holds(const std::string& text, std::string_view token) {
  return text.find(token) != std::string::npos;
}
bool begins(const std::string& text, std::string_view token) {
  return text.starts_with(token);
}
std::string from(const std::string& text, std::size_t column) {
  return column > text.size() ? "" : text.substr(column - 1);
}

/// Runs a lister's steps; a read past the end is where it stops.
Listing listed(const std::function<void(Listing&)>& steps) {
  Listing listing;
  try {
    steps(listing);
  } catch (int error) {
    listing.error = error;
  }
  return listing;
}

bool searchesReference(const std::string& extension) {
  return extension != "fc2" && extension != "pz2" && extension != "pp2" && extension != "hr2";
}

bool passReference(PlainText& in, int& count) {
  std::string line;
  while (!holds(line, "figureResFile")) {
    if (in.atEnd()) return false;
    line = in.line();
    ++count;
    if (line.substr(0, 10) == "actor BODY") break;
  }
  return true;
}

std::string colours(const std::string& line) {
  std::string rest = holds(line, " ") ? line.substr(line.find(' ') + 1) : line;
  std::string entry;
  for (int i = 0; i < 3; ++i) {
    rest.erase(0, std::min(rest.find_first_not_of(' '), rest.size()));
    const std::string piece = rest.substr(0, rest.find(' '));
    rest.erase(0, piece.size());
    std::string number = text::numberText(static_cast<float>(text::value(piece)) * 256);
    if (number.starts_with(' ')) number.erase(0, 1);
    entry += (i == 0 ? "" : " ") + number;
  }
  return entry;
}

std::string tail(const std::string& field) {
  const auto at = field.find("Geometries:");
  return at == std::string::npos ? from(field, 11) : field.substr(at + 11);
}

void noteEmbedded(Listing& listing, const std::string& field) {
  listing.embedded = listing.embedded || holds(field, "geomCustom");
}

/// The steps from the folder part of the reference on; the error that ends them, 0 for none.
int follow(Listing& listing, std::string folder, const Enter& enter) {
  std::string rest = listing.obj;
  while (holds(rest, ":")) {
    folder += "\\" + rest.substr(0, rest.find(':'));
    if (const int error = enter(folder); error != 0) return error;
    rest.erase(0, rest.find(':') + 1);
  }
  listing.objFile = folder + "\\" + rest;
  return 0;
}

bool isListed(const std::vector<std::string>& list, const std::string& reference) {
  for (std::size_t i = 1; i <= list.size(); ++i) {
    if ((i == list.size() ? "" : list[i]) == reference) return true;
  }
  return false;
}

void listProps(Listing& listing, PlainText& in, bool testReference) {
  bool found = false;
  while (!in.atEnd()) {
    std::string field = in.field();
    noteEmbedded(listing, field);
    if (!begins(field, "prop ")) continue;
    const std::string name = from(field, 6);
    in.field();
    field = in.field();
    noteEmbedded(listing, field);
    if (holds(field, "name")) continue;
    field = in.field();
    const std::string reference =
        holds(field, "Geometries:") ? tail(field) : name + " Custom Geometry in CR2";
    if (testReference) noteEmbedded(listing, field);
    found = true;
    if (!isListed(listing.list, reference)) listing.list.push_back(reference);
  }
  if (!found) listing.list.emplace_back("No Props in CR2");
}

}  // namespace

Listing plainActors(const std::string& extension, const std::string& text) {
  return listed([&](Listing& listing) {
    PlainText in(text);
    int count = 0;
    if (searchesReference(extension) && !passReference(in, count)) {
      listing.boxes.emplace_back("No Figure Resource File listed!");
      return;
    }
    while (!in.atEnd()) {
      const std::string line = in.line();
      ++count;
      if (!begins(line, "actor")) continue;
      std::string entry = from(line, 6) + " *" + text::numberText(static_cast<float>(count));
      in.line();
      const bool storage = in.line().empty();
      count += 2;
      if (storage) {
        entry = " ";
        std::string field;
        do {
          field = in.field();
          ++count;
        } while (!holds(field, "figureResFile"));
        in.field();
        ++count;
      }
      listing.list.push_back((holds(entry, "BODY") ? "" : "   ") + entry);
    }
    if (listing.list.empty()) listing.boxes.emplace_back("No body parts in this file!");
  });
}

Listing plainMaterials(const std::string& extension, const std::string& text) {
  return listed([&](Listing& listing) {
    PlainText in(text);
    const bool pose = extension == "pz2" || extension == "fc2";
    const bool prop = extension == "hr2" || extension == "pp2";
    std::vector<std::string> props;
    const auto collectProps = [&] {
      while (!in.atEnd()) {
        const std::string field = in.field();
        if (field == "figure") return;
        if (begins(field, "prop")) props.push_back(from(field, 6));
      }
    };
    std::string field;
    while (!pose && !in.atEnd()) {
      field = in.field();
      if (field == "figure" || (prop && begins(field, "material"))) break;
      if (!holds(field, "figureResFile")) continue;
      if (!prop) collectProps();
      break;
    }
    while (!in.atEnd()) {
      field = in.field();
      const std::string name = from(field, 10);
      if (!begins(field, "material") || name == "Preview") continue;
      if (std::find(props.begin(), props.end(), name) != props.end()) {
        collectProps();
        continue;
      }
      listing.list.push_back(name);
      in.field();
      const std::string colour = in.field();
      in.field();
      const std::string highlight = in.field();
      listing.second.push_back(colours(colour));
      listing.third.push_back(colours(highlight));
    }
  });
}

Listing plainMaps(const std::string& extension, const std::string& text) {
  return listed([&](Listing& listing) {
    PlainText in(text);
    bool found = false;
    while (!found && !in.atEnd()) {
      const std::string line = in.line();
      found = holds(line, "material skin") || (extension == "hr2" && begins(line, "\tmaterial"));
    }
    std::string texture = "NO_MAP";
    std::string transparency;
    std::string reflection;
    std::string bump;
    if (!found) {
      listing.boxes.emplace_back(
          "Either there is no texture map listed, or the primary material is not called \"skin\".");
    } else {
      std::string last;
      std::string side;
      int newValues = 0;
      while (!in.atEnd()) {
        const std::string field = in.field();
        if (holds(field, "transparencyMap")) transparency = from(field, 17);
        if (holds(field, "reflectionMap")) reflection = from(field, 14);
        if (holds(field, "bumpMap")) bump = from(field, 8);
        if (!holds(field, "textureMap") || holds(side, "textureMap")) continue;
        last = field;
        if (field == "textureMap") {
          side = in.field();
          continue;
        }
        const std::string value = from(field, 12);
        auto& list = listing.list;
        if (std::find(list.begin(), list.end(), value) != list.end()) continue;
        list.push_back(value);
        if (++newValues > 1) {
          listing.boxes.emplace_back("There is more than one texture map used in this CR2.");
        }
      }
      texture = holds(last, "\"") ? last.substr(last.find('"')) : from(last, 12);
      if (holds(texture, "tringRes")) texture = "Default P4 Map";
    }
    const auto orNoMap = [](const std::string& map) { return map.empty() ? "NO_MAP" : map; };
    listing.maps = {texture, orNoMap(transparency), orNoMap(reflection), orNoMap(bump)};
  });
}

Listing plainPaths(const std::string& text, const Enter& enter) {
  return listed([&](Listing& listing) {
    PlainText in(text);
    while (!in.atEnd()) {
      const std::string field = in.field();
      noteEmbedded(listing, field);
      if (!begins(field, "figure")) continue;
      listing.obj = tail(field);
      break;
    }
    if (follow(listing, "C:\\Poser\\Runtime\\Geometries", enter) != 0) {
      listing.boxes.emplace_back(
          "Folding missing in OBJ path, you need to place the OBJ where it belongs or repoint it "
          "in the CR2. It may also be that you are missing the first colon, before the Runtime "
          "folder.");
      return;
    }
    listProps(listing, in, true);
  });
}

Listing plainPropPaths(const std::string& text, const Enter& enter) {
  return listed([&](Listing& listing) {
    PlainText in(text);
    while (!in.atEnd()) {
      std::string field = in.field();
      noteEmbedded(listing, field);
      if (!begins(field, "prop")) continue;
      for (int i = 0; i < 3; ++i) {
        field = in.field();
        noteEmbedded(listing, field);
      }
      listing.obj = tail(field);
      break;
    }
    const int error = follow(listing, "C:\\Poser\\\\Runtime\\Geometries", enter);
    if (error != 0) throw int{error};
    listProps(listing, in, false);
  });
}

}  // namespace norvik::fuzz
