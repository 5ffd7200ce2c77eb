// Drawings against their plainest form. Steering: WIDTH|HEIGHT; then a drawing a line, its numbers
// behind a letter: p (polygon: colour, x and y of each corner), l (line) and b (box: colour, pen
// size, x, y, x, y), d (dot: colour, pen size, x, y), s (single pixel: colour, x, y), x and c (the
// pens exclusive-or and copy), w (wipe).

#include "graphics/bmp.h"
#include "input.h"
#include "plain_drawing.h"

#include <charconv>
#include <optional>

namespace {

using norvik::fuzz::PlainDrawing;
using norvik::fuzz::require;
using norvik::graphics::Colour;
using norvik::graphics::Point;
using norvik::graphics::Surface;

/// Numbers one after the other; 0 where there are no more.
class Numbers {
 public:
  explicit Numbers(std::string_view text) : text_(text) {}

  std::optional<int> next() {
    const std::size_t start = text_.find_first_of("-0123456789");
    if (start == std::string_view::npos) return std::nullopt;
    text_.remove_prefix(start);
    int number = 0;
    const auto result = std::from_chars(text_.data(), text_.data() + text_.size(), number);
    text_.remove_prefix(
        std::max<std::size_t>(static_cast<std::size_t>(result.ptr - text_.data()), 1));
    return number;
  }
  int number() { return next().value_or(0); }
  Colour colour() { return static_cast<Colour>(number()) & 0xFFFFFFU; }
  int pen() {
    constexpr int kMost = 9;
    return number() % (kMost + 1);
  }
  Point point() {
    const int x = number();
    return {x, number()};
  }

 private:
  std::string_view text_;
};

void drawPolygon(Numbers& numbers, Surface& surface, PlainDrawing& plain) {
  constexpr std::size_t kMost = 40;
  const Colour colour = numbers.colour();
  std::vector<Point> corners;
  while (corners.size() < kMost) {
    const auto x = numbers.next();
    if (!x) break;
    corners.push_back({*x, numbers.number()});
  }
  surface.polygon(corners, colour);
  plain.polygon(corners, colour);
}

void draw(std::string_view line, Surface& surface, PlainDrawing& plain) {
  using norvik::graphics::PenMode;
  Numbers numbers(line.substr(1));
  if (line[0] == 'p') {
    drawPolygon(numbers, surface, plain);
  } else if (line[0] == 'l' || line[0] == 'b' || line[0] == 'd') {
    const Colour colour = numbers.colour();
    const int pen = numbers.pen();
    const Point from = numbers.point();
    const Point to = numbers.point();
    if (line[0] == 'l') {
      surface.line(from, to, colour, pen);
      plain.line(from, to, colour, pen);
    } else if (line[0] == 'b') {
      surface.box(from, to, colour, pen);
      plain.box(from, to, colour, pen);
    } else {
      surface.dot(from, colour, pen);
      plain.dot(from, colour, pen);
    }
  } else if (line[0] == 's') {
    const Colour colour = numbers.colour();
    const Point at = numbers.point();
    surface.setPixel(at, colour);
    plain.setPixel(at, colour);
  } else if (line[0] == 'x' || line[0] == 'c') {
    const auto mode = line[0] == 'x' ? PenMode::exclusiveOr : PenMode::copy;
    surface.setPenMode(mode);
    plain.setPenMode(mode);
  } else if (line[0] == 'w') {
    surface.clear();
    plain.clear();
  }
}

void compare(const Surface& surface, const PlainDrawing& plain, std::string_view line) {
  auto wanted = plain.pixels().begin();
  for (int y = 0; y < surface.height(); ++y) {
    for (int x = 0; x < surface.width(); ++x, ++wanted) {
      if (surface.pixel({x, y}) == *wanted) continue;
      const std::string place = std::to_string(x) + "," + std::to_string(y);
      require(false, "the pixel " + place + " of " + std::string{line});
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMostPixels = 24;
  constexpr std::size_t kMostDrawings = 30;
  constexpr Colour kPaper = 0x123456;
  const norvik::fuzz::Input input(data, size);
  const auto pieces = input.pieces(2);
  const auto width = static_cast<int>(norvik::fuzz::numberIn(pieces[0], 0, kMostPixels));
  const auto height = static_cast<int>(norvik::fuzz::numberIn(pieces[1], 0, kMostPixels));
  Surface surface(width, height, kPaper);
  PlainDrawing plain(width, height, kPaper);

  std::string_view rest = input.text;
  for (std::size_t drawn = 0; !rest.empty() && drawn < kMostDrawings; ++drawn) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    if (line.empty()) continue;
    draw(line, surface, plain);
    compare(surface, plain, line);
  }
  const std::size_t pixels = plain.pixels().size();
  require(surface.rgbBytes().size() == 3 * pixels, "three bytes a pixel");
  const std::size_t row = (3 * static_cast<std::size_t>(width) + 3) / 4 * 4;
  require(norvik::graphics::bmpBytes(surface).size() == 54 + row * static_cast<std::size_t>(height),
          "the size of the file");
  return 0;
}
